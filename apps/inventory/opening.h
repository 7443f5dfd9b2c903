// Which package database is shown: one that the user names, or that of another machine.

#pragma once

#include "errors.h"

#include <afxwin.h>

// Asks for a status file. Empty: the user does not want to.
CString AskForDatabase(CWnd& parent);

// Asks for a machine, then for a folder on it; both begin with what was chosen before. False if the
// user does not want to.
bool AskForMachinesFolder(CWnd& parent, QVMachineFolders& folders, CString& strMachine,
                          CString& strFolder);

// The status file in a folder: in itself, or where a machine keeps it whose root the folder is.
// Empty if there is none.
CString DatabaseIn(const CString& strFolder);
