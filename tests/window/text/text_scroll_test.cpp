#include "support/monkey.h"
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

TEST_F(TextScroll, TheWheelScrolls) {
    const auto wheel = [&](int nDelta) {
        EXPECT_EQ(w.text.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, nDelta)), TRUE);
        return w.text.VScrollPos();
    };
    const int nLines = LinesANotch();
    ASSERT_GT(nLines, 0);
    EXPECT_EQ(wheel(-WHEEL_DELTA), nLines);
    EXPECT_EQ(wheel(100 * WHEEL_DELTA), 0);
}

TEST_F(TextScroll, KeysScroll) {
    ASSERT_TRUE(ClickAt(w.text.m_hWnd, CPoint(20, 20)));
    EXPECT_EQ(::GetFocus(), w.text.m_hWnd);
    const struct {
        WORD nKey;
        int nPos;
    } kKeys[] = {{VK_DOWN, 1}, {VK_NEXT, 11},  {VK_LEFT, 11},  {VK_RIGHT, 11}, {VK_UP, 10},
                 {VK_END, 40}, {VK_PRIOR, 30}, {VK_SPACE, 30}, {VK_HOME, 0}};
    for (const auto& key : kKeys) {
        TypeKey(key.nKey);
        EXPECT_EQ(w.text.VScrollPos(), key.nPos) << "key " << key.nKey;
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
    Pair() : a(CSize(200, 130)), b(std::make_unique<TextWindow<Text>>(CSize(200, 130))) {
        for (TextWindow<Text>* p : {&a, b.get()}) {
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
    std::unique_ptr<TextWindow<Text>> b;
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

TEST(TextPartners, InTheGridBothHaveAHorizontalBarAndScrollAcrossAlone) {
    Pair<GridText> pair;
    EXPECT_TRUE(pair.a.text.HasBar(SB_HORZ));
    EXPECT_TRUE(pair.b->text.HasBar(SB_HORZ)) << "equal heights, though all fits";
    for (TextWindow<GridText>* p : {&pair.a, pair.b.get()}) {
        p->text.AddText(std::string(100, 'x').c_str(), 0);
        p->text.CalcLayout();
    }
    EXPECT_EQ(pair.a.text.Scroll(WM_HSCROLL, SB_LINERIGHT), 1);
    EXPECT_EQ(pair.b->text.m_nHScrollPos, 0);
}

// --- The fixed grid

TEST(TextGrid, ScrolledAcrossShowsWhatAShorterLineDoes) {
    TextWindow<GridText> w;
    TextWindow<GridText> tail;
    std::string strLong;
    for (int i = 0; i < 100; ++i) {
        strLong += static_cast<char>('!' + i % 90);
    }
    const auto fill = [](TextWindow<GridText>& to, const std::string& strFirst,
                         const char* pszSecond) {
        to.text.AddStyle(kRed, kGreen);
        to.Resize(20 * to.text.m_nCharWidth, 12);
        to.text.AddText(strFirst.c_str(), 1);
        to.text.AddText(pszSecond, 1);
        to.text.CalcLayout();
    };
    fill(w, strLong, "short");
    fill(tail, strLong.substr(10), "");
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

// --- Who is called while a text scrolls may take it away

// Destroys its window, or deletes itself, with the next row that it draws.
class LeavingText : public OpenText {
public:
    enum class Leave { Stay, Window, Object } leave = Leave::Stay;

protected:
    void DrawText(CDC& dc, int nRow, const CString& strText, int nStyle, int nFrom,
                  int nTo) override {
        switch (std::exchange(leave, Leave::Stay)) {
            case Leave::Window:
                DestroyWindow();
                return;
            case Leave::Object:
                delete this;
                return;
            case Leave::Stay:
                QVTextWnd::DrawText(dc, nRow, strText, nStyle, nFrom, nTo);
        }
    }
};

TEST(TextLeaves, InTheMiddleOfAScrollAndThePartnerFollowsOrIsFree) {
    using Leave = LeavingText::Leave;
    const struct {
        UINT nMessage;
        WPARAM wParam;
    } kMessages[] = {{WM_VSCROLL, SB_LINEDOWN},
                     {WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-3 * WHEEL_DELTA))},
                     {WM_KEYDOWN, VK_NEXT},
                     {WM_PAINT, 0}};
    for (const auto& [nMessage, wParam] : kMessages) {
        for (const Leave leave : {Leave::Window, Leave::Object}) {
            FontParent parent(CSize(200, 100));
            CRect rc(0, 0, 200, 100);
            auto* pText = new LeavingText;
            ASSERT_TRUE(pText->Create(rc, &parent, kTextId, 0));
            TextWindow<> other;
            for (OpenText* p : {static_cast<OpenText*>(pText), &other.text}) {
                for (int i = 0; i < 50; ++i) {
                    p->AddText("line", 0);
                }
                p->CalcLayout();
            }
            pText->SyncWith(&other.text, 1);
            other.text.SyncWith(pText, 1);
            pText->UpdateWindow();
            const HWND hWnd = pText->m_hWnd;
            pText->leave = leave;
            if (nMessage == WM_PAINT) {
                pText->Invalidate(FALSE);
                ::UpdateWindow(hWnd);
            } else {
                ::SendMessage(hWnd, nMessage, wParam, 0);
            }
            EXPECT_FALSE(::IsWindow(hWnd)) << nMessage;
            other.text.ScrollTo(7, 0);
            EXPECT_EQ(other.text.VScrollPos(), 7);
            if (leave == Leave::Window) {
                delete pText;
            }
        }
    }
}

// --- Anything may come in any order; nothing may break

template <class Text>
class TextMonkey : public testing::Test {};
TYPED_TEST_SUITE(TextMonkey, Kinds);

TYPED_TEST(TextMonkey, SurvivesAnyOrderOfOperations) {
    Pair<TypeParam> pair;
    std::mt19937 random = MonkeyRandom(7);
    for (int i = 0; i < MonkeySteps(); ++i) {
        const bool bFirst = random() % 2 != 0;
        TextWindow<TypeParam>& w = bFirst ? pair.a : *pair.b;
        TypeParam& text = w.text;
        const int n = static_cast<int>(random() % 60) - 5;
        const std::function<void()> kDeeds[] = {
            [&] { text.AddText(std::string(random() % 200, n % 3 != 0 ? 'x' : ' ').c_str(), n); },
            [&] { text.CalcLayout(); },
            [&] { random() % 15 == 0 ? text.ClearTextData() : void(); },
            [&] { w.Resize(n * 4, n / 3, n); },
            [&] {
                text.Scroll(random() % 2 != 0 ? WM_VSCROLL : WM_HSCROLL, random() % 10,
                            static_cast<UINT>(n));
            },
            [&] { text.SendMessage(WM_KEYDOWN, VK_PRIOR + random() % 8); },
            [&] { text.ScrollTo(n, n % 7); },
            [&] {
                text.SyncWith(n % 3 == 0 ? nullptr : bFirst ? &pair.b->text : &pair.a.text, n % 2);
            },
            [&] { text.AddStyle(kRed, kGreen); },
            [&] { text.ShowWindow(n % 4 == 0 ? SW_SHOWMAXIMIZED : SW_RESTORE); },
            [&] { text.Invalidate(TRUE), text.UpdateWindow(); }};
        kDeeds[random() % std::size(kDeeds)]();
        ASSERT_GE(text.VScrollPos(), 0);
        ASSERT_GE(text.m_nHScrollPos, 0);
    }
    for (TextWindow<TypeParam>* p : {&pair.a, pair.b.get()}) {
        p->text.ShowWindow(SW_RESTORE);
        p->text.SyncWith(nullptr, 1);
        p->Resize(150, 10);
        p->Fill(50);
        EXPECT_EQ(p->text.BarMost(SB_VERT), 49);
        EXPECT_EQ(p->text.Scroll(WM_VSCROLL, SB_PAGEDOWN), 10);
        EXPECT_TRUE(ShowsWhatItShould(p->text));
    }
}

}  // namespace
