// ListPane: the package list under its caption, with the commands that set how it looks. What the
// list tells goes on to the page.

#pragma once

#include "pages/package_list.h"

class ListPane : public QVListHeaderWnd {
public:
    ListPane() : QVListHeaderWnd(RUNTIME_CLASS(PackageList)) {}
    BOOL Create(CWnd* pParent, UINT nID, CFont* pFont);

    PackageList& List() { return *static_cast<PackageList*>(GetListBox()); }

protected:
    afx_msg void OnFlag(UINT nID);
    afx_msg void OnUpdateFlag(CCmdUI* pCmdUI);
    afx_msg void OnSort(UINT nID);
    afx_msg void OnUpdateSort(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    bool Flag(UINT nID);

    bool m_bCenterImages = true;
    bool m_bAllowSelection = true;
    bool m_bStrongSelection = false;
};
