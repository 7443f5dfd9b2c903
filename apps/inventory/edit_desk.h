// EditDesk: the commands of the menu Edit, on whatever control has the focus, in any window of the
// application. The application hands its commands on to it, and its keys, before anybody else sees
// them: an edit must not lose one to an accelerator of the window around it.

#pragma once

#include "edit_target.h"

class EditDesk : public CCmdTarget {
public:
    // A key of one of the commands, for an edit, or for a control that has no such key by itself.
    // True: it has been handled.
    bool TakeKey(const MSG& msg);

protected:
    afx_msg BOOL OnEdit(UINT nID);
    afx_msg void OnUpdateEdit(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    UndoneText m_undone;
};
