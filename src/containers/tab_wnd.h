// QVTabWnd: a control with a tab for each of its pages, of which one shows. Pages are modeless
// dialogs (QVTabWndPage) and no windows of the application's: the whole is one control among the
// others of a dialog or a view. A derived class adds its pages in AddTabPages; then Create, or
// Initialize for an item of a dialog, which calls it. Pages may come and go later.
//
// The tab control covers the client area. Pages are its children, 10 pixels inside of the area that
// it leaves to them; they get their place when they are added and whenever this window gets another
// size, but not as it is maximised or minimised. Indices of pages and tabs are the same and count
// from 0; -1 is no page.
//
// Ownership: pages belong to the tab window from the moment that AddPage gives them back;
// RemovePages and the destructor delete them. A page that is removed while one of its own functions
// runs, as by a button on it, has no window any more, but lives until that function returns. Fonts
// are not owned.
//
// The Tab key of a dialog goes through the controls of the page that shows; the keyboard switches
// tabs while the tab control has the focus, after a click or GetTabCtrl().SetFocus().

#pragma once

#include "containers/tab_wnd_page.h"
#include "frame/alive.h"
#include "frame/cust_ctrl.h"

#include <afxcmn.h>
#include <afxtempl.h>

class QVPrintEngine;

class QV_CONTROLS_API QVTabWnd : public QVCustCtrl {
    DECLARE_DYNCREATE(QVTabWnd)

public:
    QVTabWnd();
    ~QVTabWnd() override;

    // Makes the tab control, in the font of the nearest window that has one, this one first, and
    // the pages. 0 if there is no such item or no memory: an item of a dialog is let go of then.
    // Another call on the same window does nothing and gives 1.
    int Initialize(UINT nID, CWnd* pParent) override;

    // --- Printing

    // Adds a section header with its title and then its content for each page, or, with
    // bActiveOnly, for the page whose tab is selected.
    virtual void BeginPrinting(CDC* pDC, QVPrintEngine& engine, int bActiveOnly);

    // --- Pages

    // Called by Initialize; does nothing here. Tabs of pages added in it come when it is through.
    virtual void AddTabPages();

    // Appends a page and, if Initialize is through, its tab; the first one shows at once. Later
    // ones do not change the page that shows. They need the tab control: from AddTabPages on. Null
    // on failure, also if the page went away on the way, and while pages are being removed.
    //
    // Whose the page is where the result is null: one made from pClass is deleted. pPage stays the
    // caller's where its window could not be made, and is deleted where only the memory to keep it
    // was missing, as it always was; give a class where that is to be told apart.
    QVTabWndPage* AddPage(UINT nTitleID, CRuntimeClass* pClass);
    QVTabWndPage* AddPage(const char* pszTitle, CRuntimeClass* pClass);
    QVTabWndPage* AddPage(const char* pszTitle, QVTabWndPage* pPage);
    // From the last to the first.
    void RemovePages();

    int GetActivePage() const { return m_nActivePage; }
    // Also selects the tab. An index that there is not leaves no page.
    void SetActivePage(int nPage);
    // Counts tabs: none while Initialize runs.
    int NumPages() const;
    // Null, and an empty string, out of range.
    QVTabWndPage* GetPage(int nPage) const;
    CString GetPageTitle(int nPage) const;
    // The first one with this title in whatever case, as the process's code page has it; -1 if
    // there is none.
    int FindPageWithTitle(const CString& strTitle) const;
    CTabCtrl& GetTabCtrl() { return m_TabCtrl; }
    // Fits all pages to the tab control, as after a change of its font or its style.
    void ResizePages();

protected:
    // Shows page nPage and then hides the one of before. If either of them switches on from within,
    // that counts. The keyboard goes along if it was in the page of before.
    void SwitchTabs(int nPage);

    // A border is a sunken edge.
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSelchangeTab(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    DECLARE_MESSAGE_MAP()

    CArray<QVTabWndPage*, QVTabWndPage*> m_Pages;
    CStringArray m_astrTitles;
    int m_bInitialized = FALSE;
    int m_nActivePage = -1;
    CTabCtrl m_TabCtrl;

private:
    bool MakeTabs();
    bool MakeTabCtrl();
    bool InsertTab(int nPage);
    void ShowInstead(int nPage);
    void HideActive();
    void Resize(QVTabWndPage& page);
    void PrintPage(CDC* pDC, QVPrintEngine& engine, int nPage);

    qv::AliveToken m_alive;
    bool m_bRemoving = false;
    unsigned m_nSwitches = 0;
};
