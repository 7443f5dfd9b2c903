#include "opening.h"

#include "resource.h"

#include <afxdlgs.h>

CString AskForDatabase(CWnd& parent) {
    QVFileDialogEx dialog(TRUE, nullptr, "status", OFN_HIDEREADONLY | OFN_FILEMUSTEXIST,
                          "Package databases (status*)|status*|All files|*.*||", &parent);
    dialog.SetDlgTitle(IDS_OPEN_DATABASE);
    dialog.SetOkButtonText(IDS_SHOW);
    return dialog.DoModal() == IDOK ? dialog.GetPathName() : CString();
}

bool AskForMachinesFolder(CWnd& parent, QVMachineFolders& folders, CString& strMachine,
                          CString& strFolder) {
    QVFindInstallationDlg find(&parent);
    find.SetMachineFolders(&folders);
    find.SetInstallationMachine(strMachine);
    if (find.DoModal() != IDOK) {
        return false;
    }
    CString strNamed = find.InstallationMachine();
    strNamed.TrimLeft(" \t\\");
    strNamed.TrimRight();
    CString strPrompt;
    strPrompt.Format(IDS_MACHINES_FOLDER, static_cast<LPCTSTR>(strNamed));
    QVBrowseMachineDlg browse(&parent);
    browse.SetMachineFolders(&folders);
    browse.SetMachineName(strNamed);
    browse.SetPromptString(strPrompt);
    if (strNamed == strMachine) {
        browse.SetItemPath(strFolder);
    }
    strMachine = strNamed;
    if (browse.DoModal() != IDOK) {
        return false;
    }
    strFolder = browse.GetItemPath();
    return true;
}

CString DatabaseIn(const CString& strFolder) {
    const QVFileSystem files;
    for (const char* pszPlace : {"status", "var\\lib\\dpkg\\status"}) {
        QVPath path(strFolder);
        path.Append(pszPlace);
        if (files.Exists(path) && !files.IsFolder(path)) {
            return path.GetPath();
        }
    }
    return "";
}
