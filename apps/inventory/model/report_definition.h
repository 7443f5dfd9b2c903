// ReportDefinition: which packages a report of the inventory holds, in which columns, order and
// look. The standard report is one, and each report that the user has set up is another.

#pragma once

#include "model/inventory.h"

#include <array>
#include <string>
#include <vector>

enum class ReportPackages { All, Required, Unusual };
enum class ReportTables { BySection, One, None };
enum class ReportTotals { None, BySection, Overall };
enum class ReportColumn { Name, Version, Size, Installed, Section, Architecture, State, Summary };
constexpr int kReportColumns = 8;

struct ReportColumnInfo {
    const char* pszKey;  // in a file
    const char* pszHeading;
    const char* pszSample;  // as wide as most of what stands in the column
    bool bRight;
    bool bMayBeCut;  // where the page is too narrow
};
const ReportColumnInfo& InfoOf(ReportColumn column);

struct ReportFont {
    std::string strFace;
    int nPoints;
    bool operator==(const ReportFont&) const = default;
};
constexpr int kSmallestPoints = 6;
constexpr int kLargestPoints = 36;

// Indices of a report's colours.
enum ReportColor {
    kReportTexts,  // title, headings, totals
    kReportInstalled,
    kReportRequired,
    kReportUnusual,
    kReportColors
};

struct ReportDefinition {
    std::string strName;  // empty: the standard report

    ReportPackages packages = ReportPackages::All;
    bool bAllSections = true;
    std::vector<std::string> sections;  // unless all
    std::string strArchitecture;        // empty: any
    std::time_t tSince = 0;             // installed then or later; 0: any

    bool bIntroduction = true;
    ReportTables tables = ReportTables::BySection;
    bool bList = false;  // the list of the page Packages as it stands there
    bool bAllColumns = true;
    std::vector<ReportColumn> columns;  // unless all

    ReportColumn order = ReportColumn::Name;
    bool bFalling = false;
    ReportTotals totals = ReportTotals::BySection;

    std::string strTitle;
    ReportFont titleFont{"Tahoma", 18};
    ReportFont headingFont{"Tahoma", 14};
    ReportFont textFont{"Tahoma", 8};
    std::array<int, kReportColors> colors{};  // indices in kTextColors

    bool operator==(const ReportDefinition&) const = default;

    // Columns are chosen one by one, and there is a table that they stand in.
    bool ChoosesColumns() const { return !bAllColumns && tables != ReportTables::None; }
    std::vector<ReportColumn> Columns() const;
    bool Takes(const Package& package) const;
};

constexpr std::size_t kLongestReportName = 60;
constexpr std::size_t kLongestReportTitle = 200;

// What is wrong with a report, in the order in which it is asked for.
enum class ReportField { Sections, Columns, Totals, Title, Name, None };
struct ReportProblem {
    ReportField field;
    std::string strMessage;
};
ReportProblem ProblemOf(const ReportDefinition& report);

// A line for each thing that was chosen.
std::string Describe(const ReportDefinition& report);
