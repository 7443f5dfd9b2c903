#include "list/sorting_list_ctrl.h"

#include <afxdisp.h>

#include <cstdlib>
#include <new>
#include <unordered_map>

#include "frame/core/sort_keys.h"
#include "frame/module_state.h"

IMPLEMENT_DYNCREATE(QVSortingListCtrl, QVListCtrlEx)

// --- Columns

void QVSortingListCtrl::AddHeader(LPCSTR pszHeaders, QVLISTCTRL_DATATYPE nType) {
    QVListCtrlEx::AddHeader(pszHeaders);
    const int nAdded = HeaderColumnCount(pszHeaders);
    for (int i = 1; i <= nAdded && i <= NumColumns(); ++i) {
        m_aColTypes.SetAtGrow(NumColumns() - i, static_cast<WORD>(nType));
    }
}

void QVSortingListCtrl::AddHeader(UINT nStringID, QVLISTCTRL_DATATYPE nType) {
    CString strHeaders;
    if (strHeaders.LoadString(nStringID)) {
        AddHeader(strHeaders, nType);
    }
}

int QVSortingListCtrl::HeaderColumnCount(LPCSTR pszHeaders) const {
    const CString strHeaders(pszHeaders);
    CString strField;
    int nFields = 0;
    for (int nPos = 0; NextField(strHeaders, nPos, strField);) {
        ++nFields;
    }
    return nFields;
}

int QVSortingListCtrl::InsertColumn(int, const LVCOLUMN*) {
    return -1;
}

int QVSortingListCtrl::InsertColumn(int, LPCSTR, int, int, int) {
    return -1;
}

QVLISTCTRL_DATATYPE QVSortingListCtrl::ColumnSortType(int nCol) const {
    return nCol >= 0 && nCol < m_aColTypes.GetSize()
               ? static_cast<QVLISTCTRL_DATATYPE>(m_aColTypes[nCol])
               : lcdtString;
}

// --- Sorting

struct QVSortingListCtrl::Record {
    DWORD_PTR dwData;  // the item's own
    qv::SortKey key;
};

// One sort: the keys, and the records that stand in for the item data while the control sorts.
class QVSortingListCtrl::Sort {
public:
    explicit Sort(QVSortingListCtrl& list)
        : m_list(list), m_keys(qv::ProcessText()), m_outer(list.m_pSort) {
        list.m_pSort = this;
    }
    ~Sort() {
        Unpark();
        m_list.m_pSort = m_outer;
    }
    Sort(const Sort&) = delete;
    Sort& operator=(const Sort&) = delete;

    // Reads the rows. Changes nothing, so it may throw std::bad_alloc.
    void MakeRecords(int nCol);
    // False if the control refuses; what was parked is put back.
    bool Park();
    int Compare(const Record& record1, const Record& record2) const {
        return m_keys.Compare(record1.key, record2.key);
    }

private:
    qv::SortKey MakeKey(LPCSTR pszText, QVLISTCTRL_DATATYPE nType);
    qv::SortKey DateKey(LPCSTR pszText);
    const Record* RecordOf(DWORD_PTR dwData) const;
    void Unpark();

    QVSortingListCtrl& m_list;
    qv::SortKeys m_keys;
    std::vector<Record> m_records;
    std::unordered_map<std::string, qv::SortKey> m_dates;  // the same days come again and again
    size_t m_nParked = 0;
    Sort* m_outer;
};

void QVSortingListCtrl::Sort::MakeRecords(int nCol) {
    const auto nType = m_list.ColumnSortType(nCol);
    const int nItems = m_list.GetItemCount();
    m_records.reserve(static_cast<size_t>(nItems));
    for (int nItem = 0; nItem < nItems; ++nItem) {
        LPCSTR pszText = m_list.CellText(nItem, nCol);
        if (nCol == 0) {
            pszText = m_list.ParseStyleText(pszText);
        }
        const qv::SortKey key = MakeKey(pszText, nType);
        m_records.push_back({m_list.GetItemData(nItem), key});
    }
}

qv::SortKey QVSortingListCtrl::Sort::MakeKey(LPCSTR pszText, QVLISTCTRL_DATATYPE nType) {
    switch (nType) {
        case lcdtString:
            return m_keys.Text(pszText);
        case lcdtDate:
            return DateKey(pszText);
        case lcdtNumber:
            return qv::SortKeys::Number(static_cast<std::uint32_t>(std::atol(pszText)));
        default:
            return {};
    }
}

qv::SortKey QVSortingListCtrl::Sort::DateKey(LPCSTR pszText) {
    const auto [it, bNew] = m_dates.try_emplace(pszText);
    if (bNew) {
        COleDateTime date;
        if (!date.ParseDateTime(pszText, 0, LANG_USER_DEFAULT)) {
            date = COleDateTime(static_cast<time_t>(0));
        }
        it->second = qv::SortKeys::Date(date.m_dt);
    }
    return it->second;
}

bool QVSortingListCtrl::Sort::Park() {
    for (; m_nParked < m_records.size(); ++m_nParked) {
        const auto dwRecord = reinterpret_cast<DWORD_PTR>(&m_records[m_nParked]);
        if (!m_list.SetItemData(static_cast<int>(m_nParked), dwRecord)) {
            return false;
        }
    }
    return true;
}

// The record that a data word points at; null if it is the application's own.
const QVSortingListCtrl::Record* QVSortingListCtrl::Sort::RecordOf(DWORD_PTR dwData) const {
    const auto nFirst = reinterpret_cast<DWORD_PTR>(m_records.data());
    const DWORD_PTR nOffset = dwData - nFirst;
    return nOffset < m_nParked * sizeof(Record) && nOffset % sizeof(Record) == 0
               ? reinterpret_cast<const Record*>(dwData)
               : nullptr;
}

void QVSortingListCtrl::Sort::Unpark() {
    if (m_nParked == 0) {
        return;
    }
    const int nItems = m_list.GetItemCount();
    for (int nItem = 0; nItem < nItems; ++nItem) {
        if (const Record* pRecord = RecordOf(m_list.GetItemData(nItem))) {
            m_list.SetItemData(nItem, pRecord->dwData);
        }
    }
}

void QVSortingListCtrl::SortOnHeader(int nCol) {
    try {
        Sort sort(*this);
        sort.MakeRecords(nCol);
        m_bAscending = nCol != m_nSortCol || !m_bAscending;
        m_nSortCol = nCol;
        if (sort.Park()) {
            SortItems(SortFunc, reinterpret_cast<DWORD_PTR>(this));
        }
    } catch (const std::bad_alloc&) {
        // The rows and their data are as they were.
    }
}

void QVSortingListCtrl::ReSort() {
    m_bAscending = !m_bAscending;
    SortOnHeader(m_nSortCol);
}

int CALLBACK QVSortingListCtrl::SortFunc(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort) {
    const auto* pList = reinterpret_cast<const QVSortingListCtrl*>(lParamSort);
    const auto& record1 = *reinterpret_cast<const Record*>(lParam1);
    const auto& record2 = *reinterpret_cast<const Record*>(lParam2);
    const int nOrder = pList->m_pSort->Compare(record1, record2);
    return pList->m_bAscending ? nOrder : -nOrder;
}
