// A row of cells as it is drawn, on screen and on paper: of a list's row, of its headings, of a
// string in a list's columns.

#pragma once

#include "list/core/list_row.h"

#include <afxcmn.h>
#include <afxwin.h>

namespace qv {

inline constexpr int kCellMargin = 6;  // left and right of a cell's text, in screen pixels

// The text flag of a column's alignment.
constexpr UINT CellDrawFormat(int nFormat) {
    return nFormat == LVCFMT_RIGHT ? DT_RIGHT : nFormat == LVCFMT_CENTER ? DT_CENTER : DT_LEFT;
}

struct Cell {
    CellText look;
    int nWidth = 0;       // in units of the device context
    bool bToEnd = false;  // takes all that is left of the row instead
    UINT nAlign = DT_LEFT;
};

// The cells of one row, from left to right.
class CellRow {
public:
    virtual ~CellRow() = default;
    // False at the end of the row, and once what is drawn is gone: nothing is touched any more
    // then.
    virtual bool Next(Cell& cell) = 0;

    int nMargin = kCellMargin;
    // Each cell has a background, its own or that of the cell before it. It reaches above and below
    // the row by nOutset.
    bool bFills = false;
    int nOutset = 0;
    // A brush that is there already, and its colour: most cells have it. What it has filled before
    // is not filled again.
    CBrush* pBrush = nullptr;
    COLORREF crBrush = 0;
    CRect rcFilled{0, 0, 0, 0};
    // A cell that is narrower than its margins shows nothing. Otherwise its text may stand beside
    // it.
    bool bKeepsIn = false;
};

// Text and background colour of dc are those of the last cell afterwards.
void DrawCells(CDC& dc, const CRect& rcRow, CellRow& row);

// The text of one cell inside its margins, dots at its end where it does not fit.
void DrawCellText(CDC& dc, CRect rcCell, const CellText& look, int nMargin, UINT nAlign);

}  // namespace qv
