// The one way out of a control to its parent. The parent runs at once and may do anything: move,
// hide or destroy the control's window, delete its object. So each answer says whether the control
// is still there:
//
//     if (!qv::NotifyParent(*this, m_alive, TVN_SELCHANGING, notification.hdr).Allows()) {
//         return;  // refused, or gone: nothing of the control may be touched
//     }

#pragma once

#include "frame/alive.h"

#include <afxwin.h>

namespace qv {

struct ParentAnswer {
    LRESULT lResult = 0;  // 0 without a parent
    bool bAlive = false;  // object and window of the control are what they were
    bool Allows() const { return lResult == 0 && bAlive; }
};

// To the window that is the parent now. wnd has a window; alive is its object's token.
ParentAnswer SendToParent(const CWnd& wnd, const AliveToken& alive, UINT nMessage, WPARAM wParam,
                          LPARAM lParam);
// WM_NOTIFY: hdr is the head of the notification's structure and is filled in.
ParentAnswer NotifyParent(const CWnd& wnd, const AliveToken& alive, UINT nCode, NMHDR& hdr);
// WM_COMMAND with the control's id, nCode and its window.
ParentAnswer CommandParent(const CWnd& wnd, const AliveToken& alive, UINT nCode);

}  // namespace qv
