// try_programs FOLDER PROGRAM...: starts each program, waits until its window stands, leaves a
// picture of it in the folder, closes it as a user would, and looks at its exit code. What comes in
// front then has a picture as well, NAME-2 and on, and is closed in turn. A program without a
// window has to end by itself. The exit code is the number of programs that failed.
//
// A program ends well with 0, or with IDCANCEL: where a dialog is all there is, the framework gives
// back what its last message brought, the command that closed it.
#include "screen_picture/screen_picture.h"

#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr DWORD kLongest = 60'000;  // milliseconds that a program may take for a step
constexpr DWORD kStep = 100;
constexpr int kMostWindows = 8;  // that may come one after the other

// A program that was started, with its windows. One that still runs at the end is ended.
class Program {
public:
    explicit Program(const std::string& strFile) {
        STARTUPINFOA startup{};
        startup.cb = sizeof(startup);
        std::string strCommand = "\"" + strFile + "\"";
        m_bStarted = ::CreateProcessA(nullptr, strCommand.data(), nullptr, nullptr, FALSE, 0,
                                      nullptr, nullptr, &startup, &m_info) != FALSE;
    }
    ~Program() {
        if (m_bStarted) {
            if (IsRunning()) {
                ::TerminateProcess(m_info.hProcess, 1);
            }
            ::CloseHandle(m_info.hThread);
            ::CloseHandle(m_info.hProcess);
        }
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    bool IsStarted() const { return m_bStarted; }
    bool IsRunning() const { return ::WaitForSingleObject(m_info.hProcess, 0) == WAIT_TIMEOUT; }
    DWORD ExitCode() const {
        DWORD dwCode = 0;
        ::GetExitCodeProcess(m_info.hProcess, &dwCode);
        return dwCode;
    }
    // The windows with a caption that show, the foremost first.
    std::vector<HWND> Windows() const {
        Search search{m_info.dwProcessId, {}};
        ::EnumWindows(Take, reinterpret_cast<LPARAM>(&search));
        return search.windows;
    }
    // False once it takes too long, or the program is at its end.
    bool WaitFor(const std::function<bool()>& condition) const {
        for (DWORD dwWaited = 0; dwWaited < kLongest; dwWaited += kStep) {
            if (condition()) {
                return true;
            }
            if (!IsRunning()) {
                return condition();
            }
            ::Sleep(kStep);
        }
        return false;
    }

private:
    struct Search {
        DWORD dwProcess;
        std::vector<HWND> windows;
    };
    static BOOL CALLBACK Take(HWND hWnd, LPARAM lParam) {
        auto& search = *reinterpret_cast<Search*>(lParam);
        DWORD dwProcess = 0;
        ::GetWindowThreadProcessId(hWnd, &dwProcess);
        const bool bCaption = (::GetWindowLongA(hWnd, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
        if (dwProcess == search.dwProcess && bCaption && ::IsWindowVisible(hWnd)) {
            search.windows.push_back(hWnd);
        }
        return TRUE;
    }

    PROCESS_INFORMATION m_info = {};
    bool m_bStarted = false;
};

// What shows once nothing changes any more: the same picture three times.
std::optional<ScreenPicture> SettledPicture(const Program& program) {
    std::optional<ScreenPicture> latest;
    int nSame = 0;
    program.WaitFor([&] {
        const std::vector<HWND> windows = program.Windows();
        DWORD_PTR nAnswer = 0;
        if (windows.empty() || ::SendMessageTimeoutA(windows.front(), WM_NULL, 0, 0,
                                                     SMTO_ABORTIFHUNG, kLongest, &nAnswer) == 0) {
            return false;
        }
        // Wine tells a dialog that is a program's first window, before it is in front, that it is
        // not.
        ::SendMessageTimeoutA(windows.front(), WM_NCACTIVATE, TRUE, 0, SMTO_ABORTIFHUNG, kLongest,
                              &nAnswer);
        RECT rect;
        ::GetWindowRect(windows.front(), &rect);
        const ScreenPicture picture(rect);
        nSame = latest && *latest == picture ? nSame + 1 : 0;
        latest = picture;
        return nSame == 3;
    });
    return nSame == 3 ? latest : std::nullopt;
}

// What went wrong; empty if nothing did.
std::string Try(const std::string& strFile, const std::string& strPicture) {
    const Program program(strFile);
    if (!program.IsStarted()) {
        return "could not be started, error " + std::to_string(::GetLastError());
    }
    if (!program.WaitFor([&] { return !program.IsRunning() || !program.Windows().empty(); })) {
        return "showed no window";
    }
    for (int nWindow = 1; program.IsRunning(); ++nWindow) {
        if (nWindow > kMostWindows) {
            return "did not close";
        }
        const std::optional<ScreenPicture> picture = SettledPicture(program);
        if (!picture) {
            if (!program.IsRunning()) {
                break;  // it was ending
            }
            return "its window did not come to rest";
        }
        std::string strName = strPicture;
        if (nWindow > 1) {
            strName.append("-").append(std::to_string(nWindow));
        }
        if (!picture->Save(strName.append(".bmp").c_str())) {
            return "no picture could be written";
        }
        const std::vector<HWND> windows = program.Windows();
        const HWND hFront = windows.empty() ? nullptr : windows.front();
        if (!program.WaitFor([&] {
                ::PostMessageA(hFront, WM_CLOSE, 0, 0);  // a preview takes one for itself
                const std::vector<HWND> left = program.Windows();
                return !program.IsRunning() || (!left.empty() && left.front() != hFront);
            })) {
            return "did not close";
        }
    }
    const DWORD dwCode = program.ExitCode();
    return dwCode == 0 || dwCode == DWORD{IDCANCEL}
               ? ""
               : "ended with " + std::to_string(static_cast<int>(dwCode));
}

std::string NameOf(const std::string& strFile) {
    const size_t nStart = strFile.find_last_of("\\/") + 1;
    return strFile.substr(nStart, strFile.rfind('.') - nStart);
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc < 3) {
        std::puts("usage: try_programs FOLDER PROGRAM...");
        return 1;
    }
    int nFailed = 0;
    for (int n = 2; n < argc; ++n) {
        const std::string strName = NameOf(argv[n]);
        const std::string strError = Try(argv[n], std::string(argv[1]) + "\\" + strName);
        std::printf("%s %s %s\n", strError.empty() ? "ok    " : "FAILED", strName.c_str(),
                    strError.c_str());
        std::fflush(stdout);
        nFailed += strError.empty() ? 0 : 1;
    }
    std::printf("%d passed, %d failed\n", argc - 2 - nFailed, nFailed);
    return nFailed;
}
