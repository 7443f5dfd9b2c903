#include "frame/core/sort_keys.h"

#include <gtest/gtest.h>
#include <iterator>

namespace qv {

// Before day 0 the fraction still is the time that has passed of the day.
TEST(SortKeys, DatesOrderByTimeOnBothSidesOfDayZero) {
    const MultiByte text;
    const SortKeys keys(text);
    const double dates[] = {-2.25, -2.75, -1.0, -1.5, 0.0, 0.5, 1.0, 45000.1, 45000.2};
    for (size_t i = 1; i < std::size(dates); ++i) {
        EXPECT_EQ(keys.Compare(SortKeys::Date(dates[i - 1]), SortKeys::Date(dates[i])), -1) << i;
    }
    EXPECT_EQ(keys.Compare(SortKeys::Date(0.0), SortKeys::Date(-0.0)), 0);
}

}  // namespace qv
