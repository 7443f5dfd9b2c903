#include "grid/grid_ctrl.h"

#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/paint_objects.h"
#include "frame/rectangles.h"
#include "frame/text_out.h"
#include "grid/grid_ctrl_core.h"

#include <algorithm>

namespace {

constexpr UINT kTextFlags = DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS;

COLORREF Sys(int nIndex) {
    return ::GetSysColor(nIndex);
}

}  // namespace

// The font is that of the parent unless the grid was given one of its own.
void QVGridCtrl::CalcCellHeight() {
    qv::MemorySuffices([this] {
        CClientDC dc(this);
        CWnd* pParent = GetParent();
        if (m_hFont == nullptr && pParent != nullptr) {
            const CFont* pFont = pParent->GetFont();
            const auto hFont = pFont != nullptr ? pFont->GetSafeHandle() : nullptr;
            SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(hFont), TRUE);
        }
        const qv::SelectGuard<CFont> font(dc, m_hFont);
        TEXTMETRIC metrics{};
        dc.GetTextMetrics(&metrics);
        m_nCellHeight = metrics.tmHeight + qv::kRowPadding;
    });
}

bool QVGridCtrl::MeasureRows() {
    if (m_nCellHeight == -1) {
        CalcCellHeight();
        RefitRows();
        m_pCore->editing.PlaceEditors();
    }
    return m_nCellHeight != -1;
}

void QVGridCtrl::OnPaint() {
    m_pCore->port.DrawBars();
    QVCustCtrl::OnPaint();
}

void QVGridCtrl::Draw(CDC& dc, const CRect& rcClient) {
    qv::MemorySuffices([&] { DrawRows(dc, rcClient); });
}

void QVGridCtrl::DrawRows(CDC& dc, const CRect& rcClient) {
    MeasureRows();
    const qv::BrushLife window(m_brWindow, Sys(COLOR_WINDOW));
    const qv::BrushLife highlight(m_brHighlight, Sys(COLOR_HIGHLIGHT));
    const qv::PenLife grid(m_penGrid, Sys(COLOR_BTNFACE));
    dc.FillRect(&rcClient, &m_brWindow);
    if (NumRows() == 0) {
        return;
    }
    const BOOL bFocus = ::GetFocus() == m_hWnd;
    const qv::SelectGuard<CPen> pen(dc, &m_penGrid);
    const qv::SelectGuard<CFont> font(dc, m_hFont);
    const qv::ColorGuard colors(dc);
    dc.SetTextColor(Sys(COLOR_WINDOWTEXT));
    dc.SetBkColor(Sys(COLOR_WINDOW));
    const qv::GridLayout layout{m_pCore->model, qv::ToRect(rcClient), m_nCellHeight, m_nTopRow};
    const int nEnd = layout.EndOfShownRows();
    for (int nRow = m_nTopRow; nRow < nEnd; ++nRow) {
        const CRect rcRow = qv::ToCRect(layout.RowRect(nRow));
        if (dc.RectVisible(&rcRow)) {
            DrawRow(dc, nRow, rcRow, bFocus);
        }
    }
}

void QVGridCtrl::DrawRow(CDC& dc, int nRow, const CRect& rcRow, BOOL bFocus) {
    const _QVGRID_ROW_INFO& row = m_pCore->model.RowAt(nRow);
    const int nLast = NumColumns() - 1;
    CRect rc(rcRow);
    for (int nCol = 0; nCol <= nLast; ++nCol, rc.left = rc.right) {
        const char* pszText = m_pCore->model.Text(nRow, nCol);
        const CString strText(pszText != nullptr ? pszText : "");
        const DWORD dwStyle = GetCellStyle(nRow, nCol);
        rc.right = nCol == nLast ? rcRow.right : rc.left + GetColWidth(nCol);
        if (nCol == 0 && (row.dwState & GRS_CURRENT) != 0) {
            // The current row is marked by its first cell alone, which shows nothing else.
            dc.FillRect(&rc, &m_brHighlight);
            const qv::ColorGuard colors(dc);
            dc.SetTextColor(Sys(COLOR_WINDOW));
            dc.SetBkColor(Sys(COLOR_HIGHLIGHT));
            DrawCell(dc, rc, strText, 0, 0);
            continue;
        }
        const bool bCurrent = m_pCore->editing.IsCurrent({nRow, nCol});
        const bool bButton = bCurrent && m_pCore->model.UsesButton(qv::GridCell{nRow, nCol}) &&
                             (dwStyle & GCS_DISABLED) == 0 && !m_bReadOnly &&
                             !m_pCore->editing.IsLockedList({nRow, nCol});
        DrawCell(dc, rc, strText, dwStyle | (bCurrent && bFocus ? GCS_FOCUS : 0),
                 bButton ? m_nCellHeight : 0);
        if (bButton) {
            CRect rcButton(rc);
            ButtonRectFromCellRect(rcButton);
            DrawButton(dc, rcButton, GetCellType(nRow, nCol), (row.dwState & GRS_BUTTONDOWN) != 0);
        }
    }
}

void QVGridCtrl::DrawCell(CDC& dc, const CRect& rc, const CString& str, DWORD dwStyle,
                          int nButtonWidth) {
    CRect rcText = qv::ToCRect(qv::GridTextRect(qv::ToRect(rc), nButtonWidth));
    {
        const qv::ColorGuard colors(dc);
        if ((dwStyle & GCS_DISABLED) != 0) {
            dc.SetTextColor(Sys(COLOR_GRAYTEXT));
        }
        qv::DrawTextIn(dc, qv::View(str), rcText, kTextFlags);
    }
    dc.MoveTo(rc.left, rc.bottom - 1);
    dc.LineTo(rc.right - 1, rc.bottom - 1);
    dc.LineTo(rc.right - 1, rc.top - 1);
    if ((dwStyle & GCS_FOCUS) != 0) {
        const CRect rcFocus = qv::ToCRect(qv::GridFocusRect(qv::ToRect(rc), nButtonWidth));
        dc.DrawFocusRect(&rcFocus);
    }
}

void QVGridCtrl::DrawButton(CDC& dc, const CRect& rc, GridColType nType, BOOL bPressed) {
    const qv::ColorGuard colors(dc);
    CRect rcFace(rc);
    if (nType != gctDropList) {
        // Top left and bottom right of the outer frame, then of the inner one.
        const int aRaised[] = {COLOR_BTNHIGHLIGHT, COLOR_3DDKSHADOW, COLOR_3DLIGHT,
                               COLOR_BTNSHADOW};
        const int aPressed[] = {COLOR_3DDKSHADOW, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW,
                                COLOR_3DLIGHT};
        const int* pEdges = bPressed ? aPressed : aRaised;
        for (int i = 0; i < 4; i += 2) {
            dc.Draw3dRect(&rcFace, Sys(pEdges[i]), Sys(pEdges[i + 1]));
            rcFace.DeflateRect(1, 1);
        }
    }
    CBrush face(Sys(COLOR_BTNFACE));
    dc.FillRect(&rcFace, &face);
    if (nType == gctDropList) {
        CRect rcArrow(rc);
        dc.DrawFrameControl(&rcArrow, DFC_SCROLL, DFCS_SCROLLDOWN | (bPressed ? DFCS_PUSHED : 0));
        return;
    }
    CRect rcDots(rcFace);
    rcDots.OffsetRect(bPressed ? 1 : 0, bPressed ? 0 : -1);
    dc.SetBkColor(Sys(COLOR_BTNFACE));
    dc.SetTextColor(Sys(COLOR_WINDOWTEXT));
    qv::DrawTextIn(dc, "...", rcDots, DT_CENTER | DT_SINGLELINE);
}

LRESULT QVGridCtrl::OnSetRedraw(WPARAM wParam, LPARAM) {
    m_bRedraw = wParam != 0;
    if (m_bRedraw) {
        m_nCellHeight = -1;
        InvalidateRect(nullptr, FALSE);
    }
    return 0;
}

LRESULT QVGridCtrl::OnGetFont(WPARAM, LPARAM) {
    return reinterpret_cast<LRESULT>(m_hFont);
}

LRESULT QVGridCtrl::OnSetFont(WPARAM wParam, LPARAM lParam) {
    m_nCellHeight = -1;
    m_hFont = reinterpret_cast<HFONT>(wParam);
    for (CWnd* pEditor : {static_cast<CWnd*>(&m_pCore->edit), static_cast<CWnd*>(&m_pCore->list)}) {
        if (pEditor->m_hWnd != nullptr) {
            pEditor->SendMessage(WM_SETFONT, wParam, FALSE);
        }
    }
    if (LOWORD(lParam) == 1) {
        InvalidateRect(nullptr, FALSE);
    }
    return Default();
}
