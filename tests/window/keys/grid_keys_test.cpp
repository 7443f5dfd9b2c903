// The grid's expected keys: cells to the clipboard and back, undo and redo.
#include "support/clipboard_text.h"
#include "support/grid_window.h"
#include "support/held_keys.h"
#include "support/mortal.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <gtest/gtest.h>

namespace {

class GridKeys : public testing::Test {
public:
    GridKeys() {
        BringToFront(w.parent.m_hWnd);
        w.other.SetFocus();
        PumpPending();
    }
    void GoTo(int nRow, int nCol) {
        w.grid.GotoCell(nRow, nCol, TRUE);
        w.Edit() == nullptr ? void(w.grid.SetFocus()) : void();
        PumpPending();
        w.Told();
    }
    void Control(WORD nKey, bool bShift = false) { TypeKey(nKey, bShift, true); }
    std::string Row(int nRow) {
        std::string str;
        for (int nCol = 0; nCol < 5; ++nCol) {
            str += (nCol > 0 ? "|" : "") + w.Text(nRow, nCol);
        }
        return str;
    }
    GridWindow<> w{4};
    const std::string strRow = "name|abc|def|one|btn";
};

TEST_F(GridKeys, ChangeNothingUntilTheyAreEnabled) {
    SetClipboard(L"x\ty");
    GoTo(0, kStatic);
    for (const WORD nKey : {'C', 'X', 'V', 'Z', 'Y'}) {
        Control(nKey);
    }
    EXPECT_EQ(Row(0) + Clipboard() + w.Told(), strRow + "x\ty");
    GoTo(0, kEdit);
    Control('V');
    EXPECT_EQ(w.Text(0, kEdit).substr(0, 1), "x") << "the edit's own";
}

TEST_F(GridKeys, CellsAreCopiedAndPastedAsTyped) {
    w.grid.EnableExpectedKeys();
    GoTo(1, kList);
    Control('C');
    EXPECT_EQ(Clipboard(), "one");
    w.grid.SetCellReadOnly(2, kEdit, TRUE);
    w.grid.EnableCell(2, kEditButton, FALSE);
    SetClipboard(L"s\tnew\t\"two\r\nlines\"\ttwo\tb\tbeyond\r\nt\tu\tv\tnone\tw\r\n");
    for (const WORD nColumn : {kStatic, kEdit}) {
        GoTo(1, nColumn);
        nColumn == kStatic ? Control('V') : void(TypeKey(VK_INSERT, true));
        EXPECT_EQ(w.Current(), "1," + std::to_string(nColumn));
        if (nColumn == kStatic) {
            EXPECT_EQ(Row(1), "name|new|two lines|two|btn") << "what can be typed";
            EXPECT_EQ(w.Told(), "change change change change 1 ") << "as cells open and are typed";
        }
    }
    EXPECT_EQ(Row(2), strRow) << "read-only, disabled, and no such choice";
    EXPECT_EQ(Row(1), "name|s|new|two|btn") << "one column on: the list has no such text";
    EXPECT_NE(w.Edit(), nullptr);
}

TEST_F(GridKeys, EditsAreTakenBackAndMadeAgain) {
    w.grid.EnableExpectedKeys();
    GoTo(0, kEdit);
    TypeText("first");
    GoTo(1, kEdit);
    SetClipboard(L"p\tq\r\nr");
    Control('V');
    ASSERT_EQ(Row(1) + Row(2), "name|p|q|one|btnname|r|def|one|btn");
    GoTo(3, kEdit);
    TypeText("typed");
    const auto all = [&] { return w.Text(0, 1) + w.Text(1, 1) + w.Text(2, 1) + w.Text(3, 1); };
    const struct {
        WORD nKey;
        bool bShift;
        const char* pszAll;
        const char* pszCurrent;
    } steps[] = {
        {'Z', false, "firstprabc", "3,1"},     {'Z', false, "firstabcabcabc", "1,1"},
        {'Z', false, "abcabcabcabc", "0,1"},   {'Z', false, "abcabcabcabc", "0,1"},
        {'Y', false, "firstabcabcabc", "0,1"}, {'Z', true, "firstprabc", "1,1"},
        {'Y', false, "firstprtyped", "3,1"},   {'Y', false, "firstprtyped", "3,1"},
    };
    for (const auto& step : steps) {
        const bool bUndo = step.nKey == 'Z' && !step.bShift;
        const BOOL bCan = bUndo ? w.grid.CanUndoEdit() : w.grid.CanRedoEdit();
        const std::string strBefore = all();
        Control(step.nKey, step.bShift);
        EXPECT_EQ(bCan != FALSE, all() != strBefore) << "as a menu would say";
        EXPECT_EQ(all(), step.pszAll);
        EXPECT_EQ(w.Current(), step.pszCurrent);
    }
    w.Told();
    Control('Z');
    EXPECT_EQ(w.Told(), "change change change ") << "opened, typed, and opened again";
    w.grid.SetCellReadOnly(1, kEdit, TRUE);
    Control('Z');
    EXPECT_EQ(all() + w.Text(1, 2), "firstpabcabcdef") << "all but what cannot be edited";
    TypeText("of no row");
    w.grid.DeleteAllRows();
    EXPECT_FALSE(w.grid.CanUndoEdit());
    EXPECT_FALSE(w.grid.UndoEdit());
    EXPECT_FALSE(w.grid.CanUndoEdit());
}

TEST_F(GridKeys, WhatIsBeingTypedCanBeTakenBackAndEndsRedo) {
    w.grid.EnableExpectedKeys();
    GoTo(0, kEdit);
    EXPECT_FALSE(w.grid.CanUndoEdit());
    EXPECT_TRUE(w.grid.CutCell());
    EXPECT_EQ(w.Text(0, kEdit) + Clipboard(), "abc");
    EXPECT_TRUE(w.grid.UndoEdit());
    EXPECT_TRUE(w.grid.CanRedoEdit());
    TypeText("x");
    EXPECT_TRUE(w.grid.CanUndoEdit());
    EXPECT_FALSE(w.grid.CanRedoEdit());
    w.grid.SetCellReadOnly(1, kEdit, TRUE);
    GoTo(1, kEdit);
    EXPECT_TRUE(w.grid.CutCell());
    EXPECT_EQ(w.Text(1, kEdit), "abc") << "copied, and not emptied";
}

TEST_F(GridKeys, TheParentMayTakeTheGridAwayAtEachStep) {
    for (int nWay = 0; nWay < 3; ++nWay) {
        for (int nSkip = 0; nSkip < 6; ++nSkip) {
            for (const WORD nKey : {'V', 'Z'}) {
                GridWindow<Mortal<OpenGrid>> other(3);
                BringToFront(other.parent.m_hWnd);
                other.grid.EnableExpectedKeys();
                SetClipboard(L"x\ty\ttwo\r\nz\tx\tthree");
                other.grid.GotoCell(0, kEdit, TRUE);
                nKey == 'Z' ? other.grid.PasteCells() : void();
                int nTold = 0;
                other.parent.m_answer = [&](UINT) {
                    if (nTold++ == nSkip) {
                        nWay == 0   ? other.DeleteGrid()
                        : nWay == 1 ? void(other.grid.DestroyWindow())
                                    : other.grid.DeleteAllRows();
                    }
                };
                SendKey(::GetFocus(), nKey, true);
                EXPECT_GE(nTold, nSkip);
                other.parent.m_answer = nullptr;
            }
        }
    }
}

}  // namespace
