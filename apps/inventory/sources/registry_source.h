// The programs that Windows itself lists as installed.

#pragma once

#include "model/inventory.h"

#include <vector>

// The uninstall entries of the machine, in both views, and of the user; publishers are the
// sections.
std::vector<Package> ReadUninstallEntries();
