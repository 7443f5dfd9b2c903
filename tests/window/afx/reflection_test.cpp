// Messages that a control sends to its parent come back to the control first.
#include "support/picture.h"
#include "support/recording_parent.h"

#include <afxcmn.h>

#include <gtest/gtest.h>

namespace {

constexpr UINT kControl = 31;

/// Handles its own notifications as long as m_bKeep says so.
class ReflectingTree : public CTreeCtrl {
public:
    bool m_bKeep = true;
    int m_nSeen = 0;
    int m_nAlways = 0;

protected:
    afx_msg BOOL OnExpanding(NMHDR*, LRESULT* pResult) {
        ++m_nSeen;
        *pResult = TRUE;  // no expanding
        return m_bKeep;
    }
    afx_msg void OnSelChanged(NMHDR*, LRESULT*) { ++m_nAlways; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectingTree, CTreeCtrl)
    ON_NOTIFY_REFLECT_EX(TVN_ITEMEXPANDING, &ReflectingTree::OnExpanding)
    ON_NOTIFY_REFLECT(TVN_SELCHANGED, &ReflectingTree::OnSelChanged)
END_MESSAGE_MAP()

TEST(Reflection, Notifications_GoToTheChildFirst_ThenToTheParentIfDeclined) {
    RecordingParent parent;
    ReflectingTree tree;
    ASSERT_TRUE(tree.Create(WS_VISIBLE | TVS_HASBUTTONS, CRect(0, 0, 100, 100), &parent, kControl));
    HTREEITEM hRoot = tree.InsertItem("root");
    tree.InsertItem("leaf", hRoot);

    tree.Expand(hRoot, TVE_EXPAND);
    EXPECT_EQ(parent.Count(TVN_ITEMEXPANDING), 0);
    EXPECT_EQ(tree.GetItemState(hRoot, TVIS_EXPANDED), 0u) << "the child's result counts";

    tree.m_bKeep = false;
    parent.SetResult(TVN_ITEMEXPANDING, FALSE);
    tree.Expand(hRoot, TVE_EXPAND);
    EXPECT_EQ(tree.m_nSeen, 2);
    EXPECT_EQ(parent.Count(TVN_ITEMEXPANDING), 1);
    EXPECT_NE(tree.GetItemState(hRoot, TVIS_EXPANDED), 0u);

    tree.SelectItem(hRoot);
    EXPECT_EQ(tree.m_nAlways, 1);
    EXPECT_EQ(parent.Count(TVN_SELCHANGED), 0) << "without _EX the child always keeps it";
}

class ReflectingEdit : public CEdit {
public:
    bool m_bKeep = true;
    int m_nChanges = 0;
    CBrush m_brush{RGB(1, 2, 3)};
    bool m_bColour = true;

protected:
    afx_msg BOOL OnChange() {
        ++m_nChanges;
        return m_bKeep;
    }
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT) {
        pDC->SetBkColor(RGB(1, 2, 3));
        return m_bColour ? static_cast<HBRUSH>(m_brush) : nullptr;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectingEdit, CEdit)
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &ReflectingEdit::OnChange)
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

TEST(Reflection, ControlCodesAndColours) {
    RecordingParent parent;
    ReflectingEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 60, 30), &parent, kControl));
    edit.SetWindowText("one");
    EXPECT_EQ(edit.m_nChanges, 1);
    EXPECT_EQ(parent.CountCommands(EN_CHANGE), 0);
    edit.m_bKeep = false;
    edit.SetWindowText("two");
    EXPECT_EQ(edit.m_nChanges, 2);
    EXPECT_EQ(parent.CountCommands(EN_CHANGE), 1);

    edit.Invalidate();
    EXPECT_GT(Picture::OfClient(edit.m_hWnd).Count(RGB(1, 2, 3)), 300);
    edit.m_bColour = false;  // no brush: the parent's, here the system's
    edit.Invalidate();
    EXPECT_LT(Picture::OfClient(edit.m_hWnd).Count(RGB(1, 2, 3)), 300);
}

/// Draws its items as bars whose colour is the item data.
class BarListBox : public CListBox {
public:
    int m_nDeleted = 0;
    UINT m_nHeight = 20;

    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override {
        lpMeasureItemStruct->itemHeight = m_nHeight;
    }
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override {
        CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
        pDC->FillSolidRect(&lpDrawItemStruct->rcItem,
                           static_cast<COLORREF>(lpDrawItemStruct->itemData));
    }
    int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct) override {
        const ULONG_PTR first = lpCompareItemStruct->itemData1;
        const ULONG_PTR second = lpCompareItemStruct->itemData2;
        return first < second ? -1 : first > second ? 1 : 0;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++m_nDeleted; }
};

TEST(Reflection, OwnerDrawing_CallsTheControlsVirtuals) {
    RecordingParent parent;
    BarListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWVARIABLE | LBS_SORT,
                            CRect(0, 0, 100, 100), &parent, kControl));
    // Items without strings: the text pointer is the data, which CompareItem sorts by.
    for (COLORREF cr : {RGB(0, 0, 9), RGB(0, 0, 3), RGB(0, 0, 6)}) {
        list.AddString(reinterpret_cast<LPCTSTR>(static_cast<UINT_PTR>(cr)));
    }
    EXPECT_EQ(list.GetItemData(0), RGB(0, 0, 3));
    const Picture picture = Picture::OfClient(list.m_hWnd);
    EXPECT_EQ(picture.At(5, 10), RGB(0, 0, 3));
    EXPECT_EQ(picture.At(5, 30), RGB(0, 0, 6));
    BarListBox other;
    other.m_nHeight = 30;
    other.Create(WS_CHILD | LBS_OWNERDRAWVARIABLE, CRect(0, 0, 100, 100), &parent, kControl + 1);
    for (BarListBox* pList : {&other, &list, &other}) {
        pList->AddString(nullptr);
        EXPECT_EQ(pList->GetItemHeight(0), static_cast<int>(pList->m_nHeight));
        pList->ResetContent();
    }
    EXPECT_EQ(list.m_nDeleted, 4);
}

class BarButton : public CButton {
public:
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override {
        CDC::FromHandle(lpDrawItemStruct->hDC)
            ->FillSolidRect(&lpDrawItemStruct->rcItem, RGB(9, 8, 7));
    }
};

class SlidingBar : public CScrollBar {
public:
    UINT m_nPos = 0;

protected:
    afx_msg void HScroll(UINT, UINT nPos) { m_nPos = nPos; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SlidingBar, CScrollBar)
    ON_WM_HSCROLL_REFLECT()
END_MESSAGE_MAP()

TEST(Reflection, ButtonsAndScrollBars) {
    RecordingParent parent;
    BarButton button;
    ASSERT_TRUE(button.Create("", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(0, 0, 30, 30),
                              &parent, kControl));
    EXPECT_EQ(Picture::OfClient(button.m_hWnd).Count(RGB(9, 8, 7)), 900);
    SlidingBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | SBS_HORZ, CRect(0, 50, 100, 70), &parent, kControl));
    parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 12),
                       reinterpret_cast<LPARAM>(bar.m_hWnd));
    EXPECT_EQ(bar.m_nPos, 12u);
}

}  // namespace
