// Where a list of choices hangs.

#pragma once

#include "base/geometry.h"

namespace qv {

// A list of choices with its border, hanging on a cell: over that one's lower line, as tall as its
// lines, wherever that ends.
Rect GridListRect(const Rect& rcCell, int nLineHeight, int nLines);
// The same on rcScreen, all in screen coordinates: nMaxLines at most, above the cell where it does
// not fit under it, and where it fits nowhere as many lines as the roomier side has room for, one
// at least.
Rect GridListRectOnScreen(const Rect& rcCell, int nLineHeight, int nLines, int nMaxLines,
                          const Rect& rcScreen);

}  // namespace qv
