// A splitter's bars: drawing, and how the user moves them.
#include "afx/app/splitter.h"

#include "afx/app/splitter_axis.h"
#include "afx/drawing/select_guard.h"

#include <afxext.h>

#include <algorithm>

namespace {

// What a point hits. Bars and crossings are numbered from their first one on.
enum Hit {
    noHit = 0,
    vSplitterBox = 1,  // splits off a row
    hSplitterBox = 2,  // splits off a column
    bothSplitterBox = 3,
    vSplitterBar = 101,  // between two rows
    hSplitterBar = 201,  // between two columns
    crossing = 301,
};
constexpr int kBars = 100;
constexpr int kLines = 16;

bool IsIn(int ht, int nFirst) {
    return ht >= nFirst && ht < nFirst + kBars;
}
bool MovesRows(int ht) {
    return ht == vSplitterBox || ht == bothSplitterBox || IsIn(ht, vSplitterBar) || ht >= crossing;
}
bool MovesColumns(int ht) {
    return ht == hSplitterBox || ht == bothSplitterBox || IsIn(ht, hSplitterBar) || ht >= crossing;
}
int RowOf(int ht) {
    return ht >= crossing           ? (ht - crossing) / kLines
           : IsIn(ht, vSplitterBar) ? ht - vSplitterBar
                                    : 0;
}
int ColumnOf(int ht) {
    return ht >= crossing           ? (ht - crossing) % kLines
           : IsIn(ht, hSplitterBar) ? ht - hSplitterBar
                                    : 0;
}

}  // namespace

// Drawing

BOOL CSplitterWnd::OnEraseBkgnd(CDC*) {
    return TRUE;  // all of it is painted
}

void CSplitterWnd::OnPaint() {
    CPaintDC dc(this);
    CRect rcInside;
    GetInsideRect(rcInside);
    if (CRect rcCorner = CornerRect(); !rcCorner.IsRectEmpty()) {
        dc.FillSolidRect(rcCorner, ::GetSysColor(COLOR_BTNFACE));
        if (SizedByCorner() != nullptr) {
            dc.DrawFrameControl(rcCorner, DFC_SCROLL, DFCS_SCROLLSIZEGRIP);
        }
    }
    DrawAllSplitBars(&dc, rcInside.right, rcInside.bottom);
    for (int row = 0; row < m_nRows; ++row) {
        for (int col = 0; col < m_nCols; ++col) {
            const CRect rcPane = PaneRect(row, col);
            if (!rcPane.IsRectEmpty()) {
                OnDrawSplitter(&dc, splitBorder, rcPane);
            }
        }
    }
    // Boxes from which a line is dragged, where there may be one more.
    for (const int ht : {int{vSplitterBox}, int{hSplitterBox}}) {
        CRect rcBox;
        GetHitRect(ht, rcBox);
        if (!rcBox.IsRectEmpty()) {
            OnDrawSplitter(&dc, splitBox, rcBox);
        }
    }
}

void CSplitterWnd::DrawAllSplitBars(CDC* pDC, int, int) {
    for (int col = 0; col < m_nCols - 1; ++col) {
        CRect rect;
        GetHitRect(hSplitterBar + col, rect);
        OnDrawSplitter(pDC, splitBar, rect);
    }
    for (int row = 0; row < m_nRows - 1; ++row) {
        CRect rect;
        GetHitRect(vSplitterBar + row, rect);
        OnDrawSplitter(pDC, splitBar, rect);
        for (int col = 0; col < m_nCols - 1; ++col) {
            GetHitRect(crossing + row * kLines + col, rect);
            OnDrawSplitter(pDC, splitIntersection, rect);
        }
    }
}

void CSplitterWnd::OnDrawSplitter(CDC* pDC, ESplitType nType, const CRect& rectArg) {
    if (pDC == nullptr) {
        RedrawWindow(rectArg, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
        return;
    }
    CRect rect(rectArg);
    const COLORREF crLight = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF crShadow = ::GetSysColor(COLOR_BTNSHADOW);
    switch (nType) {
        case splitBorder:
            pDC->Draw3dRect(rect, crShadow, crLight);
            rect.DeflateRect(1, 1);
            pDC->Draw3dRect(rect, ::GetSysColor(COLOR_3DDKSHADOW), ::GetSysColor(COLOR_3DLIGHT));
            return;
        case splitBox:
            pDC->Draw3dRect(rect, ::GetSysColor(COLOR_3DLIGHT), ::GetSysColor(COLOR_3DDKSHADOW));
            rect.DeflateRect(1, 1);
            pDC->Draw3dRect(rect, crLight, crShadow);
            rect.DeflateRect(1, 1);
            break;
        default:
            break;
    }
    pDC->FillSolidRect(rect, ::GetSysColor(COLOR_BTNFACE));
}

void CSplitterWnd::OnInvertTracker(const CRect& rect) {
    if (rect.IsRectEmpty()) {
        return;
    }
    const HGDIOBJ hBrush = CDC::GetHalftoneBrush()->GetSafeHandle();
    const HDC hDC = ::GetDCEx(m_hWnd, nullptr, DCX_CACHE | DCX_PARENTCLIP);  // the panes as well
    {
        const AfxSelectGuard brush(hDC, hBrush);
        ::PatBlt(hDC, rect.left, rect.top, rect.Width(), rect.Height(), PATINVERT);
    }
    ::ReleaseDC(m_hWnd, hDC);
}

// What is where

/// Where the two kinds of scroll bars meet; empty without both.
CRect CSplitterWnd::CornerRect() const {
    CRect rcInside;
    CRect rcClient;
    GetInsideRect(rcInside);
    GetClientRect(rcClient);
    return m_bHasHScroll && m_bHasVScroll
               ? CRect(rcInside.right, rcInside.bottom, rcClient.right, rcClient.bottom)
               : CRect();
}

/// The window whose lower right corner this one's is, if the user may size it.
HWND CSplitterWnd::SizedByCorner() const {
    HWND hWnd = m_hWnd;
    CRect rcOwn;
    GetClientRect(rcOwn);
    ClientToScreen(rcOwn);
    while (hWnd != nullptr && !(::GetWindowLongPtr(hWnd, GWL_STYLE) & WS_THICKFRAME)) {
        hWnd = ::GetAncestor(hWnd, GA_PARENT);
    }
    if (hWnd == nullptr || ::IsZoomed(hWnd)) {
        return nullptr;
    }
    CRect rcSized;
    ::GetClientRect(hWnd, rcSized);
    ::MapWindowPoints(hWnd, nullptr, reinterpret_cast<LPPOINT>(&rcSized), 2);
    return rcSized.BottomRight() == rcOwn.BottomRight() ? hWnd : nullptr;
}

void CSplitterWnd::GetHitRect(int ht, CRect& rect) {
    CRect rcInside;
    CRect rcClient;
    GetInsideRect(rcInside);
    GetClientRect(rcClient);
    rect = CRect();
    const bool bDynamic = (GetStyle() & SPLS_DYNAMIC_SPLIT) != 0;
    if (ht == vSplitterBox || ht == hSplitterBox) {
        const bool bRow = ht == vSplitterBox;
        if (!bDynamic || !(bRow ? m_bHasVScroll && m_nRows < m_nMaxRows
                                : m_bHasHScroll && m_nCols < m_nMaxCols)) {
            return;
        }
        rect = bRow ? CRect(rcInside.right, rcInside.top, rcClient.right - m_cxBorderShare,
                            rcInside.top + m_cySplitter)
                    : CRect(rcInside.left, rcInside.bottom, rcInside.left + m_cxSplitter,
                            rcClient.bottom - m_cyBorderShare);
    } else if (IsIn(ht, vSplitterBar)) {
        const int row = RowOf(ht);
        const int y = rcInside.top + Rows().Start(row) + m_pRowInfo[row].nCurSize;
        rect = CRect(rcInside.left, y, rcClient.right - m_cxBorderShare, y + m_cySplitterGap);
    } else if (IsIn(ht, hSplitterBar)) {
        const int col = ColumnOf(ht);
        const int x = rcInside.left + Columns().Start(col) + m_pColInfo[col].nCurSize;
        rect = CRect(x, rcInside.top, x + m_cxSplitterGap, rcClient.bottom - m_cyBorderShare);
    } else if (ht >= crossing) {
        CRect rcRow;
        CRect rcColumn;
        GetHitRect(vSplitterBar + RowOf(ht), rcRow);
        GetHitRect(hSplitterBar + ColumnOf(ht), rcColumn);
        rect = rcRow & rcColumn;
    }
}

int CSplitterWnd::HitTest(CPoint pt) const {
    auto* pThis = const_cast<CSplitterWnd*>(this);
    const auto hits = [&](int ht) {
        CRect rect;
        pThis->GetHitRect(ht, rect);
        return rect.PtInRect(pt) != FALSE;
    };
    for (const int ht : {int{vSplitterBox}, int{hSplitterBox}}) {
        if (hits(ht)) {
            return ht;
        }
    }
    for (int row = 0; row < m_nRows - 1; ++row) {
        for (int col = 0; col < m_nCols - 1; ++col) {
            if (hits(crossing + row * kLines + col)) {
                return crossing + row * kLines + col;
            }
        }
    }
    for (int row = 0; row < m_nRows - 1; ++row) {
        if (hits(vSplitterBar + row)) {
            return vSplitterBar + row;
        }
    }
    for (int col = 0; col < m_nCols - 1; ++col) {
        if (hits(hSplitterBar + col)) {
            return hSplitterBar + col;
        }
    }
    return noHit;
}

static bool IsUnderPointer(const CWnd& wnd, const CRect& rect) {
    CPoint pt;
    ::GetCursorPos(&pt);
    wnd.ScreenToClient(&pt);
    return rect.PtInRect(pt) != FALSE;
}

void CSplitterWnd::SetSplitCursor(int ht) {
    if (ht == noHit && IsUnderPointer(*this, CornerRect()) && SizedByCorner() != nullptr) {
        ::SetCursor(::LoadCursor(nullptr, IDC_SIZENWSE));
        return;
    }
    if (ht == noHit) {
        ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
        return;
    }
    if (MovesRows(ht) && MovesColumns(ht)) {
        ::SetCursor(::LoadCursor(nullptr, IDC_SIZEALL));
        return;
    }
    const LPCTSTR lpszCursor =
        MAKEINTRESOURCE(MovesRows(ht) ? AFX_IDC_VSPLITBAR : AFX_IDC_HSPLITBAR);
    ::SetCursor(::LoadCursor(AfxFindResourceHandle(lpszCursor, RT_GROUP_CURSOR), lpszCursor));
}

BOOL CSplitterWnd::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    if (nHitTest == HTCLIENT && pWnd == this && !m_bTracking) {
        return TRUE;  // by the mouse's moves
    }
    return CWnd::OnSetCursor(pWnd, nHitTest, message);
}

// Moving

void CSplitterWnd::StartTracking(int ht) {
    if (ht == noHit) {
        return;
    }
    GetInsideRect(m_rectLimit);
    m_bTracking2 = FALSE;
    if (ht == bothSplitterBox || ht >= crossing) {
        m_bTracking2 = TRUE;
    }
    const auto barRect = [&](bool bRow) {
        CRect rect;
        const bool bBox = ht == vSplitterBox || ht == hSplitterBox || ht == bothSplitterBox;
        if (bBox) {
            // From the box a bar comes that goes all the way across; by the keys, in the middle.
            const CPoint pt =
                ht == bothSplitterBox ? m_rectLimit.CenterPoint() : m_rectLimit.TopLeft();
            rect = bRow ? CRect(m_rectLimit.left, pt.y, m_rectLimit.right, pt.y + m_cySplitter)
                        : CRect(pt.x, m_rectLimit.top, pt.x + m_cxSplitter, m_rectLimit.bottom);
        } else {
            GetHitRect(bRow ? vSplitterBar + RowOf(ht) : hSplitterBar + ColumnOf(ht), rect);
            rect &= m_rectLimit;
        }
        return rect;
    };
    m_rectTracker = MovesRows(ht) ? barRect(true) : barRect(false);
    m_rectTracker2 = m_bTracking2 ? barRect(false) : CRect();
    CPoint pt;
    ::GetCursorPos(&pt);
    ScreenToClient(&pt);
    m_ptTrackOffset = CPoint(m_bTracking2 ? m_rectTracker2.left - pt.x : m_rectTracker.left - pt.x,
                             m_rectTracker.top - pt.y);
    SetCapture();
    SetFocus();
    m_bTracking = TRUE;
    m_htTrack = ht;
    OnInvertTracker(m_rectTracker);
    OnInvertTracker(m_rectTracker2);
    SetSplitCursor(ht);
}

void CSplitterWnd::OnMouseMove(UINT, CPoint pt) {
    if (!m_bTracking) {
        SetSplitCursor(HitTest(pt));
        return;
    }
    pt.Offset(m_ptTrackOffset);
    const int x = std::clamp<int>(pt.x, m_rectLimit.left, m_rectLimit.right);
    const int y = std::clamp<int>(pt.y, m_rectLimit.top, m_rectLimit.bottom);
    CRect rcNew(m_rectTracker);
    if (MovesRows(m_htTrack)) {
        rcNew.MoveToY(y);
    } else {
        rcNew.MoveToX(x);
    }
    if (rcNew != m_rectTracker) {
        OnInvertTracker(m_rectTracker);
        m_rectTracker = rcNew;
        OnInvertTracker(m_rectTracker);
    }
    if (m_bTracking2 && m_rectTracker2.left != x) {
        OnInvertTracker(m_rectTracker2);
        m_rectTracker2.MoveToX(x);
        OnInvertTracker(m_rectTracker2);
    }
    SetSplitCursor(m_htTrack);
}

void CSplitterWnd::StopTracking(BOOL bAccept) {
    if (!m_bTracking) {
        return;
    }
    const HWND hWnd = m_hWnd;
    const int ht = m_htTrack;
    const int x = m_bTracking2 ? m_rectTracker2.left : m_rectTracker.left;
    const int y = m_rectTracker.top;
    m_bTracking = m_bTracking2 = FALSE;
    m_htTrack = noHit;
    if (::GetCapture() == hWnd) {
        ::ReleaseCapture();
    }
    OnInvertTracker(m_rectTracker);
    OnInvertTracker(m_rectTracker2);
    CFrameWnd* pFrame = GetParentFrame();
    CView* pOldView = pFrame != nullptr ? pFrame->GetActiveView() : nullptr;
    const auto bStands = [&] { return FromHandlePermanent(hWnd) == this; };
    if (bAccept) {
        CRect rcInside;
        GetInsideRect(rcInside);
        if (ht == vSplitterBox || ht == bothSplitterBox) {
            SplitRow(y - rcInside.top);
        } else if (MovesRows(ht)) {
            TrackRowSize(y, RowOf(ht));
        }
        if (bStands() && (ht == hSplitterBox || ht == bothSplitterBox)) {
            SplitColumn(x - rcInside.left);
        } else if (bStands() && MovesColumns(ht)) {
            TrackColumnSize(x, ColumnOf(ht));
        }
        if (bStands()) {
            RecalcLayout();
        }
    }
    // The focus was here for the keys.
    if (bStands() && pFrame != nullptr && ::GetFocus() == hWnd) {
        if (pOldView != nullptr && pFrame->GetActiveView() == pOldView) {
            pOldView->SetFocus();
        } else {
            SetActivePane(0, 0);
        }
    }
}

void CSplitterWnd::TrackRowSize(int y, int row) {
    CRect rcInside;
    GetInsideRect(rcInside);
    const bool bDynamic = (GetStyle() & SPLS_DYNAMIC_SPLIT) != 0;
    const int nGone = Rows().Track(row, y - rcInside.top - Rows().Start(row), bDynamic);
    if (nGone >= 0) {
        DeleteRow(nGone);
    }
}

void CSplitterWnd::TrackColumnSize(int x, int col) {
    CRect rcInside;
    GetInsideRect(rcInside);
    const bool bDynamic = (GetStyle() & SPLS_DYNAMIC_SPLIT) != 0;
    const int nGone = Columns().Track(col, x - rcInside.left - Columns().Start(col), bDynamic);
    if (nGone >= 0) {
        DeleteColumn(nGone);
    }
}

void CSplitterWnd::OnLButtonDown(UINT, CPoint pt) {
    const HWND hSized = m_bTracking || !CornerRect().PtInRect(pt) ? nullptr : SizedByCorner();
    if (hSized != nullptr) {
        ClientToScreen(&pt);
        ::SendMessage(hSized, WM_SYSCOMMAND, SC_SIZE | WMSZ_BOTTOMRIGHT, MAKELPARAM(pt.x, pt.y));
        return;
    }
    if (!m_bTracking) {
        StartTracking(HitTest(pt));
    }
}

void CSplitterWnd::OnLButtonUp(UINT, CPoint) {
    StopTracking(TRUE);
}

void CSplitterWnd::OnCaptureChanged(CWnd* pWnd) {
    if (pWnd != this) {
        StopTracking(FALSE);
    }
    CWnd::OnCaptureChanged(pWnd);
}

void CSplitterWnd::OnLButtonDblClk(UINT, CPoint pt) {
    // A box splits in the middle, a bar goes away.
    const int ht = HitTest(pt);
    CRect rcInside;
    GetInsideRect(rcInside);
    StopTracking(FALSE);
    if (!(GetStyle() & SPLS_DYNAMIC_SPLIT)) {
        return;
    }
    if (ht == vSplitterBox) {
        SplitRow(rcInside.Height() / 2);
    } else if (ht == hSplitterBox) {
        SplitColumn(rcInside.Width() / 2);
    } else {
        const HWND hWnd = m_hWnd;
        if (MovesRows(ht)) {
            DeleteRow(RowOf(ht));
        }
        if (FromHandlePermanent(hWnd) == this && MovesColumns(ht)) {
            DeleteColumn(ColumnOf(ht));
        }
    }
}

BOOL CSplitterWnd::DoKeyboardSplit() {
    const bool bDynamic = (GetStyle() & SPLS_DYNAMIC_SPLIT) != 0;
    const bool bMoreRows = bDynamic && m_nRows < m_nMaxRows;
    const bool bMoreColumns = bDynamic && m_nCols < m_nMaxCols;
    int ht = noHit;
    if (m_nRows > 1 && m_nCols > 1) {
        ht = crossing;
    } else if (m_nRows > 1) {
        ht = vSplitterBar;
    } else if (m_nCols > 1) {
        ht = hSplitterBar;
    } else if (bMoreRows && bMoreColumns) {
        ht = bothSplitterBox;
    } else if (bMoreRows) {
        ht = vSplitterBox;
    } else if (bMoreColumns) {
        ht = hSplitterBox;
    } else {
        return FALSE;
    }
    StartTracking(ht);
    // The pointer sits on the bar, so that the arrow keys move it along.
    CRect rect(m_rectTracker);
    if (ht == vSplitterBox || ht == hSplitterBox) {
        const CPoint pt = m_rectLimit.CenterPoint();
        OnInvertTracker(m_rectTracker);
        ht == vSplitterBox ? m_rectTracker.MoveToY(pt.y) : m_rectTracker.MoveToX(pt.x);
        OnInvertTracker(m_rectTracker);
        rect = m_rectTracker;
    }
    CPoint pt = m_bTracking2 ? CPoint(m_rectTracker2.CenterPoint().x, rect.CenterPoint().y)
                             : rect.CenterPoint();
    m_ptTrackOffset =
        CPoint((m_bTracking2 ? m_rectTracker2.left : rect.left) - pt.x, rect.top - pt.y);
    ClientToScreen(&pt);
    ::SetCursorPos(pt.x, pt.y);
    SetSplitCursor(ht);
    return TRUE;
}

void CSplitterWnd::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (!m_bTracking) {
        CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
        return;
    }
    constexpr int kStep = 8;
    const int nStep = ::GetKeyState(VK_CONTROL) < 0 ? 1 : kStep;
    CPoint pt;
    ::GetCursorPos(&pt);
    switch (nChar) {
        case VK_ESCAPE:
            StopTracking(FALSE);
            return;
        case VK_RETURN:
            StopTracking(TRUE);
            return;
        case VK_LEFT:
            pt.x -= nStep;
            break;
        case VK_RIGHT:
            pt.x += nStep;
            break;
        case VK_UP:
            pt.y -= nStep;
            break;
        case VK_DOWN:
            pt.y += nStep;
            break;
        default:
            CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
            return;
    }
    ::SetCursorPos(pt.x, pt.y);
}
