// What shows of a text: where the view begins, the size of rows, and the scroll bars that text and
// window need. Rows and columns are the units of scrolling; everything else is in pixels.

#pragma once

#include "base/window_port.h"
#include "text/core/text_rows.h"

namespace qv {

// The part that classes derived from the window read and write.
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

// Refers to all that it is made with and owns none of it.
class TextView {
public:
    TextView(TextViewState& state, WindowPort& port, const TextLines& lines,
             const StyleTable& styles, DisplayRows& rows, TextSplitter& splitter)
        : m_state(state),
          m_port(port),
          m_lines(lines),
          m_styles(styles),
          m_rows(rows),
          m_splitter(splitter) {}

    // Wraps the lines to a width, 0 being that of the client area. Without memory the rows stay.
    void Format(int nWidth);
    // Of the whole text in a width; wraps it where text is wrapped.
    Size DataSize(int nWidth);
    // Columns and rows that show whole; a font that is not measured yet shows none.
    Size ViewSize() const;

    // Exact: wrapped rows are always made for the width that a paint has, so that every byte of
    // every line shows in some row, and the page of the bar is what shows. Takes effect with the
    // next layout.
    void SetExact(bool bExact) { m_bExact = bExact; }
    bool IsExact() const { return m_bExact; }

    // Fits rows and both scroll bars to text and window. bPartner: another text scrolls with this
    // one, whose horizontal bar in the fixed grid keeps both equally high.
    //
    // Where a vertical bar was there already, rows stay made for the width without it, though a
    // paint splits at the width that there is: the last piece of a line that needs one more shows
    // with the next full layout. Callers rely on these rows; an exact layout has none of that.
    void FitBars(bool bPartner);
    // The window has another size. Fits the bars, and takes the view back to the last rows and
    // columns. A size that comes while bars are fitted, which they do themselves, is only noted.
    void Resize(bool bPartner);

private:
    // What a layout comes to: the room left, and the bars that show.
    struct Fit {
        Size room;
        bool bHorz = false;
        bool bVert = false;
        bool bAny = false;  // false: too little room for rows, and no bars
    };

    bool IsMeasured() const { return m_state.m_nCharWidth > 0 && m_state.m_nCharHeight > 0; }
    Size ClientSize() const;
    Size SizeWith(Size client, Fit shown, Fit next) const;
    Fit FitOnce(Size client, bool bPartner);
    Fit FitExactly(Size client);
    bool NeedsBar(Size whole);
    bool FitsExactly() const { return m_bExact && m_state.m_bUseProportionalFont; }
    Fit Plan(bool bPartner, Size& client);
    void Apply(const Fit& fit, bool bPartner);
    void SetVerticalRange();
    void ReturnToEnd();

    TextViewState& m_state;
    WindowPort& m_port;
    const TextLines& m_lines;
    const StyleTable& m_styles;
    DisplayRows& m_rows;
    TextSplitter& m_splitter;
    int m_nVPage = 0;  // of the vertical bar, in rows
    bool m_bExact = false;
    // In an exact layout with a bar and few lines: the rows that there were without the bar, which
    // tell whether it is needed.
    DisplayRows m_unbarred;
    bool m_bFitting = false;
    bool m_bResized = false;  // while fitting
};

}  // namespace qv
