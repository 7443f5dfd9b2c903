// Static, button and scroll bar.
#include "afx/controls/controls.h"

#include "afx/window/wnd_state.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                     UINT nID) {
    return CWnd::Create("STATIC", lpszText, dwStyle, rect, pParentWnd, nID);
}

HICON CStatic::SetIcon(HICON hIcon) {
    return AfxSend<HICON>(m_hWnd, STM_SETICON, hIcon);
}

HICON CStatic::GetIcon() const {
    return AfxSend<HICON>(m_hWnd, STM_GETICON);
}

HENHMETAFILE CStatic::SetEnhMetaFile(HENHMETAFILE hMetaFile) {
    return AfxSend<HENHMETAFILE>(m_hWnd, STM_SETIMAGE, IMAGE_ENHMETAFILE, hMetaFile);
}

HENHMETAFILE CStatic::GetEnhMetaFile() const {
    return AfxSend<HENHMETAFILE>(m_hWnd, STM_GETIMAGE, IMAGE_ENHMETAFILE);
}

HBITMAP CStatic::SetBitmap(HBITMAP hBitmap) {
    return AfxSend<HBITMAP>(m_hWnd, STM_SETIMAGE, IMAGE_BITMAP, hBitmap);
}

HBITMAP CStatic::GetBitmap() const {
    return AfxSend<HBITMAP>(m_hWnd, STM_GETIMAGE, IMAGE_BITMAP);
}

HCURSOR CStatic::SetCursor(HCURSOR hCursor) {
    return AfxSend<HCURSOR>(m_hWnd, STM_SETIMAGE, IMAGE_CURSOR, hCursor);
}

HCURSOR CStatic::GetCursor() {
    return AfxSend<HCURSOR>(m_hWnd, STM_GETIMAGE, IMAGE_CURSOR);
}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
        case WM_DRAWITEM:
            DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
            *pResult = TRUE;
            return TRUE;
        default:
            return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                     UINT nID) {
    return CWnd::Create("BUTTON", lpszCaption, dwStyle, rect, pParentWnd, nID);
}

UINT CButton::GetState() const {
    return AfxSend<UINT>(m_hWnd, BM_GETSTATE);
}

void CButton::SetState(BOOL bHighlight) {
    AfxSend(m_hWnd, BM_SETSTATE, bHighlight);
}

int CButton::GetCheck() const {
    return AfxSend<int>(m_hWnd, BM_GETCHECK);
}

void CButton::SetCheck(int nCheck) {
    AfxSend(m_hWnd, BM_SETCHECK, nCheck);
}

UINT CButton::GetButtonStyle() const {
    return GetStyle() & 0xFF;
}

void CButton::SetButtonStyle(UINT nStyle, BOOL bRedraw) {
    AfxSend(m_hWnd, BM_SETSTYLE, nStyle, bRedraw);
}

HICON CButton::SetIcon(HICON hIcon) {
    return AfxSend<HICON>(m_hWnd, BM_SETIMAGE, IMAGE_ICON, hIcon);
}

HICON CButton::GetIcon() const {
    return AfxSend<HICON>(m_hWnd, BM_GETIMAGE, IMAGE_ICON);
}

HBITMAP CButton::SetBitmap(HBITMAP hBitmap) {
    return AfxSend<HBITMAP>(m_hWnd, BM_SETIMAGE, IMAGE_BITMAP, hBitmap);
}

HBITMAP CButton::GetBitmap() const {
    return AfxSend<HBITMAP>(m_hWnd, BM_GETIMAGE, IMAGE_BITMAP);
}

HCURSOR CButton::SetCursor(HCURSOR hCursor) {
    return AfxSend<HCURSOR>(m_hWnd, BM_SETIMAGE, IMAGE_CURSOR, hCursor);
}

HCURSOR CButton::GetCursor() {
    return AfxSend<HCURSOR>(m_hWnd, BM_GETIMAGE, IMAGE_CURSOR);
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
        case WM_DRAWITEM:
            DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
            *pResult = TRUE;
            return TRUE;
        default:
            return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("SCROLLBAR", nullptr, dwStyle, rect, pParentWnd, nID);
}

int CScrollBar::GetScrollPos() const {
    return ::GetScrollPos(m_hWnd, SB_CTL);
}

int CScrollBar::SetScrollPos(int nPos, BOOL bRedraw) {
    return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw);
}

void CScrollBar::GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const {
    ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
}

void CScrollBar::SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw) {
    ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
}

void CScrollBar::ShowScrollBar(BOOL bShow) {
    ::ShowScrollBar(m_hWnd, SB_CTL, bShow);
}

BOOL CScrollBar::EnableScrollBar(UINT nArrowFlags) {
    return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    return CWnd::SetScrollInfo(SB_CTL, lpScrollInfo, bRedraw);
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask) {
    return CWnd::GetScrollInfo(SB_CTL, lpScrollInfo, nMask);
}

int CScrollBar::GetScrollLimit() {
    return CWnd::GetScrollLimit(SB_CTL);
}
