// What a grid tells a screen reader, asked from another program.
#include "support/accessible_questions.h"
#include "support/grid_window.h"

namespace {

// Rows of six parts: the row, then its five cells.
constexpr long PartOf(int nRow, int nCol) {
    return nRow * 6 + nCol + 2;
}
std::string Of(const char* pszVerb, int nRow, int nCol, const std::string& strMore = "") {
    return pszVerb + (" " + std::to_string(PartOf(nRow, nCol))) + strMore;
}

class AccessibleGrid : public Accessible {
protected:
    AccessibleGrid() {
        w.grid.SetFocus();
        PumpPending();
        Watch(w.grid);
    }
    GridWindow<> w{3};
};

TEST_F(AccessibleGrid, SaysRowsAndCellsWithTheirHeadings) {
    Expect({{"say 0", "table [focused focusable]"},
            {"count", "18"},
            {"all 0 6",
             "1: row \"name\" description \"abc, def, one, btn\" []\n"
             "2: row header \"name\" [read only focusable selectable]\n"
             "3: cell \"name\" value \"abc\" [focusable selectable] action \"Edit\"\n"
             "4: cell \"name\" value \"def\" [focusable selectable] action \"Press\"\n"
             "5: cell \"name\" value \"one\" [collapsed focusable selectable has popup] action "
             "\"Open\"\n"
             "6: cell \"name\" value \"btn\" [read only focusable selectable] action \"Press\""},
            {"say 19", kInvalid}});
    w.grid.SetAccessibleHeadings("Key\tValue\tFile\t\tMore");
    w.grid.EnableCell(0, kEdit, FALSE);
    w.grid.SetCellReadOnly(0, kEditButton, TRUE);
    Expect({{"heard", "state 3, state 4"},
            {"all 0 4",
             "1: row \"name\" description \"Value: abc, File: def, one, More: btn\" []\n"
             "2: row header \"name\" [read only focusable selectable]\n"
             "3: cell \"name, Value\" value \"abc\" [unavailable read only focusable selectable]\n"
             "4: cell \"name, File\" value \"def\" [read only focusable selectable] action "
             "\"Press\""}});
}

TEST_F(AccessibleGrid, IsWalkedAndFoundByPoints) {
    const CRect rc = w.CellRect(1, kEdit);
    Expect(
        {{"go 0 7", "1"},
         {"go 0 8", "18"},
         {"go 7 7", "8"},
         {"go 7 2", "13"},
         {"go 7 5", "8"},
         {"go 13 2", "none"},
         {Of("go", 1, kEdit, " 3"), std::to_string(PartOf(1, kStatic))},
         {Of("go", 1, kButton, " 4"), "none"},
         {Of("go", 1, kStatic, " 3"), "none"},
         {Of("where", 1, kEdit), OnScreen(w.grid, rc.TopLeft()) + ' ' + std::to_string(rc.Width()) +
                                     ' ' + std::to_string(rc.Height())},
         {"hit " + OnScreen(w.grid, rc.CenterPoint()), std::to_string(PartOf(1, kEdit))},
         {"hit " + OnScreen(w.grid, CPoint(5, 190)), "0"}});
}

TEST_F(AccessibleGrid, TheCurrentCellIsSelectedAndHasTheFocus) {
    Ask("heard");
    Expect({{Of("select", 1, kStatic, " 3"), kDone},
            {"heard", "focus 8, selection 8"},
            {"focus", "8"},
            {"selection", "8"},
            {Of("select", 2, kEdit, " 2"), kDone},
            {"heard", "focus 15, selection 15"},
            {Of("select", 2, kEdit, " 1"), kDone},
            {"focus", "object"},
            {Of("select", 2, kEdit, " 8"), "0x00000001"},
            {"select 1 2", "0x00000001"}});
    EXPECT_NE(w.Edit(), nullptr) << "as an arrow key opens it";
    ASSERT_EQ(s_pReader->Watch(w.Edit()), kDone);
    const std::string strEdit = Ask("say 0");
    EXPECT_EQ(strEdit, "text \"name\" value \"abc\" [focused focusable]");
    Expect({{"set 0 typed", kDone}});
    EXPECT_EQ(w.Text(2, kEdit) + " " + w.Told(), "typed change change ");
}

TEST_F(AccessibleGrid, DoesAsAPressDoesAndTellsIt) {
    Ask("heard");
    Expect({{Of("do", 0, kButton), kDone},
            {Of("do", 0, kEditButton), kDone},
            {Of("do", 0, kStatic), kNoDeed},
            {"heard", "focus 6, selection 6, selection 4, focus 0"}});
    EXPECT_EQ(w.Told(), "0 change 0 ");
    Expect({{Of("do", 0, kList), kDone}, {"heard", "focus 5, selection 5, state 5"}});
    EXPECT_EQ(w.ListLine(), "one");
    w.grid.SendMessage(WM_KEYDOWN, VK_DOWN, 0);
    Expect({{Of("say", 0, kList),
             "cell \"name\" value \"two\" [selected focused expanded focusable selectable has "
             "popup] action \"Close\""},
            {Of("do", 0, kList), kDone},
            {"heard", "value 5, value 5, state 5"}});
    EXPECT_EQ(w.Text(0, kList) + " " + w.Told(), "two 1 ");
}

TEST_F(AccessibleGrid, TextsChangeAndAreToldOnce) {
    w.grid.EnableExpectedKeys();
    Ask("heard");
    w.grid.SetCellText(1, kEdit, "by code");
    w.grid.SetCellText(1, kEdit, "by code");
    Expect({{"heard", "value 9"},
            {Of("set", 1, kEdit, " by a reader"), kDone},
            {Of("set", 1, kList, " two"), kDone},
            {Of("set", 1, kList, " four"), kNoDeed},
            {Of("set", 1, kStatic, " x"), kNoDeed}});
    EXPECT_EQ(w.Text(1, kEdit) + ", " + w.Text(1, kList), "by a reader, two");
    EXPECT_EQ(w.Told(), "change change 1 ");
    Ask("heard");
    w.grid.UndoEdit();
    Expect({{"heard", "value 11"}});
    w.grid.UndoEdit();
    EXPECT_EQ(w.Text(1, kEdit) + ", " + w.Text(1, kList), "by code, one");
    w.grid.SetCellText(1, kStatic, "new");
    const std::string strHeard = Ask("heard");
    EXPECT_NE(strHeard.find("value 9"), std::string::npos) << strHeard;
    EXPECT_NE(strHeard.find("name 8"), std::string::npos) << strHeard;
    w.grid.SetReadOnly(TRUE);
    Expect({{Of("set", 1, kEdit, " no"), kNoDeed}});
}

TEST_F(AccessibleGrid, CostsTheSameWithManyRows) {
    w.grid.SetRedraw(FALSE);
    for (int i = 3; i < 100'000; ++i) {
        w.grid.AddRow("name\tabc", 0);
    }
    w.grid.SetRedraw(TRUE);
    PumpPending();
    Expect({{"heard", "reorder 0"},
            {"count", "600000"},
            {"all 599996 1",
             "599997: cell \"name\" value \"abc\" [invisible offscreen focusable selectable] "
             "action \"Edit\""},
            {Of("go", 50'000, kEdit, " 2"), std::to_string(PartOf(50'001, kEdit))},
            {Of("do", 99'999, kButton), kDone},
            {"selection", "600000"}});
}

// A parent that takes the grid away in what a deed tells it.
TEST_F(Accessible, AGridMayGoInADeed) {
    for (const bool bDelete : {false, true}) {
        for (const char* pszDeed : {"do 6", "set 5 two", "set 3 x"}) {
            GridWindow<> w(2);
            w.parent.m_answer = [&](UINT) {
                if (!w.bDeleted) {
                    bDelete ? w.DeleteGrid() : void(w.grid.DestroyWindow());
                }
            };
            Watch(w.grid);
            Expect({{pszDeed, kDone}, {"say 0", kGone}, {"count", kGone}, {"do 3", kGone}});
        }
    }
}

TEST(AccessibleGridMonkey, AnswersAnythingAtAnyTime) {
    static CStringArray s_choices;
    s_choices.Add("one");
    const auto make = [](QVGridCtrl& grid, CWnd& parent) {
        for (const GridColType nType :
             {gctStatic, gctEdit, gctEditButton, gctDropList, gctButton}) {
            grid.SetColListData(grid.AddColumn(nType, 40), &s_choices);
        }
        grid.AddRow("a\tb", 0);
        grid.AddRow("a\tb\tc\tone", 0);
        grid.Create(kGridId, CRect(0, 0, 300, 200), &parent);
    };
    PlayAccessible<QVGridCtrl>(make, [](QVGridCtrl& grid, int n) {
        n % 3 != 0   ? void(grid.AddRow("d\te\tf\tone", 0))
        : n % 5 != 0 ? grid.SetCellText(n % 4, n % 5, "g")
                     : grid.DeleteAllRows();
    });
}

}  // namespace
