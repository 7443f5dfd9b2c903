// QVMacroButton: a menu button whose entries stand for snippets of text. Choosing one inserts its
// snippet in an edit control, for strings with codes that are built up in a dialog.
//
// The target is the control that SetEditCtrlID names, or the window that has the focus; a press of
// the mouse does not move that. It must be of the platform's class "EDIT": other windows are left
// alone, and an entry without a target does nothing. A read-only or disabled edit takes snippets as
// others do. In place of its selection, without undo; the edit tells its parent of the change as
// always, and that may take edit and button away.

#pragma once

#include "buttons/menu_button.h"

class QV_CONTROLS_API QVMacroButton : public QVMenuButton {
    DECLARE_DYNAMIC(QVMacroButton)

public:
    QVMacroButton();
    ~QVMacroButton() override;

    // An entry with its snippet; neither of them without memory.
    void AddMacro(const CString& strTitle, const CString& strMacro);
    // Does nothing: each entry has a snippet.
    void AddString(const CString& strItem);
    // A control of the button's parent. 0, as at first: the window that has the focus.
    void SetEditCtrlID(unsigned nID);

    void OnMenuSelected(unsigned nIndex) override;

protected:
    CStringArray m_astrMacros;  // by the index of the entry
    unsigned m_nEditCtrlID;
};
