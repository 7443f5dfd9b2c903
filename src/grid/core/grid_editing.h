// Editing in a grid, as a state machine: which cell is current, which editor is up, where keys and
// clicks lead and what they open, when what is typed is kept and when dropped, what the parent is
// told and when.
//
// The current cell changes last: what is kept on the way belongs to the cell that was current, and
// what is typed to the cell that the edit was opened for. Where the parent, being told, leads
// elsewhere, that is obeyed and the step under way ends.
//
// After each step that leads out everything may be gone (see grid_ports.h). Operations end quietly
// then; whoever called one watches by Alive() if it goes on afterwards.
//
// Without memory an editor stays closed, and one whose text cannot be kept stays up with it.

#pragma once

#include "frame/alive.h"
#include "grid/core/grid_ports.h"

#include <string_view>

namespace qv {

// What a press on a cell comes to, its button included.
enum class CellDeed { None, Edit, Press, OpenList, CloseList };

class GridEditing {
public:
    // What the parent is told, beside the edit's own changes.
    static constexpr unsigned kButtonOrList = 0;
    static constexpr unsigned kListChanged = 1;

    GridEditing(GridModel& model, QVGridState& state, GridHostPort& host, GridEditPort& edit,
                GridListPort& list);

    const AliveToken& Alive() const { return m_alive; }
    bool IsCurrent(GridCell cell) const { return cell == Current(); }
    // Whether the cell's text is what is being typed.
    bool IsTyping(GridCell cell) const;
    // Whether a drop-list cell that is read-only by itself stays closed.
    void SetLockReadOnlyLists(bool bLock) { m_bLockReadOnlyLists = bLock; }
    bool IsLockedList(GridCell cell) const;
    // Of the pressed cell button, while one is.
    const Rect& ButtonRect() const { return m_rcButton; }

    // --- The current cell and its editors

    void GotoCell(GridCell cell, bool bActivate);
    // Opens the edit of a cell that has one, and keeps what another editor holds.
    void ActivateCell(GridCell cell);
    void HideEdit();
    // False if there is no memory for what was typed.
    bool SaveEdit();
    void HideList();
    void SaveList();
    void SaveEditors();
    // Takes the editors down, if they are this cell's, without keeping what they hold.
    void DropEditors(GridCell cell);
    void PopupList(const CStringArray& choices);
    // A list that is up is kept; else it opens, or the parent is asked for choices.
    void ToggleList();
    // In the store and, where that cell is being typed in, in the edit. May throw std::bad_alloc.
    void SetText(GridCell cell, const char* psz);
    void DeleteRows();
    // As if the text were typed into the cell, or chosen from its list, with all that the parent is
    // told. A cell that nobody could edit by hand is left as it is, and so is one whose list does
    // not have the text. The cell is current then. False once the grid is gone. May throw
    // std::bad_alloc.
    bool TypeInto(GridCell cell, const char* psz);
    // Scrolls to a cell, makes it current and opens its edit.
    void ShowCell(GridCell cell);
    CellDeed DeedOf(GridCell cell) const;
    // Scrolls to a cell and does that, with all that the parent is told.
    void Act(GridCell cell);
    // Whether users may type another text into the cell, or choose one.
    bool IsChangeable(GridCell cell) const;
    // The list of choices is this cell's.
    bool HasListUp(GridCell cell) const { return m_list.Up() && IsCurrent(cell); }
    GridCell CurrentCell() const { return Current(); }
    GridCell EditCell() const { return m_editCell; }  // that the edit was opened for

    // --- What happens to the grid

    // Editors go where their cells are now.
    void PlaceEditors();
    // Keeps a list whose row has left the view.
    void CloseListOutOfView();
    void GotFocus();
    void LostFocus();
    // False where the platform's handling is due.
    bool Press(Point pt);
    void Drag(Point pt);
    void Release(Point pt);
    void CancelMode();
    void Key(unsigned nKey);
    // ALT and a key. False where the platform's handling is due.
    bool SystemKey(unsigned nKey);
    // The window goes: what is typed is kept, and no editor opens any more.
    void Closing();
    void Closed();

    // Holds between operations, as long as nobody else writes the state and no window is taken
    // away.
    bool CheckInvariants() const;

private:
    class Watch;
    using IgnoreFocus = SetWhileAlive<int>;

    GridCell Current() const { return {m_state.m_nCurRow, m_state.m_nCurCol}; }
    bool IsEnabled(GridCell cell) const;
    GridColType Type(GridCell cell) const { return m_model.Type(cell); }
    const char* TextOf(GridCell cell) const;
    std::string ShownText(GridCell cell) const;
    void SetRowState(int nRow, unsigned dwBits, bool bSet);
    void MoveRowMark(int nRow);
    void PutRowMarkBack(int nRow);
    bool LedElsewhere(unsigned nMove, GridCell cell) const;
    void OpenEdit(GridCell cell);
    bool PrepareEdit(GridCell cell);
    void FillList(const CStringArray& choices);
    void PlaceEdit();
    void PlaceList();
    bool IsOpenToTyping(GridCell cell) const;
    void TypeText(GridCell cell, const char* psz);
    void ChooseText(GridCell cell, const char* psz);
    void NoteEdit(GridCell cell, const std::string& strBefore, const std::string& strAfter);
    bool KeepTypedText(bool& bChanged);
    bool KeepChosenLine();
    bool TakesKey(unsigned nKey);
    bool FocusOnPress(GridCell cell);
    void PressCell(const GridHit& hit);
    void PressButton(GridCell cell);
    void ClickButton(GridCell cell);

    GridModel& m_model;
    QVGridState& m_state;
    GridHostPort& m_host;
    GridEditPort& m_edit;
    GridListPort& m_list;
    GridCell m_editCell;
    unsigned m_nMoves = 0;     // of the current cell
    unsigned m_nOpenings = 0;  // of the edit
    Rect m_rcButton;
    bool m_bLockReadOnlyLists = false;
    AliveToken m_alive;
};

}  // namespace qv
