#include "model/named_reports.h"
#include "model/report_content.h"
#include "model/report_values.h"

#include <gtest/gtest.h>
#include <tuple>

namespace {

using enum ReportColumn;

ReportDefinition AnyReport() {
    ReportDefinition report;
    report.strName = "a = b & <c>\t\"\xE4\x81\"";
    report.packages = ReportPackages::Unusual;
    report.bAllSections = false;
    report.sections = {"libs", "a\tb|t", "", "||"};
    report.strArchitecture = "amd64";
    report.bIntroduction = false;
    report.tables = ReportTables::One;
    report.bList = true;
    report.bAllColumns = false;
    report.columns = {Summary, Name};
    report.order = Installed;
    report.bFalling = true;
    report.totals = ReportTotals::Overall;
    report.strTitle = "<machine>";
    report.titleFont = {"A face with blanks", 36};
    report.textFont = {"B", 6};
    report.colors = {1, 2, 3, 6};
    return report;
}

ReportDefinition FromFile(const std::string& strLines) {
    ReportValues values;
    size_t nLine = 0;
    EXPECT_TRUE(values.Parse("inventory report, version 1\n" + strLines, nLine)) << nLine;
    return values.Definition();
}

ReportDefinition Named(const char* pszName) {
    ReportDefinition report;
    report.strName = pszName;
    return report;
}

}  // namespace

TEST(ReportValues, ComeBackFromTheirFile) {
    ReportValues values;
    size_t nLine = 0;
    ASSERT_TRUE(values.Parse(ReportValues(AnyReport()).Format(), nLine));
    EXPECT_EQ(values.Definition(), AnyReport());
    EXPECT_NE(ReportValues(FromFile("since=2026-02-28\n")).Format().find("=2026-02-28\n"),
              std::string::npos);
}

TEST(ReportValues, WhatDoesNotReadCountsAsAtFirst) {
    ReportDefinition first = FromFile("");
    EXPECT_EQ(FromFile("font.text=5 Tahoma\nfont.title=37 X\nfont.headings=12\nsince=soon\n"
                       "all columns=no\ncolumns=none\twhat"),
              first);
    first.bAllColumns = false;
    first.columns = {Size};
    EXPECT_EQ(FromFile("all columns=no\ncolumns=none\tsize\t\n"), first);
}

TEST(ReportDefinition, RefusesWhatMakesNoReport) {
    struct Case {
        ReportField field;
        void (*spoil)(ReportDefinition&);
    };
    const Case kCases[] = {
        {ReportField::None, [](ReportDefinition&) {}},
        {ReportField::Sections, [](ReportDefinition& r) { r.sections.clear(); }},
        {ReportField::Columns, [](ReportDefinition& r) { r.columns.clear(); }},
        {ReportField::None,
         [](ReportDefinition& r) { r.columns.clear(), r.tables = ReportTables::None; }},
        {ReportField::Totals,
         [](ReportDefinition& r) {
             r.tables = ReportTables::None, r.totals = ReportTotals::None, r.bList = false;
         }},
        {ReportField::Title, [](ReportDefinition& r) { r.strTitle = "  "; }},
        {ReportField::Title, [](ReportDefinition& r) { r.strTitle.assign(201, 'x'); }},
        {ReportField::Name, [](ReportDefinition& r) { r.strName.clear(); }},
        {ReportField::Name, [](ReportDefinition& r) { r.strName = "a\nb"; }},
    };
    for (const Case& c : kCases) {
        ReportDefinition report = AnyReport();
        report.strName = "50 % & \xE4";
        c.spoil(report);
        const ReportProblem problem = ProblemOf(report);
        EXPECT_EQ(problem.field, c.field) << &c - kCases;
        EXPECT_EQ(problem.strMessage.empty(), c.field == ReportField::None);
    }
}

TEST(ReportContent, TakesOrdersAndCounts) {
    const auto package = [](const char* pszName, const char* pszSection, long nKiB, bool bUnusual) {
        Package p;
        std::tie(p.strName, p.strSection, p.bUnusual) = std::tuple(pszName, pszSection, bUnusual);
        std::tie(p.nSizeKiB, p.bRequired, p.tInstalled) = std::tuple(nKiB, nKiB > 8, nKiB * 1000);
        return p;
    };
    Inventory inventory;
    inventory.SetPackages({package("c", "x", 5, false), package("a", "x", 10, true),
                           package("b", "x", 5, false), package("d", "y", 9, false),
                           package("e", "z", 200, false)});
    struct Case {
        void (*choose)(ReportDefinition&);
        const char* pszExpected;  // packages, and their sections
    };
    const Case kCases[] = {
        {[](ReportDefinition&) {}, "abcde/xyz"},
        {[](ReportDefinition& r) { r.order = Size; }, "bcdae/xyz"},
        {[](ReportDefinition& r) { r.order = Installed, r.bFalling = true; }, "eadbc/xyz"},
        {[](ReportDefinition& r) {
             r.bAllSections = false, r.sections = {"z", "y"};
         },
         "de/yz"},
        {[](ReportDefinition& r) { r.packages = ReportPackages::Required; }, "ade/xyz"},
        {[](ReportDefinition& r) { r.tSince = 9001; }, "ae/xz"},
        {[](ReportDefinition& r) { r.strArchitecture = "all"; }, "/"},
    };
    for (const Case& c : kCases) {
        ReportDefinition report;
        c.choose(report);
        const ReportContent content(inventory, report);
        std::string strFound;
        for (const Package* pPackage : content.all.packages) {
            strFound += pPackage->strName;
        }
        strFound += '/';
        for (const ReportGroup& group : content.sections) {
            strFound += group.strName;
        }
        EXPECT_EQ(strFound, c.pszExpected);
    }
    const PackageTotals totals = ReportContent(inventory, {}).sections[0].totals;
    EXPECT_EQ(std::tuple(totals.nPackages, totals.nSizeKiB, totals.nUnusual),
              std::tuple(3u, 20, 1u));
    EXPECT_EQ(totals.pLargest->strName, "a");
}

TEST(NamedReports, KeepEachNameAndItsFileOnce) {
    NamedReports reports;
    reports.Add(Named("b"), 7);
    reports.Add(Named("b"), 1);
    EXPECT_TRUE(reports.Has("b (2)"));
    const auto keep = [&](const char* pszName, const char* pszOld) {
        const NamedReports::Change change = reports.Keep(Named(pszName), pszOld);
        EXPECT_EQ(reports.Find(pszName)->nFile, change.nWrite);
        return std::pair(change.nWrite, change.nGone);
    };
    EXPECT_EQ(keep("Report 1", ""), std::pair(8, 0)) << "a new one";
    EXPECT_EQ(keep("b", "b"), std::pair(7, 0)) << "one that is there";
    EXPECT_EQ(keep("a", "b"), std::pair(7, 0)) << "under another name";
    EXPECT_EQ(keep("b (2)", "a"), std::pair(7, 1)) << "under a name that is taken";
    ASSERT_EQ(reports.All().size(), 2u);
    EXPECT_EQ(reports.All()[0].definition.strName, "Report 1");
    while (reports.CanKeep("another", "")) {
        reports.Keep(Named(reports.FreeName().c_str()), "");
    }
    EXPECT_EQ(reports.All().size(), NamedReports::kMost);
    EXPECT_TRUE(reports.CanKeep("another", "Report 1"));
}
