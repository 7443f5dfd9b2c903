// What the tree tells a screen reader. Its parts are the displayable rows; an item that a collapsed
// branch hides still answers by its number, as an event may have named it.

#include "tree/tree_ctrl.h"

#include "frame/core/spoken_text.h"
#include "tree/tree_ctrl_core.h"

#include <oleacc.h>

namespace {

// State images of the standard check marks; pictures of a program's own count as ticked.
constexpr UINT kGreyEmpty = 2;
constexpr UINT kGreyTicked = 3;

bool IsTicked(UINT nImage) {
    return nImage != 0 && nImage != kGreyEmpty;
}

std::string_view View(const CString& str) {
    return {str, static_cast<size_t>(str.GetLength())};
}

CString ToCString(const std::string& str) {
    return CString(str.data(), static_cast<int>(str.size()));
}

}  // namespace

LRESULT QVTreeCtrlEx::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return AsksAccessible(lParam) ? AnswerAccessible(wParam, lParam) : Default();
}

HTREEITEM QVTreeCtrlEx::GetPartItem(long nPart) const {
    return Items().ItemOf(nPart);
}

long QVTreeCtrlEx::GetItemPart(HTREEITEM hItem) const {
    return hItem != nullptr ? Items().NumberOf(hItem) : 0;
}

void QVTreeCtrlEx::TellItem(DWORD nEvent, HTREEITEM hItem) const {
    if (hItem != nullptr && m_hWnd != nullptr && ::IsWinEventHookInstalled(nEvent)) {
        TellAccessible(nEvent, GetItemPart(hItem));
    }
}

// The fields that are shown: all without tab stops, else one more than there are stops. With
// headings the first is the name and the others are the description.
CString QVTreeCtrlEx::SpokenFields(HTREEITEM hItem, bool bName) {
    qv::SpokenFields fields;
    if (const int nStops = GetTabCount(); nStops > 0) {
        fields.nEnd = nStops + 1;
    }
    if (bName && !m_strHeadings.IsEmpty()) {
        fields.nEnd = 1;
    } else if (!bName) {
        fields.nFirst = 1;
    }
    return ToCString(qv::SpokenText(hItem->pszText, m_aStyles, fields,
                                    bName ? std::string_view() : ::View(m_strHeadings)));
}

CString QVTreeCtrlEx::GetAccessibleName(long nPart) {
    const HTREEITEM hItem = GetPartItem(nPart);
    return hItem != nullptr ? SpokenFields(hItem, true) : QVAccessible::GetAccessibleName(nPart);
}

CString QVTreeCtrlEx::GetAccessibleValue(long nPart) {
    CString strLevel;
    if (const HTREEITEM hItem = GetPartItem(nPart)) {
        int nLevel = 0;  // by the links: see ChangeParent
        for (HTREEITEM h = hItem->pParent; h != nullptr; h = h->pParent) {
            ++nLevel;
        }
        strLevel.Format("%d", nLevel);
    }
    return strLevel;
}

CString QVTreeCtrlEx::GetAccessibleDescription(long nPart) {
    CString strText;
    const HTREEITEM hItem = GetPartItem(nPart);
    if (hItem == nullptr) {
        return strText;
    }
    if (!m_strHeadings.IsEmpty()) {
        strText = SpokenFields(hItem, false);
    }
    if (const qv::SiblingPlace place = View().PlaceOf(hItem); place.nPlace > 0) {
        CString strPlace;
        strPlace.Format("%d of %d", place.nPlace, place.nCount);
        strText = ToCString(qv::JoinSpoken(std::string(strText), ::View(strPlace)));
    }
    return strText;
}

CString QVTreeCtrlEx::GetAccessibleAction(long nPart) {
    const HTREEITEM hItem = GetPartItem(nPart);
    if (hItem == nullptr) {
        return CString();
    }
    if (hItem->pFirstChild != nullptr) {
        return ItemExpanded(hItem) ? "Collapse" : "Expand";
    }
    if (m_pStateImageList != nullptr && m_bAllowTags && HaveStateImage(hItem)) {
        return IsTicked(GetItemStateImage(hItem)) ? "Uncheck" : "Check";
    }
    return CString();
}

long QVTreeCtrlEx::GetAccessibleRole(long nPart) {
    return nPart == CHILDID_SELF ? ROLE_SYSTEM_OUTLINE : ROLE_SYSTEM_OUTLINEITEM;
}

long QVTreeCtrlEx::GetAccessibleState(long nPart) {
    const HTREEITEM hItem = GetPartItem(nPart);
    if (hItem == nullptr) {
        return QVAccessible::GetAccessibleState(nPart);
    }
    CRect rc;
    const bool bSelected = hItem == GetSelectedItem();
    long nState = AccessiblePartState(bSelected, bSelected, GetItemRect(hItem, &rc, FALSE) != 0);
    if (hItem->pFirstChild != nullptr) {
        nState |= ItemExpanded(hItem) ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED;
    }
    if (m_pStateImageList != nullptr && HaveStateImage(hItem)) {
        const UINT nImage = GetItemStateImage(hItem);
        nState |= IsTicked(nImage) ? STATE_SYSTEM_CHECKED : 0;
        nState |= nImage == kGreyEmpty || nImage == kGreyTicked ? STATE_SYSTEM_MIXED : 0;
    }
    return nState;
}

BOOL QVTreeCtrlEx::GetAccessibleRect(long nPart, CRect& rect) {
    const HTREEITEM hItem = GetPartItem(nPart);
    if (hItem == nullptr) {
        return QVAccessible::GetAccessibleRect(nPart, rect);
    }
    qv::Rect rcRow;
    if (!View().GetRowRect(hItem, rcRow)) {
        return FALSE;
    }
    rect = qv::ToCRect(rcRow);
    rect.OffsetRect(-GetHScrollPos(), 0);
    return TRUE;
}

BOOL QVTreeCtrlEx::IsAccessiblePart(long nPart) {
    return GetPartItem(nPart) != nullptr;
}

long QVTreeCtrlEx::GetAccessibleCount() {
    return View().RowCount();
}

long QVTreeCtrlEx::GetAccessiblePart(long nIndex) {
    return GetItemPart(View().RowAt(nIndex));
}

long QVTreeCtrlEx::GetAccessibleIndex(long nPart) {
    return View().RowOf(GetPartItem(nPart));
}

long QVTreeCtrlEx::AccessibleHitTest(CPoint pt) {
    return GetItemPart(HitTest(pt, nullptr, nullptr));
}

long QVTreeCtrlEx::NavigateAccessible(long nPart, long nDirection) {
    const HTREEITEM hItem = GetPartItem(nPart);
    if (hItem != nullptr && nDirection == NAVDIR_LEFT) {
        return GetItemPart(hItem->pParent);
    }
    if (hItem != nullptr && nDirection == NAVDIR_RIGHT) {
        return ItemExpanded(hItem) ? GetItemPart(hItem->pFirstChild) : 0;
    }
    return QVAccessible::NavigateAccessible(nPart, nDirection);
}

long QVTreeCtrlEx::GetNextAccessibleSelected(long nPart) {
    return nPart == CHILDID_SELF ? GetItemPart(GetSelectedItem()) : 0;
}

// One item is selected, so it is taken or let go.
BOOL QVTreeCtrlEx::SelectAccessible(long nPart, long nFlags) {
    const HTREEITEM hItem = GetPartItem(nPart);
    if (hItem == nullptr) {
        return QVAccessible::SelectAccessible(nPart, nFlags);
    }
    if (!IsWindowEnabled() || (nFlags & (SELFLAG_EXTENDSELECTION | SELFLAG_ADDSELECTION |
                                         SELFLAG_REMOVESELECTION)) != 0) {
        return FALSE;
    }
    const Guard guard(*this, hItem);
    if ((nFlags & SELFLAG_TAKEFOCUS) != 0) {
        SetFocus();
    }
    if (!guard) {
        return FALSE;
    }
    // The row with the focus is the selected one: taking either takes both.
    if (hItem != GetSelectedItem()) {
        NfySelectItem(hItem);
    }
    if (!guard || hItem != GetSelectedItem()) {
        return FALSE;
    }
    EnsureVisible(hItem);
    return TRUE;
}

BOOL QVTreeCtrlEx::DoAccessibleAction(long nPart) {
    const HTREEITEM hItem = GetPartItem(nPart);
    if (hItem == nullptr || GetAccessibleAction(nPart).IsEmpty() || !IsWindowEnabled()) {
        return FALSE;
    }
    if (hItem->pFirstChild != nullptr) {
        ToggleByMouse(hItem);
    } else {
        ToggleCheck(hItem);
    }
    return TRUE;
}
