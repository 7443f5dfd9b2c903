#include "buttons/check_wnd.h"

#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"

#include <oleacc.h>

IMPLEMENT_DYNAMIC(QVCheckWnd, CWnd)

BEGIN_MESSAGE_MAP(QVCheckWnd, CWnd)
    ON_WM_PAINT()
    ON_MESSAGE(WM_GETOBJECT, &QVCheckWnd::OnGetObject)
END_MESSAGE_MAP()

QVCheckWnd::QVCheckWnd() : QVAccessible(static_cast<CWnd&>(*this)) {}

QVCheckWnd::~QVCheckWnd() = default;

void QVCheckWnd::SetIsChecked(int bChecked) {
    const bool bChanges = (m_bChecked != 0) != (bChecked != 0);
    m_bChecked = bChecked;
    if (m_hWnd != nullptr) {
        Invalidate(TRUE);
    }
    if (bChanges) {
        TellAccessible(EVENT_OBJECT_STATECHANGE, CHILDID_SELF);
    }
}

int QVCheckWnd::Checked() {
    return m_bChecked;
}

LRESULT QVCheckWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return qv::HandleQuietly(m_hWnd, message,
                             [&] { return CWnd::WindowProc(message, wParam, lParam); });
}

void QVCheckWnd::OnPaint() {
    CPaintDC dc(this);
    DrawWindow(dc);
}

void QVCheckWnd::DrawWindow(CDC& dc) {
    CRect rc;
    GetClientRect(&rc);
    rc.bottom = rc.right;
    CPen pen(PS_SOLID, 1, ::GetSysColor(COLOR_WINDOWTEXT));
    const qv::SelectGuard<CPen> selectedPen(dc, &pen);
    const qv::SelectGuard<CBrush> selectedBrush(dc, ::GetStockObject(LTGRAY_BRUSH));
    dc.Rectangle(&rc);
    if (m_bChecked) {
        dc.MoveTo(0, 0);
        dc.LineTo(rc.right - 1, rc.bottom - 1);
        dc.MoveTo(rc.right - 1, 0);
        dc.LineTo(0, rc.bottom - 1);
    }
}

// --- What a screen reader is told

LRESULT QVCheckWnd::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return AsksAccessible(lParam) ? AnswerAccessible(wParam, lParam) : Default();
}

long QVCheckWnd::GetAccessibleRole(long) {
    return ROLE_SYSTEM_CHECKBUTTON;
}

long QVCheckWnd::GetAccessibleState(long) {
    return AccessibleWindowState() | STATE_SYSTEM_READONLY |
           (m_bChecked ? STATE_SYSTEM_CHECKED : 0);
}
