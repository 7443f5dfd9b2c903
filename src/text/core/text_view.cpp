#include "text/core/text_view.h"

#include "base/platform_names.h"

#include <algorithm>
#include <cstdint>
#include <new>

namespace qv {

namespace {

// A bar that comes or goes makes another layout; they settle after two or three.
constexpr int kMostLayouts = 4;
// The second one is for a window that did not take the size that was reckoned with.
constexpr int kMostRounds = 2;

bool operator==(Size a, Size b) {
    return a.cx == b.cx && a.cy == b.cy;
}

class FlagScope {
public:
    explicit FlagScope(bool& bFlag) : m_bFlag(bFlag) { m_bFlag = true; }
    ~FlagScope() { m_bFlag = false; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

private:
    bool& m_bFlag;
};

}  // namespace

// --- Measures

Size TextView::ClientSize() const {
    const Rect rc = m_port.ClientRect();
    return {rc.Width(), rc.Height()};
}

Size TextView::ViewSize() const {
    const Size client = ClientSize();
    return {m_state.m_nCharWidth > 0 ? client.cx / m_state.m_nCharWidth : 0,
            m_state.m_nCharHeight > 0 ? client.cy / m_state.m_nCharHeight : 0};
}

void TextView::Format(int nWidth) {
    try {
        m_rows.Format(m_lines, m_styles, nWidth != 0 ? nWidth : ClientSize().cx, m_splitter);
    } catch (const std::bad_alloc&) {
        // The rows that there are go on showing; the next layout tries again.
    }
    m_state.m_nMaxLineLength = 0;
    m_state.m_nNumRows = m_rows.Count();
}

Size TextView::DataSize(int nWidth) {
    if (m_state.m_bUseProportionalFont) {
        Format(nWidth);
        return {nWidth != 0 ? nWidth : ClientSize().cx, m_rows.Count() * m_state.m_nCharHeight};
    }
    return {m_state.m_nMaxLineLength * m_state.m_nCharWidth,
            m_state.m_nNumRows * m_state.m_nCharHeight};
}

// --- Bars

// One layout in a client area that has the bars which the state names.
TextView::Fit TextView::FitOnce(Size client, bool bPartner) {
    TextViewState& state = m_state;
    const int cyBar = m_port.HorizontalBarHeight();
    const int cxBar = m_port.VerticalBarWidth();
    Size room{client.cx + (state.m_bVScrollBar ? cxBar : 0),
              client.cy + (state.m_bHScrollBar ? cyBar : 0)};
    const bool bWraps = state.m_bUseProportionalFont != 0;
    const auto dataSize = [&](int nWidth) { return DataSize(nWidth != 0 ? nWidth : client.cx); };
    const Size data = dataSize(room.cx);
    state.m_bHScrollBar = data.cx > room.cx;
    room.cy -= state.m_bHScrollBar ? cyBar : 0;
    const bool bWasShown = state.m_bVScrollBar != 0;
    state.m_bVScrollBar = state.m_bShowVScroll && room.cy < data.cy;
    if (state.m_bVScrollBar) {
        room.cx -= cxBar;
        if (!bWasShown && bWraps) {
            dataSize(room.cx);
        } else if (!state.m_bHScrollBar && data.cx >= room.cx) {
            state.m_bHScrollBar = 1;
            // Under wrapped text that bar is only reckoned with and never shows: it makes the page
            // shorter, but takes no room where there is no other.
            room.cy -= bWraps && room.cy <= cyBar ? 0 : cyBar;
        }
    }
    if (room.cx <= 0 || room.cy <= 0) {
        state.m_bHScrollBar = state.m_bVScrollBar = 0;
        return {room};
    }
    return {room, !bWraps && (bPartner || state.m_bHScrollBar), state.m_bVScrollBar != 0, true};
}

// Whether the rows do not fit a client area without a bar. A line has a row at least, so that many
// lines need no counting.
bool TextView::NeedsBar(Size whole) {
    const auto exceeds = [&](int nRows) {
        return static_cast<std::int64_t>(nRows) * m_state.m_nCharHeight > whole.cy;
    };
    if (exceeds(m_lines.Count())) {
        return true;
    }
    DisplayRows& rows = m_state.m_bVScrollBar ? m_unbarred : m_rows;
    try {
        rows.Format(m_lines, m_styles, whole.cx, m_splitter);
    } catch (const std::bad_alloc&) {
        return m_state.m_bVScrollBar != 0;
    }
    return exceeds(rows.Count());
}

TextView::Fit TextView::FitExactly(Size client) {
    const int cxBar = m_port.VerticalBarWidth();
    Size room{client.cx + (m_state.m_bVScrollBar ? cxBar : 0), client.cy};
    const bool bNeeded = m_state.m_bShowVScroll && NeedsBar(room);
    const bool bFits = room.cy > 0 && room.cx > (bNeeded ? cxBar : 0);
    room.cx -= bNeeded && bFits ? cxBar : 0;
    m_state.m_bHScrollBar = 0;
    m_state.m_bVScrollBar = bNeeded && bFits;
    Format(room.cx);
    return {room, false, m_state.m_bVScrollBar != 0, bFits};
}

// The client area when other bars show in it.
Size TextView::SizeWith(Size client, Fit shown, Fit next) const {
    const auto change = [](bool bShown, bool bNext) { return int{bShown} - int{bNext}; };
    return {client.cx + change(shown.bVert, next.bVert) * m_port.VerticalBarWidth(),
            client.cy + change(shown.bHorz, next.bHorz) * m_port.HorizontalBarHeight()};
}

// Lays out until the bars settle, without showing or hiding one: what one layout asks for is the
// next one's client area. That of the last one comes back. A window whose size is not its own to
// choose is laid out once.
TextView::Fit TextView::Plan(bool bPartner, Size& client) {
    const unsigned nStyle = m_port.Style();
    Fit fit;
    fit.bHorz = (nStyle & WS_HSCROLL) != 0;
    fit.bVert = (nStyle & WS_VSCROLL) != 0;
    client = ClientSize();
    for (int i = 0; i < kMostLayouts; ++i) {
        const Fit shown = fit;
        fit = FitsExactly() ? FitExactly(client) : FitOnce(client, bPartner);
        const Size next = SizeWith(client, shown, fit);
        const bool bSettled = next == client || (nStyle & (WS_MAXIMIZE | WS_MINIMIZE)) != 0;
        client = next;
        if (bSettled) {
            break;
        }
        m_bResized = true;
    }
    return fit;
}

void TextView::SetVerticalRange() {
    m_port.SetScrollRange(SB_VERT, {0, m_state.m_nNumRows - 1, m_nVPage, m_state.m_nVScrollPos});
}

void TextView::Apply(const Fit& fit, bool bPartner) {
    const int nMost = m_state.m_nMaxLineLength - 1;
    if (fit.bAny && m_state.m_bHScrollBar) {
        m_port.SetScrollRange(
            SB_HORZ, {0, nMost, fit.room.cx / m_state.m_nCharWidth, m_state.m_nHScrollPos});
    } else if (fit.bAny && bPartner) {
        m_port.SetScrollRange(SB_HORZ, {0, nMost, m_state.m_nMaxLineLength, 0});
    }
    if (fit.bVert) {
        m_nVPage = fit.room.cy / m_state.m_nCharHeight;
        SetVerticalRange();
    }
    m_port.ShowScrollBar(SB_HORZ, fit.bHorz);
    if (m_port.HasWindow()) {
        m_port.ShowScrollBar(SB_VERT, fit.bVert);
    }
}

void TextView::FitBars(bool bPartner) {
    if (!m_port.HasWindow() || !IsMeasured()) {
        return;
    }
    if (m_bFitting) {
        m_bResized = true;
        return;
    }
    m_bResized = false;
    {
        const FlagScope fitting(m_bFitting);
        for (int i = 0; i < kMostRounds; ++i) {
            Size planned;
            Apply(Plan(bPartner, planned), bPartner);
            if (!m_port.HasWindow() || ClientSize() == planned) {
                break;
            }
        }
    }
    if (FitsExactly() && m_port.HasWindow()) {
        Format(0);  // for a window that has still another width
    }
    if (m_bResized && m_port.HasWindow()) {
        ReturnToEnd();
    }
}

void TextView::Resize(bool bPartner) {
    if (m_bFitting) {
        m_bResized = true;
        return;
    }
    FitBars(bPartner);
    if (m_port.HasWindow()) {
        ReturnToEnd();
    }
}

void TextView::ReturnToEnd() {
    const Size view = ViewSize();
    TextViewState& state = m_state;
    if (state.m_nHScrollPos + view.cx > state.m_nMaxLineLength) {
        state.m_nHScrollPos = std::max(state.m_nMaxLineLength - view.cx, 0);
    }
    if (state.m_nVScrollPos + view.cy > state.m_nNumRows) {
        const int nPos = std::max(state.m_nNumRows - view.cy, 0);
        if (nPos != state.m_nVScrollPos) {
            state.m_nVScrollPos = nPos;
            if (state.m_bVScrollBar) {
                SetVerticalRange();
            }
        }
    }
}

}  // namespace qv
