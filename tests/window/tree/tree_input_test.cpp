#include "support/pump.h"
#include "support/real_input.h"
#include "support/tree_window.h"

#include <gtest/gtest.h>

namespace {

// a(a1(a11) a2) b
class TreeInput : public testing::Test {
protected:
    TreeInput() {
        a = w.Add("a");
        a1 = w.Add("a1", a);
        a11 = w.Add("a11", a1);
        a2 = w.Add("a2", a);
        b = w.Add("b");
        BringToFront(w.parent.m_hWnd);
        w.tree.SetFocus();
        PumpPending();
        w.parent.Forget();
    }
    void UseChecks() {
        w.tree.LoadStandardCheckStates();
        w.tree.SetShowStatesAtRoot(TRUE);
        w.tree.Invalidate();
    }
    TreeWindow<> w;
    HTREEITEM a, a1, a11, a2, b;
};

TEST_F(TreeInput, ClickSelectsAndTellsTheParent) {
    ClickAt(w.tree.m_hWnd, w.TextOf(b));
    EXPECT_EQ(w.Told(), "ing ->b | ed ->b");
    EXPECT_EQ(w.tree.GetSelectedItem(), b);
    EXPECT_EQ(CWnd::GetFocus(), &w.tree);
    ClickAt(w.tree.m_hWnd, CPoint(290, w.TextOf(a).y));
    EXPECT_EQ(w.Told(), "ing b>a | ed b>a") << "right of the row counts";
    ClickAt(w.tree.m_hWnd, w.TextOf(a));
    EXPECT_EQ(w.Told(), "ing a>a") << "the selection itself: asked, but nothing changed";
    ClickAt(w.tree.m_hWnd, CPoint(20, 190));
    EXPECT_EQ(w.Told(), "") << "below the rows";
    ClickAt(w.tree.m_hWnd, w.TextOf(b), MouseButton::Right);
    EXPECT_EQ(w.Told(), "ing a>b | ed a>b");
}

TEST_F(TreeInput, NotificationsCarryTheWholeItem) {
    w.tree.SetItemData(b, static_cast<DWORD_PTR>(0x1234567890ull));
    ClickAt(w.tree.m_hWnd, w.TextOf(b));
    const auto* pLast = w.parent.Last(TVN_SELCHANGED);
    ASSERT_NE(pLast, nullptr);
    const auto& nm = pLast->As<NM_TREEVIEW>();
    EXPECT_EQ(nm.hdr.idFrom, kTreeId);
    EXPECT_EQ(nm.hdr.hwndFrom, w.tree.m_hWnd);
    EXPECT_EQ(nm.action, static_cast<UINT>(TVN_SELCHANGED));
    EXPECT_EQ(nm.itemNew.mask, 63u);
    EXPECT_EQ(nm.itemNew.lParam, static_cast<LPARAM>(0x1234567890ull));
    EXPECT_EQ(nm.itemNew.iSelectedImage, 1);
    EXPECT_EQ(nm.itemOld.mask, 0u);
}

TEST_F(TreeInput, ParentRefusesSelectionAndExpansion) {
    w.parent.SetResult(TVN_SELCHANGING, 1);
    ClickAt(w.tree.m_hWnd, w.TextOf(b));
    EXPECT_EQ(w.tree.GetSelectedItem(), nullptr);
    w.parent.SetResult(TVN_ITEMEXPANDING, 1);
    w.Told();
    ClickAt(w.tree.m_hWnd, w.ButtonOf(a));
    EXPECT_EQ(w.Told(), "ex a");
    EXPECT_FALSE(w.tree.ItemExpanded(a));
    w.parent.SetResult(TVN_ITEMEXPANDING, 0);
    ClickAt(w.tree.m_hWnd, w.ButtonOf(a));
    EXPECT_EQ(w.Told(), "ex a | exd a");
    EXPECT_TRUE(w.tree.ItemExpanded(a));
    EXPECT_TRUE(w.tree.GetItemState(a) & TVIS_EXPANDEDONCE);
}

TEST_F(TreeInput, DoubleClickTogglesUnlessTheParentTakesIt) {
    w.tree.SelectItem(a);
    ClickAt(w.tree.m_hWnd, w.TextOf(a), MouseButton::Left, true);
    EXPECT_EQ(w.Told(), "ing a>a | dbl | ex a | exd a");
    EXPECT_TRUE(w.tree.ItemExpanded(a));
    w.parent.SetResult(static_cast<UINT>(NM_DBLCLK), 1);
    Sleep(GetDoubleClickTime());  // the next click must not count as the third of a series
    ClickAt(w.tree.m_hWnd, w.TextOf(a), MouseButton::Left, true);
    EXPECT_EQ(w.Told(), "ing a>a | dbl");
    EXPECT_TRUE(w.tree.ItemExpanded(a));
}

TEST_F(TreeInput, ArrowKeysWalkOpenAndClose) {
    EXPECT_EQ(w.tree.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS | DLGC_WANTCHARS);
    const struct {
        WORD nKey;
        const char* pszTold;
    } kKeys[] = {{VK_DOWN, "ing ->a | ed ->a"},  // without a selection: the top row
                 {VK_RIGHT, "ex a | exd a"},
                 {VK_RIGHT, "ing a>a1 | ed a>a1"},  // open already: one down
                 {VK_LEFT, "ing a1>a | ed a1>a"},   // closed: to the parent
                 {VK_LEFT, "ex a | exd a"},
                 {VK_LEFT, ""},  // a closed root item has nowhere to go
                 {VK_DOWN, "ing a>b | ed a>b"},
                 {VK_DOWN, ""},  // the last row
                 {VK_RIGHT, ""},
                 {VK_UP, "ing b>a | ed b>a"}};
    for (const auto& key : kKeys) {
        TypeKey(key.nKey);
        EXPECT_EQ(w.Told(), key.pszTold) << &key - kKeys;
    }
    w.tree.Expand(a, TVE_EXPAND, TRUE, FALSE);
    w.tree.Expand(a1, TVE_EXPAND, TRUE, FALSE);
    w.tree.SelectItem(a11);
    TypeKey(VK_SPACE);
    EXPECT_EQ(w.Told(), "") << "no children, no picture";
    w.parent.SetResult(TVN_ITEMEXPANDING, 1);
    w.tree.SelectItem(a1);
    TypeKey(VK_LEFT);
    EXPECT_EQ(w.Told(), "ex a1 | ing a1>a | ed a1>a") << "refused: goes on to the parent";
}

TEST_F(TreeInput, ArrowsAtTheEdgeMoveTheRows) {
    std::vector<HTREEITEM> rows{a, b};
    for (int i = 0; i < 40; ++i) {
        rows.push_back(w.Add(std::to_string(i).c_str()));
    }
    HTREEITEM bottom =
        w.tree.HitTest(CPoint(50, 200 / w.RowHeight() * w.RowHeight() - 1), nullptr, nullptr);
    w.tree.SelectItem(bottom);
    TypeKey(VK_DOWN);
    EXPECT_EQ(w.tree.GetSelectedItem(), w.tree.NextDisplayableItem(bottom));
    EXPECT_EQ(w.tree.GetNextItem(nullptr, TVGN_FIRSTVISIBLE), b);
    w.tree.SelectItem(b);
    TypeKey(VK_UP);
    EXPECT_EQ(w.tree.GetSelectedItem(), a);
    EXPECT_EQ(w.tree.GetNextItem(nullptr, TVGN_FIRSTVISIBLE), a);
    // A parent above the view comes to the top row.
    w.tree.Expand(a, TVE_EXPAND, TRUE, FALSE);
    w.tree.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    w.tree.SelectItem(a2);
    TypeKey(VK_LEFT);
    EXPECT_EQ(w.tree.GetSelectedItem(), a);
    EXPECT_EQ(w.tree.GetNextItem(nullptr, TVGN_FIRSTVISIBLE), a);
}

TEST_F(TreeInput, WheelScrollsThreeRowsANotch) {
    for (int i = 0; i < 40; ++i) {
        w.Add("more");
    }
    Wheel(w.tree.m_hWnd, -WHEEL_DELTA);
    EXPECT_EQ(w.tree.GetScrollPos(SB_VERT), 3);
    const UINT nOldWheel = ::RegisterWindowMessage("MSWHEEL_ROLLMSG");
    w.tree.SendMessage(nOldWheel, static_cast<WPARAM>(-WHEEL_DELTA));
    EXPECT_EQ(w.tree.GetScrollPos(SB_VERT), 6) << "an old driver's message";
}

TEST_F(TreeInput, CheckMarkToldAsAChangeOfTheSameItemWithoutSelection) {
    UseChecks();
    ClickAt(w.tree.m_hWnd, w.CheckOf(b));
    EXPECT_EQ(w.Told(), "ing b>b | ed b>b");
    EXPECT_EQ(w.tree.GetItemStateImage(b), 1u);
    EXPECT_EQ(w.tree.GetSelectedItem(), b);
    TypeKey(VK_SPACE);
    EXPECT_EQ(w.tree.GetItemStateImage(b), 0u);
    w.tree.SetItemStateImage(b, 2, FALSE);
    TypeKey(VK_SPACE);
    EXPECT_EQ(w.tree.GetItemStateImage(b), 1u) << "a grey box is an empty one";
    w.tree.SetAllowTags(FALSE);
    w.Told();
    ClickAt(w.tree.m_hWnd, w.CheckOf(a));
    EXPECT_EQ(w.Told(), "ing b>a | ed b>a") << "marks are not allowed: an ordinary selection";
    EXPECT_FALSE(w.tree.GetCheck(a));
}

TEST_F(TreeInput, CheckMarksCascadeAndARefusedItemKeepsItsBranch) {
    UseChecks();
    w.parent.m_hook = [this](NMHDR* pHdr, LRESULT* pResult) {
        const auto* pTree = reinterpret_cast<NM_TREEVIEW*>(pHdr);
        *pResult = pHdr->code == TVN_SELCHANGING && pTree->itemNew.hItem == a1;
        return true;
    };
    ClickAt(w.tree.m_hWnd, w.CheckOf(a));
    EXPECT_EQ(w.Told(), "ing a>a | ed a>a | ing a1>a1 | ing a2>a2 | ed a2>a2");
    EXPECT_TRUE(w.tree.GetCheck(a) && w.tree.GetCheck(a2));
    EXPECT_FALSE(w.tree.GetCheck(a1) || w.tree.GetCheck(a11));
    w.parent.m_hook = [](NMHDR* pHdr, LRESULT*) {
        auto* pTree = reinterpret_cast<NM_TREEVIEW*>(pHdr);
        if (pHdr->code == TVN_SELCHANGING) {  // another picture than the one proposed
            pTree->itemNew.state = (pTree->itemNew.state & 0xFFFu) | 3u << 12;
        }
        return false;
    };
    w.tree.SetAutoTagChildren(FALSE);
    ClickAt(w.tree.m_hWnd, w.CheckOf(b));
    EXPECT_EQ(w.tree.GetItemStateImage(b), 3u);
}

}  // namespace
