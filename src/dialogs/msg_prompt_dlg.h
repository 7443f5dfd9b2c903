// QVMsgPromptDlg: asks for one line of text, with a check box below if it is given a text.
//
//     QVMsgPromptDlg dlg(this);
//     dlg.SetPrompt("Name of the report:");
//     dlg.SetValue(m_strName);
//     if (dlg.DoModal() == IDOK) {
//         m_strName = dlg.GetValue();
//
// Set it up, DoModal, read: setters do nothing to a dialog that is open. DoModal gives IDOK,
// IDCANCEL
// - value and check state are what was set then - or -1 if the dialog could not be made. The prompt
// has one line. A string id that does not load gives an empty text. In prompt and check text &
// marks the letter behind it, and && stands for one.

#pragma once

#include "frame/qv_api.h"

#include <afxwin.h>

class QV_CONTROLS_API QVMsgPromptDlg : public CDialog {
public:
    explicit QVMsgPromptDlg(CWnd* pParent = nullptr);

    void SetPrompt(const CString& strPrompt);
    void SetPrompt(UINT nStringID);
    // Empty: "Enter Data".
    void SetTitle(const CString& strTitle);
    void SetTitle(UINT nStringID);
    // Empty: no check box.
    void SetCheckString(const CString& strCheck);
    void SetCheckString(UINT nStringID);
    // 0 or 1. Without a check box it is what was set.
    void SetCheckState(int nState) { m_nCheck = nState; }
    int CheckState() const { return m_nCheck; }
    // 0: the check box shows its state and cannot be changed.
    void EnableCheck(BOOL bEnable) { m_bCheckEnabled = bEnable; }

    void SetValue(const CString& strValue);
    const CString& GetValue() const { return m_strValue; }
    // The most that can be typed, in characters as the platform's edit counts them (units of its
    // wide text, not bytes). -1: no limit is set; 0: the platform's own limit.
    void SetDataLen(int nMax) { m_nDataLen = nMax; }
    // 0: OK is disabled while there is no text.
    void SetAllowZeroLen(BOOL bAllow) { m_bAllowZeroLen = bAllow; }

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;

    afx_msg void OnChangeDataValue();
    DECLARE_MESSAGE_MAP()

    CButton m_btnOK;
    CEdit m_editValue;
    CButton m_btnCheck;
    CString m_strPrompt;
    CString m_strValue;
    CString m_strTitle;
    int m_nDataLen = -1;
    BOOL m_bAllowZeroLen = FALSE;
    CString m_strCheck;
    BOOL m_bCheckEnabled = TRUE;
    int m_nCheck = 0;
};
