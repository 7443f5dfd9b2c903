#include <algorithm>

#include "frame/select_object.h"
#include "frame/text_out.h"
#include "text/text_wnd.h"
#include "text/text_wnd_measure.h"

namespace {

constexpr UINT kRangeMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;

}  // namespace

qv::TextSplitter& QVTextWnd::Splitter() {
    return m_pMeasure->splitter;
}

// --- Layout

void QVTextWnd::CalcLayout() {
    if (m_hWnd != nullptr) {
        CalculateScrollBars();
        InvalidateRect(nullptr, FALSE);
    }
}

void QVTextWnd::FormatDisplayText(int nWidth) {
    CFont font;
    if (!CreateDisplayFont(font)) {
        return;
    }
    CleanupDisplayFont(font);
    if (nWidth == 0) {
        CRect rc;
        GetClientRect(&rc);
        nWidth = rc.Width();
    }
    try {
        m_rows.Format(m_lines, m_aStyles, nWidth, Splitter());
    } catch (const std::bad_alloc&) {
        // The rows that there is memory for show; the next layout tries the others again.
    }
    m_nMaxLineLength = 0;
    m_nNumRows = m_rows.Count();
}

void QVTextWnd::CalculateDataSize(int& cx, int& cy, int nWidth) {
    if (!m_bUseProportionalFont) {
        cx = m_nMaxLineLength * m_nCharWidth;
        cy = m_nNumRows * m_nCharHeight;
        return;
    }
    cx = nWidth;
    if (nWidth == 0) {
        CRect rc;
        GetClientRect(&rc);
        cx = rc.Width();
    }
    FormatDisplayText(nWidth);
    cy = m_rows.Count() * m_nCharHeight;
}

void QVTextWnd::CalculateLineRect(int nRow, CRect& rc) {
    GetClientRect(&rc);
    rc.top += nRow * m_nCharHeight;
    rc.bottom = rc.top + m_nCharHeight;
}

// Columns and rows that show whole; a font that is not measured yet shows none.
CSize QVTextWnd::ViewSize() {
    CRect rc;
    GetClientRect(&rc);
    return CSize(m_nCharWidth > 0 ? rc.Width() / m_nCharWidth : 0,
                 m_nCharHeight > 0 ? rc.Height() / m_nCharHeight : 0);
}

// Where a vertical bar was there already, rows stay made for the width without it, though a paint
// splits at the width that there is: the last piece of a line that needs one more shows with the
// next full layout. So it has always been.
void QVTextWnd::CalculateScrollBars() {
    if (m_hWnd == nullptr || m_nCharWidth <= 0 || m_nCharHeight <= 0) {
        return;
    }
    const int nBarCy = ::GetSystemMetrics(SM_CYHSCROLL);
    const int nBarCx = ::GetSystemMetrics(SM_CXVSCROLL);
    CRect rc;
    GetClientRect(&rc);
    rc.bottom += m_bHScrollBar ? nBarCy : 0;
    rc.right += m_bVScrollBar ? nBarCx : 0;
    int cx;
    int cy;
    CalculateDataSize(cx, cy, rc.Width());
    m_bHScrollBar = cx > rc.Width();
    rc.bottom -= m_bHScrollBar ? nBarCy : 0;
    if (m_bShowVScroll && rc.Height() < cy) {
        const bool bWasShown = m_bVScrollBar != 0;
        m_bVScrollBar = 1;
        rc.right -= nBarCx;
        if (!bWasShown && m_bUseProportionalFont) {
            CalculateDataSize(cx, cy, rc.Width());
        } else if (!m_bHScrollBar && cx >= rc.Width()) {
            m_bHScrollBar = 1;
            rc.bottom -= nBarCy;
        }
    } else {
        m_bVScrollBar = 0;
    }
    if (rc.Height() <= 0 || rc.Width() <= 0) {
        ShowScrollBar(SB_BOTH, FALSE);
        return;
    }
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = kRangeMask;
    info.nMax = m_nMaxLineLength - 1;
    if (m_bHScrollBar) {
        info.nPage = static_cast<UINT>(rc.Width() / m_nCharWidth);
        info.nPos = m_nHScrollPos;
        SetScrollInfo(SB_HORZ, &info, TRUE);
    } else if (m_pSyncWnd != nullptr) {
        info.nPage = static_cast<UINT>(m_nMaxLineLength);
        SetScrollInfo(SB_HORZ, &info, TRUE);
    }
    if (m_bVScrollBar) {
        info.nMax = m_nNumRows - 1;
        info.nPage = static_cast<UINT>(rc.Height() / m_nCharHeight);
        info.nPos = m_nVScrollPos;
        SetScrollInfo(SB_VERT, &info, TRUE);
    }
    ShowScrollBar(SB_HORZ, !m_bUseProportionalFont && (m_pSyncWnd != nullptr || m_bHScrollBar));
    ShowScrollBar(SB_VERT, m_bVScrollBar);
}

void QVTextWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_RESTORED) {
        return;
    }
    CalculateScrollBars();
    const CSize view = ViewSize();
    if (m_nHScrollPos + view.cx > m_nMaxLineLength) {
        m_nHScrollPos = std::max(m_nMaxLineLength - static_cast<int>(view.cx), 0);
    }
    if (m_nVScrollPos + view.cy > m_nNumRows) {
        m_nVScrollPos = std::max(m_nNumRows - static_cast<int>(view.cy), 0);
    }
}

// --- Painting

void QVTextWnd::OnPaint() {
    CPaintDC dc(this);
    CRect rcClient;
    GetClientRect(&rcClient);
    CFont font;
    CBrush background;
    if (!dc.RectVisible(&rcClient) || !CreateDisplayFont(font) ||
        !background.CreateSolidBrush(m_crBk)) {
        CleanupDisplayFont(font);
        return;
    }
    {
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
    CleanupDisplayFont(font);
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
    if (GetScrollInfo(SB_VERT, &info, SIF_POS | SIF_TRACKPOS)) {
        nPos = static_cast<UINT>(nCode == SB_THUMBTRACK ? info.nTrackPos : info.nPos);
    }
    if (!DoVScroll(nCode, nPos)) {
        CWnd::OnVScroll(nCode, nPos, pBar);
    } else if (m_pSyncWnd != nullptr) {
        m_pSyncWnd->DoVScroll(nCode, nPos);
    }
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
    if (DoVScroll(SB_THUMBPOSITION, static_cast<UINT>(nTarget)) && m_pSyncWnd != nullptr) {
        m_pSyncWnd->DoVScroll(SB_THUMBPOSITION, static_cast<UINT>(nTarget));
    }
    return 1;
}

// --- Input

void QVTextWnd::OnLButtonDown(UINT, CPoint) {
    SetFocus();
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
