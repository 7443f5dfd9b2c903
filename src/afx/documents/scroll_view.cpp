#include "afx/documents/scroll_view.h"

#include <afxext.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CScrollView, CView)

BEGIN_MESSAGE_MAP(CScrollView, CView)
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

const SIZE CScrollView::sizeDefault = {0, 0};

static constexpr int kTenth = 10;

// Sizes

void CScrollView::SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE& sizePage,
                                 const SIZE& sizeLine) {
    if (nMapMode == MM_ISOTROPIC || nMapMode == MM_ANISOTROPIC || nMapMode <= MM_NONE) {
        return;
    }
    const int nOldMapMode = m_nMapMode;
    m_nMapMode = nMapMode;
    m_totalLog = sizeTotal;
    CSize total(sizeTotal);
    CSize page(sizePage);
    CSize line(sizeLine);
    {
        CClientDC dc(nullptr);
        dc.SetMapMode(m_nMapMode);
        dc.LPtoDP(&total);
        dc.LPtoDP(&page);
        dc.LPtoDP(&line);
    }
    m_totalDev = total;
    const auto orTenth = [](LONG nSize, LONG nWhole) {
        return nSize > 0 ? nSize : std::max<LONG>(nWhole / kTenth, 1);
    };
    m_pageDev = CSize(orTenth(page.cx, total.cx), orTenth(page.cy, total.cy));
    m_lineDev = CSize(orTenth(line.cx, m_pageDev.cx), orTenth(line.cy, m_pageDev.cy));
    if (m_hWnd != nullptr) {
        UpdateBars();
        if (nOldMapMode != m_nMapMode) {
            Invalidate(TRUE);
        }
    }
}

void CScrollView::SetScaleToFitSize(SIZE sizeTotal) {
    m_nMapMode = MM_SCALETOFIT;
    m_totalLog = sizeTotal;
    if (m_hWnd == nullptr) {
        return;
    }
    if (GetStyle() & (WS_HSCROLL | WS_VSCROLL)) {
        SetScrollPos(SB_HORZ, 0);
        SetScrollPos(SB_VERT, 0);
        ShowScrollBar(SB_BOTH, FALSE);
    }
    CRect rcClient;
    GetClientRect(rcClient);
    m_totalDev = rcClient.Size();
    Invalidate(TRUE);
}

void CScrollView::GetDeviceScrollSizes(int& nMapMode, SIZE& sizeTotal, SIZE& sizePage,
                                       SIZE& sizeLine) const {
    nMapMode = m_nMapMode;
    sizeTotal = m_totalDev;
    sizePage = m_pageDev;
    sizeLine = m_lineDev;
}

void CScrollView::ResizeParentToFit(BOOL bShrinkOnly) {
    CFrameWnd* pFrame = GetParentFrame();
    if (pFrame == nullptr || m_nMapMode == MM_NONE) {
        return;
    }
    CRect rcClient;
    GetClientRect(rcClient);
    CSize sizeBars;
    CSize sizeTrue;
    GetTrueClientSize(sizeTrue, sizeBars);
    CSize more = m_totalDev - sizeTrue;
    if (bShrinkOnly) {
        more.cx = std::min<LONG>(more.cx, 0);
        more.cy = std::min<LONG>(more.cy, 0);
    }
    CRect rcFrame;
    pFrame->GetWindowRect(rcFrame);
    pFrame->SetWindowPos(nullptr, 0, 0, rcFrame.Width() + more.cx, rcFrame.Height() + more.cy,
                         SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// Drawing

void CScrollView::OnPrepareDC(CDC* pDC, CPrintInfo* pInfo) {
    switch (m_nMapMode) {
        case MM_NONE:
            break;
        case MM_SCALETOFIT:
            pDC->SetMapMode(MM_ANISOTROPIC);
            pDC->SetWindowExt(m_totalLog);
            pDC->SetViewportExt(m_totalDev.cx > 0 && m_totalDev.cy > 0 ? m_totalDev : CSize(1, 1));
            break;
        default:
            pDC->SetMapMode(m_nMapMode);
            break;
    }
    CPoint ptOrigin(0, 0);
    if (!pDC->IsPrinting() && m_nMapMode != MM_NONE && m_nMapMode != MM_SCALETOFIT) {
        ptOrigin = -GetDeviceScrollPosition();
        if (m_bCenter) {
            CRect rcClient;
            GetClientRect(rcClient);
            ptOrigin.x += std::max<LONG>((rcClient.Width() - m_totalDev.cx) / 2, 0);
            ptOrigin.y += std::max<LONG>((rcClient.Height() - m_totalDev.cy) / 2, 0);
        }
    }
    if (!pDC->IsPrinting()) {
        pDC->SetViewportOrg(ptOrigin);
    }
    CView::OnPrepareDC(pDC, pInfo);
}

void CScrollView::FillOutsideRect(CDC* pDC, CBrush* pBrush) {
    // By the device's pixels, whatever the context's mapping is.
    CRect rcClient;
    GetClientRect(rcClient);
    CRect rcWhole(CPoint(0, 0), m_totalDev);
    if (m_bCenter) {
        rcWhole.OffsetRect(std::max<LONG>((rcClient.Width() - m_totalDev.cx) / 2, 0),
                           std::max<LONG>((rcClient.Height() - m_totalDev.cy) / 2, 0));
    } else {
        rcWhole.OffsetRect(-GetDeviceScrollPosition());
    }
    const CRect beside[] = {
        CRect(rcClient.left, rcClient.top, rcClient.right, rcWhole.top),
        CRect(rcClient.left, rcWhole.bottom, rcClient.right, rcClient.bottom),
        CRect(rcClient.left, rcWhole.top, rcWhole.left, rcWhole.bottom),
        CRect(rcWhole.right, rcWhole.top, rcClient.right, rcWhole.bottom),
    };
    for (CRect rect : beside) {
        if (!rect.IsRectEmpty()) {
            pDC->DPtoLP(rect);
            rect.NormalizeRect();
            pDC->FillRect(rect, pBrush);
        }
    }
}

// Position

CPoint CScrollView::GetDeviceScrollPosition() const {
    if (m_nMapMode == MM_SCALETOFIT) {
        return CPoint(0, 0);
    }
    // In the middle there is nothing to scroll, and the bars are at 0.
    return CPoint(GetScrollPos(SB_HORZ), GetScrollPos(SB_VERT));
}

CPoint CScrollView::GetScrollPosition() const {
    CPoint pt = GetDeviceScrollPosition();
    if (m_nMapMode > MM_NONE && m_nMapMode != MM_TEXT) {
        CClientDC dc(nullptr);
        dc.SetMapMode(m_nMapMode);
        dc.DPtoLP(&pt);
    }
    return pt;
}

void CScrollView::ScrollToPosition(POINT pt) {
    if (m_nMapMode > MM_NONE && m_nMapMode != MM_TEXT) {
        CClientDC dc(nullptr);
        dc.SetMapMode(m_nMapMode);
        dc.LPtoDP(&pt);
    }
    if (m_nMapMode > MM_NONE) {
        ScrollToDevicePosition(pt);
    }
}

void CScrollView::CenterOnPoint(CPoint ptCenter) {
    CRect rcClient;
    GetClientRect(rcClient);
    ScrollToDevicePosition(
        CPoint(ptCenter.x - rcClient.Width() / 2, ptCenter.y - rcClient.Height() / 2));
}

void CScrollView::ScrollToDevicePosition(POINT ptDev) {
    const CPoint ptOld = GetDeviceScrollPosition();
    const int x = std::clamp<int>(ptDev.x, 0, std::max(GetScrollLimit(SB_HORZ), 0));
    const int y = std::clamp<int>(ptDev.y, 0, std::max(GetScrollLimit(SB_VERT), 0));
    SetScrollPos(SB_HORZ, x);
    SetScrollPos(SB_VERT, y);
    ScrollWindow(ptOld.x - x, ptOld.y - y);
}

// Bars

void CScrollView::GetScrollBarSizes(CSize& sizeSb) {
    // A bar that is shared with other panes is none of this window's.
    sizeSb = CSize(GetScrollBarCtrl(SB_VERT) == nullptr ? ::GetSystemMetrics(SM_CXVSCROLL) : 0,
                   GetScrollBarCtrl(SB_HORZ) == nullptr ? ::GetSystemMetrics(SM_CYHSCROLL) : 0);
}

/// The client area without any bars, and what each bar takes off. FALSE: not even the bars fit.
BOOL CScrollView::GetTrueClientSize(CSize& size, CSize& sizeSb) {
    CRect rcClient;
    GetClientRect(rcClient);
    size = rcClient.Size();
    GetScrollBarSizes(sizeSb);
    const DWORD dwStyle = GetStyle();
    if (sizeSb.cx != 0 && (dwStyle & WS_VSCROLL)) {
        size.cx += sizeSb.cx;
    }
    if (sizeSb.cy != 0 && (dwStyle & WS_HSCROLL)) {
        size.cy += sizeSb.cy;
    }
    return size.cx > sizeSb.cx && size.cy > sizeSb.cy;
}

void CScrollView::CheckScrollBars(BOOL& bHasHorzBar, BOOL& bHasVertBar) const {
    const auto has = [&](int nBar, DWORD dwStyle) {
        CScrollBar* pBar = GetScrollBarCtrl(nBar);
        return pBar != nullptr ? pBar->IsWindowEnabled() : (GetStyle() & dwStyle) != 0;
    };
    bHasHorzBar = has(SB_HORZ, WS_HSCROLL);
    bHasVertBar = has(SB_VERT, WS_VSCROLL);
}

void CScrollView::UpdateBars() {
    if (m_bInsideUpdate || m_nMapMode == MM_NONE || m_nMapMode == MM_SCALETOFIT) {
        return;
    }
    const HWND hWnd = m_hWnd;
    m_bInsideUpdate = TRUE;
    CSize size;
    CSize sizeSb;
    if (!GetTrueClientSize(size, sizeSb)) {
        m_bInsideUpdate = FALSE;
        return;
    }
    // One bar may make the other one necessary.
    bool bHorz = m_totalDev.cx > size.cx;
    const bool bVert = m_totalDev.cy > size.cy - (bHorz ? sizeSb.cy : 0);
    bHorz = m_totalDev.cx > size.cx - (bVert ? sizeSb.cx : 0);
    size.cx -= bVert ? sizeSb.cx : 0;
    size.cy -= bHorz ? sizeSb.cy : 0;

    const CPoint ptOld = GetDeviceScrollPosition();
    const auto setBar = [&](int nBar, bool bNeeded, int nTotal, int nPage, int nPos) {
        SCROLLINFO info{};
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
        info.nMax = bNeeded ? nTotal - 1 : 0;
        info.nPage = bNeeded ? static_cast<UINT>(nPage) : 0;
        info.nPos = bNeeded ? std::clamp(nPos, 0, nTotal - nPage) : 0;
        if (GetScrollBarCtrl(nBar) != nullptr) {
            EnableScrollBarCtrl(nBar, bNeeded);
        }
        SetScrollInfo(nBar, &info, TRUE);
        return info.nPos;
    };
    // A bar that shows or hides sends WM_SIZE, in which programs do as they like.
    const int x = setBar(SB_HORZ, bHorz, m_totalDev.cx, size.cx, ptOld.x);
    if (FromHandlePermanent(hWnd) != this) {
        return;
    }
    const int y = setBar(SB_VERT, bVert, m_totalDev.cy, size.cy, ptOld.y);
    if (FromHandlePermanent(hWnd) != this) {
        return;
    }
    if (ptOld.x != x || ptOld.y != y) {
        ScrollWindow(ptOld.x - x, ptOld.y - y);
    }
    m_bInsideUpdate = FALSE;
}

void CScrollView::OnSize(UINT nType, int cx, int cy) {
    const HWND hWnd = m_hWnd;
    CView::OnSize(nType, cx, cy);
    if (FromHandlePermanent(hWnd) != this) {
        return;
    }
    if (m_nMapMode == MM_SCALETOFIT) {
        SetScaleToFitSize(m_totalLog);
        return;
    }
    UpdateBars();
    if (FromHandlePermanent(hWnd) == this && m_bCenter) {
        Invalidate(TRUE);
    }
}

void CScrollView::OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) {
    CView::OnActivateView(bActivate, pActivateView, pDeactiveView);
}

// Scrolling

void CScrollView::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    // A bar among the view's children is not the view's own.
    if (pScrollBar != nullptr && pScrollBar != GetScrollBarCtrl(SB_HORZ)) {
        CView::OnHScroll(nSBCode, nPos, pScrollBar);
        return;
    }
    OnScroll(MAKEWORD(nSBCode, 0xFF), nPos);
}

void CScrollView::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (pScrollBar != nullptr && pScrollBar != GetScrollBarCtrl(SB_VERT)) {
        CView::OnVScroll(nSBCode, nPos, pScrollBar);
        return;
    }
    OnScroll(MAKEWORD(0xFF, nSBCode), nPos);
}

BOOL CScrollView::OnScroll(UINT nScrollCode, UINT, BOOL bDoScroll) {
    const auto target = [&](int nBar, BYTE nCode, int nLine, int nPage) {
        SCROLLINFO info{};
        GetScrollInfo(nBar, &info, SIF_ALL);
        const int nPos = GetScrollPos(nBar);
        switch (nCode) {
            case SB_TOP:
                return 0;
            case SB_BOTTOM:
                return info.nMax;
            case SB_LINEUP:
                return nPos - nLine;
            case SB_LINEDOWN:
                return nPos + nLine;
            case SB_PAGEUP:
                return nPos - nPage;
            case SB_PAGEDOWN:
                return nPos + nPage;
            case SB_THUMBTRACK:
            case SB_THUMBPOSITION:
                return info.nTrackPos;  // of 32 bits, other than the message's
            default:
                return nPos;
        }
    };
    const CPoint ptOld = GetDeviceScrollPosition();
    const int x = target(SB_HORZ, LOBYTE(nScrollCode), m_lineDev.cx, m_pageDev.cx);
    const int y = target(SB_VERT, HIBYTE(nScrollCode), m_lineDev.cy, m_pageDev.cy);
    const BOOL bScrolled = OnScrollBy(CSize(x - ptOld.x, y - ptOld.y), bDoScroll);
    if (bScrolled && bDoScroll && m_hWnd != nullptr) {
        UpdateWindow();
    }
    return bScrolled;
}

BOOL CScrollView::OnScrollBy(CSize sizeScroll, BOOL bDoScroll) {
    if (m_nMapMode == MM_NONE || m_nMapMode == MM_SCALETOFIT) {
        return FALSE;
    }
    BOOL bHorz = FALSE;
    BOOL bVert = FALSE;
    CheckScrollBars(bHorz, bVert);
    const auto move = [&](int nBar, bool bBar, int nBy) {
        const int nOld = GetScrollPos(nBar);
        return bBar ? std::clamp(nOld + nBy, 0, std::max(GetScrollLimit(nBar), 0)) : nOld;
    };
    const int xOld = GetScrollPos(SB_HORZ);
    const int yOld = GetScrollPos(SB_VERT);
    const int x = move(SB_HORZ, bHorz, sizeScroll.cx);
    const int y = move(SB_VERT, bVert, sizeScroll.cy);
    if (x == xOld && y == yOld) {
        return FALSE;
    }
    if (bDoScroll) {
        ScrollWindow(xOld - x, yOld - y);
        if (x != xOld) {
            SetScrollPos(SB_HORZ, x);
        }
        if (y != yOld) {
            SetScrollPos(SB_VERT, y);
        }
    }
    return TRUE;
}

BOOL CScrollView::OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
    BOOL bHorz = FALSE;
    BOOL bVert = FALSE;
    CheckScrollBars(bHorz, bVert);
    if ((nFlags & (MK_SHIFT | MK_CONTROL)) || (!bHorz && !bVert)) {
        return CView::OnMouseWheel(nFlags, zDelta, pt);
    }
    UINT nLines = 3;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &nLines, 0);
    const CSize step = nLines == WHEEL_PAGESCROLL ? m_pageDev
                                                  : CSize(m_lineDev.cx * static_cast<int>(nLines),
                                                          m_lineDev.cy * static_cast<int>(nLines));
    m_nWheelRest += zDelta;
    const int nAlong = bVert ? step.cy : step.cx;
    const int nBy = -::MulDiv(nAlong, m_nWheelRest, WHEEL_DELTA);
    if (nBy == 0) {
        return TRUE;
    }
    m_nWheelRest = 0;
    const CSize by(bVert ? 0 : nBy, bVert ? nBy : 0);
    CSplitterWnd* pSplitter = GetParentSplitter(this, FALSE);
    const HWND hWnd = m_hWnd;
    if (pSplitter != nullptr ? pSplitter->DoScrollBy(this, by) : OnScrollBy(by)) {
        ::UpdateWindow(hWnd);
    }
    return TRUE;
}
