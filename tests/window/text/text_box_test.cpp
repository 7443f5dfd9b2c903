#include "support/monkey.h"
#include "support/mortal.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/text_window.h"
#include "window/refusals.h"

#include <gtest/gtest.h>

namespace {

constexpr UINT kBoxId = 81;
constexpr UINT kChosen = 8;
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
const CRect kPlace(60, 40, 200, 64);

// What only derived classes see.
class OpenBox : public QVTextBox {
public:
    using QVTextBox::m_aTexts;
    using QVTextBox::m_bTextList;
    using QVTextBox::m_nCurText;
    using QVTextBox::m_spin;
    using QVTextBox::m_strText;

    std::string Text() {
        CString str;
        GetWindowText(str);
        return std::string(str);
    }
    int SpinPos() { return static_cast<short>(LOWORD(m_spin.GetPos())); }
    CRect RectIn(const CWnd& wnd, HWND hWnd) const {
        CRect rc;
        ::GetWindowRect(hWnd, &rc);
        wnd.ScreenToClient(&rc);
        return rc;
    }
    CRect SpinRect() const { return RectIn(*this, m_spin.m_hWnd); }
    Picture Fresh() {
        Invalidate(TRUE);
        return Picture::OfClient(m_hWnd);
    }
};

// Writes the choices down, and may answer one.
class ChoosingParent : public FontParent {
public:
    ChoosingParent() : FontParent(CSize(300, 200)) {}
    int nChoices = 0;
    std::function<void()> m_answer;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (wParam == MAKEWPARAM(kBoxId, kChosen) && lParam == 0) {
            ++nChoices;
            if (m_answer) {
                m_answer();
            }
        }
        return FontParent::OnCommand(wParam, lParam);
    }
};

template <class Box = OpenBox>
class Boxed {
public:
    explicit Boxed(const char* pszList = nullptr) {
        if (pszList != nullptr) {
            box.SetTextList(pszList);
        }
        box.Create(kBoxId, kPlace, &parent);
    }
    CRect BoxRect() { return box.RectIn(parent, box.m_hWnd); }

    ChoosingParent parent;
    Box box;
};

// --- Life

TEST(TextBoxLife, AnItemKeepsItsCaptionWhateverTheListIs) {
    ChoosingParent parent;
    CWnd place;
    place.CreateEx(0, "STATIC", "a caption", WS_CHILD | WS_VISIBLE, 20, 30, 150, 24, parent.m_hWnd,
                   reinterpret_cast<HMENU>(UINT_PTR{kBoxId}));
    const HWND hPlace = place.Detach();
    OpenBox box;
    box.SetTextList("one\ttwo");
    EXPECT_EQ(box.Initialize(kBoxId + 1, &parent), 0);
    EXPECT_EQ(box.Initialize(kBoxId, nullptr), 0);
    ASSERT_EQ(box.Initialize(kBoxId, &parent), 1);
    EXPECT_EQ(box.m_hWnd, hPlace);
    EXPECT_EQ(box.Text(), "a caption");
    EXPECT_EQ(box.m_nCurText, 0);
    EXPECT_TRUE(::IsWindow(box.m_spin.m_hWnd));
    EXPECT_EQ(box.Initialize(kBoxId, &parent), 1) << "again, on its window";
    EXPECT_EQ(box.Text(), "a caption");
}

TEST(TextBoxLife, StylesAreThoseOfALabelWithAStaticEdge) {
    Boxed<> w("one");
    EXPECT_EQ(w.box.GetStyle() & 0xFFFF0000, DWORD{WS_CHILD | WS_VISIBLE | WS_TABSTOP});
    EXPECT_TRUE(w.box.GetExStyle() & WS_EX_STATICEDGE);
    EXPECT_EQ(w.box.m_spin.m_hWnd, nullptr) << "nothing to choose from";
    EXPECT_EQ(w.box.Text(), "one");
    OpenBox plain;
    plain.SetShowBorder(0);
    ASSERT_TRUE(plain.Create(kBoxId + 1, kPlace, &w.parent));
    EXPECT_FALSE(plain.GetExStyle() & WS_EX_STATICEDGE);
}

// --- The list

TEST(TextBoxList, ASecondTextBringsTheSpinButtonInsideTheBox) {
    Boxed<> w;
    w.box.SetTextList("one\t two \tthree");
    ASSERT_NE(w.box.m_spin.m_hWnd, nullptr);
    EXPECT_EQ(w.BoxRect(), kPlace) << "the platform would move and narrow it";
    EXPECT_EQ(w.box.m_spin.GetBuddy(), &w.box);
    EXPECT_EQ(w.box.m_spin.GetStyle(), DWORD{0x50000005});
    const auto atTheEdge = [&] {
        CRect rc = w.box.RectIn(w.box, w.box.m_hWnd);
        rc.DeflateRect(0, 2);
        rc.left = rc.right - ::GetSystemMetrics(SM_CXHSCROLL);
        rc.OffsetRect(-2, 0);
        return rc;
    };
    EXPECT_EQ(w.box.SpinRect(), atTheEdge());
    w.box.SetWindowPos(nullptr, 10, 90, 90, 31, SWP_NOZORDER);
    EXPECT_EQ(w.BoxRect(), CRect(CPoint(10, 90), CSize(90, 31)));
    EXPECT_EQ(w.box.SpinRect(), atTheEdge());
    int nFirst = -1;
    int nLast = -1;
    w.box.m_spin.GetRange(nFirst, nLast);
    EXPECT_EQ(nFirst * 100 + nLast, 2);
    w.box.SetTextList("only");
    w.box.m_spin.GetRange(nFirst, nLast);
    EXPECT_EQ(nLast, 2) << "the range stays";
    EXPECT_EQ(w.box.Text(), "only");
}

TEST(TextBoxList, NoTextsAreNoText) {
    for (const char* pszList : {static_cast<const char*>(nullptr), ""}) {
        Boxed<> w("one\ttwo");
        w.box.SetTextList(pszList);
        EXPECT_EQ(w.box.Text(), "");
        EXPECT_EQ(w.box.m_nCurText, 0);
        w.box.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 1));
        EXPECT_EQ(w.box.Text(), "");
        OpenBox fresh;
        fresh.SetTextList(pszList);
        ASSERT_TRUE(fresh.Create(kBoxId + 1, kPlace, &w.parent));
        EXPECT_EQ(fresh.m_spin.m_hWnd, nullptr);
    }
}

TEST(TextBoxList, ATextThatIsSetFindsItsPlace) {
    Boxed<> w("one\ttwo\tTHREE\ttwo");
    const struct {
        const char* pszText;
        int nCurText;
        int nSpin;
    } cases[] = {{"TWO", 1, 1}, {"three", 2, 2}, {"four", -1, 2}, {"one", 0, 0}, {"", -1, 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(w.box.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(c.pszText)), 1);
        EXPECT_EQ(w.box.Text(), c.pszText);
        EXPECT_EQ(w.box.m_nCurText, c.nCurText) << c.pszText;
        EXPECT_EQ(w.box.SpinPos(), c.nSpin) << c.pszText;
    }
    EXPECT_EQ(w.box.SendMessage(WM_SETTEXT, 0, 0), 1) << "null";
    EXPECT_EQ(w.box.Text(), "");
    EXPECT_EQ(w.parent.nChoices, 0);
}

TEST(TextBoxList, AShortBufferGetsWhatFitsAndNoTerminator) {
    Boxed<> w;
    w.box.SetWindowText("abcdef");
    const auto get = [&](size_t nBytes) {
        char buffer[10];
        std::fill_n(buffer, 10, '#');
        const LRESULT n = w.box.SendMessage(WM_GETTEXT, nBytes, reinterpret_cast<LPARAM>(buffer));
        return std::to_string(n) + std::string(buffer, 10);
    };
    using namespace std::string_literals;
    EXPECT_EQ(get(0), "0##########");
    EXPECT_EQ(get(3), "3abc#######");
    EXPECT_EQ(get(6), "6abcdef####");
    EXPECT_EQ(get(8), "6abcdef\0\0##"s);
    EXPECT_EQ(w.box.SendMessage(WM_GETTEXT, 5, 0), 0);
    EXPECT_EQ(w.box.SendMessage(WM_GETTEXTLENGTH), 6);
}

// --- Steps

TEST(TextBoxSteps, TheSpinButtonIsClickedWhereItShows) {
    Boxed<> w("one\ttwo\tthree");
    ASSERT_TRUE(BringToFront(w.parent.m_hWnd));
    const auto click = [&](bool bUp) {
        const CRect rc = w.box.SpinRect();
        const int y = bUp ? rc.top + rc.Height() / 4 : rc.bottom - rc.Height() / 4;
        CPoint pt(rc.CenterPoint().x, y);
        ::MapWindowPoints(w.box.m_hWnd, w.parent.m_hWnd, &pt, 1);
        ClickAt(w.parent.m_hWnd, pt);
        return w.box.Text();
    };
    EXPECT_EQ(click(true), "two");
    EXPECT_EQ(w.parent.nChoices, 1);
    EXPECT_EQ(click(false), "one");
    EXPECT_EQ(click(false), "three") << "round and round";
    w.box.SetWindowPos(nullptr, 5, 120, 80, 40, SWP_NOZORDER);
    EXPECT_EQ(click(true), "one") << "after a move";
    EXPECT_EQ(w.parent.nChoices, 4);
    w.box.EnableWindow(FALSE);
    EXPECT_FALSE(w.box.m_spin.IsWindowEnabled());
    EXPECT_EQ(click(true), "one");
    w.box.EnableWindow(TRUE);
    EXPECT_EQ(click(true), "two");
}

TEST(TextBoxSteps, ArrowKeysStepABoxThatWasClicked) {
    Boxed<> w("one\ttwo\tthree");
    OpenBox label;
    label.Create(kBoxId + 1, CRect(0, 0, 50, 20), &w.parent);
    w.parent.SetFocus();
    ASSERT_TRUE(ClickAt(label.m_hWnd, CPoint(5, 5)));
    EXPECT_NE(::GetFocus(), label.m_hWnd) << "a label is for looking at";
    ASSERT_TRUE(ClickAt(w.box.m_hWnd, CPoint(5, 5)));
    ASSERT_EQ(::GetFocus(), w.box.m_hWnd);
    const Picture focused = w.box.Fresh();
    const struct {
        WORD vk;
        const char* pszText;
        int nChoices;
    } cases[] = {{VK_UP, "two", 1},     {VK_UP, "three", 2},   {VK_UP, "one", 3},
                 {VK_DOWN, "three", 4}, {VK_LEFT, "three", 4}, {VK_UP, "one", 5}};
    for (const auto& c : cases) {
        TypeKey(c.vk);
        EXPECT_EQ(w.box.Text(), c.pszText);
        EXPECT_EQ(w.parent.nChoices, c.nChoices);
    }
    EXPECT_EQ(w.box.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS);
    EXPECT_TRUE(w.box.Fresh() == focused);
    w.parent.SetFocus();
    EXPECT_FALSE(w.box.Fresh() == focused) << "its mark is gone";
}

TEST(TextBoxSteps, CodesAndPositionsThatMeanNothingDoNothing) {
    Boxed<> w("one\ttwo\tthree");
    w.box.SetTextList("one\ttwo");
    const auto scroll = [&](UINT nCode, UINT nPos) {
        w.box.SendMessage(WM_VSCROLL, MAKEWPARAM(nCode, nPos));
        return w.box.Text();
    };
    EXPECT_EQ(scroll(SB_THUMBPOSITION, 1), "two");
    EXPECT_EQ(scroll(SB_THUMBPOSITION, 2), "two") << "of the longer list";
    EXPECT_EQ(w.box.m_nCurText, 2);
    EXPECT_EQ(scroll(SB_LINEUP, 0), "two");
    EXPECT_EQ(scroll(SB_THUMBTRACK, 0), "two");
    EXPECT_EQ(w.parent.nChoices, 0);
    scroll(SB_ENDSCROLL, 0);
    EXPECT_EQ(w.parent.nChoices, 1);
    Boxed<> label;
    label.box.SendMessage(WM_VSCROLL, SB_ENDSCROLL);
    EXPECT_EQ(label.parent.nChoices, 0) << "no list";
}

TEST(TextBoxSteps, TheParentMayDeleteTheBoxAtAChoice) {
    for (const bool bClick : {false, true}) {
        ChoosingParent parent;
        auto pBox = std::make_unique<Mortal<OpenBox>>();
        pBox->SetTextList("one\ttwo");
        ASSERT_TRUE(pBox->Create(kBoxId, kPlace, &parent));
        parent.m_answer = [&] { pBox.reset(); };
        ASSERT_TRUE(BringToFront(parent.m_hWnd));
        if (bClick) {
            const CRect rc = pBox->SpinRect();
            ClickAt(pBox->m_spin.m_hWnd, CPoint(rc.Width() / 2, rc.Height() / 4));
        } else {
            pBox->SetFocus();
            TypeKey(VK_UP);
        }
        EXPECT_EQ(parent.nChoices, 1);
        EXPECT_EQ(pBox, nullptr);
    }
}

// --- Painting

TEST(TextBoxPaint, ColoursFollowTheStateAndTheTextItsAlignment) {
    Boxed<> w;
    w.box.SetTextColor(kRed);
    w.box.SetTextBkColor(kGreen);
    w.box.SetWindowText("MM & M");
    const auto inkEdges = [&](COLORREF crText) {
        const Picture picture = w.box.Fresh();
        int nFirst = picture.Width();
        int nLast = -1;
        for (int x = 0; x < picture.Width(); ++x) {
            if (picture.Count(crText, CRect(x, 0, x + 1, picture.Height())) > 0) {
                nFirst = std::min(nFirst, x);
                nLast = x;
            }
        }
        return CPoint(nFirst, picture.Width() - 1 - nLast);
    };
    const Picture enabled = w.box.Fresh();
    EXPECT_GT(enabled.Count(kRed), 20);
    EXPECT_GT(enabled.Count(kGreen), enabled.Width() * enabled.Height() / 2);
    const CPoint left = inkEdges(kRed);
    EXPECT_LE(left.x, 4);
    w.box.ModifyStyle(SS_TYPEMASK, SS_RIGHT);
    EXPECT_LE(inkEdges(kRed).y, 4);
    w.box.ModifyStyle(SS_TYPEMASK, SS_CENTER);
    const CPoint centre = inkEdges(kRed);
    EXPECT_LE(std::abs(centre.x - centre.y), 3);
    w.box.EnableWindow(FALSE);
    const Picture disabled = w.box.Fresh();
    EXPECT_EQ(disabled.Count(kRed) + disabled.Count(kGreen), 0);
    EXPECT_GT(disabled.Count(::GetSysColor(COLOR_GRAYTEXT)), 20);
}

TEST(TextBoxPaint, AnImageStandsAtTheLeftAndMovesTheText) {
    Boxed<> w;
    w.box.SetTextColor(kRed);
    w.box.SetWindowText("M");
    CImageList images;
    images.Create(10, 12, ILC_COLOR24, 1, 1);
    CBitmap bitmap;
    bitmap.CreateBitmap(10, 12, 1, 32, std::vector<DWORD>(120, 0x000000FF).data());
    images.Add(&bitmap, static_cast<CBitmap*>(nullptr));
    w.box.SetImage(&images, 0);
    const Picture picture = w.box.Fresh();
    const int nTop = (picture.Height() - 12) / 2;
    EXPECT_EQ(picture.Count(kBlue), 120);
    EXPECT_EQ(picture.Count(kBlue, CRect(2, nTop, 12, nTop + 12)), 120);
    EXPECT_EQ(picture.Count(kRed, CRect(0, 0, 16, picture.Height())), 0);
    EXPECT_GT(picture.Count(kRed, CRect(16, 0, 32, picture.Height())), 5);
    for (const int nImage : {-1, 7}) {
        w.box.SetImage(&images, nImage);
        const Picture without = w.box.Fresh();
        EXPECT_EQ(without.Count(kBlue), 0) << nImage;
        EXPECT_GT(without.Count(kRed, CRect(0, 0, 16, picture.Height())), 5);
    }
}

TEST(TextBoxPaint, TheTextStaysOffTheSpinButton) {
    Boxed<> w("MMMMMMMMMMMMMMMMMMMMMMMMMMMMMM\ttwo");
    w.box.SetTextColor(kRed);
    w.parent.UpdateWindow();
    const Picture spin = Picture::OfClient(w.box.m_spin.m_hWnd);
    w.box.Invalidate(FALSE);
    w.box.UpdateWindow();
    CClientDC dc(&w.parent);
    CRect rc = w.box.RectIn(w.parent, w.box.m_spin.m_hWnd);
    for (int y = 0; y < rc.Height(); ++y) {
        for (int x = 0; x < rc.Width(); ++x) {
            ASSERT_EQ(dc.GetPixel(rc.left + x, rc.top + y), spin.At(x, y)) << x << ' ' << y;
        }
    }
    EXPECT_GT(w.box.Fresh().Count(::GetSysColor(COLOR_WINDOW)), 200) << "as an input field";
}

// --- Memory, and anything in any order

TEST(TextBoxMemory, NothingIsThrownAndAListIsWholeOrEmpty) {
    Boxed<Watched<OpenBox>> w("one\ttwo");
    RefuseEach(
        "list", [&] { w.box.SetTextList("some text that is long enough\tand another one"); },
        [&] {
            EXPECT_TRUE(w.box.m_aTexts.GetSize() == 2 || w.box.m_aTexts.GetSize() == 0);
            EXPECT_EQ(w.box.m_strText.IsEmpty(), w.box.m_aTexts.GetSize() == 0);
        });
    RefuseEach(
        "text", [&] { ::SetWindowText(w.box.m_hWnd, "a text of its own, long enough"); },
        [&] { w.box.SetTextList("one\ttwo"); });
    RefuseEach(
        "paint",
        [&] {
            ::InvalidateRect(w.box.m_hWnd, nullptr, FALSE);
            ::UpdateWindow(w.box.m_hWnd);
        },
        [] {});
    EXPECT_EQ(w.box.nThrown, 0);
    OpenBox made;
    RefuseEach(
        "create",
        [&] {
            if (made.m_hWnd == nullptr) {
                made.Create(kBoxId + 1, kPlace, &w.parent);
            }
        },
        [&] {
            EXPECT_EQ(made.m_hWnd != nullptr, CWnd::FromHandlePermanent(made.m_hWnd) == &made);
        });
    EXPECT_TRUE(::IsWindow(made.m_hWnd));
}

TEST(TextBoxMonkey, SurvivesAnyOrderOfMessages) {
    ChoosingParent parent;
    std::unique_ptr<Mortal<OpenBox>> pBox;
    std::mt19937 random = MonkeyRandom(5);
    parent.m_answer = [&] { random() % 8 == 0 ? pBox.reset() : pBox->SetTextList("x\ty"); };
    const char* const kLists[] = {"", "one", "one\ttwo", "\t\t\t", "a\tb\tc\td\te", nullptr};
    for (int i = 0; i < MonkeySteps(); ++i) {
        if (pBox == nullptr) {
            pBox = std::make_unique<Mortal<OpenBox>>();
            pBox->SetTextList(kLists[random() % std::size(kLists)]);
            ASSERT_TRUE(pBox->Create(kBoxId, kPlace, &parent));
        }
        OpenBox& box = *pBox;
        const int n = static_cast<int>(random() % 60) - 5;
        const std::function<void()> kDeeds[] = {
            [&] { box.SetTextList(kLists[random() % std::size(kLists)]); },
            [&] { box.SetWindowText(n % 2 != 0 ? "two" : "z"); },
            [&] { box.SendMessage(WM_VSCROLL, MAKEWPARAM(random() % 10, n)); },
            [&] { box.SendMessage(WM_KEYDOWN, n % 2 != 0 ? VK_UP : VK_DOWN); },
            [&] { box.SetWindowPos(nullptr, n, n, n * 3, n, SWP_NOZORDER); },
            [&] { box.EnableWindow(n % 3 != 0); },
            [&] { box.SetImage(nullptr, n), box.Invalidate(TRUE), box.UpdateWindow(); },
            [&] { box.SendMessage(WM_LBUTTONDOWN), box.SendMessage(WM_LBUTTONUP); },
            [&] { box.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, n * WHEEL_DELTA)); }};
        kDeeds[random() % std::size(kDeeds)]();
        if (pBox != nullptr) {
            ASSERT_GE(pBox->m_nCurText, -1);
            ASSERT_TRUE(pBox->m_nCurText < 0 || pBox->m_nCurText >= pBox->m_aTexts.GetSize() ||
                        pBox->m_strText.CompareNoCase(pBox->m_aTexts[pBox->m_nCurText]) == 0);
        }
    }
}

TEST(TextBoxMonkey, AThousandBoxesLeaveNothingBehind) {
    ChoosingParent parent;
    const LONG nHandles = AfxGetOwnedHandleCount();
    for (int i = 0; i < 1000; ++i) {
        OpenBox box;
        box.SetTextList(i % 2 == 0 ? "one\ttwo" : "one");
        ASSERT_TRUE(box.Create(kBoxId, kPlace, &parent));
        box.UpdateWindow();
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

}  // namespace
