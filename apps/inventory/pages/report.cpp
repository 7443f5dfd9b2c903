#include "pages/report.h"

#include "model/report_settings.h"
#include "pages/printing.h"
#include "resource.h"

namespace {

constexpr double kInch = 25.4;  // in millimetres
// Where there is no printer to tell its own paper.
constexpr const Paper& kUsualPaper = kPapers[1];

CString WithThousands(size_t n) {
    CString str;
    str.Format("%u", static_cast<unsigned>(n));
    for (int i = str.GetLength() - 3; i > 0; i -= 3) {
        str.Insert(i, ',');
    }
    return str;
}

}  // namespace

Report::Report(Work& work, const Inventory& inventory, const ReportDefinition& definition,
               const Settings& settings, CWnd& parent, QVListCtrlEx& list, CDC& dc)
    : m_definition(definition), m_settings(settings), m_content(inventory, definition) {
    MeasurePaper(dc);
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
    m_nPages = m_pEngine->Paginate(m_rcText);
}

CString Report::Text(const std::string& strText) const {
    char szMachine[MAX_COMPUTERNAME_LENGTH + 1] = "";
    DWORD nLength = sizeof(szMachine);
    ::GetComputerName(szMachine, &nLength);
    const CString strDate = CTime::GetCurrentTime().Format("%Y-%m-%d");
    const CString strPackages = WithThousands(m_content.all.totals.nPackages);
    return ReplaceCodes(strText, {{kCodeMachine, szMachine},
                                  {kCodeDate, static_cast<LPCSTR>(strDate)},
                                  {kCodePackages, static_cast<LPCSTR>(strPackages)}})
        .c_str();
}

void Report::MeasurePaper(CDC& dc) {
    const int nDpiX = dc.GetDeviceCaps(LOGPIXELSX);
    const int nDpiY = dc.GetDeviceCaps(LOGPIXELSY);
    if (dc.GetDeviceCaps(TECHNOLOGY) == DT_RASPRINTER) {
        m_paper = CSize(dc.GetDeviceCaps(PHYSICALWIDTH), dc.GetDeviceCaps(PHYSICALHEIGHT));
        m_origin = CPoint(dc.GetDeviceCaps(PHYSICALOFFSETX), dc.GetDeviceCaps(PHYSICALOFFSETY));
    } else {
        const int nPaper = m_settings.Choice(kSettingPaper);
        const Paper& paper = nPaper != 0 ? kPapers[nPaper] : kUsualPaper;
        m_paper = CSize(static_cast<int>(paper.width / kInch * nDpiX),
                        static_cast<int>(paper.height / kInch * nDpiY));
    }
    m_rcText = CRect(CPoint(-m_origin.x, -m_origin.y), m_paper);
    const Margins margins = ReadMargins(m_settings.Value(kSettingMargins));
    const auto units = [](double margin, int nDpi) {
        return static_cast<int>(margin / kInch * nDpi);
    };
    m_rcText.DeflateRect(units(margins[0], nDpiX), units(margins[1], nDpiY),
                         units(margins[2], nDpiX), units(margins[3], nDpiY));
}

void Report::MakeFonts(CDC& dc) {
    const auto make = [&](CFont& font, const ReportFont& wanted, int nMorePoints, int nWeight) {
        MakePrintFont(font, dc, wanted.nPoints + nMorePoints, nWeight, wanted.strFace.c_str());
    };
    make(m_fontTitle, m_definition.titleFont, 0, FW_BOLD);
    make(m_fontSection, m_definition.headingFont, 0, FW_BOLD);
    make(m_fontHeader, m_definition.textFont, 1, FW_BOLD);
    make(m_fontNormal, m_definition.textFont, 0, FW_NORMAL);
    const qv::SelectGuard select(dc, &m_fontNormal);
    m_nLineHeight = dc.GetTextExtent("0", 1).cy;
}

void Report::AddIntroduction(CDC& dc) {
    const PackageTotals& totals = m_content.all.totals;
    m_pEngine->AddBreak();
    CString strText;
    const size_t nSections = m_content.sections.size();
    strText.Format(
        "This report lists %s packages of the machine's package database, in %s section%s; they "
        "take %s on its disks together. Packages that are in any state but properly installed are "
        "counted apart; at this moment there are %s of them.",
        static_cast<LPCTSTR>(WithThousands(totals.nPackages)),
        static_cast<LPCTSTR>(WithThousands(nSections)), nSections == 1 ? "" : "s",
        SizeText(totals.nSizeKiB).c_str(), static_cast<LPCTSTR>(WithThousands(totals.nUnusual)));
    m_pEngine->AddText(strText, &dc, nullptr);
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
    if (!table.Make(parent, m_definition, dc, fonts, m_rcText.Width())) {
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
        m_pEngine->PrintPage(&dc, m_rcText, nPage);
    }
    const qv::SelectGuard select(dc, &m_fontNormal);
    CRect rcLine(m_rcText);
    CString strText("Inventory");
    rcLine.OffsetRect(0, -2 * m_nLineHeight);
    dc.DrawText(strText, &rcLine, DT_SINGLELINE | DT_NOPREFIX);
    dc.DrawText(CTime::GetCurrentTime().Format("%Y-%m-%d"), &rcLine,
                DT_SINGLELINE | DT_NOPREFIX | DT_RIGHT);
    rcLine = m_rcText;
    rcLine.top = rcLine.bottom + m_nLineHeight;
    rcLine.bottom = rcLine.top + m_nLineHeight;
    strText.Format("Page %u of %u", nPage, m_nPages);
    dc.DrawText(strText, &rcLine, DT_SINGLELINE | DT_NOPREFIX | DT_CENTER);
    dc.DrawText(Text(m_settings.Value(kSettingFooter)), &rcLine, DT_SINGLELINE | DT_NOPREFIX);
}
