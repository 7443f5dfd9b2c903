// The program of the text tests, run once for each code page.
#include "support/test_app.h"

#include <cstdlib>
#include <gtest/gtest.h>

static TestApp theApp;

TEST(TextPage, ProcessIsInTheCodePageThatThisRunIsFor) {
    const char* pszPage = std::getenv("QV_CODE_PAGE");
    ASSERT_NE(pszPage, nullptr) << "run by ctest, which names the code page";
    EXPECT_EQ(::GetACP(), static_cast<UINT>(std::atoi(pszPage)));
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL)) {
        return 1;
    }
    const int nResult = RUN_ALL_TESTS();
    AfxWinTerm();
    return nResult;
}
