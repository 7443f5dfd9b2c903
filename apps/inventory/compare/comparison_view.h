// ComparisonView: a comparison in pages beside a strip of tabs.

#pragma once

#include "compare/comparison_page.h"
#include "pages/exporting.h"

class ComparisonView : public QVTabView {
    DECLARE_DYNCREATE(ComparisonView)

public:
    enum { kSummary, kNew, kGone, kChanged };
    ComparisonView();
    ~ComparisonView() override;
    // Null: there is none.
    ComparisonPage* Page(int nPage);
    ComparisonPage* Active() { return Page(GetActivePage()); }
    // By the window: the control has the focus as well where it is in a page, which lies in it.
    void GoToTabs() { ::SetFocus(m_TabCtrl.m_hWnd); }
    // In the status bar, in place of the page's message, until another page comes to the front.
    void Say(const CString& strMessage) {
        m_strSaid = strMessage;
        m_nSaid = GetActivePage();
    }

protected:
    void AddTabPages() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void OnInitialUpdate() override;
    void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint) override;
    BOOL OnPreparePrinting(CPrintInfo* pInfo) override;
    void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo) override;
    void OnPrint(CDC* pDC, CPrintInfo* pInfo) override;
    void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo) override;

    afx_msg BOOL OnPageCommand(UINT nID) { return OnHandleCommand(nID); }
    afx_msg void OnPage(UINT nID);
    afx_msg void OnStep(UINT nID);
    afx_msg void OnUpdatePage(CCmdUI* pCmdUI);
    afx_msg void OnUpdateMessage(CCmdUI* pCmdUI);
    afx_msg void OnExport();
    afx_msg void OnPane(UINT nID);
    afx_msg void OnUpdatePane(CCmdUI* pCmdUI);
    afx_msg void OnSort(UINT nID);
    afx_msg void OnUpdateSort(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    std::unique_ptr<ComparisonPaper> m_pPaper;  // while it is printed, or previewed
    Exporter m_exporter;
    CString m_strSaid;
    int m_nSaid = -1;  // the page it is about
};
