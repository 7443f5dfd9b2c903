#include "model/dependencies.h"

#include <algorithm>

namespace {

// One of several that will do.
template <class Take>
void ForEachAlternative(std::string_view text, Take take) {
    while (!text.empty()) {
        const size_t nBar = text.find('|');
        std::string_view one = text.substr(0, nBar);
        text.remove_prefix(nBar == std::string_view::npos ? text.size() : nBar + 1);
        one.remove_prefix(std::min(one.find_first_not_of(' '), one.size()));
        while (one.ends_with(' ')) {
            one.remove_suffix(1);
        }
        if (!one.empty()) {
            take(one);
        }
    }
}

bool Provides(const Package& package, std::string_view name) {
    return std::any_of(
        package.provides.begin(), package.provides.end(),
        [&](const std::string& strProvided) { return DependencyName(strProvided) == name; });
}

// Where in the dependencies of a package another one is named, by its own name or what it provides.
const std::string* Need(const Package& package, const Package& other) {
    for (const std::string& strDependency : package.dependencies) {
        bool bNamed = false;
        ForEachAlternative(strDependency, [&](std::string_view one) {
            const std::string_view name = DependencyName(one);
            bNamed = bNamed || name == other.strName || Provides(other, name);
        });
        if (bNamed) {
            return &strDependency;
        }
    }
    return nullptr;
}

}  // namespace

std::string_view DependencyName(std::string_view text) {
    return text.substr(0, text.find_first_of(" (:["));
}

Relations RelationsOf(const Inventory& inventory, const Package& package) {
    Relations relations;
    for (const std::string& strDependency : package.dependencies) {
        ForEachAlternative(strDependency, [&](std::string_view one) {
            relations.needs.push_back({"", std::string(one), ""});
        });
    }
    for (const Section& section : inventory.Sections()) {
        for (const Package& other : section.packages) {
            for (Relation& relation : relations.needs) {
                const std::string_view name = DependencyName(relation.strText);
                // A package of that name comes before one that provides it.
                if (name == other.strName || (relation.strName.empty() && Provides(other, name))) {
                    relation.strName = other.strName;
                    relation.strState = other.strState;
                }
            }
            if (const std::string* pNeed = Need(other, package)) {
                relations.neededBy.push_back({other.strName, *pNeed, other.strState});
            }
        }
    }
    return relations;
}
