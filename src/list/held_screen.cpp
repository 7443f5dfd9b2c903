#include "list/held_screen.h"

#include <algorithm>

namespace qv {

namespace {

// Not by the control, which answers by drawing all of itself.
void SetDraws(HWND hWnd, BOOL bDraws) {
    ::DefWindowProc(hWnd, WM_SETREDRAW, static_cast<WPARAM>(bDraws), 0);
}

}  // namespace

HeldScreen::HeldScreen(CListCtrl& list) {
    const HWND hChild = ::GetWindow(list.m_hWnd, GW_CHILD);
    if ((list.GetStyle() & WS_VISIBLE) == 0 ||
        (hChild != nullptr &&
         (hChild != list.GetHeaderCtrl()->GetSafeHwnd() || ::GetWindow(hChild, GW_HWNDNEXT)))) {
        return;
    }
    m_hList = list.m_hWnd;
    if (hChild != nullptr && (::GetWindowLong(hChild, GWL_STYLE) & WS_VISIBLE) != 0) {
        m_hHeader = hChild;
        m_rcHeader = HeaderRect();
        // Some versions of the platform forget what is due once the list is not to draw.
        m_bHeadingsDue = ::GetUpdateRect(m_hHeader, nullptr, FALSE) != FALSE;
    }
    SetDraws(m_hList, FALSE);
}

HeldScreen::~HeldScreen() {
    if (m_hList == nullptr || !::IsWindow(m_hList)) {
        return;
    }
    SetDraws(m_hList, TRUE);
    InvalidateRows();
    if (m_hHeader != nullptr && ::IsWindow(m_hHeader)) {
        InvalidateHeadings();
    }
}

CRect HeldScreen::HeaderRect() const {
    CRect rc;
    ::GetWindowRect(m_hHeader, &rc);
    ::MapWindowPoints(nullptr, m_hList, reinterpret_cast<POINT*>(&rc), 2);
    return rc;
}

// All of the window, frame and scroll bars, but for the headings.
void HeldScreen::InvalidateRows() const {
    CRect rc;
    ::GetWindowRect(m_hList, &rc);
    ::MapWindowPoints(nullptr, m_hList, reinterpret_cast<POINT*>(&rc), 2);
    CRgn region;
    region.CreateRectRgnIndirect(&rc);
    if (m_hHeader != nullptr && ::IsWindow(m_hHeader)) {
        rc = HeaderRect();
        CRgn headings;
        headings.CreateRectRgnIndirect(&rc);
        region.CombineRgn(&region, &headings, RGN_DIFF);
    }
    ::RedrawWindow(m_hList, nullptr, region, RDW_INVALIDATE | RDW_FRAME | RDW_NOCHILDREN);
}

// Headings that stay where they are need not be drawn. Behind the last one they end with the
// window.
void HeldScreen::InvalidateHeadings() const {
    const CRect rcNow = HeaderRect();
    if (rcNow == m_rcHeader && !m_bHeadingsDue) {
        return;
    }
    CRect rc(0, 0, rcNow.Width(), rcNow.Height());
    if (!m_bHeadingsDue && rcNow.TopLeft() == m_rcHeader.TopLeft() &&
        rcNow.Height() == m_rcHeader.Height()) {
        CRect rcLast(0, 0, 0, 0);
        if (const LRESULT nCount = ::SendMessage(m_hHeader, HDM_GETITEMCOUNT, 0, 0); nCount > 0) {
            const LRESULT nLast =
                ::SendMessage(m_hHeader, HDM_ORDERTOINDEX, static_cast<WPARAM>(nCount - 1), 0);
            ::SendMessage(m_hHeader, HDM_GETITEMRECT, static_cast<WPARAM>(nLast),
                          reinterpret_cast<LPARAM>(&rcLast));
        }
        rc.left = std::min({rcLast.right, static_cast<LONG>(rcNow.Width()),
                            static_cast<LONG>(m_rcHeader.Width())});
    }
    ::InvalidateRect(m_hHeader, &rc, TRUE);
}

}  // namespace qv
