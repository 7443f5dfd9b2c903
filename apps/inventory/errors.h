// How the application tells that something failed: a status of what the user wanted, with the
// causes below it, is kept in the application's log and shown by the status report.
//
//     Tell(Failed(kErrorExport, FileReason(pException)), this);

#pragma once

#include "QVControls.h"
#include "model/problem.h"

#include <memory>

// Null: nothing failed.
using Failure = std::unique_ptr<QVStatus>;

// The user knows already: nothing to be told.
bool WasCancelled(const Failure& pFailure);

// What the user wanted. The numbers stand in the log: they stay.
enum ErrorCode : DWORD {
    kErrorOpenInventory = 1001,
    kErrorNoInventory = 1002,
    kErrorReadSettings = 1003,
    kErrorWriteSettings = 1004,
    kErrorReadReport = 1005,
    kErrorWriteReport = 1006,
    kErrorDeleteReport = 1007,
    kErrorExport = 1008,
    kErrorOpenLog = 1009,
    kErrorExportLog = 1010,
    kErrorPrint = 1011,
    kErrorNoPrinter = 1012,
    kErrorReadPackageFile = 1013,
    kErrorKeepError = 1014,
    kErrorSnapshot = 1015,
    kErrorCompare = 1016,
    kErrorControls = 1017,
    // Of a cause that the platform has no number for.
    kErrorCause = 1099
};

// The sentence of the code, and why. Where: on what, null for nothing to name.
Failure Failed(ErrorCode code, Failure pCause = nullptr, LPCSTR pszWhere = nullptr);
// Reasons, each with the place it is about; what lies below comes from the platform.
Failure Reason(LPCSTR pszText, LPCSTR pszWhere, Failure pCause = nullptr);
Failure ProblemReason(const Problem& problem);
// Null for 0, where the platform said nothing.
Failure SystemReason(DWORD dwError, LPCSTR pszWhere);
// Of a call to a file. Deletes the exception.
Failure FileReason(CException* pException);

// Where errors are kept from now on; before, none is.
void KeepErrorsIn(const CString& strPath);
const CString& ErrorLogPath();
// Keeps a failure in the log, if that can be written.
void Keep(const Failure& pFailure);
// Keeps it, and shows it if somebody is there.
void TellOrKeep(Failure pFailure, bool bInteractive);
// Keeps it, and shows it above a window (null: the main one). Nothing happens for null and for what
// the user has cancelled. A log that cannot be written is told as well, once.
void Tell(Failure pFailure, CWnd* pParent = nullptr);
