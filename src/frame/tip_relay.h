// The tooltip of a control: one tool, the control's whole window. The control owns the tooltip by a
// pointer, null at first, and hands on the messages of its PreTranslateMessage.

#pragma once

#include <afxcmn.h>

namespace qv {

// Gives the tooltip of wnd a text, null meaning none; makes it at the first call, owned by the
// parent of wnd. A window that was made anew gets its tooltip back this way too. False without
// window or memory; a tooltip that is there keeps its text then.
bool SetTipText(CToolTipCtrl*& pToolTip, CWnd& wnd, LPCSTR pszText);
// The text nTextID of the resources, or nDefaultID's if that is 0. False also if there is no such
// text.
bool SetTipText(CToolTipCtrl*& pToolTip, CWnd& wnd, UINT nTextID, UINT nDefaultID);

// Shows and hides the tooltip, if there is one, by the mouse message. The parent is told as it
// shows, and may have taken the control away afterwards.
void RelayToTip(CToolTipCtrl* pToolTip, MSG& msg);

}  // namespace qv
