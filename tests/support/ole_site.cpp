#include "support/ole_site.h"

namespace {

template <class I>
I* As(IUnknown* pObject) {
    I* p = nullptr;
    if (pObject != nullptr) {
        pObject->QueryInterface(__uuidof(I), reinterpret_cast<void**>(&p));
    }
    return p;
}

template <class I>
void Drop(I*& p) {
    if (I* pOld = std::exchange(p, nullptr)) {
        pOld->Release();
    }
}

}  // namespace

OleSite::OleSite(REFCLSID clsid, bool bInPlace)
    : m_bInPlace(bInPlace),
      m_hFrame(::CreateWindowW(L"STATIC", L"", WS_OVERLAPPEDWINDOW, 40, 40, 500, 400, nullptr,
                               nullptr, nullptr, nullptr)) {
    ::CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IOleObject,
                       reinterpret_cast<void**>(&m_pObject));
    if (m_pObject == nullptr) {
        return;
    }
    m_pDispatch = As<IDispatch>(m_pObject);
    m_pObject->SetClientSite(this);
    if (auto* pInit = As<IPersistStreamInit>(m_pObject)) {
        pInit->InitNew();
        pInit->Release();
    }
    if (auto* pPoints = As<IConnectionPointContainer>(m_pObject)) {
        pPoints->FindConnectionPoint(IID_IDispatch, &m_pPoint);
        pPoints->Release();
    }
    if (m_pPoint != nullptr) {
        m_pPoint->Advise(static_cast<IDispatch*>(this), &m_dwCookie);
    }
}

OleSite::~OleSite() {
    Close();
    LetGo();
    ::DestroyWindow(m_hFrame);
}

void OleSite::Close() {
    if (IOleObject* pObject = m_pObject) {
        pObject->AddRef();
        pObject->Close(OLECLOSE_NOSAVE);
        pObject->Release();
    }
}

void OleSite::LetGo() {
    if (m_pPoint != nullptr) {
        m_pPoint->Unadvise(m_dwCookie);
    }
    if (m_pObject != nullptr) {
        m_pObject->SetClientSite(nullptr);
    }
    Drop(m_pPoint);
    Drop(m_pDispatch);
    Drop(m_pObject);
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
    if (auto* pWindow = As<IOleWindow>(m_pObject)) {
        pWindow->GetWindow(&hWnd);
        pWindow->Release();
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
    VARIANT value = {};
    value.vt = VT_I4;
    value.lVal = n;
    return PutValue(id, value);
}

HRESULT OleSite::Put(DISPID id, const wchar_t* psz) {
    VARIANT value = {};
    value.vt = VT_BSTR;
    value.bstrVal = ::SysAllocString(psz);
    const HRESULT hr = PutValue(id, value);
    ::SysFreeString(value.bstrVal);
    return hr;
}

LONG OleSite::Number(DISPID id) {
    VARIANT value = {};
    DISPPARAMS params = {};
    m_pDispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &params, &value,
                        nullptr, nullptr);
    ::VariantChangeType(&value, &value, 0, VT_I4);
    return value.lVal;
}

std::wstring OleSite::Text(DISPID id) {
    VARIANT value = {};
    DISPPARAMS params = {};
    m_pDispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &params, &value,
                        nullptr, nullptr);
    const std::wstring str = value.vt == VT_BSTR && value.bstrVal != nullptr ? value.bstrVal : L"";
    ::VariantClear(&value);
    return str;
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
