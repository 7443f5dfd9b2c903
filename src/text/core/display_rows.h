// The rows of a text on screen: which piece of which line each of them shows.

#pragma once

#include "frame/core/styled_text.h"
#include "text/core/text_lines.h"
#include "text/core/text_split.h"
#include "text/text_records.h"

#include <deque>
#include <optional>
#include <vector>

namespace qv {

// They are made anew only when lines, width or styles are other ones; lines that were added
// meanwhile are added.
class DisplayRows {
public:
    // May throw std::bad_alloc. The rows are those of before then, perhaps with some lines more,
    // and the next call goes on.
    void Format(const TextLines& lines, const StyleTable& styles, int nWidth,
                TextSplitter& splitter);
    // The widths measured before are no longer those of the font.
    void Forget() { m_width.reset(); }
    int Count() const { return static_cast<int>(m_rows.size()); }
    const QVTEXTLINE& operator[](int nRow) const { return m_rows[static_cast<size_t>(nRow)]; }

private:
    void Append(const TextLines& lines, const StyleTable& styles, TextSplitter& splitter);

    std::deque<QVTEXTLINE> m_rows;
    std::optional<int> m_width;  // formatted for; none: all is to be made anew
    int m_nStyles = 0;
    int m_nLines = 0;  // formatted
    unsigned m_nGeneration = 0;
    std::vector<int> m_starts;
};

}  // namespace qv
