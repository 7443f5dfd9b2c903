// Message maps: ranges, handlers that pass on what they were given, results, colours.
#include "support/popup.h"

#include <afxcmn.h>

#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace {

constexpr UINT kCommand = 101;
constexpr UINT kFirst = 110;
constexpr UINT kLast = 112;
constexpr UINT kExFirst = 120;
constexpr UINT kExLast = 122;
constexpr UINT kNotify = 140;
constexpr UINT kCode = static_cast<UINT>(-700);

/// Writes down which handler ran, with what.
class MappedWnd : public CWnd {
public:
    std::string m_strLog;
    BOOL m_bExResult = TRUE;

    std::string Take() { return std::exchange(m_strLog, {}); }
    BOOL Route(UINT nID, int nCode = CN_COMMAND) { return OnCmdMsg(nID, nCode, nullptr, nullptr); }
    BOOL RouteNotify(UINT nID, LRESULT& lResult) {
        NMHDR hdr = {m_hWnd, nID, kCode};
        AFX_NOTIFY notify = {&lResult, &hdr};
        return OnCmdMsg(nID, MAKELONG(kCode, WM_NOTIFY), &notify, nullptr);
    }

protected:
    void Log(const char* pszHandler, UINT n) { m_strLog += pszHandler + std::to_string(n) + ";"; }
    afx_msg void OnPlainCommand() { Log("command ", 0); }
    afx_msg void OnRange(UINT nID) { Log("range ", nID); }
    afx_msg BOOL OnExRange(UINT nID) {
        Log("exrange ", nID);
        return m_bExResult;
    }
    afx_msg void OnControlRange(UINT nID) { Log("control ", nID); }
    afx_msg void OnUpdate(CCmdUI* pCmdUI) { Log("update ", pCmdUI->m_nID); }
    afx_msg void OnUpdateRange(CCmdUI* pCmdUI) {
        Log("updaterange ", pCmdUI->m_nID);
        pCmdUI->ContinueRouting();
    }
    afx_msg void OnOneNotify(NMHDR* pNMHDR, LRESULT* pResult) {
        Log("notify ", 0 - pNMHDR->code);
        *pResult = 7;
    }
    afx_msg BOOL OnExNotify(UINT nID, NMHDR*, LRESULT* pResult) {
        Log("notifyex ", nID);
        *pResult = 8;
        return m_bExResult;
    }
    afx_msg void OnNotifyRange(UINT nID, NMHDR*, LRESULT* pResult) {
        Log("notifyrange ", nID);
        *pResult = 9;
    }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
        Log(pDC != nullptr && pWnd == this ? "color " : "somebody's ", nCtlColor);
        return static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MappedWnd, CWnd)
    ON_COMMAND(kCommand, &MappedWnd::OnPlainCommand)
    ON_COMMAND_RANGE(kFirst, kLast, &MappedWnd::OnRange)
    ON_COMMAND_EX_RANGE(kExFirst, kExLast, &MappedWnd::OnExRange)
    ON_CONTROL_RANGE(LBN_SELCHANGE, kFirst, kLast, &MappedWnd::OnControlRange)
    ON_UPDATE_COMMAND_UI(kCommand, &MappedWnd::OnUpdate)
    ON_UPDATE_COMMAND_UI_RANGE(kFirst, kLast, &MappedWnd::OnUpdateRange)
    ON_NOTIFY(kCode, kNotify, &MappedWnd::OnOneNotify)
    ON_NOTIFY_RANGE(kCode, kFirst, kLast, &MappedWnd::OnNotifyRange)
    ON_NOTIFY_EX_RANGE(kCode, kExFirst, kExLast, &MappedWnd::OnExNotify)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

class MessageMap : public testing::Test {
protected:
    MessageMap() {
        MakePopup(m_wnd);
        m_wnd.Take();
    }
    MappedWnd m_wnd;
};

TEST_F(MessageMap, Commands_MatchNumberRangeAndCode_AndGoOnWhereTheHandlerSaysSo) {
    EXPECT_TRUE(m_wnd.Route(kCommand));
    EXPECT_FALSE(m_wnd.Route(kCommand, EN_CHANGE));
    EXPECT_TRUE(m_wnd.Route(kFirst));
    EXPECT_TRUE(m_wnd.Route(kLast));
    EXPECT_FALSE(m_wnd.Route(kLast + 1));
    EXPECT_TRUE(m_wnd.Route(kFirst + 1, LBN_SELCHANGE));
    EXPECT_TRUE(m_wnd.Route(kExFirst));
    m_wnd.m_bExResult = FALSE;
    EXPECT_FALSE(m_wnd.Route(kExLast));
    EXPECT_EQ(m_wnd.Take(), "command 0;range 110;range 112;control 111;exrange 120;exrange 122;");
}

TEST_F(MessageMap, Notifications_ReachTheirHandlersAndGiveResults) {
    // As a control sends it: its own number, found from the window that the header names.
    m_wnd.SetDlgCtrlID(0);
    CStatic child;
    child.Create("", WS_CHILD, CRect(0, 0, 10, 10), &m_wnd, kNotify);
    m_wnd.Take();
    NMHDR hdr = {child.m_hWnd, kNotify, kCode};
    EXPECT_EQ(m_wnd.SendMessage(WM_NOTIFY, kNotify, reinterpret_cast<LPARAM>(&hdr)), 7);

    LRESULT lResult = 0;
    EXPECT_TRUE(m_wnd.RouteNotify(kLast, lResult));
    EXPECT_EQ(lResult, 9);
    EXPECT_FALSE(m_wnd.RouteNotify(kLast + 1, lResult));
    EXPECT_TRUE(m_wnd.RouteNotify(kExFirst, lResult));
    EXPECT_EQ(lResult, 8);
    m_wnd.m_bExResult = FALSE;
    EXPECT_FALSE(m_wnd.RouteNotify(kExLast, lResult));
    EXPECT_EQ(m_wnd.Take(), "notify 700;notifyrange 112;notifyex 120;notifyex 122;");
}

TEST_F(MessageMap, UpdateHandlers_MayPassTheQuestionOn) {
    CCmdUI state;
    const int nUpdate = static_cast<int>(CN_UPDATE_COMMAND_UI);
    state.m_nID = kCommand;
    EXPECT_TRUE(m_wnd.OnCmdMsg(kCommand, nUpdate, &state, nullptr));
    state.m_nID = kLast;
    EXPECT_FALSE(m_wnd.OnCmdMsg(kLast, nUpdate, &state, nullptr));
    AFX_CMDHANDLERINFO info;  // asks without calling
    EXPECT_TRUE(m_wnd.OnCmdMsg(kCommand, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &m_wnd);
    EXPECT_EQ(m_wnd.Take(), "update 101;updaterange 112;");
}

TEST_F(MessageMap, AllColourMessages_ComeAsOne) {
    CClientDC dc(&m_wnd);
    for (UINT nMessage : {WM_CTLCOLOREDIT, WM_CTLCOLORLISTBOX, WM_CTLCOLORSTATIC}) {
        EXPECT_EQ(m_wnd.SendMessage(nMessage, reinterpret_cast<WPARAM>(dc.m_hDC),
                                    reinterpret_cast<LPARAM>(m_wnd.m_hWnd)),
                  reinterpret_cast<LRESULT>(::GetStockObject(BLACK_BRUSH)));
    }
    EXPECT_EQ(m_wnd.Take(), "color 1;color 2;color 6;");
}

class WaitingThread : public CWinThread {
public:
    WPARAM m_wSeen = 0;

protected:
    afx_msg void OnThreadMessage(WPARAM wParam, LPARAM) { m_wSeen = wParam; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(WaitingThread, CWinThread)
    ON_THREAD_MESSAGE(WM_APP, &WaitingThread::OnThreadMessage)
END_MESSAGE_MAP()

TEST(ThreadMessages, WithoutWindow_GoToTheThreadsMap) {
    WaitingThread thread;
    MSG msg = {nullptr, WM_APP, 11, 0, 0, {}};
    EXPECT_TRUE(thread.PreTranslateMessage(&msg));
    EXPECT_EQ(thread.m_wSeen, 11u);
    msg.message = WM_APP + 1;
    EXPECT_FALSE(thread.PreTranslateMessage(&msg));
}

/// A program puts a procedure in place of the control's own.
class ReplacedTree : public CTreeCtrl {
public:
    void Replace() { m_pfnSuper = &Answer; }

private:
    static LRESULT CALLBACK Answer(HWND, UINT, WPARAM, LPARAM) { return 77; }
};

TEST(SuperProcedure, MessagesOfAControlsOwnGoToTheProcedureBehind) {
    CWnd parent;
    ASSERT_TRUE(MakePopup(parent));
    ReplacedTree tree;
    ASSERT_TRUE(tree.Create(WS_CHILD, CRect(0, 0, 50, 50), &parent, 1));
    tree.Replace();
    EXPECT_EQ(tree.SendMessage(TVM_GETCOUNT), 77);
}

/// As programs from before 64 bits have it.
class OldTimer : public CWnd {
public:
    UINT m_nSeen = 0;

protected:
    afx_msg void OnTimer(UINT nIDEvent) { m_nSeen = nIDEvent; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(OldTimer, CWnd)
    ON_WM_TIMER()
END_MESSAGE_MAP()

TEST(OldTimers, KeepTheirNumbers) {
    OldTimer wnd;
    ASSERT_TRUE(MakePopup(wnd));
    wnd.SendMessage(WM_TIMER, 7);
    EXPECT_EQ(wnd.m_nSeen, 7u);
}

}  // namespace
