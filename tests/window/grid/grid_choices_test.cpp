#include "support/picture.h"
#include "window/grid/grid_in_front.h"

#include <gtest/gtest.h>

namespace {

// What an application may have otherwise than by default; each test begins with the default.
class GridChoices : public GridInFront {
protected:
    GridChoices() : GridInFront(3) {}
    int LineHeight() { return static_cast<int>(::SendMessage(w.List(), LB_GETITEMHEIGHT, 0, 0)); }
};

TEST_F(GridChoices, AnAddedRowIsPaintedByItself) {
    const auto linesOfAddedRow = [&] {
        grid.UpdateWindow();
        const int nRow = grid.AddRow("name\tabc", 0);
        return Picture::OfClient(grid.m_hWnd)
            .Count(::GetSysColor(COLOR_BTNFACE), w.CellRect(nRow, kStatic));
    };
    EXPECT_EQ(linesOfAddedRow(), 0);
    grid.SetShowAddedRows(TRUE);
    EXPECT_GT(linesOfAddedRow(), 0);
}

TEST_F(GridChoices, AReadOnlyListThatStaysClosedShowsNoButton) {
    grid.SetCellReadOnly(1, kList, TRUE);
    for (const bool bLock : {false, true}) {
        grid.SetLockReadOnlyLists(bLock);
        Click(1, kList);
        EXPECT_EQ(w.List() == nullptr, bLock);
        TypeKey(VK_ESCAPE);
        grid.Invalidate(FALSE);
        const CRect rcCorner(w.ButtonRect(1, kList).TopLeft(), CSize(5, 5));
        EXPECT_EQ(Picture::OfClient(grid.m_hWnd).Count(::GetSysColor(COLOR_BTNFACE), rcCorner) == 0,
                  bLock);
    }
}

TEST_F(GridChoices, AListIsLimitedInHeightScrollsAndKeepsToTheScreen) {
    CStringArray many;
    for (int i = 0; i < 100; ++i) {
        many.Add(("line " + std::to_string(i)).c_str());
    }
    grid.SetColListData(kList, &many);
    grid.SetCellText(0, kList, "line 60");
    for (const int nLines : {100, 6}) {
        grid.SetMaxListLines(nLines < 100 ? nLines : 0);
        Click(0, kList);
        EXPECT_EQ(ListRect().Height(), nLines * LineHeight() + 2);
        EXPECT_EQ((::GetWindowLong(w.List(), GWL_STYLE) & WS_VSCROLL) != 0, nLines < 100);
        EXPECT_EQ(w.ListLine(), "line 60");
        nLines == 100 ? TypeKey(VK_ESCAPE) : false;
    }
    const auto top = [&] { return ::SendMessage(w.List(), LB_GETTOPINDEX, 0, 0); };
    const LRESULT lTop = top();
    // Its bar works, and the keys still go to the grid.
    ClickAt(grid.m_hWnd, ListRect().BottomRight() - CSize(5, 5));
    EXPECT_EQ(top(), lTop + 1);
    EXPECT_EQ(CWnd::GetFocus(), &grid);
    TypeKey(VK_ESCAPE);

    CRect rc;
    w.parent.GetWindowRect(&rc);
    const int nBottom = ::GetSystemMetrics(SM_CYSCREEN);
    w.parent.SetWindowPos(nullptr, rc.left, nBottom - 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    grid.GotoCell(1, kList, FALSE);
    grid.SetFocus();
    AltDown();
    EXPECT_EQ(ListRect().bottom, w.CellRect(1, kList).top) << "there is no room under the cell";
    EXPECT_EQ(ListRect().Height(), 6 * LineHeight() + 2);
}

}  // namespace
