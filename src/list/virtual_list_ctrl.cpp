#include "list/virtual_list_ctrl.h"

#include "common/process_text.h"
#include "frame/core/styled_text.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"
#include "frame/wide_text.h"
#include "list/held_screen.h"
#include "list/silence.h"
#include "list/virtual_list_rows.h"

#include <algorithm>
#include <iterator>

IMPLEMENT_DYNCREATE(QVVirtualListCtrl, QVSortingListCtrl)

BEGIN_MESSAGE_MAP(QVVirtualListCtrl, QVSortingListCtrl)
    ON_WM_PAINT()
    ON_WM_DESTROY()
    ON_NOTIFY_REFLECT(LVN_GETDISPINFOA, &QVVirtualListCtrl::OnGetDispInfoA)
    ON_NOTIFY_REFLECT(LVN_GETDISPINFOW, &QVVirtualListCtrl::OnGetDispInfoW)
    ON_NOTIFY_REFLECT_EX(LVN_ODCACHEHINT, &QVVirtualListCtrl::OnCacheHint)
    ON_NOTIFY_REFLECT(LVN_ODFINDITEMA, &QVVirtualListCtrl::OnFindByKeyA)
    ON_NOTIFY_REFLECT(LVN_ODFINDITEMW, &QVVirtualListCtrl::OnFindByKeyW)
    ON_MESSAGE(LVM_FINDITEMA, &QVVirtualListCtrl::OnFindItemA)
    ON_MESSAGE(LVM_FINDITEMW, &QVVirtualListCtrl::OnFindItemW)
    ON_MESSAGE(LVM_SETITEMCOUNT, &QVVirtualListCtrl::OnSetItemCount)
    ON_MESSAGE(LVM_DELETEALLITEMS, &QVVirtualListCtrl::OnDeleteAllItems)
    ON_MESSAGE(LVM_SETITEMA, &QVVirtualListCtrl::OnSetItem)
    ON_MESSAGE(LVM_SETITEMW, &QVVirtualListCtrl::OnSetItem)
    ON_MESSAGE(LVM_GETITEMA, &QVVirtualListCtrl::OnGetListItem)
    ON_MESSAGE(LVM_GETITEMW, &QVVirtualListCtrl::OnGetListItem)
    ON_MESSAGE(LVM_INSERTITEMA, &QVVirtualListCtrl::OnInsertItem)
    ON_MESSAGE(LVM_INSERTITEMW, &QVVirtualListCtrl::OnInsertItem)
    ON_MESSAGE(LVM_SETITEMTEXTA, &QVVirtualListCtrl::OnRefuse)
    ON_MESSAGE(LVM_SETITEMTEXTW, &QVVirtualListCtrl::OnRefuse)
    ON_MESSAGE(LVM_DELETEITEM, &QVVirtualListCtrl::OnRefuse)
    ON_MESSAGE(LVM_SORTITEMS, &QVVirtualListCtrl::OnRefuse)
    ON_MESSAGE(LVM_SORTITEMSEX, &QVVirtualListCtrl::OnRefuse)
END_MESSAGE_MAP()

// --- Creation

QVVirtualListCtrl::QVVirtualListCtrl()
    : m_pRows(qv::AsMemoryException([this] { return std::make_unique<Rows>(*this); })) {
    SetRowsOnDemand(m_pRows.get());
}

QVVirtualListCtrl::~QVVirtualListCtrl() {
    DestroyWindow();
    SetRowsOnDemand(nullptr);
}

BOOL QVVirtualListCtrl::PreCreateWindow(CREATESTRUCT& cs) {
    if (!QVSortingListCtrl::PreCreateWindow(cs)) {
        return FALSE;
    }
    cs.style = (cs.style & ~(LVS_SORTASCENDING | LVS_SORTDESCENDING)) | LVS_OWNERDATA;
    return TRUE;
}

BOOL QVVirtualListCtrl::Initialize(UINT nID, UINT nBitmapID, COLORREF crMask, int cx,
                                   CWnd* pParent) {
    const HWND hWnd =
        m_hWnd != nullptr ? m_hWnd : ::GetDlgItem(pParent->GetSafeHwnd(), static_cast<int>(nID));
    if ((::GetWindowLong(hWnd, GWL_STYLE) & LVS_OWNERDATA) == 0) {
        return FALSE;
    }
    const qv::AliveWatch watch(m_alive);
    const BOOL bDone = QVSortingListCtrl::Initialize(nID, nBitmapID, crMask, cx, pParent);
    if (bDone && watch) {
        SetCallbackMask(LVIS_STATEIMAGEMASK | LVIS_OVERLAYMASK | LVIS_CUT);
    }
    return bDone;
}

void QVVirtualListCtrl::OnDestroy() {
    m_pRows->Reset();
    m_pRows->SetCount(0, 0);
    QVSortingListCtrl::OnDestroy();
}

// --- Rows

void QVVirtualListCtrl::SetRowSource(QVRowSource* pSource) {
    m_pSource = pSource;
    RowsChanged();
}

BOOL QVVirtualListCtrl::SetRowCount(int nRows) {
    return m_hWnd != nullptr &&
           SendMessage(LVM_SETITEMCOUNT, static_cast<WPARAM>(nRows), LVSICF_NOSCROLL) != 0;
}

void QVVirtualListCtrl::RowsChanged() {
    m_pRows->Forget();
    if (m_hWnd != nullptr) {
        InvalidateData(FALSE);
    }
    TellAccessibleReorder();
}

int QVVirtualListCtrl::DataRow(int nItem) const {
    return m_pRows->RowAt(nItem);
}

int QVVirtualListCtrl::ItemOfRow(int nRow) const {
    int nItem = -1;
    if (nRow >= 0) {
        qv::MemorySuffices([&] { nItem = m_pRows->ItemOf(static_cast<DWORD_PTR>(nRow)); });
    }
    return nItem;
}

void QVVirtualListCtrl::GetRow(int nRow, QVLISTROW& row) {
    if (m_pSource != nullptr) {
        m_pSource->GetRow(nRow, row);
    }
}

void QVVirtualListCtrl::GetSortText(int nRow, int nCol, CString& strText) {
    const qv::AliveWatch watch(m_alive);
    if (m_pSource != nullptr && m_pSource->GetSortText(nRow, nCol, strText)) {
        return;
    }
    if (!watch) {
        return;
    }
    QVLISTROW row;
    GetRow(nRow, row);
    if (!watch) {
        return;
    }
    std::string_view field;
    int nField = m_bImageFirstCol ? 1 : 0;
    for (int nPos = 0; qv::NextField(qv::View(row.strText), nPos, field); ++nField) {
        if (nField == nCol) {
            strText.SetString(field.data(), static_cast<int>(field.size()));
            return;
        }
    }
}

void QVVirtualListCtrl::PrepareRows(const int* pRows, int nRows) {
    if (m_pSource != nullptr) {
        m_pSource->PrepareRows(pRows, nRows);
    }
}

// --- Order

// What the control has marked at its items, by rows: selection, focus, and where a selection by
// SHIFT begins.
class QVVirtualListCtrl::Marks {
public:
    explicit Marks(QVVirtualListCtrl& list) : m_list(list) {
        if (list.m_hWnd == nullptr) {
            return;
        }
        m_nFocus = list.DataRow(list.GetNextItem(-1, LVNI_FOCUSED));
        m_nMark = list.DataRow(list.GetSelectionMark());
        const int nSelected = static_cast<int>(list.GetSelectedCount());
        if (nSelected == list.GetItemCount()) {
            return;  // wherever they go
        }
        m_items.reserve(static_cast<size_t>(nSelected));
        m_rows.reserve(static_cast<size_t>(nSelected));
        for (int nItem = -1; (nItem = list.GetNextItem(nItem, LVNI_SELECTED)) != -1;) {
            m_items.push_back(nItem);
            m_rows.push_back(list.DataRow(nItem));
        }
    }

    // At the items where the rows stand now. The parent hears nothing of it: to the application the
    // same rows are selected as before.
    void Put() const {
        if (m_list.m_hWnd == nullptr) {
            return;
        }
        std::vector<int> items;
        items.reserve(m_rows.size());
        for (const int nRow : m_rows) {
            if (const int nItem = m_list.ItemOfRow(nRow); nItem >= 0) {
                items.push_back(nItem);
            }
        }
        std::sort(items.begin(), items.end());
        std::vector<int> gone;
        std::vector<int> come;
        std::set_difference(m_items.begin(), m_items.end(), items.begin(), items.end(),
                            std::back_inserter(gone));
        std::set_difference(items.begin(), items.end(), m_items.begin(), m_items.end(),
                            std::back_inserter(come));
        const qv::Silence silence(m_list.m_hWnd, m_list.ToldWindow());
        // The control keeps ranges: the last of them goes, or comes, for the least.
        std::for_each(gone.rbegin(), gone.rend(), [this](int nItem) { SetState(nItem, 0); });
        for (const int nItem : come) {
            SetState(nItem, LVIS_SELECTED);
        }
        if (const int nItem = m_list.ItemOfRow(m_nFocus); nItem >= 0) {
            SetState(nItem, LVIS_FOCUSED);
        }
        if (const int nItem = m_list.ItemOfRow(m_nMark); nItem >= 0) {
            m_list.SetSelectionMark(nItem);
        }
    }

private:
    void SetState(int nItem, UINT nState) const {
        LVITEM item{};
        item.state = nState;
        item.stateMask = nState == LVIS_FOCUSED ? LVIS_FOCUSED : LVIS_SELECTED;
        m_list.DefWindowProc(LVM_SETITEMSTATE, static_cast<WPARAM>(nItem),
                             reinterpret_cast<LPARAM>(&item));
    }

    QVVirtualListCtrl& m_list;
    std::vector<int> m_items;  // that are selected, from the top
    std::vector<int> m_rows;   // the same
    int m_nFocus = -1;
    int m_nMark = -1;
};

// May throw std::bad_alloc, from a move that then has moved nothing.
template <class Move>
void QVVirtualListCtrl::MoveRows(Move move) {
    const Marks marks(*this);
    const int nTop = m_hWnd != nullptr ? GetTopIndex() : 0;
    move();
    qv::MemorySuffices([&] { marks.Put(); });
    KeepOnTop(nTop);  // the control shows an item that gets the focus
    TellAccessibleReorder();
}

BOOL QVVirtualListCtrl::SortByColumn(int nCol, BOOL bAscending) {
    bool bSorted = false;
    qv::MemorySuffices([&] {
        if (!m_pRows->FindRanks(nCol)) {
            return;
        }
        MoveRows([&] { m_pRows->Arrange(bAscending != FALSE); });
        m_nSortCol = nCol;
        m_bAscending = bAscending;
        bSorted = true;
        SetSorted(true);
    });
    return bSorted;
}

void QVVirtualListCtrl::SortOnHeader(int nCol) {
    const qv::AliveWatch watch(m_alive);
    const BOOL bSorted = SortByColumn(nCol, nCol != m_nSortCol || !m_bAscending);
    if (watch) {
        m_bSortFailed = !bSorted;
    }
}

void QVVirtualListCtrl::RestoreOrder() {
    if (qv::MemorySuffices([&] { MoveRows([&] { m_pRows->Reset(); }); })) {
        SetSorted(false);
    }
}

LRESULT QVVirtualListCtrl::OnSetItemCount(WPARAM wParam, LPARAM lParam) {
    constexpr int kMostRows = 100000000;  // that the platform takes
    const int nRows = std::clamp(static_cast<int>(wParam), 0, kMostRows);
    const int nTop = GetTopIndex();
    int nNewTop = nTop;
    const auto set = [&] {
        nNewTop = static_cast<int>(
            m_pRows->SetCount(static_cast<size_t>(nRows), static_cast<size_t>(nTop)));
    };
    const bool bMoves =
        !m_pRows->Order().IsPlain() && static_cast<size_t>(nRows) < m_pRows->Order().Count();
    if (!qv::MemorySuffices([&] { bMoves ? MoveRows(set) : set(); })) {
        return FALSE;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const LRESULT lResult = PassItemCount(nRows, lParam);
    if (watch && bMoves) {
        KeepOnTop(nNewTop);
    }
    if (watch && m_bSingleColumn) {
        CalcSingleColWidth();
    }
    return lResult;
}

// More rows are shown in one piece. What the control tells of fewer of them the parent may answer
// by hiding the list.
LRESULT QVVirtualListCtrl::PassItemCount(int nRows, LPARAM lFlags) {
    const int nBefore = GetItemCount();
    if (nRows <= nBefore || m_bSingleColumn || !Redraws() || !InReportMode() ||
        (lFlags & LVSICF_NOINVALIDATEALL) != 0) {
        return DefWindowProc(LVM_SETITEMCOUNT, static_cast<WPARAM>(nRows), lFlags);
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const qv::WhileAlive<qv::HeldScreen> screen(watch, *this);
    const LRESULT lResult = DefWindowProc(LVM_SETITEMCOUNT, static_cast<WPARAM>(nRows), lFlags);
    if (watch && nBefore == 0) {
        PaintNothing();
    }
    return lResult;
}

// Some versions of the control measure rows at the first paint that has any, and draw both scroll
// bars again for it.
void QVVirtualListCtrl::PaintNothing() {
    const qv::Silence silence(m_hWnd, ToldWindow());
    CDC dc;
    if (dc.CreateCompatibleDC(nullptr)) {
        dc.IntersectClipRect(0, 0, 0, 0);
        DefWindowProc(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.m_hDC), PRF_CLIENT);
    }
}

// Scrolls so that the item is at the top, where there are enough below it.
void QVVirtualListCtrl::KeepOnTop(int nItem) {
    if (m_hWnd == nullptr) {
        return;
    }
    if (CRect rc; GetItemRect(0, &rc, LVIR_BOUNDS) && nItem != GetTopIndex()) {
        Scroll(CSize(0, (nItem - GetTopIndex()) * rc.Height()));
    }
    InvalidateData(FALSE);
}

LRESULT QVVirtualListCtrl::OnDeleteAllItems(WPARAM, LPARAM) {
    return OnSetItemCount(0, 0);
}

// States are the control's own.
LRESULT QVVirtualListCtrl::OnSetItem(WPARAM, LPARAM lParam) {
    const auto* pItem = reinterpret_cast<const LVITEM*>(lParam);
    return pItem != nullptr && pItem->mask == LVIF_STATE ? Default() : FALSE;
}

// Some versions of the control ask nobody for item data.
LRESULT QVVirtualListCtrl::OnGetListItem(WPARAM, LPARAM lParam) {
    const qv::AliveWatch watch(m_alive);
    const LRESULT lResult = Default();
    auto* pItem = reinterpret_cast<LVITEM*>(lParam);
    if (watch && lResult != FALSE && (pItem->mask & LVIF_PARAM) != 0) {
        pItem->lParam = m_pRows->RowAt(pItem->iItem);
    }
    return lResult;
}

LRESULT QVVirtualListCtrl::OnInsertItem(WPARAM, LPARAM) {
    return -1;
}

LRESULT QVVirtualListCtrl::OnRefuse(WPARAM, LPARAM) {
    return FALSE;
}

// --- What the control asks

void QVVirtualListCtrl::OnPaint() {
    const qv::AliveWatch watch(m_alive);
    m_pRows->BeginPaint(GetCountPerPage() + 1);
    QVSortingListCtrl::OnPaint();
    if (watch) {
        m_pRows->EndPaint();
    }
}

namespace {

// As much as goes into nRoom characters with the terminator.
void CopyText(LPCSTR pszText, char* pszRoom, int nRoom) {
    const size_t nBytes = qv::ProcessText().PrefixBytes(pszText, static_cast<size_t>(nRoom - 1));
    std::copy_n(pszText, nBytes, pszRoom);
    pszRoom[nBytes] = '\0';
}

void CopyText(LPCSTR pszText, wchar_t* pszRoom, int nRoom) {
    const qv::WideText text(pszText);
    int nUnits = std::min(text.Length(), nRoom - 1);
    nUnits -= nUnits > 0 && nUnits < text.Length() && IS_HIGH_SURROGATE(text.Data()[nUnits - 1]);
    std::copy_n(text.Data(), nUnits, pszRoom);
    pszRoom[nUnits] = L'\0';
}

std::string ProcessTextOf(LPCWSTR pszText) {
    std::string str;
    const int nBytes = ::WideCharToMultiByte(CP_ACP, 0, pszText, -1, nullptr, 0, nullptr, nullptr);
    if (nBytes > 0) {
        str.resize(static_cast<size_t>(nBytes));
        ::WideCharToMultiByte(CP_ACP, 0, pszText, -1, str.data(), nBytes, nullptr, nullptr);
        str.pop_back();
    }
    return str;
}

std::string ProcessTextOf(LPCSTR pszText) {
    return pszText;
}

}  // namespace

template <class Item>
void QVVirtualListCtrl::Answer(Item& item) {
    item.lParam = m_pRows->RowAt(item.iItem);
    const bool bText =
        (item.mask & LVIF_TEXT) != 0 && item.pszText != nullptr && item.cchTextMax > 0;
    if (bText) {
        item.pszText[0] = 0;
    }
    if ((item.mask & (LVIF_TEXT | LVIF_IMAGE | LVIF_STATE)) == 0) {
        return;
    }
    qv::MemorySuffices([&] {
        const qv::CutRow* pRow = m_pRows->Read(item.iItem);
        if (pRow == nullptr) {
            return;
        }
        if (bText) {
            CopyText(m_pRows->CellOf(*pRow, item.iSubItem), item.pszText, item.cchTextMax);
        }
        if ((item.mask & LVIF_IMAGE) != 0) {
            item.iImage = item.iSubItem == 0 ? pRow->nImage : -1;
        }
        if ((item.mask & LVIF_STATE) != 0) {
            item.state = pRow->nState & item.stateMask;
        }
    });
}

void QVVirtualListCtrl::OnGetDispInfoA(NMHDR* pHdr, LRESULT* pResult) {
    *pResult = 0;
    Answer(reinterpret_cast<NMLVDISPINFOA*>(pHdr)->item);
}

void QVVirtualListCtrl::OnGetDispInfoW(NMHDR* pHdr, LRESULT* pResult) {
    *pResult = 0;
    Answer(reinterpret_cast<NMLVDISPINFOW*>(pHdr)->item);
}

// The parent may want to know as well.
BOOL QVVirtualListCtrl::OnCacheHint(NMHDR* pHdr, LRESULT*) {
    constexpr int kMostRows = 10000;  // of a page
    const auto* pHint = reinterpret_cast<const NMLVCACHEHINT*>(pHdr);
    const int nFirst = std::max(pHint->iFrom, 0);
    const qv::AliveWatch watch(m_alive);
    qv::MemorySuffices([&] {
        std::vector<int> rows;
        for (int nItem = nFirst; nItem <= pHint->iTo && nItem - nFirst < kMostRows; ++nItem) {
            if (const int nRow = DataRow(nItem); nRow >= 0) {
                rows.push_back(nRow);
            }
        }
        if (!rows.empty()) {
            m_pRows->Ask([&] { PrepareRows(rows.data(), static_cast<int>(rows.size())); });
        }
    });
    return !watch;
}

// From item nFirst on.
template <class Info>
int QVVirtualListCtrl::Find(const Info* pInfo, int nFirst) {
    int nItem = -1;
    qv::MemorySuffices([&] {
        const bool bText = (pInfo->flags & LVFI_PARAM) == 0 && pInfo->psz != nullptr;
        nItem = m_pRows->Find(pInfo->flags, bText ? ProcessTextOf(pInfo->psz) : std::string(),
                              pInfo->lParam, nFirst);
    });
    return nItem;
}

void QVVirtualListCtrl::OnFindByKeyA(NMHDR* pHdr, LRESULT* pResult) {
    const auto* pFind = reinterpret_cast<const NMLVFINDITEMA*>(pHdr);
    *pResult = Find(&pFind->lvfi, std::max(pFind->iStart, 0));
}

void QVVirtualListCtrl::OnFindByKeyW(NMHDR* pHdr, LRESULT* pResult) {
    const auto* pFind = reinterpret_cast<const NMLVFINDITEMW*>(pHdr);
    *pResult = Find(&pFind->lvfi, std::max(pFind->iStart, 0));
}

// Behind an item, or from the first one on.
LRESULT QVVirtualListCtrl::OnFindItemA(WPARAM wParam, LPARAM lParam) {
    return lParam != 0 ? Find(reinterpret_cast<const LVFINDINFOA*>(lParam),
                              std::max(static_cast<int>(wParam), -1) + 1)
                       : -1;
}

LRESULT QVVirtualListCtrl::OnFindItemW(WPARAM wParam, LPARAM lParam) {
    return lParam != 0 ? Find(reinterpret_cast<const LVFINDINFOW*>(lParam),
                              std::max(static_cast<int>(wParam), -1) + 1)
                       : -1;
}
