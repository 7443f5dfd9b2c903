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

Failure ReportFiles::Load(NamedReports& reports) const {
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
    Failure pFirst;
    for (const int nFile : files) {
        ReportValues values;
        Failure pReason = LoadSettings(PathOf(nFile), values, "the report is left out");
        if (pReason == nullptr && !reports.Add(values.Definition(), nFile)) {
            CString strText;
            strText.Format("There are more than %u reports; the others are left alone.",
                           static_cast<unsigned>(NamedReports::kMost));
            pReason = Reason(strText, m_strFolder);
        }
        if (pFirst == nullptr && pReason != nullptr) {
            pFirst = Failed(kErrorReadReport, std::move(pReason));
        }
    }
    return pFirst;
}

Failure ReportFiles::Write(const ReportDefinition& report, int nFile) const {
    ::CreateDirectory(m_strFolder, nullptr);
    Failure pReason = SaveSettings(PathOf(nFile), ReportValues(report));
    return pReason != nullptr ? Failed(kErrorWriteReport, std::move(pReason)) : nullptr;
}

Failure ReportFiles::Delete(int nFile) const {
    // One that could not be written has no file.
    if (::DeleteFile(PathOf(nFile)) || ::GetLastError() == ERROR_FILE_NOT_FOUND ||
        ::GetLastError() == ERROR_PATH_NOT_FOUND) {
        return nullptr;
    }
    return Failed(kErrorDeleteReport, SystemReason(::GetLastError(), PathOf(nFile)));
}
