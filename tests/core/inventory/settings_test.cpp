#include "model/settings.h"

#include "model/report_settings.h"

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
    EXPECT_TRUE(other.Parse("inventory settings, version 1\r\nreport.paper=A5\r\n", nLine));
    EXPECT_EQ(other.Choice(kSettingPaper), 2);
}

TEST(Settings, RefuseWhatTheyCannotKeep) {
    Settings settings;
    EXPECT_FALSE(settings.Set(kSettingPaper, "A9"));
    EXPECT_FALSE(settings.Set(kSettingTitle, "two\nlines"));
    EXPECT_EQ(settings.Format(), Settings().Format());
}

TEST(Settings, DamageIsNamedByItsLineAndLeavesTheDefaults) {
    const std::string strFirst = "inventory settings, version 1\n";
    const std::pair<std::string, size_t> files[] = {
        {"", 1},
        {"something else", 1},
        {strFirst + "report.title=x\nreport.paper=huge\n", 3},
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

TEST(ReportSettings, MarginsAreReadAsTheyWereAndAsTheyAre) {
    const std::pair<const char*, Margins> kTexts[] = {
        {"10 20.5 0 60", {10, 20.5, 0, 60}}, {"narrow", {15, 15, 15, 15}},
        {"normal", {23, 23, 23, 23}},        {"wide", {36, 36, 36, 36}},
        {"10 20 30", {23, 23, 23, 23}},      {"10 20 30 61", {23, 23, 23, 23}},
        {"10 -1 30 4", {23, 23, 23, 23}},    {"10 nan 30 4", {23, 23, 23, 23}},
        {"1x 2 3 4", {23, 23, 23, 23}},      {"", {23, 23, 23, 23}}};
    for (const auto& [pszText, margins] : kTexts) {
        EXPECT_EQ(ReadMargins(pszText), margins) << pszText;
    }
    EXPECT_EQ(ReadMargins(Settings().Value(kSettingMargins)), (Margins{23, 23, 23, 23}));
    EXPECT_EQ(MarginText(20.5), "20.5");
    EXPECT_EQ(MarginText(7), "7");
}

TEST(ReportSettings, CodesAreReplacedOnce) {
    const std::vector<std::pair<std::string_view, std::string>> values = {
        {kCodeMachine, "<date>"}, {kCodeDate, "2026-11-22"}, {kCodePackages, "12"}};
    EXPECT_EQ(ReplaceCodes("<machine>, <date>: <packages> <date", values),
              "<date>, 2026-11-22: 12 <date");
    EXPECT_EQ(ReplaceCodes("<<date>> <other>", values), "<2026-11-22> <other>");
}
