// The order of the versions that packages have.

#pragma once

#include <compare>
#include <string_view>

// By epoch, then by the upstream version, then by the revision, as the package manager orders them;
// versions that differ in leading zeros or in a revision of 0 are equivalent. Any bytes have their
// place in the order, so that it is one over whatever a database says.
std::weak_ordering CompareVersions(std::string_view a, std::string_view b);
