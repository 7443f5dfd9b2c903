// A grid in the foreground whose neighbour has the focus.
#pragma once

#include "support/grid_window.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <gtest/gtest.h>

class GridInFront : public testing::Test {
protected:
    explicit GridInFront(int nRows) : w(nRows), grid(w.grid) {
        BringToFront(w.parent.m_hWnd);
        w.other.SetFocus();
        PumpPending();
    }
    bool Click(int nRow, int nCol) { return ClickAt(grid.m_hWnd, w.At(nRow, nCol)); }
    void AltDown() { TypeKey(VK_DOWN, false, false, true); }
    /// In the grid's client pixels.
    CRect RectOf(HWND hWnd) {
        CRect rc;
        ::GetWindowRect(hWnd, &rc);
        grid.ScreenToClient(&rc);
        return rc;
    }
    CRect ListRect() { return RectOf(w.List()); }

    GridWindow<> w;
    OpenGrid& grid;
};
