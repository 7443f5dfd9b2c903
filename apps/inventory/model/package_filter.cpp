#include "model/package_filter.h"

#include <cstdio>
#include <set>

namespace {

enum FilterIndex { kFilterSection, kFilterArchitecture, kFilterSince };

std::time_t StartOfDay(int nYear, int nMonth, int nDay) {
    std::tm day{};
    day.tm_year = nYear - 1900;
    day.tm_mon = nMonth - 1;
    day.tm_mday = nDay;
    day.tm_isdst = -1;
    const std::time_t t = std::mktime(&day);
    const bool bThatDay = day.tm_mday == nDay && day.tm_mon == nMonth - 1;
    return t > 0 && bThatDay ? t : 0;
}

}  // namespace

bool PackageFilter::IsOpen() const {
    return strSection.empty() && strArchitecture.empty() && tSince == 0;
}

bool PackageFilter::Shows(const Package& package) const {
    return (strSection.empty() || package.strSection == strSection) &&
           (strArchitecture.empty() || package.strArchitecture == strArchitecture) &&
           (tSince == 0 || package.tInstalled >= tSince);
}

FilterValues::FilterValues()
    : KeyedValues("inventory filter, version 1",
                  {{"section", "Section", SettingKind::Text, "", {}},
                   {"architecture", "Architecture", SettingKind::Text, "", {}},
                   {"since", "Installed since", SettingKind::Text, "", {}}}) {}

FilterValues::FilterValues(const PackageFilter& filter) : FilterValues() {
    Set(kFilterSection, filter.strSection);
    Set(kFilterArchitecture, filter.strArchitecture);
    char szDay[32] = "";
    if (const std::tm* pDay = filter.tSince != 0 ? std::localtime(&filter.tSince) : nullptr) {
        std::strftime(szDay, sizeof(szDay), "%Y-%m-%d", pDay);
    }
    Set(kFilterSince, szDay);
}

PackageFilter FilterValues::Filter() const {
    PackageFilter filter{Value(kFilterSection), Value(kFilterArchitecture), 0};
    int nYear = 0;
    int nMonth = 0;
    int nDay = 0;
    if (std::sscanf(Value(kFilterSince).c_str(), "%4d-%2d-%2d", &nYear, &nMonth, &nDay) == 3) {
        filter.tSince = StartOfDay(nYear, nMonth, nDay);
    }
    return filter;
}

std::vector<std::string> Architectures(const Inventory& inventory) {
    std::set<std::string> names;
    for (const Section& section : inventory.Sections()) {
        for (const Package& package : section.packages) {
            if (!package.strArchitecture.empty()) {
                names.insert(package.strArchitecture);
            }
        }
    }
    return {names.begin(), names.end()};
}
