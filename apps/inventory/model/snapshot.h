// A snapshot: packages as a status file, which ReadPackages reads again.

#pragma once

#include "model/inventory.h"

#include <string>

// The entry of a package, with the empty line behind it. Where the package has one of the database,
// that is it, byte by byte: all comes back but the day of installation, which a database keeps
// elsewhere. Of others, in their own code page, come back name, section, version, architecture,
// state, summary, size, whether it is required, what it needs and what it provides; line breaks and
// the like become blanks, blanks around a text go, and so does a size below 0. Empty for a package
// without a name: a status file cannot hold it.
std::string SnapshotEntry(const Package& package);
