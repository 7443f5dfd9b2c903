// A window's children by number, and the update of those that stand for commands.
#include "afx/window/wnd.h"

#include "afx/ole/control_site.h"
#include "afx/ole/wnd_control.h"
#include "afx/window/wnd_state.h"

#include <afxwin.h>

namespace {

HWND HandleOf(const CWnd* pWnd) {
    return pWnd != nullptr ? pWnd->m_hWnd : nullptr;
}

}  // namespace

CWnd* CWnd::GetDlgItem(int nID) const {
    const HWND hWnd = ::GetDlgItem(m_hWnd, nID);
    if (hWnd == nullptr && m_pCtrlCont != nullptr) {
        return AfxWindowlessControl(this, static_cast<UINT>(nID));
    }
    return FromHandle(hWnd);
}

void CWnd::GetDlgItem(int nID, HWND* phWnd) const {
    *phWnd = ::GetDlgItem(m_hWnd, nID);
}

int CWnd::GetDlgCtrlID() const {
    return ::GetDlgCtrlID(m_hWnd);
}

int CWnd::SetDlgCtrlID(int nID) {
    if (m_pCtrlSite != nullptr) {
        m_pCtrlSite->m_nID = static_cast<UINT>(nID);
    }
    return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID));
}

void CWnd::CheckDlgButton(int nIDButton, UINT nCheck) {
    ::CheckDlgButton(m_hWnd, nIDButton, nCheck);
}

void CWnd::CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton) {
    ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
}

UINT CWnd::IsDlgButtonChecked(int nIDButton) const {
    return ::IsDlgButtonChecked(m_hWnd, nIDButton);
}

UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const {
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}

void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned) {
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const {
    return static_cast<int>(::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount));
}

void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString) {
    ::SetDlgItemText(m_hWnd, nID, lpszString);
}

LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, HandleOf(pWndCtl), bPrevious));
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgTabItem(m_hWnd, HandleOf(pWndCtl), bPrevious));
}

int CWnd::DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType) {
    return ::DlgDirList(m_hWnd, lpPathSpec, nIDListBox, nIDStaticPath, nFileType);
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString.Empty();
    HWND hWnd = ::GetDlgItem(m_hWnd, nID);
    if (hWnd == nullptr) {
        return 0;
    }
    const int nLength = ::GetWindowTextLength(hWnd);
    ::GetWindowText(hWnd, rString.GetBuffer(nLength), nLength + 1);
    rString.ReleaseBuffer();
    return rString.GetLength();
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const {
    for (int nID = nIDFirstButton; nID <= nIDLastButton; ++nID) {
        if (IsDlgButtonChecked(nID)) {
            return nID;
        }
    }
    return 0;
}

static CWnd* FindDescendant(HWND hWnd, int nID, BOOL bOnlyPerm) {
    if (HWND hWndChild = ::GetDlgItem(hWnd, nID)) {
        if (::GetTopWindow(hWndChild) != nullptr) {
            if (CWnd* pWnd = FindDescendant(hWndChild, nID, bOnlyPerm)) {
                return pWnd;
            }
        }
        CWnd* pWnd = bOnlyPerm ? CWnd::FromHandlePermanent(hWndChild) : CWnd::FromHandle(hWndChild);
        if (pWnd != nullptr) {
            return pWnd;
        }
    }
    for (HWND hWndChild = ::GetTopWindow(hWnd); hWndChild != nullptr;
         hWndChild = ::GetWindow(hWndChild, GW_HWNDNEXT)) {
        if (CWnd* pWnd = FindDescendant(hWndChild, nID, bOnlyPerm)) {
            return pWnd;
        }
    }
    return nullptr;
}

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const {
    return FindDescendant(m_hWnd, nID, bOnlyPerm);
}

static void SendDown(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                     BOOL bOnlyPerm) {
    // The next one is taken first, because a window may go away over its message.
    for (HWND hWndChild = ::GetTopWindow(hWnd); hWndChild != nullptr;) {
        HWND hWndNext = ::GetWindow(hWndChild, GW_HWNDNEXT);
        if (!bOnlyPerm) {
            ::SendMessage(hWndChild, message, wParam, lParam);
        } else if (CWnd* pWnd = CWnd::FromHandlePermanent(hWndChild)) {
            AfxCallWndProc(pWnd, hWndChild, message, wParam, lParam);
        }
        if (bDeep && ::GetTopWindow(hWndChild) != nullptr) {
            SendDown(hWndChild, message, wParam, lParam, bDeep, bOnlyPerm);
        }
        hWndChild = hWndNext;
    }
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                    BOOL bOnlyPerm) {
    SendDown(m_hWnd, message, wParam, lParam, bDeep, bOnlyPerm);
}

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    CCmdUI state;
    for (HWND hWndChild = ::GetTopWindow(m_hWnd); hWndChild != nullptr;
         hWndChild = ::GetWindow(hWndChild, GW_HWNDNEXT)) {
        state.m_nID = LOWORD(::GetDlgCtrlID(hWndChild));
        CWnd* pWnd = FromHandle(hWndChild);
        state.m_pOther = pWnd;
        // The control itself may know.
        if (pWnd->OnCmdMsg(0, MAKELONG(LOWORD(CN_UPDATE_COMMAND_UI), WM_REFLECT_BASE + WM_COMMAND),
                           &state, nullptr)) {
            continue;
        }
        if (OnCmdMsg(state.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, nullptr)) {
            continue;
        }
        // Only push buttons stand for commands by their nature.
        const BOOL bPush =
            (pWnd->SendMessage(WM_GETDLGCODE) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
        state.DoUpdate(pTarget, bDisableIfNoHndler && bPush);
    }
}
