#include "pages/report_table.h"

#include "model/report_settings.h"
#include "resource.h"

#include <algorithm>

namespace {

constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr int kMargins = 2 * 6 + 4;  // of a cell and a little air, in pixels of a screen
constexpr int kScreenDpi = 96;

}  // namespace

COLORREF ReportColorOf(const ReportDefinition& report, ReportColor color) {
    const NamedColor& named = kTextColors[report.colors[color]];
    return RGB(named.red, named.green, named.blue);
}

bool ReportTable::Make(CWnd& parent, const ReportDefinition& report, CDC& dc,
                       const ReportFonts& fonts, int nRoom) {
    ModifyDefStyle(WS_VISIBLE | WS_TABSTOP, 0);
    if (!Create(IDC_COLUMNS, CRect(0, 0, 0, 0), &parent)) {
        return false;
    }
    SetFont(parent.GetFont(), FALSE);
    m_columns = report.Columns();
    for (const ReportColumn column : m_columns) {
        const ReportColumnInfo& info = InfoOf(column);
        AddHeader(info.pszHeading);
        if (info.bRight) {
            SetColFormat(NumColumns() - 1, LVCFMT_RIGHT);
            SetHdrFormat(NumColumns() - 1, LVCFMT_RIGHT);
        }
    }
    SetWidths(dc, fonts, nRoom);
    for (const ReportColor color : {kReportInstalled, kReportRequired, kReportUnusual}) {
        m_anStyles[color] = AddStyle(ReportColorOf(report, color), kPaper);
    }
    return true;
}

std::vector<ColumnWish> ReportTable::Wishes(const std::vector<ReportColumn>& columns, CDC& dc,
                                            const ReportFonts& fonts) {
    const int nMargins = ::MulDiv(kMargins, dc.GetDeviceCaps(LOGPIXELSX), kScreenDpi);
    const auto width = [&](CFont& font, LPCSTR pszText) {
        const qv::SelectGuard select(dc, &font);
        return static_cast<int>(dc.GetTextExtent(pszText, lstrlen(pszText)).cx) + nMargins;
    };
    std::vector<ColumnWish> wishes;
    for (const ReportColumn column : columns) {
        const ReportColumnInfo& info = InfoOf(column);
        const int nHeading = width(fonts.heading, info.pszHeading);
        wishes.push_back(
            {std::max(width(fonts.text, info.pszSample), nHeading), nHeading, info.bMayBeCut});
    }
    return wishes;
}

// On paper the columns have the proportions of those on screen: so the widths are those of the
// paper.
void ReportTable::SetWidths(CDC& dc, const ReportFonts& fonts, int nRoom) {
    const std::vector<int> widths = ShareWidth(Wishes(m_columns, dc, fonts), nRoom);
    for (size_t i = 0; i < widths.size(); ++i) {
        SetColWidth(static_cast<int>(i), widths[i], nullptr);
    }
}

CString ReportTable::Row(const Package& package) const {
    const int nStyle = m_anStyles[package.bUnusual    ? kReportUnusual
                                  : package.bRequired ? kReportRequired
                                                      : kReportInstalled];
    CString strRow;
    for (const ReportColumn column : m_columns) {
        AppendStyleText(strRow, ::CellText(package, column).c_str(), nStyle);
    }
    return strRow;
}

void ReportTable::Fill(const std::vector<const Package*>& packages,
                       const std::function<void()>& step) {
    SetRedraw(FALSE);
    for (const Package* pPackage : packages) {
        step();
        InsertBitmapString(0, -1, Row(*pPackage));
    }
}
