#include "list/core/cut_rows.h"

#include <gtest/gtest.h>

namespace qv {

TEST(CutRows, AreFoundWithinTheRoomUntilTheyAreForgotten) {
    CutRows rows;
    rows.Open(40);
    for (int nPlace = 999980; nPlace < 999980 + 40; ++nPlace) {
        EXPECT_EQ(rows.Find(nPlace), nullptr);
        rows.Take(nPlace).Assign(std::to_string(nPlace) + "\t\tb\t");
    }
    for (int nPlace = 999980; nPlace < 999980 + 40; ++nPlace) {
        ASSERT_NE(rows.Find(nPlace), nullptr);
        EXPECT_EQ(rows.Find(nPlace)->Cell(0), std::to_string(nPlace));
    }
    const CutRow& row = *rows.Find(1000000);
    EXPECT_STREQ(row.Cell(1), "");
    EXPECT_STREQ(row.Cell(2), "b");
    EXPECT_STREQ(row.Cell(-1), "");
    EXPECT_STREQ(row.Cell(3), "") << "a TAB at the end starts no further field";
    rows.Close();
    EXPECT_EQ(rows.Find(1000000), nullptr);
}

}  // namespace qv
