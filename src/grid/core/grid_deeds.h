// Pasting, undo and redo in a grid: edits of many cells that go, cell by cell, the way of a typed
// one, with all that the parent is told. Cells that nobody could edit by hand are left alone.
//
// Like GridEditing, all end quietly once the grid is gone.

#pragma once

#include "frame/core/sheet_text.h"
#include "grid/core/edit_history.h"
#include "grid/core/grid_editing.h"

namespace qv {

class GridDeeds {
public:
    explicit GridDeeds(GridEditing& editing) : m_editing(editing) {}

    // An edit that was made by hand or here. Without memory the edits before it are forgotten: they
    // could not be taken back in order. Nothing is kept while bKeep is false.
    void Note(bool bKeep, GridCell cell, const std::string& strBefore, const std::string& strAfter);

    // As much of a text as can be typed into a cell: line ends and TABs become blanks.
    static std::string OnOneLine(std::string_view text);
    // Into the cells right of and below a cell, as far as there are some; it is current again
    // afterwards. May throw std::bad_alloc.
    void Paste(GridCell first, const std::vector<SheetRow>& rows);
    // A text into one cell, as it goes into each of those. False once the grid is gone. May throw
    // std::bad_alloc.
    bool Enter(GridCell cell, std::string_view text);
    // What is being typed counts as an edit of its own. False if there is nothing to take back or
    // make again. May throw std::bad_alloc.
    bool Undo();
    bool Redo();

    // The rows are gone.
    void Forget() { m_history.Clear(); }

    const EditHistory& History() const { return m_history; }

private:
    bool Replay(const EditHistory::Step* pStep, bool bBack);

    GridEditing& m_editing;
    EditHistory m_history;
    bool m_bReplaying = false;
};

}  // namespace qv
