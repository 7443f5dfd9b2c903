// The list of texts that a text box steps through, written as one string.

#pragma once

#include <string_view>
#include <vector>

namespace qv {

// TAB-separated fields without the blanks at their ends, views of list. A TAB at the very end
// starts no further field.
std::vector<std::string_view> SplitTextList(std::string_view list);

// The entry nSteps further, 0 to nLast, round and round.
inline int StepInList(int nFrom, int nSteps, int nLast) {
    const int nCount = nLast + 1;
    return nCount > 0 ? ((nFrom + nSteps) % nCount + nCount) % nCount : 0;
}

}  // namespace qv
