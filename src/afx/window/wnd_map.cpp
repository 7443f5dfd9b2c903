// CWnd as an object: its message map, its life, and the map from handles to objects.
#include "afx/window/wnd.h"

#include "afx/drawing/handle_map.h"
#include "afx/drawing/thread_map.h"
#include "afx/ole/wnd_control.h"
#include "afx/window/wnd_state.h"

#include <afxwin.h>

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

static const UINT s_nDragList = ::RegisterWindowMessage(DRAGLISTMSGSTRING);

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
    ON_REGISTERED_MESSAGE(s_nDragList, &CWnd::OnDragList)
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
        Detach();  // from a window that was refused, which never told its end
    }
    AfxLeaveControl(this);  // one without a window
    AfxEndControlContainer(this);
}

HWND CWnd::GetSafeHwnd() const {
    // Programs call this through null pointers; the compiler must not see that it is about
    // this.
    const CWnd* volatile pWnd = this;
    return pWnd != nullptr ? static_cast<const CWnd*>(pWnd)->m_hWnd : nullptr;
}

namespace {

struct WndMap : CHandleMap<CWnd, HWND> {
    WndMap() : CHandleMap([](CWnd& wnd, HWND hWnd) { wnd.m_hWnd = hWnd; }) {}
};

/// A window belongs to its thread, and so does its object.
WndMap& ThreadWndMap() {
    return AfxThreadMap<WndMap>();
}

}  // namespace

CWnd* CWnd::FromHandle(HWND hWnd) {
    return ThreadWndMap().FromHandle(hWnd);
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd) {
    return ThreadWndMap().LookupPermanent(hWnd);
}

void CWnd::DeleteTempMap() {
    ThreadWndMap().DeleteTemp();
}

BOOL CWnd::Attach(HWND hWndNew) {
    if (hWndNew == nullptr || m_hWnd != nullptr || FromHandlePermanent(hWndNew) != nullptr) {
        return FALSE;
    }
    m_hWnd = hWndNew;
    ThreadWndMap().SetPermanent(hWndNew, this);
    return TRUE;
}

HWND CWnd::Detach() {
    HWND hWnd = m_hWnd;
    if (hWnd != nullptr) {
        ThreadWndMap().RemovePermanent(this);
        m_hWnd = nullptr;
    }
    return hWnd;
}
