#include "frame/core/sort_keys.h"

#include <gtest/gtest.h>
#include <random>

namespace qv {

TEST(SortKeys, OrderTextsAsTheComparisonWithoutCaseDoes) {
    const MultiByte text;
    SortKeys keys(text);
    std::mt19937 random(3);
    std::vector<std::string> texts{"", "a", "A", "ab", "abcdefgh", "ABCDEFGHI", "abcdefghj"};
    for (int i = 0; i < 60; ++i) {
        std::string str(random() % 12, ' ');
        for (char& ch : str) {
            ch = static_cast<char>("aAbB\xe9z"[random() % 6]);
        }
        texts.push_back(str);
    }
    std::vector<SortKey> made;
    for (const std::string& str : texts) {
        made.push_back(keys.Text(str.c_str()));
    }
    for (size_t i = 0; i < texts.size(); ++i) {
        for (size_t j = 0; j < texts.size(); ++j) {
            ASSERT_EQ(keys.Compare(made[i], made[j]),
                      text.CompareNoCase(texts[i].c_str(), texts[j].c_str()))
                << texts[i] << " and " << texts[j];
        }
    }
}

TEST(SortKeys, NumbersAreUnsigned) {
    const MultiByte text;
    const SortKeys keys(text);
    const auto key = [](int n) { return SortKeys::Number(static_cast<std::uint32_t>(n)); };
    EXPECT_EQ(keys.Compare(key(3), key(5)), -1);
    EXPECT_EQ(keys.Compare(key(-1), key(5)), 1);
    EXPECT_EQ(keys.Compare(key(-1), key(-1)), 0);
}

// Before day 0 the fraction still is the time that has passed of the day.
TEST(SortKeys, DatesOrderByTimeOnBothSidesOfDayZero) {
    const MultiByte text;
    const SortKeys keys(text);
    const double dates[] = {-2.25, -2.75, -1.0, -1.5, 0.0, 0.5, 1.0, 45000.1, 45000.2};
    for (size_t i = 1; i < std::size(dates); ++i) {
        EXPECT_EQ(keys.Compare(SortKeys::Date(dates[i - 1]), SortKeys::Date(dates[i])), -1) << i;
    }
    EXPECT_EQ(keys.Compare(SortKeys::Date(0.0), SortKeys::Date(-0.0)), 0);
}

}  // namespace qv
