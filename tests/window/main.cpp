// The window tests' program: one application object, all tests on its thread.
#include "support/test_app.h"

#include <cstdio>
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

/// Each test begins with the pointer in a corner where no window is: one that a test before has left
/// over a list chooses rows in it.
class PointerAside : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override {
        ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);
    }
};

int main(int argc, char** argv) {
    ExpectNoWindowManager();
    ::SetUnhandledExceptionFilter(EndOnCrash);
    testing::UnitTest::GetInstance()->listeners().Append(new PointerAside);
    return RunTests(argc, argv);
}
