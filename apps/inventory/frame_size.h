// How large the windows of the application are, in pixels.

#pragma once

#include <afxwin.h>

#include <algorithm>

// As large for any size of the system's fonts as size is for the usual one, as far as the screen
// goes.
inline CSize OnScreen(CSize size) {
    const int nDpi = CClientDC(nullptr).GetDeviceCaps(LOGPIXELSX);
    return CSize(std::min(::MulDiv(size.cx, nDpi, 96), ::GetSystemMetrics(SM_CXSCREEN)),
                 std::min(::MulDiv(size.cy, nDpi, 96), ::GetSystemMetrics(SM_CYSCREEN)));
}
