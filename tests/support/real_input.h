// Keys and mouse as the user makes them: through the system's input queue. Each call brings the
// window to the front and comes back when the input has been taken off the queue and handled.
#pragma once

#include <afxwin.h>

enum class MouseButton { Left, Right };

/// Makes the window's top-level window the foreground window. FALSE if the system refuses.
bool BringToFront(HWND hWnd);

/// To the window that has the focus. Shift, control and menu keys are held down meanwhile if asked.
bool TypeKey(WORD vk, bool bShift = false, bool bControl = false, bool bAlt = false);
/// Letters, digits and spaces.
bool TypeText(LPCTSTR lpszText);

/// Moves the pointer there; the point is in hWnd's client area.
bool MoveTo(HWND hWnd, CPoint point);
bool ClickAt(HWND hWnd, CPoint point, MouseButton button = MouseButton::Left, bool bDouble = false);
/// Presses or releases only, for drags.
bool PressAt(HWND hWnd, CPoint point, MouseButton button = MouseButton::Left);
bool ReleaseAt(HWND hWnd, CPoint point, MouseButton button = MouseButton::Left);
/// nDelta as the message has it, WHEEL_DELTA a notch; the pointer goes to the middle of the client
/// area.
bool Wheel(HWND hWnd, int nDelta);
