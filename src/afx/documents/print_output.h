// Where the jobs of views go, for programs that print without anybody to ask.
#pragma once

#include <afx.h>

/// While one lives, the jobs of views go to this file, whatever the printer's port. The innermost
/// one counts. Of a job that does not end nothing is left.
class QVAFX_API AfxPrintOutput {
public:
    explicit AfxPrintOutput(LPCTSTR lpszPath);
    ~AfxPrintOutput();
    AfxPrintOutput(const AfxPrintOutput&) = delete;
    AfxPrintOutput& operator=(const AfxPrintOutput&) = delete;

    /// Empty if there is none.
    static CString Path();

private:
    const CString m_strPath;
    const AfxPrintOutput* const m_pOuter;
};
