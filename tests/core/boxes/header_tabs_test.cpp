#include "boxes/core/header_tabs.h"

#include "support/fake_window.h"

#include <climits>
#include <gtest/gtest.h>

namespace {

using Tabs = std::vector<int>;

TEST(HeaderTabs, AStopStandsBehindEachField) {
    constexpr int kChar = FixedMeasure::kCharWidth;
    FixedMeasure measure;
    Tabs tabs(qv::kMaxTabs + 1, -1);
    EXPECT_EQ(qv::TabsFromFields("ab\t\t\033bx", measure, tabs.data()), 3);
    EXPECT_EQ(Tabs(tabs.begin(), tabs.begin() + 5),
              (Tabs{2 * kChar + 12, 2 * kChar + 24, 5 * kChar + 36, 0, -1}))
        << "codes are measured as they stand, and a 0 ends the table";
    EXPECT_EQ(qv::TabsFromFields(std::string(30, '\t'), measure, tabs.data()), qv::kMaxTabs);
    EXPECT_EQ(tabs[qv::kMaxTabs - 1], qv::kMaxTabs * 12);
    EXPECT_EQ(tabs[qv::kMaxTabs], -1) << "nothing behind the table";
}

TEST(HeaderTabs, OneColumnTakesTheSlack) {
    const struct {
        int nFrom, nColumns, nWidth;
        Tabs wanted;
    } kCases[] = {
        {1, 3, 100, {30, 80, 100}}, {-1, 3, 100, {30, 60, 80}}, {1, 2, 100, {30, 80, 80}},
        {3, 3, 100, {30, 60, 80}},  {0, 3, 20, {30, 60, 80}},   {0, 100, 90, {40, 70, 90}},
        {-5, 1, 100, {50, 60, 80}},
    };
    for (const auto& [nFrom, nColumns, nWidth, wanted] : kCases) {
        Tabs tabs{30, 60, 80};
        qv::StretchTabs(tabs, nFrom, nColumns, nWidth);
        EXPECT_EQ(tabs, wanted) << nFrom << ' ' << nColumns << ' ' << nWidth;
    }
    qv::StretchTabs({}, 0, 3, 100);
}

TEST(HeaderTabs, LaterColumnsKeepTheirWidthsAndStopsTheirFormat) {
    const struct {
        int nCol, nWidth;
        Tabs wanted;
    } kCases[] = {
        {1, 50, {30, 10080, 20100}},
        {0, 10, {10, 10040, 20060}},
        {1, INT_MIN, {30, 10000, 20000}},
        {-1, 50, {}},
        {3, 50, {}},
    };
    for (const auto& [nCol, nWidth, wanted] : kCases) {
        Tabs tabs{30, 10060, 20080};
        EXPECT_EQ(qv::SetColumnWidth(tabs, nCol, nWidth), !wanted.empty());
        EXPECT_EQ(tabs, wanted.empty() ? (Tabs{30, 10060, 20080}) : wanted) << nCol;
    }
    Tabs tabs{30, 10060, 20080};
    EXPECT_EQ(qv::ColumnWidth(tabs, 2), 20);
    qv::SetColumnWidth(tabs, 1, INT_MAX);
    EXPECT_GT(qv::TabValue(tabs, 2), 1000000) << "as far as a stop goes";
}

}  // namespace
