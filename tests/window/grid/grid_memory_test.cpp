#include "support/grid_window.h"
#include "support/pump.h"
#include "support/test_app.h"
#include "window/refusals.h"

#include <gtest/gtest.h>

namespace {

constexpr size_t kManyCommands = 1000;  // that the parent finds memory for

// Operations on a grid with each allocation refused in turn, and with all from each on.
class GridWithoutMemory : public testing::Test {
protected:
    GridWithoutMemory() : grid(w.grid) {
        TheTestApp().Forget();
        w.parent.m_commands.reserve(kManyCommands);
        grid.SetFocus();
        PumpPending();
    }
    ~GridWithoutMemory() override { EXPECT_TRUE(TheTestApp().m_exceptions.empty()); }

    void Press(int nRow, int nCol) {
        const CPoint pt = w.At(nRow, nCol);
        ::SendMessage(grid.m_hWnd, WM_LBUTTONDOWN, 0, MAKELPARAM(pt.x, pt.y));
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

    const CString kLong = CString('x', 300);
    GridWindow<> w{3};
    OpenGrid& grid;
};

TEST_F(GridWithoutMemory, FillingSaysSo) {
    const CString strHuge('x', 100000);
    const std::function<void()> aFill[] = {[&] { grid.SetCellText(0, kEdit, strHuge); },
                                           [&] { grid.AddRow(strHuge, 0); }};
    for (const auto& fill : aFill) {
        int nSaid = 0;
        Outcome outcome = Outcome::kDone;
        RefuseEachAllocation(
            FailingHeap::kAllLater, [&] { outcome = Try(fill); },
            [&](int) {
                EXPECT_NE(outcome, Outcome::kOther);
                nSaid += outcome == Outcome::kMemoryException;
            });
        EXPECT_GT(nSaid, 0);
    }
}

// Whatever ends for want of memory: an edit is open with its text or closed, what was typed is kept
// or still in the edit, a choice is made and told or neither.
TEST_F(GridWithoutMemory, NothingTypedIsLostAndNoChoiceMadeUntold) {
    const auto type = [&] {
        Press(0, kEdit);
        ::SendMessage(w.Edit(), EM_SETSEL, 0, -1);
        ::SendMessage(w.Edit(), EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(LPCSTR(kLong)));
    };
    const auto choose = [&] { Press(0, kList), ::SendMessage(w.List(), LB_SETCURSEL, 1, 0); };
    const auto nothing = [] {};
    CString str;
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
        {"typed, read", type, [&] { grid.GetCellText(0, kEdit, str); }},
        {"read", nothing, [&] { grid.GetCellText(0, kEdit, str), grid.AutoSizeColumn(kEdit, 9); }},
        {"paint", nothing, [&] { grid.SendMessage(WM_SETREDRAW, TRUE), grid.UpdateWindow(); }}};
    for (const auto& [pszName, before, step] : kSteps) {
        const std::string strTyped = pszName[0] == 't' ? std::string(kLong) : "abc";
        const auto start = [&, &rBefore = before] {
            Restore();
            rBefore();
            w.Told();
        };
        start();
        RefuseEach(pszName, step, [&] {
            EXPECT_FALSE(grid.m_bIgnoreFocus);
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

TEST_F(GridWithoutMemory, AGridAndItsFirstEditAndListAreMadeOrNot) {
    ExpectMadeOrNot<OpenGrid>(
        [&](auto& made) { return made.Create(kGridId + 1, CRect(0, 0, 50, 50), &w.parent); });
    for (const bool bList : {false, true}) {
        std::unique_ptr<GridWindow<>> pFresh;
        const auto make = [&] {
            pFresh.reset();
            pFresh = std::make_unique<GridWindow<>>(1);
            pFresh->parent.m_commands.reserve(kManyCommands);
            pFresh->grid.GotoCell(0, kStatic, FALSE);
        };
        make();
        RefuseEach(
            "first",
            [&] {
                bList ? pFresh->grid.PopupList(pFresh->choices)
                      : pFresh->grid.GotoCell(0, kEdit, TRUE);
            },
            [&] {
                EXPECT_EQ(pFresh->grid.m_bEditing, pFresh->List() || pFresh->Edit());
                make();
            });
    }
    TheTestApp().Forget();  // a window that the framework could not make
}

}  // namespace
