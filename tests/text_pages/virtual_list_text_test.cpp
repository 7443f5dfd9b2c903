// A list over the application's data in each code page: order, typed words, what it tells and
// writes.
#include "common/process_text.h"
#include "drawn_text.h"
#include "page_text.h"
#include "support/held_keys.h"
#include "support/list_window.h"
#include "support/text_window.h"

#include <gtest/gtest.h>

namespace {

// Each word, and the word before it in brackets.
class Words : public QVRowSource {
public:
    void GetRow(int nRow, QVLISTROW& row) override { row.strText = Text(nRow).c_str(); }
    std::string Text(int nRow) const {
        const size_t n = static_cast<size_t>(nRow);
        return all[n].str + "\t[" + all[(n + all.size() - 1) % all.size()].str + "]";
    }
    int Count() const { return static_cast<int>(all.size()); }

    const std::vector<PageWord> all = PageWords();
};

struct Window : ListWindow<QVVirtualListCtrl> {
    Window() : ListWindow("one\ttwo") {
        list.SetRowSource(&words);
        list.SetRowCount(words.Count());
    }
    ~Window() { list.DestroyWindow(); }
    Words words;
};

TEST(TextVirtualList, SortsByTheRuleOfTheCodePage) {
    Window w;
    for (const int nCol : {0, 1}) {
        for (const bool bAscending : {true, false}) {
            ASSERT_TRUE(w.list.SortByColumn(nCol, bAscending));
            for (int i = 0; i + 1 < w.words.Count(); ++i) {
                const CString strHere = w.list.GetItemText(i, nCol);
                const CString strNext = w.list.GetItemText(i + 1, nCol);
                const int nOrder = qv::ProcessText().CompareNoCase(strHere, strNext);
                EXPECT_TRUE(bAscending ? nOrder < 0 : nOrder > 0) << strHere << strNext;
                EXPECT_EQ(w.Row(i), w.words.Text(w.list.DataRow(i)));
            }
        }
    }
}

TEST(TextVirtualList, FindsWordsThatAreTypedAndTellsThemWide) {
    for (int nRow = 0; nRow < Words().Count(); ++nRow) {
        Window w;
        const PageWord& word = w.words.all[static_cast<size_t>(nRow)];
        w.list.SortByColumn(0, FALSE);
        w.list.EnableExpectedKeys();
        TypeWide(w.list.m_hWnd, word.strWide);
        if (OnKeyboard(word.strWide)) {
            EXPECT_EQ(w.list.DataRow(w.list.GetSelectedItem()), nRow) << word.str;
        }
        LVFINDINFOW wide{LVFI_STRING, word.strWide.c_str(), 0, {}, 0};
        const auto nItem = static_cast<int>(w.list.SendMessage(
            LVM_FINDITEMW, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&wide)));
        EXPECT_EQ(w.list.DataRow(nItem), nRow) << word.str;
        wchar_t szText[100] = L"";
        LVITEMW item{};
        item.pszText = szText;
        item.cchTextMax = 100;
        w.list.SendMessage(LVM_GETITEMTEXTW, static_cast<WPARAM>(nItem),
                           reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(std::wstring(item.pszText), word.strWide);
    }
}

TEST(TextVirtualList, WritesEveryWordToAFile) {
    Window w;
    w.list.SortByColumn(1, TRUE);
    char szFolder[MAX_PATH] = "";
    ::GetTempPath(MAX_PATH, szFolder);
    const std::string strFile = szFolder + w.words.all.back().str + ".csv";
    ASSERT_TRUE(w.list.ExportData(strFile.c_str(), ';'));
    TextWindow<> file;
    ASSERT_EQ(file.text.LoadFile(strFile.c_str(), 0), 1);
    ASSERT_EQ(file.text.NumLines(), w.words.Count());
    for (int i = 0; i < w.words.Count(); ++i) {
        std::string strRow = w.words.Text(w.list.DataRow(i));
        strRow[strRow.find('\t')] = ';';
        EXPECT_EQ(file.text.Text(i), strRow);
    }
    EXPECT_TRUE(::DeleteFileW(FromPage(strFile).c_str()));
}

}  // namespace
