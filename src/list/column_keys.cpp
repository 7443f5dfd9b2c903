#include "list/column_keys.h"

#include <afxdisp.h>

#include <cstdlib>

namespace qv {

namespace {

std::string DateFormat() {
    std::string str = std::to_string(::GetUserDefaultLCID());
    for (const LCTYPE nType : {LOCALE_SSHORTDATE, LOCALE_SLONGDATE, LOCALE_STIMEFORMAT}) {
        char sz[80];  // the longest of these formats
        str += ::GetLocaleInfoA(LOCALE_USER_DEFAULT, nType, sz, sizeof(sz)) > 0 ? sz : "";
    }
    return str;
}

}  // namespace

ColumnRead::ColumnRead(int nSortCol, QVLISTCTRL_DATATYPE nSortType, int nNumStyles)
    : nCol(nSortCol),
      nType(nSortType),
      nStyles(nNumStyles),
      strDateFormat(nSortType == lcdtDate ? DateFormat() : std::string()) {}

void ColumnKeys::Add(KeyRanks& keys, LPCSTR pszText) {
    switch (m_nType) {
        case lcdtString:
            keys.AddText(pszText);
            break;
        case lcdtDate:
            keys.AddDate(Date(pszText));
            break;
        case lcdtNumber:
            keys.AddNumber(static_cast<std::uint32_t>(std::atol(pszText)));
            break;
        default:
            keys.AddUnordered();
            break;
    }
}

double ColumnKeys::Date(LPCSTR pszText) {
    const auto [it, bNew] = m_dates.try_emplace(pszText);
    if (bNew) {
        COleDateTime date;
        if (!date.ParseDateTime(pszText, 0, LANG_USER_DEFAULT)) {
            date = COleDateTime(static_cast<time_t>(0));
        }
        it->second = date.m_dt;
    }
    return it->second;
}

}  // namespace qv
