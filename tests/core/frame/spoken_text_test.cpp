#include "frame/core/spoken_text.h"

#include <gtest/gtest.h>

namespace {

TEST(SpokenText, IsTheRowWithoutCodesAndEmptyFields) {
    qv::StyleTable styles;
    styles.Add(0, 0);
    styles.Add(1, 0);
    struct Case {
        std::string_view row;
        qv::SpokenFields fields;
        std::string_view headings, spoken;
    };
    for (const Case& c : {
             Case{"", {0}, "", ""},
             Case{"\033bdisk\t\033a3 GB", {0}, "", "disk, 3 GB"},
             Case{"disk\t\t\033b\t today ", {0}, "", "disk, today"},
             Case{"two\r\n \x01lines\x7F", {0}, "", "two lines"},
             Case{"disk\t3 GB\ttoday\tmore", {1}, "Name\t\033bSize\t\t", "Size: 3 GB, today, more"},
             Case{"disk\t\ttoday", {1}, "Name\tSize\tDate\tNever", "Date: today"},
             Case{"disk\t3 GB\tid", {0, 2}, "", "disk, 3 GB"},
             Case{"\x83\x5C\t\x83\x7C", {0}, "\x95\x5C", "\x95\x5C: \x83\x5C, \x83\x7C"},
         }) {
        EXPECT_EQ(qv::SpokenText(c.row, styles, c.fields, c.headings), c.spoken);
    }
    EXPECT_EQ(qv::SpokenColumn("a\t\033b b\tc", styles, 1), "b");
    EXPECT_EQ(qv::SpokenColumn("a\tb", styles, 2), "");
    EXPECT_EQ(qv::SpokenColumn("a\tb", styles, -1), "");
}

}  // namespace
