// Rows as text that spreadsheets give and take: TAB between the cells, a line end behind each row.
// A cell with a TAB, a quote or a line end in it stands in quotes, and its own quotes are doubled.
//
// None of these bytes is ever a part of another character.

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qv {

// Puts together one row after the other.
class SheetWriter {
public:
    void AddCell(std::string_view cell);
    void EndRow();
    const std::string& Text() const { return m_strText; }

private:
    std::string m_strText;
    bool m_bInRow = false;
};

using SheetRow = std::vector<std::string>;

// The cells of a text. Lines end in CR, LF or both, the last one with or without. A cell that
// begins with a quote and does not end with one is read as it stands.
std::vector<SheetRow> ReadSheet(std::string_view text);

// True for a text of one cell, with a line end behind it or none. It stands for itself, quotes and
// all, as other programs give it.
bool IsOneCell(std::string_view text);

}  // namespace qv
