// Typing in the grid, character by character.
#include "page_text.h"
#include "support/grid_window.h"
#include "support/real_input.h"

#include <gtest/gtest.h>

namespace {

TEST(TextEditing, ArrowsLeaveTheCellAtTheEndsOfItsCharacters) {
    GridWindow<> w(3);
    ASSERT_TRUE(BringToFront(w.grid.m_hWnd));
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

}  // namespace
