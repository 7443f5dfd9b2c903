// Modifier keys held down, as handlers on this thread see them, for keys that are sent.
#pragma once

#include <afxwin.h>

#include <algorithm>
#include <initializer_list>

class HoldKeys {
public:
    explicit HoldKeys(std::initializer_list<int> keys) {
        ::GetKeyboardState(m_before);
        BYTE held[256];
        std::copy(m_before, m_before + 256, held);
        for (const int nKey : keys) {
            held[nKey] = 0x80;
        }
        ::SetKeyboardState(held);
    }
    ~HoldKeys() { ::SetKeyboardState(m_before); }
    HoldKeys(const HoldKeys&) = delete;
    HoldKeys& operator=(const HoldKeys&) = delete;

private:
    BYTE m_before[256];
};

/// Characters, all at one time.
inline void SendText(HWND hWnd, const char* psz) {
    for (; *psz != 0; ++psz) {
        ::SendMessageA(hWnd, WM_CHAR, static_cast<BYTE>(*psz), 1);
    }
}

/// A key with the control key, the shift key or both.
inline void SendKey(HWND hWnd, int nKey, bool bControl = false, bool bShift = false) {
    const HoldKeys held{bControl ? VK_CONTROL : 0, bShift ? VK_SHIFT : 0};
    ::SendMessage(hWnd, WM_KEYDOWN, static_cast<WPARAM>(nKey), 1);
}
