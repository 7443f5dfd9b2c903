#include "containers/split_wnd.h"

#include "containers/core/split_layout.h"
#include "frame/child_parts.h"
#include "frame/create_window.h"
#include "frame/dc_guards.h"
#include "frame/rectangles.h"
#include "frame/redraw_pause.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <oleacc.h>
#include <utility>

IMPLEMENT_DYNCREATE(QVSplitWnd, CWnd)

namespace {

constexpr UINT kInPlace = SWP_NOMOVE | SWP_NOSIZE;
constexpr int kSlots[] = {0, 1};

HCURSOR LoadFrameworkCursor(UINT nID) {
    const LPCTSTR pszName = MAKEINTRESOURCE(nID);
    return ::LoadCursor(AfxFindResourceHandle(pszName, RT_GROUP_CURSOR), pszName);
}

qv::Point ToPoint(CPoint point) {
    return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

std::unique_ptr<CWnd> MakeWnd(CRuntimeClass& runtimeClass) {
    CObject* pObject = nullptr;
    qv::MemorySuffices([&] { pObject = runtimeClass.CreateObject(); });
    if (pObject != nullptr && !pObject->IsKindOf(RUNTIME_CLASS(CWnd))) {
        delete pObject;
        return nullptr;
    }
    return std::unique_ptr<CWnd>(static_cast<CWnd*>(pObject));
}

}  // namespace

BEGIN_MESSAGE_MAP(QVSplitWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_PAINT()
    ON_WM_NCHITTEST()
    ON_WM_SETCURSOR()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_CANCELMODE()
    ON_WM_CAPTURECHANGED()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(WM_GETOBJECT, &QVSplitWnd::OnGetObject)
END_MESSAGE_MAP()

// --- Life

QVSplitWnd::QVSplitWnd() : QVAccessible(static_cast<CWnd&>(*this)) {}

QVSplitWnd::~QVSplitWnd() {
    DestroyWindow();
    if (!m_bAutoDeletePanes) {
        return;
    }
    for (const int nPane : kSlots) {
        CWnd* pPane = LivePane(nPane);
        const bool bOurs = m_known[nPane].bOurs;
        for (CWnd** ppSame : {&m_pPane0, &m_pPane1}) {
            *ppSame = *ppSame == pPane ? nullptr : *ppSame;
        }
        if (bOurs) {
            delete pPane;
        }
    }
}

int QVSplitWnd::Create(CRect& rect, CWnd* pParent, unsigned nID, int bVertical) {
    m_bVertical = bVertical;
    return qv::CreateWhole(*this, [&] {
        return CWnd::Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, rect, pParent, nID);
    });
}

int QVSplitWnd::Initialize(unsigned nID, CWnd* pParent, int bVertical) {
    const bool bAttaches = m_hWnd == nullptr;
    if (bAttaches && !qv::AttachToItem(*this, nID, pParent)) {
        return 0;
    }
    EndDrag();
    m_bVertical = bVertical;
    m_nSplitPos = qv::SplitPosition(m_nSplitRatio, Layout().Length());
    m_hSplitCursor = LoadFrameworkCursor(bVertical ? AFX_IDC_HSPLITBAR : AFX_IDC_VSPLITBAR);
    m_hArrowCursor = ::LoadCursor(nullptr, IDC_ARROW);
    if (m_hSplitCursor == nullptr && bAttaches) {
        UnsubclassWindow();
    }
    return m_hSplitCursor != nullptr;
}

int QVSplitWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return qv::InitializeOnCreate(
        *lpCreateStruct, [&] { return CWnd::OnCreate(lpCreateStruct); },
        [&](UINT nID, CWnd* pParent) { return Initialize(nID, pParent, m_bVertical); });
}

void QVSplitWnd::OnDestroy() {
    EndDrag();
    const qv::AliveWatch watch(m_alive);
    for (const int nPane : kSlots) {
        CWnd* pPane = LivePane(nPane);
        if (pPane != nullptr && pPane->m_hWnd != nullptr) {
            pPane->DestroyWindow();
            if (!watch) {
                return;
            }
        }
        // What is to be deleted goes on without its window. The others may be gone with theirs.
        if (m_bAutoDeletePanes && m_known[nPane].bOurs) {
            m_known[nPane].hWnd = nullptr;
        }
    }
    CWnd::OnDestroy();
}

// The way to a handler takes memory as well, for the objects that a message brings along.
LRESULT QVSplitWnd::WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) {
    return qv::HandleQuietly(m_hWnd, nMessage,
                             [&] { return CWnd::WindowProc(nMessage, wParam, lParam); });
}

// --- Panes

// The pane of a slot, which somebody else may have deleted: its window is looked up by its handle
// before the object is touched.
CWnd* QVSplitWnd::LivePane(int nPane) {
    CWnd*& pPane = Slot(nPane);
    Known& known = m_known[nPane];
    if (pPane != known.pWnd) {
        known = {pPane};  // a derived class has set it
    }
    if (pPane != nullptr && known.hWnd == nullptr) {
        known.hWnd = pPane->m_hWnd;
    } else if (pPane != nullptr && FromHandlePermanent(known.hWnd) != pPane) {
        const HWND hWnd = known.hWnd;
        pPane = nullptr;
        qv::MemorySuffices([&] { pPane = ::IsWindow(hWnd) ? FromHandle(hWnd) : nullptr; });
        known = {pPane, hWnd, false};
    }
    return pPane;
}

bool QVSplitWnd::IsPane(HWND hWnd) {
    return std::any_of(std::begin(kSlots), std::end(kSlots), [&](int nPane) {
        return LivePane(nPane) != nullptr && m_known[nPane].hWnd == hWnd;
    });
}

int QVSplitWnd::FreeSlot() {
    return LivePane(0) == nullptr ? 0 : LivePane(1) == nullptr ? 1 : -1;
}

// Whether wnd is this window, or a pane in it.
bool QVSplitWnd::Holds(const QVSplitWnd& wnd) {
    return this == &wnd || std::any_of(std::begin(kSlots), std::end(kSlots), [&](int nPane) {
               auto* pPane = DYNAMIC_DOWNCAST(QVSplitWnd, LivePane(nPane));
               return pPane != nullptr && pPane->Holds(wnd);
           });
}

// One in itself would be made smaller without end.
bool QVSplitWnd::MayHold(CWnd* pWnd) {
    auto* pSplit = DYNAMIC_DOWNCAST(QVSplitWnd, pWnd);
    return pSplit == nullptr || !pSplit->Holds(*this);
}

void QVSplitWnd::Fill(int nPane, CWnd* pWnd, HWND hWnd) {
    Slot(nPane) = pWnd;
    m_known[nPane] = {pWnd, hWnd};
}

CWnd* QVSplitWnd::GetPane(int nPane) {
    return nPane == 0 || nPane == 1 ? LivePane(nPane) : nullptr;
}

int QVSplitWnd::AddPane(CRuntimeClass* pClass, unsigned nID) {
    if (m_hWnd == nullptr || pClass == nullptr || FreeSlot() < 0) {
        return 0;
    }
    EndDrag();
    const qv::WindowWatch watch(m_alive, m_hWnd);
    std::unique_ptr<CWnd> pWnd = MakeWnd(*pClass);
    if (pWnd == nullptr) {
        return 0;
    }
    CRect rect;
    CalcPaneRect(FreeSlot(), rect);
    rect.right = std::max(rect.left, rect.right);
    rect.bottom = std::max(rect.top, rect.bottom);
    const DWORD dwExStyle = pWnd->IsKindOf(RUNTIME_CLASS(QVSplitWnd)) ? 0 : WS_EX_CLIENTEDGE;
    const BOOL bCreated = qv::CreateWhole(*pWnd, [&] {
        return pWnd->CreateEx(dwExStyle, nullptr, "", WS_CHILD | WS_VISIBLE, rect, GetParent(),
                              nID);
    });
    const int nPane = bCreated && watch ? FreeSlot() : -1;
    if (nPane < 0) {
        return 0;
    }
    Fill(nPane, pWnd.get(), pWnd->m_hWnd);
    pWnd.release();
    KeepBelowPanes();
    if (watch) {
        MovePane(nPane, 0);
    }
    return 1;
}

int QVSplitWnd::AddPane(CWnd* pWnd) {
    if (pWnd == nullptr || FreeSlot() < 0 || !MayHold(pWnd)) {
        return 0;
    }
    EndDrag();
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const int nPane = FreeSlot();
    const bool bEdge = pWnd->m_hWnd != nullptr && !pWnd->IsKindOf(RUNTIME_CLASS(QVSplitWnd));
    Fill(nPane, pWnd, pWnd->m_hWnd);
    if (bEdge) {
        ModifyStyleEx(pWnd->m_hWnd, 0, WS_EX_CLIENTEDGE, 0);
    }
    if (watch) {
        KeepBelowPanes();
    }
    if (watch) {
        MovePane(nPane, bEdge ? SWP_FRAMECHANGED : 0);
    }
    return 1;
}

void QVSplitWnd::SwapPane(int nPane, CWnd* pWnd) {
    if (!MayHold(pWnd)) {
        return;
    }
    EndDrag();
    const int nSlot = nPane != 0;
    const HWND hNew = pWnd != nullptr ? pWnd->m_hWnd : nullptr;
    const HWND hOld = LivePane(nSlot) != nullptr ? m_known[nSlot].hWnd : nullptr;
    Fill(nSlot, pWnd, hNew);
    const qv::WindowWatch watch(m_alive, m_hWnd);
    {
        const qv::RedrawPause pause(*this);
        if (hNew != nullptr && watch) {
            MovePane(nSlot, SWP_NOREDRAW);
            ::ShowWindow(hNew, SW_SHOW);
            // One that showed elsewhere has moved without its picture.
            ::RedrawWindow(hNew, nullptr, nullptr,
                           RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
        }
        if (hOld != nullptr && (!watch.ObjectAlive() || !IsPane(hOld))) {
            ::ShowWindow(hOld, SW_HIDE);
        }
    }
    if (watch) {
        KeepBelowPanes();
    }
    if (watch) {
        InvalidateRect(nullptr, FALSE);
    }
}

// --- Places

qv::SplitLayout QVSplitWnd::Layout() {
    CRect rect;
    GetClientRect(&rect);
    return {{rect.Width(), rect.Height()}, m_bVertical != FALSE, SplitterWidth()};
}

qv::SplitBar QVSplitWnd::Bar() {
    return {m_nSplitPos, m_nSplitRatio, m_bTracking, m_nTrackStart};
}

int QVSplitWnd::SplitterWidth() {
    return ::GetSystemMetrics(m_bVertical ? SM_CXFRAME : SM_CYFRAME);
}

void QVSplitWnd::CalcPaneRect(int nPane, CRect& rect) {
    rect = qv::ToCRect(Layout().Pane(nPane, m_nSplitPos));
    if (!m_bClientPanes) {
        ::MapWindowPoints(m_hWnd, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&rect), 2);
    }
}

void QVSplitWnd::CalcSplitRect(CRect& rect, int nPos) {
    rect = qv::ToCRect(Layout().Bar(nPos == -1 ? m_nSplitPos : nPos));
}

void QVSplitWnd::MovePane(int nPane, UINT nFlags) {
    CWnd* pPane = LivePane(nPane);
    if (pPane == nullptr || pPane->m_hWnd == nullptr) {
        return;
    }
    CRect rect;
    CalcPaneRect(nPane, rect);
    pPane->SetWindowPos(nullptr, rect.left, rect.top, std::max(rect.Width(), 0),
                        std::max(rect.Height(), 0), SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
}

// Each pane goes where it belongs at that moment: the other one may have led to another size.
void QVSplitWnd::RepositionPanes() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if (!watch) {
        return;
    }
    KeepBelowPanes();
    if (watch) {
        const qv::RedrawPause pause(*this);
        for (const int nPane : kSlots) {
            MovePane(nPane, 0);
            if (!watch) {
                return;
            }
        }
    }
    if (watch) {
        InvalidateRect(nullptr, FALSE);
    }
}

// New windows come below the others, and a pane may clip itself out of what lies above it. The one
// that this window is a pane of goes below it again.
void QVSplitWnd::KeepBelowPanes() {
    if (m_hWnd == nullptr || m_bOrdering) {
        return;
    }
    HWND hLowest = nullptr;
    for (HWND h = ::GetWindow(m_hWnd, GW_HWNDNEXT); h != nullptr; h = ::GetWindow(h, GW_HWNDNEXT)) {
        hLowest = IsPane(h) ? h : hLowest;
    }
    if (hLowest == nullptr) {
        return;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const qv::SetWhileAlive ordering(m_alive, m_bOrdering, TRUE);
    ::SetWindowPos(m_hWnd, hLowest, 0, 0, 0, 0, kInPlace | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    if (!watch) {
        return;
    }
    for (HWND h = ::GetWindow(m_hWnd, GW_HWNDFIRST); h != nullptr;
         h = ::GetWindow(h, GW_HWNDNEXT)) {
        auto* pSplit = DYNAMIC_DOWNCAST(QVSplitWnd, FromHandlePermanent(h));
        if (pSplit != nullptr && pSplit->IsPane(m_hWnd)) {
            pSplit->KeepBelowPanes();
            return;
        }
    }
}

void QVSplitWnd::OnSize(UINT nType, int cx, int cy) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    CWnd::OnSize(nType, cx, cy);
    if (!watch || nType != SIZE_RESTORED) {
        return;
    }
    EndDrag();
    const int nLength = m_bVertical ? cx : cy;
    Bar().BeginResize(nLength);
    RepositionPanes();
    if (watch) {
        Bar().EndResize(nLength);
    }
}

// The tracker can be erased only where it was drawn.
void QVSplitWnd::OnWindowPosChanging(WINDOWPOS* lpwndpos) {
    if ((lpwndpos->flags & kInPlace) != kInPlace || (lpwndpos->flags & SWP_HIDEWINDOW) != 0) {
        EndDrag();
    }
    CWnd::OnWindowPosChanging(lpwndpos);
}

// A window that is moved as it is gets no WM_SIZE, which the panes otherwise follow.
void QVSplitWnd::OnWindowPosChanged(WINDOWPOS* lpwndpos) {
    const UINT nFlags = lpwndpos->flags;
    const qv::WindowWatch watch(m_alive, m_hWnd);
    CWnd::OnWindowPosChanged(lpwndpos);
    if (watch && (nFlags & SWP_NOZORDER) == 0) {
        KeepBelowPanes();
    }
    if (watch && (nFlags & kInPlace) == SWP_NOSIZE) {
        RepositionPanes();
    }
}

// --- The mouse

LRESULT QVSplitWnd::OnNcHitTest(CPoint point) {
    CRect rect;
    CalcSplitRect(rect, -1);
    ScreenToClient(&point);
    return m_bTracking || rect.PtInRect(point) ? HTCLIENT : HTTRANSPARENT;
}

BOOL QVSplitWnd::OnSetCursor(CWnd*, UINT, UINT) {
    if (!m_bTracking) {
        CPoint point;
        ::GetCursorPos(&point);
        ScreenToClient(&point);
        const qv::SplitLayout layout = Layout();
        m_bOverBar = layout.Client().Contains(ToPoint(point)) &&
                     layout.Bar(m_nSplitPos).Contains(ToPoint(point));
    }
    if (HCURSOR hCursor = m_bTracking || m_bOverBar ? m_hSplitCursor : m_hArrowCursor) {
        ::SetCursor(hCursor);
    }
    return TRUE;
}

void QVSplitWnd::OnLButtonDown(UINT, CPoint point) {
    if (!LoadHalftone() || !Bar().Press(Layout(), ToPoint(point))) {
        return;
    }
    m_bPressedInFront = InFront();
    const qv::WindowWatch watch(m_alive, m_hWnd);
    SetCapture();
    if (watch && m_bTracking) {
        DrawTrackerAt(m_nSplitPos);
    }
}

void QVSplitWnd::OnMouseMove(UINT, CPoint point) {
    EndDragBehind();
    if (const auto step = Bar().MoveTo(Layout(), ToPoint(point))) {
        DrawTrackerAt(step->nFrom);
        DrawTrackerAt(step->nTo);
    }
}

void QVSplitWnd::OnLButtonUp(UINT, CPoint) {
    EndDragBehind();
    if (!Bar().Release()) {
        return;
    }
    if (::GetCapture() == m_hWnd) {
        ::ReleaseCapture();
    }
    DrawTrackerAt(m_nSplitPos);
    LeaveBar();
}

// The bar stays where it is now.
void QVSplitWnd::LeaveBar() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    Bar().TakeRatio(Layout().Length());
    RepositionPanes();
    if (watch) {
        TellAccessible(EVENT_OBJECT_VALUECHANGE, CHILDID_SELF);
    }
}

void QVSplitWnd::OnCancelMode() {
    CWnd::OnCancelMode();
    m_bOverBar = FALSE;
    if (::GetCapture() == m_hWnd) {
        ::ReleaseCapture();
    }
    EndDrag();
}

// Not every way to lose the capture brings WM_CANCELMODE along.
void QVSplitWnd::OnCaptureChanged(CWnd* pWnd) {
    if (pWnd != this) {
        EndDrag();
    }
}

bool QVSplitWnd::InFront() {
    return ::GetForegroundWindow() == ::GetAncestor(m_hWnd, GA_ROOT);
}

// Somebody else has come to the front, which not every system tells a window with the capture.
void QVSplitWnd::EndDragBehind() {
    if (m_bTracking && m_bPressedInFront && !InFront()) {
        EndDrag();
    }
}

void QVSplitWnd::EndDrag() {
    const auto tracker = Bar().Cancel();
    if (!tracker) {
        return;
    }
    if (::GetCapture() == m_hWnd) {
        ::ReleaseCapture();
    }
    DrawTrackerAt(*tracker);
}

// --- Keys

void QVSplitWnd::OnKeyDown(UINT nChar, UINT, UINT) {
    const auto target = AreExpectedKeysEnabled() ? qv::KeyTarget(Layout(), m_nSplitPos, nChar,
                                                                 ::GetKeyState(VK_CONTROL) < 0)
                                                 : std::nullopt;
    if (target && !m_bTracking) {
        MoveBar(*target);
    } else {
        Default();
    }
}

void QVSplitWnd::MoveBar(int nPos) {
    EndDrag();
    if (nPos != m_nSplitPos) {
        m_nSplitPos = nPos;
        LeaveBar();
    }
}

UINT QVSplitWnd::OnGetDlgCode() {
    return AreExpectedKeysEnabled() ? DLGC_WANTARROWS : static_cast<UINT>(Default());
}

void QVSplitWnd::OnSetFocus(CWnd*) {
    ShowFocus();
}

void QVSplitWnd::OnKillFocus(CWnd*) {
    ShowFocus();
}

void QVSplitWnd::ShowFocus() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    Default();
    if (watch && AreExpectedKeysEnabled()) {
        CRect rect;
        CalcSplitRect(rect, -1);
        InvalidateRect(&rect, FALSE);
    }
}

// --- Painting

// Taken before the first tracker is drawn: one that cannot be erased again would stay.
bool QVSplitWnd::LoadHalftone() {
    if (m_hHalftone == nullptr) {
        CBrush* pBrush = CDC::GetHalftoneBrush();
        m_hHalftone = pBrush != nullptr ? static_cast<HBRUSH>(*pBrush) : nullptr;
    }
    return m_hHalftone != nullptr;
}

void QVSplitWnd::DrawSplitTracker(int nPos) {
    DrawTrackerAt(nPos == -1 ? m_nSplitPos : nPos);
}

void QVSplitWnd::DrawTrackerAt(int nPos) {
    CClientDC dc(this);
    InvertTracker(dc, qv::ToCRect(Layout().Bar(nPos)));
}

void QVSplitWnd::InvertTracker(CDC& dc, const CRect& rect) {
    if (LoadHalftone()) {
        const qv::SelectGuard<CBrush> brush(dc, m_hHalftone);
        dc.PatBlt(rect.left, rect.top, rect.Width(), rect.Height(), PATINVERT);
    }
}

// While the bar is dragged, what shows is where it was, and the tracker goes on over what is
// filled.
void QVSplitWnd::OnPaint() {
    CPaintDC dc(this);
    CBrush brush(::GetSysColor(COLOR_BTNFACE));
    const qv::SplitLayout layout = Layout();
    const int nPos = m_bTracking ? m_nTrackStart : m_nSplitPos;
    const CRect rcTracker = qv::ToCRect(layout.Bar(m_nSplitPos));
    const auto fill = [&](const qv::Rect& part) {
        const CRect rect = qv::ToCRect(part);
        if (rect.Width() <= 0 || rect.Height() <= 0 || !dc.RectVisible(&rect)) {
            return;
        }
        dc.FillRect(&rect, &brush);
        CRect rcInverted;
        if (m_bTracking && rcInverted.IntersectRect(&rect, &rcTracker)) {
            InvertTracker(dc, rcInverted);
        }
    };
    fill(layout.Bar(nPos));
    for (const int nPane : kSlots) {
        if (LivePane(nPane) == nullptr) {
            fill(layout.Pane(nPane, nPos));
        }
    }
    if (AreExpectedKeysEnabled() && ::GetFocus() == m_hWnd) {
        const CRect rcBar = qv::ToCRect(layout.Bar(nPos));
        dc.DrawFocusRect(&rcBar);
    }
}

// --- What a screen reader is told

LRESULT QVSplitWnd::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return AsksAccessible(lParam) ? AnswerAccessible(wParam, lParam) : Default();
}

CString QVSplitWnd::GetAccessibleName(long nPart) {
    CString strName;
    if (nPart == CHILDID_SELF) {
        GetWindowText(strName);
    }
    return WithoutMarks(strName);
}

CString QVSplitWnd::GetAccessibleShortcut(long) {
    return CString();
}

CString QVSplitWnd::GetAccessibleValue(long nPart) {
    CString strValue;
    if (nPart == CHILDID_SELF) {
        strValue.Format(
            "%d", qv::SplitPercent(m_bTracking ? m_nTrackStart : m_nSplitPos, Layout().Length()));
    }
    return strValue;
}

long QVSplitWnd::GetAccessibleRole(long nPart) {
    return nPart == CHILDID_SELF ? ROLE_SYSTEM_SEPARATOR : ROLE_SYSTEM_WINDOW;
}

// The focus is of use with the keys alone.
long QVSplitWnd::GetAccessibleState(long nPart) {
    return nPart == CHILDID_SELF && AreExpectedKeysEnabled()
               ? QVAccessible::GetAccessibleState(nPart)
               : AccessibleWindowState();
}

BOOL QVSplitWnd::GetAccessibleRect(long nPart, CRect& rect) {
    if (nPart != CHILDID_SELF) {
        return FALSE;
    }
    CalcSplitRect(rect, m_bTracking ? m_nTrackStart : -1);
    return TRUE;
}

long QVSplitWnd::GetAccessibleCount() {
    return qv::CountChildren(m_hWnd);
}

HWND QVSplitWnd::GetAccessibleWindow(long nPart) {
    return qv::ChildOfPart(m_hWnd, nPart);
}

long QVSplitWnd::AccessibleHitTest(CPoint pt) {
    return qv::ChildPartAt(m_hWnd, pt);
}

long QVSplitWnd::GetAccessibleFocus() {
    return CHILDID_SELF;
}

BOOL QVSplitWnd::SetAccessibleValue(long nPart, const CString& strValue) {
    constexpr long kAll = 100;
    const char* const pszValue = strValue;
    char* pszEnd = nullptr;
    const long nPercent = std::strtol(pszValue, &pszEnd, 10);
    if (nPart != CHILDID_SELF || pszEnd == pszValue || nPercent < 0 || nPercent > kAll ||
        !IsWindowEnabled()) {
        return FALSE;
    }
    const qv::SplitLayout layout = Layout();
    const int nPos = qv::SplitPosition(static_cast<int>(nPercent), layout.Length());
    MoveBar(layout.Dragged({nPos, nPos}));
    return TRUE;
}
