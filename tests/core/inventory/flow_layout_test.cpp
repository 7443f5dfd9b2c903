#include "model/flow_layout.h"

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

}  // namespace
