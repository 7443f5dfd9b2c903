// What shows of a text: the rows, where the view begins among them, the scroll bars that text and
// window need, and where these lead. Rows and columns are the units of scrolling; everything else
// is in pixels.

#pragma once

#include "base/window_port.h"
#include "frame/alive.h"
#include "frame/core/row_scroll.h"
#include "text/core/display_rows.h"

#include <optional>

namespace qv {

// A part of a line, in bytes.
struct TextPiece {
    int nFrom;
    int nTo;  // -1: to the end
};

// Refers to all that it is made with and owns none of it. state may be written from outside at any
// time; the rows and the bars follow with the next layout.
//
// A bar that shows or goes leads out to the window, which may be destroyed then, and this object
// with it: who asks for a layout or a scroll from within the window takes a watch on Alive().
class TextView {
public:
    TextView(TextViewState& state, WindowPort& port, const TextLines& lines,
             const StyleTable& styles, TextMeasure& measure)
        : m_state(state),
          m_port(port),
          m_lines(lines),
          m_styles(styles),
          m_splitter(measure),
          m_scroll(port) {}

    const AliveToken& Alive() const { return m_alive; }
    // Another text that scrolls with this one: its horizontal bar in the fixed grid keeps both
    // equally high. Null, or one that is gone: none.
    void SetPartner(const AliveToken* pPartner);
    bool HasPartner() const { return m_partner && m_partner->ObjectAlive(); }

    // --- Rows

    // Wraps the lines to a width, 0 being that of the client area. Without memory the rows stay.
    void Format(int nWidth);
    // The font is another one.
    void ForgetWidths();
    const DisplayRows& Rows() const { return m_rows; }
    // Of the whole text in a width; wraps it where text is wrapped.
    Size DataSize(int nWidth);
    // Columns and rows that show whole; a font that is not measured yet shows none.
    Size ViewSize() const;
    // Cuts a line at the width that a paint has, which may be another one than rows were made for;
    // Piece then gives what piece nPiece of it is in a text of nLength bytes, nothing if there is
    // no such piece. May throw std::bad_alloc.
    void CutLine(int nLine, int nWidth);
    TextPiece Piece(int nPiece, int nLength) const;

    // --- Layout

    // Exact: wrapped rows are always made for the width that a paint has, so that every byte of
    // every line shows in some row, and the page of the bar is what shows. Takes effect with the
    // next layout.
    void SetExact(bool bExact) { m_bExact = bExact; }
    bool IsExact() const { return m_bExact; }

    // Fits rows and both scroll bars to text and window.
    //
    // Where a vertical bar was there already, rows stay made for the width without it, though a
    // paint splits at the width that there is: the last piece of a line that needs one more shows
    // with the next full layout. Callers rely on these rows; an exact layout has none of that.
    void FitBars();
    // The window has another size. Fits the bars, and takes the view back to the last rows and
    // columns. A size that comes while bars are fitted, which do that themselves, is only noted.
    void Resize();

    // --- Scrolling, by SB_ codes

    // The row that a message of the vertical bar means, nPos being its 16 bits.
    int ThumbRow(unsigned nCode, int nPos) const;
    // True if the view has moved: its pixels are moved and painted then, and the bars fitted.
    bool VScroll(unsigned nCode, int nPos);
    bool HScroll(unsigned nCode, int nPos);
    // The position that shows nRow, with nMargin rows above it, and fills the page.
    int PositionFor(int nRow, int nMargin) const;

private:
    // What a layout comes to: bAny is false where there is too little room for rows, and no bars.
    struct Fit : BarPlan {
        bool bAny = false;
    };

    bool IsMeasured() const { return m_state.m_nCharWidth > 0 && m_state.m_nCharHeight > 0; }
    ScrollAxis RowAxis() const;
    ScrollAxis ColumnAxis() const;
    Fit FitOnce(Size client);
    Fit FitExactly(Size client);
    bool NeedsBar(Size whole);
    bool FitsExactly() const { return m_bExact && m_state.m_bUseProportionalFont; }
    void Apply(const Fit& fit);
    void ReturnToEnd();
    bool Scroll(int& nPos, std::optional<int> target, int cxUnit, int cyUnit);

    TextViewState& m_state;
    WindowPort& m_port;
    const TextLines& m_lines;
    const StyleTable& m_styles;
    TextSplitter m_splitter;
    RowScroll m_scroll;
    AliveToken m_alive;
    std::optional<AliveWatch> m_partner;
    DisplayRows m_rows;
    // In an exact layout with a bar and few lines: the rows that there were without the bar, which
    // tell whether it is needed.
    DisplayRows m_unbarred;
    bool m_bExact = false;
    ScrollRange m_bar;          // the vertical one, as it was set last
    std::vector<int> m_starts;  // of the line that was cut
};

}  // namespace qv
