// An ActiveX control of the tests' own. It writes down what its container does with it, gives back
// what it is told to, and fails or acts at any step.
//
//     FakeControlClass cls(CLSID_FakeControl);  // known in this process for as long as this lives
//     wrapper.CreateControl(CLSID_FakeControl, ...);
//     cls.m_control->Fire(7, {...});
#pragma once

#include "afx/ole/com_pointer.h"
#include "support/dispatch_call.h"

#include <functional>
#include <map>
#include <memory>
#include <ocidl.h>
#include <olectl.h>

class FakeControl;

/// A class of such controls, and how they behave. The default source of events is IID_FakeEvents.
class FakeControlClass {
public:
    explicit FakeControlClass(REFCLSID clsid);
    /// No control may be left.
    ~FakeControlClass();
    FakeControlClass(const FakeControlClass&) = delete;
    FakeControlClass& operator=(const FakeControlClass&) = delete;

    /// Called with each name that is also written to m_steps; a failure is what the step gives.
    std::function<HRESULT(const std::string& step)> m_hook;
    std::vector<std::string> m_steps;
    DWORD m_dwMiscStatus = OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE;
    bool m_bStorage = false;    ///< saved in a storage instead of a stream
    std::wstring m_strLicence;  ///< the key without which there are none
    SIZE m_sizeHimetric = {2540, 1270};
    std::vector<ACCEL> m_mnemonics;  ///< empty: no GetControlInfo
    DWORD m_dwControlFlags = 0;      ///< CTRLINFO_

    std::vector<DispatchCall> m_calls;
    std::map<DISPID, COleVariant> m_values;  ///< properties and results; others are not members
    bool m_bAnyMember = false;               ///< each id is a member, of no value

    FakeControl* m_control = nullptr;  ///< the latest one, null once it is gone
    int m_nAlive = 0;

    HRESULT Step(const std::string& step);
    int Count(const std::string& step) const;

private:
    class Factory;

    AfxComPtr<Factory> m_pFactory;
    DWORD m_dwRegistered = 0;
};

extern const IID IID_FakeEvents;
/// The one that the dialog templates of the tests name.
extern const CLSID CLSID_FakeControl;

class FakeControl final
    : public BareDispatch<AfxComObject<IOleObject, IOleInPlaceObject, IOleInPlaceActiveObject,
                                       IOleControl, IPersistStreamInit, IPersistStorage, IDispatch,
                                       IConnectionPointContainer, IProvideClassInfo2>> {
public:
    explicit FakeControl(FakeControlClass& cls);
    ~FakeControl() override;

    HWND m_hWnd = nullptr;
    std::string m_strState;  ///< what it was loaded from
    AfxComPtr<IOleClientSite> m_pSite;

    /// Tells an event or a change to whoever is connected. The latest answer.
    HRESULT Fire(DISPID id, std::vector<COleVariant> args = {});
    HRESULT TellChanged(DISPID id) {
        return m_pPropertySink ? m_pPropertySink->OnChanged(id) : S_OK;
    }
    HRESULT AskToChange(DISPID id) {
        return m_pPropertySink ? m_pPropertySink->OnRequestEdit(id) : S_OK;
    }
    COleVariant Ambient(DISPID id);
    template <class Interface>
    AfxComPtr<Interface> SiteAs() {
        return m_pSite.template As<Interface>();
    }
    AfxComPtr<IDispatch> m_pEventSink;
    AfxComPtr<IPropertyNotifySink> m_pPropertySink;

    void DropWindow();

    STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override;

    // IOleObject
    STDMETHODIMP SetClientSite(IOleClientSite* pSite) override;
    STDMETHODIMP GetClientSite(IOleClientSite**) override { return E_NOTIMPL; }
    STDMETHODIMP SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
    STDMETHODIMP Close(DWORD) override;
    STDMETHODIMP SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP GetClipboardData(DWORD, IDataObject**) override { return E_NOTIMPL; }
    STDMETHODIMP DoVerb(LONG nVerb, LPMSG, IOleClientSite*, LONG, HWND hWndParent,
                        LPCRECT prc) override;
    STDMETHODIMP EnumVerbs(IEnumOLEVERB**) override { return E_NOTIMPL; }
    STDMETHODIMP Update() override { return S_OK; }
    STDMETHODIMP IsUpToDate() override { return S_OK; }
    STDMETHODIMP GetUserClassID(CLSID*) override { return E_NOTIMPL; }
    STDMETHODIMP GetUserType(DWORD, LPOLESTR*) override { return E_NOTIMPL; }
    STDMETHODIMP SetExtent(DWORD, SIZEL* pSize) override;
    STDMETHODIMP GetExtent(DWORD, SIZEL* pSize) override {
        *pSize = m_class.m_sizeHimetric;
        return S_OK;
    }
    STDMETHODIMP Advise(IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP Unadvise(DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP EnumAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }
    STDMETHODIMP GetMiscStatus(DWORD, DWORD* pdwStatus) override {
        *pdwStatus = m_class.m_dwMiscStatus;
        return S_OK;
    }
    STDMETHODIMP SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

    // IOleWindow, IOleInPlaceObject, IOleInPlaceActiveObject
    STDMETHODIMP GetWindow(HWND* phWnd) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP InPlaceDeactivate() override;
    STDMETHODIMP UIDeactivate() override;
    STDMETHODIMP SetObjectRects(LPCRECT prcPos, LPCRECT) override;
    STDMETHODIMP ReactivateAndUndo() override { return E_NOTIMPL; }
    STDMETHODIMP TranslateAccelerator(LPMSG pMsg) override;
    STDMETHODIMP OnFrameWindowActivate(BOOL) override { return S_OK; }
    STDMETHODIMP OnDocWindowActivate(BOOL) override { return S_OK; }
    STDMETHODIMP ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) override { return S_OK; }
    STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }

    // IOleControl
    STDMETHODIMP GetControlInfo(CONTROLINFO* pInfo) override;
    STDMETHODIMP OnMnemonic(MSG*) override { return m_class.Step("mnemonic"); }
    STDMETHODIMP OnAmbientPropertyChange(DISPID dispid) override {
        return m_class.Step("ambient " + std::to_string(dispid));
    }
    STDMETHODIMP FreezeEvents(BOOL) override { return S_OK; }

    // IPersist, IPersistStreamInit, IPersistStorage
    STDMETHODIMP GetClassID(CLSID*) override { return E_NOTIMPL; }
    STDMETHODIMP IsDirty() override { return S_FALSE; }
    STDMETHODIMP Load(IStream* pStream) override;
    STDMETHODIMP Save(IStream*, BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER*) override { return E_NOTIMPL; }
    STDMETHODIMP InitNew() override { return m_class.Step("new"); }
    STDMETHODIMP InitNew(IStorage* pStorage) override {
        return m_class.Step(pStorage != nullptr ? "new storage" : "none");
    }
    STDMETHODIMP Load(IStorage* pStorage) override;
    STDMETHODIMP Save(IStorage*, BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP SaveCompleted(IStorage*) override { return S_OK; }
    STDMETHODIMP HandsOffStorage() override { return S_OK; }

    // IDispatch
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD wFlags, DISPPARAMS* pParams,
                        VARIANT* pvarResult, EXCEPINFO* pExcepInfo, UINT*) override;

    // IConnectionPointContainer, IProvideClassInfo2
    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** ppEnum) override {
        *ppEnum = nullptr;
        return E_NOTIMPL;
    }
    STDMETHODIMP FindConnectionPoint(REFIID riid, IConnectionPoint** ppPoint) override;
    STDMETHODIMP GetClassInfo(ITypeInfo** ppInfo) override {
        *ppInfo = nullptr;
        return E_NOTIMPL;
    }
    STDMETHODIMP GetGUID(DWORD dwKind, GUID* pGuid) override {
        *pGuid = IID_FakeEvents;
        return dwKind == GUIDKIND_DEFAULT_SOURCE_DISP_IID ? S_OK : E_INVALIDARG;
    }

private:
    class Point;

    HRESULT ShowAt(HWND hWndParent, LPCRECT prc);

    FakeControlClass& m_class;
    std::vector<std::unique_ptr<Point>> m_points;
    HACCEL m_hAccel = nullptr;
    bool m_bUIActive = false;
};
