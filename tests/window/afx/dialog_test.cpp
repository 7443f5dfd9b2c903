// Dialogs: modal loops, results, focus, PreTranslateMessage on the way of every message.
#include "support/popup.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/recording_parent.h"
#include "window/afx/afx_test_ids.h"
#include "window/second_module/second_module_ids.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr UINT kAct = WM_APP + 10;

/// Runs m_action once its loop runs.
class ModalDialog : public CDialog {
public:
    explicit ModalDialog(CWnd* pParent = nullptr, UINT nID = IDD_MODAL) : CDialog(nID, pParent) {}

    std::function<void(ModalDialog&)> m_action;
    std::function<void(ModalDialog&)> m_init;

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        if (m_init) {
            m_init(*this);
        }
        PostMessage(kAct);
        return TRUE;
    }

protected:
    afx_msg LRESULT OnAct(WPARAM, LPARAM) {
        if (m_action) {
            m_action(*this);
        }
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ModalDialog, CDialog)
    ON_MESSAGE(kAct, &ModalDialog::OnAct)
END_MESSAGE_MAP()

TEST(ModalDialogs, GiveTheResultOfTheirEnd_AndDisableTheirOwnerMeanwhile) {
    RecordingParent parent;
    ModalDialog dlg(&parent);
    dlg.m_action = [&](ModalDialog& outer) {
        EXPECT_FALSE(parent.IsWindowEnabled());
        EXPECT_EQ(::GetWindow(outer.m_hWnd, GW_OWNER), parent.m_hWnd);
        ModalDialog inner(&outer, IDD_SECOND);
        inner.m_action = [&](ModalDialog& d) {
            EXPECT_NE(d.GetDlgItem(IDC_SECOND_EDIT), nullptr) << "of another module";
            EXPECT_FALSE(outer.IsWindowEnabled());
            d.EndDialog(11);
        };
        EXPECT_EQ(inner.DoModal(), 11);
        EXPECT_TRUE(outer.IsWindowEnabled());
        EXPECT_FALSE(parent.IsWindowEnabled());
        outer.EndDialog(77);
    };
    EXPECT_EQ(dlg.DoModal(), 77);
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(dlg.m_hWnd, nullptr);

    dlg.m_action = [](ModalDialog& d) { d.SendMessage(WM_COMMAND, IDOK); };
    EXPECT_EQ(dlg.DoModal(), IDOK) << "the same object runs again";
    dlg.m_action = [](ModalDialog& d) { d.SendMessage(WM_CLOSE); };
    parent.EnableWindow(FALSE);
    EXPECT_EQ(dlg.DoModal(), IDCANCEL);
    EXPECT_FALSE(parent.IsWindowEnabled()) << "it was before";
    EXPECT_EQ(ModalDialog(nullptr, 9999).DoModal(), -1) << "no such template";
}

/// A template in memory: a caption and nothing else.
TEST(ModalDialogs, EndedWhileBeingMade_NeverRun) {
    const struct {
        DLGTEMPLATE dlg = {WS_POPUP | WS_CAPTION, 0, 0, 0, 0, 50, 50};
        WORD empty[4] = {};  // no menu, the usual class, no title
    } memory;
    ModalDialog dlg(nullptr, 0);
    ASSERT_TRUE(dlg.InitModalIndirect(&memory.dlg));
    int nActions = 0;
    dlg.m_init = [](ModalDialog& d) { d.EndDialog(5); };
    dlg.m_action = [&](ModalDialog&) { ++nActions; };
    EXPECT_EQ(dlg.DoModal(), 5);
    EXPECT_EQ(nActions, 0);
    dlg.m_init = nullptr;
    dlg.m_action = [](ModalDialog& d) { d.DestroyWindow(); };
    EXPECT_EQ(dlg.DoModal(), -1) << "destroyed instead of ended";
}

TEST(ModalDialogs, KeysWalkTheItems) {
    ModalDialog dlg;
    std::vector<int> focused;
    dlg.m_action = [&](ModalDialog& d) {
        BringToFront(d.m_hWnd);
        const auto note = [&] { focused.push_back(::GetDlgCtrlID(::GetFocus())); };
        note();
        TypeKey(VK_TAB);
        note();
        TypeKey(VK_ESCAPE);
    };
    EXPECT_EQ(dlg.DoModal(), IDCANCEL);
    EXPECT_EQ(focused, (std::vector<int>{IDC_NAME, IDOK}));
}

/// Notes its name when a message passes on its way to be dispatched.
class WatchingWnd : public CWnd {
public:
    WatchingWnd(const char* pszName, std::string& strLog) : m_pszName(pszName), m_strLog(strLog) {}
    bool m_bTake = false;

    BOOL PreTranslateMessage(MSG* pMsg) override {
        m_strLog += pMsg->message == WM_APP ? m_pszName : "";
        return pMsg->message == WM_APP && m_bTake;
    }

private:
    const char* m_pszName;
    std::string& m_strLog;
};

TEST(PreTranslate, WalksFromTheTargetUpToTheStop) {
    std::string strLog;
    WatchingWnd top(">top", strLog);
    WatchingWnd middle(">middle", strLog);
    WatchingWnd leaf("leaf", strLog);
    const CRect rc(0, 0, 9, 9);
    ASSERT_TRUE(MakePopup(top));
    ASSERT_TRUE(middle.Create(nullptr, "", 0, rc, &top, 1));
    HWND hPlain = ::CreateWindowEx(0, "STATIC", "", WS_CHILD, 0, 0, 1, 1, middle.m_hWnd, nullptr,
                                   nullptr, nullptr);
    ASSERT_TRUE(leaf.CreateEx(0, nullptr, "", WS_CHILD, 0, 0, 1, 1, hPlain, nullptr));
    MSG msg = {};
    msg.hwnd = leaf.m_hWnd;
    msg.message = WM_APP;
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(top.m_hWnd, &msg));
    EXPECT_EQ(std::exchange(strLog, {}), "leaf>middle>top");
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(middle.m_hWnd, &msg));
    EXPECT_EQ(std::exchange(strLog, {}), "leaf>middle");
    middle.m_bTake = true;
    leaf.PostMessage(WM_APP);
    PumpPending();
    EXPECT_EQ(strLog, "leaf>middle");
}

}  // namespace
