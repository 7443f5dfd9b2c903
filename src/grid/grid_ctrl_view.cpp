// Where things lie in the grid's window, and how it scrolls.

#include "grid/grid_ctrl.h"

#include "frame/core/row_scroll.h"
#include "frame/rectangles.h"
#include "grid/grid_ctrl_core.h"

namespace {

constexpr int kMostRowsOfMessage = 0xFFFF;  // a message has room for 16 bits of a position

}  // namespace

// --- Geometry

void QVGridCtrl::CalcRowRect(const CRect& rcClient, int nRow, CRect& rc) {
    const qv::GridLayout layout{m_pCore->model, qv::ToRect(rcClient), m_nCellHeight, m_nTopRow};
    rc = qv::ToCRect(layout.RowRect(nRow));
}

void QVGridCtrl::CalcCellRect(int nRow, int nCol, CRect& rc) {
    qv::Rect rect;
    if (m_pCore->Layout().CellRect(nRow, nCol, rect)) {
        rc = qv::ToCRect(rect);
    }
}

void QVGridCtrl::ButtonRectFromCellRect(CRect& rc) {
    rc = qv::ToCRect(m_pCore->Layout().ButtonRect(qv::ToRect(rc)));
}

void QVGridCtrl::CellFromPoint(const CPoint& pt, int& nRow, int& nCol) {
    BOOL bOnButton;
    CellFromPoint(pt, nRow, nCol, bOnButton);
}

void QVGridCtrl::CellFromPoint(const CPoint& pt, int& nRow, int& nCol, BOOL& bOnButton) {
    const qv::GridHit hit =
        m_pCore->Layout().HitTest({static_cast<int>(pt.x), static_cast<int>(pt.y)});
    nRow = hit.cell.nRow;
    nCol = hit.cell.nCol;
    bOnButton = hit.bOnButton;
}

void QVGridCtrl::InvalidateCell(int nRow, int nCol, BOOL bErase) {
    CRect rc(0, 0, 0, 0);
    CalcCellRect(nRow, nCol, rc);
    if (m_hWnd != nullptr && !rc.IsRectEmpty()) {
        InvalidateRect(&rc, bErase);
    }
}

void QVGridCtrl::InvalidateRow(int nRow, BOOL bErase) {
    if (m_hWnd != nullptr && IsValidRow(nRow)) {
        const CRect rc = qv::ToCRect(m_pCore->Layout().RowRect(nRow));
        InvalidateRect(&rc, bErase);
    }
}

// --- Scrolling

qv::ScrollAxis QVGridCtrl::Core::Axis() const {
    return {m_grid.m_nTopRow, model.NumRows(), PageRows()};
}

// As m_si has it.
void QVGridCtrl::Core::ShowRange() {
    const SCROLLINFO& si = m_grid.m_si;
    // Drawn with the next paint, if one is due: each of many added rows would draw it else.
    port.SetScrollRange(SB_VERT, {si.nMin, si.nMax, PageRows(), si.nPos});
}

void QVGridCtrl::CalcScrollBars() {
    const bool bHasBar = (GetStyle() & WS_VSCROLL) != 0;
    if (m_nCellHeight == -1) {
        CalcCellHeight();
    }
    if (m_nCellHeight == -1) {
        return;  // no memory; the next paint tries again
    }
    const int nVisible = m_pCore->Layout().VisibleRows();
    const bool bNeed = NumRows() > nVisible;
    if (!bHasBar && !bNeed) {
        return;
    }
    const bool bThere = m_pCore->scroll.Fit([&] {
        if (bNeed) {
            m_si.nPage = static_cast<UINT>(nVisible);
            m_si.nPos = m_nTopRow;
            m_si.nMin = 0;
            m_si.nMax = NumRows() - 1;
            m_pCore->ShowRange();
        }
        m_pCore->scroll.ShowBar(SB_VERT, bNeed);
    });
    if (bThere) {
        InvalidateAll();
    }
}

// To a client area or a font of another height.
void QVGridCtrl::RefitRows() {
    const int nTop =
        qv::ScrollAxis{m_nTopRow, NumRows(), m_pCore->Layout().VisibleRows()}.Refitted();
    if (nTop != m_nTopRow) {
        m_nTopRow = nTop;
        InvalidateAll();
    }
    CalcScrollBars();
}

// Before the first paint there is no font to fit anything to.
void QVGridCtrl::OnSize(UINT nType, int cx, int cy) {
    QVCustCtrl::OnSize(nType, cx, cy);
    if (m_nCellHeight == -1 || !m_bRedraw) {
        return;  // the next paint measures and fits
    }
    const qv::WindowWatch watch(m_pCore->Alive(), m_hWnd);
    const bool bFitting = m_pCore->scroll.NoteResize();
    if (!bFitting) {
        RefitRows();
    }
    if (!watch) {
        return;
    }
    InvalidateAll();  // the last column reaches the edge
    m_pCore->editing.PlaceEditors();
    if (!bFitting) {
        m_pCore->editing.CloseListOutOfView();
    }
}

// Moves the window's pixels to a new top row, and paints what comes into view.
void QVGridCtrl::ShowTopRow(int nTop) {
    const int nOld = m_nTopRow;
    m_nTopRow = m_si.nPos = nTop;
    if (m_hWnd == nullptr) {
        return;
    }
    m_pCore->ShowRange();
    if (m_nCellHeight <= 0) {
        InvalidateAll();  // nothing was painted yet
        return;
    }
    m_pCore->port.ScrollPixels(0, (nOld - nTop) * m_nCellHeight, true);
    m_pCore->editing.PlaceEditors();
    m_pCore->editing.CloseListOutOfView();
}

void QVGridCtrl::ScrollDown(int nRows) {
    const int nTop = m_pCore->Axis().Down(nRows).value_or(m_nTopRow);
    if (nTop != m_nTopRow) {
        ShowTopRow(nTop);
    }
}

void QVGridCtrl::ScrollUp(int nRows) {
    const int nTop = m_pCore->Axis().Up(nRows).value_or(m_nTopRow);
    if (nTop != m_nTopRow) {
        ShowTopRow(nTop);
    }
}

void QVGridCtrl::ScrollTo(int nRow) {
    ShowTopRow(m_pCore->Axis().Clamped(nRow));
}

void QVGridCtrl::EnsureRowVisible(int nRow) {
    const int nPage = m_pCore->Axis().nPage;
    if (nRow < m_nTopRow) {
        ScrollUp(m_nTopRow - nRow);
    } else if (m_hWnd != nullptr && (GetStyle() & WS_VSCROLL) != 0 &&
               nRow > nPage + m_nTopRow - 1) {
        ScrollDown(nRow - nPage - m_nTopRow + 1);
    }
}

void QVGridCtrl::OnVScroll(UINT nCode, UINT nPos, CScrollBar* pBar) {
    const qv::WindowWatch watch(m_pCore->Alive(), m_hWnd);
    if (m_bEditing) {
        m_pCore->editing.SaveEditors();
    }
    if (!watch) {
        return;
    }
    const qv::ScrollAxis axis = m_pCore->Axis();
    int nThumb = static_cast<int>(nPos);
    if (axis.nCount > kMostRowsOfMessage) {
        nThumb = m_pCore->scroll.ThumbPosition(SB_VERT, nCode).value_or(nThumb);
    }
    const qv::ScrollMove move = qv::MoveOf(nCode, {1, axis.nPage - 1}, nThumb);
    if (move.kind == qv::ScrollMove::Kind::None) {
        QVCustCtrl::OnVScroll(nCode, nPos, pBar);
    } else if (const auto top = qv::Target(axis, move, qv::ThumbLimit::Clamped)) {
        ShowTopRow(*top);
    }
}
