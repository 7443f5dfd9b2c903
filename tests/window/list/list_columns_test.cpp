#include "support/list_window.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace {

TEST(ListCreation, AListOfADialogBecomesAnOwnerDrawnReport) {
    FontParent parent(CSize(300, 200));
    ::CreateWindowEx(0, WC_LISTVIEW, "", WS_CHILD | LVS_ICON, 0, 0, 200, 100, parent.m_hWnd,
                     reinterpret_cast<HMENU>(5), nullptr, nullptr);
    QVListCtrlEx list;
    EXPECT_FALSE(list.Initialize(6, &parent));
    EXPECT_TRUE(list.Initialize(5, &parent));
    EXPECT_EQ(list.GetStyle() & (LVS_TYPEMASK | LVS_OWNERDRAWFIXED),
              static_cast<DWORD>(LVS_REPORT | LVS_OWNERDRAWFIXED));
}

TEST(ListColumnsInWindow, HeadersEndTheSingleColumnAndAddUp) {
    ListWindow<> w;
    EXPECT_TRUE(w.list.GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_EQ(w.list.NumColumns(), 1);
    w.list.AddHeader("one\ttwo\tthree");
    w.list.AddHeader("four");
    CString str("x");
    EXPECT_EQ(w.list.MakeHeaderString(str), 4);
    EXPECT_STREQ(str, "xone\ttwo\tthree\tfour");
    EXPECT_EQ(w.list.GetDataWidth(), 4 * 60);
    w.list.ClearHeaders();
    EXPECT_EQ(w.list.NumColumns(), 0);
    for (int i = 0; i < 25; ++i) {
        w.list.AddHeader("h");
    }
    EXPECT_EQ(w.list.NumColumns(), 21);
}

TEST(ListColumnsInWindow, FittedColumnsFillTheWindow) {
    ListWindow<> w("a\tb");
    w.list.SetupColumnsFromString("a\t*");
    EXPECT_EQ(w.list.GetDataWidth(), w.list.m_nClientWidth - ::GetSystemMetrics(SM_CXVSCROLL));
    w.list.CalcColsFromHeader(0);
    EXPECT_EQ(w.list.GetDataWidth(), w.list.m_nClientWidth) << "no bar is allowed for";
    EXPECT_EQ(w.list.GetColWidth(1, nullptr), w.list.GetStringWidth("b") + 12);
}

TEST(ListColumnsInWindow, TheSingleColumnFollowsTheWidestRow) {
    ListWindow<> w;
    const std::string strWide(100, 'W');
    w.Add(strWide.c_str());
    w.Add("\033anarrow");
    const int nText = w.list.GetStringWidth(strWide.c_str());
    EXPECT_EQ(w.list.GetColWidth(0, nullptr), nText);
    w.list.DeleteItem(1);
    EXPECT_EQ(w.list.GetColWidth(0, nullptr), nText + 12) << "the next fit adds the margin";
    w.list.SetColWidth(0, 5, nullptr);
    w.list.SetWindowPos(nullptr, 0, 0, 300, 200, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(w.list.GetColWidth(0, nullptr), nText + 12);
    w.list.DeleteAllItems();
    EXPECT_EQ(w.list.GetColWidth(0, nullptr), w.list.m_nClientWidth);
}

TEST(ListColumnsInWindow, ADraggedDividerIsKnownAtTheNextPaint) {
    ListWindow<> w("a\tb");
    w.Add("x\ty");
    EXPECT_EQ(w.list.GetDataWidth(), 120);
    HDITEM item{};
    item.mask = HDI_WIDTH;
    item.cxy = 100;
    w.list.GetHeaderCtrl()->SetItem(0, &item);
    w.list.UpdateWindow();
    EXPECT_EQ(w.list.GetDataWidth(), 160);
}

TEST(ListRows, FieldsGoToColumnsAndBack) {
    ListWindow<> w("a\tb\tc");
    w.Add("1\t2\t3");
    EXPECT_TRUE(w.list.SetItemString(0, "x"));
    EXPECT_EQ(w.Row(0), "x\t2\t3");
    EXPECT_FALSE(w.list.SetItemString(1, "x"));
    EXPECT_EQ(w.Row(1), "none");
    w.Add("");
    EXPECT_EQ(w.Row(1), "-\t\t") << "an empty row keeps its placeholder";
    w.Add("\tb\tc\td");
    EXPECT_EQ(w.Row(2), "b\tc") << "an empty start leaves no TAB";
    const std::string strLong(3000, 'l');
    w.Add((strLong + "\t\033bx").c_str());
    EXPECT_EQ(w.Row(3), strLong + "\t\033bx\t");

    ListWindow<> images("image\ta\tb", true);
    images.list.SetImageFirstCol(TRUE);
    images.Add("1\t2\t3", 3);
    EXPECT_EQ(images.Row(0), "1\t2");
    EXPECT_EQ(images.list.GetImage(0), 3);
}

// The fast way against the walk, while others change rows behind its back.
TEST(ListRows, AddFindsWhatAWalkWouldFind) {
    ListWindow<> w("a\tb");
    w.list.SetRedraw(FALSE);
    w.list.AddStyle(0, 0);
    std::mt19937 random(11);
    const auto anyRow = [&] {
        std::string str = random() % 4 == 0 ? "\033b" : "";
        for (unsigned n = random() % 4; n > 0; --n) {
            str += "aB2\t"[random() % 4];
        }
        return str;
    };
    for (int nStep = 0; nStep < 1500; ++nStep) {
        const bool bNumeric = nStep / 500 == 1;
        const int nItems = w.list.GetItemCount();
        const int nAny = static_cast<int>(random()) % std::max(nItems, 1);
        const std::string strNew = anyRow();
        const std::function<void()> kBehindItsBack[] = {
            [&] { w.list.DeleteItem(nAny); },
            [&] { w.list.SetItemText(0, static_cast<int>(random() % 2), strNew.c_str()); },
            [&] { w.Add(strNew.c_str()); }, [&] { w.list.SetItemString(nAny, strNew.c_str()); },
            [&] { w.list.SelectItem(0), w.list.SetItemData(0, 5); }};
        const size_t nDeed = random() % 30;
        if (nDeed < std::size(kBehindItsBack)) {
            kBehindItsBack[nDeed]();
        } else {
            const char* pszNew = w.list.ParseStyleText(strNew.c_str());
            int nWalk = 0;
            for (; nWalk < nItems; ++nWalk) {
                const std::string strRow = w.Row(nWalk);
                const bool bGreater =
                    bNumeric ? atol(w.list.ParseStyleText(strRow.c_str())) > atol(pszNew)
                             : _stricmp(strRow.c_str(), pszNew) > 0;
                if (bGreater) {
                    break;
                }
            }
            ASSERT_EQ(w.list.AddBitmapString(0, strNew.c_str(), bNumeric), nWalk) << nStep;
        }
        if (w.list.GetItemCount() > 60) {
            w.list.DeleteAllItems();
        }
    }
}

TEST(ListSelection, IsOneRowOrNoneAndComesBackByItemData) {
    ListWindow<> w("a");
    const auto fill = [&](std::initializer_list<DWORD_PTR> values) {
        w.list.DeleteAllItems();
        for (const DWORD_PTR dw : values) {
            w.list.SetItemData(w.Add("row"), dw);
        }
    };
    const DWORD_PTR dwWide = static_cast<DWORD_PTR>(0x123456789ABCull);
    fill({1, 2, dwWide});
    for (const int nItem : {1, -1}) {
        EXPECT_EQ(w.list.SelectItem(nItem), -1);
        EXPECT_EQ(w.list.GetSelectedItem(), nItem);
    }
    w.list.ModifyStyle(LVS_SINGLESEL, 0);
    w.list.SelectItem(1);
    w.list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(w.list.GetSelectedItem(), -1);
    w.list.SaveSelections();
    fill({dwWide, 3, 2, 2});
    w.list.RestoreSelections();
    EXPECT_EQ(w.list.GetSelectedCount(), 2u);
    EXPECT_TRUE(w.list.GetItemState(0, LVIS_SELECTED));
    EXPECT_TRUE(w.list.GetItemState(2, LVIS_SELECTED)) << "the first row with that value";
}

TEST(ListHeader, AClickReachesTheSortCallback) {
    ListWindow<> w("a\tb");
    w.Add("x\ty");
    int nClicked = -1;
    w.list.SetSortMethod([](int nCol, void* pData) { *static_cast<int*>(pData) = nCol; },
                         &nClicked);
    ASSERT_TRUE(ClickAt(w.list.GetHeaderCtrl()->m_hWnd, CPoint(90, 8)));
    EXPECT_TRUE(PumpUntil([&] { return nClicked == 1; }));
}

}  // namespace
