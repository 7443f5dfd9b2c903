// CTabView: views as pages on tabs. Included by afxtabview.h.
#pragma once

#include "afx/documents/view.h"

#include <afxcmn.h>

#include <vector>

/// AddView in OnInitialUpdate or after. The view that shows is the frame's active one; commands go
/// to it first. The tabs are the platform's, at the lower edge.
class QVAFX_API CTabView : public CView {
    DECLARE_DYNCREATE(CTabView)

public:
    /// Gives the tab's number, or -1. Without a context the page has this view's document.
    int AddView(CRuntimeClass* pViewClass, const CString& strViewLabel, int iIndex = -1,
                CCreateContext* pContext = nullptr);
    int FindTab(HWND hWndView) const;  ///< -1: none
    BOOL RemoveView(int iTabNum);
    BOOL SetActiveView(int iTabNum);
    CView* GetActiveView() const;  ///< null: no pages

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    CTabView() = default;
    void OnDraw(CDC* pDC) override;
    void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) override;
    virtual void OnActivateView(CView* pView);  ///< a page shows

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnTabSelected(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    bool IsTab(int iTabNum) const;
    void LayOut();
    void ShowPage(int iTabNum);
    std::vector<HWND> Pages() const;

    CTabCtrl m_tabs;
    std::vector<HWND> m_pages;  ///< in the order of the tabs
};
