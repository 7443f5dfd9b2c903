// The application's services: wait cursor, settings, messages.
#include "support/test_app.h"

#include <afxdisp.h>

#include <gtest/gtest.h>

namespace {

TEST(WaitCursor, Nests_AndGivesTheOldCursorBackAtTheEnd) {
    const HCURSOR hBefore = ::LoadCursor(nullptr, IDC_CROSS);
    const HCURSOR hWait = ::LoadCursor(nullptr, IDC_WAIT);
    TheTestApp().EndWaitCursor();  // one too many does no harm
    ::SetCursor(hBefore);
    {
        CWaitCursor outer;
        {
            CWaitCursor inner;
            ::SetCursor(hBefore);
            inner.Restore();
            EXPECT_EQ(::GetCursor(), hWait);
        }
        EXPECT_EQ(::GetCursor(), hWait) << "one is still open";
    }
    EXPECT_EQ(::GetCursor(), hBefore);
}

TEST(AppSettings, ComeBackFromTheRegistryAndFromTheIniFile) {
    class SettingsApp : public TestApp {
    public:
        using CWinApp::SetRegistryKey;
    };
    // The program's object lends its settings calls; which store they use is a matter of the key.
    auto& app = static_cast<SettingsApp&>(TheTestApp());
    for (const bool bRegistry : {false, true}) {
        if (bRegistry) {
            app.SetRegistryKey("QVControls tests");
        }
        EXPECT_TRUE(app.WriteProfileInt("Sizes", "Width", -5));
        EXPECT_EQ(static_cast<int>(app.GetProfileInt("Sizes", "Width", 1)), -5);
        EXPECT_EQ(app.GetProfileInt("Sizes", "Height", 33), 33u);
        EXPECT_TRUE(app.WriteProfileString("Names", "Title", "a title"));
        EXPECT_STREQ(app.GetProfileString("Names", "Title"), "a title");
        BYTE bytes[] = {0, 1, 0xFE, 0x7A};
        EXPECT_TRUE(app.WriteProfileBinary("Names", "Bytes", bytes, sizeof bytes));
        BYTE* pRead = nullptr;
        UINT nRead = 0;
        ASSERT_TRUE(app.GetProfileBinary("Names", "Bytes", &pRead, &nRead));
        EXPECT_EQ(nRead, sizeof bytes);
        EXPECT_EQ(memcmp(pRead, bytes, sizeof bytes), 0);
        delete[] pRead;
        EXPECT_TRUE(app.WriteProfileString("Names", "Title", nullptr));
        EXPECT_STREQ(app.GetProfileString("Names", "Title", "gone"), "gone");
        EXPECT_TRUE(app.WriteProfileString("Names", nullptr, nullptr));
    }
}

/// Throws in one of its steps, which have letters.
class ThrowingApp : public TestApp {
public:
    std::string m_strWhere, m_strSteps;
    BOOL InitApplication() override { return Step("a"); }
    BOOL InitInstance() override { return Step("i"); }
    int Run() override { return Step("r"), AfxPostQuitMessage(7), CWinThread::Run(); }
    int ExitInstance() override { return Step("e"), TestApp::ExitInstance(); }
    BOOL Step(const char* pszStep) {
        return m_strSteps += pszStep, m_strWhere == pszStep ? throw new CUserException : TRUE;
    }
};

TEST(AppMain, AStepThatThrowsIsToldAndEndsTheProgram) {
    CWinApp* const pTestApp = AfxGetApp();
    const struct {
        const char *pszWhere, *pszSteps;
        int nResult;
    } kCases[] = {
        {"", "aire", 7}, {"a", "a", -1}, {"i", "aie", 0}, {"r", "aire", 0}, {"e", "aire", -1}};
    for (const auto& c : kCases) {
        ThrowingApp app;
        app.m_strWhere = c.pszWhere;
        EXPECT_EQ(AfxWinMain(::GetModuleHandle(nullptr), nullptr, nullptr, SW_HIDE), c.nResult);
        EXPECT_EQ(app.m_strSteps, c.pszSteps);
        EXPECT_EQ(app.m_exceptions.size(), *c.pszWhere != 0);
    }
    AfxGetModuleState()->m_pCurrentWinApp = pTestApp;
    AfxOleInit();
}

TEST(AppMessages, WhatIsFilledInIsNotFilledInAgain) {
    CString str;
    AfxFormatString2(str, AFX_IDP_PARSE_INT_RANGE, "%2", "9");
    EXPECT_STREQ(str, "Please enter a whole number from %2 to 9.");
}

}  // namespace
