#include "dialogs/msg_prompt_dlg.h"

#include "dialogs/ask_parts.h"
#include "dialogs/dialog_ids.h"

BEGIN_MESSAGE_MAP(QVMsgPromptDlg, CDialog)
    ON_EN_CHANGE(QV_IDC_PROMPT_VALUE, &QVMsgPromptDlg::OnChangeDataValue)
END_MESSAGE_MAP()

QVMsgPromptDlg::QVMsgPromptDlg(CWnd* pParent) : CDialog(QV_IDD_MSG_PROMPT, pParent) {}

void QVMsgPromptDlg::SetPrompt(const CString& strPrompt) {
    qv::StoreText(m_strPrompt, strPrompt);
}

void QVMsgPromptDlg::SetPrompt(UINT nStringID) {
    qv::StoreText(m_strPrompt, nStringID);
}

void QVMsgPromptDlg::SetTitle(const CString& strTitle) {
    qv::StoreText(m_strTitle, strTitle);
}

void QVMsgPromptDlg::SetTitle(UINT nStringID) {
    qv::StoreText(m_strTitle, nStringID);
}

void QVMsgPromptDlg::SetCheckString(const CString& strCheck) {
    qv::StoreText(m_strCheck, strCheck);
}

void QVMsgPromptDlg::SetCheckString(UINT nStringID) {
    qv::StoreText(m_strCheck, nStringID);
}

void QVMsgPromptDlg::SetValue(const CString& strValue) {
    qv::StoreText(m_strValue, strValue);
}

void QVMsgPromptDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, QV_IDC_PROMPT_VALUE, m_editValue);
    DDX_Control(pDX, IDOK, m_btnOK);
    DDX_Control(pDX, QV_IDC_PROMPT_CHECK, m_btnCheck);
    DDX_Text(pDX, QV_IDC_PROMPT_VALUE, m_strValue);
    DDX_Text(pDX, QV_IDC_PROMPT_TEXT, m_strPrompt);
    if (!m_strCheck.IsEmpty()) {
        DDX_Check(pDX, QV_IDC_PROMPT_CHECK, m_nCheck);
    }
}

BOOL QVMsgPromptDlg::OnInitDialog() {
    if (!CDialog::OnInitDialog()) {
        return FALSE;  // ended
    }
    qv::ShowTitleAndCheck(*this, m_strTitle, m_btnCheck, m_strCheck, m_bCheckEnabled);
    if (m_nDataLen != -1) {
        m_editValue.SendMessage(EM_LIMITTEXT, static_cast<UINT>(m_nDataLen));
    }
    m_editValue.SetFocus();
    m_editValue.SendMessage(EM_SETSEL, 0, -1);
    m_editValue.SendMessage(EM_SCROLLCARET);
    OnChangeDataValue();
    return FALSE;  // the focus is where it belongs
}

void QVMsgPromptDlg::OnChangeDataValue() {
    if (!m_bAllowZeroLen) {
        m_btnOK.EnableWindow(m_editValue.GetWindowTextLength() > 0);
    }
}
