// Column headings from one string: TAB between them, the first character of each for its
// alignment.

#pragma once

#include <cstddef>
#include <string_view>

namespace qv {

inline constexpr int kHeaderItemWidth = 100;          // pixels
inline constexpr std::size_t kHeaderItemBytes = 254;  // the longest title

enum class HeaderAlign { Left, Right, Center };

struct HeaderField {
    HeaderAlign align;
    std::string_view title;
};

// '<' aligns left and '>' right, and neither is part of the title. Any other title is centred.
constexpr HeaderField ParseHeaderField(std::string_view field) {
    if (field.starts_with('<')) {
        return {HeaderAlign::Left, field.substr(1)};
    }
    if (field.starts_with('>')) {
        return {HeaderAlign::Right, field.substr(1)};
    }
    return {HeaderAlign::Center, field};
}

}  // namespace qv
