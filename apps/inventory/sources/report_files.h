// The named reports' files, a folder of them: each report has one of its own, so that damage to one
// leaves the others alone.

#pragma once

#include "model/named_reports.h"

#include <afxwin.h>

class ReportFiles {
public:
    void UseFolder(const CString& strFolder) { m_strFolder = strFolder; }
    // Damaged files are set aside as those of settings are. The message tells of the first of them,
    // or of too many; empty: nothing to say.
    CString Load(NamedReports& reports) const;
    bool Write(const ReportDefinition& report, int nFile) const;
    void Delete(int nFile) const;

private:
    CString PathOf(int nFile) const;

    CString m_strFolder;
};
