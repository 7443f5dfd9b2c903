// Frames: routing of commands, menus brought up to date, accelerators, bars, closing.
#include "support/pump.h"
#include "support/test_app.h"
#include "window/afx/afx_test_ids.h"

#include <afxcmn.h>
#include <afxext.h>
#include <afxpriv.h>

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

std::vector<std::string> s_log;
std::function<void()> s_onUpdate;

class ClientWnd : public CWnd {
public:
    bool m_bPass = false;

protected:
    afx_msg BOOL OnClientCommand(UINT) {
        s_log.push_back("client");
        return !m_bPass;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ClientWnd, CWnd)
    ON_COMMAND_EX(ID_ON_CLIENT, &ClientWnd::OnClientCommand)
END_MESSAGE_MAP()

class TestFrame : public CFrameWnd {
public:
    ClientWnd m_client;
    CStatusBar m_bar;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct) {
        static const UINT indicators[] = {ID_SEPARATOR, ID_INDICATOR_CAPS, ID_INDICATOR_NUM};
        if (CFrameWnd::OnCreate(lpCreateStruct) == -1 ||
            !m_client.Create(nullptr, "", WS_VISIBLE, CRect(0, 0, 0, 0), this,
                             AFX_IDW_PANE_FIRST) ||
            !m_bar.Create(this) || !m_bar.SetIndicators(indicators, 3)) {
            return -1;
        }
        return 0;
    }
    afx_msg void OnFrameCommand() { s_log.push_back("frame"); }
    afx_msg void OnUpdateOff(CCmdUI* pCmdUI) { s_onUpdate ? s_onUpdate() : pCmdUI->Enable(FALSE); }
    afx_msg void OnUpdateOther(CCmdUI* pCmdUI) {
        pCmdUI->SetText("New name");
        pCmdUI->SetCheck(1);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TestFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_COMMAND(ID_ON_CLIENT, &TestFrame::OnFrameCommand)
    ON_COMMAND(ID_ON_FRAME, &TestFrame::OnFrameCommand)
    ON_COMMAND(ID_SWITCHED_OFF, &TestFrame::OnFrameCommand)
    ON_UPDATE_COMMAND_UI(ID_SWITCHED_OFF, &TestFrame::OnUpdateOff)
    ON_UPDATE_COMMAND_UI(ID_OTHER, &TestFrame::OnUpdateOther)
END_MESSAGE_MAP()

class Frames : public testing::Test {
protected:
    void SetUp() override {
        s_log.clear();
        auto* pFrame = new TestFrame;
        ASSERT_TRUE(pFrame->LoadFrame(IDR_FRAME));  // a frame that fails deletes itself
        m_pFrame = pFrame;
        m_pFrame->ShowWindow(SW_SHOW);
    }
    void TearDown() override {
        if (m_pFrame != nullptr) {
            m_pFrame->DestroyWindow();  // deletes the object
        }
    }
    HMENU Popup() { return ::GetSubMenu(::GetMenu(m_pFrame->m_hWnd), 0); }
    void UpdateMenu() {
        m_pFrame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(Popup()), 0);
    }
    bool IsEnabled(UINT nID) {
        return !(::GetMenuState(Popup(), nID, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED));
    }
    TestFrame* m_pFrame = nullptr;
};

TEST_F(Frames, TakeMenuTitleAndLayoutFromTheirResources) {
    CString strTitle;
    m_pFrame->GetWindowText(strTitle);
    EXPECT_STREQ(strTitle, "Frame of the tests");
    EXPECT_EQ(::GetMenuItemCount(::GetMenu(m_pFrame->m_hWnd)), 1);

    CRect rcClient;
    CRect rcBar;
    CRect rcPane;
    m_pFrame->SetWindowPos(nullptr, 0, 0, 400, 300, SWP_NOZORDER | SWP_NOMOVE);
    m_pFrame->GetClientRect(rcClient);
    m_pFrame->m_bar.GetWindowRect(rcBar);
    m_pFrame->m_client.GetWindowRect(rcPane);
    m_pFrame->ScreenToClient(rcBar);
    m_pFrame->ScreenToClient(rcPane);
    EXPECT_EQ(rcPane, CRect(0, 0, rcClient.right, rcBar.top));
    EXPECT_EQ(rcBar, CRect(0, rcBar.top, rcClient.right, rcClient.bottom));
    m_pFrame->ShowControlBar(&m_pFrame->m_bar, FALSE, FALSE);
    m_pFrame->m_client.GetWindowRect(rcPane);
    EXPECT_EQ(rcPane.Height(), rcClient.Height());
}

TEST_F(Frames, RouteCommandsFromTheClientToTheApplication) {
    m_pFrame->SendMessage(WM_COMMAND, ID_ON_CLIENT);
    m_pFrame->m_client.m_bPass = true;
    m_pFrame->SendMessage(WM_COMMAND, ID_ON_CLIENT);
    m_pFrame->SendMessage(WM_COMMAND, ID_ON_FRAME);
    m_pFrame->SendMessage(WM_COMMAND, ID_SWITCHED_OFF);  // its update handler says no
    m_pFrame->SendMessage(WM_COMMAND, ID_ON_NOBODY);
    EXPECT_EQ(s_log, (std::vector<std::string>{"client", "client", "frame", "frame"}));
}

TEST_F(Frames, BringMenusUpToDate_DisablingWhatNobodyHandles) {
    UpdateMenu();
    EXPECT_TRUE(IsEnabled(ID_ON_CLIENT));
    EXPECT_TRUE(IsEnabled(ID_ON_FRAME));
    EXPECT_FALSE(IsEnabled(ID_ON_NOBODY));
    EXPECT_FALSE(IsEnabled(ID_SWITCHED_OFF));
    EXPECT_TRUE(::GetMenuState(Popup(), ID_OTHER, MF_BYCOMMAND) & MF_CHECKED);
    char szText[32] = "";
    ::GetMenuString(Popup(), ID_OTHER, szText, sizeof szText, MF_BYCOMMAND);
    EXPECT_STREQ(szText, "New name");

    ::EnableMenuItem(Popup(), ID_ON_NOBODY, MF_BYCOMMAND | MF_ENABLED);
    m_pFrame->m_bAutoMenuEnable = FALSE;
    UpdateMenu();
    EXPECT_TRUE(IsEnabled(ID_ON_NOBODY));
}

TEST_F(Frames, EndWithTheirMenuWhereAHandlerClosesThem) {
    s_onUpdate = [this] { m_pFrame->DestroyWindow(); };
    UpdateMenu();
    m_pFrame = nullptr;
    s_onUpdate = nullptr;
}

TEST_F(Frames, ShowAndHideTheirBarsByTheBarsNumbers) {
    ::AppendMenu(Popup(), MF_STRING, ID_VIEW_STATUS_BAR, "Bar");
    for (const BOOL bVisible : {TRUE, FALSE, TRUE}) {
        UpdateMenu();
        EXPECT_EQ(m_pFrame->m_bar.IsVisible(), bVisible);
        EXPECT_EQ(::GetMenuState(Popup(), ID_VIEW_STATUS_BAR, MF_BYCOMMAND) & MF_CHECKED,
                  bVisible ? MF_CHECKED : 0u);
        CRect rcFrame, rcPane;
        m_pFrame->GetClientRect(rcFrame), m_pFrame->m_client.GetClientRect(rcPane);
        EXPECT_EQ(rcPane.Height() < rcFrame.Height(), bVisible != FALSE);
        EXPECT_TRUE(m_pFrame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR));
    }
    EXPECT_FALSE(m_pFrame->OnCmdMsg(ID_VIEW_TOOLBAR, CN_COMMAND, nullptr, nullptr)) << "has none";
}

BOOL CALLBACK NeverCloses(CFrameWnd*) {
    return FALSE;
}

// Below a pane that shows erasing would only flicker; so it would until a preview's pane shows.
TEST_F(Frames, EraseWhereNoPaneShows) {
    CDC dc;
    CBitmap bitmap;
    CClientDC dcFrame(m_pFrame);
    dc.CreateCompatibleDC(&dcFrame);
    bitmap.CreateCompatibleBitmap(&dcFrame, 8, 8);
    CBitmap* pOld = dc.SelectObject(&bitmap);
    for (const char cCase : std::string("sphg")) {  // shown, in preview, hidden, gone
        dc.SetPixel(4, 4, RGB(1, 2, 3));
        m_pFrame->m_lpfnCloseProc = cCase == 'p' ? NeverCloses : nullptr;
        cCase == 'h' || cCase == 'p' ? m_pFrame->m_client.ShowWindow(SW_HIDE) : FALSE;
        cCase == 'g' ? m_pFrame->m_client.DestroyWindow() : FALSE;
        m_pFrame->SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC));
        EXPECT_EQ(dc.GetPixel(4, 4) == RGB(1, 2, 3), cCase == 's' || cCase == 'p') << cCase;
    }
    dc.SelectObject(pOld);
}

TEST_F(Frames, TranslateTheirAccelerators) {
    BYTE keys[256] = {};
    ::GetKeyboardState(keys);
    keys[VK_CONTROL] |= 0x80;
    ::SetKeyboardState(keys);
    MSG msg = {};
    msg.hwnd = m_pFrame->m_client.m_hWnd;
    msg.message = WM_KEYDOWN;
    for (const char cKey : {'J', 'K', 'L'}) {
        msg.wParam = static_cast<WPARAM>(cKey);
        EXPECT_EQ(CWnd::WalkPreTranslateTree(nullptr, &msg), cKey != 'J');
    }
    keys[VK_CONTROL] = 0;
    ::SetKeyboardState(keys);
    EXPECT_EQ(s_log, std::vector<std::string>{"frame"}) << "the command that is off stays off";
}

TEST_F(Frames, StatusBar_ShowsMessagesAndLockKeys) {
    CStatusBar& bar = m_pFrame->m_bar;
    PumpPending();
    EXPECT_STREQ(bar.GetPaneText(0), "Ready");
    m_pFrame->SetMessageText("working");
    EXPECT_STREQ(bar.GetStatusBarCtrl().GetText(0), "working");
    for (BYTE nToggled : {1, 0}) {
        BYTE keys[256] = {};
        keys[VK_CAPITAL] = nToggled;
        ::SetKeyboardState(keys);
        bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
        EXPECT_STREQ(bar.GetStatusBarCtrl().GetText(1), nToggled ? "CAP" : "");
    }
    const int nCaps = bar.CommandToIndex(ID_INDICATOR_CAPS);
    bar.SetPaneInfo(nCaps, 0, SBPS_NORMAL, 80);
    EXPECT_TRUE(bar.SetPaneText(nCaps, "42 rows"));
    EXPECT_STREQ(bar.GetStatusBarCtrl().GetText(nCaps), "42 rows");
    EXPECT_FALSE(bar.SetPaneText(3, "no such pane"));
}

TEST_F(Frames, ClosingTheMainFrame_EndsTheMessageLoop) {
    TestApp& app = TheTestApp();
    app.m_pMainWnd = m_pFrame;
    m_pFrame->PostMessage(WM_COMMAND, ID_APP_EXIT);
    m_pFrame = nullptr;
    EXPECT_EQ(app.Run(), 0);
    EXPECT_EQ(app.m_pMainWnd, nullptr);

    AfxPostQuitMessage(7);
    MSG msg;
    ::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    EXPECT_EQ(app.CWinThread::Run(), 7) << "also where another loop took the message";
}

TEST(FrameCreation, WithAMenuThatIsNowhere_Fails) {
    auto* pFrame = new CFrameWnd;
    EXPECT_FALSE(pFrame->Create(nullptr, "", WS_OVERLAPPEDWINDOW, CFrameWnd::rectDefault, nullptr,
                                MAKEINTRESOURCE(9999)));  // and deletes the object
}

}  // namespace
