// Random sizes, ratios and deeds of the mouse on the bar of a split window.

#include "containers/core/split_layout.h"

#include "fuzz_input.h"

#include <algorithm>
#include <set>

namespace {

// Plays on the bar and says of each deed whether what came of it is right.
class SplitPlayer {
public:
    SplitPlayer(bool bVertical, int nBarWidth) : m_layout{{}, bVertical, nBarWidth} {}

    void SetRatio(int nRatio) { m_nRatio = nRatio; }
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

// Mostly of a window's size; now and then anything.
int Number(FuzzInput& input) {
    const int n = input.Int() % 1100;
    return input.Byte() % 16 == 0 ? static_cast<int>(static_cast<unsigned>(n) * 2654435761u) : n;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzInput input(pData, nSize);
    SplitPlayer player(input.Byte() % 2 == 0, static_cast<int>(input.Byte() % 12));
    while (!input.AtEnd()) {
        const unsigned nDeed = input.Byte() % 8;
        const int x = Number(input);
        const int y = Number(input);
        if (nDeed == 0) {
            player.SetRatio(input.Byte() % 4 == 0 ? x : x % 101);
        }
        FUZZ_CHECK(nDeed == 0   ? true
                   : nDeed == 1 ? player.Resize({x, y})
                   : nDeed == 2 ? player.Release()
                   : nDeed == 3 ? player.Cancel()
                   : nDeed == 4 ? player.Press({x, y})
                                : player.MoveTo({x, y}));
    }
    return 0;
}
