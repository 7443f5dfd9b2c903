#include "support/grid_window.h"
#include "support/pump.h"
#include "support/test_app.h"
#include "window/refusals.h"

#include <gtest/gtest.h>
#include <new>
#include <utility>

namespace {

// Operations on a grid with each allocation refused in turn, and with all from each on.
class GridWithoutMemory : public testing::TestWithParam<FailingHeap::Mode> {
protected:
    GridWithoutMemory() : grid(w.grid) {
        TheTestApp().Forget();
        w.parent.m_commands.reserve(kManyCommands);
        grid.SetFocus();
        PumpPending();
    }
    ~GridWithoutMemory() override {
        EXPECT_TRUE(TheTestApp().m_exceptions.empty()) << TheTestApp().m_exceptions.front();
    }

    // check gets what left the operation, and makes the grid ready for the next run. An operation
    // that asks for no memory cannot go wrong.
    template <class Action, class Check>
    void Refuse(Action action, Check check) {
        Outcome left = Outcome::kDone;
        RefuseEachAllocation(
            GetParam(), [&] { left = Try(action); },
            [&](int nSucceeding) {
                SCOPED_TRACE(nSucceeding);
                EXPECT_NE(left, Outcome::kOther);
                check(left);
            });
    }
    // The same for what may tell nothing.
    template <class Action, class Check>
    void RefuseQuietly(Action action, Check check) {
        Refuse(action, [&](Outcome left) {
            EXPECT_EQ(left, Outcome::kDone);
            EXPECT_FALSE(grid.m_bIgnoreFocus);
            check();
        });
    }
    void Press(int nRow, int nCol) {
        const CPoint pt = w.At(nRow, nCol);
        ::SendMessage(grid.m_hWnd, WM_LBUTTONDOWN, 0, MAKELPARAM(pt.x, pt.y));
    }
    void Type(const char* psz) {
        ::SendMessage(w.Edit(), EM_SETSEL, 0, -1);
        ::SendMessage(w.Edit(), EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(psz));
    }
    // As it was, with memory: no editor, the texts of the first row.
    void Restore() {
        grid.GotoCell(0, kStatic, FALSE);
        w.parent.SetFocus();
        grid.EnsureRowVisible(0);
        EXPECT_EQ(w.Edit(), nullptr);
        EXPECT_EQ(w.List(), nullptr);
        grid.SetCellText(0, kEdit, "abc");
        grid.SetCellText(0, kList, "one");
        grid.GotoCell(0, kStatic, FALSE);
        grid.SetFocus();
        w.Told();
    }

    static constexpr size_t kManyCommands = 1000;  // that the parent finds memory for
    const CString kLong = CString('x', 300);
    GridWindow<> w{3};
    OpenGrid& grid;
};

TEST_P(GridWithoutMemory, FillingSaysSoAndLeavesWhatWasThere) {
    Refuse([&] { grid.SetCellText(0, kEdit, kLong); },
           [&](Outcome left) {
               EXPECT_EQ(w.Text(0, kEdit), left == Outcome::kDone ? std::string(kLong) : "abc");
           });
    int nColumns = grid.NumColumns();
    Refuse([&] { grid.AddColumn(gctStatic, 20); },
           [&](Outcome left) {
               EXPECT_EQ(grid.NumColumns(), nColumns + (left == Outcome::kDone));
               nColumns = grid.NumColumns();
           });
    int nRows = grid.NumRows();
    const CString strRow = "a\tb\t" + kLong;
    Refuse([&] { grid.AddRow(strRow, 0); },
           [&](Outcome left) {
               EXPECT_EQ(grid.NumRows(), nRows + (left == Outcome::kDone));
               nRows = grid.NumRows();
           });
    grid.DeleteAllRows();
    Refuse([&] { grid.AddRow(strRow, 0); },
           [&](Outcome) { EXPECT_EQ(grid.m_nTopRow, grid.NumRows() > 0 ? 0 : -1); });
}

TEST_P(GridWithoutMemory, AskingGivesNothing) {
    for (const bool bTyped : {false, true}) {
        if (bTyped) {
            Press(0, kEdit);
        }
        CString str;
        BOOL bGiven = FALSE;
        RefuseQuietly(
            [&] {
                str.Empty();
                bGiven = grid.GetCellText(0, kEdit, str);
            },
            [&] { EXPECT_EQ(std::string(str), bGiven ? "abc" : ""); });
    }
    int nGiven = 0;
    const int nWidth = grid.AutoSizeColumn(kEdit, 10);
    grid.SetColWidth(kEdit, 77);
    RefuseQuietly([&] { nGiven = grid.AutoSizeColumn(kEdit, 10); },
                  [&] {
                      EXPECT_EQ(nGiven, nGiven != 0 ? nWidth : 0);
                      EXPECT_EQ(grid.GetColWidth(kEdit), nGiven != 0 ? nWidth : 77);
                  });
}

// Whatever ends for want of memory: an edit is open with its text or closed, what was typed is kept
// or still in the edit, a choice is made and told or neither.
TEST_P(GridWithoutMemory, NothingTypedIsLostAndNoChoiceMadeUntold) {
    const auto type = [&] { Press(0, kEdit), Type(kLong); };
    const auto choose = [&] { Press(0, kList), ::SendMessage(w.List(), LB_SETCURSEL, 1, 0); };
    const auto nothing = [] {};
    struct Step {
        const char* pszName;
        std::function<void()> before, step;
    };
    const Step kSteps[] = {
        {"open by code", nothing, [&] { grid.GotoCell(0, kEdit, TRUE); }},
        {"open by click", nothing, [&] { Press(0, kEdit); }},
        {"list by click", nothing, [&] { Press(0, kList); }},
        {"typed, to an edit", type, [&] { grid.GotoCell(1, kEdit, TRUE); }},
        {"typed, key", type, [&] { ::SendMessage(w.Edit(), WM_KEYDOWN, VK_DOWN, 1); }},
        {"typed, focus", type, [&] { w.parent.SetFocus(); }},
        {"chosen", choose, [&] { ::SendMessage(w.List(), WM_LBUTTONUP, 0, 0); }},
        {"chosen, focus", choose, [&] { w.parent.SetFocus(); }},
        {"paint", nothing, [&] { grid.SendMessage(WM_SETREDRAW, TRUE), grid.UpdateWindow(); }}};
    for (const auto& [pszName, before, step] : kSteps) {
        SCOPED_TRACE(pszName);
        const std::string strTyped = pszName[0] == 't' ? std::string(kLong) : "abc";
        const auto start = [&, &rBefore = before] {
            Restore();
            rBefore();
            w.Told();
        };
        start();
        RefuseQuietly(step, [&] {
            EXPECT_EQ(w.Text(0, kEdit), strTyped);
            const std::string strChosen = w.Text(0, kList);
            EXPECT_TRUE(strChosen == "one" || strChosen == "two") << strChosen;
            EXPECT_EQ(w.parent.CountCommands(kListChanged), strChosen == "two");
            w.parent.SetFocus();
            EXPECT_EQ(w.Text(0, kEdit), strTyped) << "with memory again";
            grid.Invalidate(FALSE);
            grid.UpdateWindow();
            EXPECT_GT(grid.m_nCellHeight, 0);
            start();
        });
    }
}

TEST_P(GridWithoutMemory, TheFirstEditAndTheFirstListAreMadeOrNot) {
    for (const bool bList : {false, true}) {
        std::unique_ptr<GridWindow<>> pFresh;
        const auto make = [&] {
            pFresh.reset();
            pFresh = std::make_unique<GridWindow<>>(1);
            pFresh->parent.m_commands.reserve(kManyCommands);
            pFresh->grid.GotoCell(0, kStatic, FALSE);
        };
        make();
        RefuseQuietly(
            [&] {
                if (bList) {
                    pFresh->grid.PopupList(pFresh->choices);
                } else {
                    pFresh->grid.GotoCell(0, kEdit, TRUE);
                }
            },
            [&] {
                EXPECT_EQ(pFresh->grid.m_bEditing, pFresh->List() || pFresh->Edit());
                make();
            });
    }
    TheTestApp().Forget();  // a window that the framework could not make
}

TEST_P(GridWithoutMemory, AControlIsMadeOrNot) {
    // Its place is there: what the test itself finds no memory for is not the grid's.
    alignas(OpenGrid) unsigned char place[sizeof(OpenGrid)];
    OpenGrid* pGrid = nullptr;
    const auto unmake = [&] {
        if (pGrid != nullptr) {
            std::exchange(pGrid, nullptr)->~OpenGrid();
        }
    };
    Refuse([&] { pGrid = new (place) OpenGrid; },
           [&](Outcome left) {
               EXPECT_EQ(pGrid != nullptr, left == Outcome::kDone);
               unmake();
           });
    pGrid = new (place) OpenGrid;
    int nMade = 0;
    RefuseQuietly([&] { nMade = pGrid->Create(kGridId + 1, CRect(0, 0, 50, 50), &w.parent); },
                  [&] {
                      EXPECT_EQ(nMade != 0, pGrid->m_hWnd != nullptr);
                      unmake();
                      pGrid = new (place) OpenGrid;
                  });
    unmake();
    TheTestApp().Forget();  // a window that the framework could not make
}

INSTANTIATE_TEST_SUITE_P(Refused, GridWithoutMemory,
                         testing::Values(FailingHeap::kJustOne, FailingHeap::kAllLater),
                         [](const auto& test) {
                             return test.param == FailingHeap::kJustOne ? "One" : "AllLater";
                         });

}  // namespace
