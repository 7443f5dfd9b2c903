// The keys of a list's rows between two insertions in place, and whether they still hold.

#pragma once

#include "list/core/row_changes.h"
#include "list/core/sorted_places.h"

namespace qv {

class KeptPlaces {
public:
    // The list as it is now. Any difference to what it was then makes the keys be read anew.
    struct State {
        bool bNumeric;
        int nItems;
        int nColumns;
        int nStyles;
        friend bool operator==(const State&, const State&) = default;
    };

    bool Valid(const RowChanges& changes, const State& state) const {
        return m_bValid && m_state == state && !changes.Callbacks() &&
               m_nValidFor == changes.All() && static_cast<int>(rows.Count()) == state.nItems;
    }
    void SetValid(const RowChanges& changes, const State& state) {
        m_bValid = true;
        m_state = state;
        m_nValidFor = changes.All();
    }
    void Invalidate() { m_bValid = false; }

    SortedPlaces rows;

private:
    bool m_bValid = false;
    State m_state{};
    int m_nValidFor = 0;
};

}  // namespace qv
