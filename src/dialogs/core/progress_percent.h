// How far an operation has come, in percent.

#pragma once

#include <cstdint>

namespace qv {

// In 32 bits, whose product overflows for positions above 42,949,672: what is shown then is wrong.
// Callers scale, or count in 64 bits.
constexpr std::uint32_t PercentIn32Bits(std::uint32_t nPos, std::uint32_t nRange) {
    return nPos < nRange ? nPos * std::uint32_t{100} / nRange : nPos == 0 ? 0 : 100;
}

// Rounded down, for any position: 100 means that the range is reached.
constexpr std::uint32_t Percent(std::uint64_t nPos, std::uint64_t nRange) {
    constexpr std::uint64_t kAll = 100;
    if (nPos >= nRange) {
        return nPos == 0 ? 0 : kAll;
    }
    if (nPos <= UINT64_MAX / kAll) {
        return static_cast<std::uint32_t>(nPos * kAll / nRange);
    }
    // The range is as large: the highest percentage whose part of it, rounded up, is reached.
    std::uint64_t nPercent = kAll;
    std::uint64_t nPart = 0;
    do {
        --nPercent;
        nPart = nPercent * (nRange / kAll) + (nPercent * (nRange % kAll) + kAll - 1) / kAll;
    } while (nPart > nPos);
    return static_cast<std::uint32_t>(nPercent);
}

}  // namespace qv
