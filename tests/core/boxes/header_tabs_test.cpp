#include "boxes/core/header_tabs.h"

#include "support/fake_window.h"

#include <climits>
#include <gtest/gtest.h>

namespace {

using Tabs = std::vector<int>;

TEST(HeaderTabs, AStopStandsBehindEachField) {
    constexpr int kChar = FixedMeasure::kCharWidth;
    FixedMeasure measure;
    int tabs[qv::kMaxTabs + 1];
    std::fill(std::begin(tabs), std::end(tabs), -1);
    EXPECT_EQ(qv::TabsFromFields("ab\t\t\033bx", measure, tabs), 3);
    EXPECT_EQ(Tabs(tabs, tabs + 5), (Tabs{2 * kChar + 12, 2 * kChar + 24, 5 * kChar + 36, 0, -1}))
        << "codes are measured as they stand, and a 0 ends the table";
    std::string strMany = "x";
    for (int i = 0; i < 30; ++i) {
        strMany += "\tx";
    }
    EXPECT_EQ(qv::TabsFromFields(strMany, measure, tabs), qv::kMaxTabs);
    EXPECT_EQ(tabs[19], 20 * (kChar + 12));
    EXPECT_EQ(tabs[qv::kMaxTabs], -1) << "nothing behind the table";
    EXPECT_EQ(qv::TabsFromFields("", measure, tabs), 0);
    EXPECT_EQ(tabs[0], 0);
}

TEST(HeaderTabs, OneColumnTakesTheSlack) {
    const struct {
        int nFrom, nColumns, nWidth;
        Tabs wanted;
    } cases[] = {
        {1, 3, 100, {30, 80, 100}}, {0, 3, 100, {50, 80, 100}}, {-1, 3, 100, {30, 60, 80}},
        {1, 2, 100, {30, 80, 80}},  {3, 3, 100, {30, 60, 80}},  {0, 3, 80, {30, 60, 80}},
        {0, 3, 20, {30, 60, 80}},   {0, 100, 90, {40, 70, 90}}, {-5, 1, 100, {50, 60, 80}},
    };
    for (const auto& [nFrom, nColumns, nWidth, wanted] : cases) {
        Tabs tabs{30, 60, 80};
        qv::StretchTabs(tabs, nFrom, nColumns, nWidth);
        EXPECT_EQ(tabs, wanted) << nFrom << ' ' << nColumns << ' ' << nWidth;
    }
    qv::StretchTabs({}, 0, 3, 100);
}

TEST(HeaderTabs, LaterColumnsKeepTheirWidths) {
    Tabs tabs{30, 10060, 20080};
    EXPECT_EQ(qv::ColumnWidth(tabs, 0), 30);
    EXPECT_EQ(qv::ColumnWidth(tabs, 2), 20);
    EXPECT_TRUE(qv::SetColumnWidth(tabs, 1, 50));
    EXPECT_EQ(tabs, (Tabs{30, 10080, 20100})) << "and the stops their format";
    EXPECT_TRUE(qv::SetColumnWidth(tabs, 0, 10));
    EXPECT_EQ(tabs, (Tabs{10, 10060, 20080}));
    for (const int nCol : {-1, 3, INT_MIN, INT_MAX}) {
        EXPECT_FALSE(qv::SetColumnWidth(tabs, nCol, 50));
    }
    qv::SetColumnWidth(tabs, 1, INT_MIN);
    EXPECT_EQ(tabs, (Tabs{10, 10000, 20000}));
    qv::SetColumnWidth(tabs, 1, INT_MAX);
    EXPECT_GT(qv::TabValue(tabs, 2), 1000000) << "as far as a stop goes";
    EXPECT_EQ(qv::TabFormat(tabs, 2), DT_RIGHT);
}

}  // namespace
