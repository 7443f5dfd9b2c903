// Lists with check boxes, lists whose rows are dragged, and buttons of bitmaps.
#include "support/monkey.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/recording_parent.h"

#include <afxcmn.h>

#include <functional>
#include <gtest/gtest.h>

namespace {

constexpr UINT kList = 100;

std::string Show(const CCheckListBox& list) {
    std::string str;
    for (int n = 0; n < list.GetCount(); ++n) {
        CString strText;
        list.GetText(n, strText);
        str += std::string(strText) + "-xo"[list.GetCheck(n)];
    }
    return str;
}

class CheckList : public testing::Test {
protected:
    explicit CheckList(DWORD dwStyle = 0) {
        EXPECT_TRUE(m_list.Create(WS_CHILD | WS_VISIBLE | LBS_NOTIFY | dwStyle,
                                  CRect(10, 10, 200, 150), &m_parent, kList));
        for (const char* psz : {"b", "a", "c"}) {
            m_list.AddString(psz);
        }
        m_list.UpdateWindow();
    }
    /// In the check box, or in the text behind it.
    bool Click(int nIndex, bool bInBox) {
        CRect rcItem;
        m_list.GetItemRect(nIndex, rcItem);
        return ClickAt(m_list.m_hWnd, CPoint(bInBox ? rcItem.left + 7 : rcItem.right - 20,
                                             rcItem.CenterPoint().y));
    }
    RecordingParent m_parent;
    CCheckListBox m_list;
};

TEST_F(CheckList, ChecksChangeByClickAndSpace) {
    ASSERT_TRUE(Click(1, true));
    EXPECT_EQ(Show(m_list), "b-axc-");
    EXPECT_EQ(m_list.GetCurSel(), 1);
    EXPECT_EQ(m_parent.CountCommands(CLBN_CHKCHANGE), 1);
    Click(2, false);
    EXPECT_EQ(Show(m_list), "b-axc-") << "a click into the text selects";
    EXPECT_EQ(m_list.GetCurSel(), 2);
    TypeKey(VK_SPACE);
    EXPECT_EQ(Show(m_list), "b-axcx");
    m_list.Enable(0, FALSE);
    Click(0, true);
    EXPECT_EQ(Show(m_list), "b-axcx");
    m_list.SetCheckStyle(BS_AUTO3STATE);
    Click(1, true);
    EXPECT_EQ(Show(m_list), "b-aocx");
    m_list.SetCheckStyle(BS_CHECKBOX);
    Click(1, true);
    EXPECT_EQ(Show(m_list), "b-aocx");
    EXPECT_EQ(m_parent.CountCommands(CLBN_CHKCHANGE), 3);
}

TEST_F(CheckList, ChecksStayWithTheirRows) {
    m_list.SetCheck(0, 1);
    m_list.InsertString(0, "new");
    EXPECT_EQ(Show(m_list), "new-bxa-c-");
    m_list.DeleteString(2);
    EXPECT_EQ(Show(m_list), "new-bxc-");
    m_list.SetCheck(2, 2);
    m_list.SetCheck(9, 1);
    EXPECT_EQ(Show(m_list), "new-bxc-") << "what is none of the style's checks";
    m_list.ResetContent();
    m_list.AddString("again");
    EXPECT_EQ(Show(m_list), "again-");
}

class SortedCheckList : public CheckList {
protected:
    SortedCheckList() : CheckList(LBS_SORT | LBS_EXTENDEDSEL) {}
};

TEST_F(SortedCheckList, SelectedRowsChangeTogether) {
    m_list.SetCheck(1, 1);
    m_list.AddString("aa");
    EXPECT_EQ(Show(m_list), "a-aa-bxc-");
    m_list.SelItemRange(TRUE, 0, 2);
    Click(1, true);
    EXPECT_EQ(Show(m_list), "axaaxbxc-");
}

TEST_F(CheckList, TheParentMayDoAwayWithIt) {
    class Ending : public CWnd {
    public:
        CCheckListBox* m_pList = nullptr;
        UINT m_nCode = 0;

    protected:
        BOOL OnCommand(WPARAM wParam, LPARAM) override {
            if (HIWORD(wParam) == m_nCode) {
                delete m_pList;
                m_pList = nullptr;
            }
            return TRUE;
        }
    };
    for (const UINT nCode : {UINT{CLBN_CHKCHANGE}, UINT{LBN_SETFOCUS}}) {
        Ending parent;
        parent.m_nCode = nCode;
        parent.CreateEx(0, AfxRegisterWndClass(0), "ends", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                        CRect(0, 0, 300, 200), nullptr, 0);
        parent.m_pList = new CCheckListBox;
        parent.m_pList->Create(WS_CHILD | WS_VISIBLE | LBS_NOTIFY, CRect(0, 0, 200, 100), &parent,
                               kList);
        parent.m_pList->AddString("x");
        CRect rcItem;
        parent.m_pList->GetItemRect(0, rcItem);
        parent.m_pList->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON,
                                    MAKELPARAM(rcItem.left + 7, rcItem.CenterPoint().y));
        EXPECT_EQ(parent.m_pList, nullptr);
        parent.DestroyWindow();
    }
}

TEST_F(CheckList, TextsAndChecksAreDrawn) {
    const LONG nHandles = AfxGetOwnedHandleCount();
    const auto count = [&](int nIndex) {
        m_list.UpdateWindow();
        CRect rcItem;
        m_list.GetItemRect(nIndex, rcItem);
        CClientDC dc(&m_list);
        int nDark = 0;
        for (int x = rcItem.left; x < rcItem.left + 16; ++x) {
            for (int y = rcItem.top; y < rcItem.bottom; ++y) {
                nDark += dc.GetPixel(x, y) == RGB(0, 0, 0);
            }
        }
        return nDark;
    };
    const int nUnchecked = count(0);
    m_list.SetCheck(0, 1);
    EXPECT_GT(count(0), nUnchecked);
    m_list.SetCheck(0, 0);
    EXPECT_EQ(count(0), nUnchecked);
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

TEST(DragList, TellsTheObject_WhichMovesTheRow) {
    RecordingParent parent;
    class List : public CDragListBox {
    public:
        std::string m_strTold;
        BOOL BeginDrag(CPoint pt) override {
            m_strTold += "begin ";
            return CDragListBox::BeginDrag(pt);
        }
        void Dropped(int nSrcIndex, CPoint pt) override {
            m_strTold += "dropped ";
            CDragListBox::Dropped(nSrcIndex, pt);
        }
    } list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE, CRect(20, 10, 200, 150), &parent, kList));
    for (const char* psz : {"a", "b", "c", "d"}) {
        list.SetItemData(list.AddString(psz), static_cast<DWORD_PTR>(*psz));
    }
    CRect rcItem;
    list.GetItemRect(0, rcItem);
    CRect rcTo;
    list.GetItemRect(3, rcTo);
    ASSERT_TRUE(PressAt(list.m_hWnd, rcItem.CenterPoint()));
    MoveTo(list.m_hWnd, rcTo.CenterPoint());
    ReleaseAt(list.m_hWnd, rcTo.CenterPoint());
    EXPECT_EQ(list.m_strTold, "begin dropped ");
    std::string strRows;
    for (int n = 0; n < list.GetCount(); ++n) {
        strRows += static_cast<char>(list.GetItemData(n));
    }
    EXPECT_EQ(strRows, "bcad");
}

}  // namespace
