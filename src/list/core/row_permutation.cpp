#include "list/core/row_permutation.h"

#include <algorithm>
#include <numeric>

namespace qv {

std::uint32_t RowPermutation::RowAt(std::size_t nPlace) const {
    if (nPlace >= m_nRows) {
        return kNone;
    }
    return IsPlain() ? static_cast<std::uint32_t>(nPlace) : m_rows[nPlace];
}

std::uint32_t RowPermutation::PlaceOf(std::uint32_t nRow) const {
    if (nRow >= m_nRows) {
        return kNone;
    }
    if (IsPlain()) {
        return nRow;
    }
    if (m_places.empty()) {
        m_places.resize(m_nRows);
        for (std::size_t nPlace = 0; nPlace < m_nRows; ++nPlace) {
            m_places[m_rows[nPlace]] = static_cast<std::uint32_t>(nPlace);
        }
    }
    return m_places[nRow];
}

std::size_t RowPermutation::SetCount(std::size_t nRows, std::size_t nAbove) {
    nAbove = std::min(nAbove, m_nRows);
    if (IsPlain()) {
        m_nRows = nRows;
        return std::min(nAbove, nRows);
    }
    const auto goes = [nRows](std::uint32_t nRow) { return nRow >= nRows; };
    const auto above = m_rows.begin() + static_cast<std::ptrdiff_t>(nAbove);
    nAbove -= static_cast<std::size_t>(std::count_if(m_rows.begin(), above, goes));
    if (nRows > m_nRows) {
        m_rows.resize(nRows);
        std::iota(m_rows.begin() + static_cast<std::ptrdiff_t>(m_nRows), m_rows.end(),
                  static_cast<std::uint32_t>(m_nRows));
    } else {
        std::erase_if(m_rows, goes);
    }
    m_nRows = nRows;
    m_places.clear();
    return nAbove;
}

void RowPermutation::Arrange(const std::vector<std::uint32_t>& ranks, bool bAscending) {
    if (m_nRows == 0) {
        return;
    }
    const std::uint32_t nGreatest = *std::max_element(ranks.begin(), ranks.end());
    const auto turn = [&](std::uint32_t nRow) {
        return bAscending ? ranks[nRow] : nGreatest - ranks[nRow];
    };
    // Where the rows of each rank begin, then where the next one goes.
    std::vector<std::uint32_t> next(std::size_t{nGreatest} + 2);
    for (std::uint32_t nRow = 0; nRow < m_nRows; ++nRow) {
        ++next[std::size_t{turn(nRow)} + 1];
    }
    std::partial_sum(next.begin(), next.end(), next.begin());
    std::vector<std::uint32_t> rows(m_nRows);
    for (std::size_t nPlace = 0; nPlace < m_nRows; ++nPlace) {
        const std::uint32_t nRow = RowAt(nPlace);
        rows[next[turn(nRow)]++] = nRow;
    }
    m_rows = std::move(rows);
    m_places.clear();
}

void RowPermutation::Reset() {
    m_rows.clear();
    m_places.clear();
}

bool RowPermutation::CheckInvariants() const {
    std::vector<bool> seen(m_nRows);
    for (const std::uint32_t nRow : m_rows) {
        if (nRow >= m_nRows || seen[nRow]) {
            return false;
        }
        seen[nRow] = true;
    }
    return IsPlain() || m_rows.size() == m_nRows;
}

}  // namespace qv
