// Menus: who owns the handle, rows and their states, owner drawing.
#include "window/afx/afx_test_ids.h"

#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

TEST(Menu, ObjectsOwnTheirHandlesUntilTheyGo) {
    HMENU hMenu = nullptr;
    {
        CMenu menu;
        EXPECT_FALSE(menu.LoadMenu(9999u));
        EXPECT_FALSE(menu.Attach(nullptr));
        EXPECT_FALSE(menu.DestroyMenu());
        ASSERT_TRUE(menu.CreateMenu());
        hMenu = menu;
        EXPECT_EQ(CMenu::FromHandlePermanent(hMenu), &menu);
        EXPECT_EQ(menu.Detach(), hMenu);
        EXPECT_EQ(CMenu::FromHandlePermanent(hMenu), nullptr);
        EXPECT_NE(CMenu::FromHandle(hMenu), nullptr);
        CMenu::DeleteTempMap();
        EXPECT_TRUE(::IsMenu(hMenu));
        EXPECT_TRUE(menu.Attach(hMenu));
        const HMENU hNext = ::CreatePopupMenu();
        EXPECT_TRUE(menu.Attach(hNext));
        EXPECT_FALSE(::IsMenu(hMenu)) << "the new one takes its place";
        hMenu = hNext;
    }
    EXPECT_FALSE(::IsMenu(hMenu));
    EXPECT_EQ(CMenu::FromHandle(nullptr)->GetSafeHmenu(), nullptr);
}

TEST(Menu, RowsComeAndGoByNumberAndByPlace) {
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDR_FRAME));
    CMenu* pPopup = menu.GetSubMenu(0);
    ASSERT_NE(pPopup, nullptr);
    EXPECT_EQ(menu.GetMenuItemID(0), static_cast<UINT>(-1)) << "a popup has no number";
    EXPECT_EQ(pPopup->GetSubMenu(0), nullptr);
    EXPECT_EQ(pPopup->GetMenuItemID(1), UINT{ID_ON_FRAME});

    CMenu made;
    ASSERT_TRUE(made.CreatePopupMenu());
    made.AppendMenu(MF_STRING, 1, "one");
    made.AppendMenu(MF_SEPARATOR);
    made.InsertMenu(1, MF_BYCOMMAND | MF_STRING, 2, "two");
    made.InsertMenu(1, MF_BYPOSITION | MF_STRING, 3, "three");
    made.ModifyMenu(3, MF_BYCOMMAND | MF_STRING, 4, "four");
    EXPECT_FALSE(made.DeleteMenu(3, MF_BYCOMMAND));
    EXPECT_TRUE(made.DeleteMenu(2, MF_BYPOSITION));
    CString strText;
    made.GetMenuString(1, strText, MF_BYPOSITION);
    EXPECT_STREQ(strText, "four");
    char szShort[3] = "";
    EXPECT_EQ(made.GetMenuString(0, szShort, sizeof szShort, MF_BYPOSITION), 2);
    EXPECT_STREQ(szShort, "tw");
    EXPECT_EQ(made.GetMenuString(77, strText, MF_BYCOMMAND), 0);
    EXPECT_STREQ(strText, "");

    CMenu bar;
    ASSERT_TRUE(bar.CreateMenu());
    ASSERT_TRUE(bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(made.m_hMenu), "popup"));
    EXPECT_EQ(bar.GetSubMenu(0), &made);
    EXPECT_TRUE(bar.RemoveMenu(0, MF_BYPOSITION));
    EXPECT_TRUE(::IsMenu(made)) << "taken out, not destroyed";
}

/// Notes the rows that it was asked about.
class DrawnMenu : public CMenu {
public:
    UINT m_nMeasured = 0;
    UINT m_nDrawn = 0;
    void MeasureItem(LPMEASUREITEMSTRUCT p) override { m_nMeasured = p->itemID; }
    void DrawItem(LPDRAWITEMSTRUCT p) override { m_nDrawn = p->itemID; }
};

TEST(Menu, OwnerDrawnRowsAskTheirObject) {
    CWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr));
    DrawnMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_OWNERDRAW, 5);
    CMenu bar;
    bar.CreateMenu();
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(menu.m_hMenu), "popup");
    ::SetMenu(wnd.m_hWnd, bar);
    MEASUREITEMSTRUCT measure{};
    measure.CtlType = ODT_MENU;
    measure.itemID = 5;
    wnd.SendMessage(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measure));
    EXPECT_EQ(menu.m_nMeasured, 5u);
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_MENU;
    draw.itemID = 5;
    draw.hwndItem = reinterpret_cast<HWND>(menu.m_hMenu);
    wnd.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(menu.m_nDrawn, 5u);
    bar.RemoveMenu(0, MF_BYPOSITION);
    bar.Detach();  // the window's, which destroys it
}

}  // namespace
