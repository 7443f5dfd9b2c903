#include "pages/page_host.h"

#include "QVControls.h"
#include "resource.h"

#include <algorithm>

namespace {

bool HasFocus(CWnd& wnd) {
    const HWND hFocus = ::GetFocus();
    return hFocus != nullptr && (hFocus == wnd.m_hWnd || ::IsChild(wnd.m_hWnd, hFocus));
}

// A pane that is no control itself: its first one.
HWND FirstControl(CWnd& pane) {
    if (!pane.IsWindowVisible() || !pane.IsWindowEnabled()) {
        return nullptr;
    }
    const HWND hFirst = (pane.GetStyle() & WS_TABSTOP) == 0
                            ? ::GetNextDlgTabItem(pane.m_hWnd, nullptr, FALSE)
                            : nullptr;
    return hFirst != nullptr ? hFirst : pane.m_hWnd;
}

}  // namespace

BEGIN_MESSAGE_MAP(PageHost, CWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_CONTEXTMENU()
    ON_NOTIFY(TCN_SELCHANGE, IDC_TABS, &PageHost::OnTab)
    ON_COMMAND_RANGE(ID_PAGE_FIRST, ID_PAGE_LAST, &PageHost::OnPage)
    ON_UPDATE_COMMAND_UI_RANGE(ID_PAGE_FIRST, ID_PAGE_LAST, &PageHost::OnUpdatePage)
    ON_COMMAND_RANGE(ID_NEXT_PANE, ID_PREV_PANE, &PageHost::OnPane)
END_MESSAGE_MAP()

BOOL PageHost::Create(CWnd* pParent) {
    m_font.CreatePointFont(80, "Tahoma");
    return CWnd::Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(0, 0, 0, 0),
                        pParent, AFX_IDW_PANE_FIRST);
}

int PageHost::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1 ||
        !m_tabs.Create(WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_TABSTOP, CRect(0, 0, 0, 0),
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
    // The arrow keys go on along the tabs; a click leads to the page.
    const bool bInTabs = ::GetFocus() == m_tabs.m_hWnd && ::GetKeyState(VK_LBUTTON) >= 0;
    old.ShowWindow(SW_HIDE);
    if (!bInTabs) {
        Active().SetFocus();
    }
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

// --- Keyboard

// Tab, mnemonics, Enter and Escape as in a dialog. What a dialog sees it keeps, so the frame's
// accelerators come first.
BOOL PageHost::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg) || GetParentFrame()->PreTranslateMessage(pMsg) ||
           LeaveGrid(*pMsg) || PreTranslateInput(pMsg);
}

// A grid asks for all keys, and has no use for Tab.
bool PageHost::LeaveGrid(const MSG& msg) {
    if (msg.message != WM_KEYDOWN || msg.wParam != VK_TAB || ::GetKeyState(VK_CONTROL) < 0) {
        return false;
    }
    CWnd& control = Active().LastControl();
    if (!HasFocus(control) || dynamic_cast<QVGridCtrl*>(&control) == nullptr) {
        return false;
    }
    ::SetFocus(::GetNextDlgTabItem(m_hWnd, control.m_hWnd, ::GetKeyState(VK_SHIFT) < 0));
    return true;
}

void PageHost::OnPane(UINT nID) {
    std::vector<CWnd*> panes = Active().Panes();
    panes.push_back(&m_tabs);
    const size_t nPanes = panes.size();
    const size_t nAt = static_cast<size_t>(
        std::find_if(panes.begin(), panes.end(), [](CWnd* pPane) { return HasFocus(*pPane); }) -
        panes.begin());
    // From beside all of them to the first or the last.
    for (size_t i = 1; i <= nPanes; ++i) {
        const size_t nNext = nID == ID_NEXT_PANE ? (nAt < nPanes ? nAt + i : i - 1)
                                                 : (nAt < nPanes ? nAt + nPanes - i : nPanes - i);
        if (const HWND hControl = FirstControl(*panes[nNext % nPanes])) {
            ::SetFocus(hControl);
            return;
        }
    }
}

// The message comes by way of windows that are not meant: the control is where the mouse or the
// focus is.
void PageHost::OnContextMenu(CWnd*, CPoint pt) {
    HWND hWnd = pt == CPoint(-1, -1) ? ::GetFocus() : ::WindowFromPoint(pt);
    for (; hWnd != nullptr && ::IsChild(m_hWnd, hWnd); hWnd = ::GetParent(hWnd)) {
        CWnd* const pWnd = FromHandlePermanent(hWnd);
        const ContextMenu menu = pWnd != nullptr ? Active().MenuOf(*pWnd) : ContextMenu::None;
        if (menu != ContextMenu::None) {
            ShowContextMenu(menu, *GetParentFrame(), *pWnd, pt);
            return;
        }
    }
}
