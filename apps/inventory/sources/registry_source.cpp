#include "sources/registry_source.h"

#include <afxwin.h>

namespace {

constexpr char kUninstall[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall";

class RegistryKey {
public:
    RegistryKey(HKEY hParent, LPCTSTR pszPath, REGSAM nView = 0) {
        if (::RegOpenKeyEx(hParent, pszPath, 0, KEY_READ | nView, &m_hKey) != ERROR_SUCCESS) {
            m_hKey = nullptr;
        }
    }
    ~RegistryKey() {
        if (m_hKey != nullptr) {
            ::RegCloseKey(m_hKey);
        }
    }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    HKEY Handle() const { return m_hKey; }
    std::string Text(LPCTSTR pszName) const {
        char szValue[512] = {};
        DWORD nBytes = sizeof(szValue) - 1;
        DWORD nType = 0;
        const bool bText =
            ::RegQueryValueEx(m_hKey, pszName, nullptr, &nType, reinterpret_cast<BYTE*>(szValue),
                              &nBytes) == ERROR_SUCCESS &&
            nType == REG_SZ;
        return bText ? szValue : "";
    }
    DWORD Number(LPCTSTR pszName) const {
        DWORD dwValue = 0;
        DWORD nBytes = sizeof(dwValue);
        ::RegQueryValueEx(m_hKey, pszName, nullptr, nullptr, reinterpret_cast<BYTE*>(&dwValue),
                          &nBytes);
        return dwValue;
    }

private:
    HKEY m_hKey = nullptr;
};

void ReadEntries(HKEY hRoot, REGSAM nView, std::vector<Package>& packages) {
    const RegistryKey list(hRoot, kUninstall, nView);
    char szName[256];
    for (DWORD i = 0; list.Handle() != nullptr &&
                      ::RegEnumKey(list.Handle(), i, szName, sizeof(szName)) == ERROR_SUCCESS;
         ++i) {
        const RegistryKey entry(list.Handle(), szName, nView);
        Package package;
        package.strName = entry.Text("DisplayName");
        if (package.strName.empty()) {
            continue;
        }
        package.strSection = entry.Text("Publisher");
        if (package.strSection.empty()) {
            package.strSection = "(no publisher)";
        }
        package.strVersion = entry.Text("DisplayVersion");
        package.strArchitecture = nView == KEY_WOW64_32KEY ? "x86" : "x64";
        package.strState = "installed";
        package.strSummary = entry.Text("InstallLocation");
        package.nSizeKiB = static_cast<long>(entry.Number("EstimatedSize"));
        package.bRequired = entry.Number("SystemComponent") != 0;
        packages.push_back(package);
    }
}

}  // namespace

std::vector<Package> ReadUninstallEntries() {
    std::vector<Package> packages;
    ReadEntries(HKEY_LOCAL_MACHINE, KEY_WOW64_64KEY, packages);
    ReadEntries(HKEY_LOCAL_MACHINE, KEY_WOW64_32KEY, packages);
    ReadEntries(HKEY_CURRENT_USER, 0, packages);
    return packages;
}
