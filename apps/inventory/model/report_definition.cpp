#include "model/report_definition.h"

#include "model/report_settings.h"

#include <algorithm>

namespace {

constexpr ReportColumnInfo kInfos[kReportColumns] = {
    {"name", "Package", "a-package-with-a-longer-name", false, true},
    {"version", "Version", "1:14.0.6-12+deb12", false, true},
    {"size", "Size", "1023.9 MiB", true, false},
    {"installed", "Installed", "2026-11-21 00:00", false, false},
    {"section", "Section", "interpreters", false, false},
    {"architecture", "Arch.", "amd64", false, false},
    {"state", "State", "installed", false, false},
    {"summary", "Summary", "A summary of what the package is", false, true}};

bool IsBlank(const std::string& str) {
    return str.find_first_not_of(' ') == std::string::npos;
}

bool HasControlCharacter(const std::string& str) {
    return std::any_of(str.begin(), str.end(), [](char ch) { return ch >= 0 && ch < ' '; });
}

std::string FontText(const ReportFont& font) {
    return font.strFace + " " + std::to_string(font.nPoints);
}

std::string PackagesText(const ReportDefinition& report) {
    static constexpr const char* kWhich[] = {"all packages", "required packages",
                                             "packages in an unusual state"};
    std::string strText = kWhich[static_cast<int>(report.packages)];
    if (!report.bAllSections) {
        strText += " of ";
        for (const std::string& strSection : report.sections) {
            strText += &strSection == report.sections.data() ? "" : ", ";
            strText += strSection;
        }
    }
    if (!report.strArchitecture.empty()) {
        strText += " for " + report.strArchitecture;
    }
    if (report.tSince != 0) {
        strText += ", installed since " + DateText(report.tSince).substr(0, 10);
    }
    return strText;
}

std::string ColumnsText(const ReportDefinition& report) {
    if (report.tables == ReportTables::None) {
        return "no table";
    }
    std::string strText =
        report.tables == ReportTables::One ? "one table with " : "a table for each section with ";
    const std::vector<ReportColumn> columns = report.Columns();
    for (size_t i = 0; i < columns.size(); ++i) {
        strText += i == 0 ? "" : ", ";
        strText += InfoOf(columns[i]).pszHeading;
    }
    return strText + "; ordered by " + InfoOf(report.order).pszHeading +
           (report.bFalling ? ", falling" : ", rising");
}

}  // namespace

const ReportColumnInfo& InfoOf(ReportColumn column) {
    return kInfos[static_cast<int>(column)];
}

std::vector<ReportColumn> ReportDefinition::Columns() const {
    if (!bAllColumns) {
        return columns;
    }
    std::vector<ReportColumn> all;
    for (int i = 0; i < kReportColumns; ++i) {
        all.push_back(static_cast<ReportColumn>(i));
    }
    return all;
}

bool ReportDefinition::Takes(const Package& package) const {
    const bool bKind =
        packages == ReportPackages::All ||
        (packages == ReportPackages::Required ? package.bRequired : package.bUnusual);
    return bKind &&
           (bAllSections ||
            std::find(sections.begin(), sections.end(), package.strSection) != sections.end()) &&
           (strArchitecture.empty() || package.strArchitecture == strArchitecture) &&
           (tSince == 0 || package.tInstalled >= tSince);
}

ReportProblem ProblemOf(const ReportDefinition& report) {
    if (!report.bAllSections && report.sections.empty()) {
        return {ReportField::Sections, "Choose at least one section, or all of them."};
    }
    if (report.ChoosesColumns() && report.columns.empty()) {
        return {ReportField::Columns, "A table needs a column: add at least one."};
    }
    if (!report.bIntroduction && !report.bList && report.tables == ReportTables::None &&
        report.totals == ReportTotals::None) {
        return {ReportField::Totals,
                "Without an introduction, tables and totals the report would be empty."};
    }
    if (IsBlank(report.strTitle)) {
        return {ReportField::Title, "The report needs a title."};
    }
    if (report.strTitle.size() > kLongestReportTitle || HasControlCharacter(report.strTitle)) {
        return {ReportField::Title, "The title is to be one line, and no longer than " +
                                        std::to_string(kLongestReportTitle) + " characters."};
    }
    if (IsBlank(report.strName)) {
        return {ReportField::Name, "Give the report a name."};
    }
    if (report.strName.size() > kLongestReportName || HasControlCharacter(report.strName)) {
        return {ReportField::Name, "The name is to be one line, and no longer than " +
                                       std::to_string(kLongestReportName) + " characters."};
    }
    return {ReportField::None, ""};
}

std::string Describe(const ReportDefinition& report) {
    static constexpr const char* kTotals[] = {"none", "of each section", "of the whole report"};
    std::string strText = "Title: " + report.strTitle;
    strText += "\nPackages: " + PackagesText(report);
    strText += "\nTables: " + ColumnsText(report);
    strText += "\nTotals: " + std::string(kTotals[static_cast<int>(report.totals)]);
    strText += std::string("\nIntroduction: ") + (report.bIntroduction ? "yes" : "no");
    strText += std::string("\nThe list as it is sorted: ") + (report.bList ? "at the end" : "no");
    strText += "\nFonts: " + FontText(report.titleFont) + "; " + FontText(report.headingFont) +
               "; " + FontText(report.textFont);
    strText += "\nColours: ";
    static constexpr const char* kColored[kReportColors] = {"texts ", ", installed packages ",
                                                            ", required ones ", ", unusual ones "};
    for (int i = 0; i < kReportColors; ++i) {
        strText += std::string(kColored[i]) + kTextColors[report.colors[i]].pszName;
    }
    return strText;
}
