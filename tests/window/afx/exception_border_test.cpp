// Exceptions stop where the system called: whatever a handler throws, and with however little
// memory, the caller gets a result.
#include "support/popup.h"
#include "support/pump.h"
#include "support/test_app.h"
#include "window/afx/afx_test_ids.h"
#include "window/refusals.h"

#include <afxcmn.h>

#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using Thrower = void (*)();

struct Kind {
    const char* pszMessage;  ///< what the application hears
    Thrower pfnThrow;
};
const Kind kKinds[] = {{"Out of memory.", AfxThrowMemoryException},
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

/// A window, and the application as other tests know it, whatever a test here told it to do.
class ExceptionBorder : public testing::Test {
protected:
    void SetUp() override {
        m_app.Forget();
        ASSERT_TRUE(MakePopup(m_wnd));
    }
    void TearDown() override {
        m_app.m_report = nullptr;
        m_app.Forget();
    }
    /// Whatever the operation's window or frame throws, the application hears of it, nobody else.
    void ExpectTold(size_t nTimes, const std::function<void(Thrower)>& operation) {
        for (const Kind& kind : kKinds) {
            m_app.Forget();
            EXPECT_EQ(Outcome::kDone, Try([&] { operation(kind.pfnThrow); }));
            EXPECT_EQ(std::vector<std::string>(nTimes, kind.pszMessage), m_app.m_exceptions);
        }
    }
    TestApp& m_app = TheTestApp();
    ThrowingWnd m_wnd;
};

TEST_F(ExceptionBorder, EveryKindIsToldToTheApplication_AndGivesZero) {
    ExpectTold(1, [&](Thrower pfnThrow) {
        m_wnd.m_throw = pfnThrow;
        EXPECT_EQ(0, ::SendMessage(m_wnd.m_hWnd, kThrow, 0, 0));
        // The message that is being handled is the outer one again.
        EXPECT_NE(CWnd::GetCurrentMessage()->message, kThrow);
    });
}

TEST_F(ExceptionBorder, AReportThatFailsItself_EndsThere) {
    const auto send = [&] { ::SendMessage(m_wnd.m_hWnd, kThrow, 0, 0); };
    for (const Kind& kind : kKinds) {
        m_wnd.m_throw = kind.pfnThrow;
        m_app.m_report = [&kind](CException*) { kind.pfnThrow(); };
        EXPECT_EQ(Outcome::kDone, Try(send));
        m_app.m_report = [](CException* e) { throw e; };
        EXPECT_EQ(Outcome::kDone, Try(send));
    }
    // The results by which the system goes on are the same.
    m_wnd.m_nWhere = WM_PAINT;
    m_wnd.ShowWindow(SW_SHOWNA);
    m_wnd.Invalidate();
    m_wnd.UpdateWindow();
    EXPECT_FALSE(m_wnd.GetUpdateRect(nullptr));
}

TEST_F(ExceptionBorder, ThrowingWhileTheWindowIsMade_MakesCreationFail) {
    for (const UINT nWhere : {UINT{WM_NCCREATE}, UINT{WM_CREATE}, ThrowingWnd::kBinding}) {
        for (const Kind& kind : kKinds) {
            ThrowingWnd wnd;
            wnd.m_throw = kind.pfnThrow;
            wnd.m_nWhere = nWhere;
            BOOL bMade = TRUE;
            EXPECT_EQ(Outcome::kDone, Try([&] { bMade = MakePopup(wnd); }));
            EXPECT_FALSE(bMade);
            EXPECT_EQ(nullptr, wnd.m_hWnd);
            EXPECT_EQ(1, wnd.m_nPostNcDestroy);
        }
    }
}

TEST_F(ExceptionBorder, WithoutMemory_TheReportStillComes) {
    for (const Kind& kind : kKinds) {
        m_wnd.m_throw = kind.pfnThrow;
        int nReports = 0;
        m_app.m_report = [&nReports](CException*) { ++nReports; };
        const int nRefused = RefuseEach(
            kind.pszMessage, [&] { ::SendMessage(m_wnd.m_hWnd, kThrow, 0, 0); },
            [&] { EXPECT_EQ(1, std::exchange(nReports, 0)); });
        EXPECT_GT(nRefused, 0);
    }
}

TEST_F(ExceptionBorder, ThrowingInTheLastMessage_LetsGoOfTheWindowAllTheSame) {
    ExpectTold(1, [](Thrower pfnThrow) {
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
    m_wnd.m_bBeforeTheQueue = true;
    ExpectTold(1, [&](Thrower pfnThrow) {
        m_wnd.m_throw = pfnThrow;
        m_wnd.PostMessage(kThrow);
        PumpPending();
    });
}

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

TEST_F(ExceptionBorder, IdleWorkThatThrows_GoesOnTheNextTime) {
    ExpectTold(3, [](Thrower pfnThrow) {
        IdleThread thread;
        thread.m_pfnThrow = pfnThrow;
        thread.Run();
        EXPECT_EQ(3, thread.m_nIdle);
    });
}

/// Its initialization throws.
class UnreadyDialog : public CDialog {
public:
    explicit UnreadyDialog(Thrower pfnThrow) : CDialog(IDD_MODAL), m_pfnThrow(pfnThrow) {}
    BOOL OnInitDialog() override {
        m_pfnThrow();
        return TRUE;
    }

private:
    Thrower m_pfnThrow;
};

TEST_F(ExceptionBorder, ADialogThatFailsToStart_EndsWithMinusOne) {
    m_app.m_report = [](CException*) { AfxThrowMemoryException(); };
    for (const Kind& kind : kKinds) {
        EXPECT_EQ(-1, UnreadyDialog(kind.pfnThrow).DoModal());
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

TEST_F(ExceptionBorder, AComparisonThatThrows_LetsTheSortingComeToItsEnd) {
    constexpr int kRows = 9;
    Watched<CListCtrl> list;
    Watched<CTreeCtrl> tree;
    ASSERT_TRUE(list.Create(WS_CHILD | LVS_REPORT, CRect(0, 0, 50, 50), &m_wnd, 1));
    ASSERT_TRUE(tree.Create(WS_CHILD, CRect(0, 0, 50, 50), &m_wnd, 2));
    for (int nRow = 0; nRow < kRows; ++nRow) {
        list.InsertItem(LVIF_TEXT | LVIF_PARAM, nRow, "row", 0, 0, 0, kRows - nRow);
        tree.SetItemData(tree.InsertItem("row"), static_cast<DWORD_PTR>(kRows - nRow));
    }
    TVSORTCB sort = {TVI_ROOT, CompareSome, 0};
    for (int nComparisons = 0; nComparisons < 5; ++nComparisons) {
        m_app.Forget();
        s_nComparisonsLeft = nComparisons;
        EXPECT_FALSE(list.SortItems(CompareSome, 0));
        s_nComparisonsLeft = nComparisons;
        EXPECT_FALSE(tree.SortChildrenCB(&sort));
        EXPECT_EQ((std::vector<std::string>{"tired", "tired"}), m_app.m_exceptions);
    }
    EXPECT_EQ(0, list.nThrown + tree.nThrown) << "the control's own code was left in the middle";
    s_nComparisonsLeft = 1000;
    EXPECT_TRUE(list.SortItems(CompareSome, 0));
    EXPECT_EQ(1u, list.GetItemData(0));
}

}  // namespace
