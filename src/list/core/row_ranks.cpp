#include "list/core/row_ranks.h"

#include <algorithm>
#include <bit>

namespace qv {

bool RowRanks::Assign(const std::vector<Row>& rows) {
    m_ranks.clear();
    m_slots.clear();
    if (AssignByNumber(rows)) {
        return !m_ranks.empty() || rows.empty();
    }
    const std::size_t nSlots = std::bit_ceil(rows.size() * 2 + 2);
    m_slots.assign(nSlots, {0, kNone});
    m_nShift = 64 - std::countr_zero(nSlots);
    for (const Row& row : rows) {
        Row& slot = m_slots[SlotOf(row.nWord)];
        if (slot.nRank != kNone) {
            m_slots.clear();
            return false;
        }
        slot = row;
    }
    return true;
}

// False if the words lie too far apart. The table stays empty if two words are the same.
bool RowRanks::AssignByNumber(const std::vector<Row>& rows) {
    constexpr std::size_t kRoomForEach = 4;
    const auto [least, most] = std::minmax_element(
        rows.begin(), rows.end(), [](const Row& a, const Row& b) { return a.nWord < b.nWord; });
    if (rows.empty() || most->nWord - least->nWord >= rows.size() * kRoomForEach) {
        return rows.empty();
    }
    m_nFirst = least->nWord;
    m_ranks.assign(most->nWord - least->nWord + 1, kNone);
    for (const Row& row : rows) {
        std::uint32_t& nRank = m_ranks[row.nWord - m_nFirst];
        if (nRank != kNone) {
            m_ranks.clear();
            break;
        }
        nRank = row.nRank;
    }
    return true;
}

std::uint32_t RowRanks::Find(std::uintptr_t nWord) const {
    if (!m_ranks.empty()) {
        return nWord - m_nFirst < m_ranks.size() ? m_ranks[nWord - m_nFirst] : kNone;
    }
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
