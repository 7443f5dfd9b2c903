#include "list/core/row_order.h"

#include <algorithm>

namespace qv {

void RowOrder::Arrange() {
    // Sorted by themselves: the start of a key decides most comparisons.
    struct Entry {
        std::uint64_t nStart;
        std::uint32_t nRow;
    };
    std::vector<Entry> entries;
    entries.reserve(m_rows.size());
    for (const Row& row : m_rows) {
        entries.push_back({row.key.nStart, static_cast<std::uint32_t>(entries.size())});
    }
    const auto compare = [this](const Entry& a, const Entry& b) {
        return a.nStart != b.nStart ? (a.nStart < b.nStart ? -1 : 1)
                                    : m_keys.Compare(m_rows[a.nRow].key, m_rows[b.nRow].key);
    };
    std::sort(entries.begin(), entries.end(),
              [&](const Entry& a, const Entry& b) { return compare(a, b) < 0; });
    std::uint32_t nRank = 0;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        nRank += i > 0 && compare(entries[i - 1], entries[i]) != 0;
        m_rows[entries[i].nRow].nRank = nRank;
    }
}

bool RowOrder::ByWords(RowRanks& ranks) const {
    std::vector<RowRanks::Row> rows;
    rows.reserve(m_rows.size());
    for (const Row& row : m_rows) {
        rows.push_back({row.nWord, row.nRank});
    }
    return ranks.Assign(rows);
}

std::size_t RowOrder::ParkedRow(std::uintptr_t nWord) const {
    const std::uintptr_t nOffset = nWord - reinterpret_cast<std::uintptr_t>(m_rows.data());
    return nOffset < m_nParked * sizeof(Row) && nOffset % sizeof(Row) == 0 ? nOffset / sizeof(Row)
                                                                           : kNoRow;
}

}  // namespace qv
