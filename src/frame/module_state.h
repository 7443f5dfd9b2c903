// The module-wide variables of the library. All other state lives in the objects. Nothing locks
// them: the library's windows live on one user-interface thread.

#pragma once

#include <afxwin.h>

// Shared target of empty results.
extern const CString g_strEmpty;

// The registered message of wheel drivers from before WM_MOUSEWHEEL.
extern UINT g_nMsgMouseWheel;
