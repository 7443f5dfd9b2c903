#include "dialogs/folder_name.h"

#include "frame/wide_text.h"

namespace qv {

std::wstring ShellPath(LPCSTR pszPath) {
    const WideText path(pszPath != nullptr ? pszPath : "");
    return path.View().size() < kMostPath ? std::wstring(path.View()) : std::wstring();
}

std::wstring PathIn(std::wstring strFolder, const std::wstring& strName) {
    if (strFolder.empty() || strFolder.back() != L'\\') {
        strFolder += L'\\';
    }
    return strFolder += strName;
}

FolderName::FolderName(const std::wstring& strFolder, const std::wstring& strName,
                       const wchar_t* pszShort) {
    if (!Fit(strName) &&
        !(pszShort != nullptr ? Fit(pszShort) : FitShort(PathIn(strFolder, strName)))) {
        m_szName[0] = 0;
    }
}

// A name fits if it comes back as it was: one that is merely similar leads somewhere else.
bool FolderName::Fit(const std::wstring& strName) {
    const int nBytes = ::WideCharToMultiByte(CP_ACP, 0, strName.c_str(), -1, m_szName, kMostBytes,
                                             nullptr, nullptr);
    wchar_t szBack[kMostBytes];
    return nBytes > 0 && ::MultiByteToWideChar(CP_ACP, 0, m_szName, -1, szBack, kMostBytes) > 0 &&
           strName == szBack;
}

bool FolderName::FitShort(const std::wstring& strPath) {
    wchar_t szShort[kMostPath];
    const DWORD nUnits = ::GetShortPathNameW(strPath.c_str(), szShort, kMostPath);
    if (nUnits == 0 || nUnits >= kMostPath) {
        return false;
    }
    const wchar_t* pszName = wcsrchr(szShort, L'\\');
    return pszName != nullptr && Fit(pszName + 1);
}

}  // namespace qv
