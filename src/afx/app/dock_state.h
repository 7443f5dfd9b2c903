// Where a frame's bars lie, as CFrameWnd::SaveBarState keeps it from one run to the next. Included
// by afxadv.h and afxpriv.h.
#pragma once

#include "afx/drawing/gdi.h"

#include <vector>

class CControlBar;

/// One bar.
struct CControlBarInfo {
    UINT nBarID = 0;
    BOOL bVisible = TRUE;
    BOOL bFloating = FALSE;
    UINT nDockBarID = 0;       ///< that it lies in, or lay in last
    BOOL bBesideLast = FALSE;  ///< in one row with the bar before it
    int nOffset = 0;           ///< along the edge, in pixels
    CPoint pointFloat;         ///< on the screen
    int nMRUWidth = 0;
};

/// In the order in which the bars lie, each dock bar's from its first row on.
class QVAFX_API CDockState {
public:
    std::vector<CControlBarInfo> m_bars;

    void Clear() { m_bars.clear(); }
    /// In sections of the application's profile whose names begin with lpszProfileName.
    void LoadState(LPCTSTR lpszProfileName);
    void SaveState(LPCTSTR lpszProfileName) const;
};
