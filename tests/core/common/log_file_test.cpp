#include "support/fake_log.h"

#include <gtest/gtest.h>

namespace {

// Trimming begins to look where half the limit is left; there the first piece begins.
TEST(LogFile, TrimmingFindsTheEntryThatBeginsOnABorderOfPieces) {
    constexpr std::size_t kHalf = 3 * qv::kLogPiece;
    const std::string strNewest = "=== newest\n";
    for (const std::size_t nBorder : {std::size_t{5}, qv::kLogPiece, 2 * qv::kLogPiece - 4}) {
        for (std::size_t nAt = nBorder - 5; nAt <= nBorder + 1; ++nAt) {
            std::string strKept(kHalf - nAt - strNewest.size(), 'x');
            strKept.replace(0, 4, "=== ").back() = '\n';
            FakeLog log;
            log.str = "=== old" + std::string(2 * kHalf, 'o') + "\n" + strKept;
            qv::AppendToLog(log, strNewest, 2 * kHalf);
            EXPECT_TRUE(log.str == strKept + strNewest) << nAt;
        }
    }
}

}  // namespace
