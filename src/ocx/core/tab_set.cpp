#include "ocx/core/tab_set.h"

#include <algorithm>

namespace qv {

// A handler may switch on; handlers that send each other back and forth end here.
static constexpr int kDeepest = 8;

namespace {

class Depth {
public:
    explicit Depth(int& n) : m_n(++n) {}
    ~Depth() { --m_n; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;

private:
    int& m_n;
};

}  // namespace

void TabSet::Become(int nTab, bool bTell) {
    m_nActive = nTab;
    ++m_nChanges;
    if (bTell && nTab >= 0 && m_nDepth < kDeepest) {
        const Depth depth(m_nDepth);
        m_events.Activated(nTab);
    }
}

void TabSet::SetCount(int nCount) {
    if (nCount == Count() || nCount < 0) {
        return;
    }
    m_states.resize(nCount, TabState::Normal);
    ++m_nChanges;
    if (m_nActive < 0 || m_nActive >= nCount) {
        const int nTab = NearestUsable(std::max(std::min(m_nActive, nCount - 1), 0));
        if (nTab != m_nActive) {
            Become(nTab, true);
        }
    }
}

void TabSet::SetState(int nTab, TabState state) {
    if (!Has(nTab) || m_states[nTab] == state) {
        return;
    }
    m_states[nTab] = state;
    if (nTab == m_nActive && state == TabState::Hidden) {
        Become(NearestUsable(nTab), true);
    } else if (m_nActive < 0 && state == TabState::Normal) {
        Become(nTab, true);
    }
}

bool TabSet::Activate(int nTab, bool bTell) {
    if (nTab == m_nActive) {
        return true;
    }
    if (!Has(nTab) || m_states[nTab] == TabState::Hidden) {
        return false;
    }
    if (bTell) {
        if (m_nDepth >= kDeepest || std::ranges::find(m_asked, nTab) != m_asked.end()) {
            return false;
        }
        const unsigned nChanges = m_nChanges;
        m_asked.push_back(nTab);
        bool bMay = false;
        {
            const Depth depth(m_nDepth);
            bMay = m_events.MayActivate(nTab);
        }
        m_asked.pop_back();
        if (!bMay || nChanges != m_nChanges || m_states[nTab] == TabState::Hidden) {
            return m_nActive == nTab;
        }
    }
    Become(nTab, bTell);
    return m_nActive == nTab;
}

int TabSet::Next(int nTab, int nStep, bool bWrap) const {
    for (int n = 0, nNext = nTab; n < Count(); ++n) {
        nNext += nStep;
        if (!Has(nNext)) {
            if (!bWrap) {
                return -1;
            }
            nNext = nStep > 0 ? 0 : Count() - 1;
        }
        if (m_states[nNext] == TabState::Normal) {
            return nNext;
        }
    }
    return -1;
}

int TabSet::NearestUsable(int nTab) const {
    if (IsUsable(nTab)) {
        return nTab;
    }
    const int nBehind = Next(nTab, 1, false);
    return nBehind >= 0 ? nBehind : Next(nTab, -1, false);
}

}  // namespace qv
