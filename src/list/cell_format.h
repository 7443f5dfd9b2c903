// How a list's cells stand on screen and on paper.

#pragma once

#include <afxcmn.h>

namespace qv {

inline constexpr int kCellMargin = 6;  // left and right of a cell's text, in screen pixels

// The text flag of a column's alignment.
constexpr UINT CellDrawFormat(int nFormat) {
    return nFormat == LVCFMT_RIGHT ? DT_RIGHT : nFormat == LVCFMT_CENTER ? DT_CENTER : DT_LEFT;
}

}  // namespace qv
