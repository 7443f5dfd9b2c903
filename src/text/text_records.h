// The plain types of the text window, for its class and its core.

#pragma once

// One row: which piece of which line it shows.
struct QVTEXTLINE {
    int nLine;
    int nSubLine;  // the piece, from 0; -1: a blank row that keeps two printed texts level
};

namespace qv {

// Where the view is, and what it reckons with: what classes derived from the window read and write.
struct TextViewState {
    int m_bShowVScroll = 1;
    int m_nCharWidth = 0;  // of "O" in the display font, in pixels
    int m_nCharHeight = 0;
    int m_nHScrollPos = 0;     // columns
    int m_nVScrollPos = 0;     // rows
    int m_nMaxLineLength = 0;  // bytes; 0 once text was wrapped
    int m_nNumRows = 0;
    int m_bHScrollBar = 0;
    int m_bVScrollBar = 0;
    int m_bUseProportionalFont = 1;  // 0: a fixed grid of characters that scrolls sideways
};

}  // namespace qv
