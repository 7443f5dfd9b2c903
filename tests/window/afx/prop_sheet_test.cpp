// The framework's property sheets where they are no tabs and no wizard in a loop of their own:
// beside a window, without pages or memory, attacked; and dialog templates.
#include "support/failing_heap.h"
#include "window/afx/afx_test_ids.h"
#include "window/containers/sheet_window.h"

namespace {

using Pages = ThreePages<CPropertySheet, CPropertyPage>;

TEST(PropertySheets, LiveBesideTheirOwner_WithoutButtons) {
    Pages t;
    ASSERT_TRUE(t.sheet.Create(&t.owner));
    EXPECT_TRUE(t.owner.IsWindowEnabled());
    EXPECT_TRUE(t.sheet.IsWindowVisible());
    for (const int nID : {IDOK, IDCANCEL, ID_APPLY_NOW}) {
        EXPECT_FALSE(t.sheet.GetDlgItem(nID)->IsWindowVisible());
    }
    CRect rcTabs;
    CRect rcClient;
    t.sheet.GetTabControl()->GetWindowRect(rcTabs);
    t.sheet.ScreenToClient(rcTabs);
    t.sheet.GetClientRect(rcClient);
    EXPECT_EQ(rcClient.bottom - rcTabs.bottom, rcTabs.top);

    // Pages come and go meanwhile.
    t.sheet.RemovePage(&t.p);
    EXPECT_EQ(t.sheet.GetTabControl()->GetItemCount(), 2);
    {
        Pages::Page late(IDD_PAGE_PLAIN, 'l', t.diary);
        t.sheet.AddPage(&late);
        t.sheet.AddPage(&late);
        EXPECT_EQ(t.sheet.GetPageCount(), 3);
        EXPECT_TRUE(t.sheet.SetActivePage(&late));
        t.n.SetModified();
    }
    EXPECT_EQ(t.sheet.GetPageCount(), 2) << "a page that goes leaves its sheet";
    EXPECT_NE(t.sheet.GetActivePage(), nullptr);
    t.sheet.SendMessage(WM_SYSCOMMAND, SC_CLOSE);
    EXPECT_EQ(t.sheet.m_hWnd, nullptr);

    ASSERT_TRUE(t.sheet.Create(&t.owner, WS_CHILD | WS_VISIBLE));
    EXPECT_EQ(::GetParent(t.sheet.m_hWnd), t.owner.m_hWnd);
    t.sheet.DestroyWindow();
    t.sheet.SetWizardMode();
    ASSERT_TRUE(t.sheet.Create(&t.owner));
    EXPECT_TRUE(t.sheet.GetDlgItem(IDCANCEL)->IsWindowVisible());
    t.Press(IDCANCEL);
    EXPECT_EQ(t.sheet.m_hWnd, nullptr);
}

TEST(PropertySheets, ComeUpWithThePagesThatCanBeMade) {
    RecordingParent owner;
    ActingSheet<CPropertySheet> sheet("Sheet", &owner);
    EXPECT_EQ(sheet.DoModal(), -1) << "no pages";
    EXPECT_FALSE(sheet.Create(&owner));
    Diary diary;
    Pages::Page good(IDD_PAGE_BIG, 'g', diary);
    CPropertyPage broken(IDD_PAGE_BROKEN);
    sheet.AddPage(&good);
    sheet.AddPage(&broken);
    sheet.m_action = [&] {
        sheet.SetActivePage(&broken);
        EXPECT_EQ(broken.m_hWnd, nullptr);
        EXPECT_EQ(CWnd::FromHandlePermanent(::GetFocus()), nullptr);
        CWnd other;
        EXPECT_TRUE(other.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr));
        EXPECT_EQ(broken.m_hWnd, nullptr) << "not bound to somebody else's window";
        EXPECT_TRUE(sheet.SetActivePage(&good));
        sheet.EndDialog(5);
    };
    EXPECT_EQ(sheet.DoModal(), 5);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

/// What a page may do to its sheet while it is asked something.
struct Deed {
    const char* pszName;
    void (*pfnDo)(Pages& t, Pages::Page& page);
};
const Deed kDeeds[] = {
    {"ends it", [](Pages& t, Pages::Page&) { t.sheet.EndDialog(7); }},
    {"leaves it", [](Pages& t, Pages::Page& page) { t.sheet.RemovePage(&page); }},
    {"changes it", [](Pages& t, Pages::Page&) { t.sheet.SetActivePage(2); }},
    {"destroys itself", [](Pages&, Pages::Page& page) { page.DestroyWindow(); }},
    {"destroys it", [](Pages& t, Pages::Page&) { t.sheet.DestroyWindow(); }},
    {"lets messages run", [](Pages&, Pages::Page&) { PumpPending(); }},
    {"throws", [](Pages&, Pages::Page&) { AfxThrowUserException(); }},
};

TEST(PropertySheets, OutliveWhatAPageDoesWhileItIsAsked) {
    for (const bool bWizard : {false, true}) {
        for (const Deed& deed : kDeeds) {
            for (const char* pszQuestion : {"set", "kill", "apply", "ok", "query", "reset",
                                            "cancel", "next", "back", "finish"}) {
                Pages t;
                if (bWizard) {
                    t.sheet.SetWizardMode();
                }
                bool bDone = false;
                for (Pages::Page* pPage : {&t.b, &t.p, &t.n}) {
                    pPage->m_asked = [&, pPage](const std::string& question) {
                        if (question == pszQuestion && !std::exchange(bDone, true)) {
                            deed.pfnDo(t, *pPage);
                        }
                    };
                }
                t.Show([&] {
                    for (const int nID : {ID_WIZNEXT, ID_WIZBACK, ID_WIZFINISH, IDOK, IDCANCEL}) {
                        t.sheet.SetActivePage(nID == ID_WIZBACK);
                        if (t.sheet.m_hWnd != nullptr && t.sheet.GetDlgItem(nID) != nullptr) {
                            t.Press(nID);
                        }
                    }
                });
                EXPECT_EQ(t.sheet.m_hWnd, nullptr) << deed.pszName << pszQuestion;
                EXPECT_TRUE(t.owner.IsWindowEnabled()) << deed.pszName << pszQuestion;
            }
        }
    }
    TheTestApp().Forget();
}

TEST(PropertySheets, WithoutMemory_AreEndedOrNotThere) {
    Pages t;
    INT_PTR nResult = 0;
    RefuseEachAllocation(
        FailingHeap::kJustOne, [&] { nResult = t.sheet.DoModal(); },
        [&](int nSucceeding) {
            EXPECT_TRUE(nResult == -1 || nResult == t.sheet.kStillThere) << nSucceeding;
            EXPECT_EQ(t.sheet.m_hWnd, nullptr) << nSucceeding;
            EXPECT_TRUE(t.owner.IsWindowEnabled()) << nSucceeding;
        });
    EXPECT_EQ(nResult, t.sheet.kStillThere) << "and come up with memory again";
    TheTestApp().Forget();
}

// --- Templates

/// A template's font, as the tests compare it.
std::string FontIn(const CDialogTemplate& dialogTemplate) {
    CString strFace("none");
    WORD nPoints = 0;
    dialogTemplate.GetFont(strFace, nPoints);
    return std::string(strFace) + " " + std::to_string(nPoints);
}

TEST(DialogTemplates, OfBothKindsHaveAFontThatCanBeReplaced) {
    RecordingParent parent;
    struct Case {
        UINT nID;
        const char* pszFont;
        int nItems;
    };
    for (const Case& c : {Case{IDD_PAGE_BIG, "Tahoma 12", 2}, Case{IDD_PAGE_PLAIN, "Arial 10", 2},
                          Case{IDD_PAGE_BARE, "none 0", 1}}) {
        CDialogTemplate loaded;
        ASSERT_TRUE(loaded.Load(MAKEINTRESOURCE(c.nID)));
        EXPECT_EQ(FontIn(loaded), c.pszFont);
        EXPECT_EQ(loaded.HasFont(), c.nID != IDD_PAGE_BARE);
        // By its address alone, a template's end is found by walking its items.
        CDialogTemplate copy(static_cast<const DLGTEMPLATE*>(loaded.m_hTemplate));
        for (LPCTSTR lpszFace : {"A", "Courier New", ""}) {
            ASSERT_TRUE(copy.SetFont(lpszFace, 9));
            EXPECT_EQ(FontIn(copy), std::string(lpszFace) + " 9");
            SIZE units;
            copy.GetSizeInDialogUnits(&units);
            EXPECT_EQ(CSize(units), CSize(180, 80));
            CDialog dlg;
            ASSERT_TRUE(dlg.CreateIndirect(static_cast<LPCDLGTEMPLATE>(copy.m_hTemplate), &parent));
            CRect rcDlg;
            dlg.GetClientRect(rcDlg);
            SIZE pixels;
            copy.GetSizeInPixels(&pixels);
            EXPECT_EQ(rcDlg.Size(), CSize(pixels)) << lpszFace;
            EXPECT_NE(dlg.GetDlgItem(IDC_PAGE_EDIT), nullptr);
            EXPECT_EQ(dlg.GetWindow(GW_CHILD)->GetNextWindow() != nullptr, c.nItems > 1);
        }
        const HGLOBAL hTemplate = copy.Detach();
        EXPECT_EQ(copy.m_hTemplate, nullptr);
        EXPECT_FALSE(copy.SetSystemFont());
        EXPECT_EQ(FontIn(CDialogTemplate(hTemplate)), " 9");
    }
    EXPECT_FALSE(CDialogTemplate().Load(MAKEINTRESOURCE(9999)));
}

/// DIALOGEX: the system's message font stands without a name.
TEST(DialogTemplates, OfTheMessageFontNameNone) {
#pragma pack(push, 2)
    struct {
        WORD nVersion = 1, nSignature = 0xFFFF;
        DWORD dwHelp = 0, dwExStyle = 0, dwStyle = WS_POPUP | DS_SETFONT;
        WORD nItems = 0;
        short rect[4] = {0, 0, 50, 50};
        WORD empty[3] = {};
        WORD nPoints = 0x7FFF;
        WORD garbage[20];
    } memory;
#pragma pack(pop)
    std::fill(std::begin(memory.garbage), std::end(memory.garbage), WORD{'x'});
    CDialogTemplate dialogTemplate(reinterpret_cast<const DLGTEMPLATE*>(&memory));
    EXPECT_FALSE(dialogTemplate.HasFont());
    EXPECT_EQ(FontIn(dialogTemplate), "none 0");
    EXPECT_TRUE(dialogTemplate.SetSystemFont());
    EXPECT_EQ(FontIn(dialogTemplate), "MS Shell Dlg 8");
}

}  // namespace
