#include "afx/app/dock_bar.h"

#include "afx/app/floating_frame.h"

#include <afxext.h>
#include <afxpriv.h>
#include <afxtempl.h>

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CDockBar, CControlBar)

BEGIN_MESSAGE_MAP(CDockBar, CControlBar)
    ON_MESSAGE(WM_SIZEPARENT, &CDockBar::OnSizeParent)
END_MESSAGE_MAP()

CDockBar::CDockBar(BOOL bFloating) : m_bFloating(bFloating) {
    m_bAutoDelete = TRUE;
}

CDockBar::~CDockBar() {
    for (const Row& row : m_rows) {
        for (CControlBar* pBar : row) {
            pBar->m_pDockBar = nullptr;
        }
    }
}

BOOL CDockBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    m_dwStyle = dwStyle & CBRS_ALL;
    const DWORD dwWindow = (dwStyle & ~static_cast<DWORD>(CBRS_ALL)) | WS_CHILD | WS_VISIBLE |
                           WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    return CWnd::Create(nullptr, nullptr, dwWindow, CRect(0, 0, 0, 0), pParentWnd, nID);
}

// Which bars lie in which row

int CDockBar::RowOf(const CControlBar* pBar) const {
    const auto it = std::find_if(m_rows.begin(), m_rows.end(), [&](const Row& row) {
        return std::find(row.begin(), row.end(), pBar) != row.end();
    });
    return it != m_rows.end() ? static_cast<int>(it - m_rows.begin()) : -1;
}

CControlBar* CDockBar::FirstBar() const {
    return m_rows.empty() ? nullptr : m_rows.front().front();
}

int CDockBar::GetDockedCount() const {
    size_t nCount = 0;
    for (const Row& row : m_rows) {
        nCount += row.size();
    }
    return static_cast<int>(nCount);
}

int CDockBar::GetDockedVisibleCount() const {
    int nCount = 0;
    for (const Row& row : m_rows) {
        nCount += static_cast<int>(
            std::count_if(row.begin(), row.end(), [](auto* pBar) { return pBar->IsVisible(); }));
    }
    return nCount;
}

void CDockBar::RemoveControlBar(CControlBar* pBar) {
    const int nRow = RowOf(pBar);
    if (nRow < 0) {
        return;
    }
    Row& row = m_rows[static_cast<size_t>(nRow)];
    row.erase(std::find(row.begin(), row.end(), pBar));
    if (row.empty()) {
        m_rows.erase(m_rows.begin() + nRow);
    }
    pBar->m_pDockBar = nullptr;
    if (m_bFloating && m_rows.empty()) {
        AfxFloatingFrame::CloseLater(this);
    }
}

/// The row that a rectangle of this window's coordinates falls in; -1 before the first.
int CDockBar::RowAt(const CRect& rect) const {
    const bool bHorz = IsHorizontal();
    const int nDepth = bHorz ? rect.CenterPoint().y : rect.CenterPoint().x;
    // The first row is the one at the upper or left side.
    for (size_t nRow = 0; nRow < m_rows.size(); ++nRow) {
        CRect rcRow;
        for (const CControlBar* pBar : m_rows[nRow]) {
            CRect rcBar;
            pBar->GetWindowRect(rcBar);
            rcRow |= rcBar;
        }
        ScreenToClient(rcRow);
        if (nDepth < (bHorz ? rcRow.top : rcRow.left)) {
            return static_cast<int>(nRow) - 1;
        }
        if (nDepth < (bHorz ? rcRow.bottom : rcRow.right)) {
            return static_cast<int>(nRow);
        }
    }
    return static_cast<int>(m_rows.size());
}

/// From wherever it is, with the look that it has here.
void CDockBar::Take(CControlBar* pBar) {
    CDockBar* pOld = pBar->m_pDockBar;
    if (pOld != nullptr && pOld != this) {
        pOld->RemoveControlBar(pBar);
    }
    pBar->m_pDockBar = this;
    if (!m_bFloating) {
        pBar->m_nLastDock = static_cast<UINT>(GetDlgCtrlID());
    }
    if (::GetParent(pBar->m_hWnd) != m_hWnd) {
        pBar->SetParent(this);
    }
    constexpr DWORD kPlace = CBRS_ALIGN_ANY | CBRS_FLOATING | CBRS_BORDER_ANY;
    pBar->SetBarStyle((pBar->m_dwStyle & ~kPlace) | (m_dwStyle & CBRS_ALIGN_ANY) |
                      (m_bFloating ? CBRS_FLOATING : 0));
}

/// Room for one more bar in each row, and for one more row, which is given. What follows then needs
/// no memory: a bar is never between two places.
template <class Rows>
static typename Rows::value_type RoomForOne(Rows& rows) {
    return AfxNeedMemory([&] {
        typename Rows::value_type fresh;
        fresh.reserve(1);
        rows.reserve(rows.size() + 1);
        for (auto& row : rows) {
            row.reserve(row.size() + 1);
        }
        return fresh;
    });
}

void CDockBar::DockControlBar(CControlBar* pBar, LPCRECT lpRect) {
    if (lpRect == nullptr) {
        DockInLastRow(pBar, true, 0);
        return;
    }
    CRect rect(lpRect);
    ScreenToClient(rect);
    const int nOffset = IsHorizontal() ? rect.left : rect.top;
    const int nOwn = RowOf(pBar);
    int nRow = RowAt(rect);
    Row fresh = RoomForOne(m_rows);
    if (nRow == nOwn && nOwn >= 0) {
        Row& row = m_rows[static_cast<size_t>(nRow)];
        row.erase(std::find(row.begin(), row.end(), pBar));
    } else {
        const size_t nBefore = m_rows.size();
        RemoveControlBar(pBar);
        if (m_rows.size() < nBefore && nOwn < nRow) {
            --nRow;
        }
        if (nRow < 0 || nRow >= static_cast<int>(m_rows.size())) {
            nRow = std::max(nRow, 0);
            m_rows.insert(m_rows.begin() + std::min<int>(nRow, static_cast<int>(m_rows.size())),
                          std::move(fresh));
        }
    }
    Row& row = m_rows[static_cast<size_t>(nRow)];
    row.insert(std::find_if(row.begin(), row.end(),
                            [&](auto* pOther) { return pOther->m_nDockOffset > nOffset; }),
               pBar);
    pBar->m_nDockOffset = nOffset;
    Take(pBar);
}

void CDockBar::DockInLastRow(CControlBar* pBar, bool bNewRow, int nOffset) {
    Row fresh = RoomForOne(m_rows);
    RemoveControlBar(pBar);
    if (bNewRow || m_rows.empty()) {
        m_rows.push_back(std::move(fresh));
    }
    m_rows.back().push_back(pBar);
    pBar->m_nDockOffset = nOffset;
    Take(pBar);
}

// Layout

/// nLength: of the edge. Gives the size of all rows, the longest row's length along the edge.
CSize CDockBar::LayOut(int nLength, bool bMove) {
    const bool bHorz = IsHorizontal();
    const DWORD nMode = bHorz ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK;
    int nDepth = 0;
    int nLongest = 0;
    struct Placed {
        CControlBar* pBar;
        CSize size;
        int nAt;
        int Along(bool b) const { return b ? size.cx : size.cy; }
        int Across(bool b) const { return b ? size.cy : size.cx; }
    };
    const std::vector<Row> rows = m_rows;
    for (const Row& row : rows) {
        std::vector<Placed> places;
        int nThick = 0;
        int nEnd = 0;
        for (CControlBar* pBar : row) {
            if (!pBar->IsVisible()) {
                continue;
            }
            Placed place{pBar, pBar->CalcDynamicLayout(-1, nMode), 0};
            place.nAt = std::max(pBar->m_nDockOffset, nEnd);
            nEnd = place.nAt + place.Along(bHorz);
            nThick = std::max(nThick, place.Across(bHorz));
            places.push_back(place);
        }
        // What does not fit at the far end moves the others back, as far as there is room.
        int nLimit = nLength;
        for (auto it = places.rbegin(); it != places.rend(); ++it) {
            it->nAt = std::min(it->nAt, nLimit - it->Along(bHorz));
            nLimit = it->nAt;
        }
        nEnd = 0;
        for (Placed& place : places) {
            place.nAt = std::max(place.nAt, nEnd);
            nEnd = place.nAt + place.Along(bHorz);
            if (bMove && place.pBar->m_pDockBar == this) {
                place.pBar->SetWindowPos(nullptr, bHorz ? place.nAt : nDepth,
                                         bHorz ? nDepth : place.nAt, place.size.cx, place.size.cy,
                                         SWP_NOZORDER | SWP_NOACTIVATE);
            }
        }
        nDepth += nThick;
        nLongest = std::max(nLongest, nEnd);
    }
    return bHorz ? CSize(nLongest, nDepth) : CSize(nDepth, nLongest);
}

CSize CDockBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    constexpr int kAnyLength = 32767;
    CSize size = LayOut(kAnyLength, false);
    if (bStretch) {
        (bHorz ? size.cx : size.cy) = kAnyLength;
    }
    return size;
}

LRESULT CDockBar::OnSizeParent(WPARAM wParam, LPARAM lParam) {
    auto* pLayout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    if (m_bFloating) {
        // The whole of its small frame, and the bar the whole of it.
        const CRect rect(pLayout->rect);
        if (pLayout->hDWP != nullptr) {
            pLayout->hDWP =
                ::DeferWindowPos(pLayout->hDWP, m_hWnd, nullptr, rect.left, rect.top, rect.Width(),
                                 rect.Height(), SWP_NOACTIVATE | SWP_NOZORDER);
            if (CControlBar* pBar = FirstBar()) {
                pBar->MoveWindow(0, 0, rect.Width(), rect.Height());
            }
        }
        return 0;
    }
    const CRect rcFree(pLayout->rect);
    const HDWP hDWP = pLayout->hDWP;
    if (hDWP != nullptr) {
        LayOut(IsHorizontal() ? rcFree.Width() : rcFree.Height(), true);
    }
    return CControlBar::OnSizeParent(wParam, lParam);
}

// What bars tell goes to the frame.

void CDockBar::OnUpdateCmdUI(CFrameWnd*, BOOL) {}

BOOL CDockBar::OnCommand(WPARAM wParam, LPARAM lParam) {
    const HWND hWndOwner = GetDockingFrame()->GetSafeHwnd();
    if (!CControlBar::OnCommand(wParam, lParam) && ::IsWindow(hWndOwner)) {
        ::SendMessage(hWndOwner, WM_COMMAND, wParam, lParam);
    }
    return TRUE;
}

BOOL CDockBar::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const HWND hWndOwner = GetDockingFrame()->GetSafeHwnd();
    if (!CControlBar::OnNotify(wParam, lParam, pResult) && ::IsWindow(hWndOwner)) {
        *pResult = ::SendMessage(hWndOwner, WM_NOTIFY, wParam, lParam);
    }
    return TRUE;
}
