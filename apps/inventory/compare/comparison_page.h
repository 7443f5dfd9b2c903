// ComparisonPage: what the pages of a comparison have in common: one control that fills them, rows
// to go through and to copy, a table on paper, a line for the status bar.

#pragma once

#include "compare/comparison_document.h"
#include "compare/comparison_paper.h"
#include "pages/finding.h"

class ComparisonPage : public QVTabViewPage {
public:
    explicit ComparisonPage(UINT nIDTemplate) : QVTabViewPage(nIDTemplate) {}

    // At once if the page is in front, otherwise when it is shown next. What it shows of packages
    // that may be gone it drops at once.
    void UpdatePage(int nHint, void* pHint, int bActive) override;
    int HandleCommand(unsigned nID, int bExecute) override;
    void GetMessageString(unsigned nID, CString& strMessage) override;
    void SetPageFocus() override;
    // The page's control, below it.
    virtual CWnd& Control() = 0;
    virtual size_t Rows() = 0;
    // The row with the focus; -1: none. GoTo shows and selects one.
    virtual int Row() = 0;
    virtual void GoTo(int nRow) = 0;
    virtual CString Message() = 0;
    // As a click on a heading; a second one turns the order.
    virtual bool CanSort() { return false; }
    virtual void SortBy(int /*nCol*/) {}
    virtual FindResult Find(const TextQuery& query, bool bDown) {
        return FindInControl(Control(), query, bDown);
    }
    virtual std::unique_ptr<PaperTable> Table() = 0;

protected:
    BOOL PreTranslateMessage(MSG* pMsg) override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSysColorChange();
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pt);
    DECLARE_MESSAGE_MAP()

    const ComparisonDocument& Document();
    virtual void Show(const ComparisonDocument& document) = 0;
    virtual void Clear() = 0;
    // What is selected, a line each, TABs between the fields.
    virtual CString SelectedText() = 0;
    virtual bool HasSelection() = 0;
    virtual void SelectAll() = 0;
    // In the row with the focus: null if it is no package that the application shows.
    virtual const Package* ShownPackage() = 0;
    virtual void LayOut(CSize size);
    // What differs in the system's colours of the moment.
    virtual void UseColors() {}
    // Of the row or cell with the focus, in the control; empty: there is none in view.
    virtual CRect FocusRect() = 0;
};

// "3 packages are new, +12.0 MiB"
CString CountMessage(const std::vector<Difference>& differences, const char* pszWhat);
