#include "frame/wnd_port.h"

namespace qv {

bool WndPort::HasWindow() const {
    return m_wnd.m_hWnd != nullptr && ::IsWindow(m_wnd.m_hWnd);
}

Rect WndPort::ClientRect() const {
    CRect rect;
    m_wnd.GetClientRect(&rect);
    return ToRect(rect);
}

unsigned WndPort::Style() const {
    return m_wnd.GetStyle();
}

int WndPort::VerticalBarWidth() const {
    return ::GetSystemMetrics(SM_CXVSCROLL);
}

int WndPort::HorizontalBarHeight() const {
    return ::GetSystemMetrics(SM_CYHSCROLL);
}

void WndPort::ShowScrollBar(int nBar, bool bShow) {
    const unsigned nBit = nBar == SB_VERT ? WS_VSCROLL : WS_HSCROLL;
    if (((Style() & nBit) != 0) != bShow) {
        m_wnd.ShowScrollBar(nBar, bShow);
    }
}

// Drawing a bar costs as much as painting some rows. While a paint is due anyway, the bar waits for
// it, so that ten thousand insertions in a row do not draw it ten thousand times.
void WndPort::SetScrollRange(int nBar, const ScrollRange& range) {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    const bool bKnown = m_wnd.GetScrollInfo(nBar, &info, SIF_RANGE | SIF_PAGE | SIF_POS) != FALSE;
    const ScrollRange current{info.nMin, info.nMax, static_cast<int>(info.nPage), info.nPos};
    if (bKnown && current == range && !m_bBarDue[nBar]) {
        return;
    }
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMin = range.nMin;
    info.nMax = range.nMax;
    info.nPage = static_cast<UINT>(range.nPage);
    info.nPos = range.nPos;
    m_bBarDue[nBar] = ::GetUpdateRect(m_wnd.m_hWnd, nullptr, FALSE) != FALSE;
    m_wnd.SetScrollInfo(nBar, &info, !m_bBarDue[nBar]);
}

void WndPort::DrawBars() {
    if (m_bBarDue[SB_HORZ] || m_bBarDue[SB_VERT]) {
        m_bBarDue[SB_HORZ] = m_bBarDue[SB_VERT] = false;
        constexpr WPARAM kWholeFrame = 1;
        m_wnd.SendMessage(WM_NCPAINT, kWholeFrame);
    }
}

bool WndPort::GetScrollPosition(int nBar, bool bTrack, int& nPos) const {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    if (!m_wnd.GetScrollInfo(nBar, &info, SIF_POS | SIF_TRACKPOS)) {
        return false;
    }
    nPos = bTrack ? info.nTrackPos : info.nPos;
    return true;
}

void WndPort::ScrollPixels(int dx, int dy, bool bErase) {
    m_wnd.ScrollWindowEx(dx, dy, nullptr, nullptr, nullptr, nullptr,
                         SW_INVALIDATE | (bErase ? SW_ERASE : 0));
}

void WndPort::Invalidate(const Rect& rect, bool bErase) {
    const CRect rc = ToCRect(rect);
    m_wnd.InvalidateRect(&rc, bErase);
}

void WndPort::InvalidateAll() {
    m_wnd.InvalidateRect(nullptr, FALSE);
}

void WndPort::Update() {
    m_wnd.UpdateWindow();
}

}  // namespace qv
