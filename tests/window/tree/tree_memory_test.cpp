// Each allocation of each operation is refused in turn: nothing may be thrown, an operation that
// gives its error result has changed nothing, and the next paint shows what there is.
#include "support/picture.h"
#include "support/tree_window.h"
#include "window/refusals.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

using WatchedTree = Watched<QVTreeCtrlEx>;

// Its steps want memory as well.
class GreedyTree : public WatchedTree {
public:
    int CompareItems(HTREEITEM h1, HTREEITEM h2) override {
        return strcmp(GetItemText(h1), GetItemText(h2)) < 0 ? -1 : 1;
    }
    void CalcItemRect(CDC& dc, int nTop, HTREEITEM h, CRect& rect, BOOL bText) override {
        const std::vector<int> some(100);
        QVTreeCtrlEx::CalcItemRect(dc, nTop, h, rect, bText);
    }
};

template <class Tree>
class TreeMemory : public testing::Test {
protected:
    TreeMemory() {
        parent.BeQuiet();
        tree.Create(kTreeStyle, CRect(0, 0, 300, 100), &parent, kTreeId);
        tree.SetShowStatesAtRoot(TRUE);
        tree.LoadStandardCheckStates();
        p = Add("p", nullptr);
        Fill();
        q = Add("q", nullptr);
        tree.Expand(p, TVE_EXPAND, FALSE, FALSE);
        tree.UpdateWindow();
    }
    HTREEITEM Add(const char* psz, HTREEITEM hParent) {
        return tree.InsertItem(psz, 0, 0, hParent, TVI_LAST);
    }
    void Fill() {
        for (int i = 9; i >= 0; --i) {
            Add(("row " + std::to_string(i)).c_str(), p);
        }
    }
    // The whole tree and its selection.
    std::string State() {
        std::string str;
        for (HTREEITEM h = tree.GetRootItem(); h != nullptr; h = tree.WalkNext(h)) {
            str += tree.GetItemText(h) + (tree.ItemExpanded(h) ? "+" : "") +
                   (h == tree.GetSelectedItem() ? "!|" : "|");
        }
        return str;
    }
    // op tells whether it was done; undo takes that back. Gives the number of refusals.
    int Refuse(const char* pszName, const std::function<bool()>& op,
               const std::function<void()>& undo) {
        const std::string strBefore = State();
        const Picture before = Shown();
        bool bDone = false;
        const int nRefused = RefuseEach(
            pszName, [&] { bDone = op(); },
            [&] {
                if (bDone) {
                    undo();
                }
                EXPECT_EQ(State(), strBefore);
                EXPECT_TRUE(Shown() == before);
            });
        EXPECT_TRUE(bDone) << pszName;
        EXPECT_EQ(tree.nThrown, 0) << pszName;
        return nRefused;
    }
    Picture Shown() {
        tree.SetRedraw(TRUE);
        tree.EnsureVisible(p);
        tree.Invalidate(FALSE);
        return Picture::OfClient(tree.m_hWnd);
    }

    FontParent parent{CSize(300, 100)};
    Tree tree;
    HTREEITEM p, q;
};

using Trees = testing::Types<WatchedTree, GreedyTree>;
TYPED_TEST_SUITE(TreeMemory, Trees);

TYPED_TEST(TreeMemory, WhatIsNotDoneChangesNothing) {
    auto& tree = this->tree;
    const HTREEITEM p = this->p, q = this->q, hLast = tree.GetLastChild(p);
    const CString strLong('x', 20000), strOld = tree.GetItemText(q);
    const int stops[] = {100, 20200};
    HTREEITEM h = nullptr;
    const struct {
        const char* pszName;
        bool bNeedsMemory;
        std::function<bool()> op;
        std::function<void()> undo;
    } kOperations[] = {
        {"insert sorted", true,
         [&] { return (h = tree.InsertItem(strLong, 0, 0, p, TVI_SORT)) != nullptr; },
         [&] { tree.DeleteItem(h); }},
        {"move", false, [&] { return tree.ChangeParent(hLast, q) != 0; },
         [&] { tree.ChangeParent(hLast, p); }},
        {"sort", true, [&] { return tree.SortChildren(p) != 0; },
         [&] { tree.DeleteChildren(p), this->Fill(); }},
        {"delete", false, [&] { return tree.DeleteItem(tree.GetLastChild(p)) != 0; },
         [&] { this->Add("row 0", p); }},
        {"text", false, [&] { return tree.SetItemText(q, strLong), true; },
         [&] { tree.SetItemText(q, strOld); }},
        {"expand", false, [&] { return tree.Expand(p, TVE_TOGGLE, TRUE, FALSE) != 0; },
         [&] { tree.Expand(p, TVE_EXPAND, TRUE, FALSE); }},
        {"select", false, [&] { return tree.SelectItem(q) != 0; },
         [&] { tree.SelectItem(nullptr); }},
        {"show", false, [&] { return tree.EnsureVisible(q) != 0; }, [&] { tree.EnsureVisible(p); }},
        {"hit", false, [&] { return tree.HitTest(CPoint(30, 5), nullptr, nullptr) == p; }, [] {}},
        {"stops", false,
         [&] {
             tree.UseTabs(stops, 2);
             tree.SetItemState(p, 0, TVIS_EXPANDED);
             tree.SetItemState(p, TVIS_EXPANDED, TVIS_EXPANDED);
             tree.SetItemImage(p, 1);
             tree.SetCheck(p, TRUE, TRUE);
             return true;
         },
         [&] {
             tree.ClearTabs();
             tree.SetItemImage(p, 0);
             tree.SetCheck(p, FALSE, TRUE);
         }}};
    for (const auto& [pszName, bNeedsMemory, op, undo] : kOperations) {
        EXPECT_GE(this->Refuse(pszName, op, undo), bNeedsMemory ? 1 : 0);
    }
}

TYPED_TEST(TreeMemory, NothingLeavesTheWindowProcedure) {
    auto& tree = this->tree;
    struct Message {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };
    for (const Message& m :
         {Message{WM_PAINT, 0, 0}, Message{WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 100)},
          Message{WM_VSCROLL, SB_PAGEDOWN, 0}, Message{WM_HSCROLL, SB_LINERIGHT, 0},
          Message{WM_LBUTTONDOWN, 0, MAKELPARAM(60, 5)}, Message{WM_KEYDOWN, VK_DOWN, 1},
          Message{WM_KEYDOWN, VK_LEFT, 1}, Message{WM_CHAR, ' ', 1}, Message{WM_SETFOCUS, 0, 0},
          Message{WM_KILLFOCUS, 0, 0}, Message{WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0},
          Message{WM_SETREDRAW, TRUE, 0}, Message{WM_LBUTTONDBLCLK, 0, MAKELPARAM(60, 5)}}) {
        this->Refuse(("message " + std::to_string(m.message)).c_str(),
                     [&] {
                         if (m.message == WM_PAINT) {
                             tree.Invalidate(FALSE);
                             tree.UpdateWindow();
                         } else {
                             ::SendMessage(tree.m_hWnd, m.message, m.wParam, m.lParam);
                         }
                         return true;
                     },
                     [&] {
                         tree.SelectItem(nullptr);
                         tree.SetCheck(this->p, FALSE, TRUE);
                         tree.Expand(this->p, TVE_EXPAND, FALSE, FALSE);
                         tree.EnsureVisible(this->p);
                     });
    }
}

TEST(TreeMemoryFirst, AWindowComesWholeOrNotAtAll) {
    FontParent parent(CSize(300, 100));
    ExpectMadeOrNot<QVTreeCtrlEx>([&](auto& tree) {
        return tree.Create(kTreeStyle, CRect(0, 0, 300, 100), &parent, kTreeId);
    });
}

}  // namespace
