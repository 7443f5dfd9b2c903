#include "list/core/row_order.h"

namespace qv {

bool RowOrder::ByWords(RowRanks& ranks) const {
    std::vector<RowRanks::Row> rows;
    rows.reserve(Count());
    for (std::size_t nRow = 0; nRow < Count(); ++nRow) {
        rows.push_back({m_words[nRow], m_ranks[nRow]});
    }
    return ranks.Assign(rows);
}

std::size_t RowOrder::ParkedRow(std::uintptr_t nWord) const {
    constexpr std::size_t kBytes = sizeof(std::uintptr_t);
    const std::uintptr_t nOffset = nWord - reinterpret_cast<std::uintptr_t>(m_words.data());
    return nOffset < m_nParked * kBytes && nOffset % kBytes == 0 ? nOffset / kBytes : kNoRow;
}

}  // namespace qv
