// A frame besides its views: what waits for idle time, modal state, files that are dropped, keys.
#include "afx/app/frame.h"

#include <afxpriv.h>
#include <afxwin.h>

// Idle time

void CFrameWnd::DelayRecalcLayout(BOOL bNotify) {
    m_nIdleFlags |= idleLayout | (bNotify ? idleNotify : 0);
}

void CFrameWnd::DelayUpdateFrameMenu(HMENU hMenuAlt) {
    m_nIdleFlags |= idleMenu;
    m_hMenuAlt = hMenuAlt;
}

void CFrameWnd::OnUpdateFrameMenu(HMENU hMenuAlt) {
    if (hMenuAlt == nullptr) {
        CDocument* pDoc = GetActiveDocument();
        hMenuAlt = pDoc != nullptr ? pDoc->GetDefaultMenu() : nullptr;
    }
    ::SetMenu(m_hWnd, hMenuAlt != nullptr ? hMenuAlt : m_hMenuDefault);
}

LRESULT CFrameWnd::OnIdleUpdateCmdUI(WPARAM, LPARAM) {
    const HWND hWnd = m_hWnd;
    const UINT nDue = m_nIdleFlags;
    const auto bDue = [&](UINT nFlag) {
        return (nDue & nFlag) != 0 && FromHandlePermanent(hWnd) == this;
    };
    m_nIdleFlags = 0;
    if (bDue(idleMenu)) {
        OnUpdateFrameMenu(m_hMenuAlt);
    }
    if (bDue(idleTitle)) {
        OnUpdateFrameTitle(TRUE);
    }
    if (bDue(idleLayout)) {
        RecalcLayout((nDue & idleNotify) != 0);
        UpdateWindow();
    }
    if (FromHandlePermanent(hWnd) == this) {
        ShowDelayedBars();
    }
    return 0;
}

// Modal state, and the windows that the frame owns

namespace {

struct OwnedWindows {
    HWND hOwner;
    CPtrList* pWindows;
};

bool IsOwnedBy(HWND hWnd, HWND hOwner) {
    while (hWnd != nullptr && hWnd != hOwner) {
        hWnd = ::GetWindow(hWnd, GW_OWNER);
    }
    return hWnd != nullptr;
}

BOOL CALLBACK AddOwned(HWND hWnd, LPARAM lOwned) {
    const auto& owned = *reinterpret_cast<const OwnedWindows*>(lOwned);
    try {
        if (IsOwnedBy(hWnd, owned.hOwner)) {
            owned.pWindows->AddTail(hWnd);
        }
        return TRUE;
    } catch (CMemoryException* e) {
        e->Delete();
        return FALSE;  // those that were found so far
    }
}

/// Calls action with each top-level window of this thread that is the frame's or belongs to one
/// that is, and the frame's own.
template <class Action>
void ForOwnedWindows(const CFrameWnd& frame, Action action) {
    CPtrList windows;
    const OwnedWindows owned{::GetAncestor(frame.m_hWnd, GA_ROOT), &windows};
    ::EnumThreadWindows(::GetCurrentThreadId(), AddOwned, reinterpret_cast<LPARAM>(&owned));
    for (POSITION pos = windows.GetHeadPosition(); pos != nullptr;) {
        const HWND hWnd = static_cast<HWND>(windows.GetNext(pos));
        if (::IsWindow(hWnd)) {
            action(hWnd, owned.hOwner);
        }
    }
}

}  // namespace

void CFrameWnd::BeginModalState() {
    if (m_cModalStack++ > 0) {
        return;
    }
    ForOwnedWindows(*this, [this](HWND hWnd, HWND) {
        if (::IsWindowEnabled(hWnd) && FromHandlePermanent(hWnd) != nullptr) {
            m_disabledWindows.AddTail(hWnd);
            ::EnableWindow(hWnd, FALSE);
        }
    });
}

void CFrameWnd::EndModalState() {
    if (m_cModalStack == 0 || --m_cModalStack > 0) {
        return;
    }
    while (!m_disabledWindows.IsEmpty()) {
        ::EnableWindow(static_cast<HWND>(m_disabledWindows.RemoveHead()), TRUE);
    }
}

void CFrameWnd::ShowOwnedWindows(BOOL bShow) {
    ForOwnedWindows(*this, [bShow](HWND hWnd, HWND hOwner) {
        CWnd* pWnd = FromHandlePermanent(hWnd);
        if (pWnd == nullptr || hWnd == hOwner) {
            return;
        }
        if (!bShow && ::IsWindowVisible(hWnd)) {
            pWnd->m_nFlags |= WF_TEMPHIDE;
            ::ShowWindow(hWnd, SW_HIDE);
        } else if (bShow && (pWnd->m_nFlags & WF_TEMPHIDE) != 0) {
            pWnd->m_nFlags &= ~WF_TEMPHIDE;
            ::ShowWindow(hWnd, SW_SHOWNOACTIVATE);
        }
    });
}

void CFrameWnd::NotifyFloatingWindows(DWORD dwFlags) {
    ForOwnedWindows(*this, [dwFlags](HWND hWnd, HWND hOwner) {
        if (hWnd != hOwner) {
            ::SendMessage(hWnd, WM_FLOATSTATUS, dwFlags, 0);
        }
    });
}

// What comes from outside

void CFrameWnd::OnDropFiles(HDROP hDropInfo) {
    struct Dropped {
        HDROP h;
        ~Dropped() { ::DragFinish(h); }
    } const dropped{hDropInfo};
    SetActiveWindow();
    constexpr UINT kHowMany = 0xFFFFFFFF;
    const UINT nFiles = ::DragQueryFile(dropped.h, kHowMany, nullptr, 0);
    for (UINT nFile = 0; nFile < nFiles; ++nFile) {
        const UINT nLength = ::DragQueryFile(dropped.h, nFile, nullptr, 0);
        CString strPath;
        ::DragQueryFile(dropped.h, nFile, strPath.GetBuffer(static_cast<int>(nLength)),
                        nLength + 1);
        strPath.ReleaseBuffer();
        if (CWinApp* pApp = AfxGetApp()) {
            pApp->OpenDocumentFile(strPath);
        }
    }
}

void CFrameWnd::OnUpdateKeyIndicator(CCmdUI* pCmdUI) {
    static constexpr struct {
        UINT nID;
        int nKey;
    } kKeys[] = {{ID_INDICATOR_CAPS, VK_CAPITAL},
                 {ID_INDICATOR_NUM, VK_NUMLOCK},
                 {ID_INDICATOR_SCRL, VK_SCROLL},
                 {ID_INDICATOR_KANA, VK_KANA}};
    for (const auto& key : kKeys) {
        if (key.nID == pCmdUI->m_nID) {
            pCmdUI->Enable((::GetKeyState(key.nKey) & 1) != 0);
        }
    }
}
