#include "list/core/row_ranks.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

namespace qv {

// Words close to each other, far apart, and such as end in the same bits.
TEST(RowRanks, FindTheRankOfEachWordAndOfNoOther) {
    std::mt19937_64 random(3);
    for (const std::size_t nRows : {0u, 1u, 2u, 100u, 3000u}) {
        for (const unsigned nRange : {1u, 3u, 1000u}) {
            for (const unsigned nLowZeros : {0u, 4u, 12u}) {
                const std::uintptr_t nFirst = random() % 3 * 0x7FFFFFFF00000000;
                std::set<std::uintptr_t> known;
                std::vector<RowRanks::Row> rows;
                while (rows.size() < nRows) {
                    const std::uintptr_t nWord =
                        nFirst + (random() % (nRows * nRange) << nLowZeros);
                    if (known.insert(nWord).second) {
                        rows.push_back({nWord, static_cast<std::uint32_t>(random() % nRows)});
                    }
                }
                RowRanks ranks;
                EXPECT_EQ(ranks.Find(0), RowRanks::kNone) << "before any";
                ASSERT_TRUE(ranks.Assign(rows));
                for (const RowRanks::Row& row : rows) {
                    ASSERT_EQ(ranks.Find(row.nWord), row.nRank);
                    for (const std::uintptr_t nOther :
                         {row.nWord + 1, row.nWord - 1, static_cast<std::uintptr_t>(random())}) {
                        ASSERT_TRUE(known.count(nOther) != 0 ||
                                    ranks.Find(nOther) == RowRanks::kNone);
                    }
                }
            }
        }
    }
}

TEST(RowRanks, RefuseWordsThatAreNotUnique) {
    RowRanks ranks;
    EXPECT_FALSE(ranks.Assign({{0, 0}, {0, 1}}));
    EXPECT_FALSE(ranks.Assign({{5, 0}, {0, 1}, {7, 2}, {5, 3}}));
    EXPECT_FALSE(ranks.Assign({{5, 0}, {1000, 1}, {5, 2}}));
    EXPECT_EQ(ranks.Find(7), RowRanks::kNone);
    EXPECT_TRUE(ranks.Assign({{5, 0}, {0, 1}, {7, 2}})) << "and take others afterwards";
    EXPECT_EQ(ranks.Find(7), 2u);
}

}  // namespace qv
