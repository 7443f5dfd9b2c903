#include "sources/report_files.h"

#include "model/report_values.h"
#include "sources/settings_file.h"

#include <cstdio>
#include <set>

CString ReportFiles::PathOf(int nFile) const {
    CString strPath;
    strPath.Format("%s\\report-%d.txt", static_cast<LPCTSTR>(m_strFolder), nFile);
    return strPath;
}

CString ReportFiles::Load(NamedReports& reports) const {
    std::set<int> files;
    WIN32_FIND_DATA found;
    const HANDLE hFind = ::FindFirstFile(m_strFolder + "\\report-*.txt", &found);
    if (hFind != INVALID_HANDLE_VALUE) {
        do {
            int nFile = 0;
            if (std::sscanf(found.cFileName, "report-%9d.txt", &nFile) == 1 && nFile > 0) {
                files.insert(nFile);
            }
        } while (::FindNextFile(hFind, &found));
        ::FindClose(hFind);
    }
    CString strFirst;
    for (const int nFile : files) {
        ReportValues values;
        const CString strMessage = LoadSettings(PathOf(nFile), values, "the report is left out");
        if (strFirst.IsEmpty()) {
            strFirst = strMessage;
        }
        if (strMessage.IsEmpty() && !reports.Add(values.Definition(), nFile) &&
            strFirst.IsEmpty()) {
            strFirst.Format("There are more than %u reports in %s; the others are left alone.",
                            static_cast<unsigned>(NamedReports::kMost),
                            static_cast<LPCTSTR>(m_strFolder));
        }
    }
    return strFirst;
}

bool ReportFiles::Write(const ReportDefinition& report, int nFile) const {
    ::CreateDirectory(m_strFolder, nullptr);
    return SaveSettings(PathOf(nFile), ReportValues(report));
}

void ReportFiles::Delete(int nFile) const {
    ::DeleteFile(PathOf(nFile));
}
