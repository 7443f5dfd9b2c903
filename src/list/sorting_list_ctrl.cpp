#include "list/sorting_list_ctrl.h"

#include <afxdisp.h>

#include <algorithm>
#include <cstdlib>
#include <new>
#include <unordered_map>

#include "frame/core/sort_keys.h"
#include "frame/module_state.h"
#include "list/core/row_ranks.h"

IMPLEMENT_DYNCREATE(QVSortingListCtrl, QVListCtrlEx)

BEGIN_MESSAGE_MAP(QVSortingListCtrl, QVListCtrlEx)
    ON_MESSAGE(WM_SETREDRAW, OnSetRedraw)
END_MESSAGE_MAP()

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
    int nRow;  // before the sort
};

// One sort. The rows' order is found here, by keys made once, and the control sorts by the ranks.
// It tells rows apart by their item data. Where several rows have the same, each gets its record in
// place of them while the control sorts.
class QVSortingListCtrl::Sort {
public:
    explicit Sort(QVSortingListCtrl& list)
        : m_list(list),
          m_watch(list.m_alive, list.m_hWnd),
          m_keys(qv::ProcessText()),
          m_outer(list.m_pSort) {
        list.m_pSort = this;
    }
    ~Sort() {
        if (!m_watch.ObjectAlive()) {
            return;
        }
        Unpark();
        if (m_bHoldsRedraw) {
            m_list.SetRedraw(TRUE);
        }
        m_list.m_pSort = m_outer;
    }
    Sort(const Sort&) = delete;
    Sort& operator=(const Sort&) = delete;

    // Reads the rows and finds their order; equal ones stay in turn. False if the list is gone, or
    // its rows are others than before: the parent may be asked for texts. Changes nothing, so it
    // may throw std::bad_alloc.
    bool MakeRecords(int nCol, bool bAscending);
    // Makes the rows distinct. False if the control refuses; what was parked is put back.
    bool Prepare() { return m_bDistinct || Park(); }
    // Of a row by its item data.
    std::uint32_t Rank(DWORD_PTR dwData) const;

private:
    qv::SortKey MakeKey(LPCSTR pszText, QVLISTCTRL_DATATYPE nType);
    qv::SortKey DateKey(LPCSTR pszText);
    bool Park();
    std::uint32_t ParkedRank(DWORD_PTR dwData) const;
    void Unpark();

    bool ReadKeys(int nCol);

    QVSortingListCtrl& m_list;
    const qv::WindowWatch<HWND> m_watch;
    qv::SortKeys m_keys;
    std::vector<Record> m_records;  // by rank
    qv::RowRanks m_ranks;
    bool m_bDistinct = false;
    std::unordered_map<std::string, qv::SortKey> m_dates;  // the same days come again and again
    size_t m_nParked = 0;
    bool m_bHoldsRedraw = false;
    Sort* m_outer;
};

bool QVSortingListCtrl::Sort::ReadKeys(int nCol) {
    const auto nType = m_list.ColumnSortType(nCol);
    const int nItems = m_list.GetItemCount();
    m_records.reserve(static_cast<size_t>(nItems));
    for (int nItem = 0; nItem < nItems; ++nItem) {
        LPCSTR pszText = m_list.CellText(nItem, nCol);
        if (!m_watch) {
            return false;
        }
        if (nCol == 0) {
            pszText = m_list.ParseStyleText(pszText);
        }
        m_records.push_back({0, MakeKey(pszText, nType), nItem});
    }
    return m_list.GetItemCount() == nItems;
}

bool QVSortingListCtrl::Sort::MakeRecords(int nCol, bool bAscending) {
    if (!ReadKeys(nCol)) {
        return false;
    }
    // Not before: a parent that was asked for a text may have sorted the rows.
    for (Record& record : m_records) {
        record.dwData = m_list.GetItemData(record.nRow);
    }
    std::stable_sort(m_records.begin(), m_records.end(),
                     [&](const Record& record1, const Record& record2) {
                         const int nOrder = m_keys.Compare(record1.key, record2.key);
                         return bAscending ? nOrder < 0 : nOrder > 0;
                     });
    std::vector<std::uintptr_t> words;
    words.reserve(m_records.size());
    for (const Record& record : m_records) {
        words.push_back(record.dwData);
    }
    m_bDistinct = m_ranks.Assign(words);
    return true;
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
    // The control would invalidate each row that it gets new data for, and then all of them.
    m_bHoldsRedraw = m_list.m_bRedraw && (m_list.GetStyle() & WS_VISIBLE) != 0;
    if (m_bHoldsRedraw) {
        m_list.SetRedraw(FALSE);
    }
    for (const Record& record : m_records) {
        if (!m_list.SetItemData(record.nRow, reinterpret_cast<DWORD_PTR>(&record))) {
            return false;
        }
        ++m_nParked;
    }
    return true;
}

std::uint32_t QVSortingListCtrl::Sort::Rank(DWORD_PTR dwData) const {
    return m_bDistinct ? m_ranks.Find(dwData) : ParkedRank(dwData);
}

// The rank of the record that a data word points at; kNone if it is the application's own.
std::uint32_t QVSortingListCtrl::Sort::ParkedRank(DWORD_PTR dwData) const {
    const DWORD_PTR nOffset = dwData - reinterpret_cast<DWORD_PTR>(m_records.data());
    return nOffset < m_nParked * sizeof(Record) && nOffset % sizeof(Record) == 0
               ? static_cast<std::uint32_t>(nOffset / sizeof(Record))
               : qv::RowRanks::kNone;
}

void QVSortingListCtrl::Sort::Unpark() {
    if (m_nParked == 0) {
        return;
    }
    const int nItems = m_list.GetItemCount();
    for (int nItem = 0; nItem < nItems; ++nItem) {
        const std::uint32_t nRank = ParkedRank(m_list.GetItemData(nItem));
        if (nRank != qv::RowRanks::kNone) {
            m_list.SetItemData(nItem, m_records[nRank].dwData);
        }
    }
}

LRESULT QVSortingListCtrl::OnSetRedraw(WPARAM wParam, LPARAM) {
    m_bRedraw = wParam != FALSE;
    return Default();
}

void QVSortingListCtrl::SortOnHeader(int nCol) {
    try {
        Sort sort(*this);
        const bool bAscending = nCol != m_nSortCol || !m_bAscending;
        if (!sort.MakeRecords(nCol, bAscending)) {
            return;
        }
        m_bAscending = bAscending;
        m_nSortCol = nCol;
        if (sort.Prepare()) {
            SortItems(SortFunc, reinterpret_cast<DWORD_PTR>(this));
        }
    } catch (const std::bad_alloc&) {
        // The rows and their data are as they were.
    } catch (CMemoryException* pException) {
        pException->Delete();  // and so here: a date was being read
    }
}

void QVSortingListCtrl::ReSort() {
    m_bAscending = !m_bAscending;
    SortOnHeader(m_nSortCol);
}

int CALLBACK QVSortingListCtrl::SortFunc(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort) {
    const Sort& sort = *reinterpret_cast<const QVSortingListCtrl*>(lParamSort)->m_pSort;
    const std::uint32_t nRank1 = sort.Rank(static_cast<DWORD_PTR>(lParam1));
    const std::uint32_t nRank2 = sort.Rank(static_cast<DWORD_PTR>(lParam2));
    return nRank1 < nRank2 ? -1 : nRank1 > nRank2 ? 1 : 0;
}
