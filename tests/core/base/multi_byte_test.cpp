#include "base/multi_byte.h"

#include "base/text_pool.h"
#include "support/double_byte.h"

#include <gtest/gtest.h>
#include <random>

namespace {

using qv::MultiByte;

int Sign(int n) {
    return (n > 0) - (n < 0);
}

TEST(MultiByte, ComparesWithoutCaseAndPutsShorterTextsFirst) {
    const MultiByte text;
    EXPECT_EQ(text.CompareNoCase("Abc", "aBC"), 0);
    EXPECT_EQ(text.CompareNoCase("abc", "abd"), -1);
    EXPECT_EQ(text.CompareNoCase("abd", "ABC"), 1);
    EXPECT_EQ(text.CompareNoCase("ab", "abc"), -1);
    EXPECT_EQ(text.CompareNoCase("", ""), 0);
    EXPECT_EQ(text.CompareNoCase("\xFF", "a"), 1) << "bytes compare unsigned";
}

TEST(MultiByte, SecondByteOfADoubleByteCharacterIsNotFolded) {
    const MultiByte text = DoubleByte();
    EXPECT_NE(text.CompareNoCase("\x83\x41", "\x83\x61"), 0) << "0x41 is no letter A here";
    EXPECT_EQ(text.CompareNoCase("A\x83\x41", "a\x83\x41"), 0);
    EXPECT_EQ(text.CompareNoCase("\xB1", "\x81\x40"), -1) << "one byte sorts before two";
}

TEST(MultiByte, LeadByteBeforeTheTerminatorStandsForItself) {
    EXPECT_EQ(DoubleByte().CharBytes("\x83"), 1u);
    EXPECT_EQ(DoubleByte().CompareNoCase("\x83", "\x83"), 0);
    EXPECT_EQ(MultiByte::Utf8().CharBytes("\xE2\x82"), 1u);
    EXPECT_EQ(MultiByte::Utf8().CompareNoCase("\xC3", "\xC3"), 0);
}

TEST(MultiByte, CharacterOfAViewEndsWithTheView) {
    const std::string_view sign = "\xE2\x82\xAC";
    EXPECT_EQ(MultiByte::Utf8().CharBytes(sign), 3u);
    EXPECT_EQ(MultiByte::Utf8().CharBytes(sign.substr(0, 2)), 1u);
    EXPECT_EQ(DoubleByte().CharBytes(std::string_view("\x83\x41")), 2u);
    EXPECT_EQ(DoubleByte().CharBytes(std::string_view("\x83\x41", 1)), 1u);
    EXPECT_EQ(MultiByte().CharBytes(std::string_view("\0x", 2)), 1u);
    EXPECT_EQ(MultiByte().CharBytes(std::string_view()), 0u);
}

TEST(MultiByte, Utf8LettersFoldByCodePoint) {
    const MultiByte text = MultiByte::Utf8();
    EXPECT_EQ(text.CompareNoCase("\xC3\x84rger", "\xC3\xA4RGER"), 0);          // A umlaut
    EXPECT_EQ(text.CompareNoCase("\xD0\x94\xD0\x81", "\xD0\xB4\xD1\x91"), 0);  // Cyrillic
    EXPECT_EQ(text.CompareNoCase("\xC4\x9A", "\xC4\x9B"), 0);                  // E caron
    EXPECT_NE(text.CompareNoCase("\xC3\x97", "\xC3\xB7"), 0) << "the times sign is no letter";
}

TEST(MultiByte, PrefixNeverSplitsACharacter) {
    EXPECT_EQ(DoubleByte().PrefixBytes("a\x83\x41z", 2), 1u);
    EXPECT_EQ(DoubleByte().PrefixBytes("a\x83\x41z", 3), 3u);
    EXPECT_EQ(MultiByte::Utf8().PrefixBytes("\xE2\x82\xAC", 2), 0u);
    EXPECT_EQ(MultiByte().PrefixBytes("abc", 99), 3u);
}

TEST(MultiByte, SortKeysOrderAsComparisonDoes) {
    std::mt19937 random(7);
    for (const MultiByte& text : {MultiByte(), DoubleByte(), MultiByte::Utf8()}) {
        for (int i = 0; i < 4000; ++i) {
            std::string strings[2];
            for (std::string& str : strings) {
                for (unsigned n = random() % 5; n > 0; --n) {
                    static constexpr unsigned char kBytes[] = {'a',  'A',  'b',  0x81, 0x83, 0x41,
                                                               0xC3, 0xA4, 0x84, 0xB1, 0xFF, 0xE2};
                    str += static_cast<char>(kBytes[random() % std::size(kBytes)]);
                }
            }
            std::string keys[2];
            text.AppendSortKey(strings[0].c_str(), keys[0]);
            text.AppendSortKey(strings[1].c_str(), keys[1]);
            ASSERT_EQ(Sign(keys[0].compare(keys[1])),
                      text.CompareNoCase(strings[0].c_str(), strings[1].c_str()))
                << testing::PrintToString(strings);
        }
    }
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

TEST(TextPool, HoldsTextsOfAnySizeApart) {
    qv::TextPool pool;
    std::vector<std::pair<char*, size_t>> texts;
    std::mt19937 random(3);
    for (int i = 0; i < 3000; ++i) {
        if (!texts.empty() && random() % 3 == 0) {
            const size_t n = random() % texts.size();
            const auto [psz, nBytes] = texts[n];
            for (size_t k = 0; k < nBytes; ++k) {
                ASSERT_EQ(psz[k], static_cast<char>(nBytes));
            }
            pool.Free(psz);
            texts[n] = texts.back();
            texts.pop_back();
        } else {
            const size_t nBytes = 1 + random() % (i % 50 == 0 ? 5000 : 300);
            char* psz = pool.Allocate(nBytes);
            std::fill_n(psz, nBytes, static_cast<char>(nBytes));
            texts.emplace_back(psz, nBytes);
        }
    }
    pool.FreeAll();
    EXPECT_NE(pool.Allocate(8), nullptr);
}

}  // namespace
