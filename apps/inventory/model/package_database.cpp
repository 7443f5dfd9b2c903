#include "model/package_database.h"

#include "model/file_text.h"

#include <algorithm>
#include <charconv>

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
    Parser(std::vector<Package>& packages, Problem& problem)
        : m_packages(packages), m_problem(problem) {}

    // Takes the lines of a text that grows: the text so far, then more of the same, and with bAll
    // what is behind its last line break as well.
    bool Parse(std::string_view text, bool bAll) {
        while (m_nRead < text.size()) {
            const size_t nEnd = text.find('\n', m_nRead);
            const bool bCut = nEnd == std::string_view::npos;
            if (bCut && !bAll && text.size() - m_nRead <= kLongestLine) {
                return true;
            }
            ++m_nLine;
            if (!TakeLine(text, text.substr(m_nRead, bCut ? nEnd : nEnd - m_nRead))) {
                return false;
            }
            m_nRead = bCut ? text.size() : nEnd + 1;
        }
        return !bAll || EndStanza(text);
    }

private:
    bool Fail(const char* pszMessage) {
        m_problem = {pszMessage, "", m_nLine};
        m_packages.clear();
        return false;
    }

    bool TakeLine(std::string_view text, std::string_view line) {
        if (line.size() > kLongestLine) {
            return Fail("the line is longer than a megabyte");
        }
        if (line.find('\0') != std::string_view::npos) {
            return Fail("there is a zero byte");
        }
        if (Trimmed(line).empty()) {
            return EndStanza(text);
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
            m_nStart = m_nRead;
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
            const auto [pEnd, outcome] =
                std::from_chars(value.data(), value.data() + value.size(), m_package.nSizeKiB);
            if (outcome != std::errc() || pEnd != value.data() + value.size() ||
                m_package.nSizeKiB < 0) {
                return Fail("the size is no number");
            }
        }
        return true;
    }

    bool EndStanza(std::string_view text) {
        if (!m_bInStanza) {
            return true;
        }
        if (m_package.strName.empty()) {
            return Fail("the entry that ends here has no package name");
        }
        if (m_package.strSection.empty()) {
            m_package.strSection = "(none)";
        }
        m_package.pStanza =
            std::make_shared<const std::string>(text.substr(m_nStart, m_nRead - m_nStart));
        m_packages.push_back(std::move(m_package));
        m_package = {};
        m_bInStanza = false;
        return true;
    }

    std::vector<Package>& m_packages;
    Problem& m_problem;
    Package m_package;
    bool m_bInStanza = false;
    size_t m_nRead = 0;   // where the line begins that is next
    size_t m_nStart = 0;  // where the stanza does
    size_t m_nLine = 0;
};

}  // namespace

bool ParsePackages(std::string_view text, std::vector<Package>& packages, Problem& problem) {
    packages.clear();
    return Parser(packages, problem).Parse(text, true);
}

bool ReadPackages(const std::string& strPath, std::vector<Package>& packages, Problem& problem,
                  const ReadStep& step) {
    packages.clear();
    FilePieces pieces(strPath);
    std::string strText;
    Parser parser(packages, problem);
    const auto fail = [&](const Problem& why) {
        packages.clear();
        problem = why;
        return false;
    };
    for (bool bMore = true; bMore;) {
        const std::string_view piece = pieces.Next();
        strText += piece;
        bMore = !piece.empty();
        if (!pieces.Trouble().strMessage.empty()) {
            return fail(pieces.Trouble());
        }
        if (bMore && step &&
            !step(strText.size(), std::max<std::uint64_t>(pieces.Size(), strText.size()))) {
            return fail({});
        }
        if (!parser.Parse(strText, !bMore)) {
            problem.strFile = strPath;
            return false;
        }
    }
    return true;
}
