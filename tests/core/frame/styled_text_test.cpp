#include "frame/core/styled_text.h"

#include "frame/core/wheel.h"
#include "support/failing_new.h"

#include <gtest/gtest.h>

namespace {

using qv::StyleTable;

StyleTable Table(int nStyles) {
    StyleTable table;
    for (int i = 0; i < nStyles; ++i) {
        table.Add(static_cast<COLORREF>(i), 0);
    }
    return table;
}

TEST(StyleParsing, TakesOnlyCodesOfTheTable) {
    const StyleTable table = Table(40);
    struct Case {
        const char* pszText;
        int nStyle;
        const char* pszShown;
    };
    for (const Case& c :
         {Case{nullptr, 0, ""}, Case{"", 0, ""}, Case{"plain", 0, "plain"}, Case{"\033cx", 2, "x"},
          Case{"\x1B{x", 26, "x"}, Case{"\x1B\x7Fx", 30, "x"}, Case{"\x1B\x80x", 0, "\x80x"},
          Case{"\x1B", 0, ""}, Case{"\x1B`x", 0, "`x"}}) {
        EXPECT_EQ(table.ParseStyle(c.pszText), c.nStyle);
        EXPECT_STREQ(table.ParseStyleText(c.pszText), c.pszShown);
    }
    EXPECT_STREQ(Table(2).ParseStyleText("\033cx"), "cx") << "an unknown code shows its letter";
    EXPECT_TRUE(qv::HasStyle("\x1B"));
    EXPECT_FALSE(qv::HasStyle("a\x1B"));
    EXPECT_FALSE(qv::HasStyle(nullptr));

    int nStyle = 0;
    EXPECT_EQ(table.ParseField("a\033b", nStyle), "a\033b");
    EXPECT_EQ(nStyle, -1);
    EXPECT_EQ(table.ParseField("\x1B", nStyle), "");
    EXPECT_EQ(nStyle, 0);
    EXPECT_EQ(table.ParseField("\033dz", nStyle), "z");
    EXPECT_EQ(nStyle, 3);
}

TEST(StyleTable, UpdatesOnlyWhatExistsAndKeepsIndices) {
    StyleTable table = Table(2);
    table.Update(1, 77, 78);
    table.Update(2, 1, 1);
    table.Update(-1, 1, 1);
    EXPECT_EQ(table.Count(), 2);
    EXPECT_EQ(table[1].crText, 77u);
    EXPECT_EQ(table[1].crBk, 78u);
}

TEST(StyleTable, WithoutMemoryAddsNothing) {
    StyleTable table;
    const FailingNew failing(0);
    EXPECT_EQ(table.Add(1, 2), -1);
    EXPECT_EQ(table.Count(), 0);
}

TEST(StylePrefix, SeparatesFieldsOnlyWhereNeeded) {
    const StyleTable table = Table(3);
    EXPECT_STREQ(table.PrefixFor(0, 1).data(), "\033b");
    EXPECT_STREQ(table.PrefixFor('x', 1).data(), "\t\033b");
    EXPECT_STREQ(table.PrefixFor('\t', 1).data(), "\033b");
    EXPECT_STREQ(table.PrefixFor('x', 3).data(), "\t\033a") << "beyond the table: style 0";
    EXPECT_STREQ(table.PrefixFor('x', -1).data(), "");
}

TEST(Wheel, AddsSmallMovementsUpToSteps) {
    struct Case {
        int nDelta;
        unsigned nLines;
        int nScrolled;  // lines, up positive; pages count as ten
        int nRemainder;
    };
    for (const Case& c :
         {Case{120, 3, 3, 0}, Case{-120, 3, -3, 0}, Case{30, 3, 0, 30}, Case{100, 3, 2, 20},
          Case{120, 0, 1, 0}, Case{-240, qv::kWheelPage, -20, 0}, Case{120, 121, 0, 0},
          Case{120, 120, 120, 0}}) {
        int nRemainder = 0;
        int nScrolled = 0;
        qv::TurnWheel(nRemainder, c.nDelta, c.nLines, [&](bool bUp, bool bPage) {
            nScrolled += (bUp ? 1 : -1) * (bPage ? 10 : 1);
        });
        EXPECT_EQ(nScrolled, c.nScrolled) << c.nDelta << " by " << c.nLines;
        EXPECT_EQ(nRemainder, c.nRemainder);
    }
}

}  // namespace
