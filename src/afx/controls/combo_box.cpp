// Combo box.
#include "afx/window/wnd_state.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("COMBOBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

int CComboBox::GetCount() const {
    return AfxSend<int>(m_hWnd, CB_GETCOUNT);
}

int CComboBox::GetCurSel() const {
    return AfxSend<int>(m_hWnd, CB_GETCURSEL);
}

int CComboBox::SetCurSel(int nSelect) {
    return AfxSend<int>(m_hWnd, CB_SETCURSEL, nSelect);
}

LCID CComboBox::GetLocale() const {
    return AfxSend<LCID>(m_hWnd, CB_GETLOCALE);
}

LCID CComboBox::SetLocale(LCID nNewLocale) {
    return AfxSend<LCID>(m_hWnd, CB_SETLOCALE, nNewLocale);
}

int CComboBox::GetTopIndex() const {
    return AfxSend<int>(m_hWnd, CB_GETTOPINDEX);
}

int CComboBox::SetTopIndex(int nIndex) {
    return AfxSend<int>(m_hWnd, CB_SETTOPINDEX, nIndex);
}

int CComboBox::InitStorage(int nItems, UINT nBytes) {
    return AfxSend<int>(m_hWnd, CB_INITSTORAGE, nItems, nBytes);
}

void CComboBox::SetHorizontalExtent(UINT nExtent) {
    AfxSend(m_hWnd, CB_SETHORIZONTALEXTENT, nExtent);
}

UINT CComboBox::GetHorizontalExtent() const {
    return AfxSend<UINT>(m_hWnd, CB_GETHORIZONTALEXTENT);
}

int CComboBox::SetDroppedWidth(UINT nWidth) {
    return AfxSend<int>(m_hWnd, CB_SETDROPPEDWIDTH, nWidth);
}

int CComboBox::GetDroppedWidth() const {
    return AfxSend<int>(m_hWnd, CB_GETDROPPEDWIDTH);
}

DWORD CComboBox::GetEditSel() const {
    return AfxSend<DWORD>(m_hWnd, CB_GETEDITSEL);
}

BOOL CComboBox::LimitText(int nMaxChars) {
    return AfxSend<BOOL>(m_hWnd, CB_LIMITTEXT, nMaxChars);
}

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar) {
    return AfxSend<BOOL>(m_hWnd, CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar));
}

DWORD_PTR CComboBox::GetItemData(int nIndex) const {
    return AfxSend<DWORD_PTR>(m_hWnd, CB_GETITEMDATA, nIndex);
}

int CComboBox::SetItemData(int nIndex, DWORD_PTR dwItemData) {
    return AfxSend<int>(m_hWnd, CB_SETITEMDATA, nIndex, dwItemData);
}

void* CComboBox::GetItemDataPtr(int nIndex) const {
    return AfxSend<void*>(m_hWnd, CB_GETITEMDATA, nIndex);
}

int CComboBox::SetItemDataPtr(int nIndex, void* pData) {
    return AfxSend<int>(m_hWnd, CB_SETITEMDATA, nIndex, pData);
}

int CComboBox::GetLBText(int nIndex, LPTSTR lpszText) const {
    return AfxSend<int>(m_hWnd, CB_GETLBTEXT, nIndex, lpszText);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const {
    const int nLength = GetLBTextLen(nIndex);
    rString.Empty();
    if (nLength >= 0) {
        GetLBText(nIndex, rString.GetBuffer(nLength));
        rString.ReleaseBuffer();
    }
}

int CComboBox::GetLBTextLen(int nIndex) const {
    return AfxSend<int>(m_hWnd, CB_GETLBTEXTLEN, nIndex);
}

int CComboBox::SetItemHeight(int nIndex, UINT cyItemHeight) {
    return AfxSend<int>(m_hWnd, CB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
}

int CComboBox::GetItemHeight(int nIndex) const {
    return AfxSend<int>(m_hWnd, CB_GETITEMHEIGHT, nIndex);
}

int CComboBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
    return AfxSend<int>(m_hWnd, CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

int CComboBox::SetExtendedUI(BOOL bExtended) {
    return AfxSend<int>(m_hWnd, CB_SETEXTENDEDUI, bExtended);
}

BOOL CComboBox::GetExtendedUI() const {
    return AfxSend<BOOL>(m_hWnd, CB_GETEXTENDEDUI);
}

void CComboBox::GetDroppedControlRect(LPRECT lprect) const {
    AfxSend(m_hWnd, CB_GETDROPPEDCONTROLRECT, 0, lprect);
}

BOOL CComboBox::GetDroppedState() const {
    return AfxSend<BOOL>(m_hWnd, CB_GETDROPPEDSTATE);
}

void CComboBox::ShowDropDown(BOOL bShowIt) {
    AfxSend(m_hWnd, CB_SHOWDROPDOWN, bShowIt);
}

int CComboBox::AddString(LPCTSTR lpszString) {
    return AfxSend<int>(m_hWnd, CB_ADDSTRING, 0, lpszString);
}

int CComboBox::DeleteString(UINT nIndex) {
    return AfxSend<int>(m_hWnd, CB_DELETESTRING, nIndex);
}

int CComboBox::InsertString(int nIndex, LPCTSTR lpszString) {
    return AfxSend<int>(m_hWnd, CB_INSERTSTRING, nIndex, lpszString);
}

void CComboBox::ResetContent() {
    AfxSend(m_hWnd, CB_RESETCONTENT);
}

int CComboBox::Dir(UINT attr, LPCTSTR lpszWildCard) {
    return AfxSend<int>(m_hWnd, CB_DIR, attr, lpszWildCard);
}

int CComboBox::FindString(int nStartAfter, LPCTSTR lpszString) const {
    return AfxSend<int>(m_hWnd, CB_FINDSTRING, nStartAfter, lpszString);
}

int CComboBox::SelectString(int nStartAfter, LPCTSTR lpszString) {
    return AfxSend<int>(m_hWnd, CB_SELECTSTRING, nStartAfter, lpszString);
}

void CComboBox::Clear() {
    AfxSend(m_hWnd, WM_CLEAR);
}

void CComboBox::Copy() {
    AfxSend(m_hWnd, WM_COPY);
}

void CComboBox::Cut() {
    AfxSend(m_hWnd, WM_CUT);
}

void CComboBox::Paste() {
    AfxSend(m_hWnd, WM_PASTE);
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
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
        default:
            return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}
