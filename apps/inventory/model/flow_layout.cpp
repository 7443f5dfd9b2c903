#include "model/flow_layout.h"

#include <algorithm>

int FlowGroups(std::vector<FlowGroup>& groups, int nWidth, int nMargin, int nGap) {
    const bool bFits = std::all_of(groups.begin(), groups.end(), [&](const FlowGroup& group) {
        return group.nLeft + group.nWidth + nMargin <= nWidth;
    });
    int nRows = 0;
    int nLeft = nMargin;
    for (FlowGroup& group : groups) {
        if (!bFits) {
            const bool bNext = nLeft > nMargin && nLeft + group.nWidth + nMargin > nWidth;
            group.nRow = std::max(nRows - 1, 0) + (bNext ? 1 : 0);
            group.nLeft = bNext ? nMargin : nLeft;
            nLeft = group.nLeft + group.nWidth + nGap;
        }
        nRows = std::max(nRows, group.nRow + 1);
    }
    return nRows;
}
