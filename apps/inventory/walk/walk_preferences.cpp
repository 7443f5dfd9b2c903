#include "walk/walk.h"

#include "resource.h"
#include "sources/settings_file.h"

namespace {

CString TextIn(CWnd& dialog, int nID) {
    CString str;
    dialog.GetDlgItemText(nID, str);
    return str;
}

CComboBox& ComboIn(CWnd& dialog, int nID) {
    return *static_cast<CComboBox*>(dialog.GetDlgItem(nID));
}

void ClickTabOf(CPropertySheet& sheet, int nPage) {
    CTabCtrl& tabs = *sheet.GetTabControl();
    CRect rc;
    tabs.GetItemRect(nPage, &rc);
    tabs.ClientToScreen(&rc);
    Click(rc.CenterPoint());
}

}  // namespace

CString Walk::SettingInFile(int nSetting) {
    Settings settings;
    LoadSettings(m_strFolder + "\\settings.txt", settings);
    return settings.Value(nSetting).c_str();
}

bool Walk::ReportSettings() {
    return InDialog(
               "Preferences", [this] { ClickOn(*m_frame.Report().GetDlgItem(ID_REPORT_SETTINGS)); },
               [this](CWnd& dialog) {
                   auto& sheet = static_cast<CPropertySheet&>(dialog);
                   return FillReportSettings(*sheet.GetActivePage()) && ChooseColors(sheet) &&
                          ChooseStart(sheet);
               }) &&
           Expect("OK keeps what was said behind Apply",
                  [this] { return SettingInFile(kSettingStartPage) == "Report"; }) &&
           Station("preferences-6-new-settings");
}

bool Walk::FillReportSettings(CWnd& page) {
    for (const char ch : {'A', 'L', 'L', ' ', 'O', 'N', ' '}) {
        Press(static_cast<WORD>(ch));
    }
    if (!Expect("a title is typed", [&] { return TextIn(page, IDC_REPORT_TITLE) == "all on "; })) {
        return false;
    }
    // The button's menu takes the keys that follow.
    for (const WORD nKey : {VK_TAB, VK_SPACE, VK_DOWN, VK_RETURN}) {
        Press(nKey);
    }
    if (!Expect("a code joins it",
                [&] { return TextIn(page, IDC_REPORT_TITLE) == "all on <machine>"; }) ||
        !Enter(page, IDC_REPORT_PAPER)) {
        return false;
    }
    Press(VK_UP);
    if (!Expect("a key steps to the next paper",
                [&] { return TextIn(page, IDC_REPORT_PAPER) == "A4"; })) {
        return false;
    }
    for (const WORD nKey : {WORD{VK_TAB}, WORD{VK_TAB}, WORD{'9'}, WORD{'9'}}) {
        Press(nKey);
    }
    // A margin that is none keeps the page in front.
    if (!InDialog(
            "Inventory", [&] { ClickOn(*page.GetParent()->GetDlgItem(ID_APPLY_NOW)); },
            [this](CWnd&) {
                const bool bGood = Station("preferences-1-refused");
                Press(VK_RETURN);
                return bGood;
            }) ||
        !Expect("the margin has the focus",
                [&] { return ::GetFocus() == page.GetDlgItem(IDC_REPORT_FIRST_MARGIN)->m_hWnd; })) {
        return false;
    }
    for (const WORD nKey : {WORD{'3'}, WORD{'0'}}) {
        Press(nKey);
    }
    if (!Expect("a margin is typed",
                [&] { return TextIn(page, IDC_REPORT_FIRST_MARGIN) == "30"; }) ||
        !Enter(page, IDC_REPORT_PACKAGES)) {
        return false;
    }
    Press(VK_DOWN);
    if (!Expect("the packages open and move on",
                [&] { return ComboIn(page, IDC_REPORT_PACKAGES).GetCurSel() == 1; }) ||
        !Station("preferences-2-images-open")) {
        return false;
    }
    Press(VK_RETURN);
    if (!Expect("a key closes them",
                [&] { return !ComboIn(page, IDC_REPORT_PACKAGES).GetDroppedState(); })) {
        return false;
    }
    ClickOn(*page.GetParent()->GetDlgItem(ID_APPLY_NOW));
    return Expect("Apply keeps it, and the sheet stays",
                  [&] {
                      return SettingInFile(kSettingTitle) == "all on <machine>" &&
                             SettingInFile(kSettingPaper) == "A4" &&
                             SettingInFile(kSettingMargins) == "30 23 23 23" &&
                             SettingInFile(kSettingPackages) == "the required ones" &&
                             !page.GetParent()->GetDlgItem(ID_APPLY_NOW)->IsWindowEnabled();
                  }) &&
           Station("preferences-3-applied");
}

bool Walk::ChooseColors(CPropertySheet& sheet) {
    ClickTabOf(sheet, 1);
    if (!Expect("the colours come up", [&] { return sheet.GetActiveIndex() == 1; }) ||
        !Enter(*sheet.GetActivePage(), IDC_REPORT_FIRST_COLOR)) {
        return false;
    }
    CComboBox& combo = ComboIn(*sheet.GetActivePage(), IDC_REPORT_FIRST_COLOR);
    Press(VK_DOWN);
    if (!Expect("the colours open and move on", [&] { return combo.GetCurSel() == 1; }) ||
        !Station("preferences-4-colors-open")) {
        return false;
    }
    Press(VK_RETURN);
    return Expect("a key closes them", [&] { return !combo.GetDroppedState(); });
}

bool Walk::ChooseStart(CPropertySheet& sheet) {
    Press(VK_TAB, VK_CONTROL);
    if (!Expect("a key leads to the last page", [&] { return sheet.GetActiveIndex() == 2; })) {
        return false;
    }
    CPropertyPage& page = *sheet.GetActivePage();
    if (!Enter(page, IDC_START_PAGE)) {
        return false;
    }
    Press(VK_RETURN);  // closes the list
    CComboBox& pages = ComboIn(page, IDC_START_PAGE);
    pages.SetCurSel(0);
    for (int i = pages.FindStringExact(-1, "Report"); i > 0; --i) {
        Press(VK_DOWN);
    }
    if (!Expect("a page is chosen", [&] { return TextIn(page, IDC_START_PAGE) == "Report"; }) ||
        !Station("preferences-5-start")) {
        return false;
    }
    Press(VK_RETURN);
    return true;
}

bool Walk::PreferencesDropped() {
    return InDialog(
               "Preferences", [this] { m_frame.PostMessage(WM_COMMAND, ID_PREFERENCES); },
               [this](CWnd& dialog) {
                   CWnd& page = *static_cast<CPropertySheet&>(dialog).GetActivePage();
                   Press('X');
                   const bool bTyped = Expect(
                       "a letter is typed", [&] { return TextIn(page, IDC_REPORT_TITLE) == "x"; });
                   Press(VK_ESCAPE);
                   return bTyped;
               }) &&
           Expect("Cancel changes nothing", [this] {
               return SettingInFile(kSettingTitle) == "all on <machine>" &&
                      SettingInFile(kSettingColorInstalled) == "blue";
           });
}
