// The application's window: menu, the page, and a status bar with what is marked.

#pragma once

#include <afxext.h>

#include "model/package_database.h"
#include "tree_page.h"

class MainFrame : public CFrameWnd {
public:
    // An empty path: this machine's own inventory.
    BOOL Open(const CString& strPath, bool bInteractive);
    TreePage& Page() { return m_page; }
    CString StatusText(int nPane) { return m_statusBar.GetPaneText(nPane); }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnReload();
    afx_msg void OnUpdateMessage(CCmdUI* pCmdUI);
    afx_msg void OnUpdateMarked(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    CString m_strPath;
    CString m_strProblem;
    Inventory m_inventory;
    CStatusBar m_statusBar;
    TreePage m_page;
};
