#include "support/ole_site.h"

OleSite::OleSite(REFCLSID clsid, bool bInPlace)
    : m_bInPlace(bInPlace),
      m_hFrame(::CreateWindowW(L"STATIC", L"", WS_OVERLAPPEDWINDOW, 40, 40, 500, 400, nullptr,
                               nullptr, nullptr, nullptr)) {
    ::CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IOleObject, m_pObject.PutVoid());
    if (!m_pObject) {
        return;
    }
    m_pDispatch = m_pObject.As<IDispatch>();
    m_pObject->SetClientSite(this);
    if (const auto pInit = m_pObject.As<IPersistStreamInit>()) {
        pInit->InitNew();
    }
    if (const auto pPoints = m_pObject.As<IConnectionPointContainer>()) {
        pPoints->FindConnectionPoint(IID_IDispatch, m_pPoint.Put());
    }
    if (m_pPoint) {
        m_pPoint->Advise(static_cast<IDispatch*>(this), &m_dwCookie);
    }
}

OleSite::~OleSite() {
    Close();
    LetGo();
    ::DestroyWindow(m_hFrame);
}

void OleSite::Close() {
    if (const AfxComPtr<IOleObject> pObject = m_pObject) {
        pObject->Close(OLECLOSE_NOSAVE);
    }
}

void OleSite::LetGo() {
    if (m_pPoint) {
        m_pPoint->Unadvise(m_dwCookie);
    }
    if (m_pObject) {
        m_pObject->SetClientSite(nullptr);
    }
    m_pPoint.Reset();
    m_pDispatch.Reset();
    m_pObject.Reset();
}

HRESULT OleSite::Activate(const RECT& rect, LONG nVerb) {
    m_rect = rect;
    if (!m_bHidden) {
        ::ShowWindow(m_hFrame, SW_SHOWNA);
    }
    return m_pObject->DoVerb(nVerb, nullptr, this, 0, m_hFrame, &rect);
}

HWND OleSite::Window() const {
    HWND hWnd = nullptr;
    if (const auto pWindow = m_pObject.As<IOleWindow>()) {
        pWindow->GetWindow(&hWnd);
    }
    return hWnd;
}

HRESULT OleSite::PutValue(DISPID id, VARIANT value) {
    DISPID idNamed = DISPID_PROPERTYPUT;
    DISPPARAMS params = {&value, &idNamed, 1, 1};
    return m_pDispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &params,
                               nullptr, nullptr, nullptr);
}

HRESULT OleSite::Put(DISPID id, LONG n) {
    return PutValue(id, COleVariant(n));
}

HRESULT OleSite::Put(DISPID id, const wchar_t* psz) {
    VARIANT value = {};
    value.vt = VT_BSTR;
    value.bstrVal = ::SysAllocString(psz);
    const HRESULT hr = PutValue(id, value);
    ::SysFreeString(value.bstrVal);
    return hr;
}

COleVariant OleSite::Value(DISPID id) {
    COleVariant value;
    DISPPARAMS params = {};
    m_pDispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &params, &value,
                        nullptr, nullptr);
    return value;
}

LONG OleSite::Number(DISPID id) {
    COleVariant value = Value(id);
    ::VariantChangeType(&value, &value, 0, VT_I4);
    return value.lVal;
}

std::wstring OleSite::Text(DISPID id) {
    const COleVariant value = Value(id);
    return value.vt == VT_BSTR && value.bstrVal != nullptr ? value.bstrVal : L"";
}

STDMETHODIMP OleSite::QueryInterface(REFIID iid, void** ppv) {
    *ppv = nullptr;
    if (iid == IID_IUnknown || iid == IID_IOleClientSite) {
        *ppv = static_cast<IOleClientSite*>(this);
    } else if (m_bInPlace && (iid == IID_IOleWindow || iid == IID_IOleInPlaceSite)) {
        *ppv = static_cast<IOleInPlaceSite*>(this);
    } else if (m_bInPlace && iid == IID_IDispatch) {
        *ppv = static_cast<IDispatch*>(this);
    }
    if (*ppv == nullptr) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP OleSite::GetContainer(IOleContainer** ppContainer) {
    *ppContainer = nullptr;
    return E_NOINTERFACE;
}

STDMETHODIMP OleSite::GetWindow(HWND* phWnd) {
    *phWnd = m_hFrame;
    return S_OK;
}

STDMETHODIMP OleSite::GetWindowContext(IOleInPlaceFrame** ppFrame, IOleInPlaceUIWindow** ppDocument,
                                       LPRECT pPos, LPRECT pClip, LPOLEINPLACEFRAMEINFO) {
    *ppFrame = nullptr;
    *ppDocument = nullptr;
    *pPos = *pClip = m_rect;
    return S_OK;
}

STDMETHODIMP OleSite::Invoke(DISPID id, REFIID, LCID, WORD wFlags, DISPPARAMS* pParams, VARIANT*,
                             EXCEPINFO*, UINT*) {
    if (wFlags == DISPATCH_PROPERTYGET) {
        return DISP_E_MEMBERNOTFOUND;
    }
    try {
        m_events.push_back(id);
        if (m_onEvent) {
            m_onEvent(id, *pParams);
        }
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
    return S_OK;
}
