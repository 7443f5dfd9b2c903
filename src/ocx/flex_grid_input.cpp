#include "ocx/flex_grid.h"

#include "frame/core/wheel.h"

#include <windowsx.h>

#include <algorithm>

namespace ocx {

namespace {

using Id = FlexGridId;

constexpr UINT_PTR kScrollTimer = 1;
constexpr UINT kScrollDelay = 50;  // milliseconds from line to line in a drag beyond the edge
constexpr int kSmallestSize = 2;   // pixels to which a drag makes a row or column
constexpr LONG kResizesColumns = 1;
constexpr LONG kResizesRows = 2;

}  // namespace

POINT FlexGrid::MousePoint() const {
    POINT pt = {};
    ::GetCursorPos(&pt);
    if (Window() != nullptr) {
        ::ScreenToClient(Window(), &pt);
    }
    return pt;
}

qv::Point FlexGrid::ResizedAt(POINT pt) {
    EnsureLayout();
    const LONG nAllowed = Number(Id::AllowUserResizing);
    const qv::FlexGridSpan rows = m_view.RowSpan();
    const qv::FlexGridSpan cols = m_view.ColSpan();
    const auto inFixed = [](const qv::FlexGridSpan& span, LONG nPos) {
        return nPos >= 0 && nPos < span.axis.Start(span.nFixed);
    };
    if ((nAllowed & kResizesColumns) != 0 && inFixed(rows, pt.y)) {
        if (const int nCol = cols.EndAt(pt.x); nCol >= 0) {
            return {nCol, -1};
        }
    }
    if ((nAllowed & kResizesRows) != 0 && inFixed(cols, pt.x)) {
        return {-1, rows.EndAt(pt.y)};
    }
    return {-1, -1};
}

void FlexGrid::OnPress(POINT pt, bool bShift) {
    const qv::Point sized = ResizedAt(pt);
    m_nSizedCol = sized.x;
    m_nSizedRow = sized.y;
    m_drag = qv::FlexGridDrag::None;
    if (sized.x >= 0 || sized.y >= 0) {
        ::SetCapture(Window());
        return;
    }
    auto drag = qv::FlexGridDrag::None;
    const auto next = Selector().AfterPress(m_selection, m_view.RowSpan().Nearest(pt.y),
                                            m_view.ColSpan().Nearest(pt.x), bShift, drag);
    if (!next.has_value()) {
        return;
    }
    ::SetCapture(Window());
    // Whoever hears of the selection may end the drag.
    m_drag = drag;
    Select(*next, drag == qv::FlexGridDrag::Cells);
}

void FlexGrid::OnMove(POINT pt) {
    if (::GetCapture() != Window()) {
        return;
    }
    const auto resize = [](qv::FlexGridAxis& axis, int n, std::int64_t nSize) {
        axis.SetSize(n, static_cast<int>(std::clamp<std::int64_t>(nSize, kSmallestSize,
                                                                  qv::FlexGridAxis::kLargestSize)));
    };
    if (m_model.ColAxis().Has(m_nSizedCol)) {
        resize(Model().ColAxis(), m_nSizedCol, pt.x - m_view.ColSpan().Pos(m_nSizedCol));
        SetDirty();
        Changed();
    } else if (m_model.RowAxis().Has(m_nSizedRow)) {
        resize(Model().RowAxis(), m_nSizedRow, pt.y - m_view.RowSpan().Pos(m_nSizedRow));
        Changed();
    } else if (m_drag != qv::FlexGridDrag::None) {
        DragTo(pt, false);
    }
}

/// Beyond the edge, a timer goes on by a line each time.
void FlexGrid::DragTo(POINT pt, bool bScroll) {
    EnsureLayout();
    const qv::FlexGridSpan rows = m_view.RowSpan();
    const qv::FlexGridSpan cols = m_view.ColSpan();
    const auto beyond = [](const qv::FlexGridSpan& span, LONG nPos) {
        return nPos >= span.nClient ? 1 : nPos < span.axis.Start(span.nFixed) ? -1 : 0;
    };
    const int nDown = m_drag == qv::FlexGridDrag::Columns ? 0 : beyond(rows, pt.y);
    const int nRight = m_drag == qv::FlexGridDrag::Rows ? 0 : beyond(cols, pt.x);
    const auto reached = [bScroll](const qv::FlexGridSpan& span, int nBeyond, LONG nPos) {
        const int nLast = std::max(span.End() - 1, span.nFirst);
        return nBeyond == 0  ? span.Nearest(nPos)
               : nBeyond > 0 ? (bScroll ? std::min(nLast + 1, span.axis.Count() - 1) : nLast)
                             : std::max(span.nFirst - (bScroll ? 1 : 0), span.nFixed);
    };
    if (nDown != 0 || nRight != 0) {
        ::SetTimer(Window(), kScrollTimer, kScrollDelay, nullptr);
    } else {
        ::KillTimer(Window(), kScrollTimer);
    }
    const qv::FlexGridSelection next = Selector().Dragged(m_selection, reached(rows, nDown, pt.y),
                                                          reached(cols, nRight, pt.x), m_drag);
    Select(next, bScroll && m_drag == qv::FlexGridDrag::Cells);
}

void FlexGrid::OnRelease() {
    m_drag = qv::FlexGridDrag::None;
    m_nSizedCol = -1;
    m_nSizedRow = -1;
    if (Window() != nullptr) {
        ::KillTimer(Window(), kScrollTimer);
        if (::GetCapture() == Window()) {
            ::ReleaseCapture();
        }
    }
}

void FlexGrid::OnKey(UINT vk) {
    EnsureLayout();
    const qv::FlexGridKey key = {vk, ::GetKeyState(VK_SHIFT) < 0, ::GetKeyState(VK_CONTROL) < 0};
    const bool bRows = Number(Id::SelectionMode) == qv::fgsByRow;
    if (bRows && (vk == VK_LEFT || vk == VK_RIGHT)) {
        OnScrollBar(SB_HORZ, vk == VK_LEFT ? SB_LINELEFT : SB_LINERIGHT);
    } else if (const auto next = Selector().AfterKey(m_selection, key, m_view); next.has_value()) {
        const int nLeftCol = m_view.LeftCol();
        Select(*next, true);
        if (bRows && Window() != nullptr) {
            ScrollTo(m_view.TopRow(), nLeftCol);  // the row's far end is no place to go to
        }
    }
}

void FlexGrid::OnWheel(short nDelta) {
    UINT nLines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &nLines, 0);
    qv::TurnWheel(m_nWheel, nDelta, nLines, [this](bool bUp, bool bPage) {
        OnScrollBar(SB_VERT,
                    bPage ? (bUp ? SB_PAGEUP : SB_PAGEDOWN) : (bUp ? SB_LINEUP : SB_LINEDOWN));
    });
}

void FlexGrid::OnScrollBar(int nBar, UINT nCode) {
    EnsureLayout();
    if (nCode == SB_THUMBTRACK && !Flag(Id::ScrollTrack)) {
        return;
    }
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    if (Window() != nullptr) {
        ::GetScrollInfo(Window(), nBar, &info);
    }
    if (nBar == SB_VERT) {
        ScrollTo(m_view.RowSpan().After(nCode, info.nTrackPos), m_view.LeftCol());
    } else {
        ScrollTo(m_view.TopRow(), m_view.ColSpan().After(nCode, info.nTrackPos));
    }
}

bool FlexGrid::OnCursor() {
    const qv::Point sized = ResizedAt(MousePoint());
    if (sized.x < 0 && sized.y < 0) {
        return false;
    }
    ::SetCursor(::LoadCursorA(nullptr, sized.x >= 0 ? IDC_SIZEWE : IDC_SIZENS));
    return true;
}

bool FlexGrid::WantsKey(const MSG& msg) {
    return msg.message == WM_KEYDOWN && msg.wParam >= VK_PRIOR && msg.wParam <= VK_DOWN;
}

bool FlexGrid::OnMessage(UINT nMessage, WPARAM wParam, LPARAM lParam, LRESULT& lResult) {
    const POINT pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    lResult = 0;
    switch (nMessage) {
        case WM_CREATE:
            UpdateEdges();
            return false;
        case WM_SIZE:
            m_bNeedsLayout = true;
            return false;
        case WM_SETFOCUS:
            m_spoken.Tell(EVENT_OBJECT_FOCUS, FocusedPart());
            return false;
        case WM_GETOBJECT:
            return m_spoken.Answer(wParam, lParam, lResult);
        case WM_GETDLGCODE:
            lResult = DLGC_WANTARROWS | DLGC_WANTCHARS;
            return true;
        case WM_SETCURSOR:
            lResult = LOWORD(lParam) == HTCLIENT && OnCursor();
            return lResult != 0;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            OnPress(pt, (wParam & MK_SHIFT) != 0);
            return true;
        case WM_MOUSEMOVE:
            OnMove(pt);
            return true;
        case WM_TIMER:
            if (wParam == kScrollTimer && m_drag != qv::FlexGridDrag::None) {
                DragTo(MousePoint(), true);
            }
            return wParam == kScrollTimer;
        case WM_LBUTTONUP:
        case WM_CAPTURECHANGED:
        case WM_CANCELMODE:
            OnRelease();
            return nMessage == WM_LBUTTONUP;
        case WM_KEYDOWN:
            OnKey(static_cast<UINT>(wParam));
            return true;
        case WM_MOUSEWHEEL:
            OnWheel(static_cast<short>(HIWORD(wParam)));
            return true;
        case WM_VSCROLL:
        case WM_HSCROLL:
            OnScrollBar(nMessage == WM_VSCROLL ? SB_VERT : SB_HORZ, LOWORD(wParam));
            return true;
        default:
            return false;
    }
}

}  // namespace ocx
