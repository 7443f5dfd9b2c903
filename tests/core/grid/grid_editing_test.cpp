#include "grid/core/grid_editing.h"

#include "base/platform_names.h"
#include "support/fake_grid.h"

#include <gtest/gtest.h>

namespace qv {

namespace {

enum Column { kStatic, kEdit, kEditButton, kList, kButton };
using Focus = FakeGrid::Focus;

// Five columns, one of each kind, and twenty rows, five of which show.
class GridEdits : public testing::Test {
protected:
    GridEdits() {
        constexpr int kWidths[] = {60, 80, 90, 80, 50};
        constexpr GridColType kTypes[] = {gctStatic, gctEdit, gctEditButton, gctDropList,
                                          gctButton};
        for (const int nCol : {kStatic, kEdit, kEditButton, kList, kButton}) {
            model.AddColumn(kTypes[nCol], kWidths[nCol]);
        }
        model.Column(kList)->pListData = &choices;
        AddRows(20);
    }
    void AddRows(int nRows) {
        for (int i = 0; i < nRows; ++i) {
            model.AddRow("name\tabc\tdef\tone\tbtn", 0);
        }
    }
    Rect CellRect(int nRow, int nCol) {
        Rect rc;
        g.Layout().CellRect(nRow, nCol, rc);
        return rc;
    }
    // Left in the cell, where no button is; and in its button.
    Point At(int nRow, int nCol) {
        const Rect rc = CellRect(nRow, nCol);
        return {rc.left + 5, rc.top + 5};
    }
    Point ButtonAt(int nRow, int nCol) { return {CellRect(nRow, nCol).right - 5, At(nRow, 0).y}; }
    void Click(Point pt) {
        editing.Press(pt);
        editing.Release(pt);
    }
    void Click(int nRow, int nCol) { Click(At(nRow, nCol)); }
    void Disable(int nRow, int nCol, unsigned dwStyle = GCS_DISABLED) {
        model.ModifyStyle(nRow, nCol, dwStyle, 0);
        editing.DropEditors({nRow, nCol});
    }
    // As somebody would say it who looks at the grid: "0,1 edit abc".
    std::string State() const {
        return std::to_string(g.state.m_nCurRow) + "," + std::to_string(g.state.m_nCurCol) +
               (g.edit.bUp ? " edit " + g.edit.strText : "") +
               (!g.list.bUp          ? ""
                : g.list.nLine == -1 ? " list -"
                                     : " list " + g.list.LineText(g.list.nLine));
    }
    std::string Stored(int nRow, int nCol) const { return model.Text(nRow, nCol); }
    bool IsDown() const { return (model.RowAt(0).dwState & GRS_BUTTONDOWN) != 0; }

    CStringArray choices{"one", "two", "three"};
    FakeGrid g;
    GridModel& model = g.model;
    GridEditing& editing = g.editing;
};

// --- When what was typed or chosen is kept

TEST_F(GridEdits, WhatIsTypedOrChosenIsKeptOrDroppedAsTheEditorIsLeft) {
    const auto col = [&] { return g.state.m_nCurCol; };
    struct Ending {
        const char* pszName;
        std::function<void()> end;
        const char* pszTyped;   // the cell's text afterwards; "def" before
        const char* pszChosen;  // "one" before
    };
    const Ending kEndings[] = {
        {"focus", [&] { g.MoveFocus(Focus::Elsewhere); }, "new", "two"},
        {"key", [&] { editing.Key(VK_LEFT); }, "new", "two"},
        {"goto",
         [&] {
             editing.GotoCell({1, kStatic}, true);
         },
         "new", "two"},
        {"click", [&] { Click(1, kEdit); }, "new", "two"},
        {"static", [&] { Click(0, kStatic); }, "new", "two"},
        {"bar", [&] { g.ScrollByUser(1); }, "new", "two"},
        {"closed", [&] { g.CloseWindow(); }, "new", "one"},
        {"Escape", [&] { editing.Key(VK_ESCAPE); }, "def", "one"},
        {"disabled", [&] { Disable(0, col()); }, "def", "one"},
        {"read-only", [&] { Disable(0, col(), GCS_READONLY); }, "def", "one"},
        {"rows deleted",
         [&] {
             editing.DeleteRows();
             AddRows(20);
             g.MoveFocus(Focus::Elsewhere);
         },
         "def", "one"},
    };
    for (const auto& [pszName, end, pszTyped, pszChosen] : kEndings) {
        SCOPED_TRACE(pszName);
        for (const int nCol : {kEditButton, kList}) {
            model.DeleteAllRows();
            AddRows(20);
            g.state = {};
            g.bWindow = true;
            g.nTopRow = 0;
            Click(0, nCol);
            nCol == kList ? editing.Key(VK_DOWN) : g.Type("new");
            ASSERT_EQ(State(), nCol == kList ? "0,3 list two" : "0,2 edit new");
            g.Told();
            end();
            const std::string strKept = nCol == kList ? pszChosen : pszTyped;
            EXPECT_EQ(Stored(0, nCol), strKept);
            EXPECT_EQ(g.Told().find("1 ") == 0, nCol == kList && strKept == "two");
            EXPECT_FALSE(g.list.bUp);
            EXPECT_TRUE(editing.CheckInvariants());
            g.MoveFocus(Focus::Elsewhere);
        }
    }
}

// --- The edit

TEST_F(GridEdits, AnEditOpensInItsCellWithAllSelectedAndTheFocus) {
    Click(0, kEdit);
    EXPECT_EQ(State(), "0,1 edit abc");
    EXPECT_EQ(g.edit.strSelected, "all");
    EXPECT_EQ(g.focus, Focus::Edit);
    EXPECT_EQ(g.edit.rc, (Rect{62, 1, 137, 18}));
    Click(1, kEditButton);
    EXPECT_EQ(g.edit.rc, (Rect{142, 21, 207, 38})) << "beside the button";
    g.Type("more");
    Click(1, kEditButton);
    EXPECT_EQ(State(), "1,2 edit more") << "a second click stays in it";
    g.ScrollTo(10);
    EXPECT_EQ(g.edit.rc.top, 21 - 10 * FakeGrid::kHeight) << "it follows its cell";
    EXPECT_EQ(State(), "1,2 edit more");
}

TEST_F(GridEdits, ATextSetFromCodeIsTheOneThatIsTyped) {
    Click(0, kEdit);
    EXPECT_TRUE(editing.IsTyping({0, kEdit}));
    EXPECT_FALSE(editing.IsTyping({0, kEditButton}));
    g.Told();
    editing.SetText({0, kEdit}, "set");
    EXPECT_EQ(State() + " " + g.edit.strSelected + " " + g.Told(), "0,1 edit set end change ");
    editing.SetText({1, kEdit}, "other");
    editing.SetText({99, kEdit}, "nowhere");
    EXPECT_EQ(State() + g.Told(), "0,1 edit set");
    EXPECT_EQ(Stored(1, kEdit), "other");
}

// --- The list

TEST_F(GridEdits, AClickOpensAListAndAnotherClosesIt) {
    Click(0, kList);
    EXPECT_EQ(State(), "0,3 list one");
    EXPECT_EQ(g.focus, Focus::Grid) << "the list never has it";
    EXPECT_EQ(g.list.rc, CellRect(0, kList));
    Click(ButtonAt(0, kList));
    EXPECT_EQ(State() + g.Told(), "0,3") << "the line that the cell shows already";
    EXPECT_FALSE(g.state.m_bBtnDown);
    Click(0, kList);
    g.list.nLine = 2;
    std::string strWhenTold;
    g.onTold = [&](unsigned) { strWhenTold = Stored(0, kList); };
    editing.SaveList();
    EXPECT_EQ(State() + " " + g.Told() + strWhenTold, "0,3 1 three") << "changed, then told";
    Click(0, kList);
    g.list.nLine = -1;
    editing.SaveList();
    EXPECT_EQ(Stored(0, kList) + g.Told(), "three");
}

TEST_F(GridEdits, KeysChooseInAnOpenListAndLeadPastAClosedOne) {
    editing.GotoCell({0, kList}, false);
    g.MoveFocus(Focus::Grid);
    EXPECT_EQ(State(), "0,3");
    EXPECT_TRUE(editing.SystemKey(VK_DOWN));
    std::string strLines;
    for (const unsigned nKey : {VK_UP, VK_DOWN, VK_DOWN, VK_DOWN, VK_UP}) {
        editing.Key(nKey);
        strLines += State().substr(9) + " ";
    }
    EXPECT_EQ(strLines, "one two three three two ");
    EXPECT_TRUE(editing.SystemKey(VK_DOWN));
    EXPECT_EQ(State() + Stored(0, kList) + " " + g.Told(), "0,3two 1 ");
    editing.SetText({0, kList}, "none of them");
    editing.SystemKey(VK_DOWN);
    EXPECT_EQ(State(), "0,3 list -");
    editing.Key(VK_UP);
    EXPECT_EQ(State(), "0,3 list one");
    editing.Key(VK_ESCAPE);
    editing.Key(VK_DOWN);
    EXPECT_EQ(State() + g.Told(), "1,3") << "moving there does not open it";
    EXPECT_FALSE(editing.SystemKey(VK_UP));
    EXPECT_EQ(g.nDefaults, 0);
    editing.Key('X');
    EXPECT_EQ(g.nDefaults, 1);
}

TEST_F(GridEdits, AColumnWithoutChoicesAsksTheParent) {
    model.Column(kList)->pListData = nullptr;
    Click(0, kList);
    EXPECT_EQ(State() + " " + g.Told(), "0,3 0 ");
    CStringArray answer{"z", "one"};
    g.onTold = [&](unsigned nCode) {
        if (nCode == FakeGrid::kButtonOrList) {
            editing.PopupList(answer);
        }
    };
    Click(0, kList);
    EXPECT_EQ(State() + " " + g.Told(), "0,3 list one 0 ");
    // An answer to "changed" is closed with the list that it stands in for.
    g.onTold = [&](unsigned) { editing.PopupList(answer); };
    g.list.nLine = 0;
    editing.SaveList();
    EXPECT_EQ(State() + " " + Stored(0, kList), "0,3 z");
}

TEST_F(GridEdits, AListFollowsItsCellAndIsKeptWhereThatIsOutOfView) {
    Click(3, kList);
    editing.Key(VK_DOWN);
    g.ScrollTo(2);
    EXPECT_EQ(g.list.rc, CellRect(3, kList));
    EXPECT_EQ(State(), "3,3 list two");
    g.ScrollTo(4);
    EXPECT_EQ(State() + " " + Stored(3, kList) + " " + g.Told(), "3,3 two 1 ");
    Click(8, kList);
    g.ScrollTo(3);
    EXPECT_TRUE(g.list.bUp) << "a part of a row shows as well";
    g.ScrollTo(2);
    EXPECT_FALSE(g.list.bUp);
}

TEST_F(GridEdits, AnEditIsKeptWhereItsColumnHasBecomeAListMeanwhile) {
    Click(0, kEdit);
    g.Type("new");
    model.Column(kEdit)->nType = gctDropList;
    model.Column(kEdit)->pListData = &choices;
    Click(0, kEdit);
    EXPECT_EQ(State() + " " + Stored(0, kEdit), "0,1 new");
    EXPECT_EQ(g.focus, Focus::Grid);
}

// --- The button

TEST_F(GridEdits, AButtonIsToldAtReleaseOverIt) {
    const Point pt = ButtonAt(0, kButton);
    editing.Press(pt);
    EXPECT_TRUE(IsDown() && g.bMouse);
    editing.Drag(At(3, kStatic));
    EXPECT_FALSE(IsDown());
    editing.Drag(pt);
    EXPECT_TRUE(IsDown());
    editing.Release(At(3, kStatic));
    EXPECT_EQ(State() + g.Told(), "0,4") << "dragged off";
    EXPECT_FALSE(IsDown() || g.bMouse);
    Click(pt);
    EXPECT_EQ(State() + " " + g.Told(), "0,4 0 ");
    editing.Press(pt);
    editing.CancelMode();
    editing.Release(pt);
    EXPECT_EQ(g.Told(), "");
    EXPECT_FALSE(IsDown() || g.bMouse);
    editing.PopupList(choices);
    editing.Press(pt);
    editing.HideList();
    editing.Release(pt);
    EXPECT_EQ(g.Told(), "") << "a list that goes takes the press with it";
}

TEST_F(GridEdits, AnEditIsKeptBeforeItsButtonIsTold) {
    Click(0, kEditButton);
    g.Type("new");
    g.Told();
    std::string strSeen;
    g.onTold = [&](unsigned) { strSeen = State() + " " + Stored(0, kEditButton); };
    Click(ButtonAt(0, kEditButton));
    EXPECT_EQ(g.Told() + strSeen, "0 0,2 new");
}

// --- What may not be edited

TEST_F(GridEdits, AReadOnlyGridAndADisabledCellOpenNothingButByTheFocus) {
    for (const bool bGrid : {true, false}) {
        g.state.m_bReadOnly = bGrid;
        for (const int nCol : {kEdit, kEditButton, kList, kButton}) {
            if (!bGrid) {
                Disable(0, nCol);
            }
            Click(ButtonAt(0, nCol));
            editing.SystemKey(VK_DOWN);
            EXPECT_EQ(State() + g.Told(), "0," + std::to_string(nCol));
        }
        editing.Key(VK_HOME);
        Click(0, kList);
        editing.Key(VK_LEFT);
        EXPECT_EQ(State(), "0,2");
        g.MoveFocus(Focus::Elsewhere);
        g.MoveFocus(Focus::Grid);
        EXPECT_EQ(State() + g.Told(), "0,2 edit defchange ");
    }
}

TEST_F(GridEdits, AReadOnlyCellNeverOpensItsEditAndItsListWhereThatIsNotLocked) {
    Disable(0, kEdit, GCS_READONLY);
    Disable(0, kList, GCS_READONLY);
    Click(0, kEdit);
    g.MoveFocus(Focus::Elsewhere);
    g.MoveFocus(Focus::Grid);
    EXPECT_EQ(State(), "0,1");
    Click(0, kList);
    EXPECT_EQ(State(), "0,3 list one");
    editing.Key(VK_ESCAPE);
    editing.SetLockReadOnlyLists(true);
    Click(0, kList);
    EXPECT_FALSE(editing.SystemKey(VK_DOWN));
    model.Column(kList)->pListData = nullptr;
    Click(0, kList);
    EXPECT_EQ(State() + g.Told(), "0,3");
}

// --- Keys and the focus

TEST_F(GridEdits, KeysOpenTheEditsTheyLeadToAndScrollThere) {
    g.ScrollTo(2);
    editing.Key('X');
    EXPECT_EQ(State(), "2,0") << "any key starts at the top row";
    editing.Key(VK_RIGHT);
    EXPECT_EQ(State(), "2,1 edit abc");
    editing.Key(VK_END);
    EXPECT_EQ(State(), "19,1 edit abc");
    EXPECT_EQ(g.nTopRow, 15);
    Disable(19, kEditButton);
    editing.Key(VK_RIGHT);
    EXPECT_EQ(State(), "19,2");
    g.nDefaults = 0;
    editing.Key(VK_PRIOR);
    editing.Key(VK_END);
    EXPECT_EQ(g.nDefaults, 0) << "walking keys are the grid's own";
}

TEST_F(GridEdits, OnlyTheFocusThatOthersMoveOpensAnEdit) {
    editing.GotoCell({0, kEdit}, false);
    EXPECT_EQ(State(), "0,1");
    g.MoveFocus(Focus::Grid);
    EXPECT_EQ(State(), "0,1 edit abc");
    editing.HideEdit();
    EXPECT_EQ(State(), "0,1");
    EXPECT_EQ(g.focus, Focus::Grid);
    g.MoveFocus(Focus::Edit);
    EXPECT_EQ(State(), "0,1 edit abc") << "a dialog gives it back to a hidden window";
    editing.CancelMode();
    EXPECT_EQ(State(), "0,1 edit abc") << "an editor stays on the screen";
    EXPECT_FALSE(g.state.m_bEditing);
    g.bHiddenLosesFocus = true;
    editing.HideEdit();
    EXPECT_EQ(State(), "0,1");
    editing.ActivateCell({0, kEdit});
    editing.CancelMode();
    g.Told();
    g.CloseWindow();
    EXPECT_EQ(State() + g.Told(), "0,1") << "a window that goes opens nothing";
}

// --- Without a window, and without memory

TEST_F(GridEdits, AStoreWithoutAWindowHasACurrentCell) {
    g.bWindow = false;
    for (const GridCell cell : {GridCell{1, 0}, {2, kEdit}, {2, kList}}) {
        editing.GotoCell(cell, true);
        editing.PopupList(choices);
        EXPECT_TRUE(editing.IsCurrent(cell));
        EXPECT_TRUE(editing.CheckInvariants());
    }
    EXPECT_EQ(State(), "2,3");
}

TEST_F(GridEdits, WithoutMemoryAnEditorStaysClosedAndWhatIsTypedInItsEdit) {
    g.bNoMemory = true;
    Click(0, kEdit);
    EXPECT_EQ(State(), "0,1");
    Click(0, kList);
    EXPECT_EQ(State(), "0,3");
    g.bNoMemory = false;
    Click(0, kEdit);
    g.Type("new");
    g.bNoMemory = true;
    for (const auto& leave : std::initializer_list<std::function<void()>>{
             [&] {
                 editing.GotoCell({1, kStatic}, false);
             },
             [&] { Click(1, kEditButton); }, [&] { editing.Key(VK_DOWN); },
             [&] { g.MoveFocus(Focus::Elsewhere); }}) {
        leave();
        EXPECT_EQ(State(), "0,1 edit new");
        EXPECT_TRUE(editing.CheckInvariants());
    }
    g.bNoMemory = false;
    Click(1, kList);
    EXPECT_EQ(State() + " " + Stored(0, kEdit), "1,3 list one new");
}

// --- Those who listen

TEST_F(GridEdits, ADeedIsWhatAPressDoes) {
    editing.Act({9, kButton});
    EXPECT_EQ(State() + " " + g.Told() + g.Heard(), "9,4 0 current 9,4 ");
    editing.Act({1, kEdit});
    EXPECT_EQ(State() + " " + g.Heard(), "1,1 edit abc current 1,1 ");
    g.Type("typed");
    g.Told();
    editing.Act({1, kEditButton});
    EXPECT_EQ(State() + " " + g.Told() + g.Heard(), "1,2 change 0 text 1,1 current 1,2 ");
    EXPECT_EQ(Stored(1, kEdit), "typed");
    editing.Act({1, kList});
    editing.Key(VK_DOWN);
    EXPECT_EQ(State() + " " + g.Heard(), "1,3 list two current 1,3 list 1,3 text 1,3 ");
    EXPECT_EQ(editing.DeedOf({1, kList}), CellDeed::CloseList);
    editing.Act({1, kList});
    EXPECT_EQ(State() + " " + g.Told() + g.Heard(), "1,3 1 text 1,3 list 1,3 ");
    for (const GridCell cell : {GridCell{1, kStatic}, GridCell{-1, kEdit}, GridCell{2, kEdit}}) {
        Disable(2, kEdit);
        editing.Act(cell);
        EXPECT_EQ(State(), "1,3");
    }
}

// --- What the parent does while it is told

TEST_F(GridEdits, ATextChangedWhileItsEditOpensIsNotOverwritten) {
    bool bDone = false;
    g.onTold = [&](unsigned) {
        if (!std::exchange(bDone, true)) {
            editing.DeleteRows();
            model.AddRow("name\tfresh", 0);
        }
    };
    editing.GotoCell({0, kEdit}, true);
    EXPECT_EQ(State() + " " + g.Told(), "0,1 edit fresh change change ");
    g.MoveFocus(Focus::Elsewhere);
    EXPECT_EQ(Stored(0, kEdit), "fresh");
}

TEST_F(GridEdits, AnEditOpenedMeanwhileByOthersStaysWithWhatIsTyped) {
    editing.GotoCell({0, kEdit}, true);
    g.onTold = [&](unsigned) {
        g.onTold = nullptr;
        editing.GotoCell({1, kEdit}, true);
        g.Type("typed");
    };
    editing.GotoCell({1, kEdit}, true);
    EXPECT_EQ(State(), "1,1 edit typed");
    EXPECT_EQ(g.focus, Focus::Edit);
    EXPECT_TRUE(editing.CheckInvariants());
}

TEST_F(GridEdits, WhereTheParentLeadsElsewhereItStaysAtThat) {
    const std::function<void()> aLeave[] = {[&] { Click(1, kEdit); }, [&] { editing.Key(VK_LEFT); },
                                            [&] { editing.Key(VK_END); }};
    for (const bool bOpens : {false, true}) {
        for (const auto& leave : aLeave) {
            for (const unsigned nCode : {FakeGrid::kListChanged, FakeGrid::kEditChanged}) {
                g.onTold = nullptr;
                g.ScrollTo(0);
                Click(0, kList);
                g.list.nLine = g.list.nLine == 1 ? 2 : 1;
                int nLed = 0;
                g.onTold = [&](unsigned nTold) {
                    if (nTold == nCode && nLed++ == 0) {
                        editing.GotoCell({3, bOpens ? kEditButton : kStatic}, true);
                    }
                };
                leave();
                if (nLed > 0) {
                    EXPECT_EQ(State(), bOpens ? "3,2 edit def" : "3,0");
                }
                EXPECT_TRUE(nLed > 0 || nCode == FakeGrid::kEditChanged);
                EXPECT_EQ(Stored(1, kEdit), "abc");
                EXPECT_TRUE(editing.CheckInvariants());
            }
        }
    }
}

}  // namespace

}  // namespace qv
