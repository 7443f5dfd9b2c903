#include "dialogs/core/progress_percent.h"

#include <gtest/gtest.h>
#include <random>

TEST(ProgressPercent, OfAnyCountIsThatOfAWideProduct) {
    std::mt19937_64 random(4);
    for (int i = 0; i < 100000; ++i) {
        const std::uint64_t nRange = random() >> random() % 64;
        const std::uint64_t nPos = i % 3 == 0 ? nRange - random() % 3 : random() >> random() % 64;
        const auto nWide = static_cast<unsigned __int128>(nPos) * 100;
        const auto nExpected = nPos == 0 ? 0 : nPos >= nRange ? 100 : nWide / nRange;
        ASSERT_EQ(qv::Percent(nPos, nRange), nExpected) << nPos << " of " << nRange;
    }
}
