#include "QVControls.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/recording_parent.h"
#include "window/buttons/button_input.h"
#include "window/buttons/button_test_ids.h"
#include "window/refusals.h"

#include <gtest/gtest.h>

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW;
const CRect kPlace(10, 10, 40, 34);
const CPoint kIn(5, 5);
const CPoint kOut(60, 5);  // on the parent

template <class Base>
class Open : public Base {
public:
    using Base::Base;
    using Base::m_bCheckable;
    using Base::m_bIgnoreUp;
    using Base::m_nCheck;
    using Base::m_pToolTip;
    using Base::ShadeRect;
};

// Runs m_act whenever a button tells it something, by WM_COMMAND or as its tip shows.
class Parent : public RecordingParent {
public:
    Parent() : RecordingParent(CSize(120, 60)) { ::SetRect(&m_rcFocus, 80, 10, 110, 30); }
    std::function<void(UINT nCode)> m_act = [](UINT) {};
    RECT m_rcFocus;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const BOOL bDone = RecordingParent::OnCommand(wParam, lParam);
        m_act(HIWORD(wParam));
        return bDone;
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
        m_act(reinterpret_cast<NMHDR*>(lParam)->code);
        return RecordingParent::OnNotify(wParam, lParam, pResult);
    }
};

template <class Button = Open<QVBitmapButton>>
struct ButtonWindow {
    ButtonWindow() {
        edit.Create(WS_CHILD | WS_VISIBLE, parent.m_rcFocus, &parent, 8);
        Make();
        BringToFront(parent.m_hWnd);
    }
    void Make() {
        button.Create("&x", kStyle, kPlace, &parent, IDC_BITMAP);
        button.SetImageID(&images, 0);
    }
    Picture Shown() {
        button.Invalidate(FALSE);
        return Picture::OfClient(button.m_hWnd);
    }

    Parent parent;
    TwoImages images;
    CEdit edit;
    Button button;
};

// --- Clicks

using Window = ButtonWindow<>;

struct Press {
    const char* pszName;
    int nBefore;
    int nAfter;
    int nClicks;
    std::function<void(Window&)> act;
};

const Press kPresses[] = {
    {"click", 0, 1, 1, [](Window& w) { ClickAt(w.button.m_hWnd, kIn); }},
    {"click again", 1, 0, 1, [](Window& w) { ClickAt(w.button.m_hWnd, kIn); }},
    {"third state", 2, 1, 1, [](Window& w) { ClickAt(w.button.m_hWnd, kIn); }},
    {"double", 0, 1, 1, [](Window& w) { ClickAt(w.button.m_hWnd, kIn, MouseButton::Left, true); }},
    {"released outside", 0, 0, 0,
     [](Window& w) { PressAt(w.button.m_hWnd, kIn), ReleaseAt(w.button.m_hWnd, kOut); }},
    {"a double click that ends elsewhere, and a click", 0, 1, 1,
     [](Window& w) {
         w.button.SendMessage(WM_LBUTTONDBLCLK, 0, MAKELPARAM(5, 5));
         ::ReleaseCapture();
         ClickAt(w.button.m_hWnd, kIn);
     }},
    {"BM_CLICK", 0, 1, 1, [](Window& w) { w.button.SendMessage(BM_CLICK); }},
    {"Space", 0, 1, 1, [](Window&) { TypeKey(VK_SPACE); }},
    {"Space, held down", 0, 1, 1,
     [](Window&) {
         SendKey(VK_SPACE, false), SendKey(VK_SPACE, false), SendKey(VK_SPACE, true);
         PumpPending();
     }},
    {"Space without the focus at its end", 0, 0, 0,
     [](Window& w) {
         SendKey(VK_SPACE, false), PumpPending();
         w.edit.SetFocus(), w.button.SetFocus();
         SendKey(VK_SPACE, true), PumpPending();
     }},
    {"Space while the mouse holds it", 0, 1, 1,
     [](Window& w) {
         PressAt(w.button.m_hWnd, kIn);
         TypeKey(VK_SPACE);
         ReleaseAt(w.button.m_hWnd, kIn);
     }},
    {"the mouse while Space holds it", 0, 1, 1,
     [](Window& w) {
         SendKey(VK_SPACE, false), PumpPending();
         ClickAt(w.button.m_hWnd, kIn);
         SendKey(VK_SPACE, true), PumpPending();
     }},
};

TEST(BitmapButton, AClickMovesTheStateOnceBeforeTheParentIsTold) {
    for (const bool bCheckable : {true, false}) {
        Window w;
        for (const Press& press : kPresses) {
            SCOPED_TRACE(press.pszName);
            w.button.SetCheckable(TRUE);
            w.button.SendMessage(BM_SETCHECK, static_cast<WPARAM>(press.nBefore));
            w.button.SetCheckable(bCheckable);
            w.button.SetFocus();
            int nClicks = 0;
            const int nAfter = bCheckable ? press.nAfter : press.nBefore;
            w.parent.m_act = [&](UINT nCode) {
                nClicks += nCode == BN_CLICKED;
                EXPECT_TRUE(nCode != BN_CLICKED || w.button.GetCheck() == nAfter);
            };
            press.act(w);
            EXPECT_EQ(nClicks, press.nClicks);
            EXPECT_EQ(w.button.GetCheck(), nAfter);
            EXPECT_EQ(w.button.m_bIgnoreUp, FALSE);
        }
    }
}

TEST(BitmapButton, ASetStateShowsUnlessTheButtonIsNotCheckable) {
    Window w;
    const auto repaints = [&](WPARAM wCheck) {
        w.button.UpdateWindow();
        EXPECT_EQ(w.button.SendMessage(BM_SETCHECK, wCheck), 0);
        return ::GetUpdateRect(w.button.m_hWnd, nullptr, FALSE) != 0;
    };
    EXPECT_FALSE(repaints(0));
    EXPECT_TRUE(repaints(2));
    EXPECT_FALSE(repaints(2));
    w.button.SetCheckable(FALSE);
    EXPECT_FALSE(repaints(1));
    EXPECT_EQ(w.button.SendMessage(BM_GETCHECK), 2);
    EXPECT_EQ(w.button.SendMessage(WM_ERASEBKGND), 1);
}

// --- Looks

TEST(BitmapButton, EachStateHasItsFrameFaceAndImage) {
    Window w;
    const auto color = [](int nIndex) { return ::GetSysColor(nIndex); };
    const CPoint kImage((30 - kImageSide) / 2, (24 - kImageSide) / 2);
    const struct {
        int nCheck;
        bool bEnabled;
        bool bPressed;
        bool bRaised;
        int nImage;  // its place; -1: engraved
    } kLooks[] = {{0, true, false, true, 0},   {0, true, true, false, 1},
                  {0, false, false, true, -1}, {1, true, false, false, 0},
                  {1, false, false, false, 0}, {1, true, true, false, 1},
                  {2, true, false, true, -1},  {2, true, true, false, -1}};
    for (const auto& look : kLooks) {
        SCOPED_TRACE(&look - kLooks);
        w.button.SendMessage(BM_SETCHECK, static_cast<WPARAM>(look.nCheck));
        w.button.EnableWindow(look.bEnabled);
        w.button.SetState(look.bPressed);
        const Picture shown = w.Shown();
        const int kRaised[] = {COLOR_3DHILIGHT, COLOR_3DLIGHT, COLOR_3DSHADOW, COLOR_3DDKSHADOW};
        const int kSunken[] = {COLOR_3DDKSHADOW, COLOR_3DSHADOW, COLOR_3DLIGHT, COLOR_3DHILIGHT};
        const int* pEdges = look.bRaised ? kRaised : kSunken;
        EXPECT_EQ(shown.At(0, 22), color(pEdges[0]));
        EXPECT_EQ(shown.At(28, 0), color(pEdges[0]));
        EXPECT_EQ(shown.At(1, 21), color(pEdges[1]));
        EXPECT_EQ(shown.At(28, 1), color(pEdges[2]));
        EXPECT_EQ(shown.At(0, 23), color(pEdges[3]));
        EXPECT_EQ(shown.At(29, 23), color(pEdges[3]));
        const bool bDithered = look.nCheck == 1;
        const int nLight = shown.Count(color(COLOR_3DHILIGHT), CRect(2, 2, 10, 22));
        EXPECT_EQ(nLight, bDithered ? 80 : 0);
        const CRect rcImage(kImage + CPoint(look.nImage, look.nImage),
                            CSize(kImageSide, kImageSide));
        EXPECT_EQ(shown.Count(kRed), look.nImage < 0 ? 0 : kImageSide * kImageSide);
        EXPECT_EQ(shown.Count(kRed, rcImage), shown.Count(kRed));
        if (look.nImage < 0) {
            EXPECT_EQ(shown.Count(color(COLOR_3DSHADOW), CRect(kImage, rcImage.Size())), 100);
            EXPECT_EQ(shown.Count(color(COLOR_3DHILIGHT), CRect(kImage, CSize(11, 11))), 19);
        }
    }
}

TEST(BitmapButton, WhatCannotBeShownIsLeftOut) {
    Window w;
    w.button.SetImageID(&w.images, 1);
    EXPECT_EQ(w.Shown().Count(kBlue), kImageSide * kImageSide);
    CImageList none;
    const std::pair<CImageList*, int> kNone[] = {
        {&w.images, 2}, {&w.images, -1}, {&none, 0}, {nullptr, 0}};
    for (const auto& [pImages, nImage] : kNone) {
        w.button.SetImageID(pImages, nImage);
        const Picture shown = w.Shown();
        EXPECT_EQ(shown.Count(::GetSysColor(COLOR_BTNFACE), CRect(2, 2, 28, 22)), 26 * 20);
        EXPECT_EQ(shown.At(0, 0), ::GetSysColor(COLOR_3DHILIGHT));
    }
    w.button.SetImageID(&w.images, 0);
    for (const int nCheck : {0, 1, 2}) {
        w.button.SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
        for (int nSide = 0; nSide < 7; ++nSide) {
            w.button.SetWindowPos(nullptr, 0, 0, nSide, nSide, SWP_NOMOVE | SWP_NOZORDER);
            EXPECT_EQ(w.Shown().Width(), nSide);
        }
    }
}

TEST(BitmapButton, ShadingKeepsColoursAndTheClipForTheImage) {
    Window w;
    CClientDC dc(&w.parent);
    dc.SetTextColor(kRed);
    CRect rc(50, 40, 60, 50);
    EXPECT_TRUE(w.button.ShadeRect(dc, rc));
    EXPECT_EQ(dc.GetTextColor(), kRed);
    CRect rcClip;
    dc.GetClipBox(&rcClip);
    EXPECT_EQ(rcClip, rc);
}

// --- Tooltips

TEST(BitmapButton, ATipComesUpUnderTheMouse) {
    Window w;
    const auto shows = [&](const char* pszText) {
        MoveTo(w.parent.m_hWnd, kOut);
        MoveTo(w.button.m_hWnd, kIn);
        CString strText;
        w.button.m_pToolTip->GetText(strText, &w.button);
        EXPECT_STREQ(strText, pszText);
        EXPECT_TRUE(PumpUntil([&] { return w.button.m_pToolTip->IsWindowVisible() != 0; }));
        ClickAt(w.parent.m_hWnd, kOut);
    };
    w.button.EnableToolTip(65000u);
    EXPECT_EQ(w.button.m_pToolTip, nullptr) << "no such text";
    w.button.EnableToolTip(0u);
    shows("of its own id");
    w.button.EnableToolTip(IDS_TIP);
    w.button.EnableToolTip(65000u);
    shows("of another id");
    w.button.DestroyWindow();
    w.button.EnableToolTip("none to show it for");
    w.Make();
    w.button.EnableToolTip("again");
    shows("again");
    EXPECT_EQ(w.button.m_pToolTip->GetToolCount(), 2) << "that of the window before is left";
}

// --- The tool button

class OpenTool : public Open<QVToolButton> {
public:
    using QVToolButton::m_pFocusWnd;
};

TEST(ToolButton, NeverLatchesAndHandsTheFocusOnAfterAClickOfTheMouse) {
    ButtonWindow<OpenTool> w;
    EXPECT_EQ(w.button.SendMessage(WM_GETDLGCODE), DLGC_BUTTON);
    ClickAt(w.button.m_hWnd, kIn);
    EXPECT_EQ(::GetFocus(), w.button.m_hWnd) << "no window to give it to";
    w.button.m_pFocusWnd = &w.edit;
    TypeKey(VK_SPACE);
    EXPECT_EQ(::GetFocus(), w.button.m_hWnd);
    ClickAt(w.button.m_hWnd, kIn);
    EXPECT_EQ(::GetFocus(), w.edit.m_hWnd);
    EXPECT_EQ(w.parent.CountCommands(BN_CLICKED), 3);
    EXPECT_EQ(w.button.GetCheck(), 0);
    auto pGoes = std::make_unique<CEdit>();
    pGoes->Create(WS_CHILD, CRect(0, 0, 5, 5), &w.parent, 9);
    w.button.m_pFocusWnd = pGoes.get();
    w.parent.m_act = [&](UINT) { pGoes.reset(); };
    ClickAt(w.button.m_hWnd, kIn);
    EXPECT_EQ(::GetFocus(), w.button.m_hWnd) << "deleted in the click";
}

// --- Parents that take the button away, and want of memory

TEST(ToolButton, AParentMayDeleteItWheneverItIsTold) {
    const std::pair<UINT, std::function<void(HWND)>> kTold[] = {
        {BN_CLICKED, [](HWND hWnd) { ClickAt(hWnd, kIn); }},
        {BN_CLICKED, [](HWND hWnd) { ::SetFocus(hWnd), TypeKey(VK_SPACE); }},
        {BN_CLICKED, [](HWND hWnd) { ::SendMessage(hWnd, BM_CLICK, 0, 0); }},
        {BN_DOUBLECLICKED, [](HWND hWnd) { ::SendMessage(hWnd, WM_LBUTTONDBLCLK, 0, 0); }},
        {TTN_SHOW, [](HWND hWnd) {
             MoveTo(hWnd, kIn);
             PumpUntil([=] { return !::IsWindow(hWnd); });
         }}};
    for (const auto& [nTold, act] : kTold) {
        Parent parent;
        auto* pButton = new Mortal<QVToolButton>;
        pButton->Create("", kStyle, kPlace, &parent, IDC_BITMAP);
        pButton->EnableToolTip("tip");
        const HWND hWnd = pButton->m_hWnd;
        parent.m_act = [&, nToDelete = nTold](UINT nCode) {
            if (nCode == nToDelete && pButton != nullptr) {
                delete std::exchange(pButton, nullptr);
            }
        };
        MoveTo(parent.m_hWnd, kOut);
        act(hWnd);
        EXPECT_EQ(pButton, nullptr) << nTold;
        PumpPending();
        delete pButton;
    }
}

TEST(BitmapButton, WithoutMemoryNothingLeavesAWindowProcedure) {
    ButtonWindow<Watched<Open<QVBitmapButton>>> w;
    const auto refuse = [&](const char* pszWhat, auto act) {
        EXPECT_GT(RefuseEach(pszWhat, act, [] {}), 0) << pszWhat;
    };
    for (const WPARAM wCheck : {0u, 1u, 2u}) {
        w.button.SendMessage(BM_SETCHECK, wCheck);
        refuse("paint", [&] { w.button.RedrawWindow(); });
        EXPECT_EQ(w.Shown().Count(kRed), wCheck == 2 ? 0 : kImageSide * kImageSide);
    }
    refuse("tip", [&] {
        delete std::exchange(w.button.m_pToolTip, nullptr);
        w.button.EnableToolTip(IDS_TIP);
    });
    EXPECT_EQ(w.button.nThrown, 0);
}

// --- Anything in any order

template <class Button>
class ButtonMonkey : public testing::Test {};
using Buttons = testing::Types<Open<QVBitmapButton>, OpenTool>;
TYPED_TEST_SUITE(ButtonMonkey, Buttons);

TYPED_TEST(ButtonMonkey, SurvivesAnyOrderOfMessages) {
    const LONG nOwned = AfxGetOwnedHandleCount();
    {
        ButtonWindow<TypeParam> w;
        auto& button = w.button;
        std::mt19937 random = MonkeyRandom(9);
        const auto pick = [&](int n) {
            return static_cast<int>(random() % static_cast<unsigned>(n));
        };
        constexpr UINT kMessages[] = {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_MOUSEMOVE,
                                      WM_CANCELMODE,  WM_SETFOCUS,  WM_KILLFOCUS,     BM_CLICK};
        int nClicks = 0;
        int nRemakes = 0;
        w.parent.m_act = [&](UINT nCode) {
            nClicks += nCode == BN_CLICKED;
            pick(4) == 0 ? button.EnableWindow(pick(2)) : 0;
            if (pick(8) == 0 && nCode == BN_CLICKED) {
                button.DestroyWindow();
            }
        };
        const std::function<void()> aDeeds[] = {
            [&] {
                button.SendMessage(kMessages[pick(std::size(kMessages))], 0,
                                   MAKELPARAM(pick(40) - 5, pick(30) - 3));
            },
            [&] { button.SendMessage(pick(2) != 0 ? WM_KEYDOWN : WM_KEYUP, VK_SPACE, 1); },
            [&] { button.SendMessage(BM_SETCHECK, static_cast<WPARAM>(pick(4) - 1)); },
            [&] { button.SetState(pick(2)), button.SetCheckable(pick(3)); },
            [&] { button.EnableToolTip(pick(2) != 0 ? "tip" : nullptr); },
            [&] { button.EnableWindow(TRUE), button.SetImageID(&w.images, pick(4) - 1); },
            [&] { pick(2) != 0 ? ::ReleaseCapture() : button.SetFocus() != nullptr; },
            [&] { button.SetWindowPos(nullptr, 0, 0, pick(50), pick(40), SWP_NOMOVE); },
            [&] { button.RedrawWindow(); },
        };
        for (int i = 0; i < MonkeySteps(); ++i) {
            SCOPED_TRACE(i);
            if (button.m_hWnd == nullptr) {
                w.Make();
                ++nRemakes;
            }
            aDeeds[pick(std::size(aDeeds))]();
            ASSERT_TRUE(button.m_bCheckable || button.m_nCheck >= -1);
            MSG msg{button.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5), 0, {0, 0}};
            button.PreTranslateMessage(&msg);
        }
        EXPECT_GT(nClicks, MonkeySteps() / 100);
        EXPECT_GT(nRemakes, 0);
    }
    Parent parent;
    TwoImages images;
    for (int i = 0; i < 1000; ++i) {
        TypeParam button;
        ASSERT_TRUE(button.Create("", kStyle, kPlace, &parent, 1));
        button.SetImageID(&images, 0);
        i % 50 == 0 ? button.EnableToolTip("tip") : void();
        button.RedrawWindow();
    }
    images.DeleteImageList();
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned);
}

}  // namespace
