// Orders of a flexible grid's rows. Rows that compare equal stay in the order that they have.

#pragma once

#include "ocx/core/flex_grid_model.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qv {

enum FlexGridSort {
    fgoNone,
    fgoGenericAscending,  // numbers by value, before all texts, which go by fgoTextNoCase
    fgoGenericDescending,
    fgoNumericAscending,  // by what a text begins with; 0 for no number
    fgoNumericDescending,
    fgoTextNoCaseAscending,
    fgoTextNoCaseDescending,
    fgoTextAscending,
    fgoTextDescending,
    fgoCustom,  // by whom the grid asks
};

// Bytes that order as the texts do in the user's language.
using FlexGridTextKey = std::function<std::string(std::u16string_view text, bool bIgnoreCase)>;

// Rows range.nTop to nBottom in the order that the texts of columns nLeft to nRight give, the
// leftmost column first. Kinds that order nothing give them as they are.
std::vector<int> SortedRows(const FlexGridModel& model, const FlexGridRange& range,
                            FlexGridSort kind, const FlexGridTextKey& key);

// Sorts by a comparison that may contradict itself; no value ends the sorting, with false and
// nothing changed. Below 0: the first one goes before the second.
bool StableSort(std::vector<int>& rows, const std::function<std::optional<int>(int, int)>& compare);

}  // namespace qv
