// How a report that the user has set up stands in its file.

#pragma once

#include "model/report_definition.h"
#include "model/settings.h"

class ReportValues : public KeyedValues {
public:
    ReportValues();
    explicit ReportValues(const ReportDefinition& report);
    // What does not read counts as it is at first: a day, a size of letters; columns that are none
    // are left out, and where none is left there are all. A file without a name has none.
    ReportDefinition Definition() const;
};

// The report without a name: what it says is in the settings.
ReportDefinition StandardReport(const Settings& settings);

// Texts in one value and back, whatever they hold.
std::string JoinTexts(const std::vector<std::string>& texts);
std::vector<std::string> SplitTexts(const std::string& strJoined);
