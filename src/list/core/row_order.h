// Puts the rows of a list in order by keys made once for each, for a control that sorts rows by
// what it keeps for them, one word a row.
//
// The control compares words, so each row needs one of its own. Where the rows' words differ, ranks
// are found by them. Otherwise each row is given another word for the length of the sort, the
// address of its record here: the row is parked.

#pragma once

#include "frame/core/sort_keys.h"
#include "list/core/row_ranks.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace qv {

class RowOrder {
public:
    static constexpr std::size_t kNoRow = SIZE_MAX;

    explicit RowOrder(const MultiByte& text) : m_keys(text) {}

    // --- The rows, in the order in which they stand. May throw std::bad_alloc.

    void Reserve(std::size_t nRows) { m_rows.reserve(nRows); }
    // Without regard to case.
    void AddText(const char* psz) { m_rows.push_back({m_keys.Text(psz)}); }
    void AddNumber(std::uint32_t n) { m_rows.push_back({SortKeys::Number(n)}); }
    // In days.
    void AddDate(double date) { m_rows.push_back({SortKeys::Date(date)}); }
    // Of no kind: all such rows are equal.
    void AddUnordered() { m_rows.push_back({}); }
    void SetWord(std::size_t nRow, std::uintptr_t nWord) { m_rows[nRow].nWord = nWord; }

    std::size_t Count() const { return m_rows.size(); }
    std::uintptr_t Word(std::size_t nRow) const { return m_rows[nRow].nWord; }

    // --- Their order

    // Equal rows get the same rank. No row may be added afterwards. May throw std::bad_alloc.
    void Arrange();
    std::uint32_t Rank(std::size_t nRow) const { return m_rows[nRow].nRank; }
    // The ranks by the rows' words; false if two rows have the same. May throw std::bad_alloc.
    bool ByWords(RowRanks& ranks) const;

    // --- Parked rows

    // The word under which the next row is parked, from the first on.
    std::uintptr_t ParkNext() { return reinterpret_cast<std::uintptr_t>(&m_rows[m_nParked++]); }
    bool AnyParked() const { return m_nParked > 0; }
    // The row that is parked under a word; kNoRow if it is no such word.
    std::size_t ParkedRow(std::uintptr_t nWord) const;

private:
    struct Row {
        SortKey key;
        std::uintptr_t nWord = 0;
        std::uint32_t nRank = 0;
    };

    SortKeys m_keys;
    std::vector<Row> m_rows;
    std::size_t m_nParked = 0;
};

}  // namespace qv
