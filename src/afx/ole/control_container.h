// COleControlContainer: the ActiveX controls in one window, and what they ask of it.
//
// A window gets one with its first control (CWnd::m_pCtrlCont) and ends it, with all controls that
// are left, when it is destroyed. Rectangles are in pixels of the window's client area.
#pragma once

#include "afx/window/wnd.h"

#include <ocidl.h>
#include <vector>

class AfxContainerInterfaces;
class COleControlSite;

class QVAFX_API COleControlContainer : public CCmdTarget {
public:
    explicit COleControlContainer(CWnd* pWnd);

    CWnd* m_pWnd;  ///< null once it is gone
    /// Those with and without a window, in the order of creation.
    std::vector<COleControlSite*> m_sites;
    COleControlSite* m_pSiteUIActive = nullptr;  ///< whose the keyboard is

    /// Makes a control for pWndCtrl, null: for an object of the site's own. psize: null, or -1 as
    /// width or height, takes the control's own size. FALSE, and nothing left behind, if it fails
    /// at any step.
    virtual BOOL CreateControl(CWnd* pWndCtrl, REFCLSID clsid, LPCTSTR lpszWindowName,
                               DWORD dwStyle, const POINT* ppt, const SIZE* psize, UINT nID,
                               CFile* pPersist = nullptr, BOOL bStorage = FALSE,
                               BSTR bstrLicKey = nullptr, COleControlSite** ppNewSite = nullptr);
    BOOL CreateControl(CWnd* pWndCtrl, REFCLSID clsid, LPCTSTR lpszWindowName, DWORD dwStyle,
                       const RECT& rect, UINT nID, CFile* pPersist = nullptr, BOOL bStorage = FALSE,
                       BSTR bstrLicKey = nullptr, COleControlSite** ppNewSite = nullptr);

    COleControlSite* FindItem(UINT nID) const;
    /// The control whose window hWnd is; with bInside, also of the windows within it.
    COleControlSite* FindItem(HWND hWnd, bool bInside = false) const;

    /// What the container answers where OnAmbientProperty of its window does not. FALSE: nothing.
    virtual BOOL GetAmbientProp(COleControlSite* pSite, DISPID dispid, VARIANT* pvar);
    /// A font object like the one of the window, or null.
    LPFONTDISP CreateOleFont() const;
    void BroadcastAmbientPropertyChange(DISPID dispid);
    void FreezeAllEvents(BOOL bFreeze);

    /// The keyboard is pSite's from now on: the one before is deactivated. Null: nobody's.
    virtual void OnUIActivate(COleControlSite* pSite);
    virtual void OnUIDeactivate(COleControlSite* pSite);

    /// Gives a key to the control whose mnemonic it is. FALSE if it is nobody's.
    BOOL OnMnemonic(LPMSG lpMsg);
    /// Whether the control that has the focus wants Return or Escape, which a dialog would take for
    /// itself.
    BOOL WantsKey(const MSG& msg) const;
    /// Return, where a button-like control has the focus or is the dialog's default button: clicks
    /// it. FALSE if it is neither.
    BOOL OnReturn(const MSG& msg);

    // Implementation only from now on

    /// The interfaces that controls hold. They outlive this object and fail then.
    AfxContainerInterfaces* Interfaces() const { return m_pInterfaces; }
    /// Of a dialog that does not come up.
    void EndAllControls();
    /// The window is gone: ends all controls and gives the window's reference up.
    void OnWindowGone();

    void Hold() { ++m_nHolds; }
    void Unhold();

protected:
    ~COleControlContainer() override;

private:
    LONG m_nHolds = 0;  ///< the last one ends a container whose window is gone
    AfxContainerInterfaces* m_pInterfaces;
};
