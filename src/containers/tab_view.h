// QVTabView: a view of a document in pages, behind the tabs of an automation control that covers
// its client area (CTab). A derived view adds its pages in AddTabPages, in OnInitialUpdate; they
// exist until the view does not. Each is a QVTabViewPage, a modeless dialog in the tab control, 10
// pixels inside of the area that the control leaves to it.
//
// The tabs stand at the side with horizontal text, so the widest title gives their height. Titles
// have at most two lines.
//
// Which page shows is the control's affair: it tells what tab is about to be active (event 7) and
// what tab is (event 8), and the view shows and hides pages by that. SetActivePage asks the control
// and no more. Indices of pages and tabs are the same and count from 0; -1 is no page.
//
// Ownership: pages belong to the view from the moment that AddPage gives them back; the destructor
// deletes them. Pages, the view and its frame may be closed by any step of a page: windows go at
// once, the objects of view and pages when none of their functions runs any more.
//
// What the control refuses is left out, and the view goes on: no exception of the control's leaves
// this class. Without a control (there is none on the machine, or no memory) there are no pages.
// Commands that pages handle are named by the derived view, in its message map:
//
//     ON_COMMAND_EX(ID_EDIT_COPY, OnPageCommand)          // return OnHandleCommand(nID);
//     ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, OnUpdateCommand)

#pragma once

#include "activex/tab.h"
#include "containers/tab_view_page.h"

#include <afxdisp.h>
#include <afxtempl.h>

#include <array>

class QV_CONTROLS_API QVTabView : public CView {
    DECLARE_DYNCREATE(QVTabView)

public:
    ~QVTabView() override;

    // --- Pages

    // Makes an object of pClass and its window, hidden, and appends it. To be called from
    // AddTabPages: the control gets its tabs behind that, and a page added later gets none. Null,
    // and nothing left behind, without the control, if pClass makes no QVTabViewPage, or if the
    // page or the memory fails.
    QVTabViewPage* AddPage(UINT nTitleID, CRuntimeClass* pClass);
    QVTabViewPage* AddPage(const char* pszTitle, CRuntimeClass* pClass);

    // The control's active tab; -1 if it does not tell, or there is none.
    int GetActivePage();
    // Makes a tab active. The pages are switched by the control's events.
    void SetActivePage(short nPage);
    // Null out of range.
    QVTabViewPage* GetPage(int nPage) const;
    CTab& GetTabCtrl() { return m_TabCtrl; }

    // Calls UpdatePage of every page.
    void UpdateAllPages(int nHint, void* pHint);
    // What the active page has to say about a command; strMessage is left as it is without one.
    void GetMessageString(UINT nID, CString& strMessage);

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    // nTabCtrlID: the tab control's number.
    explicit QVTabView(UINT nTabCtrlID = 0);

    // Makes the control and the pages, and shows the first one. Called once more on the same window
    // (another document in the same frame), it only calls OnUpdate.
    void OnInitialUpdate() override;
    void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) override;
    void OnDraw(CDC* pDC) override;

    // The control's look, in system colours: tabs at the left, text horizontal.
    virtual void InitializeTabCtrl();
    // Nothing here.
    virtual void AddTabPages();

    // For commands of the derived view's: the answer of the active page, 0 without one.
    int OnHandleCommand(UINT nID);
    // Enables the command as the active page has it; leaves it alone without one.
    void OnUpdateCommand(CCmdUI* pCmdUI);

    // Width of the widest line of a text, in units of dc, whatever the name says.
    int FindStringTwips(CDC& dc, const char* pszText);

    void OnTabPageActivate(short* pnTab, short* pnCancel);
    void OnTabPageShown(short* pnTab, short* pnCancel);
    void OnKeyDownControl(short* pnKeyCode, short nShift);
    DECLARE_EVENTSINK_MAP()

    void PostNcDestroy() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // As long as the view is not hidden; whether its frame shows does not matter.
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnSysColorChange();
    DECLARE_MESSAGE_MAP()

    CArray<QVTabViewPage*, QVTabViewPage*> m_Pages;
    CStringArray m_astrTitles;
    UINT m_nTabCtrlID;
    CTab m_TabCtrl;

private:
    template <class Step>
    void InPage(int nPage, Step step);
    using Colors = std::array<COLORREF, 9>;
    static Colors SystemColors();
    void MakeTabHeight();
    void MakeTabs();
    void LayOut(int cx, int cy);
    CRect PageArea();

    Colors m_system;  // that the control was given last
    qv::PageLife m_life{*this};
};
