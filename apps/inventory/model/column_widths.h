// How the columns of a table share the width of a page.

#pragma once

#include <vector>

struct ColumnWish {
    int nWidth;      // that most of what stands in the column has
    int nLeast;      // for a text that may be cut; others keep their width
    bool bMayBeCut;  // a long text, which also takes what is left over
};

// Where the room does not suffice, columns that may be cut give way in the proportion of what they
// have to give, and then the others keep their widths all the same.
std::vector<int> ShareWidth(const std::vector<ColumnWish>& wishes, int nRoom);

// Some text that may be cut would have to do with much less than its wish.
bool CutsTooMuch(const std::vector<ColumnWish>& wishes, int nRoom);
