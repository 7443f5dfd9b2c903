// ComparisonPaper: a page of a comparison as tables on paper. It has texts of its own: what is on
// the screen may change while it is printed, or looked at in the preview.

#pragma once

#include "QVControls.h"

#include <list>
#include <memory>
#include <vector>

struct PaperColumn {
    LPCSTR pszHeading;
    LPCSTR pszSample;  // as wide as most of what stands in the column
    bool bRight = false;
    bool bMayBeCut = false;
};

// Rows below a heading of their own; empty: none.
struct PaperGroup {
    CString strTitle;
    CStringArray rows;  // fields with the styles of difference_colors.h
};

struct PaperTable {
    CString strTitle;
    CString strText;  // below it
    std::vector<PaperColumn> columns;
    std::list<PaperGroup> groups;
};

// The same in a file. Where rows stand below headings, these are sections.
void WritePaper(const PaperTable& table, class TableWriter& writer, class Work& work);

class ComparisonPaper {
public:
    // Lays the table out for dc, which must outlive the paper; so must pages print on it, or on one
    // that stands in for it. The parent bears a list that is never shown for each group.
    ComparisonPaper(CDC& dc, CWnd& parent, std::unique_ptr<PaperTable> pTable);

    unsigned Pages() const { return m_nPages; }
    // Counted from 1.
    void PrintPage(CDC& dc, unsigned nPage);

private:
    // Hidden lists, because lists are what the print engine prints in colours.
    bool MakeList(CDC& dc, CWnd& parent, const PaperGroup& group, QVListCtrlEx& list);
    void SetWidths(CDC& dc, QVListCtrlEx& list);

    const std::unique_ptr<PaperTable> m_pTable;
    CFont m_fontTitle;
    CFont m_fontHeading;
    CFont m_fontText;
    CRect m_rcText;
    int m_nLineHeight = 0;
    std::list<QVListCtrlEx> m_lists;  // what the engine reads outlives it
    std::unique_ptr<QVPrintEngine> m_pEngine;
    unsigned m_nPages = 0;
};
