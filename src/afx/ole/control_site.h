// COleControlSite: one ActiveX control in a window: its creation, its window, what it is told and
// what it tells.
//
// Made by COleControlContainer::CreateControl. The control's window, a direct child of the
// container's window, is subclassed by the wrapper, or by an object of the site's own where the
// program has none. The site lives until DestroyControl; calls that are under way then find
// m_pObject null. Rectangles are in pixels of the container's client area.
#pragma once

#include "afx/ole/com_pointer.h"
#include "afx/window/wnd.h"

#include <ocidl.h>
#include <olectl.h>

class AfxSiteInterfaces;
class COleControlContainer;
struct AFX_EVENT;

class QVAFX_API COleControlSite : public CCmdTarget {
public:
    explicit COleControlSite(COleControlContainer* pCtrlCont);

    COleControlContainer* m_pCtrlCont;  ///< null once the control is gone
    CWnd* m_pWndCtrl = nullptr;         ///< the wrapper, or the site's own object
    HWND m_hWnd = nullptr;              ///< null for controls without a window
    UINT m_nID = 0;
    CRect m_rect;
    DWORD m_dwStyle = 0;
    DWORD m_dwMiscStatus = 0;  ///< OLEMISC_
    IID m_iidEvents = IID_NULL;
    AfxComPtr<IOleObject> m_pObject;
    AfxComPtr<IOleInPlaceObject> m_pInPlaceObject;
    AfxComPtr<IOleInPlaceActiveObject> m_pActiveObject;
    CONTROLINFO m_ctlInfo = {};  ///< its mnemonics; cb 0: not asked for yet
    DWORD m_dwEventSink = 0;
    DWORD m_dwPropNotifySink = 0;

    virtual HRESULT CreateControl(CWnd* pWndCtrl, REFCLSID clsid, LPCTSTR lpszWindowName,
                                  DWORD dwStyle, const POINT* ppt, const SIZE* psize, UINT nID,
                                  CFile* pPersist = nullptr, BOOL bStorage = FALSE,
                                  BSTR bstrLicKey = nullptr);
    /// Ends the control, its window and this object. The wrapper stays, without either.
    virtual BOOL DestroyControl();

    // The control's members, by the rules of COleDispatchDriver, whose exceptions are thrown. A
    // control without IDispatch has none: DISP_E_MEMBERNOTFOUND.
    virtual void InvokeHelper(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                              const BYTE* pbParamInfo, ...);
    virtual void InvokeHelperV(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                               const BYTE* pbParamInfo, va_list argList);
    virtual void GetProperty(DISPID dwDispID, VARTYPE vtProp, void* pvProp) const;
    virtual void SetProperty(DISPID dwDispID, VARTYPE vtProp, ...);
    virtual void SetPropertyV(DISPID dwDispID, VARTYPE vtProp, va_list argList);
    /// FALSE instead of an exception.
    virtual BOOL SafeSetProperty(DISPID dwDispID, VARTYPE vtProp, ...);

    // Its window, or what stands for it. The text is the stock Caption or Text property, or
    // of a control that has neither its window's.
    virtual void SetWindowText(LPCTSTR lpszString);
    virtual void GetWindowText(CString& str) const;
    virtual BOOL EnableWindow(BOOL bEnable);
    virtual BOOL IsWindowEnabled() const { return !(GetStyle() & WS_DISABLED); }
    virtual BOOL ShowWindow(int nCmdShow);
    virtual DWORD GetStyle() const;
    virtual CWnd* SetFocus();
    /// Tells the control and, if it does not move its window by itself, moves that.
    virtual void MoveWindow(int x, int y, int nWidth, int nHeight);
    virtual HRESULT DoVerb(LONG nVerb, LPMSG lpMsg = nullptr);
    void FreezeEvents(BOOL bFreeze);

    BOOL IsDefaultButton() const { return m_bDefaultButton; }
    void SetDefaultButton(BOOL bDefault);
    DWORD GetDefBtnCode() const;  ///< DLGC_DEFPUSHBUTTON, DLGC_UNDEFPUSHBUTTON or 0

    // Implementation only from now on

    void AttachWindow();                ///< takes the control's window, if it has one by now
    void DetachWindow();                ///< the control takes its window away
    BOOL SetPosRect(const RECT& rect);  ///< the control's wish, or what was told to it
    void OnWindowPosChanged();          ///< somebody moved the window
    void OnWindowFocus(bool bFocus, HWND hWndOther);
    /// The wrapper is gone.
    void ForgetWrapper() {
        m_pWndCtrl = m_pOwnWnd = nullptr;
        m_bForgotten = true;
    }
    bool IsForgotten() const { return m_bForgotten; }
    /// The control is a program's object's from now on, which takes its window next. FALSE if it is
    /// another one's already.
    BOOL GiveTo(CWnd* pWnd);
    BOOL TranslateAccelerator(MSG* pMsg);
    BOOL HasMnemonic(const MSG& msg);
    void OnMnemonic(MSG* pMsg);
    BOOL Click();
    const CONTROLINFO& ControlInfo();
    void OnAmbientPropertyChange(DISPID dispid);
    bool IsCreating() const { return m_bCreating; }
    /// Routes an event: to the wrapper as a reflected one, then to the container's window.
    BOOL OnEvent(AFX_EVENT* pEvent);

    void Hold() { ++m_nHolds; }
    void Unhold();

protected:
    ~COleControlSite() override;

    virtual HRESULT CreateOrLoad(REFCLSID clsid, CFile* pPersist, BOOL bStorage, BSTR bstrLicKey);
    virtual BOOL GetEventIID(IID* piid);

private:
    LPDISPATCH Members() const;
    HRESULT SetExtent(SIZE size);
    bool TakesSize(SIZE size);
    CRect WindowRect() const;
    void ApplyStyle();
    void ConnectSinks();
    void DisconnectSinks();
    HRESULT Activate();
    void EndObject();
    void DropOwnWindow();

    LONG m_nHolds = 0;                 ///< the last one ends a site whose control is gone
    AfxSiteInterfaces* m_pInterfaces;  ///< what the control calls; it outlives this object
    AfxComPtr<IDispatch> m_pDispatch;
    AfxComPtr<IOleControl> m_pControl;
    AfxComPtr<IStorage> m_pStorage;  ///< what a control that works on one keeps
    CWnd* m_pOwnWnd = nullptr;       ///< m_pWndCtrl where the program has none
    bool m_bCreating = false;
    bool m_bEnding = false;
    bool m_bForgotten = false;  ///< by a wrapper that went
    int m_nPlacing = 0;         ///< the control is being told where it is
    BOOL m_bDefaultButton = FALSE;
};

/// A site, or a container, that stays an object while this lives, whatever is called.
template <class Held>
class AfxHold {
public:
    explicit AfxHold(Held* pHeld) : m_pHeld(pHeld) { m_pHeld->Hold(); }
    ~AfxHold() { m_pHeld->Unhold(); }
    AfxHold(const AfxHold&) = delete;
    AfxHold& operator=(const AfxHold&) = delete;

private:
    Held* m_pHeld;
};

/// Dots an inch of the screen.
SIZE AfxScreenDpi();
/// Pixels of the screen in units of 0.01 mm, and back.
SIZE AfxToHimetric(SIZE pixels);
SIZE AfxFromHimetric(SIZE himetric);
