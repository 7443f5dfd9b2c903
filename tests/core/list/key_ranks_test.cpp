#include "list/core/key_ranks.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <string>

namespace qv {

namespace {

using AllRanks = std::vector<std::uint32_t>;

// The plain definition: rows in order, and a rank more for each that is greater than the one
// before.
template <class Key, class Compare>
AllRanks PlainRanks(const std::vector<Key>& keys, Compare compare) {
    std::vector<std::uint32_t> rows(keys.size());
    std::iota(rows.begin(), rows.end(), 0u);
    std::stable_sort(rows.begin(), rows.end(),
                     [&](auto a, auto b) { return compare(keys[a], keys[b]) < 0; });
    AllRanks ranks(keys.size());
    std::uint32_t nRank = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        nRank += i > 0 && compare(keys[rows[i - 1]], keys[rows[i]]) != 0;
        ranks[rows[i]] = nRank;
    }
    return ranks;
}

}  // namespace

TEST(KeyRanks, EqualRowsHaveOneRank) {
    const MultiByte text;
    KeyRanks numbers(text);
    KeyRanks dates(text);
    KeyRanks others(text);
    for (const int n : {-1, 5, 3, 5}) {
        numbers.AddNumber(static_cast<std::uint32_t>(n));
        dates.AddDate(n);
        others.AddUnordered();
    }
    EXPECT_EQ(numbers.TakeRanks(), (AllRanks{2, 1, 0, 1})) << "negative ones are great ones";
    EXPECT_EQ(dates.TakeRanks(), (AllRanks{0, 2, 1, 2}));
    EXPECT_EQ(others.TakeRanks(), (AllRanks{0, 0, 0, 0}));
    EXPECT_EQ(KeyRanks(text).TakeRanks(), AllRanks());
}

// Few rows are compared, many are sorted by their digits; texts that agree in eight bytes, in
// sixteen, or to the end of one of them go on to the next ones.
TEST(KeyRanks, OrderAsTheTextsDo) {
    std::mt19937 random(9);
    for (const MultiByte& text : {MultiByte(), MultiByte::Utf8()}) {
        for (const std::size_t nMost : {40, 40, 40, 40, 5000, 20000}) {
            KeyRanks keys(text);
            std::vector<std::string> texts(nMost - random() % 30);
            for (std::string& str : texts) {
                str = std::string(random() % 3 * 8, 'x');
                for (unsigned n = random() % 12; n > 0; --n) {
                    str += "aAb\xC3\xA4"[random() % 5];
                }
                keys.AddText(str.c_str());
            }
            EXPECT_EQ(keys.TakeRanks(), PlainRanks(texts, [&](const auto& a, const auto& b) {
                          return text.CompareNoCase(a.c_str(), b.c_str());
                      }));
        }
    }
}

TEST(KeyRanks, OrderAsManyNumbersDo) {
    const MultiByte text;
    std::mt19937 random(3);
    for (const std::uint32_t nRange : {3u, 100000u, 0xFFFFFFFFu}) {
        KeyRanks keys(text);
        std::vector<std::uint32_t> numbers(30000);
        for (std::uint32_t& n : numbers) {
            n = static_cast<std::uint32_t>(random()) % nRange;
            keys.AddNumber(n);
        }
        EXPECT_EQ(keys.TakeRanks(), PlainRanks(numbers, [](auto a, auto b) {
                      return a < b ? -1 : a > b ? 1 : 0;
                  }));
    }
}

}  // namespace qv
