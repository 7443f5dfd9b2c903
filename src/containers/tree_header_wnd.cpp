#include "containers/tree_header_wnd.h"

IMPLEMENT_DYNCREATE(QVTreeHeaderWnd, QVHeaderWnd)

BEGIN_MESSAGE_MAP(QVTreeHeaderWnd, QVHeaderWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
END_MESSAGE_MAP()

QVTreeHeaderWnd::QVTreeHeaderWnd() = default;

// Before the tree's object goes.
QVTreeHeaderWnd::~QVTreeHeaderWnd() {
    DestroyWindow();
}

int QVTreeHeaderWnd::Initialize(UINT nID, CWnd* pParent) {
    return InitializeWith(nID, pParent, static_cast<MakeInner>(&QVTreeHeaderWnd::MakeTree));
}

BOOL QVTreeHeaderWnd::MakeTree() {
    if (m_wndTree.m_hWnd == nullptr) {
        CRect rcBody;
        CalcBackgroundRect(rcBody);
        if (!m_wndTree.Create(m_dwTreeStyle, rcBody, this, m_nTreeID)) {
            return FALSE;
        }
        ShareTabStop(m_wndTree);
    }
    return TRUE;
}

int QVTreeHeaderWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return QVHeaderWnd::OnCreate(lpCreateStruct) ? -1 : 0;
}

void QVTreeHeaderWnd::OnSize(UINT nType, int cx, int cy) {
    QVHeaderWnd::OnSize(nType, cx, cy);
    SizeInnerWnd(nType, m_wndTree);
}

BOOL QVTreeHeaderWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (!IsInnerId(m_nTreeID, wParam)) {
        return QVHeaderWnd::OnNotify(wParam, lParam, pResult);
    }
    *pResult = SendToParent(WM_NOTIFY, wParam, lParam);
    return TRUE;
}
