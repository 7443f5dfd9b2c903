// Where a bar goes while the user drags it. Internal to the framework.
#pragma once

#include "afx/app/control_bar.h"

/// From the button's press until it is released. A frame shows where the bar would come to lie;
/// over an edge where it may dock it has the shape that it gets there, elsewhere, or with CTRL held
/// down, that of the floating bar. Holds the mouse; whoever takes it away ends the drag.
class AfxBarDrag {
public:
    /// ptScreen: where the button went down.
    AfxBarDrag(CControlBar* pBar, CPoint ptScreen);
    ~AfxBarDrag();  ///< takes the frame off the screen
    AfxBarDrag(const AfxBarDrag&) = delete;
    AfxBarDrag& operator=(const AfxBarDrag&) = delete;

    void Move(CPoint ptScreen);
    /// Docks the bar or lets it float where it was dragged to. The bar may be gone afterwards.
    void Drop(CPoint ptScreen);
    /// From the dock to where it floated last, and back.
    static void Toggle(CControlBar* pBar);

private:
    struct Place {
        UINT nDockBarID = 0;  ///< 0: floating
        CRect rect;           ///< on the screen
    };
    Place PlaceAt(CPoint ptScreen) const;
    void Draw(const CRect* pRect);

    CControlBar* const m_pBar;
    const CPoint m_ptStart;
    const CSize m_sizeHorz;  ///< of the bar along the upper or lower edge
    const CSize m_sizeVert;
    const CSize m_sizeFloat;
    CSize m_offset;  ///< from the bar's corner to the pointer
    bool m_bMoved = false;
    CRect m_rectLast;
    bool m_bDrawn = false;
};
