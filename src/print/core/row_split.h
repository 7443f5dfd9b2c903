// How many rows of equal height fit into what is left of a page. Lists, texts and labelled lists
// answer PageItems::PrintSize with it.

#pragma once

#include <algorithm>

namespace qv {

// nHeaderHeight is taken first, on each page anew. Sets nLast to the last of nRows rows that fits
// behind the header if the first one is nFirst, takes the height of header and rows from nRemaining
// (at most what is there), and tells whether that was the last row. If no row fits, nLast is
// nFirst - 1: all bits set for nFirst 0. Rows of height 0 all fit.
inline bool FitRows(unsigned nRows, unsigned nHeaderHeight, unsigned nRowHeight, unsigned nFirst,
                    unsigned& nLast, unsigned& nRemaining) {
    nRemaining -= std::min(nHeaderHeight, nRemaining);
    const unsigned nLeft = nRows - std::min(nFirst, nRows);
    const unsigned nRoom = nRowHeight == 0 ? nLeft : nRemaining / nRowHeight;
    const unsigned nFitting = std::min(nLeft, nRoom);
    nLast = nFirst + nFitting - 1;
    nRemaining -= nFitting * nRowHeight;
    return nFitting == nLeft;
}

}  // namespace qv
