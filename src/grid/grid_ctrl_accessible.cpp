// What the grid tells a screen reader. Its parts are the rows, each with its cells behind it. All
// that is asked of a row or a cell costs the same in any grid.

#include "grid/grid_ctrl.h"

#include "frame/core/spoken_text.h"
#include "frame/rectangles.h"
#include "frame/text_out.h"
#include "grid/grid_ctrl_core.h"

#include <algorithm>
#include <limits>
#include <oleacc.h>

namespace {

// What is shown is heard: the grid draws no styles.
const qv::StyleTable& NoStyles() {
    static const qv::StyleTable s_styles;
    return s_styles;
}

CString ToCString(const std::string& str) {
    return CString(str.data(), static_cast<int>(str.size()));
}

}  // namespace

LRESULT QVGridCtrl::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return AsksAccessible(lParam) ? AnswerAccessible(wParam, lParam) : Default();
}

// --- Which parts there are

long QVGridCtrl::GetAccessibleCount() {
    const long long nParts = static_cast<long long>(NumRows()) * (NumColumns() + 1);
    return static_cast<long>(std::min<long long>(nParts, std::numeric_limits<long>::max()));
}

long QVGridCtrl::GetCellPart(int nRow, int nCol) const {
    if (!IsValidRow(nRow) || (nCol != -1 && !IsValidColumn(nCol))) {
        return 0;
    }
    const long long nPart = static_cast<long long>(nRow) * (NumColumns() + 1) + nCol + 2;
    return nPart <= std::numeric_limits<long>::max() ? static_cast<long>(nPart) : 0;
}

BOOL QVGridCtrl::GetPartCell(long nPart, int& nRow, int& nCol) const {
    const int nStep = NumColumns() + 1;
    const int nOfRow = nPart > 0 ? static_cast<int>((nPart - 1) / nStep) : -1;
    if (!IsValidRow(nOfRow)) {
        return FALSE;
    }
    nRow = nOfRow;
    nCol = static_cast<int>((nPart - 1) % nStep) - 1;
    return TRUE;
}

long QVGridCtrl::NavigateAccessible(long nPart, long nDirection) {
    int nRow = -1;
    int nCol = -1;
    GetPartCell(nPart, nRow, nCol);
    switch (nDirection) {
        case NAVDIR_UP:
            return GetCellPart(nRow - 1, nCol);
        case NAVDIR_DOWN:
            return nRow != -1 ? GetCellPart(nRow + 1, nCol) : 0;
        case NAVDIR_LEFT:
            return nCol > 0 ? GetCellPart(nRow, nCol - 1) : 0;
        case NAVDIR_RIGHT:
            return nCol != -1 ? GetCellPart(nRow, nCol + 1) : 0;
        case NAVDIR_FIRSTCHILD:
        case NAVDIR_LASTCHILD:
            if (nRow != -1) {
                const int nEnd = nDirection == NAVDIR_FIRSTCHILD ? 0 : NumColumns() - 1;
                return nCol == -1 && nEnd != -1 ? GetCellPart(nRow, nEnd) : 0;
            }
            break;
        default:
            break;
    }
    return QVAccessible::NavigateAccessible(nPart, nDirection);
}

// --- Texts

std::string QVGridCtrl::SpokenCell(int nRow, int nCol) const {
    CString strText;
    ReadCell(nRow, nCol, strText);
    return qv::SpokenField(qv::View(strText), NoStyles());
}

// A text alone in the first column names its row.
std::string QVGridCtrl::SpokenHeadings(int nRow, int nCol) const {
    std::string strNames;
    if (nCol > 0 && GetCellType(nRow, 0) == gctStatic) {
        strNames = SpokenCell(nRow, 0);
    }
    return qv::JoinSpoken(std::move(strNames),
                          qv::SpokenColumn(qv::View(m_strHeadings), NoStyles(), nCol));
}

CString QVGridCtrl::GetAccessibleName(long nPart) {
    int nRow;
    int nCol;
    if (!GetPartCell(nPart, nRow, nCol)) {
        return QVAccessible::GetAccessibleName(nPart);
    }
    std::string strName = nCol > 0 || (nCol == 0 && GetCellType(nRow, 0) != gctStatic)
                              ? SpokenHeadings(nRow, nCol)
                              : std::string();
    return ToCString(strName.empty() ? SpokenCell(nRow, std::max(nCol, 0)) : strName);
}

CString QVGridCtrl::GetAccessibleValue(long nPart) {
    CString strText;
    int nRow;
    int nCol;
    if (!GetPartCell(nPart, nRow, nCol) || GetAccessibleRole(nPart) != ROLE_SYSTEM_CELL) {
        return strText;
    }
    const QVGridList& list = m_pCore->list;
    if (m_pCore->editing.HasListUp({nRow, nCol}) && list.SelectedLine() >= 0) {
        return ToCString(list.LineText(list.SelectedLine()));
    }
    ReadCell(nRow, nCol, strText);
    return strText;
}

CString QVGridCtrl::GetAccessibleDescription(long nPart) {
    std::string strCells;
    int nRow;
    int nCol;
    if (GetPartCell(nPart, nRow, nCol) && nCol == -1) {
        for (int i = 1; i < NumColumns(); ++i) {
            std::string strCell = SpokenCell(nRow, i);
            const std::string strHeading = qv::SpokenColumn(qv::View(m_strHeadings), NoStyles(), i);
            if (!strCell.empty() && !strHeading.empty()) {
                strCell = strHeading + ": " + strCell;
            }
            strCells = qv::JoinSpoken(std::move(strCells), strCell);
        }
    }
    return ToCString(strCells);
}

// --- What a part is

long QVGridCtrl::GetAccessibleRole(long nPart) {
    int nRow;
    int nCol;
    if (!GetPartCell(nPart, nRow, nCol)) {
        return ROLE_SYSTEM_TABLE;
    }
    return nCol == -1                                       ? ROLE_SYSTEM_ROW
           : nCol == 0 && GetCellType(nRow, 0) == gctStatic ? ROLE_SYSTEM_ROWHEADER
                                                            : ROLE_SYSTEM_CELL;
}

long QVGridCtrl::GetAccessibleState(long nPart) {
    int nRow;
    int nCol;
    if (!GetPartCell(nPart, nRow, nCol)) {
        return QVAccessible::GetAccessibleState(nPart);
    }
    CRect rect;
    CRect rcClient;
    GetClientRect(&rcClient);
    const bool bShows = GetAccessibleRect(nPart, rect) && rect.IntersectRect(&rect, &rcClient) != 0;
    const qv::GridCell cell{nRow, nCol};
    const qv::GridEditing& editing = m_pCore->editing;
    long nState = AccessiblePartState(editing.IsCurrent(cell), editing.IsCurrent(cell), bShows);
    if (nCol == -1) {
        return nState & ~(STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE);
    }
    if (!editing.IsChangeable(cell)) {
        nState |= STATE_SYSTEM_READONLY;
    }
    if (!IsCellEnabled(nRow, nCol)) {
        nState |= STATE_SYSTEM_UNAVAILABLE;
    }
    if (GetCellType(nRow, nCol) == gctDropList) {
        nState |= STATE_SYSTEM_HASPOPUP;
        nState |= editing.HasListUp(cell) ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED;
    }
    if (editing.IsCurrent(cell) && (RowAt(nRow).dwState & GRS_BUTTONDOWN) != 0) {
        nState |= STATE_SYSTEM_PRESSED;
    }
    return nState;
}

// Before the first paint nothing has a height.
BOOL QVGridCtrl::GetAccessibleRect(long nPart, CRect& rect) {
    int nRow;
    int nCol;
    if (!GetPartCell(nPart, nRow, nCol)) {
        return QVAccessible::GetAccessibleRect(nPart, rect);
    }
    if (!MeasureRows()) {
        return FALSE;
    }
    const qv::GridLayout layout = m_pCore->Layout();
    qv::Rect rc = layout.RowRect(nRow);
    if (nCol != -1) {
        layout.CellRect(nRow, nCol, rc);
    }
    rc.right = std::max(rc.left, rc.right);
    rect = qv::ToCRect(rc);
    return TRUE;
}

long QVGridCtrl::AccessibleHitTest(CPoint pt) {
    if (!MeasureRows()) {
        return 0;
    }
    int nRow;
    int nCol;
    CellFromPoint(pt, nRow, nCol);
    return GetCellPart(nRow, nCol);
}

// --- The current cell, which is the selection and has the focus

long QVGridCtrl::GetNextAccessibleSelected(long nPart) {
    return nPart == CHILDID_SELF && m_nCurCol != -1 ? GetCellPart(m_nCurRow, m_nCurCol) : 0;
}

BOOL QVGridCtrl::SelectAccessible(long nPart, long nFlags) {
    int nRow;
    int nCol;
    if (!GetPartCell(nPart, nRow, nCol)) {
        return QVAccessible::SelectAccessible(nPart, nFlags);
    }
    const bool bFocus = (nFlags & SELFLAG_TAKEFOCUS) != 0;
    if (nCol == -1 || !IsWindowEnabled() ||
        (nFlags & ~(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)) != 0) {
        return FALSE;
    }
    const qv::WindowWatch watch(m_pCore->Alive(), m_hWnd);
    const qv::GridCell cell{nRow, nCol};
    if (bFocus) {
        m_pCore->editing.ShowCell(cell);
    } else {
        EnsureRowVisible(nRow);
        if (watch) {
            m_pCore->editing.GotoCell(cell, false);
        }
    }
    if (watch && bFocus && !::IsChild(m_hWnd, ::GetFocus())) {
        SetFocus();
    }
    return watch && m_pCore->editing.IsCurrent(cell);
}

CString QVGridCtrl::GetAccessibleAction(long nPart) {
    int nRow;
    int nCol;
    if (GetPartCell(nPart, nRow, nCol)) {
        switch (m_pCore->editing.DeedOf({nRow, nCol})) {
            case qv::CellDeed::Edit:
                return "Edit";
            case qv::CellDeed::Press:
                return "Press";
            case qv::CellDeed::OpenList:
                return "Open";
            case qv::CellDeed::CloseList:
                return "Close";
            case qv::CellDeed::None:
                break;
        }
    }
    return CString();
}

BOOL QVGridCtrl::DoAccessibleAction(long nPart) {
    int nRow;
    int nCol;
    if (!IsWindowEnabled() || GetAccessibleAction(nPart).IsEmpty() ||
        !GetPartCell(nPart, nRow, nCol)) {
        return FALSE;
    }
    if (m_pCore->editing.DeedOf({nRow, nCol}) == qv::CellDeed::Press) {
        return PostAccessible(nPart);
    }
    m_pCore->editing.Act({nRow, nCol});
    return TRUE;
}

void QVGridCtrl::DoPostedAccessible(long nPart) {
    int nRow;
    int nCol;
    if (IsWindowEnabled() && GetPartCell(nPart, nRow, nCol)) {
        m_pCore->editing.Act({nRow, nCol});
    }
}

BOOL QVGridCtrl::SetAccessibleValue(long nPart, const CString& strValue) {
    int nRow;
    int nCol;
    if (!IsWindowEnabled() || !GetPartCell(nPart, nRow, nCol) ||
        !m_pCore->editing.IsChangeable({nRow, nCol})) {
        return FALSE;
    }
    const qv::WindowWatch watch(m_pCore->Alive(), m_hWnd);
    const std::string strText = qv::GridDeeds::OnOneLine(qv::View(strValue));
    m_pCore->deeds.Enter({nRow, nCol}, strText);
    CString strNow;
    return !watch || (ReadCell(nRow, nCol, strNow), qv::View(strNow) == strText);
}

// --- Events

void QVGridCtrl::Core::CellChanged(qv::GridCell cell, qv::CellChange what) {
    const long nPart = m_grid.GetCellPart(cell.nRow, cell.nCol);
    if (nPart == 0 || cell.nCol == -1) {
        return;
    }
    switch (what) {
        case qv::CellChange::Current:
            m_grid.TellAccessibleSelected(nPart);
            break;
        case qv::CellChange::Text:
            m_grid.TellAccessible(m_grid.GetAccessibleRole(nPart) == ROLE_SYSTEM_CELL
                                      ? EVENT_OBJECT_VALUECHANGE
                                      : EVENT_OBJECT_NAMECHANGE,
                                  nPart);
            break;
        case qv::CellChange::List:
            m_grid.TellAccessible(EVENT_OBJECT_STATECHANGE, nPart);
            break;
    }
}

CString QVGridCtrl::Core::EditName() {
    const qv::GridCell cell = editing.EditCell();
    return m_grid.GetAccessibleName(m_grid.GetCellPart(cell.nRow, cell.nCol));
}
