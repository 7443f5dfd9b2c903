// Where pages come out: on a printer, if there is one, or in a file, if the printer writes to
// files.

#pragma once

#include <afxdlgs.h>

// Whether there is a printer. Where there is none, offers to add one that writes to files, or says
// what to do where the system has no driver for it.
bool HasPrinter(CWnd* pParent);

// Asks for the file of a job where the chosen printer writes to files, or the user ticked that it
// is to. strName: what to begin with, without an extension; afterwards the file's path, empty for
// the printer's own port. False: the user does not want to print.
bool AskForOutput(const CPrintDialog& printer, CWnd* pParent, CString& strName);
