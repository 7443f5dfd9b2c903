// A flexible grid's store: rows and columns, the first of them fixed, and the cells' texts and
// formats. It knows no window and no selection.
//
// What is refused leaves everything as it was and says why. Wherever memory is asked for
// std::bad_alloc may be thrown, and everything is as before then.

#pragma once

#include "ocx/core/flex_grid_axis.h"
#include "ocx/core/flex_grid_cells.h"

#include <string>
#include <string_view>
#include <vector>

namespace qv {

enum class FlexGridError { None, BadRow, BadColumn, BadCount, BadFixed, BadValue, LastRow };

struct FlexGridRange {
    int nTop = 0;
    int nLeft = 0;
    int nBottom = -1;  // inclusive, as nRight is
    int nRight = -1;
    bool Contains(int nRow, int nCol) const {
        return nRow >= nTop && nRow <= nBottom && nCol >= nLeft && nCol <= nRight;
    }
    friend bool operator==(const FlexGridRange&, const FlexGridRange&) = default;
};

enum FlexGridMergeMode { fgmNever, fgmFree, fgmRestrictRows, fgmRestrictColumns, fgmRestrictBoth };

class FlexGridModel {
public:
    static constexpr int kDefaultRowHeight = 16;
    static constexpr int kDefaultColWidth = 64;
    static constexpr int kMaxRows = FlexGridAxis::kMaxCount;
    static constexpr int kMaxCols = 1'000'000;

    FlexGridModel() { Reset(); }
    // Two rows and two columns, one of each fixed; nothing set.
    void Reset();

    // --- Counts. Fewer rows than fixed ones leave only fixed ones; fixed rows are fewer than all,
    // but for none

    FlexGridError SetRows(int nRows);
    FlexGridError SetCols(int nCols);
    FlexGridError SetFixedRows(int nRows);
    FlexGridError SetFixedCols(int nCols);
    int Rows() const { return m_rows.Count(); }
    int Cols() const { return m_cols.Count(); }
    int FixedRows() const { return m_nFixedRows; }
    int FixedCols() const { return m_nFixedCols; }
    bool HasCell(int nRow, int nCol) const { return m_rows.Has(nRow) && m_cols.Has(nCol); }
    bool IsFixed(int nRow, int nCol) const { return nRow < m_nFixedRows || nCol < m_nFixedCols; }

    FlexGridAxis& RowAxis() { return m_rows; }
    FlexGridAxis& ColAxis() { return m_cols; }
    const FlexGridAxis& RowAxis() const { return m_rows; }
    const FlexGridAxis& ColAxis() const { return m_cols; }

    // --- Cells; those that there are not read as empty

    const char16_t* Text(int nRow, int nCol) const {
        return HasCell(nRow, nCol) ? m_cells.Text(nRow, nCol) : u"";
    }
    FlexGridError SetText(int nRow, int nCol, std::u16string_view text);
    const FlexGridFormat& Format(int nRow, int nCol) const {
        return HasCell(nRow, nCol) ? m_cells.Format(nRow, nCol) : FlexGridFormat::kPlain;
    }
    // The cell has to be there.
    FlexGridFormat& FormatToSet(int nRow, int nCol) { return m_cells.FormatToSet(nRow, nCol); }
    // The FlexGridAlignment that a cell shows with, never general nor unset.
    short AlignmentOf(int nRow, int nCol) const;

    // --- Rows and columns as a whole

    // TAB-separated texts from the first column on, as far as there are columns. In front of row
    // nRow, or behind all for Rows().
    FlexGridError AddItem(std::u16string_view item, int nRow);
    // The last row that is not fixed stays.
    FlexGridError RemoveItem(int nRow);
    FlexGridError MoveRow(int nFrom, int nTo);
    FlexGridError MoveCol(int nFrom, int nTo);
    // Row nFirst + i becomes the one that was order[i].
    void ReorderRows(int nFirst, const std::vector<int>& order);
    // Texts, formats and pictures go; rows, columns and their sizes stay.
    void Clear();

    // TABs between cells, carriage returns between rows.
    std::u16string Clip(const FlexGridRange& range) const;
    void SetClip(const FlexGridRange& range, std::u16string_view text);

    // --- Merging, of rows and columns whose axis says so

    FlexGridMergeMode MergeMode() const { return m_mergeMode; }
    FlexGridError SetMergeMode(int nMode);
    // Cells that stand together with this one within a window of rows and columns that holds it;
    // nothing outside is looked at but for the restrictions. Fixed cells stand with fixed ones.
    FlexGridRange Merged(int nRow, int nCol, const FlexGridRange& window) const;

    bool CheckInvariants() const;

private:
    bool SameText(int nRow1, int nCol1, int nRow2, int nCol2) const;
    bool JoinsRight(int nRow, int nCol) const;
    bool JoinsBelow(int nRow, int nCol) const;
    bool RowsEqualFromTop(int nRow, int nCol) const;
    bool ColsEqualFromLeft(int nRow, int nCol) const;
    FlexGridRange RowRun(int nRow, int nCol, const FlexGridRange& window) const;
    bool RunJoins(const FlexGridRange& run, int nRow, int nOther,
                  const FlexGridRange& window) const;

    FlexGridAxis m_rows{kDefaultRowHeight};
    FlexGridAxis m_cols{kDefaultColWidth};
    FlexGridCells m_cells;
    int m_nFixedRows = 0;
    int m_nFixedCols = 0;
    FlexGridMergeMode m_mergeMode = fgmNever;
    // For merging restricted by rows: behind how many rows of the first ones, or of those that are
    // not fixed, a column differs from the next. Asked for each cell that shows, hence kept until
    // a text changes.
    struct EqualRows {
        int nCol;
        bool bFixed;
        int nEnd;
    };
    mutable std::vector<EqualRows> m_equalRows;
};

// Whether all of a text is a number as a person writes it, which stands at the right in a general
// alignment; what it is. Zero for any other.
bool ParseNumber(std::u16string_view text, double& value);
// What the text begins with, as far as that is a number; else 0.
double LeadingNumber(std::u16string_view text);

}  // namespace qv
