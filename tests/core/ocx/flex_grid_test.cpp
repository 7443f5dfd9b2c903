#include "base/platform_names.h"
#include "ocx/core/flex_grid_format.h"
#include "ocx/core/flex_grid_selection.h"
#include "ocx/core/flex_grid_sort.h"
#include "support/failing_new.h"

#include <gtest/gtest.h>
#include <new>
#include <string>

namespace qv {

namespace {

std::string Narrow(std::u16string_view text) {
    return {text.begin(), text.end()};
}

FlexGridModel& Fill(FlexGridModel& model, const std::u16string& strCells) {
    const auto nRows = std::count(strCells.begin(), strCells.end(), u'\r') + 1;
    const auto nCols = std::count(strCells.begin(), strCells.end(), u'\t') / nRows + 1;
    model.SetRows(static_cast<int>(nRows));
    model.SetCols(static_cast<int>(nCols));
    model.SetClip({0, 0, model.Rows() - 1, model.Cols() - 1}, strCells);
    return model;
}

}  // namespace

TEST(FlexGridModel, ATitleSetsTextWidthAndAlignmentAndMakesRoomForItself) {
    FlexGridModel model;
    model.ColAxis().SetSize(1, 50);
    const auto titles = ParseFormatString(u"<a|^bb||>cccc;|first|second");
    ApplyTitles(model, titles, [](auto text) { return static_cast<int>(text.size()) * 10; });
    EXPECT_EQ(Narrow(model.Clip({0, 0, 2, 3})), "a\tbb\t\tcccc\rfirst\t\t\t\rsecond\t\t\t");
    const int aWidths[] = {60, 20, FlexGridModel::kDefaultColWidth, 40};
    const int aAlignments[] = {fgaLeftCenter, fgaCenter, fgaGeneral, fgaRightCenter};
    for (int n = 0; n < 4; ++n) {
        EXPECT_EQ(model.ColAxis().Size(n), aWidths[n]);
        EXPECT_EQ(model.ColAxis().Line(n).nAlignment, aAlignments[n]);
    }
    EXPECT_TRUE(ParseFormatString(u"").columns.empty());
    EXPECT_EQ(ParseFormatString(u"|<").columns.size(), 2u);
}

TEST(FlexGridModel, WhatItCannotBeIsRefusedAndChangesNothing) {
    FlexGridModel model;
    Fill(model, u"a\tb\rc\td\re\tf");
    using E = FlexGridError;
    EXPECT_EQ(model.SetRows(-1), E::BadCount);
    EXPECT_EQ(model.SetCols(INT32_MAX), E::BadCount);
    EXPECT_EQ(model.SetFixedRows(3), E::BadFixed);
    EXPECT_EQ(model.RemoveItem(0), E::BadFixed);
    EXPECT_EQ(model.RemoveItem(3), E::BadRow);
    EXPECT_EQ(model.MoveCol(0, 2), E::BadColumn);
    EXPECT_EQ(Narrow(model.Clip({0, 0, 2, 1})), "a\tb\rc\td\re\tf");
    EXPECT_EQ(model.RemoveItem(2), E::None);
    EXPECT_EQ(model.RemoveItem(1), E::LastRow);
    EXPECT_EQ(model.SetRows(0), E::None);
    EXPECT_EQ(model.FixedRows(), 0);
    for (int nSucceeding = 0, nRows = 0; nRows == 0; ++nSucceeding) {
        ASSERT_LT(nSucceeding, 20);
        const FailingNew failing(nSucceeding);
        try {
            model.AddItem(u"some longer text\tand another one", 0);
        } catch (const std::bad_alloc&) {
            EXPECT_EQ(model.Rows(), 0);
        }
        nRows = model.Rows();
    }
    EXPECT_TRUE(model.CheckInvariants());
}

TEST(FlexGridModel, AMillionRowsTakeChangedHeightsInPassing) {
    FlexGridModel model;
    model.SetRows(1'000'000);
    for (int n = 0; n < 1'000'000; ++n) {
        model.RowAxis().SetSize(n, n % 10);
        ASSERT_EQ(model.RowAxis().Find(model.RowAxis().Start(n)), n % 10 == 0 ? n + 1 : n);
    }
    EXPECT_EQ(model.RowAxis().Length(), 4'500'000);
}

TEST(FlexGridModel, CellsOfOneTextStandTogetherWithinTheirPartOfTheGrid) {
    // Row and column 0 are fixed.
    const std::u16string strCells = u"x\tx\tx\rx\ta\ta\rx\ta\ta\rb\tc\tc\rb\t\t";
    struct Case {
        FlexGridMergeMode mode;
        const char* pszRows;  // which stand together, '1': yes
        const char* pszCols;
        const char* pszShape;  // each cell's range, as the number of the cell that it begins with
    } const aCases[] = {
        {fgmNever, "11111", "111", "012 345 678 9ab cde"},
        {fgmFree, "10000", "100", "011 345 378 9ab 9de"},
        {fgmFree, "11111", "111", "011 344 344 9aa 9de"},
        {fgmFree, "01100", "010", "012 344 677 9ab cde"},
        {fgmRestrictRows, "01111", "000", "012 344 677 9aa cde"},
        {fgmRestrictColumns, "00000", "111", "012 345 345 9ab 9de"},
        {fgmRestrictColumns, "00000", "011", "012 345 645 9ab cde"},
    };
    for (const Case& c : aCases) {
        FlexGridModel model;
        Fill(model, strCells).SetMergeMode(c.mode);
        std::string strShape;
        for (int nCell = 0; nCell < 15; ++nCell) {
            model.RowAxis().SetMerge(nCell / 3, c.pszRows[nCell / 3] == '1');
            model.ColAxis().SetMerge(nCell % 3, c.pszCols[nCell % 3] == '1');
        }
        for (int nCell = 0; nCell < 15; ++nCell) {
            const FlexGridRange range = model.Merged(nCell / 3, nCell % 3, {0, 0, 4, 2});
            strShape += nCell % 3 == 0 && nCell > 0 ? " " : "";
            strShape += "0123456789abcde"[range.nTop * 3 + range.nLeft];
        }
        EXPECT_EQ(strShape, c.pszShape) << c.mode << c.pszRows << c.pszCols;
    }
}

TEST(FlexGridSort, EachKindHasItsOrderAndEqualRowsKeepTheirs) {
    FlexGridModel model;
    Fill(model, u"10\rb\r9 kg\rB\r-1.5\ra\r\r9");
    const auto key = [](std::u16string_view text, bool bIgnoreCase) {
        std::string strKey = Narrow(text);
        for (char& ch : strKey) {
            ch = bIgnoreCase && ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + 32) : ch;
        }
        return strKey;
    };
    const char* const apszOrders[] = {"01234567", "47062513", "13526074", "41356270", "02713564",
                                      "64072513", "13527046", "64072351", "15327046"};
    for (int nKind = 0; nKind < 9; ++nKind) {
        std::string strOrder;
        for (const int n : SortedRows(model, {0, 0, 7, 0}, static_cast<FlexGridSort>(nKind), key)) {
            strOrder += static_cast<char>('0' + n);
        }
        EXPECT_EQ(strOrder, apszOrders[nKind]) << nKind;
    }
}

TEST(FlexGridSelection, KeysAndPressesLeadPastHiddenLinesAndNeverIntoFixedOnes) {
    FlexGridModel model;
    model.SetRows(101);
    model.SetCols(6);
    model.RowAxis().SetSize(2, 0);
    model.ColAxis().SetSize(5, 0);
    FlexGridView view(model);
    view.Refit({1000, 16 * 11});  // ten rows behind the fixed one
    struct Case {
        FlexGridSelectionMode mode;
        FlexGridKey key;
        FlexGridSelection after;  // from cell (1, 4)
    } const aCases[] = {
        {fgsFree, {VK_DOWN}, {3, 4, 3, 4}},
        {fgsFree, {VK_DOWN, true}, {1, 4, 3, 4}},
        {fgsFree, {VK_UP}, {1, 4, 1, 4}},
        {fgsFree, {VK_RIGHT}, {1, 4, 1, 4}},
        {fgsFree, {VK_LEFT, false, true}, {1, 1, 1, 1}},
        {fgsFree, {VK_NEXT}, {11, 4, 11, 4}},
        {fgsFree, {VK_END, true, true}, {1, 4, 100, 4}},
        {fgsByRow, {VK_DOWN, true}, {1, 1, 3, 5}},
        {fgsByColumn, {VK_HOME}, {1, 1, 100, 1}},
    };
    for (const Case& c : aCases) {
        const FlexGridSelector selector{model, c.mode};
        EXPECT_EQ(selector.AfterKey({1, 4, 1, 4}, c.key, view), c.after) << c.key.nKey;
    }
    FlexGridDrag drag = FlexGridDrag::None;
    const FlexGridSelector selector{model};
    EXPECT_EQ(selector.AfterPress({}, 0, 3, false, drag), (FlexGridSelection{1, 3, 100, 3}));
    EXPECT_EQ(selector.Dragged({1, 3, 100, 3}, 0, 4, drag), (FlexGridSelection{1, 3, 100, 4}));
    EXPECT_EQ(selector.AfterPress({2, 3, 2, 3}, 5, 1, true, drag), (FlexGridSelection{2, 3, 5, 1}));
    EXPECT_EQ(selector.AfterPress({}, 0, 0, false, drag), (FlexGridSelection{1, 1, 100, 5}));
    EXPECT_FALSE((FlexGridSelector{model, fgsFree, false}.AfterPress({}, 0, 3, false, drag)));
}

TEST(FlexGridView, TheLastPageIsFullAndABarMayForceTheOther) {
    FlexGridModel model;
    model.SetRows(101);
    FlexGridView view(model);
    view.Refit({128, 16 * 11 + 5});
    view.ScrollTo(1000, 0);
    EXPECT_EQ(view.TopRow(), 91);
    EXPECT_EQ(view.RangeRect({100, 1, 100, 1}), (Rect{64, 16 * 10, 128, 16 * 11}));
    EXPECT_EQ(view.RowSpan().Pos(90), 0) << "behind the fixed row";
    EXPECT_EQ(view.RowSpan().Nearest(17), 91);
    EXPECT_TRUE(view.ScrollTo(view.RowSpan().FirstToShow(50), view.LeftCol()));
    EXPECT_EQ(view.TopRow(), 50);
    view.ScrollTo(view.RowSpan().FirstToShow(60), view.LeftCol());
    EXPECT_EQ(view.TopRow(), 51) << "row 60 as a whole, at the bottom";
    EXPECT_EQ(view.RowSpan().EndAt(14), 0);
    EXPECT_EQ(view.RowSpan().After(SB_PAGEDOWN, 0), 61) << "it showed in part";
    EXPECT_EQ(view.RowSpan().After(SB_PAGEUP, 0), 41);
    EXPECT_EQ(view.RowSpan().After(SB_THUMBTRACK, 70'000), 91);
    const BarPlan plan = view.PlanBars({130, 160}, {17, 17}, fgbBoth);
    EXPECT_TRUE(plan.bVert && plan.bHorz);
    EXPECT_FALSE(view.PlanBars({145, 160}, {17, 17}, fgbBoth).bHorz);
}

}  // namespace qv
