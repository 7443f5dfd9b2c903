#include "text/core/date_picture.h"

#include "support/double_byte.h"

#include <gtest/gtest.h>

namespace qv {

TEST(DatePicture, PartsGoWithOneNeighbourAndYearsGetFourDigits) {
    const struct {
        const char *pszFormat, *pszWithoutSeconds, *pszFourDigits;
        MultiByte text{};
    } cases[] = {
        {"h:mm:ss tt", "h:mm tt", "h:mm:ss tt"},
        {"ss:mm", "mm", "ss:mm"},
        {"/ss", "", "/ss"},
        {"y, d", "y, d", "yyyy, d"},
        {"yyyy-MM", "yyyy-MM", "yyyy-MM"},
        {"d yy M yy", "d yy M yy", "d yyyy"},  // ends in one: what stood between is gone
        {"yy M yy", "yy M yy", "yyyy M yy"},   // but not from the start
        {"\x95\x73s\x81\x46t", "\x95\x73s\x81\x46t", "\x95\x73s\x81\x46t", DoubleByte()},  // 73: s
        {"h\x81\x46ss\x81\x46t", "h\x81\x46t", "h\x81\x46ss\x81\x46t", DoubleByte()},
        {"ss\x81\x46t", "t", "ss\x81\x46t", DoubleByte()},
        {"\x95\x79y\x94\x4E", "\x95\x79y\x94\x4E", "\x95\x79yyyy\x94\x4E", DoubleByte()},  // 79: y
    };
    for (const auto& c : cases) {
        std::string strFormat = c.pszFormat;
        RemoveFormatString(strFormat, "ss", c.text);
        EXPECT_EQ(strFormat, c.pszWithoutSeconds) << c.pszFormat;
        strFormat = c.pszFormat;
        DoubleFormatCharacter(strFormat, 'y', c.text);
        DoubleFormatString(strFormat, "yy", c.text);
        EXPECT_EQ(strFormat, c.pszFourDigits) << c.pszFormat;
    }
}

}  // namespace qv
