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
constexpr UINT kCommandEx = 102;
constexpr UINT kRangeFirst = 110;
constexpr UINT kRangeLast = 112;
constexpr UINT kExRangeFirst = 120;
constexpr UINT kExRangeLast = 122;
constexpr UINT kControl = 130;
constexpr UINT kNotify = 140;
constexpr UINT kNotifyEx = 141;
constexpr UINT kNotifyRangeFirst = 150;
constexpr UINT kNotifyRangeLast = 152;
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
    afx_msg BOOL OnExCommand(UINT nID) {
        Log("ex %u", nID);
        return m_bExResult;
    }
    afx_msg void OnRange(UINT nID) { Log("range %u", nID); }
    afx_msg BOOL OnExRange(UINT nID) {
        Log("exrange %u", nID);
        return m_bExResult;
    }
    afx_msg void OnEditChange() { Log("change"); }
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
    afx_msg LRESULT OnPlain(WPARAM wParam, LPARAM lParam) {
        Log("message %d %d", static_cast<int>(wParam), static_cast<int>(lParam));
        return 42;
    }
    afx_msg LRESULT OnRegistered(WPARAM wParam, LPARAM) {
        Log("registered %d", static_cast<int>(wParam));
        return 43;
    }
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point) {
        Log("down %u %d,%d", nFlags, static_cast<int>(point.x), static_cast<int>(point.y));
    }
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
        Log("wheel %u %d %d,%d", nFlags, zDelta, static_cast<int>(pt.x), static_cast<int>(pt.y));
        return TRUE;
    }
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
        Log("key %u %u %u", nChar, nRepCnt, nFlags);
    }
    afx_msg void OnMove(int x, int y) { Log("move %d,%d", x, y); }
    afx_msg void OnTimer(UINT_PTR nIDEvent) { Log("timer %d", static_cast<int>(nIDEvent)); }
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
        Log("vscroll %u %u %d", nSBCode, nPos, pScrollBar != nullptr);
    }
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
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTARROWS; }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
        Log("color %d %d %u", pDC != nullptr, pWnd == this, nCtlColor);
        return static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    }
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct) {
        Log("draw %d %u", nIDCtl, lpDrawItemStruct->itemID);
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MappedWnd, CWnd)
    ON_COMMAND(kCommand, &MappedWnd::OnPlainCommand)
    ON_COMMAND_EX(kCommandEx, &MappedWnd::OnExCommand)
    ON_COMMAND_RANGE(kRangeFirst, kRangeLast, &MappedWnd::OnRange)
    ON_COMMAND_EX_RANGE(kExRangeFirst, kExRangeLast, &MappedWnd::OnExRange)
    ON_EN_CHANGE(kControl, &MappedWnd::OnEditChange)
    ON_CONTROL_RANGE(LBN_SELCHANGE, kRangeFirst, kRangeLast, &MappedWnd::OnControlRange)
    ON_UPDATE_COMMAND_UI(kCommand, &MappedWnd::OnUpdate)
    ON_UPDATE_COMMAND_UI_RANGE(kRangeFirst, kRangeLast, &MappedWnd::OnUpdateRange)
    ON_NOTIFY(kCode, kNotify, &MappedWnd::OnOneNotify)
    ON_NOTIFY_EX(kCode, kNotifyEx, &MappedWnd::OnExNotify)
    ON_NOTIFY_RANGE(kCode, kNotifyRangeFirst, kNotifyRangeLast, &MappedWnd::OnNotifyRange)
    ON_NOTIFY_EX_RANGE(kCode, kExRangeFirst, kExRangeLast, &MappedWnd::OnExNotify)
    ON_MESSAGE(kPlain, &MappedWnd::OnPlain)
    ON_REGISTERED_MESSAGE(s_nRegistered, &MappedWnd::OnRegistered)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_MOVE()
    ON_WM_TIMER()
    ON_WM_VSCROLL()
    ON_WM_ACTIVATE()
    ON_WM_SETCURSOR()
    ON_WM_NCHITTEST()
    ON_WM_GETDLGCODE()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

class MessageMap : public testing::Test {
protected:
    MessageMap() {
        m_wnd.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr);
        m_wnd.Take();
    }
    MappedWnd m_wnd;
};

TEST_F(MessageMap, CommandEntries_MatchNumberRangeAndCode) {
    EXPECT_TRUE(m_wnd.Route(kCommand));
    EXPECT_TRUE(m_wnd.Route(kCommandEx));
    EXPECT_TRUE(m_wnd.Route(kRangeFirst));
    EXPECT_TRUE(m_wnd.Route(kRangeLast));
    EXPECT_FALSE(m_wnd.Route(kRangeLast + 1));
    EXPECT_FALSE(m_wnd.Route(kCommand, EN_CHANGE));
    EXPECT_STREQ(m_wnd.Take(), "command;ex 102;range 110;range 112;");

    EXPECT_TRUE(m_wnd.Route(kControl, EN_CHANGE));
    EXPECT_TRUE(m_wnd.Route(kRangeFirst + 1, LBN_SELCHANGE));
    EXPECT_STREQ(m_wnd.Take(), "change;control 111;");
}

TEST_F(MessageMap, ExHandlers_DecideWhetherTheSearchGoesOn) {
    EXPECT_TRUE(m_wnd.Route(kExRangeFirst + 1));
    m_wnd.m_bExResult = FALSE;
    EXPECT_FALSE(m_wnd.Route(kCommandEx));
    EXPECT_FALSE(m_wnd.Route(kExRangeLast));
    LRESULT lResult = 0;
    EXPECT_FALSE(m_wnd.RouteNotify(kNotifyEx, lResult));
    EXPECT_STREQ(m_wnd.Take(), "exrange 121;ex 102;exrange 122;notifyex 141;");
}

TEST_F(MessageMap, Notifications_ReachTheirHandlersAndGiveResults) {
    // As a control sends it: its own number, found from the window that the header names.
    m_wnd.SetDlgCtrlID(0);
    CStatic child;
    child.Create("", WS_CHILD, CRect(0, 0, 10, 10), &m_wnd, kNotify);
    m_wnd.Take();
    NMHDR hdr = {child.m_hWnd, kNotify, kCode};
    EXPECT_EQ(m_wnd.SendMessage(WM_NOTIFY, kNotify, reinterpret_cast<LPARAM>(&hdr)), 7);
    EXPECT_STREQ(m_wnd.Take(), "notify -700;");

    LRESULT lResult = 0;
    EXPECT_TRUE(m_wnd.RouteNotify(kNotifyEx, lResult));
    EXPECT_EQ(lResult, 8);
    EXPECT_TRUE(m_wnd.RouteNotify(kNotifyRangeLast, lResult));
    EXPECT_EQ(lResult, 9);
    EXPECT_TRUE(m_wnd.RouteNotify(kExRangeFirst, lResult));
    EXPECT_EQ(lResult, 8);
    EXPECT_FALSE(m_wnd.RouteNotify(kNotifyRangeLast + 1, lResult));
    EXPECT_STREQ(m_wnd.Take(), "notifyex 141;notifyrange 152;notifyex 120;");
}

TEST_F(MessageMap, UpdateHandlers_MayPassTheQuestionOn) {
    CCmdUI state;
    const int nUpdate = static_cast<int>(CN_UPDATE_COMMAND_UI);
    state.m_nID = kCommand;
    EXPECT_TRUE(m_wnd.OnCmdMsg(kCommand, nUpdate, &state, nullptr));
    state.m_nID = kRangeLast;
    EXPECT_FALSE(m_wnd.OnCmdMsg(kRangeLast, nUpdate, &state, nullptr));
    EXPECT_STREQ(m_wnd.Take(), "update 101;updaterange 112;");
    AFX_CMDHANDLERINFO info;  // asks without calling
    EXPECT_TRUE(m_wnd.OnCmdMsg(kCommand, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &m_wnd);
    EXPECT_STREQ(m_wnd.Take(), "");
}

TEST_F(MessageMap, MessagesByNumber_GiveTheirResults) {
    EXPECT_EQ(m_wnd.SendMessage(kPlain, 3, -4), 42);
    EXPECT_EQ(m_wnd.SendMessage(s_nRegistered, 5), 43);
    EXPECT_EQ(m_wnd.SendMessage(kPlain + 1), 0);
    EXPECT_STREQ(m_wnd.Take(), "message 3 -4;registered 5;");
}

TEST_F(MessageMap, WindowMessages_AreTakenApart) {
    const LPARAM lNegative = MAKELPARAM(-3, -20);
    m_wnd.SendMessage(WM_LBUTTONDOWN, MK_SHIFT, lNegative);
    m_wnd.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, -120), lNegative);
    m_wnd.SendMessage(WM_KEYDOWN, VK_F5, MAKELPARAM(2, 0x4001));
    m_wnd.SendMessage(WM_MOVE, 0, lNegative);
    m_wnd.SendMessage(WM_TIMER, 17);
    EXPECT_STREQ(m_wnd.Take(),
                 "down 4 -3,-20;wheel 8 -120 -3,-20;key 116 2 16385;move -3,-20;timer 17;");

    m_wnd.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 300));
    m_wnd.SendMessage(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1));
    EXPECT_EQ(m_wnd.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(m_wnd.m_hWnd),
                                MAKELPARAM(HTERROR, WM_LBUTTONDOWN)),
              TRUE);
    EXPECT_EQ(m_wnd.SendMessage(WM_NCHITTEST, 0, lNegative), HTCAPTION);
    EXPECT_EQ(m_wnd.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS);
    DRAWITEMSTRUCT draw = {};
    draw.itemID = 6;
    EXPECT_EQ(m_wnd.SendMessage(WM_DRAWITEM, 5, reinterpret_cast<LPARAM>(&draw)), TRUE);
    EXPECT_STREQ(m_wnd.Take(),
                 "vscroll 5 300 0;activate 2 0 1;cursor 1 -2 513;hit -3,-20;draw 5 6;");
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
    for (int n = 0; n < 3; ++n) {  // found, then found again in the cache
        wnd.SendMessage(WM_TIMER, 1);
    }
    EXPECT_EQ(wnd.m_nBaseTimer, 3);
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
