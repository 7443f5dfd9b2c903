// Twentieths of a point, in which automation controls tell their measures.

#pragma once

namespace qv {

inline constexpr int kTwipsPerInch = 1440;
inline constexpr int kUsualPixelsPerInch = 96;

// Whole twips of a pixel. A device without a resolution counts as a usual screen, and one finer
// than twips as one of a twip a pixel, so that measures can be divided by it.
constexpr int TwipsPerPixel(int nPixelsPerInch) {
    const int nTwips = kTwipsPerInch / (nPixelsPerInch > 0 ? nPixelsPerInch : kUsualPixelsPerInch);
    return nTwips > 0 ? nTwips : 1;
}

}  // namespace qv
