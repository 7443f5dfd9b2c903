#include "afx/app/floating_frame.h"

#include "afx/app/bar_drag.h"
#include "afx/app/dock_bar.h"

#include <afxext.h>

BEGIN_MESSAGE_MAP(AfxFloatingFrame, CMiniFrameWnd)
    ON_WM_CLOSE()
    ON_WM_MOVE()
    ON_WM_SIZING()
    ON_WM_MOUSEACTIVATE()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONDBLCLK()
END_MESSAGE_MAP()

AfxFloatingFrame* AfxFloatingFrame::Make(CFrameWnd* pOwner, CControlBar* pBar) {
    auto* pFrame = new AfxFloatingFrame;
    CString strTitle;
    pBar->GetWindowText(strTitle);
    DWORD dwStyle = WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
    if (pBar->GetBarStyle() & CBRS_SIZE_DYNAMIC) {
        dwStyle |= MFS_THICKFRAME;
    }
    if (!pFrame->Create(nullptr, strTitle, dwStyle, CRect(0, 0, 0, 0), pOwner)) {
        return nullptr;  // it deleted itself
    }
    try {
        auto* pDock = new CDockBar(TRUE);
        if (!pDock->Create(pFrame, CBRS_ALIGN_TOP, AFX_IDW_DOCKBAR_FLOAT)) {
            pFrame->DestroyWindow();
            return nullptr;
        }
        pDock->m_pDockSite = pOwner;  // its list has the bar itself
        pFrame->m_pDock = pDock;
        pDock->DockControlBar(pBar);
    } catch (...) {
        if (pFrame->Bar() == nullptr) {
            pFrame->DestroyWindow();
        }
        throw;
    }
    return pFrame;
}

void AfxFloatingFrame::CloseLater(CDockBar* pDock) {
    if (CWnd* pFrame = pDock->GetParent()) {
        pFrame->ShowWindow(SW_HIDE);
        pFrame->PostMessage(WM_CLOSE);
    }
}

CControlBar* AfxFloatingFrame::Bar() const {
    return ::IsWindow(m_pDock->GetSafeHwnd()) ? m_pDock->FirstBar() : nullptr;
}

/// What the frame has around its client area.
CSize AfxFloatingFrame::Surrounds() const {
    CRect rcWindow;
    CRect rcClient;
    GetWindowRect(rcWindow);
    GetClientRect(rcClient);
    return rcWindow.Size() - rcClient.Size();
}

void AfxFloatingFrame::FitAt(CPoint point) {
    CControlBar* pBar = Bar();
    if (pBar == nullptr) {
        return;
    }
    const CSize sizeBar = pBar->CalcDynamicLayout(-1, LM_HORZ | LM_MRUWIDTH | LM_COMMIT);
    CRect rcWindow(CPoint(0, 0), sizeBar);
    ::AdjustWindowRectEx(rcWindow, GetStyle(), FALSE, GetExStyle());
    SetWindowPos(nullptr, point.x, point.y, rcWindow.Width(), rcWindow.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void AfxFloatingFrame::OnClose() {
    CControlBar* pBar = Bar();
    if (pBar == nullptr) {
        DestroyWindow();
    } else if (CFrameWnd* pFrame = pBar->m_pDockSite) {
        pFrame->ShowControlBar(pBar, FALSE, FALSE);
    }
}

void AfxFloatingFrame::OnMove(int x, int y) {
    CMiniFrameWnd::OnMove(x, y);
    if (CControlBar* pBar = Bar()) {
        CRect rcWindow;
        GetWindowRect(rcWindow);
        pBar->m_ptLastFloat = rcWindow.TopLeft();
        pBar->m_bFloated = true;
    }
}

void AfxFloatingFrame::OnSizing(UINT nSide, LPRECT lpRect) {
    CMiniFrameWnd::OnSizing(nSide, lpRect);
    CControlBar* pBar = Bar();
    if (pBar == nullptr) {
        return;
    }
    // The bar has few shapes; the frame jumps from one to the next.
    const CSize around = Surrounds();
    const CRect rect(lpRect);
    const bool bHeight = nSide == WMSZ_TOP || nSide == WMSZ_BOTTOM;
    const CSize sizeBar =
        pBar->CalcDynamicLayout(bHeight ? rect.Height() - around.cy : rect.Width() - around.cx,
                                LM_HORZ | LM_COMMIT | (bHeight ? LM_LENGTHY : 0));
    const bool bLeft = nSide == WMSZ_LEFT || nSide == WMSZ_TOPLEFT || nSide == WMSZ_BOTTOMLEFT;
    const bool bTop = nSide == WMSZ_TOP || nSide == WMSZ_TOPLEFT || nSide == WMSZ_TOPRIGHT;
    const CSize size = sizeBar + around;
    *lpRect = CRect(
        CPoint(bLeft ? rect.right - size.cx : rect.left, bTop ? rect.bottom - size.cy : rect.top),
        size);
}

int AfxFloatingFrame::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
    // A bar without fields to type in leaves the main frame active.
    CControlBar* pBar = Bar();
    return pBar != nullptr && !pBar->IsKindOf(RUNTIME_CLASS(CDialogBar))
               ? MA_NOACTIVATE
               : CMiniFrameWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
}

void AfxFloatingFrame::OnNcLButtonDown(UINT nHitTest, CPoint point) {
    CControlBar* pBar = Bar();
    if (nHitTest == HTCAPTION && pBar != nullptr && pBar->m_dwDockStyle != 0) {
        pBar->m_pDrag = std::make_unique<AfxBarDrag>(pBar, point);
        return;
    }
    CMiniFrameWnd::OnNcLButtonDown(nHitTest, point);
}

void AfxFloatingFrame::OnNcLButtonDblClk(UINT nHitTest, CPoint point) {
    CControlBar* pBar = Bar();
    if (nHitTest == HTCAPTION && pBar != nullptr && pBar->m_dwDockStyle != 0) {
        AfxBarDrag::Toggle(pBar);
        return;
    }
    CMiniFrameWnd::OnNcLButtonDblClk(nHitTest, point);
}
