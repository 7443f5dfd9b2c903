#include "afx/window/wide_input.h"
#include "afx/window/wnd_state.h"

#include <afxpriv.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

// Timers that blink the caret while the system runs a modal loop.
static constexpr UINT kSystemTimerMessage = 0x0118;

CWinThread* AfxGetThread() {
    if (CWinThread* pThread = AfxGetWndState().pThread) {
        return pThread;
    }
    // Threads that the framework did not start use the application's services.
    return AfxGetApp();
}

CWnd* AfxGetMainWnd() {
    CWinThread* pThread = AfxGetThread();
    return pThread != nullptr ? pThread->GetMainWnd() : nullptr;
}

CWnd* CWinThread::GetMainWnd() {
    return m_pActiveWnd != nullptr ? m_pActiveWnd : m_pMainWnd;
}

BOOL CWinThread::PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
}

int AfxExitInstance(CWinThread& thread) {
    try {
        return thread.ExitInstance();
    } catch (...) {
        AfxProcessCurrentException(nullptr, WM_NULL);
        return -1;
    }
}

int AfxRunThread(CWinThread& thread) {
    try {
        if (thread.InitInstance()) {
            return thread.Run();
        }
    } catch (...) {
        AfxProcessCurrentException(nullptr, WM_NULL);
    }
    if (thread.m_pMainWnd != nullptr && thread.m_pMainWnd != AfxGetWndState().pMainStandIn) {
        thread.m_pMainWnd->DestroyWindow();
    }
    return AfxExitInstance(thread);
}

BOOL CWinThread::InitInstance() {
    return FALSE;
}

int CWinThread::ExitInstance() {
    return static_cast<int>(m_msgCur.wParam);  // what WM_QUIT brought
}

int CWinThread::Run() {
    BOOL bIdle = TRUE;
    LONG lIdleCount = 0;
    for (;;) {
        MSG msg;
        if (bIdle && !::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
            // A loop of the platform's may have taken the message, as that of a menu does.
            if (AfxGetWndState().bQuits) {
                ::PostQuitMessage(AfxGetWndState().nExitCode);
                continue;
            }
            try {
                bIdle = OnIdle(lIdleCount++);
            } catch (...) {
                AfxProcessCurrentException(nullptr, WM_NULL);
                bIdle = FALSE;
            }
            continue;
        }
        if (!PumpMessage()) {
            AfxGetWndState().bQuits = false;
            return AfxExitInstance(*this);
        }
        if (IsIdleMessage(&m_msgCur)) {
            bIdle = TRUE;
            lIdleCount = 0;
        }
    }
}

BOOL CWinThread::PumpMessage() {
    if (!AfxGetMessage(m_msgCur)) {
        return FALSE;
    }
    const MSG msg = m_msgCur;  // loops inside will bring others
    try {
        if (m_msgCur.message != WM_KICKIDLE && !PreTranslateMessage(&m_msgCur)) {
            ::TranslateMessage(&m_msgCur);
            AfxDispatchMessage(m_msgCur);
        }
    } catch (...) {
        AfxProcessCurrentException(msg);
    }
    return TRUE;
}

BOOL AfxPumpMessage() {
    return AfxGetThread()->PumpMessage();
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->hwnd == nullptr && DispatchThreadMessageMap(pMsg)) {
        return TRUE;
    }
    return AfxPreTranslateMessage(pMsg);
}

BOOL AfxPreTranslateMessage(MSG* pMsg) {
    CWnd* pMainWnd = AfxGetMainWnd();
    if (CWnd::WalkPreTranslateTree(pMainWnd->GetSafeHwnd(), pMsg)) {
        return TRUE;
    }
    // A window beside the main one: the main window's accelerators work there as well.
    if (pMainWnd != nullptr && pMsg->hwnd != nullptr) {
        if (::GetAncestor(pMsg->hwnd, GA_ROOT) != pMainWnd->m_hWnd &&
            CWnd::FromHandle(pMsg->hwnd)->GetTopLevelParent() != pMainWnd) {
            return pMainWnd->PreTranslateMessage(pMsg);
        }
    }
    return FALSE;
}

BOOL CWinThread::DispatchThreadMessageMap(MSG* pMsg) {
    const AFX_MSGMAP_ENTRY* pEntry = AfxFindWindowEntry(GetMessageMap(), pMsg->message);
    if (pEntry == nullptr) {
        return FALSE;
    }
    AFX_MSGCALL call;
    call.wParam = pMsg->wParam;
    call.lParam = pMsg->lParam;
    pEntry->pfnCall(this, call);
    return TRUE;
}

/// Brings what hangs on a top-level window up to date.
static void UpdateCommandUI(HWND hWnd) {
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    if (pWnd == nullptr || !::IsWindowVisible(hWnd) ||
        ::GetWindowThreadProcessId(hWnd, nullptr) != ::GetCurrentThreadId()) {
        return;
    }
    AfxCallWndProc(pWnd, hWnd, WM_IDLEUPDATECMDUI, TRUE, 0);
    pWnd->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
}

static BOOL CALLBACK UpdateFrame(HWND hWnd, LPARAM lMainWnd) {
    try {
        CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
        if (pWnd != nullptr && pWnd->IsFrameWnd() && hWnd != reinterpret_cast<HWND>(lMainWnd)) {
            UpdateCommandUI(hWnd);
        }
    } catch (...) {
        AfxProcessCurrentException(hWnd, WM_IDLEUPDATECMDUI);
    }
    return TRUE;
}

BOOL CWinThread::OnIdle(LONG lCount) {
    if (lCount <= 0) {
        const HWND hMainWnd = m_pMainWnd->GetSafeHwnd();
        if (hMainWnd != nullptr) {
            UpdateCommandUI(hMainWnd);
        }
        ::EnumThreadWindows(::GetCurrentThreadId(), UpdateFrame,
                            reinterpret_cast<LPARAM>(hMainWnd));
        return TRUE;
    }
    // Objects that FromHandle made up for handles are good until now.
    AfxDeleteTempMaps();
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    // A mouse that does not move, a paint and a blinking caret change nothing that idle work
    // shows.
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE) {
        if (pMsg->pt.x == m_ptLastMouse.x && pMsg->pt.y == m_ptLastMouse.y &&
            pMsg->message == m_nLastMouseMsg) {
            return FALSE;
        }
        m_ptLastMouse = pMsg->pt;
        m_nLastMouseMsg = pMsg->message;
        return TRUE;
    }
    return pMsg->message != WM_PAINT && pMsg->message != kSystemTimerMessage;
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
    switch (pMsg->message) {
        case WM_CREATE:
            return -1;  // the creation's caller learns by its result
        case WM_PAINT:
            ::ValidateRect(pMsg->hwnd,
                           nullptr);  // or it would be painted again at once, for ever
            return 0;
        default:
            // A user exception means that the user was told already.
            if (!e->IsKindOf(RUNTIME_CLASS(CUserException))) {
                e->ReportError(MB_ICONSTOP);
            }
            return 0;
    }
}

static LRESULT CALLBACK FilterMessage(int code, WPARAM wParam, LPARAM lParam) {
    CWinThread* pThread = AfxGetThread();
    auto* pMsg = reinterpret_cast<LPMSG>(lParam);
    try {
        if (code >= 0 && pThread != nullptr && pThread->ProcessMessageFilter(code, pMsg)) {
            return 1;
        }
    } catch (...) {
        AfxProcessCurrentException(*pMsg);
    }
    return ::CallNextHookEx(AfxGetWndState().hHookFilter, code, wParam, lParam);
}

void AfxFilterMessages(bool bFilter) {
    HHOOK& hHook = AfxGetWndState().hHookFilter;
    if (bFilter && hHook == nullptr) {
        hHook = ::SetWindowsHookEx(WH_MSGFILTER, FilterMessage, nullptr, ::GetCurrentThreadId());
    } else if (!bFilter && hHook != nullptr) {
        ::UnhookWindowsHookEx(hHook);
        hHook = nullptr;
    }
}

BOOL CWinThread::ProcessMessageFilter(int, LPMSG) {
    return FALSE;
}
