#include "text/core/print_rows.h"

#include "support/failing_new.h"
#include "support/fake_window.h"

#include <gtest/gtest.h>
#include <new>
#include <string>
#include <tuple>

namespace {

using qv::PrintedRow;
using qv::PrintRows;
using qv::StyleTable;
using qv::TextLines;

constexpr int kChar = FixedMeasure::kCharWidth;

class Printing : public testing::Test {
protected:
    Printing() { m_styles.Add(0, 0); }

    void Format(int nChars, int nLinesPerPage, bool bWithOther = false) {
        m_rows.m_sizePrintArea = {nChars * kChar, 100};
        qv::FormatPrintRows(m_lines, m_rows, bWithOther ? &m_other : nullptr,
                            bWithOther ? &m_otherRows : nullptr, m_styles, m_splitter);
        for (PrintRows* pRows : {&m_rows, &m_otherRows}) {
            pRows->m_sizePrintArea = m_rows.m_sizePrintArea;
            pRows->m_nLinesPerPage = nLinesPerPage;
            pRows->m_nNumPages = m_rows.PagesNeeded();
        }
    }
    bool StartPage(PrintRows& rows, const TextLines& lines, int nPage) {
        return rows.StartPage(nPage, lines, m_styles, m_splitter, m_row);
    }
    bool NextLine(PrintRows& rows, const TextLines& lines, int nPage) {
        return rows.NextLine(nPage, lines, m_styles, m_splitter, m_row);
    }
    bool Current() { return m_rows.CurrentLine(m_lines, m_styles, m_splitter, m_row); }
    // "line:text|" for each row of a page.
    std::string Page(PrintRows& rows, const TextLines& lines, int nPage) {
        std::string strPage;
        for (bool b = StartPage(rows, lines, nPage); b; b = NextLine(rows, lines, nPage)) {
            strPage += std::to_string(m_row.nLine) + ':' + m_row.strText + '|';
        }
        return strPage;
    }

    TextLines m_lines, m_other;
    StyleTable m_styles;
    FixedMeasure m_measure;
    qv::TextSplitter m_splitter{m_measure};
    PrintRows m_rows, m_otherRows;
    PrintedRow m_row;
};

TEST_F(Printing, TheCurrentRowStaysWhereThePagesEndAndGoesWithTheRows) {
    for (const char* psz : {"x", "y"}) {
        m_lines.Add(psz, 0);
    }
    Format(20, 9);
    EXPECT_EQ(Page(m_rows, m_lines, 1), "0:x|1:y|");
    EXPECT_TRUE(Current());
    EXPECT_EQ(m_row.strText, "y");
    m_rows.Clear();
    EXPECT_EQ(m_rows.m_nNumPages, 0);
    EXPECT_FALSE(Current());
}

TEST_F(Printing, PiecesAreThoseOfTheLinePassedIn) {
    m_lines.Add("x", 0);
    m_lines.Add("aaa bbb ccc", 0);  // stored, its pieces start at 0, 6 and 10
    m_lines.Add("0123456789", 0);   // at 0, 5 and 10
    Format(5, 99);
    ASSERT_EQ(m_rows.Count(), 6);
    EXPECT_EQ(Page(m_rows, m_lines, 1), "0:x|1:aaa bbb ccc|1:bbb |1:ccc|2:0123|2:34567|")
        << "one variable for all rows: each line's first row is cut by the line before";

    const auto rowCountedBy = [&](int nRow, int nLine) {
        EXPECT_TRUE(StartPage(m_rows, m_lines, 1));
        for (int i = 0; i < nRow; ++i) {
            m_row.nLine = i < 3 ? 1 : 2;
            EXPECT_TRUE(NextLine(m_rows, m_lines, 1));
            m_row = {"before", 7, nLine};
        }
        m_row = {"before", 7, nLine};
        return Current();
    };
    for (const int nNone : {-1, 3}) {
        EXPECT_TRUE(rowCountedBy(1, nNone));
        EXPECT_EQ(m_row.strText, "aaa bbb ccc") << "no line is one piece";
    }
    EXPECT_FALSE(rowCountedBy(2, 0)) << "x has no second piece";
    EXPECT_EQ(std::tie(m_row.strText, m_row.nStyle, m_row.nLine), std::tuple("before", 7, 0));
    EXPECT_TRUE(rowCountedBy(2, 2));
    EXPECT_EQ(m_row.strText, " bbb ");
    EXPECT_EQ(m_row.nLine, 1);
}

TEST_F(Printing, RowsByNumberKnowWhatThereIsNot) {
    m_styles.Add(0, 0);
    m_lines.Add("abc", 1);
    m_other.Add("defghi", 0);
    Format(3, 9, true);
    ASSERT_EQ(m_rows.Count(), 2);
    EXPECT_TRUE(m_rows.Row(0, m_lines, m_styles, m_row));
    EXPECT_EQ(std::tie(m_row.strText, m_row.nStyle, m_row.nLine), std::tuple("abc", 1, 0));
    EXPECT_TRUE(m_rows.Row(1, m_lines, m_styles, m_row));
    EXPECT_EQ(m_row.strText, "") << "keeps the other level";
    m_row = {"before", 7, 0};
    m_rows.Add(0, 0);
    for (const int nRow : {-1, 2, 3}) {
        EXPECT_FALSE(m_rows.Row(nRow, m_lines, m_styles, m_row)) << nRow;
        EXPECT_EQ(m_row.strText, "before");
    }
    m_lines.Clear();
    EXPECT_TRUE(m_rows.Row(0, m_lines, m_styles, m_row));
    EXPECT_EQ(m_row.strText, "") << "the line is gone";
}

TEST_F(Printing, ARowThatFoundNoMemoryIsGivenTheNextTime) {
    for (const char* psz : {"first", "second"}) {
        m_lines.Add(std::string(200, '.') + psz, 0);
    }
    Format(1000, 9);
    ASSERT_TRUE(StartPage(m_rows, m_lines, 1));
    int nRefused = 0;
    for (bool bGiven = false; !bGiven; ++nRefused) {
        try {
            m_row.strText = std::string();
            const FailingNew failing(nRefused);
            bGiven = NextLine(m_rows, m_lines, 1);
        } catch (const std::bad_alloc&) {
        }
        ASSERT_LT(nRefused, 100);
    }
    EXPECT_GT(nRefused, 1);
    EXPECT_TRUE(m_row.strText.ends_with("second"));
}

}  // namespace
