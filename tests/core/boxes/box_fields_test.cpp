#include "boxes/core/box_fields.h"

#include <climits>
#include <gtest/gtest.h>
#include <vector>

namespace {

using qv::Rect;

struct Box : testing::Test {
    Box() {
        styles.Add(0, 0);
        styles.Add(0, 0);
    }
    std::vector<qv::BoxField> Read(std::string_view row, std::vector<int> tabs,
                                   Rect rect = {100, 3, 500, 20}) {
        std::vector<qv::BoxField> fields;
        qv::BoxFieldReader reader(row, rect, tabs, DT_RIGHT, styles);
        for (qv::BoxField field; reader.Next(field);) {
            fields.push_back(field);
        }
        return fields;
    }
    qv::StyleTable styles;
};
using BoxFields = Box;

TEST_F(BoxFields, LieBetweenTheStops) {
    const auto fields = Read("a\t\033bb\t\033zc\td\te", {50, 20120});
    ASSERT_EQ(fields.size(), 3u) << "one more than stops";
    EXPECT_EQ(fields[0].rect, (Rect{106, 3, 144, 20}));
    EXPECT_EQ(fields[1].rect, (Rect{156, 3, 214, 20}));
    EXPECT_EQ(fields[2].rect, (Rect{226, 3, 494, 20})) << "to the end of the row";
    EXPECT_EQ(fields[0].nFormat, DT_RIGHT) << "in front of the first stop";
    EXPECT_EQ(fields[1].nFormat, DT_LEFT);
    EXPECT_EQ(fields[2].nFormat, DT_RIGHT);
    EXPECT_EQ(fields[0].nStyle, -1);
    EXPECT_EQ(fields[1].nStyle, 1);
    EXPECT_EQ(fields[2].nStyle, 0) << "an unknown code is style 0";
    EXPECT_EQ(fields[1].text, "b");
    EXPECT_EQ(fields[2].text, "zc");
}

TEST_F(BoxFields, EndWithTheRow) {
    const auto one = Read("a", {50, 120});
    ASSERT_EQ(one.size(), 1u);
    EXPECT_EQ(one[0].rect.right, 144) << "at its stop";
    EXPECT_EQ(Read("a\tb", {}).size(), 1u);
    EXPECT_EQ(Read("a\tb", {})[0].rect, (Rect{106, 3, 494, 20}));
    EXPECT_EQ(Read("a\t", {50}).size(), 1u);
    EXPECT_EQ(Read("", {50}).size(), 0u);
    EXPECT_EQ(Read("\t\tc", {50, 70})[2].text, "c");
}

TEST_F(BoxFields, StopsOfAnyValueStayNumbers) {
    const auto fields = Read("a\tb\tc", {INT_MAX, -400}, {INT_MAX - 9, 0, 9, 9});
    EXPECT_GT(fields[0].rect.right, 0);
    EXPECT_EQ(fields.size(), 3u);
}

}  // namespace
