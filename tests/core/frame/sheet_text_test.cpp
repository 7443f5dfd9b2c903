#include "frame/core/sheet_text.h"

#include <gtest/gtest.h>

namespace qv {

TEST(SheetText, CellsComeBackAsTheyWereWritten) {
    const std::vector<SheetRow> rows = {
        {"a", "", "c d"}, {"tab\there", "say \"so\"", "two\r\nlines"}, {"\"", "x\ny\r", ""}, {""}};
    SheetWriter writer;
    for (const SheetRow& row : rows) {
        for (const std::string& strCell : row) {
            writer.AddCell(strCell);
        }
        writer.EndRow();
    }
    EXPECT_TRUE(writer.Text().starts_with(
        "a\t\tc d\r\n\"tab\there\"\t\"say \"\"so\"\"\"\t\"two\r\nlines\"\r\n\"\"\"\"\t"));
    EXPECT_EQ(ReadSheet(writer.Text()), rows);
}

TEST(SheetText, OtherProgramsTextsAreRead) {
    const std::pair<const char*, std::vector<SheetRow>> cases[] = {
        {"", {}},
        {"a\tb", {{"a", "b"}}},
        {"a\t\r\n\tb\r\n", {{"a", ""}, {"", "b"}}},
        {"a\nb\rc\n\nd", {{"a"}, {"b"}, {"c"}, {""}, {"d"}}},
        {"5\" disk\t\"\"\t\"x", {{"5\" disk", "", "\"x"}}},
        {"\"a\"b\tc", {{"\"a\"b", "c"}}},
    };
    for (const auto& [pszText, rows] : cases) {
        EXPECT_EQ(ReadSheet(pszText), rows) << pszText;
    }
    EXPECT_TRUE(IsOneCell("\"a b") && IsOneCell("a\r\n") && !IsOneCell("a\tb") &&
                !IsOneCell("a\n\n"));
}

}  // namespace qv
