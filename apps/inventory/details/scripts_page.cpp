#include "details/scripts_page.h"

#include "errors.h"
#include "model/file_text.h"
#include "model/stanza.h"
#include "row_colors.h"

namespace {

struct Script {
    const char* pszKind;  // in the database
    const char* pszWhen;
};
constexpr Script kScripts[] = {{"config", "asks before installation"},
                               {"preinst", "before installation"},
                               {"postinst", "after installation"},
                               {"prerm", "before removal"},
                               {"postrm", "after removal"}};

constexpr char kTabInBlanks[] = "    ";

// Lines of a script keep their indentation.
CString ShownLine(std::string_view line) {
    std::string strLine;
    for (const char ch : line) {
        ch == '\t' ? strLine += kTabInBlanks : strLine += ch;
    }
    return Shown(strLine);
}

}  // namespace

BOOL ScriptsPage::OnInitDialog() {
    DetailsPage::OnInitDialog();
    m_text.Initialize(IDC_DETAILS_TEXT, this, TRUE);
    m_text.SetExactLayout(TRUE);
    m_text.EnableExpectedKeys();
    m_text.ModifyStyle(0, WS_TABSTOP);
    UseColors();
    return FALSE;
}

void ScriptsPage::UseColors() {
    ShowStyle(m_text, m_nHeading, {RGB(255, 255, 255), RGB(64, 96, 160)});
    ShowStyle(m_text, m_nComment, {RGB(0, 112, 0), kWindowBack});
    ShowStyle(m_text, m_nTrouble, kTroubleColors);
}

template <class Take>
void ScriptsPage::ForEachScript(Take take) const {
    for (const Script& script : kScripts) {
        const std::string strFile = m_source.store.InfoFile(m_source.package, script.pszKind);
        if (!strFile.empty()) {
            CString strHeading;
            strHeading.Format("%s: %s", script.pszKind, script.pszWhen);
            take(strHeading, ReadFileText(strFile));
        }
    }
}

CString ScriptsPage::Read() {
    m_text.ClearTextData();
    CString strProblem;
    if (!m_source.store.IsKnown()) {
        strProblem = "Windows does not tell what runs as a program is installed.";
        return strProblem;
    }
    ForEachScript([this](const CString& strHeading, const FileText& text) {
        m_text.AddText(strHeading, m_nHeading);
        if (!text.WasRead()) {
            m_text.AddText(ProblemText(text.problem).c_str(), m_nTrouble);
            Keep(Failed(kErrorReadPackageFile, ProblemReason(text.problem)));
        }
        for (const std::string_view line : Lines(text.strText)) {
            const bool bComment = line.substr(0, line.find_first_not_of(" \t") + 1).ends_with('#');
            m_text.AddText(ShownLine(line), bComment ? m_nComment : 0);
        }
    });
    if (m_text.NumLines() == 0) {
        strProblem.Format("%s has no scripts: its files are all there is to it.",
                          m_source.package.strName.c_str());
    }
    m_text.CalcLayout();
    m_text.ScrollTo(0, 0);
    return strProblem;
}

void ScriptsPage::Print(CDC& dc, QVPrintEngine& engine) {
    ForEachScript([&](const CString& strHeading, const FileText& text) {
        engine.AddBreak();
        engine.AddHeader(strHeading, &dc);
        CStringArray lines;
        if (!text.WasRead()) {
            lines.Add(ProblemText(text.problem).c_str());
        }
        for (const std::string_view line : Lines(text.strText)) {
            lines.Add(ShownLine(line));
        }
        engine.AddText(lines, &dc, nullptr);
    });
}
