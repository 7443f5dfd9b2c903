#include "dialogs/msg_box.h"

#include "dialogs/ask_parts.h"
#include "dialogs/dialog_ids.h"

namespace {

// Icons that are loaded are the system's to free.
HICON FindIcon(LPCSTR pszName) {
    if (pszName == nullptr) {
        return nullptr;
    }
    const HICON hIcon = ::LoadIcon(nullptr, pszName);
    return hIcon != nullptr ? hIcon
                            : ::LoadIcon(AfxFindResourceHandle(pszName, RT_GROUP_ICON), pszName);
}

}  // namespace

BEGIN_MESSAGE_MAP(QVMsgBox, CDialog)
    ON_COMMAND(IDYES, &QVMsgBox::OnClickYes)
    ON_COMMAND(IDNO, &QVMsgBox::OnClickNo)
END_MESSAGE_MAP()

QVMsgBox::QVMsgBox(CWnd* pParent) : CDialog(QV_IDD_MSG_BOX, pParent) {}

void QVMsgBox::SetPrompt(const CString& strPrompt) {
    qv::StoreText(m_strPrompt, strPrompt);
}

void QVMsgBox::SetPrompt(UINT nStringID) {
    qv::StoreText(m_strPrompt, nStringID);
}

void QVMsgBox::SetTitle(const CString& strTitle) {
    qv::StoreText(m_strTitle, strTitle);
}

void QVMsgBox::SetTitle(UINT nStringID) {
    qv::StoreText(m_strTitle, nStringID);
}

void QVMsgBox::SetCheckString(const CString& strCheck) {
    qv::StoreText(m_strCheck, strCheck);
}

void QVMsgBox::SetCheckString(UINT nStringID) {
    qv::StoreText(m_strCheck, nStringID);
}

void QVMsgBox::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, QV_IDC_BOX_ICON, m_wndIcon);
    DDX_Control(pDX, QV_IDC_BOX_CHECK, m_btnCheck);
    DDX_Text(pDX, QV_IDC_BOX_TEXT, m_strPrompt);
    if (!m_strCheck.IsEmpty()) {
        DDX_Check(pDX, QV_IDC_BOX_CHECK, m_nCheck);
    }
}

BOOL QVMsgBox::OnInitDialog() {
    if (!CDialog::OnInitDialog()) {
        return FALSE;  // ended
    }
    qv::ShowTitleAndCheck(*this, m_strTitle, m_btnCheck, m_strCheck, m_bCheckEnabled);
    m_wndIcon.SetIcon(FindIcon(m_pszIcon));
    return TRUE;
}

void QVMsgBox::OnClickYes() {
    EndWith(IDYES);
}

void QVMsgBox::OnClickNo() {
    EndWith(IDNO);
}

void QVMsgBox::EndWith(int nAnswer) {
    UpdateData(TRUE);
    EndDialog(nAnswer);
}
