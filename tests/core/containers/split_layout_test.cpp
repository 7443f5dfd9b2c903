#include "containers/core/split_layout.h"

#include "base/platform_names.h"

#include <array>
#include <gtest/gtest.h>
#include <utility>

namespace qv {

TEST(SplitLayout, BarAndPanesLieBesideEachOther) {
    const SplitLayout across{{100, 40}, true, 5};
    EXPECT_EQ(across.Bar(50), (Rect{48, 0, 52, 40})) << "an odd width loses a pixel";
    EXPECT_EQ(across.Pane(0, 50), (Rect{0, 0, 48, 40}));
    const SplitLayout down{{40, 100}, false, 4};
    EXPECT_EQ(down.Bar(30), (Rect{0, 28, 40, 32}));
    EXPECT_EQ(down.Pane(1, 30), (Rect{0, 32, 40, 100}));
}

TEST(SplitLayout, ADragEndsTwoBarWidthsFromEitherEnd) {
    for (const auto& [nLength, nAt, nPos] :
         {std::array{100, 3, 10}, {100, 50, 50}, {100, 99, 90}, {15, 9, 10}, {15, 10, 5}}) {
        EXPECT_EQ((SplitLayout{{nLength, 9}, true, 5}.Dragged({nAt, 0})), nPos) << nLength;
    }
}

TEST(SplitLayout, KeysGoAsFarAsADrag) {
    const SplitLayout layout{{100, 9}, true, 5};
    EXPECT_EQ(KeyTarget(layout, 50, VK_LEFT, false), 40);
    EXPECT_EQ(KeyTarget(layout, 50, VK_DOWN, true), 51);
    EXPECT_EQ(KeyTarget(layout, 85, VK_RIGHT, false), 90);
    EXPECT_EQ(KeyTarget(layout, 50, VK_HOME, false), 10);
    EXPECT_EQ(KeyTarget(layout, -kFarthest, VK_UP, false), 10);
    EXPECT_EQ(KeyTarget(layout, 50, VK_END, true), 90);
    EXPECT_EQ(KeyTarget(layout, 50, VK_ESCAPE, false), std::nullopt);
}

TEST(SplitLayout, APercentageComesBackAsItWasGiven) {
    for (const int nLength : {100, 333, 1999}) {
        for (int nPercent = 0; nPercent <= 100; ++nPercent) {
            EXPECT_EQ(SplitPercent(SplitPosition(nPercent, nLength), nLength), nPercent) << nLength;
        }
    }
    EXPECT_EQ(SplitPercent(5, 0), kDefaultSplit);
}

TEST(SplitBar, AKeptPositionIsKeptOnce) {
    int nPos = 40, nRatio = kKeepPosition, bTracking = 0, nStart = 0;
    SplitBar bar(nPos, nRatio, bTracking, nStart);
    const auto resize = [&](int nLength) {
        bar.BeginResize(nLength);
        bar.EndResize(nLength);
        return std::pair(nPos, nRatio);
    };
    EXPECT_EQ(resize(200), std::pair(40, 20));
    EXPECT_EQ(resize(309), std::pair(61, 20));
    nRatio = kKeepPosition;
    EXPECT_EQ(resize(0), std::pair(61, 50));
    nRatio = 0x7FFFFFFF;
    EXPECT_EQ(resize(1000).first, kFarthest);
}

}  // namespace qv
