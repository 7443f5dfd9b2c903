// The last edits of a grid, to be taken back and made again. An edit is a step: one cell, or all
// the cells that one deed has changed. The oldest ones go as newer ones come.

#pragma once

#include "grid/core/grid_model.h"

#include <deque>
#include <string>
#include <vector>

namespace qv {

struct CellEdit {
    GridCell cell;
    std::string strBefore;
    std::string strAfter;
};

class EditHistory {
public:
    static constexpr std::size_t kMostSteps = 100;
    static constexpr std::size_t kMostBytes = std::size_t{1} << 20;  // of all texts

    using Step = std::vector<CellEdit>;

    // What comes until the end is one step. An open step takes nothing back.
    void BeginStep() { ++m_nOpen; }
    void EndStep();
    // Drops what was taken back. May throw std::bad_alloc; nothing is added then.
    void Add(GridCell cell, std::string_view before, std::string_view after);
    void Clear();

    // The step that is next to be taken back or made again, which is done with that; null if there
    // is none. It stays valid until something is added.
    const Step* Undo();
    const Step* Redo();
    bool CanUndo() const { return m_nDone > 0 && m_nOpen == 0; }
    bool CanRedo() const { return m_nDone < m_steps.size() && m_nOpen == 0; }

    bool CheckInvariants() const;

private:
    void TrimOldest();

    std::deque<Step> m_steps;
    std::size_t m_nDone = 0;   // of them; those behind were taken back
    std::size_t m_nBytes = 0;  // of their texts
    int m_nOpen = 0;
    bool m_bStarted = false;  // the open step is the last one in m_steps
};

}  // namespace qv
