// The rows of a text on paper, page by page.

#pragma once

#include "base/geometry.h"
#include "frame/core/styled_text.h"
#include "text/core/text_lines.h"
#include "text/core/text_split.h"
#include "text/text_records.h"

#include <deque>
#include <string>

namespace qv {

// What a row shows: its text without style code, and its line.
struct PrintedRow {
    std::string strText;
    int nStyle = 0;
    int nLine = 0;
};

// The rows on paper, of one text or of one of two that are printed side by side.
class PrintRows {
public:
    void Clear();
    // nStart: the byte of the line's text where the piece begins; -1: not known. May throw
    // std::bad_alloc; nothing has changed then.
    void Add(int nLine, int nSubLine, int nStart = -1) {
        m_rows.push_back({{nLine, nSubLine}, nStart});
    }
    int Count() const { return static_cast<int>(m_rows.size()); }
    // Rows, pages and area of other, which gets the ones from here. The current row stays.
    void SwapLayout(PrintRows& other);
    // Row nRow of all, whole and by its own line, blank for a row that keeps two texts level. False
    // if there is no such row, or it is not known where its piece begins. May throw std::bad_alloc.
    bool Row(int nRow, const TextLines& lines, const StyleTable& styles, PrintedRow& row) const;
    // The piece that a row shows; null if there is no such row.
    const QVTEXTLINE* Piece(int nRow) const {
        return nRow >= 0 && nRow < Count() ? &m_rows[static_cast<size_t>(nRow)].row : nullptr;
    }

    int m_nLinesPerPage = 0;
    int m_nNumPages = 0;
    Size m_sizePrintArea;

    // Pages that Count() rows take; none if no row fits a page.
    int PagesNeeded() const;

    // Where the page by page reading below is, among all rows.
    int Current() const { return m_nCurrent; }
    // The first row of a page, counted from 1; false, and an empty text, if there is no such page.
    bool StartPage(int nPage, const TextLines& lines, const StyleTable& styles,
                   TextSplitter& splitter, PrintedRow& row);
    // The row behind the last one; false at the end of the page or of the text.
    bool NextLine(int nPage, const TextLines& lines, const StyleTable& styles,
                  TextSplitter& splitter, PrintedRow& row);
    // The current row again. row.nLine going in is the line whose pieces are counted, code bytes
    // and all: for callers that pass one variable on from row to row that is the line of the row
    // before, and they rely on what comes out.
    bool CurrentLine(const TextLines& lines, const StyleTable& styles, TextSplitter& splitter,
                     PrintedRow& row) const;

private:
    struct Record {
        QVTEXTLINE row;
        int nStart;
    };
    bool RowAt(int nCurrent, const TextLines& lines, const StyleTable& styles,
               TextSplitter& splitter, PrintedRow& row) const;

    std::deque<Record> m_rows;
    int m_nCurrent = 0;
};

// Lays two texts out side by side, other and its rows being null for one alone: line i of both
// starts on the same row, and blank rows fill the shorter side. Both are split by the same styles.
void FormatPrintRows(const TextLines& lines, PrintRows& rows, const TextLines* pOther,
                     PrintRows* pOtherRows, const StyleTable& styles, TextSplitter& splitter);

}  // namespace qv
