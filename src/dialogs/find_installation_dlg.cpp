#include "dialogs/find_installation_dlg.h"

#include "dialogs/ask_parts.h"
#include "dialogs/browse_dlg.h"
#include "dialogs/dialog_ids.h"

#include <shlobj.h>

BEGIN_MESSAGE_MAP(QVFindInstallationDlg, CDialog)
    ON_BN_CLICKED(QV_IDC_INSTALLATION_BROWSE, &QVFindInstallationDlg::OnBrowse)
    ON_EN_CHANGE(QV_IDC_INSTALLATION_MACHINE, &QVFindInstallationDlg::UpdateControls)
END_MESSAGE_MAP()

QVFindInstallationDlg::QVFindInstallationDlg(CWnd* pParent)
    : CDialog(QV_IDD_FIND_INSTALLATION, pParent) {}

void QVFindInstallationDlg::SetInstallationMachine(LPCSTR pszMachine) {
    qv::StoreText(m_strInstallationMachine, pszMachine);
}

// The text before a field takes the gap between them as well: fonts may be wider than the
// template's.
static void WidenLabelOf(CWnd& field) {
    CWnd* const pLabel = field.GetWindow(GW_HWNDPREV);
    CWnd* const pParent = field.GetParent();
    if (pLabel == nullptr || pParent == nullptr) {
        return;
    }
    CRect rcField;
    CRect rcLabel;
    field.GetWindowRect(&rcField);
    pLabel->GetWindowRect(&rcLabel);
    if (rcLabel.left < rcField.left && rcLabel.right < rcField.left) {
        pLabel->SetWindowPos(nullptr, 0, 0, rcField.left - rcLabel.left, rcLabel.Height(),
                             SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void QVFindInstallationDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDOK, m_btnOK);
    DDX_Text(pDX, QV_IDC_INSTALLATION_MACHINE, m_strInstallationMachine);
    if (pDX->m_bSaveAndValidate) {
        CheckMachine(pDX);
    } else {
        WidenLabelOf(*GetDlgItem(QV_IDC_INSTALLATION_MACHINE));
        UpdateControls();
    }
}

// Who is asked, and whoever runs while the message shows, may take the dialog away. Then nothing of
// it is touched any more, and the exchange ends all the same.
void QVFindInstallationDlg::CheckMachine(CDataExchange* pDX) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const CString strMachine(m_strInstallationMachine);
    QVMachineFolders& folders = m_pFolders != nullptr ? *m_pFolders : QVMachineFolders::Network();
    const BOOL bAnswers = folders.MachineAnswers("\\\\" + strMachine);
    if (bAnswers && watch) {
        return;
    }
    if (watch) {
        CString strMessage;
        strMessage.Format(QV_IDS_NO_MACHINE, static_cast<LPCSTR>(strMachine));
        AfxMessageBox(strMessage, MB_ICONEXCLAMATION);
    }
    if (watch) {
        pDX->PrepareEditCtrl(QV_IDC_INSTALLATION_MACHINE);
    }
    pDX->Fail();
}

CString QVFindInstallationDlg::TypedMachine() const {
    CString strMachine;
    GetDlgItemText(QV_IDC_INSTALLATION_MACHINE, strMachine);
    strMachine.TrimLeft();
    strMachine.TrimRight();
    return strMachine;
}

void QVFindInstallationDlg::OnBrowse() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    QVBrowseDlg dlg(this);
    dlg.SetPromptString(QV_IDS_BROWSE_INSTALLATION);
    dlg.SetFolderLocation(CSIDL_NETWORK);
    dlg.SetBrowseComputers();
    dlg.SetItemPath(TypedMachine());
    if (dlg.DoModal() == IDOK && watch) {
        SetDlgItemText(QV_IDC_INSTALLATION_MACHINE, dlg.GetItemPath());
    }
}

void QVFindInstallationDlg::UpdateControls() {
    m_btnOK.EnableWindow(!TypedMachine().IsEmpty());
}
