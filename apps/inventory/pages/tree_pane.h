// TreePane: the tree over all packages under its caption, with its commands and rules.

#pragma once

#include "pages/browser_owner.h"
#include "pages/package_tree.h"
#include "pages/tree_headings.h"

class TreePane : public QVHeaderWnd {
public:
    explicit TreePane(BrowserOwner& owner) : m_owner(owner) {}
    BOOL Create(CWnd* pParent, UINT nID);

    PackageTree& Tree() { return m_tree; }
    TreeHeadings& Headings() { return m_headings; }
    void Show(const Inventory& inventory);
    // As the tree's function of that name.
    void ShowSection(const std::string& strSection);
    CString MarkedText();

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSelChanging(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnSelChanged(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnItemExpanding(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnExpand(UINT nID);
    afx_msg void OnSort();
    afx_msg void OnColumns(UINT nID);
    afx_msg void OnStyle(UINT nID);
    afx_msg void OnFitColumns();
    afx_msg void OnVeto(UINT nID);
    afx_msg void OnUpdateSelection(CCmdUI* pCmdUI);
    afx_msg void OnUpdateColumns(CCmdUI* pCmdUI);
    afx_msg void OnUpdateStyle(CCmdUI* pCmdUI);
    afx_msg void OnUpdateVeto(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    void TellSelection();

    BrowserOwner& m_owner;
    PackageTree m_tree;
    TreeHeadings m_headings{m_tree};
    HTREEITEM m_hTold = nullptr;  // the selection that the owner knows of
    bool m_bRefuseSelection = false;
    bool m_bRefuseCheck = false;
};
