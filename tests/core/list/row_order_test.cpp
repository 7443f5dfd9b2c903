#include "list/core/row_order.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace qv {

namespace {

std::vector<std::uint32_t> Ranks(const RowOrder& order) {
    std::vector<std::uint32_t> ranks;
    for (std::size_t i = 0; i < order.Count(); ++i) {
        ranks.push_back(order.Rank(i));
    }
    return ranks;
}

using AllRanks = std::vector<std::uint32_t>;

}  // namespace

TEST(RowOrder, EqualRowsHaveOneRank) {
    const MultiByte text;
    RowOrder numbers(text);
    for (const int n : {-1, 5, 3, 5}) {
        numbers.AddNumber(static_cast<std::uint32_t>(n));
    }
    numbers.Arrange();
    EXPECT_EQ(Ranks(numbers), (AllRanks{2, 1, 0, 1})) << "negative ones are great ones";
    RowOrder others(text);
    others.AddUnordered();
    others.AddUnordered();
    others.Arrange();
    EXPECT_EQ(Ranks(others), (AllRanks{0, 0}));
}

TEST(RowOrder, RanksOrderAsTheTextsDo) {
    const MultiByte text;
    std::mt19937 random(9);
    for (int nRun = 0; nRun < 30; ++nRun) {
        RowOrder order(text);
        std::vector<std::string> texts;
        for (unsigned n = random() % 40; n > 0; --n) {
            std::string str(random() % 12, ' ');
            std::generate(str.begin(), str.end(), [&] { return "aAb"[random() % 3]; });
            order.AddText(str.c_str());
            texts.push_back(str);
        }
        order.Arrange();
        for (std::size_t i = 0; i < texts.size(); ++i) {
            for (std::size_t k = 0; k < texts.size(); ++k) {
                const int nOrder = text.CompareNoCase(texts[i].c_str(), texts[k].c_str());
                ASSERT_EQ(order.Rank(i) < order.Rank(k), nOrder < 0);
                ASSERT_EQ(order.Rank(i) == order.Rank(k), nOrder == 0);
            }
        }
    }
}

TEST(RowOrder, RowsWithoutAWordOfTheirOwnAreParked) {
    const MultiByte text;
    RowOrder order(text);
    for (const unsigned n : {2u, 1u, 3u}) {
        order.AddNumber(n);
        order.SetWord(order.Count() - 1, n / 2);
    }
    order.Arrange();
    RowRanks ranks;
    EXPECT_FALSE(order.ByWords(ranks));
    EXPECT_FALSE(order.AnyParked());
    const std::uintptr_t nFirst = order.ParkNext();
    const std::uintptr_t nSecond = order.ParkNext();
    EXPECT_TRUE(order.AnyParked());
    EXPECT_EQ(order.ParkedRow(nFirst), 0u);
    EXPECT_EQ(order.ParkedRow(nSecond), 1u);
    EXPECT_EQ(order.Word(1), 0u);
    for (const std::uintptr_t nOther : {nFirst + 1, nFirst - 8, 2 * nSecond - nFirst}) {
        EXPECT_EQ(order.ParkedRow(nOther), RowOrder::kNoRow) << "not even where a row is to come";
    }
    order.SetWord(0, 8);
    EXPECT_TRUE(order.ByWords(ranks));
    EXPECT_EQ(ranks.Find(8), 1u);
}

}  // namespace qv
