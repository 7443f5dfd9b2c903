#include "containers/tab_view.h"

#include "activex/control_answers.h"
#include "containers/page_steps.h"
#include "frame/core/twips.h"
#include "frame/create_window.h"
#include "frame/dc_guards.h"
#include "frame/text_out.h"

#include <afxpriv.h>

#include <algorithm>
#include <olectl.h>

IMPLEMENT_DYNCREATE(QVTabView, CView)

BEGIN_MESSAGE_MAP(QVTabView, CView)
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_SETFOCUS()
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

// Behind the number 0, by which OnCmdMsg names the control whatever its own is.
BEGIN_EVENTSINK_MAP(QVTabView, CView)
    ON_EVENT(QVTabView, 0, 7, &QVTabView::OnTabPageActivate, VTS_PI2 VTS_PI2)
    ON_EVENT(QVTabView, 0, 8, &QVTabView::OnTabPageShown, VTS_PI2 VTS_PI2)
    ON_EVENT(QVTabView, 0, DISPID_KEYDOWN, &QVTabView::OnKeyDownControl, VTS_PI2 VTS_I2)
END_EVENTSINK_MAP()

namespace {

constexpr int kTabMargin = 4;  // pixels beside the widest title

struct SystemColor {
    void (CTab::*pfnSet)(long);
    long (CTab::*pfnGet)();
    int nSystemColor;
};
constexpr SystemColor kSystemColors[] = {
    {&CTab::SetBackColor, &CTab::GetBackColor, COLOR_BTNFACE},
    {&CTab::SetThreeDShadowColor, &CTab::GetThreeDShadowColor, COLOR_BTNSHADOW},
    {&CTab::SetThreeDInnerDark, &CTab::GetThreeDInnerDark, COLOR_BTNSHADOW},
    {&CTab::SetThreeDInnerLight, &CTab::GetThreeDInnerLight, COLOR_3DLIGHT},
    {&CTab::SetThreeDOuterDark, &CTab::GetThreeDOuterDark, COLOR_3DDKSHADOW},
    {&CTab::SetThreeDOuterLight, &CTab::GetThreeDOuterLight, COLOR_BTNHIGHLIGHT},
    {&CTab::SetThreeDHighlightColor, &CTab::GetThreeDHighlightColor, COLOR_BTNHIGHLIGHT},
    {&CTab::SetGrayAreaColor, &CTab::GetGrayAreaColor, COLOR_BTNFACE},
    {&CTab::SetForeColor, &CTab::GetForeColor, COLOR_WINDOWTEXT}};

// As controls know fonts. dc has the font selected. Without memory it has no object.
COleFont OleFontOf(const CFont& font, CDC& dc) {
    constexpr int kUnitsPerInch = 72 * 10000;  // sizes count in ten-thousandths of a point
    LOGFONTW log = {};
    ::GetObjectW(font.m_hObject, sizeof log, &log);
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    const LONG nHeight =
        log.lfHeight < 0 ? -log.lfHeight : metrics.tmHeight - metrics.tmInternalLeading;
    FONTDESC desc = {};
    desc.cbSizeofstruct = sizeof desc;
    desc.lpstrName = log.lfFaceName;
    desc.cySize.int64 = ::MulDiv(nHeight, kUnitsPerInch, dc.GetDeviceCaps(LOGPIXELSY));
    desc.sWeight = static_cast<SHORT>(log.lfWeight);
    desc.sCharset = log.lfCharSet;
    desc.fItalic = log.lfItalic;
    desc.fUnderline = log.lfUnderline;
    desc.fStrikethrough = log.lfStrikeOut;
    COleFont oleFont;
    ::OleCreateFontIndirect(&desc, IID_IFontDisp, reinterpret_cast<void**>(&oleFont.m_lpDispatch));
    return oleFont;
}

}  // namespace

QVTabView::QVTabView(UINT nTabCtrlID) : m_nTabCtrlID(nTabCtrlID) {
    static_assert(std::size(kSystemColors) == std::tuple_size_v<Colors>);
    m_system.fill(CLR_INVALID);
}

QVTabView::~QVTabView() {
    for (INT_PTR n = 0; n < m_Pages.GetSize(); ++n) {
        m_Pages[n]->m_life.Discard();
    }
}

// --- Creation

void QVTabView::OnInitialUpdate() {
    const qv::PageLife::InUse inUse(m_life);
    const qv::WindowWatch watch(m_life.Token(), m_hWnd);
    CView::OnInitialUpdate();
    if (!watch || m_TabCtrl.m_hWnd != nullptr) {
        return;
    }
    CRect rc;
    GetClientRect(&rc);
    BOOL bMade = FALSE;
    qv::ControlAnswers([&] {
        bMade = qv::CreateWhole(m_TabCtrl, [&] {
            return m_TabCtrl.Create(nullptr, "", WS_CHILD | WS_VISIBLE, rc, this, m_nTabCtrlID);
        });
    });
    if (!bMade || !watch) {
        return;
    }
    // The control leaves the pixels of its pages alone, and lets the keyboard through to them.
    m_TabCtrl.ModifyStyle(0, WS_CLIPCHILDREN);
    m_TabCtrl.ModifyStyleEx(0, WS_EX_CONTROLPARENT);
    qv::ControlAnswers([&] { InitializeTabCtrl(); });
    if (watch) {
        qv::ControlAnswers([&] { AddTabPages(); });
    }
    if (watch && m_Pages.GetSize() > 0) {
        MakeTabHeight();
        if (watch) {
            MakeTabs();
        }
    }
    // The frame comes up at the size that the view has already, of which no message tells.
    if (watch) {
        GetClientRect(&rc);
        LayOut(rc.Width(), rc.Height());
    }
}

void QVTabView::InitializeTabCtrl() {
    constexpr long kLeft = 3;        // Orientation
    constexpr long kHorizontal = 1;  // TextOrientation
    const qv::WindowWatch watch(m_life.Token(), m_TabCtrl.m_hWnd);
    // Each by itself: a control that lacks one of them still gets the others.
    const auto set = [&](auto action) {
        if (watch) {
            qv::ControlAnswers(action);
        }
    };
    set([&] { m_TabCtrl.SetTabCount(0); });
    set([&] { m_TabCtrl.SetTabsPerRow(0); });
    set([&] { m_TabCtrl.SetActiveTabBold(FALSE); });
    set([&] { m_TabCtrl.SetWordWrap(TRUE); });
    set([&] { m_TabCtrl.SetOrientation(kLeft); });
    set([&] { m_TabCtrl.SetTextOrientation(kHorizontal); });
    for (const SystemColor& color : kSystemColors) {
        set([&] {
            (m_TabCtrl.*color.pfnSet)(static_cast<long>(::GetSysColor(color.nSystemColor)));
        });
    }
    if (watch) {
        m_system = SystemColors();
    }
}

QVTabView::Colors QVTabView::SystemColors() {
    Colors colors;
    std::transform(std::begin(kSystemColors), std::end(kSystemColors), colors.begin(),
                   [](const SystemColor& color) { return ::GetSysColor(color.nSystemColor); });
    return colors;
}

// A colour that a derived view has chosen itself stays.
void QVTabView::OnSysColorChange() {
    CView::OnSysColorChange();
    const Colors now = SystemColors();
    const qv::WindowWatch watch(m_life.Token(), m_TabCtrl.m_hWnd);
    for (size_t i = 0; watch && m_TabCtrl.m_hWnd != nullptr && i < now.size(); ++i) {
        qv::ControlAnswers([&] {
            if (static_cast<COLORREF>((m_TabCtrl.*kSystemColors[i].pfnGet)()) == m_system[i] &&
                watch) {
                (m_TabCtrl.*kSystemColors[i].pfnSet)(static_cast<long>(now[i]));
            }
        });
    }
    if (watch) {
        m_system = now;
        Invalidate();
    }
}

void QVTabView::AddTabPages() {}

void QVTabView::MakeTabHeight() {
    const auto hasWindow = [&](int n) {
        return GetPage(n) != nullptr && GetPage(n)->m_hWnd != nullptr;
    };
    const int nPage = hasWindow(0) ? 0 : 1;
    CFont* const pFont = hasWindow(nPage) ? GetPage(nPage)->GetFont() : nullptr;
    qv::ControlAnswers([&] {
        CWindowDC dc(&m_TabCtrl);
        const qv::SelectGuard font(dc, pFont);
        int nLargest = 0;
        for (INT_PTR n = 0; n < m_astrTitles.GetSize(); ++n) {
            nLargest = std::max(nLargest, FindStringTwips(dc, m_astrTitles[n]));
        }
        // The control is to show the titles in the font that they are measured in.
        if (pFont != nullptr) {
            qv::ControlAnswers([&] { m_TabCtrl.SetFont(OleFontOf(*pFont, dc).m_lpDispatch); });
        }
        m_TabCtrl.SetTabHeight(static_cast<long>(
            qv::PixelsToTwips(nLargest + kTabMargin, dc.GetDeviceCaps(LOGPIXELSX))));
    });
}

// Measures any number of lines, also of titles with more than the two that they should have.
int QVTabView::FindStringTwips(CDC& dc, const char* pszText) {
    std::string_view text(pszText != nullptr ? pszText : "");
    int nWidest = 0;
    while (!text.empty()) {
        const size_t nEnd = std::min(text.find('\n'), text.size());
        nWidest = std::max(nWidest, static_cast<int>(qv::TextExtent(dc, text.substr(0, nEnd)).cx));
        text.remove_prefix(std::min(nEnd + 1, text.size()));
    }
    return nWidest;
}

void QVTabView::MakeTabs() {
    const qv::WindowWatch watch(m_life.Token(), m_TabCtrl.m_hWnd);
    const auto nTabs = static_cast<short>(std::min<INT_PTR>(m_astrTitles.GetSize(), SHRT_MAX));
    qv::ControlAnswers([&] { m_TabCtrl.SetTabCount(nTabs); });
    for (short nTab = 0; watch && nTab < nTabs; ++nTab) {
        qv::ControlAnswers([&] {
            m_TabCtrl.SetTab(nTab);
            if (watch) {
                m_TabCtrl.SetTabCaption(m_astrTitles[nTab]);
            }
        });
    }
}

// --- Pages

QVTabViewPage* QVTabView::AddPage(UINT nTitleID, CRuntimeClass* pClass) {
    CString strTitle;
    return qv::MemorySuffices([&] { strTitle.LoadString(nTitleID); })
               ? AddPage(static_cast<LPCSTR>(strTitle), pClass)
               : nullptr;
}

QVTabViewPage* QVTabView::AddPage(const char* pszTitle, CRuntimeClass* pClass) {
    const qv::WindowWatch watch(m_life.Token(), m_TabCtrl.m_hWnd);
    auto* const pPage = watch ? qv::NewPage<QVTabViewPage>(pClass) : nullptr;
    if (pPage == nullptr) {
        return nullptr;
    }
    const qv::PageLife::InUse inUse(pPage->m_life);
    if (qv::MakePage(*pPage, pPage->m_life, m_TabCtrl) && watch &&
        qv::KeepPage(m_Pages, m_astrTitles, *pPage, pszTitle)) {
        return pPage;
    }
    if (inUse) {
        qv::DiscardPage(*pPage, pPage->m_life);
    }
    return nullptr;
}

QVTabViewPage* QVTabView::GetPage(int nPage) const {
    return nPage >= 0 && nPage < m_Pages.GetSize() ? m_Pages[nPage] : nullptr;
}

int QVTabView::GetActivePage() {
    int nPage = -1;
    if (m_TabCtrl.m_hWnd != nullptr) {
        qv::ControlAnswers([&] { nPage = m_TabCtrl.GetActiveTab(); });
    }
    return nPage;
}

void QVTabView::SetActivePage(short nPage) {
    qv::ControlAnswers([&] { m_TabCtrl.SetActiveTab(nPage); });
}

// Does something with a page, if there is one, which lives for as long as that takes.
template <class Step>
void QVTabView::InPage(int nPage, Step step) {
    if (QVTabViewPage* const pPage = GetPage(nPage)) {
        const qv::PageLife::InUse inUse(pPage->m_life);
        step(*pPage);
    }
}

void QVTabView::UpdateAllPages(int nHint, void* pHint) {
    const qv::WindowWatch watch(m_life.Token(), m_hWnd);
    const int nActive = GetActivePage();
    for (int n = 0; watch && n < m_Pages.GetSize(); ++n) {
        InPage(n, [&](QVTabViewPage& page) { page.UpdatePage(nHint, pHint, n == nActive); });
    }
}

void QVTabView::GetMessageString(UINT nID, CString& strMessage) {
    InPage(GetActivePage(), [&](QVTabViewPage& page) { page.GetMessageString(nID, strMessage); });
}

int QVTabView::OnHandleCommand(UINT nID) {
    int bHandled = 0;
    InPage(GetActivePage(), [&](QVTabViewPage& page) { bHandled = page.HandleCommand(nID, TRUE); });
    return bHandled;
}

void QVTabView::OnUpdateCommand(CCmdUI* pCmdUI) {
    InPage(GetActivePage(), [&](QVTabViewPage& page) {
        const qv::AliveWatch alive(page.m_life.Token());
        pCmdUI->Enable(page.HandleCommand(pCmdUI->m_nID, FALSE));
        if (alive && !page.m_life.Discarded()) {
            page.UpdateCommand(pCmdUI);
        }
    });
}

// --- What the control tells

BOOL QVTabView::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const bool bOfControl = nCode == static_cast<int>(CN_EVENT) && nID == m_nTabCtrlID;
    return CView::OnCmdMsg(bOfControl ? 0 : nID, nCode, pExtra, pHandlerInfo);
}

// A control that told of the active tab once more would have its page shown and then hidden: it is
// relied on not to.
void QVTabView::OnTabPageActivate(short* pnTab, short* pnCancel) {
    const qv::WindowWatch watch(m_life.Token(), m_hWnd);
    const int nCur = GetActivePage();
    if (pnTab != nullptr && pnCancel != nullptr && *pnCancel == 0 && GetPage(*pnTab) != nullptr) {
        InPage(*pnTab, [](QVTabViewPage& page) { page.ShowPage(); });
        if (watch) {
            InPage(nCur, [](QVTabViewPage& page) { page.HidePage(); });
        }
        return;
    }
    for (INT_PTR n = 0; watch && n < m_Pages.GetSize(); ++n) {
        InPage(nCur, [](QVTabViewPage& page) { page.ShowPage(); });
    }
}

void QVTabView::OnTabPageShown(short* pnTab, short* pnCancel) {
    if (pnTab != nullptr && pnCancel != nullptr && *pnCancel == 0) {
        InPage(*pnTab, [](QVTabViewPage& page) { page.ShowPage(); });
    }
}

void QVTabView::OnKeyDownControl(short* pnKeyCode, short) {
    if (pnKeyCode != nullptr && *pnKeyCode == VK_TAB) {
        InPage(GetActivePage(), [](QVTabViewPage& page) { page.SetPageFocus(); });
    }
}

// --- Layout and focus

void QVTabView::OnSize(UINT nType, int cx, int cy) {
    CView::OnSize(nType, cx, cy);
    if ((nType == SIZE_RESTORED || nType == SIZE_MAXIMIZED) && (GetStyle() & WS_VISIBLE) != 0) {
        LayOut(cx, cy);
    }
}

void QVTabView::LayOut(int cx, int cy) {
    const qv::WindowWatch watch(m_life.Token(), m_TabCtrl.m_hWnd);
    if (!watch) {
        return;
    }
    m_TabCtrl.MoveWindow(0, 0, cx, cy, FALSE);
    CRect rc;
    if (!watch || !qv::ControlAnswers([&] { rc = PageArea(); })) {
        return;
    }
    for (int n = 0; watch && n < m_Pages.GetSize(); ++n) {
        InPage(n, [&](QVTabViewPage& page) { page.Resize(rc); });
    }
    if (watch) {
        m_TabCtrl.Invalidate(FALSE);  // it was moved without a repaint
    }
}

// In pixels of the tab control.
CRect QVTabView::PageArea() {
    const CClientDC dc(this);
    const int nPerInchX = dc.GetDeviceCaps(LOGPIXELSX);
    const int nPerInchY = dc.GetDeviceCaps(LOGPIXELSY);
    const auto pixels = [](long nTwips, int nPerInch) {
        return static_cast<int>(qv::TwipsToPixels(nTwips, nPerInch));
    };
    const CPoint ptTopLeft(pixels(m_TabCtrl.GetClientLeft(), nPerInchX),
                           pixels(m_TabCtrl.GetClientTop(), nPerInchY));
    const CSize size(pixels(m_TabCtrl.GetClientWidth(), nPerInchX),
                     pixels(m_TabCtrl.GetClientHeight(), nPerInchY));
    return CRect(ptTopLeft, size);
}

void QVTabView::OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) {
    // Asked before the framework's part, in which the preview may go.
    const bool bAfterPreview = bActivate && pDeactiveView != nullptr &&
                               pDeactiveView->IsKindOf(RUNTIME_CLASS(CPreviewView));
    const qv::WindowWatch watch(m_life.Token(), m_hWnd);
    CView::OnActivateView(bActivate, pActivateView, pDeactiveView);
    if (watch && bAfterPreview) {
        CRect rc;
        GetClientRect(&rc);
        SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(rc.Width(), rc.Height()));
    }
}

void QVTabView::OnDraw(CDC*) {}

// Without the control nothing covers the view.
BOOL QVTabView::OnEraseBkgnd(CDC* pDC) {
    const bool bCovered = m_TabCtrl.m_hWnd != nullptr && (m_TabCtrl.GetStyle() & WS_VISIBLE) != 0;
    return bCovered || CView::OnEraseBkgnd(pDC);
}

void QVTabView::OnSetFocus(CWnd*) {
    InPage(GetActivePage(), [](QVTabViewPage& page) { page.SetPageFocus(); });
}

void QVTabView::PostNcDestroy() {
    m_life.Discard();
}

LRESULT QVTabView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const qv::PageLife::InUse inUse(m_life);
    return qv::HandleQuietly(m_hWnd, message,
                             [&] { return CView::WindowProc(message, wParam, lParam); });
}
