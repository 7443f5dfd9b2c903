#include "support/told_dialog.h"
#include "window/grid/grid_in_front.h"
#include "window/grid/grid_test_ids.h"

#include <gtest/gtest.h>

namespace {

class GridEdit : public GridInFront {
protected:
    GridEdit() : GridInFront(20) {}
};

// --- The edit

TEST_F(GridEdit, ClickOpensWithAllSelectedAndTheFocusLeavingKeepsWhatIsTyped) {
    RecordingParent away(CSize(50, 50));
    const std::function<void()> aLeave[] = {[&] { Click(1, kEdit); }, [&] { w.other.SetFocus(); },
                                            [&] { BringToFront(away.m_hWnd), PumpPending(); },
                                            [&] { grid.SendMessage(WM_VSCROLL, SB_LINEDOWN); }};
    for (const auto& leave : aLeave) {
        BringToFront(w.parent.m_hWnd);
        grid.SetCellText(0, kEdit, "abc");
        Click(0, kEdit);
        EXPECT_EQ(w.Selected(), "0-3");
        EXPECT_EQ(::GetFocus(), w.Edit());
        w.Told();
        TypeText("xy");
        EXPECT_EQ(w.Text(0, kEdit) + " " + w.Told(), "xy change change ") << "seen at once";
        leave();
        EXPECT_EQ(w.Text(0, kEdit), "xy");
        EXPECT_TRUE(w.Edit() == nullptr || w.Current() == "1,1");
        EXPECT_EQ(w.Told(), w.Edit() != nullptr ? "change " : "") << "keeping tells nothing";
        w.other.SetFocus();
    }
}

TEST_F(GridEdit, AWindowThatGoesLeavesWhatWasTypedInTheStore) {
    Click(0, kEdit);
    TypeText("new");
    grid.DestroyWindow();
    EXPECT_EQ(w.Text(0, kEdit), "new");
}

TEST_F(GridEdit, TheKeyThatOpensTheFirstCellIsTypedThere) {
    grid.SetColType(0, gctEdit);
    grid.SetFocus();
    TypeText("abc");
    EXPECT_EQ(w.Text(0, 0), "abc");
    grid.DeleteAllRows();
    grid.AddRow("name", 0);
    w.other.SetFocus();
    grid.SetFocus();
    TypeKey(VK_BACK);
    EXPECT_EQ(w.Current() + w.Text(0, 0), "0,0name") << "only what is to be seen is typed";
}

// --- The list

TEST_F(GridEdit, AListFollowsThePointerAndNeverTakesTheFocus) {
    Click(0, kList);
    ASSERT_NE(w.List(), nullptr);
    EXPECT_EQ(w.ListLine(), "one");
    EXPECT_EQ(CWnd::GetFocus(), &grid);
    const CRect rc = w.CellRect(0, kList);
    const auto nLine = static_cast<int>(::SendMessage(w.List(), LB_GETITEMHEIGHT, 0, 0));
    EXPECT_EQ(ListRect(), CRect(rc.left, rc.bottom - 1, rc.right - 1, rc.bottom + 1 + 3 * nLine));
    ClickAt(grid.m_hWnd, w.LineAt(2));
    EXPECT_EQ(w.List(), nullptr);
    EXPECT_EQ(w.Text(0, kList) + " " + w.Told(), "three 1 ");
    Click(0, kList);
    MoveTo(grid.m_hWnd, w.LineAt(0));
    EXPECT_EQ(w.ListLine(), "one");
    MoveTo(grid.m_hWnd, w.At(0, kStatic));
    EXPECT_EQ(w.ListLine(), "-");
    Click(0, kStatic);
    EXPECT_EQ(w.Text(0, kList) + w.Told(), "three");
}

TEST_F(GridEdit, AListIsOpenedAndClosedByKeysAndByTheFocus) {
    RecordingParent away(CSize(50, 50));
    const std::function<void()> aClose[] = {[&] { AltDown(); }, [&] { w.other.SetFocus(); },
                                            [&] { BringToFront(away.m_hWnd), PumpPending(); },
                                            [&] { TypeKey(VK_LEFT); }};
    for (const auto& close : aClose) {
        BringToFront(w.parent.m_hWnd);
        grid.SetCellText(0, kList, "one");
        grid.GotoCell(0, kList, FALSE);
        grid.SetFocus();
        AltDown();
        TypeKey(VK_DOWN);
        EXPECT_EQ(w.ListLine() + w.Text(0, kList), "twoone");
        w.Told();
        close();
        EXPECT_EQ(w.List(), nullptr);
        EXPECT_EQ(w.Text(0, kList), "two");
        EXPECT_EQ(w.parent.CountCommands(kListChanged), 1);
    }
}

// --- The button, and keys

TEST_F(GridEdit, AButtonIsToldAtReleaseOverIt) {
    const CPoint pt = w.ButtonRect(0, kButton).CenterPoint();
    PressAt(grid.m_hWnd, pt);
    EXPECT_TRUE((grid.RowAt(0).dwState & GRS_BUTTONDOWN) && CWnd::GetCapture() == &grid);
    EXPECT_EQ(w.Told(), "");
    ReleaseAt(grid.m_hWnd, pt);
    EXPECT_EQ(w.Told(), "0 ");
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
}

// --- In a dialog

class GridInDialog : public testing::Test {
protected:
    GridInDialog() {
        QVGridCtrl::RegisterDlgControlClass(IDD_GRID);
        dlg.Create(IDD_GRID);
        EXPECT_EQ(grid.Initialize(IDC_GRID + 100, &dlg), 0);
        EXPECT_EQ(grid.Initialize(IDC_GRID, &dlg), 1);
        grid.AddColumn(gctEdit, 50);
        grid.AddRow("old", 0);
        dlg.ShowWindow(SW_SHOW);
        grid.UpdateWindow();
        ClickAt(grid.m_hWnd, CPoint(10, 5));
        hEdit = ::GetDlgItem(grid.m_hWnd, kGridEditChild);
    }
    std::string Text() {
        CString str;
        grid.GetCellText(0, 0, str);
        return std::string(str);
    }
    void PutAnotherWindowInFront() {
        RecordingParent away(CSize(50, 50));
        BringToFront(away.m_hWnd);
        PumpPending();
        EXPECT_EQ(::GetActiveWindow(), away.m_hWnd);
        BringToFront(dlg.m_hWnd);
        PumpPending();
        EXPECT_EQ(::GetFocus(), hEdit);
        EXPECT_TRUE(::IsWindowVisible(hEdit));
    }

    ToldDialog dlg;
    OpenGrid grid;
    HWND hEdit = nullptr;
};

TEST_F(GridInDialog, TypingGoesOnAfterAnotherWindowWasInFront) {
    TypeText("one");
    PutAnotherWindowInFront();
    EXPECT_EQ(Text(), "one");
    TypeText("two");
    EXPECT_EQ(Text(), "two") << "all was selected again";
    // While the parent is told of a change, as a message box would.
    bool bCover = true;
    dlg.m_told = [&](UINT nCode) {
        if (nCode == EN_CHANGE && std::exchange(bCover, false)) {
            PutAnotherWindowInFront();
        }
    };
    TypeText("x");
    TypeKey(VK_END);
    TypeText("yz");
    EXPECT_EQ(Text(), "twoxyz");
}

TEST_F(GridInDialog, TheDialogsFontIsTheGridsAndItsEdits) {
    const LRESULT lFont = dlg.SendMessage(WM_GETFONT);
    ASSERT_NE(lFont, 0);
    EXPECT_EQ(grid.SendMessage(WM_GETFONT), lFont);
    EXPECT_EQ(::SendMessage(hEdit, WM_GETFONT, 0, 0), lFont);
    CClientDC dc(&dlg);
    dc.SelectObject(dlg.GetFont());
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    EXPECT_EQ(grid.m_nCellHeight, metrics.tmHeight + 3);
}

}  // namespace
