// Threads and the application: message pump, idle time, services that an application overrides.
#pragma once

#include "afx/window/wnd.h"

#include <afxcoll.h>

class CPrintDialog;

/// What a worker thread does; its result is the thread's exit code.
typedef UINT(AFX_CDECL* AFX_THREADPROC)(LPVOID);

/// A thread of the program: a worker with a function of its own, or one with windows, whose class
/// is derived from this and replaces InitInstance. The application object is the main thread's.
///
/// Objects that stand for handles belong to their thread: another one hands the handle over, and
/// makes an object of its own by FromHandle or Attach. Strings, arrays and other values may be
/// used by any thread, each object by one at a time.
class QVAFX_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    /// For a worker; CreateThread starts it.
    CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam);
    ~CWinThread() override;

    /// Starts the thread, and comes back when it is set up. nStackSize 0: as the program's.
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0,
                      LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
    operator HANDLE() const;
    int GetThreadPriority();
    BOOL SetThreadPriority(int nPriority);
    DWORD SuspendThread();
    DWORD ResumeThread();

    CWnd* m_pMainWnd = nullptr;    ///< closing it ends the application
    CWnd* m_pActiveWnd = nullptr;  ///< main window of an in-place container, usually null
    BOOL m_bAutoDelete = TRUE;     ///< deleted when the thread ends
    HANDLE m_hThread = nullptr;
    DWORD m_nThreadID = 0;
    LPVOID m_pThreadParams = nullptr;
    AFX_THREADPROC m_pfnThreadProc = nullptr;
#ifndef QVAFX_STRICT
    MSG m_msgCur = {};
#endif

    virtual CWnd* GetMainWnd();
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);

    /// FALSE ends the thread. A worker that has a function comes without.
    virtual BOOL InitInstance();
    virtual int ExitInstance();
    virtual int Run();
    virtual void Delete();  ///< with m_bAutoDelete, of the object
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Takes one message off the queue, waiting for it, and dispatches it. FALSE for WM_QUIT.
    virtual BOOL PumpMessage();
    /// Called with rising counts while the queue is empty; FALSE when there is no more to do.
    virtual BOOL OnIdle(LONG lCount);
    /// Whether idle work is due after this message.
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /// An exception that left a window's handler, or work of the message loop. The result goes to
    /// the message's sender. The exception is deleted by the caller; one that is thrown here ends
    /// there. There may be no memory.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    /// Messages of modal loops that the system runs (menus, message boxes).
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);

protected:
    DECLARE_MESSAGE_MAP()

private:
    BOOL DispatchThreadMessageMap(MSG* pMsg);
    POINT m_ptLastMouse = {-1, -1};
    UINT m_nLastMouseMsg = 0;
};

// In a thread of its own. Null if that cannot be had. With CREATE_SUSPENDED, members may be set
// before ResumeThread.
QVAFX_API CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                                     int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                     DWORD dwCreateFlags = 0,
                                     LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
QVAFX_API CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass,
                                     int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                     DWORD dwCreateFlags = 0,
                                     LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
/// Ends the thread that calls it, from within. Objects on its stack are not destroyed.
[[noreturn]] QVAFX_API void AfxEndThread(UINT nExitCode, BOOL bDelete = TRUE);

class CCommandLineInfo;
class CDocManager;
class CDocTemplate;
class CDocument;
class CRecentFileList;

// CWinApp::m_dwRestartManagerSupportFlags
#define AFX_RESTART_MANAGER_SUPPORT_RESTART 0x01
#define AFX_RESTART_MANAGER_SUPPORT_RECOVERY 0x02
#define AFX_RESTART_MANAGER_AUTOSAVE_AT_RESTART 0x04
#define AFX_RESTART_MANAGER_AUTOSAVE_AT_INTERVAL 0x08
#define AFX_RESTART_MANAGER_REOPEN_PREVIOUS_FILES 0x10
#define AFX_RESTART_MANAGER_RESTORE_AUTOSAVED_FILES 0x20
#define AFX_RESTART_MANAGER_SUPPORT_NO_AUTOSAVE                                   \
    (AFX_RESTART_MANAGER_SUPPORT_RESTART | AFX_RESTART_MANAGER_SUPPORT_RECOVERY | \
     AFX_RESTART_MANAGER_REOPEN_PREVIOUS_FILES)
#define AFX_RESTART_MANAGER_SUPPORT_ALL_ASPECTS 0x3F

#define _AFX_MRU_COUNT 4
#define _AFX_MRU_MAX_COUNT 16

/// Which program shows the help.
enum AFX_HELP_TYPE { afxWinHelp = 0, afxHTMLHelp = 1 };

/// The application. A program has one global object of a class derived from this.
class QVAFX_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)

public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCTSTR m_pszAppName = nullptr;
    LPCTSTR m_pszExeName = nullptr;
    LPCTSTR m_pszRegistryKey = nullptr;
    LPCTSTR m_pszProfileName = nullptr;
    LPCTSTR m_pszHelpFilePath = nullptr;

    virtual BOOL InitApplication();
    BOOL InitInstance() override;
    int ExitInstance() override;
    int Run() override;
    BOOL OnIdle(LONG lCount) override;

    // Documents
    CDocManager* m_pDocManager = nullptr;  ///< owned; made by the first AddDocTemplate
    /// The template belongs to the application from then on.
    void AddDocTemplate(CDocTemplate* pTemplate);
    POSITION GetFirstDocTemplatePosition() const;
    CDocTemplate* GetNextDocTemplate(POSITION& pos) const;
    /// Null on failure, of which the user has been told, and without templates.
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName);
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU);
    CRecentFileList* m_pRecentFileList = nullptr;  ///< owned; by LoadStdProfileSettings
    virtual void AddToRecentFileList(LPCTSTR lpszPathName);
    virtual BOOL SaveAllModified();
    void CloseAllDocuments(BOOL bEndSession);
    int GetOpenDocumentCount();
    /// Asks for a file name; see CDocManager.
    BOOL DoPromptFileName(CString& fileName, UINT nIDSTitle, DWORD lFlags, BOOL bOpenFileDialog,
                          CDocTemplate* pTemplate);

    // How the program begins
    void ParseCommandLine(CCommandLineInfo& rCmdInfo);
    /// FALSE if the program is to end: it has done what it was asked for, or cannot.
    BOOL ProcessShellCommand(CCommandLineInfo& rCmdInfo);
    /// A command of another program: [open("file")], [print("file")] or
    /// [printto("file","printer","driver","port")]. FALSE for any other.
    virtual BOOL OnDDECommand(LPTSTR lpszCommand);
    ATOM m_atomApp = 0;  ///< the name that such programs know this one by; see EnableShellOpen
    ATOM m_atomSystemTopic = 0;
    /// Hides the main window, before its documents close.
    void HideApplication();

    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const;
    HICON LoadOEMIcon(UINT nIDIcon) const;
    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const;
    HCURSOR LoadOEMCursor(UINT nIDCursor) const;

    /// Settings go to HKEY_CURRENT_USER\Software\<key>\<application> once a key is set, before that
    /// to the application's ini file.
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    /// The caller deletes the array of bytes.
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);

    // The printer for all jobs: the default one until the user or the program chooses another.
    UINT m_nNumPreviewPages = 0;  ///< side by side when a preview was closed last
    /// FALSE if there is no printer. The handles in pPrintDlg stay the application's.
    BOOL GetPrinterDeviceDefaults(struct tagPDA* pPrintDlg);
    /// Takes both handles over; two null ones mean the default printer.
    void SelectPrinter(HANDLE hDevNames, HANDLE hDevMode, BOOL bFreeOld = TRUE);
    BOOL CreatePrinterDC(CDC& dc);
    /// Shows the dialog with the application's printer, and keeps the one that comes back.
    INT_PTR DoPrintDialog(CPrintDialog* pPD);

    // Help
    AFX_HELP_TYPE m_eHelpType = afxWinHelp;
    /// Help comes from a compiled HTML file, named as the program, from then on.
    void EnableHtmlHelp();
    AFX_HELP_TYPE GetHelpMode() const { return m_eHelpType; }
    void SetHelpMode(AFX_HELP_TYPE eHelpType);
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F);
    /// nCmd: a HELP_ number, for either kind of help.
    void WinHelpInternal(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);

    // The taskbar and the restart manager
    LPCTSTR m_pszAppID = nullptr;
    DWORD m_dwRestartManagerSupportFlags = 0;  ///< kept; nothing is registered by it
    /// The name under which the taskbar groups the program's windows.
    void SetAppID(LPCTSTR lpcszAppID);
    /// Kept: children of the main window have no tabs in the taskbar either way.
    BOOL EnableTaskbarInteraction(BOOL bEnable = TRUE);
    BOOL IsTaskbarInteractionEnabled() const { return m_bTaskbarInteraction; }

    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    /// 1 shows the wait cursor, -1 takes one call back, 0 shows it again if calls are open.
    virtual void DoWaitCursor(int nCode);
    void EnableModeless(BOOL bEnable);
    BOOL IsWaitCursor() const { return m_nWaitCursorCount > 0; }

    // For the map of an application that wants them: ID_FILE_NEW, ID_FILE_OPEN,
    // ID_FILE_PRINT_SETUP.
    afx_msg void OnFileNew();
    afx_msg void OnFileOpen();
    afx_msg void OnFilePrintSetup();
    /// For ID_HELP, as F1 sends it: asks from the window that has the focus up to the main window
    /// who gives help (WM_COMMANDHELP). Where nobody does, ID_DEFAULT_HELP goes to the main window.
    afx_msg void OnHelp();
    /// For ID_CONTEXT_HELP: the next click asks the window below it what it is about
    /// (WM_HELPHITTEST), and from there up who gives help about that (WM_COMMANDHELP). Escape, or
    /// another program in front, ends it.
    afx_msg void OnContextHelp();
    // For ID_HELP_INDEX, ID_HELP_FINDER (and ID_DEFAULT_HELP), ID_HELP_USING.
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();

protected:
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);
    /// Reads the list of recent files and the preview's pages, which ExitInstance writes back.
    void LoadStdProfileSettings(UINT nMaxMRU = _AFX_MRU_COUNT);
    void SaveStdProfileSettings();
    /// Lets the shell open documents in a program that runs already, by messages (DDE). Before
    /// RegisterShellFileTypes, which tells the shell.
    void EnableShellOpen();
    void RegisterShellFileTypes(BOOL bCompat = FALSE);
    void UnregisterShellFileTypes();
    /// Colours of dialogs and of message boxes of old. What a dialog's own OnCtlColor gives counts.
    void SetDialogBkColor(COLORREF clrCtlBk = RGB(192, 192, 192),
                          COLORREF clrCtlText = RGB(0, 0, 0));
    BOOL Enable3dControls() { return TRUE; }  ///< all controls are
    BOOL Enable3dControlsStatic() { return TRUE; }

    afx_msg void OnAppExit();
    /// Of SetDialogBkColor, with the context's colours; null for what has its own.
    HBRUSH DialogBrush(HDC hDC, UINT nCtlColor);
    afx_msg void OnUpdateRecentFileMenu(CCmdUI* pCmdUI);
    afx_msg BOOL OnOpenRecentFile(UINT nID);

    int m_nWaitCursorCount = 0;
    HCURSOR m_hcurWaitCursorRestore = nullptr;
    HGLOBAL m_hDevMode = nullptr;  ///< of the printer; null: not asked for yet
    HGLOBAL m_hDevNames = nullptr;

    DECLARE_MESSAGE_MAP()

private:
    static constexpr int kAlreadyUp = -1;

    HKEY OpenSection(LPCTSTR lpszSection);
    void PrintFile(const CCommandLineInfo& info);

    int m_nShowWhenAsked = kAlreadyUp;  ///< while the program waits for a message with a file
    BOOL m_bTaskbarInteraction = TRUE;
    CString m_strAppID;
    CBrush m_brDialog;  ///< of SetDialogBkColor
    COLORREF m_clrDialog = 0;
    COLORREF m_clrDialogText = 0;

    CString m_strAppName;
    CString m_strExeName;
    CString m_strRegistryKey;
    CString m_strProfileName;
    CString m_strHelpFilePath;

    friend struct AfxWndAccess;
    friend class CDialog;
};

/// TRUE once the control's module is there.
QVAFX_API BOOL AfxInitRichEdit();
QVAFX_API BOOL AfxInitRichEdit2();

QVAFX_API CWinApp* AfxGetApp();
QVAFX_API CWinThread* AfxGetThread();
QVAFX_API CWnd* AfxGetMainWnd();
QVAFX_API LPCTSTR AfxGetAppName();

QVAFX_API int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
QVAFX_API int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = UINT(-1));
/// Replaces %1 and %2 in a string resource.
QVAFX_API void AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1);
QVAFX_API void AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2);

/// Sets the framework up for the program's only application object.
QVAFX_API BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                          int nCmdShow);
QVAFX_API int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                         int nCmdShow);
/// Takes back what AfxWinInit did; called by AfxWinMain.
QVAFX_API void AfxWinTerm();
QVAFX_API BOOL AfxPumpMessage();
/// What CWinThread::PreTranslateMessage does unless overridden.
QVAFX_API BOOL AfxPreTranslateMessage(MSG* pMsg);
QVAFX_API void AfxPostQuitMessage(int nExitCode);
