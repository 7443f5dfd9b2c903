// What the window half of the framework keeps for each thread. Internal to the framework.
#pragma once

#include "afx/drawing/thread_map.h"

#include <afxwin.h>

#include <exception>
#include <type_traits>

/// All null in a new thread.
struct AfxWndState {
    CWnd* pWndInit = nullptr;       ///< waits for the next window to be created
    bool bDialogInit = false;       ///< pWndInit waits for a dialog
    HWND hWndInitParent = nullptr;  ///< pWndInit waits for a child or popup of this one
    CWnd* pHookInit = nullptr;      ///< waits for the system's dialog to call its hook
    HHOOK hHookCreate = nullptr;    ///< installed while creations are under way
    int nHookDepth = 0;             ///< creations under way
    MSG lastSentMsg = {};           ///< the message being handled
    HWND hLockoutNotify = nullptr;  ///< its controls' notifications are dropped meanwhile
    HMENU hLastPopup = nullptr;     ///< the menu that opened last
    HWND hLastMeasured = nullptr;   ///< the child that was asked last how high an item is
    HHOOK hHookFilter = nullptr;    ///< for ProcessMessageFilter
    CWnd* pMainStandIn = nullptr;   ///< names the main window, in a thread that began with it
    CWinThread* pThread = nullptr;  ///< the thread object, the application's in the main thread
    bool bQuits = false;            ///< WM_QUIT was posted, and Run has not seen it
    int nExitCode = 0;              ///< that it was posted with
};

AfxWndState& AfxGetWndState();

/// Makes the calling thread pThread's, with hWndMain for its main window unless it has one.
void AfxEnterThread(CWinThread* pThread, HWND hWndMain);
/// From InitInstance to ExitInstance. What is thrown on the way is told as in the message loop, and
/// the thread ends as one that could not begin.
int AfxRunThread(CWinThread& thread);
/// Whether messages of the system's own loops pass the calling thread's ProcessMessageFilter.
void AfxFilterMessages(bool bFilter);
/// Lets go of what the calling thread has.
void AfxLeaveThread();
/// The objects that FromHandle made up in the calling thread.
void AfxDeleteTempMaps();

/// AfxHookWindowCreate for a window that somebody else creates: the next dialog, of that parent if
/// there is one. Others that come before it are not taken.
void AfxHookDialogCreate(CWnd* pWnd, HWND hWndParent = nullptr);

/// The system's message box. Its owner is disabled or not afterwards as it was before.
int AfxShowBox(HWND hWndOwner, LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType);

/// What the framework's free functions need of its classes' inner parts.
struct AfxWndAccess {
    static LRESULT WindowProc(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) {
        return pWnd->WindowProc(message, wParam, lParam);
    }
    static WNDPROC* SuperWndProc(CWnd* pWnd) { return pWnd->GetSuperWndProcAddr(); }
    static void SetSuperDirect(CWnd* pWnd, WNDPROC pfnReplaced, WNDPROC pfnDirect) {
        pWnd->m_pfnSuperReplaced = pfnReplaced;
        pWnd->m_pfnSuperDirect = pfnDirect;
    }
    static void PostNcDestroy(CWnd* pWnd) { pWnd->PostNcDestroy(); }
    static void OnNcDestroy(CWnd* pWnd) { pWnd->CWnd::OnNcDestroy(); }
    /// Fills in the names that the application did not give.
    static void NameApp(CWinApp* pApp, HINSTANCE hInstance);
};

/// Remembers a message as the one being handled, for as long as it is.
class AfxMessageScope {
public:
    AfxMessageScope(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
        : m_rState(AfxGetWndState()), m_saved(m_rState.lastSentMsg) {
        MSG& msg = m_rState.lastSentMsg;
        msg.hwnd = hWnd;
        msg.message = message;
        msg.wParam = wParam;
        msg.lParam = lParam;
    }
    ~AfxMessageScope() { m_rState.lastSentMsg = m_saved; }
    AfxMessageScope(const AfxMessageScope&) = delete;
    AfxMessageScope& operator=(const AfxMessageScope&) = delete;

private:
    AfxWndState& m_rState;
    MSG m_saved;
};

/// Hands the exception that is being handled to the thread, and gives the message's result. To be
/// called in a handler for everything, at the border to the system's code. Throws nothing itself
/// and needs no memory.
LRESULT AfxProcessCurrentException(const MSG& msg);
LRESULT AfxProcessCurrentException(HWND hWnd, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

/// A thread's last step, once: what it throws is told like what a message throws, and gives -1.
int AfxExitInstance(CWinThread& thread);

/// A comparison of the program's on its way through a control's sorting: what it throws is kept
/// while the control's code runs, and told to the application behind it. All rows compare as equal
/// from there on.
class AfxCompareGuard {
public:
    using Compare = int(CALLBACK*)(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort);

    AfxCompareGuard(Compare pfnCompare, LPARAM lParamSort)
        : m_pfnCompare(pfnCompare), m_lParamSort(lParamSort) {}
    /// To be handed to the control, with this object as its parameter.
    static int CALLBACK Call(LPARAM lParam1, LPARAM lParam2, LPARAM lGuard);
    LPARAM Param() { return reinterpret_cast<LPARAM>(this); }
    /// The sorting's result, FALSE if a comparison threw. hWnd and message: what sorted.
    BOOL Result(BOOL bSorted, HWND hWnd, UINT message) const;

private:
    Compare m_pfnCompare;
    LPARAM m_lParamSort;
    std::exception_ptr m_pThrown;
};

/// CWnd::GetSafeOwner by handles, which makes no objects and so needs no memory.
HWND AfxGetSafeOwner(HWND hWndParent, HWND* phWndTop);

/// From here on messages are named at run time.
constexpr UINT kFirstRegisteredMessage = 0xC000;

/// The entry for a window or reflected message along a chain of maps, or null. Cached by thread.
const AFX_MSGMAP_ENTRY* AfxFindWindowEntry(const AFX_MSGMAP* pMap, UINT nMsg);

/// The entry for a routed command or notification along a chain of maps, or null.
const AFX_MSGMAP_ENTRY* AfxFindCommandEntry(const AFX_MSGMAP* pMap, UINT nMsg, UINT nCode,
                                            UINT nID);

/// Sends with whatever kinds of arguments the message takes, and gives the result as R.
template <typename Value>
constexpr LPARAM AfxToParam(Value value) {
    if constexpr (std::is_pointer_v<Value>) {
        return reinterpret_cast<LPARAM>(value);
    } else {
        return static_cast<LPARAM>(value);
    }
}
template <typename R = LRESULT, typename W = int, typename L = int>
R AfxSend(HWND hWnd, UINT message, W wParam = {}, L lParam = {}) {
    LRESULT lResult =
        ::SendMessage(hWnd, message, static_cast<WPARAM>(AfxToParam(wParam)), AfxToParam(lParam));
    if constexpr (std::is_pointer_v<R>) {
        return reinterpret_cast<R>(lResult);
    } else {
        return static_cast<R>(lResult);
    }
}
