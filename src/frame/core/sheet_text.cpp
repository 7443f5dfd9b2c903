#include "frame/core/sheet_text.h"

namespace qv {

namespace {

constexpr std::string_view kCellEnds = "\t\r\n";
constexpr char kQuote = '"';

// A cell in quotes at the start of the text, which is taken off it. False if none is there.
bool TakeQuoted(std::string_view& text, std::string& strCell) {
    if (!text.starts_with(kQuote)) {
        return false;
    }
    strCell.clear();
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] != kQuote) {
            strCell += text[i];
        } else if (i + 1 < text.size() && text[i + 1] == kQuote) {
            strCell += text[i++];
        } else if (i + 1 == text.size() || kCellEnds.find(text[i + 1]) != std::string_view::npos) {
            text.remove_prefix(i + 1);
            return true;
        } else {
            return false;
        }
    }
    return false;
}

}  // namespace

void SheetWriter::AddCell(std::string_view cell) {
    if (m_bInRow) {
        m_strText += '\t';
    }
    m_bInRow = true;
    if (cell.find_first_of("\t\r\n\"") == std::string_view::npos) {
        m_strText += cell;
        return;
    }
    m_strText += kQuote;
    for (const char c : cell) {
        m_strText.append(c == kQuote ? 2 : 1, c);
    }
    m_strText += kQuote;
}

void SheetWriter::EndRow() {
    m_strText += "\r\n";
    m_bInRow = false;
}

std::vector<SheetRow> ReadSheet(std::string_view text) {
    std::vector<SheetRow> rows;
    for (bool bNewRow = true; !text.empty() || !bNewRow;) {
        if (bNewRow) {
            rows.emplace_back();
        }
        std::string& strCell = rows.back().emplace_back();
        if (!TakeQuoted(text, strCell)) {
            strCell = text.substr(0, text.find_first_of(kCellEnds));
            text.remove_prefix(strCell.size());
        }
        bNewRow = !text.starts_with('\t');
        text.remove_prefix(text.empty() ? 0 : text.starts_with("\r\n") ? 2 : 1);
    }
    return rows;
}

bool IsOneCell(std::string_view text) {
    const std::size_t nEnd = text.find_first_of(kCellEnds);
    return nEnd == std::string_view::npos || text.substr(nEnd) == "\r\n" ||
           text.substr(nEnd) == "\n";
}

}  // namespace qv
