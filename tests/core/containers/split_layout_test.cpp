#include "containers/core/split_layout.h"

#include <gtest/gtest.h>

namespace qv {

TEST(SplitLayout, BarAndPanesLieBesideEachOther) {
    const SplitLayout across{{100, 40}, true, 5};
    EXPECT_EQ(across.Bar(50), (Rect{48, 0, 52, 40})) << "an odd width loses a pixel";
    EXPECT_EQ(across.Pane(0, 50), (Rect{0, 0, 48, 40}));
    const SplitLayout down{{40, 100}, false, 4};
    EXPECT_EQ(down.Bar(30), (Rect{0, 28, 40, 32}));
    EXPECT_EQ(down.Pane(1, 30), (Rect{0, 32, 40, 100}));
}

}  // namespace qv
