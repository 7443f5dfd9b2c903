#include "support/list_window.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace {

TEST(ListCreation, OwnWindowAndDialogItemBecomeOwnerDrawnReports) {
    ListWindow<> w;
    EXPECT_EQ(w.list.GetStyle() & LVS_TYPEMASK, static_cast<DWORD>(LVS_REPORT));
    EXPECT_TRUE(w.list.GetStyle() & LVS_OWNERDRAWFIXED);
    EXPECT_FALSE(w.list.GetStyle() & WS_BORDER) << "the border is a sunken edge";
    EXPECT_TRUE(w.list.GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_GT(w.list.m_nTextHeight, 5);

    FontParent parent(CSize(300, 200));
    ::CreateWindowEx(0, WC_LISTVIEW, "", WS_CHILD | LVS_ICON, 0, 0, 200, 100, parent.m_hWnd,
                     reinterpret_cast<HMENU>(5), nullptr, nullptr);
    QVListCtrlEx list;
    EXPECT_FALSE(list.Initialize(6, &parent));
    EXPECT_TRUE(list.Initialize(5, &parent));
    EXPECT_EQ(list.GetStyle() & (LVS_TYPEMASK | LVS_OWNERDRAWFIXED),
              static_cast<DWORD>(LVS_REPORT | LVS_OWNERDRAWFIXED));
    EXPECT_EQ(list.NumColumns(), 1);

    class Refusing : public QVListCtrlEx {
        BOOL Initialize(UINT, UINT, COLORREF, int, CWnd*) override { return FALSE; }
    } refusing;
    EXPECT_FALSE(refusing.Create(9, CRect(0, 0, 10, 10), &parent));
    EXPECT_EQ(refusing.m_hWnd, nullptr);
}

TEST(ListColumnsInWindow, HeadersEndTheSingleColumnAndAddUp) {
    ListWindow<> w;
    EXPECT_EQ(w.list.NumColumns(), 1);
    EXPECT_EQ(w.list.GetColWidth(0, nullptr), w.list.m_nClientWidth);
    w.list.AddHeader("one\ttwo\tthree");
    EXPECT_EQ(w.list.NumColumns(), 3);
    w.list.AddHeader("four");
    EXPECT_EQ(w.list.NumColumns(), 4);
    CString str("x");
    EXPECT_EQ(w.list.MakeHeaderString(str), 4);
    EXPECT_STREQ(str, "xone\ttwo\tthree\tfour");
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(w.list.GetColWidth(i, nullptr), 60);
        EXPECT_EQ(w.list.GetHdrFormat(i), LVCFMT_LEFT);
    }
    EXPECT_EQ(w.list.GetDataWidth(), 240);
    w.list.SetHdrFormat(1, LVCFMT_CENTER);
    EXPECT_EQ(w.list.GetHdrFormat(1), LVCFMT_CENTER);
    EXPECT_EQ(w.list.GetHdrFormat(9), 0);
    EXPECT_EQ(w.list.GetColFormat(1), 0) << "cells align by themselves";
    w.list.ClearHeaders();
    EXPECT_EQ(w.list.NumColumns(), 0);
    w.list.AddHeader(CString('x', 400));
    CString strCut;
    w.list.MakeHeaderString(strCut);
    EXPECT_EQ(strCut.GetLength(), 254);
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
    const auto resize = [&](int cx, int cy) {
        w.list.SetColWidth(0, 5, nullptr);
        w.list.SetWindowPos(nullptr, 0, 0, cx, cy, SWP_NOMOVE | SWP_NOZORDER);
        return w.list.GetColWidth(0, nullptr);
    };
    EXPECT_EQ(resize(300, 200), nText + 12);
    EXPECT_EQ(resize(300, 190), 5) << "height alone fits nothing";
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
    EXPECT_EQ(w.list.GetImage(9), -1);
    EXPECT_TRUE(w.list.SetImage(0, 2));
    EXPECT_EQ(w.list.GetImage(0), 2);

    ListWindow<> images("image\ta\tb", true);
    images.list.SetImageFirstCol(TRUE);
    images.Add("1\t2\t3", 3);
    EXPECT_EQ(images.Row(0), "1\t2");
    EXPECT_STREQ(images.list.GetItemText(0, 0), "-");
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
    const bool aNumeric[] = {false, true};
    for (int nStep = 0; nStep < 1500; ++nStep) {
        const bool bNumeric = aNumeric[nStep / 500 % 2];
        const int nItems = w.list.GetItemCount();
        const int nAny = static_cast<int>(random()) % std::max(nItems, 1);
        const std::string strNew = anyRow();
        const std::function<void()> kBehindItsBack[] = {
            [&] { w.list.DeleteItem(nAny); },
            [&] { w.list.SetItemText(0, static_cast<int>(random() % 2), strNew.c_str()); },
            [&] { w.Add(strNew.c_str()); }, [&] { w.list.SetItemString(nAny, strNew.c_str()); },
            [&] {
                w.list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
                w.list.SetItemData(0, 5);
            }};
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

TEST(ListSelection, IsOneRowOrNone) {
    ListWindow<> w("a");
    for (const char* psz : {"x", "y", "z"}) {
        w.Add(psz);
    }
    for (const int nItem : {1, -1}) {
        EXPECT_EQ(w.list.SelectItem(nItem), -1);
        EXPECT_EQ(w.list.GetSelectedItem(), nItem);
    }
    w.list.ModifyStyle(LVS_SINGLESEL, 0);
    w.list.SelectItem(0);
    w.list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(w.list.GetSelectedItem(), -1);
    w.list.SelectItem(1);
    EXPECT_EQ(w.list.GetSelectedCount(), 3u) << "several selected rows are not deselected";
}

TEST(ListSelection, IsRestoredByItemData) {
    ListWindow<> w("a");
    w.list.ModifyStyle(LVS_SINGLESEL, 0);
    const auto fill = [&](std::initializer_list<DWORD_PTR> values) {
        w.list.DeleteAllItems();
        for (const DWORD_PTR dw : values) {
            w.list.SetItemData(w.Add("row"), dw);
        }
    };
    const DWORD_PTR dwWide = static_cast<DWORD_PTR>(0x123456789ABCull);
    fill({1, 2, dwWide});
    w.list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    w.list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
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
