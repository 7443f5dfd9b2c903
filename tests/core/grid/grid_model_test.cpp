#include "grid/core/grid_model.h"

#include "support/failing_new.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <new>
#include <string>
#include <string_view>

namespace qv {

namespace {

void AddColumns(GridModel& model, int nColumns) {
    for (int i = 0; i < nColumns; ++i) {
        model.AddColumn(gctStatic, 50);
    }
}

// The cells of a row, with "-" for one without text and a bar behind each.
std::string Row(const GridModel& model, int nRow) {
    std::string strRow;
    for (int nCol = 0; nCol < model.NumColumns(); ++nCol) {
        const char* psz = model.Text(nRow, nCol);
        strRow.append(psz != nullptr ? psz : "-") += '|';
    }
    return strRow;
}

std::string Added(GridModel& model, std::string_view row) {
    return Row(model, model.AddRow(row, 0));
}

// Whether the action ended for want of memory, with the first nSucceeding allocations granted.
template <class Action>
bool RunsOut(int nSucceeding, Action action) {
    const FailingNew failing(nSucceeding);
    try {
        action();
    } catch (const std::bad_alloc&) {
        return true;
    }
    return false;
}

}  // namespace

TEST(GridModel, ACellMayBeOfAnotherTypeThanItsColumn) {
    GridModel model;
    model.AddColumn(gctStatic, 50);
    model.AddColumn(gctEdit, 50);
    model.AddRow("a\tb", 0);
    model.AddRow("c\td", 0);
    model.SetType({1, 1}, gctDropList);
    model.SetType({2, 1}, gctButton);
    EXPECT_EQ(model.Type({0, 1}), gctEdit);
    EXPECT_EQ(model.Type({1, 1}), gctDropList);
    EXPECT_TRUE(model.UsesButton(GridCell{1, 1}) && !model.UsesEdit({1, 1}));
    EXPECT_TRUE(!model.UsesButton(GridCell{0, 1}) && model.UsesEdit({0, 1}));
    EXPECT_EQ(model.Type(1), gctEdit) << "of the column";
    model.AddRow("e", 0);
    EXPECT_EQ(model.Type({2, 1}), gctEdit) << "there was no such cell";
    model.DeleteAllRows();
    model.AddRow("f", 0);
    model.AddRow("g", 0);
    EXPECT_EQ(model.Type({1, 1}), gctEdit) << "types go with their rows";
}

TEST(GridModel, ARowAddedWithoutMemoryIsNotThereOrReadsAsEmpty) {
    const std::string strRow = "a\tb\t" + std::string(300, 'x');
    std::string strWhole = strRow + '|';
    std::replace(strWhole.begin(), strWhole.end(), '\t', '|');
    int nSucceeding = 0;
    for (std::string strFilled; strFilled != strWhole; ++nSucceeding) {
        ASSERT_LT(nSucceeding, 20);
        GridModel model;
        AddColumns(model, 3);
        const bool bThrew = RunsOut(nSucceeding, [&] { model.AddRow(strRow, 0); });
        EXPECT_TRUE(model.CheckInvariants());
        EXPECT_EQ(model.NumRows(), bThrew ? 0 : 1);
        if (bThrew) {
            EXPECT_EQ(model.CountBlocks() + model.CountStrings(), 1u) << "nothing is left behind";
            EXPECT_EQ(Added(model, "c\td\te"), "c|d|e|");
            continue;
        }
        strFilled = Row(model, 0);
        EXPECT_TRUE(strFilled == strWhole || strFilled == "-|-|-|");
        // A block that found no memory is not reported, and takes no text later.
        EXPECT_EQ(model.Cell(0, 0) == nullptr, strFilled != strWhole);
        const bool bHasBlock = model.Cell(0, 1) != nullptr;
        model.SetText(0, 1, "again");
        EXPECT_EQ(model.Text(0, 1) != nullptr, bHasBlock);
        EXPECT_EQ(Added(model, "c\td\te"), "c|d|e|");
        EXPECT_TRUE(model.CheckInvariants());
    }
    EXPECT_GT(nSucceeding, 5);
}

TEST(GridModel, AColumnAddedWithoutMemoryCostsWholeRows) {
    size_t nLostRows = 0;
    for (int nSucceeding = 0; nSucceeding < 6; ++nSucceeding) {
        GridModel model;
        AddColumns(model, 2);
        for (int i = 0; i < 3; ++i) {
            model.AddRow("a\tb", 0);
        }
        const bool bThrew = RunsOut(nSucceeding, [&] { AddColumns(model, 1); });
        EXPECT_EQ(model.NumColumns(), bThrew ? 2 : 3);
        EXPECT_TRUE(model.CheckInvariants());
        for (int nRow = 0; nRow < 3; ++nRow) {
            if (model.Cell(nRow, 0) != nullptr) {
                EXPECT_EQ(Row(model, nRow), bThrew ? "a|b|" : "a|b|-|");
                continue;
            }
            ++nLostRows;
            model.SetText(nRow, 0, "x");
            EXPECT_FALSE(model.ModifyStyle(nRow, 0, GCS_DISABLED, 0));
            EXPECT_EQ(Row(model, nRow), "-|-|-|");
        }
        AddColumns(model, 1);
        EXPECT_EQ(Added(model, "c\td"), bThrew ? "c|d|-|" : "c|d|-|-|");
        model.DeleteAllRows();
        EXPECT_TRUE(model.CheckInvariants());
    }
    EXPECT_EQ(nLostRows, 3u + 2u + 1u);
}

TEST(GridModel, ATextSetWithoutMemoryLeavesTheOldOne) {
    GridModel model;
    AddColumns(model, 2);
    model.AddRow("old", 0);
    const std::string strLong(300, 'x');
    for (const int nCol : {0, 1}) {
        EXPECT_TRUE(RunsOut(0, [&] { model.SetText(0, nCol, strLong); }));
        EXPECT_EQ(Row(model, 0), "old|-|");
        EXPECT_TRUE(model.CheckInvariants());
    }
    // The text fits and its place in the table does not, or both do.
    size_t nFailures = 0;
    for (int nRow = 1; nRow < 40; ++nRow) {
        model.AddRow("", 0);
        const bool bThrew = RunsOut(1, [&] { model.SetText(nRow, 0, strLong); });
        EXPECT_EQ(Row(model, nRow), bThrew ? "-|-|" : strLong + "|-|");
        nFailures += bThrew ? 1 : 0;
        model.SetText(nRow, 0, strLong);
        EXPECT_TRUE(model.CheckInvariants());
    }
    EXPECT_GT(nFailures, 0u);
}

}  // namespace qv
