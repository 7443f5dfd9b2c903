#include "afx/app/control_bar.h"

#include "afx/app/bar_drag.h"
#include "afx/app/dock_bar.h"
#include "afx/window/wnd_state.h"

#include <afxext.h>
#include <afxpriv.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
    ON_MESSAGE(WM_INITIALUPDATE, &CControlBar::OnInitialUpdate)
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_NCHITTEST()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

// Pixels: of the gripper with the gaps to either side, and of its bar.
static constexpr int kGripperRoom = 8;
static constexpr int kGripperInset = 3;
static constexpr int kGripperThickness = 3;

CControlBar::CControlBar() = default;

CControlBar::~CControlBar() {
    if (m_hWnd != nullptr) {
        DestroyWindow();
    }
    LeaveDocks();
}

BOOL CControlBar::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = AFX_WNDCLASS_CONTROLBAR;
    }
    return CWnd::PreCreateWindow(cs);
}

void CControlBar::JoinFrame(CFrameWnd* pFrame) {
    if (pFrame == nullptr) {
        return;
    }
    try {
        pFrame->m_listControlBars.AddTail(this);
    } catch (...) {
        DestroyWindow();  // a bar that its frame does not know lies nowhere
        throw;
    }
    m_pDockSite = pFrame;
    SetOwner(pFrame);  // which it keeps wherever it is docked
}

void CControlBar::LeaveDocks() {
    if (m_pDockBar != nullptr) {
        m_pDockBar->RemoveControlBar(this);
    }
    // A frame's bars go down before the frame's object does.
    if (m_pDockSite != nullptr) {
        if (POSITION pos = m_pDockSite->m_listControlBars.Find(this)) {
            m_pDockSite->m_listControlBars.RemoveAt(pos);
        }
        m_pDockSite = nullptr;
    }
}

void CControlBar::PostNcDestroy() {
    m_pDrag.reset();
    LeaveDocks();
    if (m_bAutoDelete) {
        delete this;
    }
}

BOOL CControlBar::IsVisible() const {
    if (m_delayed != NotDelayed) {
        return m_delayed == DelayedShow;
    }
    return (GetStyle() & WS_VISIBLE) != 0 &&
           (!IsFloating() || (m_pDockBar->GetParentFrame()->GetStyle() & WS_VISIBLE) != 0);
}

CFrameWnd* CControlBar::GetDockingFrame() const {
    return m_pDockSite != nullptr ? m_pDockSite : GetParentFrame();
}

BOOL CControlBar::IsFloating() const {
    return m_pDockBar != nullptr && m_pDockBar->m_bFloating;
}

void CControlBar::EnableDocking(DWORD dwDockStyle) {
    m_dwDockStyle = dwDockStyle & (CBRS_ALIGN_ANY | CBRS_FLOAT_MULTI);
}

void CControlBar::SetBarStyle(DWORD dwStyle) {
    const DWORD dwOld = m_dwStyle;
    if (dwStyle == dwOld) {
        return;
    }
    m_dwStyle = dwStyle;
    OnBarStyleChange(dwOld, dwStyle);
}

void CControlBar::OnBarStyleChange(DWORD, DWORD) {
    if (m_hWnd != nullptr) {  // gripper and borders lie elsewhere now
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }
}

void CControlBar::SetBorders(int cxLeft, int cyTop, int cxRight, int cyBottom) {
    m_cxLeftBorder = cxLeft;
    m_cyTopBorder = cyTop;
    m_cxRightBorder = cxRight;
    m_cyBottomBorder = cyBottom;
}

void CControlBar::SetBorders(LPCRECT lpRect) {
    SetBorders(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

CRect CControlBar::GetBorders() const {
    return CRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder);
}

void CControlBar::DelayShow(BOOL bShow) {
    m_delayed = bShow == ((GetStyle() & WS_VISIBLE) != 0) && !IsFloating() ? NotDelayed
                : bShow                                                    ? DelayedShow
                                                                           : DelayedHide;
}

// Layout

CSize CControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    constexpr int kStretched = 32767;
    return CSize(bStretch && bHorz ? kStretched : 0, bStretch && !bHorz ? kStretched : 0);
}

CSize CControlBar::CalcDynamicLayout(int, DWORD nMode) {
    return CalcFixedLayout((nMode & LM_STRETCH) != 0, (nMode & LM_HORZ) != 0);
}

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam) {
    if (!IsVisible() || !(m_dwStyle & CBRS_ALIGN_ANY)) {
        return 0;
    }
    auto* pLayout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    CRect rcFree(pLayout->rect);
    CRect rcBar(rcFree);
    const bool bHorz = IsHorizontal();
    const DWORD nMode =
        (pLayout->bStretch ? LM_STRETCH : 0) | (bHorz ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK);
    const CSize size = CalcDynamicLayout(-1, nMode);
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

// Gripper and borders, in the frame of the bar's window

CRect CControlBar::CalcInsets(BOOL bHorz) const {
    CRect rcInsets;
    if ((m_dwStyle & CBRS_GRIPPER) && !IsFloating()) {
        (bHorz ? rcInsets.left : rcInsets.top) = kGripperRoom;
    }
    return rcInsets;
}

void CControlBar::CalcInsideRect(CRect& rect, BOOL bHorz) const {
    rect.DeflateRect(CalcInsets(bHorz));
}

void CControlBar::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* lpncsp) {
    Default();
    CRect rect(lpncsp->rgrc[0]);
    CalcInsideRect(rect, IsHorizontal());
    rect.right = std::max(rect.left, rect.right);
    rect.bottom = std::max(rect.top, rect.bottom);
    lpncsp->rgrc[0] = rect;
}

void CControlBar::OnNcPaint() {
    Default();
    if (CalcInsets(IsHorizontal()).IsRectNull()) {
        return;
    }
    CWindowDC dc(this);
    CRect rcWindow;
    CRect rcClient;
    GetWindowRect(rcWindow);
    GetClientRect(rcClient);
    ClientToScreen(rcClient);
    rcClient.OffsetRect(-rcWindow.left, -rcWindow.top);
    rcWindow.OffsetRect(-rcWindow.left, -rcWindow.top);
    dc.ExcludeClipRect(rcClient);
    dc.FillSolidRect(rcWindow, ::GetSysColor(COLOR_BTNFACE));
    DrawBorders(&dc, rcWindow);
    DrawGripper(&dc, rcWindow);
}

void CControlBar::DrawBorders(CDC*, CRect&) {}

void CControlBar::DrawGripper(CDC* pDC, const CRect& rect) {
    if (!(m_dwStyle & CBRS_GRIPPER) || IsFloating()) {
        return;
    }
    CRect rcBar(rect);
    if (IsHorizontal()) {
        rcBar.DeflateRect(kGripperInset, kGripperInset);
        rcBar.right = rcBar.left + kGripperThickness;
    } else {
        rcBar.DeflateRect(kGripperInset, kGripperInset);
        rcBar.bottom = rcBar.top + kGripperThickness;
    }
    pDC->Draw3dRect(rcBar, ::GetSysColor(COLOR_BTNHIGHLIGHT), ::GetSysColor(COLOR_BTNSHADOW));
}

LRESULT CControlBar::OnNcHitTest(CPoint point) {
    // Where the gripper is, the mouse is the bar's as well.
    return m_dwStyle & CBRS_GRIPPER ? HTCLIENT : CWnd::OnNcHitTest(point);
}

// Dragging

bool CControlBar::CanDrag(CPoint point) const {
    return m_pDockBar != nullptr && m_dwDockStyle != 0 && m_pDockSite != nullptr &&
           OnToolHitTest(point, nullptr) == -1;
}

void CControlBar::OnLButtonDown(UINT nFlags, CPoint point) {
    if (CanDrag(point)) {
        ClientToScreen(&point);
        m_pDrag = std::make_unique<AfxBarDrag>(this, point);
        return;
    }
    const INT_PTR nHit = OnToolHitTest(point, nullptr);
    const HWND hWnd = m_hWnd;
    if (nHit != -1) {
        ShowFlyBy(nHit);
    }
    if (FromHandlePermanent(hWnd) == this) {
        CWnd::OnLButtonDown(nFlags, point);
    }
}

void CControlBar::OnLButtonDblClk(UINT nFlags, CPoint point) {
    if (!CanDrag(point)) {
        CWnd::OnLButtonDblClk(nFlags, point);
        return;
    }
    AfxBarDrag::Toggle(this);
}

void CControlBar::OnMouseMove(UINT nFlags, CPoint point) {
    if (m_pDrag != nullptr) {
        ClientToScreen(&point);
        m_pDrag->Move(point);
        return;
    }
    if (m_dwStyle & CBRS_FLYBY) {
        const HWND hWnd = m_hWnd;
        ShowFlyBy(OnToolHitTest(point, nullptr));
        if (FromHandlePermanent(hWnd) != this) {
            return;
        }
    }
    CWnd::OnMouseMove(nFlags, point);
}

void CControlBar::OnLButtonUp(UINT nFlags, CPoint point) {
    if (m_pDrag == nullptr) {
        CWnd::OnLButtonUp(nFlags, point);
        return;
    }
    ClientToScreen(&point);
    // What follows moves windows, and lets go of the mouse.
    const auto pDrag = std::move(m_pDrag);
    pDrag->Drop(point);
}

void CControlBar::OnCaptureChanged(CWnd* pWnd) {
    if (pWnd != this) {
        m_pDrag.reset();
    }
    CWnd::OnCaptureChanged(pWnd);
}

// The message line while the mouse is over a control

void CControlBar::ShowFlyBy(INT_PTR nHit) {
    if (nHit == m_nFlyBy) {
        return;
    }
    m_nFlyBy = nHit;
    CFrameWnd* pFrame = GetDockingFrame();
    if (nHit != -1) {
        TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_hWnd, 0};
        ::TrackMouseEvent(&track);
    }
    if (pFrame != nullptr && nHit > 0) {
        pFrame->SendMessage(WM_SETMESSAGESTRING, static_cast<WPARAM>(nHit));
    } else if (pFrame != nullptr) {
        pFrame->SendMessage(WM_POPMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    }
}

void CControlBar::OnMouseLeave() {
    const HWND hWnd = m_hWnd;
    ShowFlyBy(-1);
    if (FromHandlePermanent(hWnd) == this) {
        CWnd::OnMouseLeave();
    }
}

BOOL CControlBar::PreTranslateMessage(MSG* pMsg) {
    if (m_pDrag != nullptr && pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE) {
        ::ReleaseCapture();
        return TRUE;
    }
    return CWnd::PreTranslateMessage(pMsg);
}

// State at idle time

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
