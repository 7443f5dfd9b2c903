#include "grid/core/grid_keys.h"

#include "base/platform_names.h"

#include <algorithm>

namespace qv {

bool IsWalkKey(unsigned nKey) {
    return nKey >= VK_PRIOR && nKey <= VK_DOWN;
}

GridCell KeyTarget(unsigned nKey, GridCell current, const GridModel& model, int nTopRow,
                   int nPage) {
    const int nLastRow = model.NumRows() - 1;
    const int nLastCol = model.NumColumns() - 1;
    GridCell target{current.nRow != -1 ? current.nRow : nTopRow,
                    current.nCol != -1 || nLastCol < 0 ? current.nCol : 0};
    switch (nKey) {
        case VK_LEFT:
            target.nCol -= current.nCol > 0 ? 1 : 0;
            break;
        case VK_RIGHT:
            target.nCol += current.nCol != -1 && current.nCol < nLastCol ? 1 : 0;
            break;
        case VK_UP:
            target.nRow -= current.nRow > 0 ? 1 : 0;
            break;
        case VK_DOWN:
            target.nRow += current.nRow != -1 && current.nRow < nLastRow ? 1 : 0;
            break;
        case VK_HOME:
            target.nRow = 0;
            break;
        case VK_END:
            target.nRow = nLastRow;
            break;
        case VK_NEXT:
            if (current.nRow != -1 && current.nRow < nLastRow) {
                target.nRow = std::min(current.nRow + std::max(nPage - 1, 0), nLastRow);
            }
            break;
        default:
            break;
    }
    return target;
}

int ListLineAfterKey(int nLine, bool bDown, int nCount) {
    if (nLine < 0) {
        return nCount > 0 ? 0 : -1;
    }
    return bDown ? std::min(nLine + 1, nCount - 1) : std::max(nLine - 1, 0);
}

bool LeavesEdit(unsigned nKey, int nStart, int nEnd, int nLength) {
    if (nKey == VK_UP || nKey == VK_DOWN) {
        return true;
    }
    return nStart == nEnd &&
           ((nKey == VK_LEFT && nStart == 0) || (nKey == VK_RIGHT && nStart == nLength));
}

bool IsTyped(unsigned nChar) {
    constexpr unsigned kDelete = 0x7F;
    return nChar >= ' ' && nChar != kDelete;
}

}  // namespace qv
