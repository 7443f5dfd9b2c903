// Where the editors lie, and how they follow as the cells under them move.

#include <utility>

#include "frame/wnd_port.h"
#include "grid/grid_ctrl.h"
#include "grid/grid_editors.h"

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

// Hangs it on the current cell, over that one's lower line.
void QVGridCtrl::PlaceList() {
    CRect rc(0, 0, 0, 0);
    CalcCellRect(m_nCurRow, m_nCurCol, rc);
    rc.right -= 1;
    rc.top = rc.bottom - 1;
    rc.bottom = rc.top + m_pList->GetItemHeight(0) * m_pList->GetCount() + 2;
    ClientToScreen(&rc);
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
