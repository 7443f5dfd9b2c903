#include "window/grid/grid_in_front.h"

#include <gtest/gtest.h>

namespace {

// Where the editors lie as the cells under them move.
class GridPlaces : public GridInFront {
protected:
    GridPlaces() : GridInFront(30) {}
    void ExpectEditIn(int nRow, int nCol) {
        const CRect rc = w.CellRect(nRow, nCol);
        EXPECT_EQ(RectOf(::GetDlgItem(grid.m_hWnd, kGridEditChild)),
                  CRect(rc.left + 2, rc.top + 1, rc.right - 3, rc.bottom - 2));
    }
    // The list hangs under its cell.
    void ExpectListAt(int nRow, int nCol) {
        ASSERT_NE(w.List(), nullptr);
        const CRect rc = w.CellRect(nRow, nCol);
        EXPECT_EQ(ListRect().TopLeft(), CPoint(rc.left, rc.bottom - 1));
        EXPECT_EQ(ListRect().Width(), rc.Width() - 1);
    }
};

TEST_F(GridPlaces, AnEditFollowsItsCellAsCodeScrollsOrFontAndWidthsChange) {
    Click(1, kEdit);
    TypeText("new");
    grid.EnsureRowVisible(29);
    ExpectEditIn(1, kEdit);
    TypeText("er");
    grid.EnsureRowVisible(0);
    ExpectEditIn(1, kEdit);
    EXPECT_EQ(::GetFocus(), w.Edit());
    EXPECT_EQ(w.Text(1, kEdit), "newer");
    grid.SetColWidth(kStatic, 100);
    ExpectEditIn(1, kEdit);
    CFont font;
    font.CreatePointFont(200, "Tahoma");
    grid.SetFont(&font);
    grid.UpdateWindow();
    ExpectEditIn(1, kEdit);
}

TEST_F(GridPlaces, AListFollowsTheWindowsAroundIt) {
    Click(2, kList);
    ExpectListAt(2, kList);
    CRect rc;
    w.parent.GetWindowRect(&rc);
    w.parent.SetWindowPos(nullptr, rc.left + 37, rc.top + 21, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ExpectListAt(2, kList);
    grid.SetWindowPos(nullptr, 5, 7, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ExpectListAt(2, kList);
}

TEST_F(GridPlaces, EditorsFollowTheSizeOfTheWindow) {
    grid.SetColType(kButton, gctEdit);
    Click(2, kButton);
    const auto resize = [&](int cx) {
        grid.SetWindowPos(nullptr, 0, 0, cx, 200, SWP_NOMOVE | SWP_NOZORDER);
    };
    for (const int cx : {500, 380}) {
        resize(cx);
        ExpectEditIn(2, kButton);
    }
    grid.SetColType(kButton, gctDropList);
    grid.SetColListData(kButton, &w.choices);
    Click(3, kButton);
    for (const int cx : {500, 380}) {
        resize(cx);
        ExpectListAt(3, kButton);
    }
}

}  // namespace
