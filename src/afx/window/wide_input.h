// What is typed, on its way to the windows of the framework.
//
// The system converts typed characters for 8-bit windows by the code page of the keyboard's
// language, and not by that of the process. So the system's edit controls, which are wide inside,
// stay wide when an object takes them over: each character typed into one is converted here, passes
// the object's handlers byte by byte as 8-bit windows get it, and reaches the control whole.
// Internal to the framework.
#pragma once

#include <afxwin.h>

/// The procedure of a window that takes wide input, as wide callers have it; null for the others.
/// To be asked before AfxWndProc is put in front.
WNDPROC AfxWideProcedure(HWND hWnd);

/// Called when AfxWndProc has been put in front of the window. pfnSuper: what AfxWideProcedure
/// gave.
void AfxTakeWideInput(HWND hWnd, WNDPROC pfnSuper);
/// Called when the window gets its own procedure back, or goes.
void AfxEndWideInput(HWND hWnd);

/// True if the window's procedure is that of AfxTakeWideInput.
bool AfxTakesWideInput(HWND hWnd);

/// For the default handling of WM_CHAR: true for a byte of a character that was converted here. The
/// last one takes the character to the window's own procedure.
bool AfxDefaultTypedByte(HWND hWnd, WPARAM wParam, LPARAM lParam);

/// GetMessage, with characters for wide windows as they are.
BOOL AfxGetMessage(MSG& msg);
/// DispatchMessage and IsDialogMessage for a message that AfxGetMessage gave.
void AfxDispatchMessage(const MSG& msg);
BOOL AfxIsDialogMessage(HWND hWndDialog, MSG& msg);
