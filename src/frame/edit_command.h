// What keys that are the same everywhere ask for: copying, pasting, undoing.

#pragma once

#include <afxwin.h>

namespace qv {

enum class EditCommand { None, SelectAll, Copy, Cut, Paste, Undo, Redo };

// Modifier keys that are down as the message being handled was sent.
struct HeldKeys {
    bool bShift = ::GetKeyState(VK_SHIFT) < 0;
    bool bControl = ::GetKeyState(VK_CONTROL) < 0;
    bool bMenu = ::GetKeyState(VK_MENU) < 0;  // with the control key it types characters
};

inline EditCommand EditCommandOf(UINT nKey, const HeldKeys& held) {
    static constexpr struct {
        UINT nKey;
        bool bShift;
        bool bControl;
        EditCommand command;
    } kCommands[] = {
        {'A', false, true, EditCommand::SelectAll},   {'C', false, true, EditCommand::Copy},
        {VK_INSERT, false, true, EditCommand::Copy},  {'X', false, true, EditCommand::Cut},
        {VK_DELETE, true, false, EditCommand::Cut},   {'V', false, true, EditCommand::Paste},
        {VK_INSERT, true, false, EditCommand::Paste}, {'Z', false, true, EditCommand::Undo},
        {'Y', false, true, EditCommand::Redo},        {'Z', true, true, EditCommand::Redo},
    };
    for (const auto& c : kCommands) {
        if (c.nKey == nKey && c.bShift == held.bShift && c.bControl == held.bControl &&
            !held.bMenu) {
            return c.command;
        }
    }
    return EditCommand::None;
}

}  // namespace qv
