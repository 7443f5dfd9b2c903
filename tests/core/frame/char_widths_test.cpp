// Widths of characters added up to those of texts.

#include "frame/core/char_widths.h"

#include "support/double_byte.h"

#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

using qv::CharWidths;
using qv::MultiByte;

// A character is as wide as its bytes say; some have no width of their own.
class Widths : public qv::CharWidthSource {
public:
    static int Of(std::string_view ch) {
        int nWidth = static_cast<int>(ch.size());
        for (const char byte : ch) {
            nWidth = (nWidth * 7 + static_cast<unsigned char>(byte)) % 23;
        }
        return nWidth == 22 ? CharWidths::kByCall : nWidth;
    }
    int CharWidth(std::string_view ch) override {
        ++asked[std::string(ch)];
        return Of(ch);
    }
    std::map<std::string, int> asked;
};

TEST(CharWidths, AreAskedOnceAndAddedUp) {
    const MultiByte utf8 = MultiByte::Utf8();
    CharWidths widths(utf8);
    Widths source;
    for (int i = 0; i < 3; ++i) {
        widths.Width("a\xE6\x97\xA5\xC3\xBC\xE6\x97\xA5", source);
    }
    EXPECT_EQ(source.asked,
              (std::map<std::string, int>{{"a", 1}, {"\xE6\x97\xA5", 1}, {"\xC3\xBC", 1}}));
    widths.Clear();
    widths.Width("a", source);
    EXPECT_EQ(source.asked["a"], 2) << "another font";
}

// A lead byte alone at the end is a character of its own, and must not become the width of the
// characters that it leads.
TEST(CharWidths, AnyBytesGiveTheSumOfTheirCharacters) {
    std::mt19937 random(11);
    for (const MultiByte& text : {MultiByte(), DoubleByte(), MultiByte::Utf8()}) {
        CharWidths widths(text);
        Widths source;
        int nAdded = 0;
        for (int i = 0; i < 20000; ++i) {
            std::string strText;
            for (unsigned n = random() % 12; n > 0; --n) {
                strText += static_cast<char>(random() % 2 == 0 ? 'a' + random() % 4 : random());
            }
            int nSum = 0;
            std::vector<int> prefixes;
            for (std::string_view rest = strText; !rest.empty() && nSum != CharWidths::kByCall;) {
                const size_t nBytes = text.CharBytes(rest);
                const int nChar = Widths::Of(rest.substr(0, nBytes));
                nSum = nChar == CharWidths::kByCall ? nChar : nSum + nChar;
                prefixes.insert(prefixes.end(), nBytes, nSum);
                rest.remove_prefix(nBytes);
            }
            ASSERT_EQ(widths.Width(strText, source), nSum);
            std::vector<int> aWidths(strText.size());
            ASSERT_EQ(widths.PrefixWidths(strText, aWidths.data(), source),
                      nSum != CharWidths::kByCall);
            if (nSum != CharWidths::kByCall) {
                ASSERT_EQ(aWidths, prefixes);
                ++nAdded;
            }
        }
        EXPECT_GT(nAdded, 5000);
    }
}

TEST(CharWidths, OnlyCharactersThatNoScriptJoinsStandAlone) {
    for (const char32_t ch :
         U"az ~\u00FC\u0142\u03A9\u0416\u20AC\u201C\u2026\u65E5\u3042\uFF71\uAC00") {
        EXPECT_EQ(qv::StandsAlone(ch), ch != 0) << static_cast<unsigned>(ch);
    }
    for (const char32_t ch :
         U"\t\u00AD\u0301\u0627\u05D0\u0915\u0E01\u200B\u200D\u202E\u3099\uFE0F\U0001F600") {
        EXPECT_FALSE(qv::StandsAlone(ch)) << static_cast<unsigned>(ch);
    }
}

}  // namespace
