#include "grid/core/grid_list_rect.h"

#include <gtest/gtest.h>

namespace qv {

TEST(GridList, HangsUnderItsCellAsTallAsItsLines) {
    EXPECT_EQ(GridListRect({10, 20, 90, 40}, 15, 4), (Rect{10, 39, 89, 101}));
    EXPECT_EQ(GridListRect({10, 20, 90, 40}, 15, 0), (Rect{10, 39, 89, 41}));
}

TEST(GridList, ALimitedOneStaysOnTheScreen) {
    constexpr Rect kScreen{0, 0, 200, 100};
    const auto at = [&](int nLeft, int nTop, int nLines, int nMaxLines) {
        return GridListRectOnScreen({nLeft, nTop, nLeft + 80, nTop + 20}, 10, nLines, nMaxLines,
                                    kScreen);
    };
    EXPECT_EQ(at(10, 0, 4, 8), (Rect{10, 19, 89, 61}));
    EXPECT_EQ(at(10, 0, 40, 3), (Rect{10, 19, 89, 51})) << "the limit";
    EXPECT_EQ(at(10, 59, 2, 8), (Rect{10, 78, 89, 100})) << "just fits";
    EXPECT_EQ(at(10, 60, 2, 8), (Rect{10, 38, 89, 60})) << "above the cell";
    EXPECT_EQ(at(10, 60, 40, 40), (Rect{10, 8, 89, 60})) << "as much as fits above";
    EXPECT_EQ(at(10, 30, 40, 40), (Rect{10, 49, 89, 91})) << "as much as fits under it";
    EXPECT_EQ(at(150, 0, 1, 8), (Rect{121, 19, 200, 31}));
    EXPECT_EQ(at(-30, 0, 1, 8), (Rect{0, 19, 79, 31}));
    EXPECT_EQ(at(10, 90, 0, 8).Height(), 2);
    constexpr Rect kSlit{0, 0, 200, 5};
    EXPECT_EQ(GridListRectOnScreen({0, 0, 80, 20}, 10, 9, 8, kSlit).Height(), 12) << "one line";
}

}  // namespace qv
