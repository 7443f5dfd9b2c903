// Messages before they are dispatched, and loops of a window's own.
#include "afx/window/wnd.h"

#include "afx/ole/wnd_control.h"
#include "afx/window/wide_input.h"
#include "afx/window/wnd_state.h"

#include <afxpriv.h>
#include <afxwin.h>

BOOL CWnd::PreTranslateMessage(MSG* pMsg) {
    const HWND hWnd = m_hWnd;
    if ((m_nFlags & WF_TOOLTIPS) != 0) {
        FilterToolTipMessage(pMsg);
        if (FromHandlePermanent(hWnd) != this) {
            return TRUE;  // who was asked took it away
        }
    }
    return (m_pCtrlSite != nullptr || m_pCtrlCont != nullptr) && AfxPreTranslateControl(this, pMsg);
}

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND hWnd = pMsg->hwnd; hWnd != nullptr; hWnd = ::GetParent(hWnd)) {
        CWnd* pWnd = FromHandlePermanent(hWnd);
        if (pWnd != nullptr && pWnd->PreTranslateMessage(pMsg)) {
            return TRUE;
        }
        if (hWnd == hWndStop) {
            break;
        }
    }
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg) {
    if (m_pCtrlCont != nullptr) {
        if (AfxControlClicked(this, *lpMsg)) {
            return TRUE;
        }
        if (m_pCtrlCont != nullptr && AfxControlWantsKey(this, *lpMsg)) {
            return FALSE;  // it gets the message as it is
        }
    }
    const bool bKey = lpMsg->message >= WM_KEYFIRST && lpMsg->message <= WM_KEYLAST;
    const bool bMouse = lpMsg->message >= WM_MOUSEFIRST && lpMsg->message <= WM_MOUSELAST;
    return (bKey || bMouse) && AfxIsDialogMessage(m_hWnd, *lpMsg);
}

int AfxShowBox(HWND hWndOwner, LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
    const HWND hWndTop = hWndOwner != nullptr ? ::GetAncestor(hWndOwner, GA_ROOT) : nullptr;
    const BOOL bEnabled = ::IsWindowEnabled(hWndTop);
    const int nResult = ::MessageBox(hWndOwner, lpszText, lpszCaption, nType);
    // The system enables it always, or never where the program is about to end.
    ::EnableWindow(hWndTop, bEnabled);
    return nResult;
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
    if (lpszCaption == nullptr) {
        lpszCaption = AfxGetAppName();
    }
    return AfxShowBox(GetSafeHwnd(), lpszText, lpszCaption, nType);
}

BOOL CWnd::ContinueModal() {
    return (m_nFlags & WF_CONTINUEMODAL) != 0;
}

void CWnd::EndModalLoop(int nResult) {
    m_nModalResult = nResult;
    if (m_nFlags & WF_CONTINUEMODAL) {
        m_nFlags &= ~WF_CONTINUEMODAL;
        PostMessage(WM_NULL);  // wakes the loop
    }
}

namespace {

/// What a modal loop does while the queue is empty.
class ModalIdle {
public:
    ModalIdle(CWnd* pWnd, DWORD dwFlags)
        : m_pWnd(pWnd),
          m_dwFlags(dwFlags),
          m_bShow((dwFlags & MLF_SHOWONIDLE) && !(pWnd->GetStyle() & WS_VISIBLE)),
          m_hWndParent(::GetParent(pWnd->m_hWnd)) {}

    /// FALSE when there is nothing more to do until a message comes.
    BOOL Step() {
        Show();
        if (!(m_dwFlags & MLF_NOIDLEMSG) && m_hWndParent != nullptr && m_lCount == 0) {
            AfxSend(m_hWndParent, WM_ENTERIDLE, MSGF_DIALOGBOX, m_pWnd->m_hWnd);
        }
        return !(m_dwFlags & MLF_NOKICKIDLE) && m_pWnd->m_hWnd != nullptr &&
               m_pWnd->SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, m_lCount++) != 0;
    }
    void Show() {
        if (m_bShow) {
            m_bShow = false;
            m_pWnd->ShowWindow(SW_SHOWNORMAL);
            m_pWnd->UpdateWindow();
        }
    }
    void Restart() { m_lCount = 0; }

private:
    CWnd* m_pWnd;
    DWORD m_dwFlags;
    bool m_bShow;
    HWND m_hWndParent;
    LONG m_lCount = 0;
};

bool QueueIsEmpty() {
    MSG msg;
    return !::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE);
}

}  // namespace

int CWnd::RunModalLoop(DWORD dwFlags) {
    ModalIdle idle(this, dwFlags);
    BOOL bIdle = TRUE;
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    // A window that was destroyed instead of ended leaves nothing to wait for.
    while (ContinueModal() && m_hWnd != nullptr) {
        if (bIdle && QueueIsEmpty()) {
            bIdle = idle.Step();
            continue;
        }
        if (!AfxPumpMessage()) {
            AfxPostQuitMessage(0);  // the loop outside ends as well
            m_nModalResult = -1;
            break;
        }
        MSG* pMsg = &AfxGetThread()->m_msgCur;
        if (pMsg->message == WM_SYSKEYDOWN) {
            idle.Show();
        }
        if (AfxGetThread()->IsIdleMessage(pMsg)) {
            bIdle = TRUE;
            idle.Restart();
        }
    }
    m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
    return m_nModalResult;
}
