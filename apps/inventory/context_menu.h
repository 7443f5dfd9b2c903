// The menus that come up at a control: by the right mouse button, the menu key or Shift and F10.

#pragma once

#include <afxwin.h>

// In the order of IDR_CONTEXT.
enum class ContextMenu { Tree, Packages, Details, Preview, Settings, Log, Largest, Files, None };

// pt: on the screen; (-1, -1): by the keyboard, and the menu comes up below what has the focus in
// the control, which is brought into view. By the mouse, the row below it is selected already, or
// is now. The control gets the focus, for the commands act on what has it; the frame gets the
// command. Control and frame may be gone afterwards.
void ShowContextMenu(ContextMenu menu, CFrameWnd& frame, CWnd& control, CPoint pt);
