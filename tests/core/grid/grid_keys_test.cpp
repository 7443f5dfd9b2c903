#include "grid/core/grid_keys.h"

#include "base/platform_names.h"

#include <gtest/gtest.h>

namespace qv {

TEST(GridKeys, LeadToANeighbourAnEndOrAPageOn) {
    GridModel model;
    for (int i = 0; i < 3; ++i) {
        model.AddColumn(gctStatic, 50);
    }
    for (int i = 0; i < 12; ++i) {
        model.AddRow("", 0);
    }
    constexpr GridCell kNoCell{};
    struct Case {
        unsigned nKey;
        GridCell from, to;
    };
    constexpr Case kCases[] = {
        {VK_LEFT, {3, 1}, {3, 0}},   {VK_LEFT, {3, 0}, {3, 0}},   {VK_RIGHT, {3, 1}, {3, 2}},
        {VK_RIGHT, {3, 2}, {3, 2}},  {VK_UP, {3, 1}, {2, 1}},     {VK_UP, {0, 1}, {0, 1}},
        {VK_DOWN, {3, 1}, {4, 1}},   {VK_DOWN, {11, 1}, {11, 1}}, {VK_HOME, {3, 1}, {0, 1}},
        {VK_END, {3, 1}, {11, 1}},   {VK_NEXT, {3, 1}, {6, 1}},   {VK_NEXT, {10, 1}, {11, 1}},
        {VK_NEXT, {11, 1}, {11, 1}}, {VK_PRIOR, {3, 1}, {3, 1}},  {'A', {3, 1}, {3, 1}},
        {VK_LEFT, kNoCell, {7, 0}},  {VK_RIGHT, kNoCell, {7, 0}}, {VK_UP, kNoCell, {7, 0}},
        {VK_DOWN, kNoCell, {7, 0}},  {VK_NEXT, kNoCell, {7, 0}},  {VK_PRIOR, kNoCell, {7, 0}},
        {VK_HOME, kNoCell, {0, 0}},  {VK_END, kNoCell, {11, 0}},  {'A', kNoCell, {7, 0}}};
    for (const auto& [nKey, from, to] : kCases) {
        EXPECT_EQ(KeyTarget(nKey, from, model, 7, 4), to)
            << "key " << nKey << " from row " << from.nRow << ", column " << from.nCol;
    }
    // No room for a whole row.
    EXPECT_EQ(KeyTarget(VK_NEXT, {3, 1}, model, 0, 0), (GridCell{3, 1}));
    // Without columns there is none to start at.
    GridModel noColumns;
    noColumns.AddRow("", 0);
    EXPECT_EQ(KeyTarget(VK_RIGHT, kNoCell, noColumns, 0, 4), (GridCell{0, -1}));
    EXPECT_EQ(ListLineAfterKey(-1, true, 0), -1) << "nor a line in an empty list";
}

TEST(GridKeys, LeaveAnEditAtTheEndsOfItsTextOnly) {
    struct Case {
        unsigned nKey;
        int nStart, nEnd;
        bool bLeaves;
    };
    constexpr Case kCases[] = {{VK_UP, 1, 2, true},     {VK_DOWN, 1, 2, true},
                               {VK_LEFT, 0, 0, true},   {VK_LEFT, 1, 1, false},
                               {VK_LEFT, 0, 3, false},  {VK_RIGHT, 3, 3, true},
                               {VK_RIGHT, 2, 2, false}, {VK_RIGHT, 0, 3, false},
                               {VK_HOME, 0, 0, false},  {VK_END, 3, 3, false}};
    for (const auto& [nKey, nStart, nEnd, bLeaves] : kCases) {
        EXPECT_EQ(LeavesEdit(nKey, nStart, nEnd, 3), bLeaves) << nKey << " at " << nStart;
    }
    EXPECT_TRUE(LeavesEdit(VK_LEFT, 0, 0, 0) && LeavesEdit(VK_RIGHT, 0, 0, 0));
}

}  // namespace qv
