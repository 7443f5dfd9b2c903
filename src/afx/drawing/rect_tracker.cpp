#include "afx/drawing/rect_tracker.h"

#include <afxwin.h>

#include <algorithm>

namespace {

constexpr int kHandles = 8;
constexpr int kHandleSize = 6;  // pixels
constexpr UINT kResize = CRectTracker::resizeInside | CRectTracker::resizeOutside;

/// Of a handle: which edges it lies at. -1 left or top, 1 right or bottom, 0 in the middle.
struct Place {
    int nX;
    int nY;
};
constexpr Place kPlaces[] = {{-1, -1}, {1, -1}, {1, 1},  {-1, 1}, {0, -1},
                             {1, 0},   {0, 1},  {-1, 0}, {0, 0}};

int HandleAt(int nX, int nY) {
    const auto it = std::find_if(std::begin(kPlaces), std::end(kPlaces), [&](const Place& place) {
        return place.nX == nX && place.nY == nY;
    });
    return static_cast<int>(it - std::begin(kPlaces));
}

LPCTSTR CursorOf(int nHandle) {
    const Place& place = kPlaces[nHandle];
    return place.nX == 0 && place.nY == 0 ? IDC_SIZEALL
           : place.nX == 0                ? IDC_SIZENS
           : place.nY == 0                ? IDC_SIZEWE
           : place.nX == place.nY         ? IDC_SIZENWSE
                                          : IDC_SIZENESW;
}

/// A context put back as it was.
struct SavedDC {
    explicit SavedDC(CDC* p) : pDC(p) { pDC->SaveDC(); }
    ~SavedDC() { pDC->RestoreDC(-1); }
    SavedDC(const SavedDC&) = delete;
    SavedDC& operator=(const SavedDC&) = delete;
    CDC* const pDC;
};

}  // namespace

CRectTracker::CRectTracker()
    : m_sizeMin(2 * kHandleSize, 2 * kHandleSize), m_nHandleSize(kHandleSize) {}

CRectTracker::CRectTracker(LPCRECT lpSrcRect, UINT nStyle) : CRectTracker() {
    m_rect = *lpSrcRect;
    m_nStyle = nStyle;
}

void CRectTracker::Draw(CDC* pDC) const {
    const SavedDC saved(pDC);
    pDC->SetMapMode(MM_TEXT);
    pDC->SetViewportOrg(0, 0);
    pDC->SetWindowOrg(0, 0);
    CRect rect(m_rect);
    rect.NormalizeRect();

    CBrush hatch;
    if (m_nStyle & (hatchInside | hatchedBorder)) {
        hatch.CreateHatchBrush(HS_BDIAGONAL, ::GetSysColor(COLOR_WINDOWTEXT));
    }
    pDC->SetBkMode(TRANSPARENT);
    if (m_nStyle & hatchInside) {
        pDC->SelectStockObject(NULL_PEN);
        pDC->SelectObject(&hatch);
        pDC->Rectangle(rect.left + 1, rect.top + 1, rect.right, rect.bottom);
    }
    if (m_nStyle & hatchedBorder) {
        CRect rcTrue;
        GetTrueRect(&rcTrue);
        pDC->SelectObject(&hatch);
        pDC->ExcludeClipRect(rect);
        pDC->PatBlt(rcTrue.left, rcTrue.top, rcTrue.Width(), rcTrue.Height(), PATCOPY);
        pDC->SelectClipRgn(nullptr);
    }
    CPen pen;
    if (m_nStyle & (solidLine | dottedLine)) {
        pen.CreatePen((m_nStyle & dottedLine) ? PS_DOT : PS_SOLID, 0,
                      ::GetSysColor(COLOR_WINDOWTEXT));
        pDC->SelectObject(&pen);
        pDC->SelectStockObject(NULL_BRUSH);
        CRect rcLine(rect);
        rcLine.InflateRect(1, 1);
        pDC->Rectangle(rcLine);
    }
    if (m_nStyle & kResize) {
        const UINT nMask = GetHandleMask();
        for (int nHandle = 0; nHandle < kHandles; ++nHandle) {
            if (nMask & (1u << nHandle)) {
                CRect rcHandle;
                GetHandleRect(nHandle, &rcHandle);
                pDC->FillSolidRect(rcHandle, ::GetSysColor(COLOR_WINDOWTEXT));
            }
        }
    }
    pDC->SelectStockObject(BLACK_PEN);  // the ones of this function go away before the guard
    pDC->SelectStockObject(WHITE_BRUSH);
}

void CRectTracker::GetTrueRect(LPRECT lpTrueRect) const {
    CRect rect(m_rect);
    rect.NormalizeRect();
    const int nMore = (m_nStyle & (resizeOutside | hatchedBorder)) ? GetHandleSize() - 1
                      : (m_nStyle & (solidLine | dottedLine))      ? 1
                                                                   : 0;
    rect.InflateRect(nMore, nMore);
    *lpTrueRect = rect;
}

BOOL CRectTracker::SetCursor(CWnd* pWnd, UINT nHitTest) const {
    if (nHitTest != HTCLIENT) {
        return FALSE;
    }
    CPoint point;
    ::GetCursorPos(&point);
    pWnd->ScreenToClient(&point);
    const int nHandle = HitTestHandles(point);
    if (nHandle < 0) {
        return FALSE;
    }
    ::SetCursor(::LoadCursor(nullptr, CursorOf(NormalizeHit(nHandle))));
    return TRUE;
}

int CRectTracker::NormalizeHit(int nHandle) const {
    if (nHandle < 0 || nHandle >= kHandles) {
        return nHandle;
    }
    Place place = kPlaces[nHandle];
    place.nX *= m_rect.Width() < 0 ? -1 : 1;
    place.nY *= m_rect.Height() < 0 ? -1 : 1;
    return HandleAt(place.nX, place.nY);
}

int CRectTracker::HitTest(CPoint point) const {
    CRect rcTrue;
    GetTrueRect(&rcTrue);
    if (!rcTrue.PtInRect(point)) {
        return hitNothing;
    }
    return (m_nStyle & kResize) ? HitTestHandles(point) : static_cast<int>(hitMiddle);
}

int CRectTracker::HitTestHandles(CPoint point) const {
    CRect rcTrue;
    GetTrueRect(&rcTrue);
    if (!rcTrue.PtInRect(point)) {
        return hitNothing;
    }
    const UINT nMask = GetHandleMask();
    for (int nHandle = 0; nHandle < kHandles; ++nHandle) {
        CRect rcHandle;
        GetHandleRect(nHandle, &rcHandle);
        if ((nMask & (1u << nHandle)) && rcHandle.PtInRect(point)) {
            return nHandle;
        }
    }
    if (m_nStyle & hatchedBorder) {
        return hitMiddle;
    }
    CRect rect(m_rect);
    rect.NormalizeRect();
    if (m_nStyle & (solidLine | dottedLine)) {
        rect.InflateRect(1, 1);
    }
    return rect.PtInRect(point) ? static_cast<int>(hitMiddle) : static_cast<int>(hitNothing);
}

int CRectTracker::GetHandleSize(LPCRECT lpRect) const {
    CRect rect(lpRect != nullptr ? *lpRect : m_rect);
    rect.NormalizeRect();
    int nSize = m_nHandleSize;
    if (!(m_nStyle & resizeOutside)) {
        // Handles inside leave room between them.
        const int nRoom = std::min(rect.Width(), rect.Height()) / 2;
        nSize = std::min(nSize, std::max(nRoom, 1));
    }
    return nSize;
}

void CRectTracker::GetHandleRect(int nHandle, CRect* pHandleRect) const {
    CRect rect(m_rect);
    rect.NormalizeRect();
    const int nSize = GetHandleSize();
    if (m_nStyle & (resizeOutside | hatchedBorder)) {
        rect.InflateRect(nSize - 1, nSize - 1);
    }
    const Place place = kPlaces[std::clamp<int>(nHandle, 0, hitMiddle)];
    const auto along = [&](int nPlace, int nLow, int nHigh) {
        return nPlace < 0 ? nLow : nPlace > 0 ? nHigh - nSize : (nLow + nHigh - nSize) / 2;
    };
    // A handle keeps its number while the rectangle is turned over.
    const int nX = place.nX * (m_rect.Width() < 0 ? -1 : 1);
    const int nY = place.nY * (m_rect.Height() < 0 ? -1 : 1);
    *pHandleRect = CRect(CPoint(along(nX, rect.left, rect.right), along(nY, rect.top, rect.bottom)),
                         CSize(nSize, nSize));
}

UINT CRectTracker::GetHandleMask() const {
    // Handles in the middle of a side want room beside those at its ends.
    constexpr UINT kCorners = 0x0F;
    UINT nMask = kCorners;
    const int nRoom = 3 * m_nHandleSize;
    if (std::abs(m_rect.Width()) - m_nHandleSize > nRoom) {
        nMask |= 1u << hitTop | 1u << hitBottom;
    }
    if (std::abs(m_rect.Height()) - m_nHandleSize > nRoom) {
        nMask |= 1u << hitLeft | 1u << hitRight;
    }
    return nMask;
}

void CRectTracker::AdjustRect(int, LPRECT) {}
void CRectTracker::OnChangedRect(const CRect&) {}

void CRectTracker::DrawTrackerRect(LPCRECT lpRect, CWnd* pWndClipTo, CDC* pDC, CWnd* pWnd) {
    CRect rect(*lpRect);
    rect.NormalizeRect();
    if (pWndClipTo != nullptr) {
        pWnd->ClientToScreen(rect);
        pWndClipTo->ScreenToClient(rect);
    }
    CSize size;
    if (!m_bFinalErase) {
        size = CSize(1, 1);
    }
    if (m_bFinalErase || !m_bErase || m_rectLast != rect) {
        const CRect rcNew = m_bFinalErase ? CRect() : rect;
        pDC->DrawDragRect(rcNew, size, m_bErase ? &m_rectLast : nullptr, m_sizeLast);
        m_rectLast = rcNew;
        m_sizeLast = size;
    }
}

void CRectTracker::GetModifyPointers(int nHandle, int** ppx, int** ppy, int* px, int* py) {
    const Place place = kPlaces[std::clamp<int>(nHandle, 0, hitMiddle)];
    // Moving the whole of it goes by its upper left corner.
    const bool bWhole = nHandle == hitMiddle;
    const auto edge = [](int nPlace, LONG& nLow, LONG& nHigh) {
        return nPlace > 0 ? &nHigh : &nLow;
    };
    *ppx = bWhole || place.nX != 0
               ? reinterpret_cast<int*>(edge(place.nX, m_rect.left, m_rect.right))
               : nullptr;
    *ppy = bWhole || place.nY != 0
               ? reinterpret_cast<int*>(edge(place.nY, m_rect.top, m_rect.bottom))
               : nullptr;
    *px = *ppx != nullptr ? **ppx : 0;
    *py = *ppy != nullptr ? **ppy : 0;
}

BOOL CRectTracker::Track(CWnd* pWnd, CPoint point, BOOL bAllowInvert, CWnd* pWndClipTo) {
    const int nHandle = HitTestHandles(point);
    if (nHandle < 0) {
        return FALSE;
    }
    m_bAllowInvert = bAllowInvert;
    return TrackHandle(nHandle, pWnd, point, pWndClipTo);
}

BOOL CRectTracker::TrackRubberBand(CWnd* pWnd, CPoint point, BOOL bAllowInvert) {
    m_bAllowInvert = bAllowInvert;
    m_rect.SetRect(point, point);
    return TrackHandle(hitBottomRight, pWnd, point, nullptr);
}

BOOL CRectTracker::TrackHandle(int nHandle, CWnd* pWnd, CPoint point, CWnd* pWndClipTo) {
    if (::GetCapture() != nullptr) {
        return FALSE;
    }
    const HWND hWnd = pWnd->m_hWnd;
    CWnd* const pDrawOn = pWndClipTo != nullptr ? pWndClipTo : pWnd;
    const HWND hDrawOn = pDrawOn->m_hWnd;
    const CRect rcBefore(m_rect);
    const bool bWhole = nHandle == hitMiddle;
    int* px = nullptr;
    int* py = nullptr;
    int xEdge = 0;
    int yEdge = 0;
    GetModifyPointers(nHandle, &px, &py, &xEdge, &yEdge);
    const CSize offset(point.x - xEdge, point.y - yEdge);
    const CSize sizeBefore = rcBefore.Size();
    pWnd->SetCapture();

    const auto draw = [&](bool bFinal) {
        if (!::IsWindow(hDrawOn) || !::IsWindow(hWnd)) {
            return;
        }
        const HDC hDC = ::GetDCEx(hDrawOn, nullptr, DCX_CACHE | DCX_LOCKWINDOWUPDATE);
        CDC* const pDC = CDC::FromHandle(hDC);
        m_bFinalErase = bFinal;
        DrawTrackerRect(m_rect, pWndClipTo, pDC, pWnd);
        m_bErase = !bFinal;
        ::ReleaseDC(hDrawOn, hDC);
    };
    m_bErase = FALSE;
    bool bMoved = false;
    bool bAccepted = false;
    while (::GetCapture() == hWnd) {
        MSG msg;
        if (!::GetMessage(&msg, nullptr, 0, 0)) {
            ::PostQuitMessage(static_cast<int>(msg.wParam));
            break;
        }
        if (msg.message == WM_RBUTTONDOWN ||
            (msg.message == WM_KEYDOWN && msg.wParam == VK_ESCAPE)) {
            break;
        }
        if (msg.message != WM_MOUSEMOVE && msg.message != WM_LBUTTONUP) {
            if (msg.message != WM_KEYDOWN) {
                ::DispatchMessage(&msg);
            }
            continue;
        }
        const CRect rcOld(m_rect);
        const CPoint ptNow(msg.lParam);
        if (px != nullptr) {
            *px = ptNow.x - offset.cx;
        }
        if (py != nullptr) {
            *py = ptNow.y - offset.cy;
        }
        if (bWhole) {
            m_rect = CRect(m_rect.TopLeft(), sizeBefore);
        } else if (!m_bAllowInvert) {
            // The edge that moves stays off the other one.
            const Place place = kPlaces[nHandle];
            if (place.nX < 0) {
                m_rect.left = std::min<LONG>(m_rect.left, m_rect.right - m_sizeMin.cx);
            } else if (place.nX > 0) {
                m_rect.right = std::max<LONG>(m_rect.right, m_rect.left + m_sizeMin.cx);
            }
            if (place.nY < 0) {
                m_rect.top = std::min<LONG>(m_rect.top, m_rect.bottom - m_sizeMin.cy);
            } else if (place.nY > 0) {
                m_rect.bottom = std::max<LONG>(m_rect.bottom, m_rect.top + m_sizeMin.cy);
            }
        }
        AdjustRect(nHandle, m_rect);
        if (m_rect != rcOld) {
            bMoved = true;
            OnChangedRect(rcOld);
        }
        if (msg.message == WM_LBUTTONUP) {
            bAccepted = true;
            break;
        }
        if (m_rect != rcOld || m_bErase) {
            draw(false);
        }
    }
    if (m_bErase) {
        draw(true);
    }
    if (::GetCapture() == hWnd) {
        ::ReleaseCapture();
    }
    m_bFinalErase = m_bErase = FALSE;
    if (!bAccepted || !bMoved || m_rect == rcBefore) {
        m_rect = rcBefore;
        return FALSE;
    }
    return TRUE;
}
