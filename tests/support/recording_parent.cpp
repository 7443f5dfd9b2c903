#include "support/recording_parent.h"

#include <algorithm>

RecordingParent::RecordingParent(CSize sizeClient, DWORD dwStyle) {
    CRect rc(0, 0, sizeClient.cx, sizeClient.cy);
    ::AdjustWindowRectEx(rc, dwStyle, FALSE, 0);
    LPCTSTR lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                            reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    constexpr int kPlace = 20;  // away from the screen's edge
    CreateEx(0, lpszClass, "Recording parent", dwStyle, kPlace, kPlace, rc.Width(), rc.Height(),
             nullptr, nullptr);
    ShowWindow(SW_SHOW);
    UpdateWindow();
}

RecordingParent::~RecordingParent() {
    DestroyWindow();
}

void RecordingParent::Forget() {
    m_notifications.clear();
    m_commands.clear();
}

int RecordingParent::Count(UINT nCode) const {
    return static_cast<int>(
        std::count_if(m_notifications.begin(), m_notifications.end(),
                      [nCode](const Notification& n) { return n.code == nCode; }));
}

int RecordingParent::CountCommands(UINT nCode) const {
    return static_cast<int>(std::count_if(m_commands.begin(), m_commands.end(),
                                          [nCode](const Command& c) { return c.code == nCode; }));
}

const RecordingParent::Notification* RecordingParent::Last(UINT nCode) const {
    const auto it = std::find_if(m_notifications.rbegin(), m_notifications.rend(),
                                 [nCode](const Notification& n) { return n.code == nCode; });
    return it != m_notifications.rend() ? &*it : nullptr;
}

size_t RecordingParent::SizeOf(UINT nCode) const {
    const auto it = m_sizes.find(nCode);
    return it != m_sizes.end() ? it->second : sizeof(NMHDR);
}

BOOL RecordingParent::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnNotify(wParam, lParam, pResult)) {
        return TRUE;
    }
    auto* pNMHDR = reinterpret_cast<NMHDR*>(lParam);
    const auto* pBytes = reinterpret_cast<const BYTE*>(pNMHDR);
    m_notifications.push_back({pNMHDR->code, pNMHDR->idFrom, pNMHDR->hwndFrom,
                               std::vector<BYTE>(pBytes, pBytes + SizeOf(pNMHDR->code))});
    if (m_hook && m_hook(pNMHDR, pResult)) {
        return TRUE;
    }
    const auto it = m_results.find(pNMHDR->code);
    if (it == m_results.end()) {
        return FALSE;
    }
    *pResult = it->second;
    return TRUE;
}

BOOL RecordingParent::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CWnd::OnCommand(wParam, lParam)) {
        return TRUE;
    }
    m_commands.push_back({LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam)});
    return FALSE;
}
