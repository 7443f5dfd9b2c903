#include "list/core/header_fields.h"

#include <gtest/gtest.h>

namespace qv {

TEST(HeaderFields, TheFirstCharacterAlignsAndOnlyMarksAreTaken) {
    const struct {
        const char* pszField;
        HeaderAlign align;
        const char* pszTitle;
    } cases[] = {
        {"<Name", HeaderAlign::Left, "Name"},  {">Size", HeaderAlign::Right, "Size"},
        {"Date", HeaderAlign::Center, "Date"}, {"", HeaderAlign::Center, ""},
        {"<", HeaderAlign::Left, ""},          {"><x", HeaderAlign::Right, "<x"},
        {" <x", HeaderAlign::Center, " <x"},
    };
    for (const auto& c : cases) {
        const HeaderField field = ParseHeaderField(c.pszField);
        EXPECT_EQ(field.align, c.align) << c.pszField;
        EXPECT_EQ(field.title, c.pszTitle);
    }
}

}  // namespace qv
