// The control classes, where they do more than to pass a message on.
#include "support/recording_parent.h"

#include <afxcmn.h>
#include <afxdtctl.h>

#include <gtest/gtest.h>
#include <string>

namespace {

class Controls : public testing::Test {
protected:
    RecordingParent m_parent;
    const CRect m_rc{0, 0, 200, 150};
    static constexpr DWORD kShown = WS_CHILD | WS_VISIBLE;
};

TEST_F(Controls, EditsGiveTheirLinesOneByOne) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(kShown | ES_MULTILINE, m_rc, &m_parent, 1));
    edit.SetWindowText("first\r\nsecond line");
    char szLine[32] = "";
    const int nLength = edit.GetLine(1, szLine, sizeof szLine);
    EXPECT_EQ(std::string(szLine, nLength), "second line");
}

TEST_F(Controls, ListsGiveTheirSelectionRowByRow) {
    CListCtrl list;
    ASSERT_TRUE(list.Create(kShown | LVS_REPORT | LVS_SHOWSELALWAYS, m_rc, &m_parent, 1));
    for (int nItem = 0; nItem < 3; ++nItem) {
        list.InsertItem(nItem, "item");
        list.SetItemState(nItem, nItem == 1 ? 0 : LVIS_SELECTED, LVIS_SELECTED);
    }
    POSITION pos = list.GetFirstSelectedItemPosition();
    ASSERT_NE(pos, nullptr);
    EXPECT_EQ(list.GetNextSelectedItem(pos), 0);
    EXPECT_EQ(list.GetNextSelectedItem(pos), 2);
    EXPECT_EQ(pos, nullptr);
}

TEST_F(Controls, CheckMarksAreThoseOfOneItem) {
    CListCtrl list;
    CTreeCtrl tree;
    ASSERT_TRUE(list.Create(kShown | LVS_REPORT, m_rc, &m_parent, 1));
    ASSERT_TRUE(tree.Create(kShown | TVS_CHECKBOXES, m_rc, &m_parent, 2));
    list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    list.InsertItem(0, "first");
    list.InsertItem(1, "second");
    const HTREEITEM hFirst = tree.InsertItem("first");
    const HTREEITEM hSecond = tree.InsertItem("second");
    list.SetCheck(1);
    tree.SetCheck(hSecond);
    EXPECT_TRUE(list.GetCheck(1) && tree.GetCheck(hSecond));
    EXPECT_FALSE(list.GetCheck(0) || tree.GetCheck(hFirst));
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
    date.SetStatus(COleDateTime::null);
    picker.SetTime(date);
    EXPECT_EQ(picker.GetTime(read), static_cast<DWORD>(GDT_NONE));
}

}  // namespace
