#include "model/settings.h"

#include <gtest/gtest.h>

TEST(Settings, ComeBackFromTheirFile) {
    Settings settings;
    EXPECT_TRUE(settings.Set(kSettingTitle, "A title = with signs"));
    EXPECT_TRUE(settings.Set(kSettingSeparator, "semicolon"));
    EXPECT_TRUE(settings.Set(kSettingExportFolder, "C:\\some folder"));
    Settings other;
    size_t nLine = 0;
    ASSERT_TRUE(other.Parse(settings.Format(), nLine));
    EXPECT_EQ(other.Value(kSettingTitle), "A title = with signs");
    EXPECT_EQ(other.Choice(kSettingSeparator), 2);
    EXPECT_EQ(other.Value(kSettingExportFolder), "C:\\some folder");
    EXPECT_EQ(other.Format(), settings.Format());
    EXPECT_TRUE(other.Parse("inventory settings, version 1\r\nreport.margins=wide\r\n", nLine));
    EXPECT_EQ(other.Choice(kSettingMargins), 2);
}

TEST(Settings, RefuseWhatTheyCannotKeep) {
    Settings settings;
    EXPECT_FALSE(settings.Set(kSettingMargins, "none"));
    EXPECT_FALSE(settings.Set(kSettingTitle, "two\nlines"));
    EXPECT_EQ(settings.Format(), Settings().Format());
}

TEST(Settings, DamageIsNamedByItsLineAndLeavesTheDefaults) {
    const std::string strFirst = "inventory settings, version 1\n";
    const std::pair<std::string, size_t> files[] = {
        {"", 1},
        {"something else", 1},
        {strFirst + "report.title=x\nreport.margins=huge\n", 3},
        {strFirst + "no.such.key=1\n", 2},
        {strFirst + "report.title=x\n\n", 3},
        {strFirst + std::string("report.title=a\0b\n", 17), 2},
    };
    for (const auto& [strText, nExpected] : files) {
        Settings settings;
        size_t nLine = 0;
        EXPECT_FALSE(settings.Parse(strText, nLine)) << strText;
        EXPECT_EQ(nLine, nExpected) << strText;
        EXPECT_EQ(settings.Format(), Settings().Format());
    }
}
