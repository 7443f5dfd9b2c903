// Exceptions stop where the system called: whatever a handler throws, and with however little
// memory, the caller gets a result.
#include "support/failing_heap.h"
#include "support/popup.h"
#include "support/pump.h"
#include "support/test_app.h"
#include "window/afx/afx_test_ids.h"

#include <afxcmn.h>

#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace {

using Thrower = void (*)();

struct Kind {
    const char* pszMessage;  ///< what the application hears
    Thrower pfnThrow;
};
constexpr Kind kKinds[] = {
    {"Out of memory.", AfxThrowMemoryException},
    {"Out of memory.", [] { throw std::bad_alloc(); }},
    {"A resource is not available.", AfxThrowResourceException},
    {"", AfxThrowUserException},
    {"missing was not found",
     [] { AfxThrowFileException(CFileException::fileNotFound, -1, "missing"); }},
    {"foreign", [] { throw std::runtime_error("foreign"); }},
    {"unknown exception", [] { throw 5; }},
    {"unknown exception", [] { throw static_cast<const char*>("text"); }}};

constexpr UINT kThrow = WM_APP + 40;

/// Throws from one message, before the base class sees it; or before the queue dispatches it; or,
/// for kBinding, while the window is bound to the object.
class ThrowingWnd : public CWnd {
public:
    static constexpr UINT kBinding = UINT_MAX;

    UINT m_nWhere = kThrow;
    bool m_bBeforeTheQueue = false;
    std::function<void()> m_throw;
    int m_nPostNcDestroy = 0;

    BOOL PreTranslateMessage(MSG* pMsg) override {
        ThrowAt(pMsg->message, true);
        return CWnd::PreTranslateMessage(pMsg);
    }

protected:
    void PreSubclassWindow() override { ThrowAt(kBinding, false); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        ThrowAt(message, false);
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override { ++m_nPostNcDestroy; }

private:
    void ThrowAt(UINT nWhere, bool bBeforeTheQueue) const {
        if (nWhere == m_nWhere && bBeforeTheQueue == m_bBeforeTheQueue && m_throw) {
            m_throw();
        }
    }
};

/// Runs something that the system may do; true if an exception came out.
template <typename Operation>
bool Leaks(Operation operation) {
    try {
        operation();
    } catch (...) {
        return true;
    }
    return false;
}

/// The application as other tests know it, whatever a test here told it to do.
class ExceptionBorder : public testing::Test {
protected:
    void SetUp() override { TheTestApp().Forget(); }
    void TearDown() override {
        TheTestApp().m_report = nullptr;
        TheTestApp().Forget();
    }
    /// Whatever the operation's window or frame throws, the application hears of it, nobody else.
    void ExpectToldOnce(const std::function<void(Thrower)>& operation) {
        for (const Kind& kind : kKinds) {
            m_app.Forget();
            EXPECT_FALSE(Leaks([&] { operation(kind.pfnThrow); }));
            EXPECT_EQ(std::vector<std::string>{kind.pszMessage}, m_app.m_exceptions);
        }
    }
    TestApp& m_app = TheTestApp();
};

TEST_F(ExceptionBorder, EveryKindIsToldToTheApplication_AndGivesZero) {
    ThrowingWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    ExpectToldOnce([&](Thrower pfnThrow) {
        wnd.m_throw = pfnThrow;
        EXPECT_EQ(0, ::SendMessage(wnd.m_hWnd, kThrow, 0, 0));
        // The message that is being handled is the outer one again.
        EXPECT_NE(CWnd::GetCurrentMessage()->message, kThrow);
    });
}

TEST_F(ExceptionBorder, AReportThatFailsItself_EndsThere) {
    ThrowingWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    const auto rethrow = [](CException* e) { throw e; };
    for (const Kind& kind : kKinds) {
        wnd.m_throw = kind.pfnThrow;
        for (const Kind& second : kKinds) {
            m_app.m_report = [&second](CException*) { second.pfnThrow(); };
            EXPECT_FALSE(Leaks([&] { ::SendMessage(wnd.m_hWnd, kThrow, 0, 0); }));
        }
        m_app.m_report = rethrow;
        EXPECT_FALSE(Leaks([&] { ::SendMessage(wnd.m_hWnd, kThrow, 0, 0); }));
    }
    // The results by which the system goes on are the same.
    wnd.m_nWhere = WM_PAINT;
    wnd.ShowWindow(SW_SHOWNA);
    wnd.Invalidate();
    wnd.UpdateWindow();
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr));
}

TEST_F(ExceptionBorder, ThrowingWhileTheWindowIsMade_MakesCreationFail) {
    for (const UINT nWhere : {UINT{WM_NCCREATE}, UINT{WM_CREATE}, ThrowingWnd::kBinding}) {
        for (const Kind& kind : kKinds) {
            ThrowingWnd wnd;
            wnd.m_throw = kind.pfnThrow;
            wnd.m_nWhere = nWhere;
            BOOL bMade = TRUE;
            EXPECT_FALSE(Leaks([&] { bMade = MakePopup(wnd); }));
            EXPECT_FALSE(bMade);
            EXPECT_EQ(nullptr, wnd.m_hWnd);
            EXPECT_EQ(1, wnd.m_nPostNcDestroy);
        }
    }
}

TEST_F(ExceptionBorder, WithoutMemory_TheReportStillComes) {
    for (const Kind& kind : kKinds) {
        ThrowingWnd wnd;
        ASSERT_TRUE(MakePopup(wnd));
        wnd.m_throw = kind.pfnThrow;
        for (const auto mode : {FailingHeap::kAllLater, FailingHeap::kJustOne}) {
            bool bLeaked = false;
            int nReports = 0;
            m_app.m_report = [&nReports](CException*) { ++nReports; };
            const int nRefusals = RefuseEachAllocation(
                mode, [&] { bLeaked |= Leaks([&] { ::SendMessage(wnd.m_hWnd, kThrow, 0, 0); }); },
                [&](int nSucceeding) { EXPECT_EQ(nSucceeding + 1, nReports); });
            EXPECT_GT(nRefusals, 0);
            EXPECT_FALSE(bLeaked) << kind.pszMessage;
        }
    }
}

TEST_F(ExceptionBorder, ThrowingInTheLastMessage_LetsGoOfTheWindowAllTheSame) {
    ExpectToldOnce([](Thrower pfnThrow) {
        ThrowingWnd wnd;
        ASSERT_TRUE(MakePopup(wnd));
        const HWND hWnd = wnd.m_hWnd;
        wnd.m_nWhere = WM_NCDESTROY;
        wnd.m_throw = pfnThrow;
        ::DestroyWindow(hWnd);
        EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
        EXPECT_EQ(nullptr, wnd.m_hWnd);
        EXPECT_EQ(1, wnd.m_nPostNcDestroy);
    });
}

TEST_F(ExceptionBorder, TheQueueGoesOn_WhateverItsMessagesThrow) {
    ThrowingWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    wnd.m_bBeforeTheQueue = true;
    ExpectToldOnce([&](Thrower pfnThrow) {
        wnd.m_throw = pfnThrow;
        wnd.PostMessage(kThrow);
        PumpPending();
    });
}

/// A frame that fails when idle work asks what it is.
class UneasyFrame : public CFrameWnd {
public:
    Thrower m_pfnThrow = nullptr;
    BOOL IsFrameWnd() const override {
        if (m_pfnThrow != nullptr) {
            m_pfnThrow();
        }
        return TRUE;
    }
};

/// A thread of idle work that throws, until it is asked to end.
class IdleThread : public CWinThread {
public:
    Thrower m_pfnThrow = nullptr;
    int m_nIdle = 0;

    BOOL OnIdle(LONG) override {
        ++m_nIdle;
        ::PostMessage(nullptr, m_nIdle < 3 ? WM_NULL + kThrow : WM_QUIT, 0, 0);
        CWinThread::OnIdle(0);
        m_pfnThrow();
        return FALSE;
    }
};

TEST_F(ExceptionBorder, IdleWorkThatThrows_GoesOnWithTheNextFrameAndTheNextTime) {
    auto* pFrame = new UneasyFrame;
    ASSERT_TRUE(pFrame->Create(nullptr, "Uneasy"));
    PumpPending();
    for (const Kind& kind : kKinds) {
        m_app.Forget();
        IdleThread thread;
        thread.m_pfnThrow = pFrame->m_pfnThrow = kind.pfnThrow;
        EXPECT_FALSE(Leaks([&] { thread.Run(); }));
        EXPECT_EQ(3, thread.m_nIdle);
        EXPECT_EQ(std::vector<std::string>(6, kind.pszMessage), m_app.m_exceptions);
    }
    pFrame->m_pfnThrow = nullptr;
    pFrame->DestroyWindow();
}

/// Its initialization throws, or it does not get the memory that it needs.
class UnreadyDialog : public CDialog {
public:
    UnreadyDialog() : CDialog(IDD_MODAL) {}
    Thrower m_pfnThrow = nullptr;

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        m_strText.Format("%d", 12345);
        if (m_pfnThrow != nullptr) {
            m_pfnThrow();
        }
        EndDialog(IDOK);
        return TRUE;
    }
    CString m_strText;
};

TEST_F(ExceptionBorder, ADialogThatFailsToStart_EndsWithMinusOne) {
    for (const Kind& kind : kKinds) {
        m_app.m_report = [](CException*) { AfxThrowMemoryException(); };
        UnreadyDialog dlg;
        dlg.m_pfnThrow = kind.pfnThrow;
        INT_PTR nResult = 0;
        EXPECT_FALSE(Leaks([&] { nResult = dlg.DoModal(); }));
        EXPECT_EQ(-1, nResult);
    }
    m_app.m_report = nullptr;
    INT_PTR nResult = 0;
    bool bThrew = false;
    const auto run = [&] {
        UnreadyDialog dlg;
        nResult = 0;
        bThrew = Leaks([&] { nResult = dlg.DoModal(); });
    };
    run();
    for (const auto mode : {FailingHeap::kAllLater, FailingHeap::kJustOne}) {
        RefuseEachAllocation(mode, run, [&](int nSucceeding) {
            EXPECT_TRUE(bThrew || nResult == -1 || nResult == IDOK) << nSucceeding;
            AfxGetThread()->OnIdle(1);
        });
        EXPECT_EQ(IDOK, nResult);
    }
}

int s_nComparisonsLeft = 0;

/// Throws when its comparisons are used up.
int CALLBACK CompareSome(LPARAM lParam1, LPARAM lParam2, LPARAM) {
    if (s_nComparisonsLeft-- == 0) {
        throw std::runtime_error("tired");
    }
    return lParam1 < lParam2 ? -1 : lParam1 > lParam2;
}

/// Notices whether the control's own code came to its end.
template <class Control>
class WatchedControl : public Control {
public:
    bool m_bLeftInTheMiddle = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        m_bLeftInTheMiddle = true;
        const LRESULT lResult = Control::WindowProc(message, wParam, lParam);
        m_bLeftInTheMiddle = false;
        return lResult;
    }
};

TEST_F(ExceptionBorder, AComparisonThatThrows_LetsTheSortingComeToItsEnd) {
    constexpr int kRows = 9;
    CWnd parent;
    ASSERT_TRUE(MakePopup(parent));
    WatchedControl<CListCtrl> list;
    WatchedControl<CTreeCtrl> tree;
    ASSERT_TRUE(list.Create(WS_CHILD | LVS_REPORT, CRect(0, 0, 50, 50), &parent, 1));
    ASSERT_TRUE(tree.Create(WS_CHILD, CRect(0, 0, 50, 50), &parent, 2));
    for (int nRow = 0; nRow < kRows; ++nRow) {
        list.InsertItem(LVIF_TEXT | LVIF_PARAM, nRow, "row", 0, 0, 0, kRows - nRow);
        tree.SetItemData(tree.InsertItem("row"), static_cast<DWORD_PTR>(kRows - nRow));
    }
    TVSORTCB sort = {TVI_ROOT, CompareSome, 0};
    for (int nComparisons = 0; nComparisons < 5; ++nComparisons) {
        m_app.Forget();
        BOOL bSorted = TRUE;
        s_nComparisonsLeft = nComparisons;
        EXPECT_FALSE(Leaks([&] { bSorted = list.SortItems(CompareSome, 0); }));
        EXPECT_FALSE(bSorted);
        s_nComparisonsLeft = nComparisons;
        EXPECT_FALSE(Leaks([&] { bSorted = tree.SortChildrenCB(&sort); }));
        EXPECT_FALSE(bSorted);
        EXPECT_FALSE(list.m_bLeftInTheMiddle);
        EXPECT_FALSE(tree.m_bLeftInTheMiddle);
        EXPECT_EQ((std::vector<std::string>{"tired", "tired"}), m_app.m_exceptions);
    }
    s_nComparisonsLeft = 1000;
    EXPECT_TRUE(list.SortItems(CompareSome, 0));
    EXPECT_EQ(1u, list.GetItemData(0));
}

}  // namespace
