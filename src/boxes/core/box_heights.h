// Image and text in a row of a list box or combo box, one beside the other.

#pragma once

#include <algorithm>

namespace qv {

// Heights in pixels; 0 while not known, or without images.
struct BoxHeights {
    int nFont = 0;
    int nImage = 0;

    // 0 as long as neither is known.
    int Row() const {
        const int nHigher = std::max(nFont, nImage);
        return nHigher != 0 ? nHigher + 2 : 0;
    }
    // How far the lower of the two is moved down to stand before the middle of the other.
    int TextOffset() const { return std::max(nImage - nFont, 0) / 2; }
    int ImageOffset() const { return std::max(nFont - nImage, 0) / 2; }
};

}  // namespace qv
