#include "walk/walk.h"

#include "resource.h"
#include "walk/cut_texts.h"

#include <cstring>
#include <dlgs.h>
#include <map>

namespace {

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

}  // namespace

bool Walk::Run() {
    m_frame.SetForegroundWindow();
    Tree().SetFocus();
    const char* const pszOnly = std::getenv("QV_WALK_ONLY");
    const CString strOnly(pszOnly != nullptr ? pszOnly : "");
    return strOnly == "comparisons" ? AllComparisons()
           : strOnly == "keys"      ? AllKeys()
           : strOnly == "look"      ? Look()
                                    : All();
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
           Zoom() && FindInReport() && ExportReport() && ReportSettings() && PreferencesDropped() &&
           Paper() && NewReport() && FinishEarly() && CancelWizard() && RunFromBar() &&
           EditReport() && DeleteReport() && SaveReportAs() && AskAgain() && RenameReport() &&
           Logs() && FollowLog() && LogOnPaper() && DamagedDatabase() && LockedFile() &&
           FullDisk() && ErrorsInLog() && OpenDatabase() && OpenMachine() && Look() && AllKeys() &&
           AllComparisons();
}

bool Walk::Station(const char* pszName, CWnd* pWnd) {
    WaitFor([this] { return !Details().IsWaiting(); });
    CWnd& wnd = pWnd != nullptr ? *pWnd : m_frame;
    wnd.UpdateWindow();
    const CString strFile = m_strFolder + "\\" + pszName + ".bmp";
    const bool bSaved = SavePicture(wnd, strFile);
    std::printf("walk: %s%s\n", pszName, bSaved ? "" : ": the picture could not be written");
    // The dialogs that are up, of the platform's own as well, are the user's to read.
    CWnd* const pFront = CWnd::GetActiveWindow();
    for (const std::string& strText : CutTexts(pFront != nullptr ? *pFront : wnd)) {
        std::printf("walk: %s: no room for all of: %s\n", pszName, strText.c_str());
    }
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

// The platform's dialog stays up beside the window: it is closed again.
bool Walk::AskFor(const char* pszLetters, const char* pszStation) {
    HWND hDialog = nullptr;
    HWND hText = nullptr;
    Press('F', VK_CONTROL);
    if (!Expect("the platform's dialog for finding comes up", [&] {
            hDialog = ::FindWindow("#32770", "Find");
            hText = hDialog != nullptr ? ::GetDlgItem(hDialog, edt1) : nullptr;
            return hText != nullptr && ::GetFocus() == hText;
        })) {
        return false;
    }
    ::SendMessage(hText, EM_SETSEL, 0, -1);
    for (const char* psz = pszLetters; *psz != '\0'; ++psz) {
        Press(static_cast<WORD>(*psz));
    }
    const int nLetters = static_cast<int>(strlen(pszLetters));
    const CString strBefore = m_frame.StatusText(0);
    if (!Expect("a text is typed", [&] { return ::GetWindowTextLength(hText) == nLetters; })) {
        return false;
    }
    Press(VK_RETURN);
    const bool bSaid = Expect("it is said how the search went", [&] {
        const CString strSaid = m_frame.StatusText(0);
        return strSaid != strBefore &&
               (strSaid.Find("found in") >= 0 || strSaid.Find("Found from") >= 0 ||
                strSaid.Find("is not in") >= 0);
    });
    const bool bGood = bSaid && (pszStation == nullptr || Station(pszStation));
    ::SetFocus(hText);
    Press(VK_ESCAPE);
    return bGood && Expect("Escape closes the dialog, and the window has the focus again", [&] {
               return !::IsWindow(hDialog) && ::IsChild(m_frame.m_hWnd, ::GetFocus());
           });
}
