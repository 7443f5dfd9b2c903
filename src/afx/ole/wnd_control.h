// Where windows and their messages meet ActiveX controls. Internal to the framework.
#pragma once

#include "afx/window/wnd.h"

/// Whether AfxEnableControlContainer was called.
bool AfxHostsControls();

/// The messages of a control's window, on their way to its wrapper.
LRESULT AfxCallControlWndProc(CWnd* pWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);

/// The site whose control's window it is, or null.
COleControlSite* AfxFindControlSite(HWND hWnd);

/// pWnd is about to take a window. If that is a control's which no program's object has, the
/// control becomes pWnd's. FALSE: another object has it.
BOOL AfxTakeControl(CWnd* pWnd, HWND hWnd);

/// The same for a control without a window, by its number. FALSE if there is none.
BOOL AfxTakeWindowlessControl(CWnd& wnd, CWnd* pParent, UINT nID);
CWnd* AfxWindowlessControl(const CWnd* pParent, UINT nID);

/// Ends the control and its window.
BOOL AfxDestroyControl(CWnd* pWnd);

/// What a key means to the control that pWnd wraps, or to those in pWnd.
BOOL AfxPreTranslateControl(CWnd* pWnd, MSG* pMsg);
/// Return was for a control in pWnd that acts like a button. What it did may have ended anything.
BOOL AfxControlClicked(CWnd* pWnd, const MSG& msg);
/// Whether a control in pWnd wants the key for itself.
BOOL AfxControlWantsKey(CWnd* pWnd, const MSG& msg);

/// As much of a text as fits with its end, by whole characters. Gives the bytes without the end.
int AfxCopyWhole(LPTSTR lpszBuf, LPCTSTR lpszText, int nMaxCount);

/// The wrapper's window is gone, or the wrapper is: the control ends.
void AfxLeaveControl(CWnd* pWnd);

/// The window is gone, and so are its controls.
void AfxEndControlContainer(CWnd* pWnd);

/// Gives a control's window back what it sent to its parent. TRUE: it has answered.
BOOL AfxReflectToControl(CWnd* pWnd, const MSG& msg, LRESULT* pResult);
