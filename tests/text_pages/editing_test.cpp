// Typing in the grid, character by character.
#include "page_text.h"
#include "support/grid_window.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <gtest/gtest.h>

namespace {

class TextEditing : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(BringToFront(w.grid.m_hWnd)); }

    GridWindow<> w{3};
};

TEST_F(TextEditing, ArrowsLeaveTheCellAtTheEndsOfItsCharacters) {
    for (const PageWord& word : PageWords()) {
        w.grid.SetCellText(1, kEdit, word.str.c_str());
        w.grid.GotoCell(1, kEdit, TRUE);
        ASSERT_NE(w.Edit(), nullptr);
        TypeKey(VK_END);
        TypeKey(VK_LEFT);
        ASSERT_EQ(w.Current(), "1,1") << word.str;
        TypeKey(VK_RIGHT);
        ASSERT_EQ(w.Current(), "1,1") << "to the end of " << word.str;
        TypeKey(VK_RIGHT);
        EXPECT_EQ(w.Current(), "1,2") << "behind the end of " << word.str;
        w.grid.GotoCell(1, kEdit, TRUE);
        TypeKey(VK_HOME);
        TypeKey(VK_LEFT);
        EXPECT_EQ(w.Current(), "1,0") << "before the start of " << word.str;
        EXPECT_EQ(w.Text(1, kEdit), word.str);
    }
}

TEST_F(TextEditing, ChoicesAreFoundAndTaken) {
    for (const PageWord& word : PageWords()) {
        w.choices.RemoveAll();
        w.choices.Add("first");
        w.choices.Add(word.str.c_str());
        w.grid.SetCellText(0, kList, word.str.c_str());
        w.grid.SetFocus();
        w.grid.GotoCell(0, kList, FALSE);
        w.grid.PopupList(w.choices);
        EXPECT_EQ(w.ListLine(), word.str) << "the present text is selected";
        TypeKey(VK_UP);
        TypeKey(VK_DOWN);
        TypeKey(VK_DOWN, false, false, true);
        EXPECT_EQ(w.Text(0, kList), word.str);
    }
}

}  // namespace
