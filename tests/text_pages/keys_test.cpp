// Keys that find, copy and select text, character by character.
#include "page_text.h"
#include "support/box_window.h"
#include "support/clipboard_text.h"
#include "support/grid_window.h"
#include "support/held_keys.h"
#include "support/text_window.h"

#include <gtest/gtest.h>

namespace {

TEST(TextKeys, TypedWordsFindTheirRows) {
    const std::vector<PageWord> words = PageWords();
    int nTyped = 0;
    for (size_t i = 0; i < words.size(); ++i) {
        if (!OnKeyboard(words[i].strWide)) {
            continue;
        }
        ++nTyped;
        TreeWindow<> tree;
        ListWindow<> list("one\ttwo");
        BoxWindow<OpenListBox> box;
        std::vector<HTREEITEM> items;
        for (const PageWord& word : words) {
            items.push_back(tree.Add(word.str.c_str()));
            list.Add(word.str.c_str());
            box.box->AddBitmapString(0, word.str.c_str());
        }
        tree.tree.EnableExpectedKeys();
        list.list.EnableExpectedKeys();
        box.box->EnableExpectedKeys();
        for (const HWND hWnd : {tree.tree.m_hWnd, list.list.m_hWnd, box.box->m_hWnd}) {
            TypeWide(hWnd, words[i].strWide);
        }
        const int n = static_cast<int>(i);
        EXPECT_EQ(tree.tree.GetSelectedItem(), items[i]) << words[i].str;
        EXPECT_EQ(list.list.GetSelectedItem(), n) << words[i].str;
        EXPECT_EQ(box.box->GetCurSel(), n) << words[i].str;
        for (const HWND hWnd : {list.list.m_hWnd, box.box->m_hWnd}) {
            SetClipboard(L"");
            SendKey(hWnd, 'C', true);
            EXPECT_TRUE(WideClipboard().starts_with(words[i].strWide)) << words[i].str;
        }
    }
    EXPECT_GT(nTyped, 2);
}

TEST(TextKeys, SelectionsAndCellsKeepCharactersWhole) {
    for (const PageWord& word : PageWords()) {
        TextWindow<> w;
        w.text.AddText(word.str.c_str(), 0);
        w.text.CalcLayout();
        w.text.EnableExpectedKeys();
        std::wstring strSelected;
        for (size_t i = 0; i < 20 && strSelected.size() < word.strWide.size(); ++i) {
            SendKey(w.text.m_hWnd, VK_RIGHT, false, true);
            ASSERT_TRUE(w.text.CopySelection());
            strSelected = WideClipboard();
            EXPECT_EQ(word.strWide.substr(0, strSelected.size()), strSelected) << word.str;
        }
        EXPECT_EQ(strSelected, word.strWide);
        GridWindow<> grid(2);
        grid.grid.EnableExpectedKeys();
        grid.grid.GotoCell(0, kEdit, FALSE);
        grid.grid.PasteCells();
        grid.grid.GotoCell(1, kStatic, FALSE);
        EXPECT_EQ(grid.Text(0, kEdit), word.str);
        EXPECT_TRUE(grid.grid.UndoEdit());
        EXPECT_EQ(grid.Text(0, kEdit), "abc");
    }
}

}  // namespace
