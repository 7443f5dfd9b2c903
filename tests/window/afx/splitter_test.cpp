// Splitters: panes that come and go, bars moved by mouse and keys, shared scroll bars.
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "window/afx/bars_program.h"

#include <afxcview.h>

#include <gtest/gtest.h>

namespace {

class Splitter : public testing::Test {
protected:
    CSplitterWnd& Panes() { return m_program.Frame()->m_wndSplitter; }
    int Height(int row) {
        int cyCur = 0;
        int cyMin = 0;
        Panes().GetRowInfo(row, cyCur, cyMin);
        return cyCur;
    }
    int Width(int col) {
        int cxCur = 0;
        int cxMin = 0;
        Panes().GetColumnInfo(col, cxCur, cxMin);
        return cxCur;
    }
    CRect PaneRect(int row, int col) {
        CRect rect;
        Panes().GetPane(row, col)->GetWindowRect(rect);
        Panes().ScreenToClient(rect);
        return rect;
    }
    CPoint BelowFirst() { return CPoint(60, PaneRect(0, 0).bottom + 4); }
    CPoint Box() { return CPoint(PaneRect(0, 0).right + 6, 3); }
    void Drag(CPoint from, CPoint to) {
        PressAt(Panes(), from);
        MoveTo(Panes(), to);
        ReleaseAt(Panes(), to);
    }
    BarsProgram m_program;
};

TEST_F(Splitter, SplitsAndJoinsPanesByTheMouse) {
    CWnd* pFirst = Panes().GetPane(0, 0);
    EXPECT_EQ(m_program.View(), pFirst);
    Drag(Box(), CPoint(60, 120));
    ASSERT_EQ(Panes().GetRowCount(), 2);
    auto* pSecond = static_cast<CView*>(Panes().GetPane(1, 0));
    EXPECT_EQ(pSecond->GetDocument(), m_program.View()->GetDocument());
    EXPECT_NEAR(Height(0), 117, 2);
    EXPECT_GT(PaneRect(1, 0).top, PaneRect(0, 0).bottom);
    const CSize before(Height(0), Height(1));
    Drag(BelowFirst(), BelowFirst() + CSize(0, -30));
    EXPECT_EQ(CSize(Height(0), Height(1)), before + CSize(-30, 30));

    PressAt(Panes(), BelowFirst());
    MoveTo(Panes(), BelowFirst() + CSize(0, 50));
    TypeKey(VK_ESCAPE);
    ReleaseAt(Panes(), CPoint(60, 200));
    EXPECT_EQ(Height(0), before.cx - 30) << "ESC takes it back";

    ASSERT_TRUE(Panes().SplitColumn(150));
    EXPECT_TRUE(Panes().GetDlgItem(AFX_IDW_HSCROLL_FIRST + 1)->IsWindowVisible());
    Drag(CPoint(PaneRect(0, 0).right + 5, PaneRect(0, 0).bottom + 5), CPoint(200, 60));
    EXPECT_NEAR(Width(0), 200, 6);
    EXPECT_NEAR(Height(0), 60, 6);
    EXPECT_FALSE(Panes().SplitColumn(50)) << "two are the most";
    Panes().SetActivePane(0, 0);
    Panes().DeleteColumn(0);
    EXPECT_EQ(Panes().GetColumnCount(), 1);
    EXPECT_EQ(Panes().GetActivePane(), Panes().GetPane(0, 0)) << "the neighbour takes over";
    Drag(BelowFirst(), CPoint(60, 2));
    EXPECT_EQ(Panes().GetRowCount(), 1) << "smaller than its least size";
    EXPECT_EQ(Panes().GetPane(0, 0), m_program.View());
}

TEST_F(Splitter, IsMovedByKeys_FromTheCommand) {
    ASSERT_TRUE(BringToFront(*m_program.Frame()));
    m_program.Frame()->SendMessage(WM_COMMAND, ID_WINDOW_SPLIT);
    ASSERT_TRUE(Panes().IsTracking());
    TypeKey(VK_UP);
    TypeKey(VK_RETURN);
    EXPECT_FALSE(Panes().IsTracking());
    ASSERT_EQ(Panes().GetRowCount() * Panes().GetColumnCount(), 4);
    EXPECT_EQ(CWnd::GetFocus(), m_program.View());
    CString strOrder;
    for (int n = 0; n < 4; ++n) {
        int row = 0;
        int col = 0;
        m_program.Frame()->SendMessage(WM_COMMAND, ID_NEXT_PANE);
        Panes().GetActivePane(&row, &col);
        strOrder.AppendFormat("%d%d ", row, col);
    }
    EXPECT_STREQ(strOrder, "01 10 11 00 ");
}

TEST_F(Splitter, PanesOfARowScrollTogether) {
    ASSERT_TRUE(Panes().SplitColumn(200));
    ASSERT_TRUE(Panes().SplitRow(120));
    const auto position = [&](int row, int col) {
        return static_cast<CScrollView*>(Panes().GetPane(row, col))->GetScrollPosition().y;
    };
    CWnd* pBar = Panes().GetDlgItem(AFX_IDW_VSCROLL_FIRST + 1);
    Panes().SendMessage(WM_VSCROLL, SB_PAGEDOWN, reinterpret_cast<LPARAM>(pBar->m_hWnd));
    EXPECT_EQ(position(1, 0), 100);
    EXPECT_EQ(position(0, 0), 0);
    Panes().SetActivePane(1, 1);
    Wheel(*Panes().GetPane(1, 1), -WHEEL_DELTA);
    EXPECT_EQ(position(1, 1), 130);
    const Picture left = Picture::OfClient(*Panes().GetPane(1, 0));
    const Picture right = Picture::OfClient(*Panes().GetPane(1, 1));
    EXPECT_EQ(left.At(0, 70), PageView::kInk) << "the mark at 200";
    EXPECT_EQ(left.At(0, 81), right.At(0, 81));
    EXPECT_EQ(right.At(0, 70), PageView::kInk);
}

TEST_F(Splitter, SizesItsFrameByTheCornerOfItsBars) {
    PageFrame* pFrame = m_program.Frame();
    const auto press = [&] {
        CRect rect;
        Panes().GetClientRect(rect);
        pFrame->m_nSized = 0;
        ClickAt(Panes(), rect.BottomRight() - CSize(5, 5));
        return pFrame->m_nSized;
    };
    EXPECT_EQ(press(), 0u) << "the status bar is below";
    pFrame->ShowControlBar(&pFrame->m_wndStatusBar, FALSE, FALSE);
    EXPECT_EQ(press(), UINT{WMSZ_BOTTOMRIGHT});
    pFrame->ShowWindow(SW_MAXIMIZE);
    EXPECT_EQ(press(), 0u);
}

TEST(StaticSplitter, HoldsPanesOfAllKinds_AndSplitters) {
    class Host : public CFrameWnd {
    public:
        CSplitterWnd m_outer;
        CSplitterWnd m_inner;
        CCreateContext* m_pContext = nullptr;
        BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override {
            return m_outer.CreateStatic(this, 1, 2) &&
                   m_outer.CreateView(0, 0, RUNTIME_CLASS(PageView), CSize(100, 50), nullptr) &&
                   m_inner.CreateStatic(&m_outer, 3, 1, WS_CHILD | WS_VISIBLE,
                                        static_cast<UINT>(m_outer.IdFromRowCol(0, 1))) &&
                   m_inner.CreateView(0, 0, RUNTIME_CLASS(PageView), CSize(10, 40), nullptr) &&
                   m_inner.CreateView(1, 0, RUNTIME_CLASS(CTreeView), CSize(10, 60), nullptr) &&
                   m_inner.CreateView(2, 0, RUNTIME_CLASS(PageView), CSize(10, 20), nullptr);
        }
    };
    auto* pHost = new Host;
    ASSERT_TRUE(pHost->Create(nullptr, "", WS_OVERLAPPEDWINDOW, CRect(50, 50, 450, 350)));
    pHost->ShowWindow(SW_SHOW);
    CSplitterWnd& outer = pHost->m_outer;
    CSplitterWnd& inner = pHost->m_inner;
    EXPECT_FALSE(outer.CreateView(0, 0, RUNTIME_CLASS(PageView), CSize(1, 1), nullptr)) << "taken";
    EXPECT_FALSE(outer.SplitRow(50));
    EXPECT_EQ(outer.GetPane(0, 1), &inner);
    int row = 0;
    int col = 0;
    EXPECT_TRUE(inner.IsChildPane(inner.GetPane(2, 0), row, col));
    EXPECT_EQ(row, 2);
    EXPECT_FALSE(outer.IsChildPane(inner.GetPane(2, 0), row, col));
    EXPECT_EQ(row, -1);
    outer.SetColumnInfo(0, 180, 20);
    outer.RecalcLayout();
    CRect rect;
    outer.GetPane(0, 0)->GetWindowRect(rect);
    EXPECT_EQ(rect.Width(), 180 - 2 * 2) << "without its edge";
    int cyCur = 0;
    int cyMin = 0;
    inner.SetRowInfo(0, 30, 50);
    inner.RecalcLayout();
    inner.GetRowInfo(0, cyCur, cyMin);
    EXPECT_EQ(cyCur, 0) << "less than its least size";
    EXPECT_FALSE(inner.GetPane(0, 0)->IsWindowVisible());
    pHost->SetWindowPos(nullptr, 0, 0, 20, 20, SWP_NOMOVE | SWP_NOZORDER);
    pHost->DestroyWindow();
}

}  // namespace
