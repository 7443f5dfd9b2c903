// A window among others: parents, owners, frames, and its place on the screen.
#include "afx/window/wnd.h"

#include "afx/window/wnd_state.h"

#include <afxpriv.h>
#include <afxwin.h>

#include <algorithm>

CFrameWnd* CWnd::GetParentFrame() const {
    for (HWND hWnd = ::GetParent(m_hWnd); hWnd != nullptr; hWnd = ::GetParent(hWnd)) {
        CWnd* pWnd = FromHandlePermanent(hWnd);
        if (pWnd != nullptr && pWnd->IsFrameWnd()) {
            return static_cast<CFrameWnd*>(pWnd);
        }
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const {
    CFrameWnd* pFrame =
        IsFrameWnd() ? static_cast<CFrameWnd*>(const_cast<CWnd*>(this)) : GetParentFrame();
    while (pFrame != nullptr) {
        CFrameWnd* pOuter = pFrame->GetParentFrame();
        if (pOuter == nullptr) {
            break;
        }
        pFrame = pOuter;
    }
    return pFrame;
}

CWnd* CWnd::GetTopLevelParent() const {
    HWND hWnd = GetSafeHwnd();
    if (hWnd == nullptr) {
        return nullptr;
    }
    while (HWND hWndParent = ::GetParent(hWnd)) {
        hWnd = hWndParent;
    }
    return FromHandle(hWnd);
}

CWnd* CWnd::GetTopLevelOwner() const {
    HWND hWnd = GetSafeHwnd();
    if (hWnd == nullptr) {
        return nullptr;
    }
    for (;;) {
        CWnd* pWnd = FromHandlePermanent(hWnd);
        HWND hWndNext =
            pWnd != nullptr && pWnd->m_hWndOwner != nullptr ? pWnd->m_hWndOwner : ::GetParent(hWnd);
        if (hWndNext == nullptr) {
            return FromHandle(hWnd);
        }
        hWnd = hWndNext;
    }
}

CWnd* CWnd::GetParentOwner() const {
    HWND hWnd = GetSafeHwnd();
    while (hWnd != nullptr && (::GetWindowLong(hWnd, GWL_STYLE) & WS_CHILD)) {
        hWnd = ::GetParent(hWnd);
    }
    return FromHandle(hWnd);
}

BOOL CWnd::IsTopParentActive() const {
    CWnd* pTop = GetTopLevelParent();
    return pTop != nullptr && ::GetForegroundWindow() == pTop->GetLastActivePopup()->GetSafeHwnd();
}

CWnd* CWnd::GetSafeOwner(CWnd* pParent, HWND* pWndTop) {
    return FromHandle(AfxGetSafeOwner(pParent->GetSafeHwnd(), pWndTop));
}

HWND AfxGetSafeOwner(HWND hWndParent, HWND* phWndTop) {
    HWND hWnd = hWndParent;
    if (hWnd == nullptr) {
        hWnd = AfxGetMainWnd()->GetSafeHwnd();
    }
    while (hWnd != nullptr && (::GetWindowLong(hWnd, GWL_STYLE) & WS_CHILD)) {
        hWnd = ::GetParent(hWnd);
    }
    HWND hWndTop = hWnd;
    while (hWndTop != nullptr && ::GetParent(hWndTop) != nullptr) {
        hWndTop = ::GetParent(hWndTop);
    }
    // Without a parent to go by, the dialog or popup that the main window shows now is the owner.
    if (hWndParent == nullptr && hWnd != nullptr) {
        hWnd = ::GetLastActivePopup(hWnd);
    }
    if (phWndTop != nullptr) {
        const bool bDisable = hWndTop != nullptr && hWndTop != hWnd && ::IsWindowEnabled(hWndTop);
        *phWndTop = bDisable ? hWndTop : nullptr;
        if (bDisable) {
            ::EnableWindow(hWndTop, FALSE);
        }
    }
    return hWnd;
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType) {
    DWORD dwExStyle = GetExStyle();
    if (nAdjustType == adjustBorder) {
        dwExStyle &= ~static_cast<DWORD>(WS_EX_CLIENTEDGE);
    }
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, dwExStyle);
}

/// The monitor's work area, in which a top-level window should stay.
static CRect WorkAreaOf(HWND hWnd) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    ::GetMonitorInfo(::MonitorFromWindow(hWnd, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    const bool bChild = (GetStyle() & WS_CHILD) != 0;
    HWND hWndCenter = pAlternateOwner->GetSafeHwnd();
    if (hWndCenter == nullptr) {
        hWndCenter = bChild ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    }
    CRect rcArea;
    CRect rcCenter;
    if (bChild) {
        ::GetClientRect(::GetParent(m_hWnd), rcArea);
        ::GetClientRect(hWndCenter, rcCenter);
        ::MapWindowPoints(hWndCenter, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&rcCenter), 2);
    } else {
        const bool bShown =
            hWndCenter != nullptr && ::IsWindowVisible(hWndCenter) && !::IsIconic(hWndCenter);
        rcArea = WorkAreaOf(bShown ? hWndCenter : m_hWnd);
        if (bShown) {
            ::GetWindowRect(hWndCenter, rcCenter);
        } else {
            rcCenter = rcArea;
        }
    }
    CRect rc;
    GetWindowRect(rc);
    LONG x = (rcCenter.left + rcCenter.right - rc.Width()) / 2;
    LONG y = (rcCenter.top + rcCenter.bottom - rc.Height()) / 2;
    // The left and upper edge win where the window is larger than the area.
    x = std::max(std::min(x, rcArea.right - rc.Width()), rcArea.left);
    y = std::max(std::min(y, rcArea.bottom - rc.Height()), rcArea.top);
    SetWindowPos(nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag,
                          LPRECT lpRectParam, LPCRECT lpRectClient, BOOL bStretch) {
    AFX_SIZEPARENTPARAMS layout = {};
    layout.bStretch = bStretch;
    if (lpRectClient != nullptr) {
        layout.rect = *lpRectClient;
    } else {
        GetClientRect(&layout.rect);
    }
    layout.hDWP = nFlag != reposQuery ? ::BeginDeferWindowPos(8) : nullptr;

    HWND hWndLeftOver = nullptr;
    for (HWND hWnd = ::GetTopWindow(m_hWnd); hWnd != nullptr;
         hWnd = ::GetWindow(hWnd, GW_HWNDNEXT)) {
        const UINT nID = LOWORD(::GetDlgCtrlID(hWnd));
        if (nID == nIDLeftOver) {
            hWndLeftOver = hWnd;
        } else if (nID >= nIDFirst && nID <= nIDLast && FromHandlePermanent(hWnd) != nullptr) {
            ::SendMessage(hWnd, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
        }
    }
    if (nFlag == reposQuery) {
        if (lpRectParam != nullptr) {
            *lpRectParam =
                bStretch ? layout.rect : RECT{0, 0, layout.sizeTotal.cx, layout.sizeTotal.cy};
        }
        return;
    }
    if (hWndLeftOver != nullptr) {
        RECT rc = layout.rect;
        if (nFlag == reposExtra && lpRectParam != nullptr) {
            rc.left += lpRectParam->left;
            rc.top += lpRectParam->top;
            rc.right -= lpRectParam->right;
            rc.bottom -= lpRectParam->bottom;
        }
        if (layout.hDWP != nullptr) {
            layout.hDWP = ::DeferWindowPos(layout.hDWP, hWndLeftOver, nullptr, rc.left, rc.top,
                                           rc.right - rc.left, rc.bottom - rc.top,
                                           SWP_NOACTIVATE | SWP_NOZORDER);
        }
    }
    if (layout.hDWP != nullptr) {
        ::EndDeferWindowPos(layout.hDWP);
    }
}
