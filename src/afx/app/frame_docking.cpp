// A frame and its bars: docking, floating, showing, and where they lay when the program ended.
#include "afx/app/dock_bar.h"
#include "afx/app/dock_state.h"
#include "afx/app/floating_frame.h"
#include "afx/ole/wnd_control.h"

#include <afxext.h>
#include <afxpriv.h>

#include <algorithm>

namespace {

constexpr struct {
    UINT nID;
    DWORD dwAlign;
} kDockBars[] = {{AFX_IDW_DOCKBAR_TOP, CBRS_ALIGN_TOP},
                 {AFX_IDW_DOCKBAR_BOTTOM, CBRS_ALIGN_BOTTOM},
                 {AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_LEFT},
                 {AFX_IDW_DOCKBAR_RIGHT, CBRS_ALIGN_RIGHT}};

}  // namespace

void CFrameWnd::EnableDocking(DWORD dwDockStyle) {
    for (const auto& dock : kDockBars) {
        if (!(dwDockStyle & dock.dwAlign) || GetControlBar(dock.nID) != nullptr) {
            continue;
        }
        auto* pDock = AfxNeedMemory([] { return new CDockBar; });
        if (!pDock->Create(this, dock.dwAlign, dock.nID)) {
            AfxThrowResourceException();
        }
        pDock->JoinFrame(this);
    }
}

void CFrameWnd::DockControlBar(CControlBar* pBar, UINT nDockBarID, LPCRECT lpRect) {
    CDockBar* pDock = nullptr;
    for (const auto& dock : kDockBars) {
        const bool bWanted = nDockBarID != 0
                                 ? nDockBarID == dock.nID
                                 : (pBar->m_dwStyle & pBar->m_dwDockStyle & dock.dwAlign) != 0;
        if (bWanted && pDock == nullptr) {
            pDock = static_cast<CDockBar*>(GetControlBar(dock.nID));
        }
    }
    // A bar whose own edge is none to dock at takes the first one that is.
    for (const auto& dock : kDockBars) {
        if (pDock == nullptr && (pBar->m_dwDockStyle & dock.dwAlign)) {
            pDock = static_cast<CDockBar*>(GetControlBar(dock.nID));
        }
    }
    DockControlBar(pBar, pDock, lpRect);
}

void CFrameWnd::DockControlBar(CControlBar* pBar, CDockBar* pDockBar, LPCRECT lpRect) {
    if (pDockBar == nullptr) {
        return;  // not without EnableDocking
    }
    const BOOL bVisible = pBar->IsVisible();
    pDockBar->DockControlBar(pBar, lpRect);
    pBar->ShowWindow(bVisible ? SW_SHOWNA : SW_HIDE);
    RecalcLayout();
}

void CFrameWnd::FloatControlBar(CControlBar* pBar, CPoint point, DWORD) {
    const BOOL bVisible = pBar->IsVisible();
    if (pBar->IsFloating()) {
        pBar->m_pDockBar->GetParentFrame()->SetWindowPos(
            nullptr, point.x, point.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        return;
    }
    AfxFloatingFrame* pFrame = AfxNeedMemory([&] { return AfxFloatingFrame::Make(this, pBar); });
    if (pFrame == nullptr) {
        return;
    }
    pFrame->FitAt(point);
    pBar->ShowWindow(SW_SHOWNA);
    if (bVisible) {
        pFrame->ShowWindow(SW_SHOWNA);
    }
    RecalcLayout();
}

CControlBar* CFrameWnd::GetControlBar(UINT nID) {
    for (POSITION pos = m_listControlBars.GetHeadPosition(); pos != nullptr;) {
        auto* pBar = static_cast<CControlBar*>(m_listControlBars.GetNext(pos));
        if (static_cast<UINT>(pBar->GetDlgCtrlID()) == nID) {
            return pBar;
        }
    }
    return nullptr;
}

void CFrameWnd::ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay) {
    if (bDelay) {
        pBar->DelayShow(bShow);
        return;
    }
    pBar->m_delayed = CControlBar::NotDelayed;
    if (pBar->IsFloating()) {
        pBar->m_pDockBar->GetParentFrame()->ShowWindow(bShow ? SW_SHOWNA : SW_HIDE);
        if (!bShow) {
            return;
        }
    }
    pBar->ShowWindow(bShow ? SW_SHOWNA : SW_HIDE);
    RecalcLayout();
}

/// Those that were to be shown or hidden at idle time. A hidden one hears of no idle time itself
/// while it floats.
void CFrameWnd::ShowDelayedBars() {
    const HWND hWnd = m_hWnd;
    for (POSITION pos = m_listControlBars.GetHeadPosition(); pos != nullptr;) {
        auto* pBar = static_cast<CControlBar*>(m_listControlBars.GetNext(pos));
        if (pBar->m_delayed == CControlBar::NotDelayed) {
            continue;
        }
        ShowControlBar(pBar, pBar->m_delayed == CControlBar::DelayedShow, FALSE);
        if (FromHandlePermanent(hWnd) != this) {
            return;
        }
        pos = m_listControlBars.GetHeadPosition();  // it may be another list now
    }
}

// What a button under the mouse tells

LRESULT CFrameWnd::OnPopMessageString(WPARAM wParam, LPARAM lParam) {
    return SendMessage(WM_SETMESSAGESTRING, wParam, lParam);
}

BOOL CFrameWnd::OnToolTipText(UINT, NMHDR* pNMHDR, LRESULT* pResult) {
    const bool bWide = pNMHDR->code == TTN_NEEDTEXTW;
    auto* pTextA = reinterpret_cast<TOOLTIPTEXTA*>(pNMHDR);
    auto* pTextW = reinterpret_cast<TOOLTIPTEXTW*>(pNMHDR);
    UINT_PTR nID = pNMHDR->idFrom;
    if ((bWide ? pTextW->uFlags : pTextA->uFlags) & TTF_IDISHWND) {
        nID = static_cast<WORD>(::GetDlgCtrlID(reinterpret_cast<HWND>(nID)));
    }
    CString strFull;
    CString strTip;
    if (nID == 0 || !strFull.LoadString(static_cast<UINT>(nID)) ||
        !AfxExtractSubString(strTip, strFull, 1, '\n')) {
        return FALSE;
    }
    if (bWide) {
        constexpr int kRoom = _countof(pTextW->szText);
        const int nUnits = ::MultiByteToWideChar(CP_ACP, 0, strTip, -1, pTextW->szText, kRoom);
        pTextW->szText[nUnits > 0 ? nUnits - 1 : kRoom - 1] = 0;
    } else {
        AfxCopyWhole(pTextA->szText, strTip, _countof(pTextA->szText));
    }
    *pResult = 0;
    return TRUE;
}

// From one run to the next

void CFrameWnd::GetDockState(CDockState& state) const {
    state.Clear();
    const auto describe = [](CControlBar* pBar) {
        CControlBarInfo info;
        info.nBarID = static_cast<UINT>(pBar->GetDlgCtrlID());
        info.bVisible = pBar->IsVisible();
        info.bFloating = pBar->IsFloating();
        info.nDockBarID = pBar->m_nLastDock;
        info.nOffset = pBar->m_nDockOffset;
        info.pointFloat = pBar->m_ptLastFloat;
        info.nMRUWidth = pBar->m_nMRUWidth;
        return info;
    };
    const auto forEach = [&](bool bDocks, auto action) {
        for (POSITION pos = m_listControlBars.GetHeadPosition(); pos != nullptr;) {
            auto* pBar = static_cast<CControlBar*>(m_listControlBars.GetNext(pos));
            if ((pBar->IsDockBar() != FALSE) == bDocks) {
                action(pBar);
            }
        }
    };
    AfxNeedMemory([&] {
        forEach(false, [&](CControlBar* pBar) {
            if (pBar->m_pDockBar == nullptr || pBar->IsFloating()) {
                state.m_bars.push_back(describe(pBar));
            }
        });
        forEach(true, [&](CControlBar* pDock) {
            static_cast<CDockBar*>(pDock)->ForEachBar([&](CControlBar* pBar, bool bFirstOfRow) {
                state.m_bars.push_back(describe(pBar));
                state.m_bars.back().bBesideLast = !bFirstOfRow;
            });
        });
    });
}

void CFrameWnd::SetDockState(const CDockState& state) {
    for (const CControlBarInfo& info : state.m_bars) {
        CControlBar* pBar = GetControlBar(info.nBarID);
        if (pBar == nullptr || pBar->IsDockBar()) {
            continue;  // a bar of another version of the program
        }
        pBar->m_nMRUWidth = info.nMRUWidth;
        auto* pDock = DYNAMIC_DOWNCAST(CDockBar, GetControlBar(info.nDockBarID));
        if (pDock != nullptr && pBar->m_dwDockStyle != 0) {
            pDock->DockInLastRow(pBar, !info.bBesideLast, info.nOffset);
            pBar->m_ptLastFloat = info.pointFloat;
            if (info.bFloating) {
                FloatControlBar(pBar, info.pointFloat);
            }
        }
        ShowControlBar(pBar, info.bVisible, FALSE);
    }
    RecalcLayout();
}

void CFrameWnd::SaveBarState(LPCTSTR lpszProfileName) const {
    CDockState state;
    GetDockState(state);
    state.SaveState(lpszProfileName);
}

void CFrameWnd::LoadBarState(LPCTSTR lpszProfileName) {
    CDockState state;
    state.LoadState(lpszProfileName);
    SetDockState(state);
}
