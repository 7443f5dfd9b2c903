// Word wrap: breaks a text into pieces that fit a width.

#pragma once

#include "base/text_measure.h"

#include <string_view>
#include <vector>

namespace qv {

// starts receives the byte at which each piece begins; the first is 0.
//
// A text that fits is one piece, line feeds included. Any other breaks at each line feed, which
// stays with the piece before it, and where the next byte would pass the width: behind a run of
// blanks that begins there, else at the start of the word, else at that byte. Blanks stay with the
// piece before them, so a run of blanks at the end may leave an empty last piece. A byte counts
// with the width of its whole character, which therefore stays in one piece; a character at the
// very start of a line that is too wide by itself leaves an empty piece before it. Callers rely on
// these pieces.
//
// The time is linear in the text: many starts of a piece are measured in one call.
class TextSplitter {
public:
    explicit TextSplitter(TextMeasure& measure) : m_measure(measure) {}
    void Split(std::string_view text, int nWidth, std::vector<int>& starts);

private:
    bool Fits(std::string_view text, int nWidth);
    size_t FirstBeyond(std::string_view text, size_t nStart, size_t nFrom, size_t nEnd, int nWidth);

    TextMeasure& m_measure;
    std::vector<int> m_widths;  // of the starts of a piece, kept between calls for their room
    size_t m_nWindow = 128;     // bytes measured at once; follows the length of pieces
};

}  // namespace qv
