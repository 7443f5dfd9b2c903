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
    return RunTests(argc, argv);
}
