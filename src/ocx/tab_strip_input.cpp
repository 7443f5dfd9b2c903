// The tab strip: mouse, keys and screen readers.

#include "ocx/tab_strip.h"

#include "ocx/caption.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

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
            if (nMessage == WM_SETFOCUS && m_set.Active() >= 0) {
                m_spoken.Tell(EVENT_OBJECT_FOCUS, m_set.Active() + 1);
            }
            return false;
        case WM_GETOBJECT:
            return m_spoken.Answer(wParam, lParam, lResult);
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

// --- What a screen reader is told

void TabStrip::TellActive() {
    if (std::exchange(m_nTold, m_set.Active()) == m_set.Active() || m_nTold < 0) {
        return;
    }
    const LONG nPart = m_nTold + 1;
    if (HasFocus()) {
        m_spoken.Tell(EVENT_OBJECT_FOCUS, nPart);
    }
    m_spoken.Tell(EVENT_OBJECT_SELECTION, nPart);
}

Spoken TabStrip::Say(LONG nPart) {
    Spoken spoken;
    if (nPart == CHILDID_SELF) {
        spoken.nRole = ROLE_SYSTEM_PAGETABLIST;
        spoken.nState = STATE_SYSTEM_FOCUSABLE | (HasFocus() ? STATE_SYSTEM_FOCUSED : 0);
        return spoken;
    }
    const int nTab = nPart - 1;
    const Caption caption(m_tabs[nTab].caption, false);
    spoken.nRole = ROLE_SYSTEM_PAGETAB;
    spoken.name = caption.text;
    spoken.shortcut = caption.text.substr(std::min(caption.nMnemonic, caption.text.size()), 1);
    const qv::TabState state = m_set.State(nTab);
    if (state == qv::TabState::Normal) {
        spoken.action = L"Switch";
        spoken.nState = STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE;
    } else {
        spoken.nState =
            state == qv::TabState::Hidden ? STATE_SYSTEM_INVISIBLE : STATE_SYSTEM_UNAVAILABLE;
    }
    if (nTab == m_set.Active()) {
        spoken.nState |= STATE_SYSTEM_SELECTED | (HasFocus() ? STATE_SYSTEM_FOCUSED : 0);
    }
    RECT rect;
    if (state != qv::TabState::Hidden && !PartRect(nPart, rect)) {
        spoken.nState |= STATE_SYSTEM_OFFSCREEN | STATE_SYSTEM_INVISIBLE;
    }
    return spoken;
}

bool TabStrip::PartRect(LONG nPart, RECT& rect) {
    const qv::Rect rc = Layout().TabRect(nPart - 1);
    rect = {rc.left, rc.top, rc.right, rc.bottom};
    return rc.Width() > 0 && rc.Height() > 0;
}

LONG TabStrip::PartAt(POINT pt) {
    const auto hit = Layout().HitTest({pt.x, pt.y});
    return hit.part == qv::TabStripLayout::Part::Tab ? hit.nTab + 1 : CHILDID_SELF;
}

bool TabStrip::SelectPart(LONG nPart) {
    GoTo(nPart - 1);
    return m_set.Active() == nPart - 1;
}

}  // namespace ocx
