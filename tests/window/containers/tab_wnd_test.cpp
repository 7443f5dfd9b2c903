#include "support/list_window.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/real_input.h"
#include "support/test_app.h"
#include "window/containers/tab_test_ids.h"
#include "window/refusals.h"

#include <afxpriv.h>

#include <gtest/gtest.h>

namespace {

int s_nLiving = 0;                                       // pages
std::string s_strLog;                                    // steps that show (+) and hide (-) pages
std::function<void(const std::string& strStep)> s_told;  // as "+a"

class Page : public Mortal<QVTabWndPage> {
    DECLARE_DYNCREATE(Page)

public:
    explicit Page(UINT nID = IDD_TAB_PAGE | 0x50000)
        : m_strName(1, static_cast<char>('a' + s_nLiving++ % 26)) {
        m_nIDTemplate = nID;
    }
    ~Page() override { --s_nLiving; }
    BOOL OnInitDialog() override { return Tell('i'), QVTabWndPage::OnInitDialog(); }
    void Resize(const CRect& rect) override { QVTabWndPage::Resize(rect), Tell('r'); }
    void ShowPage() override { QVTabWndPage::ShowPage(), Tell('+'); }
    void HidePage() override { QVTabWndPage::HidePage(), Tell('-'); }
    void BeginPrinting(CDC* pDC, QVPrintEngine& engine) override {
        engine.AddText(m_strName.c_str(), pDC, nullptr), Tell('p');
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        return QVTabWndPage::OnCommand(wParam, lParam) ||
               (wParam == IDC_PAGE_BUTTON && (Tell('c'), TRUE));
    }

private:
    void Tell(char cStep) {
        s_strLog += cStep == '+' || cStep == '-' ? cStep + m_strName : "";
        s_told ? s_told(cStep + m_strName) : void();
        m_strName += "";  // whatever happened to it
    }
    std::string m_strName;
};
IMPLEMENT_DYNCREATE(Page, QVTabWndPage)

class Tabs : public Mortal<QVTabWnd> {
public:
    using QVTabWnd::SwitchTabs;
    int m_nFirst = 0;
    void AddTabPages() override {
        Add(m_nFirst);
        EXPECT_EQ(NumPages(), 0) << "tabs come afterwards";
    }
    void Add(int nPages) {
        while (nPages-- > 0 &&
               AddPage(("Title " + std::string(1, static_cast<char>('a' + s_nLiving % 26))).c_str(),
                       RUNTIME_CLASS(Page)) != nullptr) {
        }
    }
};

class Frame : public CFrameWnd {
public:
    int m_nCommands = 0;
    int m_nHelp = 0;
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        m_nCommands += nMessage == WM_COMMAND;
        m_nHelp += nMessage == WM_COMMANDHELP;
        return CFrameWnd::WindowProc(nMessage, wParam, lParam);
    }
};

// In a dialog of a main window with accelerators.
struct TabDialog {
    explicit TabDialog(int nPages = 0, bool bItem = false) {
        s_strLog.clear();
        frame.Create(nullptr, "");
        frame.LoadAccelTable(MAKEINTRESOURCE(IDR_TAB_FRAME));
        TheTestApp().m_pMainWnd = &frame;
        dlg.Create(IDD_TAB_HOST, &frame);
        dlg.ShowWindow(SW_SHOW);
        BringToFront(dlg.m_hWnd);
        Make(nPages, bItem);
    }
    ~TabDialog() {
        s_told = nullptr;
        tabs.reset();
        EXPECT_EQ(s_nLiving, 0) << "each page is deleted once";
        TheTestApp().m_pMainWnd = nullptr;
        frame.DestroyWindow();
    }
    void Make(int nPages, bool bItem = false) {
        tabs = std::make_unique<Tabs>();
        tabs->m_nFirst = nPages;
        bItem ? tabs->Initialize(IDC_TABS, &dlg) : tabs->Create(1, CRect(8, 33, 308, 178), &dlg);
    }

    Frame& frame = *new Frame;
    CDialog dlg;
    std::unique_ptr<Tabs> tabs;
};

struct AskForHelp : CWinApp {
    static void Ask() { (TheTestApp().*&AskForHelp::OnHelp)(); }
};

int Focus() {
    return ::GetDlgCtrlID(::GetFocus());
}

TEST(TabWnd, StartsWithItsPagesInPlace_AndKeepsThemThere) {
    for (const bool bItem : {false, true}) {
        TabDialog w(3, bItem);
        Tabs& tabs = *w.tabs;
        EXPECT_EQ(tabs.Initialize(IDC_TABS, &w.dlg), 1) << "once more";
        EXPECT_EQ(std::to_string(tabs.NumPages()) + s_strLog, "3+a");
        EXPECT_EQ(Focus(), IDC_BEFORE) << "no page takes it";
        EXPECT_EQ(tabs.GetTabCtrl().GetFont()->m_hObject, w.dlg.GetFont()->m_hObject);
        for (const int cx : {0, 250}) {
            cx ? tabs.SetWindowPos(nullptr, 0, 0, cx, 99, SWP_NOMOVE | SWP_NOZORDER) : FALSE;
            CRect rcTabs, rcAll, rcPage;
            tabs.GetClientRect(&rcAll), tabs.GetTabCtrl().GetClientRect(&rcTabs);
            EXPECT_EQ(rcTabs, rcAll);
            tabs.GetTabCtrl().AdjustRect(FALSE, &rcTabs);
            for (int n = 0; n < 3; ++n) {
                tabs.GetPage(n)->GetWindowRect(&rcPage), tabs.GetTabCtrl().ScreenToClient(&rcPage);
                rcPage.InflateRect(10, 10);
                EXPECT_EQ(rcPage, rcTabs);
                EXPECT_EQ(tabs.GetPage(n)->IsWindowVisible() != FALSE, n == 0);
            }
        }
    }
}

TEST(TabWnd, PagesComeAndGo) {
    TabDialog w;
    Tabs& tabs = *w.tabs;
    const auto after = [&](const std::function<void()>& deed) {
        s_strLog.clear(), deed();
        return s_strLog + ' ' + std::to_string(tabs.GetActivePage()) + ' ' +
               std::to_string(tabs.GetTabCtrl().GetCurSel());
    };
    EXPECT_EQ(after([&] { tabs.SetActivePage(0), tabs.SwitchTabs(-1); }), " -1 -1");
    EXPECT_EQ(after([&] { tabs.Add(3); }), "+a 0 0");
    EXPECT_EQ(after([&] { tabs.SetActivePage(1); }), "+b-a 1 1");
    EXPECT_EQ(after([&] { tabs.SetActivePage(7); }), "-b-b-b -1 1") << "once for each page";
    EXPECT_EQ(after([&] { tabs.SwitchTabs(-1); }), " -1 1");
    EXPECT_EQ(after([&] { tabs.SetActivePage(2); }), "+c 2 2");
    s_told = [&](const std::string& str) {
        str == "+a" || str == "-b" ? tabs.SetActivePage(1) : void();
    };
    EXPECT_EQ(after([&] { tabs.SetActivePage(0); }), "+a+b-c-a 1 1") << "sent on";
    EXPECT_EQ(after([&] { tabs.SetActivePage(2); }), "+c-b+b-c 1 1") << "it does not let go";
    s_told = nullptr;
    tabs.AddPage("TITLE B", RUNTIME_CLASS(Page));
    for (const auto& [n, psz, nFound] : std::vector<std::tuple<int, const char*, int>>{
             {-1, "", -1}, {1, "Title b", 1}, {3, "TITLE B", 1}, {4, "", -1}}) {
        EXPECT_EQ(tabs.GetPageTitle(n), psz);
        EXPECT_EQ(tabs.FindPageWithTitle(psz), nFound);
        EXPECT_EQ(tabs.GetPage(n) != nullptr, *psz != '\0');
    }
    EXPECT_EQ(after([&] { tabs.RemovePages(), tabs.Add(1); }), "+a 0 0");
    EXPECT_EQ(s_nLiving, 1);
}

TEST(TabWnd, APageThatCannotBeMadeLeavesAllAsItWas) {
    TabDialog w(1);
    for (const UINT nID : {IDD_TAB_BROKEN, 0, 9999}) {
        Page page(nID);
        EXPECT_EQ(w.tabs->AddPage("", &page), nullptr) << "stays the caller's";
    }
    EXPECT_EQ(w.tabs->AddPage("", RUNTIME_CLASS(CWnd)), nullptr);
    const auto check = [&] { EXPECT_EQ(s_nLiving, w.tabs->NumPages()); };
    EXPECT_GT(RefuseEach(
                  "page", [&] { w.tabs->Add(1); }, check),
              4);
    EXPECT_GT(RefuseEach(
                  "window", [&] { w.Make(2); }, check),
              5);
}

// Notes who would erase the watched point of the screen: pages P, others X.
CPoint s_ptWatched;
std::string s_strPainters;
LRESULT CALLBACK NotePainter(int nCode, WPARAM wParam, LPARAM lParam) {
    const auto& msg = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    CPoint pt(s_ptWatched);
    ::ScreenToClient(msg.hwnd, &pt);
    if (msg.message == WM_ERASEBKGND &&
        ::PtVisible(reinterpret_cast<HDC>(msg.wParam), pt.x, pt.y)) {
        s_strPainters += dynamic_cast<Page*>(CWnd::FromHandlePermanent(msg.hwnd)) ? 'P' : 'X';
    }
    return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
}

TEST(TabWnd, APagesPixelsAreWrittenOnceByThePage) {
    TabDialog w(2);
    Tabs& tabs = *w.tabs;
    const HHOOK hHook =
        ::SetWindowsHookEx(WH_CALLWNDPROC, NotePainter, nullptr, ::GetCurrentThreadId());
    const auto painters = [&](int cx, int nPage) {
        s_strPainters.clear();
        tabs.SetWindowPos(nullptr, 0, 0, cx, 140, SWP_NOMOVE);
        tabs.GetActivePage() != nPage ? tabs.SetActivePage(nPage) : void();
        tabs.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        return s_strPainters;
    };
    CRect rc;
    tabs.GetPage(0)->GetWindowRect(&rc);
    for (const int nOut : {-5, 5}) {  // of the page in the smaller window
        s_ptWatched = CPoint(rc.right + nOut, rc.bottom - 20);
        painters(300, 0);
        EXPECT_EQ(painters(350, 0), nOut < 0 ? "" : "P");
        EXPECT_EQ(painters(350, 1), "P");
        EXPECT_EQ(painters(320, 1), "");
    }
    ::UnhookWindowsHookEx(hHook);
    tabs.ShowWindow(SW_HIDE);
    tabs.SetActivePage(0);
    EXPECT_FALSE(tabs.GetStyle() & WS_VISIBLE) << "hidden it stays";
}

TEST(TabWnd, TheKeyboardGoesThroughThePage) {
    TabDialog w(2, true);
    Tabs& tabs = *w.tabs;
    for (const int nNext : {IDC_PAGE_EDIT, IDC_PAGE_BUTTON, IDC_BEHIND, IDC_BEFORE}) {
        TypeKey(VK_TAB);
        EXPECT_EQ(Focus(), nNext);
    }
    tabs.GetPage(0)->GetDlgItem(IDC_PAGE_EDIT)->SetFocus();
    TypeKey('K', false, true), TypeKey(VK_RETURN), TypeKey(VK_ESCAPE);
    EXPECT_EQ(Focus(), IDC_PAGE_EDIT);
    EXPECT_EQ(w.frame.m_nCommands, 1);
    TypeKey(VK_TAB);
    BringToFront(w.frame.m_hWnd);
    tabs.SetFocus();  // as a frame does that comes back
    EXPECT_EQ(Focus(), IDC_PAGE_BUTTON) << "where it was";
    tabs.SetActivePage(1);
    EXPECT_EQ(::GetParent(::GetFocus()), tabs.GetPage(1)->m_hWnd) << "it follows";
    CRect rcTab;
    tabs.GetTabCtrl().GetItemRect(0, &rcTab);
    ClickAt(tabs.GetTabCtrl().m_hWnd, rcTab.CenterPoint());
    EXPECT_EQ(tabs.GetActivePage(), 0);
    EXPECT_TRUE(::IsWindowVisible(::GetFocus()));
    TheTestApp().m_pMainWnd = &w.dlg;  // has no accelerators
    tabs.SetFocus(), TypeKey('K', false, true);
    EXPECT_EQ(w.frame.m_nCommands, 1);
    AskForHelp::Ask();
    EXPECT_EQ(w.frame.m_nHelp, 0) << "a page keeps to itself what nobody helps with";
    w.dlg.GetDlgItem(IDC_BEFORE)->SetFocus(), AskForHelp::Ask();
    EXPECT_EQ(w.frame.m_nHelp, 1);
}

// A page's step takes away what it belongs to, or adds to it.
TEST(TabWnd, PagesOutliveTheirOwnSteps) {
    for (const char cStep : {'i', 'r', '+', '-', 'p', 'c'}) {
        for (const int nDeed : {0, 1, 2, 3}) {
            TabDialog w(2);
            auto& tabs = w.tabs;
            const std::function<void()> deeds[] = {
                [&] { tabs->RemovePages(); }, [&] { tabs.reset(); }, [&] { tabs->DestroyWindow(); },
                [&] { tabs->Add(1); }};
            s_told = [&](const std::string& str) {
                str[0] == cStep&& s_nLiving < 9 && tabs ? deeds[nDeed]() : void();
            };
            TextRecorder dc;
            QVPrintEngine engine(&dc, nullptr, nullptr, nullptr);
            const std::function<void()> acts[] = {
                [&] { tabs->Add(1); }, [&] { tabs->SetActivePage(1); },
                [&] { tabs->BeginPrinting(&dc, engine, FALSE); },
                [&] {
                    if (auto* pPage = tabs->GetPage(tabs->GetActivePage())) {
                        ClickAt(pPage->GetDlgItem(IDC_PAGE_BUTTON)->m_hWnd, CPoint(5, 5));
                    }
                }};
            for (const auto& act : acts) {
                tabs && tabs->NumPages() > 0 ? act() : void();
            }
        }
    }
}

TEST(TabWnd, PrintsASectionForEachPage) {
    TabDialog w(3);
    w.tabs->SetActivePage(1);
    CFont font;
    font.CreatePointFont(90, "Tahoma");
    for (const bool bActiveOnly : {false, true}) {
        TextRecorder dc(CSize(500, 900));
        QVPrintEngine engine(&dc, &font, &font, &font);
        w.tabs->BeginPrinting(&dc, engine, bActiveOnly);
        const CRect rc(0, 0, 500, 900);
        engine.Paginate(rc), engine.PrintPage(&dc, rc, 1);
        EXPECT_EQ(dc.All(), bActiveOnly ? "Title b|b" : "Title a|a|Title b|b|Title c|c");
    }
}

TEST(TabWndMonkey, SurvivesAnyOrder) {
    TabDialog w;
    PlayInAnyOrder(w.tabs, [&] { w.Make(0); },
                   {[&](int n) { w.tabs->SetActivePage(n % 4); },
                    [&](int n) { w.tabs->Add(n % 3); }, [&](int) { w.tabs->RemovePages(); },
                    [&](int n) { w.tabs->ShowWindow(n % 2 ? SW_SHOW : SW_HIDE); },
                    [&](int n) { w.tabs->SetWindowPos(nullptr, n, n, 9 * n, 5 * n, 0); },
                    [&](int) { w.tabs->SetFocus(), w.tabs->GetTabCtrl().SetFocus(); },
                    [&](int n) { n % 5 ? w.tabs->RedrawWindow() : w.tabs->DestroyWindow(); },
                    [&](int n) { n % 9 ? w.tabs->ResizePages() : w.tabs.reset(); }});
}

}  // namespace
