// How many of the system's objects this process has, whoever made them.
#pragma once

#include <afxwin.h>

struct SystemHandles {
    int nDrawing = 0;  ///< pens, bitmaps, device contexts and the like
    int nMenus = 0;
    int nWindows = 0;  ///< of this thread, top-level ones

    /// Numbers of the system's tables stand for handles where the upper word is 0.
    static SystemHandles Count() {
        SystemHandles handles;
        for (UINT_PTR n = 1; n < 0x10000; ++n) {
            handles.nDrawing += ::GetObjectType(reinterpret_cast<HGDIOBJ>(n)) != 0;
            handles.nMenus += ::IsMenu(reinterpret_cast<HMENU>(n)) != FALSE;
        }
        ::EnumThreadWindows(::GetCurrentThreadId(), CountWindow,
                            reinterpret_cast<LPARAM>(&handles.nWindows));
        return handles;
    }

private:
    static BOOL CALLBACK CountWindow(HWND, LPARAM lCount) {
        return ++*reinterpret_cast<int*>(lCount), TRUE;
    }
};
