// Each allocation of each operation is refused in turn: nothing may be thrown, an operation that
// gives its error result has changed nothing, and the next paint shows what there is.
#include "support/failing_heap.h"
#include "support/picture.h"
#include "support/tree_window.h"

#include <gtest/gtest.h>

namespace {

// Needs no memory of its own for what the tree tells it.
class QuietParent : public FontParent {
public:
    QuietParent() : FontParent(CSize(300, 100)) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == WM_NOTIFY ? 0 : FontParent::WindowProc(message, wParam, lParam);
    }
};

// Notices what leaves its window procedure.
class WatchedTree : public QVTreeCtrlEx {
public:
    int nThrown = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        try {
            return QVTreeCtrlEx::WindowProc(message, wParam, lParam);
        } catch (...) {
            ++nThrown;
            return 0;
        }
    }
};

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
    template <class Op, class Undo>
    int Refuse(const char* pszName, Op op, Undo undo) {
        const std::string strBefore = State();
        const Picture before = Shown();
        int nAll = 0;
        for (const auto mode : {FailingHeap::kAllLater, FailingHeap::kJustOne}) {
            bool bDone = false;
            bool bThrown = false;
            nAll += RefuseEachAllocation(
                mode,
                [&] {
                    try {
                        bDone = op();
                    } catch (...) {
                        bThrown = true;
                    }
                },
                [&](int n) {
                    EXPECT_FALSE(bThrown) << pszName << " " << n;
                    if (bDone) {
                        undo();
                    }
                    EXPECT_EQ(State(), strBefore) << pszName << " " << n;
                    EXPECT_TRUE(Shown() == before) << pszName << " " << n;
                    bThrown = false;
                });
            EXPECT_TRUE(bDone) << pszName;
        }
        EXPECT_EQ(tree.nThrown, 0) << pszName;
        return nAll;
    }
    Picture Shown() {
        tree.SetRedraw(TRUE);
        tree.EnsureVisible(p);
        tree.Invalidate(FALSE);
        return Picture::OfClient(tree.m_hWnd);
    }

    QuietParent parent;
    Tree tree;
    HTREEITEM p, q;
};

using Trees = testing::Types<WatchedTree, GreedyTree>;
TYPED_TEST_SUITE(TreeMemory, Trees);

TYPED_TEST(TreeMemory, ItemsComeGoAndMoveOrStay) {
    auto& tree = this->tree;
    const HTREEITEM p = this->p, q = this->q;
    const std::string strLong(20000, 'x');
    HTREEITEM h = nullptr;
    for (const HTREEITEM hAfter : {TVI_LAST, TVI_FIRST, TVI_SORT}) {
        const auto insert = [&] {
            h = tree.InsertItem(strLong.c_str(), 0, 0, p, hAfter);
            return h != nullptr;
        };
        EXPECT_GT(this->Refuse("insert", insert, [&] { tree.DeleteItem(h); }), 0);
    }
    const HTREEITEM hLast = tree.GetLastChild(p);
    this->Refuse(
        "move", [&] { return tree.ChangeParent(hLast, q) != 0; },
        [&] { tree.ChangeParent(hLast, p); });
    EXPECT_GT(this->Refuse(
                  "sort", [&] { return tree.SortChildren(p) != 0; },
                  [&] {
                      tree.DeleteChildren(p);
                      this->Fill();
                  }),
              0);
    this->Refuse(
        "delete", [&] { return tree.DeleteItem(tree.GetLastChild(p)) != 0; },
        [&] { this->Add("row 0", p); });
    this->Refuse(
        "empty", [&] { return tree.DeleteChildren(p) != 0; }, [&] { this->Fill(); });
    const CString strOld = tree.GetItemText(q);
    const CString strNew(strLong.c_str());
    this->Refuse(
        "text",
        [&] {
            tree.SetItemText(q, strNew);
            return true;
        },
        [&] { tree.SetItemText(q, strOld); });
    this->Refuse(
        "states", [&] { return tree.LoadTreeStates(30008) != 0; }, [] {});
}

TYPED_TEST(TreeMemory, TheViewFollowsOrIsFittedLater) {
    auto& tree = this->tree;
    const HTREEITEM p = this->p, q = this->q;
    this->Refuse(
        "expand", [&] { return tree.Expand(p, TVE_TOGGLE, TRUE, FALSE) != 0; },
        [&] { tree.Expand(p, TVE_EXPAND, TRUE, FALSE); });
    this->Refuse(
        "select", [&] { return tree.SelectItem(q) != 0; }, [&] { tree.SelectItem(nullptr); });
    this->Refuse(
        "show", [&] { return tree.EnsureVisible(q) != 0; }, [&] { tree.EnsureVisible(p); });
    CRect rc;
    this->Refuse(
        "rectangle", [&] { return tree.GetItemRect(p, &rc, TRUE) != 0; }, [] {});
    this->Refuse(
        "hit", [&] { return tree.HitTest(CPoint(30, 5), nullptr, nullptr) == p; }, [] {});
    const int stops[] = {100, 20200};
    this->Refuse(
        "stops",
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
        });
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
    QuietParent parent;
    for (const auto mode : {FailingHeap::kAllLater, FailingHeap::kJustOne}) {
        auto pTree = std::make_unique<WatchedTree>();
        BOOL bMade = FALSE;
        bool bThrown = false;
        RefuseEachAllocation(
            mode,
            [&] {
                try {
                    bMade = pTree->Create(kTreeStyle, CRect(0, 0, 300, 100), &parent, kTreeId);
                } catch (...) {
                    bThrown = true;
                }
            },
            [&](int n) {
                EXPECT_FALSE(bThrown) << n;
                EXPECT_EQ(bMade != FALSE, pTree->m_hWnd != nullptr) << n;
                EXPECT_EQ(pTree->nThrown, 0) << n;
                pTree = std::make_unique<WatchedTree>();
            });
        EXPECT_TRUE(bMade);
    }
}

}  // namespace
