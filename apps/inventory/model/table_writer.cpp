#include "model/table_writer.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view kEndOfLine = "\r\n";
constexpr std::string_view kLook =
    "body { font-family: Tahoma, \"DejaVu Sans\", sans-serif; font-size: 10pt; margin: 2em; }\r\n"
    "table { border-collapse: collapse; }\r\n"
    "th, td { padding: 2px 10px; text-align: left; vertical-align: top; }\r\n"
    "th { border-bottom: 2px solid #404040; }\r\n"
    "td { border-bottom: 1px solid #d0d0d0; }\r\n"
    ".r { text-align: right; white-space: nowrap; }\r\n";

// What is no text on a line is a blank.
std::string OnOneLine(std::string str) {
    std::replace_if(
        str.begin(), str.end(), [](char ch) { return ch >= 0 && ch < ' '; }, ' ');
    return str;
}

std::string Escaped(const std::string& strText) {
    std::string strOut;
    for (const char ch : OnOneLine(strText)) {
        switch (ch) {
            case '&':
                strOut += "&amp;";
                break;
            case '<':
                strOut += "&lt;";
                break;
            case '>':
                strOut += "&gt;";
                break;
            case '"':
                strOut += "&quot;";
                break;
            default:
                strOut += ch;
                break;
        }
    }
    return strOut;
}

std::string Element(std::string_view tag, const std::string& strText) {
    std::string str("<");
    (str += tag) += '>';
    str += Escaped(strText);
    ((str += "</") += tag) += '>';
    return str += kEndOfLine;
}

bool EndsWith(std::string_view path, std::string_view end) {
    return path.size() >= end.size() &&
           std::equal(end.rbegin(), end.rend(), path.rbegin(),
                      [](char ch, char chPath) { return ch == chPath || ch == (chPath | ' '); });
}

}  // namespace

TableKind KindOfFile(std::string_view path) {
    return EndsWith(path, ".csv")                              ? TableKind::Csv
           : EndsWith(path, ".htm") || EndsWith(path, ".html") ? TableKind::Html
                                                               : TableKind::Text;
}

TableWriter::TableWriter(TableKind kind, char chSeparator, Put put)
    : m_kind(kind), m_chSeparator(chSeparator), m_put(std::move(put)) {}

std::string TableWriter::Cell(const std::string& strText) const {
    if (m_kind == TableKind::Text) {
        return OnOneLine(strText);
    }
    const bool bBlankEnd = strText.starts_with(' ') || strText.ends_with(' ');
    if (!bBlankEnd && strText.find(m_chSeparator) == std::string::npos &&
        strText.find_first_of("\"\r\n\t") == std::string::npos) {
        return strText;
    }
    std::string strQuoted("\"");
    for (const char ch : strText) {
        strQuoted.append(ch == '"' ? 2 : 1, ch);
    }
    return strQuoted + '"';
}

void TableWriter::Line(const std::vector<std::string>& cells) {
    std::string strLine;
    for (const std::string& strCell : cells) {
        if (&strCell != cells.data()) {
            strLine += m_chSeparator;
        }
        strLine += Cell(strCell);
    }
    m_put(strLine += kEndOfLine);
}

void TableWriter::HtmlRow(const std::vector<std::string>& cells, const char* pszTag) {
    std::string strRow("<tr>");
    for (size_t i = 0; i < cells.size(); ++i) {
        const bool bRight = i < m_columns.size() && m_columns[i].bRight;
        ((strRow += '<') += pszTag) += bRight ? " class=\"r\">" : ">";
        strRow += Escaped(cells[i]);
        ((strRow += "</") += pszTag) += '>';
    }
    m_put((strRow += "</tr>") += kEndOfLine);
}

void TableWriter::Begin(const std::string& strTitle, std::vector<TableColumn> columns,
                        const std::string& strText, const std::string& strGroupHeading) {
    m_columns = std::move(columns);
    m_bGroups = !strGroupHeading.empty();
    if (m_kind == TableKind::Html) {
        std::string strHead("<!DOCTYPE html>\r\n<html lang=\"en\">\r\n<head>\r\n");
        strHead += "<meta charset=\"utf-8\">\r\n";
        strHead += Element("title", strTitle);
        ((strHead += "<style>\r\n") += kLook) += "</style>\r\n</head>\r\n<body>\r\n";
        strHead += Element("h1", strTitle);
        m_put(strHead += strText.empty() ? std::string() : Element("p", strText));
        return;
    }
    std::vector<std::string> headings;
    if (m_bGroups) {
        headings.push_back(strGroupHeading);
    }
    for (const TableColumn& column : m_columns) {
        headings.push_back(column.strHeading);
    }
    Line(headings);
}

void TableWriter::Group(const std::string& strName) {
    m_strGroup = strName;
    if (m_kind == TableKind::Html) {
        CloseTable();
        m_put(Element("h2", strName));
    }
}

void TableWriter::OpenTable() {
    if (std::exchange(m_bTable, true)) {
        return;
    }
    std::vector<std::string> headings;
    for (const TableColumn& column : m_columns) {
        headings.push_back(column.strHeading);
    }
    m_put("<table>\r\n<thead>\r\n");
    HtmlRow(headings, "th");
    m_put("</thead>\r\n<tbody>\r\n");
}

void TableWriter::CloseTable() {
    if (std::exchange(m_bTable, false)) {
        m_put("</tbody>\r\n</table>\r\n");
    }
}

void TableWriter::Row(const std::vector<std::string>& cells) {
    ++m_nRows;
    if (m_kind == TableKind::Html) {
        OpenTable();
        HtmlRow(cells, "td");
    } else if (m_bGroups) {
        std::vector<std::string> all{m_strGroup};
        all.insert(all.end(), cells.begin(), cells.end());
        Line(all);
    } else {
        Line(cells);
    }
}

void TableWriter::End() {
    if (m_kind == TableKind::Html) {
        if (m_nRows == 0) {
            OpenTable();
        }
        CloseTable();
        m_put("</body>\r\n</html>\r\n");
    }
}
