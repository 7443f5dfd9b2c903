// What controls tell a screen reader: asked from another program, as such a reader does, and, with
// anything in any order, from this one.
#include "support/accessible_questions.h"
#include "support/list_window.h"
#include "support/real_input.h"

#include <gtest/gtest.h>
#include <oleacc.h>

namespace {

// --- The tree

class CountingTree : public QVTreeCtrlEx {
public:
    CString GetAccessibleName(long nPart) override {
        ++m_nAsked;
        m_throw ? m_throw() : void();
        return QVTreeCtrlEx::GetAccessibleName(nPart);
    }
    long GetAccessiblePart(long nIndex) override {
        ++m_nAsked;
        return QVTreeCtrlEx::GetAccessiblePart(nIndex);
    }
    int m_nAsked = 0;
    std::function<void()> m_throw;
};

class AccessibleTree : public Accessible {
protected:
    AccessibleTree() {
        w.tree.LoadStandardCheckStates();
        const int stops[] = {100};
        w.tree.UseTabs(stops, 1);
        w.tree.AddStyle(0, 0xFFFFFF);
        fruit = w.Add("\033bfruit\t2");  // part 1
        apple = w.Add("apple\t\033b5 kg\tnot shown", fruit);
        pear = w.Add("pear", fruit);
        last = w.Add("last");
        w.tree.Expand(fruit, TVE_EXPAND, TRUE, FALSE);
        w.tree.SetCheck(apple, TRUE, FALSE);
        w.tree.SetFocus();
        PumpPending();
        Watch(w.tree);
    }
    TreeWindow<CountingTree> w;
    HTREEITEM fruit, apple, pear, last;
};

TEST_F(AccessibleTree, SaysItsRowsWithLevelPlaceAndMarks) {
    Expect(
        {{"say 0", "outline [focused focusable]"},
         {"all 0 9",
          "1: outline item \"fruit, 2\" value \"0\" description \"1 of 2\" [expanded focusable "
          "selectable] action \"Collapse\"\n"
          "2: outline item \"apple, 5 kg\" value \"1\" description \"1 of 2\" [checked focusable "
          "selectable] action \"Uncheck\"\n"
          "3: outline item \"pear\" value \"1\" description \"2 of 2\" [focusable selectable] "
          "action \"Check\"\n"
          "4: outline item \"last\" value \"0\" description \"2 of 2\" [focusable selectable]"}});
    w.tree.SetAccessibleHeadings("Name\tSize");
    w.tree.SetAllowTags(FALSE);
    w.tree.SetItemStateImage(apple, 3, FALSE);
    Expect({{"say 2",
             "outline item \"apple\" value \"1\" description \"Size: 5 kg, 1 of 2\" "
             "[checked mixed focusable selectable]"}});
    w.tree.Expand(fruit, TVE_COLLAPSE, TRUE, FALSE);
    Expect({{"count", "2"},
            {"event 3",
             "outline item \"pear\" value \"1\" [invisible offscreen focusable "
             "selectable]"}});
}

TEST_F(AccessibleTree, IsWalkedAndFoundByPoints) {
    const CRect rc = w.RectOf(pear, FALSE);
    const std::string strSize =
        ' ' + std::to_string(rc.Width()) + ' ' + std::to_string(rc.Height());
    Expect({{"go 0 7", "1"},
            {"go 0 8", "4"},
            {"go 1 2", "2"},
            {"go 3 1", "2"},
            {"go 3 5", "4"},
            {"go 2 3", "1"},
            {"go 1 4", "2"},
            {"go 4 4", "none"},
            {"go 4 2", "none"},
            {"go 1 9", kInvalid},
            {"go 9 1", kInvalid},
            {"say 5", kInvalid},
            {"say -1", kInvalid},
            {"where 3", OnScreen(w.tree, rc.TopLeft()) + strSize},
            {"hit " + OnScreen(w.tree, rc.CenterPoint()), "3"},
            {"hit " + OnScreen(w.tree, CPoint(5, 190)), "0"},
            {"hit " + OnScreen(w.tree, CPoint(-5, 5)), "none"},
            {"focus", "0"},
            {"selection", "none"}});
}

TEST_F(AccessibleTree, DoesAsUsersDoAndTellsIt) {
    Ask("heard");
    Expect({{"select 3 3", kDone},
            {"heard", "focus 3, selection 3"},
            {"focus", "3"},
            {"selection", "3"},
            {"do 3", kDone},
            {"heard", "state 3"},
            {"do 4", kNoDeed},
            {"select 2 8", "0x00000001"},
            {"select 2 10", kInvalid}});
    EXPECT_EQ(w.Told(), "ing ->pear | ed ->pear | ing pear>pear | ed pear>pear");
    EXPECT_TRUE(w.tree.GetCheck(pear));
    w.parent.SetResult(TVN_SELCHANGING, 1);
    Expect({{"select 2 2", "0x00000001"}, {"heard", ""}});
    w.parent.SetResult(TVN_SELCHANGING, 0);
    // Closing the branch takes the selection up.
    Expect({{"do 1", kDone}, {"heard", "focus 1, selection 1, state 1, reorder 0"}});
    w.tree.SetItemText(last, "new");
    w.tree.DeleteItem(fruit);
    Expect({{"heard", "name 4, focus 4, selection 4, reorder 0"}, {"say 1", kInvalid}});
}

TEST_F(AccessibleTree, CostsTheSameWithManyRows) {
    w.tree.SetRedraw(FALSE);
    for (int i = 4; i < 100'000; ++i) {
        w.Add("row");
    }
    w.tree.SetRedraw(TRUE);
    w.tree.m_nAsked = 0;
    Expect({{"heard", "reorder 0"},
            {"count", "100000"},
            {"all 99999 5",
             "100000: outline item \"row\" value \"0\" description \"99998 of "
             "99998\" [invisible offscreen focusable selectable]"},
            {"go 50000 2", "50001"},
            {"go 0 8", "100000"}});
    EXPECT_LT(w.tree.m_nAsked, 9);
}

TEST_F(AccessibleTree, WhatAReplacedStepThrowsEndsThere) {
    constexpr char kRest[] = " value \"0\" description \"2 of 2\" [focusable selectable]";
    w.tree.m_throw = [] { throw 1; };
    EXPECT_EQ(Ask("say 4"), std::string("outline item 0x80004005") + kRest);
    w.tree.m_throw = [] { AfxThrowFileException(CFileException::diskFull); };
    EXPECT_EQ(Ask("say 4"), std::string("outline item 0x80004005") + kRest);
    w.tree.m_throw = [] { throw std::bad_alloc(); };
    EXPECT_EQ(Ask("say 4"), std::string("outline item 0x8007000E") + kRest);
}

// A parent that takes the tree away in what a deed tells it.
TEST_F(Accessible, AnObjectOutlivesItsControl) {
    for (const bool bDelete : {false, true}) {
        FontParent parent(CSize(300, 200));
        auto tree = std::make_unique<Mortal<QVTreeCtrlEx>>();
        tree->Create(kTreeStyle, CRect(0, 0, 300, 200), &parent, kTreeId);
        const HTREEITEM h = tree->InsertItem("a", 0, 0, nullptr, TVI_LAST);
        tree->InsertItem("b", 0, 0, h, TVI_LAST);
        parent.m_hook = [&](NMHDR*, LRESULT*) {
            bDelete ? tree.reset() : void(tree->DestroyWindow());
            return false;
        };
        Watch(*tree);
        Expect({{"do 1", kDone},
                {"say 0", kGone},
                {"count", kGone},
                {"all 0 1", kGone},
                {"hit 1 1", kGone},
                {"do 1", kGone}});
        parent.m_hook = nullptr;
    }
}

// --- What the window gives

TEST_F(Accessible, TheLabelBeforeAControlIsItsName) {
    RecordingParent parent;
    parent.SetWindowText("Frame");
    CStatic label;
    label.Create("&Fruit && more:", WS_CHILD | WS_VISIBLE, CRect(0, 0, 90, 20), &parent);
    QVTreeCtrlEx tree;
    tree.Create(kTreeStyle, CRect(0, 30, 90, 90), &parent, kTreeId);
    Watch(tree);
    Expect({{"say 0", "outline \"Fruit & more:\" [focusable]"}});
    const std::string strBeside = Ask("beside");
    EXPECT_NE(strBeside.find("shortcut \"Alt+F\"\nits window"), std::string::npos) << strBeside;
    EXPECT_EQ(strBeside.find("parent object: "), 0u);
    QVTreeHeaderWnd captioned;
    CRect rc(100, 30, 190, 90);
    captioned.SetHeaderText("R&D");
    captioned.Create(WS_CHILD | WS_VISIBLE, rc, &parent, 5);
    Watch(captioned.GetTreeCtrl());
    Expect({{"say 0", "outline \"R&D\" [focusable]"}});
    captioned.SetHeaderText("B&B");
    Expect({{"say 0", "outline \"B&B\" [focusable]"}});
    Watch(tree);
    tree.SetWindowText("own &name");
    tree.EnableWindow(FALSE);
    tree.ShowWindow(SW_HIDE);
    Expect({{"say 0", "outline \"own name\" [unavailable invisible]"}});
}

// --- The list

class AccessibleList : public Accessible {
protected:
    AccessibleList() : w("Name\tSize\tIt") {
        w.list.ModifyStyle(LVS_SINGLESEL, 0);
        w.list.AddStyle(0, 0xFFFFFF);
        w.list.SetColWidth(2, 0, nullptr);
        for (const char* psz : {"\033bapple\t5 kg\tx", "pear\t\ty", "plum\t\033b1 kg"}) {
            w.Add(psz);
        }
        w.list.SetFocus();
        w.list.UpdateWindow();
        PumpPending();
        Watch(w.list);
    }
    ListWindow<> w;
};

TEST_F(AccessibleList, SaysRowsAndHeadings) {
    constexpr char kRow[] =
        " [focusable selectable multi selectable extended selectable] action \"Double Click\"";
    w.list.SetColWidth(2, 0, nullptr);
    Expect({{"all 1 5", "2: list item \"pear\"" + std::string(kRow) +
                            "\n3: list item \"plum\" description \"Size: 1 kg\"" + kRow +
                            "\n1073741824: column header \"Name\" [] action \"Click\"" +
                            "\n1073741825: column header \"Size\" [] action \"Click\"" +
                            "\n1073741826: column header \"It\" [invisible] action \"Click\""},
            {"count", "6"},
            {"say 4", kInvalid},
            {"say 1073741827", kInvalid},
            {"go 1 5", "2"},
            {"go 3 2", "none"},
            {"go 1073741824 4", "1073741825"},
            {"go 1 4", "none"},
            {"hit " + OnScreen(w.list, w.RectOf(1).CenterPoint()), "2"},
            {"hit " + OnScreen(w.list, CPoint(5, 5)), "1073741824"},
            {"hit " + OnScreen(w.list, CPoint(5, 190)), "0"}});
}

TEST_F(AccessibleList, IsWalkedAsItIsShown) {
    int order[] = {2, 0, 1};
    w.list.SetColumnOrderArray(3, order);
    Expect({{"go 1073741824 3", "1073741826"},
            {"go 1073741824 4", "1073741825"},
            {"go 1073741825 4", "none"},
            {"go 1073741826 3", "none"},
            {"go 1073741826 1", "none"}});
}

TEST_F(AccessibleList, TellsAHeadingThatIsAnother) {
    Ask("heard");
    LVCOLUMN column{};
    column.mask = LVCF_TEXT;
    column.pszText = const_cast<char*>("Weight");
    w.list.SetColumn(1, &column);
    Expect({{"heard", "name 1073741825"},
            {"say 1073741825", "column header \"Weight\" [] action \"Click\""}});
}

TEST_F(AccessibleList, KeysGoOnFromTheRowThatWasSelected) {
    BringToFront(w.parent.m_hWnd);
    w.list.SetFocus();
    ClickAt(w.list.m_hWnd, w.RectOf(2).CenterPoint());
    Expect({{"select 1 3", kDone}});
    TypeKey(VK_DOWN, true);
    Expect({{"selection", "1 2"}});
}

TEST_F(Accessible, AListOverAProgramsRowsTellsNewOrders) {
    class Rows : public QVRowSource {
        void GetRow(int nRow, QVLISTROW& row) override { row.strText.Format("row %d", nRow); }
    } rows;
    ListWindow<QVVirtualListCtrl> w("a");
    w.list.SetRowSource(&rows);
    w.list.SetRowCount(100'000);
    PumpPending();
    Watch(w.list);
    for (const bool bSorts : {true, false}) {
        bSorts ? void(w.list.SortByColumn(0, FALSE)) : w.list.RestoreOrder();
        EXPECT_EQ(Ask("heard"), "reorder 0");
        EXPECT_EQ(Ask("say 1").find(bSorts ? "list item \"row 99999\"" : "list item \"row 0\""),
                  0u);
    }
    w.list.RowsChanged();
    Expect({{"heard", "reorder 0"}, {"count", "100001"}});
    w.list.DestroyWindow();
}

TEST_F(AccessibleList, SelectsAndTells) {
    Ask("heard");
    Expect({{"select 1 3", kDone},
            {"heard", "selection-add 1, focus 1"},
            {"select 3 8", kDone},
            {"selection", "1 3"},
            {"focus", "1"},
            {"select 1 16", kDone},
            {"selection", "3"}});
    Ask("heard");
    w.list.SetItemText(1, 1, "7 kg");
    w.list.DeleteItem(0);
    w.Add("new\trow");
    Expect({{"heard", "name 2, reorder 0"}});
    w.parent.Forget();
    for (const char* pszDeed : {"do 2", "do 1073741824", "do 3"}) {
        Expect({{pszDeed, kDone}});
        PumpPending();
    }
    EXPECT_EQ(w.parent.Count(static_cast<UINT>(NM_DBLCLK)), 2);
    EXPECT_EQ(w.parent.Count(static_cast<UINT>(LVN_ITEMACTIVATE)), 2);
}

// As long as a dialog that the parent brings up, say.
TEST_F(AccessibleList, WhoAsksForADeedDoesNotWaitForTheParent) {
    IAccessible* pObject = nullptr;
    ASSERT_EQ(
        ::AccessibleObjectFromWindow(w.list.m_hWnd, static_cast<DWORD>(OBJID_CLIENT),
                                     __uuidof(IAccessible), reinterpret_cast<void**>(&pObject)),
        S_OK);
    const auto told = [&] { return w.parent.Count(static_cast<UINT>(NM_DBLCLK)); };
    VARIANT part{};
    part.vt = VT_I4;
    part.lVal = 2;
    w.parent.Forget();
    EXPECT_EQ(pObject->accDoDefaultAction(part), S_OK);
    EXPECT_EQ(told(), 0);
    PumpPending();
    EXPECT_EQ(told(), 1);
    pObject->Release();
}

// --- From this process, anything in any order

TEST(AccessibleTreeMonkey, AnswersAnythingAtAnyTime) {
    PlayAccessible<QVTreeCtrlEx>([](QVTreeCtrlEx& tree, CWnd& parent) {
        tree.Create(kTreeStyle, CRect(0, 0, 300, 200), &parent, kTreeId);
        tree.LoadStandardCheckStates();
        const HTREEITEM h = tree.InsertItem("a", 0, 0, nullptr, TVI_LAST);
        tree.InsertItem("b\tc", 0, 0, h, TVI_LAST);
        tree.InsertItem("d", 0, 0, nullptr, TVI_LAST);
    });
}

TEST(AccessibleListMonkey, AnswersAnythingAtAnyTime) {
    PlayAccessible<QVListCtrlEx>([](QVListCtrlEx& list, CWnd& parent) {
        list.ModifyDefStyle(LVS_SINGLESEL, 0);
        list.Create(kListId, CRect(0, 0, 300, 200), &parent);
        list.AddHeader("x\ty");
        for (const char* psz : {"a\tb", "c", "d\te"}) {
            list.InsertBitmapString(0, -1, psz);
        }
    });
}

}  // namespace
