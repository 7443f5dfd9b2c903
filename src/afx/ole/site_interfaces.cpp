#include "afx/ole/site_interfaces.h"

#include "afx/ole/event_sink.h"
#include "afx/window/wnd_state.h"

namespace {

template <class Interface>
HRESULT Give(Interface* p, void** ppv) {
    p->AddRef();
    *ppv = p;
    return S_OK;
}

/// No exception reaches the caller, who is the control: the application is told.
template <class Act>
HRESULT Contain(Act act) {
    try {
        return act();
    } catch (...) {
        AfxProcessCurrentException(nullptr, WM_NULL);
        return E_FAIL;
    }
}

}  // namespace

// --- The site

template <class Act>
HRESULT AfxSiteInterfaces::WithSite(Act act) {
    if (m_pSite == nullptr || m_pSite->m_pCtrlCont == nullptr) {
        return E_UNEXPECTED;
    }
    const AfxComPtr<AfxSiteInterfaces> stay(this);
    const AfxHold<COleControlSite> hold(m_pSite);
    return Contain([&] { return act(*m_pSite, *m_pSite->m_pCtrlCont); });
}

STDMETHODIMP AfxSiteInterfaces::QueryInterface(REFIID riid, void** ppv) {
    if (ppv == nullptr) {
        return E_POINTER;
    }
    *ppv = nullptr;
    if (riid == IID_IUnknown || riid == IID_IOleClientSite) {
        return Give<IOleClientSite>(this, ppv);
    }
    if (riid == IID_IOleWindow || riid == IID_IOleInPlaceSite) {
        return Give<IOleInPlaceSite>(this, ppv);
    }
    if (riid == IID_IOleControlSite) {
        return Give<IOleControlSite>(this, ppv);
    }
    if (riid == IID_IPropertyNotifySink) {
        return Give<IPropertyNotifySink>(this, ppv);
    }
    if (riid == IID_IDispatch) {
        return Give<IDispatch>(this, ppv);
    }
    return E_NOINTERFACE;
}

STDMETHODIMP AfxSiteInterfaces::GetMoniker(DWORD, DWORD, IMoniker** ppMoniker) {
    if (ppMoniker != nullptr) {
        *ppMoniker = nullptr;
    }
    return E_NOTIMPL;
}

STDMETHODIMP AfxSiteInterfaces::GetContainer(IOleContainer** ppContainer) {
    if (ppContainer == nullptr) {
        return E_POINTER;
    }
    *ppContainer = nullptr;
    return WithSite([&](COleControlSite&, COleControlContainer& container) {
        return Give<IOleContainer>(container.Interfaces(), reinterpret_cast<void**>(ppContainer));
    });
}

STDMETHODIMP AfxSiteInterfaces::GetWindow(HWND* phWnd) {
    if (phWnd == nullptr) {
        return E_POINTER;
    }
    *phWnd = nullptr;
    return WithSite([&](COleControlSite&, COleControlContainer& container) {
        *phWnd = container.m_pWnd->GetSafeHwnd();
        return *phWnd != nullptr ? S_OK : E_FAIL;
    });
}

STDMETHODIMP AfxSiteInterfaces::CanInPlaceActivate() {
    return WithSite([](COleControlSite& site, COleControlContainer&) {
        return site.m_dwMiscStatus & OLEMISC_INVISIBLEATRUNTIME ? S_FALSE : S_OK;
    });
}

STDMETHODIMP AfxSiteInterfaces::OnUIActivate() {
    return WithSite([](COleControlSite& site, COleControlContainer& container) {
        site.AttachWindow();  // one that made itself a new window has it by now
        container.OnUIActivate(&site);
        return S_OK;
    });
}

STDMETHODIMP AfxSiteInterfaces::GetWindowContext(IOleInPlaceFrame** ppFrame,
                                                 IOleInPlaceUIWindow** ppDoc, RECT* prcPos,
                                                 RECT* prcClip, OLEINPLACEFRAMEINFO* pInfo) {
    if (ppFrame == nullptr || ppDoc == nullptr || prcPos == nullptr || prcClip == nullptr ||
        pInfo == nullptr) {
        return E_POINTER;
    }
    *ppFrame = nullptr;
    *ppDoc = nullptr;
    return WithSite([&](COleControlSite& site, COleControlContainer& container) {
        *prcPos = site.m_rect;
        *prcClip = site.m_rect;
        pInfo->fMDIApp = FALSE;
        pInfo->hwndFrame = ::GetAncestor(container.m_pWnd->GetSafeHwnd(), GA_ROOT);
        pInfo->haccel = nullptr;
        pInfo->cAccelEntries = 0;
        return Give<IOleInPlaceFrame>(container.Interfaces(), reinterpret_cast<void**>(ppFrame));
    });
}

STDMETHODIMP AfxSiteInterfaces::OnUIDeactivate(BOOL) {
    return WithSite([](COleControlSite& site, COleControlContainer& container) {
        container.OnUIDeactivate(&site);
        return S_OK;
    });
}

STDMETHODIMP AfxSiteInterfaces::OnInPlaceDeactivate() {
    return WithSite([](COleControlSite& site, COleControlContainer&) {
        site.DetachWindow();
        return S_OK;
    });
}

STDMETHODIMP AfxSiteInterfaces::OnPosRectChange(const RECT* prc) {
    if (prc == nullptr) {
        return E_POINTER;
    }
    return WithSite([&](COleControlSite& site, COleControlContainer&) {
        return site.SetPosRect(*prc) ? S_OK : E_FAIL;
    });
}

STDMETHODIMP AfxSiteInterfaces::OnControlInfoChanged() {
    return WithSite([](COleControlSite& site, COleControlContainer&) {
        site.m_ctlInfo = {};
        return S_OK;
    });
}

STDMETHODIMP AfxSiteInterfaces::GetExtendedControl(IDispatch** ppDisp) {
    if (ppDisp != nullptr) {
        *ppDisp = nullptr;
    }
    return E_NOTIMPL;
}

STDMETHODIMP AfxSiteInterfaces::TransformCoords(POINTL* pHimetric, POINTF* pContainer,
                                                DWORD dwFlags) {
    if (pHimetric == nullptr || pContainer == nullptr) {
        return E_POINTER;
    }
    // Sizes and positions alike: the container's units are pixels from its corner.
    if (dwFlags & XFORMCOORDS_HIMETRICTOCONTAINER) {
        const SIZE pixels = AfxFromHimetric({pHimetric->x, pHimetric->y});
        *pContainer = {static_cast<float>(pixels.cx), static_cast<float>(pixels.cy)};
        return S_OK;
    }
    if (dwFlags & XFORMCOORDS_CONTAINERTOHIMETRIC) {
        const SIZE himetric =
            AfxToHimetric({static_cast<LONG>(pContainer->x), static_cast<LONG>(pContainer->y)});
        *pHimetric = {himetric.cx, himetric.cy};
        return S_OK;
    }
    return E_INVALIDARG;
}

// --- What the control tells

template <class Fire>
HRESULT AfxSiteInterfaces::FireEvent(Fire fire) {
    if (m_pSite == nullptr || m_pSite->m_pCtrlCont == nullptr || m_pSite->IsCreating()) {
        return S_OK;  // there is nobody yet, or nobody any more, who could be told
    }
    return WithSite([&](COleControlSite& site, COleControlContainer&) { return fire(site); });
}

STDMETHODIMP AfxSiteInterfaces::OnChanged(DISPID dispid) {
    return FireEvent([&](COleControlSite& site) {
        AFX_EVENT event(AFX_EVENT::propChanged, dispid);
        site.OnEvent(&event);
        return S_OK;
    });
}

STDMETHODIMP AfxSiteInterfaces::OnRequestEdit(DISPID dispid) {
    return FireEvent([&](COleControlSite& site) {
        AFX_EVENT event(AFX_EVENT::propRequest, dispid);
        return !site.OnEvent(&event) || event.m_bPropChanged ? S_OK : S_FALSE;
    });
}

STDMETHODIMP AfxSiteInterfaces::Sink::QueryInterface(REFIID riid, void** ppv) {
    if (ppv == nullptr) {
        return E_POINTER;
    }
    *ppv = nullptr;
    const COleControlSite* pSite = m_outer.m_pSite;
    if (riid == IID_IUnknown || riid == IID_IDispatch ||
        (pSite != nullptr && riid == pSite->m_iidEvents)) {
        return Give<IDispatch>(this, ppv);
    }
    return E_NOINTERFACE;
}

STDMETHODIMP AfxSiteInterfaces::Sink::Invoke(DISPID dispid, REFIID, LCID, WORD, DISPPARAMS* pParams,
                                             VARIANT*, EXCEPINFO* pExcepInfo, UINT* pnArgErr) {
    return m_outer.FireEvent([&](COleControlSite& site) {
        DISPPARAMS none = {};
        AFX_EVENT event(AFX_EVENT::event, dispid, pParams != nullptr ? pParams : &none, pExcepInfo,
                        pnArgErr);
        return site.OnEvent(&event) ? event.m_hResult : S_OK;
    });
}

// --- Ambient properties

STDMETHODIMP AfxSiteInterfaces::GetTypeInfoCount(UINT* pn) {
    if (pn == nullptr) {
        return E_POINTER;
    }
    *pn = 0;
    return S_OK;
}

STDMETHODIMP AfxSiteInterfaces::Invoke(DISPID dispid, REFIID, LCID, WORD wFlags, DISPPARAMS*,
                                       VARIANT* pvarResult, EXCEPINFO*, UINT*) {
    if (!(wFlags & DISPATCH_PROPERTYGET)) {
        return DISP_E_MEMBERNOTFOUND;
    }
    if (pvarResult == nullptr) {
        return E_POINTER;
    }
    ::VariantInit(pvarResult);
    return WithSite([&](COleControlSite& site, COleControlContainer& container) {
        CWnd* const pWnd = container.m_pWnd;
        return pWnd != nullptr && pWnd->OnAmbientProperty(&site, dispid, pvarResult)
                   ? S_OK
                   : DISP_E_MEMBERNOTFOUND;
    });
}

// --- The container

STDMETHODIMP AfxContainerInterfaces::QueryInterface(REFIID riid, void** ppv) {
    if (ppv == nullptr) {
        return E_POINTER;
    }
    *ppv = nullptr;
    if (riid == IID_IUnknown || riid == IID_IOleWindow || riid == IID_IOleInPlaceUIWindow ||
        riid == IID_IOleInPlaceFrame) {
        return Give<IOleInPlaceFrame>(this, ppv);
    }
    if (riid == IID_IParseDisplayName || riid == IID_IOleContainer) {
        return Give<IOleContainer>(this, ppv);
    }
    return E_NOINTERFACE;
}

STDMETHODIMP AfxContainerInterfaces::GetWindow(HWND* phWnd) {
    if (phWnd == nullptr) {
        return E_POINTER;
    }
    *phWnd = m_pContainer != nullptr ? m_pContainer->m_pWnd->GetSafeHwnd() : nullptr;
    return *phWnd != nullptr ? S_OK : E_UNEXPECTED;
}

STDMETHODIMP AfxContainerInterfaces::SetActiveObject(IOleInPlaceActiveObject* pActive, LPCOLESTR) {
    if (m_pContainer == nullptr) {
        return E_UNEXPECTED;
    }
    if (COleControlSite* pSite = m_pContainer->m_pSiteUIActive) {
        if (pActive != nullptr) {
            pSite->m_pActiveObject = AfxComPtr<IOleInPlaceActiveObject>(pActive);
        }
    }
    return S_OK;
}

STDMETHODIMP AfxContainerInterfaces::ParseDisplayName(IBindCtx*, LPOLESTR, ULONG*,
                                                      IMoniker** ppMoniker) {
    if (ppMoniker != nullptr) {
        *ppMoniker = nullptr;
    }
    return E_NOTIMPL;
}

STDMETHODIMP AfxContainerInterfaces::EnumObjects(DWORD, IEnumUnknown** ppEnum) {
    if (ppEnum != nullptr) {
        *ppEnum = nullptr;
    }
    return E_NOTIMPL;
}
