// The window tests' program: one application object, all tests on its thread.
#include "support/test_app.h"

#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>

static TestApp theApp;

/// On a virtual screen nobody manages windows, and the X11 driver would wait two seconds for that
/// at each window it shows. Told so once, it remembers for programs of this name.
static void ExpectNoWindowManager() {
    HKEY hKey = nullptr;
    if (::RegCreateKeyEx(HKEY_CURRENT_USER,
                         "Software\\Wine\\AppDefaults\\window_tests.exe\\X11 Driver", 0, nullptr,
                         REG_OPTION_NON_VOLATILE, KEY_WRITE, nullptr, &hKey,
                         nullptr) == ERROR_SUCCESS) {
        ::RegSetValueEx(hKey, "Managed", 0, REG_SZ, reinterpret_cast<const BYTE*>("N"), 2);
        ::RegCloseKey(hKey);
    }
}

/// A crash ends the program at once, instead of waiting in a debugger that nobody answers.
static LONG WINAPI EndOnCrash(EXCEPTION_POINTERS* pPointers) {
    fprintf(stderr, "crash %08lx at %p\n", pPointers->ExceptionRecord->ExceptionCode,
            pPointers->ExceptionRecord->ExceptionAddress);
    ::TerminateProcess(::GetCurrentProcess(), 3);
    return EXCEPTION_EXECUTE_HANDLER;
}

/// Another program on the same screen: writes what it finds on the clipboard to a file.
static int PasteInto(const char* pszFile) {
    int nResult = 1;
    if (::OpenClipboard(nullptr)) {
        const HANDLE hText = ::GetClipboardData(CF_TEXT);
        const auto* pszText =
            static_cast<const char*>(hText != nullptr ? ::GlobalLock(hText) : nullptr);
        FILE* pFile = pszText != nullptr ? std::fopen(pszFile, "wb") : nullptr;
        if (pFile != nullptr) {
            nResult = std::fputs(pszText, pFile) < 0;
            nResult |= std::fclose(pFile);
            ::GlobalUnlock(hText);
        }
        ::CloseClipboard();
    }
    return nResult;
}

int main(int argc, char** argv) {
    if (argc == 3 && std::strcmp(argv[1], "--paste-into") == 0) {
        return PasteInto(argv[2]);
    }
    ExpectNoWindowManager();
    ::SetUnhandledExceptionFilter(EndOnCrash);
    return RunTests(argc, argv);
}
