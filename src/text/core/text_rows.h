// The rows of a text: which piece of which line each of them shows, on screen and on paper.

#pragma once

#include "base/geometry.h"
#include "base/window_port.h"
#include "frame/core/styled_text.h"
#include "text/core/text_lines.h"
#include "text/core/text_split.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

// One row.
struct QVTEXTLINE {
    int nLine;
    int nSubLine;  // the piece, from 0; -1: a blank row that keeps two printed texts level
};

namespace qv {

// A stored line without its style code. While there are no styles at all, which is before the
// window is made, the code that TextLines wrote goes all the same; once there are some, the letter
// of a style that is not among them shows, here as in every row.
const char* LineText(const StyleTable& styles, const char* pszLine);
inline constexpr int kLineCodeBytes = 2;  // that TextLines puts before each text

// The pieces of a line without its style code.
void SplitLine(const char* pszLine, int nWidth, const StyleTable& styles, TextSplitter& splitter,
               std::vector<int>& starts);

// The rows on screen. They are made anew only when lines, width or styles are other ones; lines
// that were added meanwhile are added.
class DisplayRows {
public:
    // May throw std::bad_alloc. The rows are those of before then, perhaps with some lines more,
    // and the next call goes on.
    void Format(const TextLines& lines, const StyleTable& styles, int nWidth,
                TextSplitter& splitter);
    // The widths measured before are no longer those of the font.
    void Forget() { m_width.reset(); }
    int Count() const { return static_cast<int>(m_rows.size()); }
    const QVTEXTLINE& operator[](int nRow) const { return m_rows[static_cast<size_t>(nRow)]; }

private:
    void Append(const TextLines& lines, const StyleTable& styles, TextSplitter& splitter);

    std::deque<QVTEXTLINE> m_rows;
    std::optional<int> m_width;  // formatted for; none: all is to be made anew
    int m_nStyles = 0;
    int m_nLines = 0;  // formatted
    unsigned m_nGeneration = 0;
    std::vector<int> m_starts;
};

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

    int m_nLinesPerPage = 0;
    int m_nNumPages = 0;
    Size m_sizePrintArea;

    // Pages that Count() rows take; none if no row fits a page.
    int PagesNeeded() const;

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

// --- Scrolling, in rows or columns

enum class ScrollCode { LineUp, LineDown, PageUp, PageDown, Thumb, Top, Bottom, Other };
ScrollCode ScrollCodeOf(unsigned nCode);  // an SB_ value

// The position that a scroll code leads to, nCount being all rows and nPage those that show. False
// where the code is refused; positions behind the last page are refused, not clamped.
bool ScrollTarget(ScrollCode code, unsigned nWanted, int nPos, int nCount, int nPage, int& nTarget);

// Where a thumb that is dragged to nPos of a bar leads. The bar's page may be shorter than what
// shows: the end of the bar then stands for the last page, which is before it.
unsigned DraggedTo(int nPos, const ScrollRange& bar, int nCount, int nPage);

}  // namespace qv
