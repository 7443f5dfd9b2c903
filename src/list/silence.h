// Changes of a control that its parent is not to hear of.

#pragma once

#include <afxwin.h>

namespace qv {

// While it lives, a window hears nothing of what one of its children tells it in notifications. The
// control has no way to be quiet, so the window gets another procedure for that long.
class Silence {
public:
    Silence(HWND hChild, HWND hTold);
    ~Silence();
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    WNDPROC SetProcedure(WNDPROC pfn);
    static LRESULT CALLBACK Filter(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam);

    static Silence* s_pInner;
    HWND m_hChild;
    HWND m_hTold;
    Silence* m_pOuter;  // of a silence within a silence
    bool m_bWide;
    WNDPROC m_pfnTold;  // null if the window could not get another procedure
};

}  // namespace qv
