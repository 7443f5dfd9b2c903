#include "frame/core/row_scroll.h"

#include "support/fake_window.h"

#include <gtest/gtest.h>
#include <limits>
#include <new>

namespace {

using qv::BarPlan;
using qv::RowScroll;
using qv::ScrollAxis;

// The fuzzer holds moves and bars against a plain walk by rows; these are what it has no numbers
// for.
TEST(ScrollAxis, StopsAtBothEndsWhateverItIsAskedFor) {
    constexpr int kNone = -99;
    constexpr int kMost = std::numeric_limits<int>::max();
    const struct {
        ScrollAxis axis;
        int nRows, nUp, nDown;
    } kSteps[] = {
        {{4, 12, 5}, kMost, 0, 7},
        {{3, 12, 5}, -1, 3, 3},
        {{9, 12, 5}, 1, 8, kNone},  // the window has grown since
        {{-1, 0, 5}, 1, kNone, kNone},
    };
    for (const auto& [axis, nRows, nUp, nDown] : kSteps) {
        EXPECT_EQ(axis.Up(nRows).value_or(kNone), nUp) << axis.nPos << " of " << axis.nCount;
        EXPECT_EQ(axis.Down(nRows).value_or(kNone), nDown) << axis.nPos << " of " << axis.nCount;
    }
    EXPECT_EQ((ScrollAxis{-1, 0, 5}.Refitted()), -1) << "a view without rows stays before them";
}

TEST(ScrollBars, ShowForMoreThan32BitsOfPixels) {
    constexpr int kBar = FakeWindow::kBar;
    EXPECT_TRUE(qv::PlanBars({100, 130}, {kBar, kBar}, {50, 1000000, 5000}).bVert);
}

// --- The refit

TEST(ScrollRefit, KeepsOutTheCallsThatItsOwnBarsBringAbout) {
    FakeWindow window(200, 130);
    RowScroll scroll(window);
    int nRefits = 0;
    const auto refit = [&] {
        return scroll.Fit([&] {
            ++nRefits;
            scroll.ShowBar(SB_VERT, true);
        });
    };
    window.onResize = [&] {
        EXPECT_TRUE(scroll.NoteResize());
        EXPECT_FALSE(refit());
    };
    EXPECT_TRUE(refit());
    EXPECT_EQ(nRefits, 1);
    EXPECT_TRUE(scroll.WasResized());
    EXPECT_FALSE(scroll.NoteResize()) << "it is over";
    EXPECT_TRUE(refit());
    EXPECT_FALSE(scroll.WasResized()) << "the bar was there";
    EXPECT_THROW(scroll.Fit([] { throw std::bad_alloc(); }), std::bad_alloc);
    EXPECT_TRUE(refit());
    window.bExists = false;
    EXPECT_FALSE(refit());
    EXPECT_EQ(nRefits, 3);
}

TEST(ScrollRefit, KnowsThatTheWindowIsGone) {
    FakeWindow window(200, 130);
    RowScroll scroll(window);
    window.onResize = [&] { window.bExists = false; };
    bool bShown = true;
    int nApplied = 0;
    EXPECT_FALSE(scroll.Fit([&] {
        scroll.Settle(
            [](qv::Size size) {
                return BarPlan{size, false, true};
            },
            [&](const BarPlan&) {
                ++nApplied;
                bShown = scroll.ShowBar(SB_VERT, true);
            });
    }));
    EXPECT_FALSE(bShown);
    EXPECT_EQ(nApplied, 1);
}

TEST(ScrollRefit, EndsWhereABarNeverSettles) {
    FakeWindow window(200, 130);
    RowScroll scroll(window);
    int nLayouts = 0;
    int nBars = 0;
    window.onResize = [&] { ++nBars; };
    EXPECT_TRUE(scroll.Fit([&] {
        scroll.Settle(
            [&](qv::Size) {
                return BarPlan{{}, false, ++nLayouts % 2 != 0};
            },
            [&](const BarPlan& plan) { scroll.ShowBar(SB_VERT, plan.bVert); });
    }));
    EXPECT_LE(nLayouts, 8);
    EXPECT_LE(nBars, 2);
}

}  // namespace
