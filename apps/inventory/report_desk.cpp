#include "report_desk.h"

#include "dialogs/report_wizard.h"
#include "main_frame.h"
#include "model/report_values.h"
#include "resource.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(ReportDesk, CCmdTarget)
    ON_COMMAND(ID_REPORT_NEW, &ReportDesk::OnNew)
    ON_COMMAND(ID_REPORT_EDIT, &ReportDesk::OnEdit)
    ON_COMMAND(ID_REPORT_SAVE_AS, &ReportDesk::OnSaveAs)
    ON_COMMAND(ID_REPORT_RENAME, &ReportDesk::OnRename)
    ON_COMMAND(ID_REPORT_DELETE, &ReportDesk::OnDelete)
    ON_COMMAND(ID_REPORT_STANDARD, &ReportDesk::OnStandard)
    ON_COMMAND_RANGE(ID_REPORT_FIRST_NAMED, ID_REPORT_LAST_NAMED, &ReportDesk::OnNamed)
    ON_COMMAND(ID_PREFERENCES, &ReportDesk::OnPreferences)
    ON_COMMAND(ID_REPORT_SETTINGS, &ReportDesk::OnPreferences)
    ON_UPDATE_COMMAND_UI(ID_REPORT_EDIT, &ReportDesk::OnUpdateKept)
    ON_UPDATE_COMMAND_UI(ID_REPORT_RENAME, &ReportDesk::OnUpdateKept)
    ON_UPDATE_COMMAND_UI(ID_REPORT_DELETE, &ReportDesk::OnUpdateKept)
    ON_UPDATE_COMMAND_UI(ID_REPORT_STANDARD, &ReportDesk::OnUpdateStandard)
    ON_UPDATE_COMMAND_UI_RANGE(ID_REPORT_FIRST_NAMED, ID_REPORT_LAST_NAMED,
                               &ReportDesk::OnUpdateNamed)
END_MESSAGE_MAP()

namespace {

// The menu that has a command, below the one given; null if there is none.
CMenu* MenuWith(CMenu& menu, UINT nID) {
    const int nItems = static_cast<int>(menu.GetMenuItemCount());
    for (int i = 0; i < nItems; ++i) {
        if (menu.GetMenuItemID(i) == nID) {
            return &menu;
        }
        CMenu* pBelow = menu.GetSubMenu(i);
        CMenu* pFound = pBelow != nullptr ? MenuWith(*pBelow, nID) : nullptr;
        if (pFound != nullptr) {
            return pFound;
        }
    }
    return nullptr;
}

}  // namespace

void ReportDesk::Open(const CString& strFolder, bool bInteractive) {
    m_files.UseFolder(strFolder);
    TellOrKeep(m_files.Load(m_reports), bInteractive);
    const Settings& settings = m_frame.Settings().Values();
    const NamedReport* pReport = m_reports.Find(settings.Value(kSettingStartReport));
    m_frame.Report().ShowReport(pReport != nullptr ? pReport->definition
                                                   : StandardReport(settings));
    ShowNames();
}

std::vector<std::string> ReportDesk::Names() const {
    std::vector<std::string> names;
    for (const NamedReport& report : m_reports.All()) {
        names.push_back(report.definition.strName);
    }
    return names;
}

void ReportDesk::ShowNames() {
    const std::vector<std::string> names = Names();
    m_frame.Report().ShowNames(names);
    m_frame.Packages().Bar().ShowReports(names);
    CMenu* pMenu = MenuWith(*m_frame.GetMenu(), ID_REPORT_STANDARD);
    for (UINT nID = ID_REPORT_FIRST_NAMED; nID <= ID_REPORT_LAST_NAMED; ++nID) {
        pMenu->DeleteMenu(nID, MF_BYCOMMAND);
    }
    for (size_t i = 0; i < names.size(); ++i) {
        pMenu->AppendMenu(MF_STRING, ID_REPORT_FIRST_NAMED + i, MenuText(names[i]));
    }
}

void ReportDesk::Show(const ReportDefinition& report) {
    m_frame.Report().ShowReport(report);
    m_frame.Pages().ShowPage(m_frame.Report());
}

const NamedReport* ReportDesk::Shown() const {
    return m_reports.Find(m_frame.Report().Shown().strName);
}

// --- Reports

void ReportDesk::OnNew() {
    const Settings& settings = m_frame.Settings().Values();
    ReportDefinition report = StandardReport(settings);
    report.strName = m_reports.FreeName();
    report.colors = {0, settings.Choice(kSettingColorInstalled),
                     settings.Choice(kSettingColorRequired), settings.Choice(kSettingColorUnusual)};
    SetUp(report, "");
}

void ReportDesk::OnEdit() {
    if (const NamedReport* pReport = Shown()) {
        SetUp(pReport->definition, pReport->definition.strName);
    }
}

void ReportDesk::SetUp(const ReportDefinition& report, const std::string& strOld) {
    if (m_pInventory == nullptr) {
        return;
    }
    ReportWizard wizard(&m_frame, *m_pInventory, report,
                        [&](CWnd& parent, const std::string& strName) {
                            return MayTakeName(parent, strName, strOld);
                        });
    if (wizard.DoModal() != ID_WIZFINISH) {
        return;
    }
    Keep(wizard.Result(), strOld);
    Show(wizard.Result());
    if (wizard.IsToBePrinted()) {
        m_frame.Report().OnPrint();
    }
}

void ReportDesk::Keep(const ReportDefinition& report, const std::string& strOld) {
    const NamedReports::Change change = m_reports.Keep(report, strOld);
    if (Failure pFailure = m_files.Write(report, change.nWrite)) {
        Tell(std::move(pFailure));
    } else if (change.nGone != 0) {
        Tell(m_files.Delete(change.nGone));
    }
    StartWith(strOld, report.strName);
    ShowNames();
}

// --- Names

bool ReportDesk::MayTakeName(CWnd& parent, const std::string& strName, const std::string& strOld) {
    CString strText;
    if (!m_reports.CanKeep(strName, strOld)) {
        strText.Format("No more than %u reports can be kept: delete one, or take its name.",
                       static_cast<unsigned>(NamedReports::kMost));
        AfxMessageBox(strText, MB_ICONINFORMATION);
        return false;
    }
    Settings settings = m_frame.Settings().Values();
    if (strName == strOld || !m_reports.Has(strName) || settings.Choice(kSettingReplace) != 0) {
        return true;
    }
    strText.Format("There is a report \"%s\" already. Is this one to take its place?",
                   MenuText(strName).GetString());
    QVMsgBox box(&parent);
    box.SetTitle("Inventory");
    box.SetPrompt(strText);
    box.SetCheckString("&Do not ask again");
    const bool bReplace = box.DoModal() == IDYES;
    // Only a Yes is remembered: a No for ever would leave no way to replace a report.
    if (bReplace && box.CheckState() != 0) {
        settings.Set(kSettingReplace, settings.All()[kSettingReplace].choices.back());
        m_frame.Settings().Take(settings);
    }
    return bReplace;
}

bool ReportDesk::AskName(LPCSTR pszTitle, ReportDefinition& report, const std::string& strOld) {
    QVMsgPromptDlg prompt(&m_frame);
    prompt.SetTitle(pszTitle);
    prompt.SetPrompt("Name of the report:");
    prompt.SetDataLen(kLongestReportName);
    prompt.SetValue(report.strName.c_str());
    while (prompt.DoModal() == IDOK) {
        CString strName = prompt.GetValue();
        strName.TrimLeft();
        strName.TrimRight();
        report.strName = strName;
        const ReportProblem problem = ProblemOf(report);
        if (problem.field == ReportField::None) {
            if (MayTakeName(m_frame, report.strName, strOld)) {
                return true;
            }
            continue;
        }
        AfxMessageBox(problem.strMessage.c_str(), MB_ICONINFORMATION);
        if (problem.field != ReportField::Name) {
            break;
        }
    }
    return false;
}

// What is shown, with what was ticked beside it.
void ReportDesk::OnSaveAs() {
    ReportDefinition report = m_frame.Report().Shown();
    if (report.strName.empty()) {
        report.strName = m_reports.FreeName();
    }
    if (AskName("Save the report", report, "")) {
        Keep(report, "");
        Show(report);
    }
}

void ReportDesk::OnRename() {
    const NamedReport* pReport = Shown();
    if (pReport == nullptr) {
        return;
    }
    ReportDefinition report = pReport->definition;
    const std::string strOld = report.strName;
    if (AskName("Rename the report", report, strOld) && report.strName != strOld) {
        Keep(report, strOld);
        Show(report);
    }
}

// --- What goes

void ReportDesk::OnDelete() {
    const NamedReport* pReport = Shown();
    if (pReport == nullptr) {
        return;
    }
    const std::string strName = pReport->definition.strName;
    CString strText;
    strText.Format("Delete the report \"%s\"?", strName.c_str());
    if (AfxMessageBox(strText, MB_YESNO | MB_ICONQUESTION) != IDYES) {
        return;
    }
    Tell(m_files.Delete(m_reports.Remove(strName)));
    StartWith(strName, "");
    m_frame.Report().ShowReport(StandardReport(m_frame.Settings().Values()));
    ShowNames();
}

// Where the program starts with a report that changes its name or goes, so do the settings.
void ReportDesk::StartWith(const std::string& strOld, const std::string& strNew) {
    Settings settings = m_frame.Settings().Values();
    if (!strOld.empty() && settings.Value(kSettingStartReport) == strOld) {
        settings.Set(kSettingStartReport, strNew);
        m_frame.Settings().Take(settings);
    }
}

void ReportDesk::OnStandard() {
    Show(StandardReport(m_frame.Settings().Values()));
}

void ReportDesk::OnNamed(UINT nID) {
    const size_t n = nID - ID_REPORT_FIRST_NAMED;
    if (n < m_reports.All().size()) {
        Show(m_reports.All()[n].definition);
    }
}

void ReportDesk::OnUpdateKept(CCmdUI* pCmdUI) {
    pCmdUI->Enable(Shown() != nullptr);
}

void ReportDesk::OnUpdateStandard(CCmdUI* pCmdUI) {
    pCmdUI->SetRadio(Shown() == nullptr);
}

void ReportDesk::OnUpdateNamed(CCmdUI* pCmdUI) {
    const size_t n = pCmdUI->m_nID - ID_REPORT_FIRST_NAMED;
    pCmdUI->Enable(n < m_reports.All().size());
    pCmdUI->SetRadio(n < m_reports.All().size() && Shown() == &m_reports.All()[n]);
}

// --- Preferences

// The report's settings are the first page.
void ReportDesk::OnPreferences() {
    const auto apply = [this](const Settings& settings) {
        m_frame.Settings().Take(settings);
        m_frame.UseSettings();
    };
    Preferences(&m_frame, m_frame.Settings().Values(), apply, m_frame.Pages().Titles(), Names())
        .DoModal();
}
