// Random sequences of all that two texts side by side can be told, beside plain vectors of lines
// and the word wrap done step by step. No text that is measured may hold a byte from behind a line.

#include "fuzz_input.h"
#include "support/odd_measures.h"
#include "support/text_split_rule.h"
#include "text/core/display_rows.h"
#include "text/core/print_rows.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

class CheckedMeasure : public KernedMeasure {
public:
    qv::Size Extent(std::string_view text) override {
        FUZZ_CHECK(text.find('\0') == std::string_view::npos);
        return KernedMeasure::Extent(text);
    }
    void PrefixWidths(std::string_view text, int* pWidths) override {
        FUZZ_CHECK(text.find('\0') == std::string_view::npos);
        KernedMeasure::PrefixWidths(text, pWidths);
    }
};

struct PlainRow {
    int nLine;
    int nSubLine;
};

// A text as it should be: its stored lines, and the rows on paper.
struct PlainText {
    std::vector<std::string> lines;
    std::vector<PlainRow> printed;
    int nCurrent = 0;

    std::string Line(int nLine) const {
        return nLine >= 0 && nLine < static_cast<int>(lines.size())
                   ? lines[static_cast<std::size_t>(nLine)]
                   : std::string();
    }
};

class TextRun {
public:
    TextRun(const std::uint8_t* pData, std::size_t nSize) : m_input(pData, nSize) {
        m_measure.Roll([this] { return m_input.Byte(); });
    }

    void Run() {
        while (!m_input.AtEnd()) {
            Step();
            CheckLines();
        }
    }

private:
    struct Sister {
        qv::TextLines lines;
        qv::PrintRows rows;
        PlainText plain;
    };

    int Width() { return static_cast<int>(m_input.Byte() * (m_input.Byte() % 4)) - 5; }
    Sister& Any() { return m_sisters[m_input.Byte() % 2]; }

    std::string Text() {
        static constexpr char kBytes[] = "aabw     \n\t\x1B\xC3\xA4\x81\xFF";
        std::string strText;
        for (unsigned n = m_input.Byte() % 48; n > 0 && !m_input.AtEnd(); --n) {
            strText += kBytes[m_input.Byte() % (sizeof(kBytes) - 1)];
        }
        if (m_input.Byte() % 128 == 0) {
            strText.append(m_input.Byte() * 8, 'x');  // more than one measure takes
        }
        return strText;
    }

    // A stored line, or its start, without the code that every line begins with. Without styles no
    // letter is known, and none was meant to show.
    std::string Shown(const std::string& strLine) const {
        constexpr std::size_t kCode = 2;
        return m_styles.Count() == 0 && strLine.size() >= kCode
                   ? strLine.substr(kCode)
                   : std::string(m_styles.ParseStyleText(strLine.c_str()));
    }

    std::vector<int> Rule(std::string_view text, int nWidth) {
        return SplitByRule(text, nWidth, m_measure);
    }

    void Add() {
        Sister& sister = Any();
        const std::string strText = Text();
        const int nStyle = static_cast<int>(m_input.Byte() % 6) - 1;
        sister.plain.lines.push_back(
            std::string{'\x1B', static_cast<char>('a' + std::max(nStyle, 0))} + strText);
        FUZZ_CHECK(sister.lines.Add(strText, nStyle) ==
                   static_cast<int>(sister.plain.lines.size()));
    }

    void Clear() {
        if (m_input.Byte() % 4 == 0) {
            Sister& sister = Any();
            sister.lines.Clear();
            sister.plain.lines.clear();
        }
    }

    void Split() {
        const std::string strText = Text();
        const int nWidth = Width();
        // On the heap with nothing behind it, so that a read too far shows.
        const std::unique_ptr<char[]> exact(new char[strText.size()]);
        strText.copy(exact.get(), strText.size());
        m_splitter.Split({exact.get(), strText.size()}, nWidth, m_starts);
        FUZZ_CHECK(m_starts == Rule(strText, nWidth));
    }

    void Display() {
        const Sister& sister = Any();
        if (m_input.Byte() % 4 == 0) {
            m_nWidth = Width();
        }
        if (m_pDisplayed != &sister) {
            m_pDisplayed = &sister;
            m_display.Forget();
        }
        m_display.Format(sister.lines, m_styles, m_nWidth, m_splitter);
        int nRow = 0;
        for (int nLine = 0; nLine < sister.lines.Count(); ++nLine) {
            const std::string strText = Shown(sister.plain.Line(nLine));
            const int nPieces = static_cast<int>(Rule(strText, m_nWidth).size());
            for (int i = 0; i < nPieces; ++i, ++nRow) {
                FUZZ_CHECK(nRow < m_display.Count());
                FUZZ_CHECK(m_display[nRow].nLine == nLine && m_display[nRow].nSubLine == i);
            }
        }
        FUZZ_CHECK(nRow == m_display.Count());
    }

    void FormatPrint() {
        Sister& own = m_sisters[0];
        Sister& other = m_sisters[1];
        const bool bBoth = m_input.Byte() % 2 == 0;
        const int nWidth = Width();
        const int nLinesPerPage = static_cast<int>(m_input.Byte() % 12) - 1;
        for (Sister* pSister : {&own, &other}) {
            pSister->rows.Clear();
            pSister->rows.m_nLinesPerPage = nLinesPerPage;
            pSister->rows.m_sizePrintArea = {nWidth, 100};
            pSister->plain.printed.clear();
        }
        qv::FormatPrintRows(own.lines, own.rows, bBoth ? &other.lines : nullptr,
                            bBoth ? &other.rows : nullptr, m_styles, m_splitter);
        const std::size_t nLines =
            std::max(own.plain.lines.size(), bBoth ? other.plain.lines.size() : 0);
        for (std::size_t i = 0; i < nLines; ++i) {
            const auto pieces = [&](const PlainText& plain) {
                return i < plain.lines.size() ? Rule(Shown(plain.lines[i]), nWidth).size() : 0;
            };
            const std::size_t nOwn = pieces(own.plain);
            const std::size_t nOther = bBoth ? pieces(other.plain) : 0;
            for (std::size_t j = 0; j < std::max(nOwn, nOther); ++j) {
                const auto piece = [&](std::size_t n) { return j < n ? static_cast<int>(j) : -1; };
                own.plain.printed.push_back({static_cast<int>(i), piece(nOwn)});
                if (bBoth) {
                    other.plain.printed.push_back({static_cast<int>(i), piece(nOther)});
                }
            }
        }
        const int nRows = static_cast<int>(own.plain.printed.size());
        const int nPages = own.rows.PagesNeeded();
        FUZZ_CHECK(own.rows.Count() == nRows);
        FUZZ_CHECK(other.rows.Count() == (bBoth ? nRows : 0));
        FUZZ_CHECK(nLinesPerPage > 0 ? nPages * nLinesPerPage >= nRows &&
                                           (nPages == 0 || (nPages - 1) * nLinesPerPage < nRows)
                                     : nPages == 0);
        own.rows.m_nNumPages = other.rows.m_nNumPages = nPages;
        CheckJoined(own);
        if (bBoth) {
            CheckJoined(other);
        }
    }

    // Rows by number, joined, give every line back.
    void CheckJoined(const Sister& sister) {
        std::vector<std::string> joined(sister.plain.lines.size());
        qv::PrintedRow row;
        for (int nRow = 0; nRow < sister.rows.Count(); ++nRow) {
            FUZZ_CHECK(sister.rows.Row(nRow, sister.lines, m_styles, row));
            if (row.nLine < sister.lines.Count()) {
                joined[static_cast<std::size_t>(row.nLine)] += row.strText;
            } else {
                FUZZ_CHECK(row.strText.empty());
            }
        }
        for (std::size_t i = 0; i < joined.size(); ++i) {
            FUZZ_CHECK(joined[i] == Shown(sister.plain.lines[i]));
        }
    }

    // What the current row is to give, expected going in as row does.
    bool ExpectCurrent(const PlainText& plain, int nWidth, qv::PrintedRow& expected) {
        if (plain.nCurrent >= static_cast<int>(plain.printed.size())) {
            return false;
        }
        const auto [nLine, nPiece] = plain.printed[static_cast<std::size_t>(plain.nCurrent)];
        std::string strPiece;
        bool bFirst = false;
        if (nPiece != -1) {
            const std::vector<int> starts = Rule(plain.Line(expected.nLine), nWidth);
            const auto n = static_cast<std::size_t>(nPiece);
            if (n >= starts.size()) {
                return false;
            }
            const std::string strLine = plain.Line(nLine);
            const std::size_t nFrom = std::min<std::size_t>(starts[n], strLine.size());
            bFirst = nFrom == 0;
            strPiece = strLine.substr(
                nFrom, n + 1 < starts.size() ? static_cast<std::size_t>(starts[n + 1]) - starts[n]
                                             : std::string::npos);
        }
        expected = {bFirst ? Shown(strPiece) : m_styles.ParseStyleText(strPiece.c_str()),
                    m_styles.ParseStyle(plain.Line(nLine).c_str()), nLine};
        return true;
    }

    // Pages of either text, whose lines may have changed since they were laid out.
    void Print() {
        Sister& sister = Any();
        PlainText& plain = sister.plain;
        const int nPage = static_cast<int>(m_input.Byte() % 8) - 1;
        const int nWidth = sister.rows.m_sizePrintArea.cx;
        const int nLinesPerPage = sister.rows.m_nLinesPerPage;
        qv::PrintedRow row{"before", 77, static_cast<int>(m_input.Byte() % 8) - 1};
        qv::PrintedRow expected = row;

        bool bExpected = nPage >= 1 && nPage <= sister.rows.m_nNumPages;
        expected.strText.clear();
        if (bExpected) {
            plain.nCurrent = nLinesPerPage * (nPage - 1);
            bExpected = ExpectCurrent(plain, nWidth, expected);
        }
        CheckRow(sister.rows.StartPage(nPage, sister.lines, m_styles, m_splitter, row), row,
                 bExpected, expected);
        const bool bPassesOn = m_input.Byte() % 2 == 0;
        for (unsigned n = m_input.Byte() % 16; n > 0; --n) {
            if (!bPassesOn) {
                row.nLine = expected.nLine = static_cast<int>(m_input.Byte() % 8) - 1;
            }
            bExpected = plain.nCurrent + 1 < static_cast<int>(plain.printed.size()) &&
                        plain.nCurrent + 1 < nLinesPerPage * nPage;
            if (bExpected) {
                ++plain.nCurrent;
                bExpected = ExpectCurrent(plain, nWidth, expected);
            }
            CheckRow(sister.rows.NextLine(nPage, sister.lines, m_styles, m_splitter, row), row,
                     bExpected, expected);
        }
    }

    static void CheckRow(bool bHas, const qv::PrintedRow& row, bool bExpected,
                         const qv::PrintedRow& expected) {
        FUZZ_CHECK(bHas == bExpected);
        FUZZ_CHECK(row.strText == expected.strText);
        FUZZ_CHECK(row.nStyle == expected.nStyle && row.nLine == expected.nLine);
    }

    void Step() {
        switch (m_input.Byte() % 16) {
            case 0:
                return Clear();
            case 1:
                if (m_styles.Count() < 5) {
                    m_styles.Add(0, 0);
                }
                return;
            case 2:
                if (m_input.Byte() % 4 == 0) {
                    m_measure.Roll([this] { return m_input.Byte(); });
                    m_display.Forget();
                }
                return;
            case 3:
            case 4:
                return Split();
            case 5:
            case 6:
                return Display();
            case 7:
                return FormatPrint();
            case 8:
            case 9:
            case 10:
                return Print();
            default:
                return Add();
        }
    }

    void CheckLines() {
        for (const Sister& sister : m_sisters) {
            const int nCount = static_cast<int>(sister.plain.lines.size());
            FUZZ_CHECK(sister.lines.Count() == nCount);
            for (int i = 0; i < nCount; ++i) {
                FUZZ_CHECK(sister.lines.Line(i) == sister.plain.Line(i));
            }
            FUZZ_CHECK(sister.lines.Line(-1) == nullptr && sister.lines.Line(nCount) == nullptr);
        }
    }

    FuzzInput m_input;
    CheckedMeasure m_measure;
    qv::TextSplitter m_splitter{m_measure};
    std::vector<int> m_starts;
    qv::StyleTable m_styles;
    Sister m_sisters[2];
    qv::DisplayRows m_display;
    const Sister* m_pDisplayed = nullptr;
    int m_nWidth = 50;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    TextRun(pData, nSize).Run();
    return 0;
}
