#include "support/picture.h"
#include "window/grid/grid_in_front.h"

#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

const COLORREF kWindow = ::GetSysColor(COLOR_WINDOW);
const COLORREF kText = ::GetSysColor(COLOR_WINDOWTEXT);
const COLORREF kGray = ::GetSysColor(COLOR_GRAYTEXT);
const COLORREF kHighlight = ::GetSysColor(COLOR_HIGHLIGHT);
const COLORREF kFace = ::GetSysColor(COLOR_BTNFACE);
const COLORREF kDark = ::GetSysColor(COLOR_3DDKSHADOW);
constexpr COLORREF kRed = RGB(255, 0, 0);

// Rows of height h fit exactly, or with a part of one more.
class GridPaint : public GridInFront {
protected:
    GridPaint() : GridInFront(0), h(grid.m_nCellHeight) {}
    void SetHeight(int nHeight) {
        grid.SetWindowPos(nullptr, 0, 0, 420, nHeight, SWP_NOMOVE | SWP_NOZORDER);
    }
    void AddRows(int nRows) {
        for (int i = 0; i < nRows; ++i) {
            grid.AddRow("name\tabc\tdef\tone\tbtn", 0);
        }
    }
    void Redden(const CRect& rc) {
        grid.UpdateWindow();
        CClientDC dc(&grid);
        dc.FillSolidRect(&rc, kRed);
    }
    bool HasBar() { return (grid.GetStyle() & WS_VSCROLL) != 0; }

    const int h;
};

TEST_F(GridPaint, WithoutRowsTheWindowColourAlone) {
    EXPECT_EQ(Picture::Fresh(grid).Count(kWindow), 420 * 200);
    AddRows(3);
    EXPECT_GT(Picture::Fresh(grid).Count(kFace), 0);
    grid.DeleteAllRows();
    EXPECT_EQ(Picture::OfClient(grid.m_hWnd).Count(kWindow), 420 * 200);
}

TEST_F(GridPaint, LinesRunUnderAndBesideEachCellAndTheLastColumnReachesTheEdge) {
    AddRows(3);
    const Picture picture = Picture::Fresh(grid);
    for (int nRow = 0; nRow < 3; ++nRow) {
        EXPECT_EQ(picture.Count(kFace, CRect(0, (nRow + 1) * h - 1, 420, (nRow + 1) * h)), 420);
        int x = 0;
        for (int nCol = 0; nCol < 5; ++nCol) {
            x = nCol < 4 ? x + grid.GetColWidth(nCol) : 420;
            EXPECT_EQ(picture.Count(kFace, CRect(x - 1, nRow * h, x, (nRow + 1) * h)), h) << x;
        }
    }
    EXPECT_EQ(picture.Count(kFace), 3 * (420 + 5 * (h - 1))) << "and nowhere else";
    EXPECT_EQ(w.CellRect(1, kButton), CRect(310, h, 420, 2 * h));
}

TEST_F(GridPaint, TheCurrentRowShowsInItsFirstCellWithoutFocus) {
    AddRows(3);
    grid.GotoCell(1, kStatic, FALSE);
    grid.EnableCell(1, kStatic, FALSE);
    grid.SetFocus();
    Picture picture = Picture::Fresh(grid);
    EXPECT_EQ(picture.Count(kHighlight, CRect(0, h, 59, h + 1)), 59) << "no frame on it";
    EXPECT_GT(picture.Count(kHighlight, CRect(0, h, 60, 2 * h)), 59 * (h - 1) / 2);
    EXPECT_EQ(picture.Count(kHighlight), picture.Count(kHighlight, CRect(0, h, 60, 2 * h)));
    EXPECT_EQ(picture.Count(kGray, CRect(0, h, 60, 2 * h)), 0) << "nor is it grey";
    // Another cell of the row shows the focus, within its lines; the first one stays lit.
    grid.SetReadOnly(TRUE);
    grid.GotoCell(1, kList, FALSE);
    const auto onTop = [&] {
        return Picture::Fresh(grid).Count(kWindow, CRect(230, h, 309, h + 1));
    };
    EXPECT_LT(onTop(), 79);
    EXPECT_GT(Picture::Fresh(grid).Count(kHighlight), 0);
    w.other.SetFocus();
    EXPECT_EQ(onTop(), 79);
}

TEST_F(GridPaint, DisabledTextIsGray) {
    AddRows(2);
    grid.EnableCell(1, kEdit, FALSE);
    const Picture picture = Picture::Fresh(grid);
    const CRect rc(62, h + 1, 138, 2 * h - 2);
    EXPECT_GT(picture.Count(kGray, rc), 0);
    EXPECT_EQ(picture.Count(kText, rc), 0);
    EXPECT_GT(picture.Count(kText, CRect(62, 1, 138, h - 2)), 0);
    grid.EnableCell(1, kEdit, TRUE);
    EXPECT_EQ(Picture::OfClient(grid.m_hWnd).Count(kGray, rc), 0);
}

TEST_F(GridPaint, AButtonShowsInTheCurrentCellOnlyAndShowsItsPress) {
    AddRows(3);
    grid.GotoCell(1, kButton, FALSE);
    const CRect rc = w.ButtonRect(1, kButton);
    EXPECT_EQ(rc, CRect(419 - h, h, 419, 2 * h - 1));
    const CRect rcRight(rc.right - 1, rc.top, rc.right, rc.bottom);
    const CRect rcLeft(rc.left, rc.top, rc.left + 1, rc.bottom - 1);
    Picture picture = Picture::Fresh(grid);
    EXPECT_EQ(picture.Count(kDark, rcRight), rc.Height());
    const CRect rcFace(rc.left + 2, rc.top + 2, rc.right - 2, rc.bottom - 2);
    EXPECT_LT(picture.Count(kFace, rcFace), rcFace.Width() * rcFace.Height()) << "the dots";
    EXPECT_EQ(picture.Count(kDark), picture.Count(kDark, rc)) << "nowhere else";
    PressAt(grid.m_hWnd, rc.CenterPoint());
    picture = Picture::OfClient(grid.m_hWnd);
    EXPECT_EQ(picture.Count(kDark, rcLeft), rc.Height() - 1);
    EXPECT_LT(picture.Count(kDark, rcRight), 2);
    MoveTo(grid.m_hWnd, CPoint(5, 5));
    EXPECT_EQ(Picture::OfClient(grid.m_hWnd).Count(kDark, rcRight), rc.Height());
    ReleaseAt(grid.m_hWnd, CPoint(5, 5));
    grid.EnableCell(1, kButton, FALSE);
    EXPECT_EQ(Picture::OfClient(grid.m_hWnd).Count(kDark), 0);
    grid.GotoCell(2, kList, FALSE);
    EXPECT_GT(Picture::OfClient(grid.m_hWnd).Count(kFace, w.ButtonRect(2, kList)), h * h / 4);
    grid.SetReadOnly(TRUE);
    EXPECT_EQ(Picture::Fresh(grid).Count(kFace, w.ButtonRect(2, kList)), 0);
}

TEST_F(GridPaint, AResizedWindowFitsItsBarItsTopRowAndItsLastColumn) {
    AddRows(10);
    const auto fit = [&](int nHeight) {
        SetHeight(nHeight);
        SCROLLINFO info{};
        grid.GetScrollInfo(SB_VERT, &info, SIF_PAGE | SIF_POS);
        return "top " + std::to_string(grid.m_nTopRow) +
               (HasBar()
                    ? " bar at " + std::to_string(info.nPos) + " page " + std::to_string(info.nPage)
                    : " no bar");
    };
    EXPECT_EQ(fit(10 * h), "top 0 no bar");
    AddRows(1);
    EXPECT_TRUE(HasBar()) << "one row more than fits";
    grid.DeleteAllRows();
    EXPECT_FALSE(HasBar());
    AddRows(10);
    EXPECT_EQ(fit(10 * h - 1), "top 0 bar at 0 page 9") << "a part of a row does not count";
    EXPECT_EQ(fit(5 * h), "top 0 bar at 0 page 5");
    grid.SendMessage(WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(fit(8 * h), "top 2 bar at 2 page 8") << "no empty space under the last row";
    EXPECT_EQ(fit(12 * h), "top 0 no bar");
    grid.UpdateWindow();
    grid.SetWindowPos(nullptr, 0, 0, 500, 12 * h, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Picture::OfClient(grid.m_hWnd).Count(kFace, CRect(419, 0, 420, 10 * h)), 10)
        << "only the lines under the cells are left at the old edge";
}

TEST_F(GridPaint, ScrollingMovesThePixelsAndPaintsWhatComesIntoView) {
    SetHeight(5 * h);
    AddRows(20);
    const int nWidth = Picture::Fresh(grid).Width();
    Redden(CRect(10, 3 * h, 40, 4 * h));
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    CRect rcDue;
    grid.GetUpdateRect(&rcDue);
    EXPECT_EQ(rcDue, CRect(0, 4 * h, nWidth, 5 * h));
    const Picture picture = Picture::OfClient(grid.m_hWnd);
    EXPECT_EQ(picture.Count(kRed), 30 * h);
    EXPECT_EQ(picture.Count(kRed, CRect(10, 2 * h, 40, 3 * h)), 30 * h);
    EXPECT_EQ(picture.Count(kFace, CRect(0, 5 * h - 1, nWidth, 5 * h)), nWidth);
    for (const auto& [nCode, nPos, nTop] :
         {std::tuple{SB_PAGEDOWN, 0, 5}, {SB_THUMBTRACK, 9, 9}, {SB_THUMBPOSITION, 40, 15}}) {
        grid.SendMessage(WM_VSCROLL, MAKEWPARAM(nCode, nPos));
        EXPECT_EQ(grid.m_nTopRow, nTop);
        EXPECT_EQ(grid.GetScrollPos(SB_VERT), nTop);
    }
}

TEST_F(GridPaint, ANewTextTouchesItsCellAlone) {
    AddRows(5);
    grid.GotoCell(0, kStatic, FALSE);
    Picture::Fresh(grid);
    Redden(CRect(0, 0, 420, 200));
    const CRect rc = w.CellRect(2, kEdit);
    grid.SetCellText(2, kEdit, "new");
    const Picture picture = Picture::OfClient(grid.m_hWnd);
    EXPECT_EQ(picture.Count(kRed, rc), 0);
    EXPECT_EQ(picture.Count(kRed), 420 * 200 - rc.Width() * rc.Height());
    Redden(CRect(0, 0, 420, 200));
    grid.SendMessage(WM_SETREDRAW, FALSE);
    grid.SetCellText(2, kEdit, "newer");
    EXPECT_EQ(Picture::OfClient(grid.m_hWnd).Count(kRed), 420 * 200);
    grid.SendMessage(WM_SETREDRAW, TRUE);
    EXPECT_EQ(Picture::OfClient(grid.m_hWnd).Count(kRed), 0);
}

}  // namespace
