#include <afxwin.h>

CCmdUI::CCmdUI() = default;

void CCmdUI::Enable(BOOL bOn) {
    if (m_pMenu != nullptr) {
        // An item that opens a menu shares its number with nobody; its items decide.
        if (m_pSubMenu != nullptr) {
            return;
        }
        m_pMenu->EnableMenuItem(m_nIndex,
                                MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
    } else if (m_pOther != nullptr) {
        // A disabled control must not keep the focus: no key would reach anything.
        if (!bOn && ::GetFocus() == m_pOther->m_hWnd) {
            if (CWnd* pParent = m_pOther->GetParent()) {
                ::SendMessage(pParent->m_hWnd, WM_NEXTDLGCTL, 0, FALSE);
            }
        }
        m_pOther->EnableWindow(bOn);
    }
    m_bEnableChanged = TRUE;
}

void CCmdUI::SetCheck(int nCheck) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr) {
            m_pMenu->CheckMenuItem(m_nIndex,
                                   MF_BYPOSITION | (nCheck != 0 ? MF_CHECKED : MF_UNCHECKED));
        }
    } else if (m_pOther != nullptr) {
        if (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON) {
            m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
        }
    }
}

void CCmdUI::SetRadio(BOOL bOn) {
    SetCheck(bOn ? 1 : 0);
    if (m_pMenu == nullptr || m_pSubMenu != nullptr) {
        return;
    }
    MENUITEMINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE;
    if (!::GetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info)) {
        return;
    }
    // The bullet instead of the tick; harmless while the item is not checked.
    info.fType |= MFT_RADIOCHECK;
    ::SetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
}

void CCmdUI::SetText(LPCTSTR lpszText) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu != nullptr) {
            return;
        }
        UINT nState = m_pMenu->GetMenuState(m_nIndex, MF_BYPOSITION);
        nState &= ~(MF_BITMAP | MF_OWNERDRAW | MF_SEPARATOR);
        m_pMenu->ModifyMenu(m_nIndex, MF_BYPOSITION | MF_STRING | nState, m_nID, lpszText);
    } else if (m_pOther != nullptr) {
        CString strNow;
        m_pOther->GetWindowText(strNow);
        if (strNow != lpszText) {  // no flicker at each idle time
            m_pOther->SetWindowText(lpszText);
        }
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    // A command without a number, and one that is kept for the system's own use, has no handlers.
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF) {
        return TRUE;
    }
    m_bEnableChanged = FALSE;
    const auto* pWnd = DYNAMIC_DOWNCAST(CWnd, pTarget);
    const HWND hWnd = pWnd->GetSafeHwnd();
    const BOOL bResult =
        pTarget->OnCmdMsg(m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), this, nullptr);
    // A handler may destroy the window that it was asked through.
    const bool bGone = hWnd != nullptr && CWnd::FromHandlePermanent(hWnd) != pWnd;
    if (bDisableIfNoHndler && !m_bEnableChanged && !bGone) {
        AFX_CMDHANDLERINFO info;
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return bResult;
}
