// Tree view.
#include "afx/controls/tree_ctrl.h"

#include "afx/drawing/owned_handles.h"
#include "afx/window/wnd_state.h"

#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

static HIMAGELIST ListHandle(const CImageList* pImageList) {
    return pImageList != nullptr ? pImageList->m_hImageList : nullptr;
}

static HWND HandleOf(const CWnd* pWnd) {
    return pWnd != nullptr ? pWnd->m_hWnd : nullptr;
}

BOOL CTreeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_TREEVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

UINT CTreeCtrl::GetCount() const {
    return AfxSend<UINT>(m_hWnd, TVM_GETCOUNT);
}

UINT CTreeCtrl::GetIndent() const {
    return AfxSend<UINT>(m_hWnd, TVM_GETINDENT);
}

void CTreeCtrl::SetIndent(UINT nIndent) {
    AfxSend(m_hWnd, TVM_SETINDENT, nIndent);
}

CImageList* CTreeCtrl::GetImageList(UINT nImageList) const {
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(m_hWnd, TVM_GETIMAGELIST, nImageList));
}

CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int nImageListType) {
    return CImageList::FromHandle(
        AfxSend<HIMAGELIST>(m_hWnd, TVM_SETIMAGELIST, nImageListType, ListHandle(pImageList)));
}

UINT CTreeCtrl::GetVisibleCount() const {
    return AfxSend<UINT>(m_hWnd, TVM_GETVISIBLECOUNT);
}

CEdit* CTreeCtrl::GetEditControl() const {
    return static_cast<CEdit*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, TVM_GETEDITCONTROL)));
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, TVM_GETTOOLTIPS)));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    return static_cast<CToolTipCtrl*>(
        CWnd::FromHandle(AfxSend<HWND>(m_hWnd, TVM_SETTOOLTIPS, HandleOf(pWndTip))));
}

COLORREF CTreeCtrl::GetBkColor() const {
    return AfxSend<COLORREF>(m_hWnd, TVM_GETBKCOLOR);
}

COLORREF CTreeCtrl::SetBkColor(COLORREF clr) {
    return AfxSend<COLORREF>(m_hWnd, TVM_SETBKCOLOR, 0, clr);
}

COLORREF CTreeCtrl::GetTextColor() const {
    return AfxSend<COLORREF>(m_hWnd, TVM_GETTEXTCOLOR);
}

COLORREF CTreeCtrl::SetTextColor(COLORREF clr) {
    return AfxSend<COLORREF>(m_hWnd, TVM_SETTEXTCOLOR, 0, clr);
}

SHORT CTreeCtrl::GetItemHeight() const {
    return AfxSend<SHORT>(m_hWnd, TVM_GETITEMHEIGHT);
}

SHORT CTreeCtrl::SetItemHeight(SHORT cyHeight) {
    return AfxSend<SHORT>(m_hWnd, TVM_SETITEMHEIGHT, cyHeight);
}

COLORREF CTreeCtrl::GetInsertMarkColor() const {
    return AfxSend<COLORREF>(m_hWnd, TVM_GETINSERTMARKCOLOR);
}

COLORREF CTreeCtrl::SetInsertMarkColor(COLORREF clrNew) {
    return AfxSend<COLORREF>(m_hWnd, TVM_SETINSERTMARKCOLOR, 0, clrNew);
}

BOOL CTreeCtrl::SetInsertMark(HTREEITEM hItem, BOOL fAfter) {
    return AfxSend<BOOL>(m_hWnd, TVM_SETINSERTMARK, fAfter, hItem);
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM hItem, UINT nCode) const {
    return AfxSend<HTREEITEM>(m_hWnd, TVM_GETNEXTITEM, nCode, hItem);
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM hItem) const {
    return GetNextItem(hItem, TVGN_CHILD);
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM hItem) const {
    return GetNextItem(hItem, TVGN_NEXT);
}

HTREEITEM CTreeCtrl::GetPrevSiblingItem(HTREEITEM hItem) const {
    return GetNextItem(hItem, TVGN_PREVIOUS);
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM hItem) const {
    return GetNextItem(hItem, TVGN_PARENT);
}

HTREEITEM CTreeCtrl::GetFirstVisibleItem() const {
    return GetNextItem(nullptr, TVGN_FIRSTVISIBLE);
}

HTREEITEM CTreeCtrl::GetNextVisibleItem(HTREEITEM hItem) const {
    return GetNextItem(hItem, TVGN_NEXTVISIBLE);
}

HTREEITEM CTreeCtrl::GetPrevVisibleItem(HTREEITEM hItem) const {
    return GetNextItem(hItem, TVGN_PREVIOUSVISIBLE);
}

HTREEITEM CTreeCtrl::GetLastVisibleItem() const {
    return GetNextItem(nullptr, TVGN_LASTVISIBLE);
}

HTREEITEM CTreeCtrl::GetSelectedItem() const {
    return GetNextItem(nullptr, TVGN_CARET);
}

HTREEITEM CTreeCtrl::GetDropHilightItem() const {
    return GetNextItem(nullptr, TVGN_DROPHILITE);
}

HTREEITEM CTreeCtrl::GetRootItem() const {
    return GetNextItem(nullptr, TVGN_ROOT);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const {
    TVITEM item = {};
    item.mask = TVIF_CHILDREN;
    item.hItem = hItem;
    return GetItem(&item) && item.cChildren != 0;
}

BOOL CTreeCtrl::GetItem(TVITEM* pItem) const {
    return AfxSend<BOOL>(m_hWnd, TVM_GETITEM, 0, pItem);
}

BOOL CTreeCtrl::SetItem(TVITEM* pItem) {
    return AfxSend<BOOL>(m_hWnd, TVM_SETITEM, 0, pItem);
}

BOOL CTreeCtrl::SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage,
                        int nSelectedImage, UINT nState, UINT nStateMask, LPARAM lParam) {
    TVITEM item = {};
    item.hItem = hItem;
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    return SetItem(&item);
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const {
    CString str;
    TVITEM item = {};
    item.mask = TVIF_TEXT;
    item.hItem = hItem;
    for (int nRoom = 128;; nRoom *= 2) {
        item.pszText = str.GetBuffer(nRoom);
        item.cchTextMax = nRoom + 1;
        if (!GetItem(&item)) {
            str.ReleaseBuffer(0);
            return str;
        }  // the control may point elsewhere than at our room
        const CString strFound(item.pszText);
        str.ReleaseBuffer(0);
        if (strFound.GetLength() < nRoom) {
            return strFound;
        }
    }
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem) {
    return SetItem(hItem, TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0);
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const {
    TVITEM item = {};
    item.hItem = hItem;
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    const BOOL bDone = GetItem(&item);
    if (bDone) {
        nImage = item.iImage;
        nSelectedImage = item.iSelectedImage;
    }
    return bDone;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage) {
    return SetItem(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, nImage, nSelectedImage, 0, 0,
                   0);
}

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nStateMask) const {
    TVITEM item = {};
    item.mask = TVIF_STATE;
    item.hItem = hItem;
    item.stateMask = nStateMask;
    return GetItem(&item) ? item.state & nStateMask : 0;
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask) {
    return SetItem(hItem, TVIF_STATE, nullptr, 0, 0, nState, nStateMask, 0);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const {
    TVITEM item = {};
    item.mask = TVIF_PARAM;
    item.hItem = hItem;
    return GetItem(&item) ? static_cast<DWORD_PTR>(item.lParam) : 0;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData) {
    return SetItem(hItem, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(dwData));
}

BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const {
    return static_cast<int>(GetItemState(hItem, TVIS_STATEIMAGEMASK) >> 12) - 1 > 0;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck) {
    return SetItemState(hItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), TVIS_STATEIMAGEMASK);
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect,
                            BOOL bTextOnly) const {  // the call reads the item out of the rectangle
    memcpy(lpRect, &hItem, sizeof hItem);
    return AfxSend<BOOL>(m_hWnd, TVM_GETITEMRECT, bTextOnly, lpRect);
}

HTREEITEM CTreeCtrl::InsertItem(LPTVINSERTSTRUCT lpInsertStruct) {
    return AfxSend<HTREEITEM>(m_hWnd, TVM_INSERTITEM, 0, lpInsertStruct);
}

HTREEITEM CTreeCtrl::InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage,
                                UINT nState, UINT nStateMask, LPARAM lParam, HTREEITEM hParent,
                                HTREEITEM hInsertAfter) {
    TVINSERTSTRUCT insert = {};
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = nMask;
    insert.item.pszText = const_cast<LPTSTR>(lpszItem);
    insert.item.iImage = nImage;
    insert.item.iSelectedImage = nSelectedImage;
    insert.item.state = nState;
    insert.item.stateMask = nStateMask;
    insert.item.lParam = lParam;
    return InsertItem(&insert);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, HTREEITEM hParent, HTREEITEM hInsertAfter) {
    return InsertItem(TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0, hParent, hInsertAfter);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent,
                                HTREEITEM hInsertAfter) {
    return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, lpszItem, nImage, nSelectedImage,
                      0, 0, 0, hParent, hInsertAfter);
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM hItem) {
    return AfxSend<BOOL>(m_hWnd, TVM_DELETEITEM, 0, hItem);
}

BOOL CTreeCtrl::DeleteAllItems() {
    return DeleteItem(TVI_ROOT);
}

BOOL CTreeCtrl::Expand(HTREEITEM hItem, UINT nCode) {
    return AfxSend<BOOL>(m_hWnd, TVM_EXPAND, nCode, hItem);
}

BOOL CTreeCtrl::Select(HTREEITEM hItem, UINT nCode) {
    return AfxSend<BOOL>(m_hWnd, TVM_SELECTITEM, nCode, hItem);
}

BOOL CTreeCtrl::SelectItem(HTREEITEM hItem) {
    return Select(hItem, TVGN_CARET);
}

BOOL CTreeCtrl::SelectDropTarget(HTREEITEM hItem) {
    return Select(hItem, TVGN_DROPHILITE);
}

BOOL CTreeCtrl::SelectSetFirstVisible(HTREEITEM hItem) {
    return Select(hItem, TVGN_FIRSTVISIBLE);
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem) {
    return static_cast<CEdit*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, TVM_EDITLABEL, 0, hItem)));
}

BOOL CTreeCtrl::EndEditLabelNow(BOOL fCancel) {
    return AfxSend<BOOL>(m_hWnd, TVM_ENDEDITLABELNOW, fCancel);
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    TVHITTESTINFO info = {};
    info.pt = pt;
    const HTREEITEM hItem = HitTest(&info);
    if (pFlags != nullptr) {
        *pFlags = info.flags;
    }
    return hItem;
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* pHitTestInfo) const {
    return AfxSend<HTREEITEM>(m_hWnd, TVM_HITTEST, 0, pHitTestInfo);
}

BOOL CTreeCtrl::SortChildren(HTREEITEM hItem) {
    return AfxSend<BOOL>(m_hWnd, TVM_SORTCHILDREN, 0, hItem);
}

BOOL CTreeCtrl::SortChildrenCB(LPTVSORTCB pSort) {
    AfxCompareGuard guard(pSort->lpfnCompare, pSort->lParam);
    TVSORTCB sort = {pSort->hParent, &AfxCompareGuard::Call, guard.Param()};
    const BOOL bSorted = AfxSend<BOOL>(m_hWnd, TVM_SORTCHILDRENCB, 0, &sort);
    return guard.Result(bSorted, m_hWnd, TVM_SORTCHILDRENCB);
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM hItem) {
    return AfxSend<BOOL>(m_hWnd, TVM_ENSUREVISIBLE, 0, hItem);
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM hItem) {
    return AfxNewImageList(AfxSend<HIMAGELIST>(m_hWnd, TVM_CREATEDRAGIMAGE, 0, hItem));
}
