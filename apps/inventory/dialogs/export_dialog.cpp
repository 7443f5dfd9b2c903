#include "dialogs/export_dialog.h"

#include "QVControls.h"

BEGIN_MESSAGE_MAP(ExportDialog, CDialog)
    ON_COMMAND(IDC_EXPORT_BROWSE, OnBrowse)
END_MESSAGE_MAP()

BOOL ExportDialog::OnInitDialog() {
    auto* pSeparators = static_cast<CComboBox*>(GetDlgItem(IDC_EXPORT_SEPARATOR));
    for (const char* psz : {"TAB", "Comma", "Semicolon", "Bar"}) {
        pSeparators->AddString(psz);
    }
    return CDialog::OnInitDialog();
}

void ExportDialog::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_EXPORT_PATH, m_strPath);
    DDX_CBIndex(pDX, IDC_EXPORT_SEPARATOR, m_nSeparator);
    if (pDX->m_bSaveAndValidate && m_strPath.IsEmpty()) {
        AfxMessageBox("Name the file that the list is to be written to.", MB_ICONINFORMATION);
        pDX->Fail();
    }
}

void ExportDialog::OnBrowse() {
    CString strPath;
    GetDlgItemText(IDC_EXPORT_PATH, strPath);
    QVFileDialogEx dialog(FALSE, "txt", strPath, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                          "Text files|*.txt|All files|*.*||", this);
    dialog.SetDlgTitle(IDS_LIST_FILE);
    if (dialog.DoModal() == IDOK) {
        SetDlgItemText(IDC_EXPORT_PATH, dialog.GetPathName());
    }
}
