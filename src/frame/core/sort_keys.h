// Keys for sorting many strings, numbers or dates: made once for each row, compared often.
//
// A key is eight bytes that decide most comparisons, and for a text its folded form in one buffer
// shared by all keys. A list of keys holds one kind of key.

#pragma once

#include "base/multi_byte.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qv {

struct SortKey {
    std::uint64_t nStart = 0;  // order of the first eight bytes, or of the number
    std::size_t nKey = 0;      // where the folded text stands, and its length in bytes
    std::size_t nLength = 0;
};

class SortKeys {
public:
    explicit SortKeys(const MultiByte& text) : m_text(text) {}

    // Order of _mbsicmp. May throw std::bad_alloc; the keys made before stay valid.
    SortKey Text(const char* psz);
    // Order of unsigned 32-bit numbers.
    static SortKey Number(std::uint32_t nValue) { return {nValue}; }
    // Order of the platform's dates: days, whose fraction is the time of that day also before day
    // 0.
    static SortKey Date(double date);

    // Bytes of all texts, each with a 0 behind it, in the order in which they came.
    std::string_view Folded() const { return m_strKeys; }
    // The first eight bytes as a number that orders as they do, zeros behind their end.
    static std::uint64_t Start(std::string_view bytes);
    // -1, 0 or 1.
    int Compare(const SortKey& key1, const SortKey& key2) const;

private:
    const MultiByte& m_text;
    std::string m_strKeys;
};

}  // namespace qv
