// A row as a person would hear it: style codes gone, fields one behind the other with a pause
// between, empty ones left out.

#pragma once

#include "frame/core/styled_text.h"

#include <limits>
#include <string>
#include <string_view>

namespace qv {

// One field, which may have a style code. Spaces at its ends, line breaks and other control
// characters are not heard; a run of them inside is one space.
std::string SpokenField(std::string_view field, const StyleTable& styles);

// Which fields of a row: from nFirst on, and those before nEnd.
struct SpokenFields {
    int nFirst = 0;
    int nEnd = std::numeric_limits<int>::max();
};

// These fields, ", " between. Where headings, a row of its own, has a field for the same column, it
// goes before: "Size: 3 GB, Date: today".
std::string SpokenText(std::string_view row, const StyleTable& styles, SpokenFields fields = {},
                       std::string_view headings = {});

// Field nColumn of a row, as SpokenField gives it; empty if there is none.
std::string SpokenColumn(std::string_view row, const StyleTable& styles, int nColumn);

// Puts a pause between two texts of which either may be empty.
std::string JoinSpoken(std::string strFirst, std::string_view second);

}  // namespace qv
