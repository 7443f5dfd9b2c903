// ComparisonFrame: the window of a comparison, beside the main one.

#pragma once

#include "find_desk.h"

#include <afxext.h>
#include <afxwin.h>

class ComparisonFrame : public CFrameWnd, private FindOwner {
    DECLARE_DYNCREATE(ComparisonFrame)

public:
    // What the page that is in front says of a command, before the application's own text.
    void GetMessageString(UINT nID, CString& rMessage) const override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnClose();
    afx_msg LRESULT OnFindMessage(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    // Null while a page is shown as on paper.
    class ComparisonView* View() const;
    FindResult Find(const TextQuery& query, bool bDown) override;
    void Say(const CString& strMessage) override;

    FindDesk m_find{*this, *this};
    CStatusBar m_statusBar;
};
