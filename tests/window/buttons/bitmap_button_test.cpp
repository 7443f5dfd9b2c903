#include "support/one_color_image.h"
#include "window/buttons/button_dialog.h"

#include <gtest/gtest.h>

namespace {

class OpenTool : public Mortal<QVToolButton> {
public:
    using QVToolButton::m_pFocusWnd;
    using QVToolButton::m_pToolTip;
};
using Window = ButtonDialog<OpenTool>;

TEST(BitmapButton, AClickMovesTheStateOnceBeforeTheParentIsTold) {
    using Step = void (*)(HWND);
    const Step click = [](HWND h) { ClickAt(h, kIn); };
    const Step twice = [](HWND h) { ClickAt(h, kIn, MouseButton::Left, true); };
    const Step half = [](HWND h) { ::SendMessage(h, WM_LBUTTONDBLCLK, 0, 0); };
    const Step press = [](HWND h) { PressAt(h, CPoint(22, 15)); };  // far off: no double click
    const Step release = [](HWND h) { ReleaseAt(h, kIn); };
    const Step outside = [](HWND h) { ReleaseAt(h, CPoint(60, 30)); };
    const Step mnemonic = [](HWND) { TypeKey('M', false, false, true); };
    const Step down = [](HWND) { SendKey(VK_SPACE, false), PumpPending(); };
    const Step up = [](HWND) { SendKey(VK_SPACE, true), PumpPending(); };
    const Step letUp = [](HWND h) { ::SendMessage(h, BM_SETSTATE, FALSE, 0); };
    const struct {
        const char* pszName;
        int nBefore, nAfter, nClicks;
        std::vector<Step> steps;
    } cases[] = {{"click", 0, 1, 1, {click}},
                 {"click again", 1, 0, 1, {click}},
                 {"third state", 2, 1, 1, {click}},
                 {"double", 0, 1, 1, {twice}},
                 {"released outside", 0, 0, 0, {press, outside}},
                 {"after a double click that ended elsewhere", 0, 1, 1, {half, click}},
                 {"mnemonic", 0, 1, 1, {mnemonic}},
                 {"Space, held down", 0, 1, 1, {down, down, up}},
                 {"Space that went down elsewhere", 0, 0, 0, {up}},
                 {"Space when a program has let it up", 0, 0, 0, {down, letUp, up}},
                 {"Space while the mouse holds it", 0, 1, 1, {press, down, up, release}},
                 {"the mouse while Space holds it", 0, 1, 1, {down, click, up}}};
    Window w;
    w.button->SetCheckable(TRUE);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszName);
        w.button->SetCheck(c.nBefore);
        w.button->SetFocus();
        int nClicks = 0;
        w.dlg.m_told = [&](UINT nCode) {
            nClicks += nCode == BN_CLICKED;
            EXPECT_TRUE(nCode != BN_CLICKED || w.button->GetCheck() == c.nAfter);
        };
        for (const Step step : c.steps) {
            step(w.button->m_hWnd);
        }
        EXPECT_EQ(nClicks, c.nClicks);
        EXPECT_EQ(w.button->GetCheck(), c.nAfter);
    }
}

TEST(BitmapButton, EachStateHasItsFrameFaceAndImage) {
    constexpr COLORREF kRed = RGB(255, 0, 0);
    const CSize kSize(10, 10);
    OneColorImage image(kSize, kRed);
    constexpr int kColors[] = {COLOR_3DHILIGHT, COLOR_3DLIGHT, COLOR_3DSHADOW, COLOR_3DDKSHADOW};
    constexpr POINT kEdges[] = {{28, 0}, {1, 21}, {28, 1}, {0, 23}};
    const CRect rcImage(CPoint(10, 7), kSize);
    const struct {
        int nCheck;
        bool bEnabled, bPressed, bRaised;
        int nMoved = 0;  // the image, or -1: it is engraved
        int nImage = 0;
    } cases[] = {{0, true, false, true},        {0, true, true, false, 1},
                 {0, false, false, true, -1},   {1, true, false, false},
                 {1, false, false, false},      {2, true, true, false, -1},
                 {0, true, false, true, -1, 1}, {0, true, false, true, -1, -1}};
    Window w;
    w.button->SetCheckable(TRUE);
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        w.button->SetImageID(&image, c.nImage);
        w.button->UpdateWindow();
        w.button->SetCheck(c.nCheck);
        w.button->EnableWindow(c.bEnabled);
        w.button->SetState(c.bPressed);
        const Picture shown = Picture::OfClient(w.button->m_hWnd);  // without asking for it
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(shown.At(kEdges[i].x, kEdges[i].y),
                      ::GetSysColor(kColors[c.bRaised ? i : 3 - i]));
        }
        const int nDither = shown.Count(::GetSysColor(COLOR_3DHILIGHT), CRect(2, 2, 10, 22));
        EXPECT_EQ(nDither, c.nCheck == 1 ? 80 : 0);
        const bool bWhole = c.nMoved >= 0;
        EXPECT_EQ(shown.Count(kRed, rcImage + CPoint(c.nMoved, c.nMoved)), bWhole ? 100 : 0);
        EXPECT_EQ(shown.Count(::GetSysColor(COLOR_3DSHADOW), rcImage),
                  bWhole || c.nImage != 0 ? 0 : 100);
    }
}

TEST(BitmapButton, ATipComesUpUnderTheMouse) {
    Window w;
    const auto expectTip = [&](const char* pszText) {
        MoveTo(w.dlg.m_hWnd, CPoint(1, 1));
        MoveTo(w.button->m_hWnd, kIn);
        CString strText;
        w.button->m_pToolTip->GetText(strText, w.button.get());
        EXPECT_STREQ(strText, pszText);
        EXPECT_TRUE(PumpUntil([&] { return w.button->m_pToolTip->IsWindowVisible() != 0; }));
    };
    w.button->EnableToolTip(0u);
    w.button->EnableToolTip(65000u);
    expectTip("of its own id");
    w.button->DestroyWindow();
    w.button->EnableToolTip("none to show it for");
    w.button->Create("", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(5, 40, 35, 60), &w.dlg, 9);
    w.button->EnableToolTip("once");
    w.button->EnableToolTip("again");
    expectTip("again");
}

TEST(ToolButton, NeverLatchesAndHandsTheFocusOnAfterAClickOfTheMouse) {
    Window w;
    CWnd* const pEdit = w.dlg.GetDlgItem(IDC_EDIT);
    auto* pGoes = new Mortal<CEdit>;
    pGoes->SubclassDlgItem(IDC_LINES, &w.dlg);
    const auto focusAfter = [&](CWnd* pFocusWnd, bool bMouse) {
        w.button->m_pFocusWnd = pFocusWnd;
        w.button->SetFocus();
        bMouse ? ClickAt(w.button->m_hWnd, kIn) : TypeKey(VK_SPACE);
        return ::GetFocus();
    };
    EXPECT_EQ(focusAfter(nullptr, true), w.button->m_hWnd);
    EXPECT_EQ(focusAfter(pEdit, false), w.button->m_hWnd);
    EXPECT_EQ(focusAfter(pEdit, true), pEdit->m_hWnd);
    w.button->SetCheck(2);
    EXPECT_EQ(w.button->GetCheck(), 0);
    EXPECT_EQ(w.button->SendMessage(WM_GETDLGCODE), DLGC_BUTTON);
    w.dlg.m_told = [&](UINT nCode) {
        nCode == BN_CLICKED ? delete std::exchange(pGoes, nullptr) : void();
    };
    EXPECT_EQ(focusAfter(pGoes, true), w.button->m_hWnd) << "deleted in the click";
}

}  // namespace
