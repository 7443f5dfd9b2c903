#include "containers/header_wnd.h"

#include "containers/core/header_bar.h"
#include "frame/ancestor_font.h"
#include "frame/child_parts.h"
#include "frame/create_window.h"
#include "frame/dc_guards.h"
#include "frame/notify.h"
#include "frame/rectangles.h"
#include "frame/text_out.h"

#include <oleacc.h>

IMPLEMENT_DYNCREATE(QVHeaderWnd, CWnd)

namespace {

qv::HeaderBar LayoutOf(const CWnd& wnd, int nHeaderHeight) {
    CRect rcClient;
    wnd.GetClientRect(&rcClient);
    return {qv::ToRect(rcClient), nHeaderHeight};
}

// The caption is what a screen reader calls the inner control: its window text, which shows
// nowhere.
void NameInner(HWND hInner, const CString& strCaption) {
    if (hInner != nullptr) {
        qv::MemorySuffices([&] {
            CString strName(strCaption);
            strName.Replace("&", "&&");
            ::SetWindowText(hInner, strName);
        });
    }
}

}  // namespace

BEGIN_MESSAGE_MAP(QVHeaderWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_SETFOCUS()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(WM_GETOBJECT, &QVHeaderWnd::OnGetObject)
END_MESSAGE_MAP()

// --- Creation

QVHeaderWnd::QVHeaderWnd() : QVAccessible(static_cast<CWnd&>(*this)) {}

QVHeaderWnd::~QVHeaderWnd() {
    DestroyWindow();
}

BOOL QVHeaderWnd::Create(DWORD dwStyle, CRect& rect, CWnd* pParent, UINT nID) {
    DWORD dwExStyle = 0;
    if ((dwStyle & WS_BORDER) != 0) {
        dwStyle &= ~static_cast<DWORD>(WS_BORDER);
        dwExStyle = WS_EX_CLIENTEDGE;
    }
    return qv::CreateWhole(
        *this, [&] { return CWnd::CreateEx(dwExStyle, nullptr, "", dwStyle, rect, pParent, nID); });
}

int QVHeaderWnd::Initialize(UINT nID, CWnd* pParent) {
    return InitializeWith(nID, pParent, nullptr);
}

int QVHeaderWnd::InitializeWith(UINT nID, CWnd* pParent, MakeInner pfnMake) {
    const bool bAttaches = m_hWnd == nullptr;
    bool bDone = false;
    qv::MemorySuffices(
        [&] { bDone = Attach(nID, pParent) && (pfnMake == nullptr || (this->*pfnMake)()); });
    if (!bDone && bAttaches && m_hWnd != nullptr) {
        UnsubclassWindow();
    }
    return bDone;
}

bool QVHeaderWnd::Attach(UINT nID, CWnd* pParent) {
    if (m_hWnd == nullptr && (pParent == nullptr || !SubclassDlgItem(nID, pParent))) {
        return false;
    }
    const CFont* pFont = qv::NearestFont(pParent);
    m_hHeaderFont = pFont != nullptr ? static_cast<HFONT>(*pFont) : nullptr;
    CalcHeaderHeight();
    return true;
}

// The way to a handler takes memory as well, for the objects that a message brings along.
LRESULT QVHeaderWnd::WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) {
    return qv::HandleQuietly(m_hWnd, nMessage,
                             [&] { return CWnd::WindowProc(nMessage, wParam, lParam); });
}

int QVHeaderWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return qv::InitializeOnCreate(
        *lpCreateStruct, [&] { return CWnd::OnCreate(lpCreateStruct); },
        [&](UINT nID, CWnd* pParent) { return Initialize(nID, pParent); });
}

// --- Caption

void QVHeaderWnd::SetHeaderText(LPCSTR pszText) {
    if (!qv::MemorySuffices([&] {
            const CString strText(pszText);
            m_strHeaderText = strText;
        })) {
        return;
    }
    if (m_hWnd != nullptr) {
        NameInner(::GetWindow(m_hWnd, GW_CHILD), m_strHeaderText);
        CRect rect;
        CalcHeaderRect(rect);
        InvalidateRect(&rect, TRUE);
        TellAccessible(EVENT_OBJECT_NAMECHANGE, CHILDID_SELF);
    }
}

void QVHeaderWnd::SetHeaderText(UINT nStringID) {
    qv::MemorySuffices([&] {
        CString strText;
        if (strText.LoadString(nStringID)) {
            SetHeaderText(static_cast<LPCSTR>(strText));
        }
    });
}

// --- Geometry

void QVHeaderWnd::CalcHeaderHeight() {
    CClientDC dc(this);
    const qv::SelectGuard<CFont> font(dc, m_hHeaderFont);
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    m_nHeaderHeight = qv::HeaderBar::HeightFor(metrics.tmHeight);
}

void QVHeaderWnd::CalcHeaderRect(CRect& rect) {
    rect = qv::ToCRect(LayoutOf(*this, m_nHeaderHeight).Bar());
}

void QVHeaderWnd::CalcHeaderTextRect(CRect& rect) {
    CClientDC dc(this);
    const qv::SelectGuard<CFont> font(dc, m_hHeaderFont);
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    const CSize size = qv::TextExtent(dc, qv::View(m_strHeaderText));
    rect = qv::ToCRect(LayoutOf(*this, m_nHeaderHeight).Caption(metrics.tmHeight, size.cx));
}

void QVHeaderWnd::CalcBackgroundRect(CRect& rect) {
    rect = qv::ToCRect(LayoutOf(*this, m_nHeaderHeight).Body());
}

// --- Painting

// The body is left to the inner control.
void QVHeaderWnd::OnPaint() {
    const bool bPainted = qv::MemorySuffices([this] {
        CPaintDC dc(this);
        CRect rect;
        CalcHeaderRect(rect);
        if (dc.RectVisible(&rect)) {
            DrawHeader(dc, rect);
        }
    });
    if (!bPainted) {
        ::ValidateRect(m_hWnd, nullptr);  // else it would be asked for without end
    }
}

BOOL QVHeaderWnd::OnEraseBkgnd(CDC* pDC) {
    bool bErased = false;
    qv::MemorySuffices([&] { bErased = Erase(*pDC); });
    return bErased;
}

bool QVHeaderWnd::Erase(CDC& dc) {
    CBrush brBody;
    CBrush brBar;
    if (!brBody.CreateSolidBrush(::GetSysColor(COLOR_WINDOW)) ||
        !brBar.CreateSolidBrush(::GetSysColor(COLOR_BTNFACE))) {
        return false;
    }
    CRect rcBar;
    CRect rcBody;
    CalcHeaderRect(rcBar);
    CalcBackgroundRect(rcBody);
    rcBar.InflateRect(-1, -1);  // the raised edge is drawn with the bar
    if (m_bFillBody) {
        dc.FillRect(&rcBody, &brBody);
    }
    dc.FillRect(&rcBar, &brBar);
    return true;
}

void QVHeaderWnd::DrawHeader(CDC& dc, CRect& rect) {
    CPen penFrame;
    if (!penFrame.CreatePen(PS_SOLID, qv::kFrameLine, ::GetSysColor(COLOR_WINDOWFRAME))) {
        return;
    }
    const qv::SelectGuard<CPen> pen(dc, &penFrame);
    dc.Draw3dRect(&rect, ::GetSysColor(COLOR_BTNHIGHLIGHT), ::GetSysColor(COLOR_BTNSHADOW));
    dc.MoveTo(rect.left, rect.bottom);
    dc.LineTo(rect.right, rect.bottom);
    rect.InflateRect(-qv::kCaptionInset, 0);
    const qv::ColorGuard colors(dc);
    dc.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    dc.SetBkColor(::GetSysColor(COLOR_BTNFACE));
    const qv::SelectGuard<CFont> font(dc, m_hHeaderFont);
    qv::DrawTextIn(dc, qv::View(m_strHeaderText), rect,
                   DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

// --- The inner control

void QVHeaderWnd::SizeInnerWnd(UINT nType, CWnd& wndInner) {
    if (nType != SIZE_RESTORED || wndInner.m_hWnd == nullptr) {
        return;
    }
    CRect rc;
    CalcBackgroundRect(rc);
    wndInner.SetWindowPos(nullptr, rc.left, rc.top, rc.Width(), rc.Height(), SWP_NOZORDER);
}

void QVHeaderWnd::ShareTabStop(CWnd& wndInner) {
    NameInner(wndInner.m_hWnd, m_strHeaderText);
    if ((wndInner.GetStyle() & WS_TABSTOP) != 0) {
        ModifyStyleEx(0, WS_EX_CONTROLPARENT);
    }
}

void QVHeaderWnd::OnSetFocus(CWnd*) {
    Default();
    if ((GetStyle() & WS_TABSTOP) != 0) {
        const HWND hInner = ::GetWindow(m_hWnd, GW_CHILD);
        if (hInner != nullptr && ::IsWindowEnabled(hInner)) {
            ::SetFocus(hInner);
        }
    }
}

bool QVHeaderWnd::IsInnerId(UINT nInnerID, WPARAM wID) {
    return nInnerID != static_cast<UINT>(-1) && wID == nInnerID;
}

LRESULT QVHeaderWnd::SendToParent(UINT nMessage, WPARAM wParam, LPARAM lParam) {
    return qv::SendToParent(*this, m_alive, nMessage, wParam, lParam).lResult;
}

// --- What a screen reader is told

LRESULT QVHeaderWnd::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return AsksAccessible(lParam) ? AnswerAccessible(wParam, lParam) : Default();
}

CString QVHeaderWnd::GetAccessibleName(long nPart) {
    return nPart == CHILDID_SELF ? m_strHeaderText : CString();
}

CString QVHeaderWnd::GetAccessibleShortcut(long) {
    return CString();
}

long QVHeaderWnd::GetAccessibleRole(long nPart) {
    return nPart == CHILDID_SELF ? ROLE_SYSTEM_GROUPING : ROLE_SYSTEM_WINDOW;
}

long QVHeaderWnd::GetAccessibleState(long) {
    return AccessibleWindowState();
}

long QVHeaderWnd::GetAccessibleCount() {
    return qv::CountChildren(m_hWnd);
}

HWND QVHeaderWnd::GetAccessibleWindow(long nPart) {
    return qv::ChildOfPart(m_hWnd, nPart);
}

long QVHeaderWnd::AccessibleHitTest(CPoint pt) {
    return qv::ChildPartAt(m_hWnd, pt);
}
