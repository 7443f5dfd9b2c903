#include "pages/page.h"

namespace {

// The enter key does what a button under the focus does; check boxes have the blank for that.
bool IsPressedByEnter(HWND hWnd) {
    char szClass[16] = "";
    ::GetClassName(hWnd, szClass, sizeof(szClass));
    const LONG nStyle = ::GetWindowLong(hWnd, GWL_STYLE);
    const LONG nType = nStyle & BS_TYPEMASK;
    return ::lstrcmpi(szClass, "Button") == 0 &&
           (nType == BS_PUSHBUTTON || nType == BS_DEFPUSHBUTTON || nType == BS_OWNERDRAW ||
            (nStyle & BS_PUSHLIKE) != 0);
}

}  // namespace

BEGIN_MESSAGE_MAP(Page, CWnd)
    ON_WM_CREATE()
    ON_WM_SETFOCUS()
    ON_WM_ERASEBKGND()
    ON_COMMAND(IDOK, &Page::OnEnter)
    ON_COMMAND(IDCANCEL, &Page::OnEscape)
END_MESSAGE_MAP()

BOOL Page::Create(CWnd* pParent, UINT nID) {
    m_font.CreatePointFont(80, "Tahoma");
    return CWnd::CreateEx(WS_EX_CONTROLPARENT, nullptr, Title(), WS_CHILD | WS_CLIPCHILDREN,
                          CRect(0, 0, 0, 0), pParent, nID);
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
    LastControl().SetFocus();
}

// --- Keyboard

BOOL Page::PreTranslateMessage(MSG* pMsg) {
    // An editor that a control has up for a while has no place in the order of the Tab key.
    HWND hFocus = ::GetFocus();
    while (hFocus != nullptr && ::IsChild(m_hWnd, hFocus) &&
           (::GetWindowLong(hFocus, GWL_STYLE) & WS_TABSTOP) == 0) {
        hFocus = ::GetParent(hFocus);
    }
    if (hFocus != nullptr && ::IsChild(m_hWnd, hFocus)) {
        m_hLastFocus = hFocus;
    }
    return CWnd::PreTranslateMessage(pMsg);
}

CWnd& Page::LastControl() {
    const bool bThere = m_hLastFocus != nullptr && ::IsChild(m_hWnd, m_hLastFocus) &&
                        ::IsWindowEnabled(m_hLastFocus) && ::IsWindowVisible(m_hLastFocus);
    return bThere ? *CWnd::FromHandle(m_hLastFocus) : Control();
}

void Page::OnEnter() {
    if (const HWND hFocus = ::GetFocus(); IsPressedByEnter(hFocus)) {
        ::PostMessage(hFocus, BM_CLICK, 0, 0);
    }
}

void Page::OnEscape() {
    Control().SetFocus();
}

// What the page's controls leave free.
BOOL Page::OnEraseBkgnd(CDC* pDC) {
    CRect rc;
    GetClientRect(&rc);
    pDC->FillSolidRect(&rc, ::GetSysColor(COLOR_BTNFACE));
    return TRUE;
}
