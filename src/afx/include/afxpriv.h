// Messages between the framework's own windows, for code that takes part in them, dialog templates
// and print preview.
#pragma once

#define __AFXPRIV_H__

#include "afx/app/dock_bar.h"
#include "afx/app/dock_state.h"
#include "afx/dialogs/dialog_template.h"
#include "afx/documents/preview_view.h"
#include "afx/objects/mirror_file.h"

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
#define WM_FLOATSTATUS 0x036D       // wParam: FS_ flags, to the windows that a frame owns
#define WM_POPMESSAGESTRING 0x0375  // as WM_SETMESSAGESTRING, where a bar's own text ends
#define WM_KICKIDLE 0x036A          // to a window in a modal loop; result: call again

// Records of DLGINIT data that hold the state of an ActiveX control: a DWORD with the length of its
// licence key, the key in wide characters, and the state, a stream or a compound file as the data
// itself tells. Without a state the control is new. Records with bindings to data are not read.
#define WM_OCC_LOADFROMSTREAM 0x0376
#define WM_OCC_LOADFROMSTORAGE 0x0377
#define WM_OCC_INITNEW 0x0378
#define WM_OCC_LOADFROMSTREAM_EX 0x037A
#define WM_OCC_LOADFROMSTORAGE_EX 0x037B

// What WM_FLOATSTATUS tells
#define FS_SHOW 0x01
#define FS_HIDE 0x02
#define FS_ACTIVATE 0x04
#define FS_DEACTIVATE 0x08
#define FS_ENABLE 0x10
#define FS_DISABLE 0x20
#define FS_SYNCACTIVE 0x40

/// The kind of a resource with what the items of a dialog begin with, under the dialog's name.
#define RT_DLGINIT MAKEINTRESOURCE(240)

/// A bar answers WM_SIZEPARENT by taking its part off the rectangle and placing itself.
struct AFX_SIZEPARENTPARAMS {
    HDWP hDWP;  ///< null if only the layout is asked for
    RECT rect;
    SIZE sizeTotal;
    BOOL bStretch;
};
