#include "model/package_database.h"

#include "model/file_text.h"

#include <charconv>
#include <limits>

namespace {

constexpr size_t kLongestLine = 1 << 20;
constexpr std::string_view kInstalled = "install ok installed";

std::string_view Trimmed(std::string_view text) {
    const size_t nFirst = text.find_first_not_of(" \t\r");
    if (nFirst == std::string_view::npos) {
        return {};
    }
    return text.substr(nFirst, text.find_last_not_of(" \t\r") - nFirst + 1);
}

void AppendList(std::string_view value, std::vector<std::string>& list) {
    while (!value.empty()) {
        const size_t nComma = value.find(',');
        if (const std::string_view one = Trimmed(value.substr(0, nComma)); !one.empty()) {
            list.emplace_back(one);
        }
        value.remove_prefix(nComma == std::string_view::npos ? value.size() : nComma + 1);
    }
}

class Parser {
public:
    Parser(std::vector<Package>& packages, DatabaseError& error)
        : m_packages(packages), m_error(error) {}

    bool Parse(std::string_view text) {
        while (!text.empty()) {
            ++m_nLine;
            const size_t nEnd = text.find('\n');
            const std::string_view line = text.substr(0, nEnd);
            if (!TakeLine(line)) {
                return false;
            }
            text.remove_prefix(nEnd == std::string_view::npos ? text.size() : nEnd + 1);
            m_pEnd = text.data();
        }
        return EndStanza();
    }

private:
    bool Fail(const char* pszMessage) {
        m_error = {pszMessage, m_nLine};
        m_packages.clear();
        return false;
    }

    bool TakeLine(std::string_view line) {
        if (line.size() > kLongestLine) {
            return Fail("the line is longer than a megabyte");
        }
        if (line.find('\0') != std::string_view::npos) {
            return Fail("there is a zero byte");
        }
        if (Trimmed(line).empty()) {
            return EndStanza();
        }
        if (line[0] == ' ' || line[0] == '\t') {
            return m_bInStanza || Fail("the line continues nothing");
        }
        const size_t nColon = line.find(':');
        if (nColon == 0 || nColon == std::string_view::npos ||
            line.substr(0, nColon).find(' ') != std::string_view::npos) {
            return Fail("the line is no field");
        }
        if (!m_bInStanza) {
            m_bInStanza = true;
            m_pStart = line.data();
        }
        return TakeField(line.substr(0, nColon), Trimmed(line.substr(nColon + 1)));
    }

    bool TakeField(std::string_view name, std::string_view value) {
        if (name == "Package") {
            m_package.strName = value;
        } else if (name == "Section") {
            m_package.strSection = value;
        } else if (name == "Version") {
            m_package.strVersion = value;
        } else if (name == "Architecture") {
            m_package.strArchitecture = value;
        } else if (name == "Description") {
            m_package.strSummary = value;
        } else if (name == "Priority") {
            m_package.bRequired = value == "required";
        } else if (name == "Depends" || name == "Pre-Depends") {
            AppendList(value, m_package.dependencies);
        } else if (name == "Provides") {
            AppendList(value, m_package.provides);
        } else if (name == "Status") {
            m_package.bUnusual = value != kInstalled;
            const size_t nLast = value.rfind(' ');
            m_package.strState = value.substr(nLast == std::string_view::npos ? 0 : nLast + 1);
            if (m_package.bUnusual && m_package.strState == "installed") {
                m_package.strState = value;  // the state is fine, but more is wanted or broken
            }
        } else if (name == "Installed-Size") {
            const auto [pEnd, problem] =
                std::from_chars(value.data(), value.data() + value.size(), m_package.nSizeKiB);
            if (problem != std::errc() || pEnd != value.data() + value.size() ||
                m_package.nSizeKiB < 0) {
                return Fail("the size is no number");
            }
        }
        return true;
    }

    bool EndStanza() {
        if (!m_bInStanza) {
            return true;
        }
        if (m_package.strName.empty()) {
            return Fail("the entry that ends here has no package name");
        }
        if (m_package.strSection.empty()) {
            m_package.strSection = "(none)";
        }
        m_package.pStanza = std::make_shared<const std::string>(m_pStart, m_pEnd);
        m_packages.push_back(std::move(m_package));
        m_package = {};
        m_bInStanza = false;
        return true;
    }

    std::vector<Package>& m_packages;
    DatabaseError& m_error;
    Package m_package;
    bool m_bInStanza = false;
    const char* m_pStart = nullptr;  // of the stanza
    const char* m_pEnd = nullptr;    // of the line before
    size_t m_nLine = 0;
};

}  // namespace

bool ParsePackages(std::string_view text, std::vector<Package>& packages, DatabaseError& error) {
    packages.clear();
    return Parser(packages, error).Parse(text);
}

bool ReadPackages(const std::string& strPath, std::vector<Package>& packages,
                  DatabaseError& error) {
    packages.clear();
    const FileText file = ReadFileText(strPath, std::numeric_limits<size_t>::max());
    if (!file.strProblem.empty()) {
        error = {file.strProblem, 0};
        return false;
    }
    if (!ParsePackages(file.strText, packages, error)) {
        error.strMessage =
            strPath + ", line " + std::to_string(error.nLine) + ": " + error.strMessage;
        return false;
    }
    return true;
}
