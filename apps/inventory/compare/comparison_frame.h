// ComparisonFrame: the window of a comparison, beside the main one.

#pragma once

#include <afxext.h>
#include <afxwin.h>

class ComparisonFrame : public CFrameWnd {
    DECLARE_DYNCREATE(ComparisonFrame)

public:
    // What the page that is in front says of a command, before the application's own text.
    void GetMessageString(UINT nID, CString& rMessage) const override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnClose();
    DECLARE_MESSAGE_MAP()

private:
    CStatusBar m_statusBar;
};
