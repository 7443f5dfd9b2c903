// Header.
#include "afx/controls/header_ctrl.h"

#include "afx/drawing/owned_handles.h"
#include "afx/window/wnd_state.h"

#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

static HIMAGELIST ListHandle(const CImageList* pImageList) {
    return pImageList != nullptr ? pImageList->m_hImageList : nullptr;
}

BOOL CHeaderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_HEADER, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CHeaderCtrl::GetItemCount() const {
    return AfxSend<int>(m_hWnd, HDM_GETITEMCOUNT);
}

BOOL CHeaderCtrl::GetItem(int nPos, HDITEM* pHeaderItem) const {
    return AfxSend<BOOL>(m_hWnd, HDM_GETITEM, nPos, pHeaderItem);
}

BOOL CHeaderCtrl::SetItem(int nPos, HDITEM* pHeaderItem) {
    return AfxSend<BOOL>(m_hWnd, HDM_SETITEM, nPos, pHeaderItem);
}

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList) {
    return CImageList::FromHandle(
        AfxSend<HIMAGELIST>(m_hWnd, HDM_SETIMAGELIST, 0, ListHandle(pImageList)));
}

CImageList* CHeaderCtrl::GetImageList() const {
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(m_hWnd, HDM_GETIMAGELIST));
}

BOOL CHeaderCtrl::GetItemRect(int nIndex, LPRECT lpRect) const {
    return AfxSend<BOOL>(m_hWnd, HDM_GETITEMRECT, nIndex, lpRect);
}

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount) {
    const int nCount = iCount < 0 ? GetItemCount() : iCount;
    return AfxSend<BOOL>(m_hWnd, HDM_GETORDERARRAY, nCount, piArray);
}

BOOL CHeaderCtrl::SetOrderArray(int iCount, LPINT piArray) {
    return AfxSend<BOOL>(m_hWnd, HDM_SETORDERARRAY, iCount, piArray);
}

int CHeaderCtrl::OrderToIndex(int nOrder) const {
    return AfxSend<int>(m_hWnd, HDM_ORDERTOINDEX, nOrder);
}

int CHeaderCtrl::InsertItem(int nPos, HDITEM* phdi) {
    return AfxSend<int>(m_hWnd, HDM_INSERTITEM, nPos, phdi);
}

BOOL CHeaderCtrl::DeleteItem(int nPos) {
    return AfxSend<BOOL>(m_hWnd, HDM_DELETEITEM, nPos);
}

BOOL CHeaderCtrl::Layout(HDLAYOUT* pHeaderLayout) {
    return AfxSend<BOOL>(m_hWnd, HDM_LAYOUT, 0, pHeaderLayout);
}

int CHeaderCtrl::HitTest(LPHDHITTESTINFO phdhti) {
    return AfxSend<int>(m_hWnd, HDM_HITTEST, 0, phdhti);
}

CImageList* CHeaderCtrl::CreateDragImage(int nIndex) {
    return AfxNewImageList(AfxSend<HIMAGELIST>(m_hWnd, HDM_CREATEDRAGIMAGE, nIndex));
}

int CHeaderCtrl::SetHotDivider(CPoint pt) {
    return AfxSend<int>(m_hWnd, HDM_SETHOTDIVIDER, TRUE, MAKELONG(pt.x, pt.y));
}

int CHeaderCtrl::SetHotDivider(int nIndex) {
    return AfxSend<int>(m_hWnd, HDM_SETHOTDIVIDER, FALSE, nIndex);
}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
        case WM_DRAWITEM:
            DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
            *pResult = TRUE;
            return TRUE;
        default:
            return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT) {}
