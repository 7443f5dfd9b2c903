#include "ocx/core/field_rules.h"

#include <algorithm>
#include <limits>

namespace qv {
namespace {

constexpr bool IsHigh(char16_t c) {
    return (c & 0xFC00) == 0xD800;
}

constexpr bool IsLow(char16_t c) {
    return (c & 0xFC00) == 0xDC00;
}

/// The character at nPos, which goes on behind it. Half a character counts as one of its own.
char32_t Next(std::u16string_view text, std::size_t& nPos) {
    const char16_t c = text[nPos++];
    if (IsHigh(c) && nPos < text.size() && IsLow(text[nPos])) {
        return 0x10000 + ((c & 0x3FFU) << 10) + (text[nPos++] & 0x3FFU);
    }
    return c;
}

std::size_t CharCount(std::u16string_view text) {
    std::size_t nCount = 0;
    for (std::size_t nPos = 0; nPos < text.size(); ++nCount) {
        Next(text, nPos);
    }
    return nCount;
}

bool CutsCharacter(std::u16string_view text, std::size_t nPos) {
    return nPos > 0 && nPos < text.size() && IsHigh(text[nPos - 1]) && IsLow(text[nPos]);
}

}  // namespace

CharList::CharList(std::u16string_view list) {
    for (std::size_t nPos = 0; nPos < list.size();) {
        const char32_t cFirst = Next(list, nPos);
        char32_t cLast = cFirst;
        if (nPos + 1 < list.size() && list[nPos] == u'-') {
            cLast = Next(list, ++nPos);
        }
        m_ranges.emplace_back(std::min(cFirst, cLast), std::max(cFirst, cLast));
    }
}

bool CharList::Has(char32_t c) const {
    return m_ranges.empty() || std::ranges::any_of(m_ranges, [c](const auto& range) {
               return c >= range.first && c <= range.second;
           });
}

bool FieldRules::Allows(char32_t c) const {
    if (c == U'\r' || c == U'\n') {
        return bMultiLine;
    }
    return allowed.Has(c);
}

bool FieldRules::Fits(std::u16string_view text) const {
    for (std::size_t nPos = 0; nPos < text.size();) {
        if (!Allows(Next(text, nPos))) {
            return false;
        }
    }
    return CutToLength(text, nMaxLength).size() == text.size();
}

std::u16string FieldRules::Entry(std::u16string_view text, TextRange replaced,
                                 std::u16string_view typed) const {
    std::size_t nRoom = std::numeric_limits<std::size_t>::max();
    if (nMaxLength != 0) {
        const std::size_t nLeft =
            CharCount(text.substr(0, replaced.nStart)) + CharCount(text.substr(replaced.End()));
        nRoom = nMaxLength - std::min(nMaxLength, nLeft);
    }
    if (!bMultiLine) {
        typed = typed.substr(0, typed.find_first_of(u"\r\n"));
    }
    std::u16string entry;
    for (std::size_t nPos = 0; nPos < typed.size() && nRoom > 0;) {
        const std::size_t nFrom = nPos;
        if (Allows(Next(typed, nPos))) {
            // A line break that would come in by half stays out.
            if (typed.substr(nFrom, 2) == u"\r\n" && nRoom == 1) {
                break;
            }
            entry += typed.substr(nFrom, nPos - nFrom);
            --nRoom;
        }
    }
    return entry;
}

std::u16string_view CutToLength(std::u16string_view text, std::size_t nMaxLength) {
    if (nMaxLength == 0 || text.size() <= nMaxLength) {
        return text;
    }
    std::size_t nPos = 0;
    for (std::size_t n = 0; n < nMaxLength && nPos < text.size(); ++n) {
        Next(text, nPos);
    }
    if (nPos > 0 && nPos < text.size() && text[nPos - 1] == u'\r' && text[nPos] == u'\n') {
        --nPos;
    }
    return text.substr(0, nPos);
}

TextRange ClampRange(std::u16string_view text, long long nStart, long long nLength) {
    const auto nSize = static_cast<long long>(text.size());
    nStart = std::clamp(nStart, 0LL, nSize);
    nLength = std::clamp(nLength, 0LL, nSize - nStart);
    auto nFrom = static_cast<std::size_t>(nStart);
    auto nTo = static_cast<std::size_t>(nStart + nLength);
    const bool bCaret = nTo == nFrom;
    nFrom -= CutsCharacter(text, nFrom) ? 1 : 0;
    nTo += CutsCharacter(text, nTo) ? 1 : 0;
    return {nFrom, bCaret ? 0 : nTo - nFrom};
}

std::u16string WithEditBreaks(std::u16string_view text) {
    std::u16string result;
    result.reserve(text.size());
    for (std::size_t n = 0; n < text.size(); ++n) {
        if (text[n] != u'\r' && text[n] != u'\n') {
            result += text[n];
            continue;
        }
        n += text.substr(n, 2) == u"\r\n" ? 1 : 0;
        result += u"\r\n";
    }
    return result;
}

}  // namespace qv
