#include "dialogs/browse_dlg.h"

#include "common/wide_path.h"
#include "dialogs/ask_parts.h"
#include "dialogs/shell_objects.h"

#include <shlobj.h>

namespace {

// What has no name in the process's code page comes with other characters in place of some.
CString PathText(const wchar_t* pszPath) {
    const CString strPath = qv::NarrowPath(pszPath);
    return strPath.IsEmpty() ? CString(pszPath) : strPath;
}

// What the shortcut at that path points to; false if there is none.
bool Resolve(const wchar_t* pszPath, CString& strTarget) {
    void* pMade = nullptr;
    if (FAILED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                  &pMade))) {
        return false;
    }
    const qv::ShellOwned<IShellLinkW> link(static_cast<IShellLinkW*>(pMade));
    if (FAILED(link->QueryInterface(IID_IPersistFile, &pMade))) {
        return false;
    }
    const qv::ShellOwned<IPersistFile> file(static_cast<IPersistFile*>(pMade));
    wchar_t szTarget[MAX_PATH] = L"";
    if (FAILED(file->Load(pszPath, STGM_READ)) || FAILED(link->Resolve(nullptr, SLR_NO_UI)) ||
        FAILED(link->GetPath(szTarget, MAX_PATH, nullptr, SLGP_UNCPRIORITY)) || szTarget[0] == 0) {
        return false;
    }
    strTarget = PathText(szTarget);
    return true;
}

}  // namespace

QVBrowseDlg::QVBrowseDlg(CWnd* pParent)
    : m_hWndParent(pParent->GetSafeHwnd()),
      m_nBrowseFlags(BIF_RETURNONLYFSDIRS),
      m_nFolderLocation(CSIDL_NETWORK) {}

void QVBrowseDlg::SetBrowseComputers() {
    SetBrowseFlags(BIF_BROWSEFORCOMPUTER);
}

void QVBrowseDlg::SetBrowsePrinters() {
    SetBrowseFlags(BIF_BROWSEFORPRINTER);
}

void QVBrowseDlg::SetPromptString(LPCSTR pszPrompt) {
    qv::StoreText(m_strPrompt, pszPrompt);
}

void QVBrowseDlg::SetPromptString(UINT nStringID) {
    qv::StoreText(m_strPrompt, nStringID);
}

void QVBrowseDlg::SetItemPath(LPCSTR pszPath) {
    qv::StoreText(m_strItemPath, pszPath);
}

int CALLBACK QVBrowseDlg::BrowseNotify(HWND hWnd, UINT nMsg, LPARAM, LPARAM lpData) {
    const auto* pszPath = reinterpret_cast<LPCSTR>(lpData);
    if (nMsg == BFFM_INITIALIZED && pszPath != nullptr && pszPath[0] != 0 &&
        strncmp(pszPath, "\\\\", 2) != 0) {
        ::SendMessage(hWnd, BFFM_SETSELECTIONA, TRUE, lpData);
    }
    return 0;
}

int QVBrowseDlg::DoModal() {
    const qv::ComScope com;
    IMalloc* pMalloc = nullptr;
    if (FAILED(::SHGetMalloc(&pMalloc))) {
        return IDCANCEL;
    }
    const qv::ShellOwned<IMalloc> malloc(pMalloc);
    ITEMIDLIST* pItem = nullptr;
    if (FAILED(::SHGetSpecialFolderLocation(nullptr, m_nFolderLocation, &pItem))) {
        pItem = nullptr;
    }
    const qv::ShellItem root(pItem, qv::ShellItemFreer{pMalloc});
    // Whoever runs meanwhile may set other texts.
    const CString strPrompt(m_strPrompt);
    const CString strStart(m_strItemPath);
    char szName[MAX_PATH] = "";
    BROWSEINFOA info{};
    info.hwndOwner = m_hWndParent;
    info.pidlRoot = root.get();
    info.pszDisplayName = szName;
    info.lpszTitle = strPrompt.IsEmpty() ? nullptr : static_cast<LPCSTR>(strPrompt);
    info.ulFlags = m_nBrowseFlags;
    info.lpfn = &QVBrowseDlg::BrowseNotify;
    info.lParam = reinterpret_cast<LPARAM>(static_cast<LPCSTR>(strStart));
    const BOOL bEnabled = ::IsWindowEnabled(m_hWndParent);
    const qv::ShellItem chosen(::SHBrowseForFolderA(&info), qv::ShellItemFreer{pMalloc});
    // The platform enables it always, or never where the program is about to end.
    if (::IsWindow(m_hWndParent)) {
        ::EnableWindow(m_hWndParent, bEnabled);
    }
    if (chosen == nullptr) {
        return IDCANCEL;
    }
    if (m_nBrowseFlags == BIF_BROWSEFORCOMPUTER) {
        SetItemPath(szName);
    } else {
        SetPathFromIDList(chosen.get());
    }
    return IDOK;
}

void QVBrowseDlg::SetPathFromIDList(LPCITEMIDLIST pidl) {
    const qv::ComScope com;
    wchar_t szPath[MAX_PATH] = L"";
    if (!::SHGetPathFromIDListW(pidl, szPath)) {
        szPath[0] = 0;
    }
    qv::MemorySuffices([&] {
        m_strItemPath = PathText(szPath);
        Resolve(szPath, m_strItemPath);
    });
}
