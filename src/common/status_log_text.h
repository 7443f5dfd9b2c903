// QVStatusLogText: writes statuses into a text file that stays below a limit, for users and support
// to read. Several objects, threads and processes may write the same file: nothing is lost, each
// waits for its turn. The file is opened for each entry alone, so it may be read, moved away and
// deleted in between.
//
// An entry is that of QVStatusOutputGenerator::LogStatus, in lines that end in CR LF. Once the file
// is longer than the limit the oldest whole entries go, until half the limit is left: a log holds
// between half and all of its limit. The newest entry is always there and whole, even if it is
// longer than that. What other programs wrote into the file counts as part of the entry before it,
// and goes first where there is none.

#pragma once

#include "common/status.h"

class QV_COMMON_API QVStatusLogText {
public:
    // The path may be longer than 260 characters. nLimit in bytes. The file is made with the first
    // entry. Throws CMemoryException.
    QVStatusLogText(const char* pszPath, unsigned long nLimit);
    virtual ~QVStatusLogText();
    QVStatusLogText(const QVStatusLogText&) = delete;
    QVStatusLogText& operator=(const QVStatusLogText&) = delete;

    // Appends an entry; for a null status one of which nothing is known. Throws CFileException if
    // the file cannot be written, with no part of the entry left behind, or if others hold on to it
    // for seconds (lockViolation); CMemoryException.
    virtual void Log(QVStatus* pStatus);

private:
    CString m_strPath;
    unsigned long m_nLimit;
};
