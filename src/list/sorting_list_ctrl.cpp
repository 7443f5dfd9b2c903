#include "list/sorting_list_ctrl.h"

#include "common/process_text.h"
#include "frame/core/styled_text.h"
#include "frame/out_of_memory.h"
#include "list/core/row_changes.h"
#include "list/core/row_order.h"

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

// The ranks that the last sort found, and what they were found for. As long as no text, no item
// data and no setting changed, the rows need not be read again, whatever their order is by now.
struct QVSortingListCtrl::Kept {
    int nCol;
    QVLISTCTRL_DATATYPE nType;
    int nContent;
    int nStyles;
    std::string strDateFormat;
    qv::RowRanks ranks;
};

namespace {

// What dates are read by.
std::string DateFormat() {
    std::string str = std::to_string(::GetUserDefaultLCID());
    for (const LCTYPE nType : {LOCALE_SSHORTDATE, LOCALE_SLONGDATE, LOCALE_STIMEFORMAT}) {
        char sz[80];  // the longest of these formats
        str += ::GetLocaleInfoA(LOCALE_USER_DEFAULT, nType, sz, sizeof(sz)) > 0 ? sz : "";
    }
    return str;
}

}  // namespace

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
    void AddKey(LPCSTR pszText, QVLISTCTRL_DATATYPE nType);
    double Date(LPCSTR pszText);
    bool Park();
    bool SetData(int nItem, DWORD_PTR dwData);
    DWORD_PTR GetData(int nItem);
    void Unpark();

    QVSortingListCtrl& m_list;
    const qv::WindowWatch<HWND> m_watch;
    qv::RowOrder m_order;
    std::shared_ptr<const Kept> m_pRanks;             // null where item data are not distinct
    std::unordered_map<std::string, double> m_dates;  // the same days come again and again
    std::optional<Silence> m_silence;
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
    for (size_t nRow = 0; nRow < m_order.Count(); ++nRow) {
        m_order.SetWord(nRow, GetData(static_cast<int>(nRow)));
    }
    m_order.Arrange();
    Keep(nCol, nContent);
    return true;
}

// Not within another sort, which may have parked rows.
bool QVSortingListCtrl::Sort::TakeKept(int nCol) {
    const Kept* pKept = m_list.m_pKept.get();
    const auto nType = m_list.ColumnSortType(nCol);
    if (pKept == nullptr || m_outer != nullptr || pKept->nCol != nCol || pKept->nType != nType ||
        pKept->nContent != m_list.Changes().Content() || m_list.Changes().Callbacks() ||
        (m_list.GetStyle() & (LVS_EDITLABELS | LVS_OWNERDATA)) != 0 ||
        pKept->nStyles != m_list.NumStyles() ||
        (nType == lcdtDate && pKept->strDateFormat != DateFormat())) {
        return false;
    }
    m_pRanks = m_list.m_pKept;
    return true;
}

// Ranks that do not hold for another sort serve this one.
void QVSortingListCtrl::Sort::Keep(int nCol, int nContent) {
    const auto nType = m_list.ColumnSortType(nCol);
    auto pKept = std::make_shared<Kept>();
    pKept->nCol = nCol;
    pKept->nType = nType;
    pKept->nContent = nContent;
    pKept->nStyles = m_list.NumStyles();
    if (nType == lcdtDate) {
        pKept->strDateFormat = DateFormat();
    }
    if (!m_order.ByWords(pKept->ranks)) {
        return;
    }
    m_pRanks = std::move(pKept);
    if (m_outer == nullptr) {
        m_list.m_pKept = m_pRanks;
    }
}

bool QVSortingListCtrl::Sort::ReadKeys(int nCol) {
    const auto nType = m_list.ColumnSortType(nCol);
    const int nItems = m_list.GetItemCount();
    m_order.Reserve(static_cast<size_t>(nItems));
    for (int nItem = 0; nItem < nItems; ++nItem) {
        LPCSTR pszText = m_list.CellText(nItem, nCol);
        if (!m_watch) {
            return false;
        }
        AddKey(nCol == 0 ? m_list.ParseStyleText(pszText) : pszText, nType);
    }
    return m_list.GetItemCount() == nItems;
}

void QVSortingListCtrl::Sort::AddKey(LPCSTR pszText, QVLISTCTRL_DATATYPE nType) {
    switch (nType) {
        case lcdtString:
            m_order.AddText(pszText);
            break;
        case lcdtDate:
            m_order.AddDate(Date(pszText));
            break;
        case lcdtNumber:
            m_order.AddNumber(static_cast<std::uint32_t>(std::atol(pszText)));
            break;
        default:
            m_order.AddUnordered();
            break;
    }
}

double QVSortingListCtrl::Sort::Date(LPCSTR pszText) {
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

bool QVSortingListCtrl::Sort::Park() {
    // The control would invalidate each row that it gets new data for, and then all of them.
    m_bHoldsRedraw = m_list.m_bRedraw && (m_list.GetStyle() & WS_VISIBLE) != 0;
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
