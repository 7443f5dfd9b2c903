// The status report and its text dialog: what shows, what each failure ends in, who deletes what.
#include "QVControls.h"
#include "dialogs/dialog_ids.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/other_program.h"
#include "support/real_input.h"
#include "support/recording_parent.h"
#include "support/test_app.h"
#include "window/refusals.h"

#include <filesystem>

namespace {

class CountedStatus : public QVStatus {
public:
    explicit CountedStatus(int& nAlive) : QVStatus(1001, "It failed."), m_nAlive(++nAlive) {}
    ~CountedStatus() override { --m_nAlive; }

private:
    int& m_nAlive;
};

// Reports are answered from within their loops, and closed at last if nobody did. Their temporary
// files go into a folder of their own.
class QVStatusReportTest : public testing::Test {
protected:
    QVStatusReportTest() : nTimer(::SetTimer(nullptr, 0, 5, Look)) {
        s_pTest = this;
        std::filesystem::create_directory(folder);
        ::SetEnvironmentVariable("TMP", folder.string().c_str());
    }
    ~QVStatusReportTest() override {
        ::KillTimer(nullptr, nTimer);
        EXPECT_EQ(nAlive, 0) << "each status is deleted once";
        ::SetEnvironmentVariable("TMP", folder.parent_path().string().c_str());
        std::filesystem::remove_all(folder);
    }
    static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD) {
        const HWND hDialog = ::GetLastActivePopup(s_pTest->hOwner);
        if (std::exchange(s_pTest->hShown, hDialog) != hDialog && hDialog != s_pTest->hOwner) {
            ++s_pTest->nShown;
            ::GetWindowText(hDialog, s_pTest->szCaption, sizeof s_pTest->szCaption);
            s_pTest->answer(hDialog);
        } else if (++s_pTest->nLooks % kMostLooks == 0) {
            ::PostMessage(hDialog, WM_COMMAND, IDCANCEL, 0);
        }
    }
    static constexpr int kMostLooks = 2000;
    static inline QVStatusReportTest* s_pTest;

    RecordingParent parent;
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "qv report";
    int nAlive = 0, nShown = 0, nBoxes = 0, nLooks = 0;
    char szCaption[99] = {};
    HWND hOwner = parent.m_hWnd, hShown = nullptr;
    UINT_PTR nTimer;
    std::function<void(HWND)> answer = [this](HWND hDialog) {
        const bool bBox = ::GetDlgItem(hDialog, QV_IDC_TEXT_MESSAGE) == nullptr;
        nBoxes += bBox;
        ::PostMessage(hDialog, WM_COMMAND, bBox ? IDOK : IDCANCEL, 0);
    };
};

TEST_F(QVStatusReportTest, ShowsTheLogUntilAKeyClosesIt_AlsoAfterAnotherProgram) {
    for (const WORD vk : {VK_ESCAPE, VK_RETURN}) {
        BringToFront(parent.m_hWnd);
        parent.SetFocus();
        answer = [&](HWND hDialog) {
            BringToFront(hDialog);
            const CWnd* pText = CWnd::FromHandle(::GetDlgItem(hDialog, QV_IDC_TEXT_PLACE));
            EXPECT_STREQ(dynamic_cast<const QVTextWnd&>(*pText).GetLineText(1), "    It failed.");
            EXPECT_FALSE(parent.IsWindowEnabled() || std::filesystem::is_empty(folder));
            const auto file = std::filesystem::directory_iterator(folder)->path().filename();
            EXPECT_TRUE(file.string().starts_with("qv") && file.extension() == ".tmp");
            TypeKey(VK_TAB);
            const HWND hFocus = ::GetFocus();
            EXPECT_TRUE(LoseFocusToOtherProgram() && BringToFront(hDialog));
            EXPECT_TRUE(::GetFocus() == hFocus && ::IsChild(hDialog, hFocus));
            TypeKey(vk);
        };
        QVStatusReport::Report(new CountedStatus(nAlive), &parent, 0);
        EXPECT_TRUE(std::filesystem::is_empty(folder));
        EXPECT_TRUE(parent.IsWindowEnabled() && ::GetFocus() == parent.m_hWnd &&
                    nLooks < kMostLooks);
    }
}

using Reporting = void (*)(QVStatus*, CWnd*, int);
const Reporting kInDialog = QVStatusReport::Report, kInBox = QVStatusReport::AfxMsgBoxReport;

int s_nBefore;
LRESULT CALLBACK RefuseOne(int nCode, WPARAM wParam, LPARAM lParam) {
    const bool bRefuse = nCode == HCBT_CREATEWND && s_nBefore-- == 0;
    return bRefuse ? 1 : ::CallNextHookEx(nullptr, nCode, wParam, lParam);
}

TEST_F(QVStatusReportTest, EndsInABoxWhateverFails) {
    for (int nBefore = 0; nBefore < 8; ++nBefore) {
        s_nBefore = nBefore;
        const HHOOK hHook = ::SetWindowsHookEx(WH_CBT, RefuseOne, nullptr, ::GetCurrentThreadId());
        QVStatusReport::Report(new CountedStatus(nAlive), &parent, 0);
        ::UnhookWindowsHookEx(hHook);
        EXPECT_EQ(nShown, nBefore + 1);
    }
    EXPECT_GE(nBoxes, 4) << "the dialog, its items, the text";
    EXPECT_EQ(std::filesystem::remove_all(folder), nBoxes + 1u)
        << "a file for each, and the folder";
    nBoxes = 0;
    QVStatusReport::Report(new CountedStatus(nAlive), &parent, 0);
    QVStatusReport::Report(static_cast<QVStatus*>(nullptr), &parent, 0);
    EXPECT_EQ(nBoxes, 2);
    std::filesystem::create_directory(folder);
    auto* pException = new CUserException;
    RefuseEach(
        "report", [&] { QVStatusReport::Report(pException, &parent); },
        [&] {
            EXPECT_GT(std::exchange(nShown, 0), 0);
            pException = new CUserException;
        });
    pException->Delete();
}

TEST_F(QVStatusReportTest, BoxHasTheFormThatWasAskedFor_AndTheApplicationsCaption) {
    std::filesystem::remove(folder);
    for (const int nFormat : {0, 1, 2}) {
        QVStatusReport::Report(new CountedStatus(nAlive), nullptr, nFormat);
        EXPECT_EQ(TheTestApp().m_prompts.back().substr(0, 4), nFormat == 1 ? "=== " : "It f");
        const HMODULE hModule = ::LoadLibrary(nFormat > 0 ? "late_module.dll" : "");
        QVStatusReport::Report(new CountedStatus(nAlive), &parent, nFormat);
        ::FreeLibrary(hModule);
        EXPECT_STREQ(szCaption, nFormat > 0 ? "A caption" : AfxGetAppName());
    }
}

TEST_F(QVStatusReportTest, OwnerIsAsItWas_AndMayGoMeanwhile) {
    std::unique_ptr<RecordingParent> pOwner;
    answer = [&, close = answer](HWND hDialog) { pOwner ? pOwner.reset() : close(hDialog); };
    for (const Reporting report : {kInDialog, kInBox}) {
        parent.ShowWindow(SW_HIDE);
        parent.EnableWindow(FALSE);
        report(new CountedStatus(nAlive), &parent, 0);
        EXPECT_FALSE(parent.IsWindowVisible() || parent.IsWindowEnabled());
        pOwner = std::make_unique<Mortal<RecordingParent>>();
        hOwner = pOwner->m_hWnd;
        TheTestApp().Forget();
        report(new CountedStatus(nAlive), pOwner.get(), 0);
        EXPECT_EQ(TheTestApp().m_prompts.size(), report == kInDialog ? 1u : 0u);
        hOwner = parent.m_hWnd;
    }
}

// --- The text dialog

class TextDlg : public QVTextDlg {
public:
    using QVTextDlg::m_btnClose, QVTextDlg::m_wndMessage, QVTextDlg::m_wndText;
    BOOL Open() { return CDialog::Create(QV_IDD_TEXT); }
    CRect Place(const CWnd& wnd) const {
        CRect rc;
        wnd.GetWindowRect(&rc);
        ScreenToClient(&rc);
        return rc;
    }
};

TEST(QVTextDlg, KeepsItsGapsWhenSized) {
    TextDlg dialog;
    ASSERT_TRUE(dialog.Open());
    const CRect rcFirst = dialog.Place(dialog.m_wndMessage);
    const int nGap = dialog.Place(dialog.m_wndText).top - rcFirst.bottom;
    for (const CSize size : {CSize(701, 503), CSize(10, 10), CSize(333, 222)}) {
        dialog.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        dialog.ShowWindow(SW_MINIMIZE);
        dialog.ShowWindow(SW_RESTORE);
        CRect rc;
        dialog.GetWindowRect(&rc);
        EXPECT_EQ(rc.Size(), size.cx == 10 ? CSize(200, 100) : size);
        dialog.GetClientRect(&rc);
        const CRect rcText = dialog.Place(dialog.m_wndText);
        const CRect rcClose = dialog.Place(dialog.m_btnClose);
        EXPECT_EQ(dialog.Place(dialog.m_wndMessage).right, rc.right - rcFirst.left);
        EXPECT_EQ(rcClose.bottom, rc.bottom - rcFirst.top);
        EXPECT_EQ(rcClose.left, (rc.right - rcClose.Width()) / 2);
        const int nTop = rcFirst.bottom + nGap;
        EXPECT_EQ(rcText, CRect(rcFirst.left, nTop, rc.right - rcFirst.left,
                                std::max<LONG>(nTop, rcClose.top - nGap)));
    }
}

TEST(QVTextDlgMonkey, ComesAndGoesInAnyOrder) {
    std::unique_ptr<TextDlg> p;
    PlayInAnyOrder<TextDlg>(
        p, [&] { (p = std::make_unique<TextDlg>())->Open(); },
        {[&](int) { p.reset(); }, [&](int) { p->m_wndText.DestroyWindow(); },
         [&](int n) { p->MoveWindow(CRect(0, 0, n * 20, n * 10)); },
         [&](int) { p->DestroyWindow(); }, [&](int) { p->SendMessage(WM_INITDIALOG); }});
}

}  // namespace
