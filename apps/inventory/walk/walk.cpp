#include "walk/walk.h"

#include "resource.h"

#include <map>

namespace {

const char* s_pszWanted = "";

constexpr UINT_PTR kFirstTimer = 100;
constexpr UINT kLookAgain = 50;  // milliseconds
constexpr int kMostLooks = 1200;

struct Awaited {
    CString strTitle;
    std::function<bool(CWnd&)> act;
    int nLooks = 0;
};
std::map<UINT_PTR, Awaited> s_awaited;  // by timer

void CALLBACK LookForDialog(HWND hWnd, UINT, UINT_PTR nTimer, DWORD) {
    const HWND hDialog = ::FindWindow("#32770", s_awaited[nTimer].strTitle);
    if (hDialog == nullptr || !::IsWindowVisible(hDialog) || !::IsChild(hDialog, ::GetFocus())) {
        // Another dialog in its place would wait for an answer for ever.
        if (++s_awaited[nTimer].nLooks > kMostLooks) {
            std::printf("walk: this dialog did not come: %s\n",
                        s_awaited[nTimer].strTitle.GetString());
            std::fflush(stdout);
            ::ExitProcess(1);
        }
        return;
    }
    ::KillTimer(hWnd, nTimer);
    const Awaited awaited = s_awaited[nTimer];
    s_awaited.erase(nTimer);
    if (!awaited.act(*CWnd::FromHandle(hDialog)) && ::IsWindow(hDialog)) {
        auto* pSheet = dynamic_cast<CPropertySheet*>(CWnd::FromHandlePermanent(hDialog));
        if (pSheet != nullptr) {
            pSheet->EndDialog(IDCANCEL);
        } else {
            ::EndDialog(hDialog, IDCANCEL);
        }
    }
}

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
    const char* const pszOnly = std::getenv("QV_WALK_ONLY");
    return pszOnly != nullptr && CString(pszOnly) == "comparisons" ? AllComparisons() : All();
}

bool Walk::AllComparisons() {
    return SaveSnapshot() && About() && Comparisons();
}

bool Walk::All() {
    return SectionsTree() && OpenBranch() && SectionNarrows() && Marks() && AbsoluteColumns() &&
           Find() && Vetoes() && AllPackages() && Packages() && FindPackage() && ImageColumn() &&
           Export() && Refresh() && CancelLoad() && CancelExport() && DragBars() && DetailsTabs() &&
           GoToDependency() && NothingToShow() && KeysAround() && DetailsOnPaper() &&
           LayoutKept() && FilterSection() && FilterDate() && FilterOpens() && Jump() &&
           ToolTip() && ReportMenu() && LargestPackages() && LargestOnPaper() && CancelPrint() &&
           TypeSettings() && ChooseSetting() && ChooseFolder() && SettingsKept() && ReportPages() &&
           Zoom() && ReportSettings() && PreferencesDropped() && Paper() && NewReport() &&
           FinishEarly() && CancelWizard() && RunFromBar() && EditReport() && DeleteReport() &&
           SaveReportAs() && AskAgain() && RenameReport() && Logs() && FollowLog() &&
           LogOnPaper() && DamagedDatabase() && LockedFile() && FullDisk() && ErrorsInLog() &&
           OpenDatabase() && OpenMachine() && AllComparisons();
}

bool Walk::Station(const char* pszName, CWnd* pWnd) {
    WaitFor([this] { return !Details().IsWaiting(); });
    CWnd& wnd = pWnd != nullptr ? *pWnd : m_frame;
    wnd.UpdateWindow();
    const CString strFile = m_strFolder + "\\" + pszName + ".bmp";
    const bool bSaved = SavePicture(wnd, strFile);
    std::printf("walk: %s%s\n", pszName, bSaved ? "" : ": the picture could not be written");
    std::fflush(stdout);
    return bSaved;
}

bool Walk::Happened(const char* pszWhat, bool bHappened) {
    if (!bHappened) {
        char szFocus[64] = "no window";
        ::GetClassName(::GetFocus(), szFocus, sizeof(szFocus));
        std::printf("walk: this did not happen: %s (the focus is in: %s)\n", pszWhat, szFocus);
        std::fflush(stdout);
        SavePicture(*CWnd::GetDesktopWindow(), m_strFolder + "\\failed.bmp");
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

void Walk::WhileUp(const char* pszTitle, std::function<bool(CWnd&)> act) {
    UINT_PTR nTimer = kFirstTimer;
    while (s_awaited.contains(nTimer)) {
        ++nTimer;
    }
    s_awaited[nTimer] = {pszTitle, std::move(act)};
    m_frame.SetTimer(nTimer, kLookAgain, LookForDialog);
}

bool Walk::Enter(CWnd& dialog, int nID) {
    const HWND hItem = ::GetDlgItem(dialog.m_hWnd, nID);
    ClickOn(*CWnd::FromHandle(hItem));
    return Expect("a click gives the focus", [&] { return ::GetFocus() == hItem; });
}

void Walk::AskFor(const char* pszLetters) {
    constexpr UINT_PTR kTimer = 1;
    s_pszWanted = pszLetters;
    m_frame.SetTimer(kTimer, kLookAgain, AnswerFind);
    Press('F', VK_CONTROL);
}
