#include "support/clipboard_text.h"
#include "support/grid_window.h"
#include "support/held_keys.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

namespace {

using Window = GridWindow<Mortal<OpenGrid>>;

// An open edit covers the current cell, and an open list hangs under it.
void ExpectEditorsAtTheirCell(Window& w) {
    const HWND hEdit = w.Edit();
    const HWND hEditor = hEdit != nullptr ? hEdit : w.List();
    if (hEditor == nullptr || w.grid.CurrentRow() < 0) {
        return;
    }
    w.grid.UpdateWindow();
    CRect rc;
    ::GetWindowRect(hEditor, &rc);
    w.grid.ScreenToClient(&rc);
    const CRect rcCell = w.CellRect(w.grid.CurrentRow(), w.grid.CurrentColumn());
    const bool bButton = w.grid.GetColType(w.grid.CurrentColumn()) == gctEditButton;
    ASSERT_EQ(rc.TopLeft(), hEdit != nullptr ? rcCell.TopLeft() + CSize(2, 1)
                                             : CPoint(rcCell.left, rcCell.bottom - 1));
    // As far as there is room for it.
    const int nRight = rcCell.right - (hEdit != nullptr ? 3 : 1);
    ASSERT_TRUE(bButton || rc.right == std::max<int>(nRight, rc.left));
}

// Messages and the focus in any order, and a parent that answers what it is told by
// other operations or takes the grid away.
TEST(GridMonkey, SurvivesAnyOrderOfInputAndAnswersAndKeepsNoHandles) {
    RecordingParent away(CSize(50, 50));
    CFont fonts[2];
    fonts[0].CreatePointFont(90, "Tahoma");
    fonts[1].CreatePointFont(200, "Tahoma");
    const LONG nHandles = AfxGetOwnedHandleCount();
    SetClipboard(L"x\ty\tone\r\nz");
    std::unique_ptr<Window> w;
    std::mt19937 random = MonkeyRandom(11);
    const auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    HWND hWnd = nullptr;
    LPARAM lPressed = 0;
    const auto press = [&](LPARAM lPoint) {
        lPressed = lPoint;
        ::SendMessage(hWnd, WM_LBUTTONDOWN, 0, lPoint);
    };
    const auto at = [&] { return MAKELPARAM(pick(430), pick(210)); };
    constexpr WORD kKeys[] = {VK_LEFT, VK_RIGHT, VK_UP,    VK_DOWN,   VK_HOME, VK_END,
                              VK_NEXT, VK_PRIOR, VK_SPACE, VK_ESCAPE, 'X',     VK_BACK};
    std::set<std::pair<UINT, int>> ends;  // what the parent was told of, and what it did
    int nDepth = 0;
    const auto answer = [&](UINT nCode) {
        const int nEnd = pick(nCode == EN_CHANGE ? 40 : 9);
        if (nEnd < 3) {
            ends.insert({nCode, nEnd});
            return nEnd == 0   ? void(w->grid.DestroyWindow())
                   : nEnd == 1 ? void(w->parent.DestroyWindow())
                               : w->DeleteGrid();
        }
        if (++nDepth < 3 && pick(3) == 0) {
            pick(2) != 0 ? w->grid.PopupList(w->choices)
                         : w->grid.GotoCell(pick(9), pick(5), pick(2));
        }
        --nDepth;
    };
    const std::function<void()> aDeeds[] = {
        [&] { ::PostMessage(::GetFocus(), WM_KEYDOWN, kKeys[pick(std::size(kKeys))], 1); },
        [&] { ::SendMessage(hWnd, WM_SYSKEYDOWN, VK_DOWN, 1 << 29); },
        [&] { ::PostMessage(::GetFocus(), WM_CHAR, 'x', 1); },
        [&] { SendKey(::GetFocus(), "CXVZYV"[pick(6)], true); },
        [&] { press(at()); },
        [&] { ::PostMessage(hWnd, WM_LBUTTONUP, 0, at()); },
        [&] { press(at()), ::SendMessage(hWnd, WM_LBUTTONUP, 0, lPressed); },
        [&] {
            const CPoint pt = w->ButtonRect(pick(8), 2 + pick(3)).CenterPoint();
            press(MAKELPARAM(pt.x, pt.y)), ::SendMessage(hWnd, WM_LBUTTONUP, 0, lPressed);
        },
        [&] {
            ::PostMessage(w->List(), pick(2) != 0 ? WM_MOUSEMOVE : WM_LBUTTONUP, 0,
                          MAKELPARAM(pick(90), pick(60)));
        },
        [&] { pick(2) != 0 ? w->other.SetFocus() : w->grid.SetFocus(); },
        [&] { BringToFront(pick(3) == 0 ? away.m_hWnd : w->parent.m_hWnd); },
        [&] { ::SendMessage(hWnd, WM_VSCROLL, static_cast<WPARAM>(pick(8)), 0); },
        [&] {
            ::SetWindowPos(hWnd, nullptr, 0, 0, 300 + pick(120), 20 + pick(180),
                           SWP_NOMOVE | SWP_NOZORDER);
        },
        [&] {
            w->parent.SetWindowPos(nullptr, pick(200), pick(200), 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        },
        [&] { w->grid.SetFont(&fonts[pick(2)]); },
        [&] { w->grid.SetColWidth(pick(5), 20 + pick(90)); },
        [&] { w->grid.EnsureRowVisible(pick(9)); },
        [&] { w->grid.EnableCell(pick(9), pick(5), pick(3) != 0); },
        [&] { w->grid.SetReadOnly(pick(5) == 0); },
        [&] { ::SendMessage(hWnd, WM_CANCELMODE, 0, 0); },
        [&] { pick(9) == 0 ? w->grid.DeleteAllRows() : void(w->grid.AddRow("a\tb\tc\tone", 0)); },
        [&] {
            if (const int nCol = pick(5); nCol != w->grid.CurrentColumn()) {
                w->grid.SetColType(nCol, static_cast<GridColType>(pick(5)));
            }
        }};
    int nEdits = 0;
    int nLists = 0;
    constexpr size_t kEnds = 7;  // of nine; where that is a matter of luck, it goes on for longer
    const int nSteps = 3 * MonkeySteps();
    for (int i = 0; i < nSteps || (i < 4 * nSteps && ends.size() < kEnds); ++i) {
        SCOPED_TRACE(i);
        if (w == nullptr || w->bDeleted || w->grid.m_hWnd == nullptr) {
            w = std::make_unique<Window>(8);
            w->parent.m_answer = answer;
            w->grid.EnableExpectedKeys(pick(3) != 0);
            BringToFront(w->parent.m_hWnd);
            hWnd = w->grid.m_hWnd;
            nDepth = 0;
        }
        aDeeds[pick(std::size(aDeeds))]();
        PumpPending();
        if (w->bDeleted) {
            continue;
        }
        nEdits += w->Edit() != nullptr;
        nLists += w->List() != nullptr;
        ASSERT_LT(w->grid.CurrentRow(), w->grid.NumRows());
        ASSERT_TRUE(w->grid.m_nTopRow >= 0 || w->grid.NumRows() == 0);
        ASSERT_FALSE(w->grid.m_bIgnoreFocus);
        ExpectEditorsAtTheirCell(*w);
    }
    EXPECT_GT(nEdits, 50);
    EXPECT_GT(nLists, 20);
    EXPECT_GE(ends.size(), kEnds);
    ::ReleaseCapture();
    w.reset();
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

}  // namespace
