#include "list/core/sorted_places.h"

#include <gtest/gtest.h>
#include <random>

namespace qv {

// The walk from the first row, which the fast way is held against.
TEST(SortedPlaces, FindsWhatAWalkFinds) {
    std::mt19937 random(7);
    for (int nRun = 0; nRun < 60; ++nRun) {
        SortedPlaces places;
        std::vector<std::string> rows;
        const auto anyKey = [&] {
            std::string str(random() % 3, ' ');
            for (char& ch : str) {
                ch = static_cast<char>(
                    "\x1b"
                    "ab\xe9"[random() % 4]);
            }
            return str;
        };
        for (unsigned n = random() % 20; n > 0; --n) {
            rows.push_back(anyKey());
            places.Append(rows.back());
        }
        for (int nStep = 0; nStep < 60; ++nStep) {
            const std::string strNew = anyKey();
            size_t nWalk = 0;
            while (nWalk < rows.size() && !(rows[nWalk] > strNew)) {
                ++nWalk;
            }
            ASSERT_EQ(places.Find(strNew), nWalk);
            // What stands in the row afterwards may order in another way than what was looked for.
            const std::string strStored = nStep % 2 != 0 ? strNew : anyKey();
            rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(nWalk), strStored);
            places.Insert(nWalk, strStored);
            ASSERT_TRUE(places.CheckInvariants());
        }
    }
}

TEST(SortedPlaces, NumberKeysOrderAsNumbers) {
    const std::int32_t values[] = {INT32_MIN, -70000, -1, 0, 1, 255, 256, 70000, INT32_MAX};
    for (size_t i = 1; i < std::size(values); ++i) {
        EXPECT_LT(NumberKey(values[i - 1]), NumberKey(values[i]));
    }
}

}  // namespace qv
