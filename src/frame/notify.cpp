#include "frame/notify.h"

namespace qv {

// By handles alone: an object for the parent might find no memory.
ParentAnswer SendToParent(const CWnd& wnd, const AliveToken& alive, UINT nMessage, WPARAM wParam,
                          LPARAM lParam) {
    const WindowWatch watch(alive, wnd.m_hWnd);
    ParentAnswer answer;
    if (HWND hParent = ::GetParent(wnd.m_hWnd)) {
        answer.lResult = ::SendMessage(hParent, nMessage, wParam, lParam);
    }
    answer.bAlive = static_cast<bool>(watch);
    return answer;
}

ParentAnswer NotifyParent(const CWnd& wnd, const AliveToken& alive, UINT nCode, NMHDR& hdr) {
    hdr.hwndFrom = wnd.m_hWnd;
    hdr.idFrom = static_cast<UINT>(::GetDlgCtrlID(wnd.m_hWnd));
    hdr.code = nCode;
    return SendToParent(wnd, alive, WM_NOTIFY, hdr.idFrom, reinterpret_cast<LPARAM>(&hdr));
}

ParentAnswer CommandParent(const CWnd& wnd, const AliveToken& alive, UINT nCode) {
    const UINT nID = static_cast<UINT>(::GetDlgCtrlID(wnd.m_hWnd));
    return SendToParent(wnd, alive, WM_COMMAND, MAKEWPARAM(nID, nCode),
                        reinterpret_cast<LPARAM>(wnd.m_hWnd));
}

}  // namespace qv
