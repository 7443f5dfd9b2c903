// Views that scroll, that are forms, edits, lists and trees.
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "window/afx/bars_program.h"
#include "window/afx/view_host.h"

#include <afxcontrolbars.h>
#include <afxcview.h>

#include <functional>
#include <gtest/gtest.h>

namespace {

class ScrollPage : public PageView {
    DECLARE_DYNCREATE(ScrollPage)
public:
    using CScrollView::CenterOnPoint;
};
IMPLEMENT_DYNCREATE(ScrollPage, PageView)

TEST(ScrollView, ShowsThePartThatItsBarsSay) {
    ViewHost<ScrollPage> view;
    CRect rcClient;
    view->GetClientRect(rcClient);
    EXPECT_EQ(view->GetStyle() & (WS_HSCROLL | WS_VSCROLL), DWORD{WS_HSCROLL | WS_VSCROLL});
    const struct {
        UINT nMessage;
        WORD nCode;
        CPoint ptAfter;
    } kSteps[] = {
        {WM_VSCROLL, SB_LINEDOWN, {0, 10}},
        {WM_VSCROLL, SB_PAGEDOWN, {0, 110}},
        {WM_VSCROLL, SB_LINEUP, {0, 100}},
        {WM_HSCROLL, SB_LINERIGHT, {4, 100}},
        {WM_HSCROLL, SB_PAGERIGHT, {44, 100}},
        {WM_VSCROLL, SB_BOTTOM, {44, 900 - rcClient.Height()}},
        {WM_VSCROLL, SB_LINEDOWN, {44, 900 - rcClient.Height()}},
        {WM_HSCROLL, SB_LEFT, {0, 900 - rcClient.Height()}},
    };
    for (const auto& step : kSteps) {
        view->SendMessage(step.nMessage, step.nCode);
        EXPECT_EQ(view->GetScrollPosition(), step.ptAfter) << step.nMessage << "," << step.nCode;
    }
    view->ScrollToPosition(CPoint(0, 300));
    const Picture picture = Picture::OfClient(*view);
    EXPECT_EQ(picture.At(39, 5), PageView::kInk);
    EXPECT_NE(picture.At(41, 5), PageView::kInk);
    EXPECT_EQ(picture.Count(PageView::kInk), Picture::Fresh(*view).Count(PageView::kInk));
    view->ScrollToPosition(CPoint(-50, 99999));
    EXPECT_EQ(view->GetScrollPosition(), CPoint(0, 900 - rcClient.Height()));

    view->SetScrollSizes(MM_TEXT, CSize(400, 20));
    EXPECT_EQ(view->GetScrollPosition().y, 0) << "the whole shows";
    EXPECT_FALSE(view->GetStyle() & WS_VSCROLL);
    view->SetScrollSizes(MM_LOENGLISH, CSize(1000, 1000));  // hundredths of an inch
    view->ScrollToPosition(CPoint(100, -200));
    EXPECT_EQ(view->GetDeviceScrollPosition(), CPoint(96, 192));
    EXPECT_EQ(view->GetScrollPosition(), CPoint(100, -200));
    view->m_bCenter = TRUE;
    view->SetScrollSizes(MM_TEXT, CSize(20, 20));
    view->GetClientRect(rcClient);
    const Picture centred = Picture::Fresh(*view);
    EXPECT_EQ(centred.At((rcClient.Width() - 20) / 2 + 1, (rcClient.Height() - 20) / 2 + 1),
              PageView::kInk);
    view->SetScaleToFitSize(CSize(100, 1000));
    view->GetClientRect(rcClient);
    EXPECT_EQ(Picture::Fresh(*view).At(rcClient.Width() / 20, rcClient.Height() / 10 + 1),
              PageView::kInk);
    const CRect rcSmall(0, 0, 3, 3);
    view.Frame()->MoveWindow(rcSmall);
    view->SetScrollSizes(MM_TEXT, CSize(2000, 2000));
}

class FieldsView : public CFormView {
    DECLARE_DYNCREATE(FieldsView)
public:
    FieldsView() : CFormView(IDD_BARS_FORM) {}
    CString m_strFirst = "one";

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CFormView::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_BARS_FIRST, m_strFirst);
    }
};
IMPLEMENT_DYNCREATE(FieldsView, CFormView)

TEST(FormView, IsADialogInAView) {
    ViewHost<FieldsView> view;
    CString strText;
    view->GetDlgItemText(IDC_BARS_FIRST, strText);
    EXPECT_STREQ(strText, "one");
    EXPECT_TRUE(view->GetDocument() == &view.m_doc);
    ASSERT_TRUE(BringToFront(*view));
    EXPECT_EQ(CWnd::GetFocus()->GetDlgCtrlID(), IDC_BARS_FIRST);
    TypeKey(VK_TAB);
    EXPECT_EQ(CWnd::GetFocus()->GetDlgCtrlID(), IDC_BARS_LAST);
    view.Frame()->SetActiveView(nullptr);
    view.Frame()->SetFocus();
    auto* pView = static_cast<CView*>(view.Frame()->GetDescendantWindow(AFX_IDW_PANE_FIRST));
    view.Frame()->SetActiveView(pView);
    EXPECT_EQ(CWnd::GetFocus()->GetDlgCtrlID(), IDC_BARS_LAST) << "where it was";
    view->SetDlgItemText(IDC_BARS_FIRST, "two");
    EXPECT_TRUE(view->UpdateData());
    EXPECT_STREQ(view->m_strFirst, "two");
    const CSize sizeForm = view->GetTotalSize();
    view.Frame()->SetWindowPos(nullptr, 0, 0, 150, 120, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(view->GetStyle() & (WS_HSCROLL | WS_VSCROLL), DWORD{WS_HSCROLL | WS_VSCROLL});
    CRect rcBefore;
    CRect rcAfter;
    view->GetDlgItem(IDC_BARS_LAST)->GetWindowRect(rcBefore);
    view->SendMessage(WM_VSCROLL, SB_BOTTOM);
    view->GetDlgItem(IDC_BARS_LAST)->GetWindowRect(rcAfter);
    CRect rcClient;
    view->GetClientRect(rcClient);
    EXPECT_EQ(rcBefore.top - rcAfter.top, sizeForm.cy - rcClient.Height());
}

class TabbedView : public CTabView {
    DECLARE_DYNCREATE(TabbedView)
};
IMPLEMENT_DYNCREATE(TabbedView, CTabView)

TEST(TabView, ShowsOneOfItsViews_WhichIsTheFrames) {
    ViewHost<TabbedView> host;
    auto* pView = static_cast<TabbedView*>(host.Frame()->GetDescendantWindow(AFX_IDW_PANE_FIRST));
    EXPECT_EQ(pView->GetActiveView(), nullptr);
    EXPECT_EQ(pView->AddView(RUNTIME_CLASS(CListView), "List"), 0);
    EXPECT_EQ(pView->AddView(RUNTIME_CLASS(CTreeView), "Tree"), 1);
    CView* pList = pView->GetActiveView();
    EXPECT_EQ(host.Frame()->GetActiveView(), pList);
    EXPECT_EQ(pList->GetDocument(), &host.m_doc);
    EXPECT_TRUE(pView->SetActiveView(1));
    EXPECT_FALSE(pList->IsWindowVisible());
    EXPECT_EQ(host.Frame()->GetActiveView(), pView->GetActiveView());
    EXPECT_EQ(pView->FindTab(*pList), 0);
    EXPECT_TRUE(pView->RemoveView(1));
    EXPECT_EQ(pView->GetActiveView(), pList);
    EXPECT_TRUE(pList->IsWindowVisible());
    EXPECT_FALSE(pView->SetActiveView(1));
}

TEST(ControlViews, AreTheirControls) {
    ViewHost<CListView> list;
    list->GetListCtrl().InsertItem(0, "item");
    EXPECT_EQ(list->GetListCtrl().GetItemCount(), 1);
    ViewHost<CTreeView> tree;
    const HTREEITEM hItem = tree->GetTreeCtrl().InsertItem("root");
    EXPECT_STREQ(tree->GetTreeCtrl().GetItemText(hItem), "root");
    EXPECT_TRUE(tree->GetExStyle() & WS_EX_CLIENTEDGE) << "the frame's border";
}

}  // namespace
