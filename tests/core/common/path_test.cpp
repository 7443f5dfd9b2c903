#include "common/core/path.h"

#include "support/double_byte.h"

#include <gtest/gtest.h>
#include <tuple>

namespace {

const qv::MultiByte kText = DoubleByte();
const qv::PathText kRules(kText, '\\');

std::string Components(const qv::PathText& rules, std::string_view path) {
    std::string strAll;
    std::size_t nPos = 0;
    for (auto part = rules.Next(path, nPos); !part.empty(); part = rules.Next(path, nPos)) {
        strAll.append(part).append("|");
    }
    return strAll;
}

// Each path's components, the path two components shorter, and its normal form.
TEST(Path, RootsAndComponents) {
    const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
        {R"()", "", "", ""},
        {R"(a\\b/c\)", "a|b|c|", "a", R"(a\b\c)"},
        {R"(a\..)", "a|..|", "", "."},
        {R"(.\C:)", ".|C:|", "", R"(.\C:)"},
        {R"(\a\..\..\b)", "a|..|..|b|", R"(\a\..)", R"(\b)"},
        {R"(C:a\..\..)", "C:|a|..|..|", "C:a", "C:.."},
        {R"(c:/)", "c:|", "c:/", R"(c:\)"},
        {R"(C:\\a\.\b\..\c)", "C:|a|.|b|..|c|", R"(C:\\a\.\b)", R"(C:\a\c)"},
        {R"(C:\..\a)", "C:|..|a|", R"(C:\)", R"(C:\a)"},
        {R"(\\m)", "m|", R"(\\)", R"(\\m)"},
        {R"(//m/s/../../a)", "m|s|..|..|a|", "//m/s/..", R"(\\m\s\a)"},
        {R"(\\?\C:\a/..\b)", "C:|a/..|b|", R"(\\?\C:\)", R"(\\?\C:\a/..\b)"},
        {R"(\\?\UNC\m\s)", "m|s|", R"(\\?\UNC\)", R"(\\?\UNC\m\s)"},
        {R"(\\\./UNC)", "", R"(\\\./UNC)", R"(\\\./UNC)"},
        {"\x95\\\\a\x81\\", "\x95\\|a\x81\\|", "", "\x95\\\\a\x81\\"}};  // second bytes
    for (const auto& [pszPath, pszComponents, pszShorter, pszNormal] : cases) {
        EXPECT_EQ(Components(kRules, pszPath), pszComponents) << pszPath;
        EXPECT_EQ(kRules.CutLast(pszPath, 2).rest, pszShorter) << pszPath;
        EXPECT_EQ(kRules.Normal(pszPath), pszNormal) << pszPath;
    }
    EXPECT_EQ(Components(qv::PathText(kText, '/'), "/a\\b//c"), "a\\b|c|");
    EXPECT_EQ(qv::PathText::Extension("a.tar.gz"), "gz");
    EXPECT_TRUE(qv::PathText::Extension("..x.").empty() && qv::PathText::Extension(".x").empty());
}

TEST(Path, WhatIsAppendedStaysBelow_HoweverLong) {
    std::string strPath = "C:";
    for (const char* pszPart : {"a", "\\", "\\\\m", "/b\x81", "c"}) {
        kRules.Append(strPath, pszPart);
    }
    EXPECT_EQ(strPath, "C:\\a\\m\\b\\c") << "half a character is dropped";
    while (strPath.size() < 32767) {
        kRules.Append(strPath, "\x95\\");
    }
    EXPECT_EQ(kRules.CutLast(strPath, 1 << 20).rest, "C:\\");
    EXPECT_EQ(kRules.Normal(strPath), strPath);
}

}  // namespace
