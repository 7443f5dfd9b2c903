// The current cell of a flexible grid and the cells selected with it, and where keys and mouse take
// them.

#pragma once

#include "ocx/core/flex_grid_view.h"

#include <algorithm>
#include <optional>

namespace qv {

enum FlexGridSelectionMode { fgsFree, fgsByRow, fgsByColumn };

struct FlexGridSelection {
    int nRow = 0;  // of the current cell; the selection reaches to nRowSel and nColSel
    int nCol = 0;
    int nRowSel = 0;
    int nColSel = 0;
    FlexGridRange Range() const {
        return {std::min(nRow, nRowSel), std::min(nCol, nColSel), std::max(nRow, nRowSel),
                std::max(nCol, nColSel)};
    }
    bool HasCursorOf(const FlexGridSelection& other) const {
        return nRow == other.nRow && nCol == other.nCol;
    }
    friend bool operator==(const FlexGridSelection&, const FlexGridSelection&) = default;
};

struct FlexGridKey {
    unsigned nKey = 0;  // a VK_ value
    bool bShift = false;
    bool bControl = false;
};

// What a press began to select, and a drag goes on with.
enum class FlexGridDrag { None, Cells, Rows, Columns };

// How a person selects. Fixed cells are never selected that way, only whole rows and columns by
// them.
struct FlexGridSelector {
    const FlexGridModel& model;
    FlexGridSelectionMode mode = fgsFree;
    bool bBigSelection = true;  // a fixed cell selects its row or column

    // None if the key means nothing here.
    std::optional<FlexGridSelection> AfterKey(const FlexGridSelection& current, FlexGridKey key,
                                              const FlexGridView& view) const;
    // A press on a cell; none where it selects nothing. drag becomes what it began.
    std::optional<FlexGridSelection> AfterPress(const FlexGridSelection& current, int nRow,
                                                int nCol, bool bShift, FlexGridDrag& drag) const;
    // The cell under the mouse or nearest to it.
    FlexGridSelection Dragged(const FlexGridSelection& current, int nRow, int nCol,
                              FlexGridDrag drag) const;
    // As far as there are such cells, as the mode wants it.
    FlexGridSelection Fitted(FlexGridSelection selection) const;

private:
    bool HasFreeCells() const {
        return model.Rows() > model.FixedRows() && model.Cols() > model.FixedCols();
    }
    FlexGridSelection Spread(int nRow, int nCol, int nRowSel, int nColSel) const;
};

}  // namespace qv
