#include "afx/controls/bitmap_button.h"

#include "afx/drawing/select_guard.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CBitmapButton, CButton)

BOOL CBitmapButton::LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel,
                                LPCTSTR lpszBitmapResourceFocus,
                                LPCTSTR lpszBitmapResourceDisabled) {
    const auto load = [](CBitmap& bitmap, LPCTSTR lpszName) {
        bitmap.DeleteObject();
        return lpszName == nullptr || bitmap.LoadBitmap(lpszName);
    };
    if (lpszBitmapResource == nullptr || !load(m_bitmap, lpszBitmapResource)) {
        return FALSE;
    }
    const BOOL bSel = load(m_bitmapSel, lpszBitmapResourceSel);
    const BOOL bFocus = load(m_bitmapFocus, lpszBitmapResourceFocus);
    return load(m_bitmapDisabled, lpszBitmapResourceDisabled) && bSel && bFocus;
}

BOOL CBitmapButton::LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel,
                                UINT nIDBitmapResourceFocus, UINT nIDBitmapResourceDisabled) {
    return LoadBitmaps(MAKEINTRESOURCE(nIDBitmapResource), MAKEINTRESOURCE(nIDBitmapResourceSel),
                       MAKEINTRESOURCE(nIDBitmapResourceFocus),
                       MAKEINTRESOURCE(nIDBitmapResourceDisabled));
}

BOOL CBitmapButton::AutoLoad(UINT nID, CWnd* pParent) {
    if (!SubclassDlgItem(nID, pParent)) {
        return FALSE;
    }
    CString strName;
    GetWindowText(strName);
    if (!LoadBitmaps(strName + "U")) {
        return FALSE;
    }
    // The others may be missing.
    m_bitmapSel.LoadBitmap(strName + "D");
    m_bitmapFocus.LoadBitmap(strName + "F");
    m_bitmapDisabled.LoadBitmap(strName + "X");
    SizeToContent();
    return TRUE;
}

void CBitmapButton::SizeToContent() {
    BITMAP info = {};
    if (m_bitmap.GetBitmap(&info) != 0) {
        SetWindowPos(nullptr, 0, 0, info.bmWidth, info.bmHeight,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
    }
}

void CBitmapButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    const UINT nState = lpDrawItemStruct->itemState;
    CBitmap* pBitmap = &m_bitmap;
    if ((nState & ODS_SELECTED) && m_bitmapSel.m_hObject != nullptr) {
        pBitmap = &m_bitmapSel;
    } else if ((nState & ODS_FOCUS) && m_bitmapFocus.m_hObject != nullptr) {
        pBitmap = &m_bitmapFocus;
    } else if ((nState & ODS_DISABLED) && m_bitmapDisabled.m_hObject != nullptr) {
        pBitmap = &m_bitmapDisabled;
    }
    BITMAP info = {};
    const HDC hDC = ::CreateCompatibleDC(lpDrawItemStruct->hDC);
    if (hDC == nullptr || pBitmap->GetBitmap(&info) == 0) {
        ::DeleteDC(hDC);
        return;
    }
    const CRect rect(lpDrawItemStruct->rcItem);
    {
        const AfxSelectGuard select(hDC, pBitmap->m_hObject);
        ::BitBlt(lpDrawItemStruct->hDC, rect.left, rect.top, rect.Width(), rect.Height(), hDC, 0, 0,
                 SRCCOPY);
    }
    ::DeleteDC(hDC);
}
