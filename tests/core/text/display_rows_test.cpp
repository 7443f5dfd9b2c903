#include "text/core/display_rows.h"

#include "support/failing_new.h"
#include "support/fake_window.h"

#include <gtest/gtest.h>
#include <new>
#include <string>

namespace {

using qv::DisplayRows;
using qv::StyleTable;
using qv::TextLines;

constexpr int kChar = FixedMeasure::kCharWidth;

// "line.piece " for each row.
std::string Show(const DisplayRows& rows) {
    std::string strRows;
    for (int i = 0; i < rows.Count(); ++i) {
        strRows += std::to_string(rows[i].nLine) + '.' + std::to_string(rows[i].nSubLine) + ' ';
    }
    return strRows;
}

class DisplayedRows : public testing::Test {
protected:
    DisplayedRows() {
        m_styles.Add(0, 0);
        m_lines.Add("abc", 0);
        m_lines.Add("", 0);
        m_lines.Add("abcd efg h", 0);
    }
    // The number of calls for a width.
    int Format(int nChars) {
        m_measure.nCalls = 0;
        m_rows.Format(m_lines, m_styles, nChars * kChar, m_splitter);
        return m_measure.nCalls;
    }

    TextLines m_lines;
    StyleTable m_styles;
    FixedMeasure m_measure;
    qv::TextSplitter m_splitter{m_measure};
    DisplayRows m_rows;
};

TEST_F(DisplayedRows, MeasureOnlyWhatIsNewUntilWidthOrFontIsAnother) {
    EXPECT_EQ(Format(50), 2) << "one for each text that is not empty";
    EXPECT_EQ(Format(40), 2);
    EXPECT_EQ(Format(40), 0);
    m_lines.Add("xy", 0);
    EXPECT_EQ(Format(40), 1);
    EXPECT_EQ(Show(m_rows), "0.0 1.0 2.0 3.0 ");
    for (const int nChars : {-1, 0, 40}) {
        Format(nChars);
        m_rows.Forget();
        EXPECT_GE(Format(nChars), 3) << nChars;
    }
}

TEST_F(DisplayedRows, AreWholeAfterACallThatRanOutOfMemory) {
    for (int i = 0; i < 3; ++i) {
        m_lines.Add(std::string(150, 'x'), 0);
    }
    Format(1);
    const std::string strWhole = Show(m_rows);
    int nRanOut = 0;
    for (bool bRanOut = true; bRanOut; ++nRanOut) {
        ASSERT_LT(nRanOut, 100);
        DisplayRows rows;
        bRanOut = false;
        try {
            const FailingNew failing(nRanOut);
            rows.Format(m_lines, m_styles, kChar, m_splitter);
        } catch (const std::bad_alloc&) {
            bRanOut = true;
        }
        rows.Format(m_lines, m_styles, kChar, m_splitter);
        ASSERT_TRUE(Show(rows) == strWhole) << nRanOut << " allocations";
    }
    EXPECT_GT(nRanOut, 5);
}

}  // namespace
