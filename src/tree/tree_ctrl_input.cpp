#include "tree/tree_ctrl.h"

#include "frame/core/wheel.h"
#include "frame/dc_guards.h"
#include "frame/mouse_wheel.h"
#include "frame/notify.h"
#include "tree/tree_ctrl_core.h"

namespace {

// Wheel distance not yet turned into steps; one for all trees.
int s_nTreeWheelRemainder = 0;

}  // namespace

// --- Notifications

void QVTreeCtrlEx::MakeTVItem(HTREEITEM hItem, TVITEM& item, BOOL bQuery) {
    if (hItem == nullptr) {
        item = {};
        return;
    }
    const UINT nMask = bQuery ? item.mask
                              : TVIF_TEXT | TVIF_IMAGE | TVIF_PARAM | TVIF_STATE | TVIF_HANDLE |
                                    TVIF_SELECTEDIMAGE;
    if (!bQuery) {
        item = {};
        item.mask = nMask;
        item.stateMask = hItem->nState | TVIS_STATEIMAGEMASK;
        item.pszText = hItem->pszText;
        item.cchTextMax = static_cast<int>(strlen(hItem->pszText)) + 1;
    } else if ((nMask & TVIF_TEXT) != 0 && item.pszText != nullptr && item.cchTextMax > 0) {
        const size_t nBytes =
            qv::ProcessText().PrefixBytes(hItem->pszText, static_cast<size_t>(item.cchTextMax) - 1);
        memcpy(item.pszText, hItem->pszText, nBytes);
        item.pszText[nBytes] = 0;
    }
    item.cChildren = 0;
    if (nMask & TVIF_HANDLE) {
        item.hItem = hItem;
    }
    if (nMask & TVIF_STATE) {
        item.state = hItem->nState & item.stateMask;
    }
    if (nMask & TVIF_IMAGE) {
        item.iImage = hItem->nImage;
    }
    if (nMask & TVIF_SELECTEDIMAGE) {
        item.iSelectedImage = hItem->nSelectedImage;
    }
    if (nMask & TVIF_PARAM) {
        item.lParam = static_cast<LPARAM>(hItem->dwData);
    }
}

LRESULT QVTreeCtrlEx::NotifyParent(UINT nCode, UINT nAction, HTREEITEM hOld, HTREEITEM hNew) {
    return NotifyParent(nCode, nAction, hOld, hNew, CPoint(0, 0));
}

LRESULT QVTreeCtrlEx::NotifyParent(UINT nCode, UINT nAction, HTREEITEM hOld, HTREEITEM hNew,
                                   CPoint pt) {
    NM_TREEVIEW notification{};
    notification.action = nAction;
    MakeTVItem(hOld, notification.itemOld, FALSE);
    MakeTVItem(hNew, notification.itemNew, FALSE);
    notification.ptDrag = pt;
    return qv::NotifyParent(*this, Items().Alive(), nCode, notification.hdr).lResult;
}

void QVTreeCtrlEx::NfySelectItem(HTREEITEM hItem) {
    const Guard guard(*this, hItem);
    HTREEITEM hOld = GetSelectedItem();
    if (NotifyParent(TVN_SELCHANGING, TVN_SELCHANGING, hOld, hItem) != 0 || !guard) {
        return;
    }
    hOld = GetSelectedItem();
    const bool bSelected = SelectItem(hItem);
    if (guard && bSelected) {
        NotifyParent(TVN_SELCHANGED, TVN_SELCHANGED, hOld, hItem);
    }
}

// True if the parent let the change through and the item still stands.
bool QVTreeCtrlEx::ChangeOneStateImage(HTREEITEM hItem, UINT nImage) {
    if (::GetParent(m_hWnd) == nullptr) {
        return false;
    }
    const Guard guard(*this, hItem);
    NM_TREEVIEW notification{};
    const auto tell = [&](UINT nCode) {
        notification.action = nCode;
        return qv::NotifyParent(*this, Items().Alive(), nCode, notification.hdr).lResult;
    };
    MakeTVItem(hItem, notification.itemOld, FALSE);
    MakeTVItem(hItem, notification.itemNew, FALSE);
    notification.itemNew.state = SetStateImage(notification.itemNew.state, nImage);
    notification.itemNew.stateMask = notification.itemNew.state | TVIS_STATEIMAGEMASK;
    if (tell(TVN_SELCHANGING) != 0 || !guard) {
        return false;
    }
    // The parent may have put another image into the structure.
    SetItemStateImage(hItem, StateImageFromState(notification.itemNew.state), FALSE);
    for (TVITEM* pItem : {&notification.itemOld, &notification.itemNew}) {
        // The parent may have given the item another text.
        pItem->pszText = hItem->pszText;
        pItem->cchTextMax = static_cast<int>(strlen(hItem->pszText)) + 1;
    }
    tell(TVN_SELCHANGED);
    return static_cast<bool>(guard);
}

// The item and then, in the order of the tree, everything below it. Where the parent refuses an
// item, what lies below that one stays as it was; where it deletes or moves one, the cascade ends.
void QVTreeCtrlEx::NfyChangeStateImage(HTREEITEM hItem, UINT nImage) {
    if (!ChangeOneStateImage(hItem, nImage) || !m_bAutoTagChildren ||
        hItem->pFirstChild == nullptr) {
        return;
    }
    const CWaitCursor wait;
    const Guard guard(*this, hItem);
    HTREEITEM h = hItem->pFirstChild;
    while (h != nullptr) {
        const Guard guardChild(*this, h);
        const HTREEITEM hParent = h->pParent;
        const bool bChanged = ChangeOneStateImage(h, nImage);
        if (!guard || !guardChild || h->pParent != hParent || !CheckForAncestor(h, hItem)) {
            return;
        }
        if (bChanged && m_bAutoTagChildren && h->pFirstChild != nullptr) {
            h = h->pFirstChild;
            continue;
        }
        while (h != hItem && h != nullptr && h->pNextSibling == nullptr) {
            h = h->pParent;
        }
        h = h == hItem || h == nullptr ? nullptr : h->pNextSibling;
    }
}

// What a click on the box and the space bar do: empty boxes, white or grey, get ticked, all others
// emptied.
void QVTreeCtrlEx::ToggleCheck(HTREEITEM hItem) {
    const UINT nImage = GetItemStateImage(hItem);
    NfyChangeStateImage(hItem, nImage == 0 || nImage == 2 ? 1 : 0);
}

// --- Mouse

// Asks, opens or closes, shows the branch as far as it fits with the item itself still in view, and
// tells. False if it was refused or nothing is left to go on with.
bool QVTreeCtrlEx::ToggleByMouse(HTREEITEM hItem) {
    const Guard guard(*this, hItem);
    if (NotifyParent(TVN_ITEMEXPANDING, TVN_ITEMEXPANDING, nullptr, hItem) != 0 || !guard ||
        !Expand(hItem, TVE_TOGGLE, FALSE, TRUE) || !guard) {
        return false;
    }
    if (ItemExpanded(hItem)) {
        EnsureVisible(GetLastChild(hItem));
        EnsureVisible(hItem);
    }
    InvalidateAll();
    UpdateWindow();
    NotifyParent(TVN_ITEMEXPANDED, TVN_ITEMEXPANDED, nullptr, hItem);
    return static_cast<bool>(guard);
}

void QVTreeCtrlEx::OnLButtonDown(UINT, CPoint pt) {
    const Guard guard(*this, nullptr);
    SetFocus();
    if (!guard) {
        return;
    }
    UINT nFlags;
    const HTREEITEM hItem = HitTest(pt, &nFlags, nullptr);
    if (hItem == nullptr) {
        return;
    }
    const Guard guardItem(*this, hItem);
    if (nFlags & TVHT_ONITEMBUTTON) {
        if (ToggleByMouse(hItem) && ItemExpanded(hItem)) {
            SetItemState(hItem, TVIS_EXPANDEDONCE, TVIS_EXPANDEDONCE);
        }
        return;
    }
    if ((nFlags & TVHT_ONITEMSTATEICON) != 0 && m_bAllowTags) {
        SelectItem(hItem);
        ToggleCheck(hItem);
    } else {
        NfySelectItem(hItem);
    }
    if (guardItem) {
        EnsureVisible(hItem);
    }
}

void QVTreeCtrlEx::OnLButtonDblClk(UINT, CPoint pt) {
    const Guard guard(*this, nullptr);
    if (NotifyParent(NM_DBLCLK, 0, nullptr, nullptr) != 0 || !guard) {
        return;
    }
    UINT nFlags;
    const HTREEITEM hItem = HitTest(pt, &nFlags, nullptr);
    if (hItem != nullptr && hItem->pFirstChild != nullptr &&
        (nFlags & (TVHT_ONITEMICON | TVHT_ONITEMLABEL)) != 0) {
        ToggleByMouse(hItem);
    }
}

void QVTreeCtrlEx::OnRButtonDown(UINT, CPoint pt) {
    const Guard guard(*this, nullptr);
    SetFocus();
    if (!guard) {
        return;
    }
    if (const HTREEITEM hItem = HitTest(pt, nullptr, nullptr)) {
        const Guard guardItem(*this, hItem);
        NfySelectItem(hItem);
        if (guardItem) {
            EnsureVisible(hItem);
        }
    }
    if (guard) {
        Default();
    }
}

BOOL QVTreeCtrlEx::OnMouseWheel(UINT, short zDelta, CPoint) {
    qv::TurnWheel(s_nTreeWheelRemainder, zDelta, GetMouseScrollLines(FALSE),
                  [this](bool bUp, bool bPage) {
                      const UINT nCode =
                          bPage ? (bUp ? SB_PAGEUP : SB_PAGEDOWN) : (bUp ? SB_LINEUP : SB_LINEDOWN);
                      OnVScroll(nCode, 0, nullptr);
                  });
    return TRUE;
}

LRESULT QVTreeCtrlEx::OnRegisteredMouseWheel(WPARAM wParam, LPARAM lParam) {
    return qv::PassRegisteredWheel(*this, wParam, lParam);
}

void QVTreeCtrlEx::OnVScroll(UINT nCode, UINT nPos, CScrollBar*) {
    View().VScroll(nCode, static_cast<int>(nPos));
}

void QVTreeCtrlEx::OnHScroll(UINT nCode, UINT nPos, CScrollBar*) {
    View().HScroll(nCode, static_cast<int>(nPos));
}

// --- Keys

// bKeepsChildren: what is open below it stays open.
bool QVTreeCtrlEx::ExpandByKey(HTREEITEM hItem, bool bKeepsChildren) {
    const Guard guard(*this, hItem);
    if (NotifyParent(TVN_ITEMEXPANDING, TVN_ITEMEXPANDING, nullptr, hItem) != 0 || !guard) {
        return false;
    }
    if (Expand(hItem, TVE_EXPAND, !bKeepsChildren, !bKeepsChildren) && guard) {
        NotifyParent(TVN_ITEMEXPANDED, TVN_ITEMEXPANDED, nullptr, hItem);
    }
    if (guard) {
        SetItemState(hItem, TVIS_EXPANDEDONCE, TVIS_EXPANDEDONCE);
    }
    return true;
}

// False only if the parent refused.
bool QVTreeCtrlEx::CollapseByKey(HTREEITEM hItem) {
    const Guard guard(*this, hItem);
    const bool bRefused = NotifyParent(TVN_ITEMEXPANDING, TVN_ITEMEXPANDING, nullptr, hItem) != 0;
    if (bRefused || !guard) {
        return !bRefused;
    }
    if (Expand(hItem, TVE_COLLAPSE, TRUE, TRUE) && guard) {
        NotifyParent(TVN_ITEMEXPANDED, TVN_ITEMEXPANDED, nullptr, hItem);
    }
    return true;
}

// To the row above or below; at the edge of the view, the rows move instead.
void QVTreeCtrlEx::StepSelection(bool bDown) {
    const HTREEITEM hSelected = GetSelectedItem();
    const HTREEITEM hEdge = bDown ? Items().Bottom() : Items().Top();
    if (hSelected == hEdge) {
        if (View().StepView(bDown)) {
            NfySelectItem(bDown ? Items().Bottom() : Items().Top());
        }
        return;
    }
    // The first or last row may be selected and out of view: there is nowhere to go then.
    if (const HTREEITEM hNext =
            bDown ? NextDisplayableItem(hSelected) : LastDisplayableItem(hSelected)) {
        NfySelectItem(hNext);
    }
}

void QVTreeCtrlEx::SelectParent(HTREEITEM hItem) {
    const HTREEITEM hParent = GetParentItem(hItem);
    if (hParent == nullptr) {
        return;
    }
    HTREEITEM h = hItem;
    while (h != nullptr && h != hParent) {
        h = GetNextItem(h, TVGN_PREVIOUSVISIBLE);
    }
    if (h == hParent) {
        NfySelectItem(hParent);
        return;
    }
    // It lies above the view.
    const Guard guard(*this, nullptr);
    View().ShowAtTop(hParent);
    NfySelectItem(Items().Top());
    if (guard) {
        InvalidateAll();
    }
}

void QVTreeCtrlEx::OnKeyDown(UINT nChar, UINT, UINT) {
    if (AreExpectedKeysEnabled() && TakeExpectedKey(nChar)) {
        return;
    }
    if (nChar != VK_UP && nChar != VK_DOWN && nChar != VK_LEFT && nChar != VK_RIGHT) {
        Default();
        return;
    }
    const HTREEITEM hSelected = GetSelectedItem();
    if (hSelected == nullptr) {
        if (Items().Top() != nullptr) {
            NfySelectItem(Items().Top());
        }
        return;
    }
    const bool bExpanded = hSelected->pFirstChild != nullptr && ItemExpanded(hSelected);
    if (nChar == VK_UP) {
        StepSelection(false);
    } else if (nChar == VK_DOWN || (nChar == VK_RIGHT && bExpanded)) {
        StepSelection(true);
    } else if (nChar == VK_RIGHT) {
        if (hSelected->pFirstChild != nullptr) {
            ExpandByKey(hSelected);
        }
    } else {
        const Guard guard(*this, hSelected);
        if (!(bExpanded && CollapseByKey(hSelected)) && guard) {
            SelectParent(hSelected);
        }
    }
}

void QVTreeCtrlEx::OnChar(UINT nChar, UINT, UINT) {
    if (nChar != ' ') {
        if (!AreExpectedKeysEnabled() || !TakeTypedChar(nChar)) {
            Default();
        }
        return;
    }
    const HTREEITEM hSelected = GetSelectedItem();
    if (hSelected == nullptr) {
        return;
    }
    if (m_pStateImageList != nullptr && m_bAllowTags && HaveStateImage(hSelected)) {
        ToggleCheck(hSelected);
    } else if (hSelected->pFirstChild != nullptr) {
        if (ItemExpanded(hSelected)) {
            CollapseByKey(hSelected);
        } else {
            ExpandByKey(hSelected);
        }
    }
}

UINT QVTreeCtrlEx::OnGetDlgCode() {
    return DLGC_WANTARROWS | DLGC_WANTCHARS;
}

// --- Focus

// Only the selected row looks different with and without the focus. Where it stays highlighted, it
// is just the dotted frame that comes and goes.
void QVTreeCtrlEx::DrawFocusFrame(bool bFocus) {
    const HTREEITEM hSelected = GetSelectedItem();
    if (hSelected == nullptr) {
        return;
    }
    if ((GetStyle() & TVS_SHOWSELALWAYS) == 0) {
        InvalidateItem(hSelected, TRUE);
        return;
    }
    CRect rcText;
    if (!GetItemRect(hSelected, &rcText, TRUE)) {
        return;
    }
    CClientDC dc(this);
    dc.SetWindowOrg(View().HScrollPos(), 0);
    if (bFocus) {
        const qv::ColorGuard colors(dc);
        dc.SetBkColor(::GetSysColor(COLOR_WINDOW));
        dc.DrawFocusRect(&rcText);
    } else {
        CBrush brush(GetBkColor(hSelected));
        dc.FrameRect(&rcText, &brush);
    }
}

void QVTreeCtrlEx::OnSetFocus(CWnd*) {
    const Guard guard(*this, nullptr);
    Default();
    if (guard) {
        DrawFocusFrame(true);
        TellItem(EVENT_OBJECT_FOCUS, GetSelectedItem());
    }
}

void QVTreeCtrlEx::OnKillFocus(CWnd*) {
    const Guard guard(*this, nullptr);
    Default();
    if (guard) {
        DrawFocusFrame(false);
    }
}
