// Panes of a splitter: how they come, where they lie, which one is active.
#include "afx/app/splitter.h"

#include "afx/app/splitter_axis.h"
#include "afx/app/splitter_ex.h"
#include "afx/objects/create_object.h"

#include <afxext.h>
#include <afxpriv.h>

#include <algorithm>
#include <memory>

IMPLEMENT_DYNAMIC(CSplitterWnd, CWnd)
IMPLEMENT_DYNCREATE(CSplitterWndEx, CSplitterWnd)

BEGIN_MESSAGE_MAP(CSplitterWnd, CWnd)
    ON_WM_SETCURSOR()
    ON_WM_MOUSEMOVE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_KEYDOWN()
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

namespace {

// Panes, and lines of them, are numbered by sixteens from AFX_IDW_PANE_FIRST.
constexpr int kMostLines = 16;
constexpr int kMostDynamicLines = 2;
// Pixels: a bar with the edges of the panes to either side, and a pane's own edge.
constexpr int kBarThickness = 7;
constexpr int kEdge = 2;

}  // namespace

CSplitterWnd::CSplitterWnd()
    : m_cxSplitter(kBarThickness),
      m_cySplitter(kBarThickness),
      m_cxSplitterGap(kBarThickness),
      m_cySplitterGap(kBarThickness),
      m_cxBorder(kEdge),
      m_cyBorder(kEdge) {}

CSplitterWnd::~CSplitterWnd() {
    if (m_hWnd != nullptr) {
        DestroyWindow();
    }
    delete[] m_pRowInfo;
    delete[] m_pColInfo;
}

CSplitterWnd::Axis CSplitterWnd::Rows() const {
    return {m_pRowInfo, m_nRows, m_cySplitterGap, m_cyBorder};
}

CSplitterWnd::Axis CSplitterWnd::Columns() const {
    return {m_pColInfo, m_nCols, m_cxSplitterGap, m_cxBorder};
}

// Creation

BOOL CSplitterWnd::CreateStatic(CWnd* pParentWnd, int nRows, int nCols, DWORD dwStyle, UINT nID) {
    if (nRows < 1 || nRows > kMostLines || nCols < 1 || nCols > kMostLines) {
        return FALSE;
    }
    m_nRows = m_nMaxRows = nRows;
    m_nCols = m_nMaxCols = nCols;
    return CreateCommon(pParentWnd, CSize(0, 0), dwStyle & ~DWORD{SPLS_DYNAMIC_SPLIT}, nID);
}

BOOL CSplitterWnd::Create(CWnd* pParentWnd, int nMaxRows, int nMaxCols, SIZE sizeMin,
                          CCreateContext* pContext, DWORD dwStyle, UINT nID) {
    if (nMaxRows < 1 || nMaxRows > kMostDynamicLines || nMaxCols < 1 ||
        nMaxCols > kMostDynamicLines || pContext == nullptr) {
        return FALSE;
    }
    m_nMaxRows = nMaxRows;
    m_nMaxCols = nMaxCols;
    m_nRows = m_nCols = 1;
    if (!CreateCommon(pParentWnd, sizeMin, dwStyle, nID)) {
        return FALSE;
    }
    m_pDynamicViewClass = pContext->m_pNewViewClass;
    try {
        if (!CreateView(0, 0, m_pDynamicViewClass, sizeMin, pContext)) {
            DestroyWindow();
            return FALSE;
        }
    } catch (...) {
        DestroyWindow();
        throw;
    }
    m_pColInfo[0].nIdealSize = sizeMin.cx;
    m_pRowInfo[0].nIdealSize = sizeMin.cy;
    return TRUE;
}

BOOL CSplitterWnd::CreateCommon(CWnd* pParentWnd, SIZE sizeMin, DWORD dwStyle, UINT nID) {
    if (m_pRowInfo != nullptr) {
        return FALSE;
    }
    AfxNeedMemory([&] {
        auto pColInfo = std::make_unique<CRowColInfo[]>(static_cast<size_t>(m_nMaxCols));
        m_pRowInfo = new CRowColInfo[static_cast<size_t>(m_nMaxRows)];
        m_pColInfo = pColInfo.release();
    });
    for (int col = 0; col < m_nMaxCols; ++col) {
        m_pColInfo[col].nMinSize = m_pColInfo[col].nIdealSize = sizeMin.cx;
    }
    for (int row = 0; row < m_nMaxRows; ++row) {
        m_pRowInfo[row].nMinSize = m_pRowInfo[row].nIdealSize = sizeMin.cy;
    }
    // The scroll bars are children: the window itself has none.
    const DWORD dwWindow =
        (dwStyle | WS_CLIPCHILDREN) & ~static_cast<DWORD>(WS_HSCROLL | WS_VSCROLL);
    if (!CWnd::Create(nullptr, nullptr, dwWindow, CRect(0, 0, 0, 0), pParentWnd, nID)) {
        return FALSE;
    }
    SetScrollStyle(dwStyle & (WS_HSCROLL | WS_VSCROLL));
    return TRUE;
}

BOOL CSplitterWnd::CreateView(int row, int col, CRuntimeClass* pViewClass, SIZE sizeInit,
                              CCreateContext* pContext) {
    if (row < 0 || row >= m_nRows || col < 0 || col >= m_nCols || GetPane(row, col) != nullptr) {
        return FALSE;
    }
    m_pColInfo[col].nIdealSize = sizeInit.cx;
    m_pRowInfo[row].nIdealSize = sizeInit.cy;
    CCreateContext context;
    BOOL bTellView = FALSE;
    if (pContext == nullptr) {
        // Later than the frame: the document of the panes that there are.
        if (auto* pOld = DYNAMIC_DOWNCAST(CView, GetActivePane())) {
            context.m_pLastView = pOld;
            context.m_pCurrentDoc = pOld->GetDocument();
            if (context.m_pCurrentDoc != nullptr) {
                context.m_pNewDocTemplate = context.m_pCurrentDoc->GetDocTemplate();
            }
        }
        pContext = &context;
        bTellView = TRUE;
    }
    auto* pWnd = AfxCreateOf<CWnd>(pViewClass);
    if (pWnd == nullptr) {
        return FALSE;
    }
    constexpr DWORD kPane = AFX_WS_DEFAULT_VIEW & ~static_cast<DWORD>(WS_BORDER);
    // A view that fails deletes itself, unless its window was never tried for want of memory.
    try {
        if (!pWnd->Create(nullptr, nullptr, kPane, CRect(CPoint(0, 0), CSize(sizeInit)), this,
                          static_cast<UINT>(IdFromRowCol(row, col)), pContext)) {
            return FALSE;
        }
    } catch (...) {
        delete pWnd;
        throw;
    }
    if (bTellView) {
        pWnd->SendMessage(WM_INITIALUPDATE);
    }
    return TRUE;
}

// Panes

int CSplitterWnd::IdFromRowCol(int row, int col) const {
    return AFX_IDW_PANE_FIRST + row * kMostLines + col;
}

CWnd* CSplitterWnd::GetPane(int row, int col) const {
    return GetDlgItem(IdFromRowCol(row, col));
}

BOOL CSplitterWnd::IsChildPane(CWnd* pWnd, int* pRow, int* pCol) {
    const int nPane = ::GetParent(pWnd->GetSafeHwnd()) == m_hWnd && m_hWnd != nullptr
                          ? pWnd->GetDlgCtrlID() - AFX_IDW_PANE_FIRST
                          : -1;
    const int row = nPane >= 0 ? nPane / kMostLines : -1;
    const int col = nPane >= 0 ? nPane % kMostLines : -1;
    const bool bPane = nPane >= 0 && row < m_nRows && col < m_nCols;
    if (pRow != nullptr) {
        *pRow = bPane ? row : -1;
    }
    if (pCol != nullptr) {
        *pCol = bPane ? col : -1;
    }
    return bPane;
}

CWnd* CSplitterWnd::GetActivePane(int* pRow, int* pCol) {
    CFrameWnd* pFrame = GetParentFrame();
    CWnd* pPane = pFrame != nullptr ? pFrame->GetActiveView() : nullptr;
    if (pPane == nullptr) {
        pPane = GetFocus();
    }
    // The view may be inside of a pane.
    while (pPane != nullptr && !IsChildPane(pPane, pRow, pCol)) {
        pPane = pPane->GetParent();
    }
    return pPane;
}

void CSplitterWnd::SetActivePane(int row, int col, CWnd* pWnd) {
    CWnd* pPane = pWnd != nullptr ? pWnd : GetPane(row, col);
    if (pPane == nullptr) {
        return;
    }
    CFrameWnd* pFrame = GetParentFrame();
    if (auto* pView = DYNAMIC_DOWNCAST(CView, pPane); pView != nullptr && pFrame != nullptr) {
        pFrame->SetActiveView(pView);
    } else {
        pPane->SetFocus();
    }
}

CWnd* CSplitterWnd::GetActivePaneNext(BOOL bPrev) {
    int row = 0;
    int col = 0;
    if (GetActivePane(&row, &col) == nullptr) {
        return nullptr;
    }
    const int nPanes = m_nRows * m_nCols;
    const int nPane = (row * m_nCols + col + (bPrev ? nPanes - 1 : 1)) % nPanes;
    return GetPane(nPane / m_nCols, nPane % m_nCols);
}

BOOL CSplitterWnd::CanActivateNext(BOOL bPrev) {
    return m_nRows * m_nCols > 1 && GetActivePaneNext(bPrev) != nullptr;
}

void CSplitterWnd::ActivateNext(BOOL bPrev) {
    int row = 0;
    int col = 0;
    CWnd* pNext = GetActivePaneNext(bPrev);
    if (pNext != nullptr && IsChildPane(pNext, &row, &col)) {
        SetActivePane(row, col, pNext);
    }
}

// Sizes

void CSplitterWnd::GetRowInfo(int row, int& cyCur, int& cyMin) const {
    Rows().Get(row, m_nMaxRows, cyCur, cyMin);
}

void CSplitterWnd::SetRowInfo(int row, int cyIdeal, int cyMin) {
    Rows().Set(row, m_nMaxRows, cyIdeal, cyMin);
}

void CSplitterWnd::GetColumnInfo(int col, int& cxCur, int& cxMin) const {
    Columns().Get(col, m_nMaxCols, cxCur, cxMin);
}

void CSplitterWnd::SetColumnInfo(int col, int cxIdeal, int cxMin) {
    Columns().Set(col, m_nMaxCols, cxIdeal, cxMin);
}

void CSplitterWnd::GetInsideRect(CRect& rect) const {
    GetClientRect(rect);
    rect.DeflateRect(m_cxBorderShare, m_cyBorderShare);
    if (m_bHasVScroll) {
        rect.right -= ::GetSystemMetrics(SM_CXVSCROLL);
    }
    if (m_bHasHScroll) {
        rect.bottom -= ::GetSystemMetrics(SM_CYHSCROLL);
    }
    rect.right = std::max(rect.left, rect.right);
    rect.bottom = std::max(rect.top, rect.bottom);
}

/// With its edge.
CRect CSplitterWnd::PaneRect(int row, int col) const {
    CRect rcInside;
    GetInsideRect(rcInside);
    const int x = rcInside.left + Columns().Start(col);
    const int y = rcInside.top + Rows().Start(row);
    return CRect(CPoint(x, y), CSize(m_pColInfo[col].nCurSize, m_pRowInfo[row].nCurSize));
}

void CSplitterWnd::RecalcLayout() {
    if (m_hWnd == nullptr || m_pColInfo == nullptr) {
        return;
    }
    CRect rcInside;
    GetInsideRect(rcInside);
    Columns().LayOut(rcInside.Width());
    Rows().LayOut(rcInside.Height());
    const HWND hWnd = m_hWnd;
    for (int row = 0; row < m_nRows; ++row) {
        for (int col = 0; col < m_nCols; ++col) {
            CWnd* pPane = GetPane(row, col);
            if (pPane == nullptr) {
                continue;
            }
            CRect rect = PaneRect(row, col);
            const bool bShown = !rect.IsRectEmpty();
            rect.DeflateRect(m_cxBorder, m_cyBorder);
            pPane->SetWindowPos(
                nullptr, rect.left, rect.top, std::max(rect.Width(), 0), std::max(rect.Height(), 0),
                SWP_NOZORDER | SWP_NOACTIVATE | (bShown ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
            if (FromHandlePermanent(hWnd) != this) {
                return;  // a pane took the splitter away
            }
        }
    }
    PlaceScrollBars(rcInside);
    Invalidate();
}

void CSplitterWnd::OnSize(UINT nType, int cx, int cy) {
    if (nType != SIZE_MINIMIZED && cx > 0 && cy > 0) {
        RecalcLayout();
    }
    if (m_hWnd != nullptr) {
        CWnd::OnSize(nType, cx, cy);
    }
}

// Panes that come and go

BOOL CSplitterWnd::SplitRow(int cyBefore) {
    return Split(true, cyBefore);
}

BOOL CSplitterWnd::SplitColumn(int cxBefore) {
    return Split(false, cxBefore);
}

BOOL CSplitterWnd::Split(bool bRow, int nBefore) {
    int& nLines = bRow ? m_nRows : m_nCols;
    const int nMost = bRow ? m_nMaxRows : m_nMaxCols;
    CRowColInfo* const pInfo = bRow ? m_pRowInfo : m_pColInfo;
    if (!(GetStyle() & SPLS_DYNAMIC_SPLIT) || nLines >= nMost) {
        return FALSE;
    }
    const Axis axis = bRow ? Rows() : Columns();
    const int nAll = pInfo[nLines - 1].nCurSize;
    const int nNew = nAll - nBefore - axis.nGap;
    if (nBefore < pInfo[0].nMinSize || nNew < pInfo[nLines].nMinSize) {
        return FALSE;
    }
    const int nLine = nLines;
    const int nAcross = bRow ? m_nCols : m_nRows;
    const bool bBars = bRow ? m_bHasVScroll : m_bHasHScroll;
    if (bBars && !CreateScrollBarCtrl(bRow ? SBS_VERT : SBS_HORZ,
                                      (bRow ? AFX_IDW_VSCROLL_FIRST : AFX_IDW_HSCROLL_FIRST) +
                                          static_cast<UINT>(nLine))) {
        return FALSE;
    }
    ++nLines;
    int nMade = 0;
    const auto takeBack = [&] {
        while (nMade-- > 0) {
            DeleteView(bRow ? nLine : nMade, bRow ? nMade : nLine);
        }
        --nLines;
        const UINT nFirst = bRow ? AFX_IDW_VSCROLL_FIRST : AFX_IDW_HSCROLL_FIRST;
        ::DestroyWindow(bBars ? ::GetDlgItem(m_hWnd, static_cast<int>(nFirst) + nLine) : nullptr);
        return FALSE;
    };
    for (; nMade < nAcross; ++nMade) {
        const int row = bRow ? nLine : nMade;
        const int col = bRow ? nMade : nLine;
        const CSize size(m_pColInfo[col].nCurSize, m_pRowInfo[row].nCurSize);
        // CreateView sets sizes of the row and column, which the other one keeps.
        const CRowColInfo other = bRow ? m_pColInfo[col] : m_pRowInfo[row];
        try {
            if (!CreateView(row, col, m_pDynamicViewClass, size, nullptr)) {
                return takeBack();
            }
        } catch (...) {
            takeBack();
            throw;
        }
        (bRow ? m_pColInfo[col] : m_pRowInfo[row]) = other;
    }
    pInfo[nLine - 1].nIdealSize = nBefore;
    pInfo[nLine].nIdealSize = nNew;
    RecalcLayout();
    return TRUE;
}

void CSplitterWnd::DeleteRow(int rowDelete) {
    DeleteLine(true, rowDelete);
}

void CSplitterWnd::DeleteColumn(int colDelete) {
    DeleteLine(false, colDelete);
}

void CSplitterWnd::DeleteLine(bool bRow, int nDelete) {
    int& nLines = bRow ? m_nRows : m_nCols;
    if (!(GetStyle() & SPLS_DYNAMIC_SPLIT) || nLines < 2 || nDelete < 0 || nDelete >= nLines) {
        return;
    }
    const HWND hWnd = m_hWnd;
    int row = 0;
    int col = 0;
    // The pane of the line that stays takes over.
    if (GetActivePane(&row, &col) != nullptr && (bRow ? row : col) == nDelete) {
        (bRow ? row : col) = nDelete == 0 ? 1 : nDelete - 1;
        SetActivePane(row, col);
    }
    const int nAcross = bRow ? m_nCols : m_nRows;
    for (int n = 0; n < nAcross && FromHandlePermanent(hWnd) == this; ++n) {
        DeleteView(bRow ? nDelete : n, bRow ? n : nDelete);
    }
    if (FromHandlePermanent(hWnd) != this) {
        return;
    }
    const UINT nFirstBar = bRow ? AFX_IDW_VSCROLL_FIRST : AFX_IDW_HSCROLL_FIRST;
    CRowColInfo* const pInfo = bRow ? m_pRowInfo : m_pColInfo;
    if (CScrollBar* pBar = BarOf(nFirstBar + static_cast<UINT>(nDelete))) {
        pBar->DestroyWindow();
    }
    // The lines behind it move up.
    for (int nLine = nDelete + 1; nLine < nLines; ++nLine) {
        for (int n = 0; n < nAcross; ++n) {
            CWnd* pPane = GetPane(bRow ? nLine : n, bRow ? n : nLine);
            if (pPane != nullptr) {
                pPane->SetDlgCtrlID(IdFromRowCol(bRow ? nLine - 1 : n, bRow ? n : nLine - 1));
            }
        }
        if (CScrollBar* pBar = BarOf(nFirstBar + static_cast<UINT>(nLine))) {
            pBar->SetDlgCtrlID(static_cast<int>(nFirstBar) + nLine - 1);
        }
        pInfo[nLine - 1].nIdealSize = pInfo[nLine].nIdealSize;
    }
    --nLines;
    RecalcLayout();
}

void CSplitterWnd::DeleteView(int row, int col) {
    CWnd* pPane = GetPane(row, col);
    if (pPane == nullptr) {
        return;
    }
    CFrameWnd* pFrame = GetParentFrame();
    if (pFrame != nullptr && pFrame->GetActiveView() == pPane) {
        ActivateNext();
    }
    if ((pPane = GetPane(row, col)) != nullptr) {
        pPane->DestroyWindow();
    }
}

// What panes tell goes to the frame.

BOOL CSplitterWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const HWND hWnd = m_hWnd;
    if (CWnd::OnCommand(wParam, lParam)) {
        return TRUE;
    }
    const HWND hParent = ::GetParent(hWnd);
    return hParent != nullptr && ::SendMessage(hParent, WM_COMMAND, wParam, lParam) != 0;
}

BOOL CSplitterWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const HWND hWnd = m_hWnd;
    if (CWnd::OnNotify(wParam, lParam, pResult)) {
        return TRUE;
    }
    const HWND hParent = ::GetParent(hWnd);
    if (hParent != nullptr) {
        *pResult = ::SendMessage(hParent, WM_NOTIFY, wParam, lParam);
    }
    return TRUE;
}
