#include "context_menu.h"

#include "QVControls.h"
#include "pages/settings_grid.h"
#include "resource.h"

#include <algorithm>

namespace {

const CPoint kByKey(-1, -1);

// Of the row or cell with the focus, in the control's coordinates; empty: there is none.
CRect FocusRect(CWnd& control) {
    CRect rc(0, 0, 0, 0);
    if (auto* pTree = dynamic_cast<QVTreeCtrlEx*>(&control)) {
        if (const HTREEITEM hItem = pTree->GetSelectedItem()) {
            pTree->EnsureVisible(hItem);
            pTree->GetItemRect(hItem, &rc, TRUE);
        }
    } else if (auto* pList = dynamic_cast<QVListCtrlEx*>(&control)) {
        const int nFocused = pList->GetNextItem(-1, LVNI_FOCUSED);
        const int nItem = nFocused != -1 ? nFocused : pList->GetNextItem(-1, LVNI_SELECTED);
        if (nItem != -1) {
            pList->EnsureVisible(nItem, FALSE);
            pList->GetItemRect(nItem, &rc, LVIR_LABEL);
        }
    } else if (auto* pBox = dynamic_cast<QVBitmapListBox*>(&control)) {
        const int nRow = pBox->GetCaretIndex();
        if (nRow >= 0 && nRow < pBox->GetCount()) {
            pBox->SetCaretIndex(nRow, FALSE);
            pBox->GetItemRect(nRow, &rc);
        }
    } else if (auto* pGrid = dynamic_cast<SettingsGrid*>(&control)) {
        rc = pGrid->FocusRect();
    }
    return rc;
}

CPoint PlaceByKey(CWnd& control) {
    CRect rcClient;
    control.GetClientRect(&rcClient);
    CRect rcSeen;
    const CRect rcFocus = FocusRect(control);
    CPoint pt(0, 0);
    if (rcSeen.IntersectRect(rcFocus, rcClient)) {
        pt = CPoint(rcSeen.left, rcSeen.bottom);
    }
    control.ClientToScreen(&pt);
    return pt;
}

}  // namespace

void ShowContextMenu(ContextMenu menu, CFrameWnd& frame, CWnd& control, CPoint pt) {
    const HWND hControl = control.m_hWnd;
    const HWND hFocus = ::GetFocus();
    if (hFocus != hControl && !::IsChild(hControl, hFocus)) {
        control.SetFocus();
    }
    if (pt == kByKey) {
        pt = PlaceByKey(control);
    } else if (auto* pGrid = dynamic_cast<SettingsGrid*>(&control)) {
        CPoint ptClient(pt);
        pGrid->ScreenToClient(&ptClient);
        pGrid->GoTo(ptClient);
    }
    CMenu menus;
    CMenu* const pPopup =
        menus.LoadMenu(IDR_CONTEXT) ? menus.GetSubMenu(static_cast<int>(menu)) : nullptr;
    if (pPopup != nullptr && ::IsWindow(hControl)) {
        pPopup->TrackPopupMenu(TPM_RIGHTBUTTON, pt.x, pt.y, &frame);
    }
}
