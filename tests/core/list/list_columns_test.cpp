#include "list/core/list_columns.h"

#include <gtest/gtest.h>
#include <numeric>

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
    for (const int nCol : {25, -1}) {
        columns.SetFormat(nCol, 1);
        EXPECT_EQ(columns.Format(nCol), 0);
    }
    columns.SetStyle(3, 4);
    // Entries outlast the columns that they are for.
    columns.SetCount(2);
    EXPECT_EQ(columns.Style(3), 0);
    columns.SetCount(4);
    EXPECT_EQ(columns.Style(3), 4);
    columns.Clear();
    columns.SetCount(4);
    EXPECT_EQ(columns.Style(3), 0);
}

TEST(ListColumns, PaperKeepsTheProportionsOfTheScreen) {
    const auto spread = [](std::vector<int> widths, int nPage,
                           std::initializer_list<int> excluded) {
        ListColumns columns;
        columns.SetCount(static_cast<int>(widths.size()));
        int nTotal = std::accumulate(widths.begin(), widths.end(), 0);
        for (const int nCol : excluded) {
            columns.Exclude(nCol);
        }
        for (const int nCol : columns.Excluded()) {
            nTotal -= widths[static_cast<size_t>(nCol)];
        }
        columns.SpreadOverPage(nPage, nTotal,
                               [&](int nCol) { return widths[static_cast<size_t>(nCol)]; });
        const int* p = columns.PrintWidths();
        return std::vector<int>(p, p + widths.size());
    };
    using Widths = std::vector<int>;
    EXPECT_EQ(spread({100, 300, 100}, 1000, {2}), (Widths{250, 750, 0}));
    EXPECT_EQ(spread({1, 2}, 1000, {}), (Widths{333, 666})) << "truncated";
    EXPECT_EQ(spread({2000, 2000}, 2000000, {}), (Widths{1000000, 1000000})) << "beyond 32 bits";
    EXPECT_EQ(spread({0, 0, 100}, 1000, {2}), (Widths{0, 0, 0})) << "no width on screen";
    EXPECT_EQ(spread({100}, 1000, {0}), (Widths{0}));
    EXPECT_EQ(spread({100, 300, 100}, 1000, {2, 2}), (Widths{333, 1000, 0}))
        << "excluded twice counts twice";
}

}  // namespace qv
