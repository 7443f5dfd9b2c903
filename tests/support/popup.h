// A bare window of its own, hidden.
#pragma once

#include <afxwin.h>

inline BOOL MakePopup(CWnd& wnd, DWORD dwStyle = 0) {
    return wnd.CreateEx(0, nullptr, "", WS_POPUP | dwStyle, 0, 0, 50, 50, nullptr, nullptr);
}
