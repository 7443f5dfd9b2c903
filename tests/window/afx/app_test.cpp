// The application's services: wait cursor, settings, messages.
#include "support/test_app.h"

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

TEST(AppMessages, WhatIsFilledInIsNotFilledInAgain) {
    CString str;
    AfxFormatString2(str, AFX_IDP_PARSE_INT_RANGE, "%2", "9");
    EXPECT_STREQ(str, "Please enter a whole number from %2 to 9.");
}

}  // namespace
