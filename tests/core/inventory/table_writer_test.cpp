#include "model/table_writer.h"

#include "model/report_export.h"

#include <gtest/gtest.h>

namespace {

std::string Written(TableKind kind, const std::vector<std::string>& cells, bool bGroups = false) {
    std::string str;
    TableWriter writer(kind, ';', [&](std::string_view text) { str += text; });
    writer.Begin("A & B", {{"Name"}, {"KiB", true}}, "", bGroups ? "Section" : "");
    if (bGroups) {
        writer.Group("x;y");
    }
    writer.Row(cells);
    writer.End();
    return str;
}

}  // namespace

TEST(TableWriter, QuotesWhatASpreadsheetWouldReadOtherwise) {
    const std::tuple<const char*, const char*, const char*> kCells[] = {
        {"plain, text", "plain, text", "plain, text"},
        {"a;b", "\"a;b\"", "a;b"},
        {"say \"x\"", "\"say \"\"x\"\"\"", "say \"x\""},
        {"two\r\nlines", "\"two\r\nlines\"", "two  lines"},
        {" edge", "\" edge\"", " edge"},
        {"edge ", "\"edge \"", "edge "},
        {"a\tb", "\"a\tb\"", "a b"},
        {"", "", ""}};
    for (const auto& [pszCell, pszCsv, pszText] : kCells) {
        EXPECT_EQ(Written(TableKind::Csv, {pszCell, "1"}),
                  std::string("Name;KiB\r\n") + pszCsv + ";1\r\n");
        EXPECT_EQ(Written(TableKind::Text, {pszCell, "1"}),
                  std::string("Name;KiB\r\n") + pszText + ";1\r\n");
    }
    EXPECT_EQ(Written(TableKind::Csv, {"a", "1"}, true), "Section;Name;KiB\r\n\"x;y\";a;1\r\n");
}

TEST(TableWriter, AWebPageHasItsTextsEscapedAndATableForEachGroup) {
    const std::string strPage = Written(TableKind::Html, {"<b>&\"\x01", "1"}, true);
    for (const char* pszPart :
         {"<meta charset=\"utf-8\">", "<title>A &amp; B</title>", "<h2>x;y</h2>\r\n<table>",
          "<tr><th>Name</th><th class=\"r\">KiB</th></tr>",
          "<tr><td>&lt;b&gt;&amp;&quot; </td><td class=\"r\">1</td></tr>",
          "</table>\r\n</body>\r\n</html>\r\n"}) {
        EXPECT_NE(strPage.find(pszPart), std::string::npos) << pszPart << "\n" << strPage;
    }
}

TEST(TableWriter, TheEndOfTheNameTellsTheKind) {
    const std::pair<const char*, TableKind> kFiles[] = {
        {"a.csv", TableKind::Csv},  {"a.CSV", TableKind::Csv},  {"a.html", TableKind::Html},
        {"a.HTM", TableKind::Html}, {"a.txt", TableKind::Text}, {"csv", TableKind::Text},
        {"", TableKind::Text}};
    for (const auto& [pszFile, kind] : kFiles) {
        EXPECT_EQ(KindOfFile(pszFile), kind) << pszFile;
    }
}

TEST(ReportExport, SectionsAreACellUnlessTheReportHasThatColumn) {
    Inventory inventory;
    std::vector<Package> packages(2);
    packages[0].strName = "apt";
    packages[0].strSection = "admin";
    packages[0].nSizeKiB = 2048;
    packages[1].strName = "zsh";
    packages[1].strSection = "shells";
    packages[1].nSizeKiB = 3;
    inventory.SetPackages(packages);
    ReportDefinition report;
    report.bAllColumns = false;
    report.columns = {ReportColumn::Name, ReportColumn::Size};
    const auto lines = [&](TableKind kind) {
        std::string str;
        TableWriter writer(kind, ',', [&](std::string_view text) { str += text; });
        WriteReport(writer, report, ReportContent(inventory, report), "T", "", [] {});
        return str;
    };
    EXPECT_EQ(lines(TableKind::Csv),
              "Section,Package,Size in KiB\r\nadmin,apt,2048\r\nshells,zsh,3\r\n");
    EXPECT_EQ(lines(TableKind::Text),
              "Section,Package,Size\r\nadmin,apt,2.0 MiB\r\nshells,zsh,3 KiB\r\n");
    report.columns = {ReportColumn::Section, ReportColumn::Name};
    EXPECT_EQ(lines(TableKind::Csv), "Section,Package\r\nadmin,apt\r\nshells,zsh\r\n");
    report.tables = ReportTables::None;
    EXPECT_EQ(lines(TableKind::Csv),
              "Section,Packages,KiB on disk,In an unusual state\r\nadmin,1,2048,0\r\n"
              "shells,1,3,0\r\n");
    const std::string strText = IntroductionText(ReportContent(inventory, report));
    EXPECT_NE(strText.find("2 packages of"), std::string::npos) << strText;
}
