#include "pages/list_pane.h"

#include "package_strip.h"
#include "resource.h"

BEGIN_MESSAGE_MAP(ListPane, QVListHeaderWnd)
    ON_COMMAND_RANGE(ID_LIST_IMAGE_COLUMN, ID_LIST_PRINT_SUMMARY, &ListPane::OnFlag)
    ON_COMMAND_RANGE(ID_LIST_SORT_FIRST, ID_LIST_SORT_LAST, &ListPane::OnSort)
    ON_UPDATE_COMMAND_UI_RANGE(ID_LIST_SORT_FIRST, ID_LIST_SORT_LAST, &ListPane::OnUpdateSort)
    ON_UPDATE_COMMAND_UI_RANGE(ID_LIST_IMAGE_COLUMN, ID_LIST_PRINT_SUMMARY, &ListPane::OnUpdateFlag)
END_MESSAGE_MAP()

BOOL ListPane::Create(CWnd* pParent, UINT nID, CFont* pFont) {
    SetListStyle(WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SHOWSELALWAYS |
                 LVS_OWNERDRAWFIXED);
    SetListID(IDC_LIST);
    SetImageInfo(IDB_PACKAGES, kStripMask, kStripImageWidth);
    SetHeaderText("Packages: a click on a heading sorts, a second turns the order");
    CRect rcNone(0, 0, 0, 0);
    if (!QVListHeaderWnd::Create(WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, rcNone, pParent, nID)) {
        return FALSE;
    }
    ModifyStyleEx(0, WS_EX_CONTROLPARENT);  // Tab goes through it to the list
    List().SetUp(pFont);
    return TRUE;
}

bool ListPane::Flag(UINT nID) {
    switch (nID) {
        case ID_LIST_IMAGE_COLUMN:
            return List().HasImageColumn();
        case ID_LIST_CENTER_IMAGES:
            return m_bCenterImages;
        case ID_LIST_ALLOW_SELECTION:
            return m_bAllowSelection;
        case ID_LIST_STRONG_SELECTION:
            return m_bStrongSelection;
        case ID_LIST_MANY_SELECTED:
            return (List().GetStyle() & LVS_SINGLESEL) == 0;
        default:
            return List().IsColumnExcludedFromPrinting(List().SummaryColumn()) != FALSE;
    }
}

void ListPane::OnFlag(UINT nID) {
    const bool bSet = !Flag(nID);
    switch (nID) {
        case ID_LIST_IMAGE_COLUMN:
            List().UseImageColumn(bSet);
            break;
        case ID_LIST_CENTER_IMAGES:
            List().SetImageCenterVertically(m_bCenterImages = bSet);
            break;
        case ID_LIST_ALLOW_SELECTION:
            List().SetAllowSel(m_bAllowSelection = bSet);
            break;
        case ID_LIST_STRONG_SELECTION:
            List().SetAlwaysHighlightSel(m_bStrongSelection = bSet);
            break;
        case ID_LIST_MANY_SELECTED:
            List().SetItemState(-1, 0, LVIS_SELECTED);
            List().ModifyStyle(bSet ? LVS_SINGLESEL : 0, bSet ? 0 : LVS_SINGLESEL);
            break;
        default:
            List().ExcludeColumnFromPrinting(List().SummaryColumn());
            break;
    }
    List().InvalidateData(FALSE);
}

void ListPane::OnUpdateFlag(CCmdUI* pCmdUI) {
    const bool bSet = Flag(pCmdUI->m_nID);
    pCmdUI->SetCheck(bSet);
    // What was left off paper stays off.
    pCmdUI->Enable(pCmdUI->m_nID != ID_LIST_PRINT_SUMMARY || !bSet);
}

void ListPane::OnSort(UINT nID) {
    List().SortByField(static_cast<int>(nID - ID_LIST_SORT_FIRST));
}

void ListPane::OnUpdateSort(CCmdUI* pCmdUI) {
    pCmdUI->SetRadio(List().IsSortedByField(static_cast<int>(pCmdUI->m_nID - ID_LIST_SORT_FIRST)));
}
