#include "grid/core/grid_list_rect.h"

#include <algorithm>

namespace qv {

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

}  // namespace qv
