#include "buttons/core/check_press.h"

#include <gtest/gtest.h>

namespace qv {

TEST(CheckPress, SpaceClicksOnlyWhatItHoldsItself) {
    using Release = SpacePress::Release;
    SpacePress space;
    EXPECT_EQ(space.GoesUp(false, true), Release::kNoClick) << "pressed elsewhere";
    EXPECT_FALSE(space.GoesDown(true)) << "the mouse holds it";
    EXPECT_EQ(space.GoesUp(true, true), Release::kNotOurs);
    const auto press = [&] {
        EXPECT_TRUE(space.GoesDown(false));
        space.WentDown(true);
        EXPECT_TRUE(space.GoesDown(true)) << "held down";
    };
    press();
    EXPECT_EQ(space.GoesUp(true, true), Release::kClick);
    EXPECT_EQ(space.GoesUp(false, false), Release::kNoClick) << "once";
    press();
    EXPECT_EQ(space.GoesUp(true, false), Release::kNoClick) << "a program let it up";
    press();
    space.LoseCapture();
    EXPECT_EQ(space.GoesUp(true, true), Release::kNotOurs) << "the mouse has taken it over";
}

}  // namespace qv
