#include "afx/documents/pages_view.h"

#include "afx/objects/create_object.h"

#include <afxpriv.h>
#include <afxwin.h>

#include <algorithm>

IMPLEMENT_DYNCREATE(CTabView, CView)

namespace {

constexpr UINT kTabsID = 1;

CView* ViewOf(HWND hWnd) {
    return DYNAMIC_DOWNCAST(CView, CWnd::FromHandlePermanent(hWnd));
}

}  // namespace

BEGIN_MESSAGE_MAP(CTabView, CView)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_NOTIFY(TCN_SELCHANGE, kTabsID, &CTabView::OnTabSelected)
END_MESSAGE_MAP()

int CTabView::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    constexpr DWORD kTabs = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | TCS_BOTTOM;
    if (CView::OnCreate(lpCreateStruct) == -1 ||
        !m_tabs.Create(kTabs, CRect(0, 0, 0, 0), this, kTabsID)) {
        return -1;
    }
    m_tabs.SetFont(CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))));
    return 0;
}

bool CTabView::IsTab(int iTabNum) const {
    return iTabNum >= 0 && iTabNum < static_cast<int>(m_pages.size());
}

int CTabView::AddView(CRuntimeClass* pViewClass, const CString& strViewLabel, int iIndex,
                      CCreateContext* pContext) {
    CCreateContext context;
    if (pContext == nullptr) {
        context.m_pCurrentDoc = m_pDocument;
        context.m_pNewViewClass = pViewClass;
        pContext = &context;
    }
    auto* pView = AfxCreateOf<CView>(pViewClass);
    if (pView == nullptr) {
        return -1;
    }
    const HWND hWnd = m_hWnd;
    constexpr DWORD kPage = AFX_WS_DEFAULT_VIEW & ~static_cast<DWORD>(WS_BORDER | WS_VISIBLE);
    const UINT nID = AFX_IDW_PANE_FIRST + 1 + static_cast<UINT>(m_pages.size());
    // A view that fails deletes itself, unless its window was never tried for want of memory.
    try {
        if (!pView->Create(nullptr, nullptr, kPage, CRect(0, 0, 0, 0), this, nID, pContext)) {
            return -1;
        }
    } catch (...) {
        delete pView;
        throw;
    }
    const HWND hPage = pView->m_hWnd;
    pView->SendMessage(WM_INITIALUPDATE);
    if (FromHandlePermanent(hWnd) != this || ViewOf(hPage) != pView) {
        return -1;
    }
    const int nTab = IsTab(iIndex) ? iIndex : static_cast<int>(m_pages.size());
    try {
        AfxNeedMemory([&] { m_pages.reserve(m_pages.size() + 1); });
        m_tabs.InsertItem(nTab, strViewLabel);
    } catch (...) {
        ::DestroyWindow(hPage);  // a page without a tab would never show
        throw;
    }
    m_pages.insert(m_pages.begin() + nTab, hPage);
    if (m_pages.size() == 1) {
        ShowPage(nTab);
    }
    return nTab;
}

int CTabView::FindTab(HWND hWndView) const {
    const auto it = std::find(m_pages.begin(), m_pages.end(), hWndView);
    return it != m_pages.end() ? static_cast<int>(it - m_pages.begin()) : -1;
}

BOOL CTabView::RemoveView(int iTabNum) {
    if (!IsTab(iTabNum)) {
        return FALSE;
    }
    const HWND hWnd = m_hWnd;
    const HWND hPage = m_pages[static_cast<size_t>(iTabNum)];
    m_pages.erase(m_pages.begin() + iTabNum);
    m_tabs.DeleteItem(iTabNum);
    ::DestroyWindow(hPage);
    if (FromHandlePermanent(hWnd) == this && !m_pages.empty()) {
        SetActiveView(std::min(iTabNum, static_cast<int>(m_pages.size()) - 1));
    }
    return TRUE;
}

BOOL CTabView::SetActiveView(int iTabNum) {
    if (!IsTab(iTabNum)) {
        return FALSE;
    }
    m_tabs.SetCurSel(iTabNum);
    ShowPage(iTabNum);
    return TRUE;
}

CView* CTabView::GetActiveView() const {
    const int nTab = m_tabs.m_hWnd != nullptr ? m_tabs.GetCurSel() : -1;
    return IsTab(nTab) ? ViewOf(m_pages[static_cast<size_t>(nTab)]) : nullptr;
}

/// A copy: who is shown or moved may remove pages.
std::vector<HWND> CTabView::Pages() const {
    return AfxNeedMemory([&] { return m_pages; });
}

void CTabView::ShowPage(int iTabNum) {
    const HWND hShown = m_pages[static_cast<size_t>(iTabNum)];
    LayOut();
    const std::vector<HWND> pages = Pages();
    for (const HWND hPage : pages) {
        ::ShowWindow(hPage, hPage == hShown ? SW_SHOWNA : SW_HIDE);
    }
    CView* pView = ViewOf(hShown);
    if (pView == nullptr) {
        return;
    }
    const HWND hWnd = m_hWnd;
    CFrameWnd* pFrame = GetParentFrame();
    CView* pActive = pFrame != nullptr ? pFrame->GetActiveView() : nullptr;
    // A view beside this one stays the active one.
    if (pActive != nullptr && (pActive == this || ::GetParent(*pActive) == m_hWnd)) {
        pFrame->SetActiveView(pView);
    }
    if (FromHandlePermanent(hWnd) == this && ViewOf(hShown) == pView) {
        OnActivateView(pView);
    }
}

void CTabView::LayOut() {
    CRect rcClient;
    GetClientRect(rcClient);
    m_tabs.MoveWindow(rcClient);
    CRect rcPage(rcClient);
    m_tabs.AdjustRect(FALSE, rcPage);
    const std::vector<HWND> pages = Pages();
    for (const HWND hPage : pages) {
        ::SetWindowPos(hPage, HWND_TOP, rcPage.left, rcPage.top, std::max(rcPage.Width(), 0),
                       std::max(rcPage.Height(), 0), SWP_NOACTIVATE);
    }
}

void CTabView::OnSize(UINT nType, int cx, int cy) {
    CView::OnSize(nType, cx, cy);
    if (m_tabs.m_hWnd != nullptr && nType != SIZE_MINIMIZED) {
        LayOut();
    }
}

void CTabView::OnSetFocus(CWnd* pOldWnd) {
    if (CView* pView = GetActiveView()) {
        pView->SetFocus();
    } else {
        CView::OnSetFocus(pOldWnd);
    }
}

void CTabView::OnTabSelected(NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    const int nTab = m_tabs.GetCurSel();
    if (IsTab(nTab)) {
        ShowPage(nTab);
    }
}

void CTabView::OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) {
    CView::OnActivateView(bActivate, pActivateView, pDeactiveView);
    CFrameWnd* pFrame = GetParentFrame();
    CView* pPage = GetActiveView();
    if (bActivate && pPage != nullptr && pFrame != nullptr) {
        pFrame->SetActiveView(pPage);
    }
}

void CTabView::OnActivateView(CView*) {}

void CTabView::OnDraw(CDC*) {}

BOOL CTabView::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const HWND hWnd = m_hWnd;
    CView* pPage = GetActiveView();
    if (pPage != nullptr && pPage->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    return FromHandlePermanent(hWnd) == this && CView::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
