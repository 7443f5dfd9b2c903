#include "buttons/check_wnd.h"

#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"

IMPLEMENT_DYNAMIC(QVCheckWnd, CWnd)

BEGIN_MESSAGE_MAP(QVCheckWnd, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

QVCheckWnd::QVCheckWnd() = default;

QVCheckWnd::~QVCheckWnd() = default;

void QVCheckWnd::SetIsChecked(int bChecked) {
    m_bChecked = bChecked;
    if (m_hWnd != nullptr) {
        Invalidate(TRUE);
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
