// The rows, or the columns, of a splitter. Internal to the framework.
#pragma once

#include "afx/app/splitter.h"

#include <algorithm>

struct CSplitterWnd::Axis {
    CRowColInfo* pLines;
    int nLines;
    int nGap;   ///< between two lines
    int nEdge;  ///< of each pane, at either side

    int Start(int nLine) const {
        int nStart = 0;
        for (int n = 0; n < nLine; ++n) {
            nStart += pLines[n].nCurSize + nGap;
        }
        return nStart;
    }
    /// The last line takes what the others leave. One that gets less than its least size, or would
    /// begin beyond the end, is not shown, and the one before it goes to the end.
    void LayOut(int nAll) const {
        int nLeft = std::max(nAll, 0);
        for (int n = 0; n < nLines; ++n) {
            const bool bLast = n == nLines - 1;
            int nSize = bLast ? nLeft : std::max(pLines[n].nIdealSize, 0);
            if (!bLast && nSize < pLines[n].nMinSize) {
                nSize = 0;  // the user closed it
            }
            nSize = std::min(nSize, nLeft);
            if (bLast && nSize < pLines[n].nMinSize && n > 0) {
                pLines[n - 1].nCurSize += nSize;
                nSize = 0;
            }
            pLines[n].nCurSize = nSize;
            nLeft = std::max(nLeft - nSize - nGap, 0);
        }
    }
    /// The user gives a line a size; the next one gives or takes, those behind it stay. Gives the
    /// line that has become smaller than its least size and has to go in a dynamic splitter, or -1;
    /// in a static one that line is closed.
    int Track(int nLine, int nSize, bool bDynamic) const {
        CRowColInfo& line = pLines[nLine];
        const int nGrowth = nSize - line.nCurSize;
        line.nIdealSize = std::max(nSize, 0);
        if (nSize < line.nMinSize) {
            if (bDynamic) {
                return nLine;
            }
            line.nIdealSize = 0;
        } else if (nLine + 1 < nLines) {
            CRowColInfo& next = pLines[nLine + 1];
            const int nNext = next.nCurSize - nGrowth;
            if (bDynamic && nNext < next.nMinSize) {
                return nLine + 1;
            }
            if (nLine + 2 < nLines) {
                next.nIdealSize = std::max(nNext, 0);
            }
        }
        return -1;
    }
    void Get(int nLine, int nMost, int& nCur, int& nMin) const {
        const bool bThere = nLine >= 0 && nLine < nMost && pLines != nullptr;
        nCur = bThere ? pLines[nLine].nCurSize : 0;
        nMin = bThere ? pLines[nLine].nMinSize : 0;
    }
    void Set(int nLine, int nMost, int nIdeal, int nMin) const {
        if (nLine >= 0 && nLine < nMost && pLines != nullptr) {
            pLines[nLine].nIdealSize = std::max(nIdeal, 0);
            pLines[nLine].nMinSize = std::max(nMin, 0);
        }
    }
};
