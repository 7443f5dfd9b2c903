// Puts the rows of a list in order by keys made once for each, for a control that sorts rows by
// what it keeps for them, one word a row.
//
// The control compares words, so each row needs one of its own. Where the rows' words differ, ranks
// are found by them. Otherwise each row is given another word for the length of the sort, the
// address of its own one here: the row is parked.

#pragma once

#include "list/core/key_ranks.h"
#include "list/core/row_ranks.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace qv {

// The rows are added in the order in which they stand.
class RowOrder : public KeyRanks {
public:
    static constexpr std::size_t kNoRow = SIZE_MAX;

    using KeyRanks::KeyRanks;

    // wordOf(nRow) for each row. May throw std::bad_alloc.
    template <class WordOf>
    void SetWords(WordOf wordOf);
    std::uintptr_t Word(std::size_t nRow) const { return m_words[nRow]; }

    // --- Their order

    // No row may be added afterwards. May throw std::bad_alloc.
    void Arrange() { m_ranks = TakeRanks(); }
    std::uint32_t Rank(std::size_t nRow) const { return m_ranks[nRow]; }
    // The ranks by the rows' words; false if two rows have the same. May throw std::bad_alloc.
    bool ByWords(RowRanks& ranks) const;

    // --- Parked rows

    // The word under which the next row is parked, from the first on.
    std::uintptr_t ParkNext() { return reinterpret_cast<std::uintptr_t>(&m_words[m_nParked++]); }
    bool AnyParked() const { return m_nParked > 0; }
    // The row that is parked under a word; kNoRow if it is no such word.
    std::size_t ParkedRow(std::uintptr_t nWord) const;

private:
    std::vector<std::uintptr_t> m_words;
    std::vector<std::uint32_t> m_ranks;
    std::size_t m_nParked = 0;
};

template <class WordOf>
void RowOrder::SetWords(WordOf wordOf) {
    m_words.resize(Count());
    for (std::size_t nRow = 0; nRow < Count(); ++nRow) {
        m_words[nRow] = wordOf(nRow);
    }
}

}  // namespace qv
