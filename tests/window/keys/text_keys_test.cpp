// A selection in the text window: by mouse and keys, as it is drawn, and copied.
#include "support/clipboard_text.h"
#include "support/held_keys.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/text_window.h"

#include <gtest/gtest.h>

namespace {

class TextKeys : public testing::Test {
public:
    TextKeys() {
        SetClipboard(L"-");
        w.text.AddText("one two", 0);
        w.text.AddText("", 0);
        w.text.AddText("three", 0);
        for (int i = 0; i < 30; ++i) {
            w.text.AddText("more", 0);
        }
        w.text.CalcLayout();
        BringToFront(w.parent.m_hWnd);
        w.text.SetFocus();
    }
    std::string Copied() {
        TypeKey('C', false, true);
        return Clipboard();
    }
    CPoint At(int nRow, int nChars) {
        const CRect rc = w.text.RowRect(nRow);
        return CPoint(w.text.Extent(std::string("one two").substr(0, nChars)).cx,
                      rc.CenterPoint().y);
    }
    TextWindow<> w{CSize(200, 100)};
};

TEST_F(TextKeys, ChangeNothingUntilTheyAreEnabled) {
    const Picture before = w.text.Fresh();
    PressAt(w.text.m_hWnd, At(0, 0));
    MoveTo(w.text.m_hWnd, At(2, 3));
    ReleaseAt(w.text.m_hWnd, At(2, 3));
    TypeKey('A', false, true);
    EXPECT_EQ(Copied(), "-");
    EXPECT_TRUE(w.text.Fresh() == before && !w.text.HasSelection());
    TypeKey(VK_DOWN, true);
    EXPECT_EQ(w.text.VScrollPos(), 1) << "with the shift key or without";
}

TEST_F(TextKeys, SelectAndCopy) {
    w.text.EnableExpectedKeys();
    EXPECT_EQ(Copied(), "-");
    for (const WORD nKey : {VK_RIGHT, VK_RIGHT, VK_DOWN, VK_DOWN}) {
        TypeKey(nKey, true);
    }
    EXPECT_TRUE(Copied().starts_with("one two\r\n\r\nth")) << Clipboard();
    EXPECT_EQ(w.text.VScrollPos(), 0);
    TypeKey(VK_DOWN);
    EXPECT_EQ(w.text.VScrollPos(), 1) << "scrolls as ever";
    TypeKey(VK_END, true, true);
    EXPECT_GT(w.text.VScrollPos(), 20) << "the end shows";
    TypeKey(VK_HOME, true, true);
    EXPECT_EQ(w.text.VScrollPos(), 0);
    TypeKey('A', false, true);
    EXPECT_TRUE(Copied().ends_with("more\r\nmore"));
    PressAt(w.text.m_hWnd, At(0, 1));
    MoveTo(w.text.m_hWnd, At(0, 3));
    ReleaseAt(w.text.m_hWnd, At(0, 3));
    MoveTo(w.text.m_hWnd, At(0, 5));
    EXPECT_EQ(Copied(), "ne");
    EXPECT_EQ(::GetCapture(), nullptr);
    ClickAt(w.text.m_hWnd, At(0, 6), MouseButton::Left, true);
    EXPECT_EQ(Copied(), "two");
    w.text.ClearTextData();
    EXPECT_FALSE(w.text.HasSelection());
}

TEST_F(TextKeys, ADragBeyondTheWindowScrolls) {
    w.text.EnableExpectedKeys();
    PressAt(w.text.m_hWnd, At(0, 0));
    MoveTo(w.text.m_hWnd, CPoint(10, 150));
    EXPECT_TRUE(PumpUntil([&] { return w.text.VScrollPos() > 3; }));
    MoveTo(w.text.m_hWnd, CPoint(10, -20));
    EXPECT_TRUE(PumpUntil([&] { return w.text.VScrollPos() == 0; }));
    ReleaseAt(w.text.m_hWnd, At(0, 3));
    EXPECT_EQ(Copied(), "one");
}

TEST_F(TextKeys, WhatIsSelectedHasTheColoursOfASelection) {
    w.text.EnableExpectedKeys();
    const COLORREF crFocus = ::GetSysColor(COLOR_HIGHLIGHT);
    const Picture before = w.text.Fresh();
    for (int i = 0; i < 5; ++i) {
        TypeKey(VK_RIGHT, true);
    }
    const Picture selected = w.text.Fresh();
    const CRect rcRow = w.text.RowRect(0);
    const int nRight = static_cast<int>(w.text.Extent("one t").cx);
    for (int x = 0; x < 190; ++x) {
        const bool bInside = x < nRight;
        EXPECT_EQ(selected.At(x, rcRow.top) == crFocus, bInside) << x;
        for (int y = 0; y < 90 && !(bInside && y < rcRow.bottom); ++y) {
            ASSERT_EQ(selected.At(x, y), before.At(x, y)) << x << ',' << y;
        }
    }
    w.parent.SetFocus();
    EXPECT_EQ(Picture::OfClient(w.text.m_hWnd).At(1, rcRow.top), ::GetSysColor(COLOR_BTNFACE));
    w.text.SetFocus();
    EXPECT_EQ(Picture::OfClient(w.text.m_hWnd).At(1, rcRow.top), crFocus);
    TypeKey(VK_LEFT, true);
    EXPECT_EQ(Picture::OfClient(w.text.m_hWnd).At(nRight - 1, rcRow.top),
              before.At(nRight - 1, rcRow.top));
}

}  // namespace
