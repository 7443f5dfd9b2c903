// A preview's window: sheets at their scale, scroll bars, the bar's commands, keys and mouse.
#include "afx/app/last_page.h"
#include "afx/documents/preview_job.h"
#include "afx/drawing/select_guard.h"

#include <afxpriv.h>

namespace {

constexpr int kLine = 40;  // pixels that an arrow scrolls
constexpr int kShadow = 3;
constexpr int kThousandths = 1000;

/// A sheet in the printer's units. Devices that know nothing of paper have their whole surface.
struct Paper {
    CSize size;
    CRect printable;

    explicit Paper(const CDC& dc)
        : size(dc.GetDeviceCaps(PHYSICALWIDTH), dc.GetDeviceCaps(PHYSICALHEIGHT)),
          printable(CPoint(dc.GetDeviceCaps(PHYSICALOFFSETX), dc.GetDeviceCaps(PHYSICALOFFSETY)),
                    CSize(dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES))) {
        if (size.cx <= 0 || size.cy <= 0) {
            size = CSize(std::max(printable.Width(), 1), std::max(printable.Height(), 1));
            printable.MoveToXY(0, 0);
        }
    }

    CRect PrintableOn(const CRect& rcSheet) const {
        const auto x = [&](int n) { return rcSheet.left + ::MulDiv(n, rcSheet.Width(), size.cx); };
        const auto y = [&](int n) { return rcSheet.top + ::MulDiv(n, rcSheet.Height(), size.cy); };
        return CRect(x(printable.left), y(printable.top), x(printable.right), y(printable.bottom));
    }
};

}  // namespace

// Sheets

CSize CPreviewView::FullSize() const {
    const CDC& dc = m_pJob->dc;
    const Paper paper(dc);
    CClientDC dcScreen(nullptr);
    const auto scale = [&](int n, int nIndex) {
        return std::max(
            1, ::MulDiv(n, dcScreen.GetDeviceCaps(nIndex), std::max(1, dc.GetDeviceCaps(nIndex))));
    };
    return CSize(scale(paper.size.cx, LOGPIXELSX), scale(paper.size.cy, LOGPIXELSY));
}

CRect CPreviewView::SheetRect(int nSheet) const {
    CRect rc = m_pShown->layout.Sheet(nSheet);
    rc.OffsetRect(-m_ptScroll.x, -m_ptScroll.y);
    return rc;
}

void CPreviewView::LayOut() {
    if (m_bLayingOut || m_pJob == nullptr || m_pJob->dc.m_hDC == nullptr) {
        return;
    }
    m_bLayingOut = true;
    const CSize full = FullSize();
    const CPrintInfo& info = m_pJob->info;
    // Each bar that comes or goes leaves another window for the sheets.
    for (int nTry = 0; nTry < 3; ++nTry) {
        CRect rc;
        GetClientRect(rc);
        m_pShown->layout =
            AfxPreviewLayout(rc.Size(), full, static_cast<int>(SheetsShown()), m_nZoomState);
        const CSize total = m_pShown->layout.total;
        m_ptScroll.x = std::clamp<LONG>(m_ptScroll.x, 0, total.cx - rc.Width());
        m_ptScroll.y = std::clamp<LONG>(m_ptScroll.y, 0, total.cy - rc.Height());
        if (m_nZoomState == ZOOM_OUT) {
            // The bar turns pages.
            const bool bKnown = m_nCurrentPage != 0 && info.GetMaxPage() != kAfxUnknownLastPage;
            SetBar(SB_HORZ, 0, 0, 1, 0);
            SetBar(SB_VERT, bKnown ? info.GetMinPage() : 0, bKnown ? info.GetMaxPage() : 0,
                   SheetsShown(), m_nCurrentPage);
        } else {
            SetBar(SB_HORZ, 0, total.cx - 1, rc.Width(), m_ptScroll.x);
            SetBar(SB_VERT, 0, total.cy - 1, rc.Height(), m_ptScroll.y);
        }
    }
    m_bLayingOut = false;
}

void CPreviewView::SetBar(int nBar, UINT nMin, UINT nMax, UINT nPage, UINT nPos) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMin = static_cast<int>(nMin);
    info.nMax = static_cast<int>(nMax);
    info.nPage = nPage;
    info.nPos = static_cast<int>(nPos);
    SetScrollInfo(nBar, &info);
}

void CPreviewView::OnSize(UINT nType, int cx, int cy) {
    CView::OnSize(nType, cx, cy);
    LayOut();
    Invalidate(FALSE);
}

BOOL CPreviewView::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CPreviewView::OnDraw(CDC* pDC) {
    CRect rc;
    GetClientRect(rc);
    CDC dcMemory;
    CBitmap bitmap;
    if (!dcMemory.CreateCompatibleDC(pDC) ||
        !bitmap.CreateCompatibleBitmap(pDC, rc.Width(), rc.Height())) {
        Paint(*pDC);
        return;
    }
    const AfxSelectGuard select(dcMemory.m_hDC, bitmap.m_hObject);
    Paint(dcMemory);
    pDC->BitBlt(0, 0, rc.Width(), rc.Height(), &dcMemory, 0, 0, SRCCOPY);
}

void CPreviewView::Paint(CDC& dc) const {
    CRect rcClient;
    GetClientRect(rcClient);
    dc.FillSolidRect(rcClient, ::GetSysColor(COLOR_APPWORKSPACE));
    for (int i = 0; i < static_cast<int>(SheetsShown()); ++i) {
        const AfxPreviewPage& page = m_pShown->pages[i];
        if (page.Number() == 0) {
            continue;
        }
        const CRect rcSheet = SheetRect(i);
        dc.FillSolidRect(rcSheet + CPoint(kShadow, kShadow), ::GetSysColor(COLOR_3DDKSHADOW));
        dc.FillSolidRect(rcSheet, RGB(0, 0, 0));
        CRect rcPaper(rcSheet);
        rcPaper.DeflateRect(1, 1);
        dc.FillSolidRect(rcPaper, RGB(255, 255, 255));
        page.Play(dc.m_hDC, Paper(m_pJob->dc).PrintableOn(rcSheet));
    }
}

// Commands

/// Null where it went, with a frame that goes, before this does.
CDialogBar* CPreviewView::Bar() const {
    return FromHandlePermanent(m_hWndToolBar) == m_pToolBar ? m_pToolBar : nullptr;
}

void CPreviewView::UpdateBar() {
    if (CDialogBar* pBar = Bar()) {
        pBar->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    }
}

void CPreviewView::OnPreviewPrint() {
    CFrameWnd* pFrame = GetParentFrame();
    const HWND hFrame = pFrame->GetSafeHwnd();
    OnPreviewClose();
    if (FromHandlePermanent(hFrame) == pFrame) {
        ::SendMessage(hFrame, WM_COMMAND, ID_FILE_PRINT, 0);
    }
}

void CPreviewView::OnNextPage() {
    SetCurrentPage(m_nCurrentPage + 1, FALSE);
}

void CPreviewView::OnPrevPage() {
    SetCurrentPage(m_nCurrentPage - std::min(m_nCurrentPage, 1u), FALSE);
}

void CPreviewView::OnNumPageChange() {
    m_nPages = m_nPages == 1 ? 2 : 1;
    SetCurrentPage(m_nCurrentPage, TRUE);
}

/// What lies in the middle of the window, in thousandths of the page.
CPoint CPreviewView::Middle() const {
    if (m_nZoomState == ZOOM_OUT) {
        return CPoint(kThousandths / 2, 0);  // begin at the top
    }
    CRect rc;
    GetClientRect(rc);
    const CRect rcSheet = SheetRect(0);
    return CPoint(::MulDiv(rc.Width() / 2 - rcSheet.left, kThousandths, rcSheet.Width()),
                  ::MulDiv(rc.Height() / 2 - rcSheet.top, kThousandths, rcSheet.Height()));
}

void CPreviewView::SetZoomState(UINT nNewState, UINT nPage, CPoint point) {
    if (m_pJob == nullptr || m_pJob->bDrawing) {
        return;
    }
    const AfxLifeWatch life(m_life);
    m_nZoomState = std::min<UINT>(nNewState, ZOOM_IN);
    SetCurrentPage(nPage, TRUE);
    if (!life || m_nZoomState == ZOOM_OUT) {
        return;
    }
    CRect rc;
    GetClientRect(rc);
    const CRect rcSheet = m_pShown->layout.Sheet(0);
    ScrollTo(
        CPoint(rcSheet.left + ::MulDiv(point.x, rcSheet.Width(), kThousandths) - rc.Width() / 2,
               rcSheet.top + ::MulDiv(point.y, rcSheet.Height(), kThousandths) - rc.Height() / 2));
}

void CPreviewView::OnZoomIn() {
    SetZoomState(m_nZoomState + 1, m_nCurrentPage, Middle());
}

void CPreviewView::OnZoomOut() {
    SetZoomState(m_nZoomState - std::min(m_nZoomState, 1u), m_nCurrentPage, Middle());
}

void CPreviewView::OnUpdatePrint(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_nCurrentPage != 0);
}

void CPreviewView::OnUpdateNextPage(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_nCurrentPage != 0 &&
                   m_nCurrentPage + SheetsShown() <= m_pJob->info.GetMaxPage());
}

void CPreviewView::OnUpdatePrevPage(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_nCurrentPage != 0 && m_nCurrentPage > m_pJob->info.GetMinPage());
}

void CPreviewView::OnUpdateNumPageChange(CCmdUI* pCmdUI) {
    CString strText;
    if (strText.LoadString(m_nPages == 1 ? AFX_IDS_TWOPAGE : AFX_IDS_ONEPAGE)) {
        pCmdUI->SetText(strText);
    }
    pCmdUI->Enable(m_nCurrentPage != 0 && m_nZoomState == ZOOM_OUT &&
                   (m_nPages == 2 || m_pJob->info.GetMinPage() < m_pJob->info.GetMaxPage()));
}

void CPreviewView::OnUpdateZoomIn(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_nCurrentPage != 0 && m_nZoomState != ZOOM_IN);
}

void CPreviewView::OnUpdateZoomOut(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_nZoomState != ZOOM_OUT);
}

// Scrolling

void CPreviewView::ScrollTo(CPoint pt) {
    m_ptScroll = pt;
    LayOut();
    Invalidate(FALSE);
}

void CPreviewView::Scroll(int nBar, UINT nSBCode) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    GetScrollInfo(nBar, &info);
    if (m_nZoomState == ZOOM_OUT) {
        ScrollPages(nSBCode, static_cast<UINT>(info.nTrackPos));
        return;
    }
    const int nPage = static_cast<int>(info.nPage);
    int nTo = info.nPos;
    switch (nSBCode) {
        case SB_LINEUP:
            nTo -= kLine;
            break;
        case SB_LINEDOWN:
            nTo += kLine;
            break;
        case SB_PAGEUP:
            nTo -= nPage;
            break;
        case SB_PAGEDOWN:
            nTo += nPage;
            break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            nTo = info.nTrackPos;
            break;
        case SB_TOP:
            nTo = info.nMin;
            break;
        case SB_BOTTOM:
            nTo = info.nMax;
            break;
        default:
            return;
    }
    ScrollTo(nBar == SB_HORZ ? CPoint(nTo, m_ptScroll.y) : CPoint(m_ptScroll.x, nTo));
}

/// While the thumb moves, only the number follows.
void CPreviewView::ScrollPages(UINT nSBCode, UINT nTrackPage) {
    switch (nSBCode) {
        case SB_LINEUP:
        case SB_PAGEUP:
            OnPrevPage();
            break;
        case SB_LINEDOWN:
        case SB_PAGEDOWN:
            OnNextPage();
            break;
        case SB_THUMBTRACK:
            OnDisplayPageNumber(nTrackPage, SheetsShown());
            break;
        case SB_THUMBPOSITION:
            SetCurrentPage(nTrackPage, TRUE);
            break;
        default:
            break;
    }
}

void CPreviewView::OnHScroll(UINT nSBCode, UINT, CScrollBar*) {
    Scroll(SB_HORZ, nSBCode);
}

void CPreviewView::OnVScroll(UINT nSBCode, UINT, CScrollBar*) {
    Scroll(SB_VERT, nSBCode);
}

BOOL CPreviewView::OnMouseWheel(UINT, short zDelta, CPoint) {
    const AfxLifeWatch life(m_life);
    for (m_nWheel += zDelta; life && std::abs(m_nWheel) >= WHEEL_DELTA;) {
        const bool bDown = m_nWheel < 0;
        m_nWheel += bDown ? WHEEL_DELTA : -WHEEL_DELTA;
        Scroll(SB_VERT, bDown ? SB_LINEDOWN : SB_LINEUP);
    }
    return TRUE;
}

// Keys and mouse

/// A zoomed page goes by, then the next one comes.
void CPreviewView::TurnOrScroll(bool bDown) {
    const CPoint ptBefore = m_ptScroll;
    Scroll(SB_VERT, bDown ? SB_PAGEDOWN : SB_PAGEUP);
    if (m_nZoomState == ZOOM_OUT || m_ptScroll != ptBefore) {
        return;
    }
    const UINT nBefore = m_nCurrentPage;
    const AfxLifeWatch life(m_life);
    bDown ? OnNextPage() : OnPrevPage();
    if (life && m_nCurrentPage != nBefore) {
        ScrollTo(CPoint(ptBefore.x, bDown ? 0 : m_pShown->layout.total.cy));
    }
}

void CPreviewView::OnKeyDown(UINT nChar, UINT, UINT) {
    switch (nChar) {
        case VK_NEXT:
        case VK_PRIOR:
            TurnOrScroll(nChar == VK_NEXT);
            break;
        case VK_HOME:
            SetCurrentPage(0, TRUE);
            break;
        case VK_END:
            if (m_pJob != nullptr && m_pJob->info.GetMaxPage() != kAfxUnknownLastPage) {
                SetCurrentPage(kAfxUnknownLastPage, TRUE);
            }
            break;
        case VK_UP:
        case VK_DOWN:
            Scroll(SB_VERT, nChar == VK_DOWN ? SB_LINEDOWN : SB_LINEUP);
            break;
        case VK_LEFT:
        case VK_RIGHT:
            Scroll(SB_HORZ, nChar == VK_RIGHT ? SB_LINEDOWN : SB_LINEUP);
            break;
        case VK_ADD:
        case VK_OEM_PLUS:
            OnZoomIn();
            break;
        case VK_SUBTRACT:
        case VK_OEM_MINUS:
            OnZoomOut();
            break;
        case VK_TAB:
            if (const CDialogBar* pBar = Bar()) {
                ::SetFocus(::GetNextDlgTabItem(pBar->m_hWnd, nullptr, FALSE));
            }
            break;
        case VK_ESCAPE:
            OnPreviewClose();
            break;
        default:
            Default();
            break;
    }
}

void CPreviewView::OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (!PressButton(nChar)) {
        CView::OnSysChar(nChar, nRepCnt, nFlags);
    }
}

/// The button of the bar whose caption underlines the letter.
bool CPreviewView::PressButton(UINT nChar) {
    const TCHAR szMark[] = {'&', static_cast<TCHAR>(std::tolower(static_cast<int>(nChar & 0xFF))),
                            '\0'};
    for (HWND hWnd = ::GetTopWindow(Bar()->GetSafeHwnd()); hWnd != nullptr;
         hWnd = ::GetWindow(hWnd, GW_HWNDNEXT)) {
        CString strText;
        FromHandle(hWnd)->GetWindowText(strText);
        strText.MakeLower();
        if (strText.Find(szMark) >= 0 && ::IsWindowEnabled(hWnd)) {
            ::SendMessage(hWnd, BM_CLICK, 0, 0);
            return true;
        }
    }
    return false;
}

/// -1 where there is none.
int CPreviewView::SheetAt(CPoint point) const {
    for (int i = 0; i < static_cast<int>(SheetsShown()); ++i) {
        if (m_pShown->pages[i].Number() != 0 && SheetRect(i).PtInRect(point)) {
            return i;
        }
    }
    return -1;
}

void CPreviewView::OnLButtonDown(UINT, CPoint point) {
    const int nSheet = SheetAt(point);
    if (nSheet >= 0) {
        const CRect rc = SheetRect(nSheet);
        SetZoomState(m_nZoomState == ZOOM_IN ? ZOOM_OUT : m_nZoomState + 1,
                     m_pShown->pages[nSheet].Number(),
                     CPoint(::MulDiv(point.x - rc.left, kThousandths, rc.Width()),
                            ::MulDiv(point.y - rc.top, kThousandths, rc.Height())));
    }
}

BOOL CPreviewView::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    CPoint pt;
    ::GetCursorPos(&pt);
    ScreenToClient(&pt);
    if (nHitTest == HTCLIENT && SheetAt(pt) >= 0) {
        const LPCTSTR lpszCursor = MAKEINTRESOURCE(AFX_IDC_MAGNIFY);
        ::SetCursor(::LoadCursor(AfxFindResourceHandle(lpszCursor, RT_GROUP_CURSOR), lpszCursor));
        return TRUE;
    }
    return CView::OnSetCursor(pWnd, nHitTest, message);
}
