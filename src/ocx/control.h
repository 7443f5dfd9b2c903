// What the controls of the module have in common: everything that a container asks of a control.
//
// A derived control says which class it is (ControlKind), answers members with a behaviour of
// their own (Call), draws itself (Draw) and handles its window's messages (OnMessage). Properties
// that it leaves alone are kept as they were set, within the limits of the class's number rules,
// and are saved with the control's state.
//
// Life: reference counted, made with one reference. The window is a child of the container's and
// is there from in-place activation until it is closed, or until somebody destroys it: m_hWnd is
// null without. Every way out (Fire, the site's interfaces) may lead to a container that closes
// the control or lets go of it; the object itself lives until the COM method or window message
// that is running returns, so that a derived control looks at its own state again and at no more.
//
// Call and OnMessage may throw: a Refusal as the answer, bad_alloc for want of memory. Nothing
// leaves a COM method or the window procedure.
//
// Rectangles are in pixels of the window's client area, also while there is no window: ClientRect
// then has the extent that the container set.

#pragma once

#include "ocx/arguments.h"
#include "ocx/drawing.h"
#include "ocx/event_source.h"
#include "ocx/font_property.h"
#include "ocx/member_table.h"
#include "ocx/property_store.h"
#include "ocx/records.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <memory>
#include <ocidl.h>
#include <oleidl.h>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ocx {

/// One for each kind of control; lives as long as the module.
struct ControlKind {
    CLSID clsid;
    IID iidEvents;                  ///< the source dispinterface
    const wchar_t* pszName;         ///< for users
    const wchar_t* pszWindowClass;  ///< of this module's own
    const MemberTable* pMembers;
    SIZE size;  ///< to begin with, pixels at 96 to an inch
    DISPID idMousePointer = DISPID_UNKNOWN;
    DISPID idMouseIcon = DISPID_UNKNOWN;
};

/// Answer of Control::Call: the property store answers, or E_NOTIMPL for a method.
constexpr HRESULT kToStore = S_FALSE;

class Control : public IOleObject,
                public IOleInPlaceObject,
                public IOleInPlaceActiveObject,
                public IOleControl,
                public IViewObject2,
                public IPersistStreamInit,
                public IPersistStorage,
                public IDispatch,
                public IConnectionPointContainer,
                public IProvideClassInfo2 {
public:
    explicit Control(const ControlKind& kind);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Another reference for as long as it lives.
    class Hold {
    public:
        explicit Hold(Control& control) : m_control(control) { ++control.m_nRefs; }
        ~Hold() { m_control.ReleaseOne(); }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

    private:
        Control& m_control;
    };

    // IUnknown
    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_nRefs; }
    STDMETHODIMP_(ULONG) Release() override { return ReleaseOne(); }
    // IDispatch
    STDMETHODIMP GetTypeInfoCount(UINT* pnCount) override;
    STDMETHODIMP GetTypeInfo(UINT nInfo, LCID lcid, ITypeInfo** ppInfo) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* ppszNames, UINT nNames, LCID lcid,
                               DISPID* pIds) override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID lcid, WORD wFlags, DISPPARAMS* pParams,
                        VARIANT* pResult, EXCEPINFO* pInfo, UINT* pnArgument) override;
    // IOleObject
    STDMETHODIMP SetClientSite(IOleClientSite* pSite) override;
    STDMETHODIMP GetClientSite(IOleClientSite** ppSite) override;
    STDMETHODIMP SetHostNames(LPCOLESTR pszApp, LPCOLESTR pszObject) override;
    STDMETHODIMP Close(DWORD dwSaveOption) override;
    STDMETHODIMP SetMoniker(DWORD dwWhich, IMoniker* pMoniker) override;
    STDMETHODIMP GetMoniker(DWORD dwAssign, DWORD dwWhich, IMoniker** ppMoniker) override;
    STDMETHODIMP InitFromData(IDataObject* pData, BOOL bCreation, DWORD dwReserved) override;
    STDMETHODIMP GetClipboardData(DWORD dwReserved, IDataObject** ppData) override;
    STDMETHODIMP DoVerb(LONG nVerb, LPMSG pMsg, IOleClientSite* pSite, LONG nIndex, HWND hParent,
                        LPCRECT pRect) override;
    STDMETHODIMP EnumVerbs(IEnumOLEVERB** ppEnum) override;
    STDMETHODIMP Update() override;
    STDMETHODIMP IsUpToDate() override;
    STDMETHODIMP GetUserClassID(CLSID* pClsid) override;
    STDMETHODIMP GetUserType(DWORD dwForm, LPOLESTR* ppszType) override;
    STDMETHODIMP SetExtent(DWORD dwAspect, SIZEL* pSize) override;
    STDMETHODIMP GetExtent(DWORD dwAspect, SIZEL* pSize) override;
    STDMETHODIMP Advise(IAdviseSink* pSink, DWORD* pdwConnection) override;
    STDMETHODIMP Unadvise(DWORD dwConnection) override;
    STDMETHODIMP EnumAdvise(IEnumSTATDATA** ppEnum) override;
    STDMETHODIMP GetMiscStatus(DWORD dwAspect, DWORD* pdwStatus) override;
    STDMETHODIMP SetColorScheme(LOGPALETTE* pPalette) override;
    // IOleWindow, IOleInPlaceObject
    STDMETHODIMP GetWindow(HWND* phWnd) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL bEnter) override;
    STDMETHODIMP InPlaceDeactivate() override;
    STDMETHODIMP UIDeactivate() override;
    STDMETHODIMP SetObjectRects(LPCRECT pPos, LPCRECT pClip) override;
    STDMETHODIMP ReactivateAndUndo() override;
    // IOleInPlaceActiveObject
    STDMETHODIMP TranslateAccelerator(LPMSG pMsg) override;
    STDMETHODIMP OnFrameWindowActivate(BOOL bActivate) override;
    STDMETHODIMP OnDocWindowActivate(BOOL bActivate) override;
    STDMETHODIMP ResizeBorder(LPCRECT pBorder, IOleInPlaceUIWindow* pWindow, BOOL bFrame) override;
    STDMETHODIMP EnableModeless(BOOL bEnable) override;
    // IOleControl
    STDMETHODIMP GetControlInfo(CONTROLINFO* pInfo) override;
    STDMETHODIMP OnMnemonic(MSG* pMsg) override;
    STDMETHODIMP OnAmbientPropertyChange(DISPID id) override;
    STDMETHODIMP FreezeEvents(BOOL bFreeze) override;
    // IViewObject2
    STDMETHODIMP Draw(DWORD dwAspect, LONG nIndex, void* pvAspect, DVTARGETDEVICE* pDevice,
                      HDC hTargetDC, HDC hDC, LPCRECTL pBounds, LPCRECTL pWindowBounds,
                      BOOL(STDMETHODCALLTYPE* pfnContinue)(ULONG_PTR),
                      ULONG_PTR nContinue) override;
    STDMETHODIMP GetColorSet(DWORD dwAspect, LONG nIndex, void* pvAspect, DVTARGETDEVICE* pDevice,
                             HDC hTargetDC, LOGPALETTE** ppColors) override;
    STDMETHODIMP Freeze(DWORD dwAspect, LONG nIndex, void* pvAspect, DWORD* pdwFreeze) override;
    STDMETHODIMP Unfreeze(DWORD dwFreeze) override;
    STDMETHODIMP SetAdvise(DWORD dwAspects, DWORD dwFlags, IAdviseSink* pSink) override;
    STDMETHODIMP GetAdvise(DWORD* pdwAspects, DWORD* pdwFlags, IAdviseSink** ppSink) override;
    STDMETHODIMP GetExtent(DWORD dwAspect, LONG nIndex, DVTARGETDEVICE* pDevice,
                           SIZEL* pSize) override;
    // IPersist, IPersistStreamInit, IPersistStorage
    STDMETHODIMP GetClassID(CLSID* pClsid) override;
    STDMETHODIMP IsDirty() override;
    STDMETHODIMP Load(IStream* pStream) override;
    STDMETHODIMP Save(IStream* pStream, BOOL bClearDirty) override;
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER* pnSize) override;
    STDMETHODIMP InitNew() override;
    STDMETHODIMP InitNew(IStorage* pStorage) override;
    STDMETHODIMP Load(IStorage* pStorage) override;
    STDMETHODIMP Save(IStorage* pStorage, BOOL bSameAsLoad) override;
    STDMETHODIMP SaveCompleted(IStorage* pStorage) override;
    STDMETHODIMP HandsOffStorage() override;
    // IConnectionPointContainer
    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** ppEnum) override;
    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** ppPoint) override;
    // IProvideClassInfo2
    STDMETHODIMP GetClassInfo(ITypeInfo** ppInfo) override;
    STDMETHODIMP GetGUID(DWORD dwKind, GUID* pGuid) override;

protected:
    virtual ~Control() = default;

    // --- What a derived control replaces

    /// Answers a member: S_OK, or kToStore where the store is to. HWnd, Enabled and Refresh are
    /// answered before, under their stock ids. Must be quick: a container may ask a million times.
    virtual HRESULT Call(const Member& member, const Arguments& arguments, VARIANT* pResult) = 0;
    /// The whole control into rect; what lies outside of it is clipped or nobody's.
    virtual void DrawControl(HDC hDC, const RECT& rect) = 0;
    /// After what this class does with a message; true: handled, lResult is the answer.
    virtual bool OnMessage(UINT nMessage, WPARAM wParam, LPARAM lParam, LRESULT& lResult) = 0;
    /// A value was put into the store. Draws anew here.
    virtual void OnStored(const Member& member);
    /// The font or an ambient property changed. Draws anew here.
    virtual void OnFontChanged();
    virtual void OnAmbientChanged(DISPID id);
    /// What a number is that nobody set: the rule's default here.
    virtual LONG DefaultNumber(const Member& member) const;
    /// Back to a new control; a derived one calls this as well.
    virtual void Reset();
    /// Adds what the control's state is, in the order in which it is put when loaded. Here: what
    /// the store has, and the font. Members of the same id and index are put as by a container,
    /// without events.
    virtual void Collect(std::vector<Record>& records);
    /// May the window have this key although the container has a use for it?
    virtual bool WantsKey(const MSG& msg);
    /// Characters that come to OnMnemonicKey, in either case.
    virtual std::wstring Mnemonics();
    virtual void OnMnemonicKey(wchar_t ch);
    /// In the control's window here. A container's windows may be children of that: the focus in
    /// one of them is not the control's.
    virtual bool HasFocus() const;

    // --- What a derived control uses

    const MemberTable& Members() const { return *m_kind.pMembers; }
    /// Values of properties that the store answers, by id; defaults of their own where not set. An
    /// id that the table does not have gives nothing.
    LONG Number(DISPID id) const;
    bool Flag(DISPID id) const { return Number(id) != 0; }
    COLORREF Color(DISPID id) const { return ToColorRef(static_cast<OLE_COLOR>(Number(id))); }
    std::wstring_view Text(DISPID id) const;
    IUnknown* Object(DISPID id) const;
    PropertyStore& Store() { return m_store; }
    /// As for a member that the store answers.
    void PutInStore(const Member& member, const VARIANT& value);
    FontProperty& Font() { return m_font; }
    /// Puts a property as a container does; what is wrong with it throws.
    void Put(DISPID id, LONG nIndex, const VARIANT& value);

    /// An event, its arguments in their order: short, LONG, short*, LONG*. A failure is a
    /// handler's.
    template <class... Values>
    HRESULT Fire(DISPID id, Values... values) {
        std::array<VARIANTARG, sizeof...(Values)> arguments = {EventArgument(values)...};
        std::ranges::reverse(arguments);
        return FireEvent(id, arguments);
    }
    /// KeyDown (-602); gives the key that a handler left, 0 for none.
    WPARAM FireKeyDown(WPARAM vk);
    /// A key that the control has no use for, to the container, which may move the focus on.
    void OfferKeyToSite(WPARAM vk);
    /// Mnemonics changed: the container asks for them anew.
    void TellMnemonics();
    /// Shift 1, control 2, menu 4, as events tell them.
    static short ShiftState();
    /// The stock event of a message, for a control whose input comes to a window inside its own.
    /// True where nothing is left to do: a key was taken away, or the window is gone.
    bool TellStockEvents(UINT nMessage, WPARAM& wParam, LPARAM lParam);
    /// The focus came or went: to the container. Moves among the control's windows are none.
    void TellFocus(bool bGot);

    HWND Window() const { return m_hWnd; }
    RECT ClientRect() const;
    bool IsEnabled() const { return Flag(DISPID_ENABLED); }
    /// Draws anew when there is time for it.
    void Invalidate();
    void SetDirty() { m_bDirty = true; }
    /// What the container has to say; nDefault without.
    LONG AmbientNumber(DISPID id, LONG nDefault) const;
    static HINSTANCE ModuleHandle();

private:
    static VARIANTARG EventArgument(short n);
    static VARIANTARG EventArgument(LONG n);
    static VARIANTARG EventArgument(short* pn);
    static VARIANTARG EventArgument(LONG* pn);
    HRESULT FireEvent(DISPID id, std::span<VARIANTARG> arguments) noexcept;

    ULONG ReleaseOne() noexcept;
    HRESULT Answer(const Member& member, const Arguments& arguments, VARIANT* pResult);
    bool AnswerStock(const Member& member, const Arguments& arguments, VARIANT* pResult);
    void Restore(const std::vector<Record>& records);
    Ref<IFont> AmbientFont() const;
    void ViewChanged();

    HRESULT ActivateInPlace(LPCRECT pRect, bool bWithUI);
    void ActivateUI();
    bool MakeWindow(HWND hParent, const RECT& rect);
    void DropWindow();
    static LRESULT CALLBACK WindowProc(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam);
    LRESULT HandleMessage(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam);
    void TellMouse(DISPID id, short nButton, LPARAM lParam);
    void Paint();
    bool SetPointer();

    const ControlKind& m_kind;
    ULONG m_nRefs = 1;
    CountedObject m_counted;
    PropertyStore m_store;
    FontProperty m_font;
    EventSource m_events;

    Ref<IOleClientSite> m_site;
    Ref<IDispatch> m_ambient;
    Ref<IOleInPlaceSite> m_inPlaceSite;
    Ref<IOleInPlaceFrame> m_frame;
    Ref<IOleInPlaceUIWindow> m_document;
    Ref<IOleAdviseHolder> m_adviseHolder;
    Ref<IAdviseSink> m_viewSink;
    DWORD m_dwViewAspects = 0;
    DWORD m_dwViewFlags = 0;

    HWND m_hWnd = nullptr;
    SIZEL m_extent;  // HIMETRIC
    int m_nFrozen = 0;
    bool m_bDirty = false;
    bool m_bUIActive = false;
    bool m_bTranslating = false;  // a key that the container asked about
    bool m_bKeyOffered = false;   // that key is the container's
    struct AcceleratorLife {
        using pointer = HACCEL;
        void operator()(HACCEL hAccel) const { ::DestroyAcceleratorTable(hAccel); }
    };
    std::unique_ptr<HACCEL, AcceleratorLife> m_accelerators;  // of the mnemonics
    bool m_bPressed = false;
    bool m_bClipped = false;
};

}  // namespace ocx
