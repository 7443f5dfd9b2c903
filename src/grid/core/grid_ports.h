// What editing in a grid asks of the windows that it happens in: the grid's own, the edit and the
// list of choices. The control hands in its windows, a test hands in records of them. Coordinates
// are client pixels of the grid.
//
// Steps marked "out" may run anything: the parent is told, or the focus moves and windows beside
// the grid hear of it. The rows may be others afterwards, the grid's window destroyed, the grid
// deleted and the port with it.
//
// What finds no memory throws std::bad_alloc.

#pragma once

#include "grid/core/grid_layout.h"

#include <string>

namespace qv {

// What those who listen to a grid hear of a cell: it became the current one, has another text, or
// its list of choices came or went.
enum class CellChange { Current, Text, List };

class GridHostPort {
public:
    virtual ~GridHostPort() = default;

    // What the grid's window is known by; null while there is none.
    virtual const void* Window() const = 0;
    virtual GridLayout Layout() const = 0;
    // Measures what was not measured yet. False without memory.
    virtual bool MeasureRows() = 0;
    virtual int PageRows() const = 0;    // as the scroll bar has it
    virtual void ShowRow(int nRow) = 0;  // out: scrolls there
    // None repaints while redrawing is off, but for the row, which always is.
    virtual void InvalidateAll() = 0;
    virtual void InvalidateRow(int nRow) = 0;
    virtual void InvalidateCell(GridCell cell) = 0;
    virtual void EraseCell(GridCell cell) = 0;  // also while redrawing is off
    virtual void InvalidateButton(const Rect& rc) = 0;
    virtual void Update() = 0;

    virtual bool HasFocus() const = 0;
    virtual void TakeFocus() = 0;  // out
    virtual bool HasMouse() const = 0;
    virtual void CaptureMouse() = 0;
    virtual void ReleaseMouse() = 0;  // out

    virtual void TellParent(unsigned nCode) = 0;  // out
    // What the platform does with the message at hand.
    virtual void HandleByDefault() = 0;  // out
    virtual bool SameText(const char* psz1, const char* psz2) const = 0;
    // A user has given a cell another text. Throws nothing.
    virtual void NoteEdit(GridCell /*cell*/, const std::string& /*strBefore*/,
                          const std::string& /*strAfter*/) {}
    virtual void CellChanged(GridCell /*cell*/, CellChange /*what*/) {}  // out
};

// A child window, made at first use.
class GridEditPort {
public:
    virtual ~GridEditPort() = default;

    virtual bool Made() const = 0;
    virtual bool Up() const = 0;
    // Is there, and hidden.
    virtual void MakeHidden() = 0;  // out, if it has the focus
    virtual std::string Text() const = 0;
    virtual void SetText(const char* psz) = 0;  // out: a change is told
    virtual void SelectAll() = 0;
    virtual void PutCaretAtEnd() = 0;
    virtual void Place(const Rect& rc) = 0;
    virtual void Show() = 0;
    virtual void Hide() = 0;  // out, if it has the focus
    virtual bool HasFocus() const = 0;
    virtual void TakeFocus() = 0;  // out
};

// A popup window that never has the focus, made at first use. Lines count from 0; -1 is none.
class GridListPort {
public:
    virtual ~GridListPort() = default;

    virtual bool Made() const = 0;
    virtual bool Up() const = 0;
    // Is there, hidden, and holds these lines, none selected.
    virtual void Fill(const CStringArray& choices) = 0;
    virtual int CountLines() const = 0;
    virtual int SelectedLine() const = 0;
    virtual void SelectLine(int nLine) = 0;
    virtual int FindLine(const char* psz) const = 0;
    virtual std::string LineText(int nLine) const = 0;
    virtual void Place(const Rect& rcCell) = 0;  // under its cell
    virtual void Show() = 0;
    // Gives the mouse up, if it has it.
    virtual void Hide() = 0;
};

}  // namespace qv
