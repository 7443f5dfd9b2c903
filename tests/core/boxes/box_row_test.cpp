// A row of a list box or combo box: its stored string, its fields, its order.
#include "boxes/core/box_row.h"

#include "boxes/core/box_fields.h"
#include "boxes/core/box_order.h"
#include "support/double_byte.h"

#include <climits>
#include <gtest/gtest.h>

namespace {

using qv::NumberPlace;

TEST(BoxRow, NumberAndTextComeBackAsFarAsTheyGo) {
    const struct {
        const char* pszStored;
        NumberPlace place;
        int nNumber;
        const char* pszText;
        bool bOwn;  // what we store
    } kCases[] = {
        {"a\tb\t-2147483648", NumberPlace::Behind, INT_MIN, "a\tb", true},
        {"2147483647\ta\tb\t", NumberPlace::InFront, INT_MAX, "a\tb\t", true},
        {"\t0", NumberPlace::Behind, 0, "", true},
        {"a\tb\t7", NumberPlace::InFront, 0, "b\t7", false},
        {"no tab 5", NumberPlace::Behind, 0, "no tab 5", false},
        {"a\t", NumberPlace::Behind, 0, "a", false},
        {"a\t +12x", NumberPlace::Behind, 12, "a", false},
        {"a\t+-12", NumberPlace::Behind, 0, "a", false},
        {"a\t99999999999", NumberPlace::Behind, INT_MAX, "a", false},
        {"-99999999999\ta", NumberPlace::InFront, INT_MIN, "a", false},
    };
    for (const auto& [pszStored, place, nNumber, pszText, bOwn] : kCases) {
        const qv::BoxRow row = qv::SplitBoxRow(pszStored, place);
        EXPECT_EQ(row.nNumber, nNumber) << pszStored;
        EXPECT_EQ(row.text, pszText) << pszStored;
        EXPECT_EQ(qv::JoinBoxRow(nNumber, pszText, place) == pszStored, bOwn) << pszStored;
    }
}

struct BoxText : testing::Test {
    BoxText() {
        styles.Add(0, 0);
        styles.Add(0, 0);
    }
    // Of a row from nLeft to 500: "left-right", text, style and format of each field.
    std::string Fields(std::string_view row, std::vector<int> tabs, int nLeft = 100) {
        std::string str;
        qv::BoxFieldReader reader(row, {nLeft, 3, 500, 20}, tabs, DT_RIGHT, styles);
        for (qv::BoxField field; reader.Next(field);) {
            str += std::to_string(field.rect.left) + '-' + std::to_string(field.rect.right) + ' ' +
                   std::string(field.text) + ' ' + std::to_string(field.nStyle) +
                   (field.nFormat == DT_RIGHT ? "R " : "L ");
        }
        return str;
    }
    qv::StyleTable styles;
};

// One more than stops, to the end of the row; an unknown code is style 0.
TEST_F(BoxText, FieldsLieBetweenTheStops) {
    EXPECT_EQ(Fields("a\t\033bb\t\033zc\td", {50, 20120}),
              "106-144 a -1R 156-214 b 1L 226-494 zc 0R ");
    EXPECT_EQ(Fields("a", {50, 120}), "106-144 a -1R ") << "at its stop";
    EXPECT_EQ(Fields("a\tb", {}), "106-494 a -1R ");
    EXPECT_EQ(Fields("a\t", {50}), "106-144 a -1R ");
    EXPECT_EQ(Fields("", {50}), "");
    EXPECT_EQ(Fields("a", {INT_MAX}, INT_MAX - 9), "1073741829-1073741817 a -1R ");
}

TEST_F(BoxText, FieldsDecideTheOrderOnlyWhereThereAreCodes) {
    const struct {
        const char *psz1, *psz2;
        int nOrder;
    } kCases[] = {
        {"abc", "ABC", 0},
        {"a\tb", "a", 1},
        {"\033babc", "ABC", 1},       // case counts
        {"\033babc", "\033aabc", 0},  // codes do not
        {"\033ba\tb", "a", 0},        // a start of the other one
        {"a\t\033bx", "a\t\033ay", -1},
        {"a\033b", "A", 1},   // an ESC inside a field is text, and makes case count
        {"\033b", "", 0},     // no field on one side
        {"\033zq", "zq", 0},  // an unknown code loses its ESC alone
    };
    for (const auto& [psz1, psz2, nOrder] : kCases) {
        EXPECT_EQ(qv::CompareBoxFields(psz1, psz2, styles, qv::MultiByte()), nOrder) << psz1;
        EXPECT_EQ(qv::CompareBoxFields(psz2, psz1, styles, qv::MultiByte()), -nOrder) << psz1;
    }
    EXPECT_EQ(qv::CompareBoxFields("\033b\xB1", "\x81\x40", styles, DoubleByte()), -1)
        << "by characters";
}

}  // namespace
