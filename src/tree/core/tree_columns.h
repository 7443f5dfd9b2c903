// The columns of a tree row: tab stops, the width that a row's fields take, and the fields with
// their rectangles for painting.
//
// A stop is one number, position plus 10000 for centred or 20000 for right-aligned. The first field
// of a row lies before any stop, with column -1; field i (from 1) belongs to stop i - 1; fields
// beyond the last stop are not shown.

#pragma once

#include "base/geometry.h"
#include "base/text_measure.h"
#include "frame/core/styled_text.h"

#include <array>
#include <string_view>

namespace qv {

inline constexpr int kMaxTabs = 20;
inline constexpr int kColumnGap = 4;  // between a column's text and the next column, in pixels

class TabStops {
public:
    // nCount -1 counts up to the first 0; more than kMaxTabs stops are not taken.
    void Use(const int* pTabs, int nCount);
    void Clear();

    int Count() const { return m_nTabs; }
    // Position in pixels; 0 for an index that is none.
    int Value(int nTab) const;
    // Keeps the format. A value that is not positive gives 0.
    void SetValue(int nTab, int nValue);
    // DT_LEFT, DT_CENTER or DT_RIGHT; 0 for an index that is none.
    unsigned Format(int nTab) const;
    // Keeps the position. Any format but DT_CENTER and DT_RIGHT gives DT_LEFT.
    void SetFormat(int nTab, unsigned nFormat);

private:
    bool IsTab(int nTab) const { return nTab >= 0 && nTab < m_nTabs; }

    int m_nTabs = 0;
    std::array<int, kMaxTabs> m_aTabs{};
};

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
