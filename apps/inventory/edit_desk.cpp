#include "edit_desk.h"

#include <afxres.h>

namespace {

using qv::EditCommand;

EditCommand CommandOf(UINT nID) {
    switch (nID) {
        case ID_EDIT_UNDO:
            return EditCommand::Undo;
        case ID_EDIT_REDO:
            return EditCommand::Redo;
        case ID_EDIT_CUT:
            return EditCommand::Cut;
        case ID_EDIT_COPY:
            return EditCommand::Copy;
        case ID_EDIT_PASTE:
            return EditCommand::Paste;
        case ID_EDIT_SELECT_ALL:
            return EditCommand::SelectAll;
        default:
            return EditCommand::None;
    }
}

}  // namespace

BEGIN_MESSAGE_MAP(EditDesk, CCmdTarget)
    ON_COMMAND_EX_RANGE(ID_EDIT_CLEAR, ID_EDIT_REDO, &EditDesk::OnEdit)
    ON_UPDATE_COMMAND_UI_RANGE(ID_EDIT_CLEAR, ID_EDIT_REDO, &EditDesk::OnUpdateEdit)
END_MESSAGE_MAP()

bool EditDesk::TakeKey(const MSG& msg) {
    if (msg.message != WM_KEYDOWN) {
        return false;
    }
    const EditCommand command = qv::EditCommandOf(static_cast<UINT>(msg.wParam), {});
    if (command == EditCommand::None) {
        return false;
    }
    const std::unique_ptr<EditTarget> pTarget = EditTargetAt(msg.hwnd, m_undone);
    if (pTarget == nullptr || pTarget->HasKey(command)) {
        return false;
    }
    const bool bKept = pTarget->KeepsKeys();
    const bool bCan = pTarget->Can(command);
    if (bCan) {
        pTarget->Do(command);
    }
    return bCan || bKept;
}

BOOL EditDesk::OnEdit(UINT nID) {
    const EditCommand command = CommandOf(nID);
    if (command == EditCommand::None) {
        return FALSE;
    }
    const std::unique_ptr<EditTarget> pTarget = EditTargetAt(::GetFocus(), m_undone);
    if (pTarget != nullptr && pTarget->Can(command)) {
        pTarget->Do(command);
    }
    return TRUE;
}

void EditDesk::OnUpdateEdit(CCmdUI* pCmdUI) {
    const EditCommand command = CommandOf(pCmdUI->m_nID);
    if (command == EditCommand::None) {
        pCmdUI->ContinueRouting();
        return;
    }
    const std::unique_ptr<EditTarget> pTarget = EditTargetAt(::GetFocus(), m_undone);
    pCmdUI->Enable(pTarget != nullptr && pTarget->Can(command));
}
