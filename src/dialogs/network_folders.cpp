// The platform's network and shell as a source of folders.

#include "dialogs/folder_name.h"
#include "dialogs/machine_folders.h"
#include "dialogs/shell_objects.h"

#include <memory>
#include <shlobj.h>
#include <winnetwk.h>

namespace {

// Room for one share: 512 characters.
constexpr DWORD kShareBytes = 512 * sizeof(wchar_t);

struct EnumCloser {
    using pointer = HANDLE;
    void operator()(HANDLE hEnum) const { ::WNetCloseEnum(hEnum); }
};

struct TaskFreer {
    void operator()(void* p) const { ::CoTaskMemFree(p); }
};

// False if the shell knows nothing of the path. Its icon comes with the answer and is destroyed.
bool AskShell(const std::wstring& strPath, int& nImage) {
    const qv::ComScope com;
    SHFILEINFOW info{};
    if (strPath.empty() || ::SHGetFileInfoW(strPath.c_str(), 0, &info, sizeof(info),
                                            SHGFI_ICON | SHGFI_SMALLICON) == 0) {
        return false;
    }
    if (info.hIcon != nullptr) {
        ::DestroyIcon(info.hIcon);
    }
    nImage = info.iIcon;
    return true;
}

int ImageOf(const std::wstring& strPath) {
    int nImage = -1;
    AskShell(strPath, nImage);
    return nImage;
}

// False if the reading is to end.
bool Give(const std::wstring& strFolder, const std::wstring& strName, QVFolderTaker& taker) {
    const qv::FolderName name(strFolder, strName, nullptr);
    return name.IsNone() || taker.TakeFolder(name.Get(), ImageOf(qv::PathIn(strFolder, strName)));
}

qv::ShellOwned<IShellFolder> FolderAt(const std::wstring& strPath, IMalloc& malloc) {
    IShellFolder* pDesktop = nullptr;
    if (FAILED(::SHGetDesktopFolder(&pDesktop))) {
        return nullptr;
    }
    const qv::ShellOwned<IShellFolder> desktop(pDesktop);
    std::wstring strParsed = strPath;  // the call wants to write
    ITEMIDLIST* pItem = nullptr;
    ULONG nAttributes = SFGAO_FOLDER | SFGAO_FILESYSTEM;
    if (FAILED(pDesktop->ParseDisplayName(nullptr, nullptr, strParsed.data(), nullptr, &pItem,
                                          &nAttributes))) {
        return nullptr;
    }
    const qv::ShellItem item(pItem, qv::ShellItemFreer{&malloc});
    void* pFolder = nullptr;
    if (FAILED(pDesktop->BindToObject(pItem, nullptr, IID_IShellFolder, &pFolder))) {
        return nullptr;
    }
    return qv::ShellOwned<IShellFolder>(static_cast<IShellFolder*>(pFolder));
}

std::wstring FromBytes(const char* psz, size_t nMost) {
    const int nBytes = static_cast<int>(strnlen(psz, nMost));
    wchar_t szWide[MAX_PATH];
    const int nUnits = ::MultiByteToWideChar(CP_ACP, 0, psz, nBytes, szWide, MAX_PATH);
    return {szWide, static_cast<size_t>(nUnits)};
}

// Empty for a name that has no such form.
std::wstring NameOf(const STRRET& name, const ITEMIDLIST& item) {
    if (name.uType == STRRET_WSTR && name.pOleStr != nullptr) {
        const std::unique_ptr<wchar_t, TaskFreer> text(name.pOleStr);
        return text.get();
    }
    if (name.uType == STRRET_CSTR) {
        return FromBytes(name.cStr, sizeof(name.cStr));
    }
    if (name.uType == STRRET_OFFSET && name.uOffset < item.mkid.cb) {
        return FromBytes(reinterpret_cast<const char*>(&item) + name.uOffset,
                         item.mkid.cb - name.uOffset);
    }
    return {};
}

}  // namespace

void QVNetworkFolders::ListShares(LPCSTR pszMachine, QVFolderTaker& taker) {
    std::wstring strMachine = qv::ShellPath(pszMachine);
    NETRESOURCEW machine{};
    machine.lpRemoteName = strMachine.data();
    HANDLE hEnum = nullptr;
    if (strMachine.empty() ||
        ::WNetOpenEnumW(RESOURCE_GLOBALNET, RESOURCETYPE_DISK, 0, &machine, &hEnum) != NO_ERROR) {
        return;
    }
    const std::unique_ptr<HANDLE, EnumCloser> closer(hEnum);
    for (;;) {
        alignas(NETRESOURCEW) BYTE room[kShareBytes];
        DWORD nEntries = 1;
        DWORD nBytes = sizeof(room);
        if (::WNetEnumResourceW(hEnum, &nEntries, room, &nBytes) != NO_ERROR) {
            return;
        }
        const wchar_t* pszShare = reinterpret_cast<const NETRESOURCEW*>(room)->lpRemoteName;
        const wchar_t* pszName = pszShare != nullptr ? wcsrchr(pszShare, L'\\') : nullptr;
        if (pszName != nullptr && !Give(std::wstring(pszShare, pszName), pszName + 1, taker)) {
            return;
        }
    }
}

void QVNetworkFolders::ListSubfolders(LPCSTR pszPath, QVFolderTaker& taker) {
    const qv::ComScope com;
    const std::wstring strPath = qv::ShellPath(pszPath);
    IMalloc* pMalloc = nullptr;
    if (strPath.empty() || FAILED(::SHGetMalloc(&pMalloc))) {
        return;
    }
    const qv::ShellOwned<IMalloc> malloc(pMalloc);
    const qv::ShellOwned<IShellFolder> folder = FolderAt(strPath, *pMalloc);
    IEnumIDList* pEntries = nullptr;
    if (folder == nullptr || folder->EnumObjects(nullptr, SHCONTF_FOLDERS, &pEntries) != S_OK) {
        return;
    }
    const qv::ShellOwned<IEnumIDList> entries(pEntries);
    ITEMIDLIST* pItem = nullptr;
    while (pEntries->Next(1, &pItem, nullptr) == S_OK) {
        const qv::ShellItem item(pItem, qv::ShellItemFreer{pMalloc});
        STRRET name{};
        if (FAILED(folder->GetDisplayNameOf(pItem, SHGDN_INFOLDER, &name)) ||
            !Give(strPath, NameOf(name, *pItem), taker)) {
            return;
        }
    }
}

BOOL QVNetworkFolders::MachineAnswers(LPCSTR pszMachine) {
    int nImage;
    return AskShell(qv::ShellPath(pszMachine), nImage);
}

int QVNetworkFolders::GetImage(LPCSTR pszPath) {
    return ImageOf(qv::ShellPath(pszPath));
}
