#include "walk.h"

#include "resource.h"

bool Walk::Run() {
    m_frame.SetForegroundWindow();
    Tree().SetFocus();
    return TreePage() && OpenBranch() && Marks() && AbsoluteColumns() && Find() && Vetoes() &&
           Packages() && FindPackage() && ImageColumn() && Export() && Refresh() &&
           TypeSettings() && ChooseSetting() && SettingsKept() && ReportPages() && Zoom() &&
           Paper() && Logs() && FollowLog() && LogOnPaper();
}

bool Walk::Station(const char* pszName) {
    WaitFor([] { return true; });
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
