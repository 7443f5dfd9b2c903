// Message maps: each kind of entry reaches its handler with the right arguments; what a class does
// not handle falls through to its base, in another module if need be.
#include "support/recording_parent.h"
#include "support/test_app.h"
#include "window/second_module/second_module.h"

#include <afxcmn.h>

#include <gtest/gtest.h>

namespace {

const UINT s_nRegistered = ::RegisterWindowMessage("message map test");

constexpr UINT kCommand = 101;
constexpr UINT kFirst = 110;
constexpr UINT kLast = 112;
constexpr UINT kExFirst = 120;
constexpr UINT kExLast = 122;
constexpr UINT kNotify = 140;
constexpr UINT kPlain = WM_APP + 1;
constexpr UINT kCode = static_cast<UINT>(-700);

/// Writes down which handler ran, with what.
class MappedWnd : public CWnd {
public:
    CString m_strLog;
    BOOL m_bExResult = TRUE;

    CString Take() {
        CString strLog = m_strLog;
        m_strLog.Empty();
        return strLog;
    }
    BOOL Route(UINT nID, int nCode = CN_COMMAND) { return OnCmdMsg(nID, nCode, nullptr, nullptr); }
    BOOL RouteNotify(UINT nID, LRESULT& lResult) {
        NMHDR hdr = {m_hWnd, nID, kCode};
        AFX_NOTIFY notify = {&lResult, &hdr};
        return OnCmdMsg(nID, MAKELONG(kCode, WM_NOTIFY), &notify, nullptr);
    }

protected:
    void Log(LPCTSTR lpszFormat, ...) {
        va_list args;
        va_start(args, lpszFormat);
        CString str;
        str.FormatV(lpszFormat, args);
        va_end(args);
        m_strLog += str + ";";
    }
    afx_msg void OnPlainCommand() { Log("command"); }
    afx_msg void OnRange(UINT nID) { Log("range %u", nID); }
    afx_msg BOOL OnExRange(UINT nID) {
        Log("exrange %u", nID);
        return m_bExResult;
    }
    afx_msg void OnControlRange(UINT nID) { Log("control %u", nID); }
    afx_msg void OnUpdate(CCmdUI* pCmdUI) { Log("update %u", pCmdUI->m_nID); }
    afx_msg void OnUpdateRange(CCmdUI* pCmdUI) {
        Log("updaterange %u", pCmdUI->m_nID);
        pCmdUI->ContinueRouting();
    }
    afx_msg void OnOneNotify(NMHDR* pNMHDR, LRESULT* pResult) {
        Log("notify %d", static_cast<int>(pNMHDR->code));
        *pResult = 7;
    }
    afx_msg BOOL OnExNotify(UINT nID, NMHDR*, LRESULT* pResult) {
        Log("notifyex %u", nID);
        *pResult = 8;
        return m_bExResult;
    }
    afx_msg void OnNotifyRange(UINT nID, NMHDR*, LRESULT* pResult) {
        Log("notifyrange %u", nID);
        *pResult = 9;
    }
    afx_msg LRESULT OnRegistered(WPARAM wParam, LPARAM) {
        Log("registered %d", static_cast<int>(wParam));
        return 43;
    }
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
        Log("wheel %u %d %d,%d", nFlags, zDelta, static_cast<int>(pt.x), static_cast<int>(pt.y));
        return TRUE;
    }
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
        Log("key %u %u %u", nChar, nRepCnt, nFlags);
    }
    afx_msg void OnMove(int x, int y) { Log("move %d,%d", x, y); }
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
        Log("activate %u %d %d", nState, pWndOther != nullptr, bMinimized != 0);
    }
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
        Log("cursor %d %d %u", pWnd == this, static_cast<int>(nHitTest), message);
        return TRUE;
    }
    afx_msg LRESULT OnNcHitTest(CPoint point) {
        Log("hit %d,%d", static_cast<int>(point.x), static_cast<int>(point.y));
        return HTCAPTION;
    }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
        Log("color %d %d %u", pDC != nullptr, pWnd == this, nCtlColor);
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
    ON_REGISTERED_MESSAGE(s_nRegistered, &MappedWnd::OnRegistered)
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_MOVE()
    ON_WM_ACTIVATE()
    ON_WM_SETCURSOR()
    ON_WM_NCHITTEST()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

class MessageMap : public testing::Test {
protected:
    MessageMap() {
        m_wnd.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr);
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
    EXPECT_STREQ(m_wnd.Take(), "command;range 110;range 112;control 111;exrange 120;exrange 122;");
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
    EXPECT_STREQ(m_wnd.Take(), "notify -700;notifyrange 112;notifyex 120;notifyex 122;");
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
    EXPECT_STREQ(m_wnd.Take(), "update 101;updaterange 112;");
}

TEST_F(MessageMap, WindowMessages_AreTakenApartAndGiveTheirResults) {
    const LPARAM lNegative = MAKELPARAM(-3, -20);
    EXPECT_EQ(m_wnd.SendMessage(s_nRegistered, 5), 43);
    m_wnd.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, -120), lNegative);
    m_wnd.SendMessage(WM_KEYDOWN, VK_F5, MAKELPARAM(2, 0x4001));
    m_wnd.SendMessage(WM_MOVE, 0, lNegative);
    m_wnd.SendMessage(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1));
    EXPECT_EQ(m_wnd.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(m_wnd.m_hWnd),
                                MAKELPARAM(HTERROR, WM_LBUTTONDOWN)),
              TRUE);
    EXPECT_EQ(m_wnd.SendMessage(WM_NCHITTEST, 0, lNegative), HTCAPTION);
    EXPECT_STREQ(m_wnd.Take(),
                 "registered 5;wheel 8 -120 -3,-20;key 116 2 16385;move -3,-20;activate 2 0 1;"
                 "cursor 1 -2 513;hit -3,-20;");
}

TEST_F(MessageMap, AllColourMessages_ComeAsOne) {
    CClientDC dc(&m_wnd);
    for (UINT nMessage : {WM_CTLCOLOREDIT, WM_CTLCOLORLISTBOX, WM_CTLCOLORSTATIC}) {
        EXPECT_EQ(m_wnd.SendMessage(nMessage, reinterpret_cast<WPARAM>(dc.m_hDC),
                                    reinterpret_cast<LPARAM>(m_wnd.m_hWnd)),
                  reinterpret_cast<LRESULT>(::GetStockObject(BLACK_BRUSH)));
    }
    EXPECT_STREQ(m_wnd.Take(), "color 1 1 1;color 1 1 2;color 1 1 6;");
}

/// Derived in the program from a class of another module.
class DerivedWnd : public ModuleWnd {
public:
    int m_nOwnSize = 0;

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy) {
        ++m_nOwnSize;
        ModuleWnd::OnSize(nType, cx, cy);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedWnd, ModuleWnd)
    ON_WM_SIZE()
END_MESSAGE_MAP()

TEST(MessageMapAcrossModules, DerivedFirst_ThenBaseInTheOtherModule) {
    DerivedWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr));
    wnd.m_nOwnSize = wnd.m_nBaseSize = 0;
    wnd.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(1, 1));
    EXPECT_EQ(wnd.m_nOwnSize, 1);
    EXPECT_EQ(wnd.m_nBaseSize, 1);
}

class ThreadMessageApp : public CWinThread {
public:
    WPARAM m_wSeen = 0;

protected:
    afx_msg void OnThreadMessage(WPARAM wParam, LPARAM) { m_wSeen = wParam; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ThreadMessageApp, CWinThread)
    ON_THREAD_MESSAGE(kPlain, &ThreadMessageApp::OnThreadMessage)
END_MESSAGE_MAP()

TEST(ThreadMessages, WithoutWindow_GoToTheThreadsMap) {
    ThreadMessageApp thread;
    MSG msg = {};
    msg.message = kPlain;
    msg.wParam = 11;
    EXPECT_TRUE(thread.PreTranslateMessage(&msg));
    EXPECT_EQ(thread.m_wSeen, 11u);
    msg.message = kPlain + 1;
    EXPECT_FALSE(thread.PreTranslateMessage(&msg));
}

// --- A procedure that a program puts in place of the control's own

class ReplacedTree : public CTreeCtrl {
public:
    void Replace() { m_pfnSuper = &Answer; }

private:
    static LRESULT CALLBACK Answer(HWND, UINT, WPARAM, LPARAM) { return 77; }
};

TEST(SuperProcedure, MessagesOfAControlsOwnGoToTheProcedureBehind) {
    RecordingParent parent;
    ReplacedTree tree;
    ASSERT_TRUE(tree.Create(WS_CHILD, CRect(0, 0, 50, 50), &parent, 1));
    EXPECT_EQ(tree.SendMessage(TVM_GETCOUNT), 0);
    tree.Replace();
    EXPECT_EQ(tree.SendMessage(TVM_GETCOUNT), 77);
}

}  // namespace
