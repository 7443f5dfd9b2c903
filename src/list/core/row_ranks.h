// The ranks of rows that a sort tells apart by a word of their own each, such as their item data.

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace qv {

class RowRanks {
public:
    static constexpr std::uint32_t kNone = UINT32_MAX;  // behind every rank

    struct Row {
        std::uintptr_t nWord;
        std::uint32_t nRank;
    };

    // False if two rows have the same word; then no row has a rank. May throw std::bad_alloc.
    bool Assign(const std::vector<Row>& rows);
    // kNone for a word that no row has.
    std::uint32_t Find(std::uintptr_t nWord) const;

private:
    bool AssignByNumber(const std::vector<Row>& rows);
    std::size_t SlotOf(std::uintptr_t nWord) const;

    // Words that are numbers close to each other, as indices are, stand in a table by their
    // number, all others in a hash table of a power of two, at most half of it taken.
    std::vector<std::uint32_t> m_ranks;
    std::uintptr_t m_nFirst = 0;
    std::vector<Row> m_slots;
    int m_nShift = 0;
};

}  // namespace qv
