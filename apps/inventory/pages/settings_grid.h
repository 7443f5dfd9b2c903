// SettingsGrid: a grid that tells where its current cell is, and goes to the cell at a point.

#pragma once

#include "QVControls.h"

class SettingsGrid : public QVGridCtrl {
public:
    // Of the current cell, in client coordinates; empty: there is none.
    CRect FocusRect() {
        CRect rc(0, 0, 0, 0);
        if (CurrentRow() >= 0) {
            EnsureRowVisible(CurrentRow());
            CalcCellRect(CurrentRow(), CurrentColumn(), rc);
        }
        return rc;
    }
    // Beside a cell that cannot be edited, to one of its row that can.
    void GoTo(CPoint pt) {
        int nRow = -1;
        int nCol = -1;
        CellFromPoint(pt, nRow, nCol);
        const auto goes = [&](int n) {
            return n >= 0 && GetColType(n) != gctStatic && IsCellEnabled(nRow, n);
        };
        for (int n = 0; !goes(nCol) && n < NumColumns(); ++n) {
            nCol = goes(n) ? n : nCol;
        }
        if (nRow >= 0 && goes(nCol) && (nRow != CurrentRow() || nCol != CurrentColumn())) {
            GotoCell(nRow, nCol, FALSE);
        }
    }
};
