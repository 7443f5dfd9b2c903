// Plays resizes and drags on the bar of a split window and checks what comes of each.
#pragma once

#include "containers/core/split_layout.h"

#include <algorithm>
#include <set>

class SplitPlayer {
public:
    SplitPlayer(bool bVertical, int nBarWidth) : m_layout{{}, bVertical, nBarWidth} {}

    void SetRatio(int nRatio) { m_nRatio = nRatio; }
    // These say whether all is as it should be.
    bool Resize(qv::Size client) {
        bool bRight = Cancel();
        m_layout.client = client;
        const long long nLength = m_layout.Length();
        const long long nPos =
            m_nRatio == qv::kKeepPosition ? m_nPos : Bounded(m_nRatio * nLength / 100);
        const long long nRatio = m_nRatio != qv::kKeepPosition ? m_nRatio : RatioOf(nPos);
        m_bar.BeginResize(m_layout.Length());
        m_bar.EndResize(m_layout.Length());
        return bRight && m_nPos == nPos && m_nRatio == nRatio;
    }
    bool Press(qv::Point pt) {
        const int nPos = m_nPos;
        const bool bStarts = !m_bTracking && m_layout.Bar(nPos).Contains(pt);
        if (m_bar.Press(m_layout, pt)) {
            m_nStart = nPos;
            Toggle(nPos);
        } else if (bStarts) {
            return false;
        }
        return m_nPos == nPos && Whole();
    }
    bool MoveTo(qv::Point pt) {
        const int nOldPos = m_nPos;
        if (const auto step = m_bar.MoveTo(m_layout, pt)) {
            Toggle(step->nFrom);
            Toggle(step->nTo);
        }
        const int nMargin = 2 * m_layout.nBarWidth;
        const int nMost = m_layout.Length() - nMargin;
        const int nAt = m_layout.bVertical ? pt.x : pt.y;
        return Whole() && (!m_bTracking                      ? m_nPos == nOldPos
                           : !m_layout.Client().Contains(pt) ? m_nPos == m_nStart
                           : nMost >= nMargin ? m_nPos == std::clamp(nAt, nMargin, nMost)
                                              : m_nPos == nMargin || m_nPos == nMost);
    }
    bool Release() {
        if (m_bar.Release()) {
            Toggle(m_nPos);
            m_bar.TakeRatio(m_layout.Length());
            return Whole() && m_nRatio == RatioOf(m_nPos);
        }
        return Whole();
    }
    bool Cancel() {
        const int nBefore = m_bTracking ? m_nStart : m_nPos;
        if (const auto tracker = m_bar.Cancel()) {
            Toggle(*tracker);
        }
        return !m_bTracking && m_nPos == nBefore && Whole();
    }

private:
    static long long Bounded(long long n) {
        return std::clamp<long long>(n, -qv::kFarthest, qv::kFarthest);
    }
    long long RatioOf(long long nPos) const {
        return m_layout.Length() < 1 ? 50 : Bounded(nPos * 100 / m_layout.Length());
    }
    // Drawing twice in one place erases.
    void Toggle(int nPos) {
        if (!m_drawn.insert(nPos).second) {
            m_drawn.erase(nPos);
        }
    }
    // One tracker, at the bar, as long as it is dragged.
    bool Whole() const {
        return m_drawn == (m_bTracking ? std::set<int>{m_nPos} : std::set<int>{});
    }

    qv::SplitLayout m_layout;
    int m_nPos = 0;
    int m_nRatio = qv::kDefaultSplit;
    int m_bTracking = 0;
    int m_nTrackStart = 0;
    int m_nStart = 0;
    std::set<int> m_drawn;
    qv::SplitBar m_bar{m_nPos, m_nRatio, m_bTracking, m_nTrackStart};
};
