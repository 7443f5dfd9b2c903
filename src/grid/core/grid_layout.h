// Where the grid's rows, cells and buttons lie, and what a point hits. Coordinates are client
// pixels. All rows have one height; nothing here needs it to be known: a height that is not
// positive hits and shows nothing.

#pragma once

#include "base/geometry.h"
#include "grid/core/grid_model.h"

namespace qv {

inline constexpr int kRowPadding = 3;  // a row is its font's height and this many pixels

struct GridHit {
    GridCell cell;  // both -1 below the rows; column -1 right of the client area
    bool bOnButton = false;
};

// The state of a view; cheap to make whenever it is needed.
struct GridLayout {
    const GridModel& model;
    Rect rcClient;
    int nCellHeight = 0;
    int nTopRow = 0;

    Rect RowRect(int nRow) const;
    // The last column reaches the client area's right edge. False, and rc as it was, for a cell
    // that there is not.
    bool CellRect(int nRow, int nCol, Rect& rc) const;
    Rect ButtonRect(const Rect& rcCell) const;
    GridHit HitTest(Point pt) const;
    // Whole rows that fit; all rows where the height is not positive.
    int VisibleRows() const;
    // The row behind the last one that shows, if only in part.
    int EndOfShownRows() const;
};

// A cell's text, nButtonWidth being left free at the right.
Rect GridTextRect(const Rect& rcCell, int nButtonWidth);
// The dotted frame of the cell with the focus.
Rect GridFocusRect(const Rect& rcCell, int nButtonWidth);
// The in-place edit.
Rect GridEditRect(const Rect& rcCell, int nButtonWidth);

}  // namespace qv
