// The system's common dialogs, and property sheets.
#pragma once

#define __AFXDLGS_H__

#include <afxcmn.h>
#include <afxwin.h>

#include <vector>

class QVAFX_API CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* pParentWnd);

protected:
    // The system's dialog does what is to be done then.
    void OnOK() override;
    void OnCancel() override;

    /// Shows the system's dialog, whose hook is SystemDialogHook and makes this object the
    /// dialog's. IDOK if it gave TRUE.
    INT_PTR RunSystemDialog(HWND hWndOwner, BOOL (*pfnShow)(CCommonDialog*));
    static UINT_PTR CALLBACK SystemDialogHook(HWND hWnd, UINT message, WPARAM wParam,
                                              LPARAM lParam);
};

/// Opening and saving files. While the system's dialog is open, this object is a child window of
/// it: GetParent() is the dialog that the user sees. Without OFN_ENABLEHOOK in m_ofn.Flags it has
/// no window, and none of the virtual functions is called.
class QVAFX_API CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)

public:
    /// lpszFilter: pairs of description and pattern, each ended by a bar, one more bar at the end.
    /// The last two do not count: the dialog is always the one that hooks work in.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr,
                         LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                         LPCTSTR lpszFilter = nullptr, CWnd* pParentWnd = nullptr, DWORD dwSize = 0,
                         BOOL bVistaStyle = TRUE);

    OPENFILENAME& GetOFN() { return m_ofn; }
    const OPENFILENAME& GetOFN() const { return m_ofn; }
    OPENFILENAME m_ofn;  ///< may be changed before DoModal
    BOOL m_bOpenFileDialog;

    INT_PTR DoModal() override;

    // What was chosen; while the dialog is open, what it shows.
    CString GetPathName() const;    ///< the whole path
    CString GetFileName() const;    ///< name and extension
    CString GetFileExt() const;     ///< without the dot
    CString GetFileTitle() const;   ///< the name alone
    CString GetFolderPath() const;  ///< empty unless the dialog is open
    BOOL GetReadOnlyPref() const;
    /// With OFN_ALLOWMULTISELECT: one path after the other. The position ends as null.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& pos) const;

    // The system's controls, while the dialog is open.
    void SetControlText(int nID, LPCSTR lpsz);
    void HideControl(int nID);
    void SetDefExt(LPCSTR lpsz);

protected:
    // What the user does. OnFileNameOK gives TRUE, OnShareViolation a value other than
    // OFN_SHAREWARN, to take the decision from the system: TRUE keeps the dialog open,
    // OFN_SHAREFALLTHROUGH takes the name, OFN_SHARENOWARN goes back without a message.
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);
    virtual BOOL OnFileNameOK();
    /// Of dialogs without OFN_EXPLORER.
    virtual void OnLBSelChangedNotify(UINT nIDBox, UINT iCurSel, UINT nCode);
    virtual void OnInitDone();  ///< all controls are where they will be
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnTypeChange();

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    CString m_strFilter;  ///< m_ofn.lpstrFilter points into it

private:
    static UINT_PTR CALLBACK HookProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    UINT_PTR OnHookMessage(UINT message, WPARAM wParam, LPARAM lParam);
    CString Ask(UINT message) const;
    void MakeRoomForMany();

    TCHAR m_szFileTitle[3 * MAX_PATH] = {};  // MAX_PATH characters in UTF-8
    TCHAR m_szFileName[8 * MAX_PATH] = {};
    std::vector<TCHAR> m_manyNames;  ///< in place of that, while several files may be chosen
};

/// Choosing a printer and what to print on it, or asking for the default printer. Whoever uses it
/// deletes m_pd.hDC and frees m_pd.hDevMode and m_pd.hDevNames in the end.
class QVAFX_API CPrintDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CPrintDialog)

public:
    /// Unless bPrintSetupOnly, a device context comes with the answer.
    explicit CPrintDialog(BOOL bPrintSetupOnly,
                          DWORD dwFlags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS |
                                          PD_HIDEPRINTTOFILE | PD_NOSELECTION,
                          CWnd* pParentWnd = nullptr);

    PRINTDLG& m_pd;  ///< may be changed before DoModal

    INT_PTR DoModal() override;
    /// Asks for the default printer without showing anything. FALSE if there is none, or if m_pd
    /// has printer settings already.
    BOOL GetDefaults();

    // The answer of either.
    int GetCopies() const;
    BOOL PrintAll() const;
    BOOL PrintRange() const;
    BOOL PrintSelection() const;
    BOOL PrintCollate() const;
    int GetFromPage() const;  ///< -1 unless a range was chosen
    int GetToPage() const;    ///< -1 unless a range was chosen
    CString GetDeviceName() const;
    CString GetDriverName() const;
    CString GetPortName() const;
    /// Locked: call GlobalUnlock on m_pd.hDevMode afterwards. Null without a printer.
    LPDEVMODE GetDevMode() const;
    HDC GetPrinterDC() const { return m_pd.hDC; }
    /// Makes a new one, which m_pd.hDC names from then on. Null without a printer.
    HDC CreatePrinterDC();

private:
    PRINTDLG m_pdActual;
};

#include "afx/dialogs/choose_dialogs.h"
#include "afx/dialogs/find_replace_dialog.h"
#include "afx/dialogs/page_setup_dialog.h"
#include "afx/dialogs/prop_sheet.h"
