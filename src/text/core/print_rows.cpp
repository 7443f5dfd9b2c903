#include "text/core/print_rows.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace qv {

void PrintRows::Clear() {
    m_rows.clear();
    m_nNumPages = 0;
}

int PrintRows::PagesNeeded() const {
    return Count() > 0 && m_nLinesPerPage > 0 ? (Count() - 1) / m_nLinesPerPage + 1 : 0;
}

bool PrintRows::StartPage(int nPage, const TextLines& lines, const StyleTable& styles,
                          TextSplitter& splitter, PrintedRow& row) {
    row.strText.clear();
    if (nPage < 1 || nPage > m_nNumPages) {
        return false;
    }
    const int nCurrent = m_nLinesPerPage * (nPage - 1);
    const bool bRow = RowAt(nCurrent, lines, styles, splitter, row);
    m_nCurrent = nCurrent;
    return bRow;
}

bool PrintRows::NextLine(int nPage, const TextLines& lines, const StyleTable& styles,
                         TextSplitter& splitter, PrintedRow& row) {
    const int nNext = m_nCurrent + 1;
    if (nNext >= Count() || nNext >= static_cast<std::int64_t>(m_nLinesPerPage) * nPage) {
        return false;
    }
    const bool bRow = RowAt(nNext, lines, styles, splitter, row);
    m_nCurrent = nNext;
    return bRow;
}

bool PrintRows::CurrentLine(const TextLines& lines, const StyleTable& styles,
                            TextSplitter& splitter, PrintedRow& row) const {
    return RowAt(m_nCurrent, lines, styles, splitter, row);
}

bool PrintRows::RowAt(int nCurrent, const TextLines& lines, const StyleTable& styles,
                      TextSplitter& splitter, PrintedRow& row) const {
    if (nCurrent < 0 || nCurrent >= Count()) {
        return false;
    }
    const QVTEXTLINE& record = m_rows[static_cast<size_t>(nCurrent)].row;
    const char* pszLine = lines.Line(record.nLine);
    if (record.nSubLine == -1) {
        row.strText.clear();
        row.nLine = record.nLine;
        row.nStyle = styles.ParseStyle(pszLine);
        return true;
    }
    const char* pszCounted = lines.Line(row.nLine);
    std::vector<int> starts;
    splitter.Split(pszCounted != nullptr ? pszCounted : "", m_sizePrintArea.cx, starts);
    const auto nPiece = static_cast<size_t>(record.nSubLine);
    if (nPiece >= starts.size()) {
        return false;
    }
    // The starts are those of another line, perhaps: nothing is read behind this one.
    const std::string_view line = pszLine != nullptr ? pszLine : "";
    const size_t nFrom = std::min(static_cast<size_t>(starts[nPiece]), line.size());
    const size_t nTo = nPiece + 1 < starts.size()
                           ? std::min(static_cast<size_t>(starts[nPiece + 1]), line.size())
                           : line.size();
    const std::string strPiece(line.substr(nFrom, nTo - nFrom));
    const bool bCodeOnly = strPiece.size() < TextLines::kCodeBytes;
    row.strText = nFrom == 0 && !bCodeOnly ? LineText(styles, strPiece.c_str())
                                           : styles.ParseStyleText(strPiece.c_str());
    row.nLine = record.nLine;
    row.nStyle = styles.ParseStyle(pszLine);
    return true;
}

void PrintRows::SwapLayout(PrintRows& other) {
    std::swap(m_rows, other.m_rows);
    std::swap(m_nLinesPerPage, other.m_nLinesPerPage);
    std::swap(m_nNumPages, other.m_nNumPages);
    std::swap(m_sizePrintArea, other.m_sizePrintArea);
}

bool PrintRows::Row(int nRow, const TextLines& lines, const StyleTable& styles,
                    PrintedRow& row) const {
    if (nRow < 0 || nRow >= Count()) {
        return false;
    }
    const auto& [record, nStart] = m_rows[static_cast<size_t>(nRow)];
    const char* pszLine = lines.Line(record.nLine);
    std::string_view text;
    if (record.nSubLine != -1) {
        if (nStart < 0) {
            return false;
        }
        text = LineText(styles, pszLine);
        if (nRow + 1 < Count()) {
            const Record& next = m_rows[static_cast<size_t>(nRow) + 1];
            if (next.row.nLine == record.nLine && next.nStart >= nStart) {
                text = text.substr(0, static_cast<size_t>(next.nStart));
            }
        }
        text.remove_prefix(std::min(static_cast<size_t>(nStart), text.size()));
    }
    row.strText = text;
    row.nStyle = styles.ParseStyle(pszLine);
    row.nLine = record.nLine;
    return true;
}

void FormatPrintRows(const TextLines& lines, PrintRows& rows, const TextLines* pOther,
                     PrintRows* pOtherRows, const StyleTable& styles, TextSplitter& splitter) {
    const int nLines = std::max(lines.Count(), pOther != nullptr ? pOther->Count() : 0);
    std::vector<int> own;
    std::vector<int> other;
    const auto split = [&](const TextLines* pText, int nLine, std::vector<int>& starts) {
        starts.clear();
        if (pText != nullptr && nLine < pText->Count()) {
            splitter.Split(LineText(styles, pText->Line(nLine)), rows.m_sizePrintArea.cx, starts);
        }
    };
    const auto add = [](PrintRows& to, int nLine, const std::vector<int>& starts, size_t nPiece) {
        const bool bPiece = nPiece < starts.size();
        to.Add(nLine, bPiece ? static_cast<int>(nPiece) : -1, bPiece ? starts[nPiece] : -1);
    };
    for (int nLine = 0; nLine < nLines; ++nLine) {
        split(&lines, nLine, own);
        split(pOther, nLine, other);
        for (size_t j = 0; j < std::max(own.size(), other.size()); ++j) {
            add(rows, nLine, own, j);
            if (pOtherRows != nullptr) {
                add(*pOtherRows, nLine, other, j);
            }
        }
    }
}

}  // namespace qv
