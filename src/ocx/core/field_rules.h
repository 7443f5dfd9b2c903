// What may stand in a text field. Texts are UTF-16, as the platform's edit counts them; a character
// beyond the first plane is two units and is never cut.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qv {

/// Characters given as a list: "0-9,." is the digits, comma and point. A hyphen between two is a
/// range, in either order; at the start, at the end or behind a range it is itself.
class CharList {
public:
    CharList() = default;
    explicit CharList(std::u16string_view list);
    /// An empty list has all.
    bool Has(char32_t c) const;

private:
    std::vector<std::pair<char32_t, char32_t>> m_ranges;
};

/// Units of a text, from nStart on.
struct TextRange {
    std::size_t nStart = 0;
    std::size_t nLength = 0;
    std::size_t End() const { return nStart + nLength; }
    friend bool operator==(const TextRange&, const TextRange&) = default;
};

struct FieldRules {
    CharList allowed;
    std::size_t nMaxLength = 0;  ///< characters; 0: any number
    bool bMultiLine = false;     ///< line breaks are allowed, and CR LF

    bool Allows(char32_t c) const;
    /// Whether all of a text is allowed, and it is not too long.
    bool Fits(std::u16string_view text) const;
    /// What of a typed or pasted text comes in where `replaced` of `text` goes: characters that are
    /// allowed, as many as there is room for. A single line takes the first line alone.
    std::u16string Entry(std::u16string_view text, TextRange replaced,
                         std::u16string_view typed) const;
};

/// Cut behind that many characters, before a line break that would be cut; 0: not at all.
std::u16string_view CutToLength(std::u16string_view text, std::size_t nMaxLength);

/// The range nearest to that asked for, with whole characters.
TextRange ClampRange(std::u16string_view text, long long nStart, long long nLength);

/// Every line break as CR LF, the only one that the platform's edits know.
std::u16string WithEditBreaks(std::u16string_view text);

}  // namespace qv
