// Tab stops and the columns of a header above them. Column i of the header ends at stop i.

#pragma once

#include "base/text_measure.h"
#include "frame/core/tab_stops.h"

#include <span>
#include <string_view>

namespace qv {

inline constexpr int kTabGap = 12;  // what a column is wider than its sample

// Sets a stop behind each field: its width, measured as it stands with a style code, and the gap.
// pTabs holds kMaxTabs; fields beyond are left out, and a 0 follows the last stop if there is room.
// Gives the number of stops.
int TabsFromFields(std::string_view fields, TextMeasure& measure, int* pTabs);

// Gives what the header has left to the column that ends at stop nFrom: the stops from there on, up
// to that of the header's last column, move by the slack. -1 or no slack: nothing moves.
void StretchTabs(std::span<int> tabs, int nFrom, int nColumns, int nHeaderWidth);

int ColumnWidth(std::span<const int> tabs, int nCol);

// Moves the stops from nCol on so that the column gets its width and the later ones keep theirs.
// False if there is no such column.
bool SetColumnWidth(std::span<int> tabs, int nCol, int nWidth);

}  // namespace qv
