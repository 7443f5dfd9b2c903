#include "ocx/core/flex_grid_view.h"

#include <algorithm>
#include <limits>

namespace qv {

namespace {

constexpr int kGrip = 3;  // pixels at either side of a border that drag it

int Saturated(std::int64_t n) {
    constexpr std::int64_t kMost = std::numeric_limits<int>::max() / 2;
    return static_cast<int>(std::clamp(n, -kMost, kMost));
}

}  // namespace

// --- One axis

std::int64_t FlexGridSpan::Pos(int n) const {
    return n <= nFixed ? axis.Start(n) : axis.Start(n) - axis.Start(nFirst) + axis.Start(nFixed);
}

int FlexGridSpan::MaxFirst() const {
    const std::int64_t nStart = axis.Length() - Room();
    if (nStart <= axis.Start(nFixed)) {
        return nFixed;
    }
    int n = axis.Find(nStart);
    n += axis.Start(n) < nStart ? 1 : 0;
    return std::max(std::min(n, axis.LastShown()), nFixed);
}

int FlexGridSpan::Clamped(int n) const {
    return std::clamp(n, nFixed, MaxFirst());
}

int FlexGridSpan::End() const {
    if (Room() <= 0) {
        return nFirst;
    }
    return std::min(axis.Find(axis.Start(nFirst) + Room() - 1) + 1, axis.Count());
}

bool FlexGridSpan::Shows(int n) const {
    return axis.Has(n) && axis.Size(n) > 0 && (n < nFixed || n >= nFirst) && Pos(n) < nClient;
}

int FlexGridSpan::Nearest(int nPos) const {
    const std::int64_t nFixedEnd = axis.Start(nFixed);
    const int n = axis.Find(nPos < nFixedEnd ? nPos : nPos - nFixedEnd + axis.Start(nFirst));
    return n < axis.Count() ? n : axis.LastShown();
}

int FlexGridSpan::EndAt(int nPos) const {
    const int n = Nearest(nPos);
    if (n < 0 || nPos < 0) {
        return -1;
    }
    const std::int64_t nStart = Pos(n);
    const std::int64_t nEnd = nStart + axis.Size(n);
    if (nPos >= nEnd - kGrip && nPos < nEnd + kGrip) {
        return n;
    }
    const int nBefore = nPos < nStart + kGrip ? axis.ShownUpTo(n - 1) : -1;
    return nBefore >= nFirst || n < nFixed ? nBefore : -1;
}

int FlexGridSpan::FirstToShow(int n) const {
    if (n < nFixed || !axis.Has(n)) {
        return nFirst;
    }
    if (n < nFirst) {
        return n;
    }
    const std::int64_t nStart = axis.Start(n + 1) - Room();
    if (nStart <= axis.Start(nFirst)) {
        return nFirst;
    }
    const int nNew = axis.Find(nStart);
    return std::min(nNew + (axis.Start(nNew) < nStart ? 1 : 0), n);
}

int FlexGridSpan::PageDown(int n) const {
    const int nNext = std::max(axis.Find(axis.Start(n) + Page()), axis.ShownFrom(n + 1));
    return std::max(nNext < axis.Count() ? nNext : axis.LastShown(), n);
}

int FlexGridSpan::PageUp(int n) const {
    const int nNext = std::min(axis.Find(axis.Start(n) - Page()), axis.ShownUpTo(n - 1));
    const int nLeast = axis.ShownFrom(nFixed);
    return std::min(std::max(nNext, nLeast), n);
}

int FlexGridSpan::After(unsigned nCode, int nThumb) const {
    const ScrollMove move = MoveOf(nCode, {1, 2}, nThumb);
    switch (move.kind) {
        case ScrollMove::Kind::Up:
            // A page up ends with the line before.
            return Clamped(move.nRows == 1 ? axis.ShownUpTo(nFirst - 1)
                                           : std::min(axis.Find(axis.Start(nFirst) - Room()) + 1,
                                                      axis.ShownUpTo(nFirst - 1)));
        case ScrollMove::Kind::Down:
            return Clamped(move.nRows == 1 ? axis.ShownFrom(nFirst + 1)
                                           : std::max(End() - 1, axis.ShownFrom(nFirst + 1)));
        case ScrollMove::Kind::Top:
            return nFixed;
        case ScrollMove::Kind::Bottom:
            return MaxFirst();
        case ScrollMove::Kind::Thumb:
            return Clamped(nThumb);
        default:
            return nFirst;
    }
}

ScrollRange FlexGridSpan::Range() const {
    return {nFixed, axis.Count() - 1, axis.Count() - MaxFirst(), nFirst};
}

// --- Both

bool FlexGridView::ScrollTo(int nTopRow, int nLeftCol) {
    nTopRow = RowSpan().Clamped(nTopRow);
    nLeftCol = ColSpan().Clamped(nLeftCol);
    if (nTopRow == m_nTopRow && nLeftCol == m_nLeftCol) {
        return false;
    }
    m_nTopRow = nTopRow;
    m_nLeftCol = nLeftCol;
    return true;
}

bool FlexGridView::Refit(Size client) {
    m_client = client;
    return ScrollTo(m_nTopRow, m_nLeftCol);
}

BarPlan FlexGridView::PlanBars(Size whole, Size bars, FlexGridBars allowed) const {
    BarPlan plan{whole};
    // One may force the other.
    for (int i = 0; i < 2; ++i) {
        plan.bVert = (allowed & fgbVertical) != 0 && m_model.RowAxis().Length() > plan.room.cy;
        plan.room.cx = whole.cx - (plan.bVert ? bars.cx : 0);
        plan.bHorz = (allowed & fgbHorizontal) != 0 && m_model.ColAxis().Length() > plan.room.cx;
        plan.room.cy = whole.cy - (plan.bHorz ? bars.cy : 0);
    }
    return plan;
}

FlexGridRange FlexGridView::Window(bool bFixedRows, bool bFixedCols) const {
    const FlexGridSpan rows = RowSpan();
    const FlexGridSpan cols = ColSpan();
    const auto fixedEnd = [](const FlexGridSpan& span) {
        return span.nFixed == 0 ? 0 : std::min(span.Nearest(span.nClient - 1) + 1, span.nFixed);
    };
    return {bFixedRows ? 0 : rows.nFirst, bFixedCols ? 0 : cols.nFirst,
            (bFixedRows ? fixedEnd(rows) : rows.End()) - 1,
            (bFixedCols ? fixedEnd(cols) : cols.End()) - 1};
}

FlexGridRange FlexGridView::MergedAt(int nRow, int nCol) const {
    const FlexGridRange window = Window(nRow < m_model.FixedRows(), nCol < m_model.FixedCols());
    return window.Contains(nRow, nCol) ? m_model.Merged(nRow, nCol, window)
                                       : FlexGridRange{nRow, nCol, nRow, nCol};
}

Point FlexGridView::OriginOf(const FlexGridRange& range) const {
    constexpr int kLookBack = 1000;  // rows or columns
    const auto from = [](int n, int nFirst, int nFixed) {
        return n == nFirst ? std::max(n - kLookBack, nFixed) : n;
    };
    const FlexGridRange window{from(range.nTop, RowSpan().nFirst, m_model.FixedRows()),
                               from(range.nLeft, ColSpan().nFirst, m_model.FixedCols()),
                               range.nBottom, range.nRight};
    const FlexGridRange whole = m_model.Merged(range.nTop, range.nLeft, window);
    return {whole.nLeft, whole.nTop};
}

Rect FlexGridView::RangeRect(const FlexGridRange& range) const {
    const FlexGridSpan rows = RowSpan();
    const FlexGridSpan cols = ColSpan();
    const auto end = [](const FlexGridSpan& span, int n) {
        return Saturated(span.Pos(n) + span.axis.Size(n));
    };
    return {Saturated(cols.Pos(range.nLeft)), Saturated(rows.Pos(range.nTop)),
            end(cols, range.nRight), end(rows, range.nBottom)};
}

}  // namespace qv
