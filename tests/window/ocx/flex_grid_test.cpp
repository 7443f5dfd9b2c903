// The flexible grid in a window, through its wrapper.

#include "ocx/com.h"
#include "ocx/qvocx.h"
#include "support/monkey.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/test_app.h"

#include <afxdisp.h>

#include <QVControls.h>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <string>

namespace {

constexpr UINT kGrid = 3221;

constexpr COLORREF kRed = RGB(255, 0, 0);

/// Holds one grid, and writes down what it tells.
class GridParent : public CWnd {
public:
    GridParent() {
        CreateEx(0, AfxRegisterWndClass(0), "flexible grid", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                 CRect(20, 20, 520, 420), nullptr, 0);
        Make();
    }
    ~GridParent() override {
        m_pGrid.reset();
        DestroyWindow();
    }
    void Make() {
        m_pGrid = std::make_unique<CFlexGrid>();
        ASSERT_TRUE(m_pGrid->Create(nullptr, WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                                    CRect(0, 0, 301, 201), this, kGrid));
        m_pGrid->SetBorderStyle(0);
    }
    CFlexGrid& Grid() { return *m_pGrid; }

    std::unique_ptr<CFlexGrid> m_pGrid;
    std::string m_events;  ///< a letter for each
    std::function<void(char)> m_onEvent;
    std::function<short(long, long)> m_compare;

protected:
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override {
        if (nID != kGrid || nCode != static_cast<int>(CN_EVENT)) {
            return CWnd::OnCmdMsg(nID, nCode, pExtra, pInfo);
        }
        auto* pEvent = static_cast<AFX_EVENT*>(pExtra);
        // SelChange, RowColChange, EnterCell, LeaveCell, scroll, compare; Click, Down, Up
        static const std::map<DISPID, char> kLetters = {{69, 'S'},   {70, 'R'},   {71, 'E'},
                                                        {72, 'L'},   {73, 's'},   {74, 'c'},
                                                        {-600, 'C'}, {-605, 'D'}, {-607, 'U'}};
        const auto letter = kLetters.find(pEvent->m_dispid);
        if (pEvent->m_eventKind != AFX_EVENT::event || letter == kLetters.end()) {
            return FALSE;
        }
        m_events += letter->second;
        if (letter->second == 'c') {
            const VARIANTARG* pArgs = pEvent->m_pDispParams->rgvarg;
            *pArgs[0].piVal = m_compare ? m_compare(pArgs[2].lVal, pArgs[1].lVal) : 0;
        }
        if (const auto onEvent = m_onEvent) {
            onEvent(letter->second);
        }
        return TRUE;
    }
};

class FlexGridTest : public testing::Test {
protected:
    FlexGridTest() {
        AfxEnableControlContainer();
        QVRegisterControls();
        m_pParent = std::make_unique<GridParent>();
    }
    ~FlexGridTest() override {
        m_pParent.reset();
        QVRevokeControls();
        EXPECT_EQ(QVOcxObjectCount(), 0);
    }
    GridParent& Parent() { return *m_pParent; }
    CFlexGrid& Grid() { return m_pParent->Grid(); }
    /// Rows and columns of 20 by 60 pixels, one of each fixed, "row.column" in the cells.
    void Fill(int nRows, int nCols) {
        Grid().SetRedraw(FALSE);
        Grid().SetRows(nRows);
        Grid().SetCols(nCols);
        Grid().SetRowHeight(-1, 300);
        Grid().SetColWidth(-1, 900);
        CString strCell;
        for (int nRow = 0; nRow < nRows; ++nRow) {
            for (int nCol = 0; nCol < nCols; ++nCol) {
                strCell.Format("%d.%d", nRow, nCol);
                Grid().SetTextMatrix(nRow, nCol, strCell);
            }
        }
        Grid().SetRedraw(TRUE);
        Grid().UpdateWindow();
        Parent().m_events.clear();
    }
    std::string Selection() {
        CString str;
        str.Format("%ld,%ld-%ld,%ld", Grid().GetRow(), Grid().GetCol(), Grid().GetRowSel(),
                   Grid().GetColSel());
        return str.GetString();
    }
    std::string ErrorOf(const std::function<void()>& call) {
        try {
            call();
        } catch (COleDispatchException* e) {
            const std::string strError = e->m_strDescription.GetString();
            e->Delete();
            return strError;
        }
        return "";
    }

    std::unique_ptr<GridParent> m_pParent;
};

}  // namespace

TEST_F(FlexGridTest, MergedCellsColoursAndPicturesStandWhereTheirCellsDo) {
    Fill(20, 5);
    for (const int nRow : {2, 3, 4}) {
        Grid().SetTextMatrix(nRow, 1, "same");
    }
    Grid().SetMergeCells(1);
    Grid().SetMergeCol(1, TRUE);
    Grid().SetRow(2);
    Grid().SetCol(1);
    Grid().SetCellBackColor(kRed);
    EXPECT_EQ(Grid().GetCellTop(), 40 * 15);
    EXPECT_EQ(Grid().GetCellHeight(), 60 * 15);
    Grid().SetFocusRect(0);
    const CRect rcMerged(60, 40, 119, 99);
    // All but its text, and nothing beside it.
    const Picture merged = Picture::Fresh(Grid());
    EXPECT_GT(merged.Count(kRed, rcMerged), 59 * 59 - 500);
    EXPECT_EQ(merged.Count(kRed), merged.Count(kRed, rcMerged));
    Grid().SetTopRow(3);  // the rest of it shows
    EXPECT_EQ(Picture::Fresh(Grid()).Count(kRed, CRect(61, 61, 200, 200)), 0);
    EXPECT_GT(Picture::Fresh(Grid()).Count(kRed), 38 * 58 - 500);
    Grid().SetMergeCells(0);
    EXPECT_EQ(Picture::Fresh(Grid()).Count(kRed), 0) << "row 2 alone is red, and above";
    CPicture picture = Grid().GetPicture();
    Grid().SetRow(5);
    Grid().SetCol(3);
    const Picture bare = Picture::Fresh(Grid());
    Grid().SetRefCellPicture(picture.m_lpDispatch);
    EXPECT_FALSE(Picture::Fresh(Grid()) == bare);
    Grid().SetRefCellPicture(nullptr);
    EXPECT_TRUE(Picture::Fresh(Grid()) == bare);
}

TEST_F(FlexGridTest, ChangesShowOnceRedrawIsOnAgain) {
    Fill(5, 3);
    const Picture before = Picture::OfClient(Grid());
    Grid().SetRedraw(FALSE);
    Grid().SetBackColor(kRed);
    Grid().SetRows(100'000);
    Grid().SetTextMatrix(99'999, 2, "last");
    EXPECT_TRUE(Picture::OfClient(Grid()) == before);
    EXPECT_EQ(Grid().GetStyle() & WS_VSCROLL, 0u);
    Grid().SetRedraw(TRUE);
    EXPECT_FALSE(Picture::OfClient(Grid()) == before);
    EXPECT_NE(Grid().GetStyle() & WS_VSCROLL, 0u);
    Grid().SetFixedCols(0);
    EXPECT_EQ(Grid().GetLeftCol(), 0);
    Grid().SetTopRow(99'999);
    EXPECT_EQ(Grid().GetRowPos(99'999), 9 * 300) << "nine rows and a bit fit";
}

TEST_F(FlexGridTest, KeysAndMouseSelectAndTellInOrder) {
    Fill(30, 4);
    ASSERT_TRUE(BringToFront(Parent()));
    Grid().SetFocus();
    struct Case {
        const char* pszSelection;
        const char* pszEvents;
        std::function<void()> act;
    } const aCases[] = {
        {"2,1-2,1", "DLERSUC", [&] { ClickAt(Grid(), CPoint(90, 50)); }},
        {"3,1-3,1", "LERS", [&] { TypeKey(VK_DOWN); }},
        {"3,1-4,1", "S", [&] { TypeKey(VK_DOWN, true); }},
        {"29,3-29,3", "LsERS", [&] { TypeKey(VK_END, false, true); }},
        {"1,2-29,2", "DLERSUC", [&] { ClickAt(Grid(), CPoint(130, 5)); }},  // a heading
        {"1,1-1,1", "LsERS", [&] { TypeKey(VK_HOME, false, true); }},
    };
    for (const Case& c : aCases) {
        Parent().m_events.clear();
        c.act();
        EXPECT_EQ(Selection(), c.pszSelection);
        EXPECT_EQ(Parent().m_events, c.pszEvents) << c.pszSelection;
    }
}

TEST_F(FlexGridTest, TheMouseFindsTheCellThatShowsAndDragsWidths) {
    Fill(100'000, 6);
    ASSERT_TRUE(BringToFront(Parent()));
    Grid().SetTopRow(50'000);
    ASSERT_TRUE(Wheel(Grid(), -120));
    EXPECT_EQ(Grid().GetTopRow(), 50'003);
    ASSERT_TRUE(MoveTo(Grid(), {90, 50}));
    EXPECT_EQ(Grid().GetMouseRow(), 50'004);
    EXPECT_EQ(Grid().GetMouseCol(), 1);
    Grid().SetAllowUserResizing(1);
    ASSERT_TRUE(PressAt(Grid(), {119, 5}));
    MoveTo(Grid(), {140, 5});
    ReleaseAt(Grid(), {150, 5});
    EXPECT_EQ(Grid().GetColWidth(1), 90 * 15);
    EXPECT_EQ(Selection(), "1,1-1,1") << "that was no click on the heading";
    // Beyond the edge, a drag scrolls on.
    ASSERT_TRUE(PressAt(Grid(), {90, 50}));
    MoveTo(Grid(), {90, 250});
    EXPECT_TRUE(PumpUntil([&] { return Grid().GetRowSel() > 50'020; }));
    ReleaseAt(Grid(), {90, 250});
    EXPECT_GT(Grid().GetTopRow(), 50'010);
    EXPECT_EQ(Grid().GetRow(), 50'004);
}

TEST_F(FlexGridTest, SortsBySelectionAndByWhoeverCompares) {
    Fill(5, 2);
    const auto rows = [&] {
        Grid().SetRow(1);
        Grid().SetCol(1);
        Grid().SetRowSel(4);
        return std::string(Grid().GetClip().GetString());
    };
    Grid().SetRow(2);
    Grid().SetCol(1);
    Grid().SetRowSel(3);
    Grid().SetSort(8);
    EXPECT_EQ(rows(), "1.1\r3.1\r2.1\r4.1") << "of the selected rows alone";
    Parent().m_compare = [](long nRow1, long nRow2) { return static_cast<short>(nRow2 - nRow1); };
    Grid().SetSort(9);
    EXPECT_EQ(rows(), "4.1\r2.1\r3.1\r1.1");
    Parent().m_compare = [&](long, long) {
        Grid().SetRows(6);
        return short{1};
    };
    Grid().SetSort(9);
    EXPECT_EQ(rows(), "4.1\r2.1\r3.1\r1.1") << "a grid that changed meanwhile stays as it is";
    int nAsked = 0;
    Parent().m_compare = [&](long, long) -> short {
        ++nAsked;
        AfxThrowUserException();
    };
    Grid().SetSort(9);
    EXPECT_EQ(rows(), "4.1\r2.1\r3.1\r1.1");
    EXPECT_EQ(nAsked, 1) << "a handler that fails is not asked on";
    TheTestApp().Forget();
}

TEST_F(FlexGridTest, WhatCannotBeIsRefusedWithATextAndChangesNothing) {
    Fill(5, 3);
    const std::function<void()> aRefused[] = {
        [&] { Grid().SetFixedRows(5); },
        [&] { Grid().SetTextMatrix(5, 0, "x"); },
        [&] { Grid().SetTextArray(15, "x"); },
        [&] { Grid().SetColAlignment(0, 10); },
        [&] { Grid().RemoveItem(0); },
        [&] { Grid().SetSort(10); },
        [&] {
            Grid().SetFillStyle(1);
            Grid().SetRows(1'000'000);
            Grid().SetCols(1000);
            Grid().SetRowSel(999'999);
            Grid().SetColSel(999);
            Grid().SetText("x");
        },
    };
    for (const auto& refused : aRefused) {
        EXPECT_NE(ErrorOf(refused), "") << &refused - aRefused;
    }
    EXPECT_EQ(ErrorOf([&] { Grid().SetRows(-1); }),
              "The grid cannot have -1 rows: 0 to 10000000 are allowed.");
    COleFont font = Grid().GetFont();
    EXPECT_EQ(ErrorOf([&] { Grid().SetRefMouseIcon(font.m_lpDispatch); }),
              "The object is no picture.");
    EXPECT_EQ(ErrorOf([&] { Grid().SetRefMouseIcon(nullptr); }), "");
    EXPECT_EQ(ErrorOf([&] { Grid().SetRefFont(nullptr); }), "The object is no font.");
    Grid().SetRows(0);
    EXPECT_NE(ErrorOf([&] { Grid().SetText("x"); }), "");
    EXPECT_EQ(Grid().GetText(), "");
    EXPECT_EQ(Grid().GetCellHeight() + Grid().GetMouseRow() + Grid().GetRow(), 0);
    Picture::Fresh(Grid());
}

TEST_F(FlexGridTest, TheGridMayGoInEachOfItsEvents) {
    for (const char chEvent : std::string("LERSDUsc")) {
        Fill(30, 3);
        ASSERT_TRUE(BringToFront(Parent()));
        bool bTold = false;
        Parent().m_onEvent = [&](char ch) {
            if (ch == chEvent) {
                bTold = true;
                Grid().DestroyWindow();
            }
        };
        if (chEvent == 'c') {
            Grid().SetSort(9);
        } else if (chEvent == 's') {
            Wheel(Grid(), -120);
        } else {
            ClickAt(Grid(), {130, 50});
        }
        EXPECT_TRUE(bTold) << chEvent;
        Parent().m_onEvent = nullptr;
        Parent().Make();
    }
}

TEST_F(FlexGridTest, FlexGridMonkey) {
    const std::vector<std::function<void(int)>> deeds = {
        [&](int n) { Grid().SetRows(n); },
        [&](int n) { Grid().SetCols(n); },
        [&](int n) { Grid().SetFixedRows(n); },
        [&](int n) { Grid().SetFixedCols(n); },
        [&](int n) { Grid().SetRow(n); },
        [&](int n) { Grid().SetColSel(n); },
        [&](int n) { Grid().SetText(n % 3 == 0 ? "x" : "y"); },
        [&](int n) { Grid().SetMergeCells(n % 5); },
        [&](int n) { Grid().SetMergeCol(n, TRUE); },
        [&](int n) { Grid().SetRowHeight(n, (n % 7) * 100); },
        [&](int n) { Grid().SetColWidth(n % 4, (n % 3) * 900); },
        [&](int n) { Grid().SetSort(static_cast<short>(n % 10)); },
        [&](int n) { Grid().SetSelectionMode(n % 3); },
        [&](int n) { Grid().SetRedraw(n % 3 != 0); },
        [&](int n) { Grid().AddItem("a\tb", COleVariant(static_cast<long>(n))); },
        [&](int n) { Grid().RemoveItem(n); },
        [&](int n) { Grid().SetColPosition(n % 5, n % 3); },
        [&](int n) { Grid().SetCellFontSize(static_cast<float>(n)); },
        [&](int n) { Grid().SendMessage(WM_KEYDOWN, VK_PRIOR + n % 8); },
        [&](int n) { Grid().SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(n * 5, n * 4)); },
        [&](int n) { Grid().SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(n * 6, n * 3)); },
        [&](int n) { Grid().SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(n, n)); },
        [&](int n) { Grid().SendMessage(WM_VSCROLL, static_cast<WPARAM>(n % 9)); },
        [&](int n) { Grid().MoveWindow(0, 0, n * 8, n * 6); },
        [&](int) { Grid().UpdateWindow(); },
        [&](int) { Parent().m_pGrid.reset(); },
    };
    std::vector<std::function<void(int)>> guarded;
    for (const auto& deed : deeds) {
        guarded.push_back([&, deed](int n) { ErrorOf([&] { deed(n); }); });
    }
    PlayInAnyOrder(
        Parent().m_pGrid, [&] { Parent().Make(); }, guarded);
}
