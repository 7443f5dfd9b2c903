// What a package needs, and what needs it.

#pragma once

#include "model/inventory.h"

#include <string>
#include <string_view>
#include <vector>

struct Relation {
    std::string strName;   // of a package that the inventory has; empty: it has none that would do
    std::string strText;   // as the database says it
    std::string strState;  // of that package
};

struct Relations {
    std::vector<Relation> needs;     // one each, alternatives apart
    std::vector<Relation> neededBy;  // a package each
};

Relations RelationsOf(const Inventory& inventory, const Package& package);

// The package that "name:architecture (>= version)" is about.
std::string_view DependencyName(std::string_view text);
