// A window's life: creation, subclassing, objects for handles, destruction at odd moments.
#include "support/recording_parent.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

/// Writes down the messages of its life, and the virtual calls between them.
class LifeWnd : public CWnd {
public:
    explicit LifeWnd(std::vector<std::string>& log) : m_log(log) {}

    int m_nCreateResult = 0;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override {
        m_log.push_back("PreCreateWindow");
        return CWnd::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override { m_log.push_back("PreSubclassWindow"); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        for (const auto& [nMessage, pszName] :
             {std::pair<UINT, const char*>{WM_NCCREATE, "WM_NCCREATE"},
              {WM_NCCALCSIZE, "WM_NCCALCSIZE"},
              {WM_CREATE, "WM_CREATE"},
              {WM_DESTROY, "WM_DESTROY"},
              {WM_NCDESTROY, "WM_NCDESTROY"}}) {
            if (message == nMessage) {
                m_log.push_back(pszName);
            }
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override {
        m_log.push_back(m_hWnd == nullptr ? "PostNcDestroy" : "PostNcDestroy with a handle");
    }
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct) {
        return CWnd::OnCreate(lpCreateStruct) == 0 ? m_nCreateResult : -1;
    }
    DECLARE_MESSAGE_MAP()

private:
    std::vector<std::string>& m_log;
};

BEGIN_MESSAGE_MAP(LifeWnd, CWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

BOOL MakePopup(CWnd& wnd) {
    return wnd.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr);
}

TEST(WndLife, ObjectGetsEveryMessageFromTheFirstToTheLast) {
    std::vector<std::string> log;
    LifeWnd wnd(log);
    ASSERT_TRUE(MakePopup(wnd));
    EXPECT_EQ(log, (std::vector<std::string>{"PreCreateWindow", "PreSubclassWindow", "WM_NCCREATE",
                                             "WM_NCCALCSIZE", "WM_CREATE"}));
    EXPECT_EQ(CWnd::FromHandlePermanent(wnd.m_hWnd), &wnd);

    log.clear();
    HWND hWnd = wnd.m_hWnd;
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_EQ(log, (std::vector<std::string>{"WM_DESTROY", "WM_NCDESTROY", "PostNcDestroy"}));
    EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), nullptr);
    EXPECT_FALSE(wnd.DestroyWindow());

    {
        CWnd another;
        EXPECT_TRUE(MakePopup(wnd)) << "an object may have another window later";
        ASSERT_TRUE(another.Attach(wnd.Detach()));
        hWnd = another.m_hWnd;
        EXPECT_TRUE(::IsWindow(hWnd));
    }
    EXPECT_FALSE(::IsWindow(hWnd)) << "it goes with its object";
}

TEST(WndLife, OnCreateGivingMinusOne_MakesCreationFail) {
    std::vector<std::string> log;
    LifeWnd wnd(log);
    wnd.m_nCreateResult = -1;
    EXPECT_FALSE(MakePopup(wnd));
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    ASSERT_FALSE(log.empty());
    EXPECT_EQ(log.back(), "PostNcDestroy");
    EXPECT_EQ(std::count(log.begin(), log.end(), "PostNcDestroy"), 1);
}

TEST(WndLife, UnknownClass_FailsAndTellsTheObject) {
    std::vector<std::string> log;
    LifeWnd wnd(log);
    EXPECT_FALSE(wnd.CreateEx(0, "no such class", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    EXPECT_EQ(log, (std::vector<std::string>{"PreCreateWindow", "PostNcDestroy"}));
    // The next window of somebody else must not be taken for this object's.
    CStatic other;
    EXPECT_TRUE(other.CreateEx(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    EXPECT_EQ(wnd.m_hWnd, nullptr);
}

/// Deletes itself with its window, and destroys it from a handler when told.
class SuicidalWnd : public CWnd {
public:
    explicit SuicidalWnd(int& nAlive) : m_nAlive(nAlive) { ++m_nAlive; }
    ~SuicidalWnd() override { --m_nAlive; }

protected:
    void PostNcDestroy() override { delete this; }
    afx_msg LRESULT OnDie(WPARAM, LPARAM) {
        DestroyWindow();
        return 5;
    }
    afx_msg void OnDieByCommand() { DestroyWindow(); }
    afx_msg BOOL OnDieByNotify(UINT, NMHDR*, LRESULT* pResult) {
        DestroyWindow();
        *pResult = 6;
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()

private:
    int& m_nAlive;
};

constexpr UINT kDie = WM_APP + 2;
constexpr UINT kChildId = 9;

BEGIN_MESSAGE_MAP(SuicidalWnd, CWnd)
    ON_MESSAGE(kDie, &SuicidalWnd::OnDie)
    ON_COMMAND(kChildId, &SuicidalWnd::OnDieByCommand)
    ON_NOTIFY_EX(NM_CLICK, kChildId, &SuicidalWnd::OnDieByNotify)
END_MESSAGE_MAP()

TEST(WndLife, DestroyedAndDeletedInsideItsOwnHandler) {
    int nAlive = 0;
    const auto make = [&](HWND& hChild) {
        auto* pWnd = new SuicidalWnd(nAlive);
        MakePopup(*pWnd);
        hChild = ::CreateWindowEx(0, "BUTTON", "", WS_CHILD, 0, 0, 10, 10, pWnd->m_hWnd,
                                  reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kChildId)), nullptr,
                                  nullptr);
        return pWnd->m_hWnd;
    };
    HWND hChild = nullptr;
    EXPECT_EQ(::SendMessage(make(hChild), kDie, 0, 0), 5);
    EXPECT_EQ(nAlive, 0);

    HWND hWnd = make(hChild);
    ::SendMessage(hWnd, WM_COMMAND, kChildId, reinterpret_cast<LPARAM>(hChild));
    EXPECT_EQ(nAlive, 0);

    hWnd = make(hChild);
    NMHDR hdr = {hChild, kChildId, static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(::SendMessage(hWnd, WM_NOTIFY, kChildId, reinterpret_cast<LPARAM>(&hdr)), 6);
    EXPECT_EQ(nAlive, 0);
    EXPECT_FALSE(::IsWindow(hWnd));
}

TEST(WndObjects, TemporaryOnes_LastUntilIdleTime) {
    HWND hWnd =
        ::CreateWindowEx(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    CWnd* pFirst = CWnd::FromHandle(hWnd);
    ASSERT_NE(pFirst, nullptr);
    EXPECT_EQ(pFirst->m_hWnd, hWnd);
    EXPECT_EQ(CWnd::FromHandle(hWnd), pFirst);
    EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), nullptr);
    EXPECT_EQ(CWnd::FromHandle(nullptr)->GetSafeHwnd(), nullptr);

    // A second idle call cleans up; the window itself stays.
    AfxGetThread()->OnIdle(0);
    EXPECT_EQ(CWnd::FromHandle(hWnd), pFirst);
    EXPECT_FALSE(AfxGetThread()->OnIdle(1));
    EXPECT_TRUE(::IsWindow(hWnd));

    CStatic permanent;
    ASSERT_TRUE(permanent.SubclassWindow(hWnd));
    EXPECT_EQ(CWnd::FromHandle(hWnd), &permanent);
    CStatic second;
    EXPECT_FALSE(second.SubclassWindow(hWnd)) << "a window has one object";
    permanent.DestroyWindow();
    EXPECT_FALSE(::IsWindow(hWnd));
}

/// An edit control that takes no digits.
class NoDigitsEdit : public CEdit {
public:
    int m_nChars = 0;

protected:
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
        ++m_nChars;
        if (nChar < '0' || nChar > '9') {
            CEdit::OnChar(nChar, nRepCnt, nFlags);
        }
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(NoDigitsEdit, CEdit)
    ON_WM_CHAR()
END_MESSAGE_MAP()

TEST(Subclassing, DialogItem_IsServedUntilUnsubclassed) {
    RecordingParent parent;
    constexpr UINT kEdit = 77;
    HWND hEdit =
        ::CreateWindowEx(0, "EDIT", "", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, parent.m_hWnd,
                         reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kEdit)), nullptr, nullptr);
    NoDigitsEdit edit;
    ASSERT_TRUE(edit.SubclassDlgItem(kEdit, &parent));
    EXPECT_EQ(edit.m_hWnd, hEdit);
    for (char ch : {'a', '1', 'b'}) {
        edit.SendMessage(WM_CHAR, static_cast<WPARAM>(ch), 1);
    }
    CString strText;
    parent.GetDlgItemText(kEdit, strText);
    EXPECT_STREQ(strText, "ab");
    EXPECT_EQ(edit.m_nChars, 3);

    EXPECT_EQ(edit.UnsubclassWindow(), hEdit);
    EXPECT_EQ(edit.m_hWnd, nullptr);
    ::SendMessage(hEdit, WM_CHAR, '2', 1);
    EXPECT_EQ(edit.m_nChars, 3);
    parent.GetDlgItemText(kEdit, strText);
    EXPECT_STREQ(strText, "ab2");
    EXPECT_FALSE(edit.SubclassDlgItem(kEdit + 1, &parent)) << "no such item";
}

/// Default() takes the parameters of the message, whatever the handler was given.
class DefaultingWnd : public CWnd {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_SETTEXT) {
            return CWnd::WindowProc(message, wParam, lParam);
        }
        ::SendMessage(m_hWnd, WM_NULL, 0, 0);  // a message in between does not count
        return Default();
    }
};

TEST(DefaultProcessing, UsesTheMessageNowBeingHandled) {
    DefaultingWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    wnd.SetWindowText("by default");
    CString strText;
    wnd.GetWindowText(strText);
    EXPECT_STREQ(strText, "by default");
}

TEST(WndState, StylesTimersScrollBarsAndPlaces) {
    RecordingParent parent;
    CWnd child;
    ASSERT_TRUE(
        child.Create(nullptr, "", WS_VISIBLE | WS_VSCROLL, CRect(10, 20, 110, 120), &parent, 5));
    EXPECT_TRUE(child.ModifyStyle(0, WS_BORDER, SWP_FRAMECHANGED));
    EXPECT_TRUE(child.GetStyle() & WS_BORDER);
    EXPECT_FALSE(child.ModifyStyle(0, WS_BORDER)) << "no change";
    EXPECT_EQ(child.GetDlgCtrlID(), 5);
    EXPECT_EQ(parent.GetDlgItem(5), &child);
    EXPECT_EQ(child.GetTopLevelParent(), &parent);

    CRect rc;
    child.GetWindowRect(rc);
    parent.ScreenToClient(rc);
    EXPECT_EQ(rc, CRect(10, 20, 110, 120));

    // Positions beyond 16 bits come back whole.
    SCROLLINFO info = {sizeof info, SIF_ALL, 0, 1000000, 100, 700000, 0};
    child.SetScrollInfo(SB_VERT, &info);
    EXPECT_EQ(child.GetScrollPos(SB_VERT), 700000);
    EXPECT_EQ(child.GetScrollLimit(SB_VERT), 1000000 - 99);
}

}  // namespace
