// What the handlers of CWnd itself do: pass the message on as it came.
#include "afx/window/wnd.h"

#include "afx/window/wnd_state.h"

#include <afxwin.h>

int CWnd::OnCreate(LPCREATESTRUCT) {
    return static_cast<int>(Default());
}

BOOL CWnd::OnNcCreate(LPCREATESTRUCT) {
    return static_cast<BOOL>(Default());
}

void CWnd::OnClose() {
    Default();
}

void CWnd::OnMove(int, int) {
    Default();
}

void CWnd::OnSize(UINT, int, int) {
    Default();
}

void CWnd::OnMoving(UINT, LPRECT) {
    Default();
}

void CWnd::OnSizing(UINT, LPRECT) {
    Default();
}

void CWnd::OnActivate(UINT, CWnd*, BOOL) {
    Default();
}

void CWnd::OnActivateApp(BOOL, DWORD) {
    Default();
}

void CWnd::OnChildActivate() {
    Default();
}

void CWnd::OnMDIActivate(BOOL, CWnd*, CWnd*) {
    Default();
}

void CWnd::OnSetFocus(CWnd*) {
    Default();
}

void CWnd::OnKillFocus(CWnd*) {
    Default();
}

void CWnd::OnEnable(BOOL) {
    Default();
}

void CWnd::OnPaint() {
    Default();
}

BOOL CWnd::OnEraseBkgnd(CDC*) {
    return static_cast<BOOL>(Default());
}

void CWnd::OnShowWindow(BOOL, UINT) {
    Default();
}

void CWnd::OnCancelMode() {
    Default();
}

BOOL CWnd::OnQueryEndSession() {
    return static_cast<BOOL>(Default());
}

void CWnd::OnEndSession(BOOL) {
    Default();
}

BOOL CWnd::OnQueryOpen() {
    return static_cast<BOOL>(Default());
}

HCURSOR CWnd::OnQueryDragIcon() {
    return reinterpret_cast<HCURSOR>(Default());
}

void CWnd::OnTimeChange() {
    Default();
}

LRESULT CWnd::OnThemeChanged() {
    return Default();
}

BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT) {
    return static_cast<BOOL>(Default());
}

int CWnd::OnMouseActivate(CWnd*, UINT, UINT) {
    return static_cast<int>(Default());
}

void CWnd::OnGetMinMaxInfo(MINMAXINFO*) {
    Default();
}

void CWnd::OnWindowPosChanging(WINDOWPOS*) {
    Default();
}

void CWnd::OnWindowPosChanged(WINDOWPOS*) {
    Default();
}

void CWnd::OnStyleChanging(int, LPSTYLESTRUCT) {
    Default();
}

void CWnd::OnStyleChanged(int, LPSTYLESTRUCT) {
    Default();
}

void CWnd::OnContextMenu(CWnd*, CPoint) {
    Default();
}

BOOL CWnd::OnHelpInfo(HELPINFO*) {
    return static_cast<BOOL>(Default());
}

void CWnd::OnDropFiles(HDROP) {
    Default();
}

BOOL CWnd::OnCopyData(CWnd*, COPYDATASTRUCT*) {
    return static_cast<BOOL>(Default());
}

void CWnd::OnDrawClipboard() {
    Default();
}

void CWnd::OnChangeCbChain(HWND, HWND) {
    Default();
}

void CWnd::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) {
    Default();
}

LRESULT CWnd::OnNcHitTest(CPoint) {
    return Default();
}

void CWnd::OnNcPaint() {
    Default();
}

BOOL CWnd::OnNcActivate(BOOL) {
    return static_cast<BOOL>(Default());
}

void CWnd::OnNcMouseMove(UINT, CPoint) {
    Default();
}

void CWnd::OnNcLButtonDown(UINT, CPoint) {
    Default();
}

void CWnd::OnNcLButtonUp(UINT, CPoint) {
    Default();
}

void CWnd::OnNcLButtonDblClk(UINT, CPoint) {
    Default();
}

void CWnd::OnNcRButtonDown(UINT, CPoint) {
    Default();
}

void CWnd::OnNcRButtonUp(UINT, CPoint) {
    Default();
}

void CWnd::OnNcRButtonDblClk(UINT, CPoint) {
    Default();
}

void CWnd::OnNcMButtonDown(UINT, CPoint) {
    Default();
}

void CWnd::OnNcMButtonUp(UINT, CPoint) {
    Default();
}

void CWnd::OnNcMButtonDblClk(UINT, CPoint) {
    Default();
}

UINT CWnd::OnGetDlgCode() {
    return static_cast<UINT>(Default());
}

void CWnd::OnKeyDown(UINT, UINT, UINT) {
    Default();
}

void CWnd::OnKeyUp(UINT, UINT, UINT) {
    Default();
}

void CWnd::OnChar(UINT, UINT, UINT) {
    Default();
}

void CWnd::OnDeadChar(UINT, UINT, UINT) {
    Default();
}

void CWnd::OnSysKeyDown(UINT, UINT, UINT) {
    Default();
}

void CWnd::OnSysKeyUp(UINT, UINT, UINT) {
    Default();
}

void CWnd::OnSysChar(UINT, UINT, UINT) {
    Default();
}

void CWnd::OnSysDeadChar(UINT, UINT, UINT) {
    Default();
}

void CWnd::OnSysCommand(UINT, LPARAM) {
    Default();
}

void CWnd::OnTimer(UINT_PTR) {
    Default();
}

void CWnd::OnInitMenu(CMenu*) {
    Default();
}

void CWnd::OnInitMenuPopup(CMenu*, UINT, BOOL) {
    Default();
}

void CWnd::OnMenuSelect(UINT, UINT, HMENU) {
    Default();
}

LRESULT CWnd::OnMenuChar(UINT, UINT, CMenu*) {
    return Default();
}

void CWnd::OnEnterIdle(UINT, CWnd*) {
    Default();
}

void CWnd::OnEnterMenuLoop(BOOL) {
    Default();
}

void CWnd::OnExitMenuLoop(BOOL) {
    Default();
}

void CWnd::OnMouseMove(UINT, CPoint) {
    Default();
}

void CWnd::OnLButtonDown(UINT, CPoint) {
    Default();
}

void CWnd::OnLButtonUp(UINT, CPoint) {
    Default();
}

void CWnd::OnLButtonDblClk(UINT, CPoint) {
    Default();
}

void CWnd::OnRButtonDown(UINT, CPoint) {
    Default();
}

void CWnd::OnRButtonUp(UINT, CPoint) {
    Default();
}

void CWnd::OnRButtonDblClk(UINT, CPoint) {
    Default();
}

void CWnd::OnMButtonDown(UINT, CPoint) {
    Default();
}

void CWnd::OnMButtonUp(UINT, CPoint) {
    Default();
}

void CWnd::OnMButtonDblClk(UINT, CPoint) {
    Default();
}

void CWnd::OnXButtonDown(UINT, UINT, CPoint) {
    Default();
}

void CWnd::OnXButtonUp(UINT, UINT, CPoint) {
    Default();
}

void CWnd::OnXButtonDblClk(UINT, UINT, CPoint) {
    Default();
}

BOOL CWnd::OnMouseWheel(UINT, short, CPoint) {
    return static_cast<BOOL>(Default());
}

void CWnd::OnMouseHWheel(UINT, short, CPoint) {
    Default();
}

void CWnd::OnMouseHover(UINT, CPoint) {
    Default();
}

void CWnd::OnMouseLeave() {
    Default();
}

void CWnd::OnCaptureChanged(CWnd*) {
    Default();
}

BOOL CWnd::OnQueryNewPalette() {
    return static_cast<BOOL>(Default());
}

void CWnd::OnPaletteChanged(CWnd*) {
    Default();
}

void CWnd::OnPaletteIsChanging(CWnd*) {
    Default();
}

// Messages about a control go to the control first.

void CWnd::OnParentNotify(UINT message, LPARAM lParam) {
    const UINT nEvent = LOWORD(message);
    if ((nEvent == WM_CREATE || nEvent == WM_DESTROY) &&
        ReflectLastMsg(reinterpret_cast<HWND>(lParam))) {
        return;
    }
    Default();
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT) {
    LRESULT lResult = 0;
    if (pWnd != nullptr && pWnd->SendChildNotifyLastMsg(&lResult)) {
        return reinterpret_cast<HBRUSH>(lResult);
    }
    return reinterpret_cast<HBRUSH>(Default());
}

LRESULT CWnd::OnDragList(WPARAM, LPARAM lParam) {
    LRESULT lResult = 0;
    return ReflectLastMsg(reinterpret_cast<DRAGLISTINFO*>(lParam)->hWnd, &lResult) ? lResult
                                                                                   : Default();
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (pScrollBar == nullptr || !pScrollBar->SendChildNotifyLastMsg()) {
        Default();
    }
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (pScrollBar == nullptr || !pScrollBar->SendChildNotifyLastMsg()) {
        Default();
    }
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    if (lpDrawItemStruct->CtlType == ODT_MENU) {
        CMenu* pMenu =
            CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem));
        if (pMenu != nullptr) {
            pMenu->DrawItem(lpDrawItemStruct);
            return;
        }
    } else if (ReflectLastMsg(lpDrawItemStruct->hwndItem)) {
        return;
    }
    Default();
}

/// The menu object that has the item, below hMenu. WM_MEASUREITEM does not say which menu it means.
static CMenu* FindMenuOfItem(HMENU hMenu, UINT nID) {
    const int nCount = hMenu != nullptr ? ::GetMenuItemCount(hMenu) : 0;
    for (int nItem = 0; nItem < nCount; ++nItem) {
        if (HMENU hSubMenu = ::GetSubMenu(hMenu, nItem)) {
            if (CMenu* pMenu = FindMenuOfItem(hSubMenu, nID)) {
                return pMenu;
            }
        } else if (::GetMenuItemID(hMenu, nItem) == nID) {
            if (CMenu* pMenu = CMenu::FromHandlePermanent(hMenu)) {
                return pMenu;
            }
        }
    }
    return nullptr;
}

/// The child that items belong to. Whoever fills a control asks for the same one many times, and
/// the system searches.
static HWND FindChildOfItems(HWND hWnd, UINT nID) {
    HWND& hLast = AfxGetWndState().hLastMeasured;
    if (::GetParent(hLast) != hWnd || static_cast<UINT>(::GetDlgCtrlID(hLast)) != nID) {
        hLast = ::GetDlgItem(hWnd, static_cast<int>(nID));
    }
    return hLast;
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    if (lpMeasureItemStruct->CtlType == ODT_MENU) {
        CMenu* pMenu = FindMenuOfItem(AfxGetWndState().hLastPopup, lpMeasureItemStruct->itemID);
        if (pMenu == nullptr) {
            pMenu = FindMenuOfItem(::GetMenu(m_hWnd), lpMeasureItemStruct->itemID);
        }
        if (pMenu != nullptr) {
            pMenu->MeasureItem(lpMeasureItemStruct);
            return;
        }
    } else {
        HWND hWndChild = FindChildOfItems(m_hWnd, lpMeasureItemStruct->CtlID);
        if (hWndChild != nullptr && ReflectLastMsg(hWndChild)) {
            return;
        }
    }
    Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct) {
    LRESULT lResult = 0;
    if (ReflectLastMsg(lpCompareItemStruct->hwndItem, &lResult)) {
        return static_cast<int>(lResult);
    }
    return static_cast<int>(Default());
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem)) {
        Default();
    }
}

int CWnd::OnVKeyToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT lResult = 0;
    if (pListBox != nullptr && ReflectLastMsg(pListBox->m_hWnd, &lResult)) {
        return static_cast<int>(lResult);
    }
    return static_cast<int>(Default());
}

int CWnd::OnCharToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT lResult = 0;
    if (pListBox != nullptr && ReflectLastMsg(pListBox->m_hWnd, &lResult)) {
        return static_cast<int>(lResult);
    }
    return static_cast<int>(Default());
}

// Changes of the system are sent to top-level windows only; their children hear them from here.

static void PassDown(CWnd* pWnd) {
    if (!(pWnd->GetStyle() & WS_CHILD)) {
        const MSG msg = *CWnd::GetCurrentMessage();
        pWnd->SendMessageToDescendants(msg.message, msg.wParam, msg.lParam, TRUE, TRUE);
    }
}

void CWnd::OnSysColorChange() {
    PassDown(this);
    Default();
}

void CWnd::OnSettingChange(UINT, LPCTSTR) {
    PassDown(this);
    Default();
}

void CWnd::OnDevModeChange(LPTSTR) {
    PassDown(this);
    Default();
}

void CWnd::OnFontChange() {
    PassDown(this);
    Default();
}

void CWnd::OnDisplayChange(UINT, int, int) {
    PassDown(this);
    Default();
}

void CWnd::OnDestroy() {
    Default();
}
