// The one string that a list box or combo box keeps for a row: a number, of its image or its
// colour, and the text, with a TAB between. The text may hold TABs and style codes itself.

#pragma once

#include <string>
#include <string_view>

namespace qv {

// Behind the text the number is split off at the last TAB; in front of it, where the platform's own
// order of strings groups rows by number, at the first.
enum class NumberPlace { Behind, InFront };

struct BoxRow {
    int nNumber = 0;
    std::string_view text;  // part of the stored string
};

// For texts of callers: null counts as empty.
inline const char* OrEmpty(const char* psz) {
    return psz != nullptr ? psz : "";
}

std::string JoinBoxRow(int nNumber, std::string_view text, NumberPlace place);

// The number is read as atoi reads it: blanks, a sign, digits up to the first other byte; 0 without
// any. One that no int holds becomes the nearest that does. Without a TAB the whole is text, and
// the number 0.
BoxRow SplitBoxRow(std::string_view stored, NumberPlace place);

}  // namespace qv
