// Where the editors lie, and how they follow as the cells under them move.

#include "grid/grid_ctrl.h"

#include "frame/wnd_port.h"
#include "grid/grid_editors.h"

#include <utility>

namespace {

// Of the screen that the rectangle lies on, or is nearest to.
qv::Rect WorkArea(const CRect& rc) {
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    ::GetMonitorInfo(::MonitorFromRect(&rc, MONITOR_DEFAULTTONEAREST), &info);
    return qv::ToRect(info.rcWork);
}

}  // namespace

bool QVGridCtrl::RowShows(int nRow) {
    return nRow >= m_nTopRow && nRow < Layout().EndOfShownRows();
}

void QVGridCtrl::PlaceEdit() {
    CRect rcCell(0, 0, 0, 0);
    CalcCellRect(m_editCell.nRow, m_editCell.nCol, rcCell);
    const CRect rcEdit = qv::ToCRect(qv::GridEditRect(
        qv::ToRect(rcCell), GetColType(m_editCell.nCol) == gctEditButton ? m_nCellHeight : 0));
    m_pEdit->MoveWindow(&rcEdit, TRUE);
}

void QVGridCtrl::PlaceList() {
    CRect rcCell(0, 0, 0, 0);
    CalcCellRect(m_nCurRow, m_nCurCol, rcCell);
    ClientToScreen(&rcCell);
    const int nHeight = m_pList->GetItemHeight(0);
    const int nLines = m_pList->GetCount();
    const CRect rc = qv::ToCRect(m_nMaxListLines > 0
                                     ? qv::GridListRectOnScreen(qv::ToRect(rcCell), nHeight, nLines,
                                                                m_nMaxListLines, WorkArea(rcCell))
                                     : qv::GridListRect(qv::ToRect(rcCell), nHeight, nLines));
    m_pList->MoveWindow(&rc, ListUp());
}

void QVGridCtrl::PlaceEditors() {
    if (m_nCellHeight <= 0) {
        return;  // the next paint measures and comes back
    }
    if (EditUp() && IsValidRow(m_editCell.nRow)) {
        PlaceEdit();
    }
    if (ListUp() && IsValidRow(m_nCurRow)) {
        PlaceList();
    }
}

// As the scroll bar does. The parent may be told; nothing of the grid is to be touched afterwards.
void QVGridCtrl::CloseListOutOfView() {
    if (ListUp() && IsValidRow(m_nCurRow) && !RowShows(m_nCurRow)) {
        SaveListBox();
    }
}

// --- QVGridList

void QVGridList::Follow(bool bFollow) {
    if (bFollow == m_bFollows) {
        return;
    }
    m_bFollows = bFollow;
    if (bFollow) {
        m_pNext = std::exchange(s_pFollowing, this);
    } else {
        QVGridList** ppList = &s_pFollowing;
        while (*ppList != this) {
            ppList = &(*ppList)->m_pNext;
        }
        *ppList = m_pNext;
    }
    if (s_pFollowing != nullptr && s_hHook == nullptr) {
        s_hHook =
            ::SetWindowsHookEx(WH_CALLWNDPROCRET, AfterMessage, nullptr, ::GetCurrentThreadId());
    } else if (s_pFollowing == nullptr && s_hHook != nullptr) {
        ::UnhookWindowsHookEx(std::exchange(s_hHook, nullptr));
    }
}

LRESULT CALLBACK QVGridList::AfterMessage(int nCode, WPARAM wParam, LPARAM lParam) {
    const auto& sent = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (nCode == HC_ACTION && sent.message == WM_WINDOWPOSCHANGED) {
        for (QVGridList* pList = s_pFollowing; pList != nullptr; pList = pList->m_pNext) {
            HWND hWndGrid = pList->m_grid.m_hWnd;
            if (sent.hwnd == hWndGrid || ::IsChild(sent.hwnd, hWndGrid)) {
                pList->m_grid.PlaceEditors();
            }
        }
    }
    return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
}
