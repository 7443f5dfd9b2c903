#include "model/browser_layout.h"

#include <gtest/gtest.h>

namespace {

TEST(TreeColumns, StopsAddUpInPixelsOfTheScreenWithTheirAlignment) {
    const TreeWidths widths = {100, 50, 30, 20};
    using Stops = std::array<int, kTreeColumns>;
    EXPECT_EQ(TreeStops(widths, true, 96), (Stops{100, 20150, 10180, 200, 3200}));
    EXPECT_EQ(TreeStops(widths, false, 96), (Stops{220, 20270, 10300, 320, 3320}));
    EXPECT_EQ(TreeStops(widths, true, 144), (Stops{150, 20225, 10270, 300, 4800}));
    const TreeWidths most = {kMostTreeWidth, kMostTreeWidth, kMostTreeWidth, kMostTreeWidth};
    EXPECT_EQ(TreeStops(most, true, 192)[1] / 10000, 2) << "never taken for another alignment";
    EXPECT_EQ(TreeStops(most, true, 192)[2] / 10000, 1);
}

TEST(TreeColumns, WidthsComeBackFromTheLayoutsFile) {
    const TreeWidths widths = {16, 2000, 70, 90};
    BrowserLayout layout;
    layout.treeWidths = widths;
    EXPECT_EQ(LayoutValues(layout).Layout().treeWidths, widths);
    for (const char* psz : {"", "1 2 3 4", "100 100 100", "100 100 100 100 100", "100 100 100 x",
                            "100 100 100 9999999999", "100 100 2001 100", "-100 100 100 100"}) {
        EXPECT_EQ(TreeWidthsOf(psz), kFirstTreeWidths) << psz;
    }
}

}  // namespace
