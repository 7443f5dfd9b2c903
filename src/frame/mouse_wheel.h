// What the tree and the list share of the mouse wheel.

#pragma once

#include <afxwin.h>

// Lines a notch of the wheel scrolls: 3 unless the system says otherwise, WHEEL_PAGESCROLL for a
// page. Read once and kept, unless bForce is set.
UINT GetMouseScrollLines(BOOL bForce);

namespace qv {

// The bridge from drivers that send "MSWHEEL_ROLLMSG": passes the movement as WM_MOUSEWHEEL to the
// window with the focus and on to its parents until one answers, or to wnd if none has the focus.
LRESULT PassRegisteredWheel(CWnd& wnd, WPARAM wParam, LPARAM lParam);

}  // namespace qv
