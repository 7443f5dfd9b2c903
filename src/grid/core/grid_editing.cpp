#include "grid/core/grid_editing.h"

#include "base/no_memory.h"
#include "grid/core/grid_editing_watch.h"

#include <stdexcept>

namespace qv {

namespace {

// False if memory ran out on the way.
template <class Action>
bool MemorySuffices(Action action) {
    try {
        action();
        return true;
    } catch (const std::length_error&) {
    } catch (...) {
        ExpectNoMemory();
    }
    return false;
}

}  // namespace

GridEditing::GridEditing(GridModel& model, QVGridState& state, GridHostPort& host,
                         GridEditPort& edit, GridListPort& list)
    : m_model(model), m_state(state), m_host(host), m_edit(edit), m_list(list) {}

bool GridEditing::IsTyping(GridCell cell) const {
    return m_state.m_bEditing && m_editCell == cell && m_edit.Up();
}

bool GridEditing::IsEnabled(GridCell cell) const {
    return (m_model.Style(cell.nRow, cell.nCol) & GCS_DISABLED) == 0;
}

bool GridEditing::IsLockedList(GridCell cell) const {
    return m_bLockReadOnlyLists && Type(cell) == gctDropList &&
           (m_model.Style(cell.nRow, cell.nCol) & GCS_READONLY) != 0;
}

const char* GridEditing::TextOf(GridCell cell) const {
    const char* psz = m_model.Text(cell.nRow, cell.nCol);
    return psz != nullptr ? psz : "";
}

std::string GridEditing::ShownText(GridCell cell) const {
    return IsTyping(cell) ? m_edit.Text() : TextOf(cell);
}

// --- The current cell

void GridEditing::SetRowState(int nRow, unsigned dwBits, bool bSet) {
    if (m_model.IsRow(nRow)) {
        unsigned& dwState = m_model.RowAt(nRow).dwState;
        dwState = bSet ? dwState | dwBits : dwState & ~dwBits;
    }
}

// From the current row to this one.
void GridEditing::MoveRowMark(int nRow) {
    const int nOld = m_state.m_nCurRow;
    if (nRow != nOld && m_model.IsRow(nOld)) {
        SetRowState(nOld, GRS_CURRENT, false);
        m_host.InvalidateRow(nOld);
    }
    SetRowState(nRow, GRS_CURRENT, true);
}

// From this one to the current row.
void GridEditing::PutRowMarkBack(int nRow) {
    SetRowState(nRow, GRS_CURRENT, false);
    SetRowState(m_state.m_nCurRow, GRS_CURRENT, true);
}

void GridEditing::GotoCell(GridCell cell, bool bActivate) {
    if (!m_model.IsCell(cell)) {
        return;
    }
    MoveRowMark(cell.nRow);
    const AliveWatch watch(m_alive);  // the store lives on where the window goes
    const unsigned nMove = ++m_nMoves;
    if (bActivate && IsEnabled(cell) && !m_state.m_bReadOnly) {
        ActivateCell(cell);
    } else {
        SaveEditors();
    }
    if (!watch) {
        return;
    }
    const bool bTextStays = m_edit.Up() && m_editCell != cell;
    if (nMove != m_nMoves || !m_model.IsRow(cell.nRow) || bTextStays) {
        // The parent, being told, has gone elsewhere or taken the row away: it stays at that. So
        // it does where what was typed found no memory, and would be lost.
        PutRowMarkBack(cell.nRow);
        return;
    }
    MoveRowMark(cell.nRow);  // the rows may be other ones now
    const bool bMoved = !IsCurrent(cell);
    m_state.m_nCurRow = cell.nRow;
    m_state.m_nCurCol = cell.nCol;
    m_host.InvalidateRow(cell.nRow);
    if (bMoved) {
        m_host.CellChanged(cell, CellChange::Current);
    }
}

// Whether the parent, being told of something, has taken the row away or made another cell current
// since the current cell had been moved nMove times.
bool GridEditing::LedElsewhere(unsigned nMove, GridCell cell) const {
    return !m_model.IsRow(cell.nRow) || (nMove != m_nMoves && !IsCurrent(cell));
}

void GridEditing::ActivateCell(GridCell cell) {
    // The edit may be another cell's that is only just becoming the current one.
    const bool bOthersEdit = m_edit.Up() && m_editCell != cell;
    if (m_host.Window() == nullptr || (IsCurrent(cell) && m_state.m_bEditing && !bOthersEdit)) {
        return;
    }
    if (!m_model.UsesEdit(cell) || (m_model.Style(cell.nRow, cell.nCol) & GCS_READONLY) != 0) {
        SaveEditors();
        return;
    }
    const Watch watch(*this);
    const unsigned nMove = m_nMoves;
    if (m_list.Up()) {
        SaveList();
    }
    if (!watch || LedElsewhere(nMove, cell)) {
        return;
    }
    const IgnoreFocus ignore(m_alive, m_state.m_bIgnoreFocus, 1);
    // Of the cell that is left; a hidden edit would lose what it holds. An edit that somebody who
    // was told has opened meanwhile stays.
    if (SaveEdit() && watch && !m_edit.Up() && !LedElsewhere(nMove, cell) && m_host.MeasureRows()) {
        MemorySuffices([&] { OpenEdit(cell); });  // else the cell stays closed
    }
}

void GridEditing::OpenEdit(GridCell cell) {
    if (!PrepareEdit(cell)) {
        return;
    }
    m_editCell = cell;  // the rows may be other ones now, and lie elsewhere
    PlaceEdit();
    m_edit.SelectAll();
    m_edit.Show();
    m_state.m_bEditing = 1;
    m_edit.TakeFocus();
}

// Hidden, with the cell's text. The parent hears of that, and may change the cell: a text that it
// changed must not come back when the edit is saved, and is shown once more. False if the edit is
// not to open here any more.
bool GridEditing::PrepareEdit(GridCell cell) {
    const Watch watch(*this);
    const unsigned nMove = m_nMoves;
    const unsigned nOpening = ++m_nOpenings;
    const auto opens = [&] {
        return watch && nOpening == m_nOpenings && !LedElsewhere(nMove, cell);
    };
    m_edit.MakeHidden();
    if (!opens()) {
        return false;
    }
    m_editCell = cell;
    std::string strShown;
    for (int nTry = 0; nTry == 0 || (nTry == 1 && strShown != TextOf(cell)); ++nTry) {
        strShown = TextOf(cell);
        m_edit.SetText(strShown.c_str());
        if (!opens()) {
            return false;
        }
    }
    return true;
}

// --- The edit

void GridEditing::HideEdit() {
    if (!m_edit.Made()) {
        return;
    }
    const Watch watch(*this);
    {
        // A window that goes may hand its focus to the grid, which must not open it again.
        const IgnoreFocus ignore(m_alive, m_state.m_bIgnoreFocus, 1);
        const bool bFocus = m_edit.HasFocus();
        m_edit.Hide();
        if (watch && bFocus && !m_host.HasFocus()) {
            m_host.TakeFocus();
        }
    }
    if (watch) {
        m_host.EraseCell(Current());
        m_state.m_bEditing = m_edit.Up();  // somebody who was told may have opened it again
    }
}

// To the cell that the edit was opened for, wherever the current cell has gone meanwhile. Not by
// SetText, which would write the text into the edit again.
bool GridEditing::KeepTypedText(bool& bChanged) {
    return MemorySuffices([&] {
        const std::string strBefore = TextOf(m_editCell);
        const std::string strTyped = m_edit.Text();
        m_model.SetText(m_editCell.nRow, m_editCell.nCol, strTyped);
        bChanged = strTyped != strBefore;
        NoteEdit(m_editCell, strBefore, strTyped);
    });
}

void GridEditing::NoteEdit(GridCell cell, const std::string& strBefore,
                           const std::string& strAfter) {
    if (m_model.IsCell(cell) && strBefore != strAfter) {
        m_host.NoteEdit(cell, strBefore, strAfter);
    }
}

// An edit whose text finds no memory stays up with it.
bool GridEditing::SaveEdit() {
    if (!m_edit.Up()) {
        return true;
    }
    const Watch watch(*this);
    const GridCell cell = m_editCell;
    bool bChanged = false;
    if (!KeepTypedText(bChanged)) {
        return false;
    }
    HideEdit();
    if (bChanged && watch) {
        m_host.CellChanged(cell, CellChange::Text);
    }
    return true;
}

void GridEditing::SetText(GridCell cell, const char* psz) {
    if (!m_model.IsCell(cell)) {
        return;
    }
    const bool bChanged = std::string_view(TextOf(cell)) != psz;
    m_model.SetText(cell.nRow, cell.nCol, psz);
    const Watch watch(*this);
    if (IsTyping(cell)) {
        m_edit.SetText(psz);
        if (!watch) {
            return;
        }
        m_edit.PutCaretAtEnd();
    }
    m_host.InvalidateCell(cell);
    if (bChanged) {
        m_host.CellChanged(cell, CellChange::Text);
    }
}

// --- The list

void GridEditing::HideList() {
    if (m_list.Made()) {
        const bool bUp = m_list.Up();
        m_list.Hide();
        m_state.m_bEditing = 0;
        m_state.m_bBtnDown = 0;
        if (bUp) {
            m_host.CellChanged(Current(), CellChange::List);
        }
    }
}

// Whether the selected line is another text than the cell's, which it is then.
bool GridEditing::KeepChosenLine() {
    const int nLine = m_list.SelectedLine();
    const GridCell cell = Current();
    if (nLine < 0 || !m_model.IsCell(cell)) {
        return false;
    }
    const std::string strLine = m_list.LineText(nLine);
    if (m_host.SameText(strLine.c_str(), ShownText(cell).c_str())) {
        return false;
    }
    NoteEdit(cell, TextOf(cell), strLine);
    SetText(cell, strLine.c_str());
    return true;
}

// A choice that finds no memory is not made, and not told.
void GridEditing::SaveList() {
    if (!m_list.Made()) {
        return;
    }
    const Watch watch(*this);
    bool bChosen = false;
    MemorySuffices([&] { bChosen = KeepChosenLine(); });
    if (bChosen && watch) {
        m_host.TellParent(kListChanged);
    }
    if (watch && m_list.Up()) {
        HideList();  // unless the parent has done so, and perhaps opened the edit
    }
}

void GridEditing::PopupList(const CStringArray& choices) {
    if (m_host.Window() == nullptr || !m_model.IsCell(Current())) {
        return;
    }
    if (!m_host.MeasureRows() || !MemorySuffices([&] { FillList(choices); })) {
        HideList();
        return;
    }
    m_list.Show();
    m_state.m_bEditing = 1;
    m_host.CellChanged(Current(), CellChange::List);
}

// Hidden, with the choices, at its place, and with the line of the cell's text selected.
void GridEditing::FillList(const CStringArray& choices) {
    m_list.Fill(choices);
    PlaceList();  // first: a selected line is scrolled to
    const int nLine = m_list.FindLine(ShownText(Current()).c_str());
    if (nLine >= 0) {
        m_list.SelectLine(nLine);
    }
}

void GridEditing::ToggleList() {
    if (m_list.Up()) {
        SaveList();
        return;
    }
    const _QVGRID_COL_INFO* pColumn = m_model.Column(m_state.m_nCurCol);
    if (pColumn != nullptr && pColumn->pListData != nullptr) {
        PopupList(*pColumn->pListData);
    } else {
        m_host.TellParent(kButtonOrList);
    }
}

// --- Both editors

void GridEditing::SaveEditors() {
    const Watch watch(*this);
    {
        const IgnoreFocus ignore(m_alive, m_state.m_bIgnoreFocus, 1);
        SaveEdit();
    }
    if (watch && m_list.Up()) {
        SaveList();
    }
}

void GridEditing::DropEditors(GridCell cell) {
    if (IsCurrent(cell) && m_state.m_bEditing) {
        const AliveWatch watch(m_alive);
        HideList();
        if (watch) {
            HideEdit();
        }
        if (watch) {
            m_state.m_bEditing = 0;
        }
    }
}

void GridEditing::DeleteRows() {
    m_model.DeleteAllRows();
    m_state.m_nCurRow = m_state.m_nCurCol = -1;
    m_editCell = {};
}

void GridEditing::PlaceEdit() {
    const GridLayout layout = m_host.Layout();
    Rect rcCell;
    layout.CellRect(m_editCell.nRow, m_editCell.nCol, rcCell);
    m_edit.Place(GridEditRect(rcCell, Type(m_editCell) == gctEditButton ? layout.nCellHeight : 0));
}

void GridEditing::PlaceList() {
    Rect rcCell;
    m_host.Layout().CellRect(m_state.m_nCurRow, m_state.m_nCurCol, rcCell);
    m_list.Place(rcCell);
}

void GridEditing::PlaceEditors() {
    if (m_host.Layout().nCellHeight <= 0) {
        return;  // the next paint measures and comes back
    }
    if (m_edit.Up() && m_model.IsRow(m_editCell.nRow)) {
        PlaceEdit();
    }
    if (m_list.Up() && m_model.IsRow(m_state.m_nCurRow)) {
        PlaceList();
    }
}

void GridEditing::CloseListOutOfView() {
    if (!m_list.Up() || !m_model.IsRow(m_state.m_nCurRow)) {
        return;
    }
    const GridLayout layout = m_host.Layout();
    if (m_state.m_nCurRow < layout.nTopRow || m_state.m_nCurRow >= layout.EndOfShownRows()) {
        SaveList();
    }
}

// --- The window's end

void GridEditing::Closing() {
    // An edit that goes may hand its focus to the grid, which must not open another one.
    m_state.m_bIgnoreFocus = 1;
    if (m_edit.Up()) {
        bool bChanged;
        KeepTypedText(bChanged);  // the store lives on
    }
}

void GridEditing::Closed() {
    m_state.m_bEditing = m_state.m_bBtnDown = m_state.m_bIgnoreFocus = 0;
}

bool GridEditing::CheckInvariants() const {
    const GridCell current = Current();
    if (m_state.m_bIgnoreFocus || (current != GridCell{} && !m_model.IsCell(current)) ||
        (m_state.m_bEditing && !m_edit.Up() && !m_list.Up())) {
        return false;
    }
    for (int nRow = 0; nRow < m_model.NumRows(); ++nRow) {
        if (((m_model.RowAt(nRow).dwState & GRS_CURRENT) != 0) != (nRow == current.nRow)) {
            return false;
        }
    }
    // What is typed is for the current cell, but where rows were deleted meanwhile.
    return !m_edit.Up() || current == GridCell{} || m_editCell == current ||
           m_editCell == GridCell{};
}

}  // namespace qv
