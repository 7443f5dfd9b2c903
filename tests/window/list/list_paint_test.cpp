#include "support/list_window.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

const COLORREF kWindow = ::GetSysColor(COLOR_WINDOW);
const COLORREF kHighlight = ::GetSysColor(COLOR_HIGHLIGHT);
const COLORREF kFace = ::GetSysColor(COLOR_BTNFACE);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

using Colors = std::vector<COLORREF>;

// What the list repaints by itself, without being told to.
TEST(ListPaint, SelectionAndFocusShowAsTheyChange) {
    ListWindow<> w("a\tb");
    w.list.AddStyle(kRed, kGreen);
    w.Add("x\t\033bstyled");
    BringToFront(w.parent.m_hWnd);
    w.list.SetFocus();
    Picture::Fresh(w.list);
    const CRect rc = w.RectOf(0);
    // At the left edge, in the second column, and right of the data.
    const auto colors = [&] {
        const Picture picture = Picture::OfClient(w.list.m_hWnd);
        const int y = rc.CenterPoint().y;
        return Colors{picture.At(rc.left + 1, y), picture.At(rc.left + 63, y),
                      picture.At(rc.left + 130, y)};
    };
    const Colors kPlain{kWindow, kGreen, kWindow}, kFull{kHighlight, kHighlight, kWindow};
    w.list.SelectItem(0);
    EXPECT_EQ(colors(), kFull);
    EXPECT_EQ(Picture::Fresh(w.list).Count(kRed), 0) << "no colours of its own";
    ::SetFocus(w.parent.m_hWnd);
    EXPECT_EQ(colors(), (Colors{kFace, kFace, kWindow}));
    w.list.SetAlwaysHighlightSel(TRUE);
    w.list.Invalidate(FALSE);
    EXPECT_EQ(colors(), kFull);
    w.list.SelectItem(-1);
    EXPECT_EQ(colors(), kPlain);
    const auto dots = [&] {
        const CRect rcLine(rc.left, rc.top, rc.left + 60, rc.top + 1);
        return rcLine.Width() - Picture::OfClient(w.list.m_hWnd).Count(kWindow, rcLine);
    };
    w.list.SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED);
    EXPECT_EQ(dots(), 0);
    w.list.SetFocus();
    EXPECT_GT(dots(), 20) << "the row that has the focus, selected or not";
    ::SetFocus(w.parent.m_hWnd);
    EXPECT_EQ(dots(), 0);
    w.list.SelectItem(0);
    w.list.SetAllowSel(FALSE);
    w.list.Invalidate(FALSE);
    EXPECT_EQ(colors(), kPlain);
}

TEST(ListPaint, StylesCarryFromCellToCell) {
    ListWindow<> w("a\tb\tc\td");
    w.list.AddStyle(kRed, kGreen);       // b
    w.list.AddStyle(kBlue, 0xFFFFFFFF);  // c
    w.list.SetColStyle(3, 1);
    w.Add("row");
    const CRect rc = w.RectOf(0);
    const auto colors = [&](const char* pszRow) {
        w.list.SetItemString(0, pszRow);
        const Picture picture = Picture::Fresh(w.list);
        Colors cells;
        for (int nCol = 0, x = rc.left; nCol < 4; x += w.list.GetColWidth(nCol++, nullptr)) {
            cells.push_back(picture.At(x + 3, rc.CenterPoint().y));
        }
        return cells;
    };
    EXPECT_EQ(colors("1\t\033b2\t3\t\033c4"), (Colors{kWindow, kGreen, kGreen, kGreen}))
        << "the last one by its column's style";
    // Style 0 has a text colour but no background.
    EXPECT_EQ(colors("\033b1\t\033aMMMM\t3\t4"), (Colors{kGreen, kGreen, kGreen, kGreen}));
    EXPECT_EQ(Picture::Fresh(w.list).Count(kRed, CRect(rc.left + 60, rc.top, rc.right, rc.bottom)),
              0);
    w.list.SetColWidth(1, 0, nullptr);
    EXPECT_EQ(colors("1\t\033b2\t3\t4"), Colors(4, kWindow)) << "a hidden column colours nothing";
}

TEST(ListPaint, TheImageStandsInACellOfItsOwn) {
    ListWindow<> w("a\tb", true);
    w.Add("x\ty", 1);
    BringToFront(w.parent.m_hWnd);
    w.list.SetFocus();
    w.list.SelectItem(0);
    const CRect rc = w.RectOf(0);
    for (const bool bFirst : {false, true}) {
        w.list.SetImageFirstCol(bFirst);
        const Picture picture = Picture::Fresh(w.list);
        const int nCell = bFirst ? 60 : 14;  // with the image in its middle
        const CRect rcCell(rc.left, rc.top, rc.left + nCell, rc.bottom);
        EXPECT_EQ(picture.Count(kHighlight, rcCell), 0);
        EXPECT_EQ(picture.At(rc.left + nCell + 2, rc.CenterPoint().y), kHighlight);
        const CRect rcImage(rc.left + nCell / 2 - 6, rc.top, rc.left + nCell / 2 + 6, rc.bottom);
        EXPECT_GT(picture.Count(RGB(0, 0, 0), rcImage), 10);
        EXPECT_EQ(picture.Count(RGB(0, 0, 0), rcCell), picture.Count(RGB(0, 0, 0), rcImage));
    }
}

TEST(ListPaint, TheSpaceUnderTheRowsHasTheColumnsColours) {
    ListWindow<> w("a\tb", false, CSize(500, 400));
    w.list.AddStyle(kRed, kGreen);
    w.list.SetColStyle(1, 1);
    w.list.Invalidate(TRUE);
    CRect rcHeader;
    w.list.GetHeaderCtrl()->GetClientRect(&rcHeader);
    const auto shows = [&](int yTop, int yBottom) {
        const Picture picture = Picture::OfClient(w.list.m_hWnd);
        const int x = 60 * 2;
        return picture.Count(kGreen, CRect(61, yTop, x, yBottom)) == (x - 61) * (yBottom - yTop) &&
               picture.Count(kWindow, CRect(x, yTop, x + 50, yBottom)) == 50 * (yBottom - yTop);
    };
    ASSERT_TRUE(shows(rcHeader.bottom, 150));
    w.list.SetWindowPos(nullptr, 0, 0, 300, 100, SWP_NOMOVE | SWP_NOZORDER);
    PumpPending();
    w.list.SetWindowPos(nullptr, 30, 40, 420, 300, SWP_NOZORDER);
    EXPECT_TRUE(shows(rcHeader.bottom, 240)) << "moved and made larger";
    w.list.ShowWindow(SW_HIDE);
    w.parent.UpdateWindow();
    w.list.ShowWindow(SW_SHOW);
    EXPECT_TRUE(shows(rcHeader.bottom, 240)) << "shown again";
    w.Add("x\ty");
    EXPECT_TRUE(shows(w.RectOf(0).bottom, 240));
    EXPECT_FALSE(shows(w.RectOf(0).bottom - 1, 240)) << "from the row's lower edge on";
    w.list.SetColWidth(0, 900, nullptr);
    w.list.Scroll(CSize(2000, 0));
    EXPECT_EQ(Picture::Fresh(w.list).At(w.list.m_nClientWidth - 10, 150), kGreen)
        << "scrolled with the columns";
}

// Looks at the screen before each row is drawn, and at what is drawn of it.
class WatchedList : public QVListCtrlEx {
public:
    void DrawItem(LPDRAWITEMSTRUCT lpDIS) override {
        CClientDC dc(this);
        nErased += dc.GetPixel(lpDIS->rcItem.left + 1, lpDIS->rcItem.top + 1) != kRed ||
                   dc.GetPixel(110, lpDIS->rcItem.bottom - 2) != kRed;
        // The same row once more, on a context that keeps account.
        DRAWITEMSTRUCT dis = *lpDIS;
        dis.hDC = ::CreateEnhMetaFile(nullptr, nullptr, nullptr, nullptr);
        QVListCtrlEx::DrawItem(&dis);
        const HENHMETAFILE hFile = ::CloseEnhMetaFile(dis.hDC);
        ENHMETAHEADER header{};
        ::GetEnhMetaFileHeader(hFile, sizeof(header), &header);
        nCalls += header.nRecords - 2;  // without its start and its end
        ::DeleteEnhMetaFile(hFile);
        QVListCtrlEx::DrawItem(lpDIS);
    }

    int nErased = 0;
    DWORD nCalls = 0;
};

TEST(ListPaint, ARowReachesTheScreenInOnePiece) {
    ListWindow<WatchedList> w("a\tb");
    w.list.AddStyle(kBlue, kGreen);
    w.Add("x\t\033by");
    w.Add("z");
    w.list.UpdateWindow();
    CClientDC(&w.list).FillSolidRect(0, 0, 400, 200, kRed);
    w.list.nErased = 0;
    w.list.nCalls = 0;
    const CRect rcRows(0, w.RectOf(0).top, 400, w.RectOf(1).bottom);
    w.list.InvalidateRect(&rcRows, TRUE);
    w.list.UpdateWindow();
    EXPECT_EQ(w.list.nErased, 0) << "nobody erases under a row";
    EXPECT_EQ(w.list.nCalls, 2u) << "one for each row";
    EXPECT_EQ(Picture::OfClient(w.list.m_hWnd).Count(kRed, rcRows), 0);
}

TEST(ListWheel, ScrollsByLines) {
    ListWindow<> w("a");
    for (int i = 0; i < 100; ++i) {
        w.Add("x");
    }
    const auto turn = [&](int nDelta) {
        w.list.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(nDelta)), 0);
        return w.list.GetTopIndex();
    };
    EXPECT_EQ(turn(-120), 3) << "three lines a notch";
    EXPECT_EQ(turn(-60), 4);
    EXPECT_EQ(turn(60), 3);
}

}  // namespace
