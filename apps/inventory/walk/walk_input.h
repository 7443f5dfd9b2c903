// The walk's hands and eyes: real keys and mouse, waiting for what they cause, pictures.

#pragma once

#include <afxwin.h>

#include <initializer_list>

constexpr DWORD kPatience = 10000;  // milliseconds until a condition counts as missed

// The pointer goes there; flags are MOUSEEVENTF_ values, one input each.
void SendMouse(CPoint ptScreen, std::initializer_list<DWORD> flags, DWORD dwData = 0);
void Click(CPoint ptScreen);
// In the middle of a window.
void ClickOn(CWnd& wnd);
// Two clicks in a short time would be a double click.
void LetClickPass();
void Press(WORD nKey, WORD nHeld = 0);
// Some tooltip is up.
bool TipShows();
// The window as it stands on the screen, as a bitmap file of 24 bits a pixel.
bool SavePicture(CWnd& wnd, const CString& strFile);
// Dispatches what is in the queue, and does what is due at idle time.
void HandleMessages();

// Handles messages until the condition holds. False once patience is at its end.
template <class Condition>
bool WaitFor(Condition condition) {
    const ULONGLONG nEnd = ::GetTickCount64() + kPatience;
    for (;;) {
        HandleMessages();
        if (condition()) {
            return true;
        }
        if (::GetTickCount64() > nEnd) {
            return false;
        }
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
    }
}
