// The list's columns: headings, widths, alignment.

#include "list/list_ctrl.h"

#include "frame/core/styled_text.h"
#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"
#include "list/cell_row.h"
#include "list/core/list_fit.h"
#include "list/cut_text.h"
#include "list/list_ctrl_core.h"

#include <algorithm>

namespace {

constexpr int kFormatMask = LVCFMT_JUSTIFYMASK;
constexpr int kHeadingBytes = 255;  // with the terminator

}  // namespace

void QVListCtrlEx::AddHeader(UINT nStringID) {
    CString strHeaders;
    BOOL bLoaded = FALSE;
    qv::MemorySuffices([&] { bLoaded = strHeaders.LoadString(nStringID); });
    if (bLoaded) {
        AddHeader(strHeaders);
    }
}

void QVListCtrlEx::AddHeader(LPCSTR pszHeaders) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if (m_bSingleColumn) {
        DeleteColumn(0);
        if (!watch.ObjectAlive()) {
            return;
        }
        m_bSingleColumn = FALSE;
        m_pCore->columns.SetCount(0);
    }
    const std::string_view headers = pszHeaders != nullptr ? pszHeaders : "";
    std::string_view field;
    int nCol = m_pCore->columns.Count();
    for (int nPos = 0;
         watch && nCol <= qv::kLastHeaderColumn && qv::NextField(headers, nPos, field); ++nCol) {
        const qv::Heading<kHeadingBytes> heading(field);
        LVCOLUMN column{};
        column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT | LVCF_SUBITEM;
        column.fmt = LVCFMT_LEFT;
        column.cx = qv::kNewColumnWidth;
        column.pszText = heading.Text();
        column.iSubItem = nCol;
        SendMessage(LVM_INSERTCOLUMN, static_cast<WPARAM>(nCol), reinterpret_cast<LPARAM>(&column));
    }
}

void QVListCtrlEx::ClearHeaders() {
    LVCOLUMN column{};
    column.mask = LVCF_WIDTH;
    const qv::AliveWatch watch(m_alive);
    // A control that refuses to delete a column ends the walk as well.
    while (watch && GetColumn(0, &column) && DeleteColumn(0)) {
    }
    if (watch) {
        m_pCore->columns.SetCount(0);
    }
}

void QVListCtrlEx::ClearCols() {
    m_pCore->columns.Clear();
}

void QVListCtrlEx::SetupColumns() {
    if (m_bSingleColumn) {
        CalcSingleColWidth();
        return;
    }
    qv::MemorySuffices([&] {
        const qv::AliveWatch watch(m_alive);
        CWindowDC dc(this);
        const qv::SelectGuard<CFont> font(dc, GetFont());
        const int nColumns = CalcColWidths(&dc, nullptr);
        if (watch) {
            m_pCore->columns.SetCount(nColumns);
        }
    });
}

int QVListCtrlEx::CalcColWidths(CDC*, int*) {
    return m_pCore->columns.Count();
}

// The columns as they are fitted: those of the control, or a table of widths on paper. Texts are
// measured on a device context or, without one, by the control.
class QVListCtrlEx::Columns : public qv::FittedColumns {
public:
    Columns(QVListCtrlEx& list, CDC* pDC, int* pWidths)
        : m_list(list), m_watch(list.m_alive), m_pDC(pDC), m_pWidths(pWidths) {}

    int TextWidth(std::string_view text) override {
        return m_pDC != nullptr ? static_cast<int>(qv::TextExtent(*m_pDC, text).cx)
                                : m_list.GetStringWidth(std::string(text).c_str());
    }
    int Width(int nCol) override { return m_list.GetColWidth(nCol, m_pWidths); }
    bool SetWidth(int nCol, int nWidth) override {
        const HWND hWnd = m_list.m_hWnd;
        m_list.SetColWidth(nCol, nWidth, m_pWidths);
        return m_watch && m_list.m_hWnd == hWnd;
    }
    int DataWidth() override { return m_list.GetDataWidth(); }
    int ClientWidth() override {
        CRect rcClient;
        m_list.GetClientRect(&rcClient);
        return rcClient.Width();
    }

private:
    QVListCtrlEx& m_list;
    const qv::AliveWatch m_watch;
    CDC* const m_pDC;
    int* const m_pWidths;
};

void QVListCtrlEx::SetupColumnsFromString(const CString& strSample) {
    if (m_hWnd == nullptr) {
        return;
    }
    qv::MemorySuffices([&] {
        // The caller's string may go with the list.
        const std::string strRow(strSample);
        Columns columns(*this, nullptr, nullptr);
        // Room for the scroll bar is left whether or not there is one.
        qv::FitToSample(columns, strRow, ::GetSystemMetrics(SM_CXVSCROLL));
    });
}

int QVListCtrlEx::MakeColsFromString(CDC* pDC, const CString& strRow, int* pWidths) {
    Columns columns(*this, pDC, pWidths);
    return qv::FitToFields(columns, std::string_view(strRow));
}

int QVListCtrlEx::MakeHeaderString(CString& str) {
    int nRead = 0;
    return qv::MemorySuffices([&] { nRead = ReadHeadings(str); }) ? nRead : 0;
}

int QVListCtrlEx::ReadHeadings(CString& str) {
    char szHeading[kHeadingBytes + 1];
    LVCOLUMN column{};
    column.mask = LVCF_TEXT;
    column.pszText = szHeading;
    column.cchTextMax = kHeadingBytes + 1;
    int nRead = 0;
    CString strAll(str);
    for (int nCol = 0; nCol < m_pCore->columns.Count(); ++nCol) {
        szHeading[0] = '\0';
        if (GetColumn(nCol, &column)) {
            if (nCol > 0) {
                strAll += qv::kFieldSeparator;
            }
            strAll += column.pszText;
            ++nRead;
        }
    }
    str = strAll;
    return nRead;
}

void QVListCtrlEx::CalcColsFromHeader(int nFillCol) {
    qv::MemorySuffices([&] { SizeToHeadings(nFillCol); });
}

void QVListCtrlEx::SizeToHeadings(int nFillCol) {
    CString strHeaders;
    MakeHeaderString(strHeaders);
    if (strHeaders.IsEmpty()) {
        return;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    CWindowDC dc(this);
    const qv::SelectGuard<CFont> font(dc, GetFont());
    Columns columns(*this, &dc, nullptr);
    const int nColumns = qv::FitToFields(columns, qv::View(strHeaders));
    if (!watch) {
        return;
    }
    m_bSingleColumn = FALSE;
    m_pCore->columns.SetCount(nColumns);
    if (nColumns >= 1) {
        qv::FillRest(columns, nFillCol, 0);
    }
}

int QVListCtrlEx::CalcDataWidth(int* pWidths) {
    int nWidth = 0;
    for (int nCol = 0; nCol < m_pCore->columns.Count(); ++nCol) {
        nWidth += GetColWidth(nCol, pWidths);
    }
    if (pWidths == nullptr) {
        m_nDataWidth = nWidth;
    }
    return nWidth;
}

int QVListCtrlEx::GetDataWidth() {
    return m_nDataWidth != -1 ? m_nDataWidth : CalcDataWidth(nullptr);
}

int QVListCtrlEx::GetColWidth(int nCol, int* pWidths) {
    if (pWidths == nullptr) {
        return GetColumnWidth(nCol);
    }
    return nCol >= 0 && nCol < m_pCore->columns.Count() ? pWidths[nCol] : 0;
}

void QVListCtrlEx::SetColWidth(int nCol, int nWidth, int* pWidths) {
    if (pWidths == nullptr) {
        const qv::AliveWatch watch(m_alive);
        SendMessage(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(nCol), MAKELPARAM(nWidth, 0));
        if (watch) {
            CalcDataWidth(nullptr);
        }
    } else if (nCol >= 0 && nCol < m_pCore->columns.Count()) {
        pWidths[nCol] = nWidth;
    }
}

int QVListCtrlEx::NumColumns() const {
    return m_pCore->columns.Count();
}

void QVListCtrlEx::SetNumColumns(int nColumns) {
    m_pCore->columns.SetCount(nColumns);
}

int QVListCtrlEx::GetColFormat(int nCol) const {
    return m_pCore->columns.Format(nCol);
}

void QVListCtrlEx::SetColFormat(int nCol, int nFormat) {
    qv::MemorySuffices([&] { m_pCore->columns.SetFormat(nCol, nFormat); });
}

int QVListCtrlEx::GetColStyle(int nCol) const {
    return m_pCore->columns.Style(nCol);
}

void QVListCtrlEx::SetColStyle(int nCol, int nStyle) {
    qv::MemorySuffices([&] { m_pCore->columns.SetStyle(nCol, nStyle); });
}

int QVListCtrlEx::GetHdrFormat(int nCol) {
    LVCOLUMN column{};
    column.mask = LVCF_FMT;
    return GetColumn(nCol, &column) ? column.fmt & kFormatMask : 0;
}

void QVListCtrlEx::SetHdrFormat(int nCol, int nFormat) {
    LVCOLUMN column{};
    column.mask = LVCF_FMT;
    if (GetColumn(nCol, &column)) {
        column.fmt = (column.fmt & ~kFormatMask) | nFormat;
        SetColumn(nCol, &column);
    }
}

UINT QVListCtrlEx::GetColDrawFormat(int nCol) const {
    return qv::CellDrawFormat(GetColFormat(nCol));
}

UINT QVListCtrlEx::GetHdrDrawFormat(int nCol) {
    return qv::CellDrawFormat(GetHdrFormat(nCol));
}

BOOL QVListCtrlEx::InReportMode() {
    return (GetStyle() & LVS_TYPEMASK) == LVS_REPORT;
}

void QVListCtrlEx::SetSortMethod(void (*pfn)(int nCol, void* pData), void* pData) {
    m_pfnSort = pfn;
    m_pSortData = pData;
}

void QVListCtrlEx::SortOnHeader(int nCol) {
    if (m_pfnSort != nullptr) {
        m_pfnSort(nCol, m_pSortData);
    }
}

void QVListCtrlEx::CalcSingleColWidth() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const int nOld = m_nDataWidth;
    const bool bMeasured = qv::MemorySuffices([&] {
        CClientDC dc(this);
        const qv::SelectGuard<CFont> font(dc, GetFont());
        m_nDataWidth = 0;
        int nItem = 0;
        int nItems = GetItemCount();
        if (m_pCore->pRows != nullptr) {
            // What is in view stands for all: nobody is asked for each of a million rows.
            nItem = GetTopIndex();
            nItems = std::min(nItems, nItem + GetCountPerPage() + 1);
        }
        for (; watch && nItem < nItems; ++nItem) {
            const int nWidth = CalculateItemWidth(&dc, nItem);
            if (watch) {
                m_nDataWidth = std::max(m_nDataWidth, nWidth);
            }
        }
    });
    if (!watch) {
        return;
    }
    if (bMeasured) {
        SetColWidth(0, qv::SingleColumnWidth(m_nClientWidth, m_nDataWidth), nullptr);
    } else {
        m_nDataWidth = nOld;
    }
}

int QVListCtrlEx::CalculateItemWidth(CDC* pDC, int nItem) {
    CString strRow;
    if (!GetItemString(nItem, strRow)) {
        return 0;  // also where the list is gone
    }
    const CString strText(ParseStyleText(strRow));
    return qv::SingleRowWidth(m_nImageWidth,
                              static_cast<int>(qv::TextExtent(*pDC, qv::View(strText)).cx));
}
