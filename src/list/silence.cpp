#include "list/silence.h"

namespace qv {

Silence* Silence::s_pInner = nullptr;

Silence::Silence(HWND hChild, HWND hTold) : m_hChild(hChild), m_hTold(hTold), m_pOuter(s_pInner) {
    // In the window's own character set, or it would get the other one.
    m_bWide = ::IsWindowUnicode(hTold) != FALSE;
    m_pfnTold = SetProcedure(Filter);
    s_pInner = this;
}

Silence::~Silence() {
    s_pInner = m_pOuter;
    if (m_pfnTold != nullptr) {
        SetProcedure(m_pfnTold);
    }
}

WNDPROC Silence::SetProcedure(WNDPROC pfn) {
    const auto n = reinterpret_cast<LONG_PTR>(pfn);
    return reinterpret_cast<WNDPROC>(m_bWide ? ::SetWindowLongPtrW(m_hTold, GWLP_WNDPROC, n)
                                             : ::SetWindowLongPtrA(m_hTold, GWLP_WNDPROC, n));
}

LRESULT CALLBACK Silence::Filter(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    for (const Silence* p = s_pInner; p != nullptr; p = p->m_pOuter) {
        if (p->m_hTold != hWnd) {
            continue;
        }
        if (nMessage == WM_NOTIFY &&
            reinterpret_cast<const NMHDR*>(lParam)->hwndFrom == p->m_hChild) {
            return 0;
        }
        if (p->m_pfnTold != Filter) {
            return p->m_bWide ? ::CallWindowProcW(p->m_pfnTold, hWnd, nMessage, wParam, lParam)
                              : ::CallWindowProcA(p->m_pfnTold, hWnd, nMessage, wParam, lParam);
        }
    }
    return ::DefWindowProc(hWnd, nMessage, wParam, lParam);
}

}  // namespace qv
