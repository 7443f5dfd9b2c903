// The rows of the list as strings, and where a new one belongs among them.

#include "list/list_ctrl.h"

#include "common/process_text.h"
#include "frame/out_of_memory.h"
#include "list/core/list_fit.h"
#include "list/core/list_row.h"
#include "list/cut_text.h"
#include "list/list_ctrl_core.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

// The control inserts at the end what is to go further behind.
constexpr int kBehindAllRows = std::numeric_limits<int>::max();

}  // namespace

void QVListCtrlEx::SetRowsOnDemand(qv::RowsOnDemand* pRows) {
    m_pCore->pRows = pRows;
}

LPCSTR QVListCtrlEx::CellText(int nItem, int nCol) {
    if (m_pCore->pRows != nullptr) {
        return m_pCore->pRows->Cell(nItem, nCol);
    }
    constexpr size_t kUsualRoom = 256;
    constexpr int kLongestCharacter = 4;
    const qv::AliveWatch watch(m_alive);
    // A parent that is asked for the text may come back here: it must not meet this buffer.
    std::vector<char> text = std::move(m_pCore->text);
    text.resize(std::max(text.size(), kUsualRoom));
    for (;;) {
        const int nRoom = static_cast<int>(text.size()) - 1;
        text.front() = text.back() = '\0';
        const int nBytes = CListCtrl::GetItemText(nItem, nCol, text.data(), nRoom);
        if (!watch) {
            return "";
        }
        // A text that all but fills the room may have been cut.
        if (nBytes < nRoom - kLongestCharacter) {
            break;
        }
        text.resize(text.size() * 2);
    }
    m_pCore->text = std::move(text);
    return m_pCore->text.data();
}

BOOL QVListCtrlEx::SetItemString(int nItem, LPCSTR pszText) {
    if (nItem >= GetItemCount() || m_pCore->pRows != nullptr) {
        return FALSE;
    }
    bool bSet = false;
    qv::MemorySuffices([&] {
        std::string strRow = pszText != nullptr ? pszText : "";
        bSet = SetFields(nItem, FirstTextColumn(), strRow.data());
    });
    return bSet;
}

// Sets a cell to each field from column nCol on, and cuts the text to pieces. False if the list is
// gone.
bool QVListCtrlEx::SetFields(int nItem, int nCol, char* pszFields) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    LPCSTR pszField;
    for (; watch && nCol < NumColumns() && (pszField = qv::CutField(pszFields)) != nullptr;
         ++nCol) {
        m_pCore->changes.CountSent();
        SetItemText(nItem, nCol, pszField);
    }
    return static_cast<bool>(watch);
}

BOOL QVListCtrlEx::GetItemString(int nItem, CString& str) {
    if (nItem >= GetItemCount()) {
        return FALSE;
    }
    bool bRead = false;
    qv::MemorySuffices([&] {
        const qv::WindowWatch watch(m_alive, m_hWnd);
        std::string strRow;
        for (int nCol = FirstTextColumn(); watch && nCol < NumColumns(); ++nCol) {
            qv::JoinCell(strRow, CellText(nItem, nCol), qv::kFieldSeparator);
        }
        if (watch) {
            str = CString(strRow.data(), static_cast<int>(strRow.size()));
            bRead = true;
        }
    });
    return bRead;
}

// By its style.
bool QVListCtrlEx::SortsItself() {
    std::optional<bool>& bKnown = m_pCore->bSortsItself;
    if (!bKnown) {
        bKnown = (GetStyle() & (LVS_SORTASCENDING | LVS_SORTDESCENDING)) != 0;
    }
    return *bKnown;
}

int QVListCtrlEx::InsertRow(int nImage, int nIndex, LPCSTR pszText) {
    std::string strRow = pszText != nullptr ? pszText : "";
    char* pszRest = strRow.data();
    LPCSTR pszFirst = "-";
    int nCol = FirstTextColumn();
    // A cell that is inserted with its text needs no change afterwards. A control that sorts by
    // itself sorts a row in by what it is inserted with: by the placeholder.
    if (nCol == 0 && NumColumns() > 0 && !SortsItself()) {
        if (LPCSTR pszField = qv::CutField(pszRest)) {
            pszFirst = pszField;
            nCol = 1;
        }
    }
    m_pCore->changes.CountSent();
    const qv::WindowWatch watch(m_alive, m_hWnd);
    nIndex = CListCtrl::InsertItem(LVIF_TEXT | LVIF_IMAGE, nIndex != -1 ? nIndex : kBehindAllRows,
                                   pszFirst, 0, 0, nImage, 0);
    return watch && nIndex != -1 && SetFields(nIndex, nCol, pszRest) ? nIndex : -1;
}

int QVListCtrlEx::InsertBitmapString(int nImage, int nIndex, LPCSTR pszText) {
    const int nPlace = nIndex;
    nIndex = -1;
    qv::MemorySuffices([&] { nIndex = InsertRow(nImage, nPlace, pszText); });
    if (nIndex != -1 && m_bSingleColumn) {
        const int nWidth =
            qv::InsertedRowWidth(m_nImageWidth, GetStringWidth(ParseStyleText(pszText)));
        if (nWidth > m_nDataWidth) {
            m_nDataWidth = nWidth;
            SetColWidth(0, qv::SingleColumnWidth(m_nClientWidth, nWidth), nullptr);
        }
    }
    return nIndex;
}

std::string QVListCtrlEx::PlaceKey(LPCSTR pszText, bool bNumeric) const {
    if (bNumeric) {
        return qv::NumberKey(static_cast<std::int32_t>(std::atol(pszText)));
    }
    std::string strKey;
    qv::ProcessText().AppendSortKey(pszText, strKey);
    return strKey;
}

bool QVListCtrlEx::PlacesHold(bool bNumeric) {
    // Labels that the user edits change without a message.
    return (GetStyle() & LVS_EDITLABELS) == 0 &&
           m_pCore->places.Valid(m_pCore->changes,
                                 {bNumeric, GetItemCount(), NumColumns(), m_aStyles.Count()});
}

void QVListCtrlEx::KeepPlaces(bool bNumeric) {
    m_pCore->places.SetValid(m_pCore->changes,
                             {bNumeric, GetItemCount(), NumColumns(), m_aStyles.Count()});
}

// False if the list is gone, or a row cannot be read.
bool QVListCtrlEx::ReadPlaces(bool bNumeric) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    m_pCore->places.Invalidate();
    m_pCore->places.rows.Clear();
    CString strRow;
    const int nItems = GetItemCount();
    for (int nItem = 0; nItem < nItems; ++nItem) {
        if (!GetItemString(nItem, strRow)) {
            return false;
        }
        m_pCore->places.rows.Append(
            PlaceKey(bNumeric ? ParseStyleText(strRow) : LPCSTR(strRow), bNumeric));
    }
    if (!watch) {
        return false;
    }
    KeepPlaces(bNumeric);
    return true;
}

int QVListCtrlEx::AddBitmapString(int nImage, LPCSTR pszText, BOOL bNumeric) {
    if (m_pCore->pRows != nullptr) {
        return -1;
    }
    const qv::AliveWatch watch(m_alive);
    int nIndex = -1;
    if (!qv::MemorySuffices([&] { AddInPlace(nImage, pszText, bNumeric != FALSE, nIndex); }) &&
        watch) {
        m_pCore->places.Invalidate();
    }
    return nIndex;
}

// nIndex is right also where memory runs out once the row is in.
void QVListCtrlEx::AddInPlace(int nImage, LPCSTR pszText, bool bNumeric, int& nIndex) {
    if (!PlacesHold(bNumeric) && !ReadPlaces(bNumeric)) {
        return;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const size_t nPlace = m_pCore->places.rows.Find(PlaceKey(ParseStyleText(pszText), bNumeric));
    const int nForeign = m_pCore->changes.Foreign();
    nIndex = InsertBitmapString(nImage, static_cast<int>(nPlace), pszText);
    CString strRow;
    const bool bKeep = watch && nIndex == static_cast<int>(nPlace) &&
                       nForeign == m_pCore->changes.Foreign() && GetItemString(nIndex, strRow);
    if (!watch) {
        nIndex = -1;
        return;
    }
    if (bKeep) {
        // What stands in the control now, with its code, is what later rows are compared with.
        m_pCore->places.rows.Insert(
            nPlace, PlaceKey(bNumeric ? ParseStyleText(strRow) : LPCSTR(strRow), bNumeric));
        KeepPlaces(bNumeric);
    } else {
        m_pCore->places.Invalidate();
    }
}

int QVListCtrlEx::GetImage(int nItem) {
    if (m_pCore->pRows != nullptr) {
        return m_pCore->pRows->Image(nItem);
    }
    LVITEM item{};
    item.mask = LVIF_IMAGE;
    item.iItem = nItem;
    return GetItem(&item) ? item.iImage : -1;
}

BOOL QVListCtrlEx::SetImage(int nItem, int nImage) {
    return SetItem(nItem, 0, LVIF_IMAGE, nullptr, nImage, 0, 0, 0) ? TRUE : FALSE;
}
