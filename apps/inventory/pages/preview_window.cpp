#include "pages/preview_window.h"

#include <algorithm>

namespace {

constexpr int kEdge = 12;  // pixels around the sheet
constexpr int kLine = 40;  // pixels a line scrolls
constexpr int kLeastPercent = 10;
constexpr int kMostPercent = 300;

// Draws on the screen what is measured on the printer.
class StandInDC : public CDC {
public:
    explicit StandInDC(CDC& dcDevice) { SetAttribDC(dcDevice.m_hAttribDC); }
    ~StandInDC() override { ReleaseAttribDC(); }
};

}  // namespace

BEGIN_MESSAGE_MAP(PreviewWindow, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_LBUTTONDOWN()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

BOOL PreviewWindow::Create(CWnd* pParent, UINT nID) {
    return CWnd::CreateEx(WS_EX_CLIENTEDGE, nullptr, "",
                          WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_HSCROLL | WS_VSCROLL,
                          CRect(0, 0, 0, 0), pParent, nID);
}

void PreviewWindow::SetReport(Report* pReport, CDC* pDevice) {
    m_pReport = pReport;
    m_pDevice = pDevice;
    ShowPage(1);
    FitBars();
}

void PreviewWindow::ShowPage(unsigned nPage) {
    const unsigned nPages = m_pReport != nullptr ? m_pReport->Pages() : 0;
    m_nPage = std::clamp(nPage, 1u, std::max(nPages, 1u));
    m_bDrawn = false;
    SetScrollPos(SB_VERT, 0, TRUE);
    Invalidate(FALSE);
}

void PreviewWindow::Fit() {
    m_bFit = true;
    FitBars();
}

void PreviewWindow::Zoom(bool bIn) {
    m_bFit = false;
    m_nPercent =
        std::clamp(bIn ? m_nPercent * 5 / 4 : m_nPercent * 4 / 5, kLeastPercent, kMostPercent);
    FitBars();
}

// 100 percent: as large as on paper, by the screen's resolution.
CSize PreviewWindow::SheetSize() const {
    CClientDC dcScreen(nullptr);
    const CSize paper = m_pReport->PaperSize();
    const auto scale = [&](int nUnits, int nIndex) {
        return ::MulDiv(::MulDiv(nUnits, dcScreen.GetDeviceCaps(nIndex),
                                 std::max(m_pDevice->GetDeviceCaps(nIndex), 1)),
                        m_nPercent, 100);
    };
    return CSize(std::max(scale(paper.cx, LOGPIXELSX), 1),
                 std::max(scale(paper.cy, LOGPIXELSY), 1));
}

void PreviewWindow::FitBars() {
    m_bDrawn = false;
    Invalidate(FALSE);
    if (m_pReport == nullptr) {
        ShowScrollBar(SB_BOTH, FALSE);
        return;
    }
    if (m_bFit) {
        ShowScrollBar(SB_BOTH, FALSE);
        CRect rc;
        GetClientRect(&rc);
        m_nPercent = 100;
        const CSize whole = SheetSize();
        m_nPercent = std::clamp(std::min(::MulDiv(rc.Width() - 2 * kEdge, 100, whole.cx),
                                         ::MulDiv(rc.Height() - 2 * kEdge, 100, whole.cy)),
                                kLeastPercent, kMostPercent);
        return;
    }
    const CSize sheet = SheetSize();
    CRect rc;
    GetClientRect(&rc);
    const auto fit = [&](int nBar, int nSize, int nPage) {
        SCROLLINFO info{};
        info.cbSize = sizeof(info);
        info.fMask = SIF_RANGE | SIF_PAGE;
        info.nMax = nSize + 2 * kEdge - 1;
        info.nPage = static_cast<UINT>(std::max(nPage, 0));
        SetScrollInfo(nBar, &info, TRUE);
    };
    fit(SB_HORZ, sheet.cx, rc.Width());
    fit(SB_VERT, sheet.cy, rc.Height());
}

void PreviewWindow::DrawSheet() {
    const CSize sheet = SheetSize();
    const CSize paper = m_pReport->PaperSize();
    CClientDC dcScreen(this);
    m_bmpSheet.DeleteObject();
    if (!m_bmpSheet.CreateCompatibleBitmap(&dcScreen, sheet.cx, sheet.cy)) {
        return;
    }
    const CWaitCursor wait;
    CDC dcSheet;
    dcSheet.CreateCompatibleDC(&dcScreen);
    const qv::SelectGuard select(dcSheet, &m_bmpSheet);
    StandInDC dc(*m_pDevice);
    dc.SetOutputDC(dcSheet.m_hDC);
    ::PatBlt(dc.m_hDC, 0, 0, sheet.cx, sheet.cy, WHITENESS);
    ::SetMapMode(dc.m_hDC, MM_ANISOTROPIC);
    ::SetWindowExtEx(dc.m_hDC, paper.cx, paper.cy, nullptr);
    ::SetViewportExtEx(dc.m_hDC, sheet.cx, sheet.cy, nullptr);
    const CPoint origin = m_pReport->Origin();
    ::SetWindowOrgEx(dc.m_hDC, -origin.x, -origin.y, nullptr);
    dc.m_bPrinting = TRUE;
    m_pReport->PrintPage(dc, m_nPage);
    dc.ReleaseOutputDC();
    m_bDrawn = true;
}

void PreviewWindow::OnPaint() {
    CPaintDC dc(this);
    CRect rcClient;
    GetClientRect(&rcClient);
    if (m_pReport == nullptr || m_pReport->Pages() == 0) {
        dc.FillSolidRect(&rcClient, ::GetSysColor(COLOR_APPWORKSPACE));
        return;
    }
    if (!m_bDrawn) {
        DrawSheet();
    }
    const CSize sheet = SheetSize();
    const CPoint scrolled =
        m_bFit ? CPoint(0, 0) : CPoint(GetScrollPos(SB_HORZ), GetScrollPos(SB_VERT));
    const int x = std::max<int>(kEdge, (rcClient.Width() - sheet.cx) / 2) - scrolled.x;
    const int y = kEdge - scrolled.y;
    CDC dcSheet;
    dcSheet.CreateCompatibleDC(&dc);
    const qv::SelectGuard select(dcSheet, &m_bmpSheet);
    dc.BitBlt(x, y, sheet.cx, sheet.cy, &dcSheet, 0, 0, SRCCOPY);
    dc.ExcludeClipRect(x, y, x + sheet.cx, y + sheet.cy);
    dc.FillSolidRect(&rcClient, ::GetSysColor(COLOR_APPWORKSPACE));
}

BOOL PreviewWindow::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void PreviewWindow::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    FitBars();
}

void PreviewWindow::Scroll(int nBar, UINT nCode) {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    GetScrollInfo(nBar, &info);
    const int nPage = static_cast<int>(info.nPage);
    const int nOld = info.nPos;
    switch (nCode) {
        case SB_LINEUP:
            info.nPos -= kLine;
            break;
        case SB_LINEDOWN:
            info.nPos += kLine;
            break;
        case SB_PAGEUP:
            info.nPos -= nPage;
            break;
        case SB_PAGEDOWN:
            info.nPos += nPage;
            break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            info.nPos = info.nTrackPos;
            break;
        default:
            return;
    }
    info.fMask = SIF_POS;
    SetScrollInfo(nBar, &info, TRUE);
    if (GetScrollPos(nBar) != nOld) {
        Invalidate(FALSE);
    }
}

void PreviewWindow::OnHScroll(UINT nCode, UINT, CScrollBar*) {
    Scroll(SB_HORZ, nCode);
}

void PreviewWindow::OnVScroll(UINT nCode, UINT, CScrollBar*) {
    Scroll(SB_VERT, nCode);
}

BOOL PreviewWindow::OnMouseWheel(UINT, short zDelta, CPoint) {
    if (m_bFit) {
        ShowPage(zDelta < 0 ? m_nPage + 1 : std::max(m_nPage, 2u) - 1);
    } else {
        Scroll(SB_VERT, zDelta < 0 ? SB_LINEDOWN : SB_LINEUP);
    }
    return TRUE;
}

void PreviewWindow::OnKeyDown(UINT nChar, UINT, UINT) {
    switch (nChar) {
        case VK_NEXT:
            ShowPage(m_nPage + 1);
            break;
        case VK_PRIOR:
            ShowPage(std::max(m_nPage, 2u) - 1);
            break;
        case VK_HOME:
            ShowPage(1);
            break;
        case VK_END:
            ShowPage(m_pReport != nullptr ? m_pReport->Pages() : 1);
            break;
        case VK_UP:
            Scroll(SB_VERT, SB_LINEUP);
            break;
        case VK_DOWN:
            Scroll(SB_VERT, SB_LINEDOWN);
            break;
        default:
            Default();
            break;
    }
}

void PreviewWindow::OnLButtonDown(UINT, CPoint) {
    SetFocus();
}

UINT PreviewWindow::OnGetDlgCode() {
    return DLGC_WANTARROWS;
}
