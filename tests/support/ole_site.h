// The least that a container has to be: a window, a site in it, and somebody who hears the events
// of the one control there.
#pragma once

#include "afx/ole/com_pointer.h"
#include "support/dispatch_call.h"

#include <functional>
#include <ocidl.h>
#include <oleauto.h>

/// Its references are not what keeps it: it lives as its owner says, and tells how many are held.
class OleSite : public IOleClientSite, public IOleInPlaceSite, public BareDispatch<IDispatch> {
public:
    /// Makes the control, with a new window to put it into, and listens. bInPlace: false for a
    /// container that knows IOleClientSite alone.
    explicit OleSite(REFCLSID clsid, bool bInPlace = true);
    /// Closes it and lets go of it.
    virtual ~OleSite();
    OleSite(const OleSite&) = delete;
    OleSite& operator=(const OleSite&) = delete;

    IOleObject* Object() const { return m_pObject.Get(); }  ///< null if it could not be made
    IDispatch* Dispatch() const { return m_pDispatch.Get(); }
    HWND Frame() const { return m_hFrame; }
    HWND Window() const;  ///< the control's
    LONG References() const { return m_nRefs; }

    /// Its window at rect, without or with the focus. Activate shows the frame, unless it is to
    /// stay hidden, which is faster.
    HRESULT Activate(const RECT& rect, LONG nVerb = OLEIVERB_INPLACEACTIVATE);
    void Close();
    void LetGo();  ///< of the control, listening or not

    HRESULT Put(DISPID id, LONG n);
    HRESULT Put(DISPID id, const wchar_t* psz);
    LONG Number(DISPID id);
    std::wstring Text(DISPID id);

    bool m_bHidden = false;
    std::vector<DISPID> m_events;                        ///< in the order they came
    std::function<void(DISPID, DISPPARAMS&)> m_onEvent;  ///< whatever a container may do

    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_nRefs; }
    STDMETHODIMP_(ULONG) Release() override { return --m_nRefs; }
    STDMETHODIMP SaveObject() override { return S_OK; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP GetContainer(IOleContainer** ppContainer) override;
    STDMETHODIMP ShowObject() override { return S_OK; }
    STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
    STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }
    STDMETHODIMP GetWindow(HWND* phWnd) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
    STDMETHODIMP OnInPlaceActivate() override { return S_OK; }
    STDMETHODIMP OnUIActivate() override { return S_OK; }
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame** ppFrame, IOleInPlaceUIWindow** ppDocument,
                                  LPRECT pPos, LPRECT pClip, LPOLEINPLACEFRAMEINFO pInfo) override;
    STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
    STDMETHODIMP OnUIDeactivate(BOOL) override { return S_OK; }
    STDMETHODIMP OnInPlaceDeactivate() override { return S_OK; }
    STDMETHODIMP DiscardUndoState() override { return E_NOTIMPL; }
    STDMETHODIMP DeactivateAndUndo() override { return E_NOTIMPL; }
    STDMETHODIMP OnPosRectChange(LPCRECT) override { return S_OK; }
    /// An event, or an ambient property, of which there are none.
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID lcid, WORD wFlags, DISPPARAMS* pParams,
                        VARIANT* pResult, EXCEPINFO* pInfo, UINT* pnArgument) override;

private:
    HRESULT PutValue(DISPID id, VARIANT value);
    COleVariant Value(DISPID id);

    const bool m_bInPlace;
    LONG m_nRefs = 0;
    HWND m_hFrame = nullptr;
    RECT m_rect = {};
    AfxComPtr<IOleObject> m_pObject;
    AfxComPtr<IDispatch> m_pDispatch;
    AfxComPtr<IConnectionPoint> m_pPoint;
    DWORD m_dwCookie = 0;
};
