#include "pages/tree_page.h"

#include "resource.h"

#include <algorithm>

namespace {

DWORD StyleOfCommand(UINT nID) {
    switch (nID) {
        case ID_VIEW_LINES:
            return TVS_HASLINES;
        case ID_VIEW_BUTTONS:
            return TVS_HASBUTTONS;
        case ID_VIEW_ROOT_LINES:
            return TVS_LINESATROOT;
        default:
            return TVS_SHOWSELALWAYS;
    }
}

// A change of check mark comes with the same item twice.
bool IsCheckChange(const NM_TREEVIEW& notification) {
    return notification.itemOld.hItem == notification.itemNew.hItem;
}

}  // namespace

BEGIN_MESSAGE_MAP(TreePage, Page)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_NOTIFY(TVN_SELCHANGING, IDC_TREE, OnSelChanging)
    ON_NOTIFY(TVN_SELCHANGED, IDC_TREE, OnSelChanged)
    ON_NOTIFY(TVN_ITEMEXPANDING, IDC_TREE, OnItemExpanding)
    ON_COMMAND_RANGE(ID_TREE_EXPAND, ID_TREE_COLLAPSE_ALL, OnExpand)
    ON_COMMAND(ID_TREE_SORT, OnSort)
    ON_COMMAND_RANGE(ID_VIEW_INDENTED, ID_VIEW_ABSOLUTE, OnColumns)
    ON_COMMAND_RANGE(ID_VIEW_LINES, ID_VIEW_SHOW_SELECTION, OnStyle)
    ON_COMMAND_RANGE(ID_VETO_SELECTION, ID_VETO_CHECK, OnVeto)
    ON_UPDATE_COMMAND_UI(ID_TREE_EXPAND, OnUpdateSelection)
    ON_UPDATE_COMMAND_UI(ID_TREE_COLLAPSE, OnUpdateSelection)
    ON_UPDATE_COMMAND_UI(ID_TREE_SORT, OnUpdateSelection)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_INDENTED, ID_VIEW_ABSOLUTE, OnUpdateColumns)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_LINES, ID_VIEW_SHOW_SELECTION, OnUpdateStyle)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VETO_SELECTION, ID_VETO_CHECK, OnUpdateVeto)
END_MESSAGE_MAP()

int TreePage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    CRect rcNone(0, 0, 0, 0);
    if (Page::OnCreate(lpCreateStruct) == -1 ||
        !m_caption.Create(WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, rcNone, this, IDC_TREE_FRAME) ||
        !m_tree.Create(
            WS_CHILD | WS_VISIBLE | WS_TABSTOP | TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT,
            rcNone, &m_caption, IDC_TREE)) {
        return -1;
    }
    m_caption.SetHeaderText("Sections, their packages, and what belongs to each");
    m_tree.SetUp();
    return 0;
}

void TreePage::OnSize(UINT nType, int cx, int cy) {
    Page::OnSize(nType, cx, cy);
    m_caption.MoveWindow(0, 0, cx, cy);
    m_tree.MoveWindow(0, m_caption.HeaderHeight(), cx, std::max(cy - m_caption.HeaderHeight(), 0));
}

bool TreePage::FindNext(const CString& strText) {
    return m_tree.FindNext(strText);
}

void TreePage::SetInventory(const Inventory& inventory) {
    m_tree.Show(inventory);
}

CString TreePage::MarkedText() {
    const PackageTree::Marked marked = m_tree.CountMarked();
    CString strText;
    strText.Format("%d packages marked, %s", marked.nPackages, SizeText(marked.nSizeKiB).c_str());
    return strText;
}

// --- What the tree tells

void TreePage::OnSelChanging(NMHDR* pNMHDR, LRESULT* pResult) {
    const auto& notification = *reinterpret_cast<NM_TREEVIEW*>(pNMHDR);
    const Package* pPackage = m_tree.PackageOf(notification.itemNew.hItem);
    *pResult = 0;
    m_strMessage.Empty();
    if (pPackage == nullptr) {
        return;
    }
    if (IsCheckChange(notification)) {
        const bool bUnticks = m_tree.StateImageFromState(notification.itemNew.state) == 0;
        if (m_bRefuseCheck && bUnticks && pPackage->bRequired) {
            m_strMessage.Format("%s is required and stays ticked", pPackage->strName.c_str());
            *pResult = 1;
        }
    } else if (m_bRefuseSelection && pPackage->bUnusual) {
        m_strMessage.Format("%s is %s and cannot be selected", pPackage->strName.c_str(),
                            pPackage->strState.c_str());
        *pResult = 1;
    }
}

void TreePage::OnSelChanged(NMHDR* pNMHDR, LRESULT* pResult) {
    const auto& notification = *reinterpret_cast<NM_TREEVIEW*>(pNMHDR);
    *pResult = 0;
    if (!IsCheckChange(notification)) {
        const Package* pPackage = m_tree.PackageOf(notification.itemNew.hItem);
        m_strMessage = pPackage != nullptr ? pPackage->strSummary.c_str() : "";
    }
}

void TreePage::OnItemExpanding(NMHDR* pNMHDR, LRESULT* pResult) {
    m_tree.Fill(reinterpret_cast<NM_TREEVIEW*>(pNMHDR)->itemNew.hItem);
    *pResult = 0;
}

// --- Commands

void TreePage::OnExpand(UINT nID) {
    const HTREEITEM hItem = m_tree.GetSelectedItem();
    switch (nID) {
        case ID_TREE_EXPAND:
            m_tree.Fill(hItem);
            m_tree.Expand(hItem, TVE_EXPAND, TRUE, FALSE);
            break;
        case ID_TREE_COLLAPSE:
            m_tree.Expand(hItem, TVE_COLLAPSE, TRUE, FALSE);
            break;
        case ID_TREE_EXPAND_ALL:
            m_tree.ExpandSections(TVE_EXPAND);
            break;
        default:
            m_tree.ExpandSections(TVE_COLLAPSE);
            break;
    }
}

void TreePage::OnSort() {
    m_tree.SortChildren(m_tree.GetSelectedItem());
}

void TreePage::OnColumns(UINT nID) {
    m_tree.UseIndentedColumns(nID == ID_VIEW_INDENTED);
}

void TreePage::OnStyle(UINT nID) {
    const DWORD dwStyle = StyleOfCommand(nID);
    const bool bHas = (m_tree.GetStyle() & dwStyle) != 0;
    m_tree.ModifyStyle(bHas ? dwStyle : 0, bHas ? 0 : dwStyle);
    m_tree.SetRedraw(TRUE);
}

void TreePage::OnVeto(UINT nID) {
    bool& bVeto = nID == ID_VETO_SELECTION ? m_bRefuseSelection : m_bRefuseCheck;
    bVeto = !bVeto;
}

void TreePage::OnUpdateSelection(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_tree.GetChildItem(m_tree.GetSelectedItem()) != nullptr &&
                   m_tree.GetSelectedItem() != nullptr);
}

void TreePage::OnUpdateColumns(CCmdUI* pCmdUI) {
    pCmdUI->SetRadio(m_tree.IndentedColumns() == (pCmdUI->m_nID == ID_VIEW_INDENTED));
}

void TreePage::OnUpdateStyle(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck((m_tree.GetStyle() & StyleOfCommand(pCmdUI->m_nID)) != 0);
}

void TreePage::OnUpdateVeto(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(pCmdUI->m_nID == ID_VETO_SELECTION ? m_bRefuseSelection : m_bRefuseCheck);
}
