// Where the tabs of a strip lie along one side of it, and the page that they leave. Pixels of the
// client area.
//
// Tabs have a length along their side and all the same thickness across it. In one row each has the
// length it asks for, and where they do not fit two arrows at the row's end scroll through them.
// With a fixed number to a row they share the side evenly and take as many rows as that needs; the
// active tab's row is next to the page. The active tab stands out by its inflation, for which there
// is room at both ends and outwards.

#pragma once

#include "base/geometry.h"

#include <vector>

namespace qv {

enum class TabSide { Top, Bottom, Right, Left };

struct TabStripMeasures {
    Rect client;
    TabSide side = TabSide::Top;
    int nThickness = 0;
    int nPerRow = 0;     ///< 0: one row
    int nMaxLength = 0;  ///< 0: as long as asked
    int nInflation = 0;
    int nArrow = 0;     ///< length of each of the two arrows
    int nPageEdge = 0;  ///< width of the page's edges
};

class TabStripLayout {
public:
    enum class Part { None, Tab, Back, Forward, Page };
    struct Hit {
        Part part;
        int nTab;  ///< -1: none
        friend bool operator==(const Hit&, const Hit&) = default;
    };

    TabStripLayout() = default;
    /// lengths: one for each tab, negative for one that is hidden. nFirst: the first that shows
    /// where there are arrows, brought into its limits.
    TabStripLayout(const TabStripMeasures& measures, std::vector<int> lengths, int nActive,
                   int nFirst);

    /// With its inflation; empty where it does not show.
    Rect TabRect(int nTab) const { return RectOf(nTab, true); }
    /// With what the end of the row cuts off.
    Rect WholeRect(int nTab) const { return RectOf(nTab, false); }
    /// What is beside the tabs, with its edges, and without.
    Rect PageRect() const;
    Rect PageInside() const;
    bool HasArrows() const { return m_bArrows; }
    Rect ArrowRect(bool bForward) const;
    bool CanScroll(bool bForward) const;
    Hit HitTest(Point pt) const;

    int First() const { return m_nFirst; }
    /// The first tab to show so that nTab shows wholly, as far as there is room for it.
    int FirstToShow(int nTab) const;
    int Rows() const { return m_nRows; }

private:
    struct Place {
        int nRow = 0;     ///< from the page outwards
        int nOffset = 0;  ///< along the side, not scrolled
        int nLength = -1;
    };

    int Along() const;
    int Across() const;
    int Band() const;
    int Room() const;
    Rect RectOf(int nTab, bool bCut) const;
    Rect ToClient(int nFrom, int nOut, int nTo, int nIn) const;
    void PlaceInOneRow(const std::vector<int>& lengths);
    void PlaceInRows(const std::vector<int>& lengths);

    TabStripMeasures m_measures;
    std::vector<Place> m_places;
    int m_nActive = -1;
    int m_nFirst = 0;
    int m_nRows = 0;
    bool m_bArrows = false;
};

}  // namespace qv
