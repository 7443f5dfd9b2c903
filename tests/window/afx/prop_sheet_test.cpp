// The framework's property sheets beside a window, with pages that cannot be made, and attacked by
// their pages; dialog templates.
#include "window/containers/sheet_window.h"

namespace {

using Pages = ThreePages<CPropertySheet, CPropertyPage>;

TEST(PropertySheets, LiveBesideTheirOwner_WithoutButtons) {
    Pages t;
    ASSERT_TRUE(t.sheet.Create(&t.owner));
    EXPECT_TRUE(t.owner.IsWindowEnabled() && t.sheet.IsWindowVisible());
    EXPECT_FALSE(t.sheet.GetDlgItem(IDOK)->IsWindowVisible());
    CRect rcTabs;
    CRect rcClient;
    t.sheet.GetTabControl()->GetWindowRect(rcTabs);
    t.sheet.ScreenToClient(rcTabs);
    t.sheet.GetClientRect(rcClient);
    EXPECT_EQ(rcClient.bottom - rcTabs.bottom, rcTabs.top);
    t.sheet.RemovePage(&t.p);
    {
        Pages::Page late(IDD_PAGE_PLAIN, 'l', t.diary);
        t.sheet.AddPage(&late);
        t.sheet.AddPage(&late);
        EXPECT_EQ(t.sheet.GetTabControl()->GetItemCount(), 3);
        EXPECT_TRUE(t.sheet.SetActivePage(&late));
    }
    EXPECT_EQ(t.sheet.GetPageCount(), 2) << "a page that goes leaves its sheet";
    t.sheet.SendMessage(WM_SYSCOMMAND, SC_CLOSE);
    EXPECT_EQ(t.sheet.m_hWnd, nullptr);

    t.sheet.SetWizardMode();
    ASSERT_TRUE(t.sheet.Create(&t.owner));
    t.Press(IDCANCEL);
    EXPECT_EQ(t.sheet.m_hWnd, nullptr);
}

TEST(PropertySheets, ComeUpWithThePagesThatCanBeMade) {
    ActingSheet<CPropertySheet> sheet("Sheet");
    EXPECT_EQ(sheet.DoModal(), -1) << "no pages";
    CPropertyPage good(IDD_PAGE_BARE);
    CPropertyPage broken(IDD_PAGE_BROKEN);
    sheet.AddPage(&good);
    sheet.AddPage(&broken);
    sheet.m_action = [&] {
        sheet.SetActivePage(&broken);
        CWnd other;
        EXPECT_TRUE(MakePopup(other));
        EXPECT_EQ(broken.m_hWnd, nullptr) << "not bound to somebody else's window";
        EXPECT_TRUE(sheet.SetActivePage(&good));
    };
    EXPECT_EQ(sheet.DoModal(), sheet.kStillThere);
}

/// What a page may do to its sheet while it is asked something.
void (*const kDeeds[])(Pages& t, Pages::Page& page) = {
    [](Pages& t, Pages::Page&) { t.sheet.EndDialog(7); },
    [](Pages& t, Pages::Page& page) { t.sheet.RemovePage(&page); },
    [](Pages& t, Pages::Page&) { t.sheet.SetActivePage(2); },
    [](Pages&, Pages::Page& page) { page.DestroyWindow(); },
    [](Pages& t, Pages::Page&) { t.sheet.DestroyWindow(); },
    [](Pages&, Pages::Page&) { PumpPending(); },
    [](Pages&, Pages::Page&) { AfxThrowUserException(); },
};

/// One page does the deed at the first such question; the sheet is over in the end.
void Attack(int nDeed, const std::string& question, bool bWizard) {
    Pages t;
    bWizard ? t.sheet.SetWizardMode() : void();
    bool bDone = false;
    for (Pages::Page* pPage : {&t.b, &t.p, &t.n}) {
        pPage->m_asked = [&, pPage](const std::string& asked) {
            if (asked == question && !std::exchange(bDone, true)) {
                kDeeds[nDeed](t, *pPage);
            }
        };
    }
    t.Show([&] {
        for (const int nButton : {PSBTN_NEXT, PSBTN_BACK, PSBTN_FINISH, PSBTN_OK, PSBTN_CANCEL}) {
            t.sheet.SetActivePage(nButton == PSBTN_BACK);
            if (t.sheet.m_hWnd != nullptr) {
                t.sheet.SendMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(nButton));
            }
        }
    });
    EXPECT_TRUE(bDone && t.sheet.m_hWnd == nullptr && t.owner.IsWindowEnabled())
        << "deed " << nDeed << " in " << question;
}

TEST(PropertySheets, OutliveWhatAPageDoesWhileItIsAsked) {
    for (int i = 0; i < static_cast<int>(std::size(kDeeds)); ++i) {
        for (const char* pszQuestion : {"set", "kill", "apply", "ok", "query", "cancel"}) {
            Attack(i, pszQuestion, false);
        }
        for (const char* pszQuestion : {"set", "kill", "query", "next", "back", "finish"}) {
            Attack(i, pszQuestion, true);
        }
    }
    TheTestApp().Forget();
}

// --- Templates

TEST(DialogTemplates, OfBothKindsHaveAFontThatCanBeReplaced) {
    CWnd parent;
    MakePopup(parent);
    const auto fontIn = [](const CDialogTemplate& dialogTemplate) {
        CString strFace("none");
        WORD nPoints = 0;
        dialogTemplate.GetFont(strFace, nPoints);
        return std::string(strFace) + " " + std::to_string(nPoints);
    };
    for (const auto& [nID, pszFont] : {std::pair{IDD_PAGE_BIG, "Tahoma 12"},
                                       {IDD_PAGE_PLAIN, "Arial 10"},
                                       {IDD_PAGE_BARE, "none 0"}}) {
        CDialogTemplate loaded;
        ASSERT_TRUE(loaded.Load(MAKEINTRESOURCE(nID)));
        EXPECT_EQ(fontIn(loaded), pszFont);
        // By its address alone, a template's end is found by walking its items.
        CDialogTemplate copy(static_cast<const DLGTEMPLATE*>(loaded.m_hTemplate));
        for (LPCTSTR lpszFace : {"A", "Courier New", ""}) {
            ASSERT_TRUE(copy.SetFont(lpszFace, 9));
            EXPECT_EQ(fontIn(copy), std::string(lpszFace) + " 9");
            CDialog dlg;
            ASSERT_TRUE(dlg.CreateIndirect(static_cast<LPCDLGTEMPLATE>(copy.m_hTemplate), &parent));
            CRect rcDlg;
            dlg.GetClientRect(rcDlg);
            SIZE pixels;
            copy.GetSizeInPixels(&pixels);
            EXPECT_EQ(rcDlg.Size(), CSize(pixels)) << lpszFace;
            EXPECT_NE(dlg.GetDlgItem(nID == IDD_PAGE_BIG ? IDC_PAGE_CHECK : IDC_PAGE_EDIT),
                      nullptr);
        }
    }
    EXPECT_FALSE(CDialogTemplate().Load(MAKEINTRESOURCE(9999)));
}

}  // namespace
