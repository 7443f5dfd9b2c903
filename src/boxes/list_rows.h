// Where the rows of the platform's list box lie: of a list, and of the one that a combo box opens.

#pragma once

#include <afxwin.h>

namespace qv {

// -1 beside all rows.
int ListRowAt(HWND hList, CPoint pt);
// False for a row that does not show. Costs no more for one that is far away.
bool ListRowRect(HWND hList, int nRow, CRect& rect);

// Brings a row into view where none can be selected; the caret goes there if the platform lets it.
void GoToListRow(HWND hList, int nRow);

}  // namespace qv
