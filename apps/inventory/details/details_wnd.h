// DetailsWnd: all that is known of one package, in tabs. While packages pass by quickly, as with a
// key held down, nothing is read: that waits until one stays.

#pragma once

#include "details/details_page.h"
#include "errors.h"
#include "pages/browser_owner.h"

class DetailsWnd : public QVTabWnd {
public:
    explicit DetailsWnd(BrowserOwner& owner) : m_owner(owner) {}
    // What is shown next comes from there.
    void UseSource(const Inventory& inventory, const PackageStore& store);
    // Null: no package.
    void Show(const Package* pPackage);
    // The package that is shown by now; empty: none.
    const std::string& Shows() const { return m_source.package.strName; }
    // Another one is about to be shown.
    bool IsWaiting() const { return m_bWaits; }
    DetailsPage& Page(int nPage) { return *static_cast<DetailsPage*>(GetPage(nPage)); }
    // Enter, somewhere in the details.
    void GoToTarget();

    // On the default printer, without a question. pszOutput: a file that the job goes to. Null,
    // here as below, where all went well.
    Failure PrintToFile(LPCSTR pszOutput, bool bActiveOnly);

protected:
    void AddTabPages() override;
    afx_msg void OnTimer(UINT_PTR nTimer);
    afx_msg void OnPage(UINT nID);
    afx_msg void OnStep(UINT nID);
    afx_msg void OnGo() { GoToTarget(); }
    afx_msg void OnPrint(UINT nID);
    afx_msg void OnUpdatePage(CCmdUI* pCmdUI);
    afx_msg void OnUpdateGo(CCmdUI* pCmdUI);
    afx_msg void OnUpdatePrint(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    template <class DetailsOfPackage>
    void Add(const char* pszTitle);
    void TakeNext();
    DetailsPage* Active();
    // pPrinter, unless null, says which pages.
    Failure Print(CDC& dc, bool bActiveOnly, class PrinterChoice* pPrinter, LPCSTR pszOutput);

    BrowserOwner& m_owner;
    DetailsSource m_source;
    Package m_next;  // what will be shown
    bool m_bNext = false;
    bool m_bWaits = false;
};
