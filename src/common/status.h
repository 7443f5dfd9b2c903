// QVStatus: what came of an operation, mostly an error: code, severity, text, when it happened,
// what was being done, and the status that caused it, which may have a cause of its own.
//
// Statuses are made on the heap, thrown and caught as pointers, and deleted by whoever catches them
// last. On its way up an error is given what each storey knows:
//
//     } catch (CException* pException) {
//         auto* pStatus = new QVStatus(1001, "The report could not be saved.");
//         pStatus->SetWhere(strPath);
//         pStatus->SetCause(new QVStatus(pException));
//         pException->Delete();
//         throw pStatus;
//     }
//
// There are two tables of codes, and IsSystem tells which one a code is of. Codes of the platform
// (of GetLastError, or an HRESULT) come by FromSystem alone. All others are of the companion's
// table: up to 999 its own, named below and with texts of their own; from 1000 on the
// application's, which gives the text with the code.
//
// Texts are in the process's code page. Where there is no memory for one the status is made all
// the same: a code of the companion's own keeps its text, others are without.

#pragma once

#include "common/common_api.h"

#include <afxwin.h>

class QV_COMMON_API QVStatus {
public:
    enum Severity { info, warning, error };
    enum : DWORD {
        generalError = 256,
        outOfMemory = 257,
        fileError = 258,
        resourceError = 259,
        notSupported = 260,
        badArgument = 261,
        unknownError = 262,
        cancelled = 263
    };

    // With the table's text; without one if the table does not have the code. A cancelled operation
    // is an information, all others are errors.
    explicit QVStatus(DWORD dwCode);
    // A null text counts as empty; an empty one as none.
    QVStatus(DWORD dwCode, LPCSTR pszText, Severity severity = error);
    // Describes the exception, which stays the caller's. The text is what the exception tells, or
    // that of the code. A CFileException gives fileError, with the path in its text and, where it
    // has an error of the platform, that one as cause; a CUserException gives cancelled: the user
    // knows already. Null, and what tells nothing, gives unknownError.
    explicit QVStatus(CException* pException);
    // An error of the platform with its text. Null without memory.
    static QVStatus* FromSystem(DWORD dwError);
    // Deletes the causes, without going deep for a long chain.
    virtual ~QVStatus();
    QVStatus(const QVStatus&) = delete;
    QVStatus& operator=(const QVStatus&) = delete;

    DWORD Code() const { return m_dwCode; }
    BOOL IsSystem() const { return m_bSystem; }
    Severity GetSeverity() const { return m_severity; }
    // Never null. Belongs to the status.
    LPCSTR Text() const;
    // When the status was made.
    CTime When() const { return m_time; }

    // What was being done, and on what: "saving C:\report.txt". Never null. Without memory it stays
    // what it was.
    LPCSTR Where() const { return m_strWhere; }
    void SetWhere(LPCSTR pszWhere);

    // Null if there is none.
    const QVStatus* Cause() const { return m_pCause; }
    QVStatus* Cause() { return m_pCause; }
    // Takes the cause over; one of before is deleted. Null takes it away. A status that this one is
    // a cause of is refused, and nothing changes.
    void SetCause(QVStatus* pCause);

private:
    void TakeText(CException& exception);

    DWORD m_dwCode;
    BOOL m_bSystem = FALSE;
    Severity m_severity = error;
    CString m_strText;
    CString m_strWhere;
    CTime m_time = CTime::GetCurrentTime();
    QVStatus* m_pCause = nullptr;
};
