#include "support/list_window.h"
#include "support/monkey.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <afxwin.h>

#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace {

const COLORREF kWindow = ::GetSysColor(COLOR_WINDOW);
const COLORREF kHighlight = ::GetSysColor(COLOR_HIGHLIGHT);
const COLORREF kFace = ::GetSysColor(COLOR_BTNFACE);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kNone = 0xFFFFFFFF;

Picture Shown(CWnd& wnd) {
    wnd.Invalidate(FALSE);
    wnd.UpdateWindow();
    return Picture::OfClient(wnd.m_hWnd);
}

// Colours at the left edge of each column of a row, where no text stands.
template <class Window>
std::vector<COLORREF> Backgrounds(Window& w, int nItem) {
    const Picture picture = Shown(w.list);
    const CRect rc = w.RectOf(nItem);
    std::vector<COLORREF> colors;
    for (int nCol = 0, x = rc.left; nCol < w.list.NumColumns(); ++nCol) {
        colors.push_back(picture.At(x + 3, rc.CenterPoint().y));
        x += w.list.GetColWidth(nCol, nullptr);
    }
    return colors;
}

using Colors = std::vector<COLORREF>;

TEST(ListPaint, SelectionShowsFocusAndEndsWithTheData) {
    ListWindow<> w("a\tb");
    w.list.AddStyle(kRed, kGreen);
    w.Add("x\t\033bstyled");
    w.Add("y\tz");
    BringToFront(w.parent.m_hWnd);
    w.list.SetFocus();
    w.list.SelectItem(0);
    EXPECT_EQ(Backgrounds(w, 0), (Colors{kHighlight, kHighlight}));
    const CRect rc = w.RectOf(0);
    EXPECT_EQ(Shown(w.list).At(rc.left + 130, rc.CenterPoint().y), kWindow) << "right of the data";
    EXPECT_EQ(Shown(w.list).Count(kRed), 0) << "no colours of its own";
    ::SetFocus(w.parent.m_hWnd);
    PumpPending();
    EXPECT_EQ(Backgrounds(w, 0), (Colors{kFace, kFace}));
    w.list.SetAlwaysHighlightSel(TRUE);
    EXPECT_EQ(Backgrounds(w, 0), (Colors{kHighlight, kHighlight}));
    w.list.ModifyStyle(LVS_SHOWSELALWAYS, 0);
    EXPECT_EQ(Backgrounds(w, 0), (Colors{kWindow, kGreen}));
    w.list.SetFocus();
    w.list.SetAllowSel(FALSE);
    EXPECT_EQ(Backgrounds(w, 0), (Colors{kWindow, kGreen}));
    EXPECT_GT(Shown(w.list).Count(kRed), 0);
}

TEST(ListPaint, StylesCarryFromCellToCell) {
    ListWindow<> w("a\tb\tc\td");
    w.list.AddStyle(kRed, kGreen);  // b
    w.list.AddStyle(kBlue, kNone);  // c
    w.list.SetColStyle(3, 1);
    w.Add("1\t\033b2\t3\t\033c4");
    EXPECT_EQ(Backgrounds(w, 0), (Colors{kWindow, kGreen, kGreen, kGreen}))
        << "the last one by its column's style";
    // Style 0 has a text colour but no background.
    w.list.SetItemString(0, "\033b1\t\033aMMMM\t3\t4");
    EXPECT_EQ(Backgrounds(w, 0), (Colors{kGreen, kGreen, kGreen, kGreen}));
    const CRect rc = w.RectOf(0);
    EXPECT_EQ(Shown(w.list).Count(kRed, CRect(rc.left + 60, rc.top, rc.right, rc.bottom)), 0);
    w.list.SetColWidth(1, 0, nullptr);
    w.list.SetItemString(0, "1\t\033b2\t3\t4");
    EXPECT_EQ(Backgrounds(w, 0), (Colors{kWindow, kWindow, kWindow, kWindow}))
        << "a hidden column colours nothing";
}

TEST(ListPaint, TheSpaceUnderTheRowsHasTheColumnsColours) {
    ListWindow<> w("a\tb");
    w.list.AddStyle(kRed, kGreen);
    w.list.SetColStyle(1, 1);
    w.Add("x\ty");
    const CRect rc = w.RectOf(0);
    const Picture one = Shown(w.list);
    EXPECT_EQ(one.At(90, rc.CenterPoint().y), kWindow);
    EXPECT_EQ(one.At(90, rc.bottom), kGreen) << "from the row's lower edge on";
    EXPECT_EQ(one.At(90, rc.bottom - 1), kWindow);
    w.list.SetColWidth(0, 500, nullptr);
    w.list.Scroll(CSize(1000, 0));
    EXPECT_EQ(Shown(w.list).At(w.list.m_nClientWidth - 10, 150), kGreen)
        << "scrolled with the columns";
    CClientDC dc(&w.list);
    EXPECT_TRUE(w.list.FillEmptySpace(&dc));
    for (int i = 0; i < 40; ++i) {
        w.Add("x");
    }
    EXPECT_FALSE(w.list.FillEmptySpace(&dc));
}

TEST(ListPaint, TheImageStandsInACellOfItsOwn) {
    ListWindow<> w("a\tb", true);
    w.Add("x\ty", 1);
    BringToFront(w.parent.m_hWnd);
    w.list.SetFocus();
    w.list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    const CRect rc = w.RectOf(0);
    const Picture picture = Shown(w.list);
    EXPECT_EQ(picture.Count(kHighlight, CRect(rc.left, rc.top, rc.left + 14, rc.bottom)), 0);
    EXPECT_GT(picture.Count(RGB(0, 0, 0), CRect(rc.left + 1, rc.top, rc.left + 13, rc.bottom)), 10);
    // The dotted frame runs around the data, without the image.
    const CRect rcLine(rc.left + 14, rc.top, rc.left + 120, rc.top + 1);
    EXPECT_LT(picture.Count(kHighlight, rcLine), rcLine.Width() - 40);
    w.list.SetImageFirstCol(TRUE);
    const Picture first = Shown(w.list);
    EXPECT_EQ(first.Count(kHighlight, CRect(rc.left, rc.top, rc.left + 60, rc.bottom)), 0);
    EXPECT_EQ(first.At(rc.left + 62, rc.CenterPoint().y), kHighlight);
    EXPECT_GT(first.Count(RGB(0, 0, 0), CRect(rc.left + 24, rc.top, rc.left + 36, rc.bottom)), 10)
        << "in the middle of the column";
}

// What the list repaints by itself, without being told to.
TEST(ListPaint, AChangeReachesTheRowsLeftEdge) {
    ListWindow<> w("a\tb");
    w.list.AddStyle(kRed, kGreen);
    w.Add("x\ty");
    BringToFront(w.parent.m_hWnd);
    w.list.SetFocus();
    Shown(w.list);
    const CRect rc = w.RectOf(0);
    const auto edge = [&] {
        const Picture picture = Picture::OfClient(w.list.m_hWnd);
        const int y = rc.CenterPoint().y;
        return Colors{picture.At(rc.left + 1, y), picture.At(rc.left + 3, y)};
    };
    w.list.SelectItem(0);
    EXPECT_EQ(edge(), Colors(2, kHighlight));
    ::SetFocus(w.parent.m_hWnd);
    EXPECT_EQ(edge(), Colors(2, kFace));
    w.list.SelectItem(-1);
    EXPECT_EQ(edge(), Colors(2, kWindow));
    w.list.SetItemString(0, "\033bx");
    EXPECT_EQ(edge(), Colors(2, kGreen));
}

TEST(ListPaint, AnEmptyListKeepsItsColumnsColours) {
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
    const int yTop = rcHeader.bottom;
    ASSERT_TRUE(shows(yTop, 150));
    w.list.SetWindowPos(nullptr, 0, 0, 300, 100, SWP_NOMOVE | SWP_NOZORDER);
    PumpPending();
    w.list.SetWindowPos(nullptr, 0, 0, 420, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(shows(yTop, 240)) << "made larger";
    w.list.SetWindowPos(nullptr, 30, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_TRUE(shows(yTop, 240)) << "moved";
    w.list.ShowWindow(SW_HIDE);
    w.parent.UpdateWindow();
    w.list.ShowWindow(SW_SHOW);
    EXPECT_TRUE(shows(yTop, 240)) << "shown again";
    EXPECT_EQ(Picture::OfClient(w.list.GetHeaderCtrl()->m_hWnd).Count(kGreen), 0);
}

TEST(ListPaint, TheFocusedRowShowsItselfWithoutASelection) {
    ListWindow<> w("a\tb");
    w.Add("x\ty");
    w.Add("x\ty");
    BringToFront(w.parent.m_hWnd);
    w.list.SetFocus();
    w.list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED | LVIS_SELECTED);
    Shown(w.list);
    const CRect rc = w.RectOf(1);
    const auto dots = [&] {
        const CRect rcLine(rc.left, rc.top, rc.left + 120, rc.top + 1);
        return rcLine.Width() - Picture::OfClient(w.list.m_hWnd).Count(kWindow, rcLine);
    };
    EXPECT_GT(dots(), 40);
    ::SetFocus(w.parent.m_hWnd);
    EXPECT_EQ(dots(), 0);
    w.list.SetFocus();
    EXPECT_GT(dots(), 40);
}

// Looks at the screen before and after each row is drawn.
class WatchedList : public QVListCtrlEx {
public:
    void DrawItem(LPDRAWITEMSTRUCT lpDIS) override {
        CClientDC dc(this);
        const CRect rc(lpDIS->rcItem);
        if (dc.GetPixel(rc.left + 1, rc.top + 1) != kRed ||
            dc.GetPixel(110, rc.bottom - 2) != kRed) {
            ++nWrittenBefore;
        }
        // The same row once more, on a context that keeps account of what is drawn on it.
        const HDC hMeta = ::CreateEnhMetaFile(nullptr, nullptr, nullptr, nullptr);
        DRAWITEMSTRUCT dis = *lpDIS;
        dis.hDC = hMeta;
        QVListCtrlEx::DrawItem(&dis);
        const HENHMETAFILE hFile = ::CloseEnhMetaFile(hMeta);
        ::EnumEnhMetaFile(nullptr, hFile, KeepRecord, this, nullptr);
        ::DeleteEnhMetaFile(hFile);
        QVListCtrlEx::DrawItem(lpDIS);
        ++nRows;
    }
    static int CALLBACK KeepRecord(HDC, HANDLETABLE*, const ENHMETARECORD* pRecord, int,
                                   LPARAM lParam) {
        if (pRecord->iType != EMR_HEADER && pRecord->iType != EMR_EOF) {
            reinterpret_cast<WatchedList*>(lParam)->records.push_back(pRecord->iType);
        }
        return 1;
    }

    int nRows = 0;
    int nWrittenBefore = 0;
    std::vector<DWORD> records;
};

TEST(ListPaint, ARowReachesTheScreenInOnePiece) {
    ListWindow<WatchedList> w("a\tb");
    w.list.AddStyle(kBlue, kGreen);
    w.Add("x\t\033by");
    w.Add("z");
    w.list.UpdateWindow();
    CClientDC(&w.list).FillSolidRect(0, 0, 400, 200, kRed);
    w.list.nRows = w.list.nWrittenBefore = 0;
    w.list.records.clear();
    const CRect rcRows(0, w.RectOf(0).top, 400, w.RectOf(1).bottom);
    w.list.InvalidateRect(&rcRows, TRUE);
    w.list.UpdateWindow();
    EXPECT_EQ(w.list.nRows, 2);
    EXPECT_EQ(w.list.nWrittenBefore, 0) << "nobody erases under a row";
    EXPECT_EQ(std::count(w.list.records.begin(), w.list.records.end(), DWORD{EMR_BITBLT}), 2);
    EXPECT_EQ(w.list.records.size(), 2u) << "and nothing else is drawn";
    EXPECT_EQ(Picture::OfClient(w.list.m_hWnd).Count(kRed, rcRows), 0);
}

TEST(ListPaint, OutsideOfAPaintNothingIsDrawn) {
    ListWindow<> w("a");
    w.Add("x");
    CClientDC dc(&w.list);
    DRAWITEMSTRUCT dis{};
    dis.hDC = dc;
    dis.itemAction = ODA_DRAWENTIRE;
    dis.rcItem = CRect(0, 0, 50, 10);
    const Picture before = Shown(w.list);
    w.list.DrawItem(&dis);
    EXPECT_TRUE(before == Picture::OfClient(w.list.m_hWnd));
}

TEST(ListPaint, KeepsNoHandles) {
    ListWindow<> w("a\tb\tc", true);
    w.list.AddStyle(kRed, kGreen);
    for (int i = 0; i < 30; ++i) {
        w.Add("x\t\033by\tz", i % 4);
    }
    Shown(w.list);
    const long nHandles = AfxGetOwnedHandleCount();
    for (int i = 0; i < 2000; ++i) {
        w.list.RedrawItems(i % 30, i % 30);
        w.list.UpdateWindow();
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
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
    EXPECT_EQ(turn(-60), 6);
    EXPECT_EQ(turn(120), 3);
    EXPECT_EQ(w.list.SendMessage(WM_MOUSEWHEEL, 0, 0), 1);
}

// Anything may come in any order; nothing may break.
TEST(ListMonkey, SurvivesAnyOrderOfOperations) {
    ListWindow<> w;
    std::mt19937 random = MonkeyRandom(5);
    w.list.AddStyle(kRed, kNone);
    for (int i = 0; i < MonkeySteps(); ++i) {
        const int n = static_cast<int>(random() % 40) - 2;
        const std::function<void()> kDeeds[] = {
            [&] { w.list.InsertBitmapString(n, n, "\033brow\tx\t\033zy"); },
            [&] { w.list.AddBitmapString(n, "some\tother", random() % 2 != 0); },
            [&] { w.list.DeleteItem(n); },
            [&] { w.list.SetItemString(n, "a\tb\tc\td"); },
            [&] { w.list.SelectItem(n); },
            [&] { w.list.SetColWidth(n, n * 9, nullptr); },
            [&] { w.list.SetColStyle(n, n), w.list.SetColFormat(n, n % 4); },
            [&] { w.list.SendMessage(LVM_DELETECOLUMN, static_cast<WPARAM>(n)); },
            [&] { random() % 20 == 0 ? w.list.AddHeader("h\ti") : void(); },
            [&] { random() % 20 == 0 ? w.list.ClearHeaders() : void(); },
            [&] { random() % 30 == 0 && w.list.DeleteAllItems(); },
            [&] { w.list.SetImageFirstCol(n % 2); },
            [&] { w.list.CalcColsFromHeader(n); },
            [&] { w.list.SetupColumnsFromString("wide*\tx*\ty"); },
            [&] { w.list.Scroll(CSize(n * 5, n * 7)); },
            [&] { w.list.SaveSelections(), w.list.RestoreSelections(); },
            [&] { w.list.SendMessage(WM_MOUSEWHEEL, static_cast<WPARAM>(n * 20 << 16)); },
            [&] { w.list.SetWindowPos(nullptr, 0, 0, n * 12, 150, SWP_NOMOVE | SWP_NOZORDER); },
            [&] { w.list.SendMessage(WM_KEYDOWN, VK_DOWN); },
            [&] { w.list.InvalidateData(TRUE); },
            [&] { w.list.UpdateWindow(); }};
        kDeeds[random() % std::size(kDeeds)]();
    }
    w.list.SetWindowPos(nullptr, 0, 0, 300, 150, SWP_NOMOVE | SWP_NOZORDER);
    w.list.UpdateWindow();
    EXPECT_TRUE(::IsWindow(w.list.m_hWnd));
    EXPECT_GE(w.list.NumColumns(), 0);
}

}  // namespace
