// Toolbar.
#include "afx/controls/tool_bar_ctrl.h"

#include "afx/window/wnd_state.h"

#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

static HIMAGELIST ListHandle(const CImageList* pImageList) {
    return pImageList != nullptr ? pImageList->m_hImageList : nullptr;
}

BOOL CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    if (!CWnd::Create(TOOLBARCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID)) {
        return FALSE;
    }
    SetButtonStructSize(sizeof(TBBUTTON));
    return TRUE;
}

BOOL CToolBarCtrl::IsButtonEnabled(int nID) const {
    return AfxSend<BOOL>(m_hWnd, TB_ISBUTTONENABLED, nID);
}
BOOL CToolBarCtrl::IsButtonChecked(int nID) const {
    return AfxSend<BOOL>(m_hWnd, TB_ISBUTTONCHECKED, nID);
}
BOOL CToolBarCtrl::IsButtonPressed(int nID) const {
    return AfxSend<BOOL>(m_hWnd, TB_ISBUTTONPRESSED, nID);
}
BOOL CToolBarCtrl::IsButtonHidden(int nID) const {
    return AfxSend<BOOL>(m_hWnd, TB_ISBUTTONHIDDEN, nID);
}
BOOL CToolBarCtrl::IsButtonIndeterminate(int nID) const {
    return AfxSend<BOOL>(m_hWnd, TB_ISBUTTONINDETERMINATE, nID);
}
BOOL CToolBarCtrl::IsButtonHighlighted(int nID) const {
    return AfxSend<BOOL>(m_hWnd, TB_ISBUTTONHIGHLIGHTED, nID);
}
BOOL CToolBarCtrl::EnableButton(int nID, BOOL bOn) {
    return AfxSend<BOOL>(m_hWnd, TB_ENABLEBUTTON, nID, MAKELONG(bOn, 0));
}
BOOL CToolBarCtrl::CheckButton(int nID, BOOL bOn) {
    return AfxSend<BOOL>(m_hWnd, TB_CHECKBUTTON, nID, MAKELONG(bOn, 0));
}
BOOL CToolBarCtrl::PressButton(int nID, BOOL bOn) {
    return AfxSend<BOOL>(m_hWnd, TB_PRESSBUTTON, nID, MAKELONG(bOn, 0));
}
BOOL CToolBarCtrl::HideButton(int nID, BOOL bOn) {
    return AfxSend<BOOL>(m_hWnd, TB_HIDEBUTTON, nID, MAKELONG(bOn, 0));
}
BOOL CToolBarCtrl::Indeterminate(int nID, BOOL bOn) {
    return AfxSend<BOOL>(m_hWnd, TB_INDETERMINATE, nID, MAKELONG(bOn, 0));
}
BOOL CToolBarCtrl::MarkButton(int nID, BOOL bOn) {
    return AfxSend<BOOL>(m_hWnd, TB_MARKBUTTON, nID, MAKELONG(bOn, 0));
}
BOOL CToolBarCtrl::SetState(int nID, UINT nState) {
    return AfxSend<BOOL>(m_hWnd, TB_SETSTATE, nID, MAKELONG(nState, 0));
}
int CToolBarCtrl::GetState(int nID) const {
    return AfxSend<int>(m_hWnd, TB_GETSTATE, nID);
}
BOOL CToolBarCtrl::GetRect(int nID, LPRECT lpRect) const {
    return AfxSend<BOOL>(m_hWnd, TB_GETRECT, nID, lpRect);
}
int CToolBarCtrl::GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const {
    ptbbi->cbSize = sizeof *ptbbi;
    return AfxSend<int>(m_hWnd, TB_GETBUTTONINFO, nID, ptbbi);
}
BOOL CToolBarCtrl::SetButtonInfo(int nID, TBBUTTONINFO* ptbbi) {
    ptbbi->cbSize = sizeof *ptbbi;
    return AfxSend<BOOL>(m_hWnd, TB_SETBUTTONINFO, nID, ptbbi);
}
UINT CToolBarCtrl::CommandToIndex(UINT nID) const {
    return AfxSend<UINT>(m_hWnd, TB_COMMANDTOINDEX, nID);
}
int CToolBarCtrl::GetBitmap(int nID) const {
    return AfxSend<int>(m_hWnd, TB_GETBITMAP, nID);
}
BOOL CToolBarCtrl::ChangeBitmap(int idButton, int iBitmap) {
    return AfxSend<BOOL>(m_hWnd, TB_CHANGEBITMAP, idButton, MAKELONG(iBitmap, 0));
}
BOOL CToolBarCtrl::GetButton(int nIndex, LPTBBUTTON lpButton) const {
    return AfxSend<BOOL>(m_hWnd, TB_GETBUTTON, nIndex, lpButton);
}
int CToolBarCtrl::GetButtonCount() const {
    return AfxSend<int>(m_hWnd, TB_BUTTONCOUNT);
}
BOOL CToolBarCtrl::GetItemRect(int nIndex, LPRECT lpRect) const {
    return AfxSend<BOOL>(m_hWnd, TB_GETITEMRECT, nIndex, lpRect);
}
BOOL CToolBarCtrl::AddButtons(int nNumButtons, LPTBBUTTON lpButtons) {
    return AfxSend<BOOL>(m_hWnd, TB_ADDBUTTONS, nNumButtons, lpButtons);
}
BOOL CToolBarCtrl::InsertButton(int nIndex, LPTBBUTTON lpButton) {
    return AfxSend<BOOL>(m_hWnd, TB_INSERTBUTTON, nIndex, lpButton);
}
BOOL CToolBarCtrl::DeleteButton(int nIndex) {
    return AfxSend<BOOL>(m_hWnd, TB_DELETEBUTTON, nIndex);
}
BOOL CToolBarCtrl::MoveButton(UINT nOldPos, UINT nNewPos) {
    return AfxSend<BOOL>(m_hWnd, TB_MOVEBUTTON, nOldPos, nNewPos);
}
BOOL CToolBarCtrl::SetCmdID(int nIndex, UINT nID) {
    return AfxSend<BOOL>(m_hWnd, TB_SETCMDID, nIndex, nID);
}
int CToolBarCtrl::GetHotItem() const {
    return AfxSend<int>(m_hWnd, TB_GETHOTITEM);
}
int CToolBarCtrl::SetHotItem(int nHot) {
    return AfxSend<int>(m_hWnd, TB_SETHOTITEM, nHot);
}
int CToolBarCtrl::HitTest(LPPOINT ppt) const {
    return AfxSend<int>(m_hWnd, TB_HITTEST, 0, ppt);
}
void CToolBarCtrl::SetButtonStructSize(int nSize) {
    AfxSend(m_hWnd, TB_BUTTONSTRUCTSIZE, nSize);
}
CSize CToolBarCtrl::GetButtonSize() const {
    return CSize(AfxSend<DWORD>(m_hWnd, TB_GETBUTTONSIZE));
}
BOOL CToolBarCtrl::SetButtonSize(CSize size) {
    return AfxSend<BOOL>(m_hWnd, TB_SETBUTTONSIZE, 0, MAKELONG(size.cx, size.cy));
}
BOOL CToolBarCtrl::SetBitmapSize(CSize size) {
    return AfxSend<BOOL>(m_hWnd, TB_SETBITMAPSIZE, 0, MAKELONG(size.cx, size.cy));
}
BOOL CToolBarCtrl::SetButtonWidth(int cxMin, int cxMax) {
    return AfxSend<BOOL>(m_hWnd, TB_SETBUTTONWIDTH, 0, MAKELONG(cxMin, cxMax));
}
BOOL CToolBarCtrl::SetIndent(int iIndent) {
    return AfxSend<BOOL>(m_hWnd, TB_SETINDENT, iIndent);
}
BOOL CToolBarCtrl::SetMaxTextRows(int iMaxRows) {
    return AfxSend<BOOL>(m_hWnd, TB_SETMAXTEXTROWS, iMaxRows);
}
int CToolBarCtrl::GetMaxTextRows() const {
    return AfxSend<int>(m_hWnd, TB_GETTEXTROWS);
}
BOOL CToolBarCtrl::GetMaxSize(LPSIZE pSize) const {
    return AfxSend<BOOL>(m_hWnd, TB_GETMAXSIZE, 0, pSize);
}
void CToolBarCtrl::AutoSize() {
    AfxSend(m_hWnd, TB_AUTOSIZE);
}
void CToolBarCtrl::SetRows(int nRows, BOOL bLarger, LPRECT lpRect) {
    AfxSend(m_hWnd, TB_SETROWS, MAKELONG(nRows, bLarger), lpRect);
}
int CToolBarCtrl::GetRows() const {
    return AfxSend<int>(m_hWnd, TB_GETROWS);
}
UINT CToolBarCtrl::GetBitmapFlags() const {
    return AfxSend<UINT>(m_hWnd, TB_GETBITMAPFLAGS);
}
DWORD CToolBarCtrl::GetStyle() const {
    return AfxSend<DWORD>(m_hWnd, TB_GETSTYLE);
}
void CToolBarCtrl::SetStyle(DWORD dwStyle) {
    AfxSend(m_hWnd, TB_SETSTYLE, 0, dwStyle);
}
DWORD CToolBarCtrl::GetExtendedStyle() const {
    return AfxSend<DWORD>(m_hWnd, TB_GETEXTENDEDSTYLE);
}
DWORD CToolBarCtrl::SetExtendedStyle(DWORD dwExStyle) {
    return AfxSend<DWORD>(m_hWnd, TB_SETEXTENDEDSTYLE, 0, dwExStyle);
}
UINT CToolBarCtrl::SetDrawTextFlags(DWORD dwMask, DWORD dwDTFlags) {
    return AfxSend<UINT>(m_hWnd, TB_SETDRAWTEXTFLAGS, dwMask, dwDTFlags);
}
CToolTipCtrl* CToolBarCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, TB_GETTOOLTIPS)));
}
void CToolBarCtrl::SetToolTips(CToolTipCtrl* pTip) {
    AfxSend(m_hWnd, TB_SETTOOLTIPS, pTip->GetSafeHwnd());
}
void CToolBarCtrl::SetOwner(CWnd* pWnd) {
    CWnd::SetOwner(pWnd);
    AfxSend(m_hWnd, TB_SETPARENT, pWnd->GetSafeHwnd());
}

// Pictures and texts

int CToolBarCtrl::AddBitmap(int nNumButtons, UINT nBitmapID) {
    TBADDBITMAP add = {AfxFindResourceHandle(MAKEINTRESOURCE(nBitmapID), RT_BITMAP), nBitmapID};
    return AfxSend<int>(m_hWnd, TB_ADDBITMAP, nNumButtons, &add);
}
int CToolBarCtrl::AddBitmap(int nNumButtons, CBitmap* pBitmap) {
    TBADDBITMAP add = {nullptr, reinterpret_cast<UINT_PTR>(pBitmap->GetSafeHandle())};
    return AfxSend<int>(m_hWnd, TB_ADDBITMAP, nNumButtons, &add);
}
int CToolBarCtrl::AddString(UINT nStringID) {
    CString strText;
    if (!strText.LoadString(nStringID)) {
        return -1;
    }
    strText.AppendChar('\0');
    return AddStrings(strText);
}
int CToolBarCtrl::AddStrings(LPCTSTR lpszStrings) {
    return AfxSend<int>(m_hWnd, TB_ADDSTRING, 0, lpszStrings);
}
CImageList* CToolBarCtrl::GetImageList() const {
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(m_hWnd, TB_GETIMAGELIST));
}
CImageList* CToolBarCtrl::SetImageList(CImageList* pImageList) {
    return CImageList::FromHandle(
        AfxSend<HIMAGELIST>(m_hWnd, TB_SETIMAGELIST, 0, ListHandle(pImageList)));
}
CImageList* CToolBarCtrl::GetHotImageList() const {
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(m_hWnd, TB_GETHOTIMAGELIST));
}
CImageList* CToolBarCtrl::SetHotImageList(CImageList* pImageList) {
    return CImageList::FromHandle(
        AfxSend<HIMAGELIST>(m_hWnd, TB_SETHOTIMAGELIST, 0, ListHandle(pImageList)));
}
CImageList* CToolBarCtrl::GetDisabledImageList() const {
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(m_hWnd, TB_GETDISABLEDIMAGELIST));
}
CImageList* CToolBarCtrl::SetDisabledImageList(CImageList* pImageList) {
    return CImageList::FromHandle(
        AfxSend<HIMAGELIST>(m_hWnd, TB_SETDISABLEDIMAGELIST, 0, ListHandle(pImageList)));
}
void CToolBarCtrl::LoadImages(int iBitmapID, HINSTANCE hinst) {
    AfxSend(m_hWnd, TB_LOADIMAGES, iBitmapID, hinst);
}

static void KeepState(HWND hWnd, BOOL bSave, HKEY hKeyRoot, LPCTSTR lpszSubKey,
                      LPCTSTR lpszValueName) {
    TBSAVEPARAMS params = {hKeyRoot, lpszSubKey, lpszValueName};
    AfxSend(hWnd, TB_SAVERESTORE, bSave, &params);
}
void CToolBarCtrl::SaveState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName) {
    KeepState(m_hWnd, TRUE, hKeyRoot, lpszSubKey, lpszValueName);
}
void CToolBarCtrl::RestoreState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName) {
    KeepState(m_hWnd, FALSE, hKeyRoot, lpszSubKey, lpszValueName);
}
void CToolBarCtrl::Customize() {
    AfxSend(m_hWnd, TB_CUSTOMIZE);
}
