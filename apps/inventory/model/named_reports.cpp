#include "model/named_reports.h"

#include <algorithm>

const NamedReport* NamedReports::Find(const std::string& strName) const {
    const auto it = std::find_if(
        m_reports.begin(), m_reports.end(),
        [&](const NamedReport& report) { return report.definition.strName == strName; });
    return it != m_reports.end() ? &*it : nullptr;
}

std::string NamedReports::FreeName() const {
    int n = 1;
    while (Has("Report " + std::to_string(n))) {
        ++n;
    }
    return "Report " + std::to_string(n);
}

bool NamedReports::Add(ReportDefinition report, int nFile) {
    m_nLastFile = std::max(m_nLastFile, nFile);
    if (m_reports.size() == kMost) {
        return false;
    }
    if (report.strName.empty()) {
        report.strName = FreeName();
    }
    const std::string strName = report.strName;
    for (int n = 2; Has(report.strName); ++n) {
        report.strName = strName + " (" + std::to_string(n) + ")";
    }
    const auto it = std::find_if(m_reports.begin(), m_reports.end(), [&](const NamedReport& other) {
        return report.strName < other.definition.strName;
    });
    m_reports.insert(it, {std::move(report), nFile});
    return true;
}

bool NamedReports::CanKeep(const std::string& strName, const std::string& strOld) const {
    return m_reports.size() < kMost || Has(strName) || Has(strOld);
}

NamedReports::Change NamedReports::Keep(const ReportDefinition& report, const std::string& strOld) {
    Change change{Remove(strOld), Remove(report.strName)};
    if (change.nWrite == 0) {
        std::swap(change.nWrite, change.nGone);
    }
    if (change.nWrite == 0) {
        change.nWrite = m_nLastFile + 1;
    }
    Add(report, change.nWrite);
    return change;
}

int NamedReports::Remove(const std::string& strName) {
    const NamedReport* pReport = Find(strName);
    if (pReport == nullptr) {
        return 0;
    }
    const int nFile = pReport->nFile;
    m_reports.erase(m_reports.begin() + (pReport - m_reports.data()));
    return nFile;
}
