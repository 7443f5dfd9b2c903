// The columns of a tree row: the width that a row's fields take, and the fields with their
// rectangles for painting. Fields beyond the last stop are not shown.

#pragma once

#include "base/geometry.h"
#include "base/text_measure.h"
#include "frame/core/styled_text.h"
#include "frame/core/tab_stops.h"

#include <string_view>

namespace qv {

inline constexpr int kColumnGap = 4;  // between a column's text and the next column, in pixels

// Pixels from the start of the text to the end of its last column. text comes without the row's own
// style code. With bIndentTabs the stops count from the start of the text, otherwise from the start
// of the row.
int ColumnsExtent(std::string_view text, const TabStops& tabs, bool bIndentTabs,
                  const StyleTable& styles, TextMeasure& measure);

// One field as it is painted.
struct Field {
    Rect rect;
    std::string_view text;  // without its style code
    int nStyle;             // -1: the field has no code, and goes on in the colours before it
    unsigned nFormat;       // DT_LEFT, DT_CENTER or DT_RIGHT
};

// Gives the fields of a row from left to right.
class FieldReader {
public:
    // rect is the row's text cell, shrunk to where text may stand.
    FieldReader(std::string_view text, const Rect& rect, const TabStops& tabs, bool bIndentTabs,
                const StyleTable& styles);
    bool Next(Field& field);

private:
    std::string_view m_text;
    Rect m_rect;
    const TabStops& m_tabs;
    bool m_bIndentTabs;
    const StyleTable& m_styles;
    int m_nColumn = -1;
    std::size_t m_nPos = 0;
};

}  // namespace qv
