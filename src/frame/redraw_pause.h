// Turns the redraw of a window off for as long as something is moved, and on again at the end of
// the scope, unless the window has gone by then.
//
// A window that is hidden is left alone: it shows nothing, and turning redraw on would show it. So
// is one whose redraw is off already, for which that is the same; of a control that keeps that to
// itself the caller has to know. A window that is told to hide meanwhile comes back: the platform
// takes it for hidden already and tells nobody.

#pragma once

#include <afxwin.h>

namespace qv {

class RedrawPause {
public:
    // bWanted false: the window is left alone.
    explicit RedrawPause(const CWnd& wnd, bool bWanted = true)
        : m_hWnd(bWanted && (wnd.GetStyle() & WS_VISIBLE) != 0 ? wnd.m_hWnd : nullptr) {
        Redraw(FALSE);
    }
    ~RedrawPause() { Redraw(TRUE); }
    RedrawPause(const RedrawPause&) = delete;
    RedrawPause& operator=(const RedrawPause&) = delete;

private:
    void Redraw(WPARAM bOn) const {
        if (m_hWnd != nullptr && ::IsWindow(m_hWnd)) {
            ::SendMessage(m_hWnd, WM_SETREDRAW, bOn, 0);
        }
    }

    const HWND m_hWnd;
};

}  // namespace qv
