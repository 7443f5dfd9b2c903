#include "afx/app/bar_drag.h"

#include "afx/app/dock_bar.h"

#include <afxext.h>

#include <algorithm>

namespace {

// Pixels beyond a dock bar where a bar still docks in it.
constexpr int kDockZone = 12;
const CSize kFrameThickness(3, 3);

constexpr struct {
    UINT nID;
    DWORD dwAlign;
} kEdges[] = {{AFX_IDW_DOCKBAR_TOP, CBRS_ALIGN_TOP},
              {AFX_IDW_DOCKBAR_BOTTOM, CBRS_ALIGN_BOTTOM},
              {AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_LEFT},
              {AFX_IDW_DOCKBAR_RIGHT, CBRS_ALIGN_RIGHT}};

}  // namespace

AfxBarDrag::AfxBarDrag(CControlBar* pBar, CPoint ptScreen)
    : m_pBar(pBar),
      m_ptStart(ptScreen),
      m_sizeHorz(pBar->CalcDynamicLayout(-1, LM_HORZ | LM_HORZDOCK)),
      m_sizeVert(pBar->CalcDynamicLayout(-1, LM_VERTDOCK)),
      m_sizeFloat(pBar->CalcDynamicLayout(-1, LM_HORZ | LM_MRUWIDTH)) {
    CRect rcBar;
    pBar->GetWindowRect(rcBar);
    m_offset = ptScreen - rcBar.TopLeft();
    pBar->SetCapture();
}

AfxBarDrag::~AfxBarDrag() {
    try {
        Draw(nullptr);
    } catch (CMemoryException* e) {
        e->Delete();  // the frame stays on the screen until something else is drawn there
    }
}

AfxBarDrag::Place AfxBarDrag::PlaceAt(CPoint ptScreen) const {
    Place place;
    const auto rectOf = [&](CSize size) {
        // The pointer stays on the bar, whatever shape it has.
        return CRect(CPoint(ptScreen.x - std::min(m_offset.cx, size.cx - 1),
                            ptScreen.y - std::min(m_offset.cy, size.cy - 1)),
                     size);
    };
    for (const auto& edge : kEdges) {
        CControlBar* pDock = m_pBar->m_pDockSite->GetControlBar(edge.nID);
        if (pDock == nullptr || !(m_pBar->m_dwDockStyle & edge.dwAlign) ||
            ::GetKeyState(VK_CONTROL) < 0) {
            continue;
        }
        CRect rcDock;
        pDock->GetWindowRect(rcDock);
        rcDock.InflateRect(kDockZone, kDockZone);
        if (rcDock.PtInRect(ptScreen)) {
            place.nDockBarID = edge.nID;
            place.rect = rectOf(edge.dwAlign & CBRS_ORIENT_HORZ ? m_sizeHorz : m_sizeVert);
            return place;
        }
    }
    place.rect = rectOf(m_sizeFloat);
    return place;
}

void AfxBarDrag::Draw(const CRect* pRect) {
    if (pRect == nullptr && !m_bDrawn) {
        return;
    }
    CWindowDC dc(nullptr);  // all of the screen
    const CRect rcNone;
    dc.DrawDragRect(pRect != nullptr ? *pRect : rcNone, kFrameThickness,
                    m_bDrawn ? &m_rectLast : nullptr, kFrameThickness);
    m_bDrawn = pRect != nullptr;
    m_rectLast = pRect != nullptr ? *pRect : rcNone;
}

void AfxBarDrag::Move(CPoint ptScreen) {
    // A hand that shakes over a click drags nothing.
    const CSize moved = ptScreen - m_ptStart;
    m_bMoved = m_bMoved || std::abs(moved.cx) >= ::GetSystemMetrics(SM_CXDRAG) ||
               std::abs(moved.cy) >= ::GetSystemMetrics(SM_CYDRAG);
    if (m_bMoved) {
        const Place place = PlaceAt(ptScreen);
        Draw(&place.rect);
    }
}

void AfxBarDrag::Drop(CPoint ptScreen) {
    Move(ptScreen);
    const Place place = PlaceAt(ptScreen);
    Draw(nullptr);
    CControlBar* const pBar = m_pBar;
    CFrameWnd* const pFrame = pBar->m_pDockSite;
    const HWND hBar = pBar->m_hWnd;
    ::ReleaseCapture();
    if (!m_bMoved || CWnd::FromHandlePermanent(hBar) != pBar || pBar->m_pDockSite != pFrame ||
        pFrame == nullptr) {
        return;
    }
    if (place.nDockBarID != 0) {
        pFrame->DockControlBar(pBar, place.nDockBarID, place.rect);
    } else {
        pFrame->FloatControlBar(pBar, place.rect.TopLeft());
    }
}

void AfxBarDrag::Toggle(CControlBar* pBar) {
    CFrameWnd* const pFrame = pBar->m_pDockSite;
    if (pBar->IsFloating()) {
        pFrame->DockControlBar(pBar, pBar->m_nLastDock);
        return;
    }
    CRect rcFrame;
    pFrame->GetClientRect(rcFrame);
    pFrame->ClientToScreen(rcFrame);
    pFrame->FloatControlBar(pBar, pBar->m_bFloated ? pBar->m_ptLastFloat : rcFrame.CenterPoint());
}
