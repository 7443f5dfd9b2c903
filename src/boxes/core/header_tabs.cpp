#include "boxes/core/header_tabs.h"

#include "frame/core/styled_text.h"

#include <algorithm>
#include <limits>

namespace qv {

int TabsFromFields(std::string_view fields, TextMeasure& measure, int* pTabs) {
    int nTabs = 0;
    int nEdge = 0;
    std::string_view field;
    for (int nPos = 0; nTabs < kMaxTabs && NextField(fields, nPos, field); ++nTabs) {
        nEdge += measure.Extent(field).cx + kTabGap;
        pTabs[nTabs] = nEdge;
    }
    if (nTabs < kMaxTabs) {
        pTabs[nTabs] = 0;
    }
    return nTabs;
}

void StretchTabs(std::span<int> tabs, int nFrom, int nColumns, int nHeaderWidth) {
    if (tabs.empty() || nFrom == -1) {
        return;
    }
    const int nSlack = nHeaderWidth - tabs.back();
    const int nEnd = std::min(nColumns, static_cast<int>(tabs.size()));
    for (int nTab = std::max(nFrom, 0); nSlack > 0 && nTab < nEnd; ++nTab) {
        tabs[static_cast<std::size_t>(nTab)] += nSlack;
    }
}

int ColumnWidth(std::span<const int> tabs, int nCol) {
    return TabValue(tabs, nCol) - TabValue(tabs, nCol - 1);
}

bool SetColumnWidth(std::span<int> tabs, int nCol, int nWidth) {
    const int nTabs = static_cast<int>(tabs.size());
    if (nCol < 0 || nCol >= nTabs) {
        return false;
    }
    const long long nChange = static_cast<long long>(nWidth) - ColumnWidth(tabs, nCol);
    for (int nTab = nCol; nTab < nTabs; ++nTab) {
        const long long nValue = TabValue(tabs, nTab) + nChange;
        SetTabValue(
            tabs, nTab,
            static_cast<int>(std::clamp<long long>(nValue, 0, std::numeric_limits<int>::max())));
    }
    return true;
}

}  // namespace qv
