// What a control sees of its site and its container. These objects live as long as the control
// keeps a reference; once the site or the container is gone, calls give E_UNEXPECTED. No exception
// leaves a call. Internal to the framework.
#pragma once

#include "afx/ole/control_container.h"
#include "afx/ole/control_site.h"

class AfxSiteInterfaces final
    : public AfxComObject<IOleClientSite, IOleInPlaceSite, IOleControlSite, IPropertyNotifySink,
                          IDispatch> {
public:
    explicit AfxSiteInterfaces(COleControlSite* pSite) : m_pSite(pSite), m_sink(*this) {}

    void ForgetSite() { m_pSite = nullptr; }
    IOleClientSite* ClientSite() { return this; }
    IPropertyNotifySink* PropertySink() { return this; }
    IDispatch* EventSink() { return &m_sink; }

    STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override;

    // IOleClientSite
    STDMETHODIMP SaveObject() override { return E_NOTIMPL; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker** ppMoniker) override;
    STDMETHODIMP GetContainer(IOleContainer** ppContainer) override;
    STDMETHODIMP ShowObject() override { return S_OK; }
    STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
    STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

    // IOleWindow, IOleInPlaceSite
    STDMETHODIMP GetWindow(HWND* phWnd) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP CanInPlaceActivate() override;
    STDMETHODIMP OnInPlaceActivate() override { return S_OK; }
    STDMETHODIMP OnUIActivate() override;
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame** ppFrame, IOleInPlaceUIWindow** ppDoc,
                                  RECT* prcPos, RECT* prcClip, OLEINPLACEFRAMEINFO* pInfo) override;
    STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
    STDMETHODIMP OnUIDeactivate(BOOL) override;
    STDMETHODIMP OnInPlaceDeactivate() override;
    STDMETHODIMP DiscardUndoState() override { return S_OK; }
    STDMETHODIMP DeactivateAndUndo() override { return E_NOTIMPL; }
    STDMETHODIMP OnPosRectChange(const RECT* prc) override;

    // IOleControlSite
    STDMETHODIMP OnControlInfoChanged() override;
    STDMETHODIMP LockInPlaceActive(BOOL) override { return S_OK; }
    STDMETHODIMP GetExtendedControl(IDispatch** ppDisp) override;
    STDMETHODIMP TransformCoords(POINTL* pHimetric, POINTF* pContainer, DWORD dwFlags) override;
    STDMETHODIMP TranslateAccelerator(MSG*, DWORD) override { return S_FALSE; }
    STDMETHODIMP OnFocus(BOOL) override { return S_OK; }
    STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }

    // IPropertyNotifySink
    STDMETHODIMP OnChanged(DISPID dispid) override;
    STDMETHODIMP OnRequestEdit(DISPID dispid) override;

    // IDispatch: the ambient properties
    STDMETHODIMP GetTypeInfoCount(UINT* pn) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP Invoke(DISPID dispid, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pParams,
                        VARIANT* pvarResult, EXCEPINFO* pExcepInfo, UINT* pnArgErr) override;

private:
    /// The control's events arrive here: an identity of its own that counts with the site's.
    class Sink final : public IDispatch {
    public:
        explicit Sink(AfxSiteInterfaces& outer) : m_outer(outer) {}
        STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override;
        STDMETHODIMP_(ULONG) AddRef() override { return m_outer.AddRef(); }
        STDMETHODIMP_(ULONG) Release() override { return m_outer.Release(); }
        STDMETHODIMP GetTypeInfoCount(UINT* pn) override { return m_outer.GetTypeInfoCount(pn); }
        STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
        STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
            return E_NOTIMPL;
        }
        STDMETHODIMP Invoke(DISPID dispid, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pParams,
                            VARIANT* pvarResult, EXCEPINFO* pExcepInfo, UINT* pnArgErr) override;

    private:
        AfxSiteInterfaces& m_outer;
    };

    template <class Act>
    HRESULT WithSite(Act act);
    template <class Fire>
    HRESULT FireEvent(Fire fire);

    COleControlSite* m_pSite;
    Sink m_sink;
};

/// The container's window as the frame that controls are activated in.
class AfxContainerInterfaces final : public AfxComObject<IOleInPlaceFrame, IOleContainer> {
public:
    explicit AfxContainerInterfaces(COleControlContainer* pContainer) : m_pContainer(pContainer) {}

    void ForgetContainer() { m_pContainer = nullptr; }

    STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override;

    // IOleWindow, IOleInPlaceUIWindow, IOleInPlaceFrame: no menus, no tools, no room for them
    STDMETHODIMP GetWindow(HWND* phWnd) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP GetBorder(RECT*) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
    STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* pActive, LPCOLESTR) override;
    STDMETHODIMP InsertMenus(HMENU, OLEMENUGROUPWIDTHS*) override { return E_NOTIMPL; }
    STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
    STDMETHODIMP RemoveMenus(HMENU) override { return S_OK; }
    STDMETHODIMP SetStatusText(LPCOLESTR) override { return S_OK; }
    STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }
    STDMETHODIMP TranslateAccelerator(MSG*, WORD) override { return S_FALSE; }

    // IParseDisplayName, IOleContainer
    STDMETHODIMP ParseDisplayName(IBindCtx*, LPOLESTR, ULONG*, IMoniker** ppMoniker) override;
    STDMETHODIMP EnumObjects(DWORD, IEnumUnknown** ppEnum) override;
    STDMETHODIMP LockContainer(BOOL) override { return S_OK; }

private:
    COleControlContainer* m_pContainer;
};
