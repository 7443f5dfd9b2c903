// The tab strip: mouse and keys.

#include "ocx/tab_strip.h"

#include <windowsx.h>

namespace ocx {

bool TabStrip::OnMessage(UINT nMessage, WPARAM wParam, LPARAM lParam, LRESULT& lResult) {
    switch (nMessage) {
        case WM_GETDLGCODE:
            lResult = DLGC_WANTARROWS;
            return true;
        case WM_KEYDOWN:
            return OnKey(wParam);
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            Invalidate();
            return false;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            OnPress({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
            return true;
        default:
            return false;
    }
}

bool TabStrip::OnKey(WPARAM vk) {
    const int nActive = m_set.Active();
    const bool bShift = ::GetKeyState(VK_SHIFT) < 0;
    const bool bControl = ::GetKeyState(VK_CONTROL) < 0;
    switch (vk) {
        case VK_LEFT:
        case VK_RIGHT:
            if (IsLying()) {
                GoTo(m_set.Next(nActive, vk == VK_RIGHT ? 1 : -1, false));
            }
            return true;
        case VK_UP:
        case VK_DOWN:
            if (!IsLying()) {
                GoTo(m_set.Next(nActive, vk == VK_DOWN ? 1 : -1, false));
            }
            return true;
        case VK_HOME:
            GoTo(m_set.Next(-1, 1, false));
            return true;
        case VK_END:
            GoTo(m_set.Next(m_set.Count(), -1, false));
            return true;
        case VK_PRIOR:
        case VK_NEXT:
            if (bControl) {
                GoTo(m_set.Next(nActive, vk == VK_NEXT ? 1 : -1, true));
            }
            return bControl;
        case VK_TAB:
            if (bControl) {
                GoTo(m_set.Next(nActive, bShift ? -1 : 1, true));
            } else if (::GetFocus() == Window()) {
                // Nobody took the focus along when the key was told.
                OfferKeyToSite(vk);
            }
            return true;
        default:
            return false;
    }
}

void TabStrip::OnPress(POINT pt) {
    using Part = qv::TabStripLayout::Part;
    const auto hit = Layout().HitTest({pt.x, pt.y});
    if (hit.part == Part::Tab) {
        GoTo(hit.nTab);
    } else if (hit.part == Part::Back || hit.part == Part::Forward) {
        Scroll(hit.part == Part::Forward ? 1 : -1);
    }
}

void TabStrip::GoTo(int nTab) {
    if (m_set.IsUsable(nTab)) {
        m_set.Activate(nTab);
    }
}

void TabStrip::Scroll(int nTabs) {
    m_nFirst = Layout().First() + nTabs;
    Relayout();
}

}  // namespace ocx
