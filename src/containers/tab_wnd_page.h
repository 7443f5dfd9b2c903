// QVTabWndPage: a page of a QVTabWnd, a modeless dialog made from a template. Its template has the
// styles WS_CHILD and DS_CONTROL and no caption. Derive from it, with dynamic creation, as from any
// dialog; the tab window makes its window, shows, hides and resizes it, and deletes it.
//
// Enter and Escape do not close it. The accelerators of the application's main window work in it,
// where that is a frame. A page that gets the focus gives it to the control that had it last, or to
// its first one.

#pragma once

#include "containers/page_life.h"
#include "frame/qv_api.h"

#include <afxwin.h>

class QVPrintEngine;
class QVTabWnd;

class QV_CONTROLS_API QVTabWndPage : public CDialog {
    DECLARE_DYNCREATE(QVTabWndPage)

public:
    QVTabWndPage();
    // The low 16 bits are the template's resource id.
    explicit QVTabWndPage(UINT nIDTemplate);
    ~QVTabWndPage() override;

protected:
    // Neither closes the page.
    void OnOK() override;
    void OnCancel() override;

public:
    // Makes the window; pParent is the tab control. 0 if there is no such template, or no memory.
    virtual int Create(CWnd* pParent);
    // Moves the page to rect, in pixels of the tab control, inset by 10 on each side.
    virtual void Resize(const CRect& rect);
    virtual void ShowPage();
    virtual void HidePage();
    // Adds what the page has to print; nothing here.
    virtual void BeginPrinting(CDC* pDC, QVPrintEngine& engine);

    // For the application: nothing here asks for it.
    void SetModified(int bModified) { m_bModified = bModified; }

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // Null without a window.
    QVTabWnd* GetTabWnd() const;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // Help for the page is not shown.
    afx_msg LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    DECLARE_MESSAGE_MAP()

    UINT m_nIDTemplate = 0;
    int m_bModified = FALSE;

private:
    using CDialog::Create;
    friend class QVTabWnd;

    qv::PageLife m_life{*this};
    HWND m_hWndFocus = nullptr;  // of the control that had the focus last
};
