// Sheets of the library and of the framework, with pages of either: tabs and wizards by buttons and
// keys, vetoes, values, fonts.
#include "QVControls.h"
#include "support/failing_heap.h"
#include "support/monkey.h"
#include "window/containers/sheet_window.h"

#include <afxcmn.h>

namespace {

template <class Pages>
class AnySheet : public testing::Test, public Pages {};
using Families = testing::Types<
    ThreePages<QVPropertySheet, QVPropertyPage>, ThreePages<QVPropertySheetEx, QVPropertyPageEx>,
    ThreePages<CPropertySheet, CPropertyPage>, ThreePages<CPropertySheetEx, CPropertyPageEx>,
    ThreePages<QVPropertySheetEx, CPropertyPage>, ThreePages<CPropertySheet, QVPropertyPage>>;
TYPED_TEST_SUITE(AnySheet, Families);

TYPED_TEST(AnySheet, EndsAsItsButtonsAreLabelled_UnlessAPageRefuses) {
    auto& sheet = this->sheet;
    const std::tuple<std::function<void()>, int, const char*> cases[] = {
        {[&] { this->Press(IDOK); }, IDOK, "kill"},
        {[&] { TypeKey(VK_RETURN); }, IDOK, "apply"},
        {[&] { sheet.SendMessage(PSM_PRESSBUTTON, PSBTN_OK); }, IDOK, "apply"},
        {[&] { this->Press(IDCANCEL); }, IDCANCEL, "query"},
        {[&] { TypeKey(VK_ESCAPE); }, IDCANCEL, "query"},
        {[&] { sheet.SendMessage(WM_SYSCOMMAND, SC_CLOSE); }, IDCANCEL, "query"}};
    for (const auto& [end, nResult, pszRefused] : cases) {
        this->b.m_refused.clear();
        EXPECT_EQ(this->Show(end), nResult);
        EXPECT_EQ(this->Take(), nResult == IDOK ? "b:kill b:apply b:ok" : "b:query b:cancel");
        this->b.m_refused = {pszRefused};
        EXPECT_EQ(this->Show(end), sheet.kStillThere) << pszRefused;
        EXPECT_TRUE(sheet.m_hWnd == nullptr && this->owner.IsWindowEnabled());
    }
}

TYPED_TEST(AnySheet, ChangesPagesByKeysAndTabs_UnlessAPageRefuses) {
    this->Show([&] {
        auto& sheet = this->sheet;
        const auto clickTab = [&](int nTab) {
            CRect rcTab;
            sheet.GetTabControl()->GetItemRect(nTab, rcTab);
            ClickAt(sheet.GetTabControl()->m_hWnd, rcTab.CenterPoint());
        };
        EXPECT_FALSE(this->owner.IsWindowEnabled());
        this->b.GetDlgItem(IDC_PAGE_EDIT)->SetFocus();
        TypeText("new");
        EXPECT_GT(this->b.m_nKeys, 0) << "the page is asked before its keys are dispatched";
        TypeKey(VK_TAB, false, true);
        EXPECT_EQ(this->b.m_strText, "new") << "taken on the way out";
        TypeKey(VK_TAB, true, true);
        TypeKey(VK_NEXT, false, true);
        TypeKey(VK_PRIOR, false, true);
        clickTab(2);
        EXPECT_EQ(this->Take(), "b:kill p:set p:kill b:set b:kill p:set p:kill b:set b:kill n:set");
        EXPECT_EQ(sheet.GetActivePage(), &this->n);
        this->n.m_refused = {"kill"};
        clickTab(0);
        EXPECT_FALSE(sheet.SetActivePage(1));
        EXPECT_EQ(this->Take(), "n:kill n:kill");
        EXPECT_EQ(sheet.GetActiveIndex(), 2);
        this->n.m_refused.clear();
        this->b.m_strText = "set outside";
        EXPECT_TRUE(sheet.SetActivePage(&this->b));
        CString strShown;
        this->b.GetDlgItemText(IDC_PAGE_EDIT, strShown);
        EXPECT_EQ(strShown, "set outside");
        EXPECT_FALSE(sheet.SetActivePage(3) || sheet.SetActivePage(-1));
    });
}

TYPED_TEST(AnySheet, AppliesAndClosesAsPagesSay) {
    this->Show([&] {
        const CWnd& apply = *this->sheet.GetDlgItem(ID_APPLY_NOW);
        this->b.SetModified();
        this->sheet.SetActivePage(1);
        this->p.SetModified();
        this->b.SetModified(FALSE);
        EXPECT_TRUE(apply.IsWindowEnabled()) << "of the other page";
        this->Take();
        this->Press(ID_APPLY_NOW);
        EXPECT_EQ(this->Take().rfind("p:kill b:apply b:ok p:apply p:ok", 0), 0U);
        EXPECT_FALSE(apply.IsWindowEnabled());
        this->p.m_refused = {"sibling"};
        EXPECT_EQ(this->b.QuerySiblings(3, 4), 7);
        this->p.CancelToClose();
        EXPECT_FALSE(this->sheet.GetDlgItem(IDCANCEL)->IsWindowEnabled());
    });
}

TYPED_TEST(AnySheet, AsAWizardGoesWhereItsPagesSay) {
    this->sheet.SetWizardMode();
    EXPECT_EQ(this->Show([&] {
        const auto press = [&](int nID) {
            this->sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT);
            PumpPending();
            this->Press(nID);
            return this->sheet.GetActivePage();
        };
        EXPECT_EQ(press(ID_WIZNEXT), &this->p);
        EXPECT_EQ(press(ID_WIZBACK), &this->b);
        this->b.m_lNext = IDD_PAGE_BARE;
        EXPECT_EQ(press(ID_WIZNEXT), &this->n) << "by the id of its template";
        this->n.m_lBack = IDD_PAGE_BIG;
        EXPECT_EQ(press(ID_WIZBACK), &this->b);
        this->b.m_lNext = -1;
        EXPECT_EQ(press(ID_WIZNEXT), &this->b);
        EXPECT_TRUE(this->sheet.SetActivePage(&this->n));
        this->n.m_refused = {"finish"};
        this->sheet.SendMessage(PSM_PRESSBUTTON, PSBTN_FINISH);
        EXPECT_TRUE(this->sheet.ContinueModal());
        this->n.m_refused.clear();
        this->sheet.SendMessage(PSM_PRESSBUTTON, PSBTN_FINISH);
    }),
              ID_WIZFINISH);
}

TYPED_TEST(AnySheet, AnswersKeysOnAPageWithoutControls) {
    auto& sheet = this->sheet;
    sheet.SetWizardMode();
    EXPECT_EQ(this->Show([&] {
        sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT);
        PumpPending();
        sheet.SetActivePage(1);
        this->p.GetDlgItem(IDC_PAGE_EDIT)->EnableWindow(FALSE);
        sheet.SetActivePage(0);
        TypeKey(VK_RETURN);
        EXPECT_EQ(sheet.GetActivePage(), &this->p);
        TypeKey(VK_RETURN);
        EXPECT_EQ(sheet.GetActivePage(), &this->n);
        sheet.SetActivePage(1);
        TypeKey(VK_ESCAPE);
    }),
              IDCANCEL);
}

// --- What is the library's own

/// Face and height in pixels.
std::string FontOf(CWnd* pWnd) {
    LOGFONT font = {};
    pWnd->GetFont()->GetLogFont(&font);
    return font.lfFaceName + std::to_string(font.lfHeight);
}

template <class Sheet>
void ShowFonts(UINT nFirst, const char* pszTabs) {
    ActingSheet<Sheet> sheet("Fonts");
    QVPropertyPage first(nFirst);
    QVPropertyPage second(IDD_PAGE_BIG);
    CPropertyPage third(IDD_PAGE_BIG);
    for (CPropertyPage* pPage : std::initializer_list<CPropertyPage*>{&first, &second, &third}) {
        sheet.CPropertySheet::AddPage(pPage);
    }
    sheet.m_action = [&] {
        CTabCtrl* pTabs = sheet.GetTabControl();
        EXPECT_EQ(FontOf(pTabs), pszTabs);
        CRect rcPages;
        CRect rcPage;
        pTabs->GetClientRect(rcPages);
        pTabs->AdjustRect(FALSE, rcPages);
        pTabs->ClientToScreen(rcPages);
        first.GetWindowRect(rcPage);
        EXPECT_EQ(CRect(rcPages & rcPage), rcPage) << "below the tabs in their font";
        sheet.SetActivePage(1);
        EXPECT_EQ(FontOf(second.GetDlgItem(IDC_PAGE_EDIT)), "Tahoma-16");
        sheet.SetActivePage(2);
        EXPECT_EQ(FontOf(third.GetDlgItem(IDC_PAGE_EDIT)), "MS Shell Dlg-11");
    };
    sheet.DoModal();
    sheet.BuildPropPageArray();
}

TEST(TabFont, IsTheFirstPages_AndPagesKeepTheirs) {
    const LONG nHandles = AfxGetOwnedHandleCount();
    for (const auto& [nFirst, pszTabs] : {std::pair{IDD_PAGE_BIG, "Tahoma-16"},
                                          {IDD_PAGE_PLAIN, "Arial-13"},
                                          {IDD_PAGE_BARE, "MS Shell Dlg-11"}}) {
        ShowFonts<QVPropertySheet>(nFirst, pszTabs);
        ShowFonts<QVPropertySheetEx>(nFirst, pszTabs);
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles) << "built twice, one font";
}

TEST(HeaderTitles, AreInTheLongerRecordsAlone_AndOnlyThoseThatAreThere) {
    constexpr DWORD kTitles = PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE;
    QVPropertyPageEx subtitle(IDD_PAGE_BIG, 0, 0, IDS_SUBTITLE);
    QVPropertyPageEx both(IDD_PAGE_BIG, IDS_TAB, IDS_TITLE, IDS_SUBTITLE);
    CPropertyPage plain(IDD_PAGE_BIG);
    plain.m_psp.dwFlags |= PSP_USEHEADERTITLE;  // without a title
    const auto record = [](auto sheet, CPropertyPage* pPage) {
        sheet->CPropertySheet::AddPage(pPage);
        sheet->BuildPropPageArray();
        const PROPSHEETPAGE& page = *sheet->m_psh.ppsp;
        return std::pair(page.dwSize, page.dwFlags & kTitles);
    };
    const std::pair<CPropertyPage*, DWORD> pages[] = {
        {&subtitle, PSP_USEHEADERSUBTITLE}, {&plain, 0}, {&both, kTitles}};
    for (const auto& [pPage, dwTitles] : pages) {
        EXPECT_EQ(record(std::make_unique<ActingSheet<QVPropertySheetEx>>("Longer"), pPage),
                  std::pair(static_cast<DWORD>(PROPSHEETPAGE_V2_SIZE), dwTitles));
        EXPECT_EQ(record(std::make_unique<ActingSheet<QVPropertySheet>>("Shorter"), pPage),
                  std::pair(static_cast<DWORD>(PROPSHEETPAGE_V1_SIZE), DWORD{0}));
    }
}

using Pages = ThreePages<QVPropertySheetEx, QVPropertyPageEx>;

TEST(SheetMemory, RefusedAnywhere_EndsTheSheetOrLetsItBe) {
    Pages t;
    INT_PTR nResult = 0;
    RefuseEachAllocation(
        FailingHeap::kJustOne, [&] { nResult = t.sheet.DoModal(); },
        [&](int nSucceeding) {
            EXPECT_TRUE(nResult == -1 || nResult == t.sheet.kStillThere) << nSucceeding;
            EXPECT_TRUE(t.sheet.m_hWnd == nullptr && t.owner.IsWindowEnabled()) << nSucceeding;
        });
    EXPECT_EQ(nResult, t.sheet.kStillThere) << "with memory again";
    TheTestApp().Forget();
}

TEST(SheetMonkey, AnythingInAnyOrder) {
    std::unique_ptr<Pages> t;
    int nMade = 0;
    PlayInAnyOrder(
        t,
        [&] {
            t = std::make_unique<Pages>();
            ++nMade % 2 == 0 ? t->sheet.SetWizardMode() : void();
            EXPECT_TRUE(t->sheet.Create(&t->owner, WS_POPUP));
        },
        {[&](int n) { t->sheet.SetActivePage(n % 4); }, [&](int n) { t->sheet.RemovePage(n % 9); },
         [&](int n) { t->sheet.AddPage(n % 2 ? &t->b : &t->n); },
         [&](int n) { t->p.m_refused.insert(n % 2 ? "kill" : "set"); },
         [&](int n) { t->b.m_lNext = n % 3 ? IDD_PAGE_BARE : n; },
         [&](int n) { t->sheet.SendMessage(WM_COMMAND, n % 5 ? ID_APPLY_NOW : IDCANCEL); },
         [&](int n) { t->sheet.SendMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(n % 7)); },
         [&](int n) { t->sheet.SendMessage(PSM_SETWIZBUTTONS, 0, n); },
         [&](int n) { t->b.SetModified(n % 2); },
         [&](int n) { n % 9 ? t->b.QuerySiblings(n, n) : (t->b.CancelToClose(), 0); },
         [&](int n) { n % 2 ? t->p.DestroyWindow() : t->sheet.DestroyWindow(); },
         [&](int) { t->sheet.Create(&t->owner, WS_POPUP); }});
}

}  // namespace
