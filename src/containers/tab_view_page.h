// QVTabViewPage: a page of a QVTabView, a modeless dialog made from a template that takes part in
// the view's document: its updates, its commands, prompts in the status bar. Its template has the
// styles WS_CHILD and DS_CONTROL and no caption. Derive from it, with dynamic creation; the view
// makes its window, shows, hides and resizes it, and deletes it.
//
// Enter and Escape do not close it. The accelerators of the application's main window work in it,
// where that is a frame. A page that gets the focus gives it to the control that had it last, or to
// its first one. A page that closes its view, or the whole frame, from one of its own functions has
// no window any more, but lives until that function returns.

#pragma once

#include "containers/page_life.h"
#include "frame/qv_api.h"

#include <afxwin.h>

class QVTabView;

class QV_CONTROLS_API QVTabViewPage : public CDialog {
    DECLARE_DYNCREATE(QVTabViewPage)

public:
    QVTabViewPage();
    // The low 16 bits are the template's resource id.
    explicit QVTabViewPage(UINT nIDTemplate);
    ~QVTabViewPage() override;

    // The hint of a page that brings itself up to date, in ShowPage. Others are the program's.
    static constexpr int kOwnUpdate = 65535;

protected:
    // Neither closes the page.
    void OnOK() override;
    void OnCancel() override;

public:
    // Makes the window; pParent is the tab control. 0 if there is no such template, or no memory.
    virtual int Create(CWnd* pParent);
    // Moves the page to rect, in pixels of the tab control, inset by 10 on each side.
    virtual void Resize(const CRect& rect);
    // Also brings the page up to date, once, if m_bNeedsUpdate says so.
    virtual void ShowPage();
    virtual void HidePage();
    // The document changed; bActive is true for the page that shows. Nothing here.
    virtual void UpdatePage(int nHint, void* pHint, int bActive);
    // Refines the state of a command that HandleCommand was asked about. Nothing here.
    virtual void UpdateCommand(CCmdUI* pCmdUI);
    // Whether the page has something to do for the command nID, which it then does if bExecute.
    // Here 0.
    virtual int HandleCommand(UINT nID, int bExecute);
    // Gives the focus to the page, if it has a window.
    virtual void SetPageFocus();
    // The prompt of a command, for the status bar. Left as it is here.
    virtual void GetMessageString(UINT nID, CString& strMessage);

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // Null without a window.
    QVTabView* GetTabView() const;

    // Tracks the first popup of a menu resource, or a menu, at pt of the screen, right button
    // allowed. nDefaultItem is the command that is shown as the default one; 0: none. What is
    // chosen goes as a command to the frame, and so the usual way: view, document, frame,
    // application. The page may be gone afterwards.
    void ShowContextMenu(UINT nMenuID, CPoint pt, UINT nDefaultItem);
    void ShowContextMenu(CMenu* pMenu, CPoint pt, UINT nDefaultItem);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    UINT m_nIDTemplate = 0;
    int m_bNeedsUpdate = FALSE;  // set by a derived page: the next ShowPage calls UpdatePage

private:
    using CDialog::Create;
    friend class QVTabView;

    qv::PageLife m_life{*this};
    HWND m_hWndFocus = nullptr;  // of the control that had the focus last
};
