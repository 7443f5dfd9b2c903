#include "support/fake_control.h"

#include <algorithm>

const IID IID_FakeEvents = {
    0x6F2B7A10, 0x41C7, 0x4E0B, {0x9C, 0x55, 0x0A, 0x1D, 0x7E, 0x22, 0x83, 0x01}};
const CLSID CLSID_FakeControl = {
    0x6F2B7A11, 0x41C7, 0x4E0B, {0x9C, 0x55, 0x0A, 0x1D, 0x7E, 0x22, 0x83, 0x01}};

namespace {

constexpr char kWindowClass[] = "QvFakeControl";
constexpr char kControlProperty[] = "FakeControl";

LRESULT CALLBACK FakeWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    auto* const pClass = static_cast<FakeControlClass*>(::GetPropA(hWnd, kControlProperty));
    if (pClass != nullptr && nMsg >= OCM__BASE && nMsg < OCM__BASE + WM_USER) {
        pClass->Step("reflected " + std::to_string(nMsg - OCM__BASE));
    }
    if (nMsg == WM_LBUTTONDOWN) {
        ::SetFocus(hWnd);
    }
    return ::DefWindowProcA(hWnd, nMsg, wParam, lParam);
}

}  // namespace

// --- The class

class FakeControlClass::Factory final : public AfxComObject<IClassFactory2> {
public:
    explicit Factory(FakeControlClass& cls) : m_class(cls) {}

    STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override {
        const bool bKnown = riid == IID_IUnknown || riid == IID_IClassFactory ||
                            (riid == IID_IClassFactory2 && !m_class.m_strLicence.empty());
        *ppv = bKnown ? this : nullptr;
        return bKnown ? (AddRef(), S_OK) : E_NOINTERFACE;
    }
    STDMETHODIMP CreateInstance(IUnknown*, REFIID riid, void** ppv) override {
        *ppv = nullptr;
        return m_class.m_strLicence.empty() ? Make(riid, ppv) : CLASS_E_NOTLICENSED;
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }
    STDMETHODIMP GetLicInfo(LICINFO* pInfo) override {
        pInfo->fLicVerified = FALSE;
        return S_OK;
    }
    STDMETHODIMP RequestLicKey(DWORD, BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP CreateInstanceLic(IUnknown*, IUnknown*, REFIID riid, BSTR bstrKey,
                                   void** ppv) override {
        *ppv = nullptr;
        return bstrKey == m_class.m_strLicence ? Make(riid, ppv) : CLASS_E_NOTLICENSED;
    }

private:
    HRESULT Make(REFIID riid, void** ppv) {
        HRESULT hr = m_class.Step("create");
        if (SUCCEEDED(hr)) {
            auto* const pControl = new FakeControl(m_class);
            hr = pControl->QueryInterface(riid, ppv);
            pControl->Release();
        }
        return hr;
    }
    FakeControlClass& m_class;
};

FakeControlClass::FakeControlClass(REFCLSID clsid) {
    WNDCLASSA wndcls = {};
    wndcls.lpfnWndProc = FakeWndProc;
    wndcls.hInstance = ::GetModuleHandle(nullptr);
    wndcls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_HIGHLIGHT + 1);
    wndcls.lpszClassName = kWindowClass;
    ::RegisterClassA(&wndcls);
    *m_pFactory.Put() = new Factory(*this);
    ::CoRegisterClassObject(clsid, m_pFactory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                            &m_dwRegistered);
}

FakeControlClass::~FakeControlClass() {
    ::CoRevokeClassObject(m_dwRegistered);
}

HRESULT FakeControlClass::Step(const std::string& step) {
    m_steps.push_back(step);
    return m_hook ? m_hook(step) : S_OK;
}

int FakeControlClass::Count(const std::string& step) const {
    return static_cast<int>(std::ranges::count(m_steps, step));
}

// --- Its connection points

class FakeControl::Point final : public IConnectionPoint {
public:
    Point(FakeControl& control, REFIID iid, void** ppSink)
        : m_control(control), m_iid(iid), m_ppSink(ppSink) {}

    STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override {
        const bool bKnown = riid == IID_IUnknown || riid == IID_IConnectionPoint;
        *ppv = bKnown ? this : nullptr;
        return bKnown ? (AddRef(), S_OK) : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return m_control.AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return m_control.Release(); }
    STDMETHODIMP GetConnectionInterface(IID* piid) override {
        *piid = m_iid;
        return S_OK;
    }
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer**) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP Advise(IUnknown* pSink, DWORD* pdwCookie) override {
        const HRESULT hr = m_control.m_class.Step("advise");
        *pdwCookie = 1;
        return FAILED(hr) ? hr : pSink->QueryInterface(m_iid, m_ppSink);
    }
    STDMETHODIMP Unadvise(DWORD) override {
        static_cast<IUnknown*>(std::exchange(*m_ppSink, nullptr))->Release();
        return S_OK;
    }
    STDMETHODIMP EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

    FakeControl& m_control;
    const IID m_iid;
    void** const m_ppSink;
};

// --- The control

FakeControl::FakeControl(FakeControlClass& cls) : m_class(cls) {
    ++m_class.m_nAlive;
    m_class.m_control = this;
    m_points.push_back(
        std::make_unique<Point>(*this, IID_IPropertyNotifySink, m_pPropertySink.PutVoid()));
    m_points.push_back(std::make_unique<Point>(*this, IID_FakeEvents, m_pEventSink.PutVoid()));
}

FakeControl::~FakeControl() {
    DropWindow();
    if (m_hAccel != nullptr) {
        ::DestroyAcceleratorTable(m_hAccel);
    }
    --m_class.m_nAlive;
    if (m_class.m_control == this) {
        m_class.m_control = nullptr;
    }
}

HRESULT FakeControl::Fire(DISPID id, std::vector<COleVariant> args) {
    const AfxComPtr<FakeControl> stay(this);
    std::reverse(args.begin(), args.end());
    DISPPARAMS params = {args.data(), nullptr, static_cast<UINT>(args.size()), 0};
    const AfxComPtr<IDispatch> pSink = m_pEventSink;
    EXCEPINFO info = {};
    const HRESULT hr =
        pSink ? pSink->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &params, nullptr, &info, nullptr)
              : S_OK;
    ::SysFreeString(info.bstrDescription);
    ::SysFreeString(info.bstrSource);
    ::SysFreeString(info.bstrHelpFile);
    return hr;
}

COleVariant FakeControl::Ambient(DISPID id) {
    COleVariant value;
    DISPPARAMS none = {};
    if (const auto pAmbient = SiteAs<IDispatch>()) {
        pAmbient->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr);
    }
    return value;
}

STDMETHODIMP FakeControl::QueryInterface(REFIID riid, void** ppv) {
    const std::pair<const IID&, void*> known[] = {
        {IID_IUnknown, static_cast<IOleObject*>(this)},
        {IID_IOleObject, static_cast<IOleObject*>(this)},
        {IID_IOleWindow, static_cast<IOleInPlaceObject*>(this)},
        {IID_IOleInPlaceObject, static_cast<IOleInPlaceObject*>(this)},
        {IID_IOleInPlaceActiveObject, static_cast<IOleInPlaceActiveObject*>(this)},
        {IID_IOleControl, static_cast<IOleControl*>(this)},
        {m_class.m_bStorage ? IID_NULL : IID_IPersistStreamInit,
         static_cast<IPersistStreamInit*>(this)},
        {m_class.m_bStorage ? IID_IPersistStorage : IID_NULL, static_cast<IPersistStorage*>(this)},
        {IID_IDispatch, static_cast<IDispatch*>(this)},
        {IID_IConnectionPointContainer, static_cast<IConnectionPointContainer*>(this)},
        {IID_IProvideClassInfo2, static_cast<IProvideClassInfo2*>(this)},
    };
    *ppv = nullptr;
    for (const auto& [iid, pv] : known) {
        if (riid == iid && riid != IID_NULL) {
            *ppv = pv;
            AddRef();
            return S_OK;
        }
    }
    return E_NOINTERFACE;
}

STDMETHODIMP FakeControl::SetClientSite(IOleClientSite* pSite) {
    const HRESULT hr = m_class.Step(pSite != nullptr ? "site" : "no site");
    m_pSite = SUCCEEDED(hr) ? AfxComPtr<IOleClientSite>(pSite) : m_pSite;
    return hr;
}

STDMETHODIMP FakeControl::Close(DWORD) {
    const AfxComPtr<FakeControl> stay(this);
    const HRESULT hr = m_class.Step("close");
    DropWindow();
    return hr;
}

STDMETHODIMP FakeControl::DoVerb(LONG nVerb, LPMSG, IOleClientSite*, LONG, HWND hWndParent,
                                 LPCRECT prc) {
    const AfxComPtr<FakeControl> stay(this);
    HRESULT hr = m_class.Step("verb " + std::to_string(nVerb));
    if (FAILED(hr)) {
        return hr;
    }
    if (nVerb == OLEIVERB_HIDE) {
        ::ShowWindow(m_hWnd, SW_HIDE);
        return S_OK;
    }
    hr = ShowAt(hWndParent, prc);
    if (SUCCEEDED(hr) && nVerb == OLEIVERB_UIACTIVATE && !m_bUIActive) {
        m_bUIActive = true;
        if (const auto pSite = SiteAs<IOleInPlaceSite>()) {
            pSite->OnUIActivate();
        }
        if (m_hWnd != nullptr && ::GetFocus() != m_hWnd) {
            ::SetFocus(m_hWnd);
        }
    }
    return hr;
}

HRESULT FakeControl::ShowAt(HWND hWndParent, LPCRECT prc) {
    if (m_hWnd == nullptr) {
        const HRESULT hr = m_class.Step("window");
        if (FAILED(hr)) {
            return hr;
        }
        m_hWnd = ::CreateWindowA(kWindowClass, "", WS_CHILD | WS_CLIPSIBLINGS, prc->left, prc->top,
                                 prc->right - prc->left, prc->bottom - prc->top, hWndParent,
                                 nullptr, nullptr, nullptr);
        if (m_hWnd == nullptr) {
            return E_FAIL;
        }
        ::SetPropA(m_hWnd, kControlProperty, &m_class);
        if (const auto pSite = SiteAs<IOleInPlaceSite>()) {
            pSite->OnInPlaceActivate();
        }
    }
    ::ShowWindow(m_hWnd, SW_SHOWNA);
    return S_OK;
}

void FakeControl::DropWindow() {
    if (const HWND hWnd = std::exchange(m_hWnd, nullptr)) {
        ::RemovePropA(hWnd, kControlProperty);
        ::DestroyWindow(hWnd);
    }
}

STDMETHODIMP FakeControl::SetExtent(DWORD, SIZEL* pSize) {
    const HRESULT hr =
        m_class.Step("extent " + std::to_string(pSize->cx) + " " + std::to_string(pSize->cy));
    if (SUCCEEDED(hr)) {
        m_class.m_sizeHimetric = *pSize;
    }
    return hr;
}

STDMETHODIMP FakeControl::GetWindow(HWND* phWnd) {
    *phWnd = m_hWnd;
    return m_hWnd != nullptr ? m_class.Step("get window") : E_FAIL;
}

STDMETHODIMP FakeControl::InPlaceDeactivate() {
    const AfxComPtr<FakeControl> stay(this);
    const HRESULT hr = m_class.Step("deactivate");
    DropWindow();
    return hr;
}

STDMETHODIMP FakeControl::UIDeactivate() {
    m_bUIActive = false;
    const HRESULT hr = m_class.Step("ui deactivate");
    if (const auto pSite = SiteAs<IOleInPlaceSite>()) {
        pSite->OnUIDeactivate(FALSE);
    }
    return hr;
}

STDMETHODIMP FakeControl::SetObjectRects(LPCRECT prcPos, LPCRECT) {
    const AfxComPtr<FakeControl> stay(this);
    const CRect rc(prcPos);
    const HRESULT hr =
        m_class.Step("rect " + std::to_string(rc.left) + " " + std::to_string(rc.top) + " " +
                     std::to_string(rc.Width()) + " " + std::to_string(rc.Height()));
    if (SUCCEEDED(hr)) {
        ::MoveWindow(m_hWnd, rc.left, rc.top, rc.Width(), rc.Height(), TRUE);
    }
    return hr;
}

STDMETHODIMP FakeControl::TranslateAccelerator(LPMSG pMsg) {
    const HRESULT hr = m_class.Step("translate " + std::to_string(pMsg->wParam));
    return FAILED(hr) ? hr : S_FALSE;
}

STDMETHODIMP FakeControl::GetControlInfo(CONTROLINFO* pInfo) {
    if (m_class.m_mnemonics.empty() && m_class.m_dwControlFlags == 0) {
        return E_NOTIMPL;
    }
    if (m_hAccel == nullptr && !m_class.m_mnemonics.empty()) {
        m_hAccel = ::CreateAcceleratorTable(m_class.m_mnemonics.data(),
                                            static_cast<int>(m_class.m_mnemonics.size()));
    }
    pInfo->hAccel = m_hAccel;
    pInfo->cAccel = static_cast<USHORT>(m_class.m_mnemonics.size());
    pInfo->dwFlags = m_class.m_dwControlFlags;
    return S_OK;
}

STDMETHODIMP FakeControl::Load(IStream* pStream) {
    char bytes[64];
    ULONG nRead = 0;
    const HRESULT hr = m_class.Step("load");
    if (SUCCEEDED(hr)) {
        pStream->Read(bytes, sizeof bytes, &nRead);
        m_strState.assign(bytes, nRead);
    }
    return hr;
}

STDMETHODIMP FakeControl::Load(IStorage* pStorage) {
    AfxComPtr<IStream> pStream;
    const HRESULT hr =
        pStorage->OpenStream(L"State", nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, pStream.Put());
    return FAILED(hr) ? hr : Load(pStream.Get());
}

STDMETHODIMP FakeControl::Invoke(DISPID id, REFIID, LCID, WORD wFlags, DISPPARAMS* pParams,
                                 VARIANT* pvarResult, EXCEPINFO*, UINT*) {
    const AfxComPtr<FakeControl> stay(this);
    const DispatchCall call(id, wFlags, *pParams);
    m_class.m_calls.push_back(call);
    const HRESULT hr = m_class.Step("invoke " + std::to_string(id));
    if (FAILED(hr)) {
        return hr;
    }
    const auto it = m_class.m_values.find(id);
    if (it == m_class.m_values.end()) {
        return m_class.m_bAnyMember ? S_OK : DISP_E_MEMBERNOTFOUND;
    }
    if (call.IsPut()) {
        it->second = call.args.back();
    } else if (pvarResult != nullptr) {
        ::VariantCopy(pvarResult, &it->second);
    }
    return S_OK;
}

STDMETHODIMP FakeControl::FindConnectionPoint(REFIID riid, IConnectionPoint** ppPoint) {
    *ppPoint = nullptr;
    for (const auto& pPoint : m_points) {
        if (pPoint->m_iid == riid) {
            *ppPoint = pPoint.get();
            (*ppPoint)->AddRef();
            return S_OK;
        }
    }
    return CONNECT_E_NOCONNECTION;
}
