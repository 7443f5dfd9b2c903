// Window classes, creation, and how an object and a window find each other.
#include "afx/window/wnd.h"

#include "afx/ole/wnd_control.h"
#include "afx/window/wide_input.h"
#include "afx/window/wnd_state.h"

#include <afxwin.h>

#include <mutex>
#include <set>
#include <string>

BOOL AfxRegisterClass(WNDCLASS* lpWndClass) {
    WNDCLASS existing;
    if (::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &existing)) {
        return TRUE;
    }
    return ::RegisterClass(lpWndClass) != 0;
}

LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    static std::mutex mutex;
    static std::set<std::string> names;

    const HINSTANCE hInst = AfxGetInstanceHandle();
    CString strName;
    strName.Format("QvAfx:%p:%x:%p:%p:%p", static_cast<void*>(hInst), nClassStyle,
                   static_cast<void*>(hCursor), static_cast<void*>(hbrBackground),
                   static_cast<void*>(hIcon));
    WNDCLASS wndcls = {};
    wndcls.style = nClassStyle;
    wndcls.lpfnWndProc = ::DefWindowProc;
    wndcls.hInstance = hInst;
    wndcls.hIcon = hIcon;
    wndcls.hCursor = hCursor;
    wndcls.hbrBackground = hbrBackground;
    wndcls.lpszClassName = strName;
    if (!AfxRegisterClass(&wndcls)) {
        AfxThrowResourceException();
    }
    std::lock_guard<std::mutex> lock(mutex);
    return names.insert(std::string(strName)).first->c_str();
}

namespace {

/// The framework's own classes are registered when the first window asks for them.
BOOL RegisterFrameworkClass(LPCTSTR lpszName) {
    WNDCLASS wndcls = {};
    wndcls.lpfnWndProc = ::DefWindowProc;
    wndcls.hInstance = AfxGetInstanceHandle();
    wndcls.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    wndcls.lpszClassName = lpszName;
    if (lstrcmp(lpszName, AFX_WNDCLASS_FRAME) == 0) {
        wndcls.style = CS_DBLCLKS;
        wndcls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    } else if (lstrcmp(lpszName, AFX_WNDCLASS_CONTROLBAR) == 0) {
        wndcls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    } else {
        wndcls.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    }
    return AfxRegisterClass(&wndcls);
}

void PutProcedureInFront(CWnd* pWnd, HWND hWnd) {
    if (AfxTakesWideInput(hWnd)) {
        return;  // it is in front already
    }
    WNDPROC* const ppfnSuper = AfxWndAccess::SuperWndProc(pWnd);
    // Asked in the window's own character set, the system gives the address and no stand-in.
    const auto pfnDirect = reinterpret_cast<WNDPROC>(::IsWindowUnicode(hWnd)
                                                         ? ::GetWindowLongPtrW(hWnd, GWLP_WNDPROC)
                                                         : ::GetWindowLongPtrA(hWnd, GWLP_WNDPROC));
    const WNDPROC pfnWide = AfxWideProcedure(hWnd);
    auto pfnOld = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (pfnOld != &AfxWndProc && *ppfnSuper == nullptr) {
        *ppfnSuper = pfnOld;
        AfxWndAccess::SetSuperDirect(pWnd, pfnOld, pfnDirect);
    }
    AfxTakeWideInput(hWnd, pfnWide);
}

/// A thread's first window brings an input method window along, which is nobody's object.
bool IsInputMethodWindow(LPCTSTR lpszClass) {
    return lstrcmpi(lpszClass, "IME") == 0;
}

/// Whether the object that waits for a window waits for this one.
bool IsAwaited(const AfxWndState& state, HWND hWnd, const CBT_CREATEWND& create) {
    TCHAR szClass[16] = {};
    ::GetClassName(hWnd, szClass, _countof(szClass));
    if (!state.bDialogInit) {
        return !IsInputMethodWindow(szClass);
    }
    constexpr char kDialogClass[] = "#32770";
    return lstrcmp(szClass, kDialogClass) == 0 &&
           (state.hWndInitParent == nullptr || create.lpcs->hwndParent == state.hWndInitParent);
}

}  // namespace

static LRESULT CALLBACK CreationFilter(int code, WPARAM wParam, LPARAM lParam) {
    AfxWndState& state = AfxGetWndState();
    const HWND hWnd = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && state.pWndInit != nullptr &&
        IsAwaited(state, hWnd, *reinterpret_cast<const CBT_CREATEWND*>(lParam))) {
        CWnd* pWnd = state.pWndInit;
        state.pWndInit = nullptr;
        try {
            pWnd->Attach(hWnd);
            pWnd->PreSubclassWindow();
            PutProcedureInFront(pWnd, hWnd);
        } catch (...) {
            AfxProcessCurrentException(hWnd, WM_NCCREATE);
            if (CWnd::FromHandlePermanent(hWnd) == pWnd) {
                pWnd->Detach();
                state.pWndInit = pWnd;  // not taken: whoever creates it tells the object
            }
            return 1;  // no window
        }
    }
    return ::CallNextHookEx(state.hHookCreate, code, wParam, lParam);
}

void AfxHookWindowCreate(CWnd* pWnd) {
    AfxWndState& state = AfxGetWndState();
    if (state.nHookDepth++ == 0) {
        state.hHookCreate =
            ::SetWindowsHookEx(WH_CBT, CreationFilter, nullptr, ::GetCurrentThreadId());
        if (state.hHookCreate == nullptr) {
            state.nHookDepth = 0;
            AfxThrowMemoryException();
        }
    }
    ASSERT(pWnd != nullptr && pWnd->m_hWnd == nullptr);
    state.pWndInit = pWnd;
    state.bDialogInit = false;
}

void AfxHookDialogCreate(CWnd* pWnd, HWND hWndParent) {
    AfxHookWindowCreate(pWnd);
    AfxWndState& state = AfxGetWndState();
    state.bDialogInit = true;
    state.hWndInitParent = hWndParent;
}

BOOL AfxUnhookWindowCreate() {
    AfxWndState& state = AfxGetWndState();
    if (state.nHookDepth > 0 && --state.nHookDepth == 0) {
        ::UnhookWindowsHookEx(state.hHookCreate);
        state.hHookCreate = nullptr;
    }
    const BOOL bTaken = state.pWndInit == nullptr;
    state.pWndInit = nullptr;
    return bTaken;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        if (!RegisterFrameworkClass(AFX_WNDCLASS_CHILD)) {
            return FALSE;
        }
        cs.lpszClass = AFX_WNDCLASS_CHILD;
    } else if (HIWORD(reinterpret_cast<DWORD_PTR>(cs.lpszClass)) != 0 &&
               strncmp(cs.lpszClass, "QvAfx", 5) == 0 && strchr(cs.lpszClass, ':') == nullptr) {
        return RegisterFrameworkClass(cs.lpszClass);
    }
    return TRUE;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                    LPVOID lpParam) {
    CREATESTRUCT cs = {};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    HWND hWnd = ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName,
                                 static_cast<DWORD>(cs.style), cs.x, cs.y, cs.cx, cs.cy,
                                 cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    // A window that failed after it was bound has told this object, which may be gone.
    if (!AfxUnhookWindowCreate()) {
        PostNcDestroy();
    }
    return hWnd != nullptr;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, pParentWnd->GetSafeHwnd(),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext) {
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID,
                    pContext);
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!AfxTakeControl(this, hWnd) || !Attach(hWnd)) {
        return FALSE;
    }
    PreSubclassWindow();
    PutProcedureInFront(this, hWnd);
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    HWND hWndControl = ::GetDlgItem(pParent->m_hWnd, static_cast<int>(nID));
    return hWndControl != nullptr && SubclassWindow(hWndControl);
}

HWND CWnd::UnsubclassWindow() {
    WNDPROC* ppfnSuper = GetSuperWndProcAddr();
    if (*ppfnSuper != nullptr) {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*ppfnSuper));
        AfxEndWideInput(m_hWnd);
        *ppfnSuper = nullptr;
        m_pfnSuperDirect = m_pfnSuperReplaced = nullptr;
    }
    return Detach();
}

BOOL CWnd::DestroyWindow() {
    if (m_pCtrlSite != nullptr) {
        return AfxDestroyControl(this);
    }
    if (m_hWnd == nullptr) {
        return FALSE;
    }
    // A window with our procedure detaches itself, and its object may be gone afterwards.
    const bool bServed = FromHandlePermanent(m_hWnd) != nullptr;
    const BOOL bDone = ::DestroyWindow(m_hWnd);
    if (!bServed) {
        Detach();
    }
    return bDone;
}

void CWnd::OnNcDestroy() {
    EnableToolTips(FALSE);
    if (CWinThread* pThread = AfxGetThread()) {
        if (pThread->m_pMainWnd == this) {
            pThread->m_pMainWnd = nullptr;
            AfxPostQuitMessage(0);
        }
        if (pThread->m_pActiveWnd == this) {
            pThread->m_pActiveWnd = nullptr;
        }
    }
    Default();
    // Somebody who put himself in front of us later takes himself out; then ours is not on top.
    WNDPROC* ppfnSuper = GetSuperWndProcAddr();
    if (*ppfnSuper != nullptr &&
        (AfxTakesWideInput(m_hWnd) ||
         ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&AfxWndProc))) {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*ppfnSuper));
    }
    AfxEndWideInput(m_hWnd);
    m_pfnSuper = m_pfnSuperDirect = m_pfnSuperReplaced = nullptr;
    Detach();
    AfxLeaveControl(this);
    AfxEndControlContainer(this);
    PostNcDestroy();
}

void CWnd::PostNcDestroy() {}

void CWnd::OnFinalRelease() {
    if (m_hWnd != nullptr) {
        DestroyWindow();  // leads to PostNcDestroy
    } else {
        PostNcDestroy();
    }
}
