#include "support/failing_new.h"
#include "support/test_tree.h"

#include <cstring>
#include <gtest/gtest.h>
#include <tuple>

namespace {

TEST(TreeInsert, PutsItemsWhereThePositionSays) {
    TestTree tree;
    HTREEITEM b = tree.Add("b");
    EXPECT_EQ(tree.Root(), b);
    EXPECT_EQ(tree.Top(), b);
    tree.Add("d", TVI_ROOT, TVI_LAST);
    tree.Add("a", nullptr, TVI_FIRST);
    tree.Add("c", nullptr, b);
    tree.Add("C", nullptr, TVI_SORT);
    EXPECT_EQ(tree.Children(nullptr), "a b c C d") << "an equal item goes behind its equals";
    tree.Replace([](HTREEITEM, HTREEITEM) { return -5; });
    tree.Add("e", nullptr, TVI_SORT);
    EXPECT_EQ(tree.Children(nullptr), "a b c C d e") << "only -1 is less";
    tree.Add("b2", b);
    tree.Add("b1", b, TVI_FIRST);
    EXPECT_EQ(tree.Children(b), "b1 b2");
    EXPECT_EQ(b->pFirstChild->nLevel, 1);
    EXPECT_TRUE(tree.CheckInvariants());
}

TEST(TreeInsert, BehindAnItemOfAnotherParentTakesThatParent) {
    TestTree tree;
    HTREEITEM r = tree.Add("r");
    HTREEITEM s = tree.Add("s");
    HTREEITEM x = tree.Add("x", s, r);
    EXPECT_EQ(tree.Children(nullptr), "r x s");
    EXPECT_EQ(x->pParent, nullptr);
    EXPECT_EQ(s->pFirstChild, nullptr);
    HTREEITEM y = tree.Add("y", s);
    HTREEITEM z = tree.Add("z", nullptr, y);
    EXPECT_EQ(tree.Children(s), "y z");
    EXPECT_EQ(z->nLevel, 1);
    EXPECT_TRUE(tree.CheckInvariants());
    tree.DeleteItem(s);
    EXPECT_EQ(tree.Walk(), "r x");
    EXPECT_TRUE(tree.CheckInvariants());
}

TEST(TreeInsert, DeletedHandlesAreHarmless) {
    TestTree tree;
    HTREEITEM a = tree.Add("a");
    HTREEITEM b = tree.Add("b");
    tree.DeleteItem(b);
    EXPECT_EQ(b->pszText, nullptr);
    EXPECT_EQ(b->nState, 0u);
    EXPECT_EQ(b->dwData, 0u);
    EXPECT_FALSE(tree.DeleteItem(b));
    EXPECT_EQ(tree.Add("x", b), nullptr);
    HTREEITEM c = tree.Add("c", nullptr, b);
    EXPECT_EQ(c, b) << "the next insertion uses the record again";
    EXPECT_EQ(tree.Children(nullptr), "a c");
    EXPECT_EQ(a->pNextSibling, c);
    EXPECT_TRUE(tree.CheckInvariants());

    HTREEITEM a1 = tree.Add("a1", a);
    tree.DeleteItem(a1);
    HTREEITEM n = tree.Add("n", c, a1);
    EXPECT_EQ(n, a1);
    EXPECT_EQ(tree.Children(c), "n") << "behind an item that its own record once was";
    EXPECT_EQ(n->nLevel, 1);
    EXPECT_TRUE(tree.CheckInvariants());
}

TEST(TreeSort, AComparisonThatChangesTheTreeStopsIt) {
    for (const bool bSort : {true, false}) {
        for (const bool bAll : {true, false}) {
            TestTree tree;
            HTREEITEM p = tree.Add("p");
            HTREEITEM a = tree.Add("a", p);
            tree.Add("b", p);
            tree.Replace([&](HTREEITEM, HTREEITEM) {
                bAll ? tree.DeleteAllItems() : void(tree.DeleteItem(a));
                return 1;
            });
            EXPECT_FALSE(bSort ? tree.SortChildren(p) : tree.Add("d", p, TVI_SORT) != nullptr);
            EXPECT_EQ(tree.Walk(), bAll ? "" : "p b");
            EXPECT_TRUE(tree.CheckInvariants());
        }
    }
}

TEST(TreeInsert, WithoutMemoryLeavesTheTreeAsItWas) {
    for (int nSucceeding = 0; nSucceeding < 3; ++nSucceeding) {
        TestTree tree;
        for (int i = 0; i < 16; ++i) {  // the first slab is full then
            tree.Add("item");
        }
        const std::string strBig(5000, 'x');
        HTREEITEM h;
        {
            const FailingNew failing(nSucceeding);
            h = tree.InsertItem(strBig.c_str(), 0, 0, nullptr, nullptr);
        }
        EXPECT_EQ(h, nullptr) << nSucceeding;
        EXPECT_TRUE(tree.CheckInvariants());
        EXPECT_NE(tree.Add("next"), nullptr);
        EXPECT_TRUE(tree.CheckInvariants());
    }
}

TEST(TreeSort, AStepThatFailsLeavesTheTreeAsItWas) {
    TestTree tree;
    HTREEITEM p = tree.Add("p");
    tree.Add("b", p);
    tree.Add("a", p);
    {
        const FailingNew failing(2);
        EXPECT_FALSE(tree.SortChildren(p));
    }
    tree.Replace([](HTREEITEM, HTREEITEM) -> int { throw std::bad_alloc(); });
    EXPECT_EQ(tree.Add("c", p, TVI_SORT), nullptr);
    EXPECT_FALSE(tree.SortChildren(p));
    tree.Replace([](HTREEITEM, HTREEITEM) -> int { throw 1; });
    EXPECT_THROW(tree.Add("c", p, TVI_SORT), int);
    EXPECT_THROW(tree.SortChildren(p), int);
    EXPECT_EQ(tree.Walk(), "p b a");
    EXPECT_TRUE(tree.CheckInvariants());
}

TEST(TreeText, KeepsTheOldTextWithoutMemoryAndTakesPartsOfItself) {
    TestTree tree;
    HTREEITEM h = tree.Add("some text");
    const std::string strBig(5000, 'x');
    {
        const FailingNew failing(0);
        EXPECT_FALSE(tree.SetItemText(h, strBig.c_str()));
    }
    EXPECT_STREQ(h->pszText, "some text");
    EXPECT_TRUE(tree.SetItemText(h, h->pszText + 5));
    EXPECT_STREQ(h->pszText, "text");
}

class TreeNavigation : public testing::Test {
protected:
    // a(a1(x) a2) b(b1) c
    TreeNavigation() {
        a = tree.Add("a");
        a1 = tree.Add("a1", a);
        x = tree.Add("x", a1);
        a2 = tree.Add("a2", a);
        b = tree.Add("b");
        b1 = tree.Add("b1", b);
        c = tree.Add("c");
    }
    TestTree tree;
    HTREEITEM a, a1, x, a2, b, b1, c;
};

TEST_F(TreeNavigation, CodesLeadToRelatives) {
    for (const auto& [nCode, from, to] : {std::tuple{TVGN_ROOT, x, a},
                                          {TVGN_NEXT, a, b},
                                          {TVGN_PREVIOUS, b, a},
                                          {TVGN_PARENT, a2, a},
                                          {TVGN_CHILD, a, a1},
                                          {TVGN_CHILD, nullptr, a},
                                          {10u, a, nullptr}}) {
        EXPECT_EQ(tree.Items().GetNextItem(from, nCode), to) << nCode;
    }
    for (unsigned nCode : {TVGN_ROOT, TVGN_NEXT, TVGN_PREVIOUS, TVGN_PARENT, TVGN_NEXTVISIBLE,
                           TVGN_PREVIOUSVISIBLE, TVGN_DROPHILITE, 10u}) {
        EXPECT_EQ(tree.Items().GetNextItem(nullptr, nCode), nullptr) << nCode;
    }
    EXPECT_TRUE(tree.Items().CheckForAncestor(x, a));
    EXPECT_FALSE(tree.Items().CheckForAncestor(a, a));
    EXPECT_FALSE(tree.Items().CheckForAncestor(nullptr, a));
}

TEST_F(TreeNavigation, WalkTakesAllItemsAndRowsFollowExpansionBothWays) {
    EXPECT_EQ(tree.Walk(), "a a1 x a2 b b1 c");
    EXPECT_EQ(tree.Rows(), "a b c");
    tree.Expand(a, TVE_EXPAND, false, false);
    tree.Expand(a1, TVE_EXPAND, false, false);
    EXPECT_EQ(tree.Rows(), "a a1 x a2 b c");
    for (HTREEITEM h = a; h != c; h = tree.Items().WalkNext(h)) {
        EXPECT_EQ(tree.Items().WalkPrev(tree.Items().WalkNext(h)), h);
    }
    EXPECT_EQ(tree.Items().WalkPrev(a), nullptr);
    for (HTREEITEM h = a; h != c; h = tree.Items().NextDisplayableItem(h)) {
        EXPECT_EQ(tree.Items().LastDisplayableItem(tree.Items().NextDisplayableItem(h)), h);
    }
}

TEST_F(TreeNavigation, FindLooksAtDirectChildrenBehindTheFirstCode) {
    tree.styles.Add(3, 4);
    HTREEITEM styled = tree.InsertItem("\033bName\tCell", 5, 6, a, nullptr);
    EXPECT_EQ(tree.Items().FindItem(a, "NAME\tcell", -1), styled);
    EXPECT_EQ(tree.Items().FindItem(a, "name\tcell", 5), styled);
    EXPECT_EQ(tree.Items().FindItem(a, "name\tcell", 6), nullptr);
    EXPECT_EQ(tree.Items().FindItem(a, "name", -1), nullptr);
    EXPECT_EQ(tree.Items().FindItem(nullptr, "x", -1), nullptr) << "no deeper";
    EXPECT_EQ(tree.Items().FindItem(nullptr, "B", -1), b);
}

TEST_F(TreeNavigation, DeletingMovesSelectionAndTopOutOfTheBranch) {
    tree.window.size = {200, 32};  // two rows
    tree.Expand(a, TVE_EXPAND, false, false);
    tree.SelectItem(a1);
    tree.ShowAtTop(a1);
    tree.DeleteItem(a);
    EXPECT_EQ(tree.Items().Selected(), b);
    EXPECT_TRUE(b->nState & TVIS_SELECTED);
    EXPECT_EQ(tree.Top(), b);
    EXPECT_EQ(tree.Root(), b);
    EXPECT_EQ(tree.nNotified, 0);
    tree.SelectItem(c);
    tree.DeleteItem(c);
    EXPECT_EQ(tree.Items().Selected(), b) << "the last row hands the selection upwards";
    tree.DeleteItem(nullptr);
    EXPECT_EQ(tree.Items().Selected(), nullptr);
    EXPECT_EQ(tree.Walk(), "");
    EXPECT_TRUE(tree.CheckInvariants());
}

TEST_F(TreeNavigation, ChangeParentMovesTheItemAloneInLevel) {
    EXPECT_FALSE(tree.ChangeParent(a, x)) << "below itself";
    EXPECT_FALSE(tree.ChangeParent(a, a));
    EXPECT_FALSE(tree.ChangeParent(nullptr, a));
    EXPECT_TRUE(tree.ChangeParent(a1, a)) << "the parent it has: nothing moves";
    EXPECT_EQ(tree.Children(a), "a1 a2");
    EXPECT_TRUE(tree.ChangeParent(a1, b1));
    EXPECT_EQ(tree.Walk(), "a a2 b b1 a1 x c");
    EXPECT_EQ(a1->nLevel, 2);
    EXPECT_EQ(x->nLevel, 2) << "descendants keep their level until they are inserted again";
    EXPECT_TRUE(tree.ChangeParent(b1, nullptr));
    EXPECT_EQ(tree.Children(nullptr), "a b c b1");
    EXPECT_TRUE(tree.CheckInvariants());
}

TEST_F(TreeNavigation, FirstRootItemKeepsTheRootPointerWhenItIsMoved) {
    tree.ChangeParent(a, c);
    EXPECT_EQ(tree.Root(), a);
    EXPECT_EQ(tree.Rows(), "a") << "rows are walked from there";
    EXPECT_TRUE(tree.CheckInvariants());
    tree.Add("d");
    EXPECT_EQ(c->pNextSibling->pszText, std::string("d")) << "the root level itself is whole";
    tree.Add("first", nullptr, TVI_FIRST);
    EXPECT_EQ(tree.Children(nullptr), "first b c d");
    EXPECT_TRUE(tree.CheckInvariants());
    tree.ChangeParent(tree.Root(), b);
    tree.DeleteItem(b);
    EXPECT_EQ(tree.Children(nullptr), "c d") << "the moved start went with its new parent";
    EXPECT_TRUE(tree.CheckInvariants());
}

TEST(TreeDelete, DepthCostsNoStack) {
    TestTree tree;
    tree.SetRedraw(false);
    HTREEITEM hTop = tree.Add("0");
    HTREEITEM h = hTop;
    for (int i = 0; i < 200000; ++i) {
        h = tree.Add("d", h);
    }
    EXPECT_EQ(h->nLevel, 32767) << "deeper levels stay at the largest";
    tree.SetItemStateImage(hTop->pFirstChild, 1, true);
    EXPECT_EQ(tree.Items().GetItemStateImage(h), 1u);
    tree.DeleteItem(hTop);
    EXPECT_EQ(tree.Root(), nullptr);
    EXPECT_TRUE(tree.CheckInvariants());
}

TEST(TreeSort, OrdersChildrenByTextOrByTheReplacedStep) {
    TestTree tree;
    HTREEITEM p = tree.Add("p");
    EXPECT_FALSE(tree.SortChildren(nullptr));
    EXPECT_FALSE(tree.SortChildren(p));
    for (const char* psz : {"delta", "Alpha", "charlie", "bravo", "alpha", "\033aalpha0",
                            "averylongname1", "averylongname0"}) {
        tree.Add(psz, p);
    }
    EXPECT_TRUE(tree.SortChildren(p));
    EXPECT_EQ(tree.Children(p),
              "Alpha alpha \033aalpha0 averylongname0 averylongname1 bravo charlie delta");
    EXPECT_TRUE(tree.CheckInvariants());
    tree.Replace([](HTREEITEM h1, HTREEITEM h2) { return -std::strcmp(h1->pszText, h2->pszText); });
    EXPECT_TRUE(tree.SortChildren(p));
    EXPECT_EQ(tree.Children(p).substr(0, 13), "delta charlie");
    EXPECT_TRUE(tree.CheckInvariants());
}

TEST(TreeChecks, RootItemsCarryMarksOnlyWhenAllowed) {
    TestTree tree;
    HTREEITEM r = tree.Add("r");
    HTREEITEM s = tree.Add("s", r);
    tree.SetItemStateImage(r, 1, true);
    EXPECT_EQ(tree.Items().GetItemStateImage(s), 0u) << "nothing happens below it either";
    tree.SetItemStateImage(s, 3, false);
    EXPECT_EQ(tree.Items().GetNextCheckedItem(nullptr, 255), s);
    EXPECT_EQ(tree.Items().GetNextCheckedItem(nullptr, 3), s);
    EXPECT_EQ(tree.Items().GetNextCheckedItem(nullptr, 0), r)
        << "an item without picture counts as 0";
    EXPECT_EQ(tree.Items().GetNextCheckedItem(s, 255), nullptr);
    tree.ShowStatesAtRoot(true);
    tree.SetItemStateImage(r, 2, true);
    EXPECT_EQ(tree.Items().GetItemStateImage(r), 2u);
    EXPECT_EQ(tree.Items().GetItemStateImage(s), 2u);
    EXPECT_EQ(qv::TreeItems::SetStateImage(0x12345678, 0xAB), 0x1234B678u);
}

TEST(TreeStyles, ChangeGoesUpTheTreeAndCountsWhatHadACode) {
    TestTree tree;
    tree.styles.Add(3, 4);
    tree.styles.Add(5, 6);
    HTREEITEM a = tree.Add("\033aroot");
    HTREEITEM b = tree.Add("plain", a);
    HTREEITEM c = tree.Add("\033cworse", b);
    HTREEITEM d = tree.Add("\033aleaf", c);
    EXPECT_EQ(tree.ChangeItemStyles(d, 1, true, true), 2);
    EXPECT_STREQ(a->pszText, "\033broot");
    EXPECT_STREQ(b->pszText, "plain");
    EXPECT_STREQ(c->pszText, "\033cworse") << "a style of its own stays";
    EXPECT_EQ(tree.ChangeItemStyles(a, 2, true, false), 1);
    EXPECT_EQ(tree.ChangeItemStyles(nullptr, 2, true, false), 0);
}

TEST(TreeWatch, SeesAnItemGoThoughItsRecordIsUsedAgain) {
    TestTree tree;
    HTREEITEM a = tree.Add("a");
    const qv::TreeItems::Watch watchTree(tree.Items(), nullptr);
    const qv::TreeItems::Watch watch(tree.Items(), a);
    EXPECT_TRUE(watch.ItemAlive());
    tree.DeleteItem(a);
    EXPECT_FALSE(watch.ItemAlive());
    EXPECT_EQ(tree.Add("again"), a);
    EXPECT_FALSE(watch.ItemAlive());
    const qv::TreeItems::Watch watchAgain(tree.Items(), a);
    tree.DeleteAllItems();
    EXPECT_FALSE(watchAgain.ItemAlive());
    EXPECT_TRUE(watchTree.ItemAlive()) << "a watch of no item is one of the tree";
}

}  // namespace
