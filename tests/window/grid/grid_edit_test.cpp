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
    Click(1, kEdit);
    grid.SetCellText(1, kEdit, "set");
    EXPECT_EQ(w.Text(1, kEdit) + " " + w.Selected(), "set 3-3");
    grid.EnableCell(1, kEdit, FALSE);
    EXPECT_EQ(w.Edit(), nullptr);
    EXPECT_EQ(CWnd::GetFocus(), &grid);
}

TEST_F(GridEdit, ArrowsLeaveTheCellAtTheEndsOfTheTextOnly) {
    Click(0, kEdit);
    const auto after = [&](std::initializer_list<WORD> keys) {
        for (const WORD vk : keys) {
            TypeKey(vk);
        }
        return w.Current() + (w.Edit() != nullptr ? " " + w.Selected() : "");
    };
    EXPECT_EQ(after({VK_LEFT, VK_HOME}), "0,1 0-0") << "selected text keeps the key";
    EXPECT_EQ(after({VK_RIGHT}), "0,1 1-1");
    EXPECT_EQ(after({VK_END, VK_RIGHT}), "0,2 0-3");
    EXPECT_EQ(after({VK_DOWN}), "1,2 0-3");
    EXPECT_EQ(after({VK_HOME, VK_LEFT}), "1,1 0-3");
    EXPECT_EQ(after({VK_HOME, VK_LEFT}), "1,0");
    EXPECT_EQ(grid.SendMessage(WM_GETDLGCODE), DLGC_WANTALLKEYS);
    EXPECT_EQ(CWnd::GetFocus(), &grid);
}

TEST_F(GridEdit, AnEditorIsPlacedBeforeTheFirstPaintToo) {
    grid.SendMessage(WM_SETREDRAW, TRUE);
    grid.GotoCell(2, kEditButton, TRUE);
    const CRect rc = w.CellRect(2, kEditButton);
    EXPECT_EQ(RectOf(w.Edit()),
              CRect(rc.left + 2, rc.top + 1, w.ButtonRect(2, kEditButton).left - 2, rc.bottom - 2));
}

TEST_F(GridEdit, AWindowThatGoesLeavesWhatWasTypedInTheStore) {
    Click(0, kEdit);
    TypeText("new");
    grid.DestroyWindow();
    EXPECT_EQ(w.Text(0, kEdit), "new");
    EXPECT_FALSE(grid.m_bEditing || grid.m_bIgnoreFocus);
}

TEST_F(GridEdit, TheKeyThatOpensTheFirstCellIsTypedThere) {
    grid.SetColType(0, gctEdit);
    grid.SetFocus();
    TypeText("abc");
    EXPECT_EQ(w.Text(0, 0), "abc");
    for (const WORD vk : {VK_BACK, VK_RETURN, VK_ESCAPE}) {
        grid.DeleteAllRows();
        grid.AddRow("name", 0);
        w.other.SetFocus();
        grid.SetFocus();
        TypeKey(vk);
        EXPECT_EQ(w.Current() + w.Text(0, 0), "0,0name") << "only what is to be seen is typed";
    }
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
    const CRect rc = w.ButtonRect(0, kButton);
    const CPoint pt = rc.CenterPoint();
    PressAt(grid.m_hWnd, pt);
    EXPECT_EQ(grid.PressedButtonRect(), rc);
    EXPECT_TRUE((grid.RowAt(0).dwState & GRS_BUTTONDOWN) && CWnd::GetCapture() == &grid);
    EXPECT_EQ(w.Told(), "");
    ReleaseAt(grid.m_hWnd, pt);
    EXPECT_EQ(w.Told(), "0 ");
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    PressAt(grid.m_hWnd, pt - CSize(6, 0));  // no double click
    grid.SendMessage(WM_CANCELMODE);
    ReleaseAt(grid.m_hWnd, pt);
    EXPECT_EQ(w.Told(), "");
}

// --- In a dialog

// Asks something in a message box at the first change, if it was told to.
class AskingDialog : public CDialog {
public:
    bool m_bAsk = false;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (LOWORD(wParam) == IDC_GRID && HIWORD(wParam) == EN_CHANGE && m_bAsk) {
            m_bAsk = false;
            PostMessage(kAnswer);
            ::MessageBox(m_hWnd, "Is it?", kBox, MB_OK);
        }
        return CDialog::OnCommand(wParam, lParam);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == kAnswer) {
            ::PostMessage(::FindWindow(nullptr, kBox), WM_COMMAND, IDOK, 0);
        }
        return CDialog::WindowProc(message, wParam, lParam);
    }

private:
    static constexpr UINT kAnswer = WM_APP;
    static constexpr LPCSTR kBox = "The grid's question";
};

class GridInDialog : public testing::Test {
protected:
    GridInDialog() {
        QVGridCtrl::RegisterDlgControlClass(IDD_GRID);
        dlg.Create(IDD_GRID);
        grid.AddColumn(gctEdit, 50);
        grid.AddRow("old", 0);
        grid.Initialize(IDC_GRID, &dlg);
        dlg.ShowWindow(SW_SHOW);
        grid.UpdateWindow();
        ClickAt(grid.m_hWnd, CPoint(10, 5));
    }
    std::string Text() {
        CString str;
        grid.GetCellText(0, 0, str);
        return std::string(str);
    }
    bool FocusInShownEdit() {
        HWND hWndEdit = ::GetDlgItem(grid.m_hWnd, kGridEditChild);
        return ::GetFocus() == hWndEdit && ::IsWindowVisible(hWndEdit);
    }

    AskingDialog dlg;
    OpenGrid grid;
};

TEST_F(GridInDialog, TypingGoesOnAfterAnotherWindowWasInFront) {
    TypeText("one");
    RecordingParent away(CSize(50, 50));
    ASSERT_TRUE(BringToFront(away.m_hWnd));
    PumpPending();
    EXPECT_EQ(Text(), "one");
    ASSERT_TRUE(BringToFront(dlg.m_hWnd));
    PumpPending();
    EXPECT_TRUE(FocusInShownEdit());
    TypeText("two");
    EXPECT_EQ(Text(), "two") << "all was selected again";
}

TEST_F(GridInDialog, TypingGoesOnAfterAMessageBoxOfTheParent) {
    dlg.m_bAsk = true;
    TypeText("x");
    ASSERT_FALSE(dlg.m_bAsk);
    EXPECT_TRUE(FocusInShownEdit());
    EXPECT_EQ(Text(), "x");
    TypeKey(VK_END);
    TypeText("yz");
    EXPECT_EQ(Text(), "xyz");
}

TEST(GridDialog, ATemplateNamesTheClassAndTheGridTakesTheDialogsFont) {
    QVGridCtrl::RegisterControlClass(nullptr);
    QVGridCtrl::RegisterDlgControlClass(IDD_GRID);
    WNDCLASS wc{};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), "QVGridCtrl", &wc));
    EXPECT_EQ(wc.style, static_cast<UINT>(CS_DBLCLKS | CS_PARENTDC));
    EXPECT_EQ(wc.hbrBackground, nullptr);
    CDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_GRID));
    OpenGrid grid;
    EXPECT_EQ(grid.Initialize(IDC_GRID + 100, &dlg), 0);
    ASSERT_EQ(grid.Initialize(IDC_GRID, &dlg), 1);
    EXPECT_EQ(grid.m_hWnd, ::GetDlgItem(dlg.m_hWnd, IDC_GRID));
    grid.AddColumn(gctEdit, 50);
    grid.AddRow("x", 0);
    dlg.ShowWindow(SW_SHOW);
    grid.UpdateWindow();
    EXPECT_NE(grid.SendMessage(WM_GETFONT), 0);
    EXPECT_EQ(grid.SendMessage(WM_GETFONT), dlg.SendMessage(WM_GETFONT));
    CClientDC dc(&dlg);
    dc.SelectObject(dlg.GetFont());
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    EXPECT_EQ(grid.m_nCellHeight, metrics.tmHeight + 3);
    BringToFront(dlg.m_hWnd);
    ClickAt(grid.m_hWnd, CPoint(10, 5));
    EXPECT_EQ(::SendDlgItemMessage(grid.m_hWnd, kGridEditChild, WM_GETFONT, 0, 0),
              dlg.SendMessage(WM_GETFONT));
    TypeText("y");
    ::SetFocus(::GetDlgItem(dlg.m_hWnd, IDC_BESIDE));
    CString str;
    grid.GetCellText(0, 0, str);
    EXPECT_EQ(std::string(str), "y");
}

}  // namespace
