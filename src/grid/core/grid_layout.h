// Where the grid's rows, cells and buttons lie, what a point hits, which cell a key leads to, and
// how far the view scrolls. Coordinates are client pixels. All rows have one height; nothing here
// needs it to be known: a height that is not positive hits and shows nothing.

#pragma once

#include "base/geometry.h"
#include "grid/core/grid_model.h"

namespace qv {

inline constexpr int kRowPadding = 3;  // a row is its font's height and this many pixels

struct GridCell {
    int nRow = -1;
    int nCol = -1;
    friend bool operator==(const GridCell&, const GridCell&) = default;
};

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

// A list of choices with its border, hanging on a cell: over that one's lower line, as tall as its
// lines, wherever that ends.
Rect GridListRect(const Rect& rcCell, int nLineHeight, int nLines);
// The same on rcScreen, all in screen coordinates: nMaxLines at most, above the cell where it does
// not fit under it, and where it fits nowhere as many lines as the roomier side has room for, one
// at least.
Rect GridListRectOnScreen(const Rect& rcCell, int nLineHeight, int nLines, int nMaxLines,
                          const Rect& rcScreen);

// The cell that a VK_ code leads to, without regard to editors. current may be without cell; the
// walk then starts at nTopRow and column 0, and any key leads there. nPage: whole rows that show.
// VK_PRIOR leads nowhere, unlike VK_NEXT: users of old are used to it.
GridCell KeyTarget(unsigned nKey, GridCell current, const GridModel& model, int nTopRow, int nPage);

// The top row after scrolling, nPage being the whole rows that show. None is negative.
int TopAfterScrollDown(int nTop, int nRows, int nCount, int nPage);
int TopAfterScrollUp(int nTop, int nRows);
int TopAfterScrollTo(int nRow, int nCount, int nPage);

// The line that VK_UP or VK_DOWN leads to in a list of nCount lines; -1 in is none selected.
int ListLineAfterKey(int nLine, bool bDown, int nCount);

}  // namespace qv
