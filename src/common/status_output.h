// QVStatusOutputGenerator: a status and its causes as text.

#pragma once

#include "common/status.h"

class QV_COMMON_API QVStatusOutputGenerator {
public:
    // pszName: of the program or part of it that reports, which the texts then name; null for none.
    explicit QVStatusOutputGenerator(const char* pszName);

    // Both replace strOut, in lines that end in LF; a null status is described as one of which
    // nothing is known. Without memory strOut is the text of the status alone, or empty.

    // For a message box, however long the chain: at most some 2,000 bytes. The text and, in
    // brackets, where; then the same of the next causes and of the last one. Where there is no text
    // stands the code.
    void AsCompactString(const QVStatus* pStatus, CString& strOut) const;
    // An entry of a log, whole. The first line begins with "=== " and has time, severity and code;
    // the others are indented: text and where of the status, then code, text and where of each
    // cause. Control characters in them are blanks.
    void LogStatus(const QVStatus* pStatus, CString& strOut) const;

private:
    CString m_strName;
};
