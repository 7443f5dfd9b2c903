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

protected:
    void AddTabPages() override;
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
    DECLARE_MESSAGE_MAP()

private:
    std::unique_ptr<ComparisonPaper> m_pPaper;  // while it is printed, or previewed
    Exporter m_exporter;
    CString m_strExported;  // of the last page's message
};
