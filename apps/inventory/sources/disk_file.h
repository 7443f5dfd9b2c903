// Files that are taken away again, and what is named like a file and is none.

#pragma once

#include <afxwin.h>

// A printer's port, a console, "NUL": takes what is written, and is neither replaced nor deleted.
bool IsDevice(LPCSTR pszPath);
// Deletes what could not be written to its end; a device stays.
void RemovePart(LPCSTR pszPath);
