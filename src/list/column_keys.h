// The texts of a sorting list's column, read as its type says.

#pragma once

#include "list/core/key_ranks.h"
#include "list/sorting_list_ctrl.h"

#include <string>
#include <unordered_map>

namespace qv {

class ColumnKeys {
public:
    explicit ColumnKeys(QVLISTCTRL_DATATYPE nType) : m_nType(nType) {}
    // May throw std::bad_alloc.
    void Add(KeyRanks& keys, LPCSTR pszText);

private:
    double Date(LPCSTR pszText);

    const QVLISTCTRL_DATATYPE m_nType;
    std::unordered_map<std::string, double> m_dates;  // the same days come again and again
};

// What the texts of one column were read for. As long as it is the same, and no text has changed,
// their ranks hold.
struct ColumnRead {
    ColumnRead(int nSortCol, QVLISTCTRL_DATATYPE nSortType, int nNumStyles);
    friend bool operator==(const ColumnRead&, const ColumnRead&) = default;

    int nCol;
    QVLISTCTRL_DATATYPE nType;
    int nStyles;
    std::string strDateFormat;  // of dates alone: what they are read by
};

}  // namespace qv
