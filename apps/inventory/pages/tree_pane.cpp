#include "pages/tree_pane.h"

#include "model/count_text.h"
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

BEGIN_MESSAGE_MAP(TreePane, QVHeaderWnd)
    ON_WM_SIZE()
    ON_NOTIFY(TVN_SELCHANGING, IDC_TREE, &TreePane::OnSelChanging)
    ON_NOTIFY(TVN_SELCHANGED, IDC_TREE, &TreePane::OnSelChanged)
    ON_NOTIFY(TVN_ITEMEXPANDING, IDC_TREE, &TreePane::OnItemExpanding)
    ON_COMMAND_RANGE(ID_TREE_EXPAND, ID_TREE_COLLAPSE_ALL, &TreePane::OnExpand)
    ON_COMMAND(ID_TREE_SORT, &TreePane::OnSort)
    ON_COMMAND_RANGE(ID_VIEW_INDENTED, ID_VIEW_ABSOLUTE, &TreePane::OnColumns)
    ON_COMMAND_RANGE(ID_VIEW_LINES, ID_VIEW_SHOW_SELECTION, &TreePane::OnStyle)
    ON_COMMAND(ID_TREE_FIT_COLUMNS, &TreePane::OnFitColumns)
    ON_COMMAND_RANGE(ID_VETO_SELECTION, ID_VETO_CHECK, &TreePane::OnVeto)
    ON_UPDATE_COMMAND_UI(ID_TREE_EXPAND, &TreePane::OnUpdateSelection)
    ON_UPDATE_COMMAND_UI(ID_TREE_COLLAPSE, &TreePane::OnUpdateSelection)
    ON_UPDATE_COMMAND_UI(ID_TREE_SORT, &TreePane::OnUpdateSelection)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_INDENTED, ID_VIEW_ABSOLUTE, &TreePane::OnUpdateColumns)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_LINES, ID_VIEW_SHOW_SELECTION, &TreePane::OnUpdateStyle)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VETO_SELECTION, ID_VETO_CHECK, &TreePane::OnUpdateVeto)
END_MESSAGE_MAP()

BOOL TreePane::Create(CWnd* pParent, UINT nID) {
    CRect rcNone(0, 0, 0, 0);
    if (!QVHeaderWnd::Create(WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, rcNone, pParent, nID) ||
        !m_tree.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | TVS_HASLINES | TVS_HASBUTTONS |
                           TVS_LINESATROOT | TVS_SHOWSELALWAYS,
                       rcNone, this, IDC_TREE) ||
        !m_headings.Create(this, IDC_TREE_HEADINGS_FRAME)) {
        return FALSE;
    }
    m_tree.m_onEdges = [this] { m_headings.Fit(); };
    ModifyStyleEx(0, WS_EX_CONTROLPARENT);  // Tab goes through it to the tree
    SetHeaderText("Sections and their packages");
    m_tree.SetUp();
    return TRUE;
}

void TreePane::OnSize(UINT nType, int cx, int cy) {
    QVHeaderWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_RESTORED || m_headings.m_hWnd == nullptr) {
        return;
    }
    CRect rc;
    CalcBackgroundRect(rc);
    const int nHeight = std::min<int>(m_headings.Height(), std::max<int>(rc.Height(), 0));
    m_headings.MoveWindow(rc.left, rc.top, rc.Width(), nHeight);
    rc.top += nHeight;
    m_tree.SetWindowPos(nullptr, rc.left, rc.top, rc.Width(), rc.Height(), SWP_NOZORDER);
}

CString TreePane::MarkedText() {
    const PackageTree::Marked marked = m_tree.CountMarked();
    return (CountText(static_cast<size_t>(marked.nPackages), "package") + " marked, " +
            SizeText(marked.nSizeKiB))
        .c_str();
}

void TreePane::Show(const Inventory& inventory) {
    m_tree.Show(inventory);
    m_headings.Fit();
    m_hTold = m_tree.GetSelectedItem();
}

void TreePane::ShowSection(const std::string& strSection) {
    m_tree.ShowSection(strSection);
    m_hTold = m_tree.GetSelectedItem();
}

// --- What the tree tells

void TreePane::OnSelChanging(NMHDR* pNMHDR, LRESULT* pResult) {
    const auto& notification = *reinterpret_cast<NM_TREEVIEW*>(pNMHDR);
    const Package* pPackage = m_tree.PackageOf(notification.itemNew.hItem);
    CString strRefusal;
    if (pPackage != nullptr && IsCheckChange(notification)) {
        const bool bUnticks = m_tree.StateImageFromState(notification.itemNew.state) == 0;
        if (m_bRefuseCheck && bUnticks && pPackage->bRequired) {
            strRefusal.Format("%s is required and stays ticked", pPackage->strName.c_str());
        }
    } else if (pPackage != nullptr && m_bRefuseSelection && pPackage->bUnusual) {
        strRefusal.Format("%s is %s and cannot be selected", pPackage->strName.c_str(),
                          pPackage->strState.c_str());
    }
    if (IsCheckChange(notification)) {
        TellSelection();  // a click on a mark has moved it without a word
    }
    m_owner.Say(strRefusal);
    *pResult = !strRefusal.IsEmpty();
}

void TreePane::OnSelChanged(NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    if (!IsCheckChange(*reinterpret_cast<NM_TREEVIEW*>(pNMHDR))) {
        TellSelection();
    }
}

void TreePane::TellSelection() {
    const HTREEITEM hItem = m_tree.GetSelectedItem();
    if (hItem == m_hTold) {
        return;
    }
    m_hTold = hItem;
    if (const Package* pPackage = m_tree.PackageOf(hItem)) {
        m_owner.OnPackageChosen(*pPackage);
    } else if (m_tree.IsSectionOrRoot(hItem)) {
        m_owner.OnSectionChosen(m_tree.SectionOf(hItem));
    }
}

void TreePane::OnItemExpanding(NMHDR* pNMHDR, LRESULT* pResult) {
    m_tree.Fill(reinterpret_cast<NM_TREEVIEW*>(pNMHDR)->itemNew.hItem);
    *pResult = 0;
}

// --- Commands

void TreePane::OnExpand(UINT nID) {
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

void TreePane::OnSort() {
    m_tree.SortChildren(m_tree.GetSelectedItem());
}

void TreePane::OnColumns(UINT nID) {
    m_tree.UseIndentedColumns(nID == ID_VIEW_INDENTED);
}

void TreePane::OnStyle(UINT nID) {
    const DWORD dwStyle = StyleOfCommand(nID);
    const bool bHas = (m_tree.GetStyle() & dwStyle) != 0;
    m_tree.ModifyStyle(bHas ? dwStyle : 0, bHas ? 0 : dwStyle);
    m_tree.SetRedraw(TRUE);
    m_headings.Fit();  // lines at the root move the texts
}

void TreePane::OnFitColumns() {
    m_tree.FitColumn(-1);
}

void TreePane::OnVeto(UINT nID) {
    bool& bVeto = nID == ID_VETO_SELECTION ? m_bRefuseSelection : m_bRefuseCheck;
    bVeto = !bVeto;
}

void TreePane::OnUpdateSelection(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_tree.GetChildItem(m_tree.GetSelectedItem()) != nullptr &&
                   m_tree.GetSelectedItem() != nullptr);
}

void TreePane::OnUpdateColumns(CCmdUI* pCmdUI) {
    pCmdUI->SetRadio(m_tree.IndentedColumns() == (pCmdUI->m_nID == ID_VIEW_INDENTED));
}

void TreePane::OnUpdateStyle(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck((m_tree.GetStyle() & StyleOfCommand(pCmdUI->m_nID)) != 0);
}

void TreePane::OnUpdateVeto(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(pCmdUI->m_nID == ID_VETO_SELECTION ? m_bRefuseSelection : m_bRefuseCheck);
}
