#include "text/text_wnd.h"

#include "frame/core/wheel.h"
#include "frame/mouse_wheel.h"
#include "frame/out_of_memory.h"
#include "frame/select_object.h"
#include "frame/text_out.h"
#include "text/text_wnd_measure.h"

#include <algorithm>

qv::TextSplitter& QVTextWnd::Splitter() {
    return m_pMeasure->splitter;
}

qv::TextView& QVTextWnd::Layout() {
    return m_pMeasure->view;
}

// --- Layout

void QVTextWnd::SetExactLayout(BOOL bExact) {
    Layout().SetExact(bExact != FALSE);
    CalcLayout();
}

BOOL QVTextWnd::IsExactLayout() const {
    return m_pMeasure->view.IsExact();
}

void QVTextWnd::CalcLayout() {
    if (m_hWnd != nullptr) {
        CalculateScrollBars();
        InvalidateRect(nullptr, FALSE);
    }
}

void QVTextWnd::FormatDisplayText(int nWidth) {
    qv::MemorySuffices([&] {
        CFont font;
        if (CreateDisplayFont(font)) {
            CleanupDisplayFont(font);
            Layout().Format(nWidth);
        }
    });
}

void QVTextWnd::CalculateDataSize(int& cx, int& cy, int nWidth) {
    const qv::Size size = Layout().DataSize(nWidth);
    cx = size.cx;
    cy = size.cy;
}

void QVTextWnd::CalculateLineRect(int nRow, CRect& rc) {
    GetClientRect(&rc);
    rc.top += nRow * m_nCharHeight;
    rc.bottom = rc.top + m_nCharHeight;
}

CSize QVTextWnd::ViewSize() {
    const qv::Size size = Layout().ViewSize();
    return CSize(size.cx, size.cy);
}

void QVTextWnd::CalculateScrollBars() {
    Layout().FitBars(m_pSyncWnd != nullptr);
}

void QVTextWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (nType == SIZE_RESTORED || (nType == SIZE_MAXIMIZED && IsExactLayout())) {
        Layout().Resize(m_pSyncWnd != nullptr);
    }
}

// --- Painting

// What there is no memory to paint stays as it is on the screen, and is not asked for again.
void QVTextWnd::OnPaint() {
    if (!qv::MemorySuffices([this] { Paint(); })) {
        ::ValidateRect(m_hWnd, nullptr);
    }
}

void QVTextWnd::Paint() {
    CPaintDC dc(this);
    CRect rcClient;
    GetClientRect(&rcClient);
    CFont font;
    CBrush background;
    if (!dc.RectVisible(&rcClient) || !CreateDisplayFont(font)) {
        return;
    }
    const FontScope scope(*this, font);
    if (!background.CreateSolidBrush(m_crBk)) {
        return;
    }
    const qv::SelectGuard<CFont> selected(dc, &font);
    const qv::ColorGuard colors(dc);
    const CSize view = ViewSize();
    const int nEnd = m_nVScrollPos + static_cast<int>(view.cy) + 1;
    int nRow = m_nVScrollPos;
    if (!m_bUseProportionalFont) {
        for (; nRow < std::min(nEnd, NumLines()); ++nRow) {
            DrawText(dc, nRow, static_cast<int>(view.cx) + 1);
        }
    } else {
        nRow = DrawRows(dc, nRow, std::min(nEnd, m_rows.Count()), rcClient.Width());
    }
    CRect rcRest;
    CalculateLineRect(nRow - m_nVScrollPos, rcRest);
    rcRest.bottom = rcClient.bottom;
    if (!rcRest.IsRectEmpty()) {
        dc.FillRect(&rcRest, &background);
    }
}

// Rows nRow up to nEnd; gives the row behind the last one drawn. Rows of lines that are gone draw
// nothing: the rows are those of the last layout.
int QVTextWnd::DrawRows(CDC& dc, int nRow, int nEnd, int nWidth) {
    std::vector<int>& starts = m_pMeasure->starts;
    int nLine = -1;
    CString strText;
    int nStyle = 0;
    for (; nRow < nEnd; ++nRow) {
        const QVTEXTLINE row = m_rows[nRow];
        if (row.nLine >= NumLines()) {
            break;
        }
        if (row.nLine != nLine) {
            nLine = row.nLine;
            const char* pszLine = GetLine(nLine);
            nStyle = ParseStyle(pszLine);
            strText = ParseStyleText(pszLine);
            qv::SplitLine(pszLine, nWidth, m_aStyles, Splitter(), starts);
        }
        const auto nPiece = static_cast<size_t>(row.nSubLine);
        const int nLength = strText.GetLength();
        // Made for another width, a line may have more rows than it has pieces now.
        const int nFrom = nPiece < starts.size() ? starts[nPiece] : nLength;
        const int nTo = nPiece + 1 < starts.size() ? starts[nPiece + 1] : -1;
        DrawText(dc, nRow - m_nVScrollPos, strText, nStyle, nFrom, nTo);
    }
    return nRow;
}

void QVTextWnd::FillRow(CDC& dc, const CRect& rc, COLORREF cr) {
    if (!rc.IsRectEmpty()) {
        CBrush brush;
        brush.CreateSolidBrush(cr);
        dc.FillRect(&rc, &brush);
    }
}

// Draws a part of a line whose whole length is nLength, and fills the rest of its row.
void QVTextWnd::DrawPiece(CDC& dc, const CRect& rcRow, std::string_view text, size_t nLength,
                          int nStyle) {
    if (!dc.RectVisible(&rcRow)) {
        return;
    }
    const bool bStyle = nStyle >= 0 && nStyle < m_aStyles.Count();
    const QVSTYLE style =
        bStyle ? m_aStyles[nStyle] : QVSTYLE{::GetSysColor(COLOR_WINDOWTEXT), m_crBk};
    if (nLength <= static_cast<size_t>(m_nHScrollPos)) {
        FillRow(dc, rcRow, style.crBk);  // all of it lies left of the view
        return;
    }
    dc.SetTextColor(style.crText);
    dc.SetBkColor(style.crBk);
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    const CSize size = qv::DrawTabbedText(dc, rcRow.left, rcRow.top, text, m_nTabStop,
                                          static_cast<int>(rcRow.left));
    CRect rcRest(rcRow);
    rcRest.left += static_cast<short>(size.cx);
    FillRow(dc, rcRest, style.crBk);
}

void QVTextWnd::DrawText(CDC& dc, int nRow, const CString& strText, int nStyle, int nFrom,
                         int nTo) {
    CRect rc;
    CalculateLineRect(nRow, rc);
    const std::string_view text(strText, static_cast<size_t>(strText.GetLength()));
    const size_t nStart = std::min(static_cast<size_t>(std::max(nFrom, 0)), text.size());
    const size_t nEnd = nTo == -1 ? text.size() : std::min(static_cast<size_t>(nTo), text.size());
    DrawPiece(dc, rc, text.substr(nStart, std::max(nEnd, nStart) - nStart), text.size(), nStyle);
}

void QVTextWnd::DrawText(CDC& dc, int nLine, int nCols) {
    CRect rc;
    CalculateLineRect(nLine - m_nVScrollPos, rc);
    const char* pszLine = GetLine(nLine);
    const std::string_view text = ParseStyleText(pszLine);
    const size_t nStart = std::min(static_cast<size_t>(m_nHScrollPos), text.size());
    DrawPiece(dc, rc, text.substr(nStart, static_cast<size_t>(nCols)), text.size(),
              ParseStyle(pszLine));
}

// --- Scrolling

void QVTextWnd::SyncWith(QVTextWnd* pOther, int bShowVScroll) {
    m_pSyncWnd = pOther;
    m_bShowVScroll = bShowVScroll;
}

int QVTextWnd::DoVScroll(UINT nCode, UINT nPos) {
    int nTarget;
    if (m_hWnd == nullptr ||
        !qv::ScrollTarget(qv::ScrollCodeOf(nCode), nPos, m_nVScrollPos, m_nNumRows,
                          static_cast<int>(ViewSize().cy), nTarget)) {
        return 0;
    }
    ScrollWindow(0, (m_nVScrollPos - nTarget) * m_nCharHeight, nullptr, nullptr);
    m_nVScrollPos = nTarget;
    CalculateScrollBars();
    UpdateWindow();
    return 1;
}

void QVTextWnd::OnVScroll(UINT nCode, UINT nPos, CScrollBar* pBar) {
    // The message has room for 16 bits of the position alone.
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    if (GetScrollInfo(SB_VERT, &info, SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS)) {
        const qv::ScrollRange bar{info.nMin, info.nMax, static_cast<int>(info.nPage), info.nPos};
        nPos = nCode == SB_THUMBTRACK
                   ? qv::DraggedTo(info.nTrackPos, bar, m_nNumRows, static_cast<int>(ViewSize().cy))
                   : static_cast<UINT>(info.nPos);
    }
    if (!ScrollBoth(nCode, nPos)) {
        CWnd::OnVScroll(nCode, nPos, pBar);
    }
}

// The partner follows where this window has moved.
bool QVTextWnd::ScrollBoth(UINT nCode, UINT nPos) {
    if (!DoVScroll(nCode, nPos)) {
        return false;
    }
    if (m_pSyncWnd != nullptr) {
        m_pSyncWnd->DoVScroll(nCode, nPos);
    }
    return true;
}

BOOL QVTextWnd::OnMouseWheel(UINT, short zDelta, CPoint) {
    // One remainder for all text windows of the process: the wheel is one.
    static int s_nRemainder = 0;
    qv::TurnWheel(s_nRemainder, zDelta, GetMouseScrollLines(FALSE), [this](bool bUp, bool bPage) {
        ScrollBoth(static_cast<UINT>(bPage ? (bUp ? SB_PAGEUP : SB_PAGEDOWN)
                                           : (bUp ? SB_LINEUP : SB_LINEDOWN)),
                   0);
    });
    return TRUE;
}

void QVTextWnd::OnHScroll(UINT nCode, UINT nPos, CScrollBar* pBar) {
    if (nCode >= SB_ENDSCROLL) {
        CWnd::OnHScroll(nCode, nPos, pBar);
        return;
    }
    int nTarget;
    if (!qv::ScrollTarget(qv::ScrollCodeOf(nCode), nPos, m_nHScrollPos, m_nMaxLineLength,
                          static_cast<int>(ViewSize().cx), nTarget)) {
        return;
    }
    ScrollWindow((m_nHScrollPos - nTarget) * m_nCharWidth, 0, nullptr, nullptr);
    m_nHScrollPos = nTarget;
    CalculateScrollBars();
    UpdateWindow();
}

int QVTextWnd::ScrollTo(int nLine, int nMargin) {
    if (m_hWnd == nullptr) {
        return 1;
    }
    const int nMost = m_nNumRows - static_cast<int>(ViewSize().cy);
    const int nTarget = std::max(std::min(std::max(nLine - nMargin, 0), nMost), 0);
    ScrollBoth(SB_THUMBPOSITION, static_cast<UINT>(nTarget));
    return 1;
}

// --- Input

void QVTextWnd::OnLButtonDown(UINT, CPoint) {
    ::SetFocus(m_hWnd);
    Default();
}

void QVTextWnd::OnKeyDown(UINT nChar, UINT, UINT) {
    static constexpr struct {
        UINT nKey;
        UINT nMessage;
        WORD nCode;
    } kKeys[] = {
        {VK_PRIOR, WM_VSCROLL, SB_PAGEUP},  {VK_NEXT, WM_VSCROLL, SB_PAGEDOWN},
        {VK_HOME, WM_VSCROLL, SB_TOP},      {VK_END, WM_VSCROLL, SB_BOTTOM},
        {VK_UP, WM_VSCROLL, SB_LINEUP},     {VK_DOWN, WM_VSCROLL, SB_LINEDOWN},
        {VK_LEFT, WM_HSCROLL, SB_LINELEFT}, {VK_RIGHT, WM_HSCROLL, SB_LINERIGHT},
    };
    for (const auto& key : kKeys) {
        if (key.nKey == nChar) {
            SendMessage(key.nMessage, MAKEWPARAM(key.nCode, 0), 0);
            return;
        }
    }
    Default();
}

UINT QVTextWnd::OnGetDlgCode() {
    return DLGC_WANTARROWS;
}
