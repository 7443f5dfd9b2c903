#include "grid/core/grid_layout.h"

#include <gtest/gtest.h>

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
    for (const GridCell& cell : {GridCell{-1, 0}, {12, 0}, {0, -1}, {0, 3}}) {
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

}  // namespace qv
