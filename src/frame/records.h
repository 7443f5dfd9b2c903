// Plain records that the public headers and core share.

#pragma once

#ifdef _WIN32
#include <windows.h>
#else
#include "base/platform_names.h"
#endif

// One style: colours of the text and behind it. In lists and list boxes a crBk of -1 (0xFFFFFFFF)
// means that the style sets no background of its own.
struct QVSTYLE {
    COLORREF crText;
    COLORREF crBk;
};
