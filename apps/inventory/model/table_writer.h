// TableWriter: a table as a file for spreadsheets, for browsers or for people.
//
//     TableWriter writer(TableKind::Csv, ';', put);
//     writer.Begin("Packages", {{"Name"}, {"KiB", true}});
//     writer.Row({"apt", "4232"});
//     writer.End();
//
// Rows may stand in groups. A web page has a heading and a table for each group; elsewhere a group
// is the first cell of its rows, where the groups have a heading.

#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Text: separated cells as they are. Csv: cells quoted where a spreadsheet would read others.
enum class TableKind { Text, Csv, Html };

// By the end of its name, ".csv", ".htm" or ".html"; any other is text.
TableKind KindOfFile(std::string_view path);

struct TableColumn {
    std::string strHeading;
    bool bRight = false;
};

class TableWriter {
public:
    // Takes the file in pieces, none of which ends within a character. A web page says that it is
    // in UTF-8: what is put there is to be converted to that.
    using Put = std::function<void(std::string_view)>;
    TableWriter(TableKind kind, char chSeparator, Put put);

    TableKind Kind() const { return m_kind; }
    // What all rows have in common. strText stands above the table of a web page.
    void Begin(const std::string& strTitle, std::vector<TableColumn> columns,
               const std::string& strText = {}, const std::string& strGroupHeading = {});
    void Group(const std::string& strName);
    void Row(const std::vector<std::string>& cells);
    // Without it the file is not whole.
    void End();
    // So far.
    std::size_t Rows() const { return m_nRows; }

private:
    void Line(const std::vector<std::string>& cells);
    void HtmlRow(const std::vector<std::string>& cells, const char* pszTag);
    void OpenTable();
    void CloseTable();
    std::string Cell(const std::string& strText) const;

    const TableKind m_kind;
    const char m_chSeparator;
    const Put m_put;
    std::vector<TableColumn> m_columns;
    bool m_bGroups = false;  // have a cell in each row
    bool m_bTable = false;   // is open, of a web page
    std::string m_strGroup;
    std::size_t m_nRows = 0;
};
