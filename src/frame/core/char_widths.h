// Widths of the characters of one font, so that a text is measured by adding them up: a small part
// of the time of the platform's call.

#pragma once

#include "base/multi_byte.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qv {

// True for a character that no script joins, reorders or stacks on its neighbours: its width may be
// added to theirs. False where that is not known.
bool StandsAlone(char32_t ch);

// Asked for each character once, and again when the room it was kept in was needed for another one.
class CharWidthSource {
public:
    virtual ~CharWidthSource() = default;
    // Pixels of the character ch (its bytes), or CharWidths::kByCall.
    virtual int CharWidth(std::string_view ch) = 0;
};

class CharWidths {
public:
    static constexpr int kByCall = -1;  // no width that could be added: ask the platform

    explicit CharWidths(const MultiByte& text) : m_text(text) { Clear(); }

    // To be called for another font.
    void Clear();

    // Pixels of the text; kByCall if one of its characters has no width of its own.
    int Width(std::string_view text, CharWidthSource& source);
    // pWidths[i] becomes the width up to the end of the character that holds byte i. False, with
    // pWidths written in part, if one of the characters has no width of its own.
    bool PrefixWidths(std::string_view text, int* pWidths, CharWidthSource& source);

private:
    static constexpr int kUnknown = -2;
    static constexpr std::size_t kKept = 1024;  // characters of several bytes

    struct Kept {
        std::uint32_t nKey = 0;  // the bytes; 0: none
        int nWidth = 0;
    };

    int NextWidth(std::string_view& rest, std::size_t& nBytes, CharWidthSource& source);
    int KeptWidth(std::string_view ch, CharWidthSource& source);

    const MultiByte& m_text;
    std::array<int, 256> m_single;
    std::array<Kept, kKept> m_kept;
};

}  // namespace qv
