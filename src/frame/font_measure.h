// Text in one font, measured for core.

#pragma once

#include "base/text_measure.h"
#include "frame/core/char_widths.h"

#include <afxwin.h>

#include <optional>

namespace qv {

// Where the widths of single characters add up to that of a text, which is tried out for each font
// and each character, sums of known widths answer in a small part of the time of the platform's
// call.
class FontMeasure : public TextMeasure, private CharWidthSource {
public:
    FontMeasure();
    // Null: the font of a new device context. The handle is not owned.
    void SetFont(HFONT hFont);
    Size Extent(std::string_view text) override;
    void PrefixWidths(std::string_view text, int* pWidths) override;
    std::size_t CharBytes(std::string_view text) const override;

private:
    int CharWidth(std::string_view ch) override;
    bool Adds();

    HFONT m_hFont = nullptr;
    CharWidths m_widths;
    std::optional<bool> m_adds;  // whether widths of this font add up; none: not tried yet
    int m_nHeight = 0;
};

}  // namespace qv
