// The scroll bars that a splitter's panes share.
#include "afx/app/splitter.h"

#include "afx/app/splitter_axis.h"

#include <afxext.h>

#include <vector>

DWORD CSplitterWnd::GetScrollStyle() const {
    return (m_bHasHScroll ? WS_HSCROLL : 0) | (m_bHasVScroll ? WS_VSCROLL : 0);
}

void CSplitterWnd::SetScrollStyle(DWORD dwStyle) {
    const auto show = [&](bool bWanted, BOOL& bHas, DWORD dwBar, UINT nFirst, int nLines) {
        bHas = bWanted;
        for (int nLine = 0; nLine < nLines; ++nLine) {
            CScrollBar* pBar = BarOf(nFirst + static_cast<UINT>(nLine));
            if (bWanted && pBar == nullptr) {
                CreateScrollBarCtrl(dwBar, nFirst + static_cast<UINT>(nLine));
            } else if (!bWanted && pBar != nullptr) {
                pBar->DestroyWindow();
            }
        }
    };
    show((dwStyle & WS_HSCROLL) != 0, m_bHasHScroll, SBS_HORZ, AFX_IDW_HSCROLL_FIRST, m_nCols);
    show((dwStyle & WS_VSCROLL) != 0, m_bHasVScroll, SBS_VERT, AFX_IDW_VSCROLL_FIRST, m_nRows);
}

BOOL CSplitterWnd::CreateScrollBarCtrl(DWORD dwStyle, UINT nID) {
    return ::CreateWindow("SCROLLBAR", nullptr, dwStyle | WS_VISIBLE | WS_CHILD, 0, 0, 1, 1, m_hWnd,
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)),
                          AfxGetInstanceHandle(), nullptr) != nullptr;
}

CScrollBar* CSplitterWnd::BarOf(UINT nID) const {
    return static_cast<CScrollBar*>(GetDlgItem(static_cast<int>(nID)));
}

void CSplitterWnd::PlaceScrollBars(const CRect& rcInside) {
    const int cxBar = ::GetSystemMetrics(SM_CXVSCROLL);
    const int cyBar = ::GetSystemMetrics(SM_CYHSCROLL);
    const auto place = [](CScrollBar* pBar, const CRect& rect) {
        if (pBar != nullptr) {
            pBar->MoveWindow(rect);
        }
    };
    const bool bDynamic = (GetStyle() & SPLS_DYNAMIC_SPLIT) != 0;
    for (int col = 0; col < m_nCols && m_bHasHScroll; ++col) {
        const CRect rcPane = PaneRect(0, col);
        const int nBox = bDynamic && m_nCols < m_nMaxCols && col == 0 ? m_cxSplitter : 0;
        place(BarOf(AFX_IDW_HSCROLL_FIRST + static_cast<UINT>(col)),
              CRect(rcPane.left + nBox, rcInside.bottom, rcPane.right, rcInside.bottom + cyBar));
    }
    for (int row = 0; row < m_nRows && m_bHasVScroll; ++row) {
        const CRect rcPane = PaneRect(row, 0);
        const int nBox = bDynamic && m_nRows < m_nMaxRows && row == 0 ? m_cySplitter : 0;
        place(BarOf(AFX_IDW_VSCROLL_FIRST + static_cast<UINT>(row)),
              CRect(rcInside.right, rcPane.top + nBox, rcInside.right + cxBar, rcPane.bottom));
    }
}

/// Each pane works out from the bar how far to scroll, so each finds the bar as the first one did.
void CSplitterWnd::ForwardScroll(UINT message, UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    const bool bHorz = message == WM_HSCROLL;
    const int nLine =
        pScrollBar->GetDlgCtrlID() - (bHorz ? AFX_IDW_HSCROLL_FIRST : AFX_IDW_VSCROLL_FIRST);
    if (nLine < 0 || nLine >= (bHorz ? m_nCols : m_nRows)) {
        return;
    }
    const HWND hWnd = m_hWnd;
    const HWND hBar = pScrollBar->m_hWnd;
    const int nOldPos = ::GetScrollPos(hBar, SB_CTL);
    const int nAcross = bHorz ? m_nRows : m_nCols;
    for (int n = 0; n < nAcross && FromHandlePermanent(hWnd) == this; ++n) {
        CWnd* pPane = bHorz ? GetPane(n, nLine) : GetPane(nLine, n);
        if (pPane == nullptr) {
            continue;
        }
        pPane->SendMessage(message, MAKELONG(nSBCode, nPos), reinterpret_cast<LPARAM>(hBar));
        if (n < nAcross - 1 && ::IsWindow(hBar)) {
            ::SetScrollPos(hBar, SB_CTL, nOldPos, FALSE);
        }
    }
}

void CSplitterWnd::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (pScrollBar != nullptr) {
        ForwardScroll(WM_HSCROLL, nSBCode, nPos, pScrollBar);
    }
}

void CSplitterWnd::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (pScrollBar != nullptr) {
        ForwardScroll(WM_VSCROLL, nSBCode, nPos, pScrollBar);
    }
}

/// The others of the view's column scroll along horizontally, those of its row vertically.
BOOL CSplitterWnd::ScrollPanes(CView* pViewFrom, CSize sizeScroll, UINT nScrollCode, bool bBy,
                               BOOL bDoScroll) {
    int rowFrom = 0;
    int colFrom = 0;
    if (!IsChildPane(pViewFrom, &rowFrom, &colFrom)) {
        return FALSE;
    }
    constexpr BYTE kStay = 0xFF;
    const HWND hWnd = m_hWnd;
    const auto scroll = [&](CWnd* pPane, bool bX, bool bY) {
        auto* pView = DYNAMIC_DOWNCAST(CView, pPane);
        if (pView == nullptr) {
            return FALSE;
        }
        const UINT nCode =
            MAKEWORD(bX ? LOBYTE(nScrollCode) : kStay, bY ? HIBYTE(nScrollCode) : kStay);
        return bBy ? pView->OnScrollBy(CSize(bX ? sizeScroll.cx : 0, bY ? sizeScroll.cy : 0),
                                       bDoScroll)
                   : pView->OnScroll(nCode, 0, bDoScroll);
    };
    CScrollBar* const pHorz = pViewFrom->GetScrollBarCtrl(SB_HORZ);
    CScrollBar* const pVert = pViewFrom->GetScrollBarCtrl(SB_VERT);
    const HWND hHorz = pHorz->GetSafeHwnd();
    const HWND hVert = pVert->GetSafeHwnd();
    const int nOldHorz = hHorz != nullptr ? ::GetScrollPos(hHorz, SB_CTL) : 0;
    const int nOldVert = hVert != nullptr ? ::GetScrollPos(hVert, SB_CTL) : 0;
    BOOL bAny = FALSE;
    const auto there = [&] { return FromHandlePermanent(hWnd) == this; };
    for (int row = 0; row < m_nRows && hHorz != nullptr; ++row) {
        if (row != rowFrom && there() && scroll(GetPane(row, colFrom), true, false)) {
            bAny = TRUE;
            if (bDoScroll && ::IsWindow(hHorz)) {
                ::SetScrollPos(hHorz, SB_CTL, nOldHorz, FALSE);
            }
        }
    }
    for (int col = 0; there() && col < m_nCols && hVert != nullptr; ++col) {
        if (col != colFrom && scroll(GetPane(rowFrom, col), false, true)) {
            bAny = TRUE;
            if (bDoScroll && ::IsWindow(hVert)) {
                ::SetScrollPos(hVert, SB_CTL, nOldVert, FALSE);
            }
        }
    }
    return (there() && scroll(GetPane(rowFrom, colFrom), true, true)) || bAny;
}

BOOL CSplitterWnd::DoScroll(CView* pViewFrom, UINT nScrollCode, BOOL bDoScroll) {
    return ScrollPanes(pViewFrom, CSize(0, 0), nScrollCode, false, bDoScroll);
}

BOOL CSplitterWnd::DoScrollBy(CView* pViewFrom, CSize sizeScroll, BOOL bDoScroll) {
    return ScrollPanes(pViewFrom, sizeScroll, 0, true, bDoScroll);
}
