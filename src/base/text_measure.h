// What core asks about the width of text. The window side answers from a device context or from a
// table of character widths, a test from any rule it likes.

#pragma once

#include <string_view>

#include "base/geometry.h"

namespace qv {

class TextMeasure {
public:
    virtual ~TextMeasure() = default;

    // Extent in pixels of one line of text in the current font, as the platform's
    // GetTextExtentPoint32 gives it.
    virtual Size Extent(std::string_view text) = 0;
};

}  // namespace qv
