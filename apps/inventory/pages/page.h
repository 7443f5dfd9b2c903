// Page: what the application's pages have in common: a title for their tab, a font for their
// controls, and what they tell the status bar.

#pragma once

#include "context_menu.h"
#include "model/inventory.h"
#include "pages/finding.h"

#include <afxwin.h>

#include <vector>

class Page : public CWnd {
public:
    BOOL Create(CWnd* pParent, UINT nID);

    virtual LPCSTR Title() const = 0;
    // Shows another inventory, which must outlive what is shown of it.
    virtual void SetInventory(const Inventory& inventory) = 0;
    // The control that takes the focus first, and that Escape leads to.
    virtual CWnd& Control() = 0;
    // The one where the focus was last, else the first.
    CWnd& LastControl();
    // What F6 leads through: controls, or windows with some. Those that cannot have the focus are
    // left out.
    virtual std::vector<CWnd*> Panes() { return {&Control()}; }
    // The menu of a control.
    virtual ContextMenu MenuOf(CWnd& /*control*/) { return ContextMenu::None; }
    // Called as the page comes up.
    virtual void OnShown() {}
    // Looks in what the page shows. Here: in its control.
    virtual FindResult Find(const TextQuery& query, bool bDown) {
        return FindInControl(Control(), query, bDown);
    }
    CString Message() const { return m_strMessage; }
    // In the status bar, until there is something else to say.
    void Say(const CString& strMessage) { m_strMessage = strMessage; }
    virtual CString MarkedText() { return ""; }

protected:
    BOOL PreTranslateMessage(MSG* pMsg) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override {}

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnEnter();
    afx_msg void OnEscape();
    DECLARE_MESSAGE_MAP()

    CFont m_font;
    CString m_strMessage;

private:
    HWND m_hLastFocus = nullptr;
};
