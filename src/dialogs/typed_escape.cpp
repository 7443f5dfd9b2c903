#include "dialogs/typed_escape.h"

namespace qv {

namespace {

constexpr LPARAM kAltDown = LPARAM{1} << 29;

// Without focus anywhere a plain key comes as a system key.
bool IsEscape(const MSG& msg) {
    return msg.wParam == VK_ESCAPE && (msg.message == WM_KEYDOWN || (msg.message == WM_SYSKEYDOWN &&
                                                                     (msg.lParam & kAltDown) == 0));
}

}  // namespace

TypedEscape::~TypedEscape() {
    for (int i = 0; i < m_nKept; ++i) {
        const MSG& msg = m_kept[i];
        ::PostMessage(msg.hwnd, msg.message, msg.wParam, msg.lParam);
    }
}

bool TypedEscape::CountsAsOurs(HWND hWnd) const {
    return hWnd == nullptr || hWnd == m_hDlg || ::IsChild(m_hDlg, hWnd) ||
           (!::IsWindowVisible(m_hDlg) && !::IsWindowEnabled(::GetAncestor(hWnd, GA_ROOT)));
}

bool TypedEscape::Next(MSG& msg) const {
    // The queue is asked first: that dispatches nothing.
    return HIWORD(::GetQueueStatus(QS_KEY)) != 0 &&
           ::PeekMessage(&msg, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_NOREMOVE) &&
           CountsAsOurs(msg.hwnd) &&
           ::PeekMessage(&msg, msg.hwnd, msg.message, msg.message, PM_REMOVE);
}

bool TypedEscape::Look() {
    MSG msg;
    while (Next(msg)) {
        if (IsEscape(msg)) {
            m_nKept = 0;
            return true;
        }
        if (m_nKept < kMostKept) {
            m_kept[m_nKept++] = msg;
        }
    }
    return false;
}

}  // namespace qv
