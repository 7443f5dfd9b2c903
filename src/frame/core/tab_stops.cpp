#include "frame/core/tab_stops.h"

#include "base/platform_names.h"

#include <algorithm>
#include <limits>

namespace qv {

namespace {

constexpr int kFormatStep = 10000;
constexpr unsigned kLastFormat = 2;
// The farthest position that goes into a stop with any format.
constexpr int kFarthest =
    std::numeric_limits<int>::max() - static_cast<int>(kLastFormat) * kFormatStep;

unsigned FormatOf(int nEncoded) {
    return nEncoded < kFormatStep ? 0 : std::min<unsigned>(nEncoded / kFormatStep, kLastFormat);
}

int PositionOf(int nEncoded) {
    return nEncoded - static_cast<int>(FormatOf(nEncoded)) * kFormatStep;
}

int Encode(int nPosition, unsigned nFormat) {
    return nPosition + static_cast<int>(nFormat) * kFormatStep;
}

// The stop of an index, or null.
template <class Int>
Int* StopAt(std::span<Int> tabs, int nTab) {
    return nTab >= 0 && static_cast<std::size_t>(nTab) < tabs.size() ? &tabs[nTab] : nullptr;
}

}  // namespace

int TabValue(std::span<const int> tabs, int nTab) {
    const int* pStop = StopAt(tabs, nTab);
    return pStop != nullptr ? PositionOf(*pStop) : 0;
}

void SetTabValue(std::span<int> tabs, int nTab, int nValue) {
    if (int* pStop = StopAt(tabs, nTab)) {
        *pStop = Encode(std::clamp(nValue, 0, kFarthest), FormatOf(*pStop));
    }
}

unsigned TabFormat(std::span<const int> tabs, int nTab) {
    const int* pStop = StopAt(tabs, nTab);
    return pStop != nullptr ? FormatOf(*pStop) : DT_LEFT;
}

void SetTabFormat(std::span<int> tabs, int nTab, unsigned nFormat) {
    if (int* pStop = StopAt(tabs, nTab)) {
        *pStop =
            Encode(std::min(PositionOf(*pStop), kFarthest), nFormat > kLastFormat ? 0 : nFormat);
    }
}

int CopyTabs(const int* pFrom, int nCount, int* pTable) {
    if (pFrom == nullptr) {
        nCount = 0;
    } else if (nCount == -1) {
        nCount = static_cast<int>(std::find(pFrom, pFrom + kMaxTabs, 0) - pFrom);
    }
    nCount = std::clamp(nCount, 0, kMaxTabs);
    std::fill(std::copy(pFrom, pFrom + nCount, pTable), pTable + kMaxTabs, 0);
    return nCount;
}

}  // namespace qv
