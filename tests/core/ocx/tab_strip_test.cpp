#include "ocx/core/tab_set.h"
#include "ocx/core/tab_strip_layout.h"

#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace qv {

using Part = TabStripLayout::Part;

/// Three tabs of 20, 30 and 40 at each side of 200 by 100; the middle one is active.
TEST(TabStripLayout, TabsAndPageAtEachSide) {
    const struct {
        TabSide side;
        Rect first, active, page, inside;
    } cases[] = {
        {TabSide::Top, {2, 2, 22, 12}, {20, 0, 54, 12}, {0, 12, 200, 100}, {3, 15, 197, 97}},
        {TabSide::Bottom, {2, 88, 22, 98}, {20, 88, 54, 100}, {0, 0, 200, 88}, {3, 3, 197, 85}},
        {TabSide::Left, {2, 2, 12, 22}, {0, 20, 12, 54}, {12, 0, 200, 100}, {15, 3, 197, 97}},
        {TabSide::Right, {188, 2, 198, 22}, {188, 20, 200, 54}, {0, 0, 188, 100}, {3, 3, 185, 97}},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(static_cast<int>(one.side));
        const TabStripMeasures measures = {{0, 0, 200, 100}, one.side, 10, 0, 0, 2, 8, 3};
        const TabStripLayout layout(measures, {20, 30, 40}, 1, 0);
        EXPECT_EQ(layout.TabRect(0), one.first);
        EXPECT_EQ(layout.TabRect(1), one.active);
        EXPECT_EQ(layout.PageRect(), one.page);
        EXPECT_EQ(layout.PageInside(), one.inside);
        EXPECT_EQ(layout.HasArrows(), false);
    }
}

TEST(TabStripLayout, RowsGoRoundUntilTheActiveTabIsNextToThePage) {
    const TabStripMeasures measures = {{0, 0, 100, 100}, TabSide::Top, 10, 2, 0, 0, 8, 0};
    const TabStripLayout layout(measures, {1, -1, 1, 1, 1, 1}, 0, 0);
    EXPECT_EQ(layout.Rows(), 3);
    EXPECT_EQ(layout.TabRect(0), (Rect{0, 20, 50, 30}));
    EXPECT_EQ(layout.TabRect(1), (Rect{})) << "hidden";
    EXPECT_EQ(layout.TabRect(2), (Rect{50, 20, 100, 30}));
    EXPECT_EQ(layout.TabRect(5), (Rect{0, 0, 50, 10}));
}

/// Whatever the measures: what shows lies in the client area, tabs and page do not overlap, each
/// tab is hit where it is, and scrolling brings each into view.
TEST(TabStripLayout, HoldsForAnyMeasures) {
    std::mt19937 random(7);
    const auto upTo = [&](int n) { return static_cast<int>(random() % (n + 1)); };
    for (int i = 0; i < 1000; ++i) {
        TabStripMeasures measures = {{0, 0, upTo(300), upTo(300)},
                                     static_cast<TabSide>(upTo(3)),
                                     upTo(30),
                                     upTo(2) * upTo(3),
                                     upTo(1) * upTo(40),
                                     upTo(3),
                                     upTo(20),
                                     upTo(4)};
        std::vector<int> lengths(upTo(12));
        for (int& n : lengths) {
            n = upTo(60) - 3;
        }
        const int nCount = static_cast<int>(lengths.size());
        const int nActive = upTo(nCount) - 1;
        const TabStripLayout layout(measures, lengths, nActive, upTo(20) - 4);
        const Rect page = layout.PageRect();
        for (int nPoint = 0; nPoint < 40; ++nPoint) {
            const Point pt = {upTo(measures.client.right), upTo(measures.client.bottom)};
            const auto hit = layout.HitTest(pt);
            ASSERT_EQ(hit.part == Part::Tab, layout.TabRect(hit.nTab).Contains(pt));
            ASSERT_EQ(hit.part == Part::Page, page.Contains(pt));
            ASSERT_TRUE(hit.nTab == nActive || !layout.TabRect(nActive).Contains(pt) ||
                        hit.part == Part::Back || hit.part == Part::Forward);
        }
        for (int n = 0; n < nCount && layout.HasArrows(); ++n) {
            const TabStripLayout moved(measures, lengths, -1, layout.FirstToShow(n));
            const Rect rc = moved.TabRect(n);
            const bool bLying = measures.side == TabSide::Top || measures.side == TabSide::Bottom;
            const int nShown = bLying ? rc.Width() : rc.Height();
            const int nMax = measures.nMaxLength > 0 ? measures.nMaxLength : lengths[n];
            const int nAlong = bLying ? measures.client.right : measures.client.bottom;
            const int nRoom = std::max(nAlong - 2 * measures.nInflation - 2 * measures.nArrow, 0);
            ASSERT_EQ(nShown, lengths[n] < 0 ? 0 : std::min({lengths[n], nMax, nRoom})) << n;
        }
    }
}

/// Writes down what it is asked and told, with the tab that is active at that moment.
struct Log : TabEvents {
    TabSet set{*this};
    std::string text;
    int nForbidden = -1;
    std::function<void(bool bAsked, int nTab)> act = [](bool, int) {};

    bool MayActivate(int nTab) override {
        text += "7:" + std::to_string(nTab) + "@" + std::to_string(set.Active()) + " ";
        act(true, nTab);
        return nTab != nForbidden;
    }
    void Activated(int nTab) override {
        text += "8:" + std::to_string(nTab) + "@" + std::to_string(set.Active()) + " ";
        act(false, nTab);
    }
};

TEST(TabSet, AsksWhileTheOldTabIsActiveAndTellsOfTheNewOne) {
    const struct {
        const char* pszCase;
        std::function<void(Log&)> deed;
        const char* pszLog;
        int nActive;
    } cases[] = {
        {"first tabs", [](Log&) {}, "8:0@0 ", 0},
        {"another", [](Log& log) { log.set.Activate(2); }, "8:0@0 7:2@0 8:2@2 ", 2},
        {"the active one", [](Log& log) { log.set.Activate(0); }, "8:0@0 ", 0},
        {"forbidden",
         [](Log& log) {
             log.nForbidden = 1;
             log.set.Activate(1);
         },
         "8:0@0 7:1@0 ", 0},
        {"silently", [](Log& log) { log.set.Activate(3, false); }, "8:0@0 ", 3},
        {"hidden",
         [](Log& log) {
             log.set.SetState(2, TabState::Hidden);
             log.set.Activate(2);
         },
         "8:0@0 ", 0},
        {"the active one hides",
         [](Log& log) {
             log.set.SetState(1, TabState::Disabled);
             log.set.SetState(0, TabState::Hidden);
         },
         "8:0@0 8:2@2 ", 2},
        {"fewer than the active one",
         [](Log& log) {
             log.set.Activate(3, false);
             log.set.SetCount(2);
         },
         "8:0@0 8:1@1 ", 1},
        {"none left", [](Log& log) { log.set.SetCount(0); }, "8:0@0 ", -1},
        {"the handler of the question asks for the same",
         [](Log& log) {
             log.act = [&log](bool bAsked, int nTab) { bAsked&& log.set.Activate(nTab); };
             log.set.Activate(1);
         },
         "8:0@0 7:1@0 8:1@1 ", 1},
        {"the handler of the question goes elsewhere",
         [](Log& log) {
             log.act = [&log](bool bAsked, int nTab) { bAsked&& nTab == 1 && log.set.Activate(2); };
             log.set.Activate(1);
         },
         "8:0@0 7:1@0 7:2@0 8:2@2 ", 2},
        {"the handler of the question takes the tab away",
         [](Log& log) {
             log.act = [&log](bool, int nTab) { nTab == 3 ? log.set.SetCount(2) : void(); };
             log.set.Activate(3);
         },
         "8:0@0 7:3@0 ", 0},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.pszCase);
        Log log;
        log.set.SetCount(4);
        one.deed(log);
        EXPECT_EQ(log.text, one.pszLog);
        EXPECT_EQ(log.set.Active(), one.nActive);
    }
}

TEST(TabSet, HandlersThatSendEachOtherBackAndForthEnd) {
    Log log;
    log.set.SetCount(4);
    log.act = [&log](bool bAsked, int nTab) { bAsked || log.set.Activate(nTab ^ 1); };
    log.set.Activate(2);
    EXPECT_TRUE(log.set.Active() == 2 || log.set.Active() == 3);
}

TEST(TabSet, KeysSkipWhatUsersCannotUse) {
    Log log;
    log.set.SetCount(5);
    log.set.SetState(0, TabState::Disabled);
    log.set.SetState(2, TabState::Hidden);
    EXPECT_EQ(log.set.Next(1, 1, false), 3);
    EXPECT_EQ(log.set.Next(1, -1, false), -1);
    EXPECT_EQ(log.set.Next(1, -1, true), 4);
    EXPECT_EQ(log.set.Next(-1, 1, false), 1);
    EXPECT_EQ(log.set.Next(5, -1, false), 4);
}

}  // namespace qv
