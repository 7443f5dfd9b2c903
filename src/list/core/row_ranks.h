// The ranks of rows that a sort tells apart by a word of their own each, such as their item data.

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace qv {

class RowRanks {
public:
    static constexpr std::uint32_t kNone = UINT32_MAX;  // behind every rank

    // The word of the row of each rank. False if two rows have the same; then no row has a rank.
    // May throw std::bad_alloc.
    bool Assign(const std::vector<std::uintptr_t>& words);
    // kNone for a word that no row has.
    std::uint32_t Find(std::uintptr_t nWord) const;

private:
    struct Slot {
        std::uintptr_t nWord;
        std::uint32_t nRank;
    };

    std::size_t SlotOf(std::uintptr_t nWord) const;

    std::vector<Slot> m_slots;  // a power of two, at most half of them taken
    int m_nShift = 0;
};

}  // namespace qv
