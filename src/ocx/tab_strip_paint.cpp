// The tab strip: what it looks like.

#include "ocx/tab_strip.h"

#include "ocx/caption.h"
#include "ocx/tab_strip_drawing.h"
#include "ocx/tab_strip_members.h"

#include <algorithm>
#include <array>

namespace ocx {

using Id = TabStripId;

static RECT ToRECT(const qv::Rect& rc) {
    return {rc.left, rc.top, rc.right, rc.bottom};
}

TabStrip::Edges TabStrip::EdgesOf(bool bActive) const {
    if (!Flag(Id::ThreeD)) {
        const COLORREF cr = Color(Id::OutlineColor);
        return {1, 0, cr, cr, cr, cr};
    }
    return {static_cast<int>(Number(bActive ? Id::ThreeDOuterWidthActive : Id::ThreeDOuterWidth)),
            static_cast<int>(Number(bActive ? Id::ThreeDInnerWidthActive : Id::ThreeDInnerWidth)),
            Color(Id::ThreeDOuterLight),
            Color(Id::ThreeDOuterDark),
            Color(Id::ThreeDInnerLight),
            Color(Id::ThreeDInnerDark)};
}

void TabStrip::DrawControl(HDC hDC, const RECT& rect) {
    const qv::TabStripLayout layout = Layout();
    FillSolid(hDC, rect, Color(Id::GrayAreaColor));
    if (Number(Id::BorderStyle) != 0) {
        const COLORREF cr = ::GetSysColor(COLOR_WINDOWFRAME);
        DrawEdges(hDC, rect, 1, cr, cr);
    }
    DrawPage(hDC);
    const SavedDC saved(hDC);
    ::SetBkMode(hDC, TRANSPARENT);
    ::SetTextAlign(hDC, TA_LEFT | TA_TOP);
    const Fonts fonts = {IsTurned() ? MakeFont(false, true) : Owned<HFONT>(),
                         Flag(Id::ActiveTabBold) ? MakeFont(true, IsTurned()) : Owned<HFONT>()};
    // The active one lies over its neighbours.
    for (int n = layout.First(); n < m_set.Count(); ++n) {
        const qv::Rect rc = layout.TabRect(n);
        if (n != m_set.Active() && rc.Width() > 0 && rc.Height() > 0) {
            DrawTab(hDC, n, fonts);
        } else if (rc == qv::Rect{} && m_set.State(n) != qv::TabState::Hidden) {
            break;
        }
    }
    DrawTab(hDC, m_set.Active(), fonts);
    if (layout.HasArrows()) {
        DrawArrow(hDC, false);
        DrawArrow(hDC, true);
    }
}

void TabStrip::DrawPage(HDC hDC) {
    RECT rc = ToRECT(Layout().PageRect());
    if (::IsRectEmpty(&rc)) {
        return;
    }
    FillSolid(hDC, rc, Color(Id::PageColor));
    const Edges edges = EdgesOf(true);
    DrawEdges(hDC, rc, edges.nOuter, edges.crOuterLight, edges.crOuterDark);
    ::InflateRect(&rc, -edges.nOuter, -edges.nOuter);
    DrawEdges(hDC, rc, edges.nInner, edges.crInnerLight, edges.crInnerDark);
}

void TabStrip::DrawTab(HDC hDC, int nTab, const Fonts& fonts) {
    const RECT rcShown = ToRECT(Layout().TabRect(nTab));
    const RECT rc = ToRECT(Layout().WholeRect(nTab));
    if (::IsRectEmpty(&rcShown)) {
        return;
    }
    const SavedDC saved(hDC);
    if (!::EqualRect(&rc, &rcShown)) {
        ::IntersectClipRect(hDC, rcShown.left, rcShown.top, rcShown.right, rcShown.bottom);
    }
    const bool bActive = nTab == m_set.Active();
    const Edges edges = EdgesOf(bActive);
    DrawShape(hDC, rc, edges, bActive ? edges.nOuter + edges.nInner : 0);
    const HFONT hFont = bActive && fonts.active ? fonts.active.Get()
                        : fonts.plain           ? fonts.plain.Get()
                                                : Font().Handle();
    const Selected font(hDC, hFont);
    RECT rcContent = rc;
    if (IsLying()) {
        ::InflateRect(&rcContent, -kAlongPadding, -kAcrossPadding);
    } else {
        ::InflateRect(&rcContent, -kAcrossPadding, -kAlongPadding);
    }
    DrawContent(hDC, rcContent, nTab);
    if (bActive && ::GetFocus() == Window() && Flag(Id::ShowFocusRect)) {
        DrawFocus(hDC, rc);
    }
}

/// A tab in coordinates of its own: along its side and from its outer edge to the page.
namespace {

class ShapeFrame {
public:
    ShapeFrame(const RECT& rect, qv::TabSide side) : m_rect(rect), m_side(side) {
        const bool bLying = side == qv::TabSide::Top || side == qv::TabSide::Bottom;
        m_nLength = bLying ? rect.right - rect.left : rect.bottom - rect.top;
        m_nDepth = bLying ? rect.bottom - rect.top : rect.right - rect.left;
    }
    int Length() const { return m_nLength; }
    int Depth() const { return m_nDepth; }
    /// The pixel there.
    POINT At(int nAlong, int nIn) const {
        switch (m_side) {
            case qv::TabSide::Bottom:
                return {m_rect.left + nAlong, m_rect.bottom - 1 - nIn};
            case qv::TabSide::Left:
                return {m_rect.left + nIn, m_rect.top + nAlong};
            case qv::TabSide::Right:
                return {m_rect.right - 1 - nIn, m_rect.top + nAlong};
            default:
                return {m_rect.left + nAlong, m_rect.top + nIn};
        }
    }

private:
    RECT m_rect;
    qv::TabSide m_side;
    int m_nLength;
    int m_nDepth;
};

void Line(HDC hDC, POINT from, POINT to, COLORREF cr) {
    ::SetDCPenColor(hDC, cr);
    ::MoveToEx(hDC, from.x, from.y, nullptr);
    ::LineTo(hDC, to.x, to.y);
    // A line leaves its end out.
    ::SetPixelV(hDC, to.x, to.y, cr);
}

}  // namespace

/// Light comes from the upper left. The active tab is open to the page: it covers nPageEdge of it.
void TabStrip::DrawShape(HDC hDC, const RECT& rect, const Edges& edges, int nPageEdge) {
    constexpr LONG kChamfered = 1;
    const ShapeFrame frame(rect, Side());
    const bool bChamfered = Number(Id::TabShape) == kChamfered;
    const int nLast = frame.Length() - 1;
    const int nEnd = frame.Depth() - 1;
    const int nCut = bChamfered ? std::min<int>(Number(Id::ChamferedWidth), nLast / 2) : 0;
    const int nDrop = bChamfered ? std::min<int>(Number(Id::ChamferedHeight), nEnd) : 0;
    const bool bOuterLit = Side() == qv::TabSide::Top || Side() == qv::TabSide::Left;
    const Selected pen(hDC, ::GetStockObject(DC_PEN));
    const Selected brush(hDC, ::GetStockObject(DC_BRUSH));
    const COLORREF crFace = Color(Id::BackColor);
    ::SetDCBrushColor(hDC, crFace);
    ::SetDCPenColor(hDC, crFace);
    const std::array<POINT, 6> face = {frame.At(0, nEnd),      frame.At(0, nDrop),
                                       frame.At(nCut, 0),      frame.At(nLast - nCut, 0),
                                       frame.At(nLast, nDrop), frame.At(nLast, nEnd)};
    ::Polygon(hDC, face.data(), static_cast<int>(face.size()));
    const int nWidth = edges.nOuter + edges.nInner;
    for (int n = 0; n < nWidth && n <= nLast / 2; ++n) {
        const bool bOuter = n < edges.nOuter;
        const COLORREF crLight = bOuter ? edges.crOuterLight : edges.crInnerLight;
        const COLORREF crDark = bOuter ? edges.crOuterDark : edges.crInnerDark;
        const COLORREF crOuter = bOuterLit ? crLight : crDark;
        const int nFrom = std::max(nCut, n);
        const int nDown = std::max(nDrop, n);
        Line(hDC, frame.At(nLast - n, nDown), frame.At(nLast - n, nEnd), crDark);
        Line(hDC, frame.At(nLast - nFrom, n), frame.At(nLast - n, nDown), crDark);
        Line(hDC, frame.At(n, nEnd), frame.At(n, nDown), crLight);
        Line(hDC, frame.At(n, nDown), frame.At(nFrom, n), bOuterLit ? crLight : crOuter);
        Line(hDC, frame.At(nFrom, n), frame.At(nLast - nFrom, n), crOuter);
    }
    for (int n = 1; n <= nPageEdge; ++n) {
        Line(hDC, frame.At(std::min(nWidth, nLast), nEnd + n),
             frame.At(std::max(nLast - nWidth, 0), nEnd + n), crFace);
    }
}

void TabStrip::DrawContent(HDC hDC, const RECT& rect, int nTab) {
    if (rect.left >= rect.right || rect.top >= rect.bottom || !m_set.Has(nTab)) {
        return;
    }
    using Way = TextFrame::Way;
    const TextFrame frame(rect, !IsTurned()                   ? Way::Across
                                : Side() == qv::TabSide::Left ? Way::Up
                                                              : Way::Down);
    RECT place = {Pixels(Id::MarginLeft, IsLying()), 0,
                  frame.Length() - Pixels(Id::MarginRight, IsLying()), frame.Depth()};
    const Ref<IPicture> picture = m_tabs[nTab].picture;
    const SIZE size = PictureSize(picture.Get());
    if (picture && size.cx > 0 && size.cy > 0) {
        const int cu = IsTurned() ? size.cy : size.cx;
        const int cv = IsTurned() ? size.cx : size.cy;
        const LONG nAcross = Number(Id::AlignPictureH);
        const int u = nAcross == 0          ? place.left
                      : nAcross == kCentred ? (place.left + place.right - cu) / 2
                                            : place.right - cu;
        const LONG nDown = nAcross == kCentred ? 0 : Number(Id::AlignPictureV);
        const int v = static_cast<int>(nDown * (frame.Depth() - cv) / 2);
        DrawPicture(hDC, picture.Get(), frame.RectAt({u, v, u + cu, v + cv}));
        place.left += nAcross == 0 ? cu + kPictureGap : 0;
        place.right -= nAcross == 2 ? cu + kPictureGap : 0;
        place.top += nAcross == kCentred ? cv + kPictureGap : 0;
    }
    DrawCaption(hDC, frame, place, nTab);
}

/// place in the frame's own coordinates.
void TabStrip::DrawCaption(HDC hDC, const TextFrame& frame, const RECT& place, int nTab) {
    const bool bWraps = Flag(Id::WordWrap);
    const Caption caption(m_tabs[nTab].caption, bWraps);
    const int nWidth = place.right - place.left;
    if (nWidth <= 0) {
        return;
    }
    TEXTMETRICW metrics = {};
    ::GetTextMetricsW(hDC, &metrics);
    const std::vector<CaptionLine> lines = CaptionLines(hDC, caption.text, bWraps, nWidth);
    const int nHeight = metrics.tmHeight * static_cast<int>(lines.size());
    int v = place.top +
            std::max<int>(Number(Id::AlignTextV) * (place.bottom - place.top - nHeight) / 2, 0);
    const RECT rcClip = frame.RectAt(place);
    const auto draw = [&](int u, int nTop, std::wstring_view text, int nOffset) {
        const POINT pt = frame.At(u, nTop);
        ::ExtTextOutW(hDC, pt.x + nOffset, pt.y + nOffset, ETO_CLIPPED, &rcClip, text.data(),
                      static_cast<UINT>(text.size()), nullptr);
    };
    const bool bUsable = IsEnabled() && m_set.IsUsable(nTab);
    for (const CaptionLine& line : lines) {
        const std::wstring text =
            FitText(hDC, std::wstring_view(caption.text).substr(line.nStart, line.nLength), nWidth);
        const int nSpare = std::max(nWidth - line.nWidth, 0);
        const int u = place.left + static_cast<int>(Number(Id::AlignTextH) * nSpare / 2);
        if (!bUsable) {
            ::SetTextColor(hDC, Color(Id::ThreeDHighlightColor));
            draw(u, v, text, 1);
        }
        const COLORREF cr = Color(bUsable ? Id::ForeColor : Id::ThreeDShadowColor);
        ::SetTextColor(hDC, cr);
        draw(u, v, text, 0);
        const size_t nMark = caption.nMnemonic - line.nStart;
        if (bUsable && caption.nMnemonic >= line.nStart && nMark < line.nLength) {
            SIZE before = {};
            SIZE mark = {};
            ::GetTextExtentPoint32W(hDC, text.data(), static_cast<int>(nMark), &before);
            ::GetTextExtentPoint32W(hDC, &caption.text[caption.nMnemonic], 1, &mark);
            const int nBase = v + metrics.tmAscent + 1;
            FillSolid(hDC, frame.RectAt({u + before.cx, nBase, u + before.cx + mark.cx, nBase + 1}),
                      cr);
        }
        v += metrics.tmHeight;
    }
}

/// Around what the tab holds, or around all of it.
void TabStrip::DrawFocus(HDC hDC, const RECT& rect) {
    constexpr LONG kNone = 0;
    constexpr LONG kAroundAll = 2;
    const LONG nKind = Number(Id::DrawFocusRect);
    if (nKind == kNone) {
        return;
    }
    const int nInset = nKind == kAroundAll ? 1 : 3;
    const RECT rc = {rect.left + nInset, rect.top + nInset, rect.right - nInset,
                     rect.bottom - nInset};
    if (rc.left < rc.right && rc.top < rc.bottom) {
        ::SetTextColor(hDC, RGB(0, 0, 0));
        ::SetBkColor(hDC, RGB(255, 255, 255));
        ::DrawFocusRect(hDC, &rc);
    }
}

void TabStrip::DrawArrow(HDC hDC, bool bForward) {
    const RECT rc = ToRECT(Layout().ArrowRect(bForward));
    FillSolid(hDC, rc, Color(Id::BackColor));
    DrawEdges(hDC, rc, 1, Color(Id::ThreeDHighlightColor), Color(Id::ThreeDShadowColor));
    const int nSize = std::min<int>(rc.right - rc.left, rc.bottom - rc.top) / 4;
    const POINT middle = {(rc.left + rc.right) / 2, (rc.top + rc.bottom) / 2};
    const int nTip = bForward ? nSize / 2 : -nSize / 2;
    const int nBack = bForward ? nTip - nSize : nTip + nSize;
    std::array<POINT, 3> points = {POINT{nTip, 0}, POINT{nBack, -nSize}, POINT{nBack, nSize}};
    for (POINT& pt : points) {
        if (!IsLying()) {
            std::swap(pt.x, pt.y);
        }
        pt = {middle.x + pt.x, middle.y + pt.y};
    }
    const COLORREF cr = Color(Layout().CanScroll(bForward) ? Id::ForeColor : Id::ThreeDShadowColor);
    const Selected pen(hDC, ::GetStockObject(DC_PEN));
    const Selected brush(hDC, ::GetStockObject(DC_BRUSH));
    ::SetDCPenColor(hDC, cr);
    ::SetDCBrushColor(hDC, cr);
    ::Polygon(hDC, points.data(), static_cast<int>(points.size()));
}

}  // namespace ocx
