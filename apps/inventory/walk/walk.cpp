#include "walk/walk.h"

#include "resource.h"

namespace {

const char* s_pszWanted = "";

// The dialog runs a loop of its own, so what is typed into it comes from a timer.
void CALLBACK AnswerFind(HWND hWnd, UINT, UINT_PTR nTimer, DWORD) {
    const HWND hDialog = ::FindWindow(nullptr, "Find a package");
    if (hDialog == nullptr || ::GetFocus() != ::GetDlgItem(hDialog, IDC_FIND_TEXT)) {
        return;
    }
    ::KillTimer(hWnd, nTimer);
    for (const char* psz = s_pszWanted; *psz != '\0'; ++psz) {
        Press(static_cast<WORD>(*psz));
    }
    Press(VK_RETURN);
}

}  // namespace

bool Walk::Run() {
    m_frame.SetForegroundWindow();
    Tree().SetFocus();
    return SectionsTree() && OpenBranch() && SectionNarrows() && Marks() && AbsoluteColumns() &&
           Find() && Vetoes() && AllPackages() && Packages() && FindPackage() && ImageColumn() &&
           Export() && Refresh() && DragBars() && DetailsTabs() && GoToDependency() &&
           NothingToShow() && KeysAround() && DetailsOnPaper() && LayoutKept() && FilterSection() &&
           FilterDate() && FilterOpens() && Jump() && ToolTip() && ReportMenu() &&
           LargestPackages() && LargestOnPaper() && TypeSettings() && ChooseSetting() &&
           SettingsKept() && ReportPages() && Zoom() && ReportSettings() && Paper() && Logs() &&
           FollowLog() && LogOnPaper();
}

bool Walk::Station(const char* pszName) {
    WaitFor([this] { return !Details().IsWaiting(); });
    m_frame.UpdateWindow();
    const CString strFile = m_strFolder + "\\" + pszName + ".bmp";
    const bool bSaved = SavePicture(m_frame, strFile);
    std::printf("walk: %s%s\n", pszName, bSaved ? "" : ": the picture could not be written");
    std::fflush(stdout);
    return bSaved;
}

bool Walk::Happened(const char* pszWhat, bool bHappened) {
    if (!bHappened) {
        std::printf("walk: this did not happen: %s\n", pszWhat);
        std::fflush(stdout);
    }
    return bHappened;
}

void Walk::ClickTab(int nPage) {
    CTabCtrl& tabs = m_frame.Pages().Tabs();
    CRect rc;
    tabs.GetItemRect(nPage, &rc);
    tabs.ClientToScreen(&rc);
    Click(rc.CenterPoint());
}

void Walk::AskFor(const char* pszLetters) {
    constexpr UINT_PTR kTimer = 1;
    constexpr UINT kLookAgain = 50;  // milliseconds
    s_pszWanted = pszLetters;
    m_frame.SetTimer(kTimer, kLookAgain, AnswerFind);
    Press('F', VK_CONTROL);
}
