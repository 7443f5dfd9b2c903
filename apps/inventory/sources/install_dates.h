// When packages were installed: the database keeps a list of files for each, written then.

#pragma once

#include "model/inventory.h"

#include <afxwin.h>

#include <vector>

// Fills tInstalled from the folder "info" beside the status file; packages without such a file keep
// theirs.
void ReadInstallDates(const CString& strStatusFile, std::vector<Package>& packages);
