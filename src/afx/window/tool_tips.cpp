// The tooltip of what OnToolHitTest tells: one for all windows of a thread.
#include "afx/window/wnd_state.h"

#include <afxcmn.h>
#include <afxpriv.h>
#include <afxwin.h>

namespace {

/// All null in a new thread. The window goes with its owner, or with the thread.
struct ThreadTip {
    HWND hTip = nullptr;
    HWND hWnd = nullptr;  ///< the window that told something last
    INT_PTR nHit = -1;    ///< what it told
    TOOLINFO tool{};      ///< as the tooltip knows it
};

ThreadTip& Tip() {
    return AfxThreadMap<ThreadTip>();
}

/// Of the top-level window that hWnd is in, so that it stays above that one.
bool MakeTipFor(ThreadTip& tip, HWND hWnd) {
    const HWND hTop = ::GetAncestor(hWnd, GA_ROOT);
    if (::IsWindow(tip.hTip)) {
        if (::GetWindow(tip.hTip, GW_OWNER) == hTop) {
            return true;
        }
        ::DestroyWindow(tip.hTip);
    }
    tip.hTip = ::CreateWindowEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0,
                                0, 0, 0, hTop, nullptr, AfxGetInstanceHandle(), nullptr);
    return tip.hTip != nullptr;
}

void Forget(ThreadTip& tip) {
    if (tip.nHit != -1 && ::IsWindow(tip.hTip)) {
        AfxSend(tip.hTip, TTM_DELTOOL, 0, &tip.tool);
    }
    tip.hWnd = nullptr;
    tip.nHit = -1;
}

bool IsIn(HWND hWnd, HWND hOuter) {
    return hWnd == hOuter || ::IsChild(hOuter, hWnd);
}

bool IsPress(UINT message) {
    const bool bClient = message > WM_MOUSEMOVE && message <= WM_MOUSELAST;
    return bClient || (message > WM_NCMOUSEMOVE && message <= WM_NCXBUTTONDBLCLK);
}

}  // namespace

BOOL CWnd::EnableToolTips(BOOL bEnable) {
    if (bEnable) {
        m_nFlags |= WF_TOOLTIPS;
    } else if ((m_nFlags & WF_TOOLTIPS) != 0) {
        m_nFlags &= ~WF_TOOLTIPS;
        if (ThreadTip& tip = Tip(); tip.hWnd == m_hWnd) {
            Forget(tip);
        }
    }
    return bEnable;
}

void PASCAL CWnd::CancelToolTips(BOOL bKeys) {
    const ThreadTip& tip = Tip();
    if (::IsWindow(tip.hTip)) {
        AfxSend(tip.hTip, TTM_POP);
    }
    CWnd* pMain = bKeys ? AfxGetMainWnd() : nullptr;
    if (pMain != nullptr && pMain->IsFrameWnd()) {
        pMain->SendMessage(WM_POPMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    }
}

void CWnd::FilterToolTipMessage(MSG* pMsg) {
    const bool bMove = pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE;
    ThreadTip& tip = Tip();
    if (IsPress(pMsg->message) && tip.nHit != -1 && ::IsWindow(tip.hTip)) {
        AfxSend(tip.hTip, TTM_RELAYEVENT, 0, pMsg);  // it goes
        return;
    }
    if (!bMove || !IsIn(pMsg->hwnd, m_hWnd)) {
        return;
    }
    // The innermost window that knows something has its say.
    if (tip.nHit != -1 && tip.hWnd != m_hWnd && IsIn(pMsg->hwnd, tip.hWnd) &&
        ::IsChild(m_hWnd, tip.hWnd)) {
        return;
    }
    CPoint point(pMsg->pt);
    ScreenToClient(&point);
    TOOLINFO tool{};
    tool.cbSize = TTTOOLINFOA_V2_SIZE;  // the size that every version knows
    const HWND hWnd = m_hWnd;
    INT_PTR nHit = OnToolHitTest(point, &tool);
    if (FromHandlePermanent(hWnd) != this) {
        return;
    }
    const auto uFlags = static_cast<DWORD>(tool.uFlags);
    const bool bPressed = ::GetKeyState(VK_LBUTTON) < 0 || ::GetKeyState(VK_RBUTTON) < 0;
    if ((bPressed && !(uFlags & static_cast<DWORD>(TTF_NOTBUTTON))) ||
        (!(uFlags & static_cast<DWORD>(TTF_ALWAYSTIP)) && !IsTopParentActive())) {
        nHit = -1;
    }
    if (nHit != tip.nHit || tip.hWnd != m_hWnd) {
        if (nHit != -1 || tip.hWnd == m_hWnd) {
            Forget(tip);
        }
        if (nHit == -1 || !MakeTipFor(tip, m_hWnd)) {
            return;
        }
        tool.uFlags = uFlags & ~static_cast<DWORD>(TTF_NOTBUTTON | TTF_ALWAYSTIP);
        tip.tool = tool;
        tip.hWnd = m_hWnd;
        tip.nHit = nHit;
        AfxSend(tip.hTip, TTM_ADDTOOL, 0, &tip.tool);
    }
    if (nHit != -1) {
        AfxSend(tip.hTip, TTM_RELAYEVENT, 0, pMsg);
    }
}
