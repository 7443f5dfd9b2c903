#include "opening.h"

#include "resource.h"
#include "sources/code_page.h"
#include "sources/install_dates.h"

#include <afxdlgs.h>

namespace {

constexpr char kDatabases[] = "Package databases (status*)|status*|All files|*.*||";

CString Ask(QVFileDialogEx& dialog, UINT nTitle, UINT nButton) {
    dialog.SetDlgTitle(nTitle);
    dialog.SetOkButtonText(nButton);
    return dialog.DoModal() == IDOK ? dialog.GetPathName() : CString();
}

}  // namespace

CString AskForDatabase(CWnd& parent) {
    QVFileDialogEx dialog(TRUE, nullptr, "status", OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, kDatabases,
                          &parent);
    return Ask(dialog, IDS_OPEN_DATABASE, IDS_SHOW);
}

CString AskForDatabaseBefore(CWnd& parent, const CString& strShown) {
    CFileStatus status;
    const CString strOld = strShown + "-old";
    const bool bOld = !strShown.IsEmpty() && CFile::GetStatus(strOld, status);
    QVFileDialogEx dialog(TRUE, nullptr, bOld ? static_cast<LPCSTR>(strOld) : "status",
                          OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, kDatabases, &parent);
    return Ask(dialog, IDS_COMPARE_WITH, IDS_COMPARE);
}

CString AskForSnapshot(CWnd& parent) {
    QVFileDialogEx dialog(FALSE, nullptr, CTime::GetCurrentTime().Format("status-%Y-%m-%d"),
                          OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, kDatabases, &parent);
    return Ask(dialog, IDS_SAVE_SNAPSHOT, IDS_SAVE);
}

bool ReadDatabase(Work& work, const CString& strFile, std::vector<Package>& packages,
                  Problem& problem) {
    const bool bRead = ReadPackages(static_cast<LPCTSTR>(strFile), packages, problem,
                                    [&](std::uint64_t nDone, std::uint64_t nAll) {
                                        work.Step(nDone, nAll);
                                        return true;
                                    });
    ReadInstallDates(strFile, packages);
    ToProcessCodePage(packages);
    return bRead;
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
