// The columns of a report list as the list counts them: how many there are, how each aligns its
// cells, which style stands in for a background, and what of them goes on paper. The widths on
// screen are the control's own.
//
// Indices are checked against the number of columns: out of range reads 0 and writes nothing.

#pragma once

#include <vector>

namespace qv {

inline constexpr int kLastHeaderColumn = 20;  // heading strings make no column behind this index

class ListColumns {
public:
    int Count() const { return m_nColumns; }
    void SetCount(int nColumns);
    // A column was inserted at nCol: only one at or behind the end is counted as new.
    void CountInserted(int nCol);
    void CountDeleted();
    // No columns, and every alignment and style 0 again.
    void Clear();

    // 0 left, 1 right, 2 centred.
    int Format(int nCol) const { return Read(m_aColFormat, nCol); }
    void SetFormat(int nCol, int nFormat) { Write(m_aColFormat, nCol, nFormat); }
    int Style(int nCol) const { return Read(m_aColStyle, nCol); }
    void SetStyle(int nCol, int nStyle) { Write(m_aColStyle, nCol, nStyle); }

    // --- Paper

    // For good. A column may be excluded more than once, and counts as often then.
    void Exclude(int nCol) { m_aPrintExclude.push_back(nCol); }
    bool IsExcluded(int nCol) const;
    const std::vector<int>& Excluded() const { return m_aPrintExclude; }

    // A table of widths on paper, one for each column.
    int* PrintWidths();
    // Spreads nPageWidth over the columns that are printed, in proportion to their widths on
    // screen, width(nCol), whose sum is nTotal. May throw std::bad_alloc, and changes nothing then.
    template <class Width>
    void SpreadOverPage(int nPageWidth, int nTotal, Width width);

private:
    bool IsColumn(int nCol) const { return nCol >= 0 && nCol < m_nColumns; }
    int Read(const std::vector<int>& table, int nCol) const;
    void Write(std::vector<int>& table, int nCol, int nValue) const;

    int m_nColumns = 0;
    std::vector<int> m_aColFormat;
    std::vector<int> m_aColStyle;
    std::vector<int> m_aPrintExclude;
    std::vector<int> m_aPrintColWidths;
};

// Width on paper of a column nWidth wide, where nTotal pixels of the screen are to fill nPageWidth;
// truncated. 0 if nTotal is not positive: then all columns that are printed have no width.
int PrintWidth(int nWidth, int nPageWidth, int nTotal);

template <class Width>
void ListColumns::SpreadOverPage(int nPageWidth, int nTotal, Width width) {
    int* pWidths = PrintWidths();
    for (int nCol = 0; nCol < m_nColumns; ++nCol) {
        pWidths[nCol] = IsExcluded(nCol) ? 0 : PrintWidth(width(nCol), nPageWidth, nTotal);
    }
}

}  // namespace qv
