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

}  // namespace
