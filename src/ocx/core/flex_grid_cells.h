// What the cells of a flexible grid hold: texts, and for those that differ from the grid a format.
// A row has room for as many cells as were ever set in it, so that empty rows cost nothing.

#pragma once

#include "base/text_pool.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qv {

struct FlexGridFormat {
    static const FlexGridFormat kPlain;  // of a cell that does not differ

    enum FontFlag : unsigned { Bold = 1, Italic = 2, Underline = 4, StrikeThrough = 8 };

    std::uint32_t crBack = 0;  // an automation colour; 0: the grid's
    std::uint32_t crText = 0;
    short nAlignment = -1;           // FlexGridAlignment; -1: the column's
    short nPictureAlignment = 0;     // FlexGridAlignment
    short nTextStyle = -1;           // -1: the grid's
    std::uint8_t nFontFlags = 0;     // FontFlag values
    std::uint8_t nFontAsked = 0;     // those of them that differ from the grid's font by will
    float fontSize = 0;              // points; 0: the grid's
    float fontWidth = 0;             // points; 0: the font's own
    std::u16string strFont;          // empty: the grid's
    std::shared_ptr<void> pPicture;  // whatever the painter makes of it
};

class FlexGridCells {
public:
    FlexGridCells() = default;
    FlexGridCells(const FlexGridCells&) = delete;
    FlexGridCells& operator=(const FlexGridCells&) = delete;

    // --- Rows; what grows may throw std::bad_alloc, and everything is as before then

    int Rows() const { return static_cast<int>(m_rows.size()); }
    void ResizeRows(int nRows);
    void InsertRow(int nRow);
    void RemoveRow(int nRow);
    void MoveRow(int nFrom, int nTo);
    void ReorderRows(int nFirst, const std::vector<int>& order);

    // --- Columns, of which there are as many as anybody asks for

    void DropColumnsFrom(int nCol);
    // May throw std::bad_alloc before anything has moved.
    void MoveColumn(int nFrom, int nTo);

    // --- Cells; the row has to be there

    // Valid until the cell is set or goes; ends with a 0.
    const char16_t* Text(int nRow, int nCol) const;
    // Up to the first 0 in it. May throw std::bad_alloc; the old text stays then.
    void SetText(int nRow, int nCol, std::u16string_view text);
    const FlexGridFormat& Format(int nRow, int nCol) const;
    // Made if the cell has none. May throw std::bad_alloc.
    FlexGridFormat& FormatToSet(int nRow, int nCol);

    // Empties all cells.
    void Clear();

    bool CheckInvariants() const;

private:
    struct Cell {
        char16_t* pText = nullptr;
        std::unique_ptr<FlexGridFormat> pFormat;
    };
    struct Row {
        std::unique_ptr<Cell[]> pCells;
        int nCells = 0;
    };

    const Cell* Find(int nRow, int nCol) const;
    Cell& CellToSet(int nRow, int nCol);
    void GrowTo(Row& row, int nCells);
    void Free(Row& row, int nFrom);
    void FreeRows(int nFrom);

    std::vector<Row> m_rows;
    int m_nWidest = 0;  // the most cells that a row was given; new rows get as many
    TextPool m_texts;
};

}  // namespace qv
