#include "frame/core/row_scroll.h"

#include "support/fake_window.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <new>

namespace {

using qv::BarPlan;
using qv::RowScroll;
using qv::ScrollAxis;
using qv::ThumbLimit;

constexpr int kNone = -99;
constexpr int kMillion = 1000000;
constexpr int kRow = 13;
constexpr int kBar = FakeWindow::kBar;

TEST(ScrollAxis, StopsAtBothEnds) {
    constexpr int kMost = std::numeric_limits<int>::max();
    const struct {
        ScrollAxis axis;
        int nRows, nUp, nDown;
    } kSteps[] = {
        {{0, 50, 10}, 1, kNone, 1},
        {{40, 50, 10}, 1, 39, kNone},
        {{4, 12, 5}, 4, 0, 7},
        {{4, 12, 5}, kMost, 0, 7},
        {{3, 12, 5}, -1, 3, 3},
        {{9, 12, 5}, 1, 8, kNone},  // the window has grown since
        {{2, 3, 10}, 1, 1, kNone},
        {{-1, 0, 5}, 1, kNone, kNone},
        {{0, 0, 0}, 1, kNone, kNone},
        {{70000, kMillion, 40}, 39, 69961, 70039},
        {{kMillion - 50, kMillion, 40}, 39, kMillion - 89, kMillion - 40},
    };
    for (const auto& [axis, nRows, nUp, nDown] : kSteps) {
        EXPECT_EQ(axis.Up(nRows).value_or(kNone), nUp) << axis.nPos << " of " << axis.nCount;
        EXPECT_EQ(axis.Down(nRows).value_or(kNone), nDown) << axis.nPos << " of " << axis.nCount;
    }
    const struct {
        int n, nCount, nPage, nClamped, nRefitted;
    } kPlaces[] = {{6, 12, 5, 6, 6}, {11, 12, 5, 7, 7}, {-1, 12, 5, 0, -1},
                   {2, 3, 5, 0, 0},  {-1, 0, 5, 0, -1}, {kMillion, kMillion, 1, 999999, 999999}};
    for (const auto& [n, nCount, nPage, nClamped, nRefitted] : kPlaces) {
        EXPECT_EQ((ScrollAxis{0, nCount, nPage}.Clamped(n)), nClamped) << n << " of " << nCount;
        EXPECT_EQ((ScrollAxis{n, nCount, nPage}.Refitted()), nRefitted) << n << " of " << nCount;
    }
}

TEST(ScrollCodes, LeadToTheirRow) {
    // Fifty rows, ten of them in view: the last position is 40.
    const struct {
        int nCode, nPos, nTarget;
    } kCodes[] = {
        {SB_LINEUP, 0, kNone},    {SB_LINEUP, 1, 0},         {SB_LINEUP, 45, 44},
        {SB_LINEDOWN, 0, 1},      {SB_LINEDOWN, 39, 40},     {SB_LINEDOWN, 40, kNone},
        {SB_LINEDOWN, 45, kNone}, {SB_PAGEUP, 0, kNone},     {SB_PAGEUP, 4, 0},
        {SB_PAGEUP, 9, 0},        {SB_PAGEUP, 11, 2},        {SB_PAGEDOWN, 29, 38},
        {SB_PAGEDOWN, 33, 40},    {SB_PAGEDOWN, 40, kNone},  {SB_TOP, 0, kNone},
        {SB_TOP, 17, 0},          {SB_BOTTOM, 17, 40},       {SB_BOTTOM, 40, kNone},
        {SB_THUMBTRACK, 17, 5},   {SB_THUMBPOSITION, 17, 5}, {SB_ENDSCROLL, 17, kNone},
        {-1, 17, kNone},
    };
    for (const auto& [nCode, nPos, nTarget] : kCodes) {
        const auto move = qv::MoveOf(static_cast<unsigned>(nCode), {1, 9}, 5);
        for (const ThumbLimit limit :
             {ThumbLimit::Refused, ThumbLimit::Clamped, ThumbLimit::Followed}) {
            EXPECT_EQ(qv::Target({nPos, 50, 10}, move, limit).value_or(kNone), nTarget)
                << "code " << nCode << " at " << nPos;
        }
    }
    const ScrollAxis pixels{10, 100, 40};
    EXPECT_EQ(qv::Target(pixels, qv::MoveOf(SB_LINERIGHT, {4, 40}, 0), ThumbLimit::Followed), 14);
}

TEST(ScrollThumb, GoesBehindTheEndByItsLimit) {
    const struct {
        int nThumb, nRefused, nClamped;
        ScrollAxis axis{17, 50, 10};
    } kThumbs[] = {
        {0, 0, 0},
        {40, 40, 40},
        {41, kNone, 40},
        {17, kNone, 17},
        {-1, kNone, 0},
        {std::numeric_limits<int>::max(), kNone, 40},
        {2, 2, 0, {0, 3, 10}},  // all shows, and more would
        {2, kNone, 0, {0, 3, 3}},
        {70000, 70000, 70000, {0, kMillion, 40}},
        {0, kNone, 0, {0, 0, 0}},
    };
    for (const auto& [nThumb, nRefused, nClamped, axis] : kThumbs) {
        const auto move = qv::MoveOf(SB_THUMBTRACK, {}, nThumb);
        EXPECT_EQ(qv::Target(axis, move, ThumbLimit::Refused).value_or(kNone), nRefused) << nThumb;
        EXPECT_EQ(qv::Target(axis, move, ThumbLimit::Clamped), nClamped) << nThumb;
        EXPECT_EQ(qv::Target(axis, move, ThumbLimit::Followed), nThumb);
    }
}

TEST(ScrollBars, ShowWhereTheContentNeedsThem) {
    const struct {
        const char* pszWhat;
        qv::Size whole;
        qv::ScrolledContent content;
        bool bHorz, bVert;
        qv::BarRules rules{};
    } kPlans[] = {
        {"fits exactly", {100, 130}, {100, 10, kRow}, false, false},
        {"a row too many", {100, 130}, {50, 11, kRow}, false, true},
        {"a pixel too wide", {100, 160}, {101, 10, kRow}, true, false},
        {"too wide, which takes the last row", {100, 130}, {101, 10, kRow}, true, true},
        {"too many, which takes the width", {100, 130}, {84, 11, kRow}, true, true},
        {"as wide as what is left", {100, 130}, {83, 11, kRow}, false, true},
        {"the same, tight", {100, 130}, {83, 11, kRow}, true, true, {true, true}},
        {"fits, tight", {100, 130}, {100, 10, kRow}, false, false, {true, true}},
        {"no vertical one allowed", {100, 130}, {101, 99, kRow}, true, false, {false}},
        {"rows without a height", {100, 130}, {50, 99, 0}, false, false},
        {"nothing", {0, 0}, {0, 0, kRow}, false, false},
        {"nothing, less than a bar high", {10, 10}, {11, 0, kRow}, true, false},
        {"a million rows", {100, 130}, {50, kMillion, kRow}, false, true},
        {"rows of more than 32 bits of pixels", {100, 130}, {50, kMillion, 5000}, false, true},
    };
    for (const auto& [pszWhat, whole, content, bHorz, bVert, rules] : kPlans) {
        const BarPlan plan = qv::PlanBars(whole, {kBar, kBar}, content, rules);
        EXPECT_EQ(plan.bHorz, bHorz) << pszWhat;
        EXPECT_EQ(plan.bVert, bVert) << pszWhat;
        EXPECT_EQ(plan.room.cx, whole.cx - (bVert ? kBar : 0)) << pszWhat;
        EXPECT_EQ(plan.room.cy, whole.cy - (bHorz ? kBar : 0)) << pszWhat;
    }
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

TEST(ScrollRefit, KnowsThatWindowOrViewAreGone) {
    for (const bool bDelete : {false, true}) {
        FakeWindow window(200, 130);
        auto pScroll = std::make_unique<RowScroll>(window);
        window.onResize = [&] {
            window.bExists = bDelete;
            if (bDelete) {
                pScroll.reset();
            }
        };
        bool bShown = true;
        int nApplied = 0;
        EXPECT_FALSE(pScroll->Fit([&] {
            pScroll->Settle(
                [](qv::Size size) {
                    return BarPlan{size, false, true};
                },
                [&](const BarPlan&) {
                    ++nApplied;
                    bShown = pScroll->ShowBar(SB_VERT, true);
                });
        }));
        EXPECT_FALSE(bShown);
        EXPECT_EQ(nApplied, 1);
    }
}

// A text of so many characters, each a pixel wide, wrapped to its window.
class WrappedText {
public:
    explicit WrappedText(int nChars) : m_nChars(nChars) {}
    bool Fit() {
        nLayouts = 0;
        return m_scroll.Fit([this] {
            m_scroll.Settle(
                [this](qv::Size client) {
                    ++nLayouts;
                    nWidth = client.cx;
                    const int nRows = (m_nChars + nWidth - 1) / nWidth;
                    return BarPlan{client, false, nRows > qv::WholeRows(client.cy, kRow)};
                },
                [this](const BarPlan& plan) { m_scroll.ShowBar(SB_VERT, plan.bVert); });
        });
    }

    FakeWindow window{200, 10 * kRow};
    int nWidth = 0;  // that the rows are made for
    int nLayouts = 0;

private:
    RowScroll m_scroll{window};
    int m_nChars;
};

TEST(ScrollRefit, SettlesOnRowsMadeForTheRoomThatTheBarsLeave) {
    WrappedText text(2001);
    for (const int nLayouts : {2, 1}) {
        EXPECT_TRUE(text.Fit());
        EXPECT_TRUE(text.window.bShown[SB_VERT]);
        EXPECT_EQ(text.nWidth, 200 - kBar);
        EXPECT_EQ(text.nLayouts, nLayouts);
    }
    WrappedText fits(2000);
    fits.Fit();
    EXPECT_FALSE(fits.window.bShown[SB_VERT]);
    EXPECT_EQ(fits.nLayouts, 1);
    WrappedText maximized(2001);
    maximized.window.nStyle = WS_MAXIMIZE;
    maximized.Fit();
    EXPECT_TRUE(maximized.window.bShown[SB_VERT]);
    EXPECT_EQ(maximized.nWidth, 200);
}

TEST(ScrollRefit, GoesAgainWhereTheWindowTakesAnotherSize) {
    WrappedText text(2001);
    text.window.onResize = [&] { text.window.size.cx = 150; };
    EXPECT_TRUE(text.Fit());
    EXPECT_EQ(text.nWidth, 150 - kBar);
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
