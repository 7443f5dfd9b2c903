// Typing in the grid, character by character.
#include "page_text.h"
#include "support/grid_window.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <gtest/gtest.h>

namespace {

// As an input method or another keyboard gives them.
bool TypeWide(const std::wstring& strText) {
    std::vector<INPUT> inputs;
    for (const wchar_t c : strText) {
        for (const DWORD dwUp : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
            INPUT input{};
            input.type = INPUT_KEYBOARD;
            input.ki.wScan = c;
            input.ki.dwFlags = KEYEVENTF_UNICODE | dwUp;
            inputs.push_back(input);
        }
    }
    return ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)) ==
           inputs.size();
}

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

TEST_F(TextEditing, WhatIsTypedIsSaved) {
    for (const PageWord& word : PageWords()) {
        w.grid.SetCellText(1, kEdit, "");
        w.grid.GotoCell(1, kEdit, TRUE);
        ASSERT_NE(w.Edit(), nullptr);
        ASSERT_TRUE(TypeWide(word.strWide));
        PumpUntil([&] { return w.Text(1, kEdit) == word.str; }, 1000);
        EXPECT_EQ(w.Text(1, kEdit), word.str) << "while it is typed";
        TypeKey(VK_DOWN);
        EXPECT_EQ(w.Text(1, kEdit), word.str) << "saved";
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
