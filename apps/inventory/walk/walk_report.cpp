#include "walk/walk.h"

#include "resource.h"
#include "sources/settings_file.h"

bool Walk::ReportPages() {
    ClickTab(1);
    if (!Expect("the report has pages", [this] { return m_frame.Report().Pages() > 1; }) ||
        !Station("report-1-first-page")) {
        return false;
    }
    m_frame.Report().Preview().SetFocus();
    Press(VK_NEXT);
    return Expect("a key shows the next page",
                  [this] { return m_frame.Report().Preview().PageShown() == 2; }) &&
           Station("report-2-next-page");
}

bool Walk::Zoom() {
    const int nPercent = m_frame.Report().Preview().Percent();
    for (int i = 0; i < 3; ++i) {
        ClickOn(*m_frame.Report().GetDlgItem(ID_REPORT_ZOOM_IN));
        HandleMessages();
    }
    return Expect("a click on the button zooms in",
                  [&] { return m_frame.Report().Preview().Percent() > nPercent; }) &&
           Station("report-3-zoomed");
}

// A dialog runs a loop of its own: what is done in it comes from a timer.
bool Walk::ReportSettings() {
    constexpr UINT_PTR kTimer = 2;
    constexpr UINT kLookAgain = 50;  // milliseconds
    s_pWalk = this;
    m_frame.SetTimer(kTimer, kLookAgain, WhenReportSettingsAreUp);
    ClickOn(*m_frame.Report().GetDlgItem(ID_REPORT_SETTINGS));
    const auto value = [this](int nSetting) {
        Settings settings;
        LoadSettings(m_strFolder + "\\settings.txt", settings);
        return CString(settings.Value(nSetting).c_str());
    };
    return Expect("the report's dialog is filled and accepted",
                  [this] { return m_bSettingsFilled; }) &&
           Expect("what was said in it is kept",
                  [&] {
                      return value(kSettingTitle) == "all on <machine>" &&
                             value(kSettingPaper) == "A4" &&
                             value(kSettingMargins) == "30 23 23 23" &&
                             value(kSettingPackages) == "the required ones" &&
                             value(kSettingColorInstalled) == "blue";
                  }) &&
           Station("report-6-new-settings");
}

void CALLBACK Walk::WhenReportSettingsAreUp(HWND hWnd, UINT, UINT_PTR nTimer, DWORD) {
    CWnd* pDialog = CWnd::FromHandle(::FindWindow(nullptr, "Report settings"));
    if (pDialog == nullptr || !pDialog->IsWindowVisible() ||
        ::GetFocus() != ::GetDlgItem(pDialog->m_hWnd, IDC_REPORT_TITLE)) {
        return;
    }
    ::KillTimer(hWnd, nTimer);
    s_pWalk->m_bSettingsFilled = s_pWalk->FillReportSettings(*pDialog);
    Press(s_pWalk->m_bSettingsFilled ? VK_RETURN : VK_ESCAPE);
}

bool Walk::FillReportSettings(CWnd& dialog) {
    const auto text = [&](int nID) {
        CString str;
        dialog.GetDlgItemText(nID, str);
        return str;
    };
    const auto combo = [&](int nID) -> CComboBox& {
        return *static_cast<CComboBox*>(dialog.GetDlgItem(nID));
    };
    const auto enter = [&](int nID) {
        CWnd* pItem = dialog.GetDlgItem(nID);
        ClickOn(*pItem);
        return Expect("a click gives the focus", [&] { return ::GetFocus() == pItem->m_hWnd; });
    };
    for (const char ch : {'A', 'L', 'L', ' ', 'O', 'N', ' '}) {
        Press(static_cast<WORD>(ch));
    }
    if (!Expect("a title is typed", [&] { return text(IDC_REPORT_TITLE) == "all on "; })) {
        return false;
    }
    // The button's menu takes the keys that follow.
    for (const WORD nKey : {VK_TAB, VK_SPACE, VK_DOWN, VK_RETURN}) {
        Press(nKey);
    }
    if (!Expect("a code joins it", [&] { return text(IDC_REPORT_TITLE) == "all on <machine>"; })) {
        return false;
    }
    if (!enter(IDC_REPORT_PAPER)) {
        return false;
    }
    Press(VK_UP);
    if (!Expect("a key steps to the next paper", [&] { return text(IDC_REPORT_PAPER) == "A4"; })) {
        return false;
    }
    for (const WORD nKey : {WORD{VK_TAB}, WORD{'3'}, WORD{'0'}}) {
        Press(nKey);
    }
    if (!Expect("a margin is typed", [&] { return text(IDC_REPORT_FIRST_MARGIN) == "30"; }) ||
        !enter(IDC_REPORT_PACKAGES)) {
        return false;
    }
    Press(VK_DOWN);
    if (!Expect("the packages open and move on",
                [&] { return combo(IDC_REPORT_PACKAGES).GetCurSel() == 1; }) ||
        !Station("report-4-images-open")) {
        return false;
    }
    Press(VK_RETURN);
    if (!Expect("a key closes them",
                [&] { return !combo(IDC_REPORT_PACKAGES).GetDroppedState(); }) ||
        !enter(IDC_REPORT_FIRST_COLOR)) {
        return false;
    }
    Press(VK_DOWN);
    if (!Expect("the colours open and move on",
                [&] { return combo(IDC_REPORT_FIRST_COLOR).GetCurSel() == 1; }) ||
        !Station("report-5-colors-open")) {
        return false;
    }
    Press(VK_RETURN);
    return Expect("a key closes them",
                  [&] { return !combo(IDC_REPORT_FIRST_COLOR).GetDroppedState(); });
}

// Where there is a printer, its job goes to a file beside the pictures.
bool Walk::Paper() {
    m_frame.PostMessage(WM_COMMAND, ID_REPORT_LIST);
    const unsigned nPages = m_frame.Report().Pages();
    if (!Expect("the list joins the report", [&] { return m_frame.Report().Pages() > nPages; })) {
        return false;
    }
    const CString strFile = m_strFolder + "\\report.ps";
    if (!m_frame.Report().PrintToFile(strFile)) {
        std::printf("walk: not printed: %s\n", static_cast<LPCTSTR>(m_frame.Report().Message()));
        return true;
    }
    CFileStatus status;
    const bool bPrinted = CFile::GetStatus(strFile, status) != FALSE;
    std::printf("walk: report.ps, %u pages\n", m_frame.Report().Pages());
    return Happened("the report comes out of the printer", bPrinted);
}
