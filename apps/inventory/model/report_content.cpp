#include "model/report_content.h"

#include <algorithm>
#include <tuple>

namespace {

void Add(ReportGroup& group, const Package& package) {
    group.packages.push_back(&package);
    PackageTotals& totals = group.totals;
    ++totals.nPackages;
    totals.nSizeKiB += package.nSizeKiB;
    totals.nUnusual += package.bUnusual ? 1 : 0;
    if (totals.pLargest == nullptr || package.nSizeKiB > totals.pLargest->nSizeKiB) {
        totals.pLargest = &package;
    }
}

// Numbers and days by what they are, all others as texts; what is alike in both orders by name.
bool IsBefore(const Package& a, const Package& b, ReportColumn column, bool bFalling) {
    const auto key = [column](const Package& package) {
        const bool bText = column != ReportColumn::Size && column != ReportColumn::Installed;
        return std::make_tuple(column == ReportColumn::Size ? package.nSizeKiB : 0,
                               column == ReportColumn::Installed ? package.tInstalled : 0,
                               bText ? CellText(package, column) : std::string());
    };
    const auto keyA = key(a);
    const auto keyB = key(b);
    if (keyA != keyB) {
        return bFalling ? keyB < keyA : keyA < keyB;
    }
    return a.strName < b.strName;
}

void Sort(ReportGroup& group, const ReportDefinition& report) {
    std::stable_sort(group.packages.begin(), group.packages.end(),
                     [&](const Package* pA, const Package* pB) {
                         return IsBefore(*pA, *pB, report.order, report.bFalling);
                     });
}

}  // namespace

ReportContent::ReportContent(const Inventory& inventory, const ReportDefinition& report) {
    all.strName = "All packages";
    for (const Section& section : inventory.Sections()) {
        ReportGroup group{section.strName, {}, {}};
        for (const Package& package : section.packages) {
            if (report.Takes(package)) {
                Add(group, package);
                Add(all, package);
            }
        }
        if (!group.packages.empty()) {
            Sort(group, report);
            sections.push_back(std::move(group));
        }
    }
    Sort(all, report);
}

std::string CellText(const Package& package, ReportColumn column) {
    switch (column) {
        case ReportColumn::Name:
            return package.strName;
        case ReportColumn::Version:
            return package.strVersion;
        case ReportColumn::Size:
            return SizeText(package.nSizeKiB);
        case ReportColumn::Installed:
            return DateText(package.tInstalled);
        case ReportColumn::Section:
            return package.strSection;
        case ReportColumn::Architecture:
            return package.strArchitecture;
        case ReportColumn::State:
            return package.strState;
        default:
            return package.strSummary;
    }
}
