// CWnd as the wrapper of an ActiveX control, and as the window that has such controls.
#include "afx/ole/wnd_control.h"

#include "afx/ole/control_container.h"
#include "afx/ole/control_site.h"
#include "afx/ole/dispatch_call.h"
#include "afx/values/wide_text.h"
#include "afx/window/wnd_state.h"

#include <afxdisp.h>

namespace {

bool& ContainersAreEnabled() {
    static bool bEnabled = false;
    return bEnabled;
}

}  // namespace

void AfxEnableControlContainer() {
    ContainersAreEnabled() = true;
}

bool AfxHostsControls() {
    return ContainersAreEnabled();
}

BOOL CWnd::SetOccDialogInfo(_AFX_OCC_DIALOG_INFO*) {
    return FALSE;
}

BOOL CWnd::CreateControlContainer(COleControlContainer** ppContainer) {
    *ppContainer = nullptr;
    return TRUE;
}

BOOL CWnd::CreateControlSite(COleControlContainer*, COleControlSite** ppSite, UINT, REFCLSID) {
    *ppSite = nullptr;
    return TRUE;
}

BOOL CWnd::InitControlContainer() {
    if (m_pCtrlCont == nullptr && AfxHostsControls()) {
        COleControlContainer* pContainer = nullptr;
        if (CreateControlContainer(&pContainer)) {
            m_pCtrlCont = pContainer != nullptr ? pContainer : new COleControlContainer(this);
        }
    }
    return m_pCtrlCont != nullptr;
}

BOOL CWnd::OnAmbientProperty(COleControlSite* pSite, DISPID dispid, VARIANT* pvar) {
    return m_pCtrlCont != nullptr && m_pCtrlCont->GetAmbientProp(pSite, dispid, pvar);
}

// --- Creation

BOOL CWnd::CreateControl(REFCLSID clsid, LPCTSTR lpszWindowName, DWORD dwStyle, const POINT* ppt,
                         const SIZE* psize, CWnd* pParentWnd, UINT nID, CFile* pPersist,
                         BOOL bStorage, BSTR bstrLicKey) {
    if (pParentWnd->GetSafeHwnd() == nullptr || m_hWnd != nullptr || m_pCtrlSite != nullptr ||
        !pParentWnd->InitControlContainer()) {
        return FALSE;
    }
    return pParentWnd->m_pCtrlCont->CreateControl(this, clsid, lpszWindowName, dwStyle, ppt, psize,
                                                  nID, pPersist, bStorage, bstrLicKey);
}

BOOL CWnd::CreateControl(REFCLSID clsid, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                         CWnd* pParentWnd, UINT nID, CFile* pPersist, BOOL bStorage,
                         BSTR bstrLicKey) {
    const CRect rc(rect);
    const CPoint point = rc.TopLeft();
    const CSize size = rc.Size();
    return CreateControl(clsid, lpszWindowName, dwStyle, &point, &size, pParentWnd, nID, pPersist,
                         bStorage, bstrLicKey);
}

BOOL CWnd::CreateControl(LPCTSTR lpszClass, LPCTSTR lpszWindowName, DWORD dwStyle, const POINT* ppt,
                         const SIZE* psize, CWnd* pParentWnd, UINT nID, CFile* pPersist,
                         BOOL bStorage, BSTR bstrLicKey) {
    CLSID clsid;
    return AfxGetClassIDFromString(lpszClass, &clsid) == S_OK &&
           CreateControl(clsid, lpszWindowName, dwStyle, ppt, psize, pParentWnd, nID, pPersist,
                         bStorage, bstrLicKey);
}

BOOL CWnd::CreateControl(LPCTSTR lpszClass, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                         CWnd* pParentWnd, UINT nID, CFile* pPersist, BOOL bStorage,
                         BSTR bstrLicKey) {
    CLSID clsid;
    return AfxGetClassIDFromString(lpszClass, &clsid) == S_OK &&
           CreateControl(clsid, lpszWindowName, dwStyle, rect, pParentWnd, nID, pPersist, bStorage,
                         bstrLicKey);
}

HRESULT AfxGetClassIDFromString(LPCTSTR lpsz, LPCLSID lpClsID) {
    constexpr int kMostUnits = 128;  // longer than any name may be
    WCHAR szWide[kMostUnits];
    if (lpsz == nullptr || ::MultiByteToWideChar(CP_ACP, 0, lpsz, -1, szWide, kMostUnits) == 0) {
        return CO_E_CLASSSTRING;
    }
    return szWide[0] == L'{' ? ::CLSIDFromString(szWide, lpClsID)
                             : ::CLSIDFromProgID(szWide, lpClsID);
}

// --- Members of the control

LPUNKNOWN CWnd::GetControlUnknown() {
    return m_pCtrlSite != nullptr ? m_pCtrlSite->m_pObject.Get() : nullptr;
}

void CWnd::InvokeHelper(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                        const BYTE* pbParamInfo, ...) {
    va_list argList;
    va_start(argList, pbParamInfo);
    const AfxListEnd end{argList};
    InvokeHelperV(dwDispID, wFlags, vtRet, pvRet, pbParamInfo, argList);
}

void CWnd::InvokeHelperV(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                         const BYTE* pbParamInfo, va_list argList) {
    if (m_pCtrlSite != nullptr) {
        m_pCtrlSite->InvokeHelperV(dwDispID, wFlags, vtRet, pvRet, pbParamInfo, argList);
    }
}

void CWnd::GetProperty(DISPID dwDispID, VARTYPE vtProp, void* pvProp) const {
    if (m_pCtrlSite != nullptr) {
        m_pCtrlSite->GetProperty(dwDispID, vtProp, pvProp);
    }
}

void CWnd::SetPropertyV(DISPID dwDispID, VARTYPE vtProp, va_list argList) {
    if (m_pCtrlSite != nullptr) {
        m_pCtrlSite->SetPropertyV(dwDispID, vtProp, argList);
    }
}

void CWnd::SetProperty(DISPID dwDispID, VARTYPE vtProp, ...) {
    va_list argList;
    va_start(argList, vtProp);
    const AfxListEnd end{argList};
    SetPropertyV(dwDispID, vtProp, argList);
}

// --- Its window

LRESULT AfxCallControlWndProc(CWnd* pWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    COleControlSite* const pSite = pWnd->m_pCtrlSite;
    const AfxHold<COleControlSite> hold(pSite);
    if (nMsg == BM_SETSTYLE) {
        pSite->SetDefaultButton((wParam & BS_TYPEMASK) == BS_DEFPUSHBUTTON);
        return 0;
    }
    if (nMsg == BM_CLICK && pSite->Click()) {
        return 0;
    }
    LRESULT lResult = AfxWndAccess::WindowProc(pWnd, nMsg, wParam, lParam);
    switch (nMsg) {
        case WM_GETDLGCODE:
            lResult |= pSite->GetDefBtnCode();
            break;
        case WM_WINDOWPOSCHANGED:
            pSite->OnWindowPosChanged();
            break;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            pSite->OnWindowFocus(nMsg == WM_SETFOCUS, reinterpret_cast<HWND>(wParam));
            break;
        default:
            break;
    }
    return lResult;
}

BOOL AfxTakeControl(CWnd* pWnd, HWND hWnd) {
    const CWnd* const pParent = CWnd::FromHandlePermanent(::GetParent(hWnd));
    COleControlSite* const pSite = pParent != nullptr && pParent->m_pCtrlCont != nullptr
                                       ? pParent->m_pCtrlCont->FindItem(hWnd)
                                       : nullptr;
    return pSite == nullptr || pWnd->m_hWnd != nullptr || pSite->GiveTo(pWnd);
}

static COleControlSite* FindWindowless(const CWnd* pParent, UINT nID) {
    COleControlSite* const pSite =
        pParent->m_pCtrlCont != nullptr ? pParent->m_pCtrlCont->FindItem(nID) : nullptr;
    return pSite != nullptr && pSite->m_hWnd == nullptr ? pSite : nullptr;
}

BOOL AfxTakeWindowlessControl(CWnd& wnd, CWnd* pParent, UINT nID) {
    COleControlSite* const pSite = FindWindowless(pParent, nID);
    return pSite != nullptr && pSite->GiveTo(&wnd);
}

CWnd* AfxWindowlessControl(const CWnd* pParent, UINT nID) {
    const COleControlSite* const pSite = FindWindowless(pParent, nID);
    return pSite != nullptr ? pSite->m_pWndCtrl : nullptr;
}

BOOL AfxDestroyControl(CWnd* pWnd) {
    const bool bWindow = pWnd->m_hWnd != nullptr;
    COleControlSite* const pSite = pWnd->m_pCtrlSite;
    const AfxHold<COleControlSite> hold(pSite);
    const BOOL bDone = pSite->DestroyControl();
    if (bDone && !bWindow && !pSite->IsForgotten()) {
        AfxWndAccess::PostNcDestroy(pWnd);  // as after the end of a window
    }
    return bDone;
}

void AfxLeaveControl(CWnd* pWnd) {
    if (COleControlSite* const pSite = std::exchange(pWnd->m_pCtrlSite, nullptr)) {
        pSite->ForgetWrapper();
        pSite->DestroyControl();
    }
}

void AfxEndControlContainer(CWnd* pWnd) {
    if (pWnd->m_pCtrlCont != nullptr) {
        pWnd->m_pCtrlCont->OnWindowGone();
    }
}

BOOL AfxReflectToControl(CWnd* pWnd, const MSG& msg, LRESULT* pResult) {
    const COleControlSite* const pSite = pWnd->m_pCtrlSite;
    if (pSite == nullptr || pSite->m_hWnd == nullptr) {
        return FALSE;
    }
    const LRESULT lResult =
        ::SendMessage(pSite->m_hWnd, OCM__BASE + msg.message, msg.wParam, msg.lParam);
    if (pResult != nullptr) {
        *pResult = lResult;
    }
    return lResult != 0;
}

// --- Keys

BOOL AfxPreTranslateControl(CWnd* pWnd, MSG* pMsg) {
    const HWND hWnd = pWnd->m_hWnd;
    if (pWnd->m_pCtrlSite != nullptr && pWnd->m_pCtrlSite->TranslateAccelerator(pMsg)) {
        return TRUE;
    }
    return CWnd::FromHandlePermanent(hWnd) == pWnd && pWnd->m_pCtrlCont != nullptr &&
           pWnd->m_pCtrlCont->OnMnemonic(pMsg);
}

BOOL AfxControlClicked(CWnd* pWnd, const MSG& msg) {
    return !pWnd->m_pCtrlCont->WantsKey(msg) && pWnd->m_pCtrlCont->OnReturn(msg);
}

BOOL AfxControlWantsKey(CWnd* pWnd, const MSG& msg) {
    return pWnd->m_pCtrlCont->WantsKey(msg);
}

int AfxCopyWhole(LPTSTR lpszBuf, LPCTSTR lpszText, int nMaxCount) {
    if (nMaxCount <= 0) {
        return 0;
    }
    const int nLength = ::lstrlen(lpszText);
    int nBytes = 0;
    for (int nChar = 0; nBytes < nLength; nBytes += nChar) {
        nChar = AfxCharBytes(lpszText + nBytes, nLength - nBytes);
        if (nBytes + nChar >= nMaxCount) {
            break;
        }
    }
    std::memcpy(lpszBuf, lpszText, static_cast<size_t>(nBytes));
    lpszBuf[nBytes] = '\0';
    return nBytes;
}
