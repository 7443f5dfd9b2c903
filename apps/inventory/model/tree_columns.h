// The columns of the package tree: package, version, size, state and summary. The summary takes the
// room that it needs, the others have widths.

#pragma once

#include <array>
#include <string>

inline constexpr int kTreeColumns = 5;
inline constexpr int kTreeWidths = kTreeColumns - 1;

// Pixels at 96 dpi. The first column counts from where the text of a package begins.
using TreeWidths = std::array<int, kTreeWidths>;

inline constexpr TreeWidths kFirstTreeWidths = {190, 120, 70, 90};
inline constexpr int kLeastTreeWidth = 16;
inline constexpr int kMostTreeWidth = 2000;
// What stands before the text of a package, where columns line up across levels.
inline constexpr int kTreeLevels = 120;

// The stops of the tree control, in pixels of the screen and with the columns' alignment.
// bIndented: they count from the start of the text, otherwise from that of the row.
std::array<int, kTreeColumns> TreeStops(const TreeWidths& widths, bool bIndented, int nDpi);

// As they stand in a file: "190 120 70 90". From a text of another kind the first ones.
std::string TreeWidthsText(const TreeWidths& widths);
TreeWidths TreeWidthsOf(const std::string& strText);
