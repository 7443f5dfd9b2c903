#include "support/list_window.h"
#include "support/temp_file.h"
#include "window/refusals.h"

#include <afxext.h>

#include <gtest/gtest.h>

namespace {

TEST(ListPrint, RowsComeInPagesAndRanges) {
    ListWindow<> w("a\tb\tc");
    w.list.SetColFormat(1, LVCFMT_RIGHT);
    w.list.ExcludeColumnFromPrinting(2);
    for (int i = 0; i < 5; ++i) {
        w.Add((std::to_string(i) + "\t\033an" + std::to_string(i) + "\tx").c_str());
    }
    TextRecorder dc;
    CPrintInfo info;
    w.list.BeginPrinting(&dc, &info);
    const int nHeight = w.list.CalculateItemHeight(&dc);
    ASSERT_GT(nHeight, 0);
    EXPECT_EQ(w.list.HeaderPrintHeight(&dc), nHeight * 3 / 2) << "without fonts that of the device";
    w.list.CalcPrintCols(&dc, 600);
    const CRect rc(50, 100, 650, 100 + 2 * nHeight + nHeight / 2);
    for (const auto& [nPage, nRows] : {std::pair(0u, 0), {2u, 2}, {3u, 1}, {4u, 0}}) {
        info.m_nCurPage = nPage;
        EXPECT_EQ(w.list.PrintItems(&dc, &info, rc), nRows);
    }
    EXPECT_EQ(dc.All(), "2|n2|3|n3|4|n4");
    EXPECT_EQ(dc.texts[1].rc, CRect(356, 100, 644, 100 + nHeight)) << "a margin on both sides";
    EXPECT_EQ(dc.texts[1].nFormat & (DT_RIGHT | DT_CENTER), static_cast<UINT>(DT_RIGHT));
    EXPECT_EQ(dc.texts[2].rc.top, 100 + nHeight);
    dc.texts.clear();
    EXPECT_EQ(w.list.PrintItems(&dc, 1u, 1u, rc), 1);
    EXPECT_EQ(w.list.PrintItems(&dc, 3u, 9u, rc), 2);
    EXPECT_EQ(dc.All(), "1|n1|3|n3|4|n4");
    EXPECT_EQ(w.list.PrintItems(&dc, 0u, 4u, CRect(0, 0, 100, nHeight - 1)), 0);
}

TEST(ListPrint, HeadingsHaveTheirFontAndARule) {
    ListWindow<> w("first\tsecond\tthird");
    w.list.SetHdrFormat(2, LVCFMT_CENTER);
    w.list.ExcludeColumnFromPrinting(1);
    TextRecorder dc(CSize(700, 200));
    dc.FillSolidRect(0, 0, 700, 200, RGB(255, 255, 255));
    CFont fontRow, fontHeader;
    fontRow.CreatePointFont(100, "Tahoma");
    fontHeader.CreatePointFont(160, "Tahoma");
    CPrintInfo info;
    w.list.SetPrintFonts(&fontRow, &fontHeader);
    w.list.BeginPrinting(&dc, &info);
    w.list.CalcPrintCols(&dc, 600);
    w.list.PrintHeader(&dc, CRect(20, 30, 620, 80));
    EXPECT_EQ(dc.All(), "first|third");
    EXPECT_EQ(dc.texts[1].rc.left, 20 + 300 + 6);
    EXPECT_EQ(dc.texts[1].nFormat & DT_CENTER, static_cast<UINT>(DT_CENTER));
    EXPECT_EQ(dc.texts[0].hFont, fontHeader.GetSafeHandle());
    const int nHeader = w.list.HeaderPrintHeight(&dc) * 2 / 3;
    const int nRow = w.list.CalculateItemHeight(&dc);
    EXPECT_GT(nHeader, nRow);
    const int y = 30 + nHeader * 5 / 4;
    EXPECT_EQ(dc.GetPixel(20, y), RGB(0, 0, 0));
    EXPECT_EQ(dc.GetPixel(619, y), RGB(0, 0, 0)) << "from edge to edge";
    EXPECT_EQ(dc.GetPixel(620, y), RGB(255, 255, 255));
    w.list.EndPrinting(&dc, &info);
    EXPECT_NE(w.list.CalculateItemHeight(&dc), nRow) << "fonts are forgotten at the end";
}

TEST(ListPrint, StylesColourPaperAndTheSelectionDoesNotAndImagesKeepTheirRoom) {
    ListWindow<> w("a\tb", true);
    w.list.AddStyle(RGB(200, 0, 0), RGB(0, 200, 0));
    w.Add("\033bx\ty");
    w.list.SelectItem(0);
    const CRect rc(0, 0, 200, 60);
    TextRecorder dc(rc.Size());
    w.list.CalcPrintCols(&dc, 200);
    w.list.PrintItems(&dc, 0u, 0u, rc);
    EXPECT_EQ(dc.texts[0].crText, RGB(200, 0, 0));
    EXPECT_EQ(dc.GetPixel(1, 1), RGB(0, 200, 0));
    EXPECT_EQ(dc.texts[0].rc.right, 100 - kListImageWidth - 6);
    w.list.SetImageFirstCol(TRUE);
    w.list.PrintItems(&dc, 0u, 0u, rc);
    EXPECT_EQ(dc.texts.back().rc.right, 100 - 6) << "printing starts at column 1, at the left";
}

TEST(ListExport, WritesWhatTheCellsShow) {
    const TempFile file;
    ListWindow<> w("a\tb\tc");
    w.list.ExcludeColumnFromPrinting(1);
    w.Add("1\t\033a2\t3");
    w.Add("x");
    w.list.SetItemString(1, "\tx\ty");
    w.list.SetItemText(1, 0, "");
    EXPECT_TRUE(w.list.ExportData(file.Path(), ','));
    EXPECT_EQ(file.Content(), "1,2,3\r\nx,y\r\n");
    EXPECT_FALSE(w.list.ExportData("no such folder\\x.txt", ';'));
}

TEST(ListExport, AFullDiskIsAnException) {
    ListWindow<> w("a");
    w.Add("x");
    ExpectFullDiskIsTold([&](LPCTSTR pszFile) { return w.list.ExportData(pszFile, ','); });
}

}  // namespace
