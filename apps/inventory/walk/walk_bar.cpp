#include "walk/walk.h"

#include "resource.h"

namespace {

constexpr UINT_PTR kTimer = 3;
constexpr UINT kLookAgain = 50;  // milliseconds

CString s_strMenuPicture;
std::vector<WORD> s_menuKeys;

// A menu runs a loop of its own, so what is pressed in it comes from a timer.
void CALLBACK AnswerMenu(HWND hWnd, UINT, UINT_PTR nTimer, DWORD) {
    const HWND hMenu = ::FindWindow("#32768", nullptr);
    if (hMenu == nullptr || !::IsWindowVisible(hMenu)) {
        return;
    }
    ::KillTimer(hWnd, nTimer);
    SavePicture(*AfxGetMainWnd(), s_strMenuPicture);
    for (const WORD nKey : s_menuKeys) {
        Press(nKey);
    }
}

}  // namespace

CPoint Walk::PointOfTool(UINT nID) {
    CRect rc;
    m_frame.Packages().Bar().GetDlgItem(static_cast<int>(nID))->GetWindowRect(&rc);
    return rc.CenterPoint();
}

bool Walk::FilterSection() {
    const int nAll = List().GetItemCount();
    Click(PointOfTool(IDC_FILTER_SECTION));
    for (int i = 0; i < 4; ++i) {
        Press(VK_DOWN);
    }
    if (!Station("bar-1-sections")) {
        return false;
    }
    Press(VK_RETURN);
    return Expect("a section chosen leaves its packages alone",
                  [&] {
                      const std::string& strSection = m_frame.Packages().Bar().Filter().strSection;
                      const Package* pFirst = List().PackageOf(0);
                      return !strSection.empty() &&
                             Tree().SectionOf(Tree().GetSelectedItem()) == strSection &&
                             List().GetItemCount() < nAll && pFirst != nullptr &&
                             pFirst->strSection == strSection;
                  }) &&
           Station("bar-2-filtered");
}

bool Walk::FilterDate() {
    PackageBar& bar = m_frame.Packages().Bar();
    CRect rc;
    bar.GetDlgItem(IDC_FILTER_SINCE)->GetWindowRect(&rc);
    Click(CPoint(rc.left + 10, rc.CenterPoint().y));
    Press(VK_RIGHT);  // from the day of the week to the month
    Press(VK_DOWN);
    Press(VK_DOWN);
    if (!Expect("a key in the blank date makes it a day",
                [&] { return bar.Filter().tSince != 0; }) ||
        !Station("bar-3-since")) {
        return false;
    }
    Click(PointOfTool(IDC_FILTER_ANY_DATE));
    return Expect("the button blanks it again", [&] { return bar.Filter().tSince == 0; });
}

// Back to all sections, by keys alone: over the date, the way to a package and the architecture.
bool Walk::FilterOpens() {
    PackageBar& bar = m_frame.Packages().Bar();
    for (int i = 0; i < 4; ++i) {
        Press(VK_TAB, VK_SHIFT);
    }
    Press(VK_HOME);
    return Expect("Tab and Home lead back to all packages", [&] { return bar.Filter().IsOpen(); });
}

bool Walk::Jump() {
    Click(PointOfTool(IDC_JUMP));
    for (const char ch : {'D', 'A', 'S'}) {
        Press(static_cast<WORD>(ch));
    }
    return Expect("three letters complete to a package, and the list goes there",
                  [this] {
                      const Package* pPackage = List().PackageOf(List().GetSelectedItem());
                      CString strText;
                      m_frame.Packages().Bar().GetDlgItemText(IDC_JUMP, strText);
                      return pPackage != nullptr && strText == pPackage->strName.c_str() &&
                             strText.Left(3) == "das";
                  }) &&
           Station("bar-4-jump");
}

bool Walk::ToolTip() {
    const CPoint pt = PointOfTool(ID_LIST_EXPORT);
    SendMouse(pt - CSize(3, 0), {MOUSEEVENTF_MOVE});
    HandleMessages();
    SendMouse(pt, {MOUSEEVENTF_MOVE});
    return Expect("a button says what it does", TipShows) && Station("bar-5-tool-tip");
}

void Walk::OpenReportMenu(const std::vector<WORD>& keys, const char* pszStation) {
    s_strMenuPicture = m_strFolder + "\\" + pszStation + ".bmp";
    s_menuKeys = keys;
    m_frame.SetTimer(kTimer, kLookAgain, AnswerMenu);
    Click(PointOfTool(IDC_REPORT_MENU));
}

bool Walk::ReportMenu() {
    OpenReportMenu({VK_DOWN, VK_RETURN}, "bar-6-menu");
    if (!Expect("the menu's first entry shows the report",
                [this] { return m_frame.Report().IsWindowVisible() != FALSE; })) {
        return false;
    }
    ClickTab(0);
    return Expect("and the tab leads back",
                  [this] { return m_frame.Packages().IsWindowVisible() != FALSE; });
}
