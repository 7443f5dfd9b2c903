#include "support/held_keys.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/text_window.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <utility>

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);

// What scrolling left on the screen is what a fresh paint gives.
template <class Window>
bool ShowsWhatItShould(Window& wnd) {
    const Picture scrolled = Picture::OfClient(wnd.m_hWnd);
    return scrolled == wnd.Fresh();
}

int LinesANotch() {
    UINT nLines = 3;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &nLines, 0);
    return static_cast<int>(nLines);
}

// With the mouse, from the top of the vertical bar to so many pixels below the window's top.
bool DragThumb(CWnd& wnd, int nPixels) {
    CRect rc;
    wnd.GetWindowRect(&rc);
    const int xBar = rc.right - ::GetSystemMetrics(SM_CXVSCROLL) / 2;
    if (!BringToFront(wnd.m_hWnd) ||
        !::SetCursorPos(xBar, rc.top + ::GetSystemMetrics(SM_CYVSCROLL) + 3)) {
        return false;
    }
    PumpPending();
    INPUT inputs[3] = {};
    for (INPUT& input : inputs) {
        input.type = INPUT_MOUSE;
    }
    const auto absolute = [](int n, int nMetric) {
        return static_cast<LONG>((n * 65536LL + 32768) / ::GetSystemMetrics(nMetric));
    };
    inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    inputs[1].mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    inputs[1].mi.dx = absolute(xBar, SM_CXSCREEN);
    inputs[1].mi.dy = absolute(rc.top + nPixels, SM_CYSCREEN);
    inputs[2].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    return ::SendInput(3, inputs, sizeof(INPUT)) == 3;
}

// 50 rows of which 10 show.
template <class Text>
class TenOfFifty : public testing::Test {
protected:
    TenOfFifty() {
        w.Resize(200, 10);
        w.Fill(50);
    }
    TextWindow<Text> w;
};
using TextScroll = TenOfFifty<OpenText>;
using Kinds = testing::Types<OpenText, GridText>;
template <class Text>
class TextScrollKinds : public TenOfFifty<Text> {};
TYPED_TEST_SUITE(TextScrollKinds, Kinds);

TYPED_TEST(TextScrollKinds, ShowWhatAFreshPaintGives) {
    for (const auto& [nCode, nPos] : {std::pair{SB_LINEDOWN, 1},
                                      {SB_PAGEDOWN, 11},
                                      {SB_BOTTOM, 40},
                                      {SB_LINEDOWN, 40},
                                      {SB_PAGEUP, 30},
                                      {SB_LINEUP, 29},
                                      {SB_TOP, 0}}) {
        EXPECT_EQ(this->w.text.Scroll(WM_VSCROLL, static_cast<UINT>(nCode)), nPos);
        EXPECT_EQ(this->w.text.GetScrollPos(SB_VERT), nPos);
        EXPECT_TRUE(ShowsWhatItShould(this->w.text)) << "code " << nCode;
    }
}

TEST_F(TextScroll, KeysScroll) {
    ASSERT_TRUE(ClickAt(w.text.m_hWnd, CPoint(20, 20)));
    EXPECT_EQ(::GetFocus(), w.text.m_hWnd);
    for (const auto& [nKey, nPos] : {std::pair{VK_DOWN, 1},
                                     {VK_NEXT, 11},
                                     {VK_LEFT, 11},
                                     {VK_UP, 10},
                                     {VK_END, 40},
                                     {VK_PRIOR, 30},
                                     {VK_SPACE, 30},
                                     {VK_HOME, 0}}) {
        TypeKey(static_cast<WORD>(nKey));
        EXPECT_EQ(w.text.VScrollPos(), nPos) << "key " << nKey;
    }
    EXPECT_TRUE(ShowsWhatItShould(w.text));
}

TEST_F(TextScroll, AMaximisedWindowKeepsItsPosition) {
    w.text.Scroll(WM_VSCROLL, SB_BOTTOM);
    w.text.ShowWindow(SW_SHOWMAXIMIZED);
    ASSERT_TRUE(w.text.IsZoomed());
    CRect rc;
    w.text.GetClientRect(&rc);
    ASSERT_GT(rc.Height(), 12 * w.text.m_nCharHeight);
    EXPECT_EQ(w.text.VScrollPos(), 40);
    w.text.ShowWindow(SW_RESTORE);
    EXPECT_EQ(w.text.VScrollPos(), 40);
    EXPECT_TRUE(ShowsWhatItShould(w.text));
}

TEST_F(TextScroll, PositionsMayHaveMoreThan16Bits) {
    w.Fill(200000);
    EXPECT_EQ(w.text.BarMost(SB_VERT), 199999);
    CRect rc;
    w.text.GetWindowRect(&rc);
    ASSERT_TRUE(DragThumb(w.text, rc.Height() / 2));
    EXPECT_TRUE(PumpUntil([&] { return w.text.VScrollPos() > 65535; }));
    EXPECT_TRUE(ShowsWhatItShould(w.text));
}

// --- Partners

template <class Text>
class Pair {
public:
    Pair() { Renew(); }
    // With another second window.
    void Renew() {
        b = std::make_unique<Mortal<TextWindow<Text>>>();
        for (TextWindow<Text>* p : {&a, static_cast<TextWindow<Text>*>(b.get())}) {
            p->Resize(150, 10);
            p->Fill(50);
        }
        a.text.SyncWith(&b->text, 1);
        b->text.SyncWith(&a.text, 0);
        a.text.CalcLayout();
        b->text.CalcLayout();
    }
    bool BothAt(int nPos) {
        return a.text.VScrollPos() == nPos && b->text.VScrollPos() == nPos &&
               ShowsWhatItShould(a.text) && ShowsWhatItShould(b->text);
    }
    TextWindow<Text> a;
    std::unique_ptr<Mortal<TextWindow<Text>>> b;
};

TEST(TextPartners, ScrollTogether) {
    Pair<OpenText> pair;
    EXPECT_FALSE(pair.b->text.HasBar(SB_VERT)) << "one bar for both";
    OpenText& a = pair.a.text;
    OpenText& b = pair.b->text;
    const WPARAM wNotch = MAKEWPARAM(0, WHEEL_DELTA);
    const struct {
        std::function<void()> scroll;
        int nPos;
    } kScrolls[] = {{[&] { a.Scroll(WM_VSCROLL, SB_PAGEDOWN); }, 10},
                    {[&] { b.SendMessage(WM_KEYDOWN, VK_DOWN); }, 11},
                    {[&] { b.ScrollTo(30, 5); }, 25},
                    {[&] { b.SendMessage(WM_MOUSEWHEEL, wNotch); }, 25 - LinesANotch()},
                    {[&] { a.ScrollTo(100, 0); }, 40},
                    {[&] { a.SendMessage(WM_KEYDOWN, VK_HOME); }, 0}};
    for (const auto& [scroll, nPos] : kScrolls) {
        scroll();
        EXPECT_TRUE(pair.BothAt(nPos)) << nPos;
    }
    pair.b->text.SyncWith(nullptr, 1);
    pair.b->text.ScrollTo(7, 0);
    EXPECT_EQ(pair.a.text.VScrollPos(), 0);
}

// --- The fixed grid

TEST(TextGrid, ScrolledAcrossShowsWhatAShorterLineDoes) {
    TextWindow<GridText> w;
    TextWindow<GridText> tail;
    std::string strLong;
    for (int i = 0; i < 100; ++i) {
        strLong += static_cast<char>('!' + i % 90);
    }
    for (TextWindow<GridText>* p : {&w, &tail}) {
        p->text.AddStyle(kRed, kGreen);
        p->Resize(20 * w.text.m_nCharWidth, 12);
        p->text.AddText(strLong.c_str() + (p == &w ? 0 : 10), 1);
        p->text.AddText(p == &w ? "short" : "", 1);
        p->text.CalcLayout();
    }
    EXPECT_EQ(w.text.NumRows(), 2) << "a line is a row";
    EXPECT_EQ(w.text.Scroll(WM_HSCROLL, SB_THUMBTRACK, 10), 10);
    EXPECT_EQ(w.text.GetScrollPos(SB_HORZ), 10);
    const Picture scrolled = w.text.Fresh();
    EXPECT_TRUE(scrolled == tail.text.Fresh());
    const CRect rcShort = w.text.RowRect(1);
    EXPECT_EQ(scrolled.Count(kGreen, rcShort), rcShort.Width() * rcShort.Height())
        << "all of it lies left of the view";
    EXPECT_EQ(w.text.Scroll(WM_HSCROLL, SB_ENDSCROLL), 10);
    w.text.SendMessage(WM_KEYDOWN, VK_RIGHT);
    EXPECT_EQ(w.text.m_nHScrollPos, 11);
}

// --- Anything may come in any order; nothing may break

// May go with a row that it draws.
template <class Text>
class Leaving : public Text {
public:
    std::function<bool()> onDraw;  // true: it has gone

protected:
    void DrawText(CDC& dc, int nRow, const CString& strText, int nStyle, int nFrom,
                  int nTo) override {
        Leaves() ? void() : Text::DrawText(dc, nRow, strText, nStyle, nFrom, nTo);
    }
    void DrawText(CDC& dc, int nLine, int nCols) override {
        Leaves() ? void() : Text::DrawText(dc, nLine, nCols);
    }

private:
    bool Leaves() {
        const auto leaves = onDraw;  // which lives on where the text does not
        return leaves && leaves();
    }
};

template <class Text>
class TextMonkey : public testing::Test {};
TYPED_TEST_SUITE(TextMonkey, Kinds);

// The second of two partners goes now and then.
TYPED_TEST(TextMonkey, SurvivesAnyOrderOfOperationsAndKeepsNoHandles) {
    Pair<Leaving<TypeParam>> pair;
    const LONG nHandles = AfxGetOwnedHandleCount();
    std::mt19937 random = MonkeyRandom(7);
    const auto leave = [&] {
        const unsigned nWay = random() % 300;
        nWay == 0 ? pair.b.reset() : nWay == 1 ? void(pair.b->text.DestroyWindow()) : void();
        return nWay < 2;
    };
    int nGone = 0;
    const auto renew = [&] {
        if (pair.b == nullptr || pair.b->text.m_hWnd == nullptr) {
            pair.Renew();
            pair.b->text.onDraw = leave;
            ++nGone;
        }
    };
    pair.b.reset();
    for (int i = 0; i < MonkeySteps(); ++i) {
        renew();
        const bool bFirst = random() % 2 != 0;
        TextWindow<Leaving<TypeParam>>& w = bFirst ? pair.a : *pair.b;
        Leaving<TypeParam>& text = w.text;
        const HWND hWnd = text.m_hWnd;
        const int n = static_cast<int>(random() % 60) - 5;
        const std::function<void()> kDeeds[] = {
            [&] { text.AddText(std::string(random() % 200, n % 3 != 0 ? 'x' : ' ').c_str(), n); },
            [&] { text.CalcLayout(); },
            [&] { random() % 15 == 0 ? text.ClearTextData() : void(); },
            [&] { w.Resize(n * 4, n / 3, n); },
            [&] {
                ::SendMessage(hWnd, random() % 2 != 0 ? WM_VSCROLL : WM_HSCROLL,
                              MAKEWPARAM(random() % 10, n), 0);
            },
            [&] { ::SendMessage(hWnd, WM_KEYDOWN, VK_PRIOR + random() % 8, 1); },
            [&] { SendKey(hWnd, VK_PRIOR + static_cast<int>(random() % 8), n % 2 != 0, true); },
            [&] {
                n % 3 == 0 ? SendKey(hWnd, n % 2 ? 'A' : 'C', true)
                           : text.EnableExpectedKeys(n % 2);
            },
            [&] {
                constexpr UINT kMouse[] = {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP,
                                           WM_LBUTTONDBLCLK, WM_TIMER};
                ::SendMessage(hWnd, kMouse[random() % 5], 1, MAKELPARAM(n * 4, n * 3));
            },
            [&] { ::SendMessage(hWnd, WM_MOUSEWHEEL, MAKEWPARAM(0, n * 20), 0); },
            [&] { text.ScrollTo(n, n % 7); },
            [&] {
                text.SyncWith(n % 3 == 0 ? nullptr : bFirst ? &pair.b->text : &pair.a.text, n % 2);
            },
            [&] { text.AddStyle(kRed, kGreen); },
            [&] { text.ShowWindow(n % 4 == 0 ? SW_SHOWMAXIMIZED : SW_RESTORE); },
            [&] { text.RedrawWindow(); }};
        kDeeds[random() % std::size(kDeeds)]();
        if (bFirst || pair.b != nullptr) {
            ASSERT_GE(text.VScrollPos(), 0);
            ASSERT_GE(text.m_nHScrollPos, 0);
        }
    }
    renew();
    EXPECT_GT(nGone, 10);
    for (TextWindow<Leaving<TypeParam>>* p :
         {&pair.a, static_cast<TextWindow<Leaving<TypeParam>>*>(pair.b.get())}) {
        p->text.onDraw = nullptr;
        p->text.ShowWindow(SW_RESTORE);
        p->text.SyncWith(nullptr, 1);
        p->Resize(150, 10);
        p->Fill(50);
        EXPECT_EQ(p->text.BarMost(SB_VERT), 49);
        EXPECT_EQ(p->text.Scroll(WM_VSCROLL, SB_PAGEDOWN), 10);
        EXPECT_TRUE(ShowsWhatItShould(p->text));
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

}  // namespace
