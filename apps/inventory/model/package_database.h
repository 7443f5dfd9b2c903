// Reads the status file of the Debian package database.

#pragma once

#include "model/inventory.h"

#include <string>
#include <string_view>
#include <vector>

// What went wrong, and where. Line 0: the file as a whole.
struct DatabaseError {
    std::string strMessage;
    size_t nLine = 0;
};

// Reads a whole status file: stanzas of "Field: value" lines, continuation lines that begin with a
// blank, blank lines between. False, with the line, at the first that is none of these, at a stanza
// without a name, at a size that is no number, at a NUL byte and at a line of over a megabyte;
// packages is empty then.
bool ParsePackages(std::string_view text, std::vector<Package>& packages, DatabaseError& error);

// The same for a file. The message names it.
bool ReadPackages(const std::string& strPath, std::vector<Package>& packages, DatabaseError& error);
