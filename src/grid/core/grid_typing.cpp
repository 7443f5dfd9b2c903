// Edits that are not typed and go the same way.

#include "grid/core/grid_editing.h"
#include "grid/core/grid_editing_watch.h"

namespace qv {

bool GridEditing::IsOpenToTyping(GridCell cell) const {
    return m_host.Window() != nullptr && m_model.IsCell(cell) && !m_state.m_bReadOnly &&
           (m_model.Style(cell.nRow, cell.nCol) & (GCS_DISABLED | GCS_READONLY)) == 0;
}

bool GridEditing::IsChangeable(GridCell cell) const {
    const CellDeed deed = DeedOf(cell);
    return deed == CellDeed::OpenList || deed == CellDeed::CloseList ||
           (m_model.UsesEdit(cell) && IsOpenToTyping(cell));
}

CellDeed GridEditing::DeedOf(GridCell cell) const {
    if (m_host.Window() == nullptr || !m_model.IsCell(cell) || !IsEnabled(cell) ||
        m_state.m_bReadOnly || IsLockedList(cell)) {
        return CellDeed::None;
    }
    switch (Type(cell)) {
        case gctButton:
        case gctEditButton:
            return CellDeed::Press;
        case gctDropList:
            return HasListUp(cell) ? CellDeed::CloseList : CellDeed::OpenList;
        case gctEdit:
            return IsOpenToTyping(cell) ? CellDeed::Edit : CellDeed::None;
        default:
            return CellDeed::None;
    }
}

void GridEditing::Act(GridCell cell) {
    if (DeedOf(cell) == CellDeed::None) {
        return;
    }
    const Watch watch(*this);
    const unsigned nMove = m_nMoves;
    m_host.ShowRow(cell.nRow);
    if (!watch || LedElsewhere(nMove, cell) || !FocusOnPress(cell)) {
        return;
    }
    GotoCell(cell, true);
    if (!watch || !IsCurrent(cell)) {
        return;
    }
    const CellDeed deed = DeedOf(cell);
    if (deed == CellDeed::OpenList || deed == CellDeed::CloseList) {
        PressCell({cell, false});
    } else if (deed == CellDeed::Press) {
        ClickButton(cell);
    }
}

bool GridEditing::TypeInto(GridCell cell, const char* psz) {
    const Watch watch(*this);
    if (IsOpenToTyping(cell) && m_model.UsesEdit(cell)) {
        TypeText(cell, psz);
    } else if (IsOpenToTyping(cell) && Type(cell) == gctDropList) {
        ChooseText(cell, psz);
    }
    return static_cast<bool>(watch);
}

void GridEditing::TypeText(GridCell cell, const char* psz) {
    const Watch watch(*this);
    GotoCell(cell, true);
    if (!watch || !IsTyping(cell)) {
        return;  // the parent has led elsewhere
    }
    if (m_edit.Text() != psz) {
        m_edit.SetText(psz);
    }
    if (watch && IsTyping(cell)) {
        const IgnoreFocus ignore(m_alive, m_state.m_bIgnoreFocus, 1);
        SaveEdit();
    }
}

// Only what the list offers can be chosen. Choices that the parent is asked for are not known.
void GridEditing::ChooseText(GridCell cell, const char* psz) {
    const Watch watch(*this);
    GotoCell(cell, false);
    const _QVGRID_COL_INFO* pColumn = watch ? m_model.Column(cell.nCol) : nullptr;
    if (pColumn == nullptr || pColumn->pListData == nullptr || !IsCurrent(cell) ||
        !IsOpenToTyping(cell) || m_list.Up()) {
        return;
    }
    m_list.Fill(*pColumn->pListData);
    for (int nLine = 0; nLine < m_list.CountLines(); ++nLine) {
        if (m_host.SameText(m_list.LineText(nLine).c_str(), psz)) {
            m_list.SelectLine(nLine);
            SaveList();
            return;
        }
    }
}

void GridEditing::ShowCell(GridCell cell) {
    const Watch watch(*this);
    const unsigned nMove = m_nMoves;
    if (m_model.IsRow(cell.nRow)) {
        m_host.ShowRow(cell.nRow);
        if (watch && !LedElsewhere(nMove, cell)) {
            GotoCell(cell, true);
        }
    }
}

}  // namespace qv
