#include "frame/core/char_widths.h"

#include <algorithm>
#include <iterator>

namespace qv {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

// Letters and signs that fonts draw side by side. Left out are control and direction characters,
// combining marks, and the scripts whose letters take other forms beside each other.
constexpr Range kAlone[] = {
    {0x20, 0x7E},      // ASCII
    {0xA0, 0xAC},      // Latin-1 up to the soft hyphen
    {0xAE, 0x2FF},     // the rest of it, Latin Extended, phonetic letters
    {0x370, 0x482},    // Greek, Cyrillic
    {0x48A, 0x556},    // Cyrillic behind its combining marks, Armenian
    {0x10A0, 0x10FF},  // Georgian
    {0x1E00, 0x1FFE},  // Latin and Greek with accents
    {0x2010, 0x2027},  // dashes, quotation marks, bullets, dots
    {0x2030, 0x205E},  // per mille to the signs before the invisible ones
    {0x2070, 0x20BF},  // raised and lowered digits, currencies
    {0x2100, 0x23CF},  // letterlike signs, numbers, arrows, mathematics, technical signs
    {0x2460, 0x25FC},  // enclosed numbers, box drawing, blocks, shapes
    {0x3000, 0x3029},  // ideographic space and punctuation
    {0x3030, 0x3096},  // signs, Hiragana
    {0x309B, 0x312F},  // Katakana, Bopomofo
    {0x31F0, 0x4DBF},  // enclosed and squared signs, ideographs
    {0x4E00, 0x9FFF},  // ideographs
    {0xAC00, 0xD7A3},  // Hangul syllables
    {0xF900, 0xFA6D},  // compatibility ideographs
    {0xFF01, 0xFFEE},  // full and half width forms
};

}  // namespace

bool StandsAlone(char32_t ch) {
    const auto it =
        std::upper_bound(std::begin(kAlone), std::end(kAlone), ch,
                         [](char32_t c, const Range& range) { return c < range.first; });
    return it != std::begin(kAlone) && ch <= std::prev(it)->last;
}

void CharWidths::Clear() {
    m_single.fill(kUnknown);
    m_kept.fill({});
}

// Takes the first character of rest away. Almost all are single bytes that were met before.
int CharWidths::NextWidth(std::string_view& rest, std::size_t& nBytes, CharWidthSource& source) {
    const auto first = static_cast<unsigned char>(rest.front());
    int nWidth = m_single[first];
    nBytes = 1;
    if (nWidth == kUnknown) {
        nBytes = m_text.CharBytes(rest);
        const std::string_view ch = rest.substr(0, nBytes);
        if (nBytes > 1) {
            nWidth = KeptWidth(ch, source);
        } else {
            nWidth = source.CharWidth(ch);
            if (!m_text.CanLead(first)) {
                m_single[first] = nWidth;
            }
        }
    }
    rest.remove_prefix(nBytes);
    return nWidth;
}

int CharWidths::KeptWidth(std::string_view ch, CharWidthSource& source) {
    std::uint32_t nKey = 0;
    for (const char byte : ch) {
        nKey = nKey << 8 | static_cast<unsigned char>(byte);
    }
    constexpr std::uint32_t kSpread =
        2654435761u;  // neighbours in a script get places of their own
    Kept& kept = m_kept[(nKey * kSpread >> 16) % kKept];
    if (kept.nKey != nKey) {
        kept = {nKey, source.CharWidth(ch)};
    }
    return kept.nWidth;
}

int CharWidths::Width(std::string_view text, CharWidthSource& source) {
    int nWidth = 0;
    std::size_t nBytes;
    while (!text.empty()) {
        const int nChar = NextWidth(text, nBytes, source);
        if (nChar == kByCall) {
            return kByCall;
        }
        nWidth += nChar;
    }
    return nWidth;
}

bool CharWidths::PrefixWidths(std::string_view text, int* pWidths, CharWidthSource& source) {
    int nWidth = 0;
    std::size_t nBytes;
    while (!text.empty()) {
        const int nChar = NextWidth(text, nBytes, source);
        if (nChar == kByCall) {
            return false;
        }
        nWidth += nChar;
        pWidths = std::fill_n(pWidths, nBytes, nWidth);
    }
    return true;
}

}  // namespace qv
