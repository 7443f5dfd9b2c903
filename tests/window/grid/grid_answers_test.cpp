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

enum class Deed { DestroyWindow, DeleteControl, DestroyParent };

class GridHostileParent : public testing::TestWithParam<Deed> {};

TEST_P(GridHostileParent, MayTakeTheGroundAway) {
    for (const Told& told : kTold) {
        SCOPED_TRACE(told.pszName);
        GridWindow<GuardedGrid> w(30);
        BringToFront(w.parent.m_hWnd);
        HWND hWnd = w.grid.m_hWnd;
        // Opening an editor tells of a change as well, which is not the one that Typed is about.
        int nToCome = std::string(told.pszName) == "Typed" ? 2 : 1;
        w.parent.m_answer = [&](UINT nCode) {
            if (nCode != told.nCode || --nToCome != 0) {
                return;
            }
            switch (GetParam()) {
                case Deed::DestroyWindow:
                    w.grid.DestroyWindow();
                    break;
                case Deed::DeleteControl:
                    w.DeleteGrid();
                    break;
                case Deed::DestroyParent:
                    w.parent.DestroyWindow();
                    break;
            }
        };
        told.act(w);
        PumpPending();
        EXPECT_EQ(nToCome, 0);
        EXPECT_FALSE(::IsWindow(hWnd));
        EXPECT_TRUE(w.bDeleted || (w.grid.m_hWnd == nullptr && !w.grid.m_bIgnoreFocus));
        EXPECT_EQ(w.List(), nullptr);
    }
}

std::string DeedName(const testing::TestParamInfo<Deed>& test) {
    const char* const aDeeds[] = {"DestroyWindow", "DeleteControl", "DestroyParent"};
    return aDeeds[static_cast<int>(test.param)];
}

INSTANTIATE_TEST_SUITE_P(Deeds, GridHostileParent,
                         testing::Values(Deed::DestroyWindow, Deed::DeleteControl,
                                         Deed::DestroyParent),
                         DeedName);

// --- Anything in any order

TEST(GridMonkey, SurvivesAnyOrderOfInputAndAnswers) {
    GridWindow<> w(8);
    RecordingParent away(CSize(50, 50));
    BringToFront(w.parent.m_hWnd);
    std::mt19937 random = MonkeyRandom(11);
    const auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    int nDepth = 0;
    w.parent.m_answer = [&](UINT) {
        if (++nDepth < 3) {
            switch (pick(12)) {
                case 0:
                case 1:
                    w.grid.PopupList(w.choices);
                    break;
                case 2:
                    w.grid.SetCellText(pick(9), pick(5), "answer");
                    break;
                case 3:
                    if (pick(4) == 0) {
                        w.grid.DeleteAllRows();
                        for (int i = pick(30); i >= 0; --i) {
                            w.grid.AddRow("r\te\tb\ttwo\tx", 0);
                        }
                    }
                    break;
                case 4:
                    w.grid.EnableCell(pick(9), pick(5), pick(2));
                    break;
                case 5:
                    w.grid.GotoCell(pick(9), pick(5), pick(2));
                    break;
                default:
                    break;
            }
        }
        --nDepth;
    };
    const WORD aKeys[] = {VK_LEFT, VK_RIGHT, VK_UP,    VK_DOWN,   VK_HOME, VK_END,
                          VK_NEXT, VK_PRIOR, VK_SPACE, VK_ESCAPE, 'X',     VK_BACK};
    const auto at = [&] { return MAKELPARAM(pick(430), pick(210)); };
    int nEdits = 0;
    int nLists = 0;
    for (int i = 0; i < MonkeySteps(); ++i) {
        HWND hWndFocus = ::GetFocus() != nullptr ? ::GetFocus() : w.grid.m_hWnd;
        switch (pick(16)) {
            case 0:
            case 1:
            case 2:
                ::PostMessage(hWndFocus, WM_KEYDOWN, aKeys[pick(12)], 1);
                break;
            case 3:
                if (::GetFocus() != nullptr) {
                    TypeKey(aKeys[pick(12)]);
                }
                break;
            case 4:
                ::PostMessage(w.grid.m_hWnd, WM_SYSKEYDOWN, VK_DOWN, 1 << 29);
                break;
            case 5:
            case 6:
                ::PostMessage(w.grid.m_hWnd, WM_LBUTTONDOWN, 0, at());
                break;
            case 7:
                ::PostMessage(w.grid.m_hWnd, WM_LBUTTONUP, 0, at());
                break;
            case 8:
                ClickAt(w.grid.m_hWnd, CPoint(pick(400), pick(200)));
                break;
            case 9:
                if (HWND hWndList = w.List()) {
                    ::PostMessage(hWndList, pick(2) != 0 ? WM_MOUSEMOVE : WM_LBUTTONUP, 0,
                                  MAKELPARAM(pick(90), pick(60)));
                }
                break;
            case 10:
                pick(2) != 0 ? w.other.SetFocus() : w.grid.SetFocus();
                break;
            case 11:
                BringToFront(pick(3) == 0 ? away.m_hWnd : w.parent.m_hWnd);
                break;
            case 12:
                if (pick(2) != 0) {
                    w.grid.SendMessage(WM_VSCROLL, static_cast<WPARAM>(pick(8)));
                } else if (pick(2) != 0) {
                    w.grid.EnsureRowVisible(pick(40));
                } else {
                    w.grid.SetWindowPos(nullptr, 0, 0, 300 + pick(120), 20 + pick(180),
                                        SWP_NOMOVE | SWP_NOZORDER);
                }
                break;
            case 13:
                w.grid.SetCellReadOnly(pick(9), pick(5), pick(3) == 0);
                w.grid.EnableCell(pick(9), pick(5), pick(3) != 0);
                break;
            case 14:
                w.grid.SetReadOnly(pick(5) == 0);
                w.grid.SendMessage(pick(8) == 0 ? WM_CANCELMODE : WM_NULL);
                w.grid.AddRow("more\trows", 0);
                break;
            default:
                if (pick(10) == 0) {
                    w.grid.DeleteAllRows();
                    w.grid.AddRow("a\tb\tc\tone\td", 0);
                }
                w.grid.SetColType(pick(5) == 0 ? pick(5) : -1, static_cast<GridColType>(pick(5)));
                break;
        }
        PumpPending();
        nEdits += w.Edit() != nullptr;
        nLists += w.List() != nullptr;
        int nMarked = 0;
        for (int nRow = 0; nRow < w.grid.NumRows(); ++nRow) {
            nMarked += (w.grid.RowAt(nRow).dwState & GRS_CURRENT) != 0;
        }
        ASSERT_EQ(nMarked, w.grid.CurrentRow() >= 0) << "step " << i;
        ASSERT_LT(w.grid.CurrentRow(), w.grid.NumRows()) << "step " << i;
        ASSERT_TRUE(w.grid.m_nTopRow >= 0 || w.grid.NumRows() == 0) << "step " << i;
        ASSERT_FALSE(w.grid.m_bIgnoreFocus) << "step " << i;
        if (w.Edit() != nullptr && w.grid.CurrentRow() >= 0) {
            w.grid.UpdateWindow();
            CRect rcEdit;
            ::GetWindowRect(w.Edit(), &rcEdit);
            w.grid.ScreenToClient(&rcEdit);
            const CRect rcCell = w.CellRect(w.grid.CurrentRow(), w.grid.CurrentColumn());
            ASSERT_EQ(rcEdit.TopLeft(), rcCell.TopLeft() + CSize(2, 1)) << "step " << i;
        }
    }
    EXPECT_GT(nEdits, 100);
    EXPECT_GT(nLists, 20);
    ::ReleaseCapture();
}

}  // namespace
