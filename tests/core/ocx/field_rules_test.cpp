#include "ocx/core/field_rules.h"

#include "ocx/core/field_frame.h"

#include <gtest/gtest.h>

namespace {

using qv::CharList;
using qv::FieldRules;
using qv::TextRange;

TEST(FieldRules, Entry_LetsInWhatIsAllowedAndHasRoom) {
    struct Case {
        const char16_t* pszList;
        std::size_t nMaxLength;
        bool bMultiLine;
        const char16_t* pszText;
        TextRange replaced;
        const char16_t* pszTyped;
        const char16_t* pszEntry;
    };
    const Case cases[] = {
        {u"", 0, false, u"ab", {1, 0}, u"x\t\u00e4", u"x\t\u00e4"},
        {u"0-9,.", 0, false, u"", {0, 0}, u"1-2,a3.", u"12,3."},
        {u"-9-0", 0, false, u"", {0, 0}, u"-5a", u"-5"},
        {u"a-c-", 0, false, u"", {0, 0}, u"bd-", u"b-"},
        {u"\U0001F600-\U0001F610", 0, false, u"", {0, 0}, u"\U0001F605\U0001F611", u"\U0001F605"},
        {u"", 3, false, u"abc", {1, 1}, u"xyz", u"x"},
        {u"", 3, false, u"abcdef", {0, 0}, u"x", u""},
        {u"", 3, false, u"\U0001F600b", {2, 0}, u"\U0001F601\U0001F602", u"\U0001F601"},
        {u"", 0, false, u"", {0, 0}, u"one\r\ntwo", u"one"},
        {u"a-z", 0, true, u"", {0, 0}, u"one\r\ntwo", u"one\r\ntwo"},
        {u"", 4, true, u"", {0, 0}, u"one\r\ntwo", u"one"},
    };
    for (const Case& c : cases) {
        const FieldRules rules{CharList(c.pszList), c.nMaxLength, c.bMultiLine};
        EXPECT_EQ(rules.Entry(c.pszText, c.replaced, c.pszTyped), c.pszEntry) << &c - cases;
    }
}

TEST(FieldRules, Fits_HoldsLengthAndCharacters) {
    const FieldRules rules{CharList(u"a-z"), 3, false};
    EXPECT_TRUE(rules.Fits(u"abc"));
    EXPECT_FALSE(rules.Fits(u"abcd"));
    EXPECT_FALSE(rules.Fits(u"aB"));
    EXPECT_FALSE(rules.Fits(u"a\n"));
    EXPECT_EQ(qv::CutToLength(u"a\U0001F600b", 2), u"a\U0001F600");
    EXPECT_EQ(qv::CutToLength(u"ab\r\nc", 3), u"ab");
}

TEST(FieldRules, ClampRange_KeepsCharactersWhole) {
    const std::u16string_view text = u"a\U0001F600b";
    EXPECT_EQ(qv::ClampRange(text, -5, 99), (TextRange{0, 4}));
    EXPECT_EQ(qv::ClampRange(text, 2, 0), (TextRange{1, 0}));
    EXPECT_EQ(qv::ClampRange(text, 0, 2), (TextRange{0, 3}));
    EXPECT_EQ(qv::ClampRange(text, 2, 1), (TextRange{1, 2}));
    EXPECT_EQ(qv::ClampRange(text, 7, -1), (TextRange{4, 0}));
    EXPECT_EQ(qv::WithEditBreaks(u"a\nb\rc\r\n\n"), u"a\r\nb\r\nc\r\n\r\n");
}

TEST(FieldFrame, PartsLieInsideOfEachOther_AndNeverTurnAround) {
    const qv::FieldFrame frame({0, 0, 100, 30}, {3, 2, 1, 2, 1});
    EXPECT_EQ(frame.outside, (qv::Rect{0, 0, 97, 27}));
    EXPECT_EQ(frame.border, (qv::Rect{5, 5, 92, 22}));
    EXPECT_EQ(frame.client, (qv::Rect{6, 6, 91, 21}));
    for (const int n : {0, 1, 7, 32767}) {
        const qv::FieldFrame small({0, 0, n, 5}, {32767, 9, 32767, 1, 32767});
        EXPECT_GE(small.client.Width(), 0);
        EXPECT_GE(small.client.Height(), 0);
        const qv::Rect line = qv::LineArea(small.client, {n, 32767, n, 1}, 13, qv::Across::kCenter);
        EXPECT_GE(line.Width(), 0);
        EXPECT_GE(line.Height(), 0);
    }
    EXPECT_EQ(qv::LineArea({0, 0, 50, 20}, {2, 1, 3, 4}, 10, qv::Across::kTop).top, 1);
    EXPECT_EQ(qv::LineArea({0, 0, 50, 20}, {2, 1, 3, 4}, 10, qv::Across::kBottom).bottom, 16);
    EXPECT_EQ(qv::LineArea({0, 0, 50, 14}, {2, 3, 3, 3}, 14, qv::Across::kCenter),
              (qv::Rect{2, 0, 47, 14}));
}

}  // namespace
