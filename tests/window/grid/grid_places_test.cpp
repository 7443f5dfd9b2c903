#include "support/grid_window.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <gtest/gtest.h>

namespace {

// Where the editors lie as the cells under them move.
class GridPlaces : public testing::Test {
protected:
    GridPlaces() : grid(w.grid) {
        BringToFront(w.parent.m_hWnd);
        w.other.SetFocus();
        PumpPending();
    }
    bool Click(int nRow, int nCol) { return ClickAt(grid.m_hWnd, w.At(nRow, nCol)); }
    CRect RectOf(HWND hWnd) {
        CRect rc;
        ::GetWindowRect(hWnd, &rc);
        grid.ScreenToClient(&rc);
        return rc;
    }
    void ExpectEditIn(int nRow, int nCol) {
        const CRect rc = w.CellRect(nRow, nCol);
        EXPECT_EQ(RectOf(::GetDlgItem(grid.m_hWnd, kGridEditChild)),
                  CRect(rc.left + 2, rc.top + 1, rc.right - 3, rc.bottom - 2));
    }
    // The list hangs under its cell.
    void ExpectListAt(int nRow, int nCol) {
        ASSERT_NE(w.List(), nullptr);
        const CRect rc = w.CellRect(nRow, nCol);
        const CRect rcList = RectOf(w.List());
        EXPECT_EQ(rcList.TopLeft(), CPoint(rc.left, rc.bottom - 1));
        EXPECT_EQ(rcList.Width(), rc.Width() - 1);
    }

    GridWindow<> w{30};
    OpenGrid& grid;
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
