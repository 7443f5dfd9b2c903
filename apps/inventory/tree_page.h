// TreePage: the first page of the application, a tree over all packages with its commands and
// rules.

#pragma once

#include "package_tree.h"

class TreePage : public CWnd {
public:
    BOOL Create(CWnd* pParent);
    // Shows another inventory, or none.
    void SetInventory(const Inventory& inventory);

    PackageTree& Tree() { return m_tree; }
    // What the frame's status bar shows of marks and refusals.
    CString MarkedText();
    CString Message() const { return m_strMessage; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override {}

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnSelChanging(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnSelChanged(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnItemExpanding(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnExpand(UINT nID);
    afx_msg void OnSort();
    afx_msg void OnFind();
    afx_msg void OnFindNext();
    afx_msg void OnColumns(UINT nID);
    afx_msg void OnStyle(UINT nID);
    afx_msg void OnVeto(UINT nID);
    afx_msg void OnUpdateSelection(CCmdUI* pCmdUI);
    afx_msg void OnUpdateColumns(CCmdUI* pCmdUI);
    afx_msg void OnUpdateStyle(CCmdUI* pCmdUI);
    afx_msg void OnUpdateVeto(CCmdUI* pCmdUI);
    afx_msg void OnUpdateFindNext(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    CFont m_font;
    PackageTree m_tree;
    CString m_strFind;
    CString m_strMessage;
    bool m_bRefuseSelection = false;
    bool m_bRefuseCheck = false;
};
