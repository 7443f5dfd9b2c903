#include "work.h"

#include <utility>

namespace {

// Milliseconds.
constexpr ULONGLONG kPatience = 500;
constexpr ULONGLONG kBetween = 40;

constexpr DWORD kRange = 1000;

}  // namespace

Work* Work::s_pRunning = nullptr;
HWND Work::s_hCloses = nullptr;
bool Work::s_bShown = false;
DWORD Work::s_nDelay = 0;

Failure Work::Run(LPCSTR pszMessage, const std::function<void(Work&)>& work) {
    if (IsRunning()) {
        return std::make_unique<QVStatus>(QVStatus::cancelled);
    }
    Failure pFailure;
    try {
        Work running(pszMessage);
        work(running);
    } catch (QVStatus* pStatus) {
        pFailure.reset(pStatus);
    }
    return pFailure;
}

Work::Work(LPCSTR pszMessage) : m_nNext(::GetTickCount64() + kPatience) {
    m_dlg.SetWaitMessage(pszMessage);
    m_dlg.SetHasCancelButton(TRUE);
    m_dlg.SetProgressRange(kRange);
    s_pRunning = this;
    s_bShown = false;
}

Work::~Work() {
    m_dlg.Remove();
    s_pRunning = nullptr;
    if (const HWND hCloses = std::exchange(s_hCloses, nullptr)) {
        ::PostMessage(hCloses, WM_CLOSE, 0, 0);
    }
}

// Before the dialog is up nothing is dispatched: the main window is not disabled yet.
void Work::Step(std::uint64_t nDone, std::uint64_t nAll) {
    if (s_nDelay != 0) {
        ::Sleep(s_nDelay);
    }
    if (::GetTickCount64() < m_nNext) {
        return;
    }
    if (m_dlg.m_hWnd == nullptr) {
        if (!m_dlg.Display(nullptr, FALSE)) {
            m_nNext = ~ULONGLONG{0};
            return;
        }
        s_bShown = true;
    }
    const DWORD_PTR nPosition = nAll > 0 ? static_cast<DWORD_PTR>(nDone * kRange / nAll) : 0;
    m_progress.CallbackFunction()(qvpcPosition, nPosition, m_progress.CallbackParameter());
    m_nNext = ::GetTickCount64() + kBetween;
}

void Work::Say(LPCSTR pszMessage) {
    m_dlg.SetWaitMessage(pszMessage);
}

bool Work::ClosesLater(CWnd& wnd) {
    if (!IsRunning()) {
        return false;
    }
    if (s_hCloses == nullptr || &wnd == AfxGetMainWnd()) {
        s_hCloses = wnd.m_hWnd;
    }
    Cancel();
    return true;
}

void Work::Cancel() {
    if (IsRunning()) {
        s_pRunning->m_dlg.SendMessage(WM_COMMAND, IDCANCEL);
    }
}
