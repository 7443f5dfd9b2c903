// Where the parts of a captioned header window are: a bar across the top, a frame line under it and
// the body that another control fills. Client pixels.

#pragma once

#include "base/geometry.h"

namespace qv {

inline constexpr int kBarPadding = 4;      // what the bar is taller than its text
inline constexpr int kFrameLine = 1;       // drawn right under the bar
inline constexpr int kCaptionInset = 6;    // left and right of the caption
inline constexpr int kCaptionPadding = 2;  // what the caption's rectangle is taller than its text

struct HeaderBar {
    Rect rcClient;
    int nHeight = 0;  // bar and frame line

    static constexpr int HeightFor(int nTextHeight) { return nTextHeight + kBarPadding; }

    // Without the frame line, which has the row at its bottom.
    Rect Bar() const {
        return {rcClient.left, rcClient.top, rcClient.right, rcClient.top + nHeight - kFrameLine};
    }
    // Around the caption's text alone.
    Rect Caption(int nTextHeight, int nTextWidth) const {
        const int nTop = rcClient.top + (nHeight - nTextHeight - kBarPadding) / 2;
        const int nLeft = rcClient.left + kCaptionInset;
        return {nLeft, nTop, nLeft + nTextWidth, nTop + nTextHeight + kCaptionPadding};
    }
    Rect Body() const {
        return {rcClient.left, rcClient.top + nHeight, rcClient.right, rcClient.bottom};
    }
};

}  // namespace qv
