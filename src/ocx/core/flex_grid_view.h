// What of a flexible grid shows in its window: the first rows and columns behind the fixed ones,
// where cells lie, what a point hits, and which bars are needed. All in client pixels.

#pragma once

#include "frame/core/row_scroll.h"
#include "ocx/core/flex_grid_model.h"

#include <algorithm>
#include <cstdint>

namespace qv {

// The rows of a view, or its columns. Cheap to make whenever it is needed.
struct FlexGridSpan {
    const FlexGridAxis& axis;
    int nFixed = 0;
    int nFirst = 0;   // the first one that shows behind the fixed ones
    int nClient = 0;  // pixels in all

    // Negative for lines above the view.
    std::int64_t Pos(int n) const;
    // Pixels for lines that scroll; may be negative.
    std::int64_t Room() const { return nClient - axis.Start(nFixed); }
    // The first line of the last page, which is as long as there is room, or of one line.
    int MaxFirst() const;
    // n, as far as the view can begin there.
    int Clamped(int n) const;
    // Behind the last line that shows, whole or in part; at least nFirst.
    int End() const;
    bool Shows(int n) const;
    // The line at a position, the nearest one outside; -1 without lines that show.
    int Nearest(int nPos) const;
    // The line whose end a position is near enough to for dragging it; -1: none.
    int EndAt(int nPos) const;
    // Where the view has to begin so that n is in it as a whole.
    int FirstToShow(int n) const;
    // A page on from a line, and back; n where it stays.
    int PageDown(int n) const;
    int PageUp(int n) const;
    // Where a scroll bar's code (an SB_ value) leads; nThumb is the thumb's line.
    int After(unsigned nCode, int nThumb) const;
    ScrollRange Range() const;

private:
    // Pixels that a page key goes on: a usual line less than there is room.
    std::int64_t Page() const { return std::max<std::int64_t>(Room() - axis.DefaultSize(), 1); }
};

// Which bars there may be, to be or-ed.
enum FlexGridBars { fgbNone, fgbHorizontal, fgbVertical, fgbBoth };

class FlexGridView {
public:
    explicit FlexGridView(const FlexGridModel& model) : m_model(model) {}

    FlexGridSpan RowSpan() const {
        return Span(m_model.RowAxis(), m_model.FixedRows(), m_nTopRow, m_client.cy);
    }
    FlexGridSpan ColSpan() const {
        return Span(m_model.ColAxis(), m_model.FixedCols(), m_nLeftCol, m_client.cx);
    }
    int TopRow() const { return m_nTopRow; }
    int LeftCol() const { return m_nLeftCol; }

    // As far as the last page allows; true if the view begins elsewhere now.
    bool ScrollTo(int nTopRow, int nLeftCol);
    // For another client area; after changes of the model as well.
    bool Refit(Size client);
    // What shows once the bars that are needed and allowed are there. bars: how wide a vertical one
    // is and how high a horizontal one.
    BarPlan PlanBars(Size whole, Size bars, FlexGridBars allowed) const;

    // Rows and columns that show in the part of the window which holds that cell: the corner, the
    // fixed rows, the fixed columns, or the rest.
    FlexGridRange Window(bool bFixedRows, bool bFixedCols) const;
    // With the cells that it is merged with, as far as they show.
    FlexGridRange MergedAt(int nRow, int nCol) const;
    // The cell whose format a range that shows has: its first one, which may be out of the view by
    // now. So far away that nobody remembers it, the first that shows.
    Point OriginOf(const FlexGridRange& range) const;
    // Far outside, edges are where an int still reaches.
    Rect RangeRect(const FlexGridRange& range) const;

private:
    // The model may have changed since the last refit.
    static FlexGridSpan Span(const FlexGridAxis& axis, int nFixed, int nFirst, int nClient) {
        return {axis, nFixed, std::clamp(nFirst, nFixed, axis.Count()), nClient};
    }

    const FlexGridModel& m_model;
    Size m_client;
    int m_nTopRow = 1;
    int m_nLeftCol = 1;
};

}  // namespace qv
