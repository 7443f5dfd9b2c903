#include "boxes/core/box_row.h"

#include <climits>
#include <gtest/gtest.h>

namespace {

using qv::NumberPlace;

TEST(BoxRow, NumberAndTextComeBackAsTheyWent) {
    EXPECT_EQ(qv::JoinBoxRow(3, "a", NumberPlace::Behind), "a\t3");
    EXPECT_EQ(qv::JoinBoxRow(3, "a", NumberPlace::InFront), "3\ta");
    for (const NumberPlace place : {NumberPlace::Behind, NumberPlace::InFront}) {
        for (const int nNumber : {0, 7, -1, INT_MIN, INT_MAX}) {
            for (const char* pszText : {"", "a", "a\tb\t", "\t", "\033bred\t5"}) {
                const std::string strRow = qv::JoinBoxRow(nNumber, pszText, place);
                const qv::BoxRow row = qv::SplitBoxRow(strRow, place);
                EXPECT_EQ(row.nNumber, nNumber);
                EXPECT_EQ(row.text, pszText);
            }
        }
    }
}

TEST(BoxRow, ForeignStringsReadAsFarAsTheyGo) {
    struct Case {
        const char* pszStored;
        NumberPlace place;
        int nNumber;
        const char* pszText;
    };
    const Case cases[] = {
        {"a\tb\t7", NumberPlace::Behind, 7, "a\tb"},
        {"a\tb\t7", NumberPlace::InFront, 0, "b\t7"},
        {"no tab 5", NumberPlace::Behind, 0, "no tab 5"},
        {"", NumberPlace::InFront, 0, ""},
        {"a\t", NumberPlace::Behind, 0, "a"},
        {"a\t +12x", NumberPlace::Behind, 12, "a"},
        {"a\t+-12", NumberPlace::Behind, 0, "a"},
        {"a\t- 1", NumberPlace::Behind, 0, "a"},
        {"a\t99999999999", NumberPlace::Behind, INT_MAX, "a"},
        {"-99999999999\ta", NumberPlace::InFront, INT_MIN, "a"},
    };
    for (const Case& c : cases) {
        const qv::BoxRow row = qv::SplitBoxRow(c.pszStored, c.place);
        EXPECT_EQ(row.nNumber, c.nNumber) << c.pszStored;
        EXPECT_EQ(row.text, c.pszText) << c.pszStored;
    }
}

}  // namespace
