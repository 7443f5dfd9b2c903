// For controls around other windows: their child windows are the parts that a screen reader is
// told, by position from 1 in the order of windows. There are few: each question walks them.

#pragma once

#include <afxwin.h>

namespace qv {

inline HWND ChildOfPart(HWND hWnd, long nPart) {
    HWND hChild = nPart > 0 ? ::GetWindow(hWnd, GW_CHILD) : nullptr;
    while (hChild != nullptr && --nPart > 0) {
        hChild = ::GetWindow(hChild, GW_HWNDNEXT);
    }
    return hChild;
}

// 0 for none.
inline long PartOfChild(HWND hWnd, HWND hWanted) {
    long nPart = 1;
    for (HWND hChild = ::GetWindow(hWnd, GW_CHILD); hChild != nullptr;
         hChild = ::GetWindow(hChild, GW_HWNDNEXT), ++nPart) {
        if (hChild == hWanted) {
            return nPart;
        }
    }
    return 0;
}

inline long CountChildren(HWND hWnd) {
    long nCount = 0;
    for (HWND hChild = ::GetWindow(hWnd, GW_CHILD); hChild != nullptr;
         hChild = ::GetWindow(hChild, GW_HWNDNEXT)) {
        ++nCount;
    }
    return nCount;
}

// The visible child at a point of the client area; 0 for none.
inline long ChildPartAt(HWND hWnd, CPoint pt) {
    return PartOfChild(hWnd, ::ChildWindowFromPointEx(hWnd, pt, CWP_SKIPINVISIBLE));
}

}  // namespace qv
