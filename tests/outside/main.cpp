#include <afxwin.h>

#include <gtest/gtest.h>

static CWinApp theApp("Outside");

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_HIDE)) {
        return 1;
    }
    const int nResult = RUN_ALL_TESTS();
    AfxWinTerm();
    return nResult;
}
