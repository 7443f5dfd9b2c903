#include "afx/documents/view.h"

#include "afx/app/last_page.h"
#include "afx/app/print_info.h"

#include <afxpriv.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_MOUSEACTIVATE()
    ON_MESSAGE(WM_INITIALUPDATE, &CView::OnInitialUpdateMessage)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_SPLIT, &CView::OnUpdateSplitCmd)
    ON_COMMAND_EX(ID_WINDOW_SPLIT, &CView::OnSplitCmd)
    ON_UPDATE_COMMAND_UI(ID_NEXT_PANE, &CView::OnUpdateNextPaneMenu)
    ON_UPDATE_COMMAND_UI(ID_PREV_PANE, &CView::OnUpdateNextPaneMenu)
    ON_COMMAND_EX(ID_NEXT_PANE, &CView::OnNextPaneCmd)
    ON_COMMAND_EX(ID_PREV_PANE, &CView::OnNextPaneCmd)
END_MESSAGE_MAP()

CView::CView() = default;

CView::~CView() {
    m_bBeingDeleted = true;
    if (m_hWnd != nullptr) {
        DestroyWindow();
    }
    if (m_pDocument != nullptr) {
        m_pDocument->RemoveView(this);
    }
}

BOOL CView::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = AFX_WNDCLASS_FRAME;
    }
    if ((cs.style & WS_BORDER) != 0) {
        cs.style &= ~WS_BORDER;
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
    }
    return CWnd::PreCreateWindow(cs);
}

void CView::PostNcDestroy() {
    if (!m_bBeingDeleted) {
        delete this;
    }
}

int CView::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    const auto* pContext = static_cast<const CCreateContext*>(lpCreateStruct->lpCreateParams);
    if (pContext != nullptr && pContext->m_pCurrentDoc != nullptr) {
        pContext->m_pCurrentDoc->AddView(this);
    }
    return 0;
}

void CView::OnDestroy() {
    CFrameWnd* pFrame = GetParentFrame();
    if (pFrame != nullptr && pFrame->GetActiveView() == this) {
        pFrame->SetActiveView(nullptr);
    }
    CWnd::OnDestroy();
}

BOOL CView::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const HWND hWnd = m_hWnd;
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    // A handler that lets a command go on may have destroyed the view.
    return FromHandlePermanent(hWnd) == this && m_pDocument != nullptr &&
           m_pDocument->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CView::IsSelected(const CObject*) const {
    return FALSE;
}

// Showing the document

LRESULT CView::OnInitialUpdateMessage(WPARAM, LPARAM) {
    OnInitialUpdate();
    return 0;
}

void CView::OnInitialUpdate() {
    OnUpdate(nullptr, 0, nullptr);
}

void CView::OnUpdate(CView*, LPARAM, CObject*) {
    Invalidate(TRUE);
}

void CView::OnPaint() {
    CPaintDC dc(this);
    OnPrepareDC(&dc);
    OnDraw(&dc);
}

void CView::OnPrepareDC(CDC*, CPrintInfo* pInfo) {
    if (pInfo != nullptr && pInfo->GetMaxPage() == kAfxUnknownLastPage) {
        pInfo->m_bContinuePrinting = pInfo->m_nCurPage == 1;
    }
}

// Activation

void CView::OnActivateView(BOOL bActivate, CView*, CView*) {
    // What has the focus inside the view keeps it. A window in the background does not come to the
    // front for its view.
    const HWND hFocus = ::GetFocus();
    if (bActivate && hFocus != m_hWnd && !::IsChild(m_hWnd, hFocus) && IsTopParentActive()) {
        SetFocus();
    }
}

void CView::OnActivateFrame(UINT, CFrameWnd*) {}

int CView::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
    const int nResult = CWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
    CFrameWnd* pFrame = GetParentFrame();
    if (nResult == MA_NOACTIVATE || nResult == MA_NOACTIVATEANDEAT || pFrame == nullptr) {
        return nResult;
    }
    if (pFrame->GetActiveView() != this) {
        pFrame->SetActiveView(this);
    } else {
        OnActivateView(TRUE, this, this);
    }
    return nResult;
}
