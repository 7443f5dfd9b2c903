#include "grid/core/grid_layout.h"

#include <algorithm>

namespace qv {

namespace {

constexpr int kLine = 1;  // at a cell's right and lower edge
// Around a cell's text, in pixels.
constexpr int kSideRoom = 2;
constexpr int kTopRoom = 1;
constexpr int kBottomRoom = 1;

}  // namespace

Rect GridLayout::RowRect(int nRow) const {
    const int nTop = rcClient.top + (nRow - nTopRow) * nCellHeight;
    return {rcClient.left, nTop, rcClient.right, nTop + nCellHeight};
}

bool GridLayout::CellRect(int nRow, int nCol, Rect& rc) const {
    if (!model.IsRow(nRow) || !model.IsColumn(nCol)) {
        return false;
    }
    rc = RowRect(nRow);
    rc.left = 0;
    for (int i = 0; i < nCol; ++i) {
        rc.left += model.Column(i)->nWidth;
    }
    if (nCol < model.NumColumns() - 1) {
        rc.right = rc.left + model.Column(nCol)->nWidth;
    }
    return true;
}

Rect GridLayout::ButtonRect(const Rect& rcCell) const {
    const int nRight = rcCell.right - kLine;
    return {nRight - nCellHeight, rcCell.top, nRight, rcCell.bottom - kLine};
}

GridHit GridLayout::HitTest(Point pt) const {
    GridHit hit;
    if (nCellHeight <= 0 || pt.y < 0) {
        return hit;
    }
    const int nRow = pt.y / nCellHeight + nTopRow;
    if (!model.IsRow(nRow)) {
        return hit;
    }
    hit.cell.nRow = nRow;
    int nRight = 0;
    for (int nCol = 0; nCol < model.NumColumns() && hit.cell.nCol == -1; ++nCol) {
        nRight += model.Column(nCol)->nWidth;
        if (pt.x < nRight) {
            hit.cell.nCol = nCol;
        }
    }
    if (hit.cell.nCol == -1 && pt.x < rcClient.right) {
        hit.cell.nCol = model.NumColumns() - 1;
    }
    Rect rcCell;
    if (model.UsesButton(hit.cell) && CellRect(nRow, hit.cell.nCol, rcCell)) {
        hit.bOnButton = ButtonRect(rcCell).Contains(pt);
    }
    return hit;
}

int GridLayout::VisibleRows() const {
    return nCellHeight > 0 ? rcClient.Height() / nCellHeight : model.NumRows();
}

int GridLayout::EndOfShownRows() const {
    const int nShown = nCellHeight > 0 ? rcClient.Height() / nCellHeight + 1 : 0;
    return std::min(nTopRow + nShown, model.NumRows());
}

Rect GridTextRect(const Rect& rcCell, int nButtonWidth) {
    return {rcCell.left + kSideRoom, rcCell.top + kTopRoom, rcCell.right - kSideRoom - nButtonWidth,
            rcCell.bottom - kLine - kBottomRoom};
}

Rect GridFocusRect(const Rect& rcCell, int nButtonWidth) {
    return {rcCell.left, rcCell.top, rcCell.right - kLine - nButtonWidth, rcCell.bottom - kLine};
}

Rect GridEditRect(const Rect& rcCell, int nButtonWidth) {
    Rect rc = GridTextRect(rcCell, nButtonWidth);
    rc.right -= kLine;
    return rc;
}

}  // namespace qv
