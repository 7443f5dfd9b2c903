// Where groups of controls go in a bar that may be too narrow for the rows that they were drawn in.

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
