#include "support/failing_new.h"
#include "support/test_tree.h"

#include <gtest/gtest.h>
#include <random>

namespace {

constexpr int kChar = FixedMeasure::kCharWidth;

TEST(TreeColumns, StopsCarryPositionAndFormat) {
    TestTree tree;
    const int stops[] = {50, 10100, 20200, 0, 300};
    tree.UseTabs(stops, -1);
    EXPECT_EQ(tree.Tabs().Count(), 3);
    EXPECT_EQ(
        tree.Tabs().Value(3) + tree.Tabs().Value(-1) + static_cast<int>(tree.Tabs().Format(9)), 0);
    tree.SetTabValue(2, 250);
    tree.SetTabFormat(1, 7);
    tree.SetTabValue(0, -5);
    EXPECT_EQ(tree.Tabs().Value(2), 250);
    EXPECT_EQ(tree.Tabs().Format(2), DT_RIGHT) << "the stop keeps its format";
    EXPECT_EQ(tree.Tabs().Format(1), DT_LEFT) << "no format that there is";
    EXPECT_EQ(tree.Tabs().Value(0), 0);
    const std::vector<int> many(100, 5);
    tree.UseTabs(many.data(), 100);
    EXPECT_EQ(tree.Tabs().Count(), qv::kMaxTabs);
    tree.UseTabs(many.data(), -1);
    EXPECT_EQ(tree.Tabs().Count(), qv::kMaxTabs);
}

TEST(TreeColumns, ExtentFollowsTheLastFieldThatHasAColumn) {
    FixedMeasure measure;
    qv::StyleTable styles;
    styles.Add(0, 0);
    qv::TabStops tabs;
    const auto extent = [&](const char* psz, bool bIndent) {
        return qv::ColumnsExtent(psz, tabs, bIndent, styles, measure);
    };
    EXPECT_EQ(extent("abc", true), 3 * kChar);
    const int stops[] = {100, 10200, 20300};
    tabs.Use(stops, 3);
    EXPECT_EQ(extent("abc", true), 3 * kChar);
    EXPECT_EQ(extent("abc", false), 100) << "no TAB, absolute: the first stop";
    EXPECT_EQ(extent("abc\tdef", true), 100 + 3 * kChar) << "left";
    EXPECT_EQ(extent("abc\t\033adef", true), 100 + 3 * kChar) << "without its code";
    EXPECT_EQ(extent("abc\t", true), 100) << "a row that ends in TAB ends at the stop";
    EXPECT_EQ(extent("abc\td\tefg", true), (300 - 200) / 2 + 3 * kChar / 2) << "centred";
    EXPECT_EQ(extent("abc\td\tefg", false), 300);
    EXPECT_EQ(extent("abc\td\te\tfg", true), 300 + 2 * kChar) << "the last stop";
    EXPECT_EQ(extent("abc\td\te\tfg\tbeyond", true), 300 + 2 * kChar);
}

TEST(TreeColumns, FieldsStandBetweenStops) {
    qv::StyleTable styles;
    styles.Add(0, 0);
    styles.Add(1, 1);
    qv::TabStops tabs;
    const int stops[] = {60, 20100};
    tabs.Use(stops, 2);
    const qv::Rect rect{20, 5, 300, 20};
    const auto fields = [&](const char* psz, bool bIndent) {
        std::string strAll;
        qv::FieldReader reader(psz, rect, tabs, bIndent, styles);
        for (qv::Field f; reader.Next(f);) {
            strAll += std::string(f.text) + ":" + std::to_string(f.rect.left) + "-" +
                      std::to_string(f.rect.right) + "/" + std::to_string(f.nStyle) + "/" +
                      std::to_string(f.nFormat) + " ";
        }
        return strAll;
    };
    EXPECT_EQ(fields("a\t\033bb\tc\td", true), "a:20-76/-1/0 b:80-116/1/0 c:120-300/-1/2 ");
    EXPECT_EQ(fields("a\tb\tc", false), "a:20-56/-1/0 b:60-96/-1/0 c:100-300/-1/2 ");
    EXPECT_EQ(fields("a\t", true), "a:20-76/-1/0 ");
    EXPECT_EQ(fields("", true), ":20-76/-1/0 ") << "the first field is always handled";
    tabs.Clear();
    EXPECT_EQ(fields("\033bx\ty", true), "x:20-300/1/0 ");
}

TEST(TreeGeometry, RowHeightComesFromFontAndImages) {
    struct Case {
        int nFont, cyImage, cyState, nHeight;
    };
    for (const Case& c : {Case{13, 0, 0, 16}, Case{14, 0, 0, 16}, Case{13, 24, 0, 24},
                          Case{13, 16, 21, 22}, Case{1, 0, 0, 6}, Case{0, 0, 0, 0}}) {
        TestTree tree;
        tree.nFontHeight = c.nFont;
        tree.SetImages({true, true, 16, c.cyImage, 12, c.cyState});
        EXPECT_EQ(tree.ItemHeight(), c.nHeight);
    }
    TestTree tree;
    EXPECT_EQ(tree.IndentStep(), 19);
    tree.SetImages({true, false, 90, 24, 0, 0});
    EXPECT_EQ(tree.IndentStep(), 24) << "the image's height widens the step, not its width";
}

TEST(TreeGeometry, WithoutAHeightThereAreNoRows) {
    TestTree tree;
    tree.nFontHeight = 0;
    HTREEITEM a = tree.Add("a");
    tree.CalcBottomItem();
    EXPECT_EQ(tree.Bottom(), nullptr);
    qv::Rect rect;
    EXPECT_FALSE(tree.GetItemRect(a, rect, false));
    unsigned nFlags;
    EXPECT_EQ(tree.HitTest({5, 5}, &nFlags, nullptr), nullptr);
    EXPECT_EQ(nFlags, TVHT_NOWHERE);
    tree.VScroll(SB_PAGEDOWN, 0);
}

TEST(TreeGeometry, AnEmptyTreeMeasuresNothing) {
    TestTree tree;
    tree.Resize();
    tree.SetRedraw(true);
    tree.VScroll(SB_LINEDOWN, 0);
    tree.HitTest({5, 5}, nullptr, nullptr);
    tree.SetImages({true, false, 16, 24, 0, 0});
    tree.Add("a");
    EXPECT_EQ(tree.ItemHeight(), 24) << "a list set before the first item counts";
    tree.SetImages({true, false, 16, 40, 0, 0});
    tree.Add("b");
    EXPECT_EQ(tree.ItemHeight(), 24);
}

TEST(TreeGeometry, RectanglesLeaveRoomForIndentationAndImages) {
    TestTree tree;
    HTREEITEM a = tree.Add("root");
    HTREEITEM b = tree.Add("abc", a);
    const auto rectOf = [&](HTREEITEM h, bool bText) {
        qv::Rect rect;
        tree.CalcItemRect(nullptr, 32, h, rect, bText);
        return rect;
    };
    EXPECT_EQ(rectOf(b, false), (qv::Rect{19, 32, 19 + 3 * kChar + 4, 48}));
    EXPECT_EQ(rectOf(b, true), rectOf(b, false));
    tree.SetImages({true, true, 16, 16, 12, 12});
    const int nImages = 16 + 3 + 12 + 3;
    EXPECT_EQ(rectOf(b, false), (qv::Rect{19, 32, 19 + nImages + 3 * kChar + 4, 48}));
    EXPECT_EQ(rectOf(b, true).left, 19 + nImages);
    EXPECT_EQ(rectOf(a, true).left, 19) << "a root item has no state image: 16 + 3";
    tree.window.nStyle = TVS_LINESATROOT;
    EXPECT_EQ(rectOf(b, true), (qv::Rect{38 + nImages, 32, 38 + nImages + 3 * kChar + 4, 48}));

    const int nStop = 150;
    tree.UseTabs(&nStop, 1);
    tree.SetIndentTabs(false);
    EXPECT_EQ(rectOf(b, false), (qv::Rect{38, 32, 150, 48})) << "no TAB: up to the first stop";
    EXPECT_EQ(rectOf(b, true), (qv::Rect{38 + nImages, 32, 150, 48}));
}

// Rows of 16 pixels in a window of 200 by 100: six fit.
class TreeScrolling : public testing::Test {
protected:
    void Fill(int nRows, const std::string& strText = "row") {
        for (int i = 0; i < nRows; ++i) {
            rows.push_back(tree.Add(strText + std::to_string(i)));
        }
    }
    TestTree tree;
    std::vector<HTREEITEM> rows;
};

TEST_F(TreeScrolling, BarsShowWhereTheRowsNeedThem) {
    Fill(6);
    EXPECT_FALSE(tree.window.bShown[SB_VERT] || tree.window.bShown[SB_HORZ]);
    tree.SetItemText(rows[2], std::string(40, 'x').c_str());  // 284 wide
    tree.SetRedraw(true);
    EXPECT_EQ(tree.MaxWidth(), 40 * kChar + 4);
    EXPECT_EQ(tree.window.ranges[SB_HORZ], (qv::ScrollRange{0, 142, 89, 0})) << "in two pixels";
    EXPECT_EQ(tree.window.ranges[SB_VERT], (qv::ScrollRange{0, 5, 5, 0}))
        << "the horizontal bar takes the sixth row's room";
    EXPECT_EQ(tree.VPage(), 5);
    EXPECT_EQ(tree.HPage(), 200 - 17 - 4);
    tree.DeleteItem(rows[2]);
    EXPECT_FALSE(tree.window.bShown[SB_HORZ] || tree.window.bShown[SB_VERT]);
    EXPECT_EQ(tree.VPage() + tree.HPage(), 0);
}

TEST_F(TreeScrolling, VerticalCodesMoveRowsAndPixels) {
    Fill(50);
    struct Case {
        unsigned nCode;
        int nPos, nTop, nPixels;  // 0 pixels: everything is invalid
    };
    for (const Case& c :
         {Case{SB_LINEDOWN, 0, 1, -16}, Case{SB_PAGEDOWN, 0, 6, -80}, Case{SB_LINEUP, 0, 5, 16},
          Case{SB_PAGEUP, 0, 0, 80}, Case{SB_THUMBTRACK, 30, 30, 0},
          Case{SB_THUMBPOSITION, 32, 32, -32}, Case{SB_THUMBTRACK, 9999, 44, 0},
          Case{SB_ENDSCROLL, 0, 44, 0}, Case{SB_TOP, 0, 44, 0}, Case{SB_THUMBTRACK, -5, 0, 0}}) {
        tree.window.scrolls.clear();
        const int nAll = tree.window.nAllInvalid;
        const int nBefore = tree.VScrollPos();
        tree.VScroll(c.nCode, c.nPos);
        EXPECT_EQ(tree.Top(), rows[c.nTop]) << c.nCode << " " << c.nPos;
        EXPECT_EQ(tree.Bottom(), rows[c.nTop + 5]);
        EXPECT_EQ(tree.VScrollPos(), c.nTop);
        EXPECT_EQ(tree.window.ranges[SB_VERT].nPos, c.nTop);
        EXPECT_EQ(tree.window.scrolls.empty() ? 0 : tree.window.scrolls[0].y, c.nPixels);
        EXPECT_EQ(tree.window.nAllInvalid > nAll, c.nPixels == 0 && nBefore != c.nTop);
    }
    tree.window.bPositionKnown = true;
    tree.window.nTrackPos = 20;
    tree.VScroll(SB_THUMBTRACK, 3);
    EXPECT_EQ(tree.VScrollPos(), 20) << "the bar's own position";
}

TEST_F(TreeScrolling, HorizontalCodesMovePixelsWithinTheLimit) {
    Fill(1, std::string(50, 'x'));  // 51 characters: 361 wide, 196 a page, limit 165
    ASSERT_EQ(tree.MaxWidth() - tree.HPage(), 165);
    struct Case {
        unsigned nCode;
        int nPos, nScrolled;
    };
    for (const Case& c :
         {Case{SB_LINELEFT, 0, 0}, Case{SB_LINERIGHT, 0, 4}, Case{SB_LINERIGHT, 0, 8},
          Case{SB_PAGERIGHT, 0, 165}, Case{SB_LINERIGHT, 0, 165}, Case{SB_TOP, 0, 165},
          Case{SB_LINELEFT, 0, 161}, Case{SB_PAGELEFT, 0, 0}, Case{SB_THUMBTRACK, 40, 80},
          Case{SB_THUMBPOSITION, 1, 2}, Case{SB_LINELEFT, 0, 0}, Case{SB_ENDSCROLL, 0, 0}}) {
        const int nBefore = tree.HScrollPos();
        tree.window.scrolls.clear();
        tree.HScroll(c.nCode, c.nPos);
        EXPECT_EQ(tree.HScrollPos(), c.nScrolled) << c.nCode;
        EXPECT_EQ(tree.window.scrolls.empty() ? 0 : tree.window.scrolls[0].x,
                  nBefore - c.nScrolled);
    }
}

TEST_F(TreeScrolling, ABarThatComesWithAScrollTakesItsRowFromTheView) {
    Fill(50);
    tree.SetItemText(rows[2], std::string(40, 'x').c_str());
    ASSERT_EQ(tree.Bottom(), rows[5]) << "a text alone fits no bars";
    tree.VScroll(SB_ENDSCROLL, 0);
    EXPECT_TRUE(tree.window.bShown[SB_HORZ]);
    EXPECT_EQ(tree.Bottom(), rows[4]);
}

TEST_F(TreeScrolling, ASelectionThatMovesPaintsBothRows) {
    Fill(3);
    tree.SelectItem(rows[0]);
    tree.window.invalid.clear();
    tree.SelectItem(rows[2]);
    ASSERT_EQ(tree.window.invalid.size(), 2u);
    EXPECT_EQ(tree.window.invalid[0], (qv::Rect{0, 32, 200, 48}));
    EXPECT_EQ(tree.window.invalid[1], (qv::Rect{0, 0, 200, 16}));
}

TEST_F(TreeScrolling, EnsureVisibleBringsRowsToTheNearerEdge) {
    Fill(50);
    HTREEITEM child = tree.Add("child", rows[40]);
    EXPECT_TRUE(tree.EnsureVisible(child));
    EXPECT_TRUE(tree.Rows().find("child") != std::string::npos) << "its parent is open";
    EXPECT_EQ(tree.Bottom(), child);
    EXPECT_TRUE(tree.ItemVisible(child));
    EXPECT_TRUE(tree.EnsureVisible(rows[10]));
    EXPECT_EQ(tree.Top(), rows[10]);
    EXPECT_EQ(tree.VScrollPos(), 10);
    EXPECT_TRUE(tree.EnsureVisible(rows[12]));
    EXPECT_EQ(tree.Top(), rows[10]) << "in view already";
    EXPECT_FALSE(tree.EnsureVisible(nullptr));
}

TEST_F(TreeScrolling, SortingRefitsTheViewToTheNewOrder) {
    HTREEITEM p = tree.Add("p");
    tree.Expand(p, TVE_EXPAND, false, false);
    for (const char* psz : {"h", "g", "f", "e", "d", "c", "b", "a"}) {
        rows.push_back(tree.Add(psz, p));
    }
    ASSERT_EQ(tree.Bottom(), rows[4]);  // "d"
    EXPECT_TRUE(tree.SortChildren(p));
    EXPECT_EQ(tree.Top(), p);
    EXPECT_EQ(tree.Bottom(), rows[3]) << "e: the sixth row";
    tree.EnsureVisible(rows[0]);  // "h", the last row now
    ASSERT_EQ(tree.Top(), rows[5]);
    tree.Replace([](HTREEITEM h1, HTREEITEM h2) { return *h1->pszText > *h2->pszText ? -1 : 1; });
    EXPECT_TRUE(tree.SortChildren(p));
    EXPECT_EQ(tree.Bottom(), rows[7]);
    EXPECT_EQ(tree.Top(), rows[2]) << "the window stays full";
    EXPECT_EQ(tree.window.ranges[SB_VERT].nPos, 3);

    tree.SetRedraw(false);
    const int nAll = tree.window.nAllInvalid;
    tree.KeepOrder();
    EXPECT_TRUE(tree.SortChildren(p));
    EXPECT_EQ(tree.Bottom(), rows[7]) << "nothing moves while redraw is off";
    EXPECT_EQ(tree.window.nAllInvalid, nAll + 1);
}

TEST_F(TreeScrolling, HitFlagsTellTheParts) {
    tree.SetImages({true, true, 16, 16, 12, 12});
    Fill(2);
    HTREEITEM child = tree.Add("child", rows[0]);
    HTREEITEM leaf = tree.Add("leaf", child);
    tree.Expand(rows[0], TVE_EXPAND, false, false);
    struct Case {
        int x, y;
        unsigned nFlags;
        HTREEITEM h;
    };
    // Row 1 is the child: 19 indentation, 12 + 3 state, 16 + 3 image, text of 5.
    for (const Case& c :
         {Case{19, 20, TVHT_NOWHERE | TVHT_ONITEMSTATEICON, child},
          Case{19 + 15, 20, TVHT_NOWHERE | TVHT_ONITEMICON, child},
          Case{19 + 34, 20, TVHT_NOWHERE | TVHT_ONITEMLABEL, child},
          Case{18, 20, TVHT_ONITEMBUTTON, child}, Case{150, 20, TVHT_ONITEMRIGHT, child},
          Case{2, 2, TVHT_NOWHERE | TVHT_ONITEMICON, rows[0]}, Case{5, 90, TVHT_NOWHERE, nullptr},
          Case{-1, 20, TVHT_TOLEFT, nullptr}, Case{200, 500, TVHT_TORIGHT, nullptr},
          Case{5, -1, TVHT_ABOVE, nullptr}, Case{5, 100, TVHT_BELOW, nullptr}}) {
        unsigned nFlags = 0;
        EXPECT_EQ(tree.HitTest({c.x, c.y}, &nFlags, nullptr), c.h) << c.x << "," << c.y;
        EXPECT_EQ(nFlags, c.nFlags) << c.x << "," << c.y;
        EXPECT_EQ(tree.HitTest({c.x, c.y}, nullptr, nullptr), c.h);
    }
    tree.Expand(child, TVE_EXPAND, false, false);
    unsigned nFlags;
    EXPECT_EQ(tree.HitTest({5, 36}, &nFlags, nullptr), leaf);
    EXPECT_EQ(nFlags, TVHT_ONITEMINDENT);
}

TEST_F(TreeScrolling, CollapsingMovesSelectionAndViewOutOfTheBranch) {
    Fill(2);
    for (int i = 0; i < 30; ++i) {
        tree.Add("c" + std::to_string(i), rows[0]);
    }
    tree.Expand(rows[0], TVE_EXPAND, false, false);
    tree.SelectItem(rows[0]->pLastChild);
    tree.VScroll(SB_THUMBTRACK, 12);
    EXPECT_TRUE(tree.Expand(rows[0], TVE_COLLAPSE, false, false));
    EXPECT_EQ(tree.nNotified, 1);
    EXPECT_EQ(tree.Items().Selected(), rows[0]);
    EXPECT_EQ(tree.Top(), rows[0]);
    EXPECT_EQ(tree.Bottom(), rows[1]);
    EXPECT_FALSE(tree.Expand(rows[0], 0, false, false));
    EXPECT_FALSE(tree.Expand(rows[0], 4, false, false));
}

TEST_F(TreeScrolling, ReopenedByTheUserABranchShowsOneLevel) {
    HTREEITEM a = tree.Add("a");
    HTREEITEM b = tree.Add("b", a);
    tree.Add("c", b);
    tree.Expand(a, TVE_TOGGLE, false, true);
    tree.Expand(b, TVE_TOGGLE, false, true);
    EXPECT_EQ(tree.Rows(), "a b c");
    tree.Expand(a, TVE_TOGGLE, false, true);
    tree.Expand(a, TVE_TOGGLE, false, true);
    EXPECT_EQ(tree.Rows(), "a b");
    EXPECT_TRUE(b->nState & TVIS_EXPANDEDONCE);
    EXPECT_TRUE(tree.CheckInvariants());
}

TEST_F(TreeScrolling, RedrawOffLeavesBarsAloneUntilItIsOnAgain) {
    tree.SetRedraw(false);
    Fill(101);
    EXPECT_FALSE(tree.window.bShown[SB_VERT]);
    EXPECT_TRUE(tree.ChangeParent(rows[100], rows[99])) << "which fits the bars all the same";
    EXPECT_EQ(tree.window.nAllInvalid, 0);
    tree.SetRedraw(true);
    EXPECT_EQ(tree.window.ranges[SB_VERT].nMax, 99);
    EXPECT_EQ(tree.Bottom(), rows[5]);
    const int nAll = tree.window.nAllInvalid;
    EXPECT_TRUE(tree.ChangeParent(rows[100], rows[98]));
    EXPECT_GT(tree.window.nAllInvalid, nAll);
}

TEST_F(TreeScrolling, AReplacedRectangleDecidesAboutTheBar) {
    tree.nReplacedWidth = 500;
    Fill(2);
    EXPECT_EQ(tree.MaxWidth(), 500);
    EXPECT_TRUE(tree.window.bShown[SB_HORZ]);
    tree.nReplacedWidth = 100;
    tree.CalcScroll();
    EXPECT_FALSE(tree.window.bShown[SB_HORZ]) << "asked again at each refit";
}

TEST_F(TreeScrolling, WidthsFollowWhatTheyDependOn) {
    Fill(1);
    const int nWidth = tree.MaxWidth();
    tree.measure.nCalls = 0;
    Fill(1, "longer");
    EXPECT_GT(tree.MaxWidth(), nWidth);
    tree.CalcScroll();
    EXPECT_EQ(tree.measure.nCalls, 1) << "nothing is measured twice";
    tree.DeleteItem(rows[1]);
    EXPECT_EQ(tree.MaxWidth(), nWidth);
    tree.SetImages({true, false, 16, 16, 0, 0});
    tree.CalcScroll();
    EXPECT_EQ(tree.MaxWidth(), nWidth + 19);
    tree.window.nStyle = TVS_LINESATROOT;
    tree.CalcScroll();
    EXPECT_EQ(tree.MaxWidth(), nWidth + 38);
    tree.SetItemText(rows[0], "row\tfield");
    const int nStop = 120;
    tree.UseTabs(&nStop, 1);
    tree.CalcScroll();
    EXPECT_EQ(tree.MaxWidth(), 120 + 5 * kChar + 4 + 38);
}

TEST_F(TreeScrolling, WithoutMemoryForAnIndexRowsAreWalked) {
    tree.SetRedraw(false);
    Fill(600);
    {
        const FailingNew failing(0);
        tree.SetRedraw(true);
        EXPECT_EQ(tree.window.ranges[SB_VERT].nMax, 599);
        EXPECT_EQ(tree.MaxWidth(), 6 * kChar + 4);
        tree.VScroll(SB_THUMBTRACK, 300);
    }
    EXPECT_EQ(tree.VScrollPos(), 300);
    EXPECT_TRUE(tree.CheckInvariants());
}

TEST_F(TreeScrolling, AChangeThatCannotBeMeasuredIsFittedLater) {
    Fill(3);
    tree.measure.bOutOfMemory = true;
    HTREEITEM added = tree.Add("a row that is too long for the window", rows[0]);
    ASSERT_NE(added, nullptr);
    EXPECT_TRUE(tree.Expand(rows[0], TVE_EXPAND, true, false));
    qv::Rect rect;
    EXPECT_FALSE(tree.GetItemRect(added, rect, false));
    EXPECT_EQ(tree.HitTest({5, 20}, nullptr, nullptr), nullptr);
    const int nAll = tree.window.nAllInvalid;
    EXPECT_TRUE(tree.SelectItem(added));
    EXPECT_GT(tree.window.nAllInvalid, nAll) << "where the row ends is not known";
    EXPECT_TRUE(tree.DeleteItem(rows[1]));
    EXPECT_TRUE(tree.ChangeParent(rows[2], added));
    EXPECT_TRUE(tree.EnsureVisible(rows[2]));
    EXPECT_TRUE(tree.SortChildren(rows[0]));
    EXPECT_EQ(tree.Rows(), "row0 a row that is too long for the window row2");
    EXPECT_FALSE(tree.window.bShown[SB_HORZ]);
    EXPECT_TRUE(tree.CheckInvariants());
    tree.measure.bOutOfMemory = false;
    tree.FitIfDue();
    EXPECT_TRUE(tree.window.bShown[SB_HORZ]);
    EXPECT_EQ(tree.Bottom(), rows[2]);
    const int nCalls = tree.measure.nCalls;
    tree.FitIfDue();
    EXPECT_EQ(tree.measure.nCalls, nCalls);
}

TEST_F(TreeScrolling, TheFirstItemIsMeasuredAsSoonAsThereIsMemory) {
    tree.measure.bOutOfMemory = true;
    Fill(1);
    EXPECT_EQ(tree.ItemHeight(), 0);
    tree.measure.bOutOfMemory = false;
    tree.FitIfDue();
    EXPECT_TRUE(tree.ItemVisible(rows[0]));
}

int Steps(HTREEITEM h, HTREEITEM _TREEITEM::*pLink) {
    int nSteps = 0;
    while ((h = h->*pLink) != nullptr) {
        ++nSteps;
    }
    return nSteps;
}

TEST(TreeNumbers, LastAsLongAsTheirItems) {
    TestTree tree;
    const HTREEITEM a = tree.Add("a");
    const int nNumber = tree.Items().NumberOf(a);
    for (int i = 0; i < 3000; ++i) {
        tree.Add("more");
    }
    EXPECT_EQ(tree.Items().ItemOf(nNumber), a);
    _TREEITEM foreign{};
    EXPECT_EQ(tree.Items().NumberOf(&foreign), 0);
    tree.DeleteItem(a);
    EXPECT_EQ(tree.Items().NumberOf(a), 0);
    for (const int n : {nNumber, 0, -1, 3002, 1000000, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(tree.Items().ItemOf(n), nullptr) << n;
    }
}

// Whatever happens to the tree, a refit gives what walking all rows gives.
TEST(TreeProperty, RefitsAgreeWithAPlainWalk) {
    for (unsigned nSeed = 1; nSeed <= 30; ++nSeed) {
        std::mt19937 random(nSeed);
        TestTree tree;
        tree.window.size = {150, 16 * 7};
        std::vector<HTREEITEM> items;
        const auto any = [&]() -> HTREEITEM {
            items.clear();
            for (HTREEITEM h = tree.Root(); h != nullptr; h = tree.Items().WalkNext(h)) {
                items.push_back(h);
            }
            return items.empty() ? nullptr : items[random() % items.size()];
        };
        for (int i = 0; i < 400; ++i) {
            const std::string strText(1 + random() % 30, 'a' + static_cast<char>(random() % 26));
            HTREEITEM h = any();
            HTREEITEM hBranch = h != nullptr && h->pParent != nullptr ? h->pParent : h;
            switch (random() % 8) {
                case 0:
                    if (random() % 2 == 0) {
                        tree.DeleteItem(h ? h : TVI_ROOT);
                    }
                    break;
                case 1:
                    tree.Expand(random() % 2 ? h : hBranch, TVE_TOGGLE, true, random() % 2);
                    break;
                case 2:
                    if (h != tree.Root()) {
                        tree.ChangeParent(h, any());
                    }
                    break;
                case 3:
                    tree.SortChildren(hBranch);
                    break;
                case 4:
                    tree.SetItemText(h, strText.c_str());
                    tree.SetItemState(h, random() % 2 ? TVIS_EXPANDED : 0, TVIS_EXPANDED);
                    break;
                default:
                    for (unsigned n = random() % 60; n > 0; --n) {
                        tree.Add(strText, h, random() % 2 ? TVI_FIRST : TVI_LAST);
                    }
            }
            tree.CalcScroll();
            tree.CalcBottomItem();
            int nRows = 0, nTop = tree.Root() != nullptr ? -1 : 0, nWidest = 0;
            for (HTREEITEM r = tree.Root(); r != nullptr; r = tree.Items().NextDisplayableItem(r)) {
                nTop = r == tree.Top() ? nRows : nTop;
                qv::Rect rect;
                tree.CalcItemRect(nullptr, 0, r, rect, false);
                nWidest = std::max(nWidest, rect.right);
                if (++nRows % 40 == 1 && !tree.Items().RootDetached()) {
                    const auto [nPlace, nCount] = tree.PlaceOf(r);
                    ASSERT_EQ(nPlace, 1 + Steps(r, &_TREEITEM::pPrevSibling)) << nSeed << "/" << i;
                    ASSERT_EQ(nCount, nPlace + Steps(r, &_TREEITEM::pNextSibling));
                }
                ASSERT_EQ(tree.Items().ItemOf(tree.Items().NumberOf(r)), r);
            }
            ASSERT_TRUE(tree.CheckInvariants()) << nSeed << "/" << i;
            ASSERT_EQ(tree.MaxWidth(), nWidest) << nSeed << "/" << i;
            ASSERT_EQ(tree.VScrollPos(), nTop) << nSeed << "/" << i;
            if (tree.VPage() != 0) {
                ASSERT_EQ(tree.window.ranges[SB_VERT].nMax, nRows - 1);
            }
            const int nWanted = static_cast<int>(random() % 200);
            const int nDown = tree.ScrollTreeDown(nWanted);
            ASSERT_TRUE(nDown == nWanted ||
                        tree.Items().NextDisplayableItem(tree.Bottom()) == nullptr);
            ASSERT_EQ(tree.ScrollTreeUp(nDown / 2), nDown / 2);
        }
    }
}

}  // namespace
