// Sheets of the library and of the framework, with pages of either: tabs and wizards by buttons and
// keys, vetoes, values, fonts.
#include "QVControls.h"
#include "support/failing_heap.h"
#include "support/monkey.h"
#include "window/containers/sheet_window.h"

#include <afxcmn.h>

#include <memory>

namespace {

template <class SheetClass, class PageClass>
struct Family {
    using Sheet = SheetClass;
    using Page = PageClass;
};

template <class F>
class AnyPropertySheet : public testing::Test,
                         public ThreePages<typename F::Sheet, typename F::Page> {};
using Families = testing::Types<
    Family<QVPropertySheet, QVPropertyPage>, Family<QVPropertySheetEx, QVPropertyPageEx>,
    Family<CPropertySheet, CPropertyPage>, Family<CPropertySheetEx, CPropertyPageEx>,
    Family<QVPropertySheetEx, CPropertyPage>, Family<CPropertySheet, QVPropertyPage>>;
TYPED_TEST_SUITE(AnyPropertySheet, Families);

TYPED_TEST(AnyPropertySheet, ButtonsEndItAsTheyAreLabelled_UnlessAPageRefuses) {
    const auto run = [&](int nID) { return this->Show([&, nID] { this->Press(nID); }); };
    EXPECT_EQ(run(IDOK), IDOK);
    EXPECT_EQ(this->Take(), "b:kill b:apply b:ok");
    EXPECT_EQ(run(IDCANCEL), IDCANCEL);
    EXPECT_EQ(this->Take(), "b:query b:reset b:cancel");
    EXPECT_EQ(this->Show([&] { this->sheet.SendMessage(WM_SYSCOMMAND, SC_CLOSE); }), IDCANCEL);
    this->Take();
    EXPECT_EQ(this->Show([&] { TypeKey(VK_ESCAPE); }), IDCANCEL);
    EXPECT_EQ(this->Show([&] { TypeKey(VK_RETURN); }), IDOK);
    EXPECT_EQ(this->Show([&] {
        this->sheet.PressButton(PSBTN_OK);
        PumpPending();
    }),
              IDOK);

    struct Veto {
        const char* pszQuestion;
        int nID;
    };
    for (const Veto& veto : {Veto{"kill", IDOK}, Veto{"apply", IDOK}, Veto{"query", IDCANCEL}}) {
        this->b.m_refused = {veto.pszQuestion};
        EXPECT_EQ(run(veto.nID), this->sheet.kStillThere) << veto.pszQuestion;
        EXPECT_EQ(this->sheet.m_hWnd, nullptr);
        EXPECT_TRUE(this->owner.IsWindowEnabled());
    }
}

TYPED_TEST(AnyPropertySheet, KeysAndTabsChangePages_WhichMayRefuse) {
    this->Show([&] {
        const auto clickTab = [&](int nTab) {
            CRect rcTab;
            this->sheet.GetTabControl()->GetItemRect(nTab, rcTab);
            ClickAt(this->sheet.GetTabControl()->m_hWnd, rcTab.CenterPoint());
        };
        this->b.GetDlgItem(IDC_PAGE_EDIT)->SetFocus();
        EXPECT_TRUE(TypeText("new"));
        EXPECT_GT(this->b.m_nKeys, 0) << "the page is asked before its keys are dispatched";
        EXPECT_EQ(this->b.m_strText, "");
        EXPECT_TRUE(TypeKey(VK_TAB, false, true));
        EXPECT_EQ(this->Take(), "b:kill p:set");
        EXPECT_EQ(this->b.m_strText, "new") << "taken on the way out";
        EXPECT_TRUE(TypeKey(VK_TAB, true, true));
        EXPECT_EQ(this->Take(), "p:kill b:set");
        EXPECT_TRUE(TypeKey(VK_NEXT, false, true));
        EXPECT_TRUE(TypeKey(VK_PRIOR, false, true));
        EXPECT_EQ(this->Take(), "b:kill p:set p:kill b:set");
        clickTab(2);
        EXPECT_EQ(this->Take(), "b:kill n:set");
        EXPECT_EQ(this->sheet.GetActivePage(), &this->n);
        this->n.m_refused = {"kill"};
        clickTab(0);
        EXPECT_FALSE(this->sheet.SetActivePage(1));
        EXPECT_EQ(this->Take(), "n:kill n:kill");
        EXPECT_EQ(this->sheet.GetActiveIndex(), 2);
        this->n.m_refused.clear();
        this->b.m_strText = "set outside";
        EXPECT_TRUE(this->sheet.SetActivePage(&this->b));
        CString strShown;
        this->b.GetDlgItemText(IDC_PAGE_EDIT, strShown);
        EXPECT_EQ(strShown, "set outside");
        EXPECT_FALSE(this->sheet.SetActivePage(3));
        EXPECT_FALSE(this->sheet.SetActivePage(-1));
    });
}

TYPED_TEST(AnyPropertySheet, ApplyAndCloseFollowWhatPagesSay) {
    EXPECT_EQ(this->Show([&] {
        EXPECT_FALSE(this->Enabled(ID_APPLY_NOW));
        this->b.SetModified();
        this->sheet.SetActivePage(1);
        this->p.SetModified();
        this->b.SetModified(FALSE);
        EXPECT_TRUE(this->Enabled(ID_APPLY_NOW)) << "of the other page";
        this->Take();
        this->Press(ID_APPLY_NOW);
        EXPECT_EQ(this->Take().rfind("p:kill b:apply b:ok p:apply p:ok", 0), 0U);
        EXPECT_FALSE(this->Enabled(ID_APPLY_NOW));
        EXPECT_EQ(this->b.QuerySiblings(3, 4), 0) << "each answers with nothing";
        EXPECT_EQ(this->Take(), "b:sibling p:sibling");
        this->p.m_refused = {"sibling"};
        EXPECT_EQ(this->b.QuerySiblings(3, 4), 7);
        this->p.CancelToClose();
        EXPECT_FALSE(this->Enabled(IDCANCEL));
        this->Press(IDOK);
    }),
              IDOK);
}

TYPED_TEST(AnyPropertySheet, WizardGoesWhereItsPagesSay) {
    this->sheet.SetWizardMode();
    EXPECT_EQ(this->Show([&] {
        this->sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT);
        PumpPending();
        this->Press(ID_WIZNEXT);
        EXPECT_EQ(this->sheet.GetActivePage(), &this->p);
        this->Press(ID_WIZBACK);
        EXPECT_EQ(this->sheet.GetActivePage(), &this->b);
        this->b.m_lNext = IDD_PAGE_BARE;
        this->Press(ID_WIZNEXT);
        EXPECT_EQ(this->sheet.GetActivePage(), &this->n) << "by the id of its template";
        this->n.m_lBack = IDD_PAGE_BIG;
        this->Press(ID_WIZBACK);
        EXPECT_EQ(this->sheet.GetActivePage(), &this->b);
        this->b.m_lNext = -1;
        this->Press(ID_WIZNEXT);
        EXPECT_EQ(this->sheet.GetActivePage(), &this->b);
        EXPECT_TRUE(this->sheet.SetActivePage(&this->n));
        this->sheet.SetFinishText("&Done");
        CString strFinish;
        this->sheet.GetDlgItem(ID_WIZFINISH)->GetWindowText(strFinish);
        EXPECT_EQ(strFinish, "&Done");
        this->n.m_refused = {"finish"};
        this->Take();
        this->Press(ID_WIZFINISH);
        EXPECT_TRUE(this->sheet.ContinueModal());
        this->n.m_refused.clear();
        this->Press(ID_WIZFINISH);
    }),
              ID_WIZFINISH);
    EXPECT_EQ(this->Show([&] { this->Press(IDCANCEL); }), IDCANCEL);
}

/// Face and height in pixels.
std::string FontOf(CWnd* pWnd) {
    LOGFONT font = {};
    pWnd->GetFont()->GetLogFont(&font);
    return font.lfFaceName + std::to_string(font.lfHeight);
}

/// What derived classes reach.
template <class Base>
class OpenSheet : public ActingSheet<Base> {
public:
    using ActingSheet<Base>::ActingSheet;
    using Base::BuildPropPageArray;
    using Base::m_fontTab;

    const PROPSHEETPAGE& Record(int nPage) const {
        return *reinterpret_cast<const PROPSHEETPAGE*>(
            reinterpret_cast<const BYTE*>(this->m_psh.ppsp) + nPage * this->m_psh.ppsp->dwSize);
    }
};

template <class SheetClass>
class TabFontOf : public testing::Test {};
using FontSheets = testing::Types<QVPropertySheet, QVPropertySheetEx>;
TYPED_TEST_SUITE(TabFontOf, FontSheets);

TYPED_TEST(TabFontOf, IsTheFirstPagesOfEitherKindOfTemplate_AndPagesKeepTheirs) {
    struct Case {
        UINT nFirst;
        const char* pszTabs;
        const char* pszPage;
    };
    for (const Case& c : {Case{IDD_PAGE_BIG, "Tahoma-16", "Tahoma-16"},
                          Case{IDD_PAGE_PLAIN, "Arial-13", "Arial-13"},
                          Case{IDD_PAGE_BARE, "MS Shell Dlg-11", nullptr}}) {
        const LONG nHandles = AfxGetOwnedHandleCount();
        {
            OpenSheet<TypeParam> sheet("Fonts");
            QVPropertyPage first(c.nFirst);
            CPropertyPage second(IDD_PAGE_BIG);
            sheet.AddPage(&first);
            sheet.AddPage(&second);
            sheet.m_action = [&] {
                EXPECT_EQ(FontOf(sheet.GetTabControl()), c.pszTabs);
                if (c.pszPage != nullptr) {
                    EXPECT_EQ(FontOf(first.GetDlgItem(IDC_PAGE_EDIT)), c.pszPage);
                }
                EXPECT_TRUE(sheet.SetActivePage(1));
                EXPECT_EQ(FontOf(second.GetDlgItem(IDC_PAGE_EDIT)), "MS Shell Dlg-11")
                    << "the framework's page takes the sheet's font";
            };
            sheet.DoModal();
            sheet.BuildPropPageArray();
            EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles + 1) << "built twice, one font";
        }
        EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
    }
}

TYPED_TEST(TabFontOf, AndRecords_AreNotThereWithoutMemory) {
    OpenSheet<TypeParam> sheet("Records");
    QVPropertyPage page(IDD_PAGE_BIG);
    sheet.AddPage(&page);
    const int nRefused = RefuseEachAllocation(
        FailingHeap::kAllLater, [&] { sheet.BuildPropPageArray(); },
        [&](int) { EXPECT_EQ(sheet.m_psh.nPages != 0, sheet.m_psh.ppsp != nullptr); });
    EXPECT_GT(nRefused, 0);
    EXPECT_EQ(sheet.m_psh.nPages, 1U);
}

template <class Base>
struct TitledPage : Base {
    TitledPage(LPCTSTR lpszTitle, LPCTSTR lpszSubtitle) : Base(IDD_PAGE_BIG, 0, 0, 0) {
        this->m_strHeaderTitle = lpszTitle;
        this->m_strHeaderSubTitle = lpszSubtitle;
    }
};

constexpr DWORD kTitles = PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE;

TEST(HeaderTitles, AreInTheLongerRecordsAlone_AndOnlyThoseThatAreThere) {
    TitledPage<QVPropertyPageEx> both("Title", "Subtitle");
    TitledPage<QVPropertyPageEx> subtitle("", "Subtitle");
    QVPropertyPageEx fromStrings(IDD_PAGE_BIG, IDS_TAB, IDS_TITLE, IDS_SUBTITLE);
    QVPropertyPageEx none(IDD_PAGE_BIG);
    CPropertyPage plain(IDD_PAGE_BIG);
    plain.m_psp.dwFlags |= PSP_USEHEADERTITLE;
    CPropertyPage* const pages[] = {&both, &subtitle, &fromStrings, &none, &plain};
    OpenSheet<QVPropertySheetEx> longer("Longer");
    OpenSheet<QVPropertySheet> shorter("Shorter");
    for (CPropertyPage* pPage : pages) {
        longer.CPropertySheet::AddPage(pPage);
        shorter.AddPage(pPage);
    }
    longer.BuildPropPageArray();
    shorter.BuildPropPageArray();
    const DWORD expected[] = {kTitles, PSP_USEHEADERSUBTITLE, kTitles, 0, 0};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(longer.Record(i).dwSize, PROPSHEETPAGE_V2_SIZE);
        EXPECT_EQ(longer.Record(i).dwFlags & kTitles, expected[i]) << i;
        EXPECT_EQ(shorter.Record(i).dwSize, PROPSHEETPAGE_V1_SIZE);
        EXPECT_EQ(shorter.Record(i).dwFlags & kTitles, 0U) << i;
    }
    EXPECT_STREQ(longer.Record(2).pszHeaderTitle, "Title of the header");
    EXPECT_STREQ(longer.Record(2).pszHeaderSubTitle, "What stands below it");
    EXPECT_STREQ(longer.Record(2).pszTitle, "From a string");
}

TEST(TabFont, MovesTheFirstPageDownWhereItsTabsAreHigher) {
    ThreePages<QVPropertySheet, QVPropertyPage> t;
    t.Show([&] {
        CTabCtrl* pTabs = t.sheet.GetTabControl();
        CRect rcPages;
        pTabs->GetClientRect(rcPages);
        pTabs->AdjustRect(FALSE, rcPages);
        pTabs->ClientToScreen(rcPages);
        for (CPropertyPage* pPage : {&t.b, &t.n}) {
            t.sheet.SetActivePage(pPage);
            CRect rcPage;
            pPage->GetWindowRect(rcPage);
            EXPECT_GE(rcPage.top, rcPages.top);
            EXPECT_LE(rcPage.bottom, rcPages.bottom);
        }
    });
}

TEST(SheetMonkey, AnythingInAnyOrder) {
    using Pages = ThreePages<QVPropertySheetEx, QVPropertyPageEx>;
    std::unique_ptr<Pages> t;
    const auto send = [&](UINT nMessage, WPARAM wParam, LPARAM lParam = 0) {
        t->sheet.SendMessage(nMessage, wParam, lParam);
    };
    const std::function<void(int)> deeds[] = {
        [&](int n) { t->sheet.SetActivePage(n % 4); },
        [&](int n) { t->sheet.RemovePage(n % 9); },
        [&](int n) { t->sheet.AddPage(n % 2 ? &t->b : &t->n); },
        [&](int n) { t->p.m_refused = {n % 2 ? "kill" : "set"}; },
        [&](int) {
            t->b.m_refused = {"apply", "query"};
        },
        [&](int n) { send(WM_COMMAND, n % 2 ? IDOK : ID_APPLY_NOW); },
        [&](int n) { send(WM_COMMAND, n % 2 ? ID_WIZNEXT : ID_WIZBACK); },
        [&](int n) { send(WM_COMMAND, n % 5 ? IDOK : IDCANCEL); },
        [&](int n) { send(PSM_PRESSBUTTON, static_cast<WPARAM>(n % 7)); },
        [&](int n) { send(PSM_SETWIZBUTTONS, 0, n); },
        [&](int) { t->b.SetModified(); },
        [&](int) { t->n.CancelToClose(); },
        [&](int n) { t->b.QuerySiblings(n, n); },
        [&](int n) { t->b.m_lNext = n % 3 ? IDD_PAGE_BARE : n; },
        [&](int) { t->p.DestroyWindow(); },
        [&](int) { t->sheet.DestroyWindow(); },
        [&](int n) { t->sheet.EndDialog(n); },
        [&](int) { t->sheet.Create(&t->owner); },
        [&](int) { t.reset(); },
    };
    PlayInAnyOrder<Pages>(t,
                          [&] {
                              static int s_nMade = 0;
                              t = std::make_unique<Pages>();
                              if (++s_nMade % 2 == 0) {
                                  t->sheet.SetWizardMode();
                              }
                              EXPECT_TRUE(t->sheet.Create(&t->owner, WS_POPUP));
                          },
                          {std::begin(deeds), std::end(deeds)});
}

}  // namespace
