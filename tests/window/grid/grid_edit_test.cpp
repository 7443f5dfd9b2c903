#include "support/grid_window.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "window/grid/grid_test_ids.h"

#include <gtest/gtest.h>

namespace {

class GridEdit : public testing::Test {
protected:
    GridEdit() : grid(w.grid) {
        BringToFront(w.parent.m_hWnd);
        w.other.SetFocus();
        PumpPending();
    }
    bool Click(int nRow, int nCol) { return ClickAt(grid.m_hWnd, w.At(nRow, nCol)); }
    void Scroll(UINT nCode) { grid.SendMessage(WM_VSCROLL, nCode); }

    GridWindow<> w{20};
    OpenGrid& grid;
};

// --- When text is saved

struct SaveCase {
    const char* pszName;
    std::function<void(GridWindow<>&)> end;
    const char* pszEdit;    // the cell's text afterwards; "def" before
    const char* pszList;    // "one" before
    bool bStaysUp = false;  // of the edit
};

std::ostream& operator<<(std::ostream& stream, const SaveCase& c) {
    return stream << c.pszName;
}

void FocusOtherWindow(GridWindow<>&) {
    RecordingParent away(CSize(50, 50));
    EXPECT_TRUE(BringToFront(away.m_hWnd));
    away.SetFocus();
    PumpPending();
}

void ClickReadOnlyCell(GridWindow<>& w) {
    w.grid.SetCellReadOnly(0, kEdit, TRUE);
    ClickAt(w.grid.m_hWnd, w.At(0, kEdit));
    EXPECT_EQ(w.Current(), "0,1");
    EXPECT_EQ(w.Edit(), nullptr);
}

const SaveCase kSaveCases[] = {
    {"OtherControl", [](auto& w) { w.other.SetFocus(); }, "new", "two"},
    {"OtherWindow", FocusOtherWindow, "new", "two"},
    {"Key", [](auto&) { TypeKey(VK_DOWN), TypeKey(VK_LEFT), TypeKey(VK_LEFT); }, "new", "three"},
    {"Click", [](auto& w) { ClickAt(w.grid.m_hWnd, w.At(0, kEdit)); }, "new", "two"},
    {"ClickStatic", [](auto& w) { ClickAt(w.grid.m_hWnd, w.At(0, kStatic)); }, "new", "two"},
    {"ClickReadOnly", ClickReadOnlyCell, "new", "two"},
    {"GotoCell", [](auto& w) { w.grid.GotoCell(1, kEditButton, TRUE); }, "new", "two"},
    {"Scroll", [](auto& w) { w.grid.SendMessage(WM_VSCROLL, SB_LINEDOWN); }, "new", "two"},
    {"Button", [](auto& w) { ClickAt(w.grid.m_hWnd, w.ButtonRect(0, kEditButton).CenterPoint()); },
     "new", nullptr},
    {"Escape", [](auto&) { TypeKey(VK_ESCAPE); }, "new", "one", true},
    {"Disabled", [](auto& w) { w.grid.EnableCell(0, w.grid.CurrentColumn(), FALSE); }, "def",
     "one"},
    {"ReadOnly", [](auto& w) { w.grid.SetCellReadOnly(0, w.grid.CurrentColumn(), TRUE); }, "def",
     "one"},
};

class GridSaves : public GridEdit, public testing::WithParamInterface<SaveCase> {};

TEST_P(GridSaves, TypedText) {
    Click(0, kEditButton);
    ASSERT_NE(w.Edit(), nullptr);
    TypeText("new");
    ASSERT_EQ(w.Text(0, kEditButton), "new");
    GetParam().end(w);
    EXPECT_EQ(w.Text(0, kEditButton), GetParam().pszEdit);
    const bool bStillThere = grid.m_bEditing && w.Current() == "0,2";
    EXPECT_EQ(bStillThere, GetParam().bStaysUp);
    if (GetParam().bStaysUp) {
        EXPECT_EQ(::GetFocus(), w.Edit());
        grid.EnableCell(0, kEditButton, FALSE);
        EXPECT_EQ(w.Text(0, kEditButton), "def") << "it was live and not saved";
    }
}

TEST_P(GridSaves, ChosenLine) {
    if (GetParam().pszList == nullptr) {
        return;
    }
    const std::string strAfter = GetParam().pszList;
    Click(0, kList);
    TypeKey(VK_DOWN);
    ASSERT_EQ(w.ListLine(), "two");
    ASSERT_EQ(w.Text(0, kList), "one");
    w.Told();
    std::string strWhenTold;
    w.parent.m_answer = [&](UINT nCode) {
        if (nCode == kListChanged) {
            strWhenTold = w.Text(0, kList);
        }
    };
    GetParam().end(w);
    EXPECT_EQ(w.List(), nullptr);
    EXPECT_EQ(w.Text(0, kList), strAfter);
    EXPECT_EQ(w.parent.CountCommands(kListChanged), strAfter != "one");
    EXPECT_EQ(strWhenTold, strAfter != "one" ? strAfter : "");
}

INSTANTIATE_TEST_SUITE_P(Ends, GridSaves, testing::ValuesIn(kSaveCases),
                         [](const auto& test) { return std::string(test.param.pszName); });

// --- The edit

TEST_F(GridEdit, ClickOpensWithAllSelectedAndSavesTheCellLeft) {
    Click(0, kEdit);
    EXPECT_EQ(w.Selected(), "0-3");
    TypeText("typed");
    EXPECT_EQ(w.Text(0, kEdit), "typed") << "the application sees it at once";
    Click(1, kEdit);
    EXPECT_EQ(w.Text(0, kEdit), "typed");
    EXPECT_EQ(w.Selected(), "0-3");
    EXPECT_EQ(::GetFocus(), w.Edit());
    CRect rcEdit;
    ::GetWindowRect(w.Edit(), &rcEdit);
    grid.ScreenToClient(&rcEdit);
    const CRect rc = w.CellRect(1, kEdit);
    EXPECT_EQ(rcEdit, CRect(rc.left + 2, rc.top + 1, rc.right - 3, rc.bottom - 2));
    Click(1, kEditButton);
    ::GetWindowRect(w.Edit(), &rcEdit);
    EXPECT_EQ(rcEdit.Width(), w.CellRect(1, kEditButton).Width() - 5 - grid.m_nCellHeight);
    Click(1, kEditButton);
    EXPECT_EQ(::GetFocus(), w.Edit()) << "a second click stays in it";
}

TEST_F(GridEdit, ArrowsLeaveTheCellAtTheEndsOfTheTextOnly) {
    Click(0, kEdit);
    TypeKey(VK_LEFT);
    EXPECT_EQ(w.Current(), "0,1") << "selected text keeps the key";
    TypeKey(VK_HOME);
    TypeKey(VK_RIGHT);
    EXPECT_EQ(w.Current() + " " + w.Selected(), "0,1 1-1");
    TypeKey(VK_LEFT);
    EXPECT_EQ(w.Current() + " " + w.Selected(), "0,1 0-0");
    TypeKey(VK_END);
    TypeKey(VK_RIGHT);
    EXPECT_EQ(w.Current() + " " + w.Selected(), "0,2 0-3") << "the next cell opens";
    TypeKey(VK_HOME);
    TypeKey(VK_LEFT);
    EXPECT_EQ(w.Current(), "0,1");
    TypeKey(VK_DOWN);
    EXPECT_EQ(w.Current() + " " + w.Selected(), "1,1 0-3");
    TypeKey(VK_UP);
    TypeKey(VK_HOME);
    TypeKey(VK_LEFT);
    EXPECT_EQ(w.Current(), "0,0");
    EXPECT_EQ(w.Edit(), nullptr);
    EXPECT_EQ(CWnd::GetFocus(), &grid);
}

TEST_F(GridEdit, TellsEachChangeUnderItsOwnIdAndNothingWhenSaved) {
    Click(0, kEdit);
    w.Told();
    TypeText("xy");
    EXPECT_EQ(w.Told(), "change change ");
    w.other.SetFocus();
    EXPECT_EQ(w.Text(0, kEdit), "xy");
    EXPECT_EQ(w.Told(), "");
    grid.SetFocus();
    EXPECT_NE(w.Edit(), nullptr) << "coming to the grid opens the editor";
    EXPECT_EQ(w.Selected(), "0-2");
    grid.SetCellText(0, kEdit, "set");
    EXPECT_EQ(w.Text(0, kEdit) + " " + w.Selected(), "set 3-3");
}

TEST_F(GridEdit, AnEditorIsPlacedBeforeTheFirstPaintToo) {
    grid.SendMessage(WM_SETREDRAW, TRUE);
    grid.GotoCell(2, kEdit, TRUE);
    CRect rcEdit;
    ::GetWindowRect(w.Edit(), &rcEdit);
    grid.ScreenToClient(&rcEdit);
    grid.UpdateWindow();
    EXPECT_EQ(rcEdit.top, w.CellRect(2, kEdit).top + 1);
    EXPECT_EQ(rcEdit.Height(), grid.m_nCellHeight - 3);
}

TEST_F(GridEdit, DeletedRowsTakeWhatWasTypedWithThem) {
    Click(0, kEdit);
    TypeText("lost");
    grid.DeleteAllRows();
    EXPECT_EQ(w.Current(), "-1,-1");
    TypeText("more");
    TypeKey(VK_DOWN);
    grid.AddRow("a\tb\tc\ttwo", 0);
    w.other.SetFocus();
    EXPECT_EQ(w.Edit(), nullptr);
    EXPECT_EQ(w.Text(0, kStatic) + w.Text(0, kEdit) + w.Text(0, kEditButton), "abc");
    Click(0, kList);
    TypeKey(VK_UP);
    grid.DeleteAllRows();
    grid.AddRow("a\tb\tc\ttwo", 0);
    w.Told();
    w.other.SetFocus();
    EXPECT_EQ(w.List(), nullptr);
    EXPECT_EQ(w.Text(0, kList) + w.Told(), "two");
}

TEST_F(GridEdit, AWindowThatGoesLeavesWhatWasTypedInTheStore) {
    Click(0, kEdit);
    TypeText("new");
    grid.DestroyWindow();
    EXPECT_EQ(w.Text(0, kEdit), "new");
    w.parent.DestroyWindow();
    EXPECT_EQ(w.Text(0, kEdit), "new");
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

TEST_F(GridEdit, ADropListOpensByAClickAnywhereInTheCell) {
    Click(0, kList);
    ASSERT_NE(w.List(), nullptr);
    EXPECT_EQ(w.ListLine(), "one");
    EXPECT_EQ(CWnd::GetFocus(), &grid) << "the list never takes the focus";
    CRect rcList;
    ::GetWindowRect(w.List(), &rcList);
    grid.ScreenToClient(&rcList);
    const CRect rc = w.CellRect(0, kList);
    const auto nLine = static_cast<int>(::SendMessage(w.List(), LB_GETITEMHEIGHT, 0, 0));
    EXPECT_EQ(rcList, CRect(rc.left, rc.bottom - 1, rc.right - 1, rc.bottom + 1 + 3 * nLine));
    Click(0, kList);
    EXPECT_EQ(w.List(), nullptr);
    EXPECT_EQ(w.Told(), "") << "the line that the cell shows already";
    ClickAt(grid.m_hWnd, w.ButtonRect(0, kList).CenterPoint());
    EXPECT_NE(w.List(), nullptr);
    EXPECT_FALSE(grid.m_bBtnDown);
    ClickAt(grid.m_hWnd, w.LineAt(2));
    EXPECT_EQ(w.List(), nullptr);
    EXPECT_EQ(w.Text(0, kList) + " " + w.Told(), "three 1 ");
    Click(0, kList);
    MoveTo(grid.m_hWnd, w.LineAt(0));
    EXPECT_EQ(w.ListLine(), "one") << "the pointer is followed";
    MoveTo(grid.m_hWnd, w.At(0, kStatic));
    EXPECT_EQ(w.ListLine(), "-");
    Click(0, kStatic);
    EXPECT_EQ(w.Text(0, kList) + w.Told(), "three");
}

TEST_F(GridEdit, KeysInAList) {
    grid.GotoCell(0, kList, FALSE);
    grid.SetFocus();
    EXPECT_EQ(w.List(), nullptr);
    TypeKey(VK_DOWN, false, false, true);
    ASSERT_NE(w.List(), nullptr);
    std::string strLines;
    for (const WORD vk : {VK_UP, VK_DOWN, VK_DOWN, VK_DOWN, VK_UP}) {
        TypeKey(vk);
        strLines += w.ListLine() + " ";
    }
    EXPECT_EQ(strLines, "one two three three two ") << "the ends hold";
    EXPECT_EQ(w.Current(), "0,3");
    TypeKey(VK_DOWN, false, false, true);
    EXPECT_EQ(w.List(), nullptr);
    EXPECT_EQ(w.Text(0, kList) + " " + w.Told(), "two 1 ");
    grid.SetCellText(0, kList, "none of them");
    TypeKey(VK_DOWN, false, false, true);
    EXPECT_EQ(w.ListLine(), "-");
    TypeKey(VK_UP);
    EXPECT_EQ(w.ListLine(), "one");
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(w.List(), nullptr);
    TypeKey(VK_DOWN);
    EXPECT_EQ(w.Current() + w.Told(), "1,3");
    EXPECT_EQ(w.List(), nullptr) << "moving there does not open it";
    grid.EnableCell(1, kList, FALSE);
    TypeKey(VK_DOWN, false, false, true);
    EXPECT_EQ(w.List(), nullptr);
}

TEST_F(GridEdit, AColumnWithoutChoicesAsksTheParent) {
    grid.SetColListData(kList, nullptr);
    Click(0, kList);
    EXPECT_EQ(w.Told(), "0 ");
    EXPECT_EQ(w.List(), nullptr);
    CStringArray answer;
    answer.Add("z");
    answer.Add("a");
    w.parent.m_answer = [&](UINT nCode) {
        if (nCode == kButtonOrList) {
            grid.PopupList(answer);
        }
    };
    for (const bool bKey : {false, true}) {
        grid.SetCellText(0, kList, "z");
        MoveTo(grid.m_hWnd, w.At(0, kStatic));  // a list under the pointer would follow it
        bKey ? TypeKey(VK_DOWN, false, false, true) : Click(0, kList);
        ASSERT_NE(w.List(), nullptr);
        EXPECT_EQ(w.Told() + w.ListLine(), "0 z");
        ClickAt(grid.m_hWnd, w.LineAt(1));
        EXPECT_EQ(w.Text(0, kList) + " " + w.Told(), "a 1 ");
    }
    // An answer to "changed" is closed with the list that it stands in for.
    w.parent.m_answer = [&](UINT) { grid.PopupList(answer); };
    Click(0, kList);
    ClickAt(grid.m_hWnd, w.LineAt(0));
    EXPECT_EQ(w.List(), nullptr);
    EXPECT_FALSE(grid.m_bEditing);
}

// --- The button

TEST_F(GridEdit, AButtonIsToldAtReleaseOverIt) {
    const auto isDown = [&] { return (grid.RowAt(0).dwState & GRS_BUTTONDOWN) != 0; };
    const CPoint pt = w.ButtonRect(0, kButton).CenterPoint();
    PressAt(grid.m_hWnd, pt);
    EXPECT_EQ(w.Current(), "0,4");
    EXPECT_TRUE(isDown());
    EXPECT_EQ(CWnd::GetCapture(), &grid);
    MoveTo(grid.m_hWnd, w.At(3, kStatic));
    EXPECT_FALSE(isDown());
    MoveTo(grid.m_hWnd, pt);
    EXPECT_TRUE(isDown());
    MoveTo(grid.m_hWnd, w.At(3, kStatic));
    ReleaseAt(grid.m_hWnd, w.At(3, kStatic));
    EXPECT_EQ(w.Told(), "") << "dragged off";
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    PressAt(grid.m_hWnd, pt + CSize(6, 0));  // no double click
    EXPECT_EQ(w.Told(), "");
    ReleaseAt(grid.m_hWnd, pt);
    EXPECT_EQ(w.Told(), "0 ");
    EXPECT_FALSE(isDown());
    EXPECT_EQ(w.Edit(), nullptr);
    PressAt(grid.m_hWnd, pt - CSize(6, 0));
    grid.SendMessage(WM_CANCELMODE);
    EXPECT_FALSE(isDown() || grid.m_bBtnDown);
    ReleaseAt(grid.m_hWnd, pt);
    EXPECT_EQ(w.Told(), "");
}

TEST_F(GridEdit, AnEditIsSavedBeforeItsButtonIsTold) {
    Click(0, kEditButton);
    TypeText("new");
    w.Told();
    std::string strSeen;
    w.parent.m_answer = [&](UINT) { strSeen = w.Text(0, kEditButton) + (w.Edit() ? " up" : ""); };
    const CPoint pt = w.ButtonRect(0, kEditButton).CenterPoint();
    PressAt(grid.m_hWnd, pt);
    EXPECT_NE(w.Edit(), nullptr);
    ReleaseAt(grid.m_hWnd, pt);
    EXPECT_EQ(w.Told(), "0 ");
    EXPECT_EQ(strSeen, "new");
}

// --- What may not be edited

TEST_F(GridEdit, AReadOnlyGridOpensNothingButByTheFocus) {
    grid.SetReadOnly(TRUE);
    for (const int nCol : {kEdit, kEditButton, kList, kButton}) {
        ClickAt(grid.m_hWnd, w.ButtonRect(0, nCol).CenterPoint());
        EXPECT_EQ(grid.CurrentColumn(), nCol);
        EXPECT_FALSE(grid.m_bEditing || grid.m_bBtnDown);
    }
    TypeKey(VK_LEFT);
    TypeKey(VK_DOWN, false, false, true);
    EXPECT_EQ(w.Current() + w.Told(), "0,3");
    EXPECT_FALSE(grid.m_bEditing);
    TypeKey(VK_LEFT);
    EXPECT_EQ(w.Edit(), nullptr);
    w.other.SetFocus();
    grid.SetFocus();
    EXPECT_NE(w.Edit(), nullptr);
}

TEST_F(GridEdit, DisabledAndReadOnlyCellsBecomeCurrentAndOpenNothing) {
    grid.EnableCell(1, kEdit, FALSE);
    grid.EnableCell(1, kList, FALSE);
    grid.EnableCell(1, kButton, FALSE);
    grid.SetCellReadOnly(2, kEdit, TRUE);
    for (const int nCol : {kEdit, kList, kButton}) {
        ClickAt(grid.m_hWnd, w.ButtonRect(1, nCol).CenterPoint());
        EXPECT_EQ(grid.CurrentColumn(), nCol);
        EXPECT_FALSE(grid.m_bEditing);
    }
    EXPECT_EQ(w.Told(), "");
    Click(2, kEdit);
    EXPECT_EQ(w.Current(), "2,1");
    EXPECT_EQ(w.Edit(), nullptr);
    TypeKey(VK_UP);
    EXPECT_EQ(w.Current(), "1,1");
    EXPECT_EQ(w.Edit(), nullptr);
    w.other.SetFocus();
    grid.SetFocus();
    EXPECT_NE(w.Edit(), nullptr) << "the focus asks no more than the column and read-only";
    TypeKey(VK_DOWN);
    w.other.SetFocus();
    grid.SetFocus();
    EXPECT_EQ(w.Edit(), nullptr);
}

// --- Keys of the grid

TEST_F(GridEdit, AnyKeyStartsAtTheTopRow) {
    Scroll(SB_LINEDOWN);
    Scroll(SB_LINEDOWN);
    grid.SetFocus();
    TypeKey('X');
    EXPECT_EQ(w.Current(), "2,0");
}

TEST_F(GridEdit, KeysWalkThroughTheRows) {
    grid.SetWindowPos(nullptr, 0, 0, 420, 4 * grid.m_nCellHeight, SWP_NOMOVE | SWP_NOZORDER);
    grid.DeleteAllRows();
    for (int i = 0; i < 10; ++i) {
        grid.AddRow("x", 0);
    }
    grid.GotoCell(2, kStatic, FALSE);
    grid.SetFocus();
    const auto after = [&](WORD vk) {
        TypeKey(vk);
        return w.Current() + " top " + std::to_string(grid.m_nTopRow);
    };
    EXPECT_EQ(after(VK_NEXT), "5,0 top 2") << "a page of four but one";
    EXPECT_EQ(after(VK_PRIOR), "5,0 top 2");
    EXPECT_EQ(after(VK_LEFT), "5,0 top 2");
    EXPECT_EQ(after(VK_END), "9,0 top 6");
    EXPECT_EQ(after(VK_NEXT), "9,0 top 6");
    EXPECT_EQ(after(VK_DOWN), "9,0 top 6");
    EXPECT_EQ(after(VK_HOME), "0,0 top 0");
    EXPECT_EQ(after(VK_UP), "0,0 top 0");
    EXPECT_EQ(grid.SendMessage(WM_GETDLGCODE), DLGC_WANTALLKEYS);
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
