// LogPage: the package manager's own logs, two side by side that scroll together. In the place of
// the left one comes any other, as that of the application's own errors.

#pragma once

#include "pages/log_view.h"
#include "pages/page.h"

class LogPage : public Page {
public:
    LPCSTR Title() const override { return "Log"; }
    void SetInventory(const Inventory& /*inventory*/) override {}
    CWnd& Control() override { return m_left.GetTextWnd(); }
    CString MarkedText() override;
    void OnShown() override;

    LogView& Left() { return m_left; }
    LogView& Right() { return m_right; }
    // Prints both level, side by side, on pages nFirst to nLast. Null, here as below, where all
    // went well.
    Failure Print(CDC& dc, unsigned nFirst, unsigned nLast, LPCSTR pszOutput);
    Failure PrintToFile(LPCSTR pszOutput, unsigned nFirst, unsigned nLast);
    // Another file on the left.
    Failure Open(const CString& strPath);
    Failure Export(LPCSTR pszPath);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnTimer(UINT_PTR nTimer);
    afx_msg void OnOpen();
    afx_msg void OnApplication();
    afx_msg void OnCopy();
    afx_msg void OnExport();
    afx_msg void OnPrint();
    afx_msg void OnFollow();
    afx_msg void OnBoth();
    afx_msg void OnUpdateFollow(CCmdUI* pCmdUI);
    afx_msg void OnUpdateBoth(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    void LayOut();
    void Pair();
    void PrintColumn(CDC& dc, unsigned nPage, QVTextWnd& text, const CRect& rc);

    CButton m_btnOpen;
    CButton m_btnApplication;
    LogView m_left;
    LogView m_right;
    bool m_bBoth = true;
    bool m_bFollow = false;
    bool m_bOpened = false;
};
