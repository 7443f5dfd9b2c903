#include "containers/tab_wnd.h"

#include "common/process_text.h"
#include "containers/page_steps.h"
#include "frame/ancestor_font.h"
#include "frame/create_window.h"
#include "frame/redraw_pause.h"
#include "print/print_engine.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(QVTabWnd, QVCustCtrl)

namespace {

constexpr UINT kTabCtrlId = 100;

CRect PlaceIn(const CWnd& wndParent, const CWnd* pWnd) {
    CRect rc;
    if (pWnd != nullptr && pWnd->m_hWnd != nullptr) {
        pWnd->GetWindowRect(&rc);
        wndParent.ScreenToClient(&rc);
    }
    return rc;
}

// What another page leaves to be painted of a tab control whose redraw is off meanwhile: the new
// page, the tabs, what was due before, and what the old page covered and the new one does not.
class PageArea {
public:
    PageArea(CTabCtrl& tabs, const CWnd* pOldPage)
        : m_tabs(tabs), m_rcOldPage(PlaceIn(tabs, pOldPage)), m_rcDisplay(Display()) {
        m_rgnDue.CreateRectRgn(0, 0, 0, 0);
        tabs.GetUpdateRgn(&m_rgnDue);
    }
    void Repaint(CWnd* pPage) {
        const CRect rcDisplay = Display();
        const bool bMoved = rcDisplay != m_rcDisplay;
        constexpr UINT kErased = RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN;
        m_tabs.RedrawWindow(nullptr, &m_rgnDue, kErased);
        m_tabs.RedrawWindow(bMoved ? nullptr : TabsBeside(rcDisplay), nullptr, kErased);
        if (PlaceIn(m_tabs, pPage) != m_rcOldPage) {
            m_tabs.RedrawWindow(&m_rcOldPage, nullptr, kErased);
        }
        if (pPage != nullptr) {
            pPage->RedrawWindow(nullptr, nullptr, kErased | RDW_FRAME);
        }
    }

private:
    CRect Display() const {
        CRect rc;
        m_tabs.GetClientRect(&rc);
        m_tabs.AdjustRect(FALSE, &rc);
        return rc;
    }
    // The tabs are on the side on which the most room is taken.
    const RECT* TabsBeside(const CRect& rcDisplay) {
        CRect rc;
        m_tabs.GetClientRect(&rc);
        const int nMost = std::max({rcDisplay.left, rcDisplay.top, rc.right - rcDisplay.right,
                                    rc.bottom - rcDisplay.bottom});
        if (nMost == rcDisplay.top) {
            rc.bottom = rcDisplay.top;
        } else if (nMost == rcDisplay.left) {
            rc.right = rcDisplay.left;
        } else if (nMost == rc.right - rcDisplay.right) {
            rc.left = rcDisplay.right;
        } else {
            rc.top = rcDisplay.bottom;
        }
        return &(m_rcTabs = rc);
    }

    CTabCtrl& m_tabs;
    const CRect m_rcOldPage;
    const CRect m_rcDisplay;
    CRect m_rcTabs;
    CRgn m_rgnDue;
};

}  // namespace

BEGIN_MESSAGE_MAP(QVTabWnd, QVCustCtrl)
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_SETFOCUS()
    ON_NOTIFY(TCN_SELCHANGE, kTabCtrlId, &QVTabWnd::OnSelchangeTab)
END_MESSAGE_MAP()

// --- Creation

QVTabWnd::QVTabWnd() = default;

QVTabWnd::~QVTabWnd() {
    DestroyWindow();
    for (INT_PTR n = 0; n < m_Pages.GetSize(); ++n) {
        if (m_Pages[n] != nullptr) {
            m_Pages[n]->m_life.Discard();
        }
    }
}

// The framework's own class of child windows is painted anew as a whole in any other size, with all
// that is inside.
BOOL QVTabWnd::PreCreateWindow(CREATESTRUCT& cs) {
    qv::BorderToClientEdge(cs);
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    }
    return QVCustCtrl::PreCreateWindow(cs);
}

int QVTabWnd::Initialize(UINT nID, CWnd* pParent) {
    if (m_TabCtrl.m_hWnd != nullptr) {
        return 1;
    }
    const bool bAttaches = m_hWnd == nullptr;
    if (!QVCustCtrl::Initialize(nID, pParent)) {
        return 0;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    bool bMade = false;
    qv::MemorySuffices([&] { bMade = MakeTabs(); });
    if (!bMade && watch) {
        RemovePages();
        if (watch) {
            m_TabCtrl.DestroyWindow();
        }
        if (watch && bAttaches) {
            UnsubclassWindow();
        }
    }
    return bMade;
}

bool QVTabWnd::MakeTabs() {
    if (!MakeTabCtrl()) {
        return false;
    }
    const qv::WindowWatch watch(m_alive, m_TabCtrl.m_hWnd);
    m_bInitialized = FALSE;
    RemovePages();  // of a window before this one
    if (watch) {
        AddTabPages();
    }
    if (!watch) {
        return false;
    }
    const auto nPages = static_cast<int>(m_Pages.GetSize());
    for (int nPage = 0; nPage < nPages; ++nPage) {
        InsertTab(nPage);
    }
    if (nPages > 0) {
        ResizePages();
        if (watch && m_nActivePage == -1) {
            SwitchTabs(0);
        } else if (watch) {
            m_TabCtrl.SetCurSel(m_nActivePage);
        }
    }
    if (!watch) {
        return false;
    }
    m_bInitialized = TRUE;
    return true;
}

bool QVTabWnd::MakeTabCtrl() {
    CRect rc;
    GetClientRect(&rc);
    if (!qv::CreateWhole(m_TabCtrl, [&] {
            return m_TabCtrl.Create(WS_CHILD | WS_VISIBLE, rc, this, kTabCtrlId);
        })) {
        return false;
    }
    // Each of them leaves the pixels of those inside alone, or the page that shows would flicker,
    // and lets the keyboard through to them.
    for (CWnd* pWnd : {static_cast<CWnd*>(this), static_cast<CWnd*>(&m_TabCtrl)}) {
        pWnd->ModifyStyle(0, WS_CLIPCHILDREN);
        pWnd->ModifyStyleEx(0, WS_EX_CONTROLPARENT);
    }
    if (CFont* pFont = qv::NearestFont(this)) {
        m_TabCtrl.SetFont(pFont, TRUE);
    }
    return true;
}

// --- Pages

void QVTabWnd::AddTabPages() {}

QVTabWndPage* QVTabWnd::AddPage(UINT nTitleID, CRuntimeClass* pClass) {
    CString strTitle;
    return qv::MemorySuffices([&] { strTitle.LoadString(nTitleID); })
               ? AddPage(static_cast<LPCSTR>(strTitle), pClass)
               : nullptr;
}

QVTabWndPage* QVTabWnd::AddPage(const char* pszTitle, CRuntimeClass* pClass) {
    auto* pPage = qv::NewPage<QVTabWndPage>(pClass);
    if (pPage == nullptr) {
        return nullptr;
    }
    const qv::AliveWatch page(pPage->m_life.Token());
    if (AddPage(pszTitle, pPage) != nullptr) {
        return pPage;
    }
    if (page) {
        pPage->m_life.Discard();
    }
    return nullptr;
}

QVTabWndPage* QVTabWnd::AddPage(const char* pszTitle, QVTabWndPage* pPage) {
    if (pPage == nullptr || pPage->m_hWnd != nullptr || m_TabCtrl.m_hWnd == nullptr ||
        m_bRemoving) {
        return nullptr;
    }
    const qv::WindowWatch watch(m_alive, m_TabCtrl.m_hWnd);
    const qv::PageLife::InUse inUse(pPage->m_life);
    const bool bMade = qv::MakePage(*pPage, pPage->m_life, m_TabCtrl);
    if (!inUse) {
        return nullptr;
    }
    if (!bMade || !watch) {
        pPage->DestroyWindow();
        return nullptr;
    }
    const auto nPage = static_cast<int>(m_Pages.GetSize());
    if (!qv::KeepPage(m_Pages, m_astrTitles, *pPage, pszTitle)) {
        qv::DiscardPage(*pPage, pPage->m_life);
        return nullptr;
    }
    if (m_bInitialized && InsertTab(nPage)) {
        ResizePages();
        if (watch && m_nActivePage == -1) {
            SwitchTabs(0);
        }
    }
    return inUse && !pPage->m_life.Discarded() ? pPage : nullptr;
}

bool QVTabWnd::InsertTab(int nPage) {
    TCITEM item{};
    item.mask = TCIF_TEXT | TCIF_PARAM;
    item.pszText = const_cast<char*>(static_cast<LPCSTR>(m_astrTitles[nPage]));
    item.lParam = nPage;
    return m_TabCtrl.InsertItem(m_TabCtrl.GetItemCount(), &item) >= 0;
}

// A page that hears of its end finds neither itself nor those behind it here.
void QVTabWnd::RemovePages() {
    const qv::AliveWatch watch(m_alive);
    {
        const qv::SetWhileAlive removing(m_alive, m_bRemoving, true);
        ++m_nSwitches;
        while (m_Pages.GetSize() > 0) {
            const INT_PTR nLast = m_Pages.GetUpperBound();
            QVTabWndPage* const pPage = m_Pages[nLast];
            m_Pages.RemoveAt(nLast);
            m_astrTitles.RemoveAt(nLast);
            if (pPage == nullptr) {
                continue;
            }
            qv::DiscardPage(*pPage, pPage->m_life);
            if (!watch) {
                return;
            }
        }
        m_nActivePage = -1;
        m_Pages.RemoveAll();
        m_astrTitles.RemoveAll();
    }
    if (m_TabCtrl.m_hWnd != nullptr) {
        m_TabCtrl.DeleteAllItems();
    }
}

int QVTabWnd::NumPages() const {
    return m_TabCtrl.m_hWnd != nullptr ? m_TabCtrl.GetItemCount() : 0;
}

QVTabWndPage* QVTabWnd::GetPage(int nPage) const {
    return nPage >= 0 && nPage < m_Pages.GetSize() ? m_Pages[nPage] : nullptr;
}

CString QVTabWnd::GetPageTitle(int nPage) const {
    return nPage >= 0 && nPage < m_astrTitles.GetSize() ? m_astrTitles[nPage] : CString();
}

int QVTabWnd::FindPageWithTitle(const CString& strTitle) const {
    for (INT_PTR n = 0; n < m_astrTitles.GetSize(); ++n) {
        if (qv::ProcessText().CompareNoCase(m_astrTitles[n], strTitle) == 0) {
            return static_cast<int>(n);
        }
    }
    return -1;
}

// --- The page that shows

void QVTabWnd::SetActivePage(int nPage) {
    const qv::WindowWatch watch(m_alive, m_TabCtrl.m_hWnd);
    if (watch) {
        m_TabCtrl.SetCurSel(nPage);
    }
    if (watch) {
        SwitchTabs(nPage);
    }
}

void QVTabWnd::SwitchTabs(int nPage) {
    const qv::WindowWatch watch(m_alive, m_TabCtrl.m_hWnd);
    if (!watch) {
        return;
    }
    const QVTabWndPage* const pOld = GetPage(m_nActivePage);
    const bool bFocusInside = pOld != nullptr && ::IsChild(pOld->m_hWnd, ::GetFocus());
    PageArea area(m_TabCtrl, pOld);
    {
        const qv::RedrawPause pause(*this);
        ++m_nSwitches;
        if (GetPage(nPage) != nullptr) {
            ShowInstead(nPage);
        } else {
            HideActive();
        }
    }
    if (!watch) {
        return;
    }
    // Nothing of this window shows beside the tab control.
    InvalidateRect(nullptr, FALSE);
    QVTabWndPage* const pNew = GetPage(m_nActivePage);
    area.Repaint(pNew);
    // Hiding may have left the keyboard with a hidden control, or with the tab control.
    HWND hFocus = ::GetFocus();
    if (bFocusInside && (hFocus == nullptr || ::IsChild(m_hWnd, hFocus)) &&
        (pNew == nullptr || !::IsChild(pNew->m_hWnd, hFocus))) {
        ::SetFocus(pNew != nullptr ? pNew->m_hWnd : m_TabCtrl.m_hWnd);
    }
}

// The new page is there before the old one goes, so that there always is one. Either may switch
// once more from within, and then has the last word: only the page that was to show is hidden
// again.
void QVTabWnd::ShowInstead(int nPage) {
    const qv::WindowWatch watch(m_alive, m_TabCtrl.m_hWnd);
    QVTabWndPage* const pNew = GetPage(nPage);
    const qv::PageLife::InUse inUse(pNew->m_life);
    const unsigned nSwitch = m_nSwitches;
    pNew->ShowPage();
    QVTabWndPage* const pOld = watch ? GetPage(m_nActivePage) : nullptr;
    if (pOld != nullptr && pOld != pNew && nSwitch == m_nSwitches) {
        const qv::PageLife::InUse oldInUse(pOld->m_life);
        pOld->HidePage();
    }
    if (!watch) {
        return;
    }
    if (nSwitch == m_nSwitches) {
        m_nActivePage = nPage;
    } else if (inUse && GetPage(nPage) == pNew && m_nActivePage != nPage) {
        pNew->HidePage();
    }
}

// As often as there are pages: derived pages count on it.
void QVTabWnd::HideActive() {
    const qv::WindowWatch watch(m_alive, m_TabCtrl.m_hWnd);
    const unsigned nSwitch = m_nSwitches;
    for (INT_PTR n = m_Pages.GetSize(); n > 0; --n) {
        QVTabWndPage* const pPage = GetPage(m_nActivePage);
        if (pPage == nullptr) {
            break;
        }
        const qv::PageLife::InUse inUse(pPage->m_life);
        pPage->HidePage();
        if (!watch || nSwitch != m_nSwitches) {
            return;
        }
    }
    m_nActivePage = -1;
}

// --- Size

void QVTabWnd::OnSize(UINT nType, int cx, int cy) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    QVCustCtrl::OnSize(nType, cx, cy);
    if (nType != SIZE_RESTORED || !watch || m_TabCtrl.m_hWnd == nullptr) {
        return;
    }
    CRect rc;
    GetClientRect(&rc);
    // It is drawn anew all the same, but not the page on it.
    m_TabCtrl.SetWindowPos(nullptr, rc.left, rc.top, rc.Width(), rc.Height(),
                           SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    if (watch) {
        ResizePages();
    }
    if (watch) {
        m_TabCtrl.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_NOCHILDREN);
    }
}

// The page that shows comes first: the platform erases what the tab control has to spare as soon as
// any page gets another size.
void QVTabWnd::ResizePages() {
    const qv::WindowWatch watch(m_alive, m_TabCtrl.m_hWnd);
    if (!watch) {
        return;
    }
    if (QVTabWndPage* pActive = GetPage(m_nActivePage)) {
        Resize(*pActive);
    }
    for (int nPage = 0; watch && GetPage(nPage) != nullptr; ++nPage) {
        if (nPage != m_nActivePage) {
            Resize(*GetPage(nPage));
        }
    }
}

void QVTabWnd::Resize(QVTabWndPage& page) {
    CRect rc;
    m_TabCtrl.GetClientRect(&rc);
    m_TabCtrl.AdjustRect(FALSE, &rc);
    const qv::PageLife::InUse inUse(page.m_life);
    page.Resize(rc);
}

// --- Printing

void QVTabWnd::BeginPrinting(CDC* pDC, QVPrintEngine& engine, int bActiveOnly) {
    if (bActiveOnly) {
        if (m_TabCtrl.m_hWnd != nullptr) {
            PrintPage(pDC, engine, m_TabCtrl.GetCurSel());
        }
        return;
    }
    const qv::AliveWatch watch(m_alive);
    for (int nPage = 0; watch && nPage < m_Pages.GetSize(); ++nPage) {
        PrintPage(pDC, engine, nPage);
    }
}

void QVTabWnd::PrintPage(CDC* pDC, QVPrintEngine& engine, int nPage) {
    if (QVTabWndPage* pPage = GetPage(nPage)) {
        const qv::PageLife::InUse inUse(pPage->m_life);
        engine.AddSectionHeader(m_astrTitles[nPage]);
        pPage->BeginPrinting(pDC, engine);
    }
}

// --- Messages

BOOL QVTabWnd::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void QVTabWnd::OnSelchangeTab(NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    if (m_TabCtrl.m_hWnd != nullptr) {
        SwitchTabs(m_TabCtrl.GetCurSel());
    }
}

void QVTabWnd::OnSetFocus(CWnd* pOldWnd) {
    QVTabWndPage* const pPage = GetPage(m_nActivePage);
    if (pPage != nullptr && pPage->m_hWnd != nullptr) {
        pPage->SetFocus();
    } else {
        QVCustCtrl::OnSetFocus(pOldWnd);
    }
}
