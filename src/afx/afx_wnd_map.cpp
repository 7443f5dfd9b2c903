// CWnd as an object: its message map, its life, and the map from handles to objects.
#include "afx_handle_map.h"
#include "afx_wnd_state.h"
#include "afxwin.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_PARENTNOTIFY()
    ON_WM_CTLCOLOR()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_COMPAREITEM()
    ON_WM_DELETEITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_CHARTOITEM()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SETTINGCHANGE()
    ON_WM_DEVMODECHANGE()
    ON_WM_FONTCHANGE()
    ON_WM_DISPLAYCHANGE()
    END_MESSAGE_MAP()

    const CWnd CWnd::wndTop(HWND_TOP);
    const CWnd CWnd::wndBottom(HWND_BOTTOM);
    const CWnd CWnd::wndTopMost(HWND_TOPMOST);
    const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

    CWnd::CWnd() = default;

    CWnd::~CWnd() {
        // Stand-ins and temporary objects only name a window; they do not own it.
        if (m_hWnd != nullptr && FromHandlePermanent(m_hWnd) == this) {
            DestroyWindow();
        }
    }

    /// A member function may be called through a null pointer here, as programs do.
    static HWND HandleOrNull(const CWnd* volatile pWnd) {
        return pWnd != nullptr ? pWnd->m_hWnd : nullptr;
    }

    HWND CWnd::GetSafeHwnd() const {
        return HandleOrNull(this);
    }
