#include "containers/core/header_bar.h"

#include <gtest/gtest.h>

namespace qv {

TEST(HeaderBar, BarLineAndBodyFillTheClientArea) {
    const HeaderBar layout{{3, 5, 203, 105}, HeaderBar::HeightFor(13)};
    EXPECT_EQ(layout.nHeight, 17);
    EXPECT_EQ(layout.Bar(), (Rect{3, 5, 203, 21})) << "the frame line is the row at 21";
    EXPECT_EQ(layout.Body(), (Rect{3, 22, 203, 105}));
}

TEST(HeaderBar, TheCaptionIsCentredInATallerBarAndAsWideAsItsText) {
    EXPECT_EQ((HeaderBar{{3, 5, 203, 105}, 17}.Caption(13, 80)), (Rect{9, 5, 89, 20}));
    EXPECT_EQ((HeaderBar{{3, 5, 203, 105}, 28}.Caption(13, 80)), (Rect{9, 10, 89, 25}));
    EXPECT_EQ((HeaderBar{{0, 0, 50, 50}, 17}.Caption(13, 80)), (Rect{6, 0, 86, 15}))
        << "also where it does not fit";
}

}  // namespace qv
