#include "afx/app/app.h"

#include "afx/app/recent_files.h"
#include "afx/ole/ole_init.h"
#include "afx/window/wnd_state.h"

#include <afxpriv.h>
#include <afxwin.h>

#include <algorithm>
#include <mutex>

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
    ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
    ON_COMMAND_EX_RANGE(ID_FILE_MRU_FIRST, ID_FILE_MRU_LAST, &CWinApp::OnOpenRecentFile)
    ON_UPDATE_COMMAND_UI(ID_FILE_MRU_FILE1, &CWinApp::OnUpdateRecentFileMenu)
END_MESSAGE_MAP()

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_strAppName(lpszAppName) {
    m_pszAppName = m_strAppName;
    // The object is global, so this runs on the main thread before anything else.
    m_hThread = ::GetCurrentThread();
    m_nThreadID = ::GetCurrentThreadId();
    AfxGetWndState().pThread = this;
    AfxGetModuleState()->m_pCurrentWinApp = this;
}

CWinApp::~CWinApp() {
    ::GlobalFree(m_hDevMode);
    ::GlobalFree(m_hDevNames);
    delete m_pDocManager;
    delete m_pRecentFileList;
    if (m_atomApp != 0) {
        ::GlobalDeleteAtom(m_atomApp);
        ::GlobalDeleteAtom(m_atomSystemTopic);
    }
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    if (pState->m_pCurrentWinApp == this) {
        pState->m_pCurrentWinApp = nullptr;
    }
}

CWinApp* AfxGetApp() {
    return AfxGetModuleState()->m_pCurrentWinApp;
}

LPCTSTR AfxGetAppName() {
    CWinApp* pApp = AfxGetApp();
    return pApp != nullptr && pApp->m_pszAppName != nullptr ? pApp->m_pszAppName : "";
}

void AfxWndAccess::NameApp(CWinApp* pApp, HINSTANCE hInstance) {
    WCHAR szPath[MAX_PATH] = {};  // wide: in UTF-8 that many characters are more bytes
    ::GetModuleFileNameW(hInstance, szPath, _countof(szPath));
    const CString strPath(szPath);
    CString strName(strPath.Mid(strPath.ReverseFind('\\') + 1));
    const int nDot = strName.ReverseFind('.');
    if (nDot >= 0) {
        strName = strName.Left(nDot);
    }
    const int nPathDot = strPath.ReverseFind('.');
    const CString strBase(nPathDot >= 0 ? strPath.Left(nPathDot) : strPath);

    pApp->m_strExeName = strName;
    pApp->m_pszExeName = pApp->m_strExeName;
    if (pApp->m_strAppName.IsEmpty()) {
        CString strTitle;
        pApp->m_strAppName = strTitle.LoadString(AFX_IDS_APP_TITLE) ? strTitle : strName;
    }
    pApp->m_pszAppName = pApp->m_strAppName;
    AfxGetModuleState()->m_lpszCurrentAppName = pApp->m_pszAppName;
    pApp->m_strHelpFilePath = strBase + ".HLP";
    pApp->m_pszHelpFilePath = pApp->m_strHelpFilePath;
    pApp->m_strProfileName = strName + ".INI";
    pApp->m_pszProfileName = pApp->m_strProfileName;
}

/// The framework's own texts come last, so that an application may put its own in their place.
static void JoinResourceChain() {
    static AFX_EXTENSION_MODULE module;
    if (module.bInitialized) {
        return;
    }
    ::GetModuleHandleEx(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<LPCTSTR>(&module), &module.hModule);
    module.hResource = module.hModule;
    module.bInitialized = TRUE;
    new CDynLinkLibrary(module, TRUE);
}

BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow) {
    AfxSetResourceHandle(hInstance);
    AfxGetModuleState()->m_hCurrentInstanceHandle = hInstance;
    JoinResourceChain();
    AfxFilterMessages(true);
    INITCOMMONCONTROLSEX controls = {sizeof controls,
                                     ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_COOL_CLASSES};
    ::InitCommonControlsEx(&controls);

    CWinApp* pApp = AfxGetApp();
    if (pApp == nullptr) {
        return TRUE;
    }
    pApp->m_hInstance = hInstance;
    pApp->m_lpCmdLine = lpCmdLine;
    pApp->m_nCmdShow = nCmdShow;

    AfxWndAccess::NameApp(pApp, hInstance);
    return TRUE;
}

void AfxWinTerm() {
    AfxFilterMessages(false);
    AfxDeleteTempMaps();
    AfxOleTerm();
}

int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    int nResult = -1;
    try {
        CWinApp* pApp = AfxGetApp();
        if (AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) &&
            (pApp == nullptr || pApp->InitApplication())) {
            nResult = AfxRunThread(*AfxGetThread());
        }
    } catch (...) {
        AfxProcessCurrentException(nullptr, WM_NULL);
    }
    AfxWinTerm();
    return nResult;
}

void AfxPostQuitMessage(int nExitCode) {
    AfxGetWndState().bQuits = true;
    AfxGetWndState().nExitCode = nExitCode;
    ::PostQuitMessage(nExitCode);
}

BOOL CWinApp::InitApplication() {
    return TRUE;
}

BOOL CWinApp::InitInstance() {
    return TRUE;
}

int CWinApp::ExitInstance() {
    SaveStdProfileSettings();
    return CWinThread::ExitInstance();
}

int CWinApp::Run() {
    if (m_pMainWnd == nullptr) {
        AfxPostQuitMessage(0);  // nothing whose closing could end the program
    }
    return CWinThread::Run();
}

BOOL CWinApp::OnIdle(LONG lCount) {
    if (lCount == 0 && m_pDocManager != nullptr) {
        m_pDocManager->OnIdle();
    }
    return CWinThread::OnIdle(lCount);
}

void CWinApp::OnAppExit() {
    if (m_pMainWnd != nullptr) {
        m_pMainWnd->SendMessage(WM_CLOSE);
    }
}

// Icons and cursors

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const {
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

HICON CWinApp::LoadIcon(UINT nIDResource) const {
    return LoadIcon(MAKEINTRESOURCE(nIDResource));
}

HICON CWinApp::LoadStandardIcon(LPCTSTR lpszIconName) const {
    return ::LoadIcon(nullptr, lpszIconName);
}

HICON CWinApp::LoadOEMIcon(UINT nIDIcon) const {
    return ::LoadIcon(nullptr, MAKEINTRESOURCE(nIDIcon));
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const {
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HCURSOR CWinApp::LoadCursor(UINT nIDResource) const {
    return LoadCursor(MAKEINTRESOURCE(nIDResource));
}

HCURSOR CWinApp::LoadStandardCursor(LPCTSTR lpszCursorName) const {
    return ::LoadCursor(nullptr, lpszCursorName);
}

HCURSOR CWinApp::LoadOEMCursor(UINT nIDCursor) const {
    return ::LoadCursor(nullptr, MAKEINTRESOURCE(nIDCursor));
}

// The wait cursor and message boxes

void CWinApp::DoWaitCursor(int nCode) {
    static std::mutex mutex;  // any thread may wait for something
    const std::lock_guard<std::mutex> lock(mutex);
    const HCURSOR hWait = ::LoadCursor(nullptr, IDC_WAIT);
    const bool bWasWaiting = m_nWaitCursorCount > 0;
    m_nWaitCursorCount = std::max(m_nWaitCursorCount + nCode, 0);
    if (m_nWaitCursorCount > 0) {
        const HCURSOR hBefore = ::SetCursor(hWait);
        if (nCode > 0 && !bWasWaiting) {
            m_hcurWaitCursorRestore = hBefore;
        }
    } else if (nCode < 0 && bWasWaiting) {
        ::SetCursor(m_hcurWaitCursorRestore);
    }
}

void CWinApp::EnableModeless(BOOL) {}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT) {
    // A box without a sign gets the one that its buttons ask for.
    if (!(nType & MB_ICONMASK)) {
        const UINT nButtons = nType & MB_TYPEMASK;
        const bool bQuestion = nButtons == MB_YESNO || nButtons == MB_YESNOCANCEL;
        nType |= bQuestion ? MB_ICONQUESTION : MB_ICONEXCLAMATION;
    }
    HWND hWndTop = nullptr;
    HWND hWndOwner = AfxGetSafeOwner(nullptr, &hWndTop);
    const int nResult = AfxShowBox(hWndOwner, lpszPrompt, AfxGetAppName(), nType);
    if (hWndTop != nullptr) {
        ::EnableWindow(hWndTop, TRUE);
    }
    if (m_nWaitCursorCount > 0) {
        DoWaitCursor(0);
    }
    return nResult;
}

int AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    if (CWinApp* pApp = AfxGetApp()) {
        return pApp->DoMessageBox(lpszText, nType, nIDHelp);
    }
    return ::MessageBox(nullptr, lpszText, "", nType);
}

int AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString strPrompt;
    strPrompt.LoadString(nIDPrompt);
    return AfxMessageBox(strPrompt, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

static void FormatStrings(CString& rString, UINT nIDS, const LPCTSTR* ppszStrings, int nStrings) {
    CString strFormat;
    strFormat.LoadString(nIDS);
    CString strResult;
    for (const char* p = strFormat; *p != '\0'; ++p) {
        const int nString = p[0] == '%' ? p[1] - '1' : -1;
        if (nString < 0 || nString >= nStrings) {
            strResult += *p;
            continue;
        }
        if (ppszStrings[nString] != nullptr) {
            strResult += ppszStrings[nString];
        }
        ++p;
    }
    rString = strResult;
}

void AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1) {
    FormatStrings(rString, nIDS, &lpsz1, 1);
}

void AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2) {
    const LPCTSTR rglpsz[] = {lpsz1, lpsz2};
    FormatStrings(rString, nIDS, rglpsz, 2);
}
