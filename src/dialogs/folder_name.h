// Names of folders between the platform's wide characters and the process's code page. Internal to
// the dialogs.

#pragma once

#include "dialogs/machine_folders.h"

#include <string>

namespace qv {

// Characters of a path that the shell takes, with the terminator.
constexpr size_t kMostPath = MAX_PATH;

// In wide characters; empty for a path that is too long for the shell.
std::wstring ShellPath(LPCSTR pszPath);

// strFolder and a name in it.
std::wstring PathIn(std::wstring strFolder, const std::wstring& strName);

// The name of a folder for the process. It leads back to the same folder.
class FolderName {
public:
    // pszShort: another name of it, for a name that does not fit. Null: the platform is asked.
    FolderName(const std::wstring& strFolder, const std::wstring& strName, const wchar_t* pszShort);

    // Neither name fits.
    bool IsNone() const { return m_szName[0] == 0; }
    LPCSTR Get() const { return m_szName; }

private:
    static constexpr int kMostBytes = 256;

    bool Fit(const std::wstring& strName);
    bool FitShort(const std::wstring& strPath);

    char m_szName[kMostBytes];
};

}  // namespace qv
