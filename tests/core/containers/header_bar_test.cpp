#include "containers/core/header_bar.h"

#include <gtest/gtest.h>

namespace qv {

TEST(HeaderBar, BarLineAndBodyFillTheClientAreaAndTheCaptionIsCentred) {
    const HeaderBar layout{{3, 5, 203, 105}, 28};
    EXPECT_EQ(layout.Bar(), (Rect{3, 5, 203, 32})) << "the frame line is the row at 32";
    EXPECT_EQ(layout.Body(), (Rect{3, 33, 203, 105}));
    EXPECT_EQ(layout.Caption(13, 80), (Rect{9, 10, 89, 25}));
}

}  // namespace qv
