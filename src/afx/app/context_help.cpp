// Help about what the user points at.
#include "afx/window/wide_input.h"

#include <afxpriv.h>
#include <afxwin.h>

namespace {

/// Waits for a click while the cursor asks for one. Null if the user gave it up.
HWND AskForPoint(HWND hWndMain, POINT& point) {
    const HCURSOR hCursor = ::LoadCursor(nullptr, IDC_HELP);
    ::SetCapture(hWndMain);
    ::SetCursor(hCursor);
    HWND hWndHit = nullptr;
    while (::GetCapture() == hWndMain) {
        MSG msg;
        if (!AfxGetMessage(msg)) {
            ::PostQuitMessage(static_cast<int>(msg.wParam));  // the loop outside ends as well
            break;
        }
        if (msg.message == WM_LBUTTONDOWN) {
            point = msg.pt;
            hWndHit = ::WindowFromPoint(point);
            break;
        }
        if (msg.message == WM_KEYDOWN && msg.wParam == VK_ESCAPE) {
            break;
        }
        if (msg.message == WM_MOUSEMOVE) {
            ::SetCursor(hCursor);
        } else if ((msg.message < WM_KEYFIRST || msg.message > WM_KEYLAST) &&
                   (msg.message < WM_MOUSEFIRST || msg.message > WM_MOUSELAST)) {
            AfxDispatchMessage(msg);
        }
    }
    if (::GetCapture() == hWndMain) {
        ::ReleaseCapture();
    }
    return hWndHit;
}

/// The first answer but 0 of the window and those around it.
LRESULT AskUpwards(HWND hWnd, UINT message, LPARAM lParam) {
    LRESULT lResult = 0;
    for (; hWnd != nullptr && lResult == 0; hWnd = ::GetParent(hWnd)) {
        lResult = ::SendMessage(hWnd, message, 0, lParam);
    }
    return lResult;
}

}  // namespace

void CWinApp::OnContextHelp() {
    const HWND hWndMain = m_pMainWnd->GetSafeHwnd();
    POINT point = {};
    const HWND hWnd = hWndMain != nullptr ? AskForPoint(hWndMain, point) : nullptr;
    if (hWnd == nullptr || ::GetWindowThreadProcessId(hWnd, nullptr) != ::GetCurrentThreadId()) {
        return;
    }
    POINT client = point;
    ::ScreenToClient(hWnd, &client);
    const LRESULT lContext = AskUpwards(hWnd, WM_HELPHITTEST, MAKELPARAM(client.x, client.y));
    if (AskUpwards(hWnd, WM_COMMANDHELP, lContext) == 0 && ::IsWindow(hWndMain)) {
        ::SendMessage(hWndMain, WM_COMMAND, ID_DEFAULT_HELP, 0);
    }
}

void CFrameWnd::OnContextHelp() {
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->OnContextHelp();
    }
}
