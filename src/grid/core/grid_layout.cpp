#include "grid/core/grid_layout.h"

#include "base/platform_names.h"

#include <algorithm>

namespace qv {

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
    return {rcCell.right - 1 - nCellHeight, rcCell.top, rcCell.right - 1, rcCell.bottom - 1};
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
    if (model.UsesButton(hit.cell.nCol) && CellRect(nRow, hit.cell.nCol, rcCell)) {
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
    return {rcCell.left + 2, rcCell.top + 1, rcCell.right - 2 - nButtonWidth, rcCell.bottom - 2};
}

Rect GridFocusRect(const Rect& rcCell, int nButtonWidth) {
    return {rcCell.left, rcCell.top, rcCell.right - 1 - nButtonWidth, rcCell.bottom - 1};
}

Rect GridEditRect(const Rect& rcCell, int nButtonWidth) {
    return {rcCell.left + 2, rcCell.top + 1, rcCell.right - 3 - nButtonWidth, rcCell.bottom - 2};
}

namespace {

constexpr int kListBorders = 2;

}  // namespace

Rect GridListRect(const Rect& rcCell, int nLineHeight, int nLines) {
    const int nTop = rcCell.bottom - 1;
    return {rcCell.left, nTop, rcCell.right - 1, nTop + nLineHeight * nLines + kListBorders};
}

Rect GridListRectOnScreen(const Rect& rcCell, int nLineHeight, int nLines, int nMaxLines,
                          const Rect& rcScreen) {
    const auto fitting = [&](int nRoom) {
        return std::max((nRoom - kListBorders) / std::max(nLineHeight, 1), 0);
    };
    const int nUnder = fitting(rcScreen.bottom - (rcCell.bottom - 1));
    const int nAbove = fitting(rcCell.top - rcScreen.top);
    const int nWanted = std::min(nLines, nMaxLines);
    const bool bAbove = nWanted > nUnder && nAbove > nUnder;
    const int nShown = std::min(nWanted, std::max(bAbove ? nAbove : nUnder, 1));
    Rect rc = GridListRect(rcCell, nLineHeight, nShown);
    if (bAbove) {
        const int nHeight = rc.Height();
        rc.bottom = rcCell.top;
        rc.top = rc.bottom - nHeight;
    }
    const int nWidth = rc.Width();
    rc.left = std::max(std::min(rc.left, rcScreen.right - nWidth), rcScreen.left);
    rc.right = rc.left + nWidth;
    return rc;
}

GridCell KeyTarget(unsigned nKey, GridCell current, const GridModel& model, int nTopRow,
                   int nPage) {
    const int nLastRow = model.NumRows() - 1;
    const int nLastCol = model.NumColumns() - 1;
    GridCell target{current.nRow != -1 ? current.nRow : nTopRow,
                    current.nCol != -1 || nLastCol < 0 ? current.nCol : 0};
    switch (nKey) {
        case VK_LEFT:
            target.nCol -= current.nCol > 0 ? 1 : 0;
            break;
        case VK_RIGHT:
            target.nCol += current.nCol != -1 && current.nCol < nLastCol ? 1 : 0;
            break;
        case VK_UP:
            target.nRow -= current.nRow > 0 ? 1 : 0;
            break;
        case VK_DOWN:
            target.nRow += current.nRow != -1 && current.nRow < nLastRow ? 1 : 0;
            break;
        case VK_HOME:
            target.nRow = 0;
            break;
        case VK_END:
            target.nRow = nLastRow;
            break;
        case VK_NEXT:
            if (current.nRow != -1 && current.nRow < nLastRow) {
                target.nRow = std::min(current.nRow + std::max(nPage - 1, 0), nLastRow);
            }
            break;
        default:
            break;
    }
    return target;
}

int TopAfterScrollDown(int nTop, int nRows, int nCount, int nPage) {
    const int nMaxTop = nCount - nPage;
    return nTop < nMaxTop ? nTop + std::clamp(nRows, 0, nMaxTop - nTop) : nTop;
}

int TopAfterScrollUp(int nTop, int nRows) {
    return nTop > 0 ? std::max(nTop - std::max(nRows, 0), 0) : nTop;
}

int TopAfterScrollTo(int nRow, int nCount, int nPage) {
    return std::max(std::min(std::max(nRow, 0), nCount - nPage), 0);
}

int ListLineAfterKey(int nLine, bool bDown, int nCount) {
    if (nLine < 0) {
        return nCount > 0 ? 0 : -1;
    }
    return bDown ? std::min(nLine + 1, nCount - 1) : std::max(nLine - 1, 0);
}

}  // namespace qv
