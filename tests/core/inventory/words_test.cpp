#include "model/count_text.h"
#include "model/find_rows.h"
#include "model/log_files.h"

#include <algorithm>
#include <gtest/gtest.h>

TEST(CountText, NounsFollowTheirNumber) {
    const std::tuple<size_t, const char*, const char*> kCounts[] = {
        {0, "package", "0 packages"}, {1, "package", "1 package"}, {2, "package", "2 packages"},
        {1, "entry", "1 entry"},      {3, "entry", "3 entries"},   {2, "day", "2 days"},
        {2, "match", "2 matches"},    {11, "row", "11 rows"}};
    for (const auto& [n, pszNoun, pszText] : kCounts) {
        EXPECT_EQ(CountText(n, pszNoun), pszText);
    }
    EXPECT_EQ(GroupedText(0), "0");
    EXPECT_EQ(GroupedText(999), "999");
    EXPECT_EQ(GroupedText(1000), "1,000");
    EXPECT_EQ(GroupedText(12345678), "12,345,678");
}

TEST(FindRows, GoAroundTheEndAndComeToTheFirstRowLast) {
    const auto find = [](int nStart, bool bDown, const std::vector<int>& rows) {
        const FoundRow found = FindRow(5, nStart, bDown, [&](int nRow) {
            EXPECT_TRUE(nRow >= 0 && nRow < 5);
            return std::find(rows.begin(), rows.end(), nRow) != rows.end();
        });
        return std::pair(found.nRow, found.bWrapped);
    };
    using Found = std::pair<int, bool>;
    EXPECT_EQ(find(-1, true, {0, 3}), Found(0, false));
    EXPECT_EQ(find(-1, false, {0, 3}), Found(3, false));
    EXPECT_EQ(find(0, true, {0, 3}), Found(3, false));
    EXPECT_EQ(find(3, true, {0, 3}), Found(0, true));
    EXPECT_EQ(find(0, false, {0, 3}), Found(3, true));
    EXPECT_EQ(find(2, true, {2}), Found(2, true)) << "the row itself, all around";
    EXPECT_EQ(find(9, true, {4}), Found(4, false)) << "a row that is gone";
    EXPECT_EQ(find(2, true, {}), Found(-1, false));
    EXPECT_EQ(FindRow(0, -1, true, [](int) { return true; }).nRow, -1);
}

TEST(FindRows, WholeWordsHaveNoLetterBeside) {
    constexpr auto kNowhere = std::wstring_view::npos;
    EXPECT_EQ(PlaceOfText(L"libzip4", L"zip", false), 3u);
    EXPECT_EQ(PlaceOfText(L"libzip4 unzip", L"zip", true), kNowhere);
    EXPECT_EQ(PlaceOfText(L"unzip, zip-doc", L"zip", true), 7u);
    EXPECT_EQ(PlaceOfText(L"\u00E9zip", L"zip", true), kNowhere);
    EXPECT_EQ(PlaceOfText(L"lib(zip)", L"(zip", true), 3u);
    EXPECT_EQ(PlaceOfText(L"any", L"", false), kNowhere);
}

TEST(LogFiles, TheOlderOneHasTheNextNumber) {
    const std::pair<const char*, const char*> kLogs[] = {{"a\\dpkg.log", "a\\dpkg.log.1"},
                                                         {"dpkg.log.1", "dpkg.log.2"},
                                                         {"dpkg.log.9", "dpkg.log.10"},
                                                         {"log", "log.1"},
                                                         {"7", "7.1"},
                                                         {"run.20261122", "run.20261122.1"},
                                                         {"log.", "log..1"}};
    for (const auto& [pszLog, pszOlder] : kLogs) {
        EXPECT_EQ(OlderLog(pszLog), pszOlder);
    }
}
