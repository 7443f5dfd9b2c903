// Which packages a list shows.

#pragma once

#include "model/inventory.h"
#include "model/settings.h"

struct PackageFilter {
    std::string strSection;       // empty: any
    std::string strArchitecture;  // empty: any
    std::time_t tSince = 0;       // installed then or later; 0: any, also without a date

    bool operator==(const PackageFilter&) const = default;
    bool IsOpen() const;
    bool Shows(const Package& package) const;
};

// How a filter stands in its file, the day in local time.
class FilterValues : public KeyedValues {
public:
    FilterValues();
    explicit FilterValues(const PackageFilter& filter);
    PackageFilter Filter() const;  // a day that is none counts as any
};

// Every architecture that a package has, by name, each once.
std::vector<std::string> Architectures(const Inventory& inventory);
