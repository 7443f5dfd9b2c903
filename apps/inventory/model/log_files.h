// Which logs belong together: a log is rotated to a file of its own name with a number behind it,
// and what was there before goes on to the next number.

#pragma once

#include <string>

// The file with what was logged before: "dpkg.log.1" for "dpkg.log", "dpkg.log.3" for
// "dpkg.log.2". It need not be there.
std::string OlderLog(const std::string& strPath);
