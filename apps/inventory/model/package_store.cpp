#include "model/package_store.h"

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

constexpr std::string_view kPlace = "/var/lib/dpkg/";
constexpr std::string_view kNameLetters = "abcdefghijklmnopqrstuvwxyz0123456789+-.";

// A database may be anybody's: its names lead to no other place.
bool IsName(std::string_view name) {
    return !name.empty() && name.find_first_not_of(kNameLetters) == std::string_view::npos &&
           name[0] != '.';
}

bool CanBeOpened(const std::string& strPath) {
    return std::unique_ptr<std::FILE, int (*)(std::FILE*)>(std::fopen(strPath.c_str(), "rb"),
                                                           std::fclose) != nullptr;
}

}  // namespace

PackageStore::PackageStore(const std::string& strFolder) : m_strFolder(strFolder) {
    std::string strPlace(strFolder);
    if (strFolder.ends_with('\\')) {
        m_chSeparator = '\\';
        std::replace(strPlace.begin(), strPlace.end(), '\\', '/');
    }
    m_bHasRoot = strPlace.ends_with(kPlace);
    if (m_bHasRoot) {
        m_strRoot = strFolder.substr(0, strFolder.size() - kPlace.size());
    }
}

std::string PackageStore::InfoFile(const Package& package, std::string_view kind) const {
    if (!IsKnown() || !IsName(package.strName)) {
        return "";
    }
    std::string strFile = m_strFolder + "info" + m_chSeparator + package.strName;
    // Packages that may be installed for several architectures at a time are named with theirs.
    if (IsName(package.strArchitecture)) {
        std::string strQualified = strFile + ':' + package.strArchitecture;
        (strQualified += '.') += kind;
        if (CanBeOpened(strQualified)) {
            return strQualified;
        }
    }
    (strFile += '.') += kind;
    return CanBeOpened(strFile) ? strFile : "";
}

std::string PackageStore::MachineFile(std::string_view path) const {
    if (!m_bHasRoot || !path.starts_with('/')) {
        return "";
    }
    std::string strPath(path);
    std::replace(strPath.begin(), strPath.end(), '/', m_chSeparator);
    return m_strRoot + strPath;
}
