#include "text/core/print_rows.h"

#include "support/failing_new.h"
#include "support/fake_window.h"

#include <gtest/gtest.h>
#include <new>
#include <string>

namespace {

// Rows and pages are the fuzzer's, beside a plain walk.
TEST(Printing, ARowThatFoundNoMemoryIsGivenTheNextTime) {
    qv::TextLines lines;
    for (const char* psz : {"first", "second"}) {
        lines.Add(std::string(200, '.') + psz, 0);
    }
    const qv::StyleTable styles;
    FixedMeasure measure;
    qv::TextSplitter splitter{measure};
    qv::PrintRows rows;
    rows.m_sizePrintArea = {1000 * FixedMeasure::kCharWidth, 100};
    rows.m_nLinesPerPage = 9;
    rows.m_nNumPages = 1;
    qv::FormatPrintRows(lines, rows, nullptr, nullptr, styles, splitter);
    qv::PrintedRow row;
    ASSERT_TRUE(rows.StartPage(1, lines, styles, splitter, row));
    int nRefused = 0;
    for (bool bGiven = false; !bGiven; ++nRefused) {
        try {
            row.strText = std::string();
            const FailingNew failing(nRefused);
            bGiven = rows.NextLine(1, lines, styles, splitter, row);
        } catch (const std::bad_alloc&) {
        }
        ASSERT_LT(nRefused, 100);
    }
    EXPECT_GT(nRefused, 1);
    EXPECT_TRUE(row.strText.ends_with("second"));
}

TEST(Printing, ARowAddedByHandHasNoTextByNumber) {
    const qv::TextLines lines;
    qv::PrintRows rows;
    rows.Add(0, 0);
    qv::PrintedRow row{"before", 7, 0};
    EXPECT_FALSE(rows.Row(0, lines, qv::StyleTable(), row));
    EXPECT_EQ(row.strText, "before");
}

}  // namespace
