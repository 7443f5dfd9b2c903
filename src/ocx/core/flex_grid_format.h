// The format string of a flexible grid: titles of columns, and behind a semicolon those of rows.
//
//     "<Name|^Version|>Size;|Section|Total"
//
// A bar ends a title; in front of it <, ^ or > tells the column's alignment. Spaces count: they
// make a column wide.

#pragma once

#include "ocx/core/flex_grid_model.h"

#include <functional>
#include <string_view>
#include <vector>

namespace qv {

struct FlexGridTitles {
    struct Column {
        std::u16string_view text;
        short nAlignment = fgaUnset;  // left, centre or right in the middle, or unset
    };
    // Parts of the string that was given.
    std::vector<Column> columns;
    std::vector<std::u16string_view> rows;  // row 0's first; empty without semicolon
};

FlexGridTitles ParseFormatString(std::u16string_view format);

// Puts the titles into row 0 and column 0, where there are such, with more columns and rows as
// needed. Columns with a title become as wide as it is, column 0 as the widest of its titles;
// width gives a title's in pixels, with room around it. The grid is as it was should there be too
// many columns or rows.
FlexGridError ApplyTitles(FlexGridModel& model, const FlexGridTitles& titles,
                          const std::function<int(std::u16string_view)>& width);

}  // namespace qv
