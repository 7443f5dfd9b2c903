#include "text/core/date_picture.h"

#include "support/double_byte.h"

#include <gtest/gtest.h>

namespace qv {

const MultiByte kBytes;

TEST(DatePicture, APartGoesWithOneNeighbour) {
    const MultiByte kPairs = DoubleByte();
    const struct {
        const char *pszFormat, *pszPart, *pszLeft;
        const MultiByte& text = kBytes;
    } cases[] = {
        {"h:mm:ss tt", "ss", "h:mm tt"},
        {"HH:mm:ss", "ss", "HH:mm"},
        {"ss:mm", "ss", "mm"},
        {"ss", "ss", ""},
        {"/ss", "ss", ""},
        {"H-s-s", "s", "H-s"},
        {"HH:mm", "s", "HH:mm"},
        {"gg, yyyy", "gg", " yyyy"},
        {"HH:mm", "", "HH:mm"},
        {"h\x95\x73s\x81\x46t", "s", "h\x81\x46t", kPairs},  // 73 is s, but not here
        {"s\x81\x46t", "s", "t", kPairs},
        {"h\x81s", "s", "h\x81s", kPairs},
    };
    for (const auto& c : cases) {
        std::string strFormat = c.pszFormat;
        RemoveFormatString(strFormat, c.pszPart, c.text);
        EXPECT_EQ(strFormat, c.pszLeft) << c.pszFormat << " without " << c.pszPart;
    }
}

TEST(DatePicture, YearsGetFourDigits) {
    const MultiByte kPairs = DoubleByte();
    const struct {
        const char *pszFormat, *pszByCharacter, *pszByString;
        const MultiByte& text = kBytes;
    } cases[] = {
        {"d M yy", "d M yy", "d M yyyy"},
        {"yyyy-MM", "yyyy-MM", "yyyy-MM"},
        {"d M y", "d M yy", "d M yyyy"},
        {"y, d", "yy, d", "yyyy, d"},
        {"y d y", "yy d y", "yyyy d y"},
        {"yyy", "yyy", "yyyyy"},
        {"d yy M yy", "d yy M yy", "d yyyy"},  // ends in one: what stood between is gone
        {"yy M yy", "yy M yy", "yyyy M yy"},   // but not from the start
        {"d M", "d M", "d M"},
        {"\x95\x79", "\x95\x79", "\x95\x79", kPairs},
        {"y\x94\x4E", "yy\x94\x4E", "yyyy\x94\x4E", kPairs},
    };
    for (const auto& c : cases) {
        std::string strFormat = c.pszFormat;
        DoubleFormatCharacter(strFormat, 'y', c.text);
        EXPECT_EQ(strFormat, c.pszByCharacter) << c.pszFormat;
        DoubleFormatString(strFormat, "yy", c.text);
        EXPECT_EQ(strFormat, c.pszByString) << c.pszFormat;
    }
}

}  // namespace qv
