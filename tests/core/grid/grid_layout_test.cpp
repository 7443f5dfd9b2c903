#include "grid/core/grid_layout.h"

#include "base/platform_names.h"
#include "grid/core/grid_keys.h"
#include "grid/core/grid_list_rect.h"

#include <gtest/gtest.h>
#include <limits>

namespace qv {

namespace {

// Columns of 50, 60 and 20 pixels and twelve rows in a client area of 200 by 100, which is five
// rows of 20.
class GridView : public testing::Test {
protected:
    GridView() {
        m_model.AddColumn(gctStatic, 50);
        m_model.AddColumn(gctButton, 60);
        m_model.AddColumn(gctDropList, 20);
        for (int i = 0; i < 12; ++i) {
            m_model.AddRow("", 0);
        }
    }
    Rect CellAt(int nRow, int nCol) const {
        Rect rc{-7, -7, -7, -7};
        return m_layout.CellRect(nRow, nCol, rc) ? rc : Rect{};
    }
    GridCell HitAt(int x, int y) const { return m_layout.HitTest({x, y}).cell; }
    bool IsButtonAt(int x, int y) const { return m_layout.HitTest({x, y}).bOnButton; }

    GridModel m_model;
    GridLayout m_layout{m_model, {0, 0, 200, 100}, 20, 0};
};

constexpr GridCell kNoCell{};

}  // namespace

TEST_F(GridView, TheLastColumnReachesTheEdgeWhateverItsWidth) {
    EXPECT_EQ(CellAt(0, 0), (Rect{0, 0, 50, 20}));
    m_layout.nTopRow = 1;
    EXPECT_EQ(CellAt(3, 1), (Rect{50, 40, 110, 60}));
    EXPECT_EQ(CellAt(3, 2), (Rect{110, 40, 200, 60}));
    EXPECT_EQ(CellAt(0, 2), (Rect{110, -20, 200, 0}));
    m_model.Column(2)->nWidth = 500;
    EXPECT_EQ(CellAt(3, 2), (Rect{110, 40, 200, 60}));
    EXPECT_EQ(m_layout.RowRect(99), (Rect{0, 1960, 200, 1980}));
}

TEST_F(GridView, ACellThatThereIsNotLeavesTheRectangleAlone) {
    constexpr GridCell kNone[] = {{-1, 0}, {12, 0}, {0, -1}, {0, 3}};
    for (const GridCell& cell : kNone) {
        Rect rc{1, 2, 3, 4};
        EXPECT_FALSE(m_layout.CellRect(cell.nRow, cell.nCol, rc));
        EXPECT_EQ(rc, (Rect{1, 2, 3, 4}));
    }
}

TEST_F(GridView, PartsOfACellLeaveItsLinesAndItsButtonFree) {
    const Rect rcCell{110, 40, 200, 60};
    EXPECT_EQ(m_layout.ButtonRect(rcCell), (Rect{179, 40, 199, 59}));
    EXPECT_EQ(GridTextRect(rcCell, 0), (Rect{112, 41, 198, 58}));
    EXPECT_EQ(GridTextRect(rcCell, 20), (Rect{112, 41, 178, 58}));
    EXPECT_EQ(GridFocusRect(rcCell, 0), (Rect{110, 40, 199, 59}));
    EXPECT_EQ(GridFocusRect(rcCell, 20), (Rect{110, 40, 179, 59}));
    EXPECT_EQ(GridEditRect(rcCell, 0), (Rect{112, 41, 197, 58}));
    EXPECT_EQ(GridEditRect(rcCell, 20), (Rect{112, 41, 177, 58}));
}

TEST_F(GridView, APointHitsTheCellThatShowsThere) {
    EXPECT_EQ(HitAt(0, 0), (GridCell{0, 0}));
    EXPECT_EQ(HitAt(49, 19), (GridCell{0, 0}));
    EXPECT_EQ(HitAt(50, 20), (GridCell{1, 1}));
    EXPECT_EQ(HitAt(110, 99), (GridCell{4, 2}));
    EXPECT_EQ(HitAt(199, 99), (GridCell{4, 2}));
    EXPECT_EQ(HitAt(200, 99), (GridCell{4, -1}));
    EXPECT_EQ(HitAt(0, -1), kNoCell);
    m_layout.nTopRow = 10;
    EXPECT_EQ(HitAt(0, 39), (GridCell{11, 0}));
    EXPECT_EQ(HitAt(0, 40), kNoCell);
    GridModel empty;
    empty.AddRow("", 0);
    EXPECT_EQ((GridLayout{empty, {0, 0, 200, 100}, 20, 0}.HitTest({5, 5}).cell), (GridCell{0, -1}));
}

TEST_F(GridView, ButtonsAreHitInEveryCellThatCouldHaveOne) {
    for (const int nTop : {0, 20}) {
        EXPECT_TRUE(IsButtonAt(89, nTop));
        EXPECT_TRUE(IsButtonAt(108, nTop + 18));
        EXPECT_FALSE(IsButtonAt(88, nTop));
        EXPECT_FALSE(IsButtonAt(109, nTop));
        EXPECT_FALSE(IsButtonAt(108, nTop + 19));
        EXPECT_TRUE(IsButtonAt(198, nTop));
        EXPECT_FALSE(IsButtonAt(200, nTop));
        EXPECT_FALSE(IsButtonAt(40, nTop));
    }
    m_model.Column(1)->nType = gctEdit;
    EXPECT_FALSE(IsButtonAt(89, 0));
}

TEST_F(GridView, WholeRowsAreAPageAndOneMoreIsShown) {
    EXPECT_EQ(m_layout.VisibleRows(), 5);
    EXPECT_EQ(m_layout.EndOfShownRows(), 6);
    m_layout.nTopRow = 10;
    EXPECT_EQ(m_layout.EndOfShownRows(), 12);
    m_layout.rcClient.bottom = 99;
    EXPECT_EQ(m_layout.VisibleRows(), 4);
}

TEST_F(GridView, AHeightNotYetMeasuredShowsAndHitsNothing) {
    for (const int nHeight : {0, -1}) {
        m_layout.nCellHeight = nHeight;
        EXPECT_EQ(m_layout.VisibleRows(), 12);
        EXPECT_EQ(m_layout.EndOfShownRows(), 0);
        EXPECT_EQ(HitAt(5, 0), kNoCell);
    }
}

TEST_F(GridView, KeysLeadToANeighbourAnEndOrAPageOn) {
    struct Case {
        unsigned nKey;
        GridCell from, to;
    };
    constexpr Case kCases[] = {
        {VK_LEFT, {3, 1}, {3, 0}},   {VK_LEFT, {3, 0}, {3, 0}},   {VK_RIGHT, {3, 1}, {3, 2}},
        {VK_RIGHT, {3, 2}, {3, 2}},  {VK_UP, {3, 1}, {2, 1}},     {VK_UP, {0, 1}, {0, 1}},
        {VK_DOWN, {3, 1}, {4, 1}},   {VK_DOWN, {11, 1}, {11, 1}}, {VK_HOME, {3, 1}, {0, 1}},
        {VK_END, {3, 1}, {11, 1}},   {VK_NEXT, {3, 1}, {6, 1}},   {VK_NEXT, {10, 1}, {11, 1}},
        {VK_NEXT, {11, 1}, {11, 1}}, {VK_PRIOR, {3, 1}, {3, 1}},  {'A', {3, 1}, {3, 1}},
        {VK_LEFT, kNoCell, {7, 0}},  {VK_RIGHT, kNoCell, {7, 0}}, {VK_UP, kNoCell, {7, 0}},
        {VK_DOWN, kNoCell, {7, 0}},  {VK_NEXT, kNoCell, {7, 0}},  {VK_PRIOR, kNoCell, {7, 0}},
        {VK_HOME, kNoCell, {0, 0}},  {VK_END, kNoCell, {11, 0}},  {'A', kNoCell, {7, 0}}};
    for (const auto& [nKey, from, to] : kCases) {
        EXPECT_EQ(KeyTarget(nKey, from, m_model, 7, 4), to)
            << "key " << nKey << " from row " << from.nRow << ", column " << from.nCol;
    }
    // No room for a whole row.
    EXPECT_EQ(KeyTarget(VK_NEXT, {3, 1}, m_model, 0, 0), (GridCell{3, 1}));
    // Without columns there is none to start at.
    GridModel noColumns;
    noColumns.AddRow("", 0);
    EXPECT_EQ(KeyTarget(VK_RIGHT, kNoCell, noColumns, 0, 4), (GridCell{0, -1}));
}

TEST_F(GridView, APageOnFromTheThirdOfTenRowsIsTheSixth) {
    m_model.DeleteAllRows();
    for (int i = 0; i < 10; ++i) {
        m_model.AddRow("", 0);
    }
    EXPECT_EQ(KeyTarget(VK_NEXT, {2, 0}, m_model, 0, 4), (GridCell{5, 0}));
    EXPECT_EQ(KeyTarget(VK_NEXT, {8, 0}, m_model, 0, 4), (GridCell{9, 0}));
}

TEST(GridScroll, StopsAtBothEnds) {
    EXPECT_EQ(TopAfterScrollDown(0, 4, 12, 5), 4);
    EXPECT_EQ(TopAfterScrollDown(4, 4, 12, 5), 7);
    EXPECT_EQ(TopAfterScrollDown(4, std::numeric_limits<int>::max(), 12, 5), 7);
    EXPECT_EQ(TopAfterScrollDown(7, 1, 12, 5), 7);
    EXPECT_EQ(TopAfterScrollDown(9, 1, 12, 5), 9);  // the window has grown since
    EXPECT_EQ(TopAfterScrollDown(3, -1, 12, 0), 3);
    EXPECT_EQ(TopAfterScrollUp(5, 2), 3);
    EXPECT_EQ(TopAfterScrollUp(5, std::numeric_limits<int>::max()), 0);
    EXPECT_EQ(TopAfterScrollUp(0, 1), 0);
    EXPECT_EQ(TopAfterScrollUp(5, -1), 5);
    EXPECT_EQ(TopAfterScrollTo(6, 12, 5), 6);
    EXPECT_EQ(TopAfterScrollTo(11, 12, 5), 7);
    EXPECT_EQ(TopAfterScrollTo(-3, 12, 5), 0);
}

TEST(GridScroll, AListShorterThanAPageStaysAtItsStart) {
    EXPECT_EQ(TopAfterScrollDown(0, 1, 3, 5), 0);
    EXPECT_EQ(TopAfterScrollTo(2, 3, 5), 0);
    EXPECT_EQ(TopAfterScrollTo(-1, 0, 5), 0);
}

TEST(GridList, HangsUnderItsCellAsTallAsItsLines) {
    EXPECT_EQ(GridListRect({10, 20, 90, 40}, 15, 4), (Rect{10, 39, 89, 101}));
    EXPECT_EQ(GridListRect({10, 20, 90, 40}, 15, 0), (Rect{10, 39, 89, 41}));
}

TEST(GridList, ALimitedOneStaysOnTheScreen) {
    constexpr Rect kScreen{0, 0, 200, 100};
    const auto at = [&](int nLeft, int nTop, int nLines, int nMaxLines) {
        return GridListRectOnScreen({nLeft, nTop, nLeft + 80, nTop + 20}, 10, nLines, nMaxLines,
                                    kScreen);
    };
    EXPECT_EQ(at(10, 0, 4, 8), (Rect{10, 19, 89, 61}));
    EXPECT_EQ(at(10, 0, 40, 3), (Rect{10, 19, 89, 51})) << "the limit";
    EXPECT_EQ(at(10, 59, 2, 8), (Rect{10, 78, 89, 100})) << "just fits";
    EXPECT_EQ(at(10, 60, 2, 8), (Rect{10, 38, 89, 60})) << "above the cell";
    EXPECT_EQ(at(10, 60, 40, 40), (Rect{10, 8, 89, 60})) << "as much as fits above";
    EXPECT_EQ(at(10, 30, 40, 40), (Rect{10, 49, 89, 91})) << "as much as fits under it";
    EXPECT_EQ(at(150, 0, 1, 8), (Rect{121, 19, 200, 31}));
    EXPECT_EQ(at(-30, 0, 1, 8), (Rect{0, 19, 79, 31}));
    EXPECT_EQ(at(10, 90, 0, 8).Height(), 2);
    constexpr Rect kSlit{0, 0, 200, 5};
    EXPECT_EQ(GridListRectOnScreen({0, 0, 80, 20}, 10, 9, 8, kSlit).Height(), 12) << "one line";
}

TEST(GridList, ArrowsStartAtTheFirstLineAndStayInside) {
    EXPECT_EQ(ListLineAfterKey(-1, true, 3), 0);
    EXPECT_EQ(ListLineAfterKey(-1, false, 3), 0);
    EXPECT_EQ(ListLineAfterKey(-1, true, 0), -1);
    EXPECT_EQ(ListLineAfterKey(0, false, 3), 0);
    EXPECT_EQ(ListLineAfterKey(1, false, 3), 0);
    EXPECT_EQ(ListLineAfterKey(1, true, 3), 2);
    EXPECT_EQ(ListLineAfterKey(2, true, 3), 2);
}

}  // namespace qv
