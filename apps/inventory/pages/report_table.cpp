#include "pages/report_table.h"

#include "model/report_settings.h"
#include "resource.h"

namespace {

constexpr COLORREF kPaper = RGB(255, 255, 255);

}  // namespace

COLORREF ReportColorOf(const ReportDefinition& report, ReportColor color) {
    const NamedColor& named = kTextColors[report.colors[color]];
    return RGB(named.red, named.green, named.blue);
}

bool ReportTable::Make(CWnd& parent, const ReportDefinition& report) {
    ModifyDefStyle(WS_VISIBLE | WS_TABSTOP, 0);
    if (!Create(IDC_COLUMNS, CRect(0, 0, 0, 0), &parent)) {
        return false;
    }
    SetFont(parent.GetFont(), FALSE);
    m_columns = report.Columns();
    CString strSample;
    for (const ReportColumn column : m_columns) {
        const ReportColumnInfo& info = InfoOf(column);
        AddHeader(info.pszHeading);
        strSample += CString(strSample.IsEmpty() ? "" : "\t") + info.pszSample;
        if (info.bRight) {
            SetColFormat(NumColumns() - 1, LVCFMT_RIGHT);
            SetHdrFormat(NumColumns() - 1, LVCFMT_RIGHT);
        }
    }
    SetupColumnsFromString(strSample);
    for (const ReportColor color : {kReportInstalled, kReportRequired, kReportUnusual}) {
        m_anStyles[color] = AddStyle(ReportColorOf(report, color), kPaper);
    }
    return true;
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

void ReportTable::Fill(const std::vector<const Package*>& packages) {
    SetRedraw(FALSE);
    for (const Package* pPackage : packages) {
        InsertBitmapString(0, -1, Row(*pPackage));
    }
}
