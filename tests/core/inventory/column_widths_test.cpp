#include "model/column_widths.h"

#include <gtest/gtest.h>

TEST(ColumnWidths, LongTextsGiveWayAndTakeWhatIsLeft) {
    const std::vector<ColumnWish> wishes = {
        {100, 40, true}, {50, 50, false}, {80, 60, true}, {30, 30, false}};
    using Widths = std::vector<int>;
    EXPECT_EQ(ShareWidth(wishes, 300), (Widths{100, 50, 120, 30}));
    EXPECT_EQ(ShareWidth(wishes, 220), (Widths{70, 50, 70, 30}));
    EXPECT_EQ(ShareWidth(wishes, 10), (Widths{40, 50, 60, 30}));
    EXPECT_EQ(ShareWidth({{30, 30, false}}, 10), Widths{30});
}

TEST(ColumnWidths, TooMuchIsCutBelowThreeQuarters) {
    const std::vector<ColumnWish> wishes = {{100, 20, true}, {100, 20, true}, {50, 50, false}};
    EXPECT_FALSE(CutsTooMuch(wishes, 300));
    EXPECT_FALSE(CutsTooMuch(wishes, 200)) << "75 of 100 are left";
    EXPECT_FALSE(CutsTooMuch(wishes, 241)) << "shares that are rounded";
    EXPECT_TRUE(CutsTooMuch(wishes, 198));
    EXPECT_TRUE(CutsTooMuch({{50, 50, false}}, 40)) << "what cannot be cut has no room";
}
