#include "walk/walk.h"

#include "resource.h"

namespace {

constexpr char kFirstTitle[] = "Report: what is in it";
constexpr char kName[] = "large & small";

enum Step { kWhat, kColumns, kOrder, kLook, kReady };

CWnd& Item(CPropertySheet& wizard, int nID) {
    return *wizard.GetActivePage()->GetDlgItem(nID);
}

int RowsOf(CPropertySheet& wizard, int nID) {
    return static_cast<CListBox&>(Item(wizard, nID)).GetCount();
}

void Type(const char* pszLetters) {
    for (const char* psz = pszLetters; *psz != '\0'; ++psz) {
        if (*psz == '&') {
            Press('7', VK_SHIFT);
        } else {
            Press(static_cast<WORD>(::toupper(*psz)));
        }
    }
}

}  // namespace

bool Walk::NextStep(CPropertySheet& wizard, int nStep) {
    ClickOn(*wizard.GetDlgItem(ID_WIZNEXT));
    return Expect("the button leads to the next step",
                  [&] { return wizard.GetActiveIndex() == nStep; });
}

bool Walk::NewReport() {
    return InDialog(
               kFirstTitle, [] { Press('N', VK_CONTROL); },
               [this](CWnd& dialog) { return FillReport(static_cast<CPropertySheet&>(dialog)); }) &&
           Expect("the report is kept and shown",
                  [this] {
                      return m_frame.Desk().Reports().Has(kName) &&
                             m_frame.Report().Shown().strName == kName &&
                             m_frame.Report().Pages() > 0;
                  }) &&
           Station("wizard-8-result") &&
           (m_frame.Report().PrintToFile(m_strFolder + "\\wizard.ps") != nullptr ||
            m_frame.Report().Pages() > 0);
}

bool Walk::FillReport(CPropertySheet& wizard) {
    return FillWhat(wizard) && FillColumns(wizard) && FillOrder(wizard) && FillLook(wizard) &&
           FillReady(wizard);
}

bool Walk::FillWhat(CPropertySheet& wizard) {
    ClickOn(Item(wizard, IDC_WHAT_SOME_SECTIONS));
    // Without a section there is no report.
    if (!InDialog(
            "Inventory", [&] { ClickOn(*wizard.GetDlgItem(ID_WIZNEXT)); },
            [this](CWnd&) {
                const bool bGood = Station("wizard-1-refused");
                Press(VK_RETURN);
                return bGood;
            }) ||
        !Expect("the sections have the focus",
                [&] { return ::GetFocus() == Item(wizard, IDC_WHAT_SECTIONS).m_hWnd; })) {
        return false;
    }
    auto& sections = static_cast<CListBox&>(Item(wizard, IDC_WHAT_SECTIONS));
    for (const WORD nKey : {VK_HOME, VK_SPACE, VK_DOWN, VK_DOWN, VK_SPACE}) {
        Press(nKey);
    }
    if (!Expect("keys choose sections", [&] { return sections.GetSelCount() == 2; }) ||
        !Station("wizard-2-what")) {
        return false;
    }
    Press(VK_RETURN);
    return Expect("Enter leads to the next step",
                  [&] { return wizard.GetActiveIndex() == kColumns; });
}

bool Walk::FillColumns(CPropertySheet& wizard) {
    const int nChosen = RowsOf(wizard, IDC_COLUMNS_CHOSEN);
    auto& chosen = static_cast<CListBox&>(Item(wizard, IDC_COLUMNS_CHOSEN));
    ClickOn(Item(wizard, IDC_COLUMN_ADD));
    if (!Expect("the button adds a column", [&] { return chosen.GetCount() == nChosen + 1; })) {
        return false;
    }
    ClickOn(Item(wizard, IDC_COLUMN_UP));
    if (!Expect("and moves it up", [&] { return chosen.GetCurSel() == nChosen - 1; }) ||
        !Enter(*wizard.GetActivePage(), IDC_COLUMNS_CHOSEN)) {
        return false;
    }
    Press(VK_HOME);
    Press(VK_DOWN);
    Press('R', VK_MENU);
    return Expect("a mnemonic removes one", [&] { return chosen.GetCount() == nChosen; }) &&
           Station("wizard-3-columns") && NextStep(wizard, kOrder);
}

bool Walk::FillOrder(CPropertySheet& wizard) {
    if (!Expect("its first field has the focus",
                [&] { return ::GetFocus() == Item(wizard, IDC_ORDER_COLUMN).m_hWnd; })) {
        return false;
    }
    Press(VK_DOWN);
    Press(VK_DOWN);  // size
    ClickOn(Item(wizard, IDC_ORDER_FALLING));
    ClickOn(Item(wizard, IDC_TOTALS_OVERALL));
    return Expect("totals are chosen",
                  [&] {
                      return wizard.GetActivePage()->IsDlgButtonChecked(IDC_TOTALS_OVERALL) != 0;
                  }) &&
           Station("wizard-4-order") && NextStep(wizard, kLook);
}

bool Walk::FillLook(CPropertySheet& wizard) {
    CPropertyPage& page = *wizard.GetActivePage();
    if (!Enter(page, IDC_LOOK_TITLE)) {
        return false;
    }
    Press(VK_HOME);
    Press(VK_END, VK_SHIFT);
    Type("the largest of ");
    ClickOn(Item(wizard, IDC_LOOK_TITLE_CODES));
    for (const WORD nKey : {VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN}) {
        Press(nKey);
    }
    CString strTitle;
    if (!Expect("a title with a code is there",
                [&] {
                    page.GetDlgItemText(IDC_LOOK_TITLE, strTitle);
                    return strTitle == "the largest of <packages>";
                }) ||
        !Enter(page, IDC_LOOK_FIRST_SIZE)) {
        return false;
    }
    Press(VK_UP);
    Press(VK_UP);
    CString strSize;
    if (!Expect("keys make the title larger",
                [&] {
                    page.GetDlgItemText(IDC_LOOK_FIRST_SIZE, strSize);
                    return strSize == "24";
                }) ||
        !Enter(page, IDC_LOOK_FIRST_COLOR)) {
        return false;
    }
    Press(VK_DOWN);
    Press(VK_DOWN);
    if (!Station("wizard-5-color-open")) {
        return false;
    }
    Press(VK_RETURN);
    return Expect("the colour is chosen",
                  [&] {
                      auto& combo = static_cast<CComboBox&>(Item(wizard, IDC_LOOK_FIRST_COLOR));
                      return !combo.GetDroppedState() && combo.GetCurSel() == 2;
                  }) &&
           Station("wizard-6-look") && NextStep(wizard, kReady);
}

bool Walk::FillReady(CPropertySheet& wizard) {
    CPropertyPage& page = *wizard.GetActivePage();
    if (!Enter(page, IDC_READY_NAME)) {
        return false;
    }
    Press(VK_HOME);
    Press(VK_END, VK_SHIFT);
    Type(kName);
    CString strName;
    if (!Expect("a name is typed",
                [&] {
                    page.GetDlgItemText(IDC_READY_NAME, strName);
                    return strName == kName;
                }) ||
        !Station("wizard-7-ready")) {
        return false;
    }
    ClickOn(*wizard.GetDlgItem(ID_WIZFINISH));
    return true;
}

// What is wrong in a step further on brings that up.
bool Walk::FinishWithoutColumns(CPropertySheet& wizard) {
    if (!NextStep(wizard, kColumns)) {
        return false;
    }
    for (int n = RowsOf(wizard, IDC_COLUMNS_CHOSEN); n > 0; --n) {
        Press('R', VK_MENU);
    }
    if (!Expect("no column is left", [&] { return RowsOf(wizard, IDC_COLUMNS_CHOSEN) == 0; })) {
        return false;
    }
    ClickOn(*wizard.GetDlgItem(ID_WIZBACK));
    if (!Expect("the button leads back", [&] { return wizard.GetActiveIndex() == kWhat; }) ||
        !InDialog(
            "Inventory", [&] { ClickOn(*wizard.GetDlgItem(ID_WIZFINISH)); },
            [](CWnd&) {
                Press(VK_RETURN);
                return true;
            }) ||
        !Expect("the step of the columns comes up, and what there is has the focus", [&] {
            return wizard.GetActiveIndex() == kColumns &&
                   ::GetFocus() == Item(wizard, IDC_COLUMNS_OFFERED).m_hWnd;
        })) {
        return false;
    }
    ClickOn(*wizard.GetDlgItem(ID_WIZBACK));
    return Expect("the button leads back", [&] { return wizard.GetActiveIndex() == kWhat; });
}

// All columns: the step that chooses them is left out, there and back.
bool Walk::FinishEarly() {
    return InDialog(
               kFirstTitle, [this] { ClickOn(*m_frame.Report().GetDlgItem(ID_REPORT_NEW)); },
               [this](CWnd& dialog) {
                   auto& wizard = static_cast<CPropertySheet&>(dialog);
                   if (!FinishWithoutColumns(wizard)) {
                       return false;
                   }
                   Press('C', VK_MENU);
                   Press(VK_HOME);
                   if (!NextStep(wizard, kOrder) || !Station("wizard-9-skipped")) {
                       return false;
                   }
                   ClickOn(*wizard.GetDlgItem(ID_WIZBACK));
                   if (!Expect("the way back skips the columns as well",
                               [&] { return wizard.GetActiveIndex() == kWhat; })) {
                       return false;
                   }
                   ClickOn(*wizard.GetDlgItem(ID_WIZFINISH));
                   return true;
               }) &&
           Expect("the wizard finishes at its first step",
                  [this] {
                      const ReportDefinition& report = m_frame.Report().Shown();
                      return report.strName == "Report 1" && report.bAllColumns;
                  }) &&
           Happened("all columns take the paper across",
                    m_frame.Report().PaperSize().cx > m_frame.Report().PaperSize().cy) &&
           Station("wizard-10-all-columns");
}

bool Walk::CancelWizard() {
    const size_t nReports = m_frame.Desk().Reports().All().size();
    return InDialog(
               kFirstTitle, [] { Press('N', VK_CONTROL); },
               [this](CWnd& dialog) {
                   ClickOn(Item(static_cast<CPropertySheet&>(dialog), IDC_WHAT_INTRODUCTION));
                   const auto answer = [&](WORD nKey, const char* pszStation) {
                       return InDialog(
                           "Inventory", [] { Press(VK_ESCAPE); },
                           [this, nKey, pszStation](CWnd&) {
                               const bool bGood = pszStation == nullptr || Station(pszStation);
                               Press(nKey, VK_MENU);
                               return bGood;
                           });
                   };
                   return answer('N', "wizard-11-cancel") &&
                          Happened("No leaves the wizard up", ::IsWindow(dialog.m_hWnd)) &&
                          answer('Y', nullptr);
               }) &&
           Expect("Yes drops the report",
                  [&] { return m_frame.Desk().Reports().All().size() == nReports; });
}

bool Walk::RunFromBar() {
    ClickTab(0);
    if (!Expect("the packages come up",
                [this] { return m_frame.Packages().IsWindowVisible() != FALSE; })) {
        return false;
    }
    OpenReportMenu({VK_UP, VK_RETURN}, "wizard-12-bar");
    return Expect("the button's last entry shows the last report", [this] {
        return m_frame.Report().IsWindowVisible() && m_frame.Report().Shown().strName == kName;
    });
}

bool Walk::EditReport() {
    return InDialog(
               kFirstTitle, [this] { ClickOn(*m_frame.Report().GetDlgItem(ID_REPORT_EDIT)); },
               [this](CWnd& dialog) {
                   auto& wizard = static_cast<CPropertySheet&>(dialog);
                   auto& sections = static_cast<CListBox&>(Item(wizard, IDC_WHAT_SECTIONS));
                   if (!Happened("the wizard has the report's values",
                                 sections.GetSelCount() == 2)) {
                       return false;
                   }
                   ClickOn(Item(wizard, IDC_WHAT_ALL_SECTIONS));
                   ClickOn(*wizard.GetDlgItem(ID_WIZFINISH));
                   return true;
               }) &&
           Expect("the report is another under its name",
                  [this] {
                      const NamedReport* pReport = m_frame.Desk().Reports().Find(kName);
                      return pReport != nullptr && pReport->definition.bAllSections &&
                             m_frame.Report().Shown() == pReport->definition;
                  }) &&
           Station("wizard-13-edited");
}

bool Walk::DeleteReport() {
    return InDialog(
               "Inventory", [this] { ClickOn(*m_frame.Report().GetDlgItem(ID_REPORT_DELETE)); },
               [this](CWnd&) {
                   const bool bGood = Station("wizard-14-delete");
                   Press('Y', VK_MENU);
                   return bGood;
               }) &&
           Expect("the report is gone, and the standard one shows", [this] {
               return !m_frame.Desk().Reports().Has(kName) &&
                      m_frame.Report().Shown().strName.empty();
           });
}
