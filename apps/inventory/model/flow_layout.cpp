#include "model/flow_layout.h"

#include <algorithm>

namespace {

constexpr int kLeastGap = 1;  // between rows

}  // namespace

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

// Without a gap behind the last row of a column.
RowsInColumns FitRows(int nRows, int nRoom, int nHeight, int nLeastHeight, int nGap) {
    const int nMost = std::max((nRoom + kLeastGap) / (nLeastHeight + kLeastGap), 1);
    const int nColumns = (nRows + nMost - 1) / nMost;
    RowsInColumns rows;
    rows.nInColumn = (nRows + nColumns - 1) / nColumns;
    const int nPitch =
        std::clamp((nRoom + kLeastGap) / rows.nInColumn, nLeastHeight + kLeastGap, nHeight + nGap);
    rows.nHeight = std::min(nHeight, nPitch - kLeastGap);
    rows.nGap = nPitch - rows.nHeight;
    return rows;
}
