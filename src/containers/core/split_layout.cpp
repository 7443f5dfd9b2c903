#include "containers/core/split_layout.h"

#include "base/platform_names.h"

#include <algorithm>
#include <utility>

namespace qv {

namespace {

int Bounded(long long n) {
    return static_cast<int>(std::clamp<long long>(n, -kFarthest, kFarthest));
}

}  // namespace

int SplitLayout::Edge(int nPos, int nSide) const {
    return Bounded(static_cast<long long>(nPos) + nSide * (nBarWidth / 2));
}

Rect SplitLayout::Bar(int nPos) const {
    Rect rect = Client();
    (bVertical ? rect.left : rect.top) = Edge(nPos, -1);
    (bVertical ? rect.right : rect.bottom) = Edge(nPos, 1);
    return rect;
}

Rect SplitLayout::Pane(int nPane, int nPos) const {
    Rect rect = Client();
    if (nPane == 0) {
        (bVertical ? rect.right : rect.bottom) = Edge(nPos, -1);
    } else {
        (bVertical ? rect.left : rect.top) = Edge(nPos, 1);
    }
    return rect;
}

int SplitLayout::Dragged(Point pt) const {
    const int nPos = bVertical ? pt.x : pt.y;
    const int nLeast = 2 * nBarWidth;
    const int nMost = Length() - nLeast;
    return nPos < nLeast ? nLeast : nPos > nMost ? nMost : nPos;
}

std::optional<int> KeyTarget(const SplitLayout& layout, int nPos, unsigned nKey, bool bFine) {
    constexpr int kStep = 10;
    const int nStep = bFine ? 1 : kStep;
    long long nTo = nPos;
    switch (nKey) {
        case VK_LEFT:
        case VK_UP:
            nTo -= nStep;
            break;
        case VK_RIGHT:
        case VK_DOWN:
            nTo += nStep;
            break;
        case VK_HOME:
            nTo = 0;
            break;
        case VK_END:
            nTo = layout.Length();
            break;
        default:
            return std::nullopt;
    }
    return layout.Dragged({Bounded(nTo), Bounded(nTo)});
}

int SplitPercent(int nPos, int nLength) {
    return nLength >= 1 ? Bounded((static_cast<long long>(nPos) * 200 + nLength) / (2LL * nLength))
                        : kDefaultSplit;
}

int SplitPosition(int nRatio, int nLength) {
    return Bounded(static_cast<long long>(nRatio) * nLength / 100);
}

int SplitRatio(int nPos, int nLength) {
    return nLength >= 1 ? Bounded(static_cast<long long>(nPos) * 100 / nLength) : kDefaultSplit;
}

void SplitBar::BeginResize(int nLength) {
    if (m_nRatio != kKeepPosition) {
        m_nPos = SplitPosition(m_nRatio, nLength);
    }
}

void SplitBar::EndResize(int nLength) {
    if (m_nRatio == kKeepPosition) {
        TakeRatio(nLength);
    }
}

bool SplitBar::Press(const SplitLayout& layout, Point pt) {
    if (m_bTracking || !layout.Bar(m_nPos).Contains(pt)) {
        return false;
    }
    m_bTracking = 1;
    m_nTrackStart = m_nPos;
    return true;
}

std::optional<SplitBar::TrackerStep> SplitBar::MoveTo(const SplitLayout& layout, Point pt) {
    if (!m_bTracking) {
        return std::nullopt;
    }
    const int nTo = layout.Client().Contains(pt) ? layout.Dragged(pt) : m_nTrackStart;
    const int nFrom = std::exchange(m_nPos, nTo);
    return nFrom != nTo ? std::optional(TrackerStep{nFrom, nTo}) : std::nullopt;
}

bool SplitBar::Release() {
    return std::exchange(m_bTracking, 0) != 0;
}

std::optional<int> SplitBar::Cancel() {
    if (!Release()) {
        return std::nullopt;
    }
    return std::exchange(m_nPos, m_nTrackStart);
}

}  // namespace qv
