#include "list/list_ctrl.h"

#include "frame/ancestor_font.h"
#include "frame/core/wheel.h"
#include "frame/module_state.h"
#include "frame/mouse_wheel.h"
#include "frame/out_of_memory.h"
#include "frame/select_object.h"
#include "frame/text_out.h"
#include "list/cell_format.h"
#include "list/cut_text.h"
#include "list/list_places.h"

#include <algorithm>
#include <climits>
#include <unordered_map>

namespace {

constexpr int kFormatMask = LVCFMT_JUSTIFYMASK;
constexpr int kHeadingBytes = 255;  // with the terminator

}  // namespace

IMPLEMENT_DYNCREATE(QVListCtrlEx, CListCtrl)

BEGIN_MESSAGE_MAP(QVListCtrlEx, CListCtrl)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_MOUSEWHEEL()
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_WINDOWPOSCHANGED()
    ON_NOTIFY_REFLECT(LVN_COLUMNCLICK, OnItemclick)
    ON_MESSAGE(LVM_INSERTCOLUMNA, OnInsertColumn)
    ON_MESSAGE(LVM_INSERTCOLUMNW, OnInsertColumn)
    ON_MESSAGE(LVM_DELETECOLUMN, OnDeleteColumn)
    ON_MESSAGE(LVM_DELETEITEM, OnDeleteListItem)
    ON_MESSAGE(LVM_DELETEALLITEMS, OnDeleteAllItems)
    ON_MESSAGE(LVM_INSERTITEMA, OnInsertListItem)
    ON_MESSAGE(LVM_INSERTITEMW, OnInsertListItem)
    ON_MESSAGE(LVM_SETITEMA, OnSetListItem)
    ON_MESSAGE(LVM_SETITEMW, OnSetListItem)
    ON_MESSAGE(LVM_SETITEMTEXTA, OnSetListItemText)
    ON_MESSAGE(LVM_SETITEMTEXTW, OnSetListItemText)
    ON_MESSAGE(LVM_SETITEMCOUNT, OnRowsChange)
    ON_MESSAGE(LVM_SORTITEMS, OnRowsChange)
    ON_MESSAGE(LVM_SORTITEMSEX, OnRowsChange)
END_MESSAGE_MAP()

// --- Creation

QVListCtrlEx::QVListCtrlEx()
    : m_dwDefStyle(WS_CHILD | WS_VISIBLE | WS_BORDER | LVS_REPORT | LVS_SINGLESEL |
                   LVS_SHOWSELALWAYS | LVS_OWNERDRAWFIXED),
      m_pPlaces(qv::AsMemoryException([] { return std::make_unique<Places>(); })) {}

QVListCtrlEx::~QVListCtrlEx() {
    DestroyWindow();
}

void QVListCtrlEx::ModifyDefStyle(DWORD dwRemove, DWORD dwAdd) {
    m_dwDefStyle = (m_dwDefStyle & ~dwRemove) | dwAdd;
}

BOOL QVListCtrlEx::Create(UINT nID, const CRect& rc, UINT nBitmapID, COLORREF crMask, int cx,
                          CWnd* pParent) {
    const qv::AliveWatch watch(m_alive);
    BOOL bInitialized = FALSE;
    qv::MemorySuffices([&] {
        bInitialized = CListCtrl::Create(m_dwDefStyle, rc, pParent, nID) &&
                       Initialize(nID, nBitmapID, crMask, cx, pParent);
    });
    if (!bInitialized && watch) {
        DestroyWindow();
    }
    return bInitialized;
}

BOOL QVListCtrlEx::Create(UINT nID, const CRect& rc, CWnd* pParent) {
    return Create(nID, rc, 0, 0, 0, pParent);
}

BOOL QVListCtrlEx::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = WC_LISTVIEW;
    }
    cs.style = static_cast<LONG>(m_dwDefStyle);
    if ((cs.style & WS_BORDER) != 0) {
        cs.style &= ~WS_BORDER;
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
    }
    return CListCtrl::PreCreateWindow(cs);
}

BOOL QVListCtrlEx::Initialize(UINT nID, CWnd* pParent) {
    return Initialize(nID, 0, 0, 0, pParent);
}

BOOL QVListCtrlEx::Initialize(UINT nID, UINT nBitmapID, COLORREF crMask, int cx, CWnd* pParent) {
    const bool bAttach = m_hWnd == nullptr;
    bool bDone = false;
    const qv::AliveWatch watch(m_alive);
    qv::MemorySuffices([&] {
        bDone = (!bAttach || SubclassDlgItem(nID, pParent)) && SetUp(nBitmapID, crMask, cx);
    });
    if (!bDone && watch && bAttach && m_hWnd != nullptr) {
        UnsubclassWindow();
    }
    return bDone;
}

// False if the list is gone.
bool QVListCtrlEx::SetUp(UINT nBitmapID, COLORREF crMask, int cx) {
    if (m_hTold == nullptr) {
        m_hTold = ::GetParent(m_hWnd);
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    ModifyStyle(LVS_TYPEMASK, LVS_REPORT | LVS_OWNERDRAWFIXED, 0);
    LoadImages(nBitmapID, crMask, cx);
    TakeFontOfParents();
    MeasureFont();
    CRect rcClient;
    GetClientRect(&rcClient);
    m_nClientWidth = rcClient.Width();
    if (m_bSingleColumn) {
        LVCOLUMN column{};
        column.mask = LVCF_WIDTH;
        if (!GetColumn(0, &column)) {
            CListCtrl::InsertColumn(0, "", LVCFMT_LEFT, -1, 0);
            SetColWidth(0, m_nClientWidth, nullptr);
        }
    }
    if (watch) {
        SetupColumns();
    }
    return static_cast<bool>(watch);
}

// The control deletes the image lists that it has when it goes; ours is not its own.
void QVListCtrlEx::OnDestroy() {
    SetImageList(nullptr, LVSIL_SMALL);
    m_hTold = nullptr;
    CListCtrl::OnDestroy();
}

HWND QVListCtrlEx::ToldWindow() const {
    return m_hTold != nullptr ? m_hTold : ::GetParent(m_hWnd);
}

void QVListCtrlEx::LoadImages(UINT nBitmapID, COLORREF crMask, int cx) {
    if (cx <= 0) {
        return;
    }
    SetImageList(nullptr, LVSIL_SMALL);
    m_imageList.DeleteImageList();
    m_nImageWidth = m_nImageHeight = 0;
    if (!m_imageList.Create(nBitmapID, cx, 0, crMask)) {
        return;
    }
    IMAGEINFO info;
    if (m_imageList.GetImageInfo(0, &info)) {
        m_nImageHeight = info.rcImage.bottom - info.rcImage.top;
        m_nImageWidth = cx;
    }
    SetImageList(&m_imageList, LVSIL_SMALL);
}

void QVListCtrlEx::TakeFontOfParents() {
    if (GetFont() != nullptr) {
        return;
    }
    if (CFont* pFont = qv::NearestFont(GetParent())) {
        SetFont(pFont, TRUE);
    }
}

void QVListCtrlEx::MeasureFont() {
    CFont* pFont = GetFont();
    if (m_nTextHeight != 0 || pFont == nullptr) {
        return;
    }
    CClientDC dc(this);
    const qv::SelectGuard<CFont> font(dc, pFont);
    TEXTMETRIC metrics;
    if (dc.GetTextMetrics(&metrics)) {
        m_nTextHeight = metrics.tmHeight - metrics.tmInternalLeading;
    }
}

void QVListCtrlEx::SetImageFirstCol(BOOL bFirst) {
    m_bImageFirstCol = bFirst;
    m_pPlaces->Invalidate();
}

// --- Columns

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
        m_columns.SetCount(0);
    }
    const std::string_view headers = pszHeaders != nullptr ? pszHeaders : "";
    std::string_view field;
    int nCol = m_columns.Count();
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
        m_columns.SetCount(0);
    }
}

void QVListCtrlEx::ClearCols() {
    m_columns.Clear();
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
            m_columns.SetCount(nColumns);
        }
    });
}

int QVListCtrlEx::CalcColWidths(CDC*, int*) {
    return m_columns.Count();
}

void QVListCtrlEx::SetupColumnsFromString(const CString& strSample) {
    qv::MemorySuffices([&] { SizeToSample(std::string(strSample)); });
}

void QVListCtrlEx::SizeToSample(std::string strSample) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    int nFillCol = -1;
    int nCol = 0;
    char* pszRest = strSample.data();
    for (char* psz; watch && (psz = qv::CutField(pszRest)) != nullptr; ++nCol) {
        std::string_view field = psz;
        if (qv::TakeFillMark(field)) {
            nFillCol = nCol;
            psz[field.size()] = '\0';
        }
        const int nWidth = GetStringWidth(psz) + qv::kColumnMargin;
        SetColWidth(nCol, std::max(nWidth, GetColWidth(nCol, nullptr)), nullptr);
    }
    if (watch) {
        // Room for the scroll bar is left whether or not there is one.
        FillRest(nFillCol, ::GetSystemMetrics(SM_CXVSCROLL));
    }
}

// Widens a column to what the window has left, nReserved pixels apart. -1 is no column.
void QVListCtrlEx::FillRest(int nFillCol, int nReserved) {
    CRect rcClient;
    GetClientRect(&rcClient);
    const int nRest = rcClient.Width() - nReserved - GetDataWidth();
    if (nFillCol != -1 && nRest > 0) {
        SetColWidth(nFillCol, GetColWidth(nFillCol, nullptr) + nRest, nullptr);
    }
}

int QVListCtrlEx::MakeColsFromString(CDC* pDC, const CString& strRow, int* pWidths) {
    const qv::AliveWatch watch(m_alive);
    int nCol = 0;
    std::string_view field;
    for (int nPos = 0; watch && qv::NextField(std::string_view(strRow), nPos, field); ++nCol) {
        const CSize size = qv::TextExtent(*pDC, field);
        SetColWidth(nCol, size.cx + qv::kColumnMargin, pWidths);
    }
    return nCol;
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
    for (int nCol = 0; nCol < m_columns.Count(); ++nCol) {
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
    const int nColumns = MakeColsFromString(&dc, strHeaders, nullptr);
    if (!watch) {
        return;
    }
    m_bSingleColumn = FALSE;
    m_columns.SetCount(nColumns);
    if (nColumns >= 1) {
        FillRest(nFillCol, 0);
    }
}

int QVListCtrlEx::CalcDataWidth(int* pWidths) {
    int nWidth = 0;
    for (int nCol = 0; nCol < m_columns.Count(); ++nCol) {
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
    return nCol >= 0 && nCol < m_columns.Count() ? pWidths[nCol] : 0;
}

void QVListCtrlEx::SetColWidth(int nCol, int nWidth, int* pWidths) {
    if (pWidths == nullptr) {
        const qv::AliveWatch watch(m_alive);
        SendMessage(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(nCol), MAKELPARAM(nWidth, 0));
        if (watch) {
            CalcDataWidth(nullptr);
        }
    } else if (nCol >= 0 && nCol < m_columns.Count()) {
        pWidths[nCol] = nWidth;
    }
}

int QVListCtrlEx::NumColumns() const {
    return m_columns.Count();
}

int QVListCtrlEx::GetColFormat(int nCol) const {
    return m_columns.Format(nCol);
}

void QVListCtrlEx::SetColFormat(int nCol, int nFormat) {
    qv::MemorySuffices([&] { m_columns.SetFormat(nCol, nFormat); });
}

int QVListCtrlEx::GetColStyle(int nCol) const {
    return m_columns.Style(nCol);
}

void QVListCtrlEx::SetColStyle(int nCol, int nStyle) {
    qv::MemorySuffices([&] { m_columns.SetStyle(nCol, nStyle); });
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
        const int nItems = GetItemCount();
        for (int nItem = 0; watch && nItem < nItems; ++nItem) {
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
        SetColWidth(0, std::max(m_nClientWidth, m_nDataWidth), nullptr);
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
    return m_nImageWidth + qv::TextExtent(*pDC, qv::View(strText)).cx + qv::kColumnMargin;
}

// --- Selection

int QVListCtrlEx::GetSelectedItem() {
    return GetSelectedCount() == 1 ? GetNextItem(-1, LVNI_SELECTED) : -1;
}

int QVListCtrlEx::SelectItem(int nItem) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    for (int nOld; watch && (nOld = GetSelectedItem()) != -1;) {
        // A parent may refuse the change; it would be asked without end.
        if (!SetItemState(nOld, 0, LVIS_SELECTED) || !watch || GetSelectedItem() == nOld) {
            break;
        }
    }
    if (watch && nItem != -1) {
        const UINT nState = LVIS_SELECTED | (HasFocus() ? LVIS_FOCUSED : 0);
        SetItemState(nItem, nState, nState);
    }
    return -1;
}

void QVListCtrlEx::SaveSelections() {
    INT_PTR nSaved = 0;
    const auto nSelected = static_cast<INT_PTR>(GetSelectedCount());
    if (!qv::MemorySuffices([&] { m_aSavedSel.SetSize(nSelected); })) {
        return;
    }
    for (int nItem = -1; (nItem = GetNextItem(nItem, LVNI_SELECTED)) != -1 && nSaved < nSelected;) {
        m_aSavedSel[nSaved++] = GetItemData(nItem);
    }
    m_aSavedSel.SetSize(nSaved);
}

void QVListCtrlEx::RestoreSelections() {
    // The first row of each value.
    std::unordered_map<DWORD_PTR, int> rows;
    const bool bRead = qv::MemorySuffices([&] {
        const int nItems = m_aSavedSel.GetSize() != 0 ? GetItemCount() : 0;
        for (int nItem = 0; nItem < nItems; ++nItem) {
            rows.emplace(GetItemData(nItem), nItem);
        }
    });
    const qv::WindowWatch watch(m_alive, m_hWnd);
    for (INT_PTR i = 0; bRead && watch && i < m_aSavedSel.GetSize(); ++i) {
        if (const auto it = rows.find(m_aSavedSel[i]); it != rows.end()) {
            SetItemState(it->second, LVIS_SELECTED, LVIS_SELECTED);
        }
    }
}

void QVListCtrlEx::InvalidateData(BOOL bErase) {
    CRect rcItem;
    if (GetItemCount() > 0 && GetItemRect(GetTopIndex(), &rcItem, LVIR_BOUNDS)) {
        CRect rc;
        GetClientRect(&rc);
        rc.top = rcItem.top;
        InvalidateRect(&rc, bErase);
    }
}

// --- Messages

LRESULT QVListCtrlEx::OnInsertColumn(WPARAM wParam, LPARAM lParam) {
    if (lParam != 0 && wParam < INT_MAX) {
        m_columns.CountInserted(static_cast<int>(wParam));
    }
    m_nDataWidth = -1;
    m_pPlaces->Invalidate();
    return Default();
}

LRESULT QVListCtrlEx::OnDeleteColumn(WPARAM, LPARAM) {
    m_columns.CountDeleted();
    m_nDataWidth = -1;
    m_pPlaces->Invalidate();
    return Default();
}

LRESULT QVListCtrlEx::OnDeleteListItem(WPARAM, LPARAM) {
    m_pPlaces->CountChange();
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const LRESULT lResult = Default();
    if (watch && m_bSingleColumn) {
        CalcSingleColWidth();
    }
    return lResult;
}

LRESULT QVListCtrlEx::OnDeleteAllItems(WPARAM wParam, LPARAM lParam) {
    return OnDeleteListItem(wParam, lParam);
}

// These keep account of the changes that AddBitmapString has to know.
LRESULT QVListCtrlEx::OnRowsChange(WPARAM, LPARAM) {
    m_pPlaces->CountChange();
    return Default();
}

LRESULT QVListCtrlEx::OnInsertListItem(WPARAM, LPARAM lParam) {
    const auto* pItem = reinterpret_cast<const LVITEM*>(lParam);
    if (pItem != nullptr && (pItem->mask & LVIF_TEXT) != 0) {
        m_pPlaces->SeeText(pItem->pszText);
    }
    m_pPlaces->CountChange();
    return Default();
}

LRESULT QVListCtrlEx::OnSetListItem(WPARAM wParam, LPARAM lParam) {
    const auto* pItem = reinterpret_cast<const LVITEM*>(lParam);
    const bool bText = pItem != nullptr && (pItem->mask & LVIF_TEXT) != 0;
    return bText ? OnSetListItemText(wParam, lParam) : Default();
}

LRESULT QVListCtrlEx::OnSetListItemText(WPARAM, LPARAM lParam) {
    if (const auto* pItem = reinterpret_cast<const LVITEM*>(lParam)) {
        m_pPlaces->SeeText(pItem->pszText);
    }
    m_pPlaces->CountChange();
    return Default();
}

void QVListCtrlEx::OnItemclick(NMHDR* pHdr, LRESULT* pResult) {
    *pResult = 0;
    SortOnHeader(reinterpret_cast<NMLISTVIEW*>(pHdr)->iSubItem);
}

BOOL QVListCtrlEx::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT*) {
    const UINT nCode = reinterpret_cast<const NMHDR*>(lParam)->code;
    if (wParam == 0 && (nCode == HDN_ITEMCHANGEDA || nCode == HDN_ITEMCHANGEDW)) {
        // The control takes over the new width when it sees this message, after this handler.
        m_nDataWidth = -1;
        InvalidateData(FALSE);
    }
    return FALSE;
}

void QVListCtrlEx::OnSize(UINT, int cx, int) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    Default();
    if (!watch) {
        return;
    }
    m_nClientWidth = cx;
    if (!m_bSingleColumn) {
        return;
    }
    CRect rcWindow;
    GetWindowRect(&rcWindow);
    if (rcWindow.Width() != m_rcWindow.Width()) {
        CalcSingleColWidth();
        if (watch) {
            m_rcWindow = rcWindow;
        }
    }
}

void QVListCtrlEx::OnWindowPosChanging(WINDOWPOS* pPos) {
    Default();
    pPos->flags |= SWP_NOREDRAW;
}

void QVListCtrlEx::OnWindowPosChanged(WINDOWPOS*) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    Default();
    if (watch) {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
    }
}

BOOL QVListCtrlEx::OnMouseWheel(UINT, short zDelta, CPoint) {
    // One remainder for all lists of the process: the wheel is one.
    static int s_nRemainder = 0;
    const qv::WindowWatch watch(m_alive, m_hWnd);
    qv::TurnWheel(s_nRemainder, zDelta, GetMouseScrollLines(FALSE), [&](bool bUp, bool) {
        if (watch) {
            Scroll(CSize(0, bUp ? -m_nTextHeight : m_nTextHeight));
        }
    });
    return TRUE;
}
