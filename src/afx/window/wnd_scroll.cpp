// Scroll bars, a window's own or the bar that stands for it.
#include "afx/window/wnd.h"

#include "afx/window/wnd_state.h"

#include <afxwin.h>

#include <algorithm>

template <typename Handle>
static Handle GdiHandle(const CGdiObject* pObject) {
    return pObject != nullptr ? static_cast<Handle>(pObject->m_hObject) : nullptr;
}

namespace {

/// Where a window's bar really is: in a scroll bar control, or in the window's frame.
struct BarPlace {
    HWND hWnd;
    int nBar;
};

BarPlace PlaceOf(const CWnd* pWnd, int nBar) {
    if (CScrollBar* pBar = pWnd->GetScrollBarCtrl(nBar)) {
        return {pBar->m_hWnd, SB_CTL};
    }
    return {pWnd->m_hWnd, nBar};
}

}  // namespace

BOOL CWnd::EnableScrollBar(int nSBFlags, UINT nArrowFlags) {
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect) {
    ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags) {
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, GdiHandle<HRGN>(prgnUpdate),
                            lpRectUpdate, flags);
}

CScrollBar* CWnd::GetScrollBarCtrl(int) const {
    return nullptr;
}

int CWnd::GetScrollPos(int nBar) const {
    const BarPlace place = PlaceOf(this, nBar);
    return ::GetScrollPos(place.hWnd, place.nBar);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const {
    const BarPlace place = PlaceOf(this, nBar);
    ::GetScrollRange(place.hWnd, place.nBar, lpMinPos, lpMaxPos);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw) {
    const BarPlace place = PlaceOf(this, nBar);
    return ::SetScrollPos(place.hWnd, place.nBar, nPos, bRedraw);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw) {
    const BarPlace place = PlaceOf(this, nBar);
    ::SetScrollRange(place.hWnd, place.nBar, nMinPos, nMaxPos, bRedraw);
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow) {
    const BarPlace place = PlaceOf(this, static_cast<int>(nBar));
    ::ShowScrollBar(place.hWnd, place.nBar, bShow);
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable) {
    if (CScrollBar* pBar = GetScrollBarCtrl(nBar)) {
        pBar->EnableWindow(bEnable);
    }
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    const BarPlace place = PlaceOf(this, nBar);
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    ::SetScrollInfo(place.hWnd, place.nBar, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    const BarPlace place = PlaceOf(this, nBar);
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(place.hWnd, place.nBar, lpScrollInfo);
}

int CWnd::GetScrollLimit(int nBar) {
    int nMin = 0;
    int nMax = 0;
    GetScrollRange(nBar, &nMin, &nMax);
    SCROLLINFO info = {};
    if (GetScrollInfo(nBar, &info, SIF_PAGE)) {
        nMax -= std::max(static_cast<int>(info.nPage) - 1, 0);
    }
    return nMax;
}
