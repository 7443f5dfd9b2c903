#include "walk/walk.h"

#include "resource.h"
#include "work.h"

namespace {

// Milliseconds a step, for work of few and of many steps.
constexpr DWORD kSlow = 200;
constexpr DWORD kLessSlow = 10;
constexpr ULONGLONG kShort = 500;  // milliseconds; a slow machine may not read as fast

size_t FilesIn(const CString& strFolder) {
    size_t nFiles = 0;
    WIN32_FIND_DATA found;
    const HANDLE hFind = ::FindFirstFile(strFolder + "\\*", &found);
    if (hFind != INVALID_HANDLE_VALUE) {
        do {
            ++nFiles;
        } while (::FindNextFile(hFind, &found));
        ::FindClose(hFind);
    }
    return nFiles;
}

LONGLONG SizeOfFile(const CString& strFile) {
    CFileStatus status;
    return CFile::GetStatus(strFile, status) ? static_cast<LONGLONG>(status.m_size) : -1;
}

void TypeName(const char* pszLetters) {
    for (const char* psz = pszLetters; *psz != '\0'; ++psz) {
        Press(static_cast<WORD>(::toupper(*psz)));
    }
}

bool Confirm(CWnd&) {
    Press(VK_RETURN);
    return true;
}

}  // namespace

bool Walk::CancelWork(const char* pszStation, DWORD nSlow, const std::function<void()>& cause,
                      const std::function<bool()>& meanwhile) {
    Work::SlowDown(nSlow);
    const bool bGood = InDialog("Please Wait", cause, [&](CWnd& dialog) {
        auto* pWait = dynamic_cast<QVWaitDlg*>(&dialog);
        if (!Happened("the window waits below it",
                      pWait != nullptr && !m_frame.IsWindowEnabled()) ||
            !Station(pszStation) || !meanwhile()) {
            return false;
        }
        ClickOn(*dialog.GetDlgItem(IDCANCEL));
        return Expect("a click cancels", [&] { return pWait->Cancelled(); });
    });
    Work::SlowDown(0);
    return bGood && Expect("the work is over, and the window has the focus again", [this] {
               const HWND hFocus = ::GetFocus();
               return !Work::IsRunning() && m_frame.IsWindowEnabled() &&
                      (hFocus == m_frame.m_hWnd || ::IsChild(m_frame.m_hWnd, hFocus));
           });
}

bool Walk::CancelLoad() {
    const ULONGLONG nStart = ::GetTickCount64();
    m_frame.SendMessage(WM_COMMAND, ID_RELOAD);
    const bool bShort = ::GetTickCount64() - nStart < kShort;
    if (!Happened("a short reading shows no dialog", !bShort || !Work::WasShown())) {
        return false;
    }
    const int nRows = List().GetItemCount();
    const Package* const pFirst = List().PackageOf(0);
    bool bClosesLater = false;
    const auto load = [&] {
        m_frame.SendMessage(WM_COMMAND, ID_RELOAD);
        MSG msg;
        bClosesLater = ::PeekMessage(&msg, m_frame, WM_CLOSE, WM_CLOSE, PM_REMOVE) != FALSE;
    };
    // Neither another reading nor the end of the program comes in between.
    const auto meanwhile = [&] {
        m_frame.SendMessage(WM_COMMAND, ID_RELOAD);
        m_frame.SendMessage(WM_CLOSE);
        return Happened("the work goes on", Work::IsRunning() && ::IsWindow(m_frame.m_hWnd));
    };
    const UINT nSelected = List().GetSelectedCount();
    const auto kept = [&] {
        return List().GetItemCount() == nRows && List().PackageOf(0) == pFirst &&
               List().GetSelectedCount() == nSelected &&
               m_frame.StatusText(0).Find("cancelled") >= 0;
    };
    return CancelWork("work-1-reading", kSlow, load, meanwhile) &&
           Happened("the window that was to close does so afterwards", bClosesLater) &&
           Expect("what was there before is still there", kept) &&
           CancelWork("work-2-showing", kLessSlow, load, meanwhile) &&
           Expect("and comes back where some of it was gone", kept) && Station("work-3-cancelled");
}

// The file that was exported before is the one that is named again.
bool Walk::CancelExport() {
    const CString strFile = m_strFolder + "\\packages.csv";
    const LONGLONG nSize = SizeOfFile(strFile);
    const size_t nFiles = FilesIn(m_strFolder);
    bool bAsked = false;
    // The picture of the work is one file more.
    return CancelWork(
               "work-4-exporting", kSlow,
               [&] {
                   bAsked = InDialog(
                       "Export the list", [] { Press('E', VK_CONTROL); },
                       [this](CWnd& dialog) {
                           WhileUp("Inventory", [](CWnd&) {
                               Press('Y');  // it may take the old one's place
                               return true;
                           });
                           return Confirm(dialog);
                       });
               },
               [] { return true; }) &&
           bAsked &&
           Happened(
               "the file is what it was, and nothing lies beside it",
               nSize > 0 && SizeOfFile(strFile) == nSize && FilesIn(m_strFolder) == nFiles + 1);
}

bool Walk::CancelPrint() {
    const CString strFile = m_strFolder + "\\cancelled.ps";
    if (SizeOfFile(m_strFolder + "\\largest.ps") < 0) {
        return true;  // there is no printer
    }
    return CancelWork(
               "work-5-printing", kSlow, [&] { m_frame.Largest().PrintToFile(strFile); },
               [] { return true; }) &&
           Expect("the job has left no file", [&] { return SizeOfFile(strFile) < 0; });
}

// --- Names of reports

bool Walk::SaveReportAs() {
    const auto name = [this](CWnd& dialog) {
        TypeName("copy");
        const bool bGood =
            Expect("a name is typed over the one it had",
                   [&] {
                       CString str;
                       CWnd::FromHandle(::GetFocus())->GetWindowText(str);
                       return str == "copy" && ::IsChild(dialog.m_hWnd, ::GetFocus());
                   }) &&
            Station("names-1-prompt");
        Press(VK_RETURN);
        return bGood;
    };
    const auto replace = [this](CWnd&) {
        Press('D', VK_MENU);
        const bool bGood =
            Expect("a mnemonic ticks the box",
                   [] { return ::SendMessage(::GetFocus(), BM_GETCHECK, 0, 0) != 0; }) &&
            Station("names-2-replace");
        Press(VK_RETURN);
        return bGood;
    };
    const auto save = [this] { ClickOn(*m_frame.Report().GetDlgItem(ID_REPORT_SAVE_AS)); };
    bool bAsked = false;
    const auto replaced = [this] { return SettingInFile(kSettingReplace) == "replace it"; };
    return InDialog("Save the report", save, name) &&
           Expect("the report is kept under its name",
                  [this] {
                      return m_frame.Desk().Reports().Has("copy") &&
                             m_frame.Report().Shown().strName == "copy";
                  }) &&
           InDialog(
               "Inventory", [&] { bAsked = InDialog("Save the report", save, Confirm); },
               replace) &&
           bAsked && Expect("it is not asked again", replaced) &&
           InDialog("Save the report", save, Confirm) &&
           Expect("and is not", [this] { return m_frame.IsWindowEnabled() != FALSE; });
}

bool Walk::AskAgain() {
    return InDialog(
               "Preferences", [this] { m_frame.PostMessage(WM_COMMAND, ID_PREFERENCES); },
               [this](CWnd& dialog) {
                   CWnd& page = *static_cast<CPropertySheet&>(dialog).GetActivePage();
                   ClickOn(*page.GetDlgItem(IDC_REPORT_ASK));
                   const bool bGood =
                       Expect("a click turns the question on again",
                              [&] { return page.IsDlgButtonChecked(IDC_REPORT_ASK) != 0; }) &&
                       Station("names-3-ask-again");
                   Press(VK_RETURN);
                   return bGood;
               }) &&
           Expect("which is kept", [this] { return SettingInFile(kSettingReplace) == "ask"; });
}

bool Walk::RenameReport() {
    return InDialog(
               "Rename the report",
               [this] { ClickOn(*m_frame.Report().GetDlgItem(ID_REPORT_RENAME)); },
               [](CWnd&) {
                   TypeName("other");
                   Press(VK_RETURN);
                   return true;
               }) &&
           Expect("the report has the other name",
                  [this] {
                      return m_frame.Desk().Reports().Has("other") &&
                             !m_frame.Desk().Reports().Has("copy") &&
                             m_frame.Report().Shown().strName == "other";
                  }) &&
           Station("names-4-renamed");
}
