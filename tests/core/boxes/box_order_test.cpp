#include "boxes/core/box_order.h"

#include "support/double_byte.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

TEST(BoxOrder, FieldsDecideOnlyWhereThereAreCodes) {
    qv::StyleTable styles;
    styles.Add(0, 0);
    styles.Add(0, 0);
    const struct {
        const char *psz1, *psz2;
        int nOrder;
    } cases[] = {
        {"abc", "ABC", 0},
        {"10", "9", -1},
        {"a\tb", "a", 1},
        {"a\tB", "a\tb", 0},
        {"\033babc", "ABC", 1},       // case counts
        {"\033babc", "\033aabc", 0},  // codes do not
        {"\033bA", "B", -1},
        {"\033ba\tb", "a", 0},  // a start of the other one
        {"\033ba\t", "a\t\tx", 0},
        {"a\t\033bx", "a\t\033ay", -1},  // the second field has the only codes
        {"a\033b", "A", 1},              // an ESC inside a field is text, and makes case count
        {"\033b", "", 0},                // no field on one side
        {"\033zq", "zq", 0},             // an unknown code loses its ESC alone
    };
    for (const auto& [psz1, psz2, nOrder] : cases) {
        EXPECT_EQ(qv::CompareBoxFields(psz1, psz2, styles, qv::MultiByte()), nOrder)
            << psz1 << " and " << psz2;
        EXPECT_EQ(qv::CompareBoxFields(psz2, psz1, styles, qv::MultiByte()), -nOrder)
            << psz2 << " and " << psz1;
    }
    EXPECT_EQ(qv::CompareBoxFields("\033b\xB1", "\x81\x40", styles, DoubleByte()), -1)
        << "by characters";
}

TEST(BoxOrder, ImagesComeFirstWhereAskedFor) {
    const auto byText = [](const char* psz1, const char* psz2) {
        return std::strcmp(psz1, psz2) < 0 ? -7 : 7;
    };
    const qv::BoxKey two{2, "z"}, ten{10, "a"}, other{10, "b"};
    EXPECT_EQ(qv::CompareBoxRows(true, two, ten, byText), -1);
    EXPECT_EQ(qv::CompareBoxRows(true, ten, two, byText), 1);
    EXPECT_EQ(qv::CompareBoxRows(true, ten, other, byText), -7);
    EXPECT_EQ(qv::CompareBoxRows(false, two, ten, byText), 7);
}

}  // namespace
