#include "base/multi_byte.h"

#include "base/text_pool.h"
#include "support/double_byte.h"

#include <gtest/gtest.h>

namespace {

using qv::MultiByte;

TEST(MultiByte, ComparesWithoutCaseByCharacter) {
    const MultiByte kBytes, kPairs = DoubleByte(), kUtf8 = MultiByte::Utf8();
    const struct {
        const MultiByte& text;
        const char *psz1, *psz2;
        int nOrder;
    } cases[] = {
        {kBytes, "Abc", "aBC", 0},
        {kBytes, "abc", "abd", -1},
        {kBytes, "abd", "ABC", 1},
        {kBytes, "ab", "abc", -1},
        {kBytes, "", "", 0},
        {kBytes, "\xFF", "a", 1},              // bytes compare unsigned
        {kPairs, "\x83\x41", "\x83\x61", -1},  // 0x41 is no letter A here
        {kPairs, "A\x83\x41", "a\x83\x41", 0},
        {kPairs, "\xB1", "\x81\x40", -1},  // one byte sorts before two
        {kPairs, "\x83", "\x83", 0},       // a lead byte before the terminator is itself
        {kUtf8, "\xC3", "\xC3", 0},
        {kUtf8, "\xC3\x84rger", "\xC3\xA4RGER", 0},          // A umlaut
        {kUtf8, "\xD0\x94\xD0\x81", "\xD0\xB4\xD1\x91", 0},  // Cyrillic
        {kUtf8, "\xC4\x9A", "\xC4\x9B", 0},                  // E caron
        {kUtf8, "\xC3\x97", "\xC3\xB7", -1},                 // the times sign is no letter
    };
    for (const auto& [text, psz1, psz2, nOrder] : cases) {
        EXPECT_EQ(text.CompareNoCase(psz1, psz2), nOrder) << psz1 << " and " << psz2;
    }
}

TEST(MultiByte, ComparesTheCharactersThatBeginInTheFirstBytes) {
    EXPECT_EQ(MultiByte().CompareNoCase("ABc", "abd", 2), 0);
    EXPECT_EQ(MultiByte().CompareNoCase("ABc", "abd", 3), -1);
    EXPECT_EQ(MultiByte().CompareNoCase("a", "ab", 2), -1);
    EXPECT_EQ(MultiByte().CompareNoCase("a", "A", 9), 0);
    EXPECT_EQ(MultiByte().CompareNoCase("a", "b", 0), 0);
    EXPECT_EQ(DoubleByte().CompareNoCase("a\x83\x41", "a\x83\x42", 1), 0);
    EXPECT_EQ(DoubleByte().CompareNoCase("a\x83\x41", "a\x83", 2), 1) << "the first one is whole";
    EXPECT_EQ(MultiByte::Utf8().CompareNoCase("\xC3\x84x", "\xC3\xA4y", 2), 0);
}

TEST(MultiByte, ACharacterIsWholeOrOneByteAtTheEnd) {
    EXPECT_EQ(DoubleByte().CharBytes("\x83"), 1u);
    EXPECT_EQ(MultiByte::Utf8().CharBytes("\xE2\x82"), 1u);
    const std::string_view sign = "\xE2\x82\xAC";
    EXPECT_EQ(MultiByte::Utf8().CharBytes(sign), 3u);
    EXPECT_EQ(MultiByte::Utf8().CharBytes(sign.substr(0, 2)), 1u);
    EXPECT_EQ(DoubleByte().CharBytes(std::string_view("\x83\x41")), 2u);
    EXPECT_EQ(DoubleByte().CharBytes(std::string_view("\x83\x41", 1)), 1u);
    EXPECT_EQ(MultiByte().CharBytes(std::string_view("\0x", 2)), 1u);
    EXPECT_EQ(MultiByte().CharBytes(std::string_view()), 0u);
    EXPECT_EQ(DoubleByte().PrefixBytes("a\x83\x41z", 2), 1u);
    EXPECT_EQ(DoubleByte().PrefixBytes("a\x83\x41z", 3), 3u);
    EXPECT_EQ(MultiByte::Utf8().PrefixBytes(sign.data(), 2), 0u);
    EXPECT_EQ(MultiByte().PrefixBytes("abc", 99), 3u);
}

TEST(TextPool, GivesFreedBlocksOfTheSameSizeOutAgain) {
    qv::TextPool pool;
    char* psz = pool.Allocate(20);
    char* pszOther = pool.Allocate(20);
    EXPECT_NE(psz, pszOther);
    pool.Free(psz);
    EXPECT_EQ(pool.Allocate(19), psz);
    pool.Free(nullptr);
}

}  // namespace
