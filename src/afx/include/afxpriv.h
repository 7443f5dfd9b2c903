// Messages between the framework's own windows, for code that takes part in them, dialog templates
// and print preview.
#pragma once

#include "afx/dialogs/dialog_template.h"
#include "afx/documents/preview_view.h"

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

// Records of DLGINIT data that hold the state of an ActiveX control: a DWORD with the length of its
// licence key, the key in wide characters, and the state, a stream or a compound file as the data
// itself tells. Without a state the control is new. Records with bindings to data are not read.
#define WM_OCC_LOADFROMSTREAM 0x0376
#define WM_OCC_LOADFROMSTORAGE 0x0377
#define WM_OCC_INITNEW 0x0378
#define WM_OCC_LOADFROMSTREAM_EX 0x037A
#define WM_OCC_LOADFROMSTORAGE_EX 0x037B

/// The kind of a resource with what the items of a dialog begin with, under the dialog's name.
#define RT_DLGINIT MAKEINTRESOURCE(240)

/// A bar answers WM_SIZEPARENT by taking its part off the rectangle and placing itself.
struct AFX_SIZEPARENTPARAMS {
    HDWP hDWP;  ///< null if only the layout is asked for
    RECT rect;
    SIZE sizeTotal;
    BOOL bStretch;
};
