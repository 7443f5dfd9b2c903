// What a control has to do with the focus and the keyboard.
#include "afx/ole/control_site.h"
#include "afx/ole/site_interfaces.h"

#include <afxdisp.h>

void COleControlSite::OnAmbientPropertyChange(DISPID dispid) {
    if (const AfxComPtr<IOleControl> pControl = m_pControl) {
        pControl->OnAmbientPropertyChange(dispid);
    }
}

const CONTROLINFO& COleControlSite::ControlInfo() {
    if (m_ctlInfo.cb == 0 && m_pControl) {
        const AfxHold<COleControlSite> hold(this);
        const AfxComPtr<IOleControl> pControl = m_pControl;
        CONTROLINFO info = {};
        info.cb = sizeof info;
        if (FAILED(pControl->GetControlInfo(&info))) {
            info = {};
        }
        m_ctlInfo = info;
        m_ctlInfo.cb = sizeof m_ctlInfo;
    }
    return m_ctlInfo;
}

BOOL COleControlSite::HasMnemonic(const MSG& msg) {
    const CONTROLINFO& info = ControlInfo();
    MSG copy = msg;
    return info.hAccel != nullptr && info.cAccel > 0 &&
           ::IsAccelerator(info.hAccel, info.cAccel, &copy, nullptr);
}

// A label's key is for the control behind it.
void COleControlSite::OnMnemonic(MSG* pMsg) {
    const AfxHold<COleControlSite> hold(this);
    if (m_dwMiscStatus & OLEMISC_ACTSLIKELABEL) {
        ::SetFocus(::GetNextDlgTabItem(::GetParent(m_hWnd), m_hWnd, FALSE));
        return;
    }
    if (!(m_dwMiscStatus & OLEMISC_ACTSLIKEBUTTON)) {
        SetFocus();
    }
    if (const AfxComPtr<IOleControl> pControl = m_pControl) {
        pControl->OnMnemonic(pMsg);
    }
}

BOOL COleControlSite::Click() {
    if (!(m_dwMiscStatus & OLEMISC_ACTSLIKEBUTTON) || !m_pDispatch) {
        return FALSE;
    }
    const AfxHold<COleControlSite> hold(this);
    try {
        InvokeHelper(DISPID_DOCLICK, DISPATCH_METHOD, VT_EMPTY, nullptr, nullptr);
        return TRUE;
    } catch (COleException* e) {
        e->Delete();
    }
    return FALSE;
}

CWnd* COleControlSite::SetFocus() {
    CWnd* const pOld = CWnd::GetFocus();
    const AfxHold<COleControlSite> hold(this);
    if (m_hWnd != nullptr && DoVerb(OLEIVERB_UIACTIVATE) != S_OK) {
        ::SetFocus(m_hWnd);
    }
    const HWND hFocus = ::GetFocus();
    if (m_hWnd != nullptr && hFocus != m_hWnd && !::IsChild(m_hWnd, hFocus)) {
        ::SetFocus(m_hWnd);
    }
    return pOld;
}

// The system's dialogs move the focus by the window; the control is to know that it has it.
void COleControlSite::OnWindowFocus(bool bFocus, HWND hWndOther) {
    if (m_bCreating || m_bEnding || m_pCtrlCont == nullptr || m_hWnd == nullptr) {
        return;
    }
    const AfxHold<COleControlSite> hold(this);
    const bool bActive = m_pCtrlCont->m_pSiteUIActive == this;
    if (bFocus) {
        if (!bActive && !(m_dwMiscStatus & (OLEMISC_ACTSLIKELABEL | OLEMISC_NOUIACTIVATE))) {
            DoVerb(OLEIVERB_UIACTIVATE);
        }
        return;
    }
    // Another program may take the focus and give it back; nothing changes by that.
    const bool bLeaves = hWndOther != nullptr && hWndOther != m_hWnd &&
                         !::IsChild(m_hWnd, hWndOther) &&
                         ::IsChild(m_pCtrlCont->m_pWnd->GetSafeHwnd(), hWndOther);
    if (bActive && bLeaves) {
        m_pCtrlCont->OnUIActivate(nullptr);
    }
}

BOOL COleControlSite::TranslateAccelerator(MSG* pMsg) {
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST || !m_pObject) {
        return FALSE;
    }
    const AfxHold<COleControlSite> hold(this);
    const auto pActive =
        m_pActiveObject ? m_pActiveObject : m_pObject.As<IOleInPlaceActiveObject>();
    return pActive && pActive->TranslateAccelerator(pMsg) == S_OK;
}

void COleControlSite::SetDefaultButton(BOOL bDefault) {
    if (!(m_dwMiscStatus & OLEMISC_ACTSLIKEBUTTON) || m_bDefaultButton == bDefault) {
        return;
    }
    const AfxHold<COleControlSite> hold(this);
    m_bDefaultButton = bDefault;
    OnAmbientPropertyChange(DISPID_AMBIENT_DISPLAYASDEFAULT);
}

DWORD COleControlSite::GetDefBtnCode() const {
    if (!(m_dwMiscStatus & OLEMISC_ACTSLIKEBUTTON)) {
        return 0;
    }
    return m_bDefaultButton ? DLGC_DEFPUSHBUTTON : DLGC_UNDEFPUSHBUTTON;
}
