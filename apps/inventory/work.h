// Work: something that may take long, done on the one thread there is. Where it takes over half a
// second the wait dialog comes up, with the main window disabled below it: messages are dispatched
// then, but no command is carried out, no other work begins, and closing the main window cancels
// and waits.
//
//     const Failure pFailure = Work::Run("Writing the list...", [&](Work& work) {
//         for (int i = 0; i < nRows; ++i) {
//             work.Step(i, nRows);
//             Write(i);
//         }
//     });

#pragma once

#include "errors.h"

#include <cstdint>
#include <functional>

class Work {
public:
    // Null: it is done. Otherwise the status that it was left with, by throwing it: code 263 if the
    // user has cancelled, or if there is other work already. What else it throws passes.
    static Failure Run(LPCSTR pszMessage, const std::function<void(Work&)>& work);

    // How far it is. Leaves the work by throwing the status of code 263 once the user has
    // cancelled: destructors clear up.
    void Step(std::uint64_t nDone, std::uint64_t nAll);
    // What is being done from now on.
    void Say(LPCSTR pszMessage);

    static bool IsRunning() { return s_pRunning != nullptr; }
    // As the user does by the button.
    static void Cancel();
    // A window is to close: false if it can. Work that is running is cancelled, and the window, or
    // the main one if both are to, gets WM_CLOSE again behind it.
    static bool ClosesLater(CWnd& wnd);

    // For the walk, on machines of any speed: each step takes that long. 0: as long as it takes.
    static void SlowDown(DWORD nMilliseconds) { s_nDelay = nMilliseconds; }
    // Whether the dialog came up in the last work.
    static bool WasShown() { return s_bShown; }

    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

private:
    explicit Work(LPCSTR pszMessage);
    ~Work();

    static Work* s_pRunning;
    static HWND s_hCloses;
    static bool s_bShown;
    static DWORD s_nDelay;

    QVWaitDlg m_dlg;
    QVWaitDlgProgressCallback m_progress{m_dlg};
    ULONGLONG m_nNext;  // when the dialog is told next, and comes up if it is not there
};
