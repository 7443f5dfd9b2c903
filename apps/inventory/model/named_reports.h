// NamedReports: the reports that the user has set up and keeps, each under a name of its own, by
// name. Each lies in a file of its own, known by a number.

#pragma once

#include "model/report_definition.h"

struct NamedReport {
    ReportDefinition definition;
    int nFile;
};

class NamedReports {
public:
    static constexpr std::size_t kMost = 40;

    const std::vector<NamedReport>& All() const { return m_reports; }
    bool Has(const std::string& strName) const { return Find(strName) != nullptr; }
    const NamedReport* Find(const std::string& strName) const;
    // "Report 1" or the next that nobody has.
    std::string FreeName() const;

    // One that was in a file. A name that there is already gets a number behind it, and a report
    // without one a free name. False if there are too many.
    bool Add(ReportDefinition report, int nFile);

    // Which file to write the report to, and which one goes, 0 for none.
    struct Change {
        int nWrite;
        int nGone;
    };
    // There is room for it.
    bool CanKeep(const std::string& strName, const std::string& strOld) const;
    // Puts a report in the place of strOld, or beside all others if there is none of that name. One
    // that has the new name already makes way.
    Change Keep(const ReportDefinition& report, const std::string& strOld);
    // The number of its file; 0 if there is none of that name.
    int Remove(const std::string& strName);

private:
    std::vector<NamedReport> m_reports;
    int m_nLastFile = 0;  // the highest number that was seen
};
