// Threads and the application: message pump, idle time, services that an application overrides.
#pragma once

#include "afx/window/wnd.h"

#include <afxcoll.h>

class CPrintDialog;

/// A thread with a message pump. The application object is the main thread's.
class QVAFX_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;    ///< closing it ends the application
    CWnd* m_pActiveWnd = nullptr;  ///< main window of an in-place container, usually null
    BOOL m_bAutoDelete = TRUE;
    HANDLE m_hThread = nullptr;
    DWORD m_nThreadID = 0;
    MSG m_msgCur = {};

    virtual CWnd* GetMainWnd();
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);

    virtual BOOL InitInstance();
    virtual int ExitInstance();
    virtual int Run();
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

class CDocManager;
class CDocTemplate;
class CDocument;

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
    virtual void AddToRecentFileList(LPCTSTR lpszPathName);  ///< no such list is kept here
    virtual BOOL SaveAllModified();
    void CloseAllDocuments(BOOL bEndSession);
    int GetOpenDocumentCount();
    /// Asks for a file name; see CDocManager.
    BOOL DoPromptFileName(CString& fileName, UINT nIDSTitle, DWORD lFlags, BOOL bOpenFileDialog,
                          CDocTemplate* pTemplate);

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

    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    /// 1 shows the wait cursor, -1 takes one call back, 0 shows it again if calls are open.
    virtual void DoWaitCursor(int nCode);
    void EnableModeless(BOOL bEnable);
    BOOL IsWaitCursor() const { return m_nWaitCursorCount > 0; }

protected:
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);

    // For ID_FILE_NEW and ID_FILE_OPEN, in the map of an application that wants them.
    afx_msg void OnFileNew();
    afx_msg void OnFileOpen();
    afx_msg void OnAppExit();
    afx_msg void OnFilePrintSetup();
    /// For ID_HELP, as F1 sends it: asks from the window that has the focus up to the main window
    /// who gives help (WM_COMMANDHELP).
    afx_msg void OnHelp();

    int m_nWaitCursorCount = 0;
    HCURSOR m_hcurWaitCursorRestore = nullptr;
    HGLOBAL m_hDevMode = nullptr;  ///< of the printer; null: not asked for yet
    HGLOBAL m_hDevNames = nullptr;

    DECLARE_MESSAGE_MAP()

private:
    HKEY OpenSection(LPCTSTR lpszSection);

    CString m_strAppName;
    CString m_strExeName;
    CString m_strRegistryKey;
    CString m_strProfileName;
    CString m_strHelpFilePath;

    friend struct AfxWndAccess;
};

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
