#include "support/grid_window.h"
#include "support/monkey.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <gtest/gtest.h>
#include <random>

namespace {

// --- What a parent may do while it is told

// Lies alone on its pages, which are gone with it: a touch of the deleted control is a crash.
class GuardedGrid : public OpenGrid {
public:
    static void* operator new(size_t nBytes) {
        return ::VirtualAlloc(nullptr, nBytes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
    }
    static void operator delete(void* p) {
        DWORD dwOld;
        ::VirtualProtect(p, sizeof(GuardedGrid), PAGE_NOACCESS, &dwOld);
    }
};

struct Told {
    const char* pszName;
    UINT nCode;
    // Ends with the notification.
    std::function<void(GridWindow<GuardedGrid>&)> act;
};

void PressIn(GridWindow<GuardedGrid>& w, CPoint pt) {
    ::SendMessage(w.grid.m_hWnd, WM_LBUTTONDOWN, 0, MAKELPARAM(pt.x, pt.y));
}
void KeyIn(GridWindow<GuardedGrid>& w, UINT vk) {
    ::SendMessage(w.grid.m_hWnd, WM_KEYDOWN, vk, 0);
}
void ChooseLine(GridWindow<GuardedGrid>& w) {
    PressIn(w, w.At(0, kList));
    ::SendMessage(w.List(), LB_SETCURSEL, 1, 0);
}
void ClickButton(GridWindow<GuardedGrid>& w, int nCol) {
    const CPoint pt = w.ButtonRect(0, nCol).CenterPoint();
    PressIn(w, pt);
    w.parent.m_commands.clear();
    ::SendMessage(w.grid.m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(pt.x, pt.y));
}

const Told kTold[] = {
    {"Button", kButtonOrList, [](auto& w) { ClickButton(w, kEditButton); }},
    {"ChosenByMouse", kListChanged,
     [](auto& w) {
         ChooseLine(w);
         ::SendMessage(w.List(), WM_LBUTTONUP, 0, 0);
     }},
    {"ChosenByKeyAway", kListChanged,
     [](auto& w) {
         ChooseLine(w);
         KeyIn(w, VK_LEFT);
     }},
    {"ChosenByScrolling", kListChanged,
     [](auto& w) {
         ChooseLine(w);
         ::SendMessage(w.grid.m_hWnd, WM_VSCROLL, SB_LINEDOWN, 0);
     }},
    {"ChosenByFocusLoss", kListChanged,
     [](auto& w) {
         ChooseLine(w);
         w.other.SetFocus();
     }},
    {"Typed", EN_CHANGE,
     [](auto& w) {
         PressIn(w, w.At(0, kEdit));
         w.parent.m_commands.clear();
         ::SendMessage(w.Edit(), WM_CHAR, 'x', 0);
     }},
    {"OpenedByClick", EN_CHANGE, [](auto& w) { PressIn(w, w.At(1, kEdit)); }},
    {"OpenedByFocus", EN_CHANGE,
     [](auto& w) {
         w.grid.GotoCell(0, kEdit, FALSE);
         w.other.SetFocus();
         w.grid.SetFocus();
     }},
};

TEST(GridHostileParent, MayTakeTheGroundAway) {
    const std::function<void(GridWindow<GuardedGrid>&)> kDeeds[] = {
        [](auto& w) { w.grid.DestroyWindow(); }, [](auto& w) { w.DeleteGrid(); },
        [](auto& w) { w.parent.DestroyWindow(); }};
    for (const Told& told : kTold) {
        SCOPED_TRACE(told.pszName);
        for (const auto& deed : kDeeds) {
            GridWindow<GuardedGrid> w(30);
            BringToFront(w.parent.m_hWnd);
            HWND hWnd = w.grid.m_hWnd;
            // Opening an editor tells of a change as well, which is not the one that Typed is
            // about.
            int nToCome = std::string(told.pszName) == "Typed" ? 2 : 1;
            w.parent.m_answer = [&](UINT nCode) {
                if (nCode == told.nCode && --nToCome == 0) {
                    deed(w);
                }
            };
            told.act(w);
            PumpPending();
            EXPECT_EQ(nToCome, 0) << &deed - kDeeds;
            EXPECT_FALSE(::IsWindow(hWnd)) << &deed - kDeeds;
            EXPECT_TRUE(w.bDeleted || (w.grid.m_hWnd == nullptr && !w.grid.m_bIgnoreFocus));
            EXPECT_EQ(w.List(), nullptr);
        }
    }
}

// --- Anything in any order

// Messages, real input and the focus in any order; what the parent may answer is played in core.
TEST(GridMonkey, SurvivesAnyOrderOfInputAndAnswers) {
    GridWindow<> w(8);
    RecordingParent away(CSize(50, 50));
    BringToFront(w.parent.m_hWnd);
    OpenGrid& grid = w.grid;
    std::mt19937 random = MonkeyRandom(11);
    const auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const auto post = [&](UINT nMessage, WPARAM wParam, LPARAM lParam) {
        ::PostMessage(grid.m_hWnd, nMessage, wParam, lParam);
    };
    const auto at = [&] { return MAKELPARAM(pick(430), pick(210)); };
    constexpr WORD kKeys[] = {VK_LEFT, VK_RIGHT, VK_UP,    VK_DOWN,   VK_HOME, VK_END,
                              VK_NEXT, VK_PRIOR, VK_SPACE, VK_ESCAPE, 'X',     VK_BACK};
    int nDepth = 0;
    w.parent.m_answer = [&](UINT) {
        if (++nDepth < 3 && pick(3) == 0) {
            pick(2) != 0 ? w.grid.PopupList(w.choices) : grid.GotoCell(pick(9), pick(5), pick(2));
        }
        --nDepth;
    };
    const std::function<void()> aDeeds[] = {
        [&] { ::PostMessage(::GetFocus(), WM_KEYDOWN, kKeys[pick(std::size(kKeys))], 1); },
        [&] { ::GetFocus() != nullptr&& TypeKey(kKeys[pick(std::size(kKeys))]); },
        [&] { post(WM_SYSKEYDOWN, VK_DOWN, 1 << 29); },
        [&] { post(WM_LBUTTONDOWN, 0, at()); },
        [&] { post(WM_LBUTTONUP, 0, at()); },
        [&] { ClickAt(grid.m_hWnd, CPoint(pick(400), pick(200))); },
        [&] {
            ::PostMessage(w.List(), pick(2) != 0 ? WM_MOUSEMOVE : WM_LBUTTONUP, 0,
                          MAKELPARAM(pick(90), pick(60)));
        },
        [&] { pick(2) != 0 ? w.other.SetFocus() : grid.SetFocus(); },
        [&] { BringToFront(pick(3) == 0 ? away.m_hWnd : w.parent.m_hWnd); },
        [&] { grid.SendMessage(WM_VSCROLL, static_cast<WPARAM>(pick(8))); },
        [&] {
            grid.SetWindowPos(nullptr, 0, 0, 300 + pick(120), 20 + pick(180),
                              SWP_NOMOVE | SWP_NOZORDER);
        },
        [&] { grid.EnableCell(pick(9), pick(5), pick(3) != 0); },
        [&] { grid.SetReadOnly(pick(5) == 0), grid.SendMessage(WM_CANCELMODE); },
        [&] { pick(9) == 0 ? grid.DeleteAllRows() : void(), grid.AddRow("a\tb\tc\tone", 0); },
        [&] { grid.SetColType(pick(5), static_cast<GridColType>(pick(5))); }};
    int nEdits = 0;
    int nLists = 0;
    for (int i = 0; i < MonkeySteps(); ++i) {
        SCOPED_TRACE(i);
        aDeeds[pick(std::size(aDeeds))]();
        PumpPending();
        nEdits += w.Edit() != nullptr;
        nLists += w.List() != nullptr;
        ASSERT_LT(grid.CurrentRow(), grid.NumRows());
        ASSERT_TRUE(grid.m_nTopRow >= 0 || grid.NumRows() == 0);
        ASSERT_FALSE(grid.m_bIgnoreFocus);
        if (w.Edit() != nullptr && grid.CurrentRow() >= 0) {
            grid.UpdateWindow();
            CRect rcEdit;
            ::GetWindowRect(w.Edit(), &rcEdit);
            grid.ScreenToClient(&rcEdit);
            const CRect rcCell = w.CellRect(grid.CurrentRow(), grid.CurrentColumn());
            ASSERT_EQ(rcEdit.TopLeft(), rcCell.TopLeft() + CSize(2, 1));
        }
    }
    EXPECT_GT(nEdits, 100);
    EXPECT_GT(nLists, 20);
    ::ReleaseCapture();
}

}  // namespace
