// Where the mouse, the keys and the focus lead.

#include "base/platform_names.h"
#include "grid/core/grid_editing.h"
#include "grid/core/grid_editing_watch.h"
#include "grid/core/grid_keys.h"

namespace qv {

// --- Mouse

bool GridEditing::Press(Point pt) {
    const GridHit hit = m_host.Layout().HitTest(pt);
    if (!FocusOnPress(hit.cell)) {
        return true;
    }
    if (!m_model.IsCell(hit.cell)) {
        return false;
    }
    const Watch watch(*this);
    const bool bDisabled = !IsEnabled(hit.cell);
    GotoCell(hit.cell, true);
    if (!watch) {
        return true;
    }
    m_host.InvalidateAll();
    if (!bDisabled && !m_state.m_bReadOnly && IsCurrent(hit.cell) && !IsLockedList(hit.cell)) {
        PressCell(hit);
    }
    return true;
}

// To the edit where the cell is being typed in, else to the grid, which keeps what the edit holds.
// False if the grid is gone then.
bool GridEditing::FocusOnPress(GridCell cell) {
    const Watch watch(*this);
    const IgnoreFocus ignore(m_alive, m_state.m_bIgnoreFocus, 1);
    const bool bEdited = m_state.m_bEditing && m_model.IsRow(cell.nRow) && IsCurrent(cell);
    if (bEdited && m_edit.Up()) {
        m_edit.TakeFocus();
    } else if (!bEdited || !m_list.Up()) {
        m_host.TakeFocus();
    }
    return static_cast<bool>(watch);
}

void GridEditing::PressCell(const GridHit& hit) {
    if (Type(hit.cell) == gctDropList) {
        const Watch watch(*this);
        const bool bWasEditing = m_state.m_bEditing != 0;
        ToggleList();
        if (watch && bWasEditing) {
            m_host.TakeFocus();
        }
    } else if (hit.bOnButton) {
        PressButton(hit.cell);
    }
}

void GridEditing::PressButton(GridCell cell) {
    const GridLayout layout = m_host.Layout();
    Rect rcCell;
    layout.CellRect(cell.nRow, cell.nCol, rcCell);
    m_rcButton = layout.ButtonRect(rcCell);
    m_state.m_bBtnDown = m_state.m_bBtnOver = 1;
    SetRowState(cell.nRow, GRS_BUTTONDOWN, true);
    m_host.CaptureMouse();
}

void GridEditing::Drag(Point pt) {
    const bool bOver = m_rcButton.Contains(pt);
    if (!m_state.m_bBtnDown || bOver == (m_state.m_bBtnOver != 0)) {
        return;
    }
    m_state.m_bBtnOver = bOver;
    SetRowState(m_state.m_nCurRow, GRS_BUTTONDOWN, bOver);
    m_host.InvalidateButton(m_rcButton);
    if (bOver && !m_host.HasMouse()) {
        m_host.CaptureMouse();
    }
}

void GridEditing::Release(Point pt) {
    if (!m_state.m_bBtnDown) {
        return;
    }
    m_state.m_bBtnDown = 0;
    SetRowState(m_state.m_nCurRow, GRS_BUTTONDOWN, false);
    const Watch watch(*this);
    if (m_host.HasMouse()) {
        m_host.ReleaseMouse();
    }
    if (watch && m_rcButton.Contains(pt)) {
        ClickButton(m_host.Layout().HitTest(pt).cell);
    }
}

void GridEditing::ClickButton(GridCell cell) {
    m_host.InvalidateButton(m_rcButton);
    m_host.Update();  // raised, before the parent acts
    const Watch watch(*this);
    if (Type(cell) == gctEditButton) {
        const IgnoreFocus ignore(m_alive, m_state.m_bIgnoreFocus, 1);
        SaveEdit();
    }
    if (watch && Type(cell) != gctDropList) {
        m_host.TellParent(kButtonOrList);
    }
}

void GridEditing::CancelMode() {
    const bool bPressed = m_state.m_bBtnDown != 0;
    m_state.m_bEditing = 0;  // an editor that is up stays on the screen
    m_state.m_bBtnDown = 0;
    if (bPressed) {
        SetRowState(m_state.m_nCurRow, GRS_BUTTONDOWN, false);
        m_host.InvalidateButton(m_rcButton);
        m_host.ReleaseMouse();
    }
}

// --- Focus

// Coming to the grid opens the editor at once, in a read-only grid and a disabled cell as well:
// only the column and the cell's own read-only style decide.
void GridEditing::GotFocus() {
    if (!m_model.IsRow(m_state.m_nCurRow)) {
        return;
    }
    m_host.InvalidateCell(Current());
    if (!m_state.m_bIgnoreFocus) {
        ActivateCell(Current());
    }
}

void GridEditing::LostFocus() {
    const Watch watch(*this);
    if (m_list.Up()) {
        SaveList();
    }
    if (watch) {
        m_host.InvalidateCell(Current());
    }
}

// --- Keys

// Keys that act on an open list and not on the current cell.
bool GridEditing::TakesKey(unsigned nKey) {
    if ((nKey == VK_UP || nKey == VK_DOWN) && m_state.m_bEditing && m_state.m_nCurRow != -1 &&
        Type(Current()) == gctDropList) {
        if (m_list.Made()) {
            m_list.SelectLine(
                ListLineAfterKey(m_list.SelectedLine(), nKey == VK_DOWN, m_list.CountLines()));
            m_host.CellChanged(Current(), CellChange::Text);  // as it is shown in the list
        }
        return true;
    }
    if (nKey == VK_ESCAPE && m_list.Up()) {
        HideList();
        return true;
    }
    return false;
}

void GridEditing::Key(unsigned nKey) {
    const Watch watch(*this);
    const bool bTaken = TakesKey(nKey);
    if (!watch) {
        return;
    }
    const GridCell target = KeyTarget(bTaken ? 0 : nKey, Current(), m_model,
                                      m_host.Layout().nTopRow, m_host.PageRows());
    if (!bTaken && !IsWalkKey(nKey)) {
        m_host.HandleByDefault();
    }
    if (!watch || IsCurrent(target)) {
        return;
    }
    const IgnoreFocus ignore(m_alive, m_state.m_bIgnoreFocus, 1);
    const unsigned nMove = m_nMoves;
    m_host.ShowRow(target.nRow);
    if (!watch || nMove != m_nMoves) {
        return;  // the parent was told of an open list's choice, and has led elsewhere
    }
    GotoCell(target, false);
    if (watch && IsCurrent(target) && m_model.UsesEdit(target) && IsEnabled(target) &&
        !m_state.m_bReadOnly) {
        ActivateCell(target);
    }
}

bool GridEditing::SystemKey(unsigned nKey) {
    const GridCell cell = Current();
    if (nKey != VK_DOWN || !m_model.IsRow(cell.nRow) || Type(cell) != gctDropList ||
        !IsEnabled(cell) || m_state.m_bReadOnly || IsLockedList(cell)) {
        return false;
    }
    if (m_state.m_bEditing) {
        SaveList();
        return true;
    }
    const Watch watch(*this);
    m_host.ShowRow(cell.nRow);
    if (watch) {
        ToggleList();
    }
    return true;
}

}  // namespace qv
