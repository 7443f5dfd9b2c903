// The control as an object in a container's document: site, extent, activation, drawing.

#include "ocx/control.h"

#include "ocx/class_factory.h"

#include <cstring>
#include <cwctype>

namespace ocx {

STDMETHODIMP Control::SetClientSite(IOleClientSite* pSite) {
    const Hold hold(*this);
    m_site = Ref<IOleClientSite>(pSite);
    m_ambient = Ref<IDispatch>::Of(pSite);
    if (pSite != nullptr) {
        return Guarded([this] {
            if (!m_font.IsSet()) {
                m_font.Reset();
                OnFontChanged();
            }
            OnAmbientChanged(DISPID_UNKNOWN);
            return S_OK;
        });
    }
    return S_OK;
}

STDMETHODIMP Control::GetClientSite(IOleClientSite** ppSite) {
    if (ppSite == nullptr) {
        return E_POINTER;
    }
    *ppSite = Ref<IOleClientSite>(m_site).Detach();
    return S_OK;
}

STDMETHODIMP Control::SetHostNames(LPCOLESTR, LPCOLESTR) {
    return S_OK;
}

STDMETHODIMP Control::Close(DWORD dwSaveOption) {
    const Hold hold(*this);
    if (dwSaveOption != OLECLOSE_NOSAVE && m_bDirty && m_site) {
        Ref<IOleClientSite>(m_site)->SaveObject();
    }
    InPlaceDeactivate();
    if (const Ref<IOleAdviseHolder> holder = m_adviseHolder) {
        holder->SendOnClose();
    }
    return S_OK;
}

STDMETHODIMP Control::SetMoniker(DWORD, IMoniker*) {
    return E_NOTIMPL;
}

STDMETHODIMP Control::GetMoniker(DWORD dwAssign, DWORD dwWhich, IMoniker** ppMoniker) {
    if (ppMoniker == nullptr) {
        return E_POINTER;
    }
    *ppMoniker = nullptr;
    const Ref<IOleClientSite> site = m_site;
    return site ? site->GetMoniker(dwAssign, dwWhich, ppMoniker) : E_UNEXPECTED;
}

STDMETHODIMP Control::InitFromData(IDataObject*, BOOL, DWORD) {
    return E_NOTIMPL;
}

STDMETHODIMP Control::GetClipboardData(DWORD, IDataObject** ppData) {
    if (ppData != nullptr) {
        *ppData = nullptr;
    }
    return E_NOTIMPL;
}

STDMETHODIMP Control::DoVerb(LONG nVerb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT pRect) {
    const Hold hold(*this);
    return Guarded([&] {
        switch (nVerb) {
            case OLEIVERB_SHOW:  // what is only hidden comes back without the focus
                return ActivateInPlace(pRect, m_hWnd == nullptr);
            case OLEIVERB_PRIMARY:
            case OLEIVERB_UIACTIVATE:
                return ActivateInPlace(pRect, true);
            case OLEIVERB_INPLACEACTIVATE:
                return ActivateInPlace(pRect, false);
            case OLEIVERB_HIDE:
                UIDeactivate();
                if (m_hWnd != nullptr) {
                    ::ShowWindow(m_hWnd, SW_HIDE);
                }
                return S_OK;
            default:
                return nVerb > 0 ? OLEOBJ_S_INVALIDVERB : E_NOTIMPL;
        }
    });
}

HRESULT Control::ActivateInPlace(LPCRECT pRect, bool bWithUI) {
    if (!m_site) {
        return E_UNEXPECTED;
    }
    if (m_hWnd == nullptr) {
        const auto site = Ref<IOleInPlaceSite>::Of(m_site.Get());
        if (!site || site->CanInPlaceActivate() != S_OK) {
            return E_FAIL;
        }
        InPlaceDeactivate();  // from a window that somebody destroyed
        Check(site->OnInPlaceActivate());
        m_inPlaceSite = site;
        HWND hParent = nullptr;
        RECT rcPos = pRect != nullptr ? *pRect : RECT{};
        RECT rcClip = rcPos;
        OLEINPLACEFRAMEINFO info = {};
        info.cb = sizeof info;
        HRESULT hr = site->GetWindow(&hParent);
        if (SUCCEEDED(hr)) {
            hr = site->GetWindowContext(m_frame.Out(), m_document.Out(), &rcPos, &rcClip, &info);
        }
        if (FAILED(hr) || !MakeWindow(hParent, rcPos)) {
            InPlaceDeactivate();
            return FAILED(hr) ? hr : E_FAIL;
        }
        SetObjectRects(&rcPos, &rcClip);
        if (const Ref<IOleClientSite> container = m_site) {
            container->ShowObject();
        }
    }
    if (m_hWnd != nullptr) {
        ::ShowWindow(m_hWnd, SW_SHOWNA);
    }
    if (bWithUI && m_hWnd != nullptr) {
        ActivateUI();
        if (m_hWnd != nullptr && !HasFocus()) {
            ::SetFocus(m_hWnd);
        }
    }
    return S_OK;
}

void Control::ActivateUI() {
    const Ref<IOleInPlaceSite> site = m_inPlaceSite;
    if (m_bUIActive || !site) {
        return;
    }
    m_bUIActive = true;
    if (FAILED(site->OnUIActivate())) {
        m_bUIActive = false;
        return;
    }
    // The container may have closed the control in there, and at each of the following.
    const Ref<IOleInPlaceFrame> frame = m_frame;
    const Ref<IOleInPlaceUIWindow> document = m_document;
    if (frame && m_bUIActive) {
        frame->SetActiveObject(this, m_kind.pszName);
        frame->SetBorderSpace(nullptr);
    }
    if (document && m_bUIActive) {
        document->SetActiveObject(this, m_kind.pszName);
        document->SetBorderSpace(nullptr);
    }
}

STDMETHODIMP Control::InPlaceDeactivate() {
    const Hold hold(*this);
    UIDeactivate();
    DropWindow();
    m_frame.Release();
    m_document.Release();
    if (const Ref<IOleInPlaceSite> site = std::exchange(m_inPlaceSite, {})) {
        site->OnInPlaceDeactivate();
    }
    return S_OK;
}

STDMETHODIMP Control::UIDeactivate() {
    if (!m_bUIActive) {
        return S_OK;
    }
    const Hold hold(*this);
    m_bUIActive = false;
    if (const Ref<IOleInPlaceFrame> frame = m_frame) {
        frame->SetActiveObject(nullptr, nullptr);
    }
    if (const Ref<IOleInPlaceUIWindow> document = m_document) {
        document->SetActiveObject(nullptr, nullptr);
    }
    if (const Ref<IOleInPlaceSite> site = m_inPlaceSite) {
        site->OnUIDeactivate(FALSE);
    }
    return S_OK;
}

STDMETHODIMP Control::EnumVerbs(IEnumOLEVERB** ppEnum) {
    if (ppEnum != nullptr) {
        *ppEnum = nullptr;
    }
    return OLEOBJ_E_NOVERBS;
}

STDMETHODIMP Control::Update() {
    return S_OK;
}

STDMETHODIMP Control::IsUpToDate() {
    return S_OK;
}

STDMETHODIMP Control::GetUserClassID(CLSID* pClsid) {
    return GetClassID(pClsid);
}

STDMETHODIMP Control::GetUserType(DWORD, LPOLESTR* ppszType) {
    if (ppszType == nullptr) {
        return E_POINTER;
    }
    const size_t nBytes = (std::wcslen(m_kind.pszName) + 1) * sizeof(wchar_t);
    *ppszType = static_cast<LPOLESTR>(::CoTaskMemAlloc(nBytes));
    if (*ppszType == nullptr) {
        return E_OUTOFMEMORY;
    }
    std::memcpy(*ppszType, m_kind.pszName, nBytes);
    return S_OK;
}

STDMETHODIMP Control::SetExtent(DWORD dwAspect, SIZEL* pSize) {
    if (pSize == nullptr) {
        return E_POINTER;
    }
    if (dwAspect != DVASPECT_CONTENT) {
        return DV_E_DVASPECT;
    }
    if (pSize->cx < 0 || pSize->cy < 0) {
        return E_INVALIDARG;
    }
    const Hold hold(*this);
    m_extent = *pSize;
    SetDirty();
    ViewChanged();
    return S_OK;
}

STDMETHODIMP Control::GetExtent(DWORD dwAspect, SIZEL* pSize) {
    if (pSize == nullptr) {
        return E_POINTER;
    }
    if (dwAspect != DVASPECT_CONTENT) {
        return DV_E_DVASPECT;
    }
    *pSize = m_extent;
    return S_OK;
}

STDMETHODIMP Control::GetExtent(DWORD dwAspect, LONG, DVTARGETDEVICE*, SIZEL* pSize) {
    return GetExtent(dwAspect, pSize);
}

STDMETHODIMP Control::Advise(IAdviseSink* pSink, DWORD* pdwConnection) {
    if (!m_adviseHolder) {
        const HRESULT hr = ::CreateOleAdviseHolder(m_adviseHolder.Out());
        if (FAILED(hr)) {
            return hr;
        }
    }
    return m_adviseHolder->Advise(pSink, pdwConnection);
}

STDMETHODIMP Control::Unadvise(DWORD dwConnection) {
    return m_adviseHolder ? m_adviseHolder->Unadvise(dwConnection) : OLE_E_NOCONNECTION;
}

STDMETHODIMP Control::EnumAdvise(IEnumSTATDATA** ppEnum) {
    if (ppEnum == nullptr) {
        return E_POINTER;
    }
    *ppEnum = nullptr;
    return m_adviseHolder ? m_adviseHolder->EnumAdvise(ppEnum) : S_OK;
}

STDMETHODIMP Control::GetMiscStatus(DWORD dwAspect, DWORD* pdwStatus) {
    if (pdwStatus == nullptr) {
        return E_POINTER;
    }
    *pdwStatus = dwAspect == DVASPECT_CONTENT ? kMiscStatus : 0;
    return S_OK;
}

STDMETHODIMP Control::SetColorScheme(LOGPALETTE*) {
    return E_NOTIMPL;
}

STDMETHODIMP Control::ContextSensitiveHelp(BOOL) {
    return E_NOTIMPL;
}

STDMETHODIMP Control::SetObjectRects(LPCRECT pPos, LPCRECT pClip) {
    if (pPos == nullptr) {
        return E_POINTER;
    }
    if (m_hWnd == nullptr) {
        return E_UNEXPECTED;
    }
    const Hold hold(*this);
    // What the clip rectangle leaves of the window, or all of it.
    RECT rcVisible;
    Owned<HRGN> region;
    if (pClip != nullptr && ::IntersectRect(&rcVisible, pPos, pClip) &&
        !::EqualRect(&rcVisible, pPos)) {
        ::OffsetRect(&rcVisible, -pPos->left, -pPos->top);
        region = Owned<HRGN>(::CreateRectRgnIndirect(&rcVisible));
    }
    if (region || m_bClipped) {
        m_bClipped = static_cast<bool>(region);
        ::SetWindowRgn(m_hWnd, region.Detach(), TRUE);
    }
    ::SetWindowPos(m_hWnd, nullptr, pPos->left, pPos->top, pPos->right - pPos->left,
                   pPos->bottom - pPos->top, SWP_NOZORDER | SWP_NOACTIVATE);
    return S_OK;
}

STDMETHODIMP Control::ReactivateAndUndo() {
    return INPLACE_E_NOTUNDOABLE;
}

STDMETHODIMP Control::TranslateAccelerator(LPMSG pMsg) {
    if (pMsg == nullptr) {
        return E_POINTER;
    }
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST) {
        return S_FALSE;
    }
    const Hold hold(*this);
    return Guarded([&] {
        m_bKeyOffered = false;
        if (WantsKey(*pMsg)) {
            m_bTranslating = true;
            ::TranslateMessage(pMsg);
            ::DispatchMessageW(pMsg);
            m_bTranslating = false;
            if (!m_bKeyOffered) {
                return S_OK;
            }
        }
        // Bits as ShiftState gives them.
        const auto controlSite = Ref<IOleControlSite>::Of(m_site.Get());
        return controlSite ? controlSite->TranslateAccelerator(pMsg, ShiftState()) : S_FALSE;
    });
}

void Control::OfferKeyToSite(WPARAM vk) {
    if (m_bTranslating) {
        m_bKeyOffered = true;  // by the answer to the container that asked
        return;
    }
    MSG msg = {};
    msg.hwnd = m_hWnd;
    msg.message = WM_KEYDOWN;
    msg.wParam = vk;
    if (const auto controlSite = Ref<IOleControlSite>::Of(m_site.Get())) {
        controlSite->TranslateAccelerator(&msg, ShiftState());
    }
}

void Control::TellMnemonics() {
    if (const auto controlSite = Ref<IOleControlSite>::Of(m_site.Get())) {
        controlSite->OnControlInfoChanged();
    }
}

STDMETHODIMP Control::OnFrameWindowActivate(BOOL) {
    return S_OK;
}

STDMETHODIMP Control::OnDocWindowActivate(BOOL) {
    return S_OK;
}

STDMETHODIMP Control::ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) {
    return S_OK;
}

STDMETHODIMP Control::EnableModeless(BOOL) {
    return S_OK;
}

/// Keys that act as a mnemonic, with the menu key down; each in both cases. The table stays the
/// control's, and is good until the next call.
STDMETHODIMP Control::GetControlInfo(CONTROLINFO* pInfo) {
    if (pInfo == nullptr) {
        return E_POINTER;
    }
    return Guarded([&] {
        const ULONG cb = pInfo->cb;
        *pInfo = {};
        pInfo->cb = cb;
        const std::wstring characters = Mnemonics();
        if (characters.empty()) {
            return S_OK;
        }
        std::vector<ACCEL> keys;
        for (const wchar_t ch : characters) {
            keys.push_back({FALT, static_cast<WORD>(std::towupper(ch)), 0});
            keys.push_back({FALT, static_cast<WORD>(std::towlower(ch)), 0});
        }
        m_accelerators.reset(::CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size())));
        pInfo->hAccel = m_accelerators.get();
        if (pInfo->hAccel == nullptr) {
            return E_OUTOFMEMORY;
        }
        pInfo->cAccel = static_cast<USHORT>(keys.size());
        return S_OK;
    });
}

STDMETHODIMP Control::OnMnemonic(MSG* pMsg) {
    if (pMsg == nullptr) {
        return E_POINTER;
    }
    const Hold hold(*this);
    return Guarded([&] {
        OnMnemonicKey(static_cast<wchar_t>(pMsg->wParam));
        return S_OK;
    });
}

STDMETHODIMP Control::OnAmbientPropertyChange(DISPID id) {
    const Hold hold(*this);
    return Guarded([&] {
        if ((id == DISPID_AMBIENT_FONT || id == DISPID_UNKNOWN) && !m_font.IsSet()) {
            m_font.Reset();
            OnFontChanged();
        }
        OnAmbientChanged(id);
        return S_OK;
    });
}

STDMETHODIMP Control::FreezeEvents(BOOL bFreeze) {
    m_nFrozen = std::max(m_nFrozen + (bFreeze ? 1 : -1), 0);
    return S_OK;
}

/// In the control's pixels, whatever the units of the context that is drawn on.
STDMETHODIMP Control::Draw(DWORD dwAspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC hDC,
                           LPCRECTL pBounds, LPCRECTL, BOOL(STDMETHODCALLTYPE*)(ULONG_PTR),
                           ULONG_PTR) {
    if (dwAspect != DVASPECT_CONTENT) {
        return DV_E_DVASPECT;
    }
    if (hDC == nullptr || pBounds == nullptr) {
        return E_INVALIDARG;
    }
    const Hold hold(*this);
    return Guarded([&] {
        const SavedDC saved(hDC);
        const RECT rect = ClientRect();
        POINT corners[] = {{pBounds->left, pBounds->top}, {pBounds->right, pBounds->bottom}};
        ::LPtoDP(hDC, corners, 2);
        ::SetMapMode(hDC, MM_ANISOTROPIC);
        ::SetWindowOrgEx(hDC, 0, 0, nullptr);
        ::SetWindowExtEx(hDC, std::max(rect.right, 1L), std::max(rect.bottom, 1L), nullptr);
        ::SetViewportOrgEx(hDC, corners[0].x, corners[0].y, nullptr);
        ::SetViewportExtEx(hDC, corners[1].x - corners[0].x, corners[1].y - corners[0].y, nullptr);
        ::IntersectClipRect(hDC, 0, 0, rect.right, rect.bottom);
        DrawControl(hDC, rect);
        return S_OK;
    });
}

STDMETHODIMP Control::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** ppColors) {
    if (ppColors != nullptr) {
        *ppColors = nullptr;
    }
    return E_NOTIMPL;
}

STDMETHODIMP Control::Freeze(DWORD, LONG, void*, DWORD*) {
    return E_NOTIMPL;
}

STDMETHODIMP Control::Unfreeze(DWORD) {
    return E_NOTIMPL;
}

STDMETHODIMP Control::SetAdvise(DWORD dwAspects, DWORD dwFlags, IAdviseSink* pSink) {
    m_dwViewAspects = dwAspects;
    m_dwViewFlags = dwFlags;
    m_viewSink = Ref<IAdviseSink>(pSink);
    if ((dwFlags & ADVF_PRIMEFIRST) != 0) {
        ViewChanged();
    }
    return S_OK;
}

STDMETHODIMP Control::GetAdvise(DWORD* pdwAspects, DWORD* pdwFlags, IAdviseSink** ppSink) {
    if (pdwAspects != nullptr) {
        *pdwAspects = m_dwViewAspects;
    }
    if (pdwFlags != nullptr) {
        *pdwFlags = m_dwViewFlags;
    }
    if (ppSink != nullptr) {
        *ppSink = Ref<IAdviseSink>(m_viewSink).Detach();
    }
    return S_OK;
}

void Control::ViewChanged() {
    const Ref<IAdviseSink> sink = m_viewSink;
    if (!sink || (m_dwViewAspects & DVASPECT_CONTENT) == 0) {
        return;
    }
    if ((m_dwViewFlags & ADVF_ONLYONCE) != 0) {
        m_viewSink.Release();
    }
    sink->OnViewChange(DVASPECT_CONTENT, -1);
}

/// Asks the container for an ambient property; empty where it has none.
static Variant AskAmbient(IDispatch* pAmbient, DISPID id) {
    Variant value;
    DISPPARAMS params = {};
    if (pAmbient == nullptr ||
        FAILED(pAmbient->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &params,
                                value.Get(), nullptr, nullptr))) {
        value.Clear();
    }
    return value;
}

LONG Control::AmbientNumber(DISPID id, LONG nDefault) const {
    const Ref<IDispatch> ambient = m_ambient;
    const Variant value = AskAmbient(ambient.Get(), id);
    Variant number;
    const bool bGiven = value.Type() != VT_EMPTY &&
                        SUCCEEDED(::VariantChangeType(
                            number.Get(), const_cast<VARIANT*>(&value.Value()), 0, VT_I4));
    return bGiven ? number.Value().lVal : nDefault;
}

Ref<IFont> Control::AmbientFont() const {
    const Ref<IDispatch> ambient = m_ambient;
    const Variant value = AskAmbient(ambient.Get(), DISPID_AMBIENT_FONT);
    const bool bObject = value.Type() == VT_DISPATCH || value.Type() == VT_UNKNOWN;
    return Ref<IFont>::Of(bObject ? value.Value().punkVal : nullptr);
}

}  // namespace ocx
