#include "print/core/text_wrap.h"

#include "support/double_byte.h"
#include "support/fake_window.h"
#include "support/odd_measures.h"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace {

using qv::MultiByte;
using Lines = std::vector<std::string_view>;

bool IsWhole(std::string_view part, const MultiByte& text) {
    std::size_t n = 0;
    while (n < part.size()) {
        n += text.CharBytes(part.data() + n);
    }
    return n == part.size();
}

class WholeMeasure : public KernedMeasure {
public:
    explicit WholeMeasure(const MultiByte& text) : m_text(text) {}
    void PrefixWidths(std::string_view part, int* pWidths) override {
        EXPECT_TRUE(IsWhole(part, m_text));
        KernedMeasure::PrefixWidths(part, pWidths);
    }

private:
    const MultiByte& m_text;
};

// The rule step by step, each start of the text measured by itself.
Lines PlainWrap(std::string_view line, unsigned nWidth, qv::TextMeasure& measure,
                const MultiByte& text) {
    const auto isNarrower = [&](std::string_view part) {
        return static_cast<unsigned>(measure.Extent(part).cx) < nWidth;
    };
    if (line.empty() || isNarrower(line)) {
        return {line};
    }
    Lines lines;
    while (!line.empty()) {
        std::vector<std::size_t> ends{0};  // of the first n characters
        while (ends.back() < line.size() &&
               (ends.size() == 1 || isNarrower(line.substr(0, ends.back())))) {
            ends.push_back(ends.back() + text.CharBytes(line.data() + ends.back()));
        }
        if (isNarrower(line.substr(0, ends.back()))) {
            lines.push_back(line);
            break;
        }
        const std::size_t nChars = ends.size() - 2;
        std::size_t nBreak = nChars;
        while (nBreak > 0 && line[ends[nBreak]] != ' ') {
            --nBreak;
        }
        const std::size_t nBytes = ends[nBreak > 0 ? nBreak : std::max<std::size_t>(nChars, 1)];
        lines.push_back(line.substr(0, nBytes));
        line.remove_prefix(nBytes);
        while (!line.empty() && std::isspace(static_cast<unsigned char>(line[0]))) {
            line.remove_prefix(1);
        }
    }
    return lines;
}

Lines Wrap(std::string_view line, unsigned nChars, const MultiByte& text = MultiByte()) {
    FixedMeasure measure;
    Lines lines{"first"};
    qv::WrapLine(line, nChars * FixedMeasure::kCharWidth, measure, text, lines);
    EXPECT_EQ(lines[0], "first") << "which is appended to";
    lines.erase(lines.begin());
    return lines;
}

TEST(TextWrap, LinesEndAtBlanksOrWhereTheyMust) {
    const MultiByte kBytes, kPairs = DoubleByte(), kUtf8 = MultiByte::Utf8();
    const struct {
        const char* pszText;
        unsigned nChars;
        const MultiByte& rule;
        Lines lines;
    } cases[] = {
        {"  a b\t", 7, kBytes, {"  a b\t"}},  // narrower than the page
        {"", 0, kBytes, {""}},
        {"aaa bbb", 7, kBytes, {"aaa", "bbb"}},  // flush with the edge
        {"aaa bbb", 8, kBytes, {"aaa bbb"}},
        {"a bc def", 5, kBytes, {"a bc", "def"}},  // the blank itself may be too wide
        {"a bcd efg", 5, kBytes, {"a", "bcd", "efg"}},
        {"ab   cd", 5, kBytes, {"ab  ", "cd"}},     // blanks before the break stay
        {"ab\tcdef", 5, kBytes, {"ab\tc", "def"}},  // a tab is no break
        {"abcd \t\n\v\f\r x", 5, kBytes, {"abcd", "x"}},
        {"abcdefg \t", 5, kBytes, {"abcd", "efg"}},  // no line for white space alone
        {" abcdefg", 5, kBytes, {" abc", "defg"}},   // a blank in front is no break
        {"a b", 0, kBytes, {"a", "b"}},              // one character at least
        {"\xE2\x82\xAC\xC3\xA4", 1, kUtf8, {"\xE2\x82\xAC", "\xC3\xA4"}},
        {"\x83\x41\x83", 1, kPairs, {"\x83\x41", "\x83"}},
        {"a\xC3\xA4\xC3\xA4", 3, kUtf8, {"a", "\xC3\xA4", "\xC3\xA4"}},  // which stays whole
        {"a\x83\x41z", 3, kPairs, {"a", "\x83\x41", "z"}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Wrap(c.pszText, c.nChars, c.rule), c.lines) << c.pszText;
    }
}

std::string RandomText(std::mt19937& random, std::size_t nMost) {
    static constexpr std::string_view kAscii = "abw  \t\n";
    static constexpr std::string_view kOthers[] = {"\xC3\xA4", "\xE2\x82\xAC",     "\x83\x41",
                                                   "\x9F",     "\xF0\x9F\x98\x80", "\xFF"};
    const std::size_t nBytes = random() % nMost;
    // Some texts have no multi-byte characters.
    const std::size_t nKinds = 1 + random() % (kAscii.size() + std::size(kOthers));
    std::string strText;
    while (strText.size() < nBytes) {
        const std::size_t n = random() % nKinds;
        strText += n < kAscii.size() ? kAscii.substr(n, 1) : kOthers[n - kAscii.size()];
    }
    return strText;
}

TEST(TextWrap, AgreesWithTheRuleOnRandomTexts) {
    std::mt19937 random(5);
    const MultiByte kinds[] = {MultiByte(), DoubleByte(), MultiByte::Utf8()};
    for (int i = 0; i < 6000; ++i) {
        const MultiByte& text = kinds[i % 3];
        WholeMeasure measure(text);
        measure.Roll([&] { return random(); });
        const std::string strText = RandomText(random, i % 50 == 0 ? 1500 : 120);
        const unsigned nWidth = random() % (i % 4 == 0 ? 2000 : 150);
        Lines lines;
        qv::WrapLine(strText, nWidth, measure, text, lines);
        const Lines expected = PlainWrap(strText, nWidth, measure, text);
        ASSERT_EQ(lines, expected) << i << " width " << nWidth;
        for (std::size_t k = 0; k < lines.size(); ++k) {
            ASSERT_EQ(lines[k].data(), expected[k].data()) << "parts of the text itself";
        }
    }
}

TEST(TextWrap, MeasuresFewTimesWhatTheTextHolds) {
    for (const std::string& strText : HugeTexts()) {
        for (const unsigned nWidth : {8u, 560u, 70000u}) {
            CountingMeasure measure;
            Lines lines;
            qv::WrapLine(strText, nWidth, measure, MultiByte(), lines);
            EXPECT_LT(measure.nBytes, strText.size() * (nWidth == 8 ? 25 : 6))
                << strText.substr(0, 5) << " in " << nWidth;
        }
    }
}

}  // namespace
