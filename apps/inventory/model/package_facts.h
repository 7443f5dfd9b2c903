// What is known of one package, as names and values.

#pragma once

#include "model/inventory.h"

#include <string>
#include <vector>

struct Fact {
    std::string strName;
    std::string strValue;  // one line
};

// All that the package's entry says, sizes and days in words; where it comes without an entry, what
// the inventory has. Description and configuration files are not among them.
std::vector<Fact> FactsOf(const Package& package);
// The summary and the paragraphs below it, a line each.
std::vector<std::string> DescriptionOf(const Package& package);
