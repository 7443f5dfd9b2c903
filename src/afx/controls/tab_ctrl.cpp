// Tabs.
#include "afx/controls/tab_ctrl.h"

#include "afx/window/wnd_state.h"

#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

static HIMAGELIST ListHandle(const CImageList* pImageList) {
    return pImageList != nullptr ? pImageList->m_hImageList : nullptr;
}

static HWND HandleOf(const CWnd* pWnd) {
    return pWnd != nullptr ? pWnd->m_hWnd : nullptr;
}

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_TABCONTROL, nullptr, dwStyle, rect, pParentWnd, nID);
}

CImageList* CTabCtrl::GetImageList() const {
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(m_hWnd, TCM_GETIMAGELIST));
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList) {
    return CImageList::FromHandle(
        AfxSend<HIMAGELIST>(m_hWnd, TCM_SETIMAGELIST, 0, ListHandle(pImageList)));
}

int CTabCtrl::GetItemCount() const {
    return AfxSend<int>(m_hWnd, TCM_GETITEMCOUNT);
}

BOOL CTabCtrl::GetItem(int nItem, TCITEM* pTabCtrlItem) const {
    return AfxSend<BOOL>(m_hWnd, TCM_GETITEM, nItem, pTabCtrlItem);
}

BOOL CTabCtrl::SetItem(int nItem, TCITEM* pTabCtrlItem) {
    return AfxSend<BOOL>(m_hWnd, TCM_SETITEM, nItem, pTabCtrlItem);
}

BOOL CTabCtrl::SetItemExtra(int nBytes) {
    return AfxSend<BOOL>(m_hWnd, TCM_SETITEMEXTRA, nBytes);
}

BOOL CTabCtrl::GetItemRect(int nItem, LPRECT lpRect) const {
    return AfxSend<BOOL>(m_hWnd, TCM_GETITEMRECT, nItem, lpRect);
}

int CTabCtrl::GetCurSel() const {
    return AfxSend<int>(m_hWnd, TCM_GETCURSEL);
}

int CTabCtrl::SetCurSel(int nItem) {
    return AfxSend<int>(m_hWnd, TCM_SETCURSEL, nItem);
}

void CTabCtrl::SetCurFocus(int nItem) {
    AfxSend(m_hWnd, TCM_SETCURFOCUS, nItem);
}

int CTabCtrl::GetCurFocus() const {
    return AfxSend<int>(m_hWnd, TCM_GETCURFOCUS);
}

CSize CTabCtrl::SetItemSize(CSize size) {
    const DWORD dwOld = AfxSend<DWORD>(m_hWnd, TCM_SETITEMSIZE, 0, MAKELONG(size.cx, size.cy));
    return CSize(LOWORD(dwOld), HIWORD(dwOld));
}

void CTabCtrl::SetPadding(CSize size) {
    AfxSend(m_hWnd, TCM_SETPADDING, 0, MAKELONG(size.cx, size.cy));
}

int CTabCtrl::GetRowCount() const {
    return AfxSend<int>(m_hWnd, TCM_GETROWCOUNT);
}

CToolTipCtrl* CTabCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, TCM_GETTOOLTIPS)));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    AfxSend(m_hWnd, TCM_SETTOOLTIPS, HandleOf(pWndTip));
}

int CTabCtrl::SetMinTabWidth(int cx) {
    return AfxSend<int>(m_hWnd, TCM_SETMINTABWIDTH, 0, cx);
}

DWORD CTabCtrl::GetExtendedStyle() {
    return AfxSend<DWORD>(m_hWnd, TCM_GETEXTENDEDSTYLE);
}

DWORD CTabCtrl::SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask) {
    return AfxSend<DWORD>(m_hWnd, TCM_SETEXTENDEDSTYLE, dwExMask, dwNewStyle);
}

DWORD CTabCtrl::GetItemState(int nItem, DWORD dwMask) const {
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    return GetItem(nItem, &item) ? item.dwState & dwMask : 0;
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState) {
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwState = dwState;
    item.dwStateMask = dwMask;
    return SetItem(nItem, &item);
}

LONG CTabCtrl::InsertItem(int nItem, TCITEM* pTabCtrlItem) {
    return AfxSend<LONG>(m_hWnd, TCM_INSERTITEM, nItem, pTabCtrlItem);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem) {
    return InsertItem(TCIF_TEXT, nItem, lpszItem, 0, 0);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
    return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam) {
    TCITEM item = {};
    item.mask = nMask;
    item.iImage = nImage;
    item.lParam = lParam;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    return InsertItem(nItem, &item);
}

BOOL CTabCtrl::DeleteItem(int nItem) {
    return AfxSend<BOOL>(m_hWnd, TCM_DELETEITEM, nItem);
}

BOOL CTabCtrl::DeleteAllItems() {
    return AfxSend<BOOL>(m_hWnd, TCM_DELETEALLITEMS);
}

void CTabCtrl::AdjustRect(BOOL bLarger, LPRECT lpRect) {
    AfxSend(m_hWnd, TCM_ADJUSTRECT, bLarger, lpRect);
}

void CTabCtrl::RemoveImage(int nImage) {
    AfxSend(m_hWnd, TCM_REMOVEIMAGE, nImage);
}

int CTabCtrl::HitTest(TCHITTESTINFO* pHitTestInfo) const {
    return AfxSend<int>(m_hWnd, TCM_HITTEST, 0, pHitTestInfo);
}

void CTabCtrl::DeselectAll(BOOL fExcludeFocus) {
    AfxSend(m_hWnd, TCM_DESELECTALL, fExcludeFocus);
}

BOOL CTabCtrl::HighlightItem(int idItem, BOOL fHighlight) {
    return AfxSend<BOOL>(m_hWnd, TCM_HIGHLIGHTITEM, idItem, MAKELONG(fHighlight, 0));
}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
        case WM_DRAWITEM:
            DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
            *pResult = TRUE;
            return TRUE;
        default:
            return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT) {}
