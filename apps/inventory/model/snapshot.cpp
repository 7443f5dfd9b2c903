#include "model/snapshot.h"

#include "model/stanza.h"

namespace {

constexpr char kBlanks[] = " \t";

std::string OneLine(const std::string& strText) {
    const std::string strLine = Printable(strText);
    const size_t nFirst = strLine.find_first_not_of(kBlanks);
    return nFirst == std::string::npos
               ? ""
               : strLine.substr(nFirst, strLine.find_last_not_of(kBlanks) - nFirst + 1);
}

std::string Joined(const std::vector<std::string>& texts) {
    std::string strAll;
    for (const std::string& strText : texts) {
        (strAll += strAll.empty() ? "" : ", ") += strText;
    }
    return strAll;
}

// A state of one word stands behind what is wanted and whether that went well.
std::string StatusOf(const Package& package) {
    if (package.strState.empty() || package.strState.find(' ') != std::string::npos) {
        return package.strState;
    }
    return (package.bUnusual ? "unknown ok " : "install ok ") + package.strState;
}

}  // namespace

std::string SnapshotEntry(const Package& package) {
    std::string strEntry;
    if (package.pStanza != nullptr) {
        strEntry = *package.pStanza;
        return strEntry += strEntry.ends_with('\n') ? "\n" : "\n\n";
    }
    const auto add = [&](const char* pszField, const std::string& strValue) {
        if (const std::string strLine = OneLine(strValue); !strLine.empty()) {
            (((strEntry += pszField) += ": ") += strLine) += '\n';
        }
    };
    add("Package", package.strName);
    if (strEntry.empty()) {
        return "";
    }
    add("Status", StatusOf(package));
    add("Priority", package.bRequired ? "required" : "");
    add("Section", package.strSection);
    add("Installed-Size", package.nSizeKiB > 0 ? std::to_string(package.nSizeKiB) : "");
    add("Architecture", package.strArchitecture);
    add("Version", package.strVersion);
    add("Provides", Joined(package.provides));
    add("Depends", Joined(package.dependencies));
    add("Description", package.strSummary);
    return strEntry += '\n';
}
