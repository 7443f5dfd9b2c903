// Toolbars and where bars lie: buttons, their states and texts, docking by call and by hand.
#include "support/monkey.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "window/afx/bars_program.h"

#include <afxpriv.h>

#include <gtest/gtest.h>

namespace {

class Bars : public testing::Test {
protected:
    CRect RectOf(CWnd* pWnd) {
        CRect rect;
        pWnd->GetWindowRect(rect);
        m_program.Frame()->ScreenToClient(rect);
        return rect;
    }
    CRect Client() {
        CRect rect;
        m_program.Frame()->GetClientRect(rect);
        return rect;
    }
    CToolBar& Bar() { return m_program.Frame()->m_wndToolBar; }
    CPoint MiddleOf(int nButton) {
        CRect rect;
        Bar().GetItemRect(nButton, rect);
        return rect.CenterPoint();
    }
    void DragTo(CPoint ptFrom, CPoint ptScreen) {
        PressAt(Bar(), ptFrom);
        for (const int nPart : {1, 2, 4}) {
            CPoint pt(ptFrom);
            Bar().ClientToScreen(&pt);
            pt = CPoint(pt.x + (ptScreen.x - pt.x) * nPart / 4,
                        pt.y + (ptScreen.y - pt.y) * nPart / 4);
            Bar().ScreenToClient(&pt);
            MoveTo(Bar(), pt);
        }
        Bar().ScreenToClient(&ptScreen);
        ReleaseAt(Bar(), ptScreen);
    }
    BarsProgram m_program;
};

TEST_F(Bars, ComeFromTheirResources_WithStatesOfTheirCommands) {
    EXPECT_EQ(Bar().GetToolBarCtrl().GetButtonCount(), 5);
    EXPECT_EQ(Bar().CommandToIndex(ID_EDIT_COPY), 4);
    EXPECT_EQ(Bar().GetButtonStyle(2), UINT{TBBS_SEPARATOR});
    UINT nID = 0;
    UINT nStyle = 0;
    int nImage = 0;
    Bar().GetButtonInfo(4, nID, nStyle, nImage);
    EXPECT_EQ(nImage, 3) << "separators have no picture";
    EXPECT_EQ(nStyle, UINT{TBBS_BUTTON});
    EXPECT_TRUE(Bar().GetButtonStyle(3) & TBBS_DISABLED) << "nobody handles it";
    static constexpr UINT kChecks[] = {0, TBBS_CHECKED, TBBS_INDETERMINATE};
    for (const UINT nCheck : kChecks) {
        EXPECT_EQ(Bar().GetButtonStyle(1), TBBS_CHECKBOX | nCheck);
        m_program.Frame()->SendMessage(WM_COMMAND, ID_BARS_CHECK);
        m_program.Idle();
    }
    const Picture picture = Picture::OfClient(Bar());
    CRect rcFirst;
    Bar().GetItemRect(0, rcFirst);
    EXPECT_EQ(picture.Count(RGB(255, 0, 0), rcFirst), 100);
    EXPECT_EQ(picture.At(rcFirst.left + 1, rcFirst.bottom - 1), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(picture.Count(RGB(0, 0, 255)), 0) << "of the disabled one";
    EXPECT_FALSE(Bar().LoadToolBar(IDR_BARS_CUT)) << "fewer buttons than it says";
    EXPECT_FALSE(Bar().LoadToolBar(999u));
    Bar().SetButtonText(0, "New");
    EXPECT_STREQ(Bar().GetButtonText(0), "New");
    Bar().SetButtonInfo(0, ID_FILE_OPEN, TBBS_CHECKBOX | TBBS_DISABLED, 2);
    EXPECT_EQ(Bar().GetItemID(0), UINT{ID_FILE_OPEN});
    EXPECT_EQ(Bar().GetButtonStyle(0), UINT(TBBS_CHECKBOX | TBBS_DISABLED));
    EXPECT_STREQ(Bar().GetButtonText(0), "New") << "the text stays";
}

TEST_F(Bars, ButtonsSendCommands_AndTellWhatTheyDo) {
    ClickAt(Bar(), MiddleOf(0));
    ClickAt(Bar(), MiddleOf(3));
    EXPECT_EQ(m_program.Frame()->m_nNew, 1);
    MoveTo(Bar(), MiddleOf(1));
    EXPECT_STREQ(m_program.Frame()->m_wndStatusBar.GetPaneText(0), "Checks something.");
    MoveTo(*m_program.View(), CPoint(50, 50));
    EXPECT_TRUE(PumpUntil([&] {
        return m_program.Frame()->m_wndStatusBar.GetPaneText(0) == "Ready";
    })) << "the mouse left";
    TOOLTIPTEXTA tip{};
    tip.hdr.code = TTN_NEEDTEXTA;
    tip.hdr.hwndFrom = Bar();
    tip.hdr.idFrom = ID_BARS_CHECK;
    m_program.Frame()->SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&tip));
    EXPECT_STREQ(tip.szText, "Check it");
}

TEST_F(Bars, LieAtEachEdge) {
    const struct {
        UINT nDock;
        bool bHorz;
        int (*Edge)(const CRect& bar, const CRect& client, const CRect& pane);
    } kEdges[] = {
        {AFX_IDW_DOCKBAR_LEFT, false,
         [](auto& bar, auto& client, auto& pane) {
             return int(bar.left - client.left) | int(bar.right - pane.left);
         }},
        {AFX_IDW_DOCKBAR_RIGHT, false,
         [](auto& bar, auto& client, auto& pane) {
             return int(bar.right - client.right) | int(bar.left - pane.right);
         }},
        {AFX_IDW_DOCKBAR_BOTTOM, true,
         [](auto& bar, auto&, auto& pane) { return int(bar.top - pane.bottom); }},
        {AFX_IDW_DOCKBAR_TOP, true,
         [](auto& bar, auto& client, auto& pane) {
             return int(bar.top - client.top) | int(bar.bottom - pane.top);
         }},
    };
    const CSize sizeHorz = RectOf(&Bar()).Size();
    for (const auto& edge : kEdges) {
        m_program.Frame()->DockControlBar(&Bar(), edge.nDock);
        const CRect rcBar = RectOf(&Bar());
        EXPECT_EQ(edge.Edge(rcBar, Client(), RectOf(&m_program.Frame()->m_wndSplitter)), 0)
            << edge.nDock;
        EXPECT_EQ(rcBar.Size() == sizeHorz, edge.bHorz);
        EXPECT_EQ(rcBar.Width() > rcBar.Height(), edge.bHorz);
    }
    EXPECT_EQ(RectOf(&m_program.Frame()->m_wndStatusBar).bottom, Client().bottom);

    CDialogBar second;
    ASSERT_TRUE(second.Create(m_program.Frame(), IDD_BARS_DIALOG, CBRS_TOP | CBRS_GRIPPER, 0xE810));
    second.EnableDocking(CBRS_ALIGN_TOP);
    m_program.Frame()->DockControlBar(&second);
    EXPECT_EQ(RectOf(&second).top, RectOf(&Bar()).bottom) << "a row of its own";
    CRect rcBeside;
    Bar().GetWindowRect(rcBeside);
    rcBeside.OffsetRect(1, 0);
    m_program.Frame()->DockControlBar(&second, UINT{AFX_IDW_DOCKBAR_TOP}, rcBeside);
    EXPECT_EQ(RectOf(&second).TopLeft(), CPoint(RectOf(&Bar()).right, RectOf(&Bar()).top));
    m_program.Frame()->DockControlBar(&second, UINT{AFX_IDW_DOCKBAR_LEFT});
    second.DestroyWindow();
    EXPECT_EQ(m_program.Frame()->GetControlBar(0xE810), nullptr);
}

TEST_F(Bars, FloatInTheirOwnFrames) {
    m_program.Frame()->FloatControlBar(&Bar(), CPoint(300, 200));
    ASSERT_TRUE(Bar().IsFloating());
    const HWND hMini = Bar().GetParentFrame()->m_hWnd;
    EXPECT_NE(hMini, m_program.Frame()->m_hWnd);
    EXPECT_TRUE(::IsWindowVisible(hMini));
    EXPECT_EQ(RectOf(&m_program.Frame()->m_wndSplitter).top, 0) << "its room is the pane's";
    m_program.Idle();
    ClickAt(Bar(), MiddleOf(4));
    EXPECT_EQ(m_program.Frame()->m_nNew, 1);
    ::SendMessage(hMini, WM_CLOSE, 0, 0);
    EXPECT_FALSE(Bar().IsVisible());
    m_program.Frame()->ShowControlBar(&Bar(), TRUE, TRUE);
    EXPECT_FALSE(::IsWindowVisible(hMini));
    m_program.Idle();
    EXPECT_TRUE(::IsWindowVisible(hMini)) << "at idle time";
    CRect rcMini;
    ::GetWindowRect(hMini, rcMini);
    const int nWide = rcMini.Width();
    rcMini.right -= nWide / 2;
    ::SendMessage(hMini, WM_SIZING, WMSZ_RIGHT, reinterpret_cast<LPARAM>(&rcMini));
    EXPECT_LT(rcMini.Width(), nWide);
    EXPECT_GT(Bar().GetToolBarCtrl().GetRows(), 1) << "lines of buttons";
    ::SendMessage(hMini, WM_NCLBUTTONDBLCLK, HTCAPTION, 0);
    EXPECT_FALSE(Bar().IsFloating());
    PumpPending();
    EXPECT_FALSE(::IsWindow(hMini));
    EXPECT_GT(RectOf(&m_program.Frame()->m_wndSplitter).top, 0);
}

TEST_F(Bars, AreDraggedByTheirGripper) {
    CRect rcFrame;
    m_program.Frame()->GetWindowRect(rcFrame);
    CRect rcPane;
    m_program.Frame()->m_wndSplitter.GetWindowRect(rcPane);
    const CPoint ptGripper(-4, 8);
    DragTo(ptGripper, CPoint(rcPane.left + 4, rcPane.CenterPoint().y));
    EXPECT_EQ(Bar().m_pDockBar->GetDlgCtrlID(), AFX_IDW_DOCKBAR_LEFT);
    DragTo(CPoint(8, -4), rcPane.CenterPoint());
    EXPECT_TRUE(Bar().IsFloating());
    const CDockBar* pDock = Bar().m_pDockBar;
    PressAt(Bar(), CPoint(MiddleOf(2)));  // a separator
    MoveTo(Bar(), CPoint(300, 300));
    MSG msg = {};
    msg.hwnd = Bar();
    msg.message = WM_KEYDOWN;
    msg.wParam = VK_ESCAPE;
    EXPECT_TRUE(CWnd::WalkPreTranslateTree(nullptr, &msg));
    ReleaseAt(Bar(), MiddleOf(2));
    EXPECT_EQ(Bar().m_pDockBar, pDock) << "ESC ends the drag";
}

TEST_F(Bars, ComeBackWhereTheyLay) {
    PageFrame* pFrame = m_program.Frame();
    const CRect rcTop = RectOf(&Bar());
    pFrame->DockControlBar(&Bar(), UINT{AFX_IDW_DOCKBAR_RIGHT});
    const CRect rcRight = RectOf(&Bar());
    pFrame->SaveBarState("BarsTest");
    pFrame->FloatControlBar(&Bar(), CPoint(250, 260));
    pFrame->ShowControlBar(&pFrame->m_wndStatusBar, FALSE, FALSE);
    CDockState state;
    pFrame->GetDockState(state);
    pFrame->LoadBarState("BarsTest");
    EXPECT_EQ(RectOf(&Bar()), rcRight);
    pFrame->SetDockState(state);
    EXPECT_TRUE(Bar().IsFloating());
    CRect rcMini;
    Bar().GetParentFrame()->GetWindowRect(rcMini);
    EXPECT_EQ(rcMini.TopLeft(), CPoint(250, 260));
    pFrame->DockControlBar(&Bar());
    EXPECT_EQ(RectOf(&Bar()), rcTop);
}

TEST_F(Bars, OutliveHandlersThatDestroyTheFrame) {
    m_program.Frame()->m_bDies = true;
    const HWND hBar = Bar();
    ::SendMessage(hBar, WM_IDLEUPDATECMDUI, TRUE, 0);
    EXPECT_FALSE(::IsWindow(hBar));
    BarsProgram other;
    other.Frame()->FloatControlBar(&other.Frame()->m_wndToolBar, CPoint(200, 200));
    other.Frame()->m_bDies = true;
    CToolBar& bar = other.Frame()->m_wndToolBar;
    CRect rect;
    bar.GetItemRect(0, rect);
    ClickAt(bar, rect.CenterPoint());
    EXPECT_EQ(other.Frame(), nullptr);
    EXPECT_TRUE(TheTestApp().m_exceptions.empty());
}

TEST_F(Bars, OfARebar_HaveABandEach) {
    CReBar rebar;
    CDialogBar dialog;
    ASSERT_TRUE(rebar.Create(m_program.Frame()));
    ASSERT_TRUE(dialog.Create(m_program.Frame(), IDD_BARS_DIALOG, CBRS_TOP | CBRS_GRIPPER, 0xE810));
    const int nTop = RectOf(&m_program.Frame()->m_wndSplitter).top;
    ASSERT_TRUE(rebar.AddBar(&dialog, "Text:"));
    EXPECT_EQ(rebar.GetReBarCtrl().GetBandCount(), 1u);
    EXPECT_EQ(dialog.GetParent(), &rebar);
    EXPECT_GE(RectOf(&m_program.Frame()->m_wndSplitter).top, nTop + dialog.m_sizeDefault.cy);
    m_program.Idle();
    EXPECT_TRUE(dialog.GetDlgItem(ID_EDIT_COPY)->IsWindowEnabled());
    ClickAt(*dialog.GetDlgItem(ID_EDIT_COPY), CPoint(5, 5));
    EXPECT_EQ(m_program.Frame()->m_nNew, 1) << "the frame's command";
}

TEST(BarsMonkey, PlaysWithBarsAndPanes) {
    const LONG nOwned = AfxGetOwnedHandleCount();
    std::mt19937 random = MonkeyRandom(16);
    std::unique_ptr<BarsProgram> pProgram;
    const auto frame = [&] { return pProgram->Frame(); };
    const auto bar = [&]() -> CToolBar& { return frame()->m_wndToolBar; };
    const auto panes = [&]() -> CSplitterWnd& { return frame()->m_wndSplitter; };
    const std::vector<std::function<void(int n)>> deeds = {
        [&](int n) { frame()->FloatControlBar(&bar(), CPoint(n * 9, 100)); },
        [&](int n) { frame()->DockControlBar(&bar(), UINT(AFX_IDW_DOCKBAR_TOP + n % 4)); },
        [&](int n) { frame()->ShowControlBar(&bar(), n % 2, n % 3 == 0); },
        [&](int n) { bar().SetBarStyle(bar().GetBarStyle() ^ (n % 2 ? CBRS_GRIPPER : CBRS_TOP)); },
        [&](int n) { bar().SetButtons(nullptr, n); },
        [&](int n) { bar().SetSizes(CSize(n, n), CSize(n - 7, n - 7)); },
        [&](int n) { bar().CalcDynamicLayout(n * 5, LM_HORZ | (n % 2 ? LM_LENGTHY : LM_COMMIT)); },
        [&](int n) { bar().SendMessage(n % 2 ? WM_LBUTTONDOWN : WM_LBUTTONUP, 0, n); },
        [&](int n) { bar().SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(n * 10, n)); },
        [&](int n) { bar().SendMessage(WM_LBUTTONDBLCLK, 0, n); },
        [&](int n) { panes().SplitRow(n * 4); },
        [&](int n) { panes().SplitColumn(n * 6); },
        [&](int n) { panes().DeleteRow(n % 3); },
        [&](int n) { panes().DeleteColumn(n % 3); },
        [&](int n) { panes().SetRowInfo(n % 4, n * 3, n); },
        [&](int n) { n % 5 ? panes().RecalcLayout() : void(panes().DoKeyboardSplit()); },
        [&](int n) { panes().SendMessage(WM_KEYDOWN, n % 2 ? VK_RETURN : VK_ESCAPE); },
        [&](int n) { panes().SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(n * 9, n * 7)); },
        [&](int n) { panes().SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(n, n)); },
        [&](int n) { panes().SendMessageToDescendants(WM_VSCROLL, WPARAM(n % 9)); },
        [&](int n) { frame()->MoveWindow(n, n, n * 12, n * 9); },
        [&](int n) { n == 1 ? pProgram.reset() : pProgram->Idle(); },
    };
    for (int i = 0; i < MonkeySteps() / 4; ++i) {
        if (pProgram == nullptr) {
            pProgram = std::make_unique<BarsProgram>();
        }
        deeds[random() % deeds.size()](static_cast<int>(random() % 60) - 5);
        if (i % 50 == 0) {
            PumpPending();
        }
    }
    pProgram.reset();
    PumpPending();
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned);
}

}  // namespace
