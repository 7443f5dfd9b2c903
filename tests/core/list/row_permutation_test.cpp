#include "list/core/row_permutation.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

namespace qv {

namespace {

using Rows = std::vector<std::uint32_t>;

// The rows as they are shown; each is found at its place again.
Rows Shown(const RowPermutation& order) {
    Rows rows;
    for (std::uint32_t i = 0; i < order.Count(); ++i) {
        rows.push_back(order.RowAt(i));
        EXPECT_EQ(order.PlaceOf(rows.back()), i);
    }
    const auto nCount = static_cast<std::uint32_t>(order.Count());
    EXPECT_EQ(order.RowAt(nCount), RowPermutation::kNone);
    EXPECT_EQ(order.PlaceOf(nCount), RowPermutation::kNone);
    EXPECT_TRUE(order.CheckInvariants());
    return rows;
}

}  // namespace

// Against the plain definition: a stable sort of what is shown, a walk over it where rows go.
TEST(RowPermutation, SortsAndCountsAsTheShownRowsDo) {
    std::mt19937 random(7);
    for (int nRun = 0; nRun < 20; ++nRun) {
        RowPermutation order;
        Rows shown;
        for (int nStep = 0; nStep < 12; ++nStep) {
            if (random() % 2 == 0) {
                const auto nRows = static_cast<std::uint32_t>(random() % 30);
                const std::size_t nAbove = random() % 30;
                const auto goes = [nRows](std::uint32_t n) { return n >= nRows; };
                const auto nStay = std::count_if(
                    shown.begin(),
                    shown.begin() + static_cast<std::ptrdiff_t>(std::min(nAbove, shown.size())),
                    std::not_fn(goes));
                for (auto n = static_cast<std::uint32_t>(shown.size()); n < nRows; ++n) {
                    shown.push_back(n);
                }
                std::erase_if(shown, goes);
                EXPECT_EQ(order.SetCount(nRows, nAbove), static_cast<std::size_t>(nStay));
            } else {
                Rows ranks(shown.size());
                std::generate(ranks.begin(), ranks.end(), [&] { return random() % 5; });
                const bool bAscending = random() % 2 != 0;
                std::stable_sort(shown.begin(), shown.end(), [&](auto a, auto b) {
                    return bAscending ? ranks[a] < ranks[b] : ranks[a] > ranks[b];
                });
                order.Arrange(ranks, bAscending);
            }
            ASSERT_EQ(Shown(order), shown);
        }
        order.Reset();
        std::sort(shown.begin(), shown.end());
        EXPECT_EQ(Shown(order), shown);
    }
}

}  // namespace qv
