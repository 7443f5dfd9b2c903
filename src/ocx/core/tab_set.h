// Which tab of a tab strip is the active one, and how another becomes it.
//
// Whoever is asked or told may come back with anything: activate another tab, change the number of
// tabs. What was done last counts; a switch that was overtaken while it was asked about is dropped.

#pragma once

#include <vector>

namespace qv {

enum class TabState { Normal, Disabled, Hidden };

class TabEvents {
public:
    /// nTab is about to become active, the old one still is; false: it does not.
    virtual bool MayActivate(int nTab) = 0;
    virtual void Activated(int nTab) = 0;

protected:
    ~TabEvents() = default;
};

class TabSet {
public:
    explicit TabSet(TabEvents& events) : m_events(events) {}

    int Count() const { return static_cast<int>(m_states.size()); }
    /// -1 if there is none.
    int Active() const { return m_nActive; }
    bool Has(int nTab) const { return nTab >= 0 && nTab < Count(); }
    TabState State(int nTab) const { return Has(nTab) ? m_states[nTab] : TabState::Normal; }
    /// Can users go there?
    bool IsUsable(int nTab) const { return Has(nTab) && m_states[nTab] == TabState::Normal; }

    /// The first tabs bring an active one, and so does the end of the active one, without a
    /// question. The last tabs to go leave none. Throws bad_alloc with nothing changed.
    void SetCount(int nCount);
    /// A tab that hides hands over to the nearest usable one behind it, else before it.
    void SetState(int nTab, TabState state);
    /// Asks, changes, tells; bTell false: changes. False if it is not active then. A hidden tab
    /// does not become active, nor does one that is asked about already.
    bool Activate(int nTab, bool bTell = true);

    /// The usable tab nStep (1 or -1) from nTab on, around the ends if bWrap; -1: there is none.
    int Next(int nTab, int nStep, bool bWrap) const;

private:
    int NearestUsable(int nTab) const;
    void Become(int nTab, bool bTell);

    TabEvents& m_events;
    std::vector<TabState> m_states;
    int m_nActive = -1;
    unsigned m_nChanges = 0;
    std::vector<int> m_asked;  // tabs whose question is open
    int m_nDepth = 0;
};

}  // namespace qv
