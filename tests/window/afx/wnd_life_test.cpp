// A window's life: creation, subclassing, objects for handles, destruction at odd moments.
#include "support/mortal.h"
#include "support/popup.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace {

/// Writes down the messages of its life, and the virtual calls between them.
class LifeWnd : public CWnd {
public:
    std::string Told() { return std::exchange(m_strLog, {}); }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override {
        m_strLog += "PreCreateWindow ";
        return CWnd::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override { m_strLog += "PreSubclassWindow "; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        m_strLog += message == WM_NCCREATE     ? "WM_NCCREATE "
                    : message == WM_NCCALCSIZE ? "WM_NCCALCSIZE "
                    : message == WM_CREATE     ? "WM_CREATE "
                    : message == WM_DESTROY    ? "WM_DESTROY "
                    : message == WM_NCDESTROY  ? "WM_NCDESTROY "
                                               : "";
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override {
        m_strLog += m_hWnd == nullptr ? "PostNcDestroy " : "PostNcDestroy with a handle ";
    }

private:
    std::string m_strLog;
};

TEST(WndLife, ObjectGetsEveryMessageFromTheFirstToTheLast) {
    LifeWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    EXPECT_EQ(wnd.Told(), "PreCreateWindow PreSubclassWindow WM_NCCREATE WM_NCCALCSIZE WM_CREATE ");
    HWND hWnd = wnd.m_hWnd;
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_EQ(wnd.Told(), "WM_DESTROY WM_NCDESTROY PostNcDestroy ");
    EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), nullptr);
    EXPECT_FALSE(wnd.DestroyWindow());
    {
        CWnd another;
        EXPECT_TRUE(MakePopup(wnd)) << "an object may have another window later";
        ASSERT_TRUE(another.Attach(wnd.Detach()));
        hWnd = another.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(hWnd)) << "it goes with its object";
}

TEST(WndLife, UnknownClass_FailsAndTellsTheObject) {
    LifeWnd wnd;
    EXPECT_FALSE(wnd.CreateEx(0, "no such class", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    EXPECT_EQ(wnd.Told(), "PreCreateWindow PostNcDestroy ");
    // The next window of somebody else must not be taken for this object's.
    CStatic other;
    EXPECT_TRUE(other.CreateEx(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    EXPECT_EQ(wnd.m_hWnd, nullptr);
}

/// Deletes itself with its window, and destroys it from a handler when told.
class SuicidalWnd : public CWnd {
protected:
    void PostNcDestroy() override { delete this; }
    afx_msg LRESULT OnDie(WPARAM, LPARAM) {
        DestroyWindow();
        return 5;
    }
    afx_msg void OnDieByCommand() { DestroyWindow(); }
    afx_msg void OnDieByNotify(NMHDR*, LRESULT* pResult) {
        DestroyWindow();
        *pResult = 6;
    }
    DECLARE_MESSAGE_MAP()
};

constexpr UINT kDie = WM_APP + 2;
constexpr UINT kChildId = 9;

BEGIN_MESSAGE_MAP(SuicidalWnd, CWnd)
    ON_MESSAGE(kDie, &SuicidalWnd::OnDie)
    ON_COMMAND(kChildId, &SuicidalWnd::OnDieByCommand)
    ON_NOTIFY(NM_CLICK, kChildId, &SuicidalWnd::OnDieByNotify)
END_MESSAGE_MAP()

TEST(WndLife, DestroyedAndDeletedInsideItsOwnHandler) {
    for (const auto& [nMessage, lResult] :
         {std::pair<UINT, LRESULT>{kDie, 5}, {WM_COMMAND, 1}, {WM_NOTIFY, 6}}) {
        auto* pWnd = new Mortal<SuicidalWnd>;
        ASSERT_TRUE(MakePopup(*pWnd));
        const HWND hWnd = pWnd->m_hWnd;
        const HWND hChild =
            ::CreateWindowEx(0, "BUTTON", "", WS_CHILD, 0, 0, 10, 10, hWnd,
                             reinterpret_cast<HMENU>(UINT_PTR{kChildId}), nullptr, nullptr);
        NMHDR hdr = {hChild, kChildId, static_cast<UINT>(NM_CLICK)};
        EXPECT_EQ(::SendMessage(hWnd, nMessage, kChildId,
                                nMessage == WM_NOTIFY ? reinterpret_cast<LPARAM>(&hdr)
                                                      : reinterpret_cast<LPARAM>(hChild)),
                  lResult);
        EXPECT_FALSE(::IsWindow(hWnd));
    }
}

TEST(WndObjects, TemporaryOnes_LastUntilIdleTime) {
    HWND hWnd =
        ::CreateWindowEx(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    CWnd* pFirst = CWnd::FromHandle(hWnd);
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

}  // namespace
