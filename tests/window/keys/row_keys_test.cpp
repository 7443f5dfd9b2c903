// The expected keys of the controls that show rows: tree, list, boxes.
#include "support/box_window.h"
#include "support/clipboard_text.h"
#include "support/held_keys.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <gtest/gtest.h>
#include <oleacc.h>

namespace {

// --- Tree

class TreeKeys : public testing::Test {
public:
    TreeKeys() {
        hNew = w.Add("New York");
        hYork = w.Add("york", hNew);
        w.Add("leaf", hYork);
        w.Add("\033bNewton\tfield", hNew);
        w.Add("nil");
        for (const char* psz : {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "Ox"}) {
            w.Add(psz);
        }
        w.tree.AddStyle(RGB(255, 0, 0), RGB(0, 255, 0));
        BringToFront(w.parent.m_hWnd);
        w.tree.SetFocus();
        w.tree.SelectItem(hNew);
    }
    TreeWindow<> w{kTreeStyle, CSize(300, 100)};
    HTREEITEM hNew;
    HTREEITEM hYork;
};

TEST_F(TreeKeys, LeadToRowsAndBranchesOnlyIfTheyAreEnabled) {
    const struct {
        WORD nKey;  // 0: letters
        const char* pszTyped;
        const char* pszTold;
    } cases[] = {
        {VK_END, "", "ing New York>Ox | ed New York>Ox"},
        {VK_HOME, "", "ing Ox>New York | ed Ox>New York"},
        {VK_HOME, "", ""},
        {VK_ADD, "", "ex New York | exd New York"},
        {VK_ADD, "", ""},
        {VK_SUBTRACT, "", "ex New York | exd New York"},
        {VK_MULTIPLY, "", "ex New York | exd New York | ex york | exd york"},
        {0, "newto", "ing New York>\033bNewton\tfield | ed New York>\033bNewton\tfield"},
    };
    for (const BOOL bEnabled : {FALSE, TRUE}) {
        EXPECT_FALSE(w.tree.AreExpectedKeysEnabled());
        w.tree.EnableExpectedKeys(bEnabled);
        for (const auto& c : cases) {
            SCOPED_TRACE(testing::Message() << bEnabled << ' ' << c.nKey << c.pszTyped);
            c.nKey != 0 ? void(TypeKey(c.nKey)) : SendText(w.tree.m_hWnd, c.pszTyped);
            EXPECT_EQ(w.Told(), bEnabled ? c.pszTold : "");
        }
    }
    w.tree.SelectItem(w.tree.GetRootItem());
    const int nPage = static_cast<int>(100 / w.RowHeight());
    TypeKey(VK_NEXT);
    HTREEITEM h = w.tree.GetRootItem();
    for (int i = 1; i < nPage; ++i) {
        h = w.tree.NextDisplayableItem(h);
    }
    EXPECT_EQ(w.tree.GetSelectedItem(), h) << "a page on";
    EXPECT_TRUE(w.tree.ItemVisible(h));
    TypeKey(VK_PRIOR);
    EXPECT_EQ(w.tree.GetSelectedItem(), w.tree.GetRootItem());
}

TEST_F(TreeKeys, BranchesThatAreRefusedStayClosed) {
    w.tree.EnableExpectedKeys();
    w.parent.m_hook = [&](NMHDR* pHdr, LRESULT* pResult) {
        const HTREEITEM h = reinterpret_cast<NM_TREEVIEW*>(pHdr)->itemNew.hItem;
        *pResult = pHdr->code == TVN_ITEMEXPANDING && h == hYork;
        return true;
    };
    TypeKey(VK_MULTIPLY);
    EXPECT_TRUE(w.tree.ItemExpanded(hNew) && !w.tree.ItemExpanded(hYork));
    w.parent.m_hook = nullptr;
}

// --- List

TEST(ListKeys, SelectCopyAndSortOnlyIfTheyAreEnabled) {
    ListWindow<QVSortingListCtrl> w;
    w.list.ModifyStyle(LVS_SINGLESEL, 0);
    w.list.AddHeader("name", lcdtString);
    w.list.AddHeader("size", lcdtNumber);
    w.list.AddStyle(RGB(255, 0, 0), RGB(0, 255, 0));
    for (const char* psz : {"\033bbeta \"b\"\t5", "Bent\t\033b7", "alpha\t6"}) {
        w.Add(psz);
    }
    BringToFront(w.parent.m_hWnd);
    w.list.SetFocus();
    const auto state = [&] {
        std::string str = w.Rows() + " [";
        for (int i = 0; i < w.list.GetItemCount(); ++i) {
            str += w.list.GetItemState(i, LVIS_SELECTED) != 0 ? std::to_string(i) : "";
        }
        return str + "] " + Clipboard();
    };
    const char kRows[] = "\033bbeta \"b\"\t5|Bent\t\033b7|alpha\t6 [";
    const struct {
        const char* pszText;
        WORD nKey;
        std::string strState;
    } steps[] = {
        {"be", 0, std::string(kRows) + "0] -"},  // style codes aside
        {"ben", 0, std::string(kRows) + "1] -"},
        {"", 'A', std::string(kRows) + "012] -"},
        {"", 'C', std::string(kRows) + "012] \"beta \"\"b\"\"\"\t5\r\nBent\t7\r\nalpha\t6\r\n"},
        {"", '2', "Bent\t\033b7|\033bbeta \"b\"\t5|alpha\t6 ["},
        {"", '2', "alpha\t6|\033bbeta \"b\"\t5|Bent\t\033b7 ["},
        {"", '3', "alpha\t6|\033bbeta \"b\"\t5|Bent\t\033b7 ["},
    };
    SetClipboard(L"-");
    for (const WORD nKey : {'A', 'C', '2'}) {
        TypeKey(nKey, false, true);
    }
    EXPECT_EQ(state(), std::string(kRows) + "] -");
    w.list.EnableExpectedKeys();
    for (const auto& step : steps) {
        w.list.EnableExpectedKeys();
        step.nKey != 0 ? void(TypeKey(step.nKey, false, true))
                       : SendText(w.list.m_hWnd, step.pszText);
        EXPECT_TRUE(state().starts_with(step.strState)) << state() << "\n" << step.strState;
    }
    EXPECT_EQ(w.parent.Count(LVN_COLUMNCLICK), 0) << "reflected, as a click is";
    EXPECT_GE(w.parent.Count(LVN_KEYDOWN), 8) << "the parent hears of keys";
    w.list.ModifyStyle(0, LVS_SINGLESEL);
    w.list.SetItemState(-1, 0, LVIS_SELECTED);
    TypeKey('A', false, true);
    EXPECT_EQ(w.list.GetSelectedCount(), 0u);
}

TEST(ListKeys, AreAboutWhatShows) {
    ListWindow<> w("key\tname");
    w.list.ModifyStyle(LVS_SINGLESEL, 0);
    for (const char* psz : {"n1\tmoon", "m2\tnight"}) {
        w.Add(psz);
    }
    w.list.EnableExpectedKeys();
    SendText(w.list.m_hWnd, "n");
    EXPECT_EQ(w.list.GetSelectedItem(), 0);
    w.list.SetColWidth(0, 0, nullptr);
    w.list.EnableExpectedKeys();
    SendText(w.list.m_hWnd, "n");
    EXPECT_EQ(w.list.GetSelectedItem(), 1) << "a column without a width is not read";
}

// A list that draws row by row takes ten times as long.
TEST(ListKeys, ChangeManyRowsInOnePiece) {
    ListWindow<> w("a");
    w.list.ModifyStyle(LVS_SINGLESEL, 0);
    for (int i = 0; i < 100; ++i) {
        w.Add("row");
    }
    w.list.EnableExpectedKeys();
    Picture::Fresh(w.list);
    int nTold = 0;
    int nDue = 0;
    w.parent.m_hook = [&](NMHDR* pHdr, LRESULT*) {
        const bool bChanged = pHdr->code == LVN_ITEMCHANGED;
        nTold += bChanged;
        nDue += bChanged && w.list.GetUpdateRect(nullptr);
        return false;
    };
    SendKey(w.list.m_hWnd, 'A', true);
    EXPECT_EQ(w.list.GetSelectedCount(), 100u);
    EXPECT_EQ(nTold, 100);
    EXPECT_EQ(nDue, 0);
    Picture shown = Picture::OfClient(w.list);
    EXPECT_TRUE(shown == Picture::Fresh(w.list));
    SendText(w.list.m_hWnd, "r");
    EXPECT_EQ(w.list.GetSelectedCount(), 1u);
    shown = Picture::OfClient(w.list);
    EXPECT_TRUE(shown == Picture::Fresh(w.list));

    w.list.SetRedraw(FALSE);
    for (const auto& act : {std::function([&] { SendKey(w.list.m_hWnd, 'A', true); }),
                            std::function([&] { SendText(w.list.m_hWnd, "r"); })}) {
        act();
        EXPECT_FALSE(w.list.GetUpdateRect(nullptr)) << "the program's own pause ended";
    }
    w.list.SetRedraw(TRUE);
    w.parent.m_hook = nullptr;
}

// --- Boxes

TEST(BoxKeys, ALettersRowIsSelectedAndTold) {
    for (const DWORD dwStyle : {DWORD{0}, DWORD{LBS_EXTENDEDSEL}, DWORD{LBS_MULTIPLESEL}}) {
        BoxWindow<OpenListBox> w(dwStyle);
        w.box->AddStyle(RGB(255, 0, 0), RGB(0, 255, 0));
        for (const char* psz : {"alpha\tx", "\033bbe\t\033b\"y\"", "Bent"}) {
            w.box->AddBitmapString(1, psz);
        }
        SetClipboard(L"-");
        SendKey(w.box->m_hWnd, 'A', true);
        SendKey(w.box->m_hWnd, 'C', true);
        w.parent.Forget();
        w.box->EnableExpectedKeys();
        SendText(w.box->m_hWnd, "ben");
        const bool bMany = (dwStyle & LBS_MULTIPLESEL) != 0;
        EXPECT_EQ(w.Selection(), bMany ? "(2)" : "2(2)");
        EXPECT_EQ(w.parent.CountCommands(LBN_SELCHANGE), bMany ? 0 : 2);
        SendKey(w.box->m_hWnd, 'A', true);
        EXPECT_EQ(w.Selection(), dwStyle == 0 ? "2(2)" : "0|1|2(2)");
        EXPECT_EQ(Clipboard(), "-") << "they were not enabled";
        SendKey(w.box->m_hWnd, VK_INSERT, true);
        EXPECT_EQ(Clipboard(),
                  dwStyle == 0 ? "Bent\r\n" : "alpha\tx\r\nbe\t\"\"\"y\"\"\"\r\nBent\r\n");
    }
}

TEST(BoxKeys, AListThatSelectsNothingShowsTheRow) {
    constexpr int kFound = 40;
    constexpr int kRows = 50;
    BoxWindow<OpenListBox> w(LBS_NOSEL);
    for (int i = 0; i < kRows; ++i) {
        w.box->AddBitmapString(1, i == kFound ? "beta" : "alpha");
    }
    w.box->EnableExpectedKeys();
    CRect rect;
    for (const bool bByReader : {false, true}) {
        w.box->SetTopIndex(0);
        bByReader ? void(w.box->SelectAccessible(kFound + 1, SELFLAG_TAKEFOCUS))
                  : SendText(w.box->m_hWnd, "b");
        EXPECT_TRUE(w.box->GetAccessibleRect(kFound + 1, rect)) << bByReader;
        EXPECT_EQ(w.box->GetCurSel(), LB_ERR);
    }
    EXPECT_EQ(w.parent.CountCommands(LBN_SELCHANGE), 0);
}

template <class Box>
struct ComboKeys : testing::Test {};
using Combos = testing::Types<OpenBitmapCombo, OpenColorCombo>;
TYPED_TEST_SUITE(ComboKeys, Combos);

TYPED_TEST(ComboKeys, ALetterTellsWhatAnArrowKeyTells) {
    for (const bool bDropped : {false, true}) {
        BoxWindow<TypeParam> w;
        for (const char* psz : {"alpha", "beta", "Bravo"}) {
            InsertRow(*w.box, 1, -1, psz);
        }
        BringToFront(w.parent.m_hWnd);
        w.box->SetFocus();
        w.box->EnableExpectedKeys();
        w.box->SetCurSel(0);
        w.box->ShowDropDown(bDropped);
        const auto told = [&](const char* pszTyped) {
            w.parent.Forget();
            pszTyped != nullptr ? SendText(w.box->m_hWnd, pszTyped) : void(TypeKey(VK_DOWN));
            std::string str;
            for (const auto& command : w.parent.m_commands) {
                str += std::to_string(command.code) + ' ';
            }
            return str;
        };
        const std::string strArrow = told(nullptr);
        EXPECT_EQ(told("br"), strArrow) << bDropped;
        EXPECT_EQ(w.box->GetCurSel(), 2);
    }
}

// --- All

template <class Control>
struct KeysAndParents : testing::Test {};
using RowControls = testing::Types<QVTreeCtrlEx, QVListCtrlEx, QVBitmapListBox, QVColorComboBox>;
TYPED_TEST_SUITE(KeysAndParents, RowControls);

template <class Control>
std::unique_ptr<Control> Make(CWnd& parent) {
    auto pControl = std::make_unique<Mortal<Control>>();
    const CRect rc(0, 0, 200, 100);
    if constexpr (std::is_same_v<Control, QVTreeCtrlEx>) {
        pControl->Create(kTreeStyle, rc, &parent, kTreeId);
        const HTREEITEM hTop = pControl->InsertItem("top", 0, 0, nullptr, TVI_LAST);
        pControl->InsertItem("below", 0, 0, hTop, TVI_LAST);
        pControl->InsertItem("away", 0, 0, nullptr, TVI_LAST);
        pControl->SelectItem(hTop);
    } else if constexpr (std::is_same_v<Control, QVListCtrlEx>) {
        pControl->ModifyDefStyle(LVS_SINGLESEL, 0);
        pControl->Create(kListId, rc, &parent);
        pControl->AddHeader("one\ttwo");
        pControl->InsertBitmapString(0, -1, "b");
        pControl->InsertBitmapString(0, -1, "a");
        pControl->SetItemText(1, 0, LPSTR_TEXTCALLBACK);  // the parent is asked
        pControl->SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    } else if constexpr (std::is_same_v<Control, QVBitmapListBox>) {
        pControl->Create(WS_CHILD | LBS_NOTIFY | LBS_EXTENDEDSEL, rc, &parent, kBoxId);
        pControl->AddBitmapString(0, "a");
    } else {
        pControl->Create(WS_CHILD | CBS_DROPDOWNLIST, rc, &parent, kBoxId);
        pControl->InsertColorString(0, -1, "a");
    }
    return pControl;
}

// In the first, the second ... thing that it is told of a key.
TYPED_TEST(KeysAndParents, TheParentMayTakeTheControlAway) {
    int nGone = 0;
    for (const int nKey : {VK_END, VK_ADD, VK_MULTIPLY, static_cast<int>('A'),
                           static_cast<int>('C'), static_cast<int>('1'), 0}) {
        for (int nSkip = 0; nSkip < 5; ++nSkip) {
            if (nKey > 0 && (nKey < '0' || nKey > 'Z') &&
                !std::is_same_v<TypeParam, QVTreeCtrlEx>) {
                continue;  // the platform's own
            }
            FontParent parent(CSize(200, 100));
            auto pControl = Make<TypeParam>(parent);
            pControl->EnableExpectedKeys();
            ::ValidateRect(pControl->m_hWnd, nullptr);
            int nTold = 0;
            parent.m_onMessage = [&](UINT nMessage, WPARAM) {
                const bool bTold = nMessage == WM_NOTIFY || nMessage == WM_COMMAND;
                if (bTold && nTold++ == nSkip) {
                    nSkip % 2 == 0 ? pControl.reset() : void(pControl->DestroyWindow());
                }
                return bTold || nMessage == WM_DRAWITEM;
            };
            const HWND hWnd = pControl->m_hWnd;
            nKey == 0 ? void(::SendMessage(hWnd, WM_CHAR, 'a', 1))
                      : SendKey(hWnd, nKey, nKey >= '0' && nKey <= 'Z');
            EXPECT_NE(::IsWindow(hWnd) != FALSE, nTold > nSkip) << nKey;
            nGone += nTold > nSkip;
            parent.m_onMessage = nullptr;
        }
    }
    EXPECT_GT(nGone, 0);
}

}  // namespace
