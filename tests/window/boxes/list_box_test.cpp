// What the list box has beyond its rows: selection, tab stops, header, paper and file.
#include "support/box_window.h"
#include "support/real_input.h"
#include "support/temp_file.h"

#include <afxext.h>

#include <gtest/gtest.h>

namespace {

CPoint MiddleOf(OpenListBox& list, int nRow) {
    CRect rc;
    list.GetItemRect(nRow, &rc);
    return rc.CenterPoint();
}

// In the client area of its parent.
CRect RectOf(const CWnd& wnd) {
    CRect rc;
    wnd.GetWindowRect(&rc);
    wnd.GetParent()->ScreenToClient(&rc);
    return rc;
}

struct ListBox : testing::Test {
    explicit ListBox(bool bHeader = false) : w(LBS_EXTENDEDSEL, false, bHeader), list(*w.box) {}
    void Fill(std::initializer_list<DWORD_PTR> data) {
        list.ResetContent();
        for (const DWORD_PTR dwData : data) {
            list.SetItemData(list.AddBitmapString(0, "x"), dwData);
        }
    }
    BoxWindow<OpenListBox> w;
    OpenListBox& list;
};
// Three columns, two stops.
struct ListBoxWithHeader : ListBox {
    ListBoxWithHeader() : ListBox(true) {
        for (const char* psz : {"first", "second", "third"}) {
            list.AddHeader(psz);
        }
        const int tabs[] = {50, 20120};
        list.UseTabs(tabs, 2);
    }
};
// Beside paper.
struct ListBoxOnPaper : ListBoxWithHeader {
    ListBoxOnPaper() { dc.FillSolidRect(0, 0, 700, 300, RGB(255, 255, 255)); }
    TextRecorder dc{CSize(700, 300)};
    CPrintInfo info;
};

TEST_F(ListBox, SelectionSurvivesARefillByItemData) {
    constexpr DWORD_PTR kWide = 0x100000001;
    Fill({1, kWide, 3, 4});
    list.SetSel(1);
    list.SetSel(3);
    list.SaveSelections();
    Fill({4, 4, 9, 1, kWide});
    list.RestoreSelections();
    EXPECT_EQ(w.Selection().substr(0, 4), "0|4(");
}

TEST_F(ListBox, TheRightButtonSelects) {
    const std::pair<int, const char*> kClicks[] = {
        {2, "0|2(2)"}, {-1, "0|2(2)"}, {1, "1(1)"}};  // a selected row, under the rows, another
    Fill({0, 0, 0, 0});
    list.SetSel(0);
    list.SetSel(2);
    for (const auto& [nRow, pszSelection] : kClicks) {
        ::SetFocus(nullptr);
        ClickAt(list.m_hWnd, nRow == -1 ? CPoint(20, 140) : MiddleOf(list, nRow),
                MouseButton::Right);
        EXPECT_EQ(::GetFocus(), list.m_hWnd);
        EXPECT_EQ(w.Selection(), pszSelection);
    }
}

TEST_F(ListBox, TheRightButtonFindsRowsBehindThe65536th) {
    ::CreateWindowEx(0, "LISTBOX", "", WS_CHILD | LBS_OWNERDRAWFIXED | LBS_NODATA, 0, 0, 150, 190,
                     w.parent.m_hWnd, reinterpret_cast<HMENU>(1), nullptr, nullptr);
    OpenListBox large;
    large.Initialize(1, 0, 0, 0, &w.parent);
    large.SendMessage(LB_SETCOUNT, 65600);
    for (const int nTop : {65530, 65560, 20}) {
        large.SetTopIndex(nTop);
        const CPoint point = MiddleOf(large, nTop + 8);
        large.SendMessage(WM_RBUTTONDOWN, 0, MAKELPARAM(point.x, point.y));
        EXPECT_EQ(large.GetCurSel(), nTop + 8);
    }
}

TEST_F(ListBox, ATableOfStopsHasBounds) {
    for (const auto& [nGiven, nTaken] : {std::pair(99, 20), {-3, 0}, {1, 1}}) {
        list.calcTabs = [nGiven = nGiven](int*) { return nGiven; };
        list.CalcListTabs();
        EXPECT_EQ(list.m_nTabs, nTaken);
    }
}

TEST(ListBoxHeader, StandsAboveTheListInsideItsFrame) {
    const CSize sizeEdge(::GetSystemMetrics(SM_CXEDGE), ::GetSystemMetrics(SM_CYEDGE));
    for (const bool bImages : {false, true}) {
        BoxWindow<OpenListBox> w(WS_BORDER, bImages, true);
        OpenListBox& list = *w.box;
        const auto expectPlaces = [&](CRect rcAll) {
            CRect rcHeader(rcAll);
            rcHeader.left += bImages ? kListImageWidth + 2 : 0;
            rcHeader.bottom = RectOf(list).top;
            EXPECT_GT(rcHeader.Height(), 10);
            EXPECT_EQ(RectOf(list.m_header), rcHeader);
            EXPECT_EQ(RectOf(list).left, rcAll.left);
            EXPECT_EQ(RectOf(list).BottomRight(), rcAll.BottomRight());
            rcAll.InflateRect(sizeEdge);
            EXPECT_EQ(RectOf(list.m_wndFrame), rcAll);
        };
        expectPlaces(list.rcShared);
        list.SetWindowPos(nullptr, 0, 0, 200, 90, SWP_NOMOVE | SWP_NOZORDER);
        SetUpBox(list, &w.parent, kBoxId, bImages);
        expectPlaces(CRect(list.rcShared.TopLeft(), RectOf(list).BottomRight()));
        EXPECT_EQ(RectOf(list).Width(), 200);
    }
    BoxWindow<OpenListBox> bare(0, true, true);
    EXPECT_EQ(bare.box->m_wndFrame.m_hWnd, nullptr) << "no border, no frame";
}

TEST_F(ListBoxWithHeader, ColumnsFollowTheStops) {
    const auto column = [&](int nColumn) {
        HDITEM item{};
        item.mask = HDI_WIDTH | HDI_FORMAT;
        list.m_header.GetItem(nColumn, &item);
        return std::pair(item.cxy, item.fmt & HDF_JUSTIFYMASK);
    };
    EXPECT_EQ(column(0), std::pair(50, HDF_LEFT));
    EXPECT_EQ(column(1), std::pair(70, HDF_CENTER)) << "whatever the stop says";
    EXPECT_EQ(column(2), std::pair(30, HDF_LEFT)) << "beyond the stops";
    list.CalcTabsFromHeader(1);
    EXPECT_EQ(list.GetTabValue(2), RectOf(list.m_header).Width());
    EXPECT_EQ(column(0).first, list.GetTabValue(0));
    CString str("x");
    EXPECT_EQ(list.MakeHeaderString(str), 3);
    EXPECT_STREQ(str, "xfirst\tsecond\tthird");
}

TEST_F(ListBoxWithHeader, TheUserDragsAndClicks) {
    const HWND hHeader = list.m_header.m_hWnd;
    PressAt(hHeader, CPoint(49, 8));
    MoveTo(hHeader, CPoint(79, 8));
    ReleaseAt(hHeader, CPoint(79, 8));
    EXPECT_EQ(list.GetTabValue(0), 80);
    EXPECT_EQ(list.GetTabValue(1), 150) << "the column behind keeps its width";
    ClickAt(hHeader, CPoint(110, 8));
    EXPECT_EQ(list.nSorted, 1);
    // Either character set's, as the system has it.
    HDITEM item{};
    item.cxy = 95;
    NMHEADER header{{}, 0, 0, &item};
    list.OnHdNotify(static_cast<int>(HDN_ENDTRACKW), &header);
    list.OnHdNotify(static_cast<int>(HDN_ITEMCLICKW), &header);
    EXPECT_EQ(list.GetTabValue(0), 95);
    EXPECT_EQ(list.nSorted, 0);
}

TEST_F(ListBoxOnPaper, RowsComeInPages) {
    list.AddStyle(RGB(255, 0, 0), RGB(0, 255, 0));
    for (const char* psz : {"r0\t\033bx\t1", "r1\ty\t1", "r2\t\033bx\t1", "", "r4\tx\t1"}) {
        list.AddString(psz);
    }
    list.CalcPrintTabStops(&dc, 0);
    const int nHeight = dc.GetTextExtent("0", 1).cy;
    const CRect rc(20, 10, 620, 10 + 2 * nHeight + 3);
    const std::pair<UINT, int> kPages[] = {{0, 0}, {2, 2}, {4, 0}, {~0u, 0}, {0x80000001, 0}};
    for (const auto& [nPage, nRows] : kPages) {
        info.m_nCurPage = nPage;
        EXPECT_EQ(list.PrintItems(&dc, &info, rc), nRows) << nPage;
    }
    EXPECT_EQ(dc.All(), "r2|x|r2|x") << "an empty row repeats the one before it";
    EXPECT_EQ(dc.texts[1].crText, RGB(0, 0, 0)) << "no colours";
    EXPECT_EQ(dc.texts[1].rc.left, 20 + list.m_anPrintTabs[0] + 6);
    EXPECT_EQ(dc.texts[2].rc.top, 10 + nHeight);
}

TEST_F(ListBoxOnPaper, TitlesHaveTheirFontAndARule) {
    CFont font;
    font.CreatePointFont(160, "Tahoma");
    list.SetPrintFonts(nullptr, &font);
    list.BeginPrinting(&dc, &info);
    int nFirst = 0;
    list.calcTabs = [&](int* pTabs) {
        nFirst = pTabs[0];
        pTabs[0] += 40;
        return 77;
    };
    EXPECT_EQ(list.CalcPrintTabStops(&dc, 0), 20);
    EXPECT_EQ(list.m_anPrintTabs[0], nFirst + 40) << "a derived class widens";
    EXPECT_EQ(list.m_anPrintHeaderTabs[1], list.m_anPrintTabs[1] + 10000);
    list.PrintHeader(&dc, CRect(20, 30, 620, 80));
    EXPECT_EQ(dc.All(), "first|second|third");
    EXPECT_EQ(dc.texts[0].hFont, font.GetSafeHandle());
    const int nHeight = list.HeaderPrintHeight(&dc) * 2 / 3;
    EXPECT_EQ(dc.GetPixel(619, 30 + nHeight * 5 / 4), RGB(0, 0, 0));
    EXPECT_NE(dc.GetPixel(620, 30 + nHeight * 5 / 4), RGB(0, 0, 0));
    list.EndPrinting(&dc, &info);
    EXPECT_LT(list.HeaderPrintHeight(&dc) * 2 / 3, nHeight) << "all is forgotten";
}

TEST_F(ListBox, ExportWritesFieldsWithoutCodes) {
    const TempFile file;
    for (const char* psz : {"\033aone\ttwo\t1", "", "\tshifts\t\tleft\t1"}) {
        list.AddString(psz);
    }
    EXPECT_EQ(list.ExportData(file.Path(), ';'), 1);
    EXPECT_EQ(file.Content(), "one;two\r\nshifts;;left\r\n");
    EXPECT_EQ(list.ExportData("no such folder\\x.txt", ';'), 0);
}

}  // namespace
