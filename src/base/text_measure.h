// What core asks about the width of text. The window side answers from a device context or from a
// table of character widths, a test from any rule it likes.

#pragma once

#include "base/geometry.h"

#include <cstddef>
#include <string_view>

namespace qv {

class TextMeasure {
public:
    virtual ~TextMeasure() = default;

    // Extent in pixels of one line of text in the current font, as the platform's
    // GetTextExtentPoint32 gives it.
    virtual Size Extent(std::string_view text) = 0;

    // Bytes of the first character of a text that is not empty.
    virtual std::size_t CharBytes(std::string_view /*text*/) const { return 1; }

    // The width of each start of the text: pWidths[i] becomes that of the text up to the end of the
    // character that holds byte i, for all bytes, in one call.
    virtual void PrefixWidths(std::string_view text, int* pWidths) {
        for (std::size_t i = 0; i < text.size();) {
            const std::size_t nBytes = CharBytes(text.substr(i));
            const int nWidth = Extent(text.substr(0, i + nBytes)).cx;
            for (const std::size_t nEnd = i + nBytes; i < nEnd; ++i) {
                pWidths[i] = nWidth;
            }
        }
    }
};

}  // namespace qv
