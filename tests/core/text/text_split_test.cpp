#include "text/core/text_split.h"

#include "base/multi_byte.h"
#include "support/fake_window.h"
#include "support/text_split_rule.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace {

using Starts = std::vector<int>;

constexpr int kChar = FixedMeasure::kCharWidth;

// What both the splitter and the rule give.
Starts Split(std::string_view text, int nWidth) {
    FixedMeasure measure;
    Starts starts{-1, -1};
    qv::TextSplitter(measure).Split(text, nWidth, starts);
    EXPECT_EQ(starts, SplitByRule(text, nWidth, measure)) << text << " in " << nWidth;
    return starts;
}

TEST(TextSplit, TextThatFitsIsOnePiece) {
    EXPECT_EQ(Split("abcd", 4 * kChar), Starts{0});
    EXPECT_EQ(Split("abcd", 4 * kChar - 1), (Starts{0, 3}));
    EXPECT_EQ(Split("a\nb", 3 * kChar), Starts{0}) << "with its line feed";
    for (const int nWidth : {-1, 0, 100}) {
        EXPECT_EQ(Split("", nWidth), Starts{0});
    }
}

TEST(TextSplit, LineFeedsBreakATextThatDoesNotFit) {
    constexpr int kThree = 3 * kChar;
    EXPECT_EQ(Split("a\nbc", kThree), (Starts{0, 2}));
    EXPECT_EQ(Split("a\n\nbcd", kThree), (Starts{0, 2, 3}));
    EXPECT_EQ(Split("abcd\n", kThree), (Starts{0, 3, 5})) << "an empty piece at the end";
    EXPECT_EQ(Split("\n\n\n\n", kThree), (Starts{0, 1, 2, 3, 4}));
    EXPECT_EQ(Split("abc  \ndef", kThree), (Starts{0, 5, 8}))
        << "behind blanks that broke the line it is a byte of the next piece";
    EXPECT_EQ(Split("abc  \ndef\ng", 4 * kChar), (Starts{0, 5, 10}));
}

TEST(TextSplit, BreaksBehindTheBlanksOrBeforeTheWord) {
    constexpr int kThreeAndAHalf = 7 * kChar / 2;
    EXPECT_EQ(Split("abcd ef", kThreeAndAHalf), (Starts{0, 3, 5}));
    EXPECT_EQ(Split("abc   def", kThreeAndAHalf), (Starts{0, 6}));
    EXPECT_EQ(Split("abc   ", kThreeAndAHalf), (Starts{0, 6})) << "an empty last piece";
    EXPECT_EQ(Split("ab cd", kThreeAndAHalf), (Starts{0, 3}));
    EXPECT_EQ(Split("a b cd", kThreeAndAHalf), (Starts{0, 4}));
    EXPECT_EQ(Split("ab\tcd", kThreeAndAHalf), (Starts{0, 3})) << "a tab is no break";
    EXPECT_EQ(Split(" abcd", kThreeAndAHalf), (Starts{0, 3}))
        << "nor is a blank at the piece's start";
    EXPECT_EQ(Split("      a", kThreeAndAHalf), (Starts{0, 6}));
}

TEST(TextSplit, WordWithoutBlankFillsThePieces) {
    EXPECT_EQ(Split("abcdefgh", 3 * kChar), (Starts{0, 3, 6}));
    EXPECT_EQ(Split("\xC3\xA4\xC3\xA4", 3 * kChar), (Starts{0, 3}))
        << "bytes, not characters, are counted";
}

TEST(TextSplit, WidthBelowOneCharacterLeavesEveryByteAlone) {
    for (const int nWidth : {kChar - 1, 1, 0, -1, -1000}) {
        EXPECT_EQ(Split("abc", nWidth), (Starts{0, 0, 1, 2})) << nWidth;
        EXPECT_EQ(Split("a b", nWidth), (Starts{0, 0, 2})) << nWidth;
        EXPECT_EQ(Split("a\nbc", nWidth), (Starts{0, 0, 2, 2, 3})) << nWidth;
    }
}

std::string RandomText(std::mt19937& random, std::size_t nMost) {
    static constexpr std::string_view kParts[] = {
        "a",        "b",   "w", " ", " ", "    ", "\n", "\t", "\xC3\xA4", "\xE2\x82\xAC",
        "\x83\x41", "\xFF"};
    const std::size_t nLength = random() % nMost;
    const unsigned nKinds = 1 + random() % std::size(kParts);
    std::string strText;
    while (strText.size() < nLength) {
        strText += kParts[random() % nKinds];
    }
    return strText;
}

TEST(TextSplit, AgreesWithTheRuleOnRandomTexts) {
    std::mt19937 random(7);
    KernedMeasure measure;
    qv::TextSplitter splitter(measure);  // one for all: what it learned of lengths must not show
    Starts starts;
    int nBroken = 0;
    for (int i = 0; i < 20000; ++i) {
        if (i % 10 == 0) {
            measure.Roll(random);
        }
        const std::string strText = RandomText(random, i % 100 == 0 ? 1200 : 80);
        const int nWidth = static_cast<int>(random() % (i % 4 == 0 ? 1500 : 120)) - 5;
        splitter.Split(strText, nWidth, starts);
        ASSERT_EQ(starts, SplitByRule(strText, nWidth, measure)) << i << " width " << nWidth;
        nBroken += starts.size() > 1 ? 1 : 0;
    }
    EXPECT_GT(nBroken, 8000) << "texts that fit say little";
}

// Characters of UTF-8, each as wide as it has bytes.
class Utf8Measure : public qv::TextMeasure {
public:
    qv::Size Extent(std::string_view text) override {
        return {kChar * static_cast<int>(text.size()), 10};
    }
    std::size_t CharBytes(std::string_view text) const override { return m_utf8.CharBytes(text); }

private:
    const qv::MultiByte m_utf8 = qv::MultiByte::Utf8();
};

TEST(TextSplit, NoCharacterIsCutInTwoHoweverNarrowTheWindow) {
    Utf8Measure measure;
    qv::TextSplitter splitter(measure);
    std::string strText;
    for (int i = 0; i < 300; ++i) {
        strText += i % 3 == 0 ? "\xE6\x97\xA5" : i % 7 == 0 ? " " : i % 2 == 0 ? "\xC3\xBC" : "a";
    }
    for (int nChars = 0; nChars < 200; ++nChars) {
        Starts starts;
        splitter.Split(strText, nChars * kChar, starts);
        ASSERT_GT(starts.size(), 2u);
        for (const int nStart : starts) {
            const auto at = static_cast<std::size_t>(nStart);
            ASSERT_TRUE(at == strText.size() || (strText[at] & 0xC0) != 0x80)
                << "byte " << nStart << " at width " << nChars;
        }
    }
    Starts starts;
    splitter.Split("\xE6\x97\xA5\xE6\x97\xA5x", 2 * kChar, starts);
    EXPECT_EQ(starts, (Starts{0, 0, 3, 6})) << "each too wide by itself, and taken whole";
}

// Every byte is as wide as the next, but for z, which has no width.
class CountingMeasure : public qv::TextMeasure {
public:
    qv::Size Extent(std::string_view text) override {
        nBytes += text.size();
        return {kChar * static_cast<int>(text.size() - std::count(text.begin(), text.end(), 'z')),
                10};
    }
    void PrefixWidths(std::string_view text, int* pWidths) override {
        nBytes += text.size();
        int nWidth = 0;
        for (const char ch : text) {
            *pWidths++ = nWidth += ch == 'z' ? 0 : kChar;
        }
    }
    std::size_t nBytes = 0;
};

TEST(TextSplit, MeasuresFewTimesWhatTheTextHolds) {
    std::string strWords;
    std::string strLines;
    for (int i = 0; i < 40000; ++i) {
        strWords += "word" + std::string(i % 7, 'x') + ' ';
        strLines += "line\n";
    }
    const std::string strWide(300000, 'a');
    const std::string strNone(300000, 'z');
    const std::string strBlanks(300000, ' ');
    for (const std::string& strText :
         {strWords, strLines, strWide, strBlanks, strNone + strWide, "a " + strNone + strWide}) {
        for (const int nChars : {1, 100, 10000}) {
            CountingMeasure measure;
            Starts starts;
            qv::TextSplitter(measure).Split(strText, nChars * kChar, starts);
            EXPECT_GT(starts.size(), 1u);
            EXPECT_LT(measure.nBytes, strText.size() * (nChars == 1 ? 70 : 6))
                << strText.substr(0, 5) << " in " << nChars;
        }
    }
}

}  // namespace
