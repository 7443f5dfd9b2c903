// What is selected of a text of many lines, as a state machine: what mouse and keys do to it. It
// reaches from an anchor to a caret, both between characters. It knows no window: rows and widths
// it asks for.

#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qv {

// Between two characters of a line, counted in bytes of what shows of it.
struct TextPlace {
    int nLine = 0;
    int nByte = 0;
    friend auto operator<=>(const TextPlace&, const TextPlace&) = default;
};

// The bytes of a line that a row shows.
struct ShownPiece {
    int nLine = 0;
    int nFrom = 0;
    int nTo = 0;
};

// Lines, and the rows that they are shown in, in the order of the lines. Any of them may be other
// ones at the next question.
class SelectableText {
public:
    virtual ~SelectableText() = default;
    virtual int Lines() const = 0;
    virtual std::string_view Text(int nLine) const = 0;  // of a line that there is
    virtual std::size_t CharBytes(std::string_view text) const = 0;
    virtual int Rows() const = 0;
    virtual int LineOfRow(int nRow) const = 0;
    virtual ShownPiece Piece(int nRow) = 0;
    // As they are drawn: widths[i] is where the character ends that holds byte i.
    virtual void Widths(std::string_view piece, std::vector<int>& widths) = 0;
};

// Where a row shows a place, in pixels from its left edge.
int PixelOf(SelectableText& text, const ShownPiece& piece, int nByte);
// The place nearest to a pixel of a row.
TextPlace PlaceAt(SelectableText& text, int nRow, int x);
// The row that shows a place; of two the lower one. -1 without rows.
int RowOf(SelectableText& text, TextPlace place);

class TextSelection {
public:
    bool IsEmpty() const { return m_anchor == m_caret; }
    TextPlace First() const { return m_anchor < m_caret ? m_anchor : m_caret; }
    TextPlace Last() const { return m_anchor < m_caret ? m_caret : m_anchor; }
    TextPlace Anchor() const { return m_anchor; }
    TextPlace Caret() const { return m_caret; }
    bool IsDragging() const { return m_bDragging; }

    void Clear() { *this = {}; }
    // Nothing is selected any more once lines have gone; nGeneration tells that.
    void FollowLines(unsigned nGeneration);

    void Press(TextPlace place, bool bExtend);
    void PressWord(const SelectableText& text, TextPlace place);
    void Drag(TextPlace place);
    void Release() { m_bDragging = false; }
    // A VK_ code with the shift key held. Without a caret it begins at the start of row nTopRow.
    // False for a key that moves no caret.
    bool Key(SelectableText& text, unsigned nKey, bool bControl, int nTopRow, int nPage);
    void SelectAll(const SelectableText& text);

    // The bytes of a piece that are selected; bBreak: the line's end behind them as well.
    struct Part {
        int nFrom = 0;
        int nTo = 0;
        bool bBreak = false;
    };
    Part PartOf(const SelectableText& text, const ShownPiece& piece) const;
    // Lines end in CR LF, the last one only where its end is selected.
    std::string Selected(const SelectableText& text) const;

private:
    TextPlace m_anchor;
    TextPlace m_caret;
    int m_nGoal = -1;  // the pixel that moves from row to row keep to; -1: the caret's own
    bool m_bPlaced = false;
    bool m_bDragging = false;
    unsigned m_nGeneration = 0;
};

}  // namespace qv
