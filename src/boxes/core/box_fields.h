// The fields of a list box's row: where each one is drawn, and how. On screen and on paper.

#pragma once

#include "base/geometry.h"
#include "frame/core/styled_text.h"

#include <span>
#include <string_view>

namespace qv {

inline constexpr int kBoxFieldMargin = 6;  // left and right of a field's text, in units of its row

struct BoxField {
    std::string_view text;  // without its code
    int nStyle = -1;        // -1: no code, it goes on in the colours of the field before it
    unsigned nFormat = 0;   // as the tab stops hold it: DT_LEFT, DT_CENTER or DT_RIGHT
    Rect rect;              // without the margins; it may be empty, or inside out
};

// One more field than there are tab stops, and the last one ends where the row does. A row with
// fewer fields just ends.
class BoxFieldReader {
public:
    // rect is the row's. The stops count from its left edge; nFirstFormat is that of the field in
    // front of the first one. All of them outlive the reader.
    BoxFieldReader(std::string_view row, const Rect& rect, std::span<const int> tabs,
                   unsigned nFirstFormat, const StyleTable& styles)
        : m_row(row), m_rect(rect), m_tabs(tabs), m_nFirstFormat(nFirstFormat), m_styles(styles) {}

    bool Next(BoxField& field);

private:
    int Edge(int nTab) const;

    const std::string_view m_row;
    const Rect m_rect;
    const std::span<const int> m_tabs;
    const unsigned m_nFirstFormat;
    const StyleTable& m_styles;
    int m_nTab = -1;  // in front of the field that comes next
    int m_nPos = 0;
};

}  // namespace qv
