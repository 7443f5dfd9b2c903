#include "pages/report.h"

#include "model/report_settings.h"
#include "pages/printing.h"

#include <algorithm>

namespace {

constexpr double kInch = 25.4;  // in millimetres
// Where there is no printer to tell its own paper.
constexpr const Paper& kUsualPaper = kPapers[1];

enum ReportedPackages { kReportAll, kReportRequired, kReportUnusual };

long SizeOf(const Section& section) {
    long nKiB = 0;
    for (const Package& package : section.packages) {
        nKiB += package.nSizeKiB;
    }
    return nKiB;
}

size_t UnusualIn(const Section& section) {
    return static_cast<size_t>(std::count_if(section.packages.begin(), section.packages.end(),
                                             [](const Package& p) { return p.bUnusual; }));
}

CString WithThousands(size_t n) {
    CString str;
    str.Format("%u", static_cast<unsigned>(n));
    for (int i = str.GetLength() - 3; i > 0; i -= 3) {
        str.Insert(i, ',');
    }
    return str;
}

}  // namespace

Report::Report(const Inventory& inventory, const ReportOptions& options, const Settings& settings,
               QVListCtrlEx& columns, QVListCtrlEx& list, CDC& dc)
    : m_options(options), m_settings(settings) {
    Choose(inventory);
    MeasurePaper(dc);
    MakeFonts(dc);
    m_pEngine = std::make_unique<QVPrintEngine>(&dc, &m_fontHeader, &m_fontNormal, &m_fontSection);
    m_pEngine->SetPrintAllRows(true);
    if (options.bIntroduction) {
        AddIntroduction(dc);
    }
    if (options.bSections || options.bTotals) {
        for (const Section& section : m_inventory.Sections()) {
            AddSection(section, columns, dc);
        }
    }
    if (options.bList) {
        m_pEngine->AddSectionHeader("All packages");
        m_pEngine->AddList(&list, &dc);
    }
    m_nPages = m_pEngine->Paginate(m_rcText);
}

void Report::Choose(const Inventory& inventory) {
    const int nPackages = m_settings.Choice(kSettingPackages);
    std::vector<Package> packages;
    for (const Section& section : inventory.Sections()) {
        std::copy_if(
            section.packages.begin(), section.packages.end(), std::back_inserter(packages),
            [&](const Package& package) {
                return nPackages == kReportAll ||
                       (nPackages == kReportRequired ? package.bRequired : package.bUnusual);
            });
    }
    m_inventory.SetPackages(std::move(packages));
}

CString Report::Text(int nSetting) const {
    char szMachine[MAX_COMPUTERNAME_LENGTH + 1] = "";
    DWORD nLength = sizeof(szMachine);
    ::GetComputerName(szMachine, &nLength);
    const CString strDate = CTime::GetCurrentTime().Format("%Y-%m-%d");
    return ReplaceCodes(
               m_settings.Value(nSetting),
               {{kCodeMachine, szMachine},
                {kCodeDate, static_cast<LPCSTR>(strDate)},
                {kCodePackages, static_cast<LPCSTR>(WithThousands(m_inventory.CountPackages()))}})
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
    MakePrintFont(m_fontNormal, dc, 8, FW_NORMAL);
    MakePrintFont(m_fontHeader, dc, 9, FW_BOLD);
    MakePrintFont(m_fontSection, dc, 14, FW_BOLD);
    const qv::SelectGuard select(dc, &m_fontNormal);
    m_nLineHeight = dc.GetTextExtent("0", 1).cy;
}

void Report::AddIntroduction(CDC& dc) {
    long nKiB = 0;
    size_t nUnusual = 0;
    for (const Section& section : m_inventory.Sections()) {
        nKiB += SizeOf(section);
        nUnusual += UnusualIn(section);
    }
    m_pEngine->AddHeader(Text(kSettingTitle), &dc);
    m_pEngine->AddBreak();
    CString strText;
    strText.Format(
        "This report lists what the package database of the machine holds: %s packages "
        "in %s sections, which take %s on its disks together. Each section begins with "
        "its packages, ordered by name, with their versions, sizes and states, and ends "
        "with its totals. Packages that are in any state but properly installed are "
        "counted apart; at this moment there are %s of them.",
        static_cast<LPCTSTR>(WithThousands(m_inventory.CountPackages())),
        static_cast<LPCTSTR>(WithThousands(m_inventory.Sections().size())), SizeText(nKiB).c_str(),
        static_cast<LPCTSTR>(WithThousands(nUnusual)));
    m_pEngine->AddText(strText, &dc, nullptr);
}

void Report::AddSection(const Section& section, QVListCtrlEx& columns, CDC& dc) {
    m_pEngine->AddBreak();
    m_pEngine->AddSectionHeader(section.strName.c_str());
    if (m_options.bSections) {
        CStringArray& rows = m_rows.emplace_back();
        for (const Package& package : section.packages) {
            CString strRow;
            strRow.Format("%s\t%s\t%s\t%s\t%s", package.strName.c_str(), package.strVersion.c_str(),
                          SizeText(package.nSizeKiB).c_str(), package.strState.c_str(),
                          package.strSummary.c_str());
            rows.Add(strRow);
        }
        m_pEngine->AddStringList(&rows, &columns, &dc);
    }
    if (m_options.bTotals) {
        AddTotals(section, dc);
    }
}

void Report::AddTotals(const Section& section, CDC& dc) {
    using Item = QVPeDataLabeledListItem;
    m_pEngine->AddBreak();
    m_pEngine->AddGroupHeader("Totals");
    QVPeDataLabeledList& totals = m_pEngine->AddLabeledDataList(&dc);
    totals.SetIndented(m_options.bSections);
    totals.SetFitNumbers(true);
    totals.AddData("Packages:", WithThousands(section.packages.size()), Item::Right);
    totals.AddData("KiB on disk:", WithThousands(static_cast<size_t>(SizeOf(section))),
                   Item::Right);
    totals.AddData("In an unusual state:", WithThousands(UnusualIn(section)), Item::Right);
    if (!section.packages.empty()) {
        const auto largest = std::max_element(
            section.packages.begin(), section.packages.end(),
            [](const Package& a, const Package& b) { return a.nSizeKiB < b.nSizeKiB; });
        totals.AddData("Largest:", largest->strName.c_str(), Item::Left);
    }
}

void Report::PrintPage(CDC& dc, unsigned nPage) {
    m_pEngine->PrintPage(&dc, m_rcText, nPage);
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
    dc.DrawText(Text(kSettingFooter), &rcLine, DT_SINGLELINE | DT_NOPREFIX);
}
