#include "grid/grid_ctrl.h"

#include "frame/core/styled_text.h"
#include "frame/out_of_memory.h"
#include "frame/select_object.h"
#include "frame/text_out.h"
#include "grid/grid_ctrl_core.h"

#include <algorithm>

namespace {

constexpr int kTextRoom = 6;  // beside a column's widest text, in pixels

}  // namespace

IMPLEMENT_DYNCREATE(QVGridCtrl, QVCustCtrl)

BEGIN_MESSAGE_MAP(QVGridCtrl, QVCustCtrl)
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_WM_VSCROLL()
    ON_MESSAGE(WM_SETREDRAW, OnSetRedraw)
    ON_MESSAGE(WM_GETFONT, OnGetFont)
    ON_MESSAGE(WM_SETFONT, OnSetFont)
    ON_WM_GETDLGCODE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_NCHITTEST()
    ON_WM_CANCELMODE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_SYSKEYDOWN()
    ON_WM_CHAR()
    ON_WM_DESTROY()
    ON_EN_CHANGE(kGridEditId, OnChangeEditText)
END_MESSAGE_MAP()

// --- Life

QVGridCtrl::QVGridCtrl() try : m_pCore(std::make_unique<Core>(*this)) {
    m_si.cbSize = sizeof(m_si);
    m_si.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
} catch (const std::bad_alloc&) {
    AfxThrowMemoryException();
}

QVGridCtrl::~QVGridCtrl() {
    DestroyWindow();
}

void QVGridCtrl::RegisterControlClass(HINSTANCE hInstance) {
    WNDCLASS wc{};
    wc.style = CS_DBLCLKS | CS_PARENTDC;
    wc.lpfnWndProc = ::DefWindowProc;
    wc.hInstance = hInstance != nullptr ? hInstance : AfxGetInstanceHandle();
    wc.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = "QVGridCtrl";
    if (!AfxRegisterClass(&wc)) {
        AfxThrowResourceException();
    }
}

void QVGridCtrl::RegisterDlgControlClass(UINT nDialogID) {
    RegisterControlClass(AfxFindResourceHandle(MAKEINTRESOURCE(nDialogID), RT_DIALOG));
}

void QVGridCtrl::OnDestroy() {
    m_pCore->editing.Closing();
    QVCustCtrl::OnDestroy();
    m_pCore->edit.Close();
    m_pCore->list.Close();
    m_pCore->editing.Closed();
}

void QVGridCtrl::InvalidateAll() {
    if (CanRepaint()) {
        InvalidateRect(nullptr, FALSE);
    }
}

// --- Columns

int QVGridCtrl::AddColumn(GridColType nType, int nWidth) {
    return qv::AsMemoryException([&] { return m_pCore->model.AddColumn(nType, nWidth); });
}

int QVGridCtrl::NumColumns() const {
    return m_pCore->model.NumColumns();
}

BOOL QVGridCtrl::IsValidColumn(int nCol) const {
    return m_pCore->model.IsColumn(nCol);
}

int QVGridCtrl::GetColWidth(int nCol) const {
    const _QVGRID_COL_INFO* pColumn = m_pCore->model.Column(nCol);
    return pColumn != nullptr ? pColumn->nWidth : 0;
}

void QVGridCtrl::SetColWidth(int nCol, int nWidth) {
    if (_QVGRID_COL_INFO* pColumn = m_pCore->model.Column(nCol)) {
        pColumn->nWidth = nWidth;
        InvalidateAll();
        m_pCore->editing.PlaceEditors();
    }
}

GridColType QVGridCtrl::GetColType(int nCol) const {
    return m_pCore->model.Type(nCol);
}

void QVGridCtrl::SetColType(int nCol, GridColType nType) {
    if (_QVGRID_COL_INFO* pColumn = m_pCore->model.Column(nCol)) {
        pColumn->nType = nType;
    }
}

CStringArray* QVGridCtrl::GetColListData(int nCol) const {
    const _QVGRID_COL_INFO* pColumn = m_pCore->model.Column(nCol);
    return pColumn != nullptr ? pColumn->pListData : nullptr;
}

void QVGridCtrl::SetColListData(int nCol, CStringArray* pList) {
    if (_QVGRID_COL_INFO* pColumn = m_pCore->model.Column(nCol)) {
        pColumn->pListData = pList;
    }
}

DWORD_PTR QVGridCtrl::GetColumnData(int nCol) const {
    const _QVGRID_COL_INFO* pColumn = m_pCore->model.Column(nCol);
    return pColumn != nullptr ? pColumn->dwData : 0;
}

void QVGridCtrl::SetColumnData(int nCol, DWORD_PTR dwData) {
    if (_QVGRID_COL_INFO* pColumn = m_pCore->model.Column(nCol)) {
        pColumn->dwData = dwData;
    }
}

BOOL QVGridCtrl::UseFieldButton(int nCol) const {
    return m_pCore->model.UsesButton(nCol);
}

int QVGridCtrl::AutoSizeColumn(int nCol, int nMinWidth) {
    int nWidth = 0;
    qv::MemorySuffices([&] {
        CStringArray strings;
        CString strText;
        for (int nRow = 0; nRow < NumRows(); ++nRow) {
            if (ReadCell(nRow, nCol, strText) && !strText.IsEmpty()) {
                strings.Add(strText);
            }
        }
        nWidth = SizeToStrings(nCol, strings, nMinWidth);
    });
    return nWidth;
}

int QVGridCtrl::SizeToStrings(int nCol, const CStringArray& strings, int nMinWidth) {
    int nWidth = std::max(-1, nMinWidth);
    const bool bMeasured =
        MeasureRows() && qv::MemorySuffices([&] {
            CClientDC dc(this);
            const qv::SelectGuard<CFont> font(dc, m_hFont);
            const int nRoom = kTextRoom + (UseFieldButton(nCol) ? m_nCellHeight : 0);
            for (INT_PTR i = 0; i < strings.GetSize(); ++i) {
                const int nText =
                    static_cast<int>(qv::TextExtent(dc, qv::View(strings.ElementAt(i))).cx);
                nWidth = std::max(nWidth, nText + nRoom);
            }
        });
    if (!bMeasured) {
        return 0;
    }
    SetColWidth(nCol, nWidth);
    return nWidth;
}

// --- Rows

int QVGridCtrl::AddRow(const CString& strRow, DWORD dwState) {
    const int nRow = qv::AsMemoryException([&] {
        return m_pCore->model.AddRow({strRow, static_cast<size_t>(strRow.GetLength())}, dwState);
    });
    if (m_nTopRow == -1) {
        m_nTopRow = nRow;
    }
    if (CanRepaint()) {
        CalcScrollBars();
        if (m_bShowAddedRows) {
            InvalidateRow(nRow, FALSE);
        }
    }
    return nRow;
}

int QVGridCtrl::AddRow(UINT nStringID, DWORD dwState) {
    CString strRow;
    strRow.LoadString(nStringID);
    return AddRow(strRow, dwState);
}

void QVGridCtrl::DeleteAllRows() {
    m_pCore->editing.DeleteRows();
    m_nTopRow = -1;
    if (CanRepaint()) {
        CalcScrollBars();
        InvalidateAll();
    }
}

int QVGridCtrl::NumRows() const {
    return m_pCore->model.NumRows();
}

BOOL QVGridCtrl::IsValidRow(int nRow) const {
    return m_pCore->model.IsRow(nRow);
}

_QVGRID_ROW_INFO& QVGridCtrl::RowAt(int nRow) {
    return m_pCore->model.RowAt(nRow);
}

DWORD_PTR QVGridCtrl::GetRowData(int nRow) const {
    return IsValidRow(nRow) ? m_pCore->model.RowAt(nRow).dwData : 0;
}

void QVGridCtrl::SetRowData(int nRow, DWORD_PTR dwData) {
    if (IsValidRow(nRow)) {
        RowAt(nRow).dwData = dwData;
    }
}

void QVGridCtrl::ParseRowString(const CString& strRow, CStringArray& fields) const {
    fields.RemoveAll();
    std::string_view field;
    const std::string_view row(strRow, static_cast<size_t>(strRow.GetLength()));
    for (int nPos = 0; qv::NextField(row, nPos, field);) {
        fields.Add(CString(field.data(), static_cast<int>(field.size())));
    }
}

// --- Cells

BOOL QVGridCtrl::GetCellText(int nRow, int nCol, CString& str) {
    bool bText = false;
    return qv::MemorySuffices([&] { bText = ReadCell(nRow, nCol, str); }) && bText;
}

// As the public one, but says that there was no memory by an exception: an empty text would be
// taken for the cell's.
bool QVGridCtrl::ReadCell(int nRow, int nCol, CString& str) const {
    if (!IsValidRow(nRow) || !IsValidColumn(nCol)) {
        return false;
    }
    if (m_pCore->editing.IsTyping({nRow, nCol})) {
        CString strTyped;
        m_pCore->edit.GetWindowText(strTyped);
        str = strTyped;
        return true;
    }
    const char* pszText = m_pCore->model.Text(nRow, nCol);
    str = pszText != nullptr ? pszText : "";
    return pszText != nullptr;
}

void QVGridCtrl::SetCellText(int nRow, int nCol, const CString& str) {
    qv::AsMemoryException([&] { m_pCore->editing.SetText({nRow, nCol}, str); });
}

DWORD_PTR QVGridCtrl::GetItemData(int nRow, int nCol) const {
    const _QVGRID_CELL_INFO* pCell = m_pCore->model.Cell(nRow, nCol);
    return pCell != nullptr ? pCell->dwData : 0;
}

void QVGridCtrl::SetItemData(int nRow, int nCol, DWORD_PTR dwData) {
    if (_QVGRID_CELL_INFO* pCell = m_pCore->model.Cell(nRow, nCol)) {
        pCell->dwData = dwData;
    }
}

DWORD QVGridCtrl::GetCellStyle(int nRow, int nCol) const {
    return m_pCore->model.Style(nRow, nCol);
}

BOOL QVGridCtrl::ModifyCellStyle(int nRow, int nCol, DWORD dwAdd, DWORD dwRemove) {
    if (!m_pCore->model.ModifyStyle(nRow, nCol, dwAdd, dwRemove)) {
        return FALSE;
    }
    if (CanRepaint()) {
        InvalidateCell(nRow, nCol, FALSE);
    }
    return TRUE;
}

void QVGridCtrl::EnableCell(int nRow, int nCol, BOOL bEnable) {
    if (bEnable) {
        ModifyCellStyle(nRow, nCol, 0, GCS_DISABLED);
    } else if (ModifyCellStyle(nRow, nCol, GCS_DISABLED, 0)) {
        m_pCore->editing.DropEditors({nRow, nCol});
    }
}

BOOL QVGridCtrl::IsCellEnabled(int nRow, int nCol) const {
    return (GetCellStyle(nRow, nCol) & GCS_DISABLED) == 0;
}

void QVGridCtrl::SetCellReadOnly(int nRow, int nCol, BOOL bReadOnly) {
    if (!bReadOnly) {
        ModifyCellStyle(nRow, nCol, 0, GCS_READONLY);
    } else if (ModifyCellStyle(nRow, nCol, GCS_READONLY, 0)) {
        m_pCore->editing.DropEditors({nRow, nCol});
    }
}

BOOL QVGridCtrl::IsCellReadOnly(int nRow, int nCol) const {
    return (GetCellStyle(nRow, nCol) & GCS_READONLY) != 0;
}

// --- Geometry

void QVGridCtrl::CalcRowRect(const CRect& rcClient, int nRow, CRect& rc) {
    const qv::GridLayout layout{m_pCore->model, qv::ToRect(rcClient), m_nCellHeight, m_nTopRow};
    rc = qv::ToCRect(layout.RowRect(nRow));
}

void QVGridCtrl::CalcCellRect(int nRow, int nCol, CRect& rc) {
    qv::Rect rect;
    if (m_pCore->Layout().CellRect(nRow, nCol, rect)) {
        rc = qv::ToCRect(rect);
    }
}

void QVGridCtrl::ButtonRectFromCellRect(CRect& rc) {
    rc = qv::ToCRect(m_pCore->Layout().ButtonRect(qv::ToRect(rc)));
}

void QVGridCtrl::CellFromPoint(const CPoint& pt, int& nRow, int& nCol) {
    BOOL bOnButton;
    CellFromPoint(pt, nRow, nCol, bOnButton);
}

void QVGridCtrl::CellFromPoint(const CPoint& pt, int& nRow, int& nCol, BOOL& bOnButton) {
    const qv::GridHit hit =
        m_pCore->Layout().HitTest({static_cast<int>(pt.x), static_cast<int>(pt.y)});
    nRow = hit.cell.nRow;
    nCol = hit.cell.nCol;
    bOnButton = hit.bOnButton;
}

void QVGridCtrl::InvalidateCell(int nRow, int nCol, BOOL bErase) {
    CRect rc(0, 0, 0, 0);
    CalcCellRect(nRow, nCol, rc);
    if (m_hWnd != nullptr && !rc.IsRectEmpty()) {
        InvalidateRect(&rc, bErase);
    }
}

void QVGridCtrl::InvalidateRow(int nRow, BOOL bErase) {
    if (m_hWnd != nullptr && IsValidRow(nRow)) {
        const CRect rc = qv::ToCRect(m_pCore->Layout().RowRect(nRow));
        InvalidateRect(&rc, bErase);
    }
}

// --- Scrolling

void QVGridCtrl::CalcScrollBars() {
    const bool bHasBar = (GetStyle() & WS_VSCROLL) != 0;
    if (m_nCellHeight == -1) {
        CalcCellHeight();
    }
    if (m_nCellHeight == -1) {
        return;  // no memory; the next paint tries again
    }
    const int nVisible = m_pCore->Layout().VisibleRows();
    const bool bNeed = NumRows() > nVisible;
    if (!bHasBar && !bNeed) {
        return;
    }
    if (bNeed) {
        m_si.nPage = static_cast<UINT>(nVisible);
        m_si.nPos = m_nTopRow;
        m_si.nMin = 0;
        m_si.nMax = NumRows() - 1;
        // Drawn with the next paint, if one is due: each of many added rows would draw it else.
        m_pCore->port.SetScrollRange(SB_VERT, {m_si.nMin, m_si.nMax, nVisible, m_si.nPos});
    }
    if (bHasBar != bNeed) {
        m_pCore->bShowingBar = true;
        ShowScrollBar(SB_VERT, bNeed);
        m_pCore->bShowingBar = false;
    }
    InvalidateAll();
}

// To a client area or a font of another height: no empty space under the last row while there are
// rows above the first.
void QVGridCtrl::RefitRows() {
    const int nLastTop = std::max(NumRows() - m_pCore->Layout().VisibleRows(), 0);
    if (m_nTopRow > nLastTop) {
        m_nTopRow = nLastTop;
        InvalidateAll();
    }
    CalcScrollBars();
}

// Before the first paint there is no font to fit anything to.
void QVGridCtrl::OnSize(UINT nType, int cx, int cy) {
    QVCustCtrl::OnSize(nType, cx, cy);
    if (m_nCellHeight == -1 || !m_bRedraw) {
        return;  // the next paint measures and fits
    }
    if (!m_pCore->bShowingBar) {
        RefitRows();
    }
    InvalidateAll();  // the last column reaches the edge
    m_pCore->editing.PlaceEditors();
    if (!m_pCore->bShowingBar) {
        m_pCore->editing.CloseListOutOfView();
    }
}

// Moves the window's pixels to a new top row, and paints what comes into view.
void QVGridCtrl::ShowTopRow(int nTop) {
    const int nOld = m_nTopRow;
    m_nTopRow = m_si.nPos = nTop;
    if (m_hWnd == nullptr) {
        return;
    }
    SetScrollInfo(SB_VERT, &m_si, TRUE);
    if (m_nCellHeight <= 0) {
        InvalidateAll();  // nothing was painted yet
        return;
    }
    CRect rcClient;
    GetClientRect(&rcClient);
    ScrollWindowEx(0, (nOld - nTop) * m_nCellHeight, nullptr, &rcClient, nullptr, nullptr,
                   SW_INVALIDATE | SW_ERASE);
    m_pCore->editing.PlaceEditors();
    m_pCore->editing.CloseListOutOfView();
}

void QVGridCtrl::ScrollDown(int nRows) {
    const int nTop =
        qv::TopAfterScrollDown(m_nTopRow, nRows, NumRows(), static_cast<int>(m_si.nPage));
    if (nTop != m_nTopRow) {
        ShowTopRow(nTop);
    }
}

void QVGridCtrl::ScrollUp(int nRows) {
    const int nTop = qv::TopAfterScrollUp(m_nTopRow, nRows);
    if (nTop != m_nTopRow) {
        ShowTopRow(nTop);
    }
}

void QVGridCtrl::ScrollTo(int nRow) {
    ShowTopRow(qv::TopAfterScrollTo(nRow, NumRows(), static_cast<int>(m_si.nPage)));
}

void QVGridCtrl::EnsureRowVisible(int nRow) {
    const int nPage = static_cast<int>(m_si.nPage);
    if (nRow < m_nTopRow) {
        ScrollUp(m_nTopRow - nRow);
    } else if (m_hWnd != nullptr && (GetStyle() & WS_VSCROLL) != 0 &&
               nRow > nPage + m_nTopRow - 1) {
        ScrollDown(nRow - nPage - m_nTopRow + 1);
    }
}

void QVGridCtrl::OnVScroll(UINT nCode, UINT nPos, CScrollBar* pBar) {
    const qv::WindowWatch watch(m_pCore->Alive(), m_hWnd);
    if (m_bEditing) {
        m_pCore->editing.SaveEditors();
    }
    if (!watch) {
        return;
    }
    const int nPage = static_cast<int>(m_si.nPage);
    switch (nCode) {
        case SB_LINEUP:
            ScrollUp(1);
            break;
        case SB_LINEDOWN:
            ScrollDown(1);
            break;
        case SB_PAGEUP:
            ScrollUp(nPage - 1);
            break;
        case SB_PAGEDOWN:
            ScrollDown(nPage - 1);
            break;
        case SB_THUMBPOSITION:
        case SB_THUMBTRACK: {
            // The message has room for 16 bits of the position alone.
            SCROLLINFO info{};
            info.cbSize = sizeof(info);
            info.fMask = SIF_TRACKPOS;
            const bool bWide = NumRows() > 0xFFFF && GetScrollInfo(SB_VERT, &info, SIF_TRACKPOS);
            ScrollTo(bWide ? info.nTrackPos : static_cast<int>(nPos));
            break;
        }
        case SB_TOP:
            ScrollTo(0);
            break;
        case SB_BOTTOM:
            ScrollTo(NumRows() - nPage);
            break;
        default:
            QVCustCtrl::OnVScroll(nCode, nPos, pBar);
            break;
    }
}
