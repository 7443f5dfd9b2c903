// The control classes: what goes into the platform's controls through them comes out again.
#include "support/recording_parent.h"

#include <afxcmn.h>
#include <afxdtctl.h>

#include <gtest/gtest.h>

namespace {

class Controls : public testing::Test {
protected:
    RecordingParent m_parent;
    const CRect m_rc{0, 0, 200, 150};
    static constexpr DWORD kShown = WS_CHILD | WS_VISIBLE;
};

TEST_F(Controls, EditSelectionsAndLines) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(kShown | ES_MULTILINE, m_rc, &m_parent, 1));
    edit.SetWindowText("first\r\nsecond line");
    EXPECT_EQ(edit.GetLineCount(), 2);
    EXPECT_EQ(edit.LineLength(edit.LineIndex(1)), 11);
    char szLine[32] = "";
    const int nLength = edit.GetLine(1, szLine, sizeof szLine);
    EXPECT_EQ(std::string(szLine, nLength), "second line");
    edit.SetSel(7, 13);
    int nStart = 0;
    int nEnd = 0;
    edit.GetSel(nStart, nEnd);
    EXPECT_EQ(nStart, 7);
    EXPECT_EQ(nEnd, 13);
    edit.ReplaceSel("2nd", TRUE);
    EXPECT_TRUE(edit.CanUndo() && edit.GetModify());
}

TEST_F(Controls, ListAndComboBoxStringsAndData) {
    CListBox list;
    ASSERT_TRUE(list.Create(kShown | LBS_EXTENDEDSEL, m_rc, &m_parent, 1));
    CComboBox combo;
    ASSERT_TRUE(combo.Create(kShown | CBS_DROPDOWNLIST, m_rc, &m_parent, 2));
    int nHere = 0;  // item data hold a pointer on every platform
    for (LPCTSTR lpsz : {"one", "two", "three", "four"}) {
        list.SetItemDataPtr(list.AddString(lpsz), &nHere);
        combo.SetItemDataPtr(combo.AddString(lpsz), &nHere);
    }
    EXPECT_EQ(list.GetItemDataPtr(3), &nHere);
    EXPECT_EQ(combo.GetItemDataPtr(3), &nHere);
    CString str;
    list.GetText(2, str);
    EXPECT_STREQ(str, "three");
    combo.GetLBText(1, str);
    EXPECT_STREQ(str, "two");
    list.GetText(9, str);
    EXPECT_STREQ(str, "");
    list.SelItemRange(TRUE, 1, 2);
    int items[4] = {};
    EXPECT_EQ(list.GetSelItems(4, items), 2);
    EXPECT_EQ(items[1], 2);
    EXPECT_EQ(list.FindStringExact(-1, "FOUR"), 3);
    EXPECT_EQ(combo.SelectString(-1, "tw"), 1);
}

TEST_F(Controls, ListViewItemsColumnsAndSelection) {
    CListCtrl list;
    ASSERT_TRUE(list.Create(kShown | LVS_REPORT | LVS_SHOWSELALWAYS, m_rc, &m_parent, 1));
    list.InsertColumn(0, "Name", LVCFMT_LEFT, 100);
    EXPECT_EQ(list.InsertColumn(1, "Size", LVCFMT_RIGHT, 60, 1), 1);
    const CString strLong('x', 200);  // longer than the first room tried
    int places[3] = {};
    for (int nItem = 0; nItem < 3; ++nItem) {
        EXPECT_EQ(list.InsertItem(nItem, "item"), nItem);
        list.SetItemData(nItem, reinterpret_cast<DWORD_PTR>(&places[nItem]));
    }
    list.SetItemText(1, 1, strLong);
    EXPECT_EQ(list.GetItemText(1, 1), strLong);
    EXPECT_EQ(list.GetItemData(2), reinterpret_cast<DWORD_PTR>(&places[2]));
    list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    POSITION pos = list.GetFirstSelectedItemPosition();
    ASSERT_NE(pos, nullptr);
    EXPECT_EQ(list.GetNextSelectedItem(pos), 0);
    EXPECT_EQ(list.GetNextSelectedItem(pos), 2);
    EXPECT_EQ(pos, nullptr);
    list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    list.SetCheck(1);
    EXPECT_TRUE(list.GetCheck(1));
    EXPECT_FALSE(list.GetCheck(0));
    CHeaderCtrl* pHeader = list.GetHeaderCtrl();
    ASSERT_NE(pHeader, nullptr);
    EXPECT_EQ(pHeader->GetItemCount(), 2);
    CRect rcItem;
    ASSERT_TRUE(list.GetItemRect(1, rcItem, LVIR_BOUNDS));
    EXPECT_EQ(list.HitTest(CPoint(5, rcItem.CenterPoint().y)), 1);
}

TEST_F(Controls, TreeViewItems) {
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(kShown | TVS_HASBUTTONS | TVS_CHECKBOXES, m_rc, &m_parent, 1));
    HTREEITEM hRoot = tree.InsertItem("root");
    HTREEITEM hSecond = tree.InsertItem("b", hRoot);
    HTREEITEM hFirst = tree.InsertItem("a", hRoot, TVI_FIRST);
    EXPECT_EQ(tree.GetChildItem(hRoot), hFirst);
    EXPECT_EQ(tree.GetNextSiblingItem(hFirst), hSecond);
    EXPECT_EQ(tree.GetParentItem(hSecond), hRoot);
    EXPECT_TRUE(tree.ItemHasChildren(hRoot));
    const CString strLong('y', 200);
    tree.SetItemText(hFirst, strLong);
    EXPECT_EQ(tree.GetItemText(hFirst), strLong);
    tree.SetItemData(hFirst, reinterpret_cast<DWORD_PTR>(&tree));
    EXPECT_EQ(tree.GetItemData(hFirst), reinterpret_cast<DWORD_PTR>(&tree));
    EXPECT_TRUE(tree.Expand(hRoot, TVE_EXPAND));
    CRect rc;
    ASSERT_TRUE(tree.GetItemRect(hSecond, rc, TRUE));
    EXPECT_EQ(tree.HitTest(rc.CenterPoint()), hSecond);
    tree.SetCheck(hFirst);
    EXPECT_TRUE(tree.GetCheck(hFirst));
    EXPECT_FALSE(tree.GetCheck(hSecond));
}

TEST_F(Controls, ToolTipsKnowTheirTools) {
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&m_parent));
    const CRect rcTool(10, 10, 50, 30);
    ASSERT_TRUE(tip.AddTool(&m_parent, "a part", rcTool, 7));
    CStatic label;
    ASSERT_TRUE(label.Create("", kShown, CRect(60, 60, 90, 90), &m_parent));
    ASSERT_TRUE(tip.AddTool(&label, "a window"));
    EXPECT_EQ(tip.GetToolCount(), 2);
    CString str;
    tip.GetText(str, &m_parent, 7);
    EXPECT_STREQ(str, "a part");
    tip.GetText(str, &label);
    EXPECT_STREQ(str, "a window");
    TOOLINFO ti = {};
    ti.cbSize = TTTOOLINFOA_V2_SIZE;
    EXPECT_TRUE(tip.HitTest(&m_parent, CPoint(20, 20), &ti));
    EXPECT_EQ(ti.uId, 7u);
    EXPECT_FALSE(tip.HitTest(&m_parent, CPoint(200, 200), &ti));
    tip.DelTool(&m_parent, 7);
    EXPECT_EQ(tip.GetToolCount(), 1);
}

TEST_F(Controls, DatePickersKeepATime) {
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.Create(kShown | DTS_SHOWNONE, CRect(0, 0, 150, 25), &m_parent, 1));
    const CTime time(2003, 4, 5, 6, 7, 8);
    ASSERT_TRUE(picker.SetTime(&time));
    CTime read;
    EXPECT_EQ(picker.GetTime(read), static_cast<DWORD>(GDT_VALID));
    EXPECT_EQ(read.GetYear(), 2003);
    EXPECT_EQ(read.GetDay(), 5);
    picker.SetTime(static_cast<LPSYSTEMTIME>(nullptr));
    EXPECT_EQ(picker.GetTime(read), static_cast<DWORD>(GDT_NONE));
    COleDateTime date;
    EXPECT_FALSE(picker.GetTime(date));
    EXPECT_EQ(date.GetStatus(), COleDateTime::null);
    EXPECT_TRUE(picker.SetTime(COleDateTime(2003, 4, 5, 6, 7, 8)));
    EXPECT_FALSE(picker.SetTime(COleDateTime(2003, 4, 5, 25, 0, 0))) << "no time";
    EXPECT_TRUE(picker.GetTime(date));
    EXPECT_EQ(date, COleDateTime(2003, 4, 5, 6, 7, 8));
    EXPECT_TRUE(picker.SetRange(&date, static_cast<COleDateTime*>(nullptr)));
    CTime last(9);
    EXPECT_EQ(picker.GetRange(&read, &last), static_cast<DWORD>(GDTR_MIN));
    EXPECT_EQ(read, time);
    EXPECT_EQ(last, CTime(9)) << "no such end";
    date.SetStatus(COleDateTime::null);
    picker.SetTime(date);
    EXPECT_EQ(picker.GetTime(read), static_cast<DWORD>(GDT_NONE));
}

}  // namespace
