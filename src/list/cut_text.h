// Texts cut to pieces without memory.

#pragma once

#include "common/process_text.h"
#include "frame/core/styled_text.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace qv {

// A heading, cut between characters so that it goes with its terminator into nBytes bytes.
template <std::size_t nBytes>
class Heading {
public:
    explicit Heading(std::string_view text) {
        const std::size_t nCopied = std::min(text.size(), sizeof(m_szText) - 1);
        std::memcpy(m_szText, text.data(), nCopied);
        m_szText[nCopied] = '\0';
        m_szText[ProcessText().PrefixBytes(m_szText, nBytes - 1)] = '\0';
    }
    // For structures of the platform, which does not write to it.
    char* Text() const { return const_cast<char*>(m_szText); }

private:
    static constexpr std::size_t kLongestCharacter = 4;
    char m_szText[nBytes + kLongestCharacter];  // a character that is cut out is there whole
};

// Takes the first field off a row, and ends it where its TAB was; null at the row's end. As
// NextField, a TAB at the very end starts no further field.
inline char* CutField(char*& pszRow) {
    if (*pszRow == '\0') {
        return nullptr;
    }
    char* pszField = pszRow;
    char* pszTab = std::strchr(pszRow, kFieldSeparator);
    pszRow = pszTab != nullptr ? pszTab + 1 : pszRow + std::strlen(pszRow);
    if (pszTab != nullptr) {
        *pszTab = '\0';
    }
    return pszField;
}

}  // namespace qv
