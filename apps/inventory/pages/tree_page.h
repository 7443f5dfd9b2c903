// TreePage: the first page of the application, a tree over all packages with its commands and
// rules.

#pragma once

#include "pages/package_tree.h"
#include "pages/page.h"

// The caption over the tree. What the tree tells goes on to the page.
class TreeCaption : public QVHeaderWnd {
protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
        *pResult = SendToParent(WM_NOTIFY, wParam, lParam);
        return TRUE;
    }
};

class TreePage : public Page {
public:
    LPCSTR Title() const override { return "Sections"; }
    void SetInventory(const Inventory& inventory) override;
    CWnd& Control() override { return m_tree; }
    CString MarkedText() override;
    bool FindNext(const CString& strText) override;

    PackageTree& Tree() { return m_tree; }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSelChanging(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnSelChanged(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnItemExpanding(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnExpand(UINT nID);
    afx_msg void OnSort();
    afx_msg void OnColumns(UINT nID);
    afx_msg void OnStyle(UINT nID);
    afx_msg void OnVeto(UINT nID);
    afx_msg void OnUpdateSelection(CCmdUI* pCmdUI);
    afx_msg void OnUpdateColumns(CCmdUI* pCmdUI);
    afx_msg void OnUpdateStyle(CCmdUI* pCmdUI);
    afx_msg void OnUpdateVeto(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    TreeCaption m_caption;
    PackageTree m_tree;
    bool m_bRefuseSelection = false;
    bool m_bRefuseCheck = false;
};
