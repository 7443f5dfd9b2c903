#include "buttons/tool_button.h"

IMPLEMENT_DYNAMIC(QVToolButton, QVBitmapButton)

BEGIN_MESSAGE_MAP(QVToolButton, QVBitmapButton)
    ON_WM_LBUTTONUP()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

QVToolButton::QVToolButton(CWnd* pFocusWnd) : m_pFocusWnd(pFocusWnd) {
    m_bCheckable = FALSE;
}

QVToolButton::~QVToolButton() = default;

void QVToolButton::OnLButtonUp(UINT nFlags, CPoint point) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    CWnd* const pFocusWnd = m_pFocusWnd;
    HWND hFocus = pFocusWnd->GetSafeHwnd();
    QVBitmapButton::OnLButtonUp(nFlags, point);
    if (!watch) {
        return;
    }
    if (m_pFocusWnd != pFocusWnd) {
        hFocus = m_pFocusWnd->GetSafeHwnd();
    }
    // By the handle: the object may have gone in the click.
    if (::IsWindow(hFocus)) {
        ::SetFocus(hFocus);
    }
}

UINT QVToolButton::OnGetDlgCode() {
    return DLGC_BUTTON;  // no default button: its looks would replace the owner-drawn style
}
