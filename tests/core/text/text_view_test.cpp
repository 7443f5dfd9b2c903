#include "text/core/text_view.h"

#include "support/fake_window.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <tuple>
#include <utility>

namespace {

constexpr int kChar = FixedMeasure::kCharWidth;
constexpr int kRow = 13;
constexpr int kBar = FakeWindow::kBar;

// A text in a window whose every resize comes back to it, as the platform's does.
class ShownText : public qv::TextViewState {
public:
    explicit ShownText(int cx = 200, int cy = 10 * kRow) : window(cx, cy) {
        m_nCharWidth = kChar;
        m_nCharHeight = kRow;
        styles.Add(0, 0);
        window.onResize = [this] { Sized(); };
    }
    void Add(int nLines, const std::string& strText) {
        for (int i = 0; i < nLines; ++i) {
            const int nCount = lines.Add(strText, 0);
            m_nNumRows = std::max(m_nNumRows, nCount);
            m_nMaxLineLength = std::max(m_nMaxLineLength, static_cast<int>(strText.size()));
        }
    }
    void Fit() { view.FitBars(); }
    void Resize(int cx, int cy) {
        window.size = {cx, cy};
        nSizes = nDeepest = 0;
        Sized();
    }
    bool HasBar(int nBar) const { return window.bShown[nBar]; }

    FakeWindow window;
    qv::TextLines lines;
    qv::StyleTable styles;
    FixedMeasure measure;
    qv::TextView view{*this, window, lines, styles, measure};
    int nSizes = 0;
    int nDeepest = 0;

private:
    void Sized() {
        ++nSizes;
        nDeepest = std::max(nDeepest, ++m_nDepth);
        view.Resize();
        --m_nDepth;
    }

    int m_nDepth = 0;
};

TEST(TextView, ABarShowsWhereRowsDoNotFitAndItsPageIsShortOnceItIsThere) {
    ShownText text;
    text.Add(10, "ab");
    text.Fit();
    EXPECT_FALSE(text.HasBar(SB_VERT));
    text.Add(1, "ab");
    for (int i = 0; i < 3; ++i) {
        text.nSizes = 0;
        text.Fit();
        EXPECT_TRUE(text.HasBar(SB_VERT));
        EXPECT_FALSE(text.HasBar(SB_HORZ));
        EXPECT_EQ(text.window.ranges[SB_VERT], (qv::ScrollRange{0, 10, 8, 0}));
        EXPECT_EQ(text.nSizes, i == 0 ? 1 : 0) << "a bar that stays neither goes nor comes";
    }
    text.Resize(200, 11 * kRow);
    EXPECT_FALSE(text.HasBar(SB_VERT));
}

TEST(TextView, RowsStayMadeForTheWidthWithoutTheBar) {
    ShownText text(10 * kChar, 2 * kRow);
    text.Add(3, "0123456789");
    text.Fit();
    EXPECT_TRUE(text.HasBar(SB_VERT));
    EXPECT_EQ(text.m_nNumRows, 3);
    text.window.nStyle = WS_MAXIMIZE;
    text.Resize(10 * kChar, 5 * kRow);
    text.Resize(10 * kChar, 2 * kRow);
    EXPECT_EQ(text.m_nNumRows, 6) << "but for a window that has its size from the system";
}

TEST(TextView, RowsFollowAWindowThatBecomesNarrowerAsItsBarComes) {
    ShownText text(200, 10 * kRow);
    text.view.SetExact(true);
    text.Add(11, std::string(20, 'x'));
    text.window.onResize = [&] { text.window.size.cx = 100; };
    text.Fit();
    EXPECT_EQ(text.m_nNumRows, 22);
    EXPECT_EQ(text.window.ranges[SB_VERT].nMax, 21) << "the bar knows them too";
}

TEST(TextView, NoBarFitsAWindowAsWideAsTheBar) {
    ShownText text;
    text.Add(60, "several words that wrap");
    text.Fit();
    for (const auto& [cx, bBar] : {std::pair{kBar, false}, {kBar + 1, true}, {0, false}}) {
        text.Resize(cx, 214);
        EXPECT_EQ(text.HasBar(SB_VERT), bBar) << cx;
        EXPECT_EQ(text.m_bVScrollBar, bBar);
    }
}

// --- Scrolling

// Fifty rows, ten of which show.
class TextScrolling : public testing::Test {
protected:
    TextScrolling() {
        text.Add(50, "ab");
        text.Fit();
    }
    ShownText text;
};

TEST_F(TextScrolling, MovesPixelsPositionAndBar) {
    const struct {
        unsigned nCode;
        int nRow, nPos;
    } kSteps[] = {
        {SB_LINEUP, 0, 0},       {SB_LINEDOWN, 0, 1},        {SB_PAGEDOWN, 0, 11},
        {SB_THUMBTRACK, 41, 11}, {SB_THUMBPOSITION, 30, 30}, {SB_THUMBTRACK, 30, 30},
        {SB_PAGEDOWN, 0, 40},    {SB_LINEDOWN, 0, 40},       {SB_BOTTOM, 0, 40},
        {SB_TOP, 0, 0},
    };
    for (const auto& [nCode, nRow, nPos] : kSteps) {
        text.window.scrolls.clear();
        const int nUpdates = text.window.nUpdates;
        const int nBefore = text.m_nVScrollPos;
        const bool bMoves = nPos != nBefore;
        EXPECT_EQ(text.view.VScroll(nCode, nRow), bMoves) << nCode << " at " << nBefore;
        EXPECT_EQ(text.m_nVScrollPos, nPos) << nCode << " at " << nBefore;
        EXPECT_EQ(text.window.ranges[SB_VERT].nPos, nPos);
        EXPECT_EQ(text.window.nUpdates, nUpdates + bMoves);
        EXPECT_EQ(text.window.scrolls.size(), std::size_t{bMoves});
        if (bMoves) {
            EXPECT_EQ(text.window.scrolls[0].y, (nBefore - nPos) * kRow);
        }
    }
    EXPECT_FALSE(text.view.HScroll(SB_LINERIGHT, 0)) << "wrapped text has no columns";
    text.window.bExists = false;
    EXPECT_FALSE(text.view.VScroll(SB_BOTTOM, 0));
}

TEST_F(TextScrolling, ALineComesBelowItsMarginAndNoFurtherThanTheEnd) {
    for (const auto& [nRow, nMargin, nPos] :
         {std::tuple{100, 3, 40}, {20, 3, 17}, {2, 3, 0}, {-5, 0, 0}}) {
        EXPECT_EQ(text.view.PositionFor(nRow, nMargin), nPos) << nRow;
    }
    text.window.size.cy = 60 * kRow;
    EXPECT_EQ(text.view.PositionFor(20, 0), 0) << "all shows";
}

TEST_F(TextScrolling, TheThumbMeansTheBarsPositionAndItsEndTheLastPage) {
    EXPECT_EQ(text.view.ThumbRow(SB_THUMBTRACK, 7), 7) << "a bar that has none to give";
    text.window.bPositionKnown = true;
    text.window.nThumbPos = 70000;
    EXPECT_EQ(text.view.ThumbRow(SB_THUMBPOSITION, 7), 70000);
    ASSERT_EQ(text.window.ranges[SB_VERT].nPage, 8) << "shorter than what shows";
    for (const auto& [nThumb, nRow] : {std::pair{41, 41}, {42, 40}, {5, 5}}) {
        text.window.nTrackPos = nThumb;
        EXPECT_EQ(text.view.ThumbRow(SB_THUMBTRACK, 7), nRow) << nThumb;
    }
}

TEST(TextColumns, ScrollByTheMessageAndReturnAsTheWindowGrows) {
    ShownText text(20 * kChar);
    text.m_bUseProportionalFont = 0;
    text.Add(1, std::string(100, 'x'));
    text.Add(1, "short");
    text.Fit();
    EXPECT_TRUE(text.HasBar(SB_HORZ));
    EXPECT_FALSE(text.HasBar(SB_VERT));
    const struct {
        unsigned nCode;
        int nThumb, nPos;
    } kSteps[] = {{SB_LINELEFT, 0, 0},     {SB_LINERIGHT, 0, 1},  {SB_PAGERIGHT, 0, 21},
                  {SB_THUMBTRACK, 70, 70}, {SB_PAGERIGHT, 0, 80}, {SB_LINERIGHT, 0, 80},
                  {SB_THUMBTRACK, 81, 80}, {SB_PAGELEFT, 0, 60},  {SB_TOP, 0, 0},
                  {SB_BOTTOM, 0, 80}};
    for (const auto& [nCode, nThumb, nPos] : kSteps) {
        const int nBefore = text.m_nHScrollPos;
        text.window.scrolls.clear();
        EXPECT_EQ(text.view.HScroll(nCode, nThumb), nPos != nBefore);
        EXPECT_EQ(text.window.ranges[SB_HORZ], (qv::ScrollRange{0, 99, 20, nPos})) << nCode;
        EXPECT_EQ(text.window.scrolls.empty() ? 0 : text.window.scrolls[0].x,
                  (nBefore - nPos) * kChar);
    }
    text.Resize(95 * kChar, 10 * kRow);
    EXPECT_EQ(text.m_nHScrollPos, 5);
}

TEST(TextColumns, APartnerKeepsTheBarAsLongAsItIsThere) {
    ShownText text;
    text.m_bUseProportionalFont = 0;
    text.Add(1, "short");
    {
        const ShownText other;
        text.view.SetPartner(&other.view.Alive());
        text.Fit();
        EXPECT_TRUE(text.HasBar(SB_HORZ)) << "equal heights, though all fits";
        EXPECT_EQ(text.window.ranges[SB_HORZ], (qv::ScrollRange{0, 4, 5, 0}));
    }
    EXPECT_FALSE(text.view.HasPartner());
    text.Fit();
    EXPECT_FALSE(text.HasBar(SB_HORZ));
}

TEST(TextView, MayBeDeletedByWhoHearsOfASize) {
    for (int nStep = 0; nStep < 3; ++nStep) {
        qv::TextViewState state;
        state.m_nCharWidth = kChar;
        state.m_nCharHeight = kRow;
        FakeWindow window(200, 130);
        qv::TextLines lines;
        qv::StyleTable styles;
        FixedMeasure measure;
        auto pView = std::make_unique<qv::TextView>(state, window, lines, styles, measure);
        for (int i = 0; i < 50; ++i) {
            lines.Add("ab", 0);
        }
        if (nStep == 2) {
            pView->FitBars();
            window.size.cy = 1000;  // the bar goes with the next layout
        }
        window.onResize = [&] { pView.reset(); };
        if (nStep == 0) {
            pView->FitBars();
        } else if (nStep == 1) {
            pView->Resize();
        } else {
            state.m_nVScrollPos = 5;
            EXPECT_TRUE(pView->VScroll(SB_LINEUP, 0));
        }
        EXPECT_EQ(pView, nullptr) << nStep;
        EXPECT_EQ(window.nUpdates, 0);
    }
}

// --- Any window, any text

// Whatever window and text are, a size leads to few others, none deep inside another, and doing it
// again changes nothing.
TEST(TextView, BarsSettleInWindowsOfAnySize) {
    std::mt19937 random(7);
    for (int i = 0; i < 120; ++i) {
        ShownText text;
        text.m_bUseProportionalFont = i % 3 != 0;
        text.m_bShowVScroll = i % 7 != 0;
        if (i % 5 == 0) {
            text.view.SetPartner(&text.view.Alive());
        }
        text.Add(static_cast<int>(random() % 25), std::string(random() % 30, 'x'));
        text.Fit();
        for (int j = 0; j < 50; ++j) {
            const int cx = static_cast<int>(random() % (j % 2 == 0 ? 40 : 300));
            const int cy = static_cast<int>(random() % (j % 3 == 0 ? 40 : 300));
            text.m_nVScrollPos = static_cast<int>(random() % 200);
            text.Resize(cx, cy);
            ASSERT_LE(text.nSizes, 4) << cx << " x " << cy << " run " << i;
            ASSERT_LE(text.nDeepest, 2);
            ASSERT_LE(text.m_nVScrollPos, std::max(text.m_nNumRows - text.view.ViewSize().cy, 0));
            if (text.view.HasPartner() && !text.m_bUseProportionalFont) {
                continue;  // the bar that is there for the partner alone is reckoned with next time
            }
            const int nRows = text.m_nNumRows;
            const bool bHorz = text.HasBar(SB_HORZ);
            const bool bVert = text.HasBar(SB_VERT);
            text.nSizes = 0;
            text.Fit();
            ASSERT_EQ(text.nSizes, 0) << cx << " x " << cy << " run " << i;
            ASSERT_EQ(text.HasBar(SB_HORZ), bHorz);
            ASSERT_EQ(text.HasBar(SB_VERT), bVert);
            ASSERT_EQ(text.m_nNumRows, nRows) << cx << " x " << cy << " run " << i;
        }
    }
}

std::string RandomLine(std::mt19937& random) {
    static constexpr std::string_view kParts[] = {"a",  "word",     " ",   "   ",
                                                  "\n", "\xC3\xA4", "\x1B"};
    std::string strText;
    for (unsigned n = random() % 40; n > 0; --n) {
        strText += kParts[random() % std::size(kParts)];
    }
    return strText;
}

// The bytes of lines that show in no row when each is cut at the width of the client area, as a
// paint does.
int HiddenBytes(ShownText& text) {
    std::size_t nHidden = 0;
    const qv::DisplayRows& rows = text.view.Rows();
    int nRow = 0;
    for (int nLine = 0; nLine < text.lines.Count(); ++nLine) {
        int nPieces = 0;
        for (; nRow < rows.Count() && rows[nRow].nLine == nLine; ++nRow) {
            EXPECT_EQ(rows[nRow].nSubLine, nPieces++);
        }
        const std::string_view line = text.lines.Text(nLine);
        const int nLength = static_cast<int>(line.size());
        text.view.CutLine(nLine, text.window.ClientRect().Width());
        const int nTo = text.view.Piece(nPieces - 1, nLength).nTo;
        nHidden += nTo == -1 ? 0 : line.size() - static_cast<std::size_t>(nTo);
    }
    EXPECT_EQ(nRow, rows.Count());
    return static_cast<int>(nHidden);
}

TEST(TextView, InAnExactLayoutEveryByteShowsInSomeRow) {
    std::mt19937 random(7);
    int nHiddenOtherwise = 0;
    for (int i = 0; i < 30; ++i) {
        for (const bool bExact : {false, true}) {
            ShownText text;
            text.view.SetExact(bExact);
            for (int j = 0; j < 40; ++j) {
                for (unsigned n = random() % 4; n > 0; --n) {
                    text.Add(1, RandomLine(random));
                }
                text.window.nStyle = random() % 5 == 0 ? WS_MAXIMIZE : 0u;
                text.m_bShowVScroll = random() % 5 != 0;
                if (j % 2 == 0) {
                    text.Resize(static_cast<int>(random() % 250), static_cast<int>(random() % 300));
                    ASSERT_LE(text.nSizes, 4);
                } else {
                    text.Fit();
                }
                if (!bExact) {
                    nHiddenOtherwise += HiddenBytes(text);
                    continue;
                }
                ASSERT_EQ(HiddenBytes(text), 0) << i << '.' << j;
                const qv::Size client{text.window.ClientRect().Width(),
                                      text.window.ClientRect().Height()};
                const bool bOverflows = text.m_nNumRows * kRow > client.cy;
                if (text.HasBar(SB_VERT)) {
                    ASSERT_EQ(text.window.ranges[SB_VERT].nPage, client.cy / kRow);
                } else if (text.m_bShowVScroll && client.cx > kBar && client.cy > 0) {
                    ASSERT_FALSE(bOverflows) << i << '.' << j;
                }
            }
        }
    }
    EXPECT_GT(nHiddenOtherwise, 100) << "the check sees what is lost without";
}

TEST(TextView, AnExactLayoutMeasuresNothingTwice) {
    ShownText text(10 * kChar, 2 * kRow);
    text.view.SetExact(true);
    for (const int nLines : {1, 100}) {
        text.Add(nLines, "several words that wrap");
        text.Fit();
        ASSERT_TRUE(text.HasBar(SB_VERT));
        text.measure.nCalls = 0;
        text.Fit();
        EXPECT_EQ(text.measure.nCalls, 0) << text.lines.Count();
    }
}

}  // namespace
