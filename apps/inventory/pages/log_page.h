// LogPage: the package manager's own logs, two side by side that scroll together.

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
    // Prints both level, side by side, on pages nFirst to nLast.
    bool Print(CDC& dc, unsigned nFirst, unsigned nLast, LPCSTR pszOutput);
    bool PrintToFile(LPCSTR pszOutput, unsigned nFirst, unsigned nLast);
    // Another file on the left.
    bool Open(const CString& strPath);
    bool Export(LPCSTR pszPath);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnTimer(UINT_PTR nTimer);
    afx_msg void OnOpen();
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

    LogView m_left;
    LogView m_right;
    bool m_bBoth = true;
    bool m_bFollow = false;
    bool m_bOpened = false;
};
