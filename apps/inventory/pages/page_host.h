// PageHost: a row of tabs and the page that is in front. Commands go to that page. The Tab key goes
// through the page's controls and the tabs, F6 through the page's panes and the tabs.

#pragma once

#include "pages/page.h"

#include <afxcmn.h>

#include <string>
#include <vector>

class PageHost : public CWnd {
public:
    BOOL Create(CWnd* pParent);
    BOOL Add(Page& page);
    // Brings one of the pages to the front.
    void ShowPage(const Page& page);
    // A title that no page has leaves the page that is in front.
    void ShowPage(const std::string& strTitle);
    std::vector<std::string> Titles() const;
    Page& Active() { return *m_pages[m_nActive]; }
    void SetInventory(const Inventory& inventory);
    CTabCtrl& Tabs() { return m_tabs; }

protected:
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    void PostNcDestroy() override {}

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnTab(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnPage(UINT nID);
    afx_msg void OnUpdatePage(CCmdUI* pCmdUI);
    afx_msg void OnPane(UINT nID);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pt);
    DECLARE_MESSAGE_MAP()

private:
    CRect PageRect();
    void Show(size_t nPage);
    bool LeaveGrid(const MSG& msg);

    CFont m_font;
    CTabCtrl m_tabs;
    std::vector<Page*> m_pages;  // the frame's
    size_t m_nActive = 0;
};
