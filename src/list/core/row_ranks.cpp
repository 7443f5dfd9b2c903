#include "list/core/row_ranks.h"

#include <bit>

namespace qv {

bool RowRanks::Assign(const std::vector<std::uintptr_t>& words) {
    const std::size_t nSlots = std::bit_ceil(words.size() * 2 + 2);
    m_slots.assign(nSlots, {0, kNone});
    m_nShift = 64 - std::countr_zero(nSlots);
    std::uint32_t nRank = 0;
    for (const std::uintptr_t nWord : words) {
        Slot& slot = m_slots[SlotOf(nWord)];
        if (slot.nRank != kNone) {
            m_slots.clear();
            return false;
        }
        slot = {nWord, nRank++};
    }
    return true;
}

std::uint32_t RowRanks::Find(std::uintptr_t nWord) const {
    return m_slots.empty() ? kNone : m_slots[SlotOf(nWord)].nRank;
}

// The word's slot, or the free one where it would go.
std::size_t RowRanks::SlotOf(std::uintptr_t nWord) const {
    // Words are often numbers in a row, or addresses that end in the same bits: the product's
    // upper bits depend on all of them.
    constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15;
    auto i = static_cast<std::size_t>(nWord * kSpread >> m_nShift);
    while (m_slots[i].nRank != kNone && m_slots[i].nWord != nWord) {
        i = (i + 1) & (m_slots.size() - 1);
    }
    return i;
}

}  // namespace qv
