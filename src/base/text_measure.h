// What core asks about the width of text. The window side answers from a device context or from a
// table of character widths, a test from any rule it likes.

#pragma once

#include <cstddef>
#include <string_view>

#include "base/geometry.h"

namespace qv {

class TextMeasure {
public:
    virtual ~TextMeasure() = default;

    // Extent in pixels of one line of text in the current font, as the platform's
    // GetTextExtentPoint32 gives it.
    virtual Size Extent(std::string_view text) = 0;

    // The width of each start of the text: pWidths[i] becomes that of its first i + 1 bytes, for
    // all bytes, in one call.
    virtual void PrefixWidths(std::string_view text, int* pWidths) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            pWidths[i] = Extent(text.substr(0, i + 1)).cx;
        }
    }
};

}  // namespace qv
