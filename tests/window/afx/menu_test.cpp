// Menus: who owns the handle, owner drawing.
#include "support/popup.h"

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
        hMenu = menu.Detach();
        EXPECT_EQ(CMenu::FromHandlePermanent(hMenu), nullptr);
        EXPECT_TRUE(::IsMenu(hMenu));
        EXPECT_TRUE(menu.Attach(hMenu));
        const HMENU hNext = ::CreatePopupMenu();
        EXPECT_TRUE(menu.Attach(hNext));
        EXPECT_FALSE(::IsMenu(hMenu)) << "the new one takes its place";
        hMenu = hNext;
    }
    EXPECT_FALSE(::IsMenu(hMenu));
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
    ASSERT_TRUE(MakePopup(wnd));
    DrawnMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_OWNERDRAW, 5);
    CMenu bar;
    bar.CreateMenu();
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(menu.m_hMenu), "popup");
    EXPECT_EQ(bar.GetSubMenu(0), &menu);
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
