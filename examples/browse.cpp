// Four dialogs that ask where something is: a folder, a file, a folder of another machine, a
// machine.
#include "resource.h"

#include <QVControls.h>
#include <shlobj.h>

class PlacesDlg : public CDialog {
public:
    PlacesDlg() : CDialog(IDD_BROWSE) {}

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        CHAR szFolder[MAX_PATH];
        ::GetWindowsDirectoryA(szFolder, MAX_PATH);
        SetDlgItemText(IDC_CHOSEN, szFolder);
        return TRUE;
    }

private:
    CString Chosen() {
        CString strChosen;
        GetDlgItemText(IDC_CHOSEN, strChosen);
        return strChosen;
    }
    afx_msg void OnFolder() {
        QVBrowseDlg dlg(this);
        dlg.SetPromptString("Folder:");
        dlg.SetFolderLocation(CSIDL_DRIVES);  // nothing above the drives
        dlg.SetItemPath(Chosen());            // opened and selected
        if (dlg.DoModal() == IDOK) {
            SetDlgItemText(IDC_CHOSEN, dlg.GetItemPath());
        }
    }
    afx_msg void OnFile() {
        QVFileDialogEx dlg(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY,
                           "Settings (*.ini)|*.ini|All files (*.*)|*.*||", this);
        dlg.SetSelectFileDlg();  // it selects a file rather than opening one, and says so
        if (dlg.DoModal() == IDOK) {
            SetDlgItemText(IDC_CHOSEN, dlg.GetPathName());
        }
    }
    afx_msg void OnMachine() {
        CString strMachine = "localhost";
        QVBrowseMachineDlg dlg(this);
        dlg.SetMachineName(strMachine);  // first: it empties the path
        dlg.SetItemPath(Chosen());
        if (dlg.DoModal() == IDOK) {
            SetDlgItemText(IDC_CHOSEN, dlg.GetItemPath());
        }
    }
    afx_msg void OnInstallation() {
        QVFindInstallationDlg dlg(this);  // ends with OK only for a machine that answers
        dlg.SetInstallationMachine("localhost");
        if (dlg.DoModal() == IDOK) {
            SetDlgItemText(IDC_CHOSEN, dlg.InstallationMachine());
        }
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PlacesDlg, CDialog)
    ON_BN_CLICKED(IDC_BROWSE, &PlacesDlg::OnFolder)
    ON_BN_CLICKED(IDC_FILE, &PlacesDlg::OnFile)
    ON_BN_CLICKED(IDC_MACHINE, &PlacesDlg::OnMachine)
    ON_BN_CLICKED(IDC_INSTALLATION, &PlacesDlg::OnInstallation)
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override {
        PlacesDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
} theApp;
