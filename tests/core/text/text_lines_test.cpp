#include "text/core/text_lines.h"

#include "support/failing_new.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using qv::TextLines;

std::string Stored(std::string_view text, char chStyle = 'a') {
    return std::string{'\x1B', chStyle}.append(text);
}

TEST(TextLines, EachIsStoredBehindItsStyleCode) {
    TextLines lines;
    struct Case {
        int nStyle;
        char chCode;
    };
    int nLines = 0;
    for (const auto& [nStyle, chCode] :
         {Case{-1, 'a'}, Case{0, 'a'}, Case{2, 'c'}, Case{31, '\x80'}, Case{256, 'a'},
          Case{-2, '\x5F'}, Case{255, '\x60'}, Case{INT_MIN, 'a'}}) {
        EXPECT_EQ(lines.Add("x", nStyle), ++nLines);
        EXPECT_EQ(lines.Line(nLines - 1), Stored("x", chCode)) << nStyle;
    }
    EXPECT_EQ(lines.Count(), nLines);
    EXPECT_EQ(lines.Line(-1), nullptr);
    EXPECT_EQ(lines.Line(nLines), nullptr);
}

TEST(TextLines, TextsOfAnyLengthKeepTheirOrderAndPlace) {
    TextLines lines;
    std::vector<std::string> texts;
    for (const std::size_t nLength : {0, 5, 20000, 1, 200000, 3, 16381, 16382, 0, 60000}) {
        texts.emplace_back(nLength, static_cast<char>('a' + texts.size()));
    }
    std::vector<const char*> places;
    for (const std::string& strText : texts) {
        lines.Add(strText, 0);
        places.push_back(lines.Line(lines.Count() - 1));
    }
    for (int i = 0; i < lines.Count(); ++i) {
        ASSERT_EQ(lines.Line(i), places[static_cast<std::size_t>(i)]);
        ASSERT_EQ(lines.Line(i), Stored(texts[static_cast<std::size_t>(i)]));
    }
}

TEST(TextLines, WithoutMemoryALineIsRefusedAndNothingChanges) {
    TextLines lines;
    int nRefused = 0;
    const auto add = [&](const std::string& strText) {
        const FailingNew failing(0);
        return lines.Add(strText, 0);
    };
    for (int i = 0; i < 500; ++i) {
        const std::string strText = std::to_string(i) + std::string(200, '.');
        if (add(strText) == -1) {
            ++nRefused;
            ASSERT_EQ(lines.Count(), i);
            ASSERT_EQ(lines.Line(i), nullptr);
            ASSERT_EQ(lines.Add(strText, 0), i + 1);
        }
        ASSERT_EQ(lines.Line(i), Stored(strText));
    }
    EXPECT_GE(nRefused, 3) << "for want of a block, and of room in the index";
    EXPECT_EQ(add(std::string(100000, 'x')), -1);
    EXPECT_EQ(lines.Count(), 500);
}

}  // namespace
