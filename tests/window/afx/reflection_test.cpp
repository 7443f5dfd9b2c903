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
    CBrush m_brush{RGB(1, 2, 3)};
    bool m_bColour = true;

protected:
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT) {
        pDC->SetBkColor(RGB(1, 2, 3));
        return m_bColour ? static_cast<HBRUSH>(m_brush) : nullptr;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectingEdit, CEdit)
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

TEST(Reflection, ColoursAreTheControlsOrElseTheParents) {
    RecordingParent parent;
    ReflectingEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 60, 30), &parent, kControl));
    EXPECT_GT(Picture::OfClient(edit.m_hWnd).Count(RGB(1, 2, 3)), 300);
    edit.m_bColour = false;  // no brush: the parent's, here the system's
    edit.Invalidate();
    EXPECT_LT(Picture::OfClient(edit.m_hWnd).Count(RGB(1, 2, 3)), 300);
}

}  // namespace
