// Snapshots on disk: what is shown now, to be compared with what will be installed later.

#pragma once

#include "errors.h"
#include "model/inventory.h"

// Writes all packages as a status file, a step of work each. Null: it is there. Otherwise a file of
// that name is as it was.
Failure WriteSnapshot(LPCSTR pszPath, const Inventory& inventory);
