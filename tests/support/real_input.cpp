#include "support/real_input.h"

#include "support/pump.h"

#include <map>
#include <utility>
#include <vector>

namespace {

struct ButtonKind {
    DWORD dwDown;
    DWORD dwUp;
    UINT nDownMessage;
    UINT nUpMessage;
};

/// Counts input messages by number as they leave the queue, in whichever loop that happens.
class InputWatch {
public:
    InputWatch() {
        s_counts.clear();
        m_hHook = ::SetWindowsHookEx(WH_GETMESSAGE, Filter, nullptr, ::GetCurrentThreadId());
    }
    ~InputWatch() { ::UnhookWindowsHookEx(m_hHook); }
    InputWatch(const InputWatch&) = delete;
    InputWatch& operator=(const InputWatch&) = delete;

    /// Keys go nowhere any more once a press closed the window that had the focus.
    bool AwaitKeys(int nUps) {
        const bool bCame = PumpUntil([&] {
            const bool bPressed = s_counts[WM_KEYDOWN] + s_counts[WM_SYSKEYDOWN] > 0;
            return s_counts[WM_KEYUP] >= nUps || (bPressed && ::GetFocus() == nullptr);
        });
        PumpPending();
        return bCame;
    }
    /// The release goes nowhere where a press took away the window that had the mouse.
    bool AwaitClicks(const ButtonKind& kind, int nCount, HWND hWnd) {
        const bool bCame = PumpUntil([&] {
            return s_counts[kind.nUpMessage] >= nCount ||
                   (s_counts[kind.nDownMessage] > 0 && !::IsWindow(hWnd));
        });
        PumpPending();
        return bCame;
    }
    bool Await(UINT nMessage, int nCount) {
        const bool bCame = PumpUntil([&] { return s_counts[nMessage] >= nCount; });
        PumpPending();
        return bCame;
    }

private:
    static LRESULT CALLBACK Filter(int code, WPARAM wParam, LPARAM lParam) {
        if (code == HC_ACTION && wParam == PM_REMOVE) {
            ++s_counts[reinterpret_cast<MSG*>(lParam)->message];
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static inline std::map<UINT, int> s_counts;
    HHOOK m_hHook;
};

/// Two clicks of a test are no double click, however fast the test is: the time for one is as short
/// as can be, and is let pass.
class NoDoubleClicks {
public:
    NoDoubleClicks() : m_nTime(::GetDoubleClickTime()) {
        ::SetDoubleClickTime(1);
        PumpUntil([] { return ::GetTickCount64() > s_nLastClick + 1; });
    }
    ~NoDoubleClicks() {
        s_nLastClick = ::GetTickCount64();
        ::SetDoubleClickTime(m_nTime);
    }
    NoDoubleClicks(const NoDoubleClicks&) = delete;
    NoDoubleClicks& operator=(const NoDoubleClicks&) = delete;

private:
    static inline ULONGLONG s_nLastClick = 0;
    UINT m_nTime;
};

INPUT KeyInput(WORD vk, bool bUp) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = vk;
    input.ki.wScan = static_cast<WORD>(::MapVirtualKey(vk, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = bUp ? KEYEVENTF_KEYUP : 0;
    return input;
}

INPUT MouseInput(DWORD dwFlags, DWORD dwData = 0) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = dwFlags;
    input.mi.mouseData = dwData;
    return input;
}

bool Send(std::vector<INPUT> inputs) {
    const UINT nCount = static_cast<UINT>(inputs.size());
    return ::SendInput(nCount, inputs.data(), sizeof(INPUT)) == nCount;
}

ButtonKind KindOf(MouseButton button) {
    if (button == MouseButton::Right) {
        return {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP, WM_RBUTTONDOWN, WM_RBUTTONUP};
    }
    return {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, WM_LBUTTONDOWN, WM_LBUTTONUP};
}

}  // namespace

bool BringToFront(HWND hWnd) {
    HWND hWndTop = ::GetAncestor(hWnd, GA_ROOT);
    ::SetWindowPos(hWndTop, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    ::SetForegroundWindow(hWndTop);
    return PumpUntil([=] {
        HWND hWndFront = ::GetForegroundWindow();
        return hWndFront == hWndTop || ::GetAncestor(hWndFront, GA_ROOTOWNER) == hWndTop;
    });
}

bool TypeKey(WORD vk, bool bShift, bool bControl, bool bAlt) {
    std::vector<WORD> keys;
    for (const auto& [bHeld, vkHeld] :
         {std::pair{bShift, VK_SHIFT}, {bControl, VK_CONTROL}, {bAlt, VK_MENU}, {true, int{vk}}}) {
        if (bHeld) {
            keys.push_back(static_cast<WORD>(vkHeld));
        }
    }
    std::vector<INPUT> inputs;
    for (const WORD vkDown : keys) {
        inputs.push_back(KeyInput(vkDown, false));
    }
    for (auto it = keys.rbegin(); it != keys.rend(); ++it) {
        inputs.push_back(KeyInput(*it, true));
    }
    InputWatch watch;
    // With the menu key down the key itself is a system key; its release comes as a plain one.
    return Send(inputs) && watch.AwaitKeys(static_cast<int>(keys.size()) - (bAlt ? 1 : 0));
}

bool TypeText(LPCTSTR lpszText) {
    for (; *lpszText != '\0'; ++lpszText) {
        const SHORT nKey = ::VkKeyScan(*lpszText);
        if (!TypeKey(LOBYTE(nKey), (HIBYTE(nKey) & 1) != 0)) {
            return false;
        }
    }
    return true;
}

bool MoveTo(HWND hWnd, CPoint point) {
    if (!BringToFront(hWnd)) {
        return false;
    }
    ::ClientToScreen(hWnd, &point);
    ::SetCursorPos(point.x, point.y);
    PumpPending();
    return true;
}

bool PressAt(HWND hWnd, CPoint point, MouseButton button) {
    const ButtonKind kind = KindOf(button);
    InputWatch watch;
    return MoveTo(hWnd, point) && Send({MouseInput(kind.dwDown)}) &&
           watch.Await(kind.nDownMessage, 1);
}

bool ReleaseAt(HWND hWnd, CPoint point, MouseButton button) {
    const ButtonKind kind = KindOf(button);
    InputWatch watch;
    return MoveTo(hWnd, point) && Send({MouseInput(kind.dwUp)}) && watch.Await(kind.nUpMessage, 1);
}

bool ClickAt(HWND hWnd, CPoint point, MouseButton button, bool bDouble) {
    const ButtonKind kind = KindOf(button);
    if (!MoveTo(hWnd, point)) {
        return false;
    }
    InputWatch watch;
    {
        NoDoubleClicks single;
        if (!Send({MouseInput(kind.dwDown), MouseInput(kind.dwUp)}) ||
            !watch.AwaitClicks(kind, 1, hWnd)) {
            return false;
        }
    }
    return !bDouble || (Send({MouseInput(kind.dwDown), MouseInput(kind.dwUp)}) &&
                        watch.AwaitClicks(kind, 2, hWnd));
}

bool Wheel(HWND hWnd, int nDelta) {
    CRect rc;
    ::GetClientRect(hWnd, rc);
    InputWatch watch;
    return MoveTo(hWnd, rc.CenterPoint()) &&
           Send({MouseInput(MOUSEEVENTF_WHEEL, static_cast<DWORD>(nDelta))}) &&
           watch.Await(WM_MOUSEWHEEL, 1);
}
