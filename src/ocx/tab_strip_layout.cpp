// The tab strip: how large contents are, and where that puts the tabs.

#include "ocx/tab_strip.h"

#include "ocx/caption.h"
#include "ocx/tab_strip_drawing.h"
#include "ocx/tab_strip_members.h"

#include <algorithm>

namespace ocx {

using Id = TabStripId;

qv::TabSide TabStrip::Side() const {
    // 0 above, 1 below, 2 at the right, 3 at the left.
    return static_cast<qv::TabSide>(Number(Id::Orientation));
}

bool TabStrip::IsLying() const {
    return Side() == qv::TabSide::Top || Side() == qv::TabSide::Bottom;
}

bool TabStrip::IsTurned() const {
    return !IsLying() && Number(Id::TextOrientation) == 0;
}

int TabStrip::Pixels(DISPID id, bool bHorizontal) const {
    const SIZE dpi = PixelsPerInch();
    return TwipsToPixels(Number(id), bHorizontal ? dpi.cx : dpi.cy);
}

Owned<HFONT> TabStrip::MakeFont(bool bBold, bool bTurned) {
    LOGFONTW font = {};
    ::GetObjectW(Font().Handle(), sizeof font, &font);
    if (bBold) {
        font.lfWeight = FW_BOLD;
    }
    if (bTurned) {
        // Upwards at the left, downwards at the right; only outlines can be turned.
        constexpr LONG kUpwards = 900;
        constexpr LONG kDownwards = 2700;
        font.lfEscapement = Side() == qv::TabSide::Left ? kUpwards : kDownwards;
        font.lfOrientation = font.lfEscapement;
        font.lfOutPrecision = OUT_TT_ONLY_PRECIS;
    }
    return Owned<HFONT>(::CreateFontIndirectW(&font));
}

/// Width that lines may have, 0 for any.
int TabStrip::WrapWidth(const qv::TabStripMeasures& measures) const {
    if (!Flag(Id::WordWrap)) {
        return 0;
    }
    int nRoom = measures.nThickness - 2 * kAcrossPadding;
    if (RunsAlong()) {
        const int nSide = IsLying() ? measures.client.Width() : measures.client.Height();
        const int nShare =
            measures.nPerRow > 0 ? (nSide - 2 * measures.nInflation) / measures.nPerRow : 0;
        nRoom = (nShare > 0 ? nShare : measures.nMaxLength) - 2 * kAlongPadding;
    }
    const int nMargins = Pixels(Id::MarginLeft, IsLying()) + Pixels(Id::MarginRight, IsLying());
    return std::max(nRoom - nMargins, 0);
}

void TabStrip::Measure(HDC hDC, Tab& tab, int nWrap) {
    SIZE picture = PictureSize(tab.picture.Get());
    if (IsTurned()) {
        std::swap(picture.cx, picture.cy);
    }
    const bool bAbove = Number(Id::AlignPictureH) == kCentred;
    const int nBeside = picture.cx > 0 && !bAbove ? picture.cx + kPictureGap : 0;
    TEXTMETRICW metrics = {};
    ::GetTextMetricsW(hDC, &metrics);
    const bool bWraps = Flag(Id::WordWrap);
    const Caption caption(tab.caption, bWraps);
    const int nLine = nWrap > 0 ? std::max(nWrap - nBeside, 1) : 0;
    SIZE size = {};
    for (const CaptionLine& line : CaptionLines(hDC, caption.text, bWraps, nLine)) {
        size.cx = std::max<LONG>(size.cx, line.nWidth);
        size.cy += metrics.tmHeight;
    }
    if (bAbove && picture.cx > 0) {
        size.cx = std::max(size.cx, picture.cx);
        size.cy += picture.cy + kPictureGap;
    } else {
        size.cx += nBeside;
        size.cy = std::max(size.cy, picture.cy);
    }
    size.cx += Pixels(Id::MarginLeft, IsLying()) + Pixels(Id::MarginRight, IsLying());
    tab.content = {std::min<LONG>(size.cx, kLongestTab), std::min<LONG>(size.cy, kLongestTab)};
}

/// All but the thickness, where that depends on the tabs.
qv::TabStripMeasures TabStrip::Measures() {
    const RECT rc = ClientRect();
    const int nBorder = Number(Id::BorderStyle);
    qv::TabStripMeasures measures;
    measures.client = {nBorder, nBorder, std::max<int>(rc.right - nBorder, nBorder),
                       std::max<int>(rc.bottom - nBorder, nBorder)};
    measures.side = Side();
    measures.nThickness = std::min(Pixels(Id::TabHeight, !IsLying()), kLongestTab);
    measures.nPerRow = Number(Id::TabsPerRow);
    measures.nMaxLength = Pixels(Id::TabMaxWidth, IsLying());
    measures.nInflation = Number(Id::ActiveTabInflate);
    measures.nArrow = ::GetSystemMetrics(SM_CXHSCROLL);
    const Edges edges = EdgesOf(true);
    measures.nPageEdge = edges.nOuter + edges.nInner;
    return measures;
}

const qv::TabStripLayout& TabStrip::Layout() {
    const RECT rc = ClientRect();
    if (m_layout && !m_bShowActive && ::EqualRect(&rc, &m_rcLayout)) {
        return *m_layout;
    }
    const bool bWraps = Flag(Id::WordWrap);
    if (bWraps && !::EqualRect(&rc, &m_rcLayout)) {
        for (Tab& tab : m_tabs) {
            tab.content = {-1, -1};
        }
    }
    qv::TabStripMeasures measures = Measures();
    const int nWrap = WrapWidth(measures);
    const ScreenDC dc;
    const Owned<HFONT> bold = Flag(Id::ActiveTabBold) ? MakeFont(true, false) : Owned<HFONT>();
    const Selected font(dc, bold ? bold.Get() : Font().Handle());
    std::vector<int> lengths(m_set.Count(), -1);
    int nThickness = 0;
    for (int n = 0; n < m_set.Count(); ++n) {
        if (m_set.State(n) == qv::TabState::Hidden) {
            continue;
        }
        Tab& tab = m_tabs[n];
        if (tab.content.cx < 0) {
            Measure(dc, tab, nWrap);
        }
        const bool bAlong = RunsAlong();
        lengths[n] = (bAlong ? tab.content.cx : tab.content.cy) + 2 * kAlongPadding;
        nThickness = std::max<int>(nThickness, bAlong ? tab.content.cy : tab.content.cx);
    }
    if (measures.nThickness == 0) {
        measures.nThickness = nThickness + 2 * kAcrossPadding;
    }
    m_layout.emplace(measures, lengths, m_set.Active(), m_nFirst);
    if (m_bShowActive) {
        m_nFirst = m_layout->FirstToShow(m_set.Active());
        m_layout.emplace(measures, std::move(lengths), m_set.Active(), m_nFirst);
        m_bShowActive = false;
    }
    m_nFirst = m_layout->First();
    m_rcLayout = rc;
    return *m_layout;
}

int TabStrip::TabUnderPointer() {
    POINT pt = {};
    if (Window() == nullptr || !::GetCursorPos(&pt) || ::WindowFromPoint(pt) != Window()) {
        return -1;
    }
    ::ScreenToClient(Window(), &pt);
    return Layout().HitTest({pt.x, pt.y}).nTab;
}

}  // namespace ocx
