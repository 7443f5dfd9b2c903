// Where a package database keeps its files, and where those of its machine lie: the folder "info"
// beside the status file, and the tree around "/var/lib/dpkg".

#pragma once

#include "model/inventory.h"

#include <string>
#include <string_view>

class PackageStore {
public:
    // None: what is shown comes from elsewhere.
    PackageStore() = default;
    // The status file's folder with a separator at its end.
    explicit PackageStore(const std::string& strFolder);

    bool IsKnown() const { return !m_strFolder.empty(); }
    // The file of a kind ("list", "postinst") that a package has in the database; empty if there is
    // none, or if its name is none of a package.
    std::string InfoFile(const Package& package, std::string_view kind) const;
    // A file of the machine, as a program opens it. Empty where the database lies outside of its
    // machine's tree, and for paths that are not whole.
    std::string MachineFile(std::string_view path) const;

private:
    std::string m_strFolder;
    std::string m_strRoot;  // without a separator at its end
    bool m_bHasRoot = false;
    char m_chSeparator = '/';
};
