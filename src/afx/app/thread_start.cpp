// Threads of the program's own: how they start and end, and what each has for itself.
#include "afx/objects/create_object.h"
#include "afx/ole/ole_init.h"
#include "afx/window/wnd_state.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <memory>
#include <process.h>

CWinThread::CWinThread() = default;

CWinThread::CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam)
    : m_pThreadParams(pParam), m_pfnThreadProc(pfnThreadProc) {}

CWinThread::~CWinThread() {
    AfxWndState& state = AfxGetWndState();
    if (state.pThread == this) {
        state.pThread = nullptr;
    }
    if (m_hThread != nullptr) {
        ::CloseHandle(m_hThread);  // does nothing to the one that stands for the main thread
    }
}

CWinThread::operator HANDLE() const {
    // Programs ask null pointers as well; see CWnd::GetSafeHwnd.
    const CWinThread* volatile pThread = this;
    return pThread != nullptr ? static_cast<const CWinThread*>(pThread)->m_hThread : nullptr;
}

int CWinThread::GetThreadPriority() {
    return ::GetThreadPriority(m_hThread);
}

BOOL CWinThread::SetThreadPriority(int nPriority) {
    return ::SetThreadPriority(m_hThread, nPriority);
}

DWORD CWinThread::SuspendThread() {
    return ::SuspendThread(m_hThread);
}

DWORD CWinThread::ResumeThread() {
    return ::ResumeThread(m_hThread);
}

void CWinThread::Delete() {
    if (m_bAutoDelete) {
        delete this;
    }
}

// What each thread has

void AfxEnterThread(CWinThread* pThread, HWND hWndMain) {
    AfxWndState& state = AfxGetWndState();
    state.pThread = pThread;
    AfxFilterMessages(true);
    if (pThread->m_pMainWnd != nullptr || hWndMain == nullptr) {
        return;
    }
    // The main window's object belongs to another thread; here another one stands for the window.
    try {
        auto pStandIn = std::make_unique<CWnd>();
        pStandIn->Attach(hWndMain);
        state.pMainStandIn = pStandIn.release();
        pThread->m_pMainWnd = state.pMainStandIn;
    } catch (const std::bad_alloc&) {
    } catch (CMemoryException* e) {  // the thread goes without
        e->Delete();
    }
}

void AfxLeaveThread() {
    AfxWndState& state = AfxGetWndState();
    state.pThread = nullptr;
    if (state.pMainStandIn != nullptr) {
        state.pMainStandIn->Detach();  // it owns no window
        delete state.pMainStandIn;
        state.pMainStandIn = nullptr;
    }
    AfxFilterMessages(false);
    AfxDeleteTempMaps();
    AfxOleTerm();
}

void AfxDeleteTempMaps() {
    CWnd::DeleteTempMap();
    CDC::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CMenu::DeleteTempMap();
    CImageList::DeleteTempMap();
}

// Start and end

namespace {

struct ThreadStart {
    CWinThread* pThread;
    HWND hWndMain;
    HANDLE hStarted;  ///< the creator's, who waits for it; null if nobody does
};

int RunTask(CWinThread& thread) {
    try {
        return static_cast<int>(thread.m_pfnThreadProc(thread.m_pThreadParams));
    } catch (...) {
        AfxProcessCurrentException(nullptr, WM_NULL);
        return -1;
    }
}

unsigned __stdcall ThreadEntry(void* pvStart) {
    const ThreadStart start = *std::unique_ptr<ThreadStart>(static_cast<ThreadStart*>(pvStart));
    AfxEnterThread(start.pThread, start.hWndMain);
    MSG msg;  // with a look at it the queue is there, and takes what is posted from now on
    ::PeekMessage(&msg, nullptr, WM_USER, WM_USER, PM_NOREMOVE);
    if (start.hStarted != nullptr) {
        ::SetEvent(start.hStarted);
    }
    CWinThread& thread = *start.pThread;
    AfxEndThread(static_cast<UINT>(thread.m_pfnThreadProc != nullptr ? RunTask(thread)
                                                                     : AfxRunThread(thread)));
}

/// An event, closed with its owner.
class Event {
public:
    ~Event() {
        if (m_h != nullptr) {
            ::CloseHandle(m_h);
        }
    }
    bool Create() {
        m_h = ::CreateEvent(nullptr, TRUE, FALSE, nullptr);
        return m_h != nullptr;
    }
    void Wait() const {
        if (m_h != nullptr) {
            ::WaitForSingleObject(m_h, INFINITE);
        }
    }
    HANDLE Get() const { return m_h; }

private:
    HANDLE m_h = nullptr;
};

/// The object may be gone behind this: a short thread has ended by then.
BOOL StartThread(CWinThread& thread, int nPriority, UINT nStackSize, DWORD dwCreateFlags,
                 LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    const bool bSuspended = (dwCreateFlags & CREATE_SUSPENDED) != 0;
    Event started;
    if (!bSuspended && !started.Create()) {
        return FALSE;
    }
    std::unique_ptr<ThreadStart> pStart(
        new (std::nothrow) ThreadStart{&thread, AfxGetMainWnd()->GetSafeHwnd(), started.Get()});
    unsigned nThreadID = 0;
    const uintptr_t nThread =
        pStart ? ::_beginthreadex(lpSecurityAttrs, nStackSize, ThreadEntry, pStart.get(),
                                  dwCreateFlags | CREATE_SUSPENDED, &nThreadID)
               : 0;
    if (nThread == 0) {
        return FALSE;
    }
    pStart.release();  // the thread's
    thread.m_hThread = reinterpret_cast<HANDLE>(nThread);
    thread.m_nThreadID = nThreadID;
    if (nPriority != THREAD_PRIORITY_NORMAL) {
        thread.SetThreadPriority(nPriority);
    }
    if (!bSuspended) {
        thread.ResumeThread();
        started.Wait();
    }
    return TRUE;
}

}  // namespace

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize,
                              LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    return StartThread(*this, THREAD_PRIORITY_NORMAL, nStackSize, dwCreateFlags, lpSecurityAttrs);
}

static CWinThread* Begin(CWinThread* pThread, int nPriority, UINT nStackSize, DWORD dwCreateFlags,
                         LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    if (pThread != nullptr &&
        !StartThread(*pThread, nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs)) {
        pThread->Delete();
        return nullptr;
    }
    return pThread;
}

CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority,
                           UINT nStackSize, DWORD dwCreateFlags,
                           LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    return Begin(AfxNeedMemory([&] { return new CWinThread(pfnThreadProc, pParam); }), nPriority,
                 nStackSize, dwCreateFlags, lpSecurityAttrs);
}

CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority, UINT nStackSize,
                           DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    return Begin(AfxCreateOf<CWinThread>(pThreadClass), nPriority, nStackSize, dwCreateFlags,
                 lpSecurityAttrs);
}

void AfxEndThread(UINT nExitCode, BOOL bDelete) {
    CWinThread* pThread = AfxGetWndState().pThread;
    if (pThread != nullptr && pThread->m_pMainWnd == AfxGetWndState().pMainStandIn) {
        pThread->m_pMainWnd = nullptr;  // an object that stays is without from now on
    }
    if (pThread != nullptr && pThread != AfxGetApp() && bDelete) {
        try {
            pThread->Delete();
        } catch (...) {
            AfxProcessCurrentException(nullptr, WM_NULL);
        }
    }
    AfxLeaveThread();
    ::_endthreadex(nExitCode);
    __builtin_unreachable();
}
