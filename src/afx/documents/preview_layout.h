// Where the sheets of a print preview lie in its window. Internal to the framework.
#pragma once

#include "afx/documents/preview_view.h"

#include <algorithm>

/// Sheets side by side, in pixels from the upper left corner of all that can be scrolled to.
struct AfxPreviewLayout {
    static constexpr int kEdge = 12;  // around each sheet

    CSize sheet = CSize(0, 0);
    CSize total = CSize(0, 0);  ///< all sheets with their edges, at least the window
    CPoint first = CPoint(0, 0);

    AfxPreviewLayout() = default;
    /// full: a sheet in its true size. nZoom: a ZOOM_ number. Zoomed out, all sheets fit the
    /// window; zoomed in, a sheet has its true size or twice that of zoomed out, whichever is more;
    /// in the middle, between.
    AfxPreviewLayout(CSize client, CSize full, int nSheets, UINT nZoom) {
        constexpr double kLeast = 0.02;
        const double fit = std::max(
            kLeast, std::min((client.cx - (nSheets + 1.0) * kEdge) / (double(nSheets) * full.cx),
                             (client.cy - 2.0 * kEdge) / full.cy));
        const double in = std::max(1.0, 2 * fit);
        const double scale = nZoom == ZOOM_OUT ? fit : nZoom == ZOOM_IN ? in : (fit + in) / 2;
        sheet = CSize(std::max(1, int(full.cx * scale)), std::max(1, int(full.cy * scale)));
        const CSize needed(nSheets * (sheet.cx + kEdge) + kEdge, sheet.cy + 2 * kEdge);
        total = CSize(std::max(needed.cx, client.cx), std::max(needed.cy, client.cy));
        first = CPoint((total.cx - needed.cx) / 2 + kEdge, (total.cy - needed.cy) / 2 + kEdge);
    }

    CRect Sheet(int nSheet) const {
        return CRect(CPoint(first.x + nSheet * (sheet.cx + kEdge), first.y), sheet);
    }
};
