#include "sources/settings_file.h"

#include <shlobj.h>
#include <string>

namespace {

bool ReadWhole(const CString& strPath, std::string& text) {
    try {
        CFile file;
        if (!file.Open(strPath, CFile::modeRead | CFile::shareDenyWrite)) {
            return false;
        }
        text.resize(static_cast<size_t>(file.GetLength()));
        text.resize(file.Read(text.data(), static_cast<UINT>(text.size())));
        return true;
    } catch (CFileException* pException) {
        pException->Delete();
        return false;
    }
}

// A name beside the file that nothing has yet.
CString NameToSetAside(const CString& strPath) {
    CString strAside;
    CFileStatus status;
    for (int n = 1; n < 1000; ++n) {
        strAside.Format("%s.damaged-%d", static_cast<LPCTSTR>(strPath), n);
        if (!CFile::GetStatus(strAside, status)) {
            break;
        }
    }
    return strAside;
}

}  // namespace

CString UsersSettingsPath() {
    char szFolder[MAX_PATH] = "";
    ::SHGetFolderPath(nullptr, CSIDL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0, szFolder);
    const CString strFolder = CString(szFolder) + "\\Inventory";
    ::CreateDirectory(strFolder, nullptr);
    return strFolder + "\\settings.txt";
}

CString LoadSettings(const CString& strPath, KeyedValues& settings, LPCSTR pszOutcome) {
    settings.Reset();
    CFileStatus status;
    std::string text;
    CString strMessage;
    if (!CFile::GetStatus(strPath, status)) {
        return strMessage;
    }
    if (!ReadWhole(strPath, text)) {
        strMessage.Format("%s cannot be read; %s.", static_cast<LPCTSTR>(strPath), pszOutcome);
        return strMessage;
    }
    size_t nLine = 0;
    if (!settings.Parse(text, nLine)) {
        const CString strAside = NameToSetAside(strPath);
        const bool bMoved = ::MoveFile(strPath, strAside) != FALSE;
        strMessage.Format("%s is damaged at line %u; %s%s, and %s.", static_cast<LPCTSTR>(strPath),
                          static_cast<unsigned>(nLine),
                          bMoved ? "the file is kept as " : "the file could not be kept as ",
                          static_cast<LPCTSTR>(strAside), pszOutcome);
    }
    return strMessage;
}

bool SaveSettings(const CString& strPath, const KeyedValues& settings) {
    const CString strNew = strPath + ".new";
    const std::string text = settings.Format();
    try {
        CFile file;
        if (!file.Open(strNew, CFile::modeCreate | CFile::modeWrite)) {
            return false;
        }
        file.Write(text.data(), static_cast<UINT>(text.size()));
        file.Close();
    } catch (CFileException* pException) {
        pException->Delete();
        ::DeleteFile(strNew);
        return false;
    }
    return ::MoveFileEx(strNew, strPath, MOVEFILE_REPLACE_EXISTING) != FALSE;
}
