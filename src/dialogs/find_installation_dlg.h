// QVFindInstallationDlg: asks for the name of a machine, which can be browsed for. OK takes it only
// if the machine answers; else a message says so, and the dialog stays with the name to be typed
// anew.
//
//     QVFindInstallationDlg dlg(this);
//     dlg.SetInstallationMachine(m_strMachine);
//     if (dlg.DoModal() == IDOK) {
//         m_strMachine = dlg.InstallationMachine();
//
// Who answers is the platform's network, or an object of the application's (machine_folders.h).

#pragma once

#include "dialogs/machine_folders.h"
#include "frame/alive.h"

class QV_CONTROLS_API QVFindInstallationDlg : public CDialog {
public:
    explicit QVFindInstallationDlg(CWnd* pParent = nullptr);

    void SetInstallationMachine(LPCSTR pszMachine);
    /// As it was typed, after IDOK.
    const CString& InstallationMachine() const { return m_strInstallationMachine; }
    /// Not owned; null stands for the platform's network.
    void SetMachineFolders(QVMachineFolders* pFolders) { m_pFolders = pFolders; }

protected:
    void DoDataExchange(CDataExchange* pDX) override;

    afx_msg void OnBrowse();
    /// OK is enabled while there is a name.
    afx_msg void UpdateControls();
    DECLARE_MESSAGE_MAP()

    CButton m_btnOK;
    CString m_strInstallationMachine;

private:
    CString TypedMachine() const;
    void CheckMachine(CDataExchange* pDX);

    QVMachineFolders* m_pFolders = nullptr;
    qv::AliveToken m_alive;
};
