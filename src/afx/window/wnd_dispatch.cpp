// The way of a message: window procedure, message map, reflection to the control it is about.
#include "afx/window/wnd.h"

#include "afx/ole/wnd_control.h"
#include "afx/window/wide_input.h"
#include "afx/window/wnd_state.h"

#include <afxpriv.h>
#include <afxwin.h>

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    if (nMsg == WM_QUERYAFXWNDPROC) {
        return 1;
    }
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    if (pWnd == nullptr) {
        return ::DefWindowProc(hWnd, nMsg, wParam, lParam);
    }
    return AfxCallWndProc(pWnd, hWnd, nMsg, wParam, lParam);
}

/// A window that is gone takes no more messages. Whatever its object threw in the last one, the two
/// part here, or another window of the same handle would be served by a stranger's object.
static void PartFromGoneWindow(CWnd* pWnd, HWND hWnd) {
    if (CWnd::FromHandlePermanent(hWnd) != pWnd) {
        return;
    }
    try {
        AfxWndAccess::OnNcDestroy(pWnd);
    } catch (...) {
        AfxProcessCurrentException(hWnd, WM_NCDESTROY);
        if (CWnd::FromHandlePermanent(hWnd) == pWnd) {
            pWnd->Detach();
        }
    }
}

LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    AfxMessageScope scope(hWnd, nMsg, wParam, lParam);
    if (nMsg == WM_INITMENUPOPUP) {
        AfxGetWndState().hLastPopup = reinterpret_cast<HMENU>(wParam);
    }
    try {
        if (pWnd->m_pCtrlSite != nullptr) {
            return AfxCallControlWndProc(pWnd, nMsg, wParam, lParam);
        }
        return AfxWndAccess::WindowProc(pWnd, nMsg, wParam, lParam);
    } catch (...) {
        const LRESULT lResult = AfxProcessCurrentException(hWnd, nMsg, wParam, lParam);
        if (nMsg == WM_NCDESTROY) {
            PartFromGoneWindow(pWnd, hWnd);
        }
        return lResult;
    }
}

const MSG* CWnd::GetCurrentMessage() {
    MSG& msg = AfxGetWndState().lastSentMsg;
    const DWORD dwPos = ::GetMessagePos();
    msg.time = static_cast<DWORD>(::GetMessageTime());
    msg.pt.x = static_cast<short>(LOWORD(dwPos));
    msg.pt.y = static_cast<short>(HIWORD(dwPos));
    return &msg;
}

LRESULT CWnd::Default() {
    const MSG& msg = AfxGetWndState().lastSentMsg;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

WNDPROC* CWnd::GetSuperWndProcAddr() {
    return &m_pfnSuper;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (WNDPROC pfnSuper = *GetSuperWndProcAddr()) {
        // A control has one message for texts of each kind, so the system has nothing to convert.
        if (message >= WM_USER && message < kFirstRegisteredMessage &&
            m_pfnSuperDirect != nullptr && pfnSuper == m_pfnSuperReplaced) {
            return m_pfnSuperDirect(m_hWnd, message, wParam, lParam);
        }
        if (message == WM_CHAR && AfxDefaultTypedByte(m_hWnd, wParam, lParam)) {
            return 0;
        }
        return ::CallWindowProc(pfnSuper, m_hWnd, message, wParam, lParam);
    }
    return ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

// Nothing may touch this object after a handler ran: it may have deleted it.

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT lResult = 0;
    if (!OnWndMsg(message, wParam, lParam, &lResult)) {
        lResult = DefWindowProc(message, wParam, lParam);
    }
    return lResult;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT lUnused = 0;
    if (pResult == nullptr) {
        pResult = &lUnused;
    }
    if (message == WM_COMMAND) {
        // A handler that lets the command go on may have destroyed the window.
        const HWND hWnd = m_hWnd;
        if (!OnCommand(wParam, lParam)) {
            return FromHandlePermanent(hWnd) != this;
        }
        *pResult = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY) {
        return lParam != 0 && reinterpret_cast<NMHDR*>(lParam)->hwndFrom != nullptr &&
               OnNotify(wParam, lParam, pResult);
    }
    if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) {
        return DispatchCtlColor(message, wParam, lParam, pResult);
    }
    return DispatchMapMessage(message, wParam, lParam, pResult);
}

BOOL CWnd::DispatchMapMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const AFX_MSGMAP_ENTRY* pEntry = AfxFindWindowEntry(GetMessageMap(), message);
    if (pEntry == nullptr) {
        return FALSE;
    }
    AFX_MSGCALL call;
    call.wParam = wParam;
    call.lParam = lParam;
    const LRESULT lResult = pEntry->pfnCall(this, call);
    if (call.bHandled) {
        *pResult = lResult;
    }
    return call.bHandled;
}

BOOL CWnd::DispatchCtlColor(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    AFX_CTLCOLOR ctl = {reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam),
                        message - WM_CTLCOLORMSGBOX};
    return DispatchMapMessage(WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&ctl), pResult);
}

namespace {

/// Asks only whether a command is enabled; shows nothing.
class EnableProbe : public CCmdUI {
public:
    BOOL m_bEnabled = TRUE;
    void Enable(BOOL bOn) override {
        m_bEnabled = bOn;
        m_bEnableChanged = TRUE;
    }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}
};

}  // namespace

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT nID = LOWORD(wParam);
    const HWND hWndCtrl = reinterpret_cast<HWND>(lParam);
    int nCode = HIWORD(wParam);
    if (hWndCtrl == nullptr) {
        if (nID == 0) {
            return FALSE;
        }
        // An accelerator works only while the menu item would.
        EnableProbe probe;
        probe.m_nID = nID;
        OnCmdMsg(nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &probe, nullptr);
        if (!probe.m_bEnabled) {
            return TRUE;
        }
        nCode = CN_COMMAND;
    } else {
        if (AfxGetWndState().hLockoutNotify == m_hWnd) {
            return TRUE;
        }
        if (ReflectLastMsg(hWndCtrl)) {
            return TRUE;
        }
        if (nID == 0) {
            return FALSE;
        }
    }
    return OnCmdMsg(nID, nCode, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
    auto* pNMHDR = reinterpret_cast<NMHDR*>(lParam);
    const HWND hWndCtrl = pNMHDR->hwndFrom;
    // The window knows its number better than the sender: a header names its list's, for example.
    const UINT nID = static_cast<UINT>(::GetDlgCtrlID(hWndCtrl));
    const UINT nCode = pNMHDR->code;
    if (AfxGetWndState().hLockoutNotify == m_hWnd) {
        return TRUE;
    }
    if (ReflectLastMsg(hWndCtrl, pResult)) {
        return TRUE;
    }
    AFX_NOTIFY notify = {pResult, pNMHDR};
    return OnCmdMsg(nID, MAKELONG(nCode, WM_NOTIFY), &notify, nullptr);
}

BOOL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* pWnd = FromHandlePermanent(hWndChild);
    if (pWnd == nullptr) {
        return FALSE;
    }
    if (pWnd->m_pCtrlSite != nullptr &&
        AfxReflectToControl(pWnd, AfxGetWndState().lastSentMsg, pResult)) {
        return TRUE;
    }
    pWnd = FromHandlePermanent(hWndChild);  // the control may have ended itself
    return pWnd != nullptr && pWnd->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    LRESULT lUnused = 0;
    const MSG msg = AfxGetWndState().lastSentMsg;
    return OnChildNotify(msg.message, msg.wParam, msg.lParam,
                         pResult != nullptr ? pResult : &lUnused);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
        case WM_HSCROLL:
        case WM_VSCROLL:
        case WM_PARENTNOTIFY:
        case WM_DRAWITEM:
        case WM_MEASUREITEM:
        case WM_DELETEITEM:
        case WM_VKEYTOITEM:
        case WM_CHARTOITEM:
        case WM_COMPAREITEM:
            return OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, pResult);

        case WM_COMMAND: {
            const int nCode = MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND);
            if (!OnCmdMsg(0, nCode, nullptr, nullptr)) {
                return FALSE;
            }
            *pResult = 1;
            return TRUE;
        }
        case WM_NOTIFY: {
            auto* pNMHDR = reinterpret_cast<NMHDR*>(lParam);
            AFX_NOTIFY notify = {pResult, pNMHDR};
            return OnCmdMsg(0, MAKELONG(pNMHDR->code, WM_REFLECT_BASE + WM_NOTIFY), &notify,
                            nullptr);
        }
        default:
            break;
    }
    if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) {
        AFX_CTLCOLOR ctl = {reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam),
                            message - WM_CTLCOLORMSGBOX};
        return OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&ctl), pResult);
    }
    return FALSE;
}
