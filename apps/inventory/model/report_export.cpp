#include "model/report_export.h"

#include "model/count_text.h"

#include <algorithm>

namespace {

void WriteTotals(TableWriter& writer, const ReportContent& content, const std::string& strTitle,
                 const std::string& strText) {
    writer.Begin(
        strTitle,
        {{"Section"}, {"Packages", true}, {"KiB on disk", true}, {"In an unusual state", true}},
        strText);
    for (const ReportGroup& section : content.sections) {
        writer.Row({section.strName, std::to_string(section.totals.nPackages),
                    std::to_string(section.totals.nSizeKiB),
                    std::to_string(section.totals.nUnusual)});
    }
    writer.End();
}

}  // namespace

void WriteReport(TableWriter& writer, const ReportDefinition& report, const ReportContent& content,
                 const std::string& strTitle, const std::string& strText,
                 const std::function<void()>& step) {
    if (report.tables == ReportTables::None) {
        WriteTotals(writer, content, strTitle, strText);
        return;
    }
    const bool bNumbers = writer.Kind() == TableKind::Csv;
    const std::vector<ReportColumn> columns = report.Columns();
    std::vector<TableColumn> headings;
    for (const ReportColumn column : columns) {
        const ReportColumnInfo& info = InfoOf(column);
        const bool bNumber = bNumbers && column == ReportColumn::Size;
        headings.push_back({bNumber ? "Size in KiB" : info.pszHeading, info.bRight});
    }
    const auto rows = [&](const ReportGroup& group) {
        for (const Package* pPackage : group.packages) {
            step();
            std::vector<std::string> cells;
            for (const ReportColumn column : columns) {
                cells.push_back(bNumbers && column == ReportColumn::Size
                                    ? std::to_string(pPackage->nSizeKiB)
                                    : CellText(*pPackage, column));
            }
            writer.Row(cells);
        }
    };
    const bool bGroups = report.tables == ReportTables::BySection;
    const bool bSectionColumn =
        std::find(columns.begin(), columns.end(), ReportColumn::Section) != columns.end();
    writer.Begin(strTitle, headings, strText, bGroups && !bSectionColumn ? "Section" : "");
    if (!bGroups) {
        rows(content.all);
    } else {
        for (const ReportGroup& section : content.sections) {
            writer.Group(section.strName);
            rows(section);
        }
    }
    writer.End();
}

std::string IntroductionText(const ReportContent& content) {
    const PackageTotals& totals = content.all.totals;
    const auto count = [](size_t n, const char* pszNoun) {
        return GroupedText(n) + " " + NounText(n, pszNoun);
    };
    return "This report lists " + count(totals.nPackages, "package") +
           " of the machine's package database, in " + count(content.sections.size(), "section") +
           (totals.nPackages == 1 ? "; it takes " : "; they take ") + SizeText(totals.nSizeKiB) +
           (totals.nPackages == 1 ? " on its disks." : " on its disks together.") +
           " Packages that are in any state but properly installed are counted apart; at this "
           "moment there " +
           (totals.nUnusual == 1 ? "is " : "are ") + GroupedText(totals.nUnusual) + " of them.";
}
