#include "pages/report.h"

#include "model/count_text.h"
#include "model/report_export.h"
#include "model/report_settings.h"
#include "pages/printing.h"
#include "resource.h"
#include "sources/machine_name.h"

namespace {

constexpr double kInch = 25.4;  // in millimetres
// Where there is no printer to tell its own paper.
constexpr const Paper& kUsualPaper = kPapers[1];

void MakeTableFonts(CDC& dc, const ReportDefinition& definition, CFont& heading, CFont& text) {
    const ReportFont& wanted = definition.textFont;
    MakePrintFont(heading, dc, wanted.nPoints + 1, FW_BOLD, wanted.strFace.c_str());
    MakePrintFont(text, dc, wanted.nPoints, FW_NORMAL, wanted.strFace.c_str());
}

CString WithThousands(size_t n) {
    return GroupedText(n).c_str();
}

}  // namespace

Report::Report(Work& work, const Inventory& inventory, const ReportDefinition& definition,
               const Settings& settings, CWnd& parent, QVListCtrlEx& list, CDC& dc, bool bLandscape)
    : m_definition(definition),
      m_settings(settings),
      m_content(inventory, definition),
      m_sheet(dc, settings, bLandscape) {
    MakeFonts(dc);
    m_pEngine = std::make_unique<QVPrintEngine>(&dc, &m_fontHeader, &m_fontNormal, &m_fontSection);
    m_pEngine->SetPrintAllRows(true);
    m_pEngine->AddText(Text(m_definition.strTitle), &dc, &m_fontTitle);
    if (m_definition.bIntroduction) {
        AddIntroduction(dc);
    }
    if (m_content.all.packages.empty()) {
        m_pEngine->AddBreak();
        m_pEngine->AddText("No package is what the report asks for.", &dc, nullptr);
    } else if (m_definition.tables == ReportTables::One) {
        m_pEngine->AddSectionHeader(m_content.all.strName.c_str());
        AddTable(work, m_content.all, parent, dc);
    }
    if (m_definition.tables == ReportTables::BySection ||
        m_definition.totals == ReportTotals::BySection) {
        for (const ReportGroup& section : m_content.sections) {
            AddSection(work, section, parent, dc);
        }
    }
    if (m_definition.totals == ReportTotals::Overall) {
        AddSectionTotals(parent, dc);
    }
    if (m_definition.bList) {
        m_pEngine->AddSectionHeader("The list as it is sorted");
        m_pEngine->AddList(&list, &dc);
    }
    m_nPages = m_pEngine->Paginate(m_sheet.rcText);
}

CString Report::Text(const std::string& strText) const {
    return ReportText(strText, m_content);
}

CString ReportText(const std::string& strText, const ReportContent& content) {
    const CString strMachine = MachineName();
    const CString strDate = CTime::GetCurrentTime().Format("%Y-%m-%d");
    const CString strPackages = WithThousands(content.all.totals.nPackages);
    return ReplaceCodes(strText, {{kCodeMachine, static_cast<LPCSTR>(strMachine)},
                                  {kCodeDate, static_cast<LPCSTR>(strDate)},
                                  {kCodePackages, static_cast<LPCSTR>(strPackages)}})
        .c_str();
}

SheetMeasures::SheetMeasures(CDC& dc, const Settings& settings, bool bLandscape) {
    const int nDpiX = dc.GetDeviceCaps(LOGPIXELSX);
    const int nDpiY = dc.GetDeviceCaps(LOGPIXELSY);
    if (dc.GetDeviceCaps(TECHNOLOGY) == DT_RASPRINTER) {
        paper = CSize(dc.GetDeviceCaps(PHYSICALWIDTH), dc.GetDeviceCaps(PHYSICALHEIGHT));
        origin = CPoint(dc.GetDeviceCaps(PHYSICALOFFSETX), dc.GetDeviceCaps(PHYSICALOFFSETY));
    } else {
        const int nPaper = settings.Choice(kSettingPaper);
        const Paper& sheet = nPaper != 0 ? kPapers[nPaper] : kUsualPaper;
        paper = CSize(static_cast<int>((bLandscape ? sheet.height : sheet.width) / kInch * nDpiX),
                      static_cast<int>((bLandscape ? sheet.width : sheet.height) / kInch * nDpiY));
    }
    rcText = CRect(CPoint(-origin.x, -origin.y), paper);
    const Margins margins = ReadMargins(settings.Value(kSettingMargins));
    const auto units = [](double margin, int nDpi) {
        return static_cast<int>(margin / kInch * nDpi);
    };
    rcText.DeflateRect(units(margins[0], nDpiX), units(margins[1], nDpiY), units(margins[2], nDpiX),
                       units(margins[3], nDpiY));
}

bool Report::NeedsLandscape(const ReportDefinition& definition, const Settings& settings,
                            QVListCtrlEx& list, CDC& dc) {
    const int nRoom = SheetMeasures(dc, settings, false).rcText.Width();
    if (definition.tables != ReportTables::None) {
        CFont fontHeading;
        CFont fontText;
        MakeTableFonts(dc, definition, fontHeading, fontText);
        if (CutsTooMuch(ReportTable::Wishes(definition.Columns(), dc, {fontHeading, fontText}),
                        nRoom)) {
            return true;
        }
    }
    const CClientDC dcScreen(nullptr);
    return definition.bList && ::MulDiv(list.GetDataWidth(), dc.GetDeviceCaps(LOGPIXELSX),
                                        dcScreen.GetDeviceCaps(LOGPIXELSX)) > nRoom;
}

void Report::MakeFonts(CDC& dc) {
    const auto make = [&](CFont& font, const ReportFont& wanted) {
        MakePrintFont(font, dc, wanted.nPoints, FW_BOLD, wanted.strFace.c_str());
    };
    make(m_fontTitle, m_definition.titleFont);
    make(m_fontSection, m_definition.headingFont);
    MakeTableFonts(dc, m_definition, m_fontHeader, m_fontNormal);
    const qv::SelectGuard select(dc, &m_fontNormal);
    m_nLineHeight = dc.GetTextExtent("0", 1).cy;
}

void Report::AddIntroduction(CDC& dc) {
    m_pEngine->AddBreak();
    m_pEngine->AddText(IntroductionText(m_content).c_str(), &dc, nullptr);
}

void Report::AddSection(Work& work, const ReportGroup& section, CWnd& parent, CDC& dc) {
    m_pEngine->AddBreak();
    m_pEngine->AddSectionHeader(section.strName.c_str());
    if (m_definition.tables == ReportTables::BySection) {
        AddTable(work, section, parent, dc);
    }
    if (m_definition.totals == ReportTotals::BySection) {
        m_pEngine->AddBreak();
        m_pEngine->AddGroupHeader("Totals");
        AddTotals(section, dc);
    }
}

void Report::AddTable(Work& work, const ReportGroup& group, CWnd& parent, CDC& dc) {
    ReportTable& table = m_tables.emplace_back();
    const ReportFonts fonts{m_fontHeader, m_fontNormal};
    if (!table.Make(parent, m_definition, dc, fonts, m_sheet.rcText.Width())) {
        m_bTables = false;
        return;
    }
    table.Fill(group.packages, [&] { work.Step(m_nRows++, m_content.all.packages.size()); });
    m_pEngine->AddList(&table, &dc);
}

void Report::AddTotals(const ReportGroup& group, CDC& dc) {
    using Item = QVPeDataLabeledListItem;
    QVPeDataLabeledList& totals = m_pEngine->AddLabeledDataList(&dc);
    totals.SetIndented(m_definition.tables == ReportTables::BySection);
    totals.SetFitNumbers(true);
    totals.AddData("Packages:", WithThousands(group.totals.nPackages), Item::Right);
    totals.AddData("KiB on disk:", WithThousands(static_cast<size_t>(group.totals.nSizeKiB)),
                   Item::Right);
    totals.AddData("In an unusual state:", WithThousands(group.totals.nUnusual), Item::Right);
    if (group.totals.pLargest != nullptr) {
        totals.AddData("Largest:", group.totals.pLargest->strName.c_str(), Item::Left);
    }
}

// A row for each section, and the sums below.
void Report::AddSectionTotals(CWnd& parent, CDC& dc) {
    m_totals.ModifyDefStyle(WS_VISIBLE | WS_TABSTOP, 0);
    if (!m_totals.Create(IDC_COLUMNS, CRect(0, 0, 0, 0), &parent)) {
        m_bTables = false;
        return;
    }
    m_totals.SetFont(parent.GetFont(), FALSE);
    m_totals.AddHeader("Section\tPackages\tKiB on disk\tUnusual");
    for (int nCol = 1; nCol < m_totals.NumColumns(); ++nCol) {
        m_totals.SetColFormat(nCol, LVCFMT_RIGHT);
        m_totals.SetHdrFormat(nCol, LVCFMT_RIGHT);
    }
    m_totals.SetupColumnsFromString("a-section-with-a-long-name\t99,999~\t99,999,999~\t9,999~");
    for (const ReportGroup& section : m_content.sections) {
        CString strRow;
        strRow.Format(
            "%s\t%s\t%s\t%s", section.strName.c_str(),
            static_cast<LPCTSTR>(WithThousands(section.totals.nPackages)),
            static_cast<LPCTSTR>(WithThousands(static_cast<size_t>(section.totals.nSizeKiB))),
            static_cast<LPCTSTR>(WithThousands(section.totals.nUnusual)));
        m_totalRows.Add(strRow);
    }
    m_pEngine->AddBreak();
    m_pEngine->AddSectionHeader("Totals");
    m_pEngine->AddStringList(&m_totalRows, &m_totals, &dc);
    m_pEngine->AddBreak();
    AddTotals(m_content.all, dc);
}

void Report::PrintPage(CDC& dc, unsigned nPage) {
    {
        // The engine's texts are in the colour that the context has.
        const qv::ColorGuard colors(dc);
        dc.SetTextColor(ReportColorOf(m_definition, kReportTexts));
        m_pEngine->PrintPage(&dc, m_sheet.rcText, nPage);
    }
    const qv::SelectGuard select(dc, &m_fontNormal);
    CRect rcLine(m_sheet.rcText);
    CString strText("Inventory");
    rcLine.OffsetRect(0, -2 * m_nLineHeight);
    dc.DrawText(strText, &rcLine, DT_SINGLELINE | DT_NOPREFIX);
    dc.DrawText(CTime::GetCurrentTime().Format("%Y-%m-%d"), &rcLine,
                DT_SINGLELINE | DT_NOPREFIX | DT_RIGHT);
    rcLine = m_sheet.rcText;
    rcLine.top = rcLine.bottom + m_nLineHeight;
    rcLine.bottom = rcLine.top + m_nLineHeight;
    strText.Format("Page %u of %u", nPage, m_nPages);
    dc.DrawText(strText, &rcLine, DT_SINGLELINE | DT_NOPREFIX | DT_CENTER);
    dc.DrawText(Text(m_settings.Value(kSettingFooter)), &rcLine, DT_SINGLELINE | DT_NOPREFIX);
}
