#include "list/sorting_list_ctrl.h"

#include "frame/core/sort_keys.h"
#include "frame/core/styled_text.h"
#include "frame/module_state.h"
#include "frame/out_of_memory.h"
#include "list/core/row_ranks.h"

#include <afxdisp.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <unordered_map>

IMPLEMENT_DYNCREATE(QVSortingListCtrl, QVListCtrlEx)

BEGIN_MESSAGE_MAP(QVSortingListCtrl, QVListCtrlEx)
    ON_MESSAGE(WM_SETREDRAW, OnSetRedraw)
    ON_MESSAGE(LVM_GETITEMA, OnGetListItem)
    ON_MESSAGE(LVM_GETITEMW, OnGetListItem)
END_MESSAGE_MAP()

// --- Columns

void QVSortingListCtrl::AddHeader(LPCSTR pszHeaders, QVLISTCTRL_DATATYPE nType) {
    const int nAdded = HeaderColumnCount(pszHeaders);
    // Room for the types first: no column is to come without one.
    const INT_PTR nMost = NumColumns() + nAdded;
    const bool bRoom =
        qv::MemorySuffices([&] { m_aColTypes.SetSize(std::max(m_aColTypes.GetSize(), nMost)); });
    if (!bRoom) {
        return;
    }
    const qv::AliveWatch watch(m_alive);
    QVListCtrlEx::AddHeader(pszHeaders);
    for (int i = 1; watch && i <= nAdded && i <= NumColumns(); ++i) {
        m_aColTypes[NumColumns() - i] = static_cast<WORD>(nType);
    }
}

void QVSortingListCtrl::AddHeader(UINT nStringID, QVLISTCTRL_DATATYPE nType) {
    CString strHeaders;
    BOOL bLoaded = FALSE;
    qv::MemorySuffices([&] { bLoaded = strHeaders.LoadString(nStringID); });
    if (bLoaded) {
        AddHeader(strHeaders, nType);
    }
}

int QVSortingListCtrl::HeaderColumnCount(LPCSTR pszHeaders) const {
    const std::string_view headers = pszHeaders != nullptr ? pszHeaders : "";
    std::string_view field;
    int nFields = 0;
    for (int nPos = 0; qv::NextField(headers, nPos, field);) {
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

namespace {

// While it lives, a window hears nothing of what one of its children tells it in notifications. The
// control has no way to be quiet, so the window gets another procedure for that long.
class Silence {
public:
    Silence(HWND hChild, HWND hTold) : m_hChild(hChild), m_hTold(hTold), m_pOuter(s_pInner) {
        // In the window's own character set, or it would get the other one.
        m_bWide = ::IsWindowUnicode(hTold) != FALSE;
        m_pfnTold = SetProcedure(Filter);
        s_pInner = this;
    }
    ~Silence() {
        s_pInner = m_pOuter;
        if (m_pfnTold != nullptr) {
            SetProcedure(m_pfnTold);
        }
    }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    WNDPROC SetProcedure(WNDPROC pfn) {
        const auto n = reinterpret_cast<LONG_PTR>(pfn);
        return reinterpret_cast<WNDPROC>(m_bWide ? ::SetWindowLongPtrW(m_hTold, GWLP_WNDPROC, n)
                                                 : ::SetWindowLongPtrA(m_hTold, GWLP_WNDPROC, n));
    }
    static LRESULT CALLBACK Filter(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
        for (const Silence* p = s_pInner; p != nullptr; p = p->m_pOuter) {
            if (p->m_hTold != hWnd) {
                continue;
            }
            if (nMessage == WM_NOTIFY &&
                reinterpret_cast<const NMHDR*>(lParam)->hwndFrom == p->m_hChild) {
                return 0;
            }
            if (p->m_pfnTold != Filter) {
                return p->m_bWide ? ::CallWindowProcW(p->m_pfnTold, hWnd, nMessage, wParam, lParam)
                                  : ::CallWindowProcA(p->m_pfnTold, hWnd, nMessage, wParam, lParam);
            }
        }
        return ::DefWindowProc(hWnd, nMessage, wParam, lParam);
    }

    static inline Silence* s_pInner = nullptr;
    HWND m_hChild;
    HWND m_hTold;
    Silence* m_pOuter;  // of a sort within a sort
    bool m_bWide;
    WNDPROC m_pfnTold;  // null if the window could not get another procedure
};

}  // namespace

struct QVSortingListCtrl::Record {
    DWORD_PTR dwData;  // the item's own
    qv::SortKey key;
    int nRow;  // before the sort
};

// One sort. The rows' order is found here, by keys made once, and the control sorts by the ranks.
// It tells rows apart by their item data. Where several rows have the same, each gets its record in
// place of them while the control sorts. Nobody else sees that: the parent is told nothing, and who
// asks the list for item data gets the row's own.
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
        m_silence.reset();
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
    // The item's own data where a data word is that of a parked row, else the word itself.
    DWORD_PTR OwnData(DWORD_PTR dwData) const;

private:
    qv::SortKey MakeKey(LPCSTR pszText, QVLISTCTRL_DATATYPE nType);
    qv::SortKey DateKey(LPCSTR pszText);
    bool Park();
    bool SetData(int nItem, DWORD_PTR dwData);
    DWORD_PTR GetData(int nItem);
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
    std::optional<Silence> m_silence;
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
    m_silence.emplace(m_list.m_hWnd, m_list.ToldWindow());
    for (const Record& record : m_records) {
        if (!SetData(record.nRow, reinterpret_cast<DWORD_PTR>(&record))) {
            return false;
        }
        ++m_nParked;
    }
    return true;
}

// Both go straight to the control: no handler of a derived class sees the records.
bool QVSortingListCtrl::Sort::SetData(int nItem, DWORD_PTR dwData) {
    LVITEM item{};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    item.lParam = static_cast<LPARAM>(dwData);
    return m_list.DefWindowProc(LVM_SETITEM, 0, reinterpret_cast<LPARAM>(&item)) != FALSE;
}

DWORD_PTR QVSortingListCtrl::Sort::GetData(int nItem) {
    LVITEM item{};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    m_list.DefWindowProc(LVM_GETITEM, 0, reinterpret_cast<LPARAM>(&item));
    return static_cast<DWORD_PTR>(item.lParam);
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
        const std::uint32_t nRank = ParkedRank(GetData(nItem));
        if (nRank != qv::RowRanks::kNone) {
            SetData(nItem, m_records[nRank].dwData);
        }
    }
}

DWORD_PTR QVSortingListCtrl::Sort::OwnData(DWORD_PTR dwData) const {
    for (const Sort* pSort = this; pSort != nullptr; pSort = pSort->m_outer) {
        const std::uint32_t nRank = pSort->ParkedRank(dwData);
        if (nRank != qv::RowRanks::kNone) {
            return pSort->m_records[nRank].dwData;
        }
    }
    return dwData;
}

LRESULT QVSortingListCtrl::OnGetListItem(WPARAM, LPARAM lParam) {
    const qv::AliveWatch watch(m_alive);
    const LRESULT lResult = Default();
    if (watch && m_pSort != nullptr && lResult != FALSE) {
        auto* pItem = reinterpret_cast<LVITEM*>(lParam);
        if ((pItem->mask & LVIF_PARAM) != 0) {
            pItem->lParam =
                static_cast<LPARAM>(m_pSort->OwnData(static_cast<DWORD_PTR>(pItem->lParam)));
        }
    }
    return lResult;
}

LRESULT QVSortingListCtrl::OnSetRedraw(WPARAM wParam, LPARAM) {
    m_bRedraw = wParam != FALSE;
    return Default();
}

void QVSortingListCtrl::SortOnHeader(int nCol) {
    const qv::AliveWatch watch(m_alive);
    bool bSorted = false;
    qv::MemorySuffices([&] {
        Sort sort(*this);
        const bool bAscending = nCol != m_nSortCol || !m_bAscending;
        if (!sort.MakeRecords(nCol, bAscending)) {
            return;
        }
        bSorted = true;
        m_bAscending = bAscending;
        m_nSortCol = nCol;
        if (sort.Prepare()) {
            SortItems(SortFunc, reinterpret_cast<DWORD_PTR>(this));
        }
    });
    if (watch) {
        m_bSortFailed = !bSorted;
    }
}

void QVSortingListCtrl::ReSort() {
    const qv::AliveWatch watch(m_alive);
    m_bAscending = !m_bAscending;
    m_bSortFailed = false;
    SortOnHeader(m_nSortCol);
    if (watch && m_bSortFailed) {
        m_bAscending = !m_bAscending;
    }
}

int CALLBACK QVSortingListCtrl::SortFunc(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort) {
    const Sort& sort = *reinterpret_cast<const QVSortingListCtrl*>(lParamSort)->m_pSort;
    const std::uint32_t nRank1 = sort.Rank(static_cast<DWORD_PTR>(lParam1));
    const std::uint32_t nRank2 = sort.Rank(static_cast<DWORD_PTR>(lParam2));
    return nRank1 < nRank2 ? -1 : nRank1 > nRank2 ? 1 : 0;
}
