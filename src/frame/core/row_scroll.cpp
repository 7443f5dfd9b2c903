#include "frame/core/row_scroll.h"

#include "base/platform_names.h"

#include <algorithm>
#include <limits>

namespace qv {

namespace {

constexpr int kAll = std::numeric_limits<int>::max();

}  // namespace

// --- Where a scroll code leads

std::optional<int> ScrollAxis::Down(int nRows) const {
    if (nPos >= MaxPos()) {
        return std::nullopt;
    }
    return nPos + std::clamp(nRows, 0, MaxPos() - nPos);
}

std::optional<int> ScrollAxis::Up(int nRows) const {
    if (nPos <= 0) {
        return std::nullopt;
    }
    return nPos - std::clamp(nRows, 0, nPos);
}

int ScrollAxis::Clamped(int n) const {
    return std::clamp(n, 0, std::max(MaxPos(), 0));
}

int ScrollAxis::Refitted() const {
    return std::min(nPos, std::max(MaxPos(), 0));
}

ScrollMove MoveOf(unsigned nCode, ScrollSteps steps, int nThumb) {
    using Kind = ScrollMove::Kind;
    switch (nCode) {
        case SB_LINEUP:
            return {Kind::Up, steps.nLine};
        case SB_LINEDOWN:
            return {Kind::Down, steps.nLine};
        case SB_PAGEUP:
            return {Kind::Up, steps.nPage};
        case SB_PAGEDOWN:
            return {Kind::Down, steps.nPage};
        case SB_THUMBPOSITION:
        case SB_THUMBTRACK:
            return {Kind::Thumb, nThumb};
        case SB_TOP:
            return {Kind::Top};
        case SB_BOTTOM:
            return {Kind::Bottom};
        default:
            return {};
    }
}

namespace {

std::optional<int> ThumbTarget(const ScrollAxis& axis, int nThumb, ThumbLimit limit) {
    switch (limit) {
        case ThumbLimit::Clamped:
            return axis.Clamped(nThumb);
        case ThumbLimit::Followed:
            return nThumb;
        case ThumbLimit::Refused:
            break;
    }
    const bool bBehind = axis.MaxPos() >= 0 && nThumb > axis.MaxPos();
    return nThumb < 0 || nThumb == axis.nPos || bBehind ? std::nullopt : std::optional(nThumb);
}

}  // namespace

std::optional<int> Target(const ScrollAxis& axis, ScrollMove move, ThumbLimit limit) {
    switch (move.kind) {
        case ScrollMove::Kind::Up:
            return axis.Up(move.nRows);
        case ScrollMove::Kind::Down:
            return axis.Down(move.nRows);
        case ScrollMove::Kind::Top:
            return axis.Up(kAll);
        case ScrollMove::Kind::Bottom:
            return axis.Down(kAll);
        case ScrollMove::Kind::Thumb:
            return ThumbTarget(axis, move.nRows, limit);
        case ScrollMove::Kind::None:
            break;
    }
    return std::nullopt;
}

int ThumbAtEnd(int nThumb, const ScrollRange& bar, const ScrollAxis& axis) {
    const int nEnd = bar.nMax - std::max(bar.nPage, 1) + 1;
    return nThumb >= nEnd ? std::min(nThumb, std::max(axis.MaxPos(), 0)) : nThumb;
}

// --- Which bars show

int WholeRows(int nPixels, int cyRow) {
    return cyRow > 0 ? std::max(nPixels, 0) / cyRow : 0;
}

BarPlan PlanBars(Size whole, Size bars, const ScrolledContent& content, BarRules rules) {
    BarPlan plan{whole};
    const auto show = [](bool& bBar, int& nRoom, int nBar) {
        bBar = true;
        nRoom -= nBar;
    };
    if (content.cx > whole.cx) {
        show(plan.bHorz, plan.room.cy, bars.cy);
    }
    if (!rules.bVert || content.cyRow <= 0 ||
        content.nRows <= WholeRows(plan.room.cy, content.cyRow)) {
        return plan;
    }
    show(plan.bVert, plan.room.cx, bars.cx);
    if (!plan.bHorz && content.cx + (rules.bTight ? 1 : 0) > plan.room.cx) {
        show(plan.bHorz, plan.room.cy, bars.cy);
    }
    return plan;
}

std::optional<int> RowScroll::ThumbPosition(int nBar, unsigned nCode) const {
    int nPos = 0;
    const bool bKnown = m_port.GetScrollPosition(nBar, nCode == SB_THUMBTRACK, nPos);
    return bKnown ? std::optional(nPos) : std::nullopt;
}

Size RowScroll::ClientSize() const {
    const Rect rc = m_port.ClientRect();
    return {rc.Width(), rc.Height()};
}

Size RowScroll::BarSizes() const {
    return {m_port.VerticalBarWidth(), m_port.HorizontalBarHeight()};
}

Size RowScroll::SizeWithout(bool bHorz, bool bVert) const {
    Size size = ClientSize();
    MakeRoom(size, {{}, bHorz, bVert}, {});
    return size;
}

bool RowScroll::ShowBar(int nBar, bool bShow) {
    const AliveWatch watch(m_alive);
    m_port.ShowScrollBar(nBar, bShow);
    return watch && m_port.HasWindow();
}

BarPlan RowScroll::ShownBars() const {
    const unsigned nStyle = m_port.Style();
    return {{}, (nStyle & WS_HSCROLL) != 0, (nStyle & WS_VSCROLL) != 0};
}

bool RowScroll::ChoosesItsSize() const {
    return (m_port.Style() & (WS_MAXIMIZE | WS_MINIMIZE)) == 0;
}

bool RowScroll::MakeRoom(Size& client, const BarPlan& shown, const BarPlan& next) const {
    const Size bars = BarSizes();
    const int cx = (int{shown.bVert} - int{next.bVert}) * bars.cx;
    const int cy = (int{shown.bHorz} - int{next.bHorz}) * bars.cy;
    client = {client.cx + cx, client.cy + cy};
    return cx != 0 || cy != 0;
}

}  // namespace qv
