#include "frame/mouse_wheel.h"

namespace {

constexpr UINT kDefaultLines = 3;

bool s_bLinesRead = false;
UINT s_nLines = kDefaultLines;
UINT s_nMsgScrollLines = 0;
enum class Registration { NotTried, Failed, Done } s_registration = Registration::NotTried;

// The window of a driver from before the system knew wheels, null if there is none.
HWND OldDriverWindow() {
    if (s_registration == Registration::NotTried) {
        s_nMsgScrollLines = ::RegisterWindowMessage("MSH_SCROLL_LINES_MSG");
        s_registration = s_nMsgScrollLines != 0 ? Registration::Done : Registration::Failed;
    }
    return s_registration == Registration::Done ? ::FindWindow("MouseZ", "Magellan MSWHEEL")
                                                : nullptr;
}

}  // namespace

UINT GetMouseScrollLines(BOOL bForce) {
    if (s_bLinesRead && !bForce) {
        return s_nLines;
    }
    s_bLinesRead = true;
    s_nLines = kDefaultLines;
    if (const HWND hDriver = OldDriverWindow()) {
        s_nLines = static_cast<UINT>(::SendMessage(hDriver, s_nMsgScrollLines, 0, 0));
    } else if (UINT nLines; ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &nLines, 0)) {
        s_nLines = nLines;
    }
    return s_nLines;
}

LRESULT qv::PassRegisteredWheel(CWnd& wnd, WPARAM wParam, LPARAM lParam) {
    const auto isDown = [](int nKey) { return ::GetKeyState(nKey) < 0; };
    const WORD nKeys = static_cast<WORD>((isDown(VK_CONTROL) ? MK_CONTROL : 0) |
                                         (isDown(VK_SHIFT) ? MK_SHIFT : 0));
    const WPARAM wWheel = MAKEWPARAM(nKeys, static_cast<WORD>(wParam));
    HWND hWnd = ::GetFocus();
    if (hWnd == nullptr) {
        return wnd.SendMessage(WM_MOUSEWHEEL, wWheel, lParam);
    }
    // The position reaches the first window alone: each further one gets the 0 of the last answer.
    const HWND hDesktop = ::GetDesktopWindow();
    while (hWnd != nullptr && hWnd != hDesktop) {
        lParam = ::SendMessage(hWnd, WM_MOUSEWHEEL, wWheel, lParam);
        if (lParam != 0) {
            break;
        }
        hWnd = ::GetParent(hWnd);
    }
    return 0;
}
