// Threads: workers and threads with windows, what each has of its own, how they start and end.
#include "support/pump.h"
#include "support/test_app.h"

#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <thread>

namespace {

constexpr UINT kTell = WM_APP + 31;

UINT AFX_CDECL RunTask(LPVOID pTask) {
    return (*static_cast<std::function<UINT()>*>(pTask))();
}

/// Runs it in a worker while this thread serves its windows, and gives the exit code.
DWORD InWorker(std::function<UINT()> task) {
    CWinThread* pThread =
        AfxBeginThread(RunTask, &task, THREAD_PRIORITY_BELOW_NORMAL, 0, CREATE_SUSPENDED);
    pThread->m_bAutoDelete = FALSE;
    const std::unique_ptr<CWinThread> owner(pThread);
    EXPECT_EQ(pThread->GetThreadPriority(), THREAD_PRIORITY_BELOW_NORMAL);
    EXPECT_EQ(pThread->ResumeThread(), 1u);
    EXPECT_TRUE(PumpUntil([&] { return ::WaitForSingleObject(*pThread, 0) == WAIT_OBJECT_0; }));
    DWORD dwCode = 0;
    ::GetExitCodeThread(*pThread, &dwCode);
    return dwCode;
}

class ToldFrame : public CFrameWnd {
public:
    int m_nTold = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == kTell ? m_nTold += static_cast<int>(wParam)
                                : CFrameWnd::WindowProc(message, wParam, lParam);
    }
};

class Threads : public testing::Test {
protected:
    void SetUp() override {
        TheTestApp().Forget();
        m_pFrame = new ToldFrame;
        m_pFrame->Create(nullptr, "Main");
        TheTestApp().m_pMainWnd = m_pFrame;
    }
    void TearDown() override {
        TheTestApp().m_pMainWnd = nullptr;
        m_pFrame->DestroyWindow();
    }
    ToldFrame* m_pFrame = nullptr;
};

TEST_F(Threads, HaveObjectsOfTheirOwnForTheWindowsOfOthers) {
    const HWND hFrame = m_pFrame->m_hWnd;
    const DWORD dwCode = InWorker([&] {
        CWnd* pMain = AfxGetMainWnd();
        EXPECT_EQ(pMain->m_hWnd, hFrame);
        EXPECT_NE(pMain, m_pFrame);
        EXPECT_EQ(CWnd::FromHandle(hFrame), pMain);
        EXPECT_EQ(AfxGetThread()->m_nThreadID, ::GetCurrentThreadId());
        EXPECT_EQ(pMain->SendMessage(kTell, 5), 5);
        EXPECT_TRUE(pMain->PostMessage(kTell, 2));
        EXPECT_EQ(AfxMessageBox("told"), IDOK);
        return 7u;
    });
    EXPECT_EQ(dwCode, 7u);
    EXPECT_EQ(m_pFrame->m_nTold, 7);
    EXPECT_EQ(CWnd::FromHandlePermanent(hFrame), m_pFrame) << "and it is still there";
    EXPECT_EQ(TheTestApp().m_prompts, std::vector<std::string>{"told"});
}

TEST_F(Threads, EndByTheirCallAndByWhatTheyThrow) {
    EXPECT_EQ(InWorker([]() -> UINT { AfxEndThread(3, FALSE); }), 3u);
    EXPECT_EQ(InWorker([]() -> UINT { AfxThrowNotSupportedException(); }), static_cast<DWORD>(-1));
    ASSERT_EQ(TheTestApp().m_prompts.size(), 1u) << "and the user is told";
    EXPECT_EQ(AfxBeginThread(RUNTIME_CLASS(CWnd)), nullptr);
}

std::atomic<int> s_nWindowThreads{0};
std::string s_strSteps;

/// A thread with a frame of its own, which ends with that.
class WindowThread : public CWinThread {
    DECLARE_DYNCREATE(WindowThread)
public:
    WindowThread() { ++s_nWindowThreads; }
    ~WindowThread() override { --s_nWindowThreads; }

protected:
    BOOL InitInstance() override {
        auto* pFrame = new CFrameWnd;
        m_pMainWnd = pFrame;
        return pFrame->Create(nullptr, "Other");
    }
    int ExitInstance() override {
        s_strSteps += " exit";
        return CWinThread::ExitInstance();
    }
    afx_msg void OnTold(WPARAM wParam, LPARAM) {
        s_strSteps += " told" + std::to_string(wParam);
        if (wParam == 2) {
            EXPECT_TRUE(m_pMainWnd->IsFrameWnd());
            m_pMainWnd->PostMessage(WM_CLOSE);
        }
    }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(WindowThread, CWinThread)
BEGIN_MESSAGE_MAP(WindowThread, CWinThread)
    ON_THREAD_MESSAGE(kTell, &WindowThread::OnTold)
END_MESSAGE_MAP()

TEST_F(Threads, WithWindowsTakeMessagesFromTheirStartAndEndWithTheirFrame) {
    const LONG nHandles = AfxGetOwnedHandleCount();
    for (int nTime = 0; nTime < 20; ++nTime) {
        s_strSteps.clear();
        CWinThread* pThread = AfxBeginThread(RUNTIME_CLASS(WindowThread));
        ASSERT_NE(pThread, nullptr);
        EXPECT_TRUE(pThread->PostThreadMessage(kTell, 1, 0));
        EXPECT_TRUE(pThread->PostThreadMessage(kTell, 2, 0));
        ASSERT_TRUE(PumpUntil([] { return s_nWindowThreads == 0; }));
        EXPECT_EQ(s_strSteps, " told1 told2 exit");
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
    EXPECT_TRUE(::IsWindow(m_pFrame->m_hWnd)) << "the main window is another";
}

TEST_F(Threads, ShareStringsClassesAndTheWaitCursor) {
    const CString strShared("shared by all of them");
    std::vector<std::jthread> threads;
    std::atomic<int> nWrong{0};
    for (int nThread = 0; nThread < 4; ++nThread) {
        threads.emplace_back([&, hFrame = m_pFrame->m_hWnd] {
            for (int nTime = 0; nTime < 2000; ++nTime) {
                const CWaitCursor wait;
                CString str(strShared);
                str += "!";
                CString strText;
                const CBrush brush(RGB(nTime & 255, 0, 0));
                CWnd::FromHandle(hFrame)->GetStyle();
                nWrong += str.GetLength() != strShared.GetLength() + 1 ||
                          CRuntimeClass::FromName("CFrameWnd") != RUNTIME_CLASS(CFrameWnd) ||
                          !strText.LoadString(AFX_IDS_UNTITLED);
            }
            CWnd::DeleteTempMap();
        });
    }
    threads.clear();
    EXPECT_EQ(nWrong, 0);
    EXPECT_FALSE(TheTestApp().IsWaitCursor());
    EXPECT_STREQ(strShared, "shared by all of them");
}

}  // namespace
