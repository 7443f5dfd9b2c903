// What the controls show of a text, beside the platform's wide calls.
#include "drawn_text.h"
#include "ink.h"
#include "page_text.h"
#include "support/box_window.h"
#include "support/grid_window.h"
#include "support/list_window.h"
#include "support/text_window.h"
#include "support/tree_window.h"

#include <gtest/gtest.h>

namespace {

constexpr COLORREF kText = RGB(10, 20, 200);
constexpr COLORREF kBack = RGB(250, 240, 200);

Picture Fresh(CWnd& wnd) {
    wnd.Invalidate(FALSE);
    return Picture::OfClient(wnd.m_hWnd);
}

// The ink that a control leaves for each word where it had a blank before, and the platform's. show
// gives the control a text; the font is the control's.
template <class Show>
void ExpectInk(CWnd& wnd, HFONT hFont, COLORREF crText, COLORREF crBk, Show show) {
    for (const PageWord& word : PageWords()) {
        show(" ");
        const Picture blank = Fresh(wnd);
        show(word.str);
        const Ink ink(Fresh(wnd), blank, crBk);
        const Ink wanted = WideInk(word.strWide, hFont, crText, crBk);
        ASSERT_FALSE(wanted.IsEmpty());
        EXPECT_EQ(ink, wanted) << word.str;
    }
}

HFONT FontOf(CWnd& wnd) {
    return reinterpret_cast<HFONT>(wnd.SendMessage(WM_GETFONT));
}

TEST(TextControls, TreeShowsItemsAndTheirFields) {
    TreeWindow<> w(WS_CHILD | WS_VISIBLE);
    const int nStyle = w.tree.AddStyle(kText, kBack);
    const int stops[] = {100};
    w.tree.UseTabs(stops, 1);
    const HTREEITEM h = w.Add(w.tree.MakeStyleText("first", nStyle));
    const HFONT hFont = FontOf(w.parent);
    ExpectInk(w.tree, hFont, kText, kBack, [&](const std::string& str) {
        w.tree.SetItemText(h, w.tree.MakeStyleText(str.c_str(), nStyle));
    });
    ExpectInk(w.tree, hFont, kText, kBack, [&](const std::string& str) {
        CString strRow = w.tree.MakeStyleText("x", nStyle);
        w.tree.AppendStyleText(strRow, str.c_str(), nStyle);
        w.tree.SetItemText(h, strRow);
    });
    for (const PageWord& word : PageWords()) {
        w.tree.SetItemText(h, word.str.c_str());
        EXPECT_EQ(std::string(w.tree.GetItemText(h)), word.str);
        EXPECT_EQ(w.tree.FindItem(nullptr, word.str.c_str(), -1), h);
    }
}

TEST(TextControls, ListShowsCellsAndHeadings) {
    ListWindow<> w("one\ttwo");
    w.list.SetColWidth(0, 150, nullptr);
    w.list.SetColWidth(1, 150, nullptr);
    w.list.SetAllowSel(FALSE);
    const int nStyle = w.list.AddStyle(kText, kBack);
    w.Add("x");
    const HFONT hFont = FontOf(w.list);
    for (const char* pszBefore : {"", "x\t"}) {
        ExpectInk(w.list, hFont, kText, kBack, [&](const std::string& str) {
            CString strRow = pszBefore;
            w.list.AppendStyleText(strRow, str.c_str(), nStyle);
            w.list.SetItemString(0, strRow);
        });
    }
    const auto setHeading = [&](const std::string& str) {
        LVCOLUMN column{};
        column.mask = LVCF_TEXT;
        column.pszText = const_cast<char*>(str.c_str());
        w.list.SetColumn(1, &column);
    };
    CHeaderCtrl& header = *w.list.GetHeaderCtrl();
    setHeading(" ");
    const Picture blank = Fresh(header);
    const COLORREF crHeading = blank.At(250, blank.Height() / 2);
    ExpectInk(header, FontOf(header), ::GetSysColor(COLOR_BTNTEXT), crHeading, setHeading);
    for (const PageWord& word : PageWords()) {
        QVListCtrlEx list;
        list.Create(5, CRect(0, 0, 100, 100), &w.parent);
        list.AddHeader((word.str + "\t" + word.str).c_str());
        CString strHeadings;
        EXPECT_EQ(list.MakeHeaderString(strHeadings), 2);
        EXPECT_EQ(std::string(strHeadings), word.str + "\t" + word.str);
    }
}

template <class Box>
struct TextBoxes : testing::Test {};
using Boxes = testing::Types<OpenListBox, OpenBitmapCombo, OpenColorCombo>;
TYPED_TEST_SUITE(TextBoxes, Boxes);

// In style and colours that are the box's own, where it has some; a list's in its second column.
TYPED_TEST(TextBoxes, ShowTheirRows) {
    constexpr bool bStyled = kHasImages<TypeParam>;
    BoxWindow<TypeParam> w;
    TypeParam& box = *w.box;
    const auto show = [&](const char* pszRow) {
        box.ResetContent();
        InsertRow(box, 1, 0, pszRow);
        if constexpr (!kIsList<TypeParam>) {
            box.SetCurSel(0);
        }
    };
    ExpectInk(box, FontOf(box), ::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOW),
              [&](const std::string& str) { show(str.c_str()); });
    if constexpr (bStyled) {
        const int nStyle = box.AddStyle(kText, kBack);
        if constexpr (kIsList<TypeParam>) {
            const int tabs[] = {100};
            box.UseTabs(tabs, 1);
        }
        ExpectInk(box, FontOf(box), kText, kBack, [&](const std::string& str) {
            const CString strStyled = box.MakeStyleText(str.c_str(), nStyle);
            show(((kIsList<TypeParam> ? "x\t" : "") + std::string(strStyled)).c_str());
        });
        std::vector<PageWord> words = PageWords();
        words.push_back(LongWord(2000));
        for (const PageWord& word : words) {
            const std::string strRow = word.str + "\t" + word.str;
            EXPECT_EQ(box.SetItemString(0, strRow.c_str()), 1);
            EXPECT_EQ(w.Stored(0), strRow + "\t1");
            EXPECT_EQ(box.FindBitmapString(1, strRow.c_str()), 0);
            EXPECT_EQ(box.CompareToItem(1, strRow.c_str(), 0), 0);
        }
    }
}

TEST(TextControls, ListKeepsLongTextsWhole) {
    ListWindow<> w("one\ttwo");
    for (const size_t nChars : {80u, 90u, 130u, 250u, 2000u}) {
        const PageWord word = LongWord(nChars);
        const int nRow = w.Add((word.str + "\tx").c_str());
        EXPECT_EQ(w.Row(nRow), word.str + "\tx") << nChars;
        w.list.SetItemString(nRow, ("y\t" + word.str).c_str());
        EXPECT_EQ(w.Row(nRow), "y\t" + word.str) << nChars;
    }
}

TEST(TextControls, ListBoxHeadingOf99BytesIsCutBehindACharacter) {
    for (const int nBefore : {0, 1, 2, 3}) {
        const PageWord word = LongWord(120);
        const std::string strTitle = std::string(static_cast<size_t>(nBefore), '.') + word.str;
        BoxWindow<OpenListBox> w(0, false, true);
        w.box->AddHeader(strTitle.c_str());
        CString str;
        w.box->MakeHeaderString(str);
        EXPECT_EQ(strTitle.find(str), 0u);
        EXPECT_TRUE(str.GetLength() > 95 && str.GetLength() < 100);
        const std::string strGot = std::string(str).substr(static_cast<size_t>(nBefore));
        EXPECT_EQ(word.strWide.find(FromPage(strGot)), 0u);
    }
}

TEST(TextControls, GridShowsCells) {
    GridWindow<> w(1);
    w.grid.SetColWidth(kEdit, 150);
    const HFONT hFont = FontOf(w.parent);
    ExpectInk(w.grid, hFont, ::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOW),
              [&](const std::string& str) { w.grid.SetCellText(0, kEdit, str.c_str()); });
    for (const PageWord& word : PageWords()) {
        w.grid.SetCellText(0, kEdit, word.str.c_str());
        EXPECT_EQ(w.Text(0, kEdit), word.str);
    }
}

TEST(TextControls, TextWindowShowsLines) {
    TextWindow<> w;
    const int nStyle = w.text.AddStyle(kText, kBack);
    const HFONT hFont = static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
    ExpectInk(w.text, hFont, kText, kBack, [&](const std::string& str) {
        w.text.ClearTextData();
        w.text.AddText(str.c_str(), nStyle);
        w.text.CalcLayout();
    });
}

TEST(TextControls, TextBoxShowsItsText) {
    FontParent parent(CSize(300, 200));
    QVTextBox box;
    box.SetTextColor(kText);
    box.SetTextBkColor(kBack);
    ASSERT_TRUE(box.Create(12, CRect(0, 0, 300, 40), &parent));
    ExpectInk(box, FontOf(parent), kText, kBack,
              [&](const std::string& str) { box.SetWindowText(str.c_str()); });
}

TEST(TextControls, CaptionsShowTheirText) {
    FontParent parent(CSize(300, 200));
    QVTreeHeaderWnd wnd;
    CRect rc(0, 0, 300, 200);
    ASSERT_TRUE(wnd.Create(WS_CHILD | WS_VISIBLE, rc, &parent, 12));
    ExpectInk(wnd, FontOf(parent), ::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_BTNFACE),
              [&](const std::string& str) { wnd.SetHeaderText(str.c_str()); });
}

TEST(TextControls, MenuButtonsShowTheirCaption) {
    FontParent parent(CSize(300, 100));
    QVMenuButton button;
    button.Create("", WS_CHILD | BS_OWNERDRAW, CRect(0, 0, 300, 40), &parent, 5);
    for (const bool bEnabled : {true, false}) {
        button.EnableWindow(bEnabled);
        for (const PageWord& word : PageWords()) {
            button.SetWindowText(word.str.c_str());
            DRAWITEMSTRUCT item{};
            item.rcItem = CRect(0, 0, 300, 40);
            item.hDC = ::CreateEnhMetaFile(nullptr, nullptr, nullptr, nullptr);
            button.DrawItem(&item);
            const auto texts = TakeTexts(::CloseEnhMetaFile(item.hDC));
            ASSERT_EQ(texts.size(), bEnabled ? 1u : 2u) << word.str;
            EXPECT_EQ(texts[0].str, word.strWide);
        }
    }
}

TEST(TextControls, WizardStepsShowTheirTitles) {
    FontParent parent(CSize(300, 200));
    QVWizardStepWnd wnd;
    ASSERT_TRUE(wnd.Create(12, CRect(0, 0, 300, 100), &parent));
    std::unique_ptr<QVWizardStepData> pData;
    ExpectInk(wnd, FontOf(parent), RGB(255, 255, 255), RGB(0, 0, 0), [&](const std::string& str) {
        pData.reset();
        pData = std::make_unique<QVWizardStepData>();
        pData->AddStep(1u, str.c_str());
    });
}

TEST(TextControls, SnippetsGoBetweenCharacters) {
    FontParent parent(CSize(300, 100));
    QVMacroButton button;
    button.Create("", WS_CHILD | BS_OWNERDRAW, CRect(0, 0, 20, 20), &parent, 5);
    button.SetEditCtrlID(6);
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(0, 30, 300, 60), &parent, 6);
    edit.SetFocus();
    unsigned nEntry = 0;
    for (const PageWord& word : PageWords()) {
        button.AddMacro(word.str.c_str(), word.str.c_str());
        edit.SetWindowText((word.str + word.str).c_str());
        edit.SendMessage(EM_SETSEL, word.strWide.size(), static_cast<LPARAM>(word.strWide.size()));
        button.OnMenuSelected(nEntry++);
        CString strText;
        edit.GetWindowText(strText);
        EXPECT_EQ(std::string(strText), word.str + word.str + word.str);
    }
}

// --- Word wrap

class WrapText : public OpenText {
public:
    using QVTextWnd::SplitTextLines;
};

TEST(TextControls, WrapBreaksBetweenCharacters) {
    TextWindow<WrapText> w;
    CClientDC dc(&w.text);
    const PageWord word = LongWord(300);
    for (const int nWidth : {1, 9, 40, 333}) {
        CArray<int, int> aStarts;
        w.text.SplitTextLines(&dc, nWidth, word.str.c_str(), aStarts);
        ASSERT_GT(aStarts.GetSize(), 5);
        for (INT_PTR i = 0; i < aStarts.GetSize(); ++i) {
            const std::string strBefore = word.str.substr(0, static_cast<size_t>(aStarts[i]));
            ASSERT_EQ(word.strWide.find(FromPage(strBefore)), 0u)
                << "piece " << i << " at width " << nWidth;
        }
    }
}

}  // namespace
