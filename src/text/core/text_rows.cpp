#include "text/core/text_rows.h"

#include "base/platform_names.h"

#include <algorithm>
#include <cstring>

namespace qv {

const char* LineText(const StyleTable& styles, const char* pszLine) {
    return styles.Count() == 0 && HasStyle(pszLine) ? pszLine + kLineCodeBytes
                                                    : styles.ParseStyleText(pszLine);
}

void SplitLine(const char* pszLine, int nWidth, const StyleTable& styles, TextSplitter& splitter,
               std::vector<int>& starts) {
    splitter.Split(LineText(styles, pszLine), nWidth, starts);
}

// --- On screen

void DisplayRows::Format(const TextLines& lines, const StyleTable& styles, int nWidth,
                         TextSplitter& splitter) {
    if (m_width == nWidth && styles.Count() == m_nStyles && lines.Generation() == m_nGeneration) {
        Append(lines, styles, splitter);
        return;
    }
    DisplayRows rows;
    rows.m_width = nWidth;
    rows.m_nStyles = styles.Count();
    rows.m_nGeneration = lines.Generation();
    rows.Append(lines, styles, splitter);
    std::swap(*this, rows);
}

void DisplayRows::Append(const TextLines& lines, const StyleTable& styles, TextSplitter& splitter) {
    // A call that ran out of memory may have left a part of its last line.
    while (!m_rows.empty() && m_rows.back().nLine == m_nLines) {
        m_rows.pop_back();
    }
    for (; m_nLines < lines.Count(); ++m_nLines) {
        SplitLine(lines.Line(m_nLines), *m_width, styles, splitter, m_starts);
        for (int i = 0; i < static_cast<int>(m_starts.size()); ++i) {
            m_rows.push_back({m_nLines, i});
        }
    }
}

// --- On paper

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
    const bool bCodeOnly = strPiece.size() < kLineCodeBytes;
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
            SplitLine(pText->Line(nLine), rows.m_sizePrintArea.cx, styles, splitter, starts);
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

// --- Scrolling

ScrollCode ScrollCodeOf(unsigned nCode) {
    switch (nCode) {
        case SB_LINEUP:
            return ScrollCode::LineUp;
        case SB_LINEDOWN:
            return ScrollCode::LineDown;
        case SB_PAGEUP:
            return ScrollCode::PageUp;
        case SB_PAGEDOWN:
            return ScrollCode::PageDown;
        case SB_THUMBPOSITION:
        case SB_THUMBTRACK:
            return ScrollCode::Thumb;
        case SB_TOP:
            return ScrollCode::Top;
        case SB_BOTTOM:
            return ScrollCode::Bottom;
        default:
            return ScrollCode::Other;
    }
}

bool ScrollTarget(ScrollCode code, unsigned nWanted, int nPos, int nCount, int nPage,
                  int& nTarget) {
    const int nMaxPos = nCount - nPage;
    switch (code) {
        case ScrollCode::LineUp:
        case ScrollCode::PageUp:
        case ScrollCode::Top:
            if (nPos < 1) {
                return false;
            }
            nTarget = code == ScrollCode::LineUp                 ? nPos - 1
                      : code == ScrollCode::Top || nPos <= nPage ? 0
                                                                 : nPos - nPage;
            return true;
        case ScrollCode::LineDown:
        case ScrollCode::PageDown:
        case ScrollCode::Bottom:
            if (nPos >= nMaxPos) {
                return false;
            }
            nTarget = code == ScrollCode::LineDown                             ? nPos + 1
                      : code == ScrollCode::PageDown && nPos < nMaxPos - nPage ? nPos + nPage
                                                                               : nMaxPos;
            return true;
        case ScrollCode::Thumb:
            // Unsigned: where all rows show, the limit is negative and refuses nothing.
            if (nWanted == static_cast<unsigned>(nPos) ||
                nWanted > static_cast<unsigned>(nMaxPos) || static_cast<int>(nWanted) < 0) {
                return false;
            }
            nTarget = static_cast<int>(nWanted);
            return true;
        case ScrollCode::Other:
            break;
    }
    return false;
}

unsigned DraggedTo(int nPos, const ScrollRange& bar, int nCount, int nPage) {
    const int nEnd = bar.nMax - std::max(bar.nPage, 1) + 1;
    const int nLast = std::max(nCount - nPage, 0);
    return static_cast<unsigned>(nPos >= nEnd ? std::min(nPos, nLast) : nPos);
}

}  // namespace qv
