#include "text/core/text_split.h"

#include "support/fake_window.h"
#include "support/odd_measures.h"
#include "support/text_split_rule.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Starts = std::vector<int>;

constexpr int kChar = FixedMeasure::kCharWidth;

TEST(TextSplit, BreaksAtLineFeedsBlanksAndWords) {
    const struct {
        std::string_view text;
        double dWidth;  // characters
        Starts starts;
        const char* pszWhy = "";
    } kTexts[] = {
        {"abcd", 4, {0}, "fits"},
        {"abcd", 3.9, {0, 3}},
        {"a\nb", 3, {0}, "fits, with its line feed"},
        {"", 0, {0}},
        {"a\nbc", 3, {0, 2}},
        {"abcd\n", 3, {0, 3, 5}, "an empty piece at the end"},
        {"abc  \ndef", 3, {0, 5, 8}, "behind blanks that broke the line it is a byte as any"},
        {"abcd ef", 3.5, {0, 3, 5}},
        {"abc   def", 3.5, {0, 6}},
        {"abc   ", 3.5, {0, 6}, "an empty last piece"},
        {"a b cd", 3.5, {0, 4}},
        {"ab\tcd", 3.5, {0, 3}, "a tab is no break"},
        {" abcd", 3.5, {0, 3}, "nor is a blank at the piece's start"},
        {"\xC3\xA4\xC3\xA4", 3, {0, 3}, "bytes, not characters, are counted"},
        {"abc", 0.9, {0, 0, 1, 2}, "narrower than a character"},
        {"a\nbc", 0, {0, 0, 2, 2, 3}},
    };
    for (const auto& [text, dWidth, starts, pszWhy] : kTexts) {
        FixedMeasure measure;
        const int nWidth = static_cast<int>(dWidth * kChar);
        Starts split{-1, -1};
        qv::TextSplitter(measure).Split(text, nWidth, split);
        EXPECT_EQ(split, starts) << text << " in " << dWidth << ": " << pszWhy;
        EXPECT_EQ(SplitByRule(text, nWidth, measure), starts) << "the rule that fuzzers go by";
    }
}

TEST(TextSplit, MeasuresFewTimesWhatTheTextHolds) {
    for (const std::string& strText : HugeTexts()) {
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
