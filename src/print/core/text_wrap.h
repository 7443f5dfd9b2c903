// Breaks a line of text into lines narrower than a page.

#pragma once

#include "base/multi_byte.h"
#include "base/text_measure.h"

#include <string_view>
#include <vector>

namespace qv {

// Appends the wrapped lines of line, as parts of it, to lines.
//
// A line narrower than nWidth stays as it is, an empty one too. From any other, the longest start
// narrower than nWidth is taken, in whole characters. It is cut at its last blank, or where it ends
// if a blank follows it or it has none; a blank that is the line's first character does not count.
// The rest, without leading white space, is wrapped in the same way. Where not even one character
// is narrower than nWidth, one is taken.
//
// Each line is measured from its own start, in about as many bytes as it takes: the time is linear
// in the text.
void WrapLine(std::string_view line, unsigned nWidth, TextMeasure& measure, const MultiByte& text,
              std::vector<std::string_view>& lines);

}  // namespace qv
