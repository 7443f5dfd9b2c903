#include "afx/app/shell_manager.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CShellManager, CObject)

CShellManager::CShellManager()
    : m_bComInUse(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}

CShellManager::~CShellManager() {
    if (m_bComInUse) {
        ::CoUninitialize();
    }
}

// Opens the dialog at the folder that was asked for.
static int CALLBACK SelectFolder(HWND hWnd, UINT nMessage, LPARAM, LPARAM lData) {
    if (nMessage == BFFM_INITIALIZED && lData != 0) {
        ::SendMessage(hWnd, BFFM_SETSELECTION, TRUE, lData);
    }
    return 0;
}

BOOL CShellManager::BrowseForFolder(CString& strOutFolder, CWnd* pWndParent,
                                    LPCTSTR lplszInitialFolder, LPCTSTR lpszTitle, UINT ulFlags,
                                    LPINT piFolderImage) {
    TCHAR szPath[MAX_PATH] = {};
    BROWSEINFO info = {};
    info.hwndOwner = pWndParent->GetSafeHwnd();
    info.pszDisplayName = szPath;
    info.lpszTitle = lpszTitle;
    info.ulFlags = ulFlags;
    info.lpfn = &SelectFolder;
    info.lParam = reinterpret_cast<LPARAM>(lplszInitialFolder);
    LPITEMIDLIST pItem = ::SHBrowseForFolder(&info);
    if (pItem == nullptr) {
        return FALSE;
    }
    const BOOL bPath = ::SHGetPathFromIDList(pItem, szPath);
    ::CoTaskMemFree(pItem);
    if (bPath) {
        strOutFolder = szPath;
    }
    if (piFolderImage != nullptr) {
        *piFolderImage = info.iImage;
    }
    return bPath;
}
