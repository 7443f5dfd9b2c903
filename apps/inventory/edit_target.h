// EditTarget: what the commands of the menu Edit act on: the control that has the focus, whatever
// it is.

#pragma once

#include "frame/edit_command.h"

#include <afxwin.h>

#include <memory>

// An edit knows one change back, and by taking that back it makes it again: the edit whose last
// change was taken back, and what it has read since.
struct UndoneText {
    HWND hEdit = nullptr;
    CString strText;
};

class EditTarget {
public:
    virtual ~EditTarget() = default;
    virtual bool Can(qv::EditCommand command) = 0;
    // Only if it can. The control may be gone afterwards: who is told of a change may destroy it.
    virtual void Do(qv::EditCommand command) = 0;
    // Whether the control handles the command's keys by itself.
    virtual bool HasKey(qv::EditCommand /*command*/) const { return true; }
    // Whether the keys are nobody else's, also when nothing can be done.
    virtual bool KeepsKeys() const { return false; }
};

// Null: nothing can be edited or copied there. undone must outlive the target.
std::unique_ptr<EditTarget> EditTargetAt(HWND hWnd, UndoneText& undone);
