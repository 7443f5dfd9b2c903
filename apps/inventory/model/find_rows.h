// How rows are searched for a text: from one row on, around the end, back to that row.

#pragma once

#include <cstddef>
#include <string_view>

struct FoundRow {
    int nRow = -1;          // none has it
    bool bWrapped = false;  // the search went on at the other end
};

// Of nRows rows, the next in a direction for which has(row) holds. nStart, where the search begins,
// is looked at last; -1: in front of all rows.
template <class Has>
FoundRow FindRow(int nRows, int nStart, bool bDown, Has has) {
    const bool bAnywhere = nStart < 0 || nStart >= nRows;
    int nRow = bAnywhere ? (bDown ? -1 : nRows) : nStart;
    FoundRow found;
    for (int i = 0; i < nRows; ++i) {
        nRow += bDown ? 1 : -1;
        if (nRow < 0 || nRow >= nRows) {
            nRow = bDown ? 0 : nRows - 1;
            found.bWrapped = true;
        }
        if (has(nRow)) {
            found.nRow = nRow;
            return found;
        }
    }
    return {};
}

// Where the text has the one that is wanted; npos: nowhere. Case counts: fold both texts for a
// search to which it does not matter. A whole word has neither letter nor digit beside it; all
// characters beyond ASCII count as letters.
std::size_t PlaceOfText(std::wstring_view text, std::wstring_view wanted, bool bWholeWord);
