// The object that a screen reader holds of a control: translates what it asks into the steps of
// QVAccessible. It outlives the control; Disconnect takes its steps away then, and every call
// answers CO_E_OBJNOTCONNECTED. All parts are simple elements of the one object, but for those that
// are windows.
//
// What the control does not say itself - its parent, what lies beside it - comes from the system's
// standard object for the window.

#pragma once

#include "frame/accessible.h"
#include "frame/part_enum.h"

#include <oleacc.h>
#include <oleidl.h>

namespace qv {

class AccessibleObject final : public IAccessible, public IOleWindow, public IEnumVARIANT {
public:
    // With one reference; null without memory.
    static AccessibleObject* Make(QVAccessible& parts, CWnd& wnd);

    HWND Window() const { return m_hWnd; }
    void Disconnect() { m_pParts = nullptr; }
    // The result of WM_GETOBJECT.
    LRESULT Answer(WPARAM wParam);

    // For enumerations: what Next, Skip and so on are made of.
    HRESULT NextOf(PartCursor& cursor, ULONG nWanted, VARIANT* pFound, ULONG* pnFound);
    HRESULT SkipOf(PartCursor& cursor, ULONG nParts);

    STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;

    STDMETHODIMP GetTypeInfoCount(UINT* pnInfos) override;
    STDMETHODIMP GetTypeInfo(UINT nInfo, LCID lcid, ITypeInfo** ppInfo) override;
    STDMETHODIMP GetIDsOfNames(REFIID riid, LPOLESTR* ppNames, UINT nNames, LCID lcid,
                               DISPID* pIds) override;
    STDMETHODIMP Invoke(DISPID id, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pParams,
                        VARIANT* pResult, EXCEPINFO* pException, UINT* pnError) override;

    STDMETHODIMP get_accParent(IDispatch** ppParent) override;
    STDMETHODIMP get_accChildCount(long* pnCount) override;
    STDMETHODIMP get_accChild(VARIANT part, IDispatch** ppChild) override;
    STDMETHODIMP get_accName(VARIANT part, BSTR* pbstr) override;
    STDMETHODIMP get_accValue(VARIANT part, BSTR* pbstr) override;
    STDMETHODIMP get_accDescription(VARIANT part, BSTR* pbstr) override;
    STDMETHODIMP get_accRole(VARIANT part, VARIANT* pRole) override;
    STDMETHODIMP get_accState(VARIANT part, VARIANT* pState) override;
    STDMETHODIMP get_accHelp(VARIANT part, BSTR* pbstr) override;
    STDMETHODIMP get_accHelpTopic(BSTR* pbstrFile, VARIANT part, long* pnTopic) override;
    STDMETHODIMP get_accKeyboardShortcut(VARIANT part, BSTR* pbstr) override;
    STDMETHODIMP get_accFocus(VARIANT* pPart) override;
    STDMETHODIMP get_accSelection(VARIANT* pParts) override;
    STDMETHODIMP get_accDefaultAction(VARIANT part, BSTR* pbstr) override;
    STDMETHODIMP accSelect(long nFlags, VARIANT part) override;
    STDMETHODIMP accLocation(long* pLeft, long* pTop, long* pWidth, long* pHeight,
                             VARIANT part) override;
    STDMETHODIMP accNavigate(long nDirection, VARIANT start, VARIANT* pEnd) override;
    STDMETHODIMP accHitTest(long x, long y, VARIANT* pPart) override;
    STDMETHODIMP accDoDefaultAction(VARIANT part) override;
    STDMETHODIMP put_accName(VARIANT part, BSTR bstr) override;
    STDMETHODIMP put_accValue(VARIANT part, BSTR bstr) override;

    STDMETHODIMP GetWindow(HWND* phWnd) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL bEnter) override;

    STDMETHODIMP Next(ULONG nWanted, VARIANT* pFound, ULONG* pnFound) override;
    STDMETHODIMP Skip(ULONG nParts) override;
    STDMETHODIMP Reset() override;
    STDMETHODIMP Clone(IEnumVARIANT** ppClone) override;

private:
    using TextStep = CString (QVAccessible::*)(long nPart);
    using NumberStep = long (QVAccessible::*)(long nPart);

    AccessibleObject(QVAccessible& parts, CWnd& wnd)
        : m_pParts(&parts), m_wnd(wnd), m_hWnd(wnd.m_hWnd) {}
    ~AccessibleObject();

    bool Connected() const { return m_pParts != nullptr && m_wnd.m_hWnd == m_hWnd; }
    template <class Deed>
    HRESULT Try(Deed deed);
    template <class Deed>
    HRESULT AskOf(const VARIANT& part, Deed deed);
    HRESULT AskText(TextStep step, const VARIANT& part, BSTR* pbstr);
    HRESULT AskNumber(NumberStep step, const VARIANT& part, VARIANT* pNumber);
    HRESULT GivePart(long nPart, VARIANT* pPart);
    IAccessible* Standard();

    LONG m_nReferences = 1;
    QVAccessible* m_pParts;  // null once the control is gone
    CWnd& m_wnd;             // lives as long as the parts
    const HWND m_hWnd;
    IAccessible* m_pStandard = nullptr;
    PartCursor m_cursor;
};

}  // namespace qv
