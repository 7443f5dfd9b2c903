// List view.
#include "afx/controls/list_ctrl.h"

#include "afx/drawing/owned_handles.h"
#include "afx/window/wnd_state.h"

#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

static HIMAGELIST ListHandle(const CImageList* pImageList) {
    return pImageList != nullptr ? pImageList->m_hImageList : nullptr;
}

static HWND HandleOf(const CWnd* pWnd) {
    return pWnd != nullptr ? pWnd->m_hWnd : nullptr;
}

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_LISTVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CListCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                         UINT nID) {
    return CWnd::CreateEx(dwExStyle, WC_LISTVIEW, nullptr, dwStyle | WS_CHILD, rect, pParentWnd,
                          nID);
}

COLORREF CListCtrl::GetBkColor() const {
    return AfxSend<COLORREF>(m_hWnd, LVM_GETBKCOLOR);
}

BOOL CListCtrl::SetBkColor(COLORREF cr) {
    return AfxSend<BOOL>(m_hWnd, LVM_SETBKCOLOR, 0, cr);
}

COLORREF CListCtrl::GetTextColor() const {
    return AfxSend<COLORREF>(m_hWnd, LVM_GETTEXTCOLOR);
}

BOOL CListCtrl::SetTextColor(COLORREF cr) {
    return AfxSend<BOOL>(m_hWnd, LVM_SETTEXTCOLOR, 0, cr);
}

COLORREF CListCtrl::GetTextBkColor() const {
    return AfxSend<COLORREF>(m_hWnd, LVM_GETTEXTBKCOLOR);
}

BOOL CListCtrl::SetTextBkColor(COLORREF cr) {
    return AfxSend<BOOL>(m_hWnd, LVM_SETTEXTBKCOLOR, 0, cr);
}

CImageList* CListCtrl::GetImageList(int nImageList) const {
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(m_hWnd, LVM_GETIMAGELIST, nImageList));
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType) {
    return CImageList::FromHandle(
        AfxSend<HIMAGELIST>(m_hWnd, LVM_SETIMAGELIST, nImageListType, ListHandle(pImageList)));
}

UINT CListCtrl::GetCallbackMask() const {
    return AfxSend<UINT>(m_hWnd, LVM_GETCALLBACKMASK);
}

BOOL CListCtrl::SetCallbackMask(UINT nMask) {
    return AfxSend<BOOL>(m_hWnd, LVM_SETCALLBACKMASK, nMask);
}

DWORD CListCtrl::GetExtendedStyle() {
    return AfxSend<DWORD>(m_hWnd, LVM_GETEXTENDEDLISTVIEWSTYLE);
}

DWORD CListCtrl::SetExtendedStyle(DWORD dwNewStyle) {
    return AfxSend<DWORD>(m_hWnd, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() {
    return static_cast<CHeaderCtrl*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, LVM_GETHEADER)));
}

CEdit* CListCtrl::GetEditControl() const {
    return static_cast<CEdit*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, LVM_GETEDITCONTROL)));
}

CToolTipCtrl* CListCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, LVM_GETTOOLTIPS)));
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    return static_cast<CToolTipCtrl*>(
        CWnd::FromHandle(AfxSend<HWND>(m_hWnd, LVM_SETTOOLTIPS, HandleOf(pWndTip))));
}

CSize CListCtrl::SetIconSpacing(int cx, int cy) {
    const DWORD dwOld = AfxSend<DWORD>(m_hWnd, LVM_SETICONSPACING, 0, MAKELONG(cx, cy));
    return CSize(LOWORD(dwOld), HIWORD(dwOld));
}

CSize CListCtrl::SetIconSpacing(CSize size) {
    return SetIconSpacing(size.cx, size.cy);
}

HCURSOR CListCtrl::GetHotCursor() {
    return AfxSend<HCURSOR>(m_hWnd, LVM_GETHOTCURSOR);
}

HCURSOR CListCtrl::SetHotCursor(HCURSOR hc) {
    return AfxSend<HCURSOR>(m_hWnd, LVM_SETHOTCURSOR, 0, hc);
}

int CListCtrl::GetHotItem() {
    return AfxSend<int>(m_hWnd, LVM_GETHOTITEM);
}

int CListCtrl::SetHotItem(int iIndex) {
    return AfxSend<int>(m_hWnd, LVM_SETHOTITEM, iIndex);
}

CSize CListCtrl::GetItemSpacing(BOOL bSmall) const {
    const DWORD dw = AfxSend<DWORD>(m_hWnd, LVM_GETITEMSPACING, bSmall);
    return CSize(LOWORD(dw), HIWORD(dw));
}

CSize CListCtrl::ApproximateViewRect(CSize sz, int iCount) const {
    const DWORD dw =
        AfxSend<DWORD>(m_hWnd, LVM_APPROXIMATEVIEWRECT, iCount, MAKELONG(sz.cx, sz.cy));
    return CSize(LOWORD(dw), HIWORD(dw));
}

int CListCtrl::GetStringWidth(LPCTSTR lpsz) const {
    return AfxSend<int>(m_hWnd, LVM_GETSTRINGWIDTH, 0, lpsz);
}

int CListCtrl::GetItemCount() const {
    return AfxSend<int>(m_hWnd, LVM_GETITEMCOUNT);
}

void CListCtrl::SetItemCount(int nItems) {
    AfxSend(m_hWnd, LVM_SETITEMCOUNT, nItems);
}

BOOL CListCtrl::SetItemCountEx(int iCount, DWORD dwFlags) {
    return AfxSend<BOOL>(m_hWnd, LVM_SETITEMCOUNT, iCount, dwFlags);
}

BOOL CListCtrl::GetItem(LVITEM* pItem) const {
    return AfxSend<BOOL>(m_hWnd, LVM_GETITEM, 0, pItem);
}

BOOL CListCtrl::SetItem(const LVITEM* pItem) {
    return AfxSend<BOOL>(m_hWnd, LVM_SETITEM, 0, pItem);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage,
                        UINT nState, UINT nStateMask, LPARAM lParam) {
    return SetItem(nItem, nSubItem, nMask, lpszItem, nImage, nState, nStateMask, lParam, 0);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage,
                        UINT nState, UINT nStateMask, LPARAM lParam, int nIndent) {
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.state = nState;
    item.stateMask = nStateMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    item.iIndent = nIndent;
    return AfxSend<BOOL>(m_hWnd, LVM_SETITEM, 0, &item);
}

int CListCtrl::GetNextItem(int nItem, int nFlags) const {
    return AfxSend<int>(m_hWnd, LVM_GETNEXTITEM, nItem, MAKELONG(nFlags, 0));
}

POSITION CListCtrl::GetFirstSelectedItemPosition()
    const {  // positions count from one, as null means none
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(1 + GetNextItem(-1, LVNI_SELECTED)));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const {
    const int nItem = static_cast<int>(reinterpret_cast<INT_PTR>(pos)) - 1;
    pos = reinterpret_cast<POSITION>(static_cast<INT_PTR>(1 + GetNextItem(nItem, LVNI_SELECTED)));
    return nItem;
}

int CListCtrl::GetSelectionMark() {
    return AfxSend<int>(m_hWnd, LVM_GETSELECTIONMARK);
}

int CListCtrl::SetSelectionMark(int iIndex) {
    return AfxSend<int>(m_hWnd, LVM_SETSELECTIONMARK, 0, iIndex);
}

UINT CListCtrl::GetSelectedCount() const {
    return AfxSend<UINT>(m_hWnd, LVM_GETSELECTEDCOUNT);
}

UINT CListCtrl::GetItemState(int nItem, UINT nMask) const {
    return AfxSend<UINT>(m_hWnd, LVM_GETITEMSTATE, nItem, nMask);
}

BOOL CListCtrl::SetItemState(int nItem, LVITEM* pItem) {
    return AfxSend<BOOL>(m_hWnd, LVM_SETITEMSTATE, nItem, pItem);
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask) {
    LVITEM item = {};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

BOOL CListCtrl::GetCheck(int nItem) const {
    return static_cast<int>(GetItemState(nItem, LVIS_STATEIMAGEMASK) >> 12) - 1 > 0;
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck) {
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), LVIS_STATEIMAGEMASK);
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const {
    LVITEM item = {};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    AfxSend(m_hWnd, LVM_GETITEM, 0, &item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData) {
    return SetItem(nItem, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(dwData));
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const {
    CString str;
    for (int nRoom = 128;; nRoom *= 2) {
        const int nLength = GetItemText(nItem, nSubItem, str.GetBuffer(nRoom), nRoom + 1);
        str.ReleaseBuffer(nLength);
        // a text that fills the room may have been cut
        if (nLength < nRoom) {
            return str;
        }
    }
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const {
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = lpszText;
    item.cchTextMax = nLen;
    return AfxSend<int>(m_hWnd, LVM_GETITEMTEXT, nItem, &item);
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText) {
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return AfxSend<BOOL>(m_hWnd, LVM_SETITEMTEXT, nItem, &item);
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const {
    lpRect->left = static_cast<LONG>(nCode);
    return AfxSend<BOOL>(m_hWnd, LVM_GETITEMRECT, nItem, lpRect);
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) {
    RECT rect = {nArea, iSubItem, 0, 0};
    const BOOL bDone = AfxSend<BOOL>(m_hWnd, LVM_GETSUBITEMRECT, iItem, &rect);
    if (bDone) {
        ref = rect;
    }
    return bDone;
}

BOOL CListCtrl::GetItemPosition(int nItem, LPPOINT lpPoint) const {
    return AfxSend<BOOL>(m_hWnd, LVM_GETITEMPOSITION, nItem, lpPoint);
}

BOOL CListCtrl::SetItemPosition(int nItem, POINT pt) {
    return AfxSend<BOOL>(m_hWnd, LVM_SETITEMPOSITION32, nItem, &pt);
}

BOOL CListCtrl::GetOrigin(LPPOINT lpPoint) const {
    return AfxSend<BOOL>(m_hWnd, LVM_GETORIGIN, 0, lpPoint);
}

BOOL CListCtrl::GetViewRect(LPRECT lpRect) const {
    return AfxSend<BOOL>(m_hWnd, LVM_GETVIEWRECT, 0, lpRect);
}

int CListCtrl::GetTopIndex() const {
    return AfxSend<int>(m_hWnd, LVM_GETTOPINDEX);
}

int CListCtrl::GetCountPerPage() const {
    return AfxSend<int>(m_hWnd, LVM_GETCOUNTPERPAGE);
}

int CListCtrl::InsertItem(const LVITEM* pItem) {
    return AfxSend<int>(m_hWnd, LVM_INSERTITEM, 0, pItem);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem) {
    return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask,
                          int nImage, LPARAM lParam) {
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

BOOL CListCtrl::DeleteItem(int nItem) {
    return AfxSend<BOOL>(m_hWnd, LVM_DELETEITEM, nItem);
}

BOOL CListCtrl::DeleteAllItems() {
    return AfxSend<BOOL>(m_hWnd, LVM_DELETEALLITEMS);
}

int CListCtrl::FindItem(LVFINDINFO* pFindInfo, int nStart) const {
    return AfxSend<int>(m_hWnd, LVM_FINDITEM, nStart, pFindInfo);
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData) {
    AfxCompareGuard guard(pfnCompare, static_cast<LPARAM>(dwData));
    const BOOL bSorted =
        AfxSend<BOOL>(m_hWnd, LVM_SORTITEMS, guard.Param(), &AfxCompareGuard::Call);
    return guard.Result(bSorted, m_hWnd, LVM_SORTITEMS);
}

int CListCtrl::HitTest(LVHITTESTINFO* pHitTestInfo) const {
    return AfxSend<int>(m_hWnd, LVM_HITTEST, 0, pHitTestInfo);
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    LVHITTESTINFO info = {};
    info.pt = pt;
    const int nItem = HitTest(&info);
    if (pFlags != nullptr) {
        *pFlags = info.flags;
    }
    return nItem;
}

int CListCtrl::SubItemHitTest(LPLVHITTESTINFO pInfo) {
    return AfxSend<int>(m_hWnd, LVM_SUBITEMHITTEST, 0, pInfo);
}

BOOL CListCtrl::EnsureVisible(int nItem, BOOL bPartialOK) {
    return AfxSend<BOOL>(m_hWnd, LVM_ENSUREVISIBLE, nItem, MAKELONG(bPartialOK, 0));
}

BOOL CListCtrl::Scroll(CSize size) {
    return AfxSend<BOOL>(m_hWnd, LVM_SCROLL, size.cx, size.cy);
}

BOOL CListCtrl::RedrawItems(int nFirst, int nLast) {
    return AfxSend<BOOL>(m_hWnd, LVM_REDRAWITEMS, nFirst, nLast);
}

BOOL CListCtrl::Arrange(UINT nCode) {
    return AfxSend<BOOL>(m_hWnd, LVM_ARRANGE, nCode);
}

CEdit* CListCtrl::EditLabel(int nItem) {
    return static_cast<CEdit*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, LVM_EDITLABEL, nItem)));
}

BOOL CListCtrl::Update(int nItem) {
    return AfxSend<BOOL>(m_hWnd, LVM_UPDATE, nItem);
}

CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint) {
    return AfxNewImageList(AfxSend<HIMAGELIST>(m_hWnd, LVM_CREATEDRAGIMAGE, nItem, lpPoint));
}

BOOL CListCtrl::GetColumn(int nCol, LVCOLUMN* pColumn) const {
    return AfxSend<BOOL>(m_hWnd, LVM_GETCOLUMN, nCol, pColumn);
}

BOOL CListCtrl::SetColumn(int nCol, const LVCOLUMN* pColumn) {
    return AfxSend<BOOL>(m_hWnd, LVM_SETCOLUMN, nCol, pColumn);
}

int CListCtrl::InsertColumn(int nCol, const LVCOLUMN* pColumn) {
    return AfxSend<int>(m_hWnd, LVM_INSERTCOLUMN, nCol, pColumn);
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth,
                            int nSubItem) {
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading);
    column.fmt = nFormat;
    if (nWidth != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

BOOL CListCtrl::DeleteColumn(int nCol) {
    return AfxSend<BOOL>(m_hWnd, LVM_DELETECOLUMN, nCol);
}

int CListCtrl::GetColumnWidth(int nCol) const {
    return AfxSend<int>(m_hWnd, LVM_GETCOLUMNWIDTH, nCol);
}

BOOL CListCtrl::SetColumnWidth(int nCol, int cx) {
    return AfxSend<BOOL>(m_hWnd, LVM_SETCOLUMNWIDTH, nCol, MAKELONG(cx, 0));
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount) {
    const int nCount = iCount < 0 ? GetHeaderCtrl()->GetItemCount() : iCount;
    return AfxSend<BOOL>(m_hWnd, LVM_GETCOLUMNORDERARRAY, nCount, piArray);
}

BOOL CListCtrl::SetColumnOrderArray(int iCount, LPINT piArray) {
    return AfxSend<BOOL>(m_hWnd, LVM_SETCOLUMNORDERARRAY, iCount, piArray);
}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
        case WM_DRAWITEM:
            DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
            *pResult = TRUE;
            return TRUE;
        default:
            return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT) {}
