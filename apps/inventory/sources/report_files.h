// The named reports' files, a folder of them: each report has one of its own, so that damage to one
// leaves the others alone.

#pragma once

#include "errors.h"
#include "model/named_reports.h"

class ReportFiles {
public:
    void UseFolder(const CString& strFolder) { m_strFolder = strFolder; }
    // Damaged files are set aside as those of settings are. What is told is the first of them, or
    // that there are too many; null: nothing to say.
    Failure Load(NamedReports& reports) const;
    // Both: null where all went well.
    Failure Write(const ReportDefinition& report, int nFile) const;
    Failure Delete(int nFile) const;

private:
    CString PathOf(int nFile) const;

    CString m_strFolder;
};
