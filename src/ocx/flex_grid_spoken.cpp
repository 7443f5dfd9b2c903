// The flexible grid: what a screen reader is told. Cells are parts row by row, the fixed ones as
// headings; beyond so many that no number is left, they are none.

#include "ocx/flex_grid.h"

#include <algorithm>

namespace ocx {

namespace {

constexpr std::int64_t kMostParts = 0x3FFFFFFF;  // windows in the grid are numbered behind them

}  // namespace

LONG FlexGrid::PartOf(int nRow, int nCol) const {
    if (!m_model.HasCell(nRow, nCol)) {
        return CHILDID_SELF;
    }
    const std::int64_t nPart = static_cast<std::int64_t>(nRow) * m_model.Cols() + nCol + 1;
    return nPart <= kMostParts ? static_cast<LONG>(nPart) : CHILDID_SELF;
}

/// x: the column, y: the row.
qv::Point FlexGrid::CellOf(LONG nPart) const {
    const int nCols = std::max(m_model.Cols(), 1);
    return {static_cast<int>(nPart - 1) % nCols, static_cast<int>(nPart - 1) / nCols};
}

LONG FlexGrid::PartCount() {
    return static_cast<LONG>(
        std::min(static_cast<std::int64_t>(m_model.Rows()) * m_model.Cols(), kMostParts));
}

Spoken FlexGrid::Say(LONG nPart) {
    Spoken spoken;
    if (nPart == CHILDID_SELF) {
        spoken.nRole = ROLE_SYSTEM_TABLE;
        spoken.nState = STATE_SYSTEM_FOCUSABLE | (HasFocus() ? STATE_SYSTEM_FOCUSED : 0);
        return spoken;
    }
    const auto [nCol, nRow] = CellOf(nPart);
    const int nFixedRows = m_model.FixedRows();
    const int nFixedCols = m_model.FixedCols();
    spoken.name = FromCore(m_model.Text(nRow, nCol));
    spoken.nState = STATE_SYSTEM_READONLY;
    spoken.nRole = nRow < nFixedRows   ? ROLE_SYSTEM_COLUMNHEADER
                   : nCol < nFixedCols ? ROLE_SYSTEM_ROWHEADER
                                       : ROLE_SYSTEM_CELL;
    if (!m_model.IsFixed(nRow, nCol)) {
        spoken.nState |= STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE;
        // The headings next to the cells.
        const std::wstring_view column =
            nFixedRows > 0 ? FromCore(m_model.Text(nFixedRows - 1, nCol)) : std::wstring_view();
        const std::wstring_view row =
            nFixedCols > 0 ? FromCore(m_model.Text(nRow, nFixedCols - 1)) : std::wstring_view();
        spoken.description = column;
        if (!column.empty() && !row.empty()) {
            spoken.description += L", ";
        }
        spoken.description += row;
    }
    if (m_selection.Range().Contains(nRow, nCol)) {
        spoken.nState |= STATE_SYSTEM_SELECTED;
    }
    if (nRow == m_selection.nRow && nCol == m_selection.nCol && HasFocus()) {
        spoken.nState |= STATE_SYSTEM_FOCUSED;
    }
    EnsureLayout();
    if (!m_view.RowSpan().Shows(nRow) || !m_view.ColSpan().Shows(nCol)) {
        spoken.nState |= STATE_SYSTEM_OFFSCREEN | STATE_SYSTEM_INVISIBLE;
    }
    return spoken;
}

bool FlexGrid::PartRect(LONG nPart, RECT& rect) {
    EnsureLayout();
    const auto [nCol, nRow] = CellOf(nPart);
    const qv::Rect rc = m_view.RangeRect({nRow, nCol, nRow, nCol});
    rect = {rc.left, rc.top, rc.right, rc.bottom};
    return true;
}

LONG FlexGrid::PartAt(POINT pt) {
    EnsureLayout();
    const LONG nPart = PartOf(m_view.RowSpan().Nearest(pt.y), m_view.ColSpan().Nearest(pt.x));
    RECT rect = {};
    return nPart != CHILDID_SELF && PartRect(nPart, rect) && ::PtInRect(&rect, pt) ? nPart
                                                                                   : CHILDID_SELF;
}

LONG FlexGrid::FocusedPart() {
    return PartOf(m_selection.nRow, m_selection.nCol);
}

LONG FlexGrid::NextSelected(LONG nPart) {
    const qv::FlexGridRange range = m_selection.Range();
    qv::Point cell{range.nLeft - 1, range.nTop};
    if (nPart != 0) {
        cell = CellOf(nPart);
        if (cell.y < range.nTop) {
            cell = {range.nLeft - 1, range.nTop};
        }
        cell.x = std::max(cell.x, range.nLeft - 1);
    }
    if (++cell.x > range.nRight) {
        cell = {range.nLeft, cell.y + 1};
    }
    return cell.y <= range.nBottom ? PartOf(cell.y, cell.x) : 0;
}

LONG FlexGrid::PartBeside(LONG nPart, LONG nDirection) {
    const auto [nCol, nRow] = CellOf(nPart);
    switch (nDirection) {
        case NAVDIR_UP:
            return PartOf(nRow - 1, nCol);
        case NAVDIR_DOWN:
            return PartOf(nRow + 1, nCol);
        case NAVDIR_LEFT:
            return PartOf(nRow, nCol - 1);
        case NAVDIR_RIGHT:
            return PartOf(nRow, nCol + 1);
        default:
            return SpokenParts::PartBeside(nPart, nDirection);
    }
}

bool FlexGrid::SelectPart(LONG nPart) {
    const auto [nCol, nRow] = CellOf(nPart);
    if (m_model.IsFixed(nRow, nCol)) {
        return false;
    }
    Select({nRow, nCol, nRow, nCol}, true);
    return m_selection.Range().Contains(nRow, nCol);
}

/// Programs lead the current cell through all the others to write to them: without the focus it is
/// nobody's news.
void FlexGrid::TellSelection(bool bCursor, bool bSpread) {
    if (!(bCursor || bSpread) || !HasFocus()) {
        return;
    }
    const LONG nPart = FocusedPart();
    if (bCursor && nPart != CHILDID_SELF) {
        m_spoken.Tell(EVENT_OBJECT_FOCUS, nPart);
    }
    const qv::FlexGridRange range = m_selection.Range();
    const bool bOne = range.nTop == range.nBottom && range.nLeft == range.nRight;
    m_spoken.Tell(
        bOne && nPart != CHILDID_SELF ? EVENT_OBJECT_SELECTION : EVENT_OBJECT_SELECTIONWITHIN,
        bOne ? nPart : CHILDID_SELF);
}

}  // namespace ocx
