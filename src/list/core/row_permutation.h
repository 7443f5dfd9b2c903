// The order in which a list shows rows that stay where they are: which row of the data is shown at
// which place. Rows that were never sorted stand as the data do, and take no memory.

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace qv {

class RowPermutation {
public:
    static constexpr std::uint32_t kNone = UINT32_MAX;

    std::size_t Count() const { return m_nRows; }
    bool IsPlain() const { return m_rows.empty(); }
    // kNone for a place that is none.
    std::uint32_t RowAt(std::size_t nPlace) const;
    // kNone for a row that is none. The first call after a change walks all rows. May throw
    // std::bad_alloc.
    std::uint32_t PlaceOf(std::uint32_t nRow) const;

    // New rows come behind all others, as the data have them; rows that go leave the others as they
    // stand. Gives how many of the first nAbove places stay. May throw std::bad_alloc, and changes
    // nothing then; so does Arrange.
    std::size_t SetCount(std::size_t nRows, std::size_t nAbove = 0);
    // By the rank of each row; rows of one rank stay in turn.
    void Arrange(const std::vector<std::uint32_t>& ranks, bool bAscending);
    // As the data stand again.
    void Reset();

    bool CheckInvariants() const;

private:
    std::size_t m_nRows = 0;
    std::vector<std::uint32_t> m_rows;            // by place; empty: each at its own
    mutable std::vector<std::uint32_t> m_places;  // by row; empty: not known
};

}  // namespace qv
