// Twentieths of a point, in which automation controls tell their measures.

#pragma once

namespace qv {

inline constexpr int kTwipsPerInch = 1440;
inline constexpr int kUsualPixelsPerInch = 96;

// A device without a resolution counts as a usual screen.
constexpr long long PixelsToTwips(long long nPixels, int nPixelsPerInch) {
    return nPixels * kTwipsPerInch / (nPixelsPerInch > 0 ? nPixelsPerInch : kUsualPixelsPerInch);
}

// Where a pixel has whole twips that is a division by these. Where it has not (192 pixels to the
// inch: seven and a half), half a twip more makes up for what was cut off as the measure was told.
// A device that is finer than twips counts as one with a twip a pixel.
constexpr long long TwipsToPixels(long long nTwips, int nPixelsPerInch) {
    if (nTwips < 0) {
        return -TwipsToPixels(-nTwips, nPixelsPerInch);
    }
    const long long nPerInch = nPixelsPerInch <= 0              ? kUsualPixelsPerInch
                               : nPixelsPerInch < kTwipsPerInch ? nPixelsPerInch
                                                                : kTwipsPerInch;
    return (2 * nTwips + 1) * nPerInch / (2 * kTwipsPerInch);
}

}  // namespace qv
