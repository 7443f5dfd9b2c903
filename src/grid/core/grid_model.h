// The grid's store: typed columns, rows, and cells on two levels. It knows no window.
//
// A row holds the index of its block of cells; a cell holds the index of its text in one table
// shared by all. Empty cells cost no text, and a new column touches the blocks alone.
//
// Neither blocks nor texts are ever used again: deleting all rows frees the blocks but keeps their
// places and all texts, so a grid that is refilled again and again grows for as long as it lives.
//
// Indices out of range read 0 or nothing and write nothing. A row that lost its block for want of
// memory reads as empty.

#pragma once

#include "base/text_pool.h"
#include "grid/grid_records.h"

#include <compare>
#include <cstddef>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

namespace qv {

struct GridCell {
    int nRow = -1;
    int nCol = -1;
    friend auto operator<=>(const GridCell&, const GridCell&) = default;
};

class GridModel {
public:
    GridModel();
    ~GridModel();
    GridModel(const GridModel&) = delete;
    GridModel& operator=(const GridModel&) = delete;

    // --- Columns

    int AddColumn(GridColType nType, int nWidth);
    int NumColumns() const { return static_cast<int>(m_aColumns.size()); }
    bool IsColumn(int nCol) const { return nCol >= 0 && nCol < NumColumns(); }
    // Null if there is no such column.
    _QVGRID_COL_INFO* Column(int nCol) { return IsColumn(nCol) ? &m_aColumns[nCol] : nullptr; }
    const _QVGRID_COL_INFO* Column(int nCol) const {
        return IsColumn(nCol) ? &m_aColumns[nCol] : nullptr;
    }
    GridColType Type(int nCol) const { return IsColumn(nCol) ? m_aColumns[nCol].nType : gctStatic; }
    bool UsesButton(int nCol) const { return HasButton(Type(nCol)); }

    // --- Rows

    // TAB-separated fields; those beyond the columns are dropped, missing ones are empty. May throw
    // std::bad_alloc, without a new row then. One whose block found no memory reads as empty.
    int AddRow(std::string_view row, unsigned dwState);
    void DeleteAllRows();
    int NumRows() const { return static_cast<int>(m_aRows.size()); }
    bool IsRow(int nRow) const { return nRow >= 0 && nRow < NumRows(); }
    _QVGRID_ROW_INFO& RowAt(int nRow) { return m_aRows[nRow]; }
    const _QVGRID_ROW_INFO& RowAt(int nRow) const { return m_aRows[nRow]; }

    // --- Cells

    bool IsCell(GridCell cell) const { return IsRow(cell.nRow) && IsColumn(cell.nCol); }
    // Null for a cell that never had a text; a text that was emptied is "".
    const char* Text(int nRow, int nCol) const;
    // An empty text in a cell that never had one leaves it so.
    void SetText(int nRow, int nCol, std::string_view text);
    // Null out of range and for a row without block.
    _QVGRID_CELL_INFO* Cell(int nRow, int nCol);
    const _QVGRID_CELL_INFO* Cell(int nRow, int nCol) const;
    // GCS_ bits; none for a cell that there is not.
    unsigned Style(int nRow, int nCol) const;
    // True if the style is another one now.
    bool ModifyStyle(int nRow, int nCol, unsigned dwAdd, unsigned dwRemove);

    // The cell's own type, or else its column's.
    GridColType Type(GridCell cell) const;
    void SetType(GridCell cell, GridColType nType);
    bool UsesButton(GridCell cell) const { return HasButton(Type(cell)); }
    bool UsesEdit(GridCell cell) const;

    size_t CountStrings() const { return m_aStrings.size(); }
    size_t CountBlocks() const { return m_aCellData.size(); }
    bool CheckInvariants() const;

private:
    static bool HasButton(GridColType nType);
    using Block = std::unique_ptr<_QVGRID_CELL_INFO[]>;

    int AllocateCellDataIndex();
    void ReallocateCellData(int nNewCols);

    std::vector<_QVGRID_COL_INFO> m_aColumns;
    std::vector<_QVGRID_ROW_INFO> m_aRows;
    std::vector<Block> m_aCellData;
    int m_nCellColumns = 0;         // cells in each block
    std::vector<char*> m_aStrings;  // entry 0 is the empty text of all cells without one
    TextPool m_texts;
    std::map<GridCell, GridColType> m_types;  // of cells that have one of their own
};

}  // namespace qv
