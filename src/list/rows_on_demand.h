// Rows that a list does not keep: it asks for them when it shows, prints or exports them.

#pragma once

#include <afxwin.h>

namespace qv {

// Whoever answers may take the list away on the way.
class RowsOnDemand {
public:
    virtual ~RowsOnDemand() = default;

    // The text of a cell with its style code, valid until the next call; empty where the list is
    // gone. May throw std::bad_alloc.
    virtual LPCSTR Cell(int nItem, int nCol) = 0;
    // -1 where there is none.
    virtual int Image(int nItem) = 0;
    // The item that has this item data, -1 if none has. May throw std::bad_alloc.
    virtual int ItemOf(DWORD_PTR dwData) = 0;
};

}  // namespace qv
