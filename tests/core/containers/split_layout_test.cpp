#include "containers/core/split_layout.h"

#include <array>
#include <gtest/gtest.h>

namespace qv {

TEST(SplitLayout, BarAndPanesLieBesideEachOther) {
    const SplitLayout across{{100, 40}, true, 5};
    EXPECT_EQ(across.Bar(50), (Rect{48, 0, 52, 40})) << "an odd width loses a pixel";
    EXPECT_EQ(across.Pane(0, 50), (Rect{0, 0, 48, 40}));
    EXPECT_EQ(across.Pane(1, 50), (Rect{52, 0, 100, 40}));
    const SplitLayout down{{40, 100}, false, 4};
    EXPECT_EQ(down.Bar(30), (Rect{0, 28, 40, 32}));
    EXPECT_EQ(down.Pane(0, 30), (Rect{0, 0, 40, 28}));
    EXPECT_EQ(down.Pane(1, 30), (Rect{0, 32, 40, 100}));
    EXPECT_EQ(across.Bar(0x7FFFFFFF).left, kFarthest);
}

TEST(SplitLayout, RatiosAndPositionsAreTruncated) {
    EXPECT_EQ(SplitRatio(333, 1000), 33);
    EXPECT_EQ(SplitPosition(33, 1000), 330);
    EXPECT_EQ(SplitRatio(7, 0), 50);
    EXPECT_EQ(SplitRatio(7, -3), 50);
    EXPECT_EQ(SplitPosition(0x7FFFFFFF, 1000), kFarthest);
    EXPECT_EQ(SplitRatio(-0x7FFFFFFF, 1), -kFarthest);
}

TEST(SplitLayout, ADragEndsTwoBarWidthsFromEitherEnd) {
    SplitLayout layout{{100, 40}, true, 5};
    EXPECT_EQ(layout.Dragged({3, 0}), 10);
    EXPECT_EQ(layout.Dragged({50, 0}), 50);
    EXPECT_EQ(layout.Dragged({99, 0}), 90);
    layout.client.cx = 15;
    EXPECT_EQ(layout.Dragged({9, 0}), 10);
    EXPECT_EQ(layout.Dragged({10, 0}), 5) << "too narrow: the upper bound wins";
}

TEST(SplitBar, AKeptPositionIsKeptOnce) {
    int nPos = 40;
    int nRatio = kKeepPosition;
    int bTracking = 0;
    int nStart = 0;
    SplitBar bar(nPos, nRatio, bTracking, nStart);
    for (const auto& [nLength, nExpectedPos, nExpectedRatio] :
         {std::array{200, 40, 20}, {300, 60, 20}, {0, 0, 20}}) {
        bar.BeginResize(nLength);
        bar.EndResize(nLength);
        EXPECT_EQ(nPos, nExpectedPos);
        EXPECT_EQ(nRatio, nExpectedRatio);
    }
    nRatio = kKeepPosition;
    bar.EndResize(0);
    EXPECT_EQ(nRatio, 50);
}

}  // namespace qv
