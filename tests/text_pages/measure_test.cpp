// Measuring and drawing in the process's code page, beside the platform's wide calls.
#include "common/process_text.h"
#include "drawn_text.h"
#include "frame/font_measure.h"
#include "frame/module_state.h"
#include "frame/text_out.h"
#include "frame/wide_text.h"
#include "page_text.h"
#include "sheet.h"

#include <gtest/gtest.h>

namespace {

std::vector<PageWord> WordsAndALongOne() {
    std::vector<PageWord> words = PageWords();
    words.push_back(LongWord(90));
    words.push_back(LongWord(700));
    return words;
}

TEST(TextMeasuring, ATextAndEachOfItsBytesReachAsFarAsTheWideTextDoes) {
    constexpr int kUntouched = -77;
    Sheet sheet;
    qv::FontMeasure measure;
    measure.SetFont(sheet.Font());
    const auto check = [&](const PageWord& word, const std::vector<int>& widths) {
        ASSERT_EQ(widths.back(), kUntouched) << "written behind the last byte of " << word.str;
        const int nUnits = static_cast<int>(word.strWide.size());
        std::vector<int> wide(word.strWide.size());
        SIZE size{};
        ::GetTextExtentExPointW(sheet.m_hAttribDC, word.strWide.data(), nUnits, 0, nullptr,
                                wide.data(), &size);
        size_t nUnit = 0;
        for (size_t i = 0; i < word.str.size();) {
            const size_t nBytes = qv::ProcessText().CharBytes(std::string_view(word.str).substr(i));
            nUnit += FromPage(word.str.substr(i, nBytes)).size();
            for (size_t n = 0; n < nBytes; ++n) {
                ASSERT_EQ(widths[i + n], wide[nUnit - 1]) << "byte " << i + n << " of " << word.str;
            }
            i += nBytes;
        }
    };
    for (const PageWord& word : WordsAndALongOne()) {
        EXPECT_EQ(qv::TextExtent(sheet, word.str).cx, sheet.WideWidth(word.strWide)) << word.str;
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(measure.Extent(word.str).cx, sheet.WideWidth(word.strWide)) << word.str;
        }
        EXPECT_EQ(measure.Extent(word.str).cy, qv::TextExtent(sheet, "x").cy);
        std::vector<int> widths(word.str.size() + 1, kUntouched);
        qv::TextPrefixWidths(sheet, word.str, widths.data());
        check(word, widths);
        std::fill(widths.begin(), widths.end(), kUntouched);
        measure.PrefixWidths(word.str, widths.data());
        check(word, widths);
    }
}

// What a program cuts in the middle of a character, or reads from a file of another code page.
TEST(TextMeasuring, BytesThatAreNoTextHaveAWidthToo) {
    Sheet sheet;
    qv::FontMeasure measure;
    measure.SetFont(sheet.Font());
    for (const std::string strText :
         {"\xE3", "a\x81", "\xFF\xFE\x80z", "\xE3\x81", "\xED\xA0\x80"}) {
        std::vector<int> widths(strText.size() + 1, -77);
        qv::TextPrefixWidths(sheet, strText, widths.data());
        EXPECT_EQ(widths.back(), -77);
        EXPECT_EQ(widths[strText.size() - 1], qv::TextExtent(sheet, strText).cx);
        EXPECT_EQ(measure.Extent(strText).cx, qv::TextExtent(sheet, strText).cx);
    }
}

TEST(TextDrawing, LeavesTheInkOfTheWideCall) {
    for (const PageWord& word : PageWords()) {
        for (const UINT nFormat :
             {UINT{DT_LEFT}, UINT{DT_CENTER | DT_SINGLELINE | DT_VCENTER}, UINT{DT_RIGHT},
              UINT{DT_END_ELLIPSIS | DT_SINGLELINE}, UINT{DT_WORDBREAK}}) {
            for (const int nWidth : {20, 200}) {
                Sheet drawn;
                Sheet wanted;
                CRect rc(10, 10, 10 + nWidth, 100);
                CRect rcWide(rc);
                EXPECT_EQ(
                    qv::DrawTextIn(drawn, word.str, rc, nFormat | DT_NOPREFIX),
                    ::DrawTextW(wanted, word.strWide.data(), static_cast<int>(word.strWide.size()),
                                &rcWide, nFormat | DT_NOPREFIX));
                EXPECT_EQ(drawn.Pixels(), wanted.Pixels())
                    << word.str << " flags " << nFormat << " in " << nWidth;
            }
        }
    }
}

TEST(TextDrawing, TabsLeadToTheSamePlaces) {
    for (const PageWord& word : PageWords()) {
        const std::string strText = word.str + "\tx\t" + word.str;
        const std::wstring strWide = word.strWide + L"\tx\t" + word.strWide;
        Sheet drawn;
        Sheet wanted;
        int nStop = 8;
        const CSize size = qv::DrawTabbedText(drawn, 10, 10, strText, nStop, 10);
        const DWORD dwSize = static_cast<DWORD>(::TabbedTextOutW(
            wanted, 10, 10, strWide.data(), static_cast<int>(strWide.size()), 1, &nStop, 10));
        EXPECT_EQ(size, CSize(dwSize));
        EXPECT_TRUE(qv::DrawTextAt(drawn, 10, 60, word.str));
        ::TextOutW(wanted, 10, 60, word.strWide.data(), static_cast<int>(word.strWide.size()));
        EXPECT_EQ(drawn.Pixels(), wanted.Pixels()) << word.str;
    }
}

// Draws into a metafile in a small font, measuring on another device in a larger one, as a preview
// does.
template <class Draw>
std::vector<DrawnText> DrawnElsewhere(const Sheet& device, Draw draw) {
    CDC dc;
    CFont font;
    font.CreatePointFont(90, "Tahoma");
    dc.SetOutputDC(::CreateEnhMetaFile(nullptr, nullptr, nullptr, nullptr));
    dc.SetAttribDC(device.m_hDC);
    const HGDIOBJ hOld = ::SelectObject(dc.m_hDC, font);
    draw(dc);
    ::SelectObject(dc.m_hDC, hOld);
    const HENHMETAFILE hFile = ::CloseEnhMetaFile(dc.m_hDC);
    dc.ReleaseOutputDC();
    dc.ReleaseAttribDC();
    return TakeTexts(hFile);
}

TEST(TextDrawing, TakesTheRoomOfTheDeviceThatIsMeasured) {
    const Sheet device(240);
    for (const PageWord& word : PageWords()) {
        if (qv::IsAscii(word.str)) {
            continue;  // goes through the context's own calls
        }
        const int nWidth = device.WideWidth(word.strWide);
        for (const UINT nAlign : {UINT{DT_LEFT}, UINT{DT_CENTER}, UINT{DT_RIGHT}}) {
            const auto texts = DrawnElsewhere(device, [&](CDC& dc) {
                CRect rc(100, 0, 1100, 50);
                qv::DrawTextIn(dc, word.str, rc, nAlign | DT_NOPREFIX | DT_SINGLELINE);
            });
            ASSERT_EQ(texts.size(), 1u);
            EXPECT_EQ(texts[0].str, word.strWide);
            EXPECT_EQ(texts[0].nWidth, nWidth);
            EXPECT_EQ(texts[0].pt.x, nAlign == DT_LEFT    ? 100
                                     : nAlign == DT_RIGHT ? 1100 - nWidth
                                                          : 100 + (1000 - nWidth) / 2);
        }
        const auto tabbed = DrawnElsewhere(device, [&](CDC& dc) {
            qv::DrawTabbedText(dc, 100, 0, word.str + "\t" + word.str, 500, 100);
        });
        ASSERT_EQ(tabbed.size(), 2u);
        EXPECT_EQ(tabbed[1].pt.x, 600) << word.str;
    }
}

TEST(TextDrawing, WrapsAndCutsByTheDeviceThatIsMeasured) {
    const Sheet device(240);
    const PageWord word = LongWord(60);
    CRect rc(0, 0, 300, 2000);
    int nHeight = 0;
    const auto lines = DrawnElsewhere(device, [&](CDC& dc) {
        nHeight = qv::DrawTextIn(dc, word.str, rc, DT_WORDBREAK | DT_NOPREFIX);
    });
    ASSERT_GT(lines.size(), 3u);
    std::wstring strAll;
    for (const DrawnText& line : lines) {
        EXPECT_LE(line.nWidth, 300);
        strAll += line.str;
    }
    std::wstring strNoBlanks = word.strWide;
    std::erase(strNoBlanks, L' ');
    std::erase(strAll, L' ');
    EXPECT_EQ(strAll, strNoBlanks) << "every character on one line";
    CRect rcMeasured(0, 0, 300, 0);
    DrawnElsewhere(device, [&](CDC& dc) {
        qv::DrawTextIn(dc, word.str, rcMeasured, DT_WORDBREAK | DT_NOPREFIX | DT_CALCRECT);
    });
    EXPECT_EQ(rcMeasured.Height(), nHeight);
    const auto cut = DrawnElsewhere(device, [&](CDC& dc) {
        qv::DrawTextIn(dc, word.str, rc, DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
    });
    ASSERT_EQ(cut.size(), 2u);
    EXPECT_EQ(cut[1].str, L"...");
    EXPECT_LE(cut[0].nWidth + cut[1].nWidth, 300);
    EXPECT_EQ(word.strWide.find(cut[0].str), 0u);
}

}  // namespace
