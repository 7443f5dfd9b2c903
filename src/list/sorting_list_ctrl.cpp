#include "list/sorting_list_ctrl.h"

#include "common/process_text.h"
#include "frame/core/styled_text.h"
#include "frame/out_of_memory.h"
#include "list/column_keys.h"
#include "list/core/row_changes.h"
#include "list/core/row_order.h"
#include "list/silence.h"

#include <algorithm>
#include <optional>

IMPLEMENT_DYNCREATE(QVSortingListCtrl, QVListCtrlEx)

BEGIN_MESSAGE_MAP(QVSortingListCtrl, QVListCtrlEx)
    ON_MESSAGE(LVM_SETCOLUMNA, &QVSortingListCtrl::OnSetColumn)
    ON_MESSAGE(LVM_SETCOLUMNW, &QVSortingListCtrl::OnSetColumn)
    ON_MESSAGE(LVM_GETITEMA, &QVSortingListCtrl::OnGetListItem)
    ON_MESSAGE(LVM_GETITEMW, &QVSortingListCtrl::OnGetListItem)
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

// The ranks that the last sort found, and what they were found for. As long as no text, no item
// data and no setting changed, the rows need not be read again, whatever their order is by now.
struct QVSortingListCtrl::Kept {
    qv::ColumnRead read;
    int nContent;
    qv::RowRanks ranks;
};

// One sort. The rows' order is found here, by keys made once, and the control sorts by the ranks.
// It tells rows apart by their item data. Where several rows have the same, each gets another word
// in place of them while the control sorts. Nobody else sees that: the parent is told nothing, and
// who asks the list for item data gets the row's own.
class QVSortingListCtrl::Sort {
public:
    explicit Sort(QVSortingListCtrl& list)
        : m_list(list),
          m_watch(list.m_alive, list.m_hWnd),
          m_order(qv::ProcessText()),
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

    // Finds the rows' order. False if the list is gone, or its rows are others than before: the
    // parent may be asked for texts. Changes nothing, so it may throw std::bad_alloc.
    bool FindOrder(int nCol);
    // Makes the rows distinct. False if the control refuses; what was parked is put back.
    bool Prepare() { return m_pRanks != nullptr || Park(); }
    // Of a row by its item data.
    std::uint32_t Rank(DWORD_PTR dwData) const;
    // The item's own data where a data word is that of a parked row, else the word itself.
    DWORD_PTR OwnData(DWORD_PTR dwData) const;

private:
    bool TakeKept(int nCol);
    void Keep(int nCol, int nContent);
    bool ReadKeys(int nCol);
    bool Park();
    bool SetData(int nItem, DWORD_PTR dwData);
    DWORD_PTR GetData(int nItem);
    void Unpark();

    QVSortingListCtrl& m_list;
    const qv::WindowWatch<HWND> m_watch;
    qv::RowOrder m_order;
    std::shared_ptr<const Kept> m_pRanks;  // null where item data are not distinct
    std::optional<qv::Silence> m_silence;
    bool m_bHoldsRedraw = false;
    Sort* m_outer;
};

bool QVSortingListCtrl::Sort::FindOrder(int nCol) {
    if (TakeKept(nCol)) {
        return true;
    }
    const int nContent = m_list.Changes().Content();
    if (!ReadKeys(nCol)) {
        return false;
    }
    // Not before: a parent that was asked for a text may have sorted the rows.
    m_order.SetWords([this](size_t nRow) { return GetData(static_cast<int>(nRow)); });
    m_order.Arrange();
    Keep(nCol, nContent);
    return true;
}

// Not within another sort, which may have parked rows.
bool QVSortingListCtrl::Sort::TakeKept(int nCol) {
    const Kept* pKept = m_list.m_pKept.get();
    if (pKept == nullptr || m_outer != nullptr || pKept->nContent != m_list.Changes().Content() ||
        m_list.Changes().Callbacks() ||
        (m_list.GetStyle() & (LVS_EDITLABELS | LVS_OWNERDATA)) != 0 ||
        pKept->read != qv::ColumnRead(nCol, m_list.ColumnSortType(nCol), m_list.NumStyles())) {
        return false;
    }
    m_pRanks = m_list.m_pKept;
    return true;
}

// Ranks that do not hold for another sort serve this one.
void QVSortingListCtrl::Sort::Keep(int nCol, int nContent) {
    auto pKept = std::make_shared<Kept>(
        Kept{{nCol, m_list.ColumnSortType(nCol), m_list.NumStyles()}, nContent, {}});
    if (!m_order.ByWords(pKept->ranks)) {
        return;
    }
    m_pRanks = std::move(pKept);
    if (m_outer == nullptr) {
        m_list.m_pKept = m_pRanks;
    }
}

bool QVSortingListCtrl::Sort::ReadKeys(int nCol) {
    qv::ColumnKeys column(m_list.ColumnSortType(nCol));
    const int nItems = m_list.GetItemCount();
    m_order.Reserve(static_cast<size_t>(nItems));
    for (int nItem = 0; nItem < nItems; ++nItem) {
        LPCSTR pszText = m_list.CellText(nItem, nCol);
        if (!m_watch) {
            return false;
        }
        column.Add(m_order, nCol == 0 ? m_list.ParseStyleText(pszText) : pszText);
    }
    return m_list.GetItemCount() == nItems;
}

bool QVSortingListCtrl::Sort::Park() {
    // The control would invalidate each row that it gets new data for, and then all of them.
    m_bHoldsRedraw = m_list.Redraws() && (m_list.GetStyle() & WS_VISIBLE) != 0;
    if (m_bHoldsRedraw) {
        m_list.SetRedraw(FALSE);
    }
    m_silence.emplace(m_list.m_hWnd, m_list.ToldWindow());
    for (size_t nRow = 0; nRow < m_order.Count(); ++nRow) {
        if (!SetData(static_cast<int>(nRow), m_order.ParkNext())) {
            return false;
        }
    }
    return true;
}

// Both go straight to the control, whose own data are what it sorts by: no handler of a derived
// class sees or changes them.
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
    if (m_pRanks != nullptr) {
        return m_pRanks->ranks.Find(dwData);
    }
    const size_t nRow = m_order.ParkedRow(dwData);
    return nRow != qv::RowOrder::kNoRow ? m_order.Rank(nRow) : qv::RowRanks::kNone;
}

void QVSortingListCtrl::Sort::Unpark() {
    const int nItems = m_order.AnyParked() ? m_list.GetItemCount() : 0;
    for (int nItem = 0; nItem < nItems; ++nItem) {
        const size_t nRow = m_order.ParkedRow(GetData(nItem));
        if (nRow != qv::RowOrder::kNoRow) {
            SetData(nItem, m_order.Word(nRow));
        }
    }
}

DWORD_PTR QVSortingListCtrl::Sort::OwnData(DWORD_PTR dwData) const {
    for (const Sort* pSort = this; pSort != nullptr; pSort = pSort->m_outer) {
        const size_t nRow = pSort->m_order.ParkedRow(dwData);
        if (nRow != qv::RowOrder::kNoRow) {
            dwData = pSort->m_order.Word(nRow);
        }
    }
    return dwData;
}

QVSortingListCtrl::QVSortingListCtrl() = default;
QVSortingListCtrl::~QVSortingListCtrl() = default;

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

void QVSortingListCtrl::SortOnHeader(int nCol) {
    const qv::AliveWatch watch(m_alive);
    bool bSorted = false;
    qv::MemorySuffices([&] {
        Sort sort(*this);
        const bool bAscending = nCol != m_nSortCol || !m_bAscending;
        if (!sort.FindOrder(nCol)) {
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
        if (bSorted) {
            SetSorted(true);
        }
    }
}

// --- The arrow

void QVSortingListCtrl::ShowSortArrow(BOOL bShow) {
    m_bSortArrow = bShow;
    PlaceArrow();
}

void QVSortingListCtrl::SetSorted(bool bSorted) {
    m_bSorted = bSorted;
    if (m_bSortArrow) {
        PlaceArrow();
    }
}

// Another heading format is one without an arrow.
LRESULT QVSortingListCtrl::OnSetColumn(WPARAM, LPARAM lParam) {
    const qv::AliveWatch watch(m_alive);
    const UINT nMask = lParam != 0 ? reinterpret_cast<const LVCOLUMN*>(lParam)->mask : 0;
    const LRESULT lResult = Default();
    if (watch && m_bSortArrow && (nMask & LVCF_FMT) != 0) {
        PlaceArrow();
    }
    return lResult;
}

// Headings that change are told to the parent, which may take the list away.
void QVSortingListCtrl::PlaceArrow() {
    constexpr int kArrows = HDF_SORTUP | HDF_SORTDOWN;
    const qv::WindowWatch<HWND> watch(m_alive, m_hWnd);
    const HWND hHeader =
        m_hWnd != nullptr ? reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER)) : nullptr;
    const int nCols = static_cast<int>(::SendMessage(hHeader, HDM_GETITEMCOUNT, 0, 0));
    for (int nCol = 0; watch && nCol < nCols; ++nCol) {
        HDITEM item{};
        item.mask = HDI_FORMAT;
        if (!::SendMessage(hHeader, HDM_GETITEM, static_cast<WPARAM>(nCol),
                           reinterpret_cast<LPARAM>(&item))) {
            return;
        }
        const bool bArrow = m_bSortArrow && m_bSorted && nCol == m_nSortCol;
        const int nArrow = !bArrow ? 0 : m_bAscending ? HDF_SORTUP : HDF_SORTDOWN;
        if ((item.fmt & kArrows) != nArrow) {
            item.fmt = (item.fmt & ~kArrows) | nArrow;
            ::SendMessage(hHeader, HDM_SETITEM, static_cast<WPARAM>(nCol),
                          reinterpret_cast<LPARAM>(&item));
        }
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

// Rows of one rank stay in turn.
int CALLBACK QVSortingListCtrl::SortFunc(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort) {
    const auto& list = *reinterpret_cast<const QVSortingListCtrl*>(lParamSort);
    const std::uint32_t nRank1 = list.m_pSort->Rank(static_cast<DWORD_PTR>(lParam1));
    const std::uint32_t nRank2 = list.m_pSort->Rank(static_cast<DWORD_PTR>(lParam2));
    const int nOrder = nRank1 < nRank2 ? -1 : nRank1 > nRank2 ? 1 : 0;
    return list.m_bAscending ? nOrder : -nOrder;
}
