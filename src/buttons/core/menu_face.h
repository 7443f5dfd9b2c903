// Where caption and arrow of a menu button lie, in the coordinates of the button's item.

#pragma once

#include "base/geometry.h"

#include <array>
#include <cstddef>

namespace qv {

struct FaceFont {
    int nHeight = 0;
    int nDescent = 0;
    int nMaxCharWidth = 0;
};

// Caption and arrow together, centred; wider than the item where there is no room.
inline Rect CaptionBlock(const Rect& rcItem, int nCaptionWidth, const FaceFont& font) {
    constexpr int kArrowWidth = 7;
    const int nWidth = nCaptionWidth + font.nMaxCharWidth + kArrowWidth;
    const int x = rcItem.left + (rcItem.Width() - nWidth) / 2;
    const int y = rcItem.top + (rcItem.Height() - font.nDescent - font.nHeight) / 2;
    return {x, y, x + nWidth, y + font.nHeight};
}

inline Rect ArrowRect(const Rect& rcBlock) {
    constexpr int kArrowRoom = 8;
    return {rcBlock.right - kArrowRoom, rcBlock.top, rcBlock.right, rcBlock.bottom};
}

// A horizontal line of nLength pixels to the right of its start.
struct ArrowLine {
    Point start;
    int nLength = 0;
};

// A triangle that points down, at the right edge of rc and in its middle.
inline std::array<ArrowLine, 4> ArrowLines(const Rect& rc) {
    constexpr int kLongest = 7;
    std::array<ArrowLine, 4> lines;
    const int nTop = rc.top + (rc.Height() - static_cast<int>(lines.size())) / 2;
    for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
        lines[static_cast<std::size_t>(i)] = {{rc.right - kLongest + i, nTop + i},
                                              kLongest - 2 * i};
    }
    return lines;
}

}  // namespace qv
