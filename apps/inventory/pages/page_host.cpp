#include "pages/page_host.h"

#include "resource.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(PageHost, CWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_NOTIFY(TCN_SELCHANGE, IDC_TABS, &PageHost::OnTab)
    ON_COMMAND_RANGE(ID_PAGE_FIRST, ID_PAGE_LAST, &PageHost::OnPage)
    ON_UPDATE_COMMAND_UI_RANGE(ID_PAGE_FIRST, ID_PAGE_LAST, &PageHost::OnUpdatePage)
END_MESSAGE_MAP()

BOOL PageHost::Create(CWnd* pParent) {
    m_font.CreatePointFont(80, "Tahoma");
    return CWnd::Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(0, 0, 0, 0),
                        pParent, AFX_IDW_PANE_FIRST);
}

int PageHost::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1 ||
        !m_tabs.Create(WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | TCS_FOCUSNEVER, CRect(0, 0, 0, 0),
                       this, IDC_TABS)) {
        return -1;
    }
    m_tabs.SetFont(&m_font);
    return 0;
}

BOOL PageHost::Add(Page& page) {
    m_pages.push_back(&page);
    m_tabs.InsertItem(m_tabs.GetItemCount(), page.Title());
    if (!page.Create(this, AFX_IDW_PANE_FIRST + static_cast<UINT>(m_pages.size()))) {
        return FALSE;
    }
    page.ShowWindow(m_pages.size() == 1 ? SW_SHOW : SW_HIDE);
    return TRUE;
}

void PageHost::SetInventory(const Inventory& inventory) {
    for (Page* pPage : m_pages) {
        pPage->SetInventory(inventory);
    }
}

CRect PageHost::PageRect() {
    CRect rc;
    GetClientRect(&rc);
    m_tabs.AdjustRect(FALSE, &rc);
    return rc;
}

void PageHost::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    m_tabs.MoveWindow(0, 0, cx, cy);
    const CRect rc = PageRect();
    for (Page* pPage : m_pages) {
        pPage->SetWindowPos(&CWnd::wndTop, rc.left, rc.top, rc.Width(), rc.Height(), 0);
    }
}

void PageHost::OnSetFocus(CWnd*) {
    Active().SetFocus();
}

BOOL PageHost::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return (!m_pages.empty() && Active().OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) ||
           CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void PageHost::Show(size_t nPage) {
    if (nPage >= m_pages.size() || nPage == m_nActive) {
        return;
    }
    m_tabs.SetCurSel(static_cast<int>(nPage));
    Page& old = Active();
    m_nActive = nPage;
    Active().OnShown();
    Active().ShowWindow(SW_SHOW);
    old.ShowWindow(SW_HIDE);
    Active().SetFocus();
}

void PageHost::ShowPage(const Page& page) {
    Show(static_cast<size_t>(std::find(m_pages.begin(), m_pages.end(), &page) - m_pages.begin()));
}

void PageHost::ShowPage(const std::string& strTitle) {
    const std::vector<std::string> titles = Titles();
    Show(static_cast<size_t>(std::find(titles.begin(), titles.end(), strTitle) - titles.begin()));
}

std::vector<std::string> PageHost::Titles() const {
    std::vector<std::string> titles;
    for (const Page* pPage : m_pages) {
        titles.emplace_back(pPage->Title());
    }
    return titles;
}

void PageHost::OnTab(NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    Show(static_cast<size_t>(m_tabs.GetCurSel()));
}

void PageHost::OnPage(UINT nID) {
    Show(nID - ID_PAGE_FIRST);
}

void PageHost::OnUpdatePage(CCmdUI* pCmdUI) {
    pCmdUI->SetRadio(pCmdUI->m_nID - ID_PAGE_FIRST == m_nActive);
}
