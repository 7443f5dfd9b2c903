// Tab views on the tab strip of qvocx.dll.
#include "containers/tab_view.h"

#include "frame/dc_guards.h"
#include "ocx/qvocx.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/test_app.h"
#include "window/containers/tab_test_ids.h"
#include "window/containers/tab_view_test_ids.h"
#include "window/refusals.h"

#include <afxpriv.h>

#include <gtest/gtest.h>

namespace {

int s_nLiving = 0;  // pages and views
std::string s_strLog;
std::function<void(char cStep)> s_told;
std::vector<const char*> s_titles;
UINT s_nTemplate = IDD_TAB_PAGE;

class Page : public Mortal<QVTabViewPage> {
    DECLARE_DYNCREATE(Page)
public:
    Page() : Mortal(s_nTemplate), m_cName(static_cast<char>('a' + s_nLiving++ - 1)) {}
    ~Page() override { --s_nLiving; }
    using QVTabViewPage::GetTabView;
    using QVTabViewPage::m_bNeedsUpdate;
    using QVTabViewPage::ShowContextMenu;
    BOOL OnInitDialog() override { return Tell('i'), QVTabViewPage::OnInitDialog(); }
    void Resize(const CRect& rect) override { QVTabViewPage::Resize(rect), Tell('r'); }
    void ShowPage() override { QVTabViewPage::ShowPage(), Tell('+'); }
    void HidePage() override { QVTabViewPage::HidePage(), Tell('-'); }
    void UpdatePage(int nHint, void*, int bActive) override {
        Tell(nHint == kOwnUpdate ? 'U' : bActive ? 'u' : 'v');
    }
    void UpdateCommand(CCmdUI*) override { Tell('c'); }
    int HandleCommand(UINT, int bExecute) override { return Tell(bExecute ? 'h' : 'q'), TRUE; }
    void SetPageFocus() override { QVTabViewPage::SetPageFocus(), Tell('f'); }

private:
    void Tell(char cStep) {
        (s_strLog += cStep) += m_cName;
        const auto told = s_told;
        told ? told(cStep) : void();
        m_cName = static_cast<char>(m_cName + 0);  // whatever happened to it
    }
    char m_cName;
};
IMPLEMENT_DYNCREATE(Page, QVTabViewPage)

class View : public Mortal<QVTabView> {
    DECLARE_DYNCREATE(View)
public:
    View() : Mortal(77) { ++s_nLiving; }
    ~View() override { --s_nLiving; }
    using QVTabView::FindStringTwips;
    using QVTabView::OnActivateView;
    using QVTabView::OnHandleCommand;
    using QVTabView::OnInitialUpdate;
    using QVTabView::OnTabPageActivate;
    using QVTabView::OnTabPageShown;
    void AddTabPages() override {
        for (const char* pszTitle : s_titles) {
            AddPage(pszTitle, RUNTIME_CLASS(Page));
        }
    }
    Page* At(int nPage) { return static_cast<Page*>(GetPage(nPage)); }

protected:
    afx_msg BOOL OnPageCommand(UINT nID) { return OnHandleCommand(nID); }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(View, QVTabView)
BEGIN_MESSAGE_MAP(View, QVTabView)
    ON_COMMAND_EX(ID_VIEW_COMMAND, &View::OnPageCommand)
    ON_UPDATE_COMMAND_UI(ID_VIEW_COMMAND, &View::OnUpdateCommand)
END_MESSAGE_MAP()

// A frame with the view, and a main window with accelerators.
struct ViewFrame {
    explicit ViewFrame(std::vector<const char*> titles = {"One", "Wide title", "3"}) {
        QVRegisterControls();
        s_titles = std::move(titles);
        TheTestApp().m_pMainWnd = pMain = new CFrameWnd;
        pMain->Create(nullptr, "");
        pMain->LoadAccelTable(MAKEINTRESOURCE(IDR_TAB_FRAME));
        Make();
    }
    ~ViewFrame() {
        s_told = nullptr;
        Destroy();
        TheTestApp().m_pMainWnd = nullptr;
        pMain->DestroyWindow();
        EXPECT_EQ(s_nLiving, 0) << "each is deleted once";
        QVRevokeControls();
    }
    void Make(bool bShow = true) {
        Destroy(), s_strLog.clear();
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(View);
        auto* pFrame = new CFrameWnd;
        if (!pFrame->Create(nullptr, "", WS_OVERLAPPEDWINDOW, CRect(20, 20, 420, 270), nullptr,
                            nullptr, 0, &context)) {
            return;
        }
        hFrame = pFrame->m_hWnd;
        pView = static_cast<View*>(CWnd::FromHandle(::GetDlgItem(hFrame, AFX_IDW_PANE_FIRST)));
        hView = pView->m_hWnd;
        bShow ? pFrame->InitialUpdateFrame(nullptr, TRUE)
              : pFrame->SendMessageToDescendants(WM_INITIALUPDATE);
    }
    void Destroy() { ::DestroyWindow(hFrame); }
    bool Stands() const { return ::IsWindow(hView); }
    std::string After(const std::function<void()>& deed) {
        return s_strLog.clear(), deed(), s_strLog;
    }

    CFrameWnd* pMain = nullptr;
    HWND hFrame = nullptr;
    HWND hView = nullptr;
    View* pView = nullptr;
};

TEST(TabView, ComesUpWithItsFirstPageInPlace_AndKeepsItThere) {
    ViewFrame w({"One", "A title of\nsome lines", "3"});
    CTab& tabs = w.pView->GetTabCtrl();
    EXPECT_EQ(tabs.GetTabCount(), 3);
    tabs.SetTab(1);
    EXPECT_STREQ(tabs.GetTabCaption(), s_titles[1]);
    CWindowDC dc(&tabs);
    const int nTwips = 1440 / dc.GetDeviceCaps(LOGPIXELSX);  // a pixel
    {
        const qv::SelectGuard select(dc, w.pView->GetPage(0)->GetFont());
        EXPECT_EQ(tabs.GetTabHeight(), (dc.GetTextExtent("some lines").cx + 4) * nTwips);
    }
    for (const int cx : {0, 500}) {
        cx ? ::SetWindowPos(w.hFrame, nullptr, 0, 0, cx, 333, SWP_NOMOVE) : FALSE;
        CRect rcView, rcTabs, rcPage;
        w.pView->GetClientRect(&rcView), tabs.GetClientRect(&rcTabs);
        EXPECT_EQ(rcTabs, rcView);
        const CRect rcArea(CPoint(tabs.GetClientLeft() / nTwips, tabs.GetClientTop() / nTwips),
                           CSize(tabs.GetClientWidth() / nTwips, tabs.GetClientHeight() / nTwips));
        EXPECT_TRUE(rcArea.left > 20 && rcArea.Width() > 200);
        for (int n = 0; n < 3; ++n) {
            w.pView->GetPage(n)->GetWindowRect(&rcPage), tabs.ScreenToClient(&rcPage);
            rcPage.InflateRect(10, 10);
            EXPECT_EQ(rcPage, rcArea);
            EXPECT_EQ(w.pView->GetPage(n)->IsWindowVisible() != FALSE, n == 0);
        }
    }
    EXPECT_EQ(w.pView->At(2)->GetTabView(), w.pView);
    EXPECT_EQ(w.After([&] { w.pView->SendMessage(WM_SIZE, SIZE_MINIMIZED); }), "");
    const auto back = [&](CView* pFrom) {
        return w.After([&] { w.pView->OnActivateView(TRUE, w.pView, pFrom); });
    };
    const std::unique_ptr<CPreviewView> pPreview(new CPreviewView);
    EXPECT_EQ(back(pPreview.get()) + back(w.pView) + back(nullptr), "rarbrc") << "once";
    w.pView->ShowWindow(SW_HIDE);
    EXPECT_EQ(w.After([&] { w.pView->SendMessage(WM_SIZE, SIZE_RESTORED, 9); }), "");
    EXPECT_EQ(w.After([&] { w.pView->OnInitialUpdate(); }), "") << "once more";
}

TEST(TabView, FollowsTheSystemsColoursButForItsOwn) {
    ViewFrame w;
    CTab& tabs = w.pView->GetTabCtrl();
    constexpr int kFace = COLOR_BTNFACE;
    constexpr COLORREF kOwn = RGB(1, 2, 3);
    constexpr COLORREF kNew = RGB(90, 80, 70);
    tabs.SetForeColor(static_cast<long>(kOwn));
    const COLORREF crOld = ::GetSysColor(kFace);
    EXPECT_EQ(static_cast<COLORREF>(tabs.GetBackColor()), crOld);
    for (const COLORREF cr : {kNew, crOld}) {
        ::SetSysColors(1, &kFace, &cr);
        ::SendMessage(w.hFrame, WM_SYSCOLORCHANGE, 0, 0);
        EXPECT_EQ(static_cast<COLORREF>(tabs.GetBackColor()), cr);
        EXPECT_EQ(static_cast<COLORREF>(tabs.GetForeColor()), kOwn);
    }
}

TEST(TabView, ShowsPagesAsTheControlTells) {
    ViewFrame w;
    View& view = *w.pView;
    EXPECT_EQ(w.After([&] { view.SetActivePage(1); }), "+b-a+b") << "about to be, and is";
    EXPECT_EQ(view.GetActivePage(), 1);
    EXPECT_EQ(w.After([&] { view.SetActivePage(1); }), "");
    EXPECT_EQ(w.After([&] { view.UpdateAllPages(5, nullptr); }), "vaubvc");
    view.At(2)->m_bNeedsUpdate = TRUE;
    EXPECT_EQ(w.After([&] { view.SetActivePage(2); }), "Uc+c-b+c") << "and not again";
    const auto tell = [&](short nTab, short nCancel) {
        const auto activate = [&] { view.OnTabPageActivate(&nTab, &nCancel); };
        const auto show = [&] { view.OnTabPageShown(&nTab, &nCancel); };
        return w.After(activate) + ' ' + w.After(show);
    };
    EXPECT_EQ(tell(0, 0), "+a-c +a");
    EXPECT_EQ(tell(2, 0), "+c-c +c") << "odd, and kept";
    for (const short nTab : {0, 3, -1}) {
        EXPECT_EQ(tell(nTab, nTab == 0), "+c+c+c ") << "the page that shows, for each page";
        EXPECT_EQ(view.GetPage(nTab) != nullptr, nTab == 0);
    }
    view.GetTabCtrl().DestroyWindow();
    EXPECT_EQ(tell(9, 0), " ") << "no page is active";
}

TEST(TabView, CommandsAndKeysReachTheActivePage) {
    ViewFrame w;
    View& view = *w.pView;
    ASSERT_TRUE(BringToFront(w.hFrame));
    EXPECT_EQ(::GetParent(::GetFocus()), view.GetPage(0)->m_hWnd) << "by the frame and the view";
    EXPECT_EQ(w.After([&] { ::SendMessage(w.hFrame, WM_COMMAND, ID_VIEW_COMMAND, 0); }), "qacaha");
    view.At(0)->GetDlgItem(IDC_PAGE_BUTTON)->SetFocus();
    TypeKey('K', false, true), TypeKey(VK_ESCAPE), TypeKey(VK_RETURN);
    EXPECT_TRUE(view.At(0)->IsWindowVisible());
    TypeKey(VK_TAB);
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), IDC_PAGE_EDIT);
    BringToFront(w.pMain->m_hWnd), BringToFront(w.hFrame);
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), IDC_PAGE_EDIT) << "where it was";
    view.GetTabCtrl().SetFocus();  // out of the page, which is a child of the tabs
    EXPECT_EQ(w.After([] { TypeKey(VK_TAB); }).substr(0, 2), "fa") << "from the tabs into the page";
    EXPECT_TRUE(::IsChild(view.At(0)->m_hWnd, ::GetFocus()));

    view.PostMessage(WM_NULL);
    std::string strCommands;
    s_told = [&](char cStep) { strCommands += cStep; };
    ::PostMessage(w.hFrame, WM_KEYDOWN, 'F', 0);
    w.After([&] { view.At(0)->ShowContextMenu(IDR_VIEW_MENU, CPoint(60, 60), ID_VIEW_COMMAND); });
    PumpUntil([&] { return strCommands.find('h') != strCommands.npos; });
    EXPECT_EQ(strCommands, "qcqch") << "shown, and chosen by the frame";
}

TEST(TabView, WidthsAreThoseOfTheWidestLine) {
    const std::unique_ptr<View> pView(new View);
    CWindowDC dc(nullptr);
    for (const char* psz : {"longer", "a\nlonger", "longer\n", "a\nbb\nlonger\nb"}) {
        EXPECT_EQ(pView->FindStringTwips(dc, psz), dc.GetTextExtent("longer").cx);
    }
    EXPECT_EQ(pView->FindStringTwips(dc, "\n\n") + pView->FindStringTwips(dc, nullptr), 0);
}

// Lines of text in the tabs, whose edges are lighter, where letters have stems.
int LinesIn(const Picture& picture, int nRight) {
    int nLines = 0;
    for (int y = 0, nBefore = 0, nInk = 0; y < picture.Height(); ++y, nBefore = nInk) {
        nInk = 0;
        for (int x = 0; x < nRight; ++x) {
            nInk += GetGValue(picture.At(x, y)) < 96;
        }
        nLines += nInk > 0 && nBefore == 0;
    }
    return nLines;
}

TEST(TabView, TitlesAreShownInTheFontOfThePages_AndBreakAtTheirLineFeedsAlone) {
    for (const UINT nTemplate : {IDD_TAB_PAGE, IDD_TAB_PAGE_LARGE}) {
        s_nTemplate = nTemplate;
        ViewFrame w({"HI", "HHH HHH IIH\nHH", "H"});
        s_nTemplate = IDD_TAB_PAGE;
        CTab& tabs = w.pView->GetTabCtrl();
        const int nRight = tabs.GetClientLeft() * CClientDC(&tabs).GetDeviceCaps(LOGPIXELSX) / 1440;
        EXPECT_EQ(LinesIn(Picture::Fresh(tabs), nRight - 4), 4) << nTemplate;
        EXPECT_EQ(tabs.GetFontSize(), nTemplate == IDD_TAB_PAGE_LARGE ? 18 : 8.25);
    }
}

TEST(TabView, WhatCannotBeMadeIsLeftOut) {
    ViewFrame w(std::vector<const char*>{});
    EXPECT_EQ(w.pView->GetTabCtrl().GetTabCount() + w.pView->OnHandleCommand(1), 0) << "no pages";
    EXPECT_EQ(w.pView->AddPage("", RUNTIME_CLASS(CWnd)), nullptr);
    EXPECT_EQ(w.pView->AddPage("", RUNTIME_CLASS(QVTabViewPage)), nullptr) << "no template";
    EXPECT_EQ(w.pView->AddPage("", nullptr), nullptr);
    EXPECT_NE(w.pView->AddPage(IDS_VIEW_TITLE, RUNTIME_CLASS(Page)), nullptr);
    int nPages = 1;
    EXPECT_GT(RefuseEach(
                  "page", [&] { nPages += w.pView->AddPage("", RUNTIME_CLASS(Page)) != nullptr; },
                  [&] { EXPECT_EQ(s_nLiving, nPages + 1); }),
              4);
    s_titles = {"a", "b"};
    RefuseEachAllocation(
        FailingHeap::kJustOne, [&] { Try([&] { w.Make(); }); },
        [&](int) { EXPECT_LE(s_nLiving, 3); });
    QVRevokeControls(), TheTestApp().Forget(), w.Make();
    EXPECT_EQ(w.pView->GetTabCtrl().m_hWnd, nullptr) << "no such control";
    w.pView->GetParentFrame()->ShowWindow(SW_SHOW);
    {
        CClientDC dc(w.pView);
        dc.FillSolidRect(0, 0, 9, 9, RGB(1, 2, 3));
    }
    EXPECT_EQ(Picture::Fresh(*w.pView).Count(RGB(1, 2, 3)), 0) << "the view covers nothing";
    EXPECT_EQ(w.pView->AddPage("", RUNTIME_CLASS(Page)), nullptr);
    EXPECT_EQ(w.pView->GetActivePage(), -1);
    EXPECT_EQ(TheTestApp().m_prompts.size() + TheTestApp().m_exceptions.size(), 0u);
    QVRegisterControls();
}

// A page's step takes away what it belongs to.
TEST(TabView, PagesOutliveTheirOwnSteps) {
    for (const char cStep : std::string("ir+-vUchf")) {
        for (const int nDeed : {0, 1, 2}) {
            SCOPED_TRACE(cStep);
            ViewFrame w({"a", "b"});
            w.Destroy();
            bool bCame = false;
            s_told = [&](char c) {
                if (c == cStep && !bCame) {
                    bCame = true;
                    nDeed == 0   ? ::DestroyWindow(w.hFrame)
                    : nDeed == 1 ? ::DestroyWindow(w.hView)
                                 : w.pView->GetTabCtrl().DestroyWindow();
                }
            };
            w.Make();
            const std::function<void()> acts[] = {
                [&] {
                    w.pView->At(1) ? void(w.pView->At(1)->m_bNeedsUpdate = TRUE) : void();
                    w.pView->UpdateAllPages(1, nullptr);
                },
                [&] { w.pView->SendMessage(WM_COMMAND, ID_VIEW_COMMAND); },
                [&] { w.pView->SetFocus(); }, [&] { w.pView->SetActivePage(1); }};
            for (const auto& act : acts) {
                w.Stands() ? act() : void();
            }
            EXPECT_TRUE(bCame);
        }
    }
}

TEST(TabViewMonkey, SurvivesAnyOrder) {
    ViewFrame w({"a", "b"});
    const LONG nHandles = AfxGetOwnedHandleCount();
    const std::function<void(short)> deeds[] = {
        [&](short n) { w.pView->SetActivePage(n); },
        [&](short n) { w.pView->AddPage("x", n > 30 ? RUNTIME_CLASS(Page) : nullptr); },
        [&](short n) { ::SetWindowPos(w.hFrame, nullptr, n, n, 9 * n, 5 * n, 0); },
        [&](short n) { w.pView->ShowWindow(n % 2 ? SW_SHOW : SW_HIDE), w.pView->SetFocus(); },
        [&](short n) { n % 9 ? w.pView->RedrawWindow() : w.pView->GetTabCtrl().DestroyWindow(); },
        [&](short) { w.pView->UpdateAllPages(1, nullptr), w.pView->OnInitialUpdate(); },
        [&](short n) { Try([&] { w.pView->GetTabCtrl().SetTabCount(n); }); }};
    std::mt19937 random = MonkeyRandom(5);
    int nMade = 0;
    for (int i = 0; i < MonkeySteps() || nMade < 1000; ++i) {
        random() % 2 && w.Stands() ? void() : w.Make(++nMade % 16 == 0);
        deeds[random() % std::size(deeds)](static_cast<short>(random() % 60 - 5));
    }
    w.Make();
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

}  // namespace
