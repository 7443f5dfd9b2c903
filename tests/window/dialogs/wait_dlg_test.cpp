// The wait dialog: its owner, what counts as a cancel, and messages that never end.
#include "QVControls.h"
#include "support/failing_heap.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/popup.h"
#include "support/pump.h"
#include "support/real_input.h"

namespace {

/// Does something when it is told WM_APP, or is disabled.
struct Told : CWnd {
    std::function<void()> m_told;
    std::function<void()> m_disabled;
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        if (nMessage == WM_ENABLE && wParam == FALSE && m_disabled) {
            std::exchange(m_disabled, nullptr)();
        }
        return nMessage == WM_APP ? (m_told(), 0) : CWnd::WindowProc(nMessage, wParam, lParam);
    }
};

class WaitDlg : public testing::Test {
protected:
    WaitDlg() { MakePopup(owner, WS_VISIBLE); }
    void Show(BOOL bCancel, BOOL bCapture) {
        wait->SetHasCancelButton(bCancel);
        ASSERT_TRUE(wait->Display(&owner, bCapture));
        BringToFront(wait->m_hWnd);
    }
    static DWORD CodeThrown(const std::function<void()>& run) {
        try {
            return (run(), 0);
        } catch (QVStatus* pStatus) {
            return std::unique_ptr<QVStatus>(pStatus)->Code();
        }
    }

    Told owner;
    std::unique_ptr<QVWaitDlg> wait = std::make_unique<Mortal<QVWaitDlg>>();
    QVWaitDlgProgressCallback progress{*wait};
};

TEST_F(WaitDlg, GivesTheOwnerBackAsItWas_OnEveryWayOut) {
    const std::function<void()> ways[] = {[&] { Show(TRUE, TRUE), wait->Remove(); },
                                          [&] { wait->DestroyWindow(); }, [&] { wait.reset(); }};
    for (const BOOL bEnabled : {TRUE, FALSE}) {
        for (const auto& goes : ways) {
            owner.EnableWindow(bEnabled);
            Show(FALSE, TRUE);
            EXPECT_TRUE(!owner.IsWindowEnabled() && ::GetCapture() == wait->m_hWnd);
            goes();
            EXPECT_EQ(owner.IsWindowEnabled(), bEnabled) << &goes - ways;
            EXPECT_EQ(::GetActiveWindow() == owner.m_hWnd, bEnabled) << &goes - ways;
            EXPECT_EQ(::GetCapture(), nullptr) << &goes - ways;
        }
        wait = std::make_unique<Mortal<QVWaitDlg>>();
    }
    owner.EnableWindow(TRUE);
    for (const bool bFirstGoesFirst : {true, false}) {
        QVWaitDlg other;
        Show(FALSE, FALSE);
        other.Display(&owner, FALSE);
        (bFirstGoesFirst ? *wait : other).Remove();
        EXPECT_FALSE(owner.IsWindowEnabled());
        (bFirstGoesFirst ? other : *wait).Remove();
        EXPECT_TRUE(owner.IsWindowEnabled()) << bFirstGoesFirst;
    }
    BOOL bShown = FALSE;
    owner.EnableWindow(TRUE);
    RefuseEachAllocation(
        FailingHeap::kJustOne, [&] { bShown = wait->Display(&owner, FALSE); },
        [&](int nSucceeding) {
            EXPECT_NE(owner.IsWindowEnabled(), bShown) << nSucceeding;
            EXPECT_EQ(wait->m_hWnd != nullptr, bShown) << nSucceeding;
            wait->Remove();
        });
    Show(TRUE, FALSE);
    owner.DestroyWindow();
    wait->Step(1);
    wait->Remove();
}

TEST_F(WaitDlg, MayBeDeletedByTheOwnerThatItDisables) {
    owner.m_disabled = [&] { wait.reset(); };
    auto* const pWait = wait.get();
    EXPECT_FALSE(pWait->Display(&owner, FALSE));
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_F(WaitDlg, CancelsByButtonAndKeys_WithAndWithoutBoth) {
    const auto press = [](WORD vk) { return [=] { TypeKey(vk); }; };
    const auto unfocused = [] { ::SetFocus(nullptr), TypeKey(VK_ESCAPE); };
    const auto ok = [&] { wait->SendMessage(WM_COMMAND, IDOK); };
    const auto click = [&] { ClickAt(wait->GetDlgItem(IDCANCEL)->m_hWnd, CPoint(9, 9)); };
    const std::tuple<BOOL, BOOL, std::function<void()>, BOOL> cases[] = {
        {TRUE, FALSE, click, TRUE},          {TRUE, TRUE, click, TRUE},
        {TRUE, TRUE, press(VK_SPACE), TRUE}, {FALSE, TRUE, press(VK_ESCAPE), TRUE},
        {FALSE, FALSE, unfocused, TRUE},     {FALSE, FALSE, ok, FALSE}};
    for (const auto& [bButton, bCapture, act, bCancels] : cases) {
        Show(bButton, bCapture);
        act();
        wait->Step(0);
        EXPECT_TRUE(wait->Cancelled() == bCancels && wait->IsWindowVisible());
        EXPECT_EQ(::GetCapture() == wait->m_hWnd, bCapture);
        wait->Remove();
    }
}

TEST_F(WaitDlg, ShowsWhatTheCallbackIsTold_AndThrowsOnceToldToQuit) {
    CString strMessage;
    const auto tell = [&](BYTE nCode, DWORD_PTR dwValue) {
        progress.CallbackFunction()(nCode, dwValue, progress.CallbackParameter());
        wait->GetDlgItemText(30100, strMessage);
        return wait->SendDlgItemMessage(30101, PBM_GETPOS);
    };
    wait->SetWaitMessage("before");
    Show(FALSE, FALSE);
    for (const auto& [nRange, nPos, nShown] :
         {std::tuple(0u, 0u, 0), {0u, 1u, 100}, {42949674u, 42949673u, 0}, {50u, 10u, 20}}) {
        EXPECT_EQ((tell(qvpcRange, nRange), tell(qvpcPosition, nPos)), nShown);
    }
    EXPECT_TRUE(tell(qvpcStep, 5) == 30 && strMessage == "before");
    tell(qvpcText, reinterpret_cast<DWORD_PTR>(static_cast<LPCSTR>("pointer")));
    EXPECT_EQ(strMessage, "pointer");
    wait->SetPosition64(1ULL << 62, 1ULL << 63);
    EXPECT_TRUE(tell(qvpcTextID, 30502) == 50 && strMessage == "Select");
    MSG msg;
    ::PostQuitMessage(7);
    for (const BYTE nCode : {BYTE{qvpcStep}, BYTE{9}}) {
        EXPECT_EQ(CodeThrown([&] { tell(nCode, 1); }), 263u);
        EXPECT_FALSE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    }
    wait->Remove();
    EXPECT_TRUE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) && msg.wParam == 7);
}

TEST_F(WaitDlg, CancelsAmongMessagesThatNeverEnd_AndMayBeDeletedByOne) {
    const ULONGLONG nEnd = ::GetTickCount64() + kPumpTimeout;
    Show(TRUE, FALSE);
    owner.m_told = [&] { ::GetTickCount64() < nEnd ? owner.PostMessage(WM_APP) : 0; };
    owner.PostMessage(WM_APP);
    ::keybd_event(VK_ESCAPE, 0, 0, 0);
    while (!wait->Cancelled() && ::GetTickCount64() < nEnd) {
        wait->Step(1);
    }
    ::keybd_event(VK_ESCAPE, 0, KEYEVENTF_KEYUP, 0);
    EXPECT_LT(::GetTickCount64(), nEnd);
    owner.m_told = [&] { wait.reset(); };
    EXPECT_EQ(CodeThrown([&] { progress.Callback(qvpcStep, 1, wait.get()); }), 263u);
    progress.Callback(qvpcStep, 1, nullptr);
}

TEST_F(WaitDlg, MonkeyAnythingInAnyOrder) {
    PlayInAnyOrder(
        wait, [&] { (wait = std::make_unique<QVWaitDlg>())->Display(&owner, FALSE); },
        {[&](int n) { n % 2 ? wait->Step(9) : wait->SetProgressRange(static_cast<DWORD>(n)); },
         [&](int n) { wait->Display(n % 2 ? &owner : nullptr, n % 3); },
         [&](int n) { n % 2 ? wait->Remove() : void(wait->DestroyWindow()); },
         [&](int n) { wait->SetHasCancelButton(n % 2), owner.EnableWindow(n % 3); },
         [&](int n) { wait->SetWaitMessage(n % 2 ? "text" : nullptr); },
         [&](int n) { wait->SendMessage(WM_COMMAND, n % 5); },
         [&](int n) { wait->SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(n * 5, n * 2)); }});
}

}  // namespace
