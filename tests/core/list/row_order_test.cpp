#include "list/core/row_order.h"

#include <gtest/gtest.h>

namespace qv {

TEST(RowOrder, RowsWithoutAWordOfTheirOwnAreParked) {
    const MultiByte text;
    RowOrder order(text);
    constexpr unsigned kNumbers[] = {2, 1, 3};
    for (const unsigned n : kNumbers) {
        order.AddNumber(n);
    }
    order.SetWords([&](std::size_t nRow) { return kNumbers[nRow] / 2; });
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
    order.SetWords([&](std::size_t nRow) { return nRow == 0 ? 8 : kNumbers[nRow] / 2; });
    EXPECT_TRUE(order.ByWords(ranks));
    EXPECT_EQ(ranks.Find(8), 1u);
}

}  // namespace qv
