#include "support/screen_reader.h"

#include "support/pump.h"

#include <cstdio>

namespace {

constexpr DWORD kLongestAnswer = 60'000;  // milliseconds
constexpr char kEnd[] = "\n.\n";

// Without the carriage returns of the other program's output.
std::string ReadAll(HANDLE hPipe) {
    std::string str;
    DWORD dwReady = 0;
    if (!::PeekNamedPipe(hPipe, nullptr, 0, nullptr, &dwReady, nullptr) || dwReady == 0) {
        return str;
    }
    str.resize(dwReady);
    DWORD dwRead = 0;
    ::ReadFile(hPipe, str.data(), dwReady, &dwRead, nullptr);
    str.resize(dwRead);
    std::erase(str, '\r');
    return str;
}

}  // namespace

ScreenReader::ScreenReader() {
    SECURITY_ATTRIBUTES inherit{sizeof(inherit), nullptr, TRUE};
    STARTUPINFOA startup{};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
    ::CreatePipe(&startup.hStdInput, &m_hToReader, &inherit, 0);
    ::CreatePipe(&m_hFromReader, &startup.hStdOutput, &inherit, 0);
    ::SetHandleInformation(m_hToReader, HANDLE_FLAG_INHERIT, 0);
    ::SetHandleInformation(m_hFromReader, HANDLE_FLAG_INHERIT, 0);
    char szFile[MAX_PATH]{};
    ::GetModuleFileNameA(nullptr, szFile, MAX_PATH);
    std::string strCommand = szFile;
    strCommand.resize(strCommand.rfind('\\') + 1);
    strCommand = '"' + strCommand + "say_window.exe\" --ask";
    ::CreateProcessA(nullptr, strCommand.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                     &startup, &m_process);
    ::CloseHandle(startup.hStdInput);
    ::CloseHandle(startup.hStdOutput);
}

ScreenReader::~ScreenReader() {
    // The end of its questions ends it.
    ::CloseHandle(m_hToReader);
    if (m_process.hProcess != nullptr) {
        PumpUntil([this] { return ::WaitForSingleObject(m_process.hProcess, 0) == WAIT_OBJECT_0; });
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    ::CloseHandle(m_hFromReader);
}

std::string ScreenReader::Ask(const std::string& strQuestion) {
    const std::string strLine = strQuestion + '\n';
    DWORD dwWritten = 0;
    ::WriteFile(m_hToReader, strLine.data(), static_cast<DWORD>(strLine.size()), &dwWritten,
                nullptr);
    std::string strAnswer = "\n";
    const auto complete = [&] {
        strAnswer += ReadAll(m_hFromReader);
        return strAnswer.ends_with(kEnd);
    };
    if (!PumpUntil(complete, kLongestAnswer)) {
        return "no answer";
    }
    return strAnswer.size() > sizeof(kEnd) ? strAnswer.substr(1, strAnswer.size() - sizeof(kEnd))
                                           : "";
}

std::string ScreenReader::Watch(HWND hWnd) {
    char sz[40];
    std::snprintf(sz, sizeof(sz), "window %llx",
                  static_cast<unsigned long long>(reinterpret_cast<UINT_PTR>(hWnd)));
    return Ask(sz);
}
