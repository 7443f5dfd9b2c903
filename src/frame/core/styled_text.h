// The row string and the style table: what every control that shows rows of text shares.
//
// A row is one string. TAB ends a field. ESC and one letter at the very start of a field choose
// the entry 'a' + nStyle of the control's style table for that field; an ESC anywhere else is text.
// The letter is read as a signed byte, so the styles 0 to 30 can be written in a row. Each control
// owns its table; an index means nothing outside of it. Entry 0 is the default.

#pragma once

#include "frame/records.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace qv {

inline constexpr char kFieldSeparator = '\t';
inline constexpr char kStyleEscape = 27;
inline constexpr char kFirstStyleCode = 'a';

// What goes before a field's text when it is appended to a row: nothing, a style code, or TAB and
// code. NUL-terminated, so that it can be appended as a string.
using FieldPrefix = std::array<char, 4>;

// True if the text begins with ESC; the byte behind it is not looked at. Null is allowed.
bool HasStyle(const char* pszText);

// ESC and the letter of nStyle, the addition done in 8 bits; empty below 0.
FieldPrefix MakeStyleCodes(int nStyle);

// Overwrites the code byte of a text that has one. False, and no change, for a text without code.
bool ChangeStyle(char* pszText, int nStyle);

// Reads the field at nPos and moves nPos behind its TAB. False at the end of the row, where nPos
// stays; a TAB at the very end of a row starts no further field.
bool NextField(std::string_view row, int& nPos, std::string_view& field);

// Appends a cell to a row. The separator goes between only if something stands before: empty cells
// at the start of a row leave no trace, as exports and saved rows of long standing expect.
inline void JoinCell(std::string& strRow, std::string_view cell, char chSeparator) {
    if (!strRow.empty()) {
        strRow += chSeparator;
    }
    strRow += cell;
}

class StyleTable {
public:
    // The new index, or -1 if memory ran out; the table is as before then. Indices stay valid.
    int Add(COLORREF crText, COLORREF crBk);

    // Overwrites an entry that exists; does nothing otherwise.
    void Update(int nStyle, COLORREF crText, COLORREF crBk);

    int Count() const { return static_cast<int>(m_styles.size()); }

    // nStyle must be one that ParseStyle gave.
    const QVSTYLE& operator[](int nStyle) const { return m_styles[static_cast<size_t>(nStyle)]; }

    // Style of a field: 0 for null, for text without a code, and for a code outside the table.
    int ParseStyle(const char* pszText) const;

    // The text behind the code. A code outside the table loses its ESC alone, so its letter shows.
    // Null gives an empty string.
    const char* ParseStyleText(const char* pszText) const;

    // Both of a field that is part of a longer row: its text, and its style, -1 without a code.
    std::string_view ParseField(std::string_view field, int& nStyle) const;

    // What AppendStyleText puts before the text of a new field in a row that ends in chLast (0 for
    // an empty row). Below 0 there is no prefix at all: plain text continues the current field. An
    // index beyond the table writes style 0.
    FieldPrefix PrefixFor(char chLast, int nStyle) const;

private:
    std::vector<QVSTYLE> m_styles;
};

}  // namespace qv
