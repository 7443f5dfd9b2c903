// LogPage: the package manager's own log, or any other, as that of the application's own errors. A
// log that was rotated has what was logged before beside it, and both scroll together.

#pragma once

#include "pages/log_view.h"
#include "pages/page.h"

class LogPage : public Page {
public:
    LPCSTR Title() const override { return "Log"; }
    // Reads what has been logged since.
    void SetInventory(const Inventory& inventory) override;
    FindResult Find(const TextQuery& query, bool bDown) override;
    CWnd& Control() override { return m_left.GetTextWnd(); }
    std::vector<CWnd*> Panes() override {
        return {&m_btnOpen, &m_left.GetTextWnd(), &m_right.GetTextWnd()};
    }
    ContextMenu MenuOf(CWnd& control) override {
        const bool bText = &control == &m_left.GetTextWnd() || &control == &m_right.GetTextWnd();
        return bText ? ContextMenu::Log : ContextMenu::None;
    }
    CString MarkedText() override;
    void OnShown() override;

    LogView& Left() { return m_left; }
    LogView& Right() { return m_right; }
    // Prints what is shown, two parts level, side by side, on pages nFirst to nLast. Null, here as
    // below, where all went well.
    Failure Print(CDC& dc, unsigned nFirst, unsigned nLast, LPCSTR pszOutput);
    Failure PrintToFile(LPCSTR pszOutput, unsigned nFirst, unsigned nLast);
    bool ShowsBoth() const { return m_bBoth && m_bOlder; }
    // Another log. The page's message says whether there is an older part of it.
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
    void OpenOlder();
    void ReadMore();
    CString LinesText();
    void PrintColumn(CDC& dc, unsigned nPage, QVTextWnd& text, const CRect& rc);

    CButton m_btnOpen;
    CButton m_btnApplication;
    LogView m_left;
    LogView m_right;
    bool m_bBoth = true;    // if there is an older part
    bool m_bOlder = false;  // there is
    bool m_bFollow = false;
    bool m_bOpened = false;
};
