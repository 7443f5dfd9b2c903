#include "model/browser_layout.h"

#include <charconv>
#include <iterator>

namespace {

enum LayoutIndex { kLayoutTree, kLayoutList, kLayoutDetails, kLayoutTreeColumns };

constexpr int kLeastPercent = 5;

int Percent(const std::string& strText, int nElse) {
    int n = 0;
    const char* pEnd = strText.data() + strText.size();
    const auto [pRead, problem] = std::from_chars(strText.data(), pEnd, n);
    const bool bRead = problem == std::errc() && pRead == pEnd;
    return bRead && n >= kLeastPercent && n <= 100 - kLeastPercent ? n : nElse;
}

}  // namespace

LayoutValues::LayoutValues()
    : KeyedValues("inventory layout, version 1",
                  {{"tree", "Tree's part of the width", SettingKind::Text, "", {}},
                   {"list", "List's part of the height", SettingKind::Text, "", {}},
                   {"details",
                    "Details shown",
                    SettingKind::Choice,
                    kDetailsNames[0],
                    {std::begin(kDetailsNames), std::end(kDetailsNames)}},
                   {"tree.columns", "Widths of the tree's columns", SettingKind::Text, "", {}}}) {}

LayoutValues::LayoutValues(const BrowserLayout& layout) : LayoutValues() {
    Set(kLayoutTree, std::to_string(layout.nTreePercent));
    Set(kLayoutList, std::to_string(layout.nListPercent));
    Set(kLayoutDetails, kDetailsNames[layout.nDetails]);
    Set(kLayoutTreeColumns, TreeWidthsText(layout.treeWidths));
}

BrowserLayout LayoutValues::Layout() const {
    const BrowserLayout first;
    return {Percent(Value(kLayoutTree), first.nTreePercent),
            Percent(Value(kLayoutList), first.nListPercent), Choice(kLayoutDetails),
            TreeWidthsOf(Value(kLayoutTreeColumns))};
}
