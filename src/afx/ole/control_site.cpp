#include "afx/ole/control_site.h"

#include "afx/ole/control_state.h"
#include "afx/ole/dispatch_call.h"
#include "afx/ole/event_sink.h"
#include "afx/ole/site_interfaces.h"
#include "afx/window/wnd_state.h"

#include <afxctl.h>
#include <afxdisp.h>

namespace {

constexpr int kHimetricPerInch = 2540;

/// Wraps a control for which the program has no object.
class OwnWindow : public CWnd {
protected:
    void PostNcDestroy() override { delete this; }
};

}  // namespace

SIZE AfxScreenDpi() {
    const HDC hDC = ::GetDC(nullptr);
    const SIZE dpi{::GetDeviceCaps(hDC, LOGPIXELSX), ::GetDeviceCaps(hDC, LOGPIXELSY)};
    ::ReleaseDC(nullptr, hDC);
    return dpi;
}

SIZE AfxToHimetric(SIZE pixels) {
    const SIZE dpi = AfxScreenDpi();
    return {::MulDiv(pixels.cx, kHimetricPerInch, dpi.cx),
            ::MulDiv(pixels.cy, kHimetricPerInch, dpi.cy)};
}

SIZE AfxFromHimetric(SIZE himetric) {
    const SIZE dpi = AfxScreenDpi();
    return {::MulDiv(himetric.cx, dpi.cx, kHimetricPerInch),
            ::MulDiv(himetric.cy, dpi.cy, kHimetricPerInch)};
}

COleControlSite::COleControlSite(COleControlContainer* pCtrlCont)
    : m_pCtrlCont(pCtrlCont), m_pInterfaces(new AfxSiteInterfaces(this)) {}

COleControlSite::~COleControlSite() {
    m_pInterfaces->ForgetSite();
    m_pInterfaces->Release();
}

// Out of line, or the compiler takes one hold for the last in sight of another.
[[gnu::noinline]] void COleControlSite::Unhold() {
    if (--m_nHolds == 0 && m_pCtrlCont == nullptr) {
        delete this;
    }
}

// --- Creation

HRESULT COleControlSite::CreateControl(CWnd* pWndCtrl, REFCLSID clsid, LPCTSTR lpszWindowName,
                                       DWORD dwStyle, const POINT* ppt, const SIZE* psize, UINT nID,
                                       CFile* pPersist, BOOL bStorage, BSTR bstrLicKey) {
    const AfxHold<COleControlSite> hold(this);
    m_bCreating = true;
    m_nID = nID;
    m_dwStyle = dwStyle;
    m_pWndCtrl = pWndCtrl;
    if (pWndCtrl == nullptr) {
        m_pWndCtrl = m_pOwnWnd = new OwnWindow;
    }
    m_pWndCtrl->m_pCtrlSite = this;
    HRESULT hr = CreateOrLoad(clsid, pPersist, bStorage, bstrLicKey);
    if (SUCCEEDED(hr)) {
        SIZE size = psize != nullptr ? *psize : SIZE{-1, -1};
        if (size.cx < 0 || size.cy < 0) {
            SIZE own = {};
            AfxComPtr(m_pObject)->GetExtent(DVASPECT_CONTENT, &own);
            size = AfxFromHimetric(own);
        }
        m_rect = CRect(ppt != nullptr ? *ppt : POINT{}, size);
        SetExtent(size);
        ConnectSinks();
        ApplyStyle();
        hr = Activate();
        if (SUCCEEDED(hr) && lpszWindowName != nullptr) {
            SetWindowText(lpszWindowName);  // which may take its window
            hr = m_pObject ? hr : E_ABORT;
        }
    }
    m_bCreating = false;
    return hr;
}

HRESULT COleControlSite::CreateOrLoad(REFCLSID clsid, CFile* pPersist, BOOL bStorage,
                                      BSTR bstrLicKey) {
    AfxComPtr<IOleObject> pObject;
    HRESULT hr = AfxCreateControlObject(clsid, bstrLicKey, pObject);
    if (FAILED(hr)) {
        return hr;
    }
    if (!pObject) {
        return E_NOINTERFACE;
    }
    m_pObject = pObject;
    m_pObject->GetMiscStatus(DVASPECT_CONTENT, &m_dwMiscStatus);
    m_pDispatch = pObject.As<IDispatch>();
    m_pControl = pObject.As<IOleControl>();
    const bool bSiteFirst = (m_dwMiscStatus & OLEMISC_SETCLIENTSITEFIRST) != 0;
    if (bSiteFirst) {
        hr = pObject->SetClientSite(m_pInterfaces->ClientSite());
    }
    if (SUCCEEDED(hr)) {
        hr = AfxInitControlState(pObject.Get(), pPersist, bStorage, m_pStorage);
    }
    if (SUCCEEDED(hr) && !bSiteFirst) {
        hr = pObject->SetClientSite(m_pInterfaces->ClientSite());
    }
    return FAILED(hr) || m_pCtrlCont != nullptr ? hr : E_ABORT;
}

HRESULT COleControlSite::SetExtent(SIZE size) {
    SIZE himetric = AfxToHimetric(size);
    const AfxComPtr<IOleObject> pObject = m_pObject;
    return pObject ? pObject->SetExtent(DVASPECT_CONTENT, &himetric) : E_UNEXPECTED;
}

void COleControlSite::ApplyStyle() {
    if (m_dwStyle & WS_DISABLED) {
        SafeSetProperty(DISPID_ENABLED, VT_BOOL, FALSE);
    }
    if (m_dwStyle & WS_BORDER) {
        SafeSetProperty(DISPID_BORDERSTYLE, VT_I2, 1);
    }
}

BOOL COleControlSite::GetEventIID(IID* piid) {
    return SUCCEEDED(AfxFindEventInterface(m_pObject.Get(), piid));
}

// A control that tells nothing is one all the same.
void COleControlSite::ConnectSinks() {
    if (!m_pObject) {
        return;
    }
    if (GetEventIID(&m_iidEvents)) {
        AfxConnectionAdvise(m_pObject.Get(), m_iidEvents, m_pInterfaces->EventSink(), TRUE,
                            &m_dwEventSink);
    }
    if (m_pObject) {
        AfxConnectionAdvise(m_pObject.Get(), IID_IPropertyNotifySink, m_pInterfaces->PropertySink(),
                            TRUE, &m_dwPropNotifySink);
    }
}

void COleControlSite::DisconnectSinks() {
    if (const DWORD dwSink = std::exchange(m_dwEventSink, 0)) {
        AfxConnectionUnadvise(m_pObject.Get(), m_iidEvents, m_pInterfaces->EventSink(), TRUE,
                              dwSink);
    }
    if (const DWORD dwSink = std::exchange(m_dwPropNotifySink, 0)) {
        AfxConnectionUnadvise(m_pObject.Get(), IID_IPropertyNotifySink,
                              m_pInterfaces->PropertySink(), TRUE, dwSink);
    }
}

HRESULT COleControlSite::Activate() {
    if (m_pCtrlCont == nullptr || !m_pObject) {
        return E_ABORT;
    }
    if (m_dwMiscStatus & OLEMISC_INVISIBLEATRUNTIME) {
        return S_OK;
    }
    HRESULT hr = DoVerb(OLEIVERB_INPLACEACTIVATE);
    if (FAILED(hr)) {
        return hr;
    }
    AttachWindow();
    if (m_hWnd == nullptr) {
        return E_FAIL;
    }
    if (!(m_dwStyle & WS_VISIBLE)) {
        DoVerb(OLEIVERB_HIDE);
        ::ShowWindow(m_hWnd, SW_HIDE);
    }
    return m_hWnd != nullptr ? S_OK : E_ABORT;
}

HRESULT COleControlSite::DoVerb(LONG nVerb, LPMSG lpMsg) {
    if (!m_pObject || m_pCtrlCont == nullptr || m_pCtrlCont->m_pWnd == nullptr) {
        return E_UNEXPECTED;
    }
    const AfxHold<COleControlSite> hold(this);
    const AfxComPtr<IOleObject> pObject = m_pObject;
    return pObject->DoVerb(nVerb, lpMsg, m_pInterfaces->ClientSite(), 0,
                           m_pCtrlCont->m_pWnd->m_hWnd, &m_rect);
}

// --- Its window

void COleControlSite::AttachWindow() {
    if (m_bEnding || !m_pObject) {
        return;
    }
    if (!m_pInPlaceObject) {
        m_pInPlaceObject = m_pObject.As<IOleInPlaceObject>();
    }
    HWND hWnd = nullptr;
    const AfxComPtr<IOleInPlaceObject> pInPlace = m_pInPlaceObject;
    if (!pInPlace || FAILED(pInPlace->GetWindow(&hWnd)) || m_bEnding || hWnd == nullptr ||
        hWnd == m_hWnd || !::IsWindow(hWnd)) {
        return;
    }
    DetachWindow();
    if (m_pWndCtrl == nullptr || !m_pWndCtrl->SubclassWindow(hWnd)) {
        return;
    }
    if (m_bEnding) {
        return;  // the wrapper did not want it
    }
    m_hWnd = hWnd;
    ::SetWindowLongPtr(hWnd, GWLP_ID, m_nID);
    const DWORD dwKept = m_dwStyle & (WS_TABSTOP | WS_GROUP | WS_DISABLED);
    CWnd::ModifyStyle(hWnd, WS_TABSTOP | WS_GROUP, dwKept, 0);
}

// A window that goes with its control, or its wrapper, is not taken away from the wrapper before.
void COleControlSite::DetachWindow() {
    if (m_bEnding || m_hWnd == nullptr) {
        return;
    }
    m_hWnd = nullptr;
    if (m_pWndCtrl != nullptr && m_pWndCtrl->m_hWnd != nullptr) {
        m_pWndCtrl->UnsubclassWindow();
    }
}

BOOL COleControlSite::GiveTo(CWnd* pWnd) {
    if (m_pWndCtrl != nullptr && m_pOwnWnd == nullptr) {
        return m_pWndCtrl == pWnd;
    }
    DropOwnWindow();
    m_pWndCtrl = pWnd;
    pWnd->m_pCtrlSite = this;
    return TRUE;
}

void COleControlSite::DropOwnWindow() {
    if (CWnd* const pOwn = std::exchange(m_pOwnWnd, nullptr)) {
        if (pOwn->m_hWnd != nullptr) {
            pOwn->UnsubclassWindow();
        }
        pOwn->m_pCtrlSite = nullptr;
        delete pOwn;
    }
}

CRect COleControlSite::WindowRect() const {
    CRect rect;
    ::GetWindowRect(m_hWnd, rect);
    ::MapWindowPoints(nullptr, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

// One that cannot have another size says so.
bool COleControlSite::TakesSize(SIZE size) {
    return m_rect.Size() == size || SUCCEEDED(SetExtent(size));
}

void COleControlSite::MoveWindow(int x, int y, int nWidth, int nHeight) {
    const AfxHold<COleControlSite> hold(this);
    ++m_nPlacing;
    const SIZE size = TakesSize({nWidth, nHeight}) ? SIZE{nWidth, nHeight} : SIZE(m_rect.Size());
    --m_nPlacing;
    SetPosRect(CRect(CPoint(x, y), size));
}

BOOL COleControlSite::SetPosRect(const RECT& rect) {
    constexpr int kMostNested = 2;  // one that asks for another place each time has had its turn
    if (m_nPlacing >= kMostNested) {
        return FALSE;
    }
    const AfxHold<COleControlSite> hold(this);
    m_rect = rect;
    ++m_nPlacing;
    if (const AfxComPtr<IOleInPlaceObject> pInPlace = m_pInPlaceObject) {
        pInPlace->SetObjectRects(&rect, &rect);
    }
    if (m_hWnd != nullptr && m_rect == rect && WindowRect() != m_rect) {
        ::SetWindowPos(m_hWnd, nullptr, rect.left, rect.top, m_rect.Width(), m_rect.Height(),
                       SWP_NOZORDER | SWP_NOACTIVATE);
    }
    --m_nPlacing;
    return TRUE;
}

void COleControlSite::OnWindowPosChanged() {
    if (m_bCreating || m_bEnding || m_nPlacing > 0 || m_hWnd == nullptr) {
        return;
    }
    const CRect rect = WindowRect();
    if (rect != m_rect) {
        MoveWindow(rect.left, rect.top, rect.Width(), rect.Height());
    }
}

// --- The end

BOOL COleControlSite::DestroyControl() {
    if (m_bEnding) {
        return FALSE;
    }
    const AfxHold<COleControlSite> hold(this);
    m_bEnding = true;
    COleControlContainer* const pContainer = m_pCtrlCont;
    const AfxHold<COleControlContainer> holdContainer(pContainer);
    if (pContainer->m_pSiteUIActive == this) {
        pContainer->m_pSiteUIActive = nullptr;
    }
    EndObject();
    // The wrapper may be gone with its window.
    if (m_pWndCtrl != nullptr) {
        m_pWndCtrl->m_pCtrlSite = nullptr;
        m_pWndCtrl = nullptr;
    }
    DropOwnWindow();
    m_pInterfaces->ForgetSite();
    m_pCtrlCont = nullptr;
    std::erase(pContainer->m_sites, this);
    return TRUE;
}

void COleControlSite::EndObject() {
    if (!m_pObject) {
        return;
    }
    DisconnectSinks();
    m_pActiveObject.Reset();
    if (m_pInPlaceObject) {
        m_pInPlaceObject->InPlaceDeactivate();
    }
    if (m_hWnd != nullptr && ::IsWindow(m_hWnd) && m_pWndCtrl != nullptr &&
        m_pWndCtrl->m_hWnd == m_hWnd) {
        ::DestroyWindow(m_hWnd);  // the control has forgotten it
    }
    m_hWnd = nullptr;
    m_pObject->Close(OLECLOSE_NOSAVE);
    m_pObject->SetClientSite(nullptr);
    m_pInPlaceObject.Reset();
    m_pDispatch.Reset();
    m_pControl.Reset();
    m_pObject.Reset();
    m_pStorage.Reset();
}

// --- Members

void COleControlSite::InvokeHelper(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                                   const BYTE* pbParamInfo, ...) {
    va_list argList;
    va_start(argList, pbParamInfo);
    const AfxListEnd end{argList};
    InvokeHelperV(dwDispID, wFlags, vtRet, pvRet, pbParamInfo, argList);
}

// A call holds a reference while it lasts: the control may come to its end in it.
LPDISPATCH COleControlSite::Members() const {
    if (!m_pDispatch) {
        AfxThrowOleException(DISP_E_MEMBERNOTFOUND);
    }
    return m_pDispatch.Get();
}

void COleControlSite::InvokeHelperV(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                                    const BYTE* pbParamInfo, va_list argList) {
    // Without a driver: programs ask for properties by the million.
    InvokeDispatch(Members(), dwDispID, wFlags, vtRet, pvRet, pbParamInfo, argList);
}

void COleControlSite::GetProperty(DISPID dwDispID, VARTYPE vtProp, void* pvProp) const {
    COleDispatchDriver(Members(), FALSE).GetProperty(dwDispID, vtProp, pvProp);
}

void COleControlSite::SetPropertyV(DISPID dwDispID, VARTYPE vtProp, va_list argList) {
    COleDispatchDriver(Members(), FALSE).SetPropertyV(dwDispID, vtProp, argList);
}

void COleControlSite::SetProperty(DISPID dwDispID, VARTYPE vtProp, ...) {
    va_list argList;
    va_start(argList, vtProp);
    const AfxListEnd end{argList};
    SetPropertyV(dwDispID, vtProp, argList);
}

BOOL COleControlSite::SafeSetProperty(DISPID dwDispID, VARTYPE vtProp, ...) {
    va_list argList;
    va_start(argList, vtProp);
    const AfxListEnd end{argList};
    try {
        SetPropertyV(dwDispID, vtProp, argList);
        return TRUE;
    } catch (CException* e) {
        e->Delete();
    } catch (const std::bad_alloc&) {
    }
    return FALSE;
}

// --- What stands for its window

void COleControlSite::SetWindowText(LPCTSTR lpszString) {
    const AfxHold<COleControlSite> hold(this);
    if (!SafeSetProperty(DISPID_CAPTION, VT_BSTR, lpszString) &&
        !SafeSetProperty(DISPID_TEXT, VT_BSTR, lpszString) && m_hWnd != nullptr) {
        ::SetWindowText(m_hWnd, lpszString);
    }
}

void COleControlSite::GetWindowText(CString& str) const {
    for (const DISPID dispid : {DISPID_CAPTION, DISPID_TEXT}) {
        try {
            GetProperty(dispid, VT_BSTR, &str);
            return;
        } catch (CException* e) {
            e->Delete();
        }
    }
    str.Empty();
    const int nLength = ::GetWindowTextLength(m_hWnd);
    ::GetWindowText(m_hWnd, str.GetBuffer(nLength), nLength + 1);
    str.ReleaseBuffer();
}

BOOL COleControlSite::EnableWindow(BOOL bEnable) {
    const AfxHold<COleControlSite> hold(this);
    const BOOL bWasDisabled = !IsWindowEnabled();
    SafeSetProperty(DISPID_ENABLED, VT_BOOL, bEnable);
    m_dwStyle = bEnable ? m_dwStyle & ~WS_DISABLED : m_dwStyle | WS_DISABLED;
    if (m_hWnd != nullptr) {
        ::EnableWindow(m_hWnd, bEnable);
    }
    return bWasDisabled;
}

BOOL COleControlSite::ShowWindow(int nCmdShow) {
    const AfxHold<COleControlSite> hold(this);
    const bool bWasVisible = (GetStyle() & WS_VISIBLE) != 0;
    const bool bShow = nCmdShow != SW_HIDE;
    m_dwStyle = bShow ? m_dwStyle | WS_VISIBLE : m_dwStyle & ~WS_VISIBLE;
    if (bShow != bWasVisible && m_hWnd != nullptr) {
        DoVerb(bShow ? OLEIVERB_SHOW : OLEIVERB_HIDE);
    }
    if (m_hWnd != nullptr) {
        ::ShowWindow(m_hWnd, nCmdShow);
    }
    return bWasVisible;
}

DWORD COleControlSite::GetStyle() const {
    return m_hWnd != nullptr ? static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE)) : m_dwStyle;
}

void COleControlSite::FreezeEvents(BOOL bFreeze) {
    if (const AfxComPtr<IOleControl> pControl = m_pControl) {
        pControl->FreezeEvents(bFreeze);
    }
}

BOOL COleControlSite::OnEvent(AFX_EVENT* pEvent) {
    const AfxHold<COleControlSite> hold(this);
    if (m_pWndCtrl != nullptr &&
        m_pWndCtrl->OnCmdMsg(AFX_REFLECTED_EVENT, static_cast<int>(CN_EVENT), pEvent, nullptr)) {
        return TRUE;
    }
    CWnd* const pParent = m_pCtrlCont != nullptr ? m_pCtrlCont->m_pWnd : nullptr;
    return pParent != nullptr &&
           pParent->OnCmdMsg(m_nID, static_cast<int>(CN_EVENT), pEvent, nullptr);
}
