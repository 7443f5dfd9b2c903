// The window tests' program: one application object, all tests on its thread.
#include "support/test_app.h"

#include <gtest/gtest.h>

static TestApp theApp;

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // A crash ends the program with its code instead of a dialog that nobody answers.
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL)) {
        return 1;
    }
    const int nResult = RUN_ALL_TESTS();
    AfxWinTerm();
    return nResult;
}
