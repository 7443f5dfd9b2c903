#include "buttons/core/check_press.h"
#include "buttons/core/menu_face.h"

#include <gtest/gtest.h>

namespace qv {

TEST(CheckPress, AClickMovesTheState) {
    EXPECT_EQ(ClickedCheck(kUnchecked), kChecked);
    EXPECT_EQ(ClickedCheck(kChecked), kUnchecked);
    EXPECT_EQ(ClickedCheck(kIndeterminate), kChecked);
    EXPECT_EQ(ClickedCheck(-7), kUnchecked) << "its logical negation";
}

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

TEST(MenuFace, CaptionAndArrowAreCentredTogether) {
    constexpr FaceFont kFont{13, 3, 20};
    const Rect rc = CaptionBlock({10, 20, 111, 50}, 40, kFont);
    EXPECT_EQ(rc, (Rect{27, 27, 94, 40}));
    EXPECT_EQ(ArrowRect(rc), (Rect{86, 27, 94, 40}));
    EXPECT_EQ(CaptionBlock({0, 0, 20, 11}, 40, kFont), (Rect{-23, -2, 44, 11})) << "truncated";
    const auto lines = ArrowLines(ArrowRect(rc));
    for (int i = 0; i < 4; ++i) {
        const ArrowLine& line = lines[static_cast<size_t>(i)];
        EXPECT_EQ(line.start.x, 87 + i);
        EXPECT_EQ(line.start.y, 31 + i);
        EXPECT_EQ(line.nLength, 7 - 2 * i);
    }
}

}  // namespace qv
