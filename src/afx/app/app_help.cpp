// Help, and what an application may tell the shell about itself.
#include <afxpriv.h>
#include <afxwin.h>

namespace {

// Commands of HTML help
constexpr UINT kDisplayTopic = 0x0000;
constexpr UINT kDisplayContents = 0x0001;
constexpr UINT kDisplayIndex = 0x0002;
constexpr UINT kHelpContext = 0x000F;
constexpr UINT kCloseAll = 0x0012;

/// A function of a module that is loaded when it is first asked for, and stays. Null if there is
/// none.
template <class Function>
Function FunctionOf(LPCTSTR lpszModule, LPCSTR lpszName) {
    const HMODULE hModule = ::LoadLibrary(lpszModule);
    return hModule != nullptr ? reinterpret_cast<Function>(
                                    reinterpret_cast<void*>(::GetProcAddress(hModule, lpszName)))
                              : nullptr;
}

HWND HelpOwner() {
    return AfxGetMainWnd()->GetSafeHwnd();
}

}  // namespace

void CWinApp::EnableHtmlHelp() {
    SetHelpMode(afxHTMLHelp);
}

void CWinApp::SetHelpMode(AFX_HELP_TYPE eHelpType) {
    m_eHelpType = eHelpType;
    const int nDot = m_strHelpFilePath.ReverseFind('.');
    if (nDot >= 0 && m_pszHelpFilePath == m_strHelpFilePath.GetString()) {
        m_strHelpFilePath =
            m_strHelpFilePath.Left(nDot) + (eHelpType == afxHTMLHelp ? ".CHM" : ".HLP");
        m_pszHelpFilePath = m_strHelpFilePath;
    }
}

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd) {
    const CWaitCursor wait;
    if (!::WinHelp(HelpOwner(), m_pszHelpFilePath, nCmd, dwData)) {
        AfxMessageBox(AFX_IDP_FAILED_TO_LAUNCH_HELP);
    }
}

void CWinApp::HtmlHelp(DWORD_PTR dwData, UINT nCmd) {
    const CWaitCursor wait;
    using ShowHelp = HWND(WINAPI*)(HWND, LPCSTR, UINT, DWORD_PTR);
    const auto showHelp = FunctionOf<ShowHelp>("hhctrl.ocx", "HtmlHelpA");
    if (showHelp == nullptr ||
        (showHelp(HelpOwner(), m_pszHelpFilePath, nCmd, dwData) == nullptr && nCmd != kCloseAll)) {
        AfxMessageBox(AFX_IDP_FAILED_TO_LAUNCH_HELP);
    }
}

void CWinApp::WinHelpInternal(DWORD_PTR dwData, UINT nCmd) {
    if (m_eHelpType == afxWinHelp) {
        WinHelp(dwData, nCmd);
        return;
    }
    switch (nCmd) {
        case HELP_CONTEXT:
        case HELP_CONTEXTPOPUP:
            HtmlHelp(dwData, kHelpContext);
            return;
        case HELP_INDEX:
            HtmlHelp(dwData, kDisplayIndex);
            return;
        case HELP_FINDER:
            HtmlHelp(dwData, kDisplayContents);
            return;
        case HELP_QUIT:
            HtmlHelp(dwData, kCloseAll);
            return;
        default:
            HtmlHelp(dwData, kDisplayTopic);
    }
}

void CWinApp::OnHelp() {
    for (HWND hWnd = ::GetFocus(); hWnd != nullptr; hWnd = ::GetParent(hWnd)) {
        if (::SendMessage(hWnd, WM_COMMANDHELP, 0, 0) != 0) {
            return;
        }
    }
    if (m_pMainWnd != nullptr) {
        m_pMainWnd->SendMessage(WM_COMMAND, ID_DEFAULT_HELP);
    }
}

void CWinApp::OnHelpIndex() {
    WinHelpInternal(0, HELP_INDEX);
}

void CWinApp::OnHelpFinder() {
    WinHelpInternal(0, HELP_FINDER);
}

void CWinApp::OnHelpUsing() {
    WinHelpInternal(0, HELP_HELPONHELP);
}

// The same commands in a window's map

void CWnd::OnHelp() {
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->OnHelp();
    }
}

void CWnd::OnHelpIndex() {
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->OnHelpIndex();
    }
}

void CWnd::OnHelpFinder() {
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->OnHelpFinder();
    }
}

void CWnd::OnHelpUsing() {
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->OnHelpUsing();
    }
}

// The shell

void CWinApp::SetAppID(LPCTSTR lpcszAppID) {
    m_strAppID = lpcszAppID;
    m_pszAppID = m_strAppID;
    using SetID = HRESULT(WINAPI*)(LPCWSTR);
    if (const auto setID =
            FunctionOf<SetID>("shell32.dll", "SetCurrentProcessExplicitAppUserModelID")) {
        BSTR bstrID = m_strAppID.AllocSysString();
        setID(bstrID);
        ::SysFreeString(bstrID);
    }
}

BOOL CWinApp::EnableTaskbarInteraction(BOOL bEnable) {
    m_bTaskbarInteraction = bEnable;
    return TRUE;
}

void CWinApp::HideApplication() {
    if (m_pMainWnd == nullptr) {
        return;
    }
    m_pMainWnd->ShowOwnedPopups(FALSE);
    m_pMainWnd->ShowWindow(SW_HIDE);
    m_pMainWnd->SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0,
                             SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void CWinApp::SetDialogBkColor(COLORREF clrCtlBk, COLORREF clrCtlText) {
    m_brDialog.DeleteObject();
    m_brDialog.CreateSolidBrush(clrCtlBk);
    m_clrDialog = clrCtlBk;
    m_clrDialogText = clrCtlText;
}

HBRUSH CWinApp::DialogBrush(HDC hDC, UINT nCtlColor) {
    const bool bPlain = nCtlColor == CTLCOLOR_DLG || nCtlColor == CTLCOLOR_STATIC ||
                        nCtlColor == CTLCOLOR_BTN || nCtlColor == CTLCOLOR_MSGBOX;
    const HGDIOBJ hBrush = m_brDialog.GetSafeHandle();
    if (!bPlain || hBrush == nullptr) {
        return nullptr;
    }
    ::SetTextColor(hDC, m_clrDialogText);
    ::SetBkColor(hDC, m_clrDialog);
    return static_cast<HBRUSH>(hBrush);
}

static BOOL LoadForGood(LPCTSTR lpszModule) {
    return ::LoadLibrary(lpszModule) != nullptr;
}

BOOL AfxInitRichEdit() {
    return LoadForGood("RICHED32.DLL");
}

BOOL AfxInitRichEdit2() {
    return LoadForGood("RICHED20.DLL");
}
