#include "afx/window/wnd_state.h"

#include <afxext.h>
#include <afxpriv.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
    ON_MESSAGE(WM_INITIALUPDATE, &CControlBar::OnInitialUpdate)
END_MESSAGE_MAP()

CControlBar::~CControlBar() {
    if (m_hWnd != nullptr) {
        DestroyWindow();
    }
}

void CControlBar::JoinFrame(CFrameWnd* pFrame) {
    m_pDockSite = pFrame;
    if (pFrame != nullptr) {
        pFrame->m_listControlBars.AddTail(this);
    }
}

void CControlBar::PostNcDestroy() {
    // A frame's bars go down before the frame's object does.
    if (m_pDockSite != nullptr) {
        if (POSITION pos = m_pDockSite->m_listControlBars.Find(this)) {
            m_pDockSite->m_listControlBars.RemoveAt(pos);
        }
        m_pDockSite = nullptr;
    }
    if (m_bAutoDelete) {
        delete this;
    }
}

BOOL CControlBar::IsVisible() const {
    return (GetStyle() & WS_VISIBLE) != 0;
}

CFrameWnd* CControlBar::GetDockingFrame() const {
    return m_pDockSite != nullptr ? m_pDockSite : GetParentFrame();
}

CSize CControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    constexpr int kStretched = 32767;
    return CSize(bStretch && bHorz ? kStretched : 0, bStretch && !bHorz ? kStretched : 0);
}

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam) {
    if (!IsVisible() || !(m_dwStyle & CBRS_ALIGN_ANY)) {
        return 0;
    }
    auto* pLayout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    CRect rcFree(pLayout->rect);
    CRect rcBar(rcFree);
    const BOOL bHorz = (m_dwStyle & (CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM)) != 0;
    const CSize size = CalcFixedLayout(pLayout->bStretch, bHorz);
    if (bHorz) {
        const int cy = std::min<int>(size.cy, rcFree.Height());
        pLayout->sizeTotal.cy += cy;
        if (m_dwStyle & CBRS_ALIGN_TOP) {
            rcBar.bottom = rcBar.top + cy;
            pLayout->rect.top += cy;
        } else {
            rcBar.top = rcBar.bottom - cy;
            pLayout->rect.bottom -= cy;
        }
    } else {
        const int cx = std::min<int>(size.cx, rcFree.Width());
        pLayout->sizeTotal.cx += cx;
        if (m_dwStyle & CBRS_ALIGN_LEFT) {
            rcBar.right = rcBar.left + cx;
            pLayout->rect.left += cx;
        } else {
            rcBar.left = rcBar.right - cx;
            pLayout->rect.right -= cx;
        }
    }
    if (pLayout->hDWP != nullptr) {
        pLayout->hDWP =
            ::DeferWindowPos(pLayout->hDWP, m_hWnd, nullptr, rcBar.left, rcBar.top, rcBar.Width(),
                             rcBar.Height(), SWP_NOACTIVATE | SWP_NOZORDER);
    }
    return 0;
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM) {
    if (IsVisible()) {
        if (CFrameWnd* pFrame = GetDockingFrame()) {
            OnUpdateCmdUI(pFrame, static_cast<BOOL>(wParam));
        }
    }
    return 0;
}

LRESULT CControlBar::OnInitialUpdate(WPARAM, LPARAM) {
    return OnIdleUpdateCmdUI(TRUE, 0);
}
