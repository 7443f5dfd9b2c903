#include "text/text_wnd.h"

#include "frame/core/wheel.h"
#include "frame/dc_guards.h"
#include "frame/mouse_wheel.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"
#include "text/text_wnd_core.h"

#include <algorithm>
#include <oleacc.h>

// --- Layout

void QVTextWnd::SetExactLayout(BOOL bExact) {
    m_pCore->view.SetExact(bExact != FALSE);
    CalcLayout();
}

BOOL QVTextWnd::IsExactLayout() const {
    return m_pCore->view.IsExact();
}

void QVTextWnd::CalcLayout() {
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    if (watch) {
        CalculateScrollBars();
    }
    if (watch) {
        InvalidateRect(nullptr, FALSE);
        TellAccessibleReorder();
    }
}

void QVTextWnd::FormatDisplayText(int nWidth) {
    qv::MemorySuffices([&] {
        CFont font;
        if (CreateDisplayFont(font)) {
            CleanupDisplayFont(font);
            m_pCore->view.Format(nWidth);
        }
    });
}

void QVTextWnd::CalculateDataSize(int& cx, int& cy, int nWidth) {
    const qv::Size size = m_pCore->view.DataSize(nWidth);
    cx = size.cx;
    cy = size.cy;
}

int QVTextWnd::NumDisplayLines() const {
    return m_pCore->view.Rows().Count();
}

int QVTextWnd::GetDisplayLine(int nRow, QVTEXTLINE& row) const {
    if (nRow < 0 || nRow >= NumDisplayLines()) {
        return 0;
    }
    row = m_pCore->view.Rows()[nRow];
    return 1;
}

void QVTextWnd::CalculateLineRect(int nRow, CRect& rc) {
    GetClientRect(&rc);
    rc.top += nRow * m_nCharHeight;
    rc.bottom = rc.top + m_nCharHeight;
}

void QVTextWnd::CalculateScrollBars() {
    m_pCore->view.FitBars();
}

void QVTextWnd::OnSize(UINT nType, int cx, int cy) {
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    CWnd::OnSize(nType, cx, cy);
    if (watch && (nType == SIZE_RESTORED || (nType == SIZE_MAXIMIZED && IsExactLayout()))) {
        m_pCore->view.Resize();
    }
}

// --- Painting

// What there is no memory to paint stays as it is on the screen, and is not asked for again.
void QVTextWnd::OnPaint() {
    const HWND hWnd = m_hWnd;
    if (!qv::MemorySuffices([this] { Paint(); })) {
        ::ValidateRect(hWnd, nullptr);
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
    const FontScope scope(font);
    if (!background.CreateSolidBrush(m_crBk)) {
        return;
    }
    const qv::SelectGuard<CFont> selected(dc, &font);
    const qv::ColorGuard colors(dc);
    const qv::Size view = m_pCore->view.ViewSize();
    const int nEnd = m_nVScrollPos + view.cy + 1;
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    int nRow = m_nVScrollPos;
    if (!m_bUseProportionalFont) {
        for (; watch && nRow < std::min(nEnd, NumLines()); ++nRow) {
            DrawSelected(dc, nRow);
            DrawText(dc, nRow, view.cx + 1);
        }
    } else {
        nRow = DrawRows(dc, nRow, nEnd, rcClient.Width());
    }
    if (!watch) {
        return;
    }
    CRect rcRest;
    CalculateLineRect(nRow - m_nVScrollPos, rcRest);
    rcRest.bottom = rcClient.bottom;
    if (!rcRest.IsRectEmpty()) {
        dc.FillRect(&rcRest, &background);
    }
}

// Rows nRow up to nEnd; gives the row behind the last one drawn. Rows of lines that are gone draw
// nothing: the rows are those of the last layout. What draws may be replaced, and do anything.
int QVTextWnd::DrawRows(CDC& dc, int nRow, int nEnd, int nWidth) {
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    int nLine = -1;
    CString strText;
    int nStyle = 0;
    QVTEXTLINE row;
    for (; watch && nRow < nEnd && GetDisplayLine(nRow, row); ++nRow) {
        if (row.nLine >= NumLines()) {
            break;
        }
        if (row.nLine != nLine) {
            nLine = row.nLine;
            const char* pszLine = GetLine(nLine);
            nStyle = ParseStyle(pszLine);
            strText = ParseStyleText(pszLine);
            m_pCore->view.CutLine(nLine, nWidth);
        }
        DrawSelected(dc, nRow);
        const qv::TextPiece piece = m_pCore->view.Piece(row.nSubLine, strText.GetLength());
        DrawText(dc, nRow - m_nVScrollPos, strText, nStyle, piece.nFrom, piece.nTo);
    }
    return nRow;
}

namespace {

void FillRow(CDC& dc, const CRect& rc, COLORREF cr) {
    if (!rc.IsRectEmpty()) {
        CBrush brush;
        brush.CreateSolidBrush(cr);
        dc.FillRect(&rc, &brush);
    }
}

}  // namespace

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
    m_pCore->pSyncWnd = pOther;
    m_pCore->view.SetPartner(pOther != nullptr ? &pOther->m_pCore->view.Alive() : nullptr);
    m_bShowVScroll = bShowVScroll;
}

QVTextWnd* QVTextWnd::SyncWnd() const {
    return m_pCore->view.HasPartner() ? m_pCore->pSyncWnd : nullptr;
}

int QVTextWnd::DoVScroll(UINT nCode, UINT nPos) {
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    const bool bMoved = m_pCore->view.VScroll(nCode, static_cast<int>(nPos));
    if (bMoved && watch) {
        TellAccessible(EVENT_OBJECT_VALUECHANGE, CHILDID_SELF);
    }
    return bMoved;
}

void QVTextWnd::OnVScroll(UINT nCode, UINT nPos, CScrollBar* pBar) {
    const int nRow = m_pCore->view.ThumbRow(nCode, static_cast<int>(nPos));
    if (!ScrollBoth(nCode, static_cast<UINT>(nRow))) {
        CWnd::OnVScroll(nCode, nPos, pBar);
    }
}

// The partner follows where this window has moved.
bool QVTextWnd::ScrollBoth(UINT nCode, UINT nPos) {
    const qv::AliveWatch watch(m_pCore->view.Alive());
    if (!DoVScroll(nCode, nPos)) {
        return false;
    }
    QVTextWnd* pPartner = watch ? SyncWnd() : nullptr;
    if (pPartner != nullptr) {
        pPartner->DoVScroll(nCode, nPos);
    }
    return true;
}

BOOL QVTextWnd::OnMouseWheel(UINT, short zDelta, CPoint) {
    // One remainder for all text windows of the process: the wheel is one.
    static int s_nRemainder = 0;
    const qv::AliveWatch watch(m_pCore->view.Alive());
    qv::TurnWheel(s_nRemainder, zDelta, GetMouseScrollLines(FALSE), [&](bool bUp, bool bPage) {
        if (watch) {
            ScrollBoth(static_cast<UINT>(bPage ? (bUp ? SB_PAGEUP : SB_PAGEDOWN)
                                               : (bUp ? SB_LINEUP : SB_LINEDOWN)),
                       0);
        }
    });
    return TRUE;
}

void QVTextWnd::OnHScroll(UINT nCode, UINT nPos, CScrollBar* pBar) {
    if (nCode >= SB_ENDSCROLL) {
        CWnd::OnHScroll(nCode, nPos, pBar);
    } else {
        m_pCore->view.HScroll(nCode, static_cast<int>(nPos));
    }
}

int QVTextWnd::ScrollTo(int nLine, int nMargin) {
    if (m_hWnd != nullptr) {
        ScrollBoth(SB_THUMBPOSITION, static_cast<UINT>(m_pCore->view.PositionFor(nLine, nMargin)));
    }
    return 1;
}

// --- Input

void QVTextWnd::OnLButtonDown(UINT nFlags, CPoint pt) {
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    ::SetFocus(m_hWnd);
    if (watch) {
        Default();
    }
    if (watch && AreExpectedKeysEnabled()) {
        BeginSelection(nFlags, pt);
    }
}

void QVTextWnd::OnKeyDown(UINT nChar, UINT, UINT) {
    if (AreExpectedKeysEnabled() && TakeExpectedKey(nChar)) {
        return;
    }
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
