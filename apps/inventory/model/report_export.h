// A report as a table in a file.

#pragma once

#include "model/report_content.h"
#include "model/table_writer.h"

// Its tables, or, where it has none, the totals of its sections. Sizes are numbers for a
// spreadsheet, and words elsewhere. Calls step before each package.
void WriteReport(TableWriter& writer, const ReportDefinition& report, const ReportContent& content,
                 const std::string& strTitle, const std::string& strText,
                 const std::function<void()>& step);

// What is at the start of a report: how many packages and sections, and how large.
std::string IntroductionText(const ReportContent& content);
