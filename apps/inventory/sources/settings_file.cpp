#include "sources/settings_file.h"

#include "sources/new_file.h"

#include <shlobj.h>
#include <string>

namespace {

// Null: it was read.
Failure ReadWhole(const CString& strPath, std::string& text) {
    try {
        CFile file(strPath, CFile::modeRead | CFile::shareDenyWrite);
        text.resize(static_cast<size_t>(file.GetLength()));
        text.resize(file.Read(text.data(), static_cast<UINT>(text.size())));
        return nullptr;
    } catch (CFileException* pException) {
        return FileReason(pException);
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

Failure LoadSettings(const CString& strPath, KeyedValues& settings, LPCSTR pszOutcome) {
    settings.Reset();
    CFileStatus status;
    if (!CFile::GetStatus(strPath, status)) {
        return nullptr;
    }
    std::string text;
    CString strText;
    if (Failure pReason = ReadWhole(strPath, text)) {
        strText.Format("The file cannot be read; %s.", pszOutcome);
        return Reason(strText, strPath, std::move(pReason));
    }
    size_t nLine = 0;
    if (settings.Parse(text, nLine)) {
        return nullptr;
    }
    const CString strAside = NameToSetAside(strPath);
    Failure pReason;
    if (!::MoveFile(strPath, strAside)) {
        pReason = SystemReason(::GetLastError(), strPath);
    }
    strText.Format("The file is damaged; it %s as %s, and %s.",
                   pReason == nullptr ? "is kept" : "could not be kept",
                   static_cast<LPCTSTR>(strAside), pszOutcome);
    const Problem problem{"", static_cast<LPCSTR>(strPath), nLine, 0};
    return Reason(strText, ProblemPlace(problem).c_str(), std::move(pReason));
}

Failure SaveSettings(const CString& strPath, const KeyedValues& settings) {
    const std::string text = settings.Format();
    NewFile place(strPath);
    try {
        CFile file(place.Path(), CFile::modeCreate | CFile::modeWrite);
        file.Write(text.data(), static_cast<UINT>(text.size()));
        file.Close();
    } catch (CFileException* pException) {
        pException->m_strFileName = strPath;  // not the one beside it
        return FileReason(pException);
    }
    return place.PutInPlace() ? nullptr : SystemReason(::GetLastError(), strPath);
}
