#include "walk/walk.h"

#include "resource.h"

namespace {

constexpr char kStatusFile[] = "Z:\\var\\lib\\dpkg\\status";
// This machine as it is seen over the network: its root as a shared folder. Under Wine that is a
// link in the prefix.
constexpr char kMachine[] = "localhost";
constexpr char kRoot[] = "\\\\localhost\\root";

CString TextOfFocus() {
    char szText[MAX_PATH] = "";
    ::GetWindowText(::GetFocus(), szText, MAX_PATH);
    return szText;
}

void Type(const char* psz) {
    for (; *psz != '\0'; ++psz) {
        Press(static_cast<WORD>(std::toupper(*psz)));
    }
}

bool IsThere(const CString& strPath) {
    return ::GetFileAttributes(strPath) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace

bool Walk::OpenDatabase() {
    const CString strFile = m_strFolder + "\\status-of-another";
    if (!::CopyFile(kStatusFile, strFile, FALSE)) {
        std::printf("walk: no package database to open\n");
        return true;
    }
    return InDialog(
               "Open a package database", [] { Press('O', VK_CONTROL); },
               [&](CWnd& dialog) {
                   CString strButton;
                   dialog.GetDlgItemText(IDOK, strButton);
                   ::SetWindowText(::GetFocus(), strFile);
                   const bool bGood =
                       Happened("the button says what it does", strButton == "Show") &&
                       Station("open-1-file-dialog");
                   Press(VK_RETURN);
                   return bGood;
               }) &&
           Expect("another database is shown",
                  [&] { return m_frame.Settings().Database() == strFile; }) &&
           Happened("with its packages", List().GetItemCount() > 0);
}

bool Walk::OpenMachine() {
    const CString strDatabase = CString(kRoot) + "\\var\\lib\\dpkg\\status";
    if (!IsThere(strDatabase)) {
        std::printf("walk: no shared folder %s with a package database\n", kRoot);
        return true;
    }
    QVFileFolders folders;
    m_frame.UseMachines(folders);
    const bool bGood =
        InDialog(
            "Installation Location ", [this] { m_frame.PostMessage(WM_COMMAND, ID_OPEN_MACHINE); },
            [this](CWnd&) { return NameMachine(); }) &&
        Expect("the packages of a machine on the network are shown",
               [&] { return m_frame.Settings().Database() == strDatabase; }) &&
        Happened("on their page", m_frame.Packages().IsWindowVisible() != FALSE) &&
        Station("open-5-machine-opened");
    m_frame.UseMachines(QVMachineFolders::Network());
    return bGood && Happened("this machine's own come back", m_frame.Open("", false) != FALSE);
}

// In the dialog that asks for a machine: one that does not answer, then one that does.
bool Walk::NameMachine() {
    Type("nowhere");
    if (!Expect("a machine is named", [] { return TextOfFocus() == "nowhere"; }) ||
        !InDialog(
            "Inventory", [] { Press(VK_RETURN); },
            [this](CWnd&) {
                const bool bGood = Station("open-2-no-answer");
                Press(VK_RETURN);
                return bGood;
            }) ||
        !Expect("the field is active again", [] { return TextOfFocus() == "nowhere"; })) {
        return false;
    }
    Type(kMachine);
    if (!Expect("another machine is named", [] { return TextOfFocus() == kMachine; }) ||
        !Station("open-3-find-installation")) {
        return false;
    }
    WhileUp("Browse Machine", [this](CWnd& dialog) { return ChooseFolderOf(dialog); });
    Press(VK_RETURN);
    return true;
}

// In the tree of a machine's folders: its root, with the folders in it.
bool Walk::ChooseFolderOf(CWnd& dialog) {
    const CWnd* pOK = dialog.GetDlgItem(IDOK);
    Press(VK_DOWN);
    HandleMessages();
    if (!Happened("the machine itself cannot be chosen", !pOK->IsWindowEnabled())) {
        return false;
    }
    Press(VK_DOWN);
    if (!Expect("a shared folder can", [&] { return pOK->IsWindowEnabled() != FALSE; })) {
        return false;
    }
    Press(VK_RIGHT);
    HandleMessages();
    const bool bGood = Station("open-4-browse-machine");
    Press(VK_RETURN);
    return bGood;
}
