// When packages were installed: the database keeps a list of files for each, written then.

#pragma once

#include <afxwin.h>

#include <vector>

#include "model/inventory.h"

// Fills tInstalled from the folder "info" beside the status file; packages without such a file keep
// theirs.
void ReadInstallDates(const CString& strStatusFile, std::vector<Package>& packages);
