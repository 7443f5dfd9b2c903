#include "support/mortal.h"
#include "support/picture.h"
#include "window/buttons/button_dialog.h"
#include "window/refusals.h"

#include <gtest/gtest.h>

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr int kSide = 10;
const CPoint kIn(5, 5);
const CPoint kOut(60, 30);
const CPoint kFar(22, 15);  // a press there is no double click

// A red square.
class Image : public CImageList {
public:
    Image() {
        Create(kSide, kSide, ILC_COLOR24, 1, 0);
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        CBitmap bitmap;
        bitmap.CreateBitmap(kSide, kSide, 1, 32, nullptr);
        CBitmap* const pOld = dc.SelectObject(&bitmap);
        dc.FillSolidRect(0, 0, kSide, kSide, kRed);
        dc.SelectObject(pOld);
        Add(&bitmap, static_cast<CBitmap*>(nullptr));
    }
};

template <class Base>
class Open : public Watched<Base> {
public:
    using Base::m_pToolTip;
};

template <class Button = Open<QVBitmapButton>>
struct Window : ButtonDialog<Button> {
    Window() { this->button->SetImageID(&image, 0); }
    Picture Shown() {
        this->button->Invalidate(FALSE);
        return Picture::OfClient(this->button->m_hWnd);
    }
    Image image;
};

struct Press {
    const char* pszName;
    int nBefore;
    int nAfter;
    int nClicks;
    std::function<void(HWND)> act;
};
const Press kPresses[] = {
    {"click", 0, 1, 1, [](HWND h) { ClickAt(h, kIn); }},
    {"click again", 1, 0, 1, [](HWND h) { ClickAt(h, kIn); }},
    {"third state", 2, 1, 1, [](HWND h) { ClickAt(h, kIn); }},
    {"double", 0, 1, 1, [](HWND h) { ClickAt(h, kIn, MouseButton::Left, true); }},
    {"released outside", 0, 0, 0, [](HWND h) { PressAt(h, kFar), ReleaseAt(h, kOut); }},
    {"after a double click that ended elsewhere", 0, 1, 1,
     [](HWND h) { ::SendMessage(h, WM_LBUTTONDBLCLK, 0, 0), ClickAt(h, kIn); }},
    {"mnemonic", 0, 1, 1, [](HWND) { TypeKey('M', false, false, true); }},
    {"Space", 0, 1, 1, [](HWND) { SendKey(VK_SPACE, false), SendKeys({VK_SPACE}), PumpPending(); }},
    {"Space without the focus at its end", 0, 0, 0,
     [](HWND h) {
         SendKey(VK_SPACE, false), PumpPending();
         ::SetFocus(::GetDlgItem(::GetParent(h), IDC_EDIT)), ::SetFocus(h);
         SendKey(VK_SPACE, true), PumpPending();
     }},
    {"Space while the mouse holds it", 0, 1, 1,
     [](HWND h) {
         PressAt(h, kFar);
         SendKeys({VK_SPACE}), PumpPending();
         ReleaseAt(h, kFar);
     }},
    {"the mouse while Space holds it", 0, 1, 1,
     [](HWND h) {
         SendKey(VK_SPACE, false), PumpPending();
         ClickAt(h, kIn);
         SendKey(VK_SPACE, true), PumpPending();
     }},
};

TEST(BitmapButton, AClickMovesTheStateOnceBeforeTheParentIsTold) {
    for (const bool bCheckable : {true, false}) {
        Window<> w;
        for (const Press& press : kPresses) {
            SCOPED_TRACE(press.pszName);
            w.button->SetCheckable(TRUE);
            w.button->SendMessage(BM_SETCHECK, static_cast<WPARAM>(press.nBefore));
            w.button->SetCheckable(bCheckable);
            w.button->SendMessage(BM_SETCHECK, bCheckable ? press.nBefore : 7);
            w.button->SetFocus();
            int nClicks = 0;
            const int nAfter = bCheckable ? press.nAfter : press.nBefore;
            w.dlg.m_told = [&](UINT nCode) {
                nClicks += nCode == BN_CLICKED;
                EXPECT_TRUE(nCode != BN_CLICKED || w.button->GetCheck() == nAfter);
            };
            press.act(w.button->m_hWnd);
            EXPECT_EQ(nClicks, press.nClicks);
            EXPECT_EQ(w.button->GetCheck(), nAfter);
        }
    }
}

TEST(BitmapButton, EachStateHasItsFrameFaceAndImage) {
    Window<> w;
    const auto color = [](int nIndex) { return ::GetSysColor(nIndex); };
    const CPoint ptImage((30 - kSide) / 2, (24 - kSide) / 2);
    const struct {
        int nCheck;
        bool bEnabled, bPressed, bRaised;
        int nImage;  // how far it is moved; -1: engraved
    } kLooks[] = {{0, true, false, true, 0},   {0, true, true, false, 1},
                  {0, false, false, true, -1}, {1, true, false, false, 0},
                  {1, false, false, false, 0}, {2, true, true, false, -1}};
    for (const auto& look : kLooks) {
        SCOPED_TRACE(&look - kLooks);
        w.button->UpdateWindow();
        w.button->SendMessage(BM_SETCHECK, static_cast<WPARAM>(look.nCheck));
        w.button->EnableWindow(look.bEnabled);
        w.button->SetState(look.bPressed);
        const Picture shown = Picture::OfClient(w.button->m_hWnd);  // without asking for it
        const int kEdges[] = {COLOR_3DHILIGHT, COLOR_3DLIGHT, COLOR_3DSHADOW, COLOR_3DDKSHADOW};
        const auto edge = [&](int i) { return color(kEdges[look.bRaised ? i : 3 - i]); };
        EXPECT_EQ(shown.At(28, 0), edge(0));
        EXPECT_EQ(shown.At(1, 21), edge(1));
        EXPECT_EQ(shown.At(28, 1), edge(2));
        EXPECT_EQ(shown.At(0, 23), edge(3));
        EXPECT_EQ(shown.Count(color(COLOR_3DHILIGHT), CRect(2, 2, 10, 22)),
                  look.nCheck == 1 ? 80 : 0);
        const CRect rcImage(ptImage + CPoint(look.nImage, look.nImage), CSize(kSide, kSide));
        EXPECT_EQ(shown.Count(kRed), look.nImage < 0 ? 0 : kSide * kSide);
        EXPECT_EQ(shown.Count(kRed, rcImage), shown.Count(kRed));
        if (look.nImage < 0) {
            EXPECT_EQ(shown.Count(color(COLOR_3DSHADOW), CRect(ptImage, rcImage.Size())), 100);
        }
    }
    CImageList none;
    w.button->SetState(FALSE);
    for (const auto& [pImages, nImage] :
         {std::pair<CImageList*, int>(&w.image, 1), {&w.image, -1}, {&none, 0}, {nullptr, 0}}) {
        w.button->SetImageID(pImages, nImage);
        EXPECT_EQ(w.Shown().Count(color(COLOR_BTNFACE), CRect(2, 2, 28, 22)), 26 * 20);
    }
    w.button->SendMessage(BM_SETCHECK, 1);
    for (int nSide = 0; nSide < 7; ++nSide) {
        w.button->SetWindowPos(nullptr, 0, 0, nSide, nSide, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_EQ(w.Shown().At(0, 0), nSide == 0   ? CLR_INVALID
                                      : nSide == 1 ? color(COLOR_3DHILIGHT)
                                                   : color(COLOR_3DDKSHADOW));
    }
}

TEST(BitmapButton, ATipComesUpUnderTheMouse) {
    Window<> w;
    const auto shows = [&](const char* pszText) {
        MoveTo(w.dlg.m_hWnd, CPoint(1, 1));
        MoveTo(w.button->m_hWnd, kIn);
        CString strText;
        w.button->m_pToolTip->GetText(strText, w.button.get());
        EXPECT_STREQ(strText, pszText);
        EXPECT_TRUE(PumpUntil([&] { return w.button->m_pToolTip->IsWindowVisible() != 0; }));
        ClickAt(w.dlg.m_hWnd, CPoint(1, 1));
    };
    w.button->EnableToolTip(65000u);
    EXPECT_EQ(w.button->m_pToolTip, nullptr) << "no such text";
    w.button->EnableToolTip(0u);
    shows("of its own id");
    RefuseEach(
        "tip", [&] { w.button->EnableToolTip(IDS_TIP); }, [] {});
    w.button->EnableToolTip(65000u);
    shows("of another id");
    w.button->DestroyWindow();
    w.button->EnableToolTip("none to show it for");
    w.button->Create("", kButtonStyle, CRect(5, 40, 35, 60), &w.dlg, IDC_BUTTON);
    w.button->EnableToolTip("again");
    shows("again");
    EXPECT_EQ(w.button->nThrown, 0);
}

class OpenTool : public QVToolButton {
public:
    using QVToolButton::m_pFocusWnd;
};

TEST(ToolButton, NeverLatchesAndHandsTheFocusOnAfterAClickOfTheMouse) {
    Window<OpenTool> w;
    const auto focusAfter = [&](CWnd* pFocusWnd, bool bMouse) {
        w.button->m_pFocusWnd = pFocusWnd;
        w.button->SetFocus();
        bMouse ? ClickAt(w.button->m_hWnd, kIn) : TypeKey(VK_SPACE);
        return ::GetFocus();
    };
    EXPECT_EQ(focusAfter(nullptr, true), w.button->m_hWnd);
    EXPECT_EQ(focusAfter(&w.Edit(), false), w.button->m_hWnd);
    EXPECT_EQ(focusAfter(&w.Edit(), true), w.Edit().m_hWnd);
    EXPECT_EQ(w.button->GetCheck(), 0);
    EXPECT_EQ(w.button->SendMessage(WM_GETDLGCODE), DLGC_BUTTON);
    auto* pGoes = new Mortal<CEdit>;
    pGoes->SubclassDlgItem(IDC_LINES, &w.dlg);
    w.dlg.m_told = [&](UINT nCode) {
        nCode == BN_CLICKED ? delete std::exchange(pGoes, nullptr) : void();
    };
    EXPECT_EQ(focusAfter(pGoes, true), w.button->m_hWnd) << "deleted in the click";
}

TEST(ToolButton, AParentMayDeleteItWheneverItIsTold) {
    const std::pair<UINT, std::function<void(HWND)>> kTold[] = {
        {BN_CLICKED, [](HWND h) { ClickAt(h, kIn); }},
        {BN_CLICKED, [](HWND h) { ::SetFocus(h), TypeKey(VK_SPACE); }},
        {BN_DOUBLECLICKED, [](HWND h) { ::SendMessage(h, WM_LBUTTONDBLCLK, 0, 0); }},
        {TTN_SHOW, [](HWND h) { MoveTo(h, kIn), PumpUntil([=] { return !::IsWindow(h); }); }}};
    for (const auto& [nTold, act] : kTold) {
        Window<Mortal<QVToolButton>> w;
        MoveTo(w.dlg.m_hWnd, CPoint(1, 1));
        w.button->EnableToolTip("tip");
        w.dlg.m_told = [&, nLast = nTold](UINT nCode) {
            nCode == nLast ? w.button.reset() : void();
        };
        act(w.button->m_hWnd);
        PumpPending();
        EXPECT_EQ(w.button, nullptr) << nTold;
    }
}

}  // namespace
