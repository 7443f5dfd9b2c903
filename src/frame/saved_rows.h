// Rows that were remembered by their item data, to be found again after a sort or a refill.

#pragma once

#include "frame/out_of_memory.h"

#include <afxtempl.h>

#include <unordered_map>

namespace qv {

// Calls found(nRow) for each saved value, in the order of the values, with the first of nRows rows
// that has it; values without a row are passed over. dataOf(nRow) gives a row's item data; it is
// asked once for each row. found says whether to go on: where it does not, nothing of aSaved is
// touched any more. Without memory no row is found.
template <class DataOf, class Found>
void FindSavedRows(const CArray<DWORD_PTR, DWORD_PTR>& aSaved, int nRows, DataOf dataOf,
                   Found found) {
    std::unordered_map<DWORD_PTR, int> rows;
    const bool bRead = MemorySuffices([&] {
        for (int nRow = 0; aSaved.GetSize() != 0 && nRow < nRows; ++nRow) {
            rows.emplace(dataOf(nRow), nRow);
        }
    });
    for (INT_PTR i = 0; bRead && i < aSaved.GetSize(); ++i) {
        if (const auto it = rows.find(aSaved[i]); it != rows.end() && !found(it->second)) {
            return;
        }
    }
}

}  // namespace qv
