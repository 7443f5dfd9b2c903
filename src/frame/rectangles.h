// Rectangles of core and of the framework.

#pragma once

#include "base/geometry.h"

#include <afxwin.h>

namespace qv {

inline CRect ToCRect(const Rect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}
inline Rect ToRect(const RECT& rect) {
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

}  // namespace qv
