// QVWaitDlg: a modeless dialog with message, bar and, if asked for, a Cancel button, for a long
// operation on the user-interface thread. QVWaitDlgProgressCallback adapts it to the plain callback
// of common/progress.h.
//
//     QVWaitDlg wait;
//     wait.SetHasCancelButton(TRUE);
//     wait.SetProgressRange(nFiles);
//     wait.Display(this, FALSE);
//     for (int i = 0; i < nFiles && !wait.Cancelled(); ++i) {
//         Copy(i);
//         wait.Step(1);
//     }
//     wait.Remove();
//
// The owner is disabled from Display to Remove, and has then the state that it had before - also
// where the dialog's object is destroyed while displayed, as by an exception, or its window. A
// dialog may be displayed again after Remove; range and position stay. Display of a dialog that is
// displayed removes it first. Where several have the same owner, it comes back with the last of
// them. A child window as owner is disabled alone, and the rest of its frame can be used.
//
// Each Step and SetPosition dispatches what waits in the thread's queue, so any handler of the
// application may run inside. Not for ever, though: what comes while that goes on is left to the
// next call after 20 ms, only keys and mouse of the dialog itself are served still. A handler may
// even delete the dialog, or destroy its owner, with which the dialog's window goes. Where the
// application is told to quit meanwhile, that counts as a cancel, and is told again with its exit
// code when the dialog's window goes.
//
// ESC cancels with and without the button. Enter without a button does nothing.

#pragma once

#include "common/progress.h"
#include "frame/alive.h"
#include "frame/qv_api.h"

#include <afxcmn.h>
#include <afxwin.h>

class QV_CONTROLS_API QVWaitDlg : public CDialog {
public:
    QVWaitDlg();
    ~QVWaitDlg() override;

    // The count that means 100 percent, 100 unless set; the position becomes 0. The bar shows it
    // from the next step on.
    virtual void SetProgressRange(DWORD nRange);
    // That of a string resource, empty if there is none.
    virtual void SetWaitMessage(UINT nStringID);
    // Shown at once if the dialog is displayed, and forgotten when it goes; else kept for each
    // Display. Without a message there is none, not the template's. It has one line; & marks the
    // letter behind it, and && stands for one.
    virtual void SetWaitMessage(LPCSTR pszText);
    // Opens the dialog over pParent, or over the main window, which is disabled. bCapture: the
    // mouse stays with the dialog as long as it is active. 0, and nothing has changed, if the
    // dialog could not be made.
    virtual BOOL Display(CWnd* pParent, BOOL bCapture);
    // The owner comes back, and is made active if it is enabled. Does nothing to a dialog that is
    // not displayed.
    virtual void Remove();
    // These two show the position and dispatch messages, displayed or not. The percentage is made
    // in 32 bits and wrong for positions above 42,949,672: use SetPosition64 there, or scale.
    virtual void Step(DWORD nAmount);
    virtual void SetPosition(DWORD nPos);
    // Whether the user has cancelled since Display.
    virtual BOOL Cancelled();
    // Off unless set. For the next Display.
    virtual void SetHasCancelButton(BOOL bHas);

    // SetPosition for counts of any size. The range is 100 and the position a percentage
    // afterwards.
    void SetPosition64(ULONGLONG nPos, ULONGLONG nRange);

    BOOL OnInitDialog() override;
    // For ESC where the platform would not take it.
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    // Only remembers it: the caller sees it and calls Remove.
    void OnCancel() override;
    // Nothing: the framework's would hide the dialog.
    void OnOK() override;

    void UpdateProgressBar();
    // Dispatches what waits in the thread's queue, for 20 ms and what came before.
    static void ProcessWinMessages();

    afx_msg void OnDestroy();
    afx_msg void OnActivate(UINT nState, CWnd* pOther, BOOL bMinimized);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

    CString m_strMessage;
    DWORD m_nRange = 100;
    DWORD m_nPos = 0;
    CProgressCtrl m_wndProgress;
    BOOL m_bHasCancel = FALSE;
    BOOL m_bCancelled = FALSE;
    CWnd* m_pOwner = nullptr;  // while displayed
    BOOL m_bOwnerEnabled = TRUE;
    BOOL m_bCapture = FALSE;

private:
    friend class QVWaitDlgProgressCallback;

    void TakeOwner(CWnd* pOwner);
    void GiveOwnerBack(bool bActivate);
    static BOOL CALLBACK FindOther(HWND hWnd, LPARAM lSearch);
    void CutOffCancel();
    void ShowProgress();
    void PumpMessages();
    void PumpInput();
    void KeepCapture();

    HWND m_hDisabled = nullptr;  // the owner's window, whose object may be a temporary one
    bool m_bQuit = false;        // to be told again
    int m_nExitCode = 0;
    qv::AliveToken m_alive;
};

// Hands the progress of an operation to a wait dialog, which stays the caller's:
//
//     QVWaitDlgProgressCallback progress(wait);
//     try {
//         CopyAll(progress.CallbackFunction(), progress.CallbackParameter());
//     } catch (QVStatus* pStatus) {  // cancelled, or an error
//         delete pStatus;
//     }
class QV_CONTROLS_API QVWaitDlgProgressCallback {
public:
    explicit QVWaitDlgProgressCallback(QVWaitDlg& dlg) : m_pDlg(&dlg) {}

    virtual QVProgressCallback CallbackFunction() { return Callback; }
    virtual void* CallbackParameter() { return m_pDlg; }
    virtual ~QVWaitDlgProgressCallback() = default;

    // pParam is the dialog; null does nothing. Once the user has cancelled, each call throws a
    // QVStatus of code 263 after its work, whatever its code: the catcher deletes it. So does the
    // call in which the dialog was deleted.
    static void Callback(BYTE nCode, DWORD_PTR dwValue, void* pParam);

protected:
    QVWaitDlg* m_pDlg;
};
