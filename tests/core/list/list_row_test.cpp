#include "list/core/list_row.h"

#include <gtest/gtest.h>

namespace qv {

TEST(ListRow, HighlightFollowsFocusAndStyles) {
    constexpr bool kNo = false, kYes = true;
    for (const bool bShow : {kNo, kYes}) {
        for (const bool bAlways : {kNo, kYes}) {
            EXPECT_EQ(RowHighlight(kYes, kYes, bShow, bAlways), Highlight::Full);
            EXPECT_EQ(RowHighlight(kNo, kYes, bShow, bAlways), Highlight::None);
        }
    }
    EXPECT_EQ(RowHighlight(kYes, kNo, kYes, kYes), Highlight::Full);
    EXPECT_EQ(RowHighlight(kYes, kNo, kYes, kNo), Highlight::Faded);
    EXPECT_EQ(RowHighlight(kYes, kNo, kNo, kYes), Highlight::None);
}

TEST(ListRow, ACellTakesColoursFromItsStyleOrItsColumns) {
    constexpr COLORREF kNoBack = 0xFFFFFFFF;
    constexpr COLORREF kWindow = 77;
    StyleTable styles;
    const CellText none = ReadCell(styles, "\033ax", 0, kWindow);
    EXPECT_EQ(none.text, "ax") << "without a table the code's letter shows";
    EXPECT_FALSE(none.crText || none.crBk);
    EXPECT_EQ(StyleBackground(styles, 0, kWindow), kWindow);
    styles.Add(1, 10);
    styles.Add(2, 20);
    styles.Add(3, kNoBack);
    const struct {
        const char* pszCell;
        int nColStyle;
        const char* pszText;
        std::optional<COLORREF> crText, crBk;
    } cases[] = {
        {"plain", 1, "plain", {}, {}}, {"", 1, "", {}, {}},
        {"\033bx", 0, "x", 2, 20},     {"\033ax", 1, "x", 1, {}},  // style 0 has no background
        {"\033cx", 1, "x", 3, 20},                                 // the column's stands in
        {"\033cx", 99, "x", 3, 10},  // a style that is none is the default one
        {"\033zx", 1, "zx", 1, {}},  // a code outside the table counts as 0
    };
    for (const auto& c : cases) {
        const CellText cell = ReadCell(styles, c.pszCell, c.nColStyle, kWindow);
        EXPECT_EQ(cell.text, c.pszText);
        EXPECT_EQ(cell.crText, c.crText) << c.pszCell;
        EXPECT_EQ(cell.crBk, c.crBk) << c.pszCell;
    }
}

TEST(ListRow, TextBeginsBehindTheImageAndEndsWithTheData) {
    RowLayout layout{.nClientWidth = 400,
                     .nDataWidth = 300,
                     .nImageWidth = 16,
                     .nImageHeight = 16,
                     .nTextHeight = 11};
    EXPECT_EQ(layout.Width(), 400);
    EXPECT_EQ(layout.TextCells(18), (Rect{16, 0, 300, 18}));
    EXPECT_EQ(layout.Blank(18), (Rect{300, 0, 400, 18}));
    EXPECT_EQ(layout.Focus(18), (Rect{18, 0, 300, 18}));
    EXPECT_EQ(layout.TextInset(), 2);
    layout.nClientWidth = 200;
    EXPECT_EQ(layout.Width(), 300);
    EXPECT_EQ(layout.Blank(18).Width(), 0);
    layout.nImageHeight = 11;
    EXPECT_EQ(layout.TextInset(), 0);
}

TEST(ListRow, TheImageStandsAtTheLeftOrAloneInTheFirstColumn) {
    RowLayout layout{
        .nDataWidth = 300, .nFirstColWidth = 41, .nImageWidth = 16, .nImageHeight = 13};
    const Rect rcRow{5, 10, 305, 30};
    EXPECT_EQ(layout.ImageCell(rcRow), (Rect{5, 10, 23, 30}));
    EXPECT_EQ(layout.ImagePosition(rcRow).x, 6);
    EXPECT_EQ(layout.ImagePosition(rcRow).y, 12);
    layout.bImageCenterVert = true;
    EXPECT_EQ(layout.ImagePosition(rcRow).y, 13);
    layout.bImageFirstCol = true;
    EXPECT_EQ(layout.ImageCell(rcRow), (Rect{5, 10, 46, 30}));
    EXPECT_EQ(layout.ImagePosition(rcRow).x, 17);
    EXPECT_EQ(layout.TextCells(20).left, 41);
    EXPECT_EQ(layout.Focus(20).left, 41);
}

}  // namespace qv
