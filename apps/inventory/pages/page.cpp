#include "pages/page.h"

BEGIN_MESSAGE_MAP(Page, CWnd)
    ON_WM_CREATE()
    ON_WM_SETFOCUS()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

BOOL Page::Create(CWnd* pParent, UINT nID) {
    m_font.CreatePointFont(80, "Tahoma");
    return CWnd::Create(nullptr, Title(), WS_CHILD | WS_CLIPCHILDREN, CRect(0, 0, 0, 0), pParent,
                        nID);
}

// The library's controls take the font of their nearest ancestor that has one: this window.
LRESULT Page::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_GETFONT) {
        return reinterpret_cast<LRESULT>(m_font.GetSafeHandle());
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

int Page::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return CWnd::OnCreate(lpCreateStruct);
}

void Page::OnSetFocus(CWnd*) {
    Control().SetFocus();
}

// What the page's controls leave free.
BOOL Page::OnEraseBkgnd(CDC* pDC) {
    CRect rc;
    GetClientRect(&rc);
    pDC->FillSolidRect(&rc, ::GetSysColor(COLOR_BTNFACE));
    return TRUE;
}
