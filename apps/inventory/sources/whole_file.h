// A file that is written whole or not at all.

#pragma once

#include "work.h"

// As work with the message. write gets the path to write to, and gives 0, with GetLastError, where
// it cannot. Null: the file is there; otherwise a file of that name is as it was, and the failure
// is of that code.
Failure WriteWholeFile(LPCSTR pszMessage, ErrorCode code, LPCSTR pszPath,
                       const std::function<BOOL(LPCSTR, Work&)>& write);
