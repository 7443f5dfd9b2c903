// Reads the status file of the Debian package database.

#pragma once

#include "model/inventory.h"
#include "model/problem.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Reads a whole status file: stanzas of "Field: value" lines, continuation lines that begin with a
// blank, blank lines between. False, with the line, at the first that is none of these, at a stanza
// without a name, at a size that is no number, at a NUL byte and at a line of over a megabyte;
// packages is empty then.
bool ParsePackages(std::string_view text, std::vector<Package>& packages, Problem& problem);

// Told at each piece of a file: bytes read, of bytes that there are. False stops the reading, and
// so does what it throws.
using ReadStep = std::function<bool(std::uint64_t nDone, std::uint64_t nAll)>;

// The same for a file. The problem names it; it has no message where the step stopped the reading.
bool ReadPackages(const std::string& strPath, std::vector<Package>& packages, Problem& problem,
                  const ReadStep& step = {});
