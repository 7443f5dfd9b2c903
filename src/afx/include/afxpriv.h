// Messages between the framework's own windows, for code that takes part in them, and dialog
// templates.
#pragma once

#include "afx/dialogs/dialog_template.h"

#include <afxwin.h>

#define WM_QUERYAFXWNDPROC 0x0360   // TRUE from a window that the framework's procedure serves
#define WM_SIZEPARENT 0x0361        // lParam: AFX_SIZEPARENTPARAMS
#define WM_SETMESSAGESTRING 0x0362  // wParam: string number; lParam: text
#define WM_IDLEUPDATECMDUI 0x0363   // wParam: whether to disable commands without a handler
#define WM_INITIALUPDATE 0x0364     // to a frame's views and bars before they show first
#define WM_COMMANDHELP 0x0365  // result: whether help was given; lParam: what it is about, or 0
#define WM_HELPHITTEST 0x0366
#define WM_EXITHELPMODE 0x0367
#define WM_RECALCPARENT 0x0368
#define WM_KICKIDLE 0x036A  // to a window in a modal loop; result: call again

/// A bar answers WM_SIZEPARENT by taking its part off the rectangle and placing itself.
struct AFX_SIZEPARENTPARAMS {
    HDWP hDWP;  ///< null if only the layout is asked for
    RECT rect;
    SIZE sizeTotal;
    BOOL bStretch;
};
