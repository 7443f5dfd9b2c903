// ReportTable: a table of a report: packages in columns, in the colours of their kinds. A hidden
// list, because lists are what the print engine prints in colours.

#pragma once

#include "QVControls.h"
#include "model/column_widths.h"
#include "model/report_content.h"

#include <functional>

struct ReportFonts {
    CFont& heading;
    CFont& text;
};

class ReportTable : public QVListCtrlEx {
public:
    // Columns of the report, without rows, that share nRoom units of dc.
    bool Make(CWnd& parent, const ReportDefinition& report, CDC& dc, const ReportFonts& fonts,
              int nRoom);
    // In the order given, and calls step before each. The packages need not live on.
    void Fill(const std::vector<const Package*>& packages, const std::function<void()>& step);

    // What the columns of a report would have.
    static std::vector<ColumnWish> Wishes(const std::vector<ReportColumn>& columns, CDC& dc,
                                          const ReportFonts& fonts);

private:
    void SetWidths(CDC& dc, const ReportFonts& fonts, int nRoom);
    CString Row(const Package& package) const;

    std::vector<ReportColumn> m_columns;
    int m_anStyles[kReportColors] = {};
};

// A colour that a report names.
COLORREF ReportColorOf(const ReportDefinition& report, ReportColor color);
