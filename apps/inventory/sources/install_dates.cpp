#include "sources/install_dates.h"

#include <string>
#include <unordered_map>

namespace {

std::time_t UnixTime(const FILETIME& time) {
    constexpr ULONGLONG kTicksPerSecond = 10000000;
    constexpr ULONGLONG kSecondsTo1970 = 11644473600;
    const ULONGLONG nTicks = static_cast<ULONGLONG>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    return static_cast<std::time_t>(nTicks / kTicksPerSecond - kSecondsTo1970);
}

// The package that a list of files is named for: "zlib1g:amd64.list" belongs to zlib1g.
std::string PackageOfFile(const char* pszFile) {
    const std::string strFile(pszFile);
    return strFile.substr(0, std::min(strFile.find(':'), strFile.rfind('.')));
}

}  // namespace

void ReadInstallDates(const CString& strStatusFile, std::vector<Package>& packages) {
    const CString strFolder = strStatusFile.Left(strStatusFile.ReverseFind('\\') + 1) + "info\\";
    WIN32_FIND_DATA found;
    const HANDLE hFind = ::FindFirstFile(strFolder + "*.list", &found);
    if (hFind == INVALID_HANDLE_VALUE) {
        return;
    }
    std::unordered_map<std::string, std::time_t> dates;
    do {
        dates[PackageOfFile(found.cFileName)] = UnixTime(found.ftLastWriteTime);
    } while (::FindNextFile(hFind, &found));
    ::FindClose(hFind);
    for (Package& package : packages) {
        if (const auto it = dates.find(package.strName); it != dates.end()) {
            package.tInstalled = it->second;
        }
    }
}
