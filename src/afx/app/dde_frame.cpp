// What a frame answers other programs that have files opened by messages (DDE): the shell, of a
// program that called EnableShellOpen.
#include "afx/app/frame.h"

#include <afxwin.h>

#include <dde.h>

LRESULT CFrameWnd::OnDDEInitiate(WPARAM wParam, LPARAM lParam) {
    const CWinApp* pApp = AfxGetApp();
    if (pApp == nullptr || pApp->m_atomApp == 0 || LOWORD(lParam) != pApp->m_atomApp ||
        HIWORD(lParam) != pApp->m_atomSystemTopic) {
        return 0;
    }
    // The receiver deletes the atoms that come with the answer.
    TCHAR szName[256] = {};
    ::GlobalGetAtomName(pApp->m_atomApp, szName, _countof(szName));
    const ATOM atomApp = ::GlobalAddAtom(szName);
    ::GlobalGetAtomName(pApp->m_atomSystemTopic, szName, _countof(szName));
    const ATOM atomTopic = ::GlobalAddAtom(szName);
    ::SendMessage(reinterpret_cast<HWND>(wParam), WM_DDE_ACK, reinterpret_cast<WPARAM>(m_hWnd),
                  MAKELPARAM(atomApp, atomTopic));
    return 0;
}

LRESULT CFrameWnd::OnDDEExecute(WPARAM wParam, LPARAM lParam) {
    constexpr UINT_PTR kAccepted = 0x8000;
    UINT_PTR nUnused = 0;
    HGLOBAL hData = nullptr;
    if (!::UnpackDDElParam(WM_DDE_EXECUTE, lParam, &nUnused, reinterpret_cast<PUINT_PTR>(&hData))) {
        return 0;
    }
    const HWND hWndClient = reinterpret_cast<HWND>(wParam);
    CString strCommand;
    if (const void* pData = ::GlobalLock(hData)) {
        // Wide where both windows are, which ours is not.
        strCommand = static_cast<LPCSTR>(pData);
        ::GlobalUnlock(hData);
    }
    ::PostMessage(hWndClient, WM_DDE_ACK, reinterpret_cast<WPARAM>(m_hWnd),
                  ::ReuseDDElParam(lParam, WM_DDE_EXECUTE, WM_DDE_ACK, kAccepted,
                                   reinterpret_cast<UINT_PTR>(hData)));
    CWinApp* pApp = AfxGetApp();
    if (pApp != nullptr && IsWindowEnabled()) {  // not while a dialog is open
        pApp->OnDDECommand(strCommand.GetBuffer());
    }
    return 0;
}

LRESULT CFrameWnd::OnDDETerminate(WPARAM wParam, LPARAM lParam) {
    ::PostMessage(reinterpret_cast<HWND>(wParam), WM_DDE_TERMINATE,
                  reinterpret_cast<WPARAM>(m_hWnd), lParam);
    return 0;
}
