#include "grid/core/edit_history.h"

#include <gtest/gtest.h>

namespace qv {

namespace {

std::string Texts(const EditHistory::Step* pStep) {
    std::string str;
    for (std::size_t i = 0; pStep != nullptr && i < pStep->size(); ++i) {
        str += (*pStep)[i].strBefore + ">" + (*pStep)[i].strAfter + " ";
    }
    return str;
}

}  // namespace

TEST(EditHistory, StepsGoBackAndForthUntilSomethingNewIsDone) {
    EditHistory history;
    history.Add({0, 0}, "", "a");
    history.BeginStep();
    history.Add({0, 1}, "b", "c");
    EXPECT_EQ(history.Undo(), nullptr) << "in the middle of a step";
    history.Add({0, 2}, "d", "e");
    history.EndStep();
    history.BeginStep();  // one that changes nothing
    history.EndStep();
    EXPECT_EQ(Texts(history.Undo()), "b>c d>e ");
    EXPECT_EQ(Texts(history.Undo()), ">a ");
    EXPECT_EQ(history.Undo(), nullptr);
    EXPECT_EQ(Texts(history.Redo()), ">a ");
    history.Add({1, 0}, "x", "y");
    EXPECT_EQ(history.Redo(), nullptr);
    EXPECT_EQ(Texts(history.Undo()), "x>y ");
    EXPECT_TRUE(history.CheckInvariants());
}

TEST(EditHistory, TheOldestStepsGo) {
    EditHistory history;
    for (std::size_t i = 0; i < EditHistory::kMostSteps + 5; ++i) {
        history.Add({0, 0}, "", std::to_string(i));
    }
    std::size_t nSteps = 0;
    for (; history.Undo() != nullptr; ++nSteps) {
    }
    EXPECT_EQ(nSteps, EditHistory::kMostSteps);
    history.BeginStep();  // too large to be kept, and kept by no half
    for (int i = 0; i < 3; ++i) {
        history.Add({0, 0}, std::string(EditHistory::kMostBytes / 2, 'x'), "");
    }
    history.EndStep();
    EXPECT_TRUE(history.Undo() == nullptr && history.CheckInvariants());
}

}  // namespace qv
