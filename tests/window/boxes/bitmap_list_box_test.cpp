#include "support/list_box_window.h"
#include "support/real_input.h"
#include "support/temp_file.h"

#include <afxext.h>

#include <gtest/gtest.h>

namespace {

using BoxWindow = ListBoxWindow<>;

// --- Rows

TEST(BitmapListBoxRows, ARowIsOneStringOfThePlatform) {
    BoxWindow w;
    EXPECT_EQ(w.list->AddBitmapString(3, "a"), 0);
    EXPECT_EQ(w.Stored(0), "a\t3");
    EXPECT_EQ(w.list->InsertBitmapString(7, 0, "a\tb"), 0);
    EXPECT_EQ(w.list->GetImage(0), 7);
    EXPECT_EQ(w.Row(0), "a\tb");
    EXPECT_EQ(w.list->FindBitmapString(3, "A"), 1);
    EXPECT_EQ(w.list->FindBitmapString(4, "a"), LB_ERR) << "image and text";
    w.list->AddString("plain");
    EXPECT_EQ(w.list->GetImage(2), 0);
    EXPECT_EQ(w.Row(2), "plain");
    w.list->AddString("");
    EXPECT_EQ(w.list->GetImage(3), -1);
    EXPECT_EQ(w.Row(3), "none");
    EXPECT_LT(w.list->InsertBitmapString(0, 99, nullptr), 0);
    w.list->SortByImageIndex(1);
    EXPECT_EQ(w.Row(0), "b\t7") << "misread";
    w.list->AddBitmapString(3, "a\tb");
    EXPECT_EQ(w.Stored(4), "3\ta\tb");
    EXPECT_EQ(w.Row(4), "a\tb");
    const std::string strLong(5000, 'x');
    w.list->AddBitmapString(12, strLong.c_str());
    EXPECT_EQ(w.Row(5), strLong);
    EXPECT_EQ(w.list->GetImage(5), 12);
}

TEST(BitmapListBoxRows, AReplacedRowKeepsItsState) {
    for (const DWORD dwStyle :
         {DWORD(0), DWORD(LBS_MULTIPLESEL), DWORD(LBS_EXTENDEDSEL), DWORD(LBS_SORT)}) {
        BoxWindow w(dwStyle, true);
        for (int i = 0; i < 30; ++i) {
            w.list->AddBitmapString(i % 4, ("row " + std::to_string(10 + i)).c_str());
            w.list->SetItemData(i, static_cast<DWORD_PTR>(0x123456789000 + i));
        }
        const bool bSeveral = (dwStyle & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
        bSeveral ? w.list->SetSel(5) : w.list->SetCurSel(5);
        bSeveral ? w.list->SetSel(7) : 0;
        w.list->SetCaretIndex(6);
        w.list->SetTopIndex(3);
        const std::string strSelection = w.Selection();
        for (const LRESULT lRefusal : {LRESULT(LB_ERR), LRESULT(LB_ERRSPACE), LRESULT(-7)}) {
            w.list->lRefusal = lRefusal;
            EXPECT_EQ(w.list->SetItemString(5, "new"), 0);
            EXPECT_EQ(w.list->SetImage(5, 9), 0);
            EXPECT_EQ(w.list->GetCount(), 30) << "a row that cannot be replaced stays";
            EXPECT_EQ(w.Stored(5), "row 15\t1");
        }
        w.list->lRefusal = 0;
        for (const int nRow : {5, 6, 0, 29}) {
            EXPECT_EQ(w.list->SetItemString(nRow, "zz\tnew"), 1);
            EXPECT_EQ(w.list->SetImage(nRow, -2), 1);
            EXPECT_EQ(w.Stored(nRow), "zz\tnew\t-2") << "where it was, sorted or not";
            EXPECT_EQ(w.list->GetItemData(nRow), static_cast<DWORD_PTR>(0x123456789000 + nRow));
            EXPECT_EQ(w.Selection(), strSelection);
            EXPECT_EQ(w.list->GetTopIndex(), 3);
        }
        EXPECT_EQ(w.list->GetCount(), 30);
        EXPECT_EQ(w.list->SetImage(30, 1) + w.list->SetItemString(-1, "x"), 0);
        EXPECT_TRUE(w.list->m_bRedraw);
        w.list->SetRedraw(FALSE);
        w.list->SetImage(1, 1);
        EXPECT_FALSE(w.list->m_bRedraw) << "as the caller has it";
    }
    BoxWindow w;
    w.list->AddString("");
    EXPECT_EQ(w.list->SetItemString(0, "a"), 1);
    EXPECT_EQ(w.Stored(0), "a\t-1");
}

TEST(BitmapListBoxRows, HeightsFitFontAndImage) {
    for (const bool bImages : {false, true}) {
        BoxWindow w(0, bImages);
        LOGFONT font;
        w.list->GetFont()->GetLogFont(&font);
        w.list->AddBitmapString(0, "a");
        const int nHigher = std::max<int>(std::abs(font.lfHeight), bImages ? 12 : 0);
        EXPECT_EQ(w.RowRect(0).Height(), nHigher + 2);
    }
    // Made by code in a parent without a font: the platform's height until there is one.
    RecordingParent parent;
    OpenListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 99, 99), &parent, kBoxId));
    EXPECT_EQ(list.GetStyle() & kBoxStyle & 0x60, 0x60u);
    list.SetHeader(kBoxHeaderId);
    EXPECT_EQ(list.Initialize(kBoxId, kListImages, kListImageMask, 0, &parent), 1);
    list.AddBitmapString(0, "a");
    EXPECT_GT(list.GetItemHeight(0), 0);
    EXPECT_EQ(list.m_nItemHeight, 0);
    CFont font;
    font.CreatePointFont(200, "Tahoma");
    list.SetFont(&font);
    list.AddBitmapString(0, "b");
    LOGFONT log;
    font.GetLogFont(&log);
    EXPECT_EQ(list.GetItemHeight(1), std::abs(log.lfHeight) + 2);
    EXPECT_EQ(list.Initialize(kBoxId, 4711, 0, 16, &parent), 1) << "a bitmap that is none";
    EXPECT_EQ(OpenListBox().Initialize(4711, 0, 0, 0, &parent), 0) << "an item that is none";
}

TEST(BitmapListBoxOrder, TheParentMayAskForIt) {
    BoxWindow w(0, true);
    w.list->AddBitmapString(2, "abc");
    w.list->AddBitmapString(10, "ABB");
    const auto ask = [&](UINT n1, UINT n2) {
        COMPAREITEMSTRUCT compare{ODT_LISTBOX, kBoxId, w.list->m_hWnd, n1, 0, n2, 0, 0};
        return static_cast<int>(
            w.parent.SendMessage(WM_COMPAREITEM, kBoxId, reinterpret_cast<LPARAM>(&compare)));
    };
    EXPECT_EQ(ask(0, 1), 1);
    EXPECT_EQ(ask(1, 0), -1);
    EXPECT_EQ(ask(0, 99), 1) << "a row that is none is empty";
    w.list->SortByImageIndex(1);
    w.list->ResetContent();
    w.list->AddBitmapString(2, "abc");
    EXPECT_EQ(w.list->CompareToItem(10, "a", 0), 1) << "by image, as a number";
    EXPECT_EQ(w.list->CompareToItem(2, nullptr, 0), -1);
    BoxWindow none;
    none.list->AddBitmapString(0, "b");
    EXPECT_EQ(none.list->CompareToItem(0, "a", 0), 1) << "without images the other is empty";
}

// --- Selection

TEST(BitmapListBoxSelection, SurvivesARefillByItemData) {
    for (const DWORD dwStyle : {DWORD(0), DWORD(LBS_EXTENDEDSEL)}) {
        BoxWindow w(dwStyle);
        const auto fill = [&](std::vector<DWORD_PTR> data) {
            w.list->ResetContent();
            for (size_t i = 0; i < data.size(); ++i) {
                w.list->AddBitmapString(0, "x");
                w.list->SetItemData(static_cast<int>(i), data[i]);
            }
        };
        constexpr DWORD_PTR kWide = 0x100000001;
        fill({1, kWide, 3, 4});
        for (const int nRow : {1, 3}) {
            dwStyle != 0 ? w.list->SetSel(nRow) : w.list->SetCurSel(nRow);
        }
        w.list->SaveSelections();
        fill({4, 4, 9, 1, kWide});
        w.list->RestoreSelections();
        const std::string strGot = w.Selection();
        EXPECT_EQ(strGot.substr(0, strGot.find('(')), dwStyle != 0 ? "0|4" : "0");
    }
}

TEST(BitmapListBoxSelection, TheRightButtonSelects) {
    BoxWindow single;
    BoxWindow w(LBS_EXTENDEDSEL);
    for (int i = 0; i < 4; ++i) {
        w.list->AddBitmapString(0, "x");
        single.list->AddBitmapString(0, "x");
    }
    const auto click = [](BoxWindow& window, CPoint point) {
        ClickAt(window.list->m_hWnd, point, MouseButton::Right);
        EXPECT_EQ(::GetFocus(), window.list->m_hWnd);
        return window.Selection();
    };
    w.list->SetSel(0);
    w.list->SetSel(2);
    EXPECT_EQ(click(w, w.RowRect(2).CenterPoint()), "0|2(2)") << "a selected row keeps all";
    EXPECT_EQ(click(w, w.RowRect(1).CenterPoint()), "1(1)");
    ::SetFocus(nullptr);
    EXPECT_EQ(click(w, CPoint(20, 150)), "1(1)") << "under the rows";
    EXPECT_EQ(click(single, single.RowRect(3).CenterPoint()).substr(0, 1), "3");
}

TEST(BitmapListBoxSelection, TheRightButtonFindsRowsBehindThe65536th) {
    FontParent parent(CSize(200, 200));
    OpenListBox list;
    ::CreateWindowEx(0, "LISTBOX", "", WS_CHILD | LBS_OWNERDRAWFIXED | LBS_NODATA, 0, 0, 150, 190,
                     parent.m_hWnd, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kBoxId)), nullptr,
                     nullptr);
    list.Initialize(kBoxId, 0, 0, 0, &parent);
    list.SendMessage(LB_SETCOUNT, 65600);
    ASSERT_EQ(list.GetCount(), 65600);
    for (const int nTop : {65530, 65560, 20}) {
        list.SetTopIndex(nTop);
        CRect rc;
        list.GetItemRect(nTop + 8, &rc);
        list.SendMessage(WM_RBUTTONDOWN, 0, MAKELPARAM(rc.left + 5, rc.top + 2));
        EXPECT_EQ(list.GetCurSel(), nTop + 8);
    }
}

// --- Tab stops

TEST(BitmapListBoxTabs, TablesHaveBounds) {
    BoxWindow w;
    std::vector<int> many(25, 10040);
    w.list->UseTabs(many.data(), 25);
    EXPECT_EQ(w.list->m_nTabs, 20);
    for (const int nTab : {-1, -1000, 20, INT_MAX}) {
        w.list->SetTabValue(nTab, 77);
        w.list->SetTabFormat(nTab, 2);
        EXPECT_EQ(w.list->GetTabValue(nTab), 0);
        EXPECT_EQ(w.list->GetTabFormat(nTab), 0u);
    }
    EXPECT_EQ(w.list->m_nTabs, 20);
    w.list->UseTabs(many.data(), 2);
    int own[] = {10070, 80};
    w.list->SetTabFormat(1, 2, own);
    EXPECT_EQ(w.list->GetTabValue(0, own) + own[1], 70 + 20080);
    EXPECT_EQ(w.list->GetTabFormat(1), 1u) << "the list's own stay";
    for (const auto& [nGiven, nTaken] : {std::pair(99, 20), {-3, 0}, {1, 1}}) {
        w.list->calcTabs = [nGiven = nGiven](int*) { return nGiven; };
        w.list->CalcListTabs();
        EXPECT_EQ(w.list->m_nTabs, nTaken);
    }
    w.list->ClearTabs();
    EXPECT_EQ(w.list->m_nTabs + w.list->m_anTabs[0], 0);
}

// --- Header

TEST(BitmapListBoxHeader, StandsAboveTheListInsideItsFrame) {
    const int cx = ::GetSystemMetrics(SM_CXEDGE);
    const int cy = ::GetSystemMetrics(SM_CYEDGE);
    for (const bool bImages : {false, true}) {
        BoxWindow w(WS_BORDER, bImages, true);
        w.list->AddHeader("a");
        const CRect rcShared = w.list->rcShared;
        const int nIcons = bImages ? kListImageWidth + 2 : 0;
        CRect rcFrame(rcShared);
        rcFrame.InflateRect(cx, cy);
        const auto expectPlaces = [&] {
            const CRect rcHeader = w.RectOf(w.list->m_header);
            EXPECT_EQ(rcHeader.TopLeft(), rcShared.TopLeft() + CPoint(nIcons, 0));
            EXPECT_EQ(rcHeader.right, rcShared.left + w.RectOf(*w.list).Width());
            EXPECT_GT(rcHeader.Height(), 10);
            EXPECT_EQ(w.RectOf(*w.list).TopLeft(), CPoint(rcShared.left, rcHeader.bottom));
        };
        expectPlaces();
        EXPECT_EQ(w.RectOf(*w.list).BottomRight(), rcShared.BottomRight());
        EXPECT_EQ(w.RectOf(w.list->m_wndFrame), rcFrame);
        EXPECT_EQ(w.list->GetStyle() & WS_BORDER, 0u);
        w.list->SetWindowPos(nullptr, 0, 0, 200, 90, SWP_NOMOVE | SWP_NOZORDER);
        expectPlaces();
        CRect rcAll;
        rcAll.UnionRect(w.RectOf(w.list->m_header), w.RectOf(*w.list));
        rcAll.InflateRect(cx, cy);
        EXPECT_EQ(w.RectOf(w.list->m_wndFrame), rcAll);
        EXPECT_EQ(w.Initialize(bImages), 1);
        expectPlaces();
        w.list->SetWindowPos(nullptr, 0, 0, 5, 5, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_GE(w.RectOf(w.list->m_header).Width(), 0);
    }
    BoxWindow bare(0, true, true);
    EXPECT_EQ(bare.list->m_wndFrame.m_hWnd, nullptr) << "no border, no frame";
    EXPECT_EQ(bare.RectOf(*bare.list).top, bare.RectOf(bare.list->m_header).bottom);
}

TEST(BitmapListBoxHeader, ColumnsFollowTheStops) {
    BoxWindow w(0, false, true);
    w.list->AddHeader("one");
    w.list->AddHeader("two");
    w.list->AddHeader("three");
    EXPECT_EQ(w.HeaderItem(1).cxy, 30);
    CString str("x");
    EXPECT_EQ(w.list->MakeHeaderString(str), 3);
    EXPECT_STREQ(str, "xone\ttwo\tthree");
    const int tabs[] = {50, 20120};
    w.list->UseTabs(tabs, 2);
    EXPECT_EQ(w.HeaderItem(0).cxy, 50);
    EXPECT_EQ(w.HeaderItem(0).fmt & HDF_JUSTIFYMASK, HDF_LEFT);
    EXPECT_EQ(w.HeaderItem(1).cxy, 70);
    EXPECT_EQ(w.HeaderItem(1).fmt & HDF_JUSTIFYMASK, HDF_CENTER) << "whatever the stop says";
    EXPECT_EQ(w.HeaderItem(2).cxy, 30) << "beyond the stops";
    w.list->CalcTabsFromHeader(1);
    EXPECT_EQ(w.list->GetTabValue(2), w.RectOf(w.list->m_header).Width());
    EXPECT_EQ(w.HeaderItem(0).cxy, w.list->GetTabValue(0));
    w.list->ClearHeaders();
    EXPECT_EQ(w.list->m_header.GetItemCount(), 0);
    for (int i = 0; i < 100; ++i) {
        w.list->AddHeader(std::string(150, 'a').c_str());
    }
    w.list->CalcTabsFromHeader(0);
    EXPECT_EQ(w.list->m_nTabs, 20);
    str.Empty();
    EXPECT_EQ(w.list->MakeHeaderString(str), 100);
    EXPECT_EQ(str.GetLength(), 100 * 99 + 99) << "99 bytes of each";
    OpenListBox none;
    none.AddHeader("a");
    none.ClearHeaders();
    none.CalcTabsFromHeader(0);
    none.InvalidateHeader(1);
    none.OnHdNotify(0, nullptr);
    EXPECT_EQ(none.MakeHeaderString(str), 0);
}

TEST(BitmapListBoxHeader, TheUserDragsAndClicks) {
    BoxWindow w(0, true, true);
    for (const char* psz : {"one", "two", "three"}) {
        w.list->AddHeader(psz);
    }
    const int tabs[] = {60, 10120, 180};
    w.list->UseTabs(tabs, 3);
    const HWND hHeader = w.list->m_header.m_hWnd;
    PressAt(hHeader, CPoint(119, 8));
    MoveTo(hHeader, CPoint(149, 8));
    ReleaseAt(hHeader, CPoint(149, 8));
    EXPECT_EQ(w.list->m_anTabs[0], 60);
    EXPECT_EQ(w.list->m_anTabs[1], 10150);
    EXPECT_EQ(w.list->m_anTabs[2], 210) << "the column behind keeps its width";
    ClickAt(hHeader, CPoint(90, 8));
    EXPECT_EQ(w.list->nSorted, 1);
    HDITEM item{};
    item.cxy = 10;
    NMHEADER wide{{hHeader, kBoxHeaderId, HDN_ENDTRACKW}, 0, 0, &item};
    NMHEADER narrow{{hHeader, kBoxHeaderId, HDN_ITEMCLICKA}, 2, 0, nullptr};
    w.list->OnHdNotify(static_cast<int>(HDN_ENDTRACKW), &wide);
    w.list->OnHdNotify(static_cast<int>(HDN_ITEMCLICKA), &narrow);
    w.list->OnHdNotify(static_cast<int>(HDN_ENDTRACKA), &narrow);  // without an item
    EXPECT_EQ(w.list->GetTabValue(0), 10);
    EXPECT_EQ(w.list->nSorted, 2);
}

// --- Paper and file

struct PrintedBox : testing::Test {
    PrintedBox() : w(0, true, true), dc(CSize(700, 300)) {
        dc.FillSolidRect(0, 0, 700, 300, RGB(255, 255, 255));
        for (const char* psz : {"first", "second", "third"}) {
            w.list->AddHeader(psz);
        }
        const int tabs[] = {50, 20100};
        w.list->UseTabs(tabs, 2);
    }
    BoxWindow w;
    TextRecorder dc;
    CPrintInfo info;
};
using BitmapListBoxPrint = PrintedBox;

TEST_F(BitmapListBoxPrint, RowsComeInPages) {
    w.list->AddStyle(RGB(255, 0, 0), RGB(0, 255, 0));
    for (int i = 0; i < 5; ++i) {
        w.list->AddBitmapString(1, ("r" + std::to_string(i) + "\t\033bx").c_str());
    }
    w.list->InsertString(3, "");
    w.list->CalcPrintTabStops(&dc, 0);
    const int nHeight = dc.GetTextExtent("0", 1).cy;
    const CRect rc(20, 10, 620, 10 + 2 * nHeight + 3);
    info.m_nCurPage = 2;
    EXPECT_EQ(w.list->PrintItems(&dc, &info, rc), 2);
    EXPECT_EQ(dc.All(), "r2|x|r2|x") << "an empty row repeats the one before it";
    EXPECT_EQ(dc.texts[1].crText, RGB(0, 0, 0)) << "no colours";
    EXPECT_EQ(dc.texts[1].rc.left, 20 + w.list->m_anPrintTabs[0] + 6);
    EXPECT_EQ(dc.texts[2].rc.top, 10 + nHeight);
    for (const UINT nPage : {0u, 4u, 0xFFFFFFFFu, 0x80000001u}) {
        info.m_nCurPage = nPage;
        EXPECT_EQ(w.list->PrintItems(&dc, &info, rc), 0);
    }
    info.m_nCurPage = 1;
    EXPECT_EQ(w.list->PrintItems(&dc, &info, CRect(0, 0, 100, nHeight - 1)), 0);
    w.list->ClearTabs();
    dc.texts.clear();
    EXPECT_EQ(w.list->PrintItems(&dc, &info, rc), 2);
    EXPECT_EQ(dc.All(), "r0|r1") << "stops of the screen bound the walk";
    EXPECT_EQ(dc.texts[0].rc.right, 614);
}

TEST_F(BitmapListBoxPrint, TitlesHaveTheirFontAndARule) {
    CFont fontRow, fontHeader;
    fontRow.CreatePointFont(100, "Tahoma");
    fontHeader.CreatePointFont(160, "Tahoma");
    w.list->SetPrintFonts(&fontRow, &fontHeader);
    w.list->BeginPrinting(&dc, &info);
    w.list->BeginPrinting(&dc, &info);
    int nFirst = 0;
    w.list->calcTabs = [&](int* pTabs) {
        nFirst = pTabs[0];
        pTabs[0] += 40;
        return 77;
    };
    EXPECT_EQ(w.list->CalcPrintTabStops(&dc, 0), 20);
    w.list->calcTabs = nullptr;
    EXPECT_EQ(w.list->m_anPrintTabs[0], nFirst + 40) << "a derived class widens";
    EXPECT_EQ(w.list->m_anPrintHeaderTabs[0], nFirst + 40);
    EXPECT_EQ(w.list->m_anPrintHeaderTabs[1], w.list->m_anPrintTabs[1] + 10000);
    w.list->PrintHeader(&dc, CRect(20, 30, 620, 80));
    EXPECT_EQ(dc.All(), "first|second|third");
    EXPECT_EQ(dc.texts[0].hFont, fontHeader.GetSafeHandle());
    EXPECT_EQ(dc.texts[2].nFormat & DT_CENTER, static_cast<UINT>(DT_CENTER));
    const int nHeight = w.list->HeaderPrintHeight(&dc) * 2 / 3;
    const int y = 30 + nHeight * 5 / 4;
    EXPECT_EQ(dc.GetPixel(20, y), RGB(0, 0, 0));
    EXPECT_EQ(dc.GetPixel(619, y), RGB(0, 0, 0));
    EXPECT_EQ(dc.GetPixel(620, y), RGB(255, 255, 255));
    w.list->m_nPrintHeaderHeight = 77;
    EXPECT_EQ(w.list->HeaderPrintHeight(&dc), 77);
    w.list->EndPrinting(&dc, &info);
    EXPECT_LT(w.list->HeaderPrintHeight(&dc) * 2 / 3, nHeight) << "all is forgotten";
    w.list->ClearHeaders();
    w.list->PrintHeader(&dc, CRect(0, 200, 100, 220));
    EXPECT_EQ(dc.GetPixel(50, 200), RGB(0, 0, 0)) << "a rule without titles";
}

TEST(BitmapListBoxExport, WritesFieldsWithoutCodes) {
    const TempFile file;
    BoxWindow w;
    w.list->AddBitmapString(1, "\033aone\ttwo");
    w.list->AddString("");
    w.list->AddBitmapString(1, "\tshifts\t\tleft");
    EXPECT_EQ(w.list->ExportData(file.Path(), ';'), 1);
    EXPECT_EQ(file.Content(), "one;two\r\nshifts;;left\r\n");
    w.list->ResetContent();
    EXPECT_EQ(w.list->ExportData(file.Path(), ';'), 1);
    EXPECT_EQ(file.Content(), "");
    EXPECT_EQ(w.list->ExportData("no such folder\\x.txt", ';'), 0);
}

}  // namespace
