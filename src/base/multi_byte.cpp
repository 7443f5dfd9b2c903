#include "base/multi_byte.h"

#include <cstring>

namespace qv {

namespace {

// What bytes that form no character are ordered by: behind all characters.
constexpr std::uint32_t kStray = 0x200000;

MultiByte::FoldTable AsciiFold() {
    MultiByte::FoldTable fold;
    for (int i = 0; i < 256; ++i) {
        fold[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i + 32 : i);
    }
    return fold;
}

std::uint32_t FoldCodePoint(std::uint32_t c) {
    if (c < 0x80) {
        return c >= 'A' && c <= 'Z' ? c + 32 : c;
    }
    const bool bLatin1 = c >= 0xC0 && c <= 0xDE && c != 0xD7;
    const bool bGreek = c >= 0x391 && c <= 0x3A9 && c != 0x3A2;
    const bool bCyrillic = c >= 0x410 && c <= 0x42F;
    if (bLatin1 || bGreek || bCyrillic) {
        return c + 32;
    }
    if (c >= 0x400 && c <= 0x40F) {
        return c + 80;
    }
    if (c == 0x178) {
        return 0xFF;
    }
    // Latin Extended-A pairs its letters; where the pairs start on odd values changes twice.
    const bool bEvenPairs =
        (c >= 0x100 && c <= 0x137 && c != 0x130 && c != 0x131) || (c >= 0x14A && c <= 0x177);
    const bool bOddPairs = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
    if ((bEvenPairs && c % 2 == 0) || (bOddPairs && c % 2 == 1)) {
        return c + 1;
    }
    return c;
}

// Bytes of the sequence that first announces.
std::size_t Utf8Announced(unsigned char first) {
    return first >= 0xF0 && first < 0xF8   ? 4
           : first >= 0xE0 && first < 0xF0 ? 3
           : first >= 0xC2 && first < 0xE0 ? 2
                                           : 1;
}

// Bytes of a well-formed sequence of at most nMost bytes, or 1 for a byte that starts none.
std::size_t Utf8Bytes(const char* p, std::size_t nMost) {
    const std::size_t nBytes = Utf8Announced(static_cast<unsigned char>(p[0]));
    for (std::size_t i = 1; i < nBytes; ++i) {
        if (i == nMost || (static_cast<unsigned char>(p[i]) & 0xC0) != 0x80) {
            return 1;
        }
    }
    return nBytes;
}

}  // namespace

MultiByte::MultiByte() : m_fold(AsciiFold()) {}

MultiByte MultiByte::SingleByte(const FoldTable& fold) {
    MultiByte text;
    text.m_fold = fold;
    text.m_fold[0] = 0;
    return text;
}

MultiByte MultiByte::DoubleByte(const FoldTable& fold, const LeadTable& lead,
                                std::uint32_t (*pfnFold)(std::uint32_t)) {
    MultiByte text = SingleByte(fold);
    text.m_kind = Kind::DoubleByte;
    text.m_lead = lead;
    text.m_lead[0] = false;
    text.m_pfnFold = pfnFold;
    return text;
}

MultiByte MultiByte::Utf8() {
    MultiByte text;
    text.m_kind = Kind::Utf8;
    return text;
}

std::size_t MultiByte::CharBytes(const char* psz) const {
    return *psz == 0 ? 0 : CharBytes(psz, std::string_view::npos);
}

std::size_t MultiByte::CharBytes(std::string_view text) const {
    return text.empty() ? 0 : CharBytes(text.data(), text.size());
}

// Of the nMost bytes at p, one at least, none behind a terminator is read.
std::size_t MultiByte::CharBytes(const char* p, std::size_t nMost) const {
    switch (m_kind) {
        case Kind::DoubleByte:
            return m_lead[static_cast<unsigned char>(p[0])] && nMost > 1 && p[1] != 0 ? 2 : 1;
        case Kind::Utf8:
            return Utf8Bytes(p, nMost);
        case Kind::SingleByte:
            break;
    }
    return 1;
}

bool MultiByte::CanLead(unsigned char byte) const {
    return m_kind == Kind::Utf8 ? Utf8Announced(byte) > 1 : m_lead[byte];
}

std::size_t MultiByte::PrefixBytes(const char* psz, std::size_t nMost) const {
    std::size_t nBytes = 0;
    while (const std::size_t nChar = CharBytes(psz + nBytes)) {
        if (nBytes + nChar > nMost) {
            break;
        }
        nBytes += nChar;
    }
    return nBytes;
}

// The value of the character of nBytes bytes at p, by which it is ordered. Bytes that form no UTF-8
// character get values behind every character.
std::uint32_t MultiByte::Value(const char* p, std::size_t nBytes) const {
    const auto byte = [p](std::size_t i) {
        return std::uint32_t{static_cast<unsigned char>(p[i])};
    };
    if (nBytes <= 1) {
        return m_kind == Kind::Utf8 && byte(0) >= 0x80 ? kStray + byte(0) : byte(0);
    }
    if (m_kind == Kind::DoubleByte) {
        return byte(0) << 8 | byte(1);
    }
    std::uint32_t c = byte(0) & (0xFFu >> (nBytes + 1));
    for (std::size_t i = 1; i < nBytes; ++i) {
        c = c << 6 | (byte(i) & 0x3Fu);
    }
    return c;
}

// The value of the first character, which is taken off the text.
std::uint32_t MultiByte::TakeValue(std::string_view& text) const {
    const std::size_t nBytes = CharBytes(text);
    const std::uint32_t c = Value(text.data(), nBytes);
    text.remove_prefix(nBytes);
    return c;
}

// The folded value of the character at psz, which moves behind it; 0 at the terminator, where it
// stays.
std::uint32_t MultiByte::NextFolded(const char*& psz) const {
    const std::size_t nBytes = CharBytes(psz);
    const std::uint32_t c = Value(psz, nBytes);
    psz += nBytes;
    if (nBytes <= 1) {
        return c < kStray ? m_fold[c] : c;
    }
    if (m_kind == Kind::DoubleByte) {
        return m_pfnFold != nullptr ? m_pfnFold(c) : c;
    }
    return FoldCodePoint(c);
}

int MultiByte::Compare(std::string_view text1, std::string_view text2) const {
    while (!text1.empty() && !text2.empty()) {
        const std::uint32_t c1 = TakeValue(text1);
        const std::uint32_t c2 = TakeValue(text2);
        if (c1 != c2) {
            return c1 < c2 ? -1 : 1;
        }
    }
    return static_cast<int>(!text1.empty()) - static_cast<int>(!text2.empty());
}

int MultiByte::CompareNoCase(const char* psz1, const char* psz2) const {
    return CompareNoCase(psz1, psz2, std::string_view::npos);
}

// Characters that fold to the same value have the same number of bytes.
int MultiByte::CompareNoCase(const char* psz1, const char* psz2, std::size_t nBytes) const {
    const char* const pszFirst = psz1;
    while (static_cast<std::size_t>(psz1 - pszFirst) < nBytes) {
        const std::uint32_t c1 = NextFolded(psz1);
        const std::uint32_t c2 = NextFolded(psz2);
        if (c1 != c2) {
            return c1 < c2 ? -1 : 1;
        }
        if (c1 == 0) {
            break;
        }
    }
    return 0;
}

void MultiByte::AppendSortKey(const char* psz, std::string& strKey) const {
    if (m_kind == Kind::SingleByte) {
        const std::size_t nStart = strKey.size();
        strKey.append(psz);
        for (std::size_t i = nStart; i < strKey.size(); ++i) {
            strKey[i] = static_cast<char>(m_fold[static_cast<unsigned char>(strKey[i])]);
        }
        return;
    }
    // Three bytes hold every value; equal widths make the bytes compare as the values do.
    while (const std::uint32_t c = NextFolded(psz)) {
        strKey.push_back(static_cast<char>(c >> 16));
        strKey.push_back(static_cast<char>(c >> 8));
        strKey.push_back(static_cast<char>(c));
    }
}

}  // namespace qv
