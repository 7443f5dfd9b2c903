#include "list/core/list_columns.h"

#include <algorithm>
#include <cstdint>

namespace qv {

void ListColumns::SetCount(int nColumns) {
    m_nColumns = std::max(nColumns, 0);
}

void ListColumns::CountInserted(int nCol) {
    if (nCol >= m_nColumns) {
        m_nColumns = nCol + 1;
    }
}

void ListColumns::CountDeleted() {
    SetCount(m_nColumns - 1);
}

void ListColumns::Clear() {
    m_nColumns = 0;
    m_aColFormat.clear();
    m_aColStyle.clear();
}

bool ListColumns::IsExcluded(int nCol) const {
    return std::find(m_aPrintExclude.begin(), m_aPrintExclude.end(), nCol) != m_aPrintExclude.end();
}

int* ListColumns::PrintWidths() {
    m_aPrintColWidths.resize(
        std::max(m_aPrintColWidths.size(), static_cast<size_t>(m_nColumns) + 1));
    return m_aPrintColWidths.data();
}

int ListColumns::Read(const std::vector<int>& table, int nCol) const {
    return IsColumn(nCol) && static_cast<size_t>(nCol) < table.size()
               ? table[static_cast<size_t>(nCol)]
               : 0;
}

void ListColumns::Write(std::vector<int>& table, int nCol, int nValue) const {
    if (!IsColumn(nCol)) {
        return;
    }
    if (static_cast<size_t>(nCol) >= table.size()) {
        table.resize(static_cast<size_t>(m_nColumns));
    }
    table[static_cast<size_t>(nCol)] = nValue;
}

int PrintWidth(int nWidth, int nPageWidth, int nTotal) {
    if (nTotal <= 0) {
        return 0;
    }
    return static_cast<int>(static_cast<std::int64_t>(nWidth) * nPageWidth / nTotal);
}

}  // namespace qv
