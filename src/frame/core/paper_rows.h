// Measures of rows and their headings on paper, in units of the printer.

#pragma once

namespace qv {

// The band that is kept for the headings, and how far the rule under them lies below its top, by
// the height of their text.
constexpr int HeaderBand(int nTextHeight) {
    return nTextHeight * 3 / 2;
}
constexpr int RuleOffset(int nTextHeight) {
    return nTextHeight * 5 / 4;
}

// Units of the printer for a pixel of the screen, by the resolutions of both. Truncated: a printer
// coarser than the screen gives 0.
constexpr int PrintScale(int nPrinterResolution, int nScreenResolution) {
    return nScreenResolution > 0 ? nPrinterResolution / nScreenResolution : 1;
}

// 0 for rows without height.
constexpr int RowsThatFit(int nHeight, int nRowHeight) {
    return nRowHeight > 0 && nHeight > 0 ? nHeight / nRowHeight : 0;
}

}  // namespace qv
