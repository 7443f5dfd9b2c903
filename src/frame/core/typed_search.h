// Type-ahead: which row begins with what a user types. Characters typed within a second of each
// other belong together; a later one starts anew. A first letter typed again, once or often, steps
// through the rows that begin with it.
//
// Rows are compared by the text that they show, without regard to case, as the process's code page
// has it. A character of several bytes comes byte by byte, and counts once it is whole. Keyboards
// type in a code page of their own, which need not be the process's.

#pragma once

#include "base/multi_byte.h"

#include <string>
#include <string_view>

namespace qv {

class TypedSearch {
public:
    static constexpr unsigned kPause = 1000;  // milliseconds

    enum class Answer {
        NotTyped,  // a control character, or a blank that begins nothing
        Waits,     // for the rest of a character
        Searches,
    };

    // Bytes that were typed, as they are in the process's code page; empty if more have to come.
    using FromKeyboard = std::string (*)(std::string_view bytes);

    // Null: keyboards type as the process has it.
    explicit TypedSearch(const MultiByte& text, FromKeyboard pfnFromKeyboard = nullptr)
        : m_text(text), m_pfnFromKeyboard(pfnFromKeyboard) {}

    // nTime is in milliseconds, of any clock that wraps around.
    Answer Type(unsigned char byte, unsigned nTime);
    // Whether a search begins behind the current row, which would be found again and again; one
    // that goes on keeps to it as long as it fits.
    bool BeginsBehind() const { return m_bBehind; }
    bool Fits(const char* pszShown) const {
        return m_text.CompareNoCase(m_strSearched.c_str(), pszShown, m_strSearched.size()) == 0;
    }
    // What is typed next starts anew.
    void Forget();

    // The row of nCount that is meant, from nCurrent on and around, or -1. nCurrent -1 is none.
    // textOf(nRow) gives what a row shows, or null to end the search.
    template <class TextOf>
    int Find(int nCount, int nCurrent, TextOf textOf) const;

private:
    bool IsWhole() const;
    bool RepeatsFirst() const;

    const MultiByte& m_text;
    const FromKeyboard m_pfnFromKeyboard;
    std::string m_strKeyed;  // the keyboard's bytes of a character that is not whole yet
    std::string m_strTyped;
    std::size_t m_nWhole = 0;   // bytes of it that are whole characters
    std::string m_strSearched;  // all of it, or its first character where that is repeated
    unsigned m_nLast = 0;       // when it was typed
    bool m_bBehind = true;
};

template <class TextOf>
int TypedSearch::Find(int nCount, int nCurrent, TextOf textOf) const {
    const int nFirst = nCurrent < 0 || nCurrent >= nCount ? 0 : nCurrent + (m_bBehind ? 1 : 0);
    for (int i = 0; i < nCount; ++i) {
        const int nRow = nFirst < nCount - i ? nFirst + i : nFirst - (nCount - i);
        const char* const psz = textOf(nRow);
        if (psz == nullptr) {
            return -1;
        }
        if (Fits(psz)) {
            return nRow;
        }
    }
    return -1;
}

}  // namespace qv
