#include "afx/documents/ctrl_view.h"

#include "afx/documents/list_view.h"
#include "afx/documents/tree_view.h"

#include <afxcmn.h>
#include <afxwin.h>

IMPLEMENT_DYNCREATE(CCtrlView, CView)
IMPLEMENT_DYNCREATE(CListView, CCtrlView)
IMPLEMENT_DYNCREATE(CTreeView, CCtrlView)

BEGIN_MESSAGE_MAP(CCtrlView, CView)
    ON_WM_PAINT()
END_MESSAGE_MAP()

CCtrlView::CCtrlView() = default;

CCtrlView::CCtrlView(LPCTSTR lpszClass, DWORD dwStyle)
    : m_strClass(lpszClass), m_dwDefaultStyle(dwStyle) {}

BOOL CCtrlView::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = m_strClass;
    }
    // The frame or splitter that makes views knows no control's styles. Its border counts.
    const auto dwAsked = static_cast<DWORD>(cs.style);
    if ((dwAsked | WS_BORDER) == AFX_WS_DEFAULT_VIEW) {
        const DWORD dwBorder = static_cast<DWORD>(WS_BORDER);
        cs.style = static_cast<LONG>((m_dwDefaultStyle & ~dwBorder) | (dwAsked & dwBorder));
    }
    return CView::PreCreateWindow(cs);
}

void CCtrlView::OnPaint() {
    Default();
}

void CCtrlView::OnDraw(CDC*) {}

// The controls' classes add no data: each is its view's window under another name.

CListView::CListView() : CCtrlView(WC_LISTVIEW, AFX_WS_DEFAULT_VIEW) {}

CListCtrl& CListView::GetListCtrl() const {
    return *static_cast<CListCtrl*>(static_cast<CWnd*>(const_cast<CListView*>(this)));
}

CTreeView::CTreeView() : CCtrlView(WC_TREEVIEW, AFX_WS_DEFAULT_VIEW) {}

CTreeCtrl& CTreeView::GetTreeCtrl() const {
    return *static_cast<CTreeCtrl*>(static_cast<CWnd*>(const_cast<CTreeView*>(this)));
}
