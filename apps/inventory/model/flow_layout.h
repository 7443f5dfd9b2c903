// Where controls go that may have less room than they were drawn for: groups in a bar that is too
// narrow for their rows, and rows in a panel that is too low for all of them.

#pragma once

#include <vector>

struct FlowGroup {
    int nLeft = 0;  // where it was drawn
    int nRow = 0;
    int nWidth = 0;
};

// Fills nLeft and nRow: as drawn where nWidth is enough for all, otherwise one behind the other,
// nGap between them, with as many rows as it takes. nMargin stays free at both sides, unless a
// group is too wide by itself. The number of rows.
int FlowGroups(std::vector<FlowGroup>& groups, int nWidth, int nMargin, int nGap);

struct RowsInColumns {
    int nInColumn = 1;  // at least
    int nHeight = 0;
    int nGap = 0;
};

// As high as asked where nRoom, in pixels like all of it, is enough for nRows below each other;
// otherwise closer together, then lower, and side by side in more columns where that is not enough.
RowsInColumns FitRows(int nRows, int nRoom, int nHeight, int nLeastHeight, int nGap);
