// What the list tells a screen reader. The platform's own control, which keeps the rows, would say
// their style codes; elsewhere it says nothing at all. Its parts are the rows, numbered from 1, and
// the headings.

#include "list/list_ctrl.h"

#include "frame/core/spoken_text.h"
#include "frame/notify.h"
#include "frame/redraw_pause.h"
#include "list/list_ctrl_core.h"

#include <algorithm>
#include <oleacc.h>

namespace {

// Headings are numbered apart from the rows, whose numbers they would move otherwise.
constexpr long kFirstHeading = 0x40000000;

constexpr UINT kCheckedImage = 2;  // of the platform's check boxes

CString ToCString(const std::string& str) {
    return CString(str.data(), static_cast<int>(str.size()));
}

// The heading that is shown beside another, which users may have moved; -1 at the end.
int HeadingBeside(HWND hHeadings, int nCol, bool bRight) {
    HDITEM item{};
    item.mask = HDI_ORDER;
    ::SendMessage(hHeadings, HDM_GETITEM, static_cast<WPARAM>(nCol),
                  reinterpret_cast<LPARAM>(&item));
    const int nPlace = item.iOrder + (bRight ? 1 : -1);
    if (nPlace < 0 || nPlace >= Header_GetItemCount(hHeadings)) {
        return -1;
    }
    return static_cast<int>(
        ::SendMessage(hHeadings, HDM_ORDERTOINDEX, static_cast<WPARAM>(nPlace), 0));
}

}  // namespace

LRESULT QVListCtrlEx::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return AsksAccessible(lParam) ? AnswerAccessible(wParam, lParam) : Default();
}

// -1 for no row, below likewise for no heading.
int QVListCtrlEx::PartRow(long nPart) const {
    return nPart > 0 && nPart <= GetItemCount() ? static_cast<int>(nPart - 1) : -1;
}

int QVListCtrlEx::PartHeading(long nPart) const {
    const long nCol = nPart - kFirstHeading;
    return nCol >= 0 && nCol < HeadingCount() ? static_cast<int>(nCol) : -1;
}

int QVListCtrlEx::HeadingCount() const {
    return m_bSingleColumn || (GetStyle() & LVS_NOCOLUMNHEADER) != 0 ? 0 : NumColumns();
}

// --- Texts

// The fields of a row that show, with their headings unless it is its name: the first of them.
CString QVListCtrlEx::SpokenRow(int nItem, bool bName) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    CString strHeadings;
    if (!bName && HeadingCount() > 0) {
        ReadHeadings(strHeadings);
    }
    std::string strSpoken;
    int nHeadingPos = 0;
    bool bFirst = true;
    for (int nCol = 0; watch && nCol < NumColumns(); ++nCol) {
        std::string_view heading;
        qv::NextField({strHeadings, static_cast<size_t>(strHeadings.GetLength())}, nHeadingPos,
                      heading);
        if (nCol < FirstTextColumn() || GetColWidth(nCol, nullptr) == 0) {
            continue;
        }
        if (bFirst == bName) {
            // The parent may be asked for the text, and take the list away.
            const std::string strCell = CellText(nItem, nCol);
            if (!watch) {
                return CString();
            }
            strSpoken = qv::JoinSpoken(std::move(strSpoken),
                                       qv::SpokenText(strCell, m_aStyles, {0, 1}, heading));
        }
        if (bName) {
            break;
        }
        bFirst = false;
    }
    return ToCString(strSpoken);
}

CString QVListCtrlEx::GetAccessibleName(long nPart) {
    if (const int nCol = PartHeading(nPart); nCol >= 0) {
        CString strHeadings;
        ReadHeadings(strHeadings);
        return ToCString(qv::SpokenColumn(
            {strHeadings, static_cast<size_t>(strHeadings.GetLength())}, m_aStyles, nCol));
    }
    const int nItem = PartRow(nPart);
    return nItem >= 0 ? SpokenRow(nItem, true) : QVAccessible::GetAccessibleName(nPart);
}

CString QVListCtrlEx::GetAccessibleDescription(long nPart) {
    const int nItem = PartRow(nPart);
    return nItem >= 0 ? SpokenRow(nItem, false) : QVAccessible::GetAccessibleDescription(nPart);
}

CString QVListCtrlEx::GetAccessibleAction(long nPart) {
    if (PartHeading(nPart) >= 0) {
        return (GetStyle() & LVS_NOSORTHEADER) == 0 ? "Click" : "";
    }
    return PartRow(nPart) >= 0 ? "Double Click" : "";
}

long QVListCtrlEx::GetAccessibleRole(long nPart) {
    return nPart == CHILDID_SELF     ? ROLE_SYSTEM_LIST
           : PartHeading(nPart) >= 0 ? ROLE_SYSTEM_COLUMNHEADER
                                     : ROLE_SYSTEM_LISTITEM;
}

long QVListCtrlEx::GetAccessibleState(long nPart) {
    if (const int nCol = PartHeading(nPart); nCol >= 0) {
        return AccessibleWindowState() |
               (GetColWidth(nCol, nullptr) == 0 ? STATE_SYSTEM_INVISIBLE : 0);
    }
    const int nItem = PartRow(nPart);
    if (nItem < 0) {
        return QVAccessible::GetAccessibleState(nPart);
    }
    const UINT nItemState = GetItemState(nItem, LVIS_SELECTED | LVIS_FOCUSED | LVIS_STATEIMAGEMASK);
    CRect rcRow;
    CRect rcRows;
    CRect rcShown;
    GetItemRect(nItem, &rcRow, LVIR_BOUNDS);
    RowsRect(rcRows);
    long nState =
        AccessiblePartState((nItemState & LVIS_SELECTED) != 0, (nItemState & LVIS_FOCUSED) != 0,
                            rcShown.IntersectRect(&rcRow, &rcRows) != 0);
    if ((GetStyle() & LVS_SINGLESEL) == 0) {
        nState |= STATE_SYSTEM_MULTISELECTABLE | STATE_SYSTEM_EXTSELECTABLE;
    }
    if ((GetExtendedStyle() & LVS_EX_CHECKBOXES) != 0 && nItemState >> 12 == kCheckedImage) {
        nState |= STATE_SYSTEM_CHECKED;
    }
    return nState;
}

// --- Places

// The client area under the headings.
void QVListCtrlEx::RowsRect(CRect& rect) const {
    GetClientRect(&rect);
    const HWND hHeader = reinterpret_cast<HWND>(::SendMessage(m_hWnd, LVM_GETHEADER, 0, 0));
    if (hHeader != nullptr && ::IsWindowVisible(hHeader)) {
        CRect rcHeader;
        ::GetWindowRect(hHeader, &rcHeader);
        rect.top += rcHeader.Height();
    }
}

BOOL QVListCtrlEx::GetAccessibleRect(long nPart, CRect& rect) {
    if (const int nCol = PartHeading(nPart); nCol >= 0) {
        const HWND hHeader = reinterpret_cast<HWND>(::SendMessage(m_hWnd, LVM_GETHEADER, 0, 0));
        if (!::SendMessage(hHeader, HDM_GETITEMRECT, static_cast<WPARAM>(nCol),
                           reinterpret_cast<LPARAM>(static_cast<RECT*>(&rect)))) {
            return FALSE;
        }
        ::MapWindowPoints(hHeader, m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
        return TRUE;
    }
    const int nItem = PartRow(nPart);
    return nItem >= 0 ? GetItemRect(nItem, &rect, LVIR_BOUNDS)
                      : QVAccessible::GetAccessibleRect(nPart, rect);
}

long QVListCtrlEx::AccessibleHitTest(CPoint pt) {
    CRect rect;
    RowsRect(rect);
    if (pt.y < rect.top) {
        for (int nCol = 0; nCol < HeadingCount(); ++nCol) {
            if (GetAccessibleRect(kFirstHeading + nCol, rect) && rect.PtInRect(pt)) {
                return kFirstHeading + nCol;
            }
        }
        return 0;
    }
    // All rows have one height.
    const int nTop = GetTopIndex();
    if (nTop < GetItemCount() && GetItemRect(nTop, &rect, LVIR_BOUNDS) && rect.Height() > 0 &&
        pt.y >= rect.top) {
        const long nItem = nTop + (pt.y - rect.top) / rect.Height();
        return pt.x < rect.right && nItem < GetItemCount() ? nItem + 1 : 0;
    }
    return 0;
}

// --- Which parts there are: the rows, then the headings

BOOL QVListCtrlEx::IsAccessiblePart(long nPart) {
    return PartRow(nPart) >= 0 || PartHeading(nPart) >= 0;
}

long QVListCtrlEx::GetAccessibleCount() {
    return GetItemCount() + HeadingCount();
}

long QVListCtrlEx::GetAccessiblePart(long nIndex) {
    const long nRows = GetItemCount();
    if (nIndex < 0 || nIndex >= nRows + HeadingCount()) {
        return 0;
    }
    return nIndex < nRows ? nIndex + 1 : kFirstHeading + (nIndex - nRows);
}

long QVListCtrlEx::GetAccessibleIndex(long nPart) {
    if (const int nCol = PartHeading(nPart); nCol >= 0) {
        return GetItemCount() + nCol;
    }
    return PartRow(nPart);
}

// Headings lie side by side, above the rows.
long QVListCtrlEx::NavigateAccessible(long nPart, long nDirection) {
    const bool bHeading = PartHeading(nPart) >= 0;
    const bool bSideways = nDirection == NAVDIR_LEFT || nDirection == NAVDIR_RIGHT;
    const bool bUpDown = nDirection == NAVDIR_UP || nDirection == NAVDIR_DOWN;
    if ((bHeading && bUpDown) || (!bHeading && bSideways)) {
        return 0;
    }
    if (bSideways) {
        const int nCol = HeadingBeside(ListView_GetHeader(m_hWnd), PartHeading(nPart),
                                       nDirection == NAVDIR_RIGHT);
        return nCol >= 0 ? kFirstHeading + nCol : 0;
    }
    const long nTo = QVAccessible::NavigateAccessible(nPart, nDirection);
    return nPart != CHILDID_SELF && bUpDown && PartHeading(nTo) >= 0 ? 0 : nTo;
}

// --- Focus and selection

long QVListCtrlEx::GetAccessibleFocus() {
    return GetNextItem(-1, LVNI_FOCUSED) + 1;
}

long QVListCtrlEx::GetNextAccessibleSelected(long nPart) {
    return GetNextItem(nPart > 0 ? PartRow(nPart) : -1, LVNI_SELECTED) + 1;
}

// One by one: the platform's control does not live through a parent that takes it away while it
// changes all rows at once.
void QVListCtrlEx::DeselectAll(const qv::WindowWatch<HWND>& watch) {
    int nItem = -1;
    while (watch && (nItem = GetNextItem(nItem, LVNI_SELECTED)) != -1) {
        SetItemState(nItem, 0, LVIS_SELECTED);
    }
}

BOOL QVListCtrlEx::SelectAccessible(long nPart, long nFlags) {
    const int nItem = PartRow(nPart);
    if (nItem < 0) {
        return nPart == CHILDID_SELF && QVAccessible::SelectAccessible(nPart, nFlags);
    }
    if (!IsWindowEnabled()) {
        return FALSE;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if ((nFlags & SELFLAG_TAKEFOCUS) != 0) {
        SetFocus();
    }
    // The rows that change: this one, or those from the row with the focus to it.
    int nFirst = nItem;
    int nLast = nItem;
    if (watch && (nFlags & SELFLAG_EXTENDSELECTION) != 0) {
        const int nAnchor = std::max(0, GetNextItem(-1, LVNI_FOCUSED));
        nFirst = std::min(nItem, nAnchor);
        nLast = std::max(nItem, nAnchor);
    }
    constexpr long kOneByOne = SELFLAG_ADDSELECTION | SELFLAG_REMOVESELECTION;
    const int nSelected = watch ? static_cast<int>(GetSelectedCount()) : 0;
    const qv::RedrawPause pause(*this, watch && PausesFor(nSelected + nLast - nFirst));
    if (watch && (nFlags & (SELFLAG_TAKESELECTION | SELFLAG_EXTENDSELECTION)) != 0 &&
        (nFlags & kOneByOne) == 0) {
        DeselectAll(watch);
    }
    const UINT nState = (nFlags & SELFLAG_REMOVESELECTION) != 0 ? 0 : LVIS_SELECTED;
    if ((nFlags & ~SELFLAG_TAKEFOCUS) != 0) {
        for (int i = nFirst; watch && i <= nLast; ++i) {
            SetItemState(i, nState, LVIS_SELECTED);
        }
    }
    if (watch && (nFlags & (SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)) != 0) {
        SetItemState(nItem, LVIS_FOCUSED, LVIS_FOCUSED);
    }
    if (watch && (nFlags & SELFLAG_TAKESELECTION) != 0) {
        SetSelectionMark(nItem);  // a selection by SHIFT begins here
    }
    if (!watch || PartRow(nPart) < 0) {
        return FALSE;
    }
    EnsureVisible(nItem, FALSE);
    return TRUE;
}

// A click on a heading, a double click on a row. The row is selected at once.
BOOL QVListCtrlEx::DoAccessibleAction(long nPart) {
    if (!IsWindowEnabled() || GetAccessibleAction(nPart).IsEmpty()) {
        return FALSE;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if (PartHeading(nPart) < 0 &&
        !SelectAccessible(nPart, SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)) {
        return FALSE;
    }
    return watch && PostAccessible(nPart);
}

void QVListCtrlEx::DoPostedAccessible(long nPart) {
    if (!IsWindowEnabled()) {
        return;
    }
    if (const int nCol = PartHeading(nPart); nCol >= 0) {
        NMLISTVIEW notification{};
        notification.iItem = -1;
        notification.iSubItem = nCol;
        qv::NotifyParent(*this, m_alive, static_cast<UINT>(LVN_COLUMNCLICK), notification.hdr);
        return;
    }
    CRect rect;
    CRect rcRows;
    if (!GetAccessibleRect(nPart, rect)) {
        return;
    }
    RowsRect(rcRows);
    rect.IntersectRect(&rect, &rcRows);
    // Told without the platform's control, which a parent may not take away while it looks for
    // what was hit.
    NMITEMACTIVATE notification{};
    notification.iItem = PartRow(nPart);
    notification.ptAction = rect.CenterPoint();
    if (qv::NotifyParent(*this, m_alive, static_cast<UINT>(NM_DBLCLK), notification.hdr).bAlive) {
        qv::NotifyParent(*this, m_alive, static_cast<UINT>(LVN_ITEMACTIVATE), notification.hdr);
    }
}

// --- Events

// Not for the parent alone: what others handle goes on to it.
BOOL QVListCtrlEx::OnTellItemChanged(NMHDR* pHdr, LRESULT*) {
    const auto& change = *reinterpret_cast<const NMLISTVIEW*>(pHdr);
    if ((change.uChanged & LVIF_STATE) == 0) {
        return FALSE;
    }
    const long nPart = change.iItem + 1;
    const UINT nChanged = change.uOldState ^ change.uNewState;
    if ((nChanged & change.uNewState & LVIS_FOCUSED) != 0 && HasFocus() && nPart > 0) {
        TellAccessible(EVENT_OBJECT_FOCUS, nPart);
    }
    if ((nChanged & LVIS_SELECTED) != 0) {
        const bool bSelected = (change.uNewState & LVIS_SELECTED) != 0;
        const bool bOne = (GetStyle() & LVS_SINGLESEL) != 0;
        if (nPart == 0) {
            TellAccessible(EVENT_OBJECT_SELECTIONWITHIN, CHILDID_SELF);
        } else if (!bOne || bSelected) {
            TellAccessible(bOne        ? EVENT_OBJECT_SELECTION
                           : bSelected ? EVENT_OBJECT_SELECTIONADD
                                       : EVENT_OBJECT_SELECTIONREMOVE,
                           nPart);
        }
    }
    if ((nChanged & LVIS_STATEIMAGEMASK) != 0 && nPart > 0) {
        TellAccessible(EVENT_OBJECT_STATECHANGE, nPart);
    }
    return FALSE;
}

// What the message that was handled changed.
void QVListCtrlEx::TellChange(UINT nMessage, WPARAM wParam, LPARAM lParam) {
    switch (nMessage) {
        case LVM_INSERTITEMA:
        case LVM_INSERTITEMW:
        case LVM_DELETEITEM:
        case LVM_DELETEALLITEMS:
        case LVM_SETITEMCOUNT:
        case LVM_SORTITEMS:
        case LVM_SORTITEMSEX:
        case LVM_INSERTCOLUMNA:
        case LVM_INSERTCOLUMNW:
        case LVM_DELETECOLUMN:
            TellAccessibleReorder();
            break;
        case LVM_SETITEMTEXTA:
        case LVM_SETITEMTEXTW:
            TellAccessible(EVENT_OBJECT_NAMECHANGE, static_cast<long>(wParam) + 1);
            break;
        case LVM_SETITEMA:
        case LVM_SETITEMW: {
            const auto* pItem = reinterpret_cast<const LVITEM*>(lParam);
            if (pItem != nullptr && (pItem->mask & LVIF_TEXT) != 0) {
                TellAccessible(EVENT_OBJECT_NAMECHANGE, pItem->iItem + 1);
            }
            break;
        }
        case LVM_SETCOLUMNA:
        case LVM_SETCOLUMNW: {
            const auto* pColumn = reinterpret_cast<const LVCOLUMN*>(lParam);
            const long nPart = kFirstHeading + static_cast<long>(wParam);
            if (pColumn != nullptr && (pColumn->mask & LVCF_TEXT) != 0 && PartHeading(nPart) >= 0) {
                TellAccessible(EVENT_OBJECT_NAMECHANGE, nPart);
            }
            break;
        }
        case WM_SETFOCUS:
            if (const int nItem = GetNextItem(-1, LVNI_FOCUSED); nItem >= 0) {
                TellAccessible(EVENT_OBJECT_FOCUS, nItem + 1);
            }
            break;
        default:
            break;
    }
}
