#include "model/flow_layout.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace {

// Rows, '|' between, with where each group begins.
std::string Flowed(int nWidth) {
    std::vector<FlowGroup> groups = {{4, 0, 100}, {120, 0, 60}, {4, 1, 80}, {110, 1, 90}};
    const int nRows = FlowGroups(groups, nWidth, 4, 10);
    std::string str;
    int nRow = 0;
    for (const FlowGroup& group : groups) {
        for (; nRow < group.nRow; ++nRow) {
            str += "| ";
        }
        str += std::to_string(group.nLeft) + " ";
    }
    return str + "=" + std::to_string(nRows);
}

TEST(FlowLayout, GroupsStayAsDrawnUntilTheyHaveNoRoom) {
    EXPECT_EQ(Flowed(204), "4 120 | 4 110 =2");
    EXPECT_EQ(Flowed(203), "4 114 | 4 94 =2") << "closer together";
    EXPECT_EQ(Flowed(170), "4 | 4 74 | 4 =3");
    EXPECT_EQ(Flowed(110), "4 | 4 | 4 | 4 =4");
    EXPECT_EQ(Flowed(20), "4 | 4 | 4 | 4 =4") << "too narrow for any";
}

// Ten rows of 20 pixels, 6 between: how many below each other, how high, how far apart.
std::string Rows(int nRoom) {
    const RowsInColumns rows = FitRows(10, nRoom, 20, 16, 6);
    EXPECT_LE(rows.nInColumn * (rows.nHeight + rows.nGap) - rows.nGap, std::max(nRoom, 16));
    return std::to_string(rows.nInColumn) + " of " + std::to_string(rows.nHeight) + "+" +
           std::to_string(rows.nGap);
}

TEST(FlowLayout, RowsMoveTogetherThenBecomeLowerThenStandSideBySide) {
    EXPECT_EQ(Rows(1000), "10 of 20+6");
    EXPECT_EQ(Rows(259), "10 of 20+6") << "nothing stands below the last one";
    EXPECT_EQ(Rows(240), "10 of 20+4");
    EXPECT_EQ(Rows(190), "10 of 18+1");
    EXPECT_EQ(Rows(169), "10 of 16+1");
    EXPECT_EQ(Rows(168), "5 of 20+6") << "two columns have room again";
    EXPECT_EQ(Rows(40), "2 of 19+1");
    EXPECT_EQ(Rows(0), "1 of 16+1") << "no room at all";
    EXPECT_EQ(Rows(-5), "1 of 16+1");
}

}  // namespace
