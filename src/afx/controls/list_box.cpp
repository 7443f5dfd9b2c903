// List box.
#include "afx/window/wnd_state.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CListBox, CWnd)

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("LISTBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

int CListBox::GetCount() const {
    return AfxSend<int>(m_hWnd, LB_GETCOUNT);
}

int CListBox::GetHorizontalExtent() const {
    return AfxSend<int>(m_hWnd, LB_GETHORIZONTALEXTENT);
}

void CListBox::SetHorizontalExtent(int cxExtent) {
    AfxSend(m_hWnd, LB_SETHORIZONTALEXTENT, cxExtent);
}

int CListBox::GetTopIndex() const {
    return AfxSend<int>(m_hWnd, LB_GETTOPINDEX);
}

int CListBox::SetTopIndex(int nIndex) {
    return AfxSend<int>(m_hWnd, LB_SETTOPINDEX, nIndex);
}

LCID CListBox::GetLocale() const {
    return AfxSend<LCID>(m_hWnd, LB_GETLOCALE);
}

LCID CListBox::SetLocale(LCID nNewLocale) {
    return AfxSend<LCID>(m_hWnd, LB_SETLOCALE, nNewLocale);
}

int CListBox::InitStorage(int nItems, UINT nBytes) {
    return AfxSend<int>(m_hWnd, LB_INITSTORAGE, nItems, nBytes);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const {
    const DWORD dwResult = AfxSend<DWORD>(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELONG(pt.x, pt.y));
    bOutside = HIWORD(dwResult);
    return LOWORD(dwResult);
}

int CListBox::GetCurSel() const {
    return AfxSend<int>(m_hWnd, LB_GETCURSEL);
}

int CListBox::SetCurSel(int nSelect) {
    return AfxSend<int>(m_hWnd, LB_SETCURSEL, nSelect);
}

int CListBox::GetSel(int nIndex) const {
    return AfxSend<int>(m_hWnd, LB_GETSEL, nIndex);
}

int CListBox::SetSel(int nIndex, BOOL bSelect) {
    return AfxSend<int>(m_hWnd, LB_SETSEL, bSelect, nIndex);
}

int CListBox::GetSelCount() const {
    return AfxSend<int>(m_hWnd, LB_GETSELCOUNT);
}

int CListBox::GetSelItems(int nMaxItems, LPINT rgIndex) const {
    return AfxSend<int>(m_hWnd, LB_GETSELITEMS, nMaxItems, rgIndex);
}

void CListBox::SetAnchorIndex(int nIndex) {
    AfxSend(m_hWnd, LB_SETANCHORINDEX, nIndex);
}

int CListBox::GetAnchorIndex() const {
    return AfxSend<int>(m_hWnd, LB_GETANCHORINDEX);
}

DWORD_PTR CListBox::GetItemData(int nIndex) const {
    return AfxSend<DWORD_PTR>(m_hWnd, LB_GETITEMDATA, nIndex);
}

int CListBox::SetItemData(int nIndex, DWORD_PTR dwItemData) {
    return AfxSend<int>(m_hWnd, LB_SETITEMDATA, nIndex, dwItemData);
}

void* CListBox::GetItemDataPtr(int nIndex) const {
    return AfxSend<void*>(m_hWnd, LB_GETITEMDATA, nIndex);
}

int CListBox::SetItemDataPtr(int nIndex, void* pData) {
    return AfxSend<int>(m_hWnd, LB_SETITEMDATA, nIndex, pData);
}

int CListBox::GetItemRect(int nIndex, LPRECT lpRect) const {
    return AfxSend<int>(m_hWnd, LB_GETITEMRECT, nIndex, lpRect);
}

int CListBox::GetText(int nIndex, LPTSTR lpszBuffer) const {
    return AfxSend<int>(m_hWnd, LB_GETTEXT, nIndex, lpszBuffer);
}

void CListBox::GetText(int nIndex, CString& rString) const {
    const int nLength = GetTextLen(nIndex);
    rString.Empty();
    if (nLength >= 0) {
        GetText(nIndex, rString.GetBuffer(nLength));
        rString.ReleaseBuffer();
    }
}

int CListBox::GetTextLen(int nIndex) const {
    return AfxSend<int>(m_hWnd, LB_GETTEXTLEN, nIndex);
}

void CListBox::SetColumnWidth(int cxWidth) {
    AfxSend(m_hWnd, LB_SETCOLUMNWIDTH, cxWidth);
}

BOOL CListBox::SetTabStops(int nTabStops, LPINT rgTabStops) {
    return AfxSend<BOOL>(m_hWnd, LB_SETTABSTOPS, nTabStops, rgTabStops);
}

void CListBox::SetTabStops() {
    AfxSend(m_hWnd, LB_SETTABSTOPS);
}

BOOL CListBox::SetTabStops(const int& cxEachStop) {
    return AfxSend<BOOL>(m_hWnd, LB_SETTABSTOPS, 1, &cxEachStop);
}

int CListBox::SetItemHeight(int nIndex, UINT cyItemHeight) {
    return AfxSend<int>(m_hWnd, LB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
}

int CListBox::GetItemHeight(int nIndex) const {
    return AfxSend<int>(m_hWnd, LB_GETITEMHEIGHT, nIndex);
}

int CListBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
    return AfxSend<int>(m_hWnd, LB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

int CListBox::GetCaretIndex() const {
    return AfxSend<int>(m_hWnd, LB_GETCARETINDEX);
}

int CListBox::SetCaretIndex(int nIndex, BOOL bScroll) {
    return AfxSend<int>(m_hWnd, LB_SETCARETINDEX, nIndex, MAKELONG(bScroll, 0));
}

int CListBox::AddString(LPCTSTR lpszItem) {
    return AfxSend<int>(m_hWnd, LB_ADDSTRING, 0, lpszItem);
}

int CListBox::DeleteString(UINT nIndex) {
    return AfxSend<int>(m_hWnd, LB_DELETESTRING, nIndex);
}

int CListBox::InsertString(int nIndex, LPCTSTR lpszItem) {
    return AfxSend<int>(m_hWnd, LB_INSERTSTRING, nIndex, lpszItem);
}

void CListBox::ResetContent() {
    AfxSend(m_hWnd, LB_RESETCONTENT);
}

int CListBox::Dir(UINT attr, LPCTSTR lpszWildCard) {
    return AfxSend<int>(m_hWnd, LB_DIR, attr, lpszWildCard);
}

int CListBox::FindString(int nStartAfter, LPCTSTR lpszItem) const {
    return AfxSend<int>(m_hWnd, LB_FINDSTRING, nStartAfter, lpszItem);
}

int CListBox::SelectString(int nStartAfter, LPCTSTR lpszItem) {
    return AfxSend<int>(m_hWnd, LB_SELECTSTRING, nStartAfter, lpszItem);
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem) {
    return bSelect ? AfxSend<int>(m_hWnd, LB_SELITEMRANGEEX, nFirstItem, nLastItem)
                   : AfxSend<int>(m_hWnd, LB_SELITEMRANGEEX, nLastItem, nFirstItem);
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
        case WM_DRAWITEM:
            DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
            *pResult = TRUE;
            return TRUE;
        case WM_MEASUREITEM:
            MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
            *pResult = TRUE;
            return TRUE;
        case WM_COMPAREITEM:
            *pResult = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
            return TRUE;
        case WM_DELETEITEM:
            DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
            *pResult = TRUE;
            return TRUE;
        case WM_VKEYTOITEM:
            *pResult = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
            return TRUE;
        case WM_CHARTOITEM:
            *pResult = CharToItem(LOWORD(wParam), HIWORD(wParam));
            return TRUE;
        default:
            return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}

int CListBox::VKeyToItem(UINT, UINT) {
    return static_cast<int>(Default());
}

int CListBox::CharToItem(UINT, UINT) {
    return static_cast<int>(Default());
}
