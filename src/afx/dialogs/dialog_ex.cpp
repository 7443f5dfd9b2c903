#include "afx/dialogs/dialog_ex.h"

#include "afx/drawing/select_guard.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CDialogEx, CDialog)

BEGIN_MESSAGE_MAP(CDialogEx, CDialog)
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CDialogEx::~CDialogEx() {
    DropBitmap();
}

void CDialogEx::DropBitmap() {
    if (m_hBkgrBitmap != nullptr && m_bAutoDestroyBmp) {
        ::DeleteObject(m_hBkgrBitmap);
    }
    m_hBkgrBitmap = nullptr;
    m_bAutoDestroyBmp = FALSE;
}

void CDialogEx::SetBackgroundColor(COLORREF color, BOOL bRepaint) {
    m_brBkgr.DeleteObject();
    if (color != static_cast<COLORREF>(-1)) {
        m_brBkgr.CreateSolidBrush(color);
    }
    if (bRepaint && GetSafeHwnd() != nullptr) {
        Invalidate();
        UpdateWindow();
    }
}

void CDialogEx::SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location, BOOL bAutoDestroy,
                                   BOOL bRepaint) {
    if (hBitmap != m_hBkgrBitmap) {
        DropBitmap();
    }
    BITMAP info = {};
    if (hBitmap != nullptr && ::GetObject(hBitmap, sizeof(info), &info) != 0) {
        m_hBkgrBitmap = hBitmap;
        m_bAutoDestroyBmp = bAutoDestroy;
        m_sizeBkgrBitmap = CSize(info.bmWidth, info.bmHeight);
    }
    m_BkgrLocation = location;
    if (bRepaint && GetSafeHwnd() != nullptr) {
        Invalidate();
        UpdateWindow();
    }
}

BOOL CDialogEx::SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location, BOOL bRepaint) {
    HBITMAP hBitmap = nullptr;
    if (uiBmpResId != 0) {
        const LPCTSTR lpszName = MAKEINTRESOURCE(uiBmpResId);
        hBitmap = ::LoadBitmap(AfxFindResourceHandle(lpszName, RT_BITMAP), lpszName);
        if (hBitmap == nullptr) {
            return FALSE;
        }
    }
    SetBackgroundImage(hBitmap, location, TRUE, bRepaint);
    return TRUE;
}

void CDialogEx::DrawBitmap(CDC* pDC, const CRect& rcClient) {
    CDC dcBitmap;
    if (m_sizeBkgrBitmap.cx <= 0 || m_sizeBkgrBitmap.cy <= 0 || !dcBitmap.CreateCompatibleDC(pDC)) {
        return;
    }
    const AfxSelectGuard select(dcBitmap.m_hDC, m_hBkgrBitmap);
    const CSize size = m_sizeBkgrBitmap;
    const auto draw = [&](int x, int y) {
        pDC->BitBlt(x, y, size.cx, size.cy, &dcBitmap, 0, 0, SRCCOPY);
    };
    if (m_BkgrLocation == BACKGR_TILE) {
        for (int x = 0; x < rcClient.Width(); x += size.cx) {
            for (int y = 0; y < rcClient.Height(); y += size.cy) {
                draw(x, y);
            }
        }
    } else {
        const bool bRight =
            m_BkgrLocation == BACKGR_TOPRIGHT || m_BkgrLocation == BACKGR_BOTTOMRIGHT;
        const bool bBottom =
            m_BkgrLocation == BACKGR_BOTTOMLEFT || m_BkgrLocation == BACKGR_BOTTOMRIGHT;
        draw(bRight ? rcClient.right - size.cx : 0, bBottom ? rcClient.bottom - size.cy : 0);
    }
}

BOOL CDialogEx::OnEraseBkgnd(CDC* pDC) {
    const bool bColor = m_brBkgr.GetSafeHandle() != nullptr;
    if (!bColor && m_hBkgrBitmap == nullptr) {
        return CDialog::OnEraseBkgnd(pDC);
    }
    CRect rcClient;
    GetClientRect(rcClient);
    if (bColor) {
        pDC->FillRect(rcClient, &m_brBkgr);
    } else if (m_BkgrLocation != BACKGR_TILE) {
        CDialog::OnEraseBkgnd(pDC);
    }
    if (m_hBkgrBitmap != nullptr) {
        DrawBitmap(pDC, rcClient);
    }
    return TRUE;
}

HBRUSH CDialogEx::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    LRESULT lResult = 0;
    if (pWnd != nullptr && pWnd->SendChildNotifyLastMsg(&lResult)) {
        return reinterpret_cast<HBRUSH>(lResult);
    }
    const bool bColor = m_brBkgr.GetSafeHandle() != nullptr;
    const bool bFlat = nCtlColor == CTLCOLOR_STATIC || nCtlColor == CTLCOLOR_BTN;
    // An edit that is read-only asks as a static text does, and keeps its own colour.
    TCHAR szClass[8] = {};
    ::GetClassName(pWnd->GetSafeHwnd(), szClass, _countof(szClass));
    if (!bFlat || (!bColor && m_hBkgrBitmap == nullptr) || lstrcmpi(szClass, "EDIT") == 0) {
        return reinterpret_cast<HBRUSH>(Default());
    }
    pDC->SetBkMode(TRANSPARENT);
    return m_hBkgrBitmap != nullptr ? static_cast<HBRUSH>(::GetStockObject(NULL_BRUSH))
                                    : static_cast<HBRUSH>(m_brBkgr);
}
