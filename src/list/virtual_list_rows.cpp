#include "list/virtual_list_rows.h"

#include "common/process_text.h"
#include "frame/core/styled_text.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"

int QVVirtualListCtrl::Rows::RowAt(int nItem) const {
    const std::uint32_t nRow =
        nItem >= 0 ? m_order.RowAt(static_cast<size_t>(nItem)) : qv::RowPermutation::kNone;
    return nRow != qv::RowPermutation::kNone ? static_cast<int>(nRow) : -1;
}

const qv::CutRow* QVVirtualListCtrl::Rows::Read(int nItem) {
    static const qv::CutRow s_blank;
    const int nRow = RowAt(nItem);
    if (nRow < 0) {
        return &s_blank;
    }
    if (m_page.IsOpen()) {
        if (const qv::CutRow* pRow = m_page.Find(nItem)) {
            return pRow;
        }
    }
    const qv::AliveWatch watch(m_list.m_alive);
    const int nVersion = m_nVersion;
    QVLISTROW row;
    const bool bAnswered = Ask([&] { m_list.GetRow(nRow, row); });
    if (!watch) {
        return nullptr;
    }
    if (!bAnswered && !m_page.IsOpen()) {
        throw std::bad_alloc();
    }
    const bool bKeep = m_page.IsOpen() && nVersion == m_nVersion;
    m_nSingle = bKeep ? m_nSingle : -1;
    qv::CutRow& cut = bKeep ? m_page.Take(nItem) : m_single;
    cut.Assign(bAnswered ? qv::View(row.strText) : std::string_view());
    cut.nImage = bAnswered ? row.nImage : -1;
    cut.nState = bAnswered ? row.nState : 0;
    return &cut;
}

LPCSTR QVVirtualListCtrl::Rows::CellOf(const qv::CutRow& row, int nCol) const {
    return row.Cell(m_list.m_bImageFirstCol ? nCol - 1 : nCol);
}

// Cells that are read from left to right belong together.
LPCSTR QVVirtualListCtrl::Rows::Cell(int nItem, int nCol) {
    if (m_page.IsOpen() || nItem != m_nSingle || nCol <= m_nSingleCol) {
        const qv::CutRow* pRow = Read(nItem);
        if (pRow != &m_single) {
            return pRow != nullptr ? CellOf(*pRow, nCol) : "";
        }
        m_nSingle = nItem;
    }
    m_nSingleCol = nCol;
    return CellOf(m_single, nCol);
}

int QVVirtualListCtrl::Rows::Image(int nItem) {
    int nImage = -1;
    qv::MemorySuffices([&] {
        const qv::CutRow* pRow = Read(nItem);
        nImage = pRow != nullptr ? pRow->nImage : -1;
    });
    return nImage;
}

int QVVirtualListCtrl::Rows::ItemOf(DWORD_PTR dwData) {
    const std::uint32_t nPlace = dwData < m_order.Count()
                                     ? m_order.PlaceOf(static_cast<std::uint32_t>(dwData))
                                     : qv::RowPermutation::kNone;
    return nPlace != qv::RowPermutation::kNone ? static_cast<int>(nPlace) : -1;
}

void QVVirtualListCtrl::Rows::BeginPaint(int nRows) {
    if (m_nPaints++ == 0) {
        qv::MemorySuffices([&] { m_page.Open(static_cast<size_t>(nRows)); });
    }
}

void QVVirtualListCtrl::Rows::EndPaint() {
    if (--m_nPaints == 0) {
        m_page.Close();
    }
}

size_t QVVirtualListCtrl::Rows::SetCount(size_t nRows, size_t nAbove) {
    nAbove = m_order.SetCount(nRows, nAbove);
    Forget();
    return nAbove;
}

void QVVirtualListCtrl::Rows::Reset() {
    m_order.Reset();
    ++m_nVersion;
    m_nSingle = -1;
    m_page.Forget();
}

void QVVirtualListCtrl::Rows::Forget() {
    ++m_nVersion;
    m_nSingle = -1;
    m_page.Forget();
    m_read.reset();
    m_ranks = {};
}

bool QVVirtualListCtrl::Rows::FindRanks(int nCol) {
    const qv::ColumnRead read(nCol, m_list.ColumnSortType(nCol), m_list.NumStyles());
    if (m_read == read) {
        return true;
    }
    const qv::AliveWatch watch(m_list.m_alive);
    const int nVersion = m_nVersion;
    qv::KeyRanks keys(qv::ProcessText());
    qv::ColumnKeys column(read.nType);
    keys.Reserve(m_order.Count());
    CString strText;
    for (int nRow = 0; static_cast<size_t>(nRow) < m_order.Count(); ++nRow) {
        strText.Empty();
        const bool bAnswered = Ask([&] { m_list.GetSortText(nRow, nCol, strText); });
        if (!watch || !bAnswered || nVersion != m_nVersion) {
            return false;
        }
        column.Add(keys, nCol == 0 ? m_list.ParseStyleText(strText) : LPCSTR(strText));
    }
    m_ranks = keys.TakeRanks();
    m_read = read;
    return true;
}

void QVVirtualListCtrl::Rows::Arrange(bool bAscending) {
    m_order.Arrange(m_ranks, bAscending);
    ++m_nVersion;
    m_nSingle = -1;
    m_page.Forget();
}

bool QVVirtualListCtrl::Rows::Matches(const qv::CutRow& row, const std::string& strText,
                                      bool bStart) const {
    LPCSTR pszRow = m_list.ParseStyleText(row.Cell(0));
    const qv::MultiByte& rule = qv::ProcessText();
    return (bStart ? rule.CompareNoCase(pszRow, strText.c_str(), strText.size())
                   : rule.CompareNoCase(pszRow, strText.c_str())) == 0;
}

int QVVirtualListCtrl::Rows::Find(UINT nFlags, const std::string& strText, LPARAM lData,
                                  int nFirst) {
    if ((nFlags & LVFI_PARAM) != 0) {
        const int nItem = ItemOf(static_cast<DWORD_PTR>(lData));
        return nItem >= nFirst || (nFlags & LVFI_WRAP) != 0 ? nItem : -1;
    }
    const bool bStart = (nFlags & LVFI_PARTIAL) != 0;
    if ((nFlags & LVFI_STRING) == 0 && !bStart) {
        return -1;
    }
    const int nCount = static_cast<int>(m_order.Count());
    nFirst = nFirst >= 0 && nFirst < nCount ? nFirst : (nFlags & LVFI_WRAP) != 0 ? 0 : nCount;
    const int nVersion = m_nVersion;
    const int nTurns = (nFlags & LVFI_WRAP) != 0 ? nCount : nCount - nFirst;
    for (int i = 0; i < nTurns; ++i) {
        const int nItem = i < nCount - nFirst ? nFirst + i : i - (nCount - nFirst);
        const qv::CutRow* pRow = Read(nItem);
        if (pRow == nullptr || nVersion != m_nVersion) {
            return -1;
        }
        if (Matches(*pRow, strText, bStart)) {
            return nItem;
        }
    }
    return -1;
}
