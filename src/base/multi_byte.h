// Order of 8-bit multi-byte text, mostly without regard to case. The rule is the platform's
// _mbsicmp: the characters of both strings are folded to lower case and compared by value, a
// double-byte character counting as lead byte times 256 plus trail byte. Results are -1, 0 or 1.
//
// No routine here cuts a character in two or reads past the terminator: a lead byte with nothing
// behind it stands for itself.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace qv {

class MultiByte {
public:
    using FoldTable = std::array<unsigned char, 256>;
    using LeadTable = std::array<bool, 256>;

    // Single bytes, with ASCII letters folded.
    MultiByte();
    static MultiByte SingleByte(const FoldTable& fold);
    // pfnFold folds double-byte characters; null leaves them as they are.
    static MultiByte DoubleByte(const FoldTable& fold, const LeadTable& lead,
                                std::uint32_t (*pfnFold)(std::uint32_t) = nullptr);
    // UTF-8; ASCII, Latin, Greek and Cyrillic letters are folded, one code point to one.
    static MultiByte Utf8();

    int CompareNoCase(const char* psz1, const char* psz2) const;
    // As _mbsnbicmp: the characters that begin in the first nBytes bytes alone.
    int CompareNoCase(const char* psz1, const char* psz2, std::size_t nBytes) const;
    // As CompareNoCase, but letters that differ in case differ: the platform's _mbscmp. A text that
    // is the start of a longer one comes first.
    int Compare(std::string_view text1, std::string_view text2) const;

    // Appends bytes whose memcmp order is the order of CompareNoCase (a shorter key that is the
    // start of a longer one comes first). For sorting many strings by keys made once.
    void AppendSortKey(const char* psz, std::string& strKey) const;

    // Bytes of the character at psz, 0 at the terminator.
    std::size_t CharBytes(const char* psz) const;
    // Bytes of the first character, 0 for an empty text. A null is a character of its own.
    std::size_t CharBytes(std::string_view text) const;

    // True for a byte that begins a character of several bytes if the right ones follow it.
    bool CanLead(unsigned char byte) const;

    // True where an ASCII byte is always a character of its own, so that it may be searched by byte.
    bool KeepsAscii() const { return m_kind != Kind::DoubleByte; }

    // Bytes of the longest start of psz that has at most nMost bytes and splits no character.
    std::size_t PrefixBytes(const char* psz, std::size_t nMost) const;

private:
    enum class Kind { SingleByte, DoubleByte, Utf8 };

    std::size_t CharBytes(const char* p, std::size_t nMost) const;
    std::uint32_t Value(const char* p, std::size_t nBytes) const;
    std::uint32_t TakeValue(std::string_view& text) const;
    std::uint32_t NextFolded(const char*& psz) const;

    Kind m_kind = Kind::SingleByte;
    FoldTable m_fold;
    LeadTable m_lead{};
    std::uint32_t (*m_pfnFold)(std::uint32_t) = nullptr;
};

}  // namespace qv
