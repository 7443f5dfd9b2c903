// ReportContent: the packages that a report takes from an inventory, in its order, with totals.

#pragma once

#include "model/report_definition.h"

struct PackageTotals {
    std::size_t nPackages = 0;
    long nSizeKiB = 0;
    std::size_t nUnusual = 0;
    const Package* pLargest = nullptr;  // null where there is no package
};

struct ReportGroup {
    std::string strName;
    std::vector<const Package*> packages;  // the inventory's
    PackageTotals totals;
};

struct ReportContent {
    ReportContent(const Inventory& inventory, const ReportDefinition& report);

    ReportGroup all;
    std::vector<ReportGroup> sections;  // those that have packages, by name
};

// What stands in a column.
std::string CellText(const Package& package, ReportColumn column);
