#include "list/core/list_columns.h"

#include <gtest/gtest.h>

namespace qv {

TEST(ListColumns, CountFollowsInsertionsAtTheEndAlone) {
    ListColumns columns;
    columns.CountInserted(0);
    columns.CountInserted(1);
    columns.CountInserted(0);
    EXPECT_EQ(columns.Count(), 2);
    columns.CountInserted(7);
    EXPECT_EQ(columns.Count(), 8);
    for (int i = 0; i < 10; ++i) {
        columns.CountDeleted();
    }
    EXPECT_EQ(columns.Count(), 0);
}

TEST(ListColumns, TablesIgnoreIndicesOutOfRange) {
    ListColumns columns;
    columns.SetCount(25);
    columns.SetFormat(24, 2);
    columns.SetFormat(25, 1);
    columns.SetFormat(-1, 1);
    columns.SetStyle(3, 4);
    EXPECT_EQ(columns.Format(24), 2);
    EXPECT_EQ(columns.Format(25), 0);
    EXPECT_EQ(columns.Format(-1), 0);
    EXPECT_EQ(columns.Format(0), 0);
    EXPECT_EQ(columns.Style(3), 4);
    // Entries outlast the columns that they are for.
    columns.SetCount(2);
    EXPECT_EQ(columns.Style(3), 0);
    columns.SetCount(4);
    EXPECT_EQ(columns.Style(3), 4);
    columns.Clear();
    columns.SetCount(4);
    EXPECT_EQ(columns.Style(3), 0);
}

TEST(ListColumns, PaperWidthsKeepTheProportionsOfTheScreen) {
    EXPECT_EQ(PrintWidth(100, 1000, 400), 250);
    EXPECT_EQ(PrintWidth(300, 1000, 400), 750);
    EXPECT_EQ(PrintWidth(1, 1000, 3), 333);
    EXPECT_EQ(PrintWidth(2000, 2000000, 4000), 1000000);  // beyond 32 bits on the way
    EXPECT_EQ(PrintWidth(100, 1000, 0), 0);
    EXPECT_EQ(PrintWidth(100, 1000, -100), 0);
}

TEST(ListColumns, AColumnExcludedTwiceCountsTwice) {
    ListColumns columns;
    columns.Exclude(2);
    columns.Exclude(2);
    EXPECT_TRUE(columns.IsExcluded(2));
    EXPECT_FALSE(columns.IsExcluded(1));
    EXPECT_EQ(columns.Excluded().size(), 2u);
}

TEST(ListColumns, AStarAtTheEndOfASampleIsNoText) {
    std::string_view field = "name*";
    EXPECT_TRUE(TakeFillMark(field));
    EXPECT_EQ(field, "name");
    field = "*";
    EXPECT_TRUE(TakeFillMark(field));
    EXPECT_EQ(field, "");
    field = "*name";
    EXPECT_FALSE(TakeFillMark(field));
    EXPECT_EQ(field, "*name");
    field = "";
    EXPECT_FALSE(TakeFillMark(field));
}

}  // namespace qv
