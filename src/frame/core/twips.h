// Twentieths of a point, in which automation controls tell their measures.

#pragma once

namespace qv {

inline constexpr int kTwipsPerInch = 1440;
inline constexpr int kUsualPixelsPerInch = 96;

// A device without a resolution counts as a usual screen.
constexpr long long PixelsToTwips(long long nPixels, int nPixelsPerInch) {
    return nPixels * kTwipsPerInch / (nPixelsPerInch > 0 ? nPixelsPerInch : kUsualPixelsPerInch);
}

// Whole twips of a pixel; at least one, also of a device that is finer than twips, so that measures
// can be divided by it.
constexpr int TwipsPerPixel(int nPixelsPerInch) {
    const auto nTwips = static_cast<int>(PixelsToTwips(1, nPixelsPerInch));
    return nTwips > 0 ? nTwips : 1;
}

}  // namespace qv
