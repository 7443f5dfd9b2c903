#include "text/core/text_view.h"

#include "base/no_memory.h"
#include "base/platform_names.h"

#include <algorithm>
#include <cstdint>

namespace qv {

void TextView::SetPartner(const AliveToken* pPartner) {
    m_partner.reset();
    if (pPartner != nullptr) {
        m_partner.emplace(*pPartner);
    }
}

// --- Rows

Size TextView::ViewSize() const {
    const Size client = m_scroll.ClientSize();
    return {WholeRows(client.cx, m_state.m_nCharWidth),
            WholeRows(client.cy, m_state.m_nCharHeight)};
}

ScrollAxis TextView::RowAxis() const {
    return {m_state.m_nVScrollPos, m_state.m_nNumRows, ViewSize().cy};
}

ScrollAxis TextView::ColumnAxis() const {
    return {m_state.m_nHScrollPos, m_state.m_nMaxLineLength, ViewSize().cx};
}

void TextView::ForgetWidths() {
    m_rows.Forget();
    m_unbarred.Forget();
}

void TextView::Format(int nWidth) {
    try {
        m_rows.Format(m_lines, m_styles, nWidth != 0 ? nWidth : m_scroll.ClientSize().cx,
                      m_splitter);
    } catch (...) {
        ExpectNoMemory();
        // The rows that there are go on showing; the next layout tries again.
    }
    m_state.m_nMaxLineLength = 0;
    m_state.m_nNumRows = m_rows.Count();
}

Size TextView::DataSize(int nWidth) {
    if (m_state.m_bUseProportionalFont) {
        Format(nWidth);
        return {nWidth != 0 ? nWidth : m_scroll.ClientSize().cx,
                m_rows.Count() * m_state.m_nCharHeight};
    }
    return {m_state.m_nMaxLineLength * m_state.m_nCharWidth,
            m_state.m_nNumRows * m_state.m_nCharHeight};
}

void TextView::CutLine(int nLine, int nWidth) {
    m_splitter.Split(LineText(m_styles, m_lines.Line(nLine)), nWidth, m_starts);
}

TextPiece TextView::Piece(int nPiece, int nLength) const {
    const auto n = static_cast<size_t>(nPiece);
    return {n < m_starts.size() ? m_starts[n] : nLength,
            n + 1 < m_starts.size() ? m_starts[n + 1] : -1};
}

// --- Layout

// One layout in a client area that has the bars which the state names.
TextView::Fit TextView::FitOnce(Size client) {
    TextViewState& state = m_state;
    const Size bars = m_scroll.BarSizes();
    const Size whole{client.cx + (state.m_bVScrollBar ? bars.cx : 0),
                     client.cy + (state.m_bHScrollBar ? bars.cy : 0)};
    const bool bWraps = state.m_bUseProportionalFont != 0;
    const bool bWasShown = state.m_bVScrollBar != 0;
    const auto dataWidth = [&](int nWidth) {
        return DataSize(nWidth != 0 ? nWidth : client.cx).cx;
    };
    ScrolledContent content{dataWidth(whole.cx), state.m_nNumRows, state.m_nCharHeight};
    if (bWraps && !bWasShown) {
        content.cx = 0;  // rows are made for the room there is
    }
    Fit fit{PlanBars(whole, bars, content, {state.m_bShowVScroll != 0, true})};
    if (bWraps && !bWasShown && fit.bVert) {
        dataWidth(fit.room.cx);
    }
    if (bWraps && fit.bHorz && fit.room.cy <= 0) {
        // Under wrapped text that bar is only reckoned with and never shows: it makes the page
        // shorter, but takes no room where there is no other.
        fit.room.cy += bars.cy;
    }
    fit.bAny = fit.room.cx > 0 && fit.room.cy > 0;
    state.m_bHScrollBar = fit.bAny && fit.bHorz;
    state.m_bVScrollBar = fit.bAny && fit.bVert;
    fit.bHorz = fit.bAny && !bWraps && (HasPartner() || fit.bHorz);
    fit.bVert = state.m_bVScrollBar != 0;
    return fit;
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
    } catch (...) {
        ExpectNoMemory();
        return m_state.m_bVScrollBar != 0;
    }
    return exceeds(rows.Count());
}

TextView::Fit TextView::FitExactly(Size client) {
    const int cxBar = m_scroll.BarSizes().cx;
    Fit fit{{{client.cx + (m_state.m_bVScrollBar ? cxBar : 0), client.cy}}};
    const bool bNeeded = m_state.m_bShowVScroll && NeedsBar(fit.room);
    fit.bAny = fit.room.cy > 0 && fit.room.cx > (bNeeded ? cxBar : 0);
    fit.bVert = bNeeded && fit.bAny;
    fit.room.cx -= fit.bVert ? cxBar : 0;
    m_state.m_bHScrollBar = 0;
    m_state.m_bVScrollBar = fit.bVert;
    Format(fit.room.cx);
    return fit;
}

void TextView::Apply(const Fit& fit) {
    const int nMost = m_state.m_nMaxLineLength - 1;
    if (fit.bAny && m_state.m_bHScrollBar) {
        m_port.SetScrollRange(SB_HORZ, {0, nMost, WholeRows(fit.room.cx, m_state.m_nCharWidth),
                                        m_state.m_nHScrollPos});
    } else if (fit.bAny && HasPartner()) {
        m_port.SetScrollRange(SB_HORZ, {0, nMost, m_state.m_nMaxLineLength, 0});
    }
    if (fit.bVert) {
        m_bar = {0, m_state.m_nNumRows - 1, WholeRows(fit.room.cy, m_state.m_nCharHeight),
                 m_state.m_nVScrollPos};
        m_port.SetScrollRange(SB_VERT, m_bar);
    }
    if (m_scroll.ShowBar(SB_HORZ, fit.bHorz)) {
        m_scroll.ShowBar(SB_VERT, fit.bVert);
    }
}

void TextView::FitBars() {
    if (!m_port.HasWindow() || !IsMeasured() || m_scroll.NoteResize()) {
        return;
    }
    const bool bThere = m_scroll.Fit([this] {
        m_scroll.Settle(
            [this](Size client) { return FitsExactly() ? FitExactly(client) : FitOnce(client); },
            [this](const Fit& fit) { Apply(fit); });
    });
    if (!bThere) {
        return;
    }
    if (FitsExactly()) {
        Format(0);  // for a window that has still another width
    }
    if (m_scroll.WasResized()) {
        ReturnToEnd();
    }
}

void TextView::Resize() {
    if (m_scroll.NoteResize()) {
        return;
    }
    const AliveWatch watch(m_alive);
    FitBars();
    if (watch && m_port.HasWindow()) {
        ReturnToEnd();
    }
}

void TextView::ReturnToEnd() {
    m_state.m_nHScrollPos = ColumnAxis().Refitted();
    const int nPos = RowAxis().Refitted();
    if (nPos != m_state.m_nVScrollPos) {
        m_state.m_nVScrollPos = nPos;
        if (m_state.m_bVScrollBar) {
            m_bar.nMax = m_state.m_nNumRows - 1;
            m_bar.nPos = nPos;
            m_port.SetScrollRange(SB_VERT, m_bar);
        }
    }
}

// --- Scrolling

int TextView::ThumbRow(unsigned nCode, int nPos) const {
    const std::optional<int> row =
        m_port.HasWindow() ? m_scroll.ThumbPosition(SB_VERT, nCode) : std::nullopt;
    if (!row) {
        return nPos;
    }
    return nCode == SB_THUMBTRACK ? ThumbAtEnd(*row, m_bar, RowAxis()) : *row;
}

bool TextView::VScroll(unsigned nCode, int nPos) {
    if (!m_port.HasWindow()) {
        return false;
    }
    const ScrollAxis rows = RowAxis();
    const ScrollMove move = MoveOf(nCode, {1, rows.nPage}, nPos);
    return Scroll(m_state.m_nVScrollPos, Target(rows, move, ThumbLimit::Refused), 0,
                  m_state.m_nCharHeight);
}

bool TextView::HScroll(unsigned nCode, int nPos) {
    if (!m_port.HasWindow()) {
        return false;
    }
    const ScrollAxis columns = ColumnAxis();
    const ScrollMove move = MoveOf(nCode, {1, columns.nPage}, nPos);
    return Scroll(m_state.m_nHScrollPos, Target(columns, move, ThumbLimit::Refused),
                  m_state.m_nCharWidth, 0);
}

// nPos is the position of the state that is to become target.
bool TextView::Scroll(int& nPos, std::optional<int> target, int cxUnit, int cyUnit) {
    if (!target) {
        return false;
    }
    const AliveWatch watch(m_alive);
    const auto there = [&] { return watch && m_port.HasWindow(); };
    const int nBack = nPos - *target;
    m_port.ScrollPixels(nBack * cxUnit, nBack * cyUnit, false);
    if (there()) {
        nPos = *target;
        FitBars();
    }
    if (there()) {
        m_port.Update();
    }
    return true;
}

int TextView::PositionFor(int nRow, int nMargin) const {
    return RowAxis().Clamped(nRow - nMargin);
}

}  // namespace qv
