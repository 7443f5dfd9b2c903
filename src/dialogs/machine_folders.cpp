#include "dialogs/machine_folders.h"

#include "dialogs/folder_name.h"

#include <memory>

namespace {

struct FindCloser {
    using pointer = HANDLE;
    void operator()(HANDLE hFind) const { ::FindClose(hFind); }
};

bool IsShownFolder(const WIN32_FIND_DATAW& entry) {
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 &&
           wcscmp(entry.cFileName, L".") != 0 && wcscmp(entry.cFileName, L"..") != 0;
}

}  // namespace

QVMachineFolders::~QVMachineFolders() = default;

QVMachineFolders& QVMachineFolders::Network() {
    static QVNetworkFolders s_network;
    return s_network;
}

void QVFileFolders::ListShares(LPCSTR pszMachine, QVFolderTaker& taker) {
    ListSubfolders(pszMachine, taker);
}

void QVFileFolders::ListSubfolders(LPCSTR pszPath, QVFolderTaker& taker) {
    const std::wstring strFolder = qv::ShellPath(pszPath);
    if (strFolder.empty()) {
        return;
    }
    WIN32_FIND_DATAW entry;
    const HANDLE hFind = ::FindFirstFileW(qv::PathIn(strFolder, L"*").c_str(), &entry);
    if (hFind == INVALID_HANDLE_VALUE) {
        return;
    }
    const std::unique_ptr<HANDLE, FindCloser> closer(hFind);
    const int nImage = GetImage(pszPath);
    do {
        if (!IsShownFolder(entry)) {
            continue;
        }
        const qv::FolderName name(strFolder, entry.cFileName, entry.cAlternateFileName);
        if (!name.IsNone() && !taker.TakeFolder(name.Get(), nImage)) {
            return;
        }
    } while (::FindNextFileW(hFind, &entry));
}

BOOL QVFileFolders::MachineAnswers(LPCSTR pszMachine) {
    const std::wstring strMachine = qv::ShellPath(pszMachine);
    return !strMachine.empty() &&
           ::GetFileAttributesW(strMachine.c_str()) != INVALID_FILE_ATTRIBUTES;
}

int QVFileFolders::GetImage(LPCSTR) {
    SHFILEINFOW info{};
    return ::SHGetFileInfoW(L"folder", FILE_ATTRIBUTE_DIRECTORY, &info, sizeof(info),
                            SHGFI_USEFILEATTRIBUTES | SHGFI_SYSICONINDEX | SHGFI_SMALLICON) != 0
               ? info.iIcon
               : -1;
}
