#include "grid/grid_ctrl.h"

#include "frame/core/styled_text.h"
#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
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
    ON_MESSAGE(WM_SETREDRAW, &QVGridCtrl::OnSetRedraw)
    ON_MESSAGE(WM_GETFONT, &QVGridCtrl::OnGetFont)
    ON_MESSAGE(WM_SETFONT, &QVGridCtrl::OnSetFont)
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
    ON_MESSAGE(WM_GETOBJECT, &QVGridCtrl::OnGetObject)
    ON_EN_CHANGE(kGridEditId, &QVGridCtrl::OnChangeEditText)
END_MESSAGE_MAP()

// --- Life

QVGridCtrl::QVGridCtrl() try
    : QVAccessible(static_cast<CWnd&>(*this)), m_pCore(std::make_unique<Core>(*this)) {
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
    const int nCol = qv::AsMemoryException([&] { return m_pCore->model.AddColumn(nType, nWidth); });
    TellAccessibleReorder();
    return nCol;
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

GridColType QVGridCtrl::GetCellType(int nRow, int nCol) const {
    return m_pCore->model.Type(qv::GridCell{nRow, nCol});
}

void QVGridCtrl::SetCellType(int nRow, int nCol, GridColType nType) {
    qv::AsMemoryException([&] { m_pCore->model.SetType({nRow, nCol}, nType); });
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
    TellAccessibleReorder();
    return nRow;
}

int QVGridCtrl::AddRow(UINT nStringID, DWORD dwState) {
    CString strRow;
    strRow.LoadString(nStringID);
    return AddRow(strRow, dwState);
}

void QVGridCtrl::DeleteAllRows() {
    m_pCore->editing.DeleteRows();
    m_pCore->deeds.Forget();
    m_nTopRow = -1;
    if (CanRepaint()) {
        CalcScrollBars();
        InvalidateAll();
    }
    TellAccessibleReorder();
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
    if (ModifyCellStyle(nRow, nCol, bEnable ? 0 : GCS_DISABLED, bEnable ? GCS_DISABLED : 0)) {
        DropLocked(nRow, nCol, !bEnable);
    }
}

// After a style has changed: what is typed in a cell that is locked now goes.
void QVGridCtrl::DropLocked(int nRow, int nCol, bool bLocked) {
    const qv::AliveWatch watch(m_pCore->Alive());
    if (bLocked) {
        m_pCore->editing.DropEditors({nRow, nCol});
    }
    if (watch) {
        TellAccessible(EVENT_OBJECT_STATECHANGE, GetCellPart(nRow, nCol));
    }
}

BOOL QVGridCtrl::IsCellEnabled(int nRow, int nCol) const {
    return (GetCellStyle(nRow, nCol) & GCS_DISABLED) == 0;
}

void QVGridCtrl::SetCellReadOnly(int nRow, int nCol, BOOL bReadOnly) {
    if (ModifyCellStyle(nRow, nCol, bReadOnly ? GCS_READONLY : 0, bReadOnly ? 0 : GCS_READONLY)) {
        DropLocked(nRow, nCol, bReadOnly != FALSE);
    }
}

BOOL QVGridCtrl::IsCellReadOnly(int nRow, int nCol) const {
    return (GetCellStyle(nRow, nCol) & GCS_READONLY) != 0;
}
