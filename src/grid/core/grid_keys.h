// What keys do in a grid: which cell one leads to, which line of a list, and which ones an edit
// keeps. Keys are VK_ codes.

#pragma once

#include "grid/core/grid_model.h"

namespace qv {

// Arrows, ends and pages: the grid's own, whether or not they lead anywhere.
bool IsWalkKey(unsigned nKey);

// The cell that a key leads to, without regard to editors. current may be without cell; the walk
// then starts at nTopRow and column 0, and any key leads there. nPage: whole rows that show.
// VK_PRIOR leads nowhere, unlike VK_NEXT: users of old are used to it.
GridCell KeyTarget(unsigned nKey, GridCell current, const GridModel& model, int nTopRow, int nPage);

// The line that VK_UP or VK_DOWN leads to in a list of nCount lines; -1 in is none selected.
int ListLineAfterKey(int nLine, bool bDown, int nCount);

// Whether a key typed in an edit with this selection, in a text of this length, goes to the grid.
bool LeavesEdit(unsigned nKey, int nStart, int nEnd, int nLength);

// Whether a character is one to be seen, not one that edits.
bool IsTyped(unsigned nChar);

}  // namespace qv
