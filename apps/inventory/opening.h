// Which package database is shown: one that the user names, or that of another machine.

#pragma once

#include "errors.h"
#include "model/package_database.h"
#include "work.h"

#include <afxwin.h>

// Asks for a status file. Empty: the user does not want to.
CString AskForDatabase(CWnd& parent);

// The same for the file that strShown is to be compared with: what the package manager left of its
// state before the last change, to begin with, if that is there.
CString AskForDatabaseBefore(CWnd& parent, const CString& strShown);

// Asks where a snapshot of the packages is to be.
CString AskForSnapshot(CWnd& parent);

// Reads a status file with what stands beside it, in the process's code page. False with the
// problem.
bool ReadDatabase(Work& work, const CString& strFile, std::vector<Package>& packages,
                  Problem& problem);

// Asks for a machine, then for a folder on it; both begin with what was chosen before. False if the
// user does not want to.
bool AskForMachinesFolder(CWnd& parent, QVMachineFolders& folders, CString& strMachine,
                          CString& strFolder);

// The status file in a folder: in itself, or where a machine keeps it whose root the folder is.
// Empty if there is none.
CString DatabaseIn(const CString& strFolder);
