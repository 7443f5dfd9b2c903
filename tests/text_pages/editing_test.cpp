// Typing in the grid, character by character.
#include <gtest/gtest.h>

#include "page_text.h"
#include "support/grid_window.h"
#include "support/pump.h"
#include "support/real_input.h"

namespace {

class TextEditing : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(BringToFront(w.grid.m_hWnd)); }

    GridWindow<> w{3};
};

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
