#include "walk/walk_input.h"

#include "QVControls.h"
#include "screen_picture/screen_picture.h"

#include <vector>

void HandleMessages() {
    CWinThread* pThread = AfxGetThread();
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
        pThread->PumpMessage();
    }
    for (LONG nIdle = 0; pThread->OnIdle(nIdle); ++nIdle) {
    }
}

void SendMouse(CPoint ptScreen, std::initializer_list<DWORD> flags, DWORD dwData) {
    ::SetCursorPos(ptScreen.x, ptScreen.y);
    std::vector<INPUT> inputs;
    for (const DWORD dwFlags : flags) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = dwFlags;
        input.mi.mouseData = dwData;
        inputs.push_back(input);
    }
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void Click(CPoint ptScreen) {
    SendMouse(ptScreen, {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP});
}

void ClickOn(CWnd& wnd) {
    CRect rc;
    wnd.GetWindowRect(&rc);
    Click(rc.CenterPoint());
}

void LetClickPass() {
    const ULONGLONG nThen = ::GetTickCount64() + ::GetDoubleClickTime();
    WaitFor([&] { return ::GetTickCount64() > nThen; });
}

void Press(WORD nKey, WORD nHeld) {
    std::vector<INPUT> inputs;
    const auto add = [&](WORD nVirtual, DWORD dwFlags) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = nVirtual;
        input.ki.wScan = static_cast<WORD>(::MapVirtualKey(nVirtual, MAPVK_VK_TO_VSC));
        input.ki.dwFlags = dwFlags;
        inputs.push_back(input);
    };
    if (nHeld != 0) {
        add(nHeld, 0);
    }
    add(nKey, 0);
    add(nKey, KEYEVENTF_KEYUP);
    if (nHeld != 0) {
        add(nHeld, KEYEVENTF_KEYUP);
    }
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

bool TipShows() {
    for (HWND hTip = nullptr;
         (hTip = ::FindWindowEx(nullptr, hTip, TOOLTIPS_CLASS, nullptr)) != nullptr;) {
        if (::IsWindowVisible(hTip)) {
            return true;
        }
    }
    return false;
}

bool SavePicture(CWnd& wnd, const CString& strFile) {
    CRect rect;
    wnd.GetWindowRect(&rect);
    return ScreenPicture(rect).Save(strFile);
}
