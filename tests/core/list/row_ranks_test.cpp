#include "list/core/row_ranks.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

namespace qv {

TEST(RowRanks, FindTheRankOfEachWordAndOfNoOther) {
    std::mt19937_64 random(3);
    for (const std::size_t nRows : {0u, 1u, 2u, 100u, 3000u}) {
        for (const unsigned nLowZeros : {0u, 4u, 12u}) {
            std::set<std::uintptr_t> known;
            std::vector<std::uintptr_t> words;
            while (words.size() < nRows) {
                const auto nWord = static_cast<std::uintptr_t>(random() % 10000 << nLowZeros);
                if (known.insert(nWord).second) {
                    words.push_back(nWord);
                }
            }
            RowRanks ranks;
            EXPECT_EQ(ranks.Find(0), RowRanks::kNone) << "before any";
            ASSERT_TRUE(ranks.Assign(words));
            for (std::size_t i = 0; i < nRows; ++i) {
                ASSERT_EQ(ranks.Find(words[i]), i);
                const auto nOther = static_cast<std::uintptr_t>(random());
                ASSERT_TRUE(known.count(nOther) != 0 || ranks.Find(nOther) == RowRanks::kNone);
            }
        }
    }
}

TEST(RowRanks, RefuseWordsThatAreNotUnique) {
    RowRanks ranks;
    EXPECT_FALSE(ranks.Assign({0, 0}));
    EXPECT_FALSE(ranks.Assign({5, 0, 7, 5}));
    EXPECT_EQ(ranks.Find(7), RowRanks::kNone);
    EXPECT_TRUE(ranks.Assign({5, 0, 7})) << "and take others afterwards";
    EXPECT_EQ(ranks.Find(7), 2u);
}

}  // namespace qv
